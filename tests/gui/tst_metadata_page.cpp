#include "app/window/property_tree.h"
#include "app/window/side_bar.h"
#include "meta/mMeta.h"
#include "tests/support/test_pictures.h"
#include "window_driver.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

/** The page that shows metadata and writes comments, as a person works it. */
class TestMetadataPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_driver.reset(); }
    void showsTheChosenPictureAndItsComment();
    void findsAndCopiesProperties();
    void writesTheCommentOfOnePicture();
    void writesIntoAllPicturesAndTakesItBack();
    void refusesUnknownTokens();
    void keepsTheEditsInTheLog();

private:
    QString path(const char *name) const { return m_pictures + u'/' + QString::fromLatin1(name); }
    QPlainTextEdit *comment() { return m_driver->control<QPlainTextEdit>("metaComment"); }
    window::PropertyTree *tree() { return m_driver->control<window::PropertyTree>("metaTree"); }
    bool isEnabled(const char *button) { return m_driver->control<QPushButton>(button)->isEnabled(); }
    bool waitFor(const QString &file, const QString &text)
    {
        return m_driver->waitFor([&] { return mMeta().hGetExifUc(file) == text && isEnabled("metaApplyAll"); });
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
};

void TestMetadataPage::initTestCase()
{
    qputenv("QUORLIN_INTERFACE", QUORLIN_INTERFACE_FOLDER);
    m_driver = std::make_unique<WindowDriver>(*qobject_cast<QApplication *>(QCoreApplication::instance()));
    m_pictures = m_driver->folder() + QStringLiteral("/pictures");
    QVERIFY(QDir().mkpath(m_pictures));
    for (const char *name : {"a.jpg", "b.jpg", "c.png"})
        QVERIFY(pictures::gradient(40, 30).save(path(name)));
    QVERIFY(pictures::gradient(40, 30).save(path("d.bmp")));
    QCOMPARE(mMeta().hSetExifData(path("a.jpg"), QStringLiteral("the first")), QStringLiteral("OK"));
    m_driver->show("metadata");
    m_driver->drop({path("a.jpg"), path("b.jpg"), path("c.png"), path("d.bmp")});
    QVERIFY(m_driver->waitFor([this] { return m_driver->pictures().count() == 4; }));
}

void TestMetadataPage::showsTheChosenPictureAndItsComment()
{
    QVERIFY(tree()->isVisible());
    QCOMPARE(m_driver->text("metaName"), QStringLiteral("a.jpg"));
    QCOMPARE(comment()->toPlainText(), QStringLiteral("the first"));
    QCOMPARE(tree()->words({QStringLiteral("Pixel width")}), QStringLiteral("40 pixels"));
    QCOMPARE(tree()->words({QStringLiteral("Exif"), QStringLiteral("User comment")}), QStringLiteral("the first"));
    m_driver->trigger("nextAction");
    QCOMPARE(m_driver->text("metaName"), QStringLiteral("b.jpg"));
    QCOMPARE(comment()->toPlainText(), QString());
    QVERIFY(!isEnabled("metaApply"));
    m_driver->trigger("previousAction");
}

void TestMetadataPage::findsAndCopiesProperties()
{
    const int all = tree()->shownCount();
    m_driver->control<QLineEdit>("metaSearch")->setText(QStringLiteral("USER comm"));
    QCOMPARE(tree()->shownCount(), 1);
    QVERIFY(m_driver->text("metaFound").startsWith(QLatin1Char('1')));
    m_driver->control<QLineEdit>("metaSearch")->clear();
    QCOMPARE(tree()->shownCount(), all);
    tree()->setCurrentItem(tree()->topLevelItem(0));
    m_driver->click("metaCopy");
    QVERIFY(!QGuiApplication::clipboard()->text().isEmpty());
}

void TestMetadataPage::writesTheCommentOfOnePicture()
{
    comment()->setPlainText(QStringLiteral("{name} Ωμέγα 😀"));
    QVERIFY(isEnabled("metaApply"));
    m_driver->click("metaApply");
    QCOMPARE(mMeta().hGetExifUc(path("a.jpg")), QStringLiteral("a Ωμέγα 😀"));
    QCOMPARE(comment()->toPlainText(), QStringLiteral("a Ωμέγα 😀"));
    m_driver->click("metaTakeBack");
    QVERIFY(waitFor(path("a.jpg"), QStringLiteral("the first")));
    QVERIFY(!isEnabled("metaTakeBack"));
}

void TestMetadataPage::writesIntoAllPicturesAndTakesItBack()
{
    comment()->setPlainText(QStringLiteral("{name} {counter}"));
    m_driver->answerNextQuestion(QStringLiteral("Cancel"));
    m_driver->click("metaApplyAll");
    QCOMPARE(mMeta().hGetExifUc(path("b.jpg")), QString());
    m_driver->answerNextQuestion(QStringLiteral("Write"));
    m_driver->click("metaApplyAll");
    QVERIFY(waitFor(path("c.png"), QStringLiteral("c 3")));
    QCOMPARE(mMeta().hGetExifUc(path("a.jpg")), QStringLiteral("a 1"));
    QCOMPARE(mMeta().hGetExifUc(path("b.jpg")), QStringLiteral("b 2"));
    QCOMPARE(mMeta().hGetExifUc(path("d.bmp")), QString()); // it has no place for one
    m_driver->click("metaTakeBack");
    QVERIFY(waitFor(path("a.jpg"), QStringLiteral("the first")));
    QCOMPARE(mMeta().hGetExifUc(path("b.jpg")), QString());
}

void TestMetadataPage::refusesUnknownTokens()
{
    comment()->setPlainText(QStringLiteral("{nonsense}"));
    QVERIFY(!isEnabled("metaApply"));
    QVERIFY(!isEnabled("metaApplyAll"));
    QVERIFY(m_driver->text("metaNote").contains(QLatin1String("{nonsense}")));
}

void TestMetadataPage::keepsTheEditsInTheLog()
{
    m_driver->show("log");
    auto *log = m_driver->control<QTableView>("logTable");
    QVERIFY(m_driver->waitFor([log] { return log->model()->rowCount() >= 9; }));
}

QTEST_MAIN(TestMetadataPage)
#include "tst_metadata_page.moc"
