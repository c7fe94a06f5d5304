#pragma once

#include "jobs/crew/messages.h"
#include "jobs/desk/recipe_errand.h"
#include "jobs/desk/worker_desk.h"

namespace jobs {

/** What a recipe makes of a picture, from its header, by a worker; or whether it can be carried out at all. */
class PlanErrand : public Errand
{
public:
    /** Of a plan with a problem and nothing else nothing could be found out. */
    using Take = std::function<void(const PlannedMessage &planned)>;

    /** @param picture  with an empty path only the recipe is checked, and its problem returned */
    PlanErrand(std::shared_ptr<const SharedRecipe> recipe, PictureMessage picture, Take take);

    std::vector<platform::Message> begin(Hand &hand) override;
    Turn take(platform::Message &message) override;
    void fail(const QString &reason) override;
    int seconds() const override { return 30; }

private:
    void answer(const PlannedMessage &planned);

    std::shared_ptr<const SharedRecipe> m_recipe;
    PictureMessage m_picture;
    Take m_take;
};

/** The same, waited for. */
PlannedMessage planNow(const std::shared_ptr<const SharedRecipe> &recipe, const PictureMessage &picture);

/**
 * Why a recipe cannot be carried out with the files that it names, which a worker opens; empty if it can. Waits for
 * that.
 */
QString recipeProblemNow(const QByteArray &json, const QString &folder);

} // namespace jobs
