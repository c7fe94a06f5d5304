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
 * a little at a time from the event loop. What came of it is taken as it comes.
 */
class PageWork : public QObject
{
    Q_OBJECT
    /** How the pages are laid out, see jobs::pageSettingsFrom(). */
    Q_PROPERTY(QVariantMap settings READ settings WRITE setSettings)
    /** Of the pictures, absolute, in their order. */
    Q_PROPERTY(QStringList paths READ paths WRITE setPaths)
    /** What is wrong with the settings, a sentence; empty where nothing is. */
    Q_PROPERTY(QString problem READ problem)
    /** Of all pictures; 0 where the settings are wrong. */
    Q_PROPERTY(int pages READ pages)
    /** Of a page as it is held, in points. */
    Q_PROPERTY(double pageWidth READ pageWidth)
    Q_PROPERTY(double pageHeight READ pageHeight)
    /** What paper can be called: {word, width, height} each, upright, in millimetres. */
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
    double pageWidth() const { return m_settings.paper.width(); }
    double pageHeight() const { return m_settings.paper.height(); }
    QVariantList papers() const;

    /**
     * Begins to make the PDF. Once for one object.
     *
     * @param target  of a new file, absolute, in a folder where nobody else makes any
     * @param order   {from, to, copies, collated, backwards}; pages count from 1, and all of them are made where from is 0 or missing
     */
    Q_INVOKABLE void begin(const QString &target, const QVariantMap &order);
    /**
     * What has come: {picture, status, reason} for each picture, numbered from 0, with status "OK" or "Failed" and a sentence; last
     * {problem, pages, bytes}, with a sentence where there is no file. Without any keys where there is nothing.
     */
    Q_INVOKABLE QVariantMap take();
    /** Waits until nothing more comes; all of it can be taken then. For scripts without windows: everything else in the process goes on. */
    Q_INVOKABLE void wait();
    /** Gives up what is not finished, of which nothing is left; the object is of no use any more. */
    Q_INVOKABLE void close();

Q_SIGNALS:
    /** There is something to take(). Not from within begin(). */
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
    std::vector<int> m_order; ///< the pages that are made
    size_t m_next = 0;        ///< of the list that the phase goes through
    QList<int> m_wanted;      ///< pictures on these pages
    std::map<int, jobs::PagePicture> m_known;
    std::unique_ptr<PdfPages> m_pdf;
    jobs::Reader m_reader;
    QList<int> m_toMake;
    std::map<int, QSize> m_sizes; ///< of the pictures as they lie on pages, in pixels
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
