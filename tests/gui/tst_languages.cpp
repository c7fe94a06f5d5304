#include "tests/gui/support/fit_walk.h"
#include "tests/gui/support/text_walk.h"
#include "tests/gui/support/window_tour.h"
#include "tests/support/test_program.h"

#include "platform/desktop/user_defaults.h"
#include "platform/effects/lettering.h"
#include "tests/support/pseudo_texts.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

namespace {

constexpr QSize small(1280, 720);
constexpr QSize large(1440, 900);

/** Names, units and signs that are the same in every language. */
QStringList sameEverywhere()
{
    QStringList words =
        QStringLiteral(
            "Quorlin px mm cm dpi KB MB GB jpg jpeg jxl png tiff tif bmp gif pdf jp WebP AVIF XL xyz sRGB RGB UTC "
            // the languages by their own names, and the licences of libraries
            "English Nederlands Deutsch Français العربية Čeština Dansk Ελληνικά Español فارسی Suomi עברית Italiano "
            "日本語 "
            "한국어 Norsk Polski Português Русский Svenska Türkçe Українська 中文 Qt libvips exiv Cairo libjpeg turbo "
            "libdeflate OpenJPEG "
            "OpenJPEG libplist SQLite GPL LGPL IJG BSD MIT public domain Adobe Display "
            // forms of dates, and property names as files have them
            "yyyy MM dd ColorModel Depth DPIHeight DPIWidth HasAlpha PixelHeight PixelWidth")
            .split(u' ');
    // The made language writes dates as the system does.
    for (int i = 1; i <= 12; ++i)
        words += {QLocale().monthName(i), QLocale().monthName(i, QLocale::ShortFormat), QLocale().dayName(qMin(i, 7))};
    for (const QString &font : platform::fontFamilies())
        words += font.split(QRegularExpression(QStringLiteral("\\P{L}+")), Qt::SkipEmptyParts);
    return words;
}

/** What the supplied recipes call their files and folders, the longest first. */
QStringList namesInRecipes()
{
    QStringList names;
    const QDir folder(QStringLiteral(QUORLIN_INTERFACE_FOLDER) + QStringLiteral("/../recipes"));
    for (const QFileInfo &info : folder.entryInfoList({QStringLiteral("*.quorlin")}, QDir::Files)) {
        names.append(info.canonicalFilePath());
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QJsonArray outputs = QJsonDocument::fromJson(file.readAll()).object()[QLatin1String("outputs")].toArray();
        for (const QJsonValue output : outputs)
            names.append(output[QLatin1String("folder")].toString() + u'/' + output[QLatin1String("name")].toString());
    }
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) { return a.size() > b.size(); });
    return names;
}

} // namespace

/** Every window in every language: nothing is cut off, nothing overlaps, nothing stays English. */
class Languages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        const QString made = m_folder.path() + QStringLiteral("/interface");
        QVERIFY(pseudo::addLanguage(QStringLiteral(QUORLIN_INTERFACE_FOLDER), QStringLiteral(QUORLIN_TEXTS),
                                    QStringLiteral("qq"), made));
        qputenv("QUORLIN_INTERFACE", made.toLocal8Bit());
    }

    void cleanup()
    {
        m_driver.reset();
        qunsetenv("QUORLIN_LANGUAGE");
    }

    void pseudoTextsAreLonger()
    {
        const QFontMetrics metrics{QFont()};
        double english = 0;
        double made = 0;
        for (const char *text :
             {"Resize", "Keep both (add a number)", "&Save Report…", "Drop pictures or folders here"}) {
            english += metrics.horizontalAdvance(QString::fromUtf8(text));
            made += metrics.horizontalAdvance(pseudo::text(QString::fromUtf8(text)));
        }
        QVERIFY2(made >= 1.35 * english && made <= 1.6 * english, qPrintable(QString::number(made / english)));
        QCOMPARE(pseudo::text(QStringLiteral("%1 of %2 <b>{name}</b>")), QStringLiteral("[%1 öf %2 <b>{name}</b>]"));
        QCOMPARE(pseudo::text(QStringLiteral("–")), QStringLiteral("–"));
    }

    // The buttons and dates that the toolkit writes itself go with the language that was chosen, whatever the system speaks.
    void toolkitAndDatesFollowTheChoice()
    {
        start(QString());
        platform::setUserDefault(QStringLiteral("Language"), QStringLiteral("de"));
        m_driver->startAgain();
        QCOMPARE(QLocale().language(), QLocale::German);
        QCOMPARE(QLocale().toString(1.5), QStringLiteral("1,5"));
        QMessageBox box(QMessageBox::Question, QString(), QString(), QMessageBox::Cancel | QMessageBox::Yes);
        QCOMPARE(box.button(QMessageBox::Cancel)->text(), QStringLiteral("Abbrechen"));
        QCOMPARE(m_driver->control<QAction>("quitAction")->text().remove(u'&'), QStringLiteral("Beenden"));
        platform::removeUserDefault(QStringLiteral("Language"));
        m_driver->startAgain();
        QCOMPARE(QLocale(), QLocale::system());
        QCOMPARE(m_driver->control<QAction>("quitAction")->text().remove(u'&'), QStringLiteral("Quit"));
    }

    void everythingFits_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QSize>("size");
        QTest::addRow("qq 1280") << QStringLiteral("qq") << small;
        if (!tests::isSlowRun()) // the made language is wider than the real ones
            return;
        for (const char *language : {"nl", "de", "fr"})
            QTest::addRow("%s 1280", language) << QString::fromLatin1(language) << small;
        QTest::addRow("qq 1440") << QStringLiteral("qq") << large;
    }

    void everythingFits()
    {
        QFETCH(QString, language);
        QFETCH(QSize, size);
        QSet<QString> found;
        QStringList problems;
        start(language);
        const auto look = [&](const QString &place, const QWidget &window) {
            if (window.size().width() > size.width() || window.size().height() > size.height())
                problems.append(place +
                                QStringLiteral(": the window is %1 x %2").arg(window.width()).arg(window.height()));
            for (const QString &each : misfits(window))
                if (!found.contains(each)) {
                    found.insert(each);
                    problems.append(place + QStringLiteral(": ") + each);
                }
            if (language == QLatin1String("qq"))
                m_texts += ownTexts(window);
        };
        tour(size, look);
        report(problems);
    }

    // Of all that the walks through the made language saw.
    void nothingStaysEnglish()
    {
        if (m_texts.isEmpty())
            QSKIP("the windows were not visited in the made language");
        m_texts.removeDuplicates();
        QVERIFY2(m_texts.size() > 400, qPrintable(QString::number(m_texts.size())));
        report(untranslatedWords(m_texts, sameEverywhere()));
    }

private:
    /** The texts of a window without names of files and folders. */
    QStringList ownTexts(const QWidget &window)
    {
        static const QStringList names = namesInRecipes();
        QStringList texts = shownTexts(window).replaceInStrings(m_driver->folder().section(u'/', -1), QString());
        for (const QString &name : names)
            texts.replaceInStrings(name, QString());
        return texts;
    }

    // One message a line: a long one would be cut off.
    static void report(const QStringList &problems)
    {
        for (const QString &each : problems)
            qWarning("%s", qPrintable(each));
        QCOMPARE(problems.size(), 0);
    }

    void start(const QString &language)
    {
        qputenv("QUORLIN_LANGUAGE", language.toLatin1());
        m_driver = std::make_unique<WindowDriver>(*qobject_cast<QApplication *>(QCoreApplication::instance()));
    }

    void tour(QSize size, const WindowTour::Look &look)
    {
        WindowTour tour(*m_driver, size, look);
        tour.sheets();
        tour.runs();
        tour.bars();
        tour.actions();
        tour.windows();
        tour.panels();
    }

    QTemporaryDir m_folder;
    QStringList m_texts;
    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(Languages)

#include "tst_languages.moc"
