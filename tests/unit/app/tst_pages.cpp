#include "app/printing/page_work.h"

#include "jobs/desk/worker_desk.h"
#include "platform/desktop/user_defaults.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFontDatabase>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

namespace {

const QString font = QStringLiteral("DejaVu Sans");

/** One of the pages that are compared: its settings and how many pictures it has. */
struct Layout
{
    const char *name;
    QVariantMap settings;
    int pictures;
};

QVariantMap values(std::initializer_list<std::pair<const char *, QVariant>> list)
{
    QVariantMap map = {{QStringLiteral("font"), font}};
    for (const auto &[key, value] : list)
        map.insert(QLatin1String(key), value);
    return map;
}

std::vector<Layout> layouts()
{
    return {
        {"sheet",
         values({{"rows", 3},
                 {"columns", 4},
                 {"caption", QStringLiteral("{name}\n{width}x{height}")},
                 {"header", QStringLiteral("Fjord")},
                 {"footer", QStringLiteral("{page} of {pages}")},
                 {"dpi", 100}}),
         14},
        {"one-a-page", values({{"rows", 1}, {"columns", 1}, {"landscape", true}, {"turn", true}, {"dpi", 72}}), 2},
        {"filled",
         values({{"paper", QStringLiteral("10x15")},
                 {"rows", 2},
                 {"columns", 2},
                 {"fit", QStringLiteral("fill")},
                 {"gap", 0},
                 {"marginTop", 10},
                 {"marginLeft", 10},
                 {"marginRight", 10},
                 {"marginBottom", 10},
                 {"cropMarks", true},
                 {"dpi", 150}}),
         4},
        {"repeated",
         values({{"paper", QStringLiteral("Letter")},
                 {"rows", 4},
                 {"columns", 2},
                 {"repeat", true},
                 {"frames", true},
                 {"footer", QStringLiteral("{name}")},
                 {"footerSide", QStringLiteral("right")},
                 {"dpi", 90}}),
         2},
        {"dark",
         values({{"paper", QStringLiteral("custom")},
                 {"paperWidth", 150},
                 {"paperHeight", 100},
                 {"rows", 1},
                 {"columns", 3},
                 {"fit", QStringLiteral("size")},
                 {"paperColor", QStringLiteral("#202020")},
                 {"caption", QStringLiteral("{name}.{extension}")},
                 {"captionSize", 9}}),
         3},
    };
}

QByteArray said(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(60000);
    return process.readAllStandardOutput();
}

/** The contents of the pages, in words: sizes of pages, pixels of pictures, positions of texts in points. */
QString factsOf(const QString &pdf)
{
    QStringList facts;
    const QString info = QString::fromUtf8(said(QStringLiteral("pdfinfo"), {pdf}));
    static const QRegularExpression size(QStringLiteral("(Pages|Page size):\\s+([0-9.]+( x [0-9.]+)?)"));
    for (auto found = size.globalMatch(info); found.hasNext();) {
        const auto match = found.next();
        facts.append(match.captured(1) + u' ' + match.captured(2));
    }
    const QStringList images = QString::fromUtf8(said(QStringLiteral("pdfimages"), {QStringLiteral("-list"), pdf}))
                                   .split(u'\n', Qt::SkipEmptyParts);
    for (const QString &row : images.mid(2)) {
        const QStringList cells = row.simplified().split(u' ');
        facts.append(QStringLiteral("page %1: %2 x %3 %4 %5").arg(cells[0], cells[3], cells[4], cells[5], cells[8]));
    }
    const QString words =
        QString::fromUtf8(said(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")}));
    static const QRegularExpression word(
        QStringLiteral("<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">([^<]*)<"));
    for (auto found = word.globalMatch(words); found.hasNext();) {
        const auto match = found.next();
        QStringList places;
        for (int i = 1; i <= 4; ++i)
            places.append(QString::number(match.captured(i).toDouble(), 'f', 1));
        facts.append(match.captured(5) + QStringLiteral(" at ") + places.join(u' '));
    }
    return facts.join(u'\n') + u'\n';
}

double meanDifference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 255;
    double sum = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
        }
    return sum / (3.0 * one.width() * one.height());
}

QString storedFolder()
{
    return QStringLiteral(QUORLIN_TEST_DATA "/pages/");
}

} // namespace

/** PDFs of pages, as other programs read them. */
class Pages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void layOut_data();
    void layOut();
    void keepsTheOrderAndTheCopies();
    void saysWhatCannotBeRead();
    void leavesNothingWhenGivenUp_data();
    void leavesNothingWhenGivenUp();
    void refusesWhatMakesNoSense();

private:
    /** The last that the work says; what came of pictures before is in m_results. */
    QVariantMap made(app::PageWork &work, const QString &target, const QVariantMap &order = {});
    QStringList pictures(int count);

    QTemporaryDir m_folder;
    QMap<int, QString> m_results;
};

void Pages::initTestCase()
{
    jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKERS "/quorlin-worker"));
    QVERIFY(m_folder.isValid());
    for (const char *program : {"pdfinfo", "pdfimages", "pdftotext", "pdftoppm"})
        if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
            QSKIP("poppler-utils is missing");
    if (!QFontDatabase::families().contains(font))
        QSKIP("the font DejaVu Sans is missing");
}

QStringList Pages::pictures(int count)
{
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        // Lying, standing and square ones, with something in them that shows which end is up.
        const QSize size = i % 3 == 0 ? QSize(300, 200) : i % 3 == 1 ? QSize(160, 240) : QSize(90, 90);
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(i * 40 % 360, 120, 220));
        QPainter painter(&image);
        painter.fillRect(QRect(0, 0, size.width() / 2, size.height() / 4), Qt::black);
        painter.end();
        image.setDotsPerMeterX(2835);
        image.setDotsPerMeterY(2835);
        const QString path = m_folder.filePath(QStringLiteral("img_%1.png").arg(i + 1, 2, 10, QLatin1Char('0')));
        if (!image.save(path))
            qFatal("no picture");
        paths.append(path);
    }
    return paths;
}

QVariantMap Pages::made(app::PageWork &work, const QString &target, const QVariantMap &order)
{
    m_results.clear();
    QVariantMap last;
    connect(&work, &app::PageWork::arrived, this, [&] {
        const QVariantMap event = work.take();
        if (event.contains(QStringLiteral("picture")))
            m_results[event[QStringLiteral("picture")].toInt()] =
                event[QStringLiteral("status")].toString() + event[QStringLiteral("reason")].toString();
        else
            last = event;
    });
    work.begin(target, order);
    if (!QTest::qWaitFor([&] { return !last.isEmpty(); }, 120000))
        qFatal("the pages did not come to an end");
    return last;
}

void Pages::layOut_data()
{
    QTest::addColumn<int>("number");
    const std::vector<Layout> all = layouts();
    for (int i = 0; i < int(all.size()); ++i)
        QTest::newRow(all[size_t(i)].name) << i;
}

/** With QUORLIN_STORE_PAGES in the environment what is compared is stored instead. */
void Pages::layOut()
{
    QFETCH(int, number);
    const Layout layout = layouts()[size_t(number)];
    app::PageWork work;
    work.setSettings(layout.settings);
    work.setPaths(pictures(layout.pictures));
    QCOMPARE(work.problem(), QString());
    const QString pdf = m_folder.filePath(QLatin1String(layout.name) + QStringLiteral(".pdf"));
    const QVariantMap end = made(work, pdf);
    QCOMPARE(end[QStringLiteral("problem")].toString(), QString());
    QCOMPARE(end[QStringLiteral("bytes")].toLongLong(), QFileInfo(pdf).size());
    QCOMPARE(m_results.size(), layout.pictures);
    for (const QString &result : std::as_const(m_results))
        QCOMPARE(result, QStringLiteral("OK"));
    const QString facts = factsOf(pdf);
    const QString stem = m_folder.filePath(QLatin1String(layout.name));
    said(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("72"), QStringLiteral("-png"),
                                      QStringLiteral("-singlefile"), pdf, stem});
    const QImage page(stem + QStringLiteral(".png"));
    QVERIFY(!page.isNull());
    const QString stored = storedFolder() + QLatin1String(layout.name);
    if (qEnvironmentVariableIsSet("QUORLIN_STORE_PAGES")) {
        QVERIFY(QDir().mkpath(storedFolder()));
        QFile file(stored + QStringLiteral(".txt"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(facts.toUtf8()) > 0);
        QVERIFY(page.save(stored + QStringLiteral(".png")));
        return;
    }
    QCOMPARE(facts, QString::fromUtf8(pictures::bytesOf(stored + QStringLiteral(".txt"))));
    const double difference =
        meanDifference(page.convertToFormat(QImage::Format_RGB32),
                       QImage(stored + QStringLiteral(".png")).convertToFormat(QImage::Format_RGB32));
    QVERIFY2(difference <= 2, qPrintable(QString::number(difference)));
}

void Pages::keepsTheOrderAndTheCopies()
{
    app::PageWork work;
    work.setSettings(values({{"rows", 1}, {"columns", 1}, {"footer", QStringLiteral("page{page}")}, {"dpi", 36}}));
    work.setPaths(pictures(4));
    QCOMPARE(work.pages(), 4);
    const QString pdf = m_folder.filePath(QStringLiteral("order.pdf"));
    made(work, pdf,
         {{QStringLiteral("from"), 2},
          {QStringLiteral("to"), 3},
          {QStringLiteral("copies"), 2},
          {QStringLiteral("collated"), true},
          {QStringLiteral("backwards"), true}});
    QCOMPARE(m_results.keys(), QList<int>({1, 2})); // the others are not read
    const QString words = QString::fromUtf8(said(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")}));
    QCOMPARE(words.simplified(), QStringLiteral("page3 page2 page3 page2"));
}

void Pages::saysWhatCannotBeRead()
{
    const QString broken = m_folder.filePath(QStringLiteral("broken.jpg"));
    QFile file(broken);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
    file.close();
    app::PageWork work;
    work.setSettings(values({{"caption", QStringLiteral("{name}")}}));
    work.setPaths({pictures(1).first(), broken, m_folder.filePath(QStringLiteral("gone.png"))});
    const QString pdf = m_folder.filePath(QStringLiteral("broken.pdf"));
    const QVariantMap end = made(work, pdf);
    QCOMPARE(end[QStringLiteral("problem")].toString(), QString());
    QCOMPARE(m_results[0], QStringLiteral("OK"));
    QVERIFY(m_results[1].startsWith(QStringLiteral("Failed")) && m_results[1].size() > 8);
    QVERIFY(m_results[2].startsWith(QStringLiteral("Failed")) && m_results[2].size() > 8);
    const QString words = QString::fromUtf8(said(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")}));
    QVERIFY(words.contains(QStringLiteral("broken")) && words.contains(QStringLiteral("gone")));
    QCOMPARE(factsOf(pdf).count(QStringLiteral("page 1: ")), 1);
}

void Pages::leavesNothingWhenGivenUp_data()
{
    QTest::addColumn<int>("after");
    QTest::newRow("at once") << 0;
    QTest::newRow("after the first picture") << 1;
    QTest::newRow("in the middle") << 12;
}

void Pages::leavesNothingWhenGivenUp()
{
    QFETCH(int, after);
    QTemporaryDir out;
    auto *work = new app::PageWork;
    work->setSettings(values({{"rows", 2}, {"columns", 2}}));
    work->setPaths(pictures(24));
    const QString pdf = out.filePath(QStringLiteral("a.pdf"));
    int taken = 0;
    connect(work, &app::PageWork::arrived, this, [&] {
        if (work && ++taken == after) {
            work->close();
            work = nullptr;
        }
    });
    work->begin(pdf, {});
    QVERIFY(QFileInfo::exists(pdf));
    if (after == 0)
        work->close();
    else
        QVERIFY(QTest::qWaitFor([&] { return !work; }, 60000));
    QCOMPARE(taken, after);
    QTest::qWait(100);
    QVERIFY(QDir(out.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
}

void Pages::refusesWhatMakesNoSense()
{
    app::PageWork work;
    work.setSettings(values({{"rows", 0}}));
    QVERIFY(!work.problem().isEmpty());
    QCOMPARE(work.pages(), 0);
    const QString pdf = m_folder.filePath(QStringLiteral("never.pdf"));
    QCOMPARE(made(work, pdf)[QStringLiteral("problem")].toString(), work.problem());
    QVERIFY(!QFileInfo::exists(pdf));
    app::PageWork other;
    other.setSettings(values({{"profile", QStringLiteral("/nowhere/at-all.icc")}}));
    other.setPaths(pictures(1));
    QVERIFY(!made(other, pdf)[QStringLiteral("problem")].toString().isEmpty());
    QVERIFY(!QFileInfo::exists(pdf));
    app::PageWork nowhere;
    nowhere.setPaths(pictures(1));
    QVERIFY(!made(nowhere, QStringLiteral("/nowhere/a.pdf"))[QStringLiteral("problem")].toString().isEmpty());
}

QUORLIN_GUI_TEST(Pages)
#include "tst_pages.moc"
