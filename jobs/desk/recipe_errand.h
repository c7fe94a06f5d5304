#pragma once

#include "image/recipe/recipe.h"
#include "jobs/desk/errand.h"
#include "jobs/records/result_records.h"
#include "platform/descriptors/descriptor.h"
#include "platform/file/lent_file.h"

#include <QSize>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>

namespace jobs {

/** A recipe that is sent to workers, with the pictures and profiles that it names, opened once. */
class SharedRecipe
{
public:
    /** Fails with a sentence if it is invalid, or has more outputs. @param json  with absolute paths */
    static platform::Result<std::shared_ptr<const SharedRecipe>> from(const QByteArray &json);
    /** The same with any number of outputs. @param folder  absolute: where relative paths in it begin */
    static platform::Result<std::shared_ptr<const SharedRecipe>> whole(const QByteArray &json, const QString &folder);

    quint64 number() const { return m_number; } ///< never that of another one
    const image::Recipe &recipe() const { return m_recipe; }
    /** What its results are known by later, see settingsOf(). */
    const QString &settings() const { return m_settings; }
    /** What each output is made with; reads the files that the recipe names when it is asked for first. */
    const QList<MadeWith> &made() const;
    /** The message to a worker that has another one. */
    std::vector<platform::Message> messages() const;

private:
    quint64 m_number = 0;
    QByteArray m_json;
    QString m_folder;
    image::Recipe m_recipe;
    QString m_settings;
    mutable QList<MadeWith> m_made;
    std::map<QString, platform::LentFile> m_files;
};

/** What came of one picture. */
struct RecipeResult
{
    enum class Outcome { Ok, Failed, NotSupported };
    enum class Cause {
        Other,
        Vanished, ///< the picture is no longer there
        Full,     ///< of the disk, or what the user may have of it
    };

    Outcome outcome = Outcome::Failed;
    Cause cause = Cause::Other;
    QString reason; ///< a sentence if there is none
    QSize size;     ///< upright
    bool isLossless = false;
    QStringList losses; ///< sentences
    qint64 bytes = 0;
    qint64 milliseconds = 0; ///< of making it
};

/** One picture made into one file by a recipe. */
class RecipeErrand : public Errand
{
public:
    struct Task
    {
        QString path;        ///< of the picture, absolute
        QString target;      ///< a new file, absolute, in a folder that no other process uses; removed on failure
        int index = 0;       ///< how many pictures of the run come before it
        bool isNoted = true; ///< that it is a result, see markResult()
        QSize pixels;        ///< of the picture, for what it takes of memory; may be empty
    };
    using Take = std::function<void(const RecipeResult &result)>;

    /** @param take  is called once, unless the errand is dropped before */
    RecipeErrand(std::shared_ptr<const SharedRecipe> recipe, Task task, Take take);
    ~RecipeErrand() override;

    std::vector<platform::Message> begin(Hand &hand) override;
    Turn take(platform::Message &message) override;
    void fail(const QString &reason) override;
    qint64 expectedBytes() const override;

private:
    platform::Result<platform::Descriptor> makeTarget();
    Turn finish();
    void answer(RecipeResult result);

    std::shared_ptr<const SharedRecipe> m_recipe;
    Task m_task;
    Take m_take;
    RecipeResult m_result;
    int m_writeError = 0;
    bool m_isMade = false;
    bool m_isBegun = false; ///< there is a file
};

} // namespace jobs
