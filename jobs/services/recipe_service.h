#pragma once

#include "image/recipe/recipe_reader.h"
#include "jobs/services/recipe_work.h"
#include "text/token_values.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace image {
struct OutputPlan;
}

namespace jobs {

/** The recipe of a script, see RecipeService: fails unless it has exactly one output. */
platform::Result<image::Recipe> recipeFrom(const QVariantMap &object, const image::RecipeFiles &files);

/** The files that such a recipe names, without looking at them. */
platform::Result<QStringList> filesOf(const QVariantMap &object);

/** What RecipeService::planOutput() answers. */
QVariantMap answerOf(const image::OutputPlan &plan);

/**
 * Recipes for scripts: the plan and the result of one picture, here or by workers. A recipe is the plain object that its file would hold, see
 * docs/recipes.md, with exactly one output; paths in it are absolute. Nothing here needs a window.
 */
class RecipeService : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /**
     * The recipe of an action's settings, as its presets have them ("Resize", {mode, width ...}): the operations and one output, with
     * the folder and the rule for taken names that the settings ask for. Empty for an action and for settings that no recipe has.
     */
    Q_INVOKABLE QVariantMap recipeFor(const QString &action, const QVariantMap &settings) const;

    /**
     * What the recipe makes of the picture at @p path, from its header alone: {problem, isNotSupported, type, width, height,
     * extension, lossless, leftOut, losses, cut}. If there will be no result, problem is a sentence and the others mean
     * nothing; isNotSupported then says that its type cannot be written. type is the word of recipes ("jpeg"),
     * extension ".jpg", width and height are pixels of the upright result, leftOut counts pages and frames that it will
     * not have, losses are sentences. cut is empty unless the recipe begins with a crop: {frame, part, isPlaced} are
     * then the requested area, its part inside the picture, both as {x, y, width, height} in pixels of the upright
     * picture, and false if its position depends on the content of the picture.
     */
    Q_INVOKABLE virtual QVariantMap planOutput(const QString &path, const QVariantMap &recipe) const;

    /**
     * The name of a result with its @p extension (".jpg"), as made from a pattern by jobs::nameFrom(); if it is too
     * long, the part before the extension is shortened.
     *
     * @param index  how many pictures came before this one, for {counter}
     * @param width, height  pixels of the upright result
     */
    Q_INVOKABLE QString nameFor(const QString &path, const QString &pattern, int index, int width, int height,
                                const QString &extension) const;

    /**
     * Makes the result and writes it as the file @p target, whatever the recipe says about names, folders and existing
     * files; an existing file is replaced. Atomic. {counter} in a watermark is its first number.
     *
     * @return {outcome: "OK", "Failed" or "Not Supported", reason: a sentence, path, width, height, losses}; path is empty where
     *         nothing was written
     */
    Q_INVOKABLE QVariantMap make(const QString &path, const QVariantMap &recipe, const QString &target) const;

    /** Pictures that are handed over to workers. It belongs to this service until it is closed. */
    Q_INVOKABLE jobs::RecipeWork *work();
    /** How many pictures workers may process at a time: 1 to processors(), which is the default. */
    Q_INVOKABLE void useProcessors(int processors);
    /** How much memory the pictures in progress may need together, in MB; 0, the default: what is free. */
    Q_INVOKABLE void useMemory(int megabytes);
    /** The processors that this process may use, 1 or more. */
    Q_INVOKABLE int processors() const;
    /** Starts a first worker, for what may come. */
    Q_INVOKABLE void prepare();
    /**
     * {noNewPrivileges, fileRules, callRules}: what keeps workers from doing harm, as the kernel reported for the one
     * started last. Without any keys before the first one exists.
     */
    Q_INVOKABLE QVariantMap confinement() const;

    /**
     * Why a recipe cannot be carried out, in a sentence that begins with the place; empty if it can. Pictures,
     * patterns, fonts and profiles that it names are checked; with @p filesAreOpened false only fonts are.
     *
     * @param text    of its file
     * @param folder  absolute: where relative paths in it begin
     */
    Q_INVOKABLE virtual QString problemOf(const QString &text, const QString &folder, bool filesAreOpened) const;

    /**
     * What a recipe would access beyond its own folder and those of the pictures: {reads, writes}. reads are the
     * absolute paths of files outside @p folder, with links resolved; writes are the folders of outputs that are
     * absolute or lead upwards. Empty for an invalid recipe. No file is opened for this.
     */
    Q_INVOKABLE QVariantMap reachOf(const QString &text, const QString &folder) const;

    /** The recipes that come with the program, by name: {name, path} each. */
    Q_INVOKABLE QVariantList supplied() const;

    /** The extensions of the pictures that recipes are carried out over, in lower case. */
    Q_INVOKABLE QStringList takes() const;

    /**
     * Those of @p paths that a run of this program wrote and nobody changed since. Results that replaced their own original do not
     * count, and neither does what is on disks that cannot note it.
     */
    Q_INVOKABLE QStringList resultsAmong(const QStringList &paths) const;

    /** Notes that a run wrote the file at @p path, which no recipe did. */
    Q_INVOKABLE void noteResult(const QString &path) const;

    /**
     * The path of a result that needs not be made again: that this user's data folder knows to be made by the same recipe of the picture at
     * @p path, both unchanged since. It is @p wanted or a numbered form of it; empty if there is none.
     *
     * @param index  how many pictures come before this one, for {counter} in a watermark
     */
    Q_INVOKABLE QString upToDate(const QString &path, const QVariantMap &recipe, int index, const QString &wanted);

    /** The families of fonts that watermarks can be set in, by the alphabet. */
    Q_INVOKABLE QStringList fonts() const;

protected:
    /** All that is known of a picture, for tokens. */
    virtual text::TokenFacts tokenFacts(const QString &path, int index) const;

private:
    /** A recipe that was asked about last, as most pictures of a list have the same. */
    struct Asked
    {
        QVariantMap recipe;
        QStringList files;  ///< that it names
        QStringList states; ///< what they were like
        QList<MadeWith> made;
    };

    const QList<MadeWith> &madeWithFor(const QVariantMap &recipe);

    Asked m_asked;
};

} // namespace jobs
