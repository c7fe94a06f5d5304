#include "app/printing/page_work.h"

#include "app/printing/print_job.h"

#include "image/recipe/recipe_reader.h"
#include "jobs/desk/batch_errand.h"
#include "jobs/names.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace app {
namespace {

using jobs::WorkerDesk;

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

platform::PrintPages pagesFrom(const QVariantMap &order)
{
    platform::PrintPages pages;
    pages.from = order.value(key("from")).toInt();
    pages.to = order.value(key("to")).toInt();
    pages.copies = std::max(1, order.value(key("copies"), 1).toInt());
    pages.areCollated = order.value(key("collated"), true).toBool();
    pages.isBackwards = order.value(key("backwards")).toBool();
    return pages;
}

/** What a worker wrote into the memory that it was given; empty if its size is not @p bytes. */
QByteArray contentOf(const platform::Descriptor &file, qint64 bytes)
{
    constexpr qint64 most = qint64(1) << 30;
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || status.st_size != bytes || bytes > most)
        return {};
    QByteArray content(bytes, Qt::Uninitialized);
    const ssize_t read = ::pread(file.number(), content.data(), size_t(bytes), 0);
    return read == bytes ? content : QByteArray();
}

QByteArray recipeJson(const jobs::PageSettings &settings, QSize size, bool isTurned)
{
    QJsonArray operations;
    if (isTurned)
        operations.append(QJsonObject{{key("do"), key("turn")}, {key("degrees"), -90}});
    operations.append(QJsonObject{
        {key("do"), key("resize")}, {key("box"), QJsonArray{size.width(), size.height()}}, {key("fit"), key("fill")}});
    const QJsonObject output = {{key("type"), key("jpeg")},
                                {key("quality"), settings.quality},
                                {key("profile"), settings.profile.isEmpty() ? key("sRGB") : settings.profile},
                                {key("metadata"), key("none")},
                                {key("matte"), settings.paperColor.name()}};
    return QJsonDocument(
               QJsonObject{{key("quorlin"), 1}, {key("operations"), operations}, {key("outputs"), QJsonArray{output}}})
        .toJson();
}

/**
 * Why pictures cannot be converted to the profile, without the path that a recipe error begins with; empty if they can.
 */
QString profileProblem(const jobs::PageSettings &settings)
{
    const auto recipe = image::readRecipe(recipeJson(settings, {1, 1}, false), QStringLiteral("/"));
    return recipe ? QString() : recipe.error().message.section(QStringLiteral(": "), 1);
}

} // namespace

PageWork::PageWork(QObject *parent) : QObject(parent)
{
    m_step.setSingleShot(true);
    m_step.setInterval(0);
    connect(&m_step, &QTimer::timeout, this, &PageWork::step);
    setSettings({});
}

PageWork::~PageWork()
{
    for (const auto &[picture, number] : std::exchange(m_given, {}))
        WorkerDesk::ofProcess().drop(number);
}

void PageWork::setSettings(const QVariantMap &settings)
{
    m_values = settings;
    const auto read = jobs::pageSettingsFrom(settings);
    m_problem = read ? QString() : read.error().message;
    m_settings = read.value_or(jobs::PageSettings());
}

int PageWork::pages() const
{
    return m_problem.isEmpty() ? jobs::pageCount(m_settings, int(m_paths.size())) : 0;
}

double PageWork::placePixels() const
{
    constexpr double pointsInAnInch = 72;
    const jobs::PageGrid grid = jobs::gridOf(m_settings);
    if (!m_problem.isEmpty() || grid.cells.empty())
        return 0;
    const QSizeF place = grid.cells.front().picture.size() * (m_settings.dpi / pointsInAnInch);
    return place.width() * place.height();
}

QVariantList PageWork::papers() const
{
    QVariantList all;
    for (const jobs::Paper &paper : jobs::papers())
        all.append(QVariantMap{{key("word"), QString::fromLatin1(paper.word)},
                               {key("width"), paper.millimetres.width()},
                               {key("height"), paper.millimetres.height()}});
    return all;
}

jobs::PageJob PageWork::job() const
{
    return {m_settings, int(m_paths.size()), [this](int picture) {
                const auto found = m_known.find(picture);
                return found == m_known.end() ? jobs::PagePicture() : found->second;
            }};
}

void PageWork::begin(const QString &target, const QVariantMap &order)
{
    if (m_phase != Phase::Idle)
        return;
    m_phase = Phase::Looking;
    m_order = pagesToPrint(pages(), pagesFrom(order));
    QList<bool> isWanted(m_paths.size());
    const int cells = m_settings.rows * m_settings.columns;
    for (const int page : m_order)
        for (int cell = 0; cell < cells; ++cell)
            if (const int picture = jobs::pictureAt(m_settings, int(m_paths.size()), page, cell); picture >= 0)
                isWanted[picture] = true;
    for (int picture = 0; picture < m_paths.size(); ++picture)
        if (isWanted[picture])
            m_wanted.append(picture);
    m_pdf = std::make_unique<PdfPages>();
    if (m_problem.isEmpty())
        m_problem = profileProblem(m_settings);
    if (m_problem.isEmpty())
        if (const auto begun = m_pdf->begin(target, m_settings); !begun)
            m_problem = begun.error().message;
    m_step.start();
}

/** One thing at a time, so that the event loop is never blocked. */
void PageWork::step()
{
    if (!m_problem.isEmpty() && m_phase != Phase::Over) {
        fail(m_problem);
        return;
    }
    switch (m_phase) {
    case Phase::Looking:
        look();
        break;
    case Phase::Laying:
        lay();
        break;
    case Phase::Closing:
        closePages();
        break;
    case Phase::Making:
        make();
        break;
    case Phase::Finishing:
        finish();
        break;
    case Phase::Idle:
    case Phase::Over:
        break;
    }
}

void PageWork::look()
{
    constexpr int atOnce = 16;
    while (m_next < size_t(m_wanted.size()) && m_reader.inWork() < atOnce) {
        const int picture = m_wanted[qsizetype(m_next++)];
        m_reader.ask({jobs::Reading::Facts, m_paths[picture], {}}, jobs::Urgency::Soon,
                     [this, picture](const jobs::ReadResult &result) { takeFacts(picture, result); });
    }
    if (m_known.size() == size_t(m_wanted.size())) {
        m_phase = Phase::Laying;
        m_next = 0;
        m_step.start();
    }
}

void PageWork::takeFacts(int picture, const jobs::ReadResult &result)
{
    jobs::PagePicture known;
    platform::PictureFacts stated;
    stated.taken = QDateTime::fromString(result.value("taken").toString(), Qt::ISODate);
    stated.camera = result.value("camera").toString();
    stated.lens = result.value("lens").toString();
    stated.pixels = result.size("statedWidth", "statedHeight");
    stated.typeIdentifier = result.value("statedType").toString();
    known.facts = jobs::withPictureFacts(jobs::factsOfFile(m_paths[picture], picture, true), stated);
    if (result.isGood()) {
        known.pixels = result.size();
        const QSizeF points(result.value("pointWidth").toDouble(), result.value("pointHeight").toDouble());
        known.points = points.isEmpty() || !qIsFinite(points.width() * points.height()) ? QSizeF(known.pixels) : points;
    } else {
        say({{key("picture"), picture}, {key("status"), key("Failed")}, {key("reason"), result.problem}});
    }
    m_known[picture] = known;
    m_step.start();
}

void PageWork::lay()
{
    if (m_next == m_order.size()) {
        m_phase = Phase::Closing;
        m_step.start();
        return;
    }
    const jobs::PageContent page = jobs::contentOf(job(), m_order[m_next++]);
    for (const jobs::PicturePlace &place : page.pictures) {
        m_sizes[place.picture] = jobs::pixelsOf(place.placed, m_known[place.picture].pixels, m_settings.dpi);
        m_turned[place.picture] = place.placed.isTurned;
    }
    m_pdf->addPage(page);
    m_step.start();
}

void PageWork::closePages()
{
    if (const auto closed = m_pdf->endPages(); !closed) {
        fail(closed.error().message);
        return;
    }
    m_toMake = m_pdf->pictures();
    m_phase = Phase::Making;
    m_next = 0;
    m_step.start();
}

platform::Result<std::shared_ptr<const jobs::SharedRecipe>> PageWork::recipeFor(int picture)
{
    constexpr qsizetype mostKept = 64;
    const QByteArray json = recipeJson(m_settings, m_sizes[picture], m_turned[picture]);
    if (const auto known = m_recipes.value(json))
        return known;
    if (m_recipes.size() >= mostKept)
        m_recipes.clear();
    auto made = jobs::SharedRecipe::whole(json, QStringLiteral("/"));
    if (made)
        m_recipes.insert(json, *made);
    return made;
}

void PageWork::make()
{
    constexpr int ahead = 2; // so that a worker continues while this process still writes its last picture
    // Writes one picture, or hands one over, and then returns.
    const auto ready =
        std::find_if(m_made.begin(), m_made.end(), [this](const auto &made) { return m_given.count(made.first) == 0; });
    if (ready != m_made.end()) {
        const int picture = ready->first;
        const Made made = std::move(ready->second);
        m_made.erase(ready);
        putAway(picture, made.jpeg, made.problem);
    } else if (m_next < size_t(m_toMake.size()) && int(m_given.size()) < WorkerDesk::ofProcess().size() + ahead) {
        give(m_toMake[qsizetype(m_next++)]);
    } else if (m_next == size_t(m_toMake.size()) && m_given.empty()) {
        m_phase = Phase::Finishing;
    } else {
        return; // until a worker answers
    }
    if (m_phase != Phase::Over)
        m_step.start();
}

void PageWork::give(int picture)
{
    const auto recipe = recipeFor(picture);
    if (!recipe) {
        fail(recipe.error().message);
        return;
    }
    jobs::BatchErrand::Task task;
    task.facts = jobs::factsOfFile(m_paths[picture], picture, false);
    const QSize pixels = m_known[picture].pixels;
    constexpr qint64 idle = 64LL << 20;
    constexpr qint64 eachPixel = 8;
    task.expectedBytes = idle + eachPixel * pixels.width() * pixels.height();
    task.files = [this, picture] {
        std::vector<std::pair<int, platform::Descriptor>> files;
        platform::Descriptor own(::memfd_create("quorlin-page", MFD_CLOEXEC));
        files.emplace_back(0, platform::Descriptor(::dup(own.number())));
        m_made[picture] = {std::move(own), {}, {}};
        return files;
    };
    jobs::BatchErrand::Listener listener = {
        [this, picture](const jobs::MadeMessage &made) { return keep(picture, made); },
        [this, picture](const QString &problem) { ended(picture, problem); }};
    m_given[picture] = WorkerDesk::ofProcess().add(
        std::make_shared<jobs::BatchErrand>(*recipe, std::move(task), std::move(listener)), jobs::Urgency::Soon);
}

bool PageWork::keep(int picture, const jobs::MadeMessage &made)
{
    const auto found = m_made.find(picture);
    if (found == m_made.end() || made.index != 0)
        return false;
    found->second.problem = made.problem;
    if (made.problem.isEmpty())
        found->second.jpeg = contentOf(found->second.file, made.bytes);
    found->second.file.close();
    return true;
}

void PageWork::ended(int picture, const QString &problem)
{
    m_given.erase(picture);
    Made &made = m_made[picture];
    if (made.problem.isEmpty())
        made.problem = problem;
    if (made.problem.isEmpty() && made.jpeg.isEmpty())
        made.problem = QCoreApplication::translate("pages", "The picture could not be prepared for the page.");
    m_step.start();
}

void PageWork::putAway(int picture, const QByteArray &jpeg, const QString &problem)
{
    if (const auto put = m_pdf->putPicture(picture, problem.isEmpty() ? jpeg : QByteArray()); !put) {
        fail(put.error().message);
        return;
    }
    say({{key("picture"), picture},
         {key("status"), problem.isEmpty() ? key("OK") : key("Failed")},
         {key("reason"), problem}});
}

void PageWork::finish()
{
    const auto bytes = m_pdf->finish();
    if (!bytes) {
        fail(bytes.error().message);
        return;
    }
    m_phase = Phase::Over;
    m_pdf.reset();
    say({{key("problem"), QString()}, {key("pages"), int(m_order.size())}, {key("bytes"), double(*bytes)}});
}

void PageWork::fail(const QString &problem)
{
    m_phase = Phase::Over;
    m_reader.drop();
    for (const auto &[picture, number] : std::exchange(m_given, {}))
        WorkerDesk::ofProcess().drop(number);
    m_pdf.reset();
    say({{key("problem"), problem}, {key("pages"), 0}, {key("bytes"), 0}});
}

void PageWork::say(const QVariantMap &event)
{
    m_events.push_back(event);
    Q_EMIT arrived();
}

QVariantMap PageWork::take()
{
    if (m_events.empty())
        return {};
    QVariantMap event = std::move(m_events.front());
    m_events.pop_front();
    return event;
}

void PageWork::wait()
{
    while (m_phase != Phase::Idle && m_phase != Phase::Over)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void PageWork::close()
{
    m_phase = Phase::Over;
    m_step.stop();
    m_reader.drop();
    for (const auto &[picture, number] : std::exchange(m_given, {}))
        WorkerDesk::ofProcess().drop(number);
    m_made.clear();
    m_events.clear();
    m_pdf.reset();
    deleteLater();
}

} // namespace app
