#include "tests/gui/support/text_walk.h"
#include "tests/gui/support/window_driver.h"
#include "tests/support/dated_pictures.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>

namespace {

/** So large that a separator is expected, and unlike any other number of the window. */
constexpr int many = 1234;

const char *const actionNames[] = {"resize", "crop", "turn", "round", "background", "watermark", "recipe", "convert",
                                   "rename", "sort", "hand", "web",   "contact",    "metadata",  "fields", "log"};

/** What is wrong with a text for readers whose numbers and dates are written differently. */
QString wrongForm(const QString &text, const QString &beforePercent)
{
    static const QRegularExpression percentage(QStringLiteral("\\d(\\s*)%"));
    if (const auto found = percentage.match(text); found.hasMatch() && found.captured(1) != beforePercent)
        return QStringLiteral("a percentage as others write it: ");
    static const QRegularExpression bareNumber(QStringLiteral("(?<![\\d.,\\w])%1(?![\\d\\w])").arg(many));
    static const QRegularExpression exifDate(QStringLiteral("\\b\\d{4}[:-]\\d{2}[:-]\\d{2}\\b"));
    static const QRegularExpression shortYear(
        QStringLiteral("(?<![\\d./-])\\d{1,2}[./-]\\d{1,2}[./-]\\d{2}(?![\\d./-])"));
    if (text.contains(bareNumber))
        return QStringLiteral("a number without separators: ");
    // Folders and files may be named by dates.
    static const QRegularExpression path(QStringLiteral("\\S*/\\S*"));
    if (QString(text).remove(path).contains(exifDate))
        return QStringLiteral("a date as files have it: ");
    return text.contains(shortYear) ? QStringLiteral("a year of two digits: ") : QString();
}

} // namespace

/** Numbers and dates in every pane are in the reader's own format. */
class ReaderForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongFormsAreFound();
    void everyPaneHasThem_data();
    void everyPaneHasThem();

    void cleanup()
    {
        m_driver.reset();
        qunsetenv("QUORLIN_LANGUAGE");
        QLocale::setDefault(QLocale::c());
    }

private:
    void begin(const QString &language);
    void addMany();
    void look(const QString &place);
    void runThem();

    std::unique_ptr<WindowDriver> m_driver;
    QStringList m_problems;
    QString m_number; ///< as it should appear
    QString m_date;
    QString m_beforePercent;
    bool m_isDateSeen = false;
    int m_seen = 0;
};

void ReaderForms::wrongFormsAreFound()
{
    for (const char *text : {"1234 pictures", "Rename 1234 Files", "2026:08:14 10:20:30", "taken 2026-08-14",
                             "14.08.26 10:20", "8/14/26", "(1234)", "70 %"})
        QVERIFY2(!wrongForm(QString::fromUtf8(text), {}).isEmpty(), text);
    for (const char *text :
         {"1.234 Bilder", "1,234", "14.08.2026 10:20", "08/14/2026", "img_1234.jpg", "12345", "version 1.2", "70%"})
        QVERIFY2(wrongForm(QString::fromUtf8(text), {}).isEmpty(), text);
}

void ReaderForms::begin(const QString &language)
{
    qputenv("QUORLIN_LANGUAGE", language.toLatin1());
    m_driver = WindowDriver::started();
    // Tests run in the C locale, which has no separators.
    if (language == QLatin1String("en"))
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    m_driver->window().resize(1440, 900);
    m_problems.clear();
    m_isDateSeen = false;
    m_seen = 0;
}

// Their names have no digits that could be part of a number or a date.
void ReaderForms::addMany()
{
    const QByteArray picture = pictures::datedJpeg(QStringLiteral("2026:08:14 10:20:30"));
    for (int i = 0; i < many; ++i) {
        QString name;
        for (int left = i, place = 0; place < 3; ++place, left /= 26)
            name.prepend(QChar(u'a' + left % 26));
        QFile file(m_driver->inputFolder() + u'/' + name + QStringLiteral(".jpg"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(picture), picture.size());
    }
    m_driver->drop({m_driver->inputFolder()});
    QCOMPARE(m_driver->pictures().count(), many);
}

void ReaderForms::look(const QString &place)
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    QStringList texts = shownTexts(m_driver->window());
    for (const QAction *action : m_driver->window().findChildren<QAction *>())
        texts.append(action->objectName() + QStringLiteral(": ") + action->text());
    for (const QString &each : qAsConst(texts)) {
        const QString part = each.section(QStringLiteral(": "), 0, 0);
        const QString text = each.section(QStringLiteral(": "), 1);
        m_seen += text.contains(m_number) ? 1 : 0;
        m_isDateSeen = m_isDateSeen || text.contains(m_date);
        const QString problem = wrongForm(text, m_beforePercent);
        if (!problem.isEmpty() && part != QLatin1String("sortTree"))
            m_problems.append(place + QStringLiteral(", ") + part + QStringLiteral(": ") + problem + text);
    }
}

// The files are moved: the summary and the log count them.
void ReaderForms::runThem()
{
    m_driver->show("sort");
    auto *start = m_driver->control<QAbstractButton>("startButton");
    QVERIFY(m_driver->waitFor([start] { return start->isEnabled(); }));
    look(QStringLiteral("before a run"));
    start->click();
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    look(QStringLiteral("after a run"));
    m_driver->click("dismissButton");
    m_driver->show("log");
    look(QStringLiteral("log of a run"));
}

void ReaderForms::everyPaneHasThem_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("beforePercent");
    QTest::newRow("en") << QStringLiteral("1,234") << QStringLiteral("14/08/2026") << QString();
    QTest::newRow("de") << QStringLiteral("1.234") << QStringLiteral("14.08.2026") << QStringLiteral("\u00A0");
    QTest::newRow("fr") << QStringLiteral("1\u202F234") << QStringLiteral("14/08/2026") << QStringLiteral("\u00A0");
    QTest::newRow("nl") << QStringLiteral("1.234") << QStringLiteral("14-08-2026") << QString();
}

void ReaderForms::everyPaneHasThem()
{
    QFETCH(QString, number);
    QFETCH(QString, date);
    QFETCH(QString, beforePercent);
    m_beforePercent = beforePercent;
    m_number = number;
    m_date = date;
    begin(QString::fromLatin1(QTest::currentDataTag()));
    addMany();
    for (const char *action : actionNames) {
        m_driver->show(action);
        auto *start = m_driver->control<QAbstractButton>("startButton");
        // The button of contact sheets counts pages.
        const auto isPlanned = [this, start, action] {
            return !start->isVisible() || qstrcmp(action, "contact") == 0 || start->text().contains(m_number) ||
                   !start->isEnabled();
        };
        QVERIFY2(m_driver->waitFor(isPlanned), qPrintable(start->text()));
        look(QString::fromLatin1(action));
    }
    runThem();
    m_problems.removeDuplicates();
    QVERIFY2(m_problems.isEmpty(), qPrintable(m_problems.join(u'\n')));
    QVERIFY(m_isDateSeen);
    QVERIFY2(m_seen > 20, qPrintable(QString::number(m_seen)));
}

QUORLIN_GUI_TEST(ReaderForms)

#include "tst_reader_forms.moc"
