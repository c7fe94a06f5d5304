#pragma once

#include "jobs/crew/naming.h"
#include "jobs/desk/batch_errand.h"
#include "jobs/desk/worker_desk.h"
#include "jobs/result_files.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>

#include <deque>
#include <map>
#include <memory>
#include <optional>

namespace jobs {

/**
 * One recipe over the pictures of a list, for scripts: planning what each becomes and where it goes, and making it.
 * Names, numbers and the handling of existing files are those of quorlin-batch. A picture is decoded once, however many
 * outputs it has.
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
    /** The tree of each folder that was added is built again below the base. */
    Q_PROPERTY(bool keepsTree READ keepsTree WRITE setKeepsTree)
    /** All pictures, in their order; see join(). */
    Q_PROPERTY(QStringList paths READ paths WRITE setPaths)
    /** How many pictures more should be handed over now, so that no worker waits; 0 or more. */
    Q_PROPERTY(int room READ room)
    /** How many were handed over and were not taken yet. */
    Q_PROPERTY(int inWork READ inWork)

public:
    Q_INVOKABLE explicit RecipeBatch(QObject *parent = nullptr);
    ~RecipeBatch() override;

    QString recipe() const { return m_text; }
    void setRecipe(const QString &text) { m_text = text; }
    QString folder() const { return m_folder; }
    void setFolder(const QString &folder) { m_folder = folder; }
    QString base() const { return m_options.destination.folder; }
    void setBase(const QString &folder) { m_options.destination.folder = folder; }
    bool keepsTree() const { return m_options.destination.keepsTree; }
    void setKeepsTree(bool keeps) { m_options.destination.keepsTree = keeps; }
    QStringList paths() const { return m_paths; }
    void setPaths(const QStringList &paths) { m_paths = paths; }

    /** Why the recipe cannot be carried out, in a sentence that begins with the place; empty if it can. */
    Q_INVOKABLE QString problem();

    /**
     * What the picture @p index becomes, one dictionary an output: {output (its index in the recipe), status, reason, path, type, width,
     * height, replaces, replacesOriginal, lossless, losses}. status is "ready", "Failed", "Not Supported" or "Skipped";
     * path is empty if there is none. Must be called for all pictures in order, each once, before any is made.
     *
     * @param root  the folder in which the picture was found; empty if it was added itself
     */
    Q_INVOKABLE QVariantList plan(int index, const QString &root);
    /**
     * Plans a picture as an earlier batch did that was interrupted; to be asked in the same order, in place of plan().
     *
     * @param earlier  {root, width, height (of the picture in pixels), planned, done}, the last two one path an output:
     *                 its planned path, or empty if there was nothing to make; and the existing result, or empty
     * @return the outputs that are still to be made. What has taken a name meanwhile is treated as the recipe says.
     */
    Q_INVOKABLE QVariantList planAgain(int index, const QVariantMap &earlier);
    /** Appends further pictures; answers the index of the first of them. Nothing replaces them from now on. */
    Q_INVOKABLE int join(const QStringList &paths);

    int room() const;
    int inWork() const { return int(m_given.size() + m_made.size()); }

    /** Has the outputs that are ready made by a worker, each written beside its place. For a picture that was planned, once. */
    Q_INVOKABLE void give(int index);
    /**
     * A finished picture: {number, whole, ms}; without any keys if there is none. whole are the outputs for which there
     * is a file, one dictionary each: {output, file (its temporary path), path (its destination)}. Then call place().
     *
     * Where a disk is full: {number, full, folder, ms}, full being a sentence. Nothing is left of that picture, which may be handed over
     * again.
     */
    Q_INVOKABLE QVariantMap take();
    /**
     * Moves the files of a finished picture to their destinations, unless they replace something; a name that was taken
     * meanwhile is handled as the recipe says. The outcome of its outputs, one dictionary each: {output, status,
     * reason, path, bytes, width, height}; status is "OK" or one of those of plan() except "ready", or "waiting": it is
     * complete at the path `file`, and the caller replaces the existing file, identified by `replaced` (see
     * platform::itemIdentity()), and then calls settle(). Those that replace their own picture come last.
     */
    Q_INVOKABLE QVariantList place(int index);
    /** The waiting results of a picture were placed, or abandoned. */
    Q_INVOKABLE void settle(int index);
    /**
     * The outputs of a picture that was planned and not begun go below @p folder, in folders of the same names. Nothing is replaced there.
     */
    Q_INVOKABLE void moveTo(int index, const QString &folder);
    /** Takes back what no worker has begun; the numbers of those pictures, in order. They may be handed over again. */
    Q_INVOKABLE QVariantList takeBack();
    /** Abandons and removes what is in progress, and forgets all plans. */
    Q_INVOKABLE void close();

Q_SIGNALS:
    /** There is something to take(). Not from within give(). */
    void arrived();

private:
    bool begin();
    bool keep(int index, const MadeMessage &made);
    void end(int index, const QString &problem);
    void giveBack(int index);
    QVariantList wholeOf(int index) const;
    QVariantList linesOf(const PictureWork &work) const;
    std::vector<std::pair<int, platform::Descriptor>> filesFor(int index);

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
    std::shared_ptr<const SharedRecipe> m_shared;
    std::map<int, PictureWork> m_works;              ///< of the pictures that were planned
    std::map<int, QSize> m_pixels;                   ///< of theirs
    std::map<int, QHash<int, ReportLine>> m_planned; ///< their lines before they were begun
    /** A disk was full. */
    struct Full
    {
        QString folder;
        QString reason;
    };
    std::map<int, Full> m_full;
    std::map<int, std::unique_ptr<ResultFiles>> m_files;
    std::map<int, QString> m_problems; ///< of pictures that have come: why nothing came of them
    std::map<int, WorkerDesk::Number> m_given;
    std::map<int, qint64> m_milliseconds;
    std::deque<QVariantMap> m_made;
};

} // namespace jobs
