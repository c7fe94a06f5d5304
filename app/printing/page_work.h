#pragma once

#include "app/printing/pdf_pages.h"
#include "jobs/desk/recipe_errand.h"
#include "jobs/desk/worker_desk.h"
#include "jobs/reading/read_errand.h"

#include <QObject>
#include <QTimer>
#include <QVariantMap>

#include <deque>
#include <map>

namespace app {

/**
 * Pictures on pages, made into a PDF for a script: workers look into the pictures and encode them, and this process puts the pages together,
 * a little at a time from the event loop. Results are collected as they arrive.
 */
class PageWork : public QObject
{
    Q_OBJECT
    /** How the pages are laid out, see jobs::pageSettingsFrom(). */
    Q_PROPERTY(QVariantMap settings READ settings WRITE setSettings)
    /** Of the pictures, absolute, in their order. */
    Q_PROPERTY(QStringList paths READ paths WRITE setPaths)
    /** What is wrong with the settings, a sentence; empty if nothing is. */
    Q_PROPERTY(QString problem READ problem)
    /** Of all pictures; 0 if the settings are wrong. */
    Q_PROPERTY(int pages READ pages)
    /** How many pixels the largest picture of a place has; 0 if the settings are wrong. */
    Q_PROPERTY(double placePixels READ placePixels)
    /** Of a page as it is held, in points. */
    Q_PROPERTY(double pageWidth READ pageWidth)
    Q_PROPERTY(double pageHeight READ pageHeight)
    /** The named paper sizes: {word, width, height} each, upright, in millimetres. */
    Q_PROPERTY(QVariantList papers READ papers)

public:
    Q_INVOKABLE explicit PageWork(QObject *parent = nullptr);
    ~PageWork() override;

    QVariantMap settings() const { return m_values; }
    void setSettings(const QVariantMap &settings);
    QStringList paths() const { return m_paths; }
    void setPaths(const QStringList &paths) { m_paths = paths; }
    QString problem() const { return m_problem; }
    int pages() const;
    double placePixels() const;
    double pageWidth() const { return m_settings.paper.width(); }
    double pageHeight() const { return m_settings.paper.height(); }
    QVariantList papers() const;

    /**
     * Starts making the PDF. Once per object.
     *
     * @param target  of a new file, absolute, in a folder that no other process writes to
     * @param order   {from, to, copies, collated, backwards}; pages count from 1, and all of them are made if from is 0
     * or missing
     */
    Q_INVOKABLE void begin(const QString &target, const QVariantMap &order);
    /**
     * The next result: {picture, status, reason} for each picture, numbered from 0, with status "OK" or "Failed" and a
     * sentence; finally {problem, pages, bytes}, with a sentence if there is no file. No keys at all if nothing has
     * arrived.
     */
    Q_INVOKABLE QVariantMap take();
    /**
     * Waits until nothing more arrives; then all results can be collected. For scripts without windows: everything else
     * in the process continues.
     */
    Q_INVOKABLE void wait();
    /** Abandons and removes what is not finished; the object is useless afterwards. */
    Q_INVOKABLE void close();

Q_SIGNALS:
    /** There is something to take(). Never emitted from within begin(). */
    void arrived();

private:
    enum class Phase { Idle, Looking, Laying, Closing, Making, Finishing, Over };

    void step();
    void look();
    void takeFacts(int picture, const jobs::ReadResult &result);
    void lay();
    void closePages();
    void make();
    void give(int picture);
    bool keep(int picture, const jobs::MadeMessage &made);
    void ended(int picture, const QString &problem);
    void putAway(int picture, const QByteArray &jpeg, const QString &problem);
    void finish();
    void fail(const QString &problem);
    void say(const QVariantMap &event);
    platform::Result<std::shared_ptr<const jobs::SharedRecipe>> recipeFor(int picture);
    jobs::PageJob job() const;

    QVariantMap m_values;
    QStringList m_paths;
    jobs::PageSettings m_settings;
    QString m_problem;
    Phase m_phase = Phase::Idle;
    std::vector<int> m_order; ///< pages made so far
    size_t m_next = 0;        ///< position in the list of the current phase
    QList<int> m_wanted;      ///< pictures on these pages
    std::map<int, jobs::PagePicture> m_known;
    std::unique_ptr<PdfPages> m_pdf;
    jobs::Reader m_reader;
    QList<int> m_toMake;
    std::map<int, QSize> m_sizes; ///< of the pictures as placed on pages, in pixels
    std::map<int, bool> m_turned;
    std::map<int, jobs::WorkerDesk::Number> m_given;
    struct Made
    {
        platform::Descriptor file; ///< in memory
        QByteArray jpeg;
        QString problem;
    };
    std::map<int, Made> m_made;
    QHash<QByteArray, std::shared_ptr<const jobs::SharedRecipe>> m_recipes;
    std::deque<QVariantMap> m_events;
    QTimer m_step;
};

} // namespace app
