#pragma once

#include "image/recipe/make.h"
#include "jobs/crew/naming.h"
#include "jobs/result_files.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>

#include <map>
#include <memory>
#include <optional>

namespace jobs {

/**
 * One recipe over the pictures of a list, for scripts: what each becomes and where it goes, and the making of it. Names, numbers and
 * taken names are those of quorlin-batch. A picture is decoded once, whatever the number of its outputs.
 *
 * The properties are set before anything is asked for. Nothing here needs a window.
 */
class RecipeBatch : public QObject
{
    Q_OBJECT
    /** The text of the recipe's file; results are known by it later. */
    Q_PROPERTY(QString recipe READ recipe WRITE setRecipe)
    /** Where relative paths in it begin; absolute. */
    Q_PROPERTY(QString folder READ folder WRITE setFolder)
    /** Where relative folders of its outputs begin; empty: the folder of each picture. */
    Q_PROPERTY(QString base READ base WRITE setBase)
    /** All pictures, in their order. */
    Q_PROPERTY(QStringList paths READ paths WRITE setPaths)

public:
    Q_INVOKABLE explicit RecipeBatch(QObject *parent = nullptr);
    ~RecipeBatch() override;

    QString recipe() const { return m_text; }
    void setRecipe(const QString &text) { m_text = text; }
    QString folder() const { return m_folder; }
    void setFolder(const QString &folder) { m_folder = folder; }
    QString base() const { return m_options.destination.folder; }
    void setBase(const QString &folder) { m_options.destination.folder = folder; }
    QStringList paths() const { return m_paths; }
    void setPaths(const QStringList &paths) { m_paths = paths; }

    /** Why the recipe cannot be carried out, in a sentence that begins with the place; empty where it can. */
    Q_INVOKABLE QString problem();

    /**
     * What the picture @p index becomes, one dictionary an output: {status, reason, path, type, width, height, replaces,
     * replacesOriginal, lossless, losses}. status is "ready", "Failed", "Not Supported" or "Skipped"; path is empty where there is none.
     * To be asked for all pictures in their order, each once, before any is made.
     */
    Q_INVOKABLE QVariantList plan(int index);

    /**
     * Makes the outputs that are ready: each is written beside its place, and takes it when all of the picture are whole. What has taken a
     * name meanwhile is treated as the recipe says.
     *
     * @return one dictionary an output: {status, reason, path, bytes, width, height}; status is "OK" or one of those of plan()
     */
    Q_INVOKABLE QVariantList make(int index);

private:
    bool begin();
    void makeAll(PictureWork &work, const platform::ImageSource &source);
    void keep(PictureWork &work, int output, const platform::Result<image::MadeOutput> &made, ResultFiles &files);

    QString m_text;
    QString m_folder = QStringLiteral("/");
    QStringList m_paths;
    BatchOptions m_options;
    bool m_hasBegun = false;
    QString m_problem;
    image::Recipe m_recipe;
    bool m_needsFacts = false;
    std::optional<Inputs> m_inputs;
    std::unique_ptr<BatchNaming> m_naming;
    std::unique_ptr<WaitingRooms> m_rooms;
    std::map<int, PictureWork> m_works; ///< of the pictures that were planned
};

} // namespace jobs
