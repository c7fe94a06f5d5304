#pragma once

#include "image/recipe/make.h"
#include "jobs/crew/messages.h"
#include "jobs/desk/recipe_errand.h"

#include <optional>

namespace jobs {

/** One picture made into all its files by a recipe: it is decoded once. */
class BatchErrand : public Errand
{
public:
    struct Task
    {
        text::TokenFacts facts; ///< of the picture; its path is that of the file
        bool wantsFacts = false;
        qint64 expectedBytes = 0;
        /** Makes the files that a worker writes, by the indices of their outputs; called again where the first worker crashed. */
        std::function<std::vector<std::pair<int, platform::Descriptor>>()> files;
    };
    /** The callbacks, in this order: each output that was made or not, and the end, with a sentence on failure. */
    struct Listener
    {
        std::function<bool(const MadeMessage &made)> made; ///< false for what makes no sense
        std::function<void(const QString &problem)> ended; ///< once, unless the errand is dropped before
    };

    BatchErrand(std::shared_ptr<const SharedRecipe> recipe, Task task, Listener listener);

    std::vector<platform::Message> begin(Hand &hand) override;
    Turn take(platform::Message &message) override;
    void fail(const QString &reason) override;
    qint64 expectedBytes() const override { return m_task.expectedBytes; }

private:
    std::shared_ptr<const SharedRecipe> m_recipe;
    Task m_task;
    Listener m_listener;
    QString m_problem;
};

} // namespace jobs
