#include "app/window/manual/manual_pages.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace window;

/** Which file of a manual is shown in which language. */
class ManualPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(m_folder.isValid());
        for (const char *folder : {"manual/de", "screenshots/de"})
            QVERIFY(QDir(m_folder.path()).mkpath(QString::fromLatin1(folder)));
        write("manual/index.md", "# The *manual*\n\n[Two](two.md#second)\n");
        write("manual/one.md", "# One\n");
        write("manual/two.md", "# Two\n\n## First\n\n## Second\n");
        write("manual/de/two.md", "# Zwei\n\n## Erstes\n\n## Über `dies`, oder?\n");
        write("screenshots/a-light.png", "");
        write("screenshots/b-light.png", "");
        write("screenshots/de/a-light.png", "");
    }

    void pagesOfTheLanguageComeBeforeEnglishOnes()
    {
        QCOMPARE(german().title(QStringLiteral("two")), QStringLiteral("Zwei"));
        QCOMPARE(german().title(QStringLiteral("one")), QStringLiteral("One"));
        QCOMPARE(english().title(QStringLiteral("two")), QStringLiteral("Two"));
        const ManualPages french(manual(), QStringLiteral("fr"));
        QCOMPARE(french.title(QStringLiteral("two")), QStringLiteral("Two"));
        QVERIFY(german().text(QStringLiteral("three")).isEmpty());
    }

    void namesAreThoseOfTheEnglishPages()
    {
        const QStringList all = {QStringLiteral("index"), QStringLiteral("two"), QStringLiteral("one")};
        QCOMPARE(german().names(), all);
        QCOMPARE(english().names(), all);
    }

    void anchorsOfCodeLeadToTheSameHeadingInEachLanguage()
    {
        QCOMPARE(german().headingInEnglish(QStringLiteral("two"), QStringLiteral("second")), 2);
        QCOMPARE(german().headingInEnglish(QStringLiteral("two"), QStringLiteral("erstes")), -1);
    }

    void linksLeadToTheHeadingsOfTheirLanguage()
    {
        QCOMPARE(german().headingOfLink(QStringLiteral("two"), QStringLiteral("über-dies-oder")), 2);
        // From a page that is English still.
        QCOMPARE(german().headingOfLink(QStringLiteral("two"), QStringLiteral("first")), 1);
        QCOMPARE(german().headingOfLink(QStringLiteral("two"), QStringLiteral("third")), -1);
    }

    void picturesThatALanguageLacksAreEnglish()
    {
        const QString two = QStringLiteral("two");
        QCOMPARE(german().picture(two, QStringLiteral("../../screenshots/de/a-light.png")),
                 m_folder.filePath(QStringLiteral("screenshots/de/a-light.png")));
        QCOMPARE(german().picture(two, QStringLiteral("../../screenshots/de/b-light.png")),
                 m_folder.filePath(QStringLiteral("screenshots/b-light.png")));
        QCOMPARE(german().picture(QStringLiteral("one"), QStringLiteral("../screenshots/a-light.png")),
                 m_folder.filePath(QStringLiteral("screenshots/a-light.png")));
    }

    void plainTextIsWhatIsRead()
    {
        QCOMPARE(english().plainText(QStringLiteral("index")), QStringLiteral("The manual\nTwo"));
    }

private:
    QString manual() const { return m_folder.filePath(QStringLiteral("manual")); }
    ManualPages english() const { return ManualPages(manual(), QStringLiteral("en")); }
    ManualPages german() const { return ManualPages(manual(), QStringLiteral("de")); }

    void write(const char *path, const char *text) const
    {
        QFile file(m_folder.filePath(QString::fromLatin1(path)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir m_folder;
};

QUORLIN_GUI_TEST(ManualPagesTest)

#include "tst_manual_pages.moc"
