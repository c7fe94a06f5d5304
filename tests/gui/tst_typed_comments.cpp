#include "app/window/controls/segmented_control.h"
#include "meta/mMeta.h"
#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QApplication>
#include <QDir>
#include <QPlainTextEdit>
#include <QTest>

/** A typed comment is written, or discarded by its author; nothing else loses it. */
class TestTypedComments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void asksWhatBecomesOfATypedComment();
    void asksBeforeThePageIsLeft();
    void aTypedCommentSurvivesARunOverManyPictures();
    void writesCommentAfterCommentByKeyboard();

private:
    QString path(const char *name) const { return m_driver->inputFolder() + u'/' + QString::fromLatin1(name); }
    QPlainTextEdit *comment() { return m_driver->control<QPlainTextEdit>("metaComment"); }
    QAbstractButton *button(const char *name) { return m_driver->control<QAbstractButton>(name); }
    void key(Qt::Key code) { QTest::keyClick(m_driver->control<window::SegmentedControl>("metaScope"), code); }
    static QString commentOf(const QString &file) { return mMeta().hGetExifUc(file); }
    void addPictures();

    std::unique_ptr<WindowDriver> m_driver;
};

void TestTypedComments::init()
{
    m_driver = WindowDriver::showing("metadata");
    for (const char *name : {"a.jpg", "b.jpg", "c.png"})
        QVERIFY(pictures::gradient(40, 30).save(path(name)));
}

void TestTypedComments::addPictures()
{
    m_driver->drop({path("a.jpg"), path("b.jpg"), path("c.png")});
    QVERIFY(m_driver->waitFor([this] { return m_driver->pictures().count() == 3; }));
}

void TestTypedComments::asksWhatBecomesOfATypedComment()
{
    addPictures();
    const auto nameIs = [this](const char *name) {
        return m_driver->waitFor([&] { return m_driver->text("metaName") == QLatin1String(name); });
    };
    const auto stepAndAnswer = [this](const char *answer) {
        m_driver->answerNextQuestion(QString::fromLatin1(answer));
        m_driver->trigger("nextAction");
        QTest::qWait(200);
    };
    comment()->setPlainText(QStringLiteral("typed"));
    stepAndAnswer("Keep Editing");
    QVERIFY(nameIs("a.jpg"));
    QCOMPARE(comment()->toPlainText(), QStringLiteral("typed"));
    QCOMPARE(m_driver->pictures().currentPlace(), 1);
    stepAndAnswer("Write");
    QVERIFY(nameIs("b.jpg"));
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("typed"));
    QCOMPARE(comment()->toPlainText(), QString());
    comment()->setPlainText(QStringLiteral("thrown away"));
    stepAndAnswer("Discard");
    QVERIFY(nameIs("c.png"));
    QCOMPARE(commentOf(path("b.jpg")), QString());
    comment()->setPlainText(QStringLiteral("of a picture that leaves the list"));
    m_driver->answerNextQuestion(QStringLiteral("Write"));
    m_driver->trigger("clearAction");
    QVERIFY(m_driver->waitFor([this] { return commentOf(path("c.png")).endsWith(QLatin1String("list")); }));
}

void TestTypedComments::asksBeforeThePageIsLeft()
{
    addPictures();
    comment()->setPlainText(QStringLiteral("typed"));
    m_driver->answerNextQuestion(QStringLiteral("Keep Editing"));
    m_driver->show("resize");
    QVERIFY(comment()->isVisible());
    QCOMPARE(comment()->toPlainText(), QStringLiteral("typed"));
    m_driver->answerNextQuestion(QStringLiteral("Keep Editing"));
    m_driver->window().close();
    QVERIFY(m_driver->window().isVisible());
    m_driver->answerNextQuestion(QStringLiteral("Write"));
    m_driver->show("resize");
    QVERIFY(!comment()->isVisible());
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("typed"));
}

void TestTypedComments::aTypedCommentSurvivesARunOverManyPictures()
{
    addPictures();
    comment()->setPlainText(QStringLiteral("typed"));
    const auto scope = m_driver->control<window::SegmentedControl>("metaScope");
    scope->setFocus();
    key(Qt::Key_Right);
    comment()->setPlainText(QStringLiteral("for all"));
    m_driver->answerNextQuestion(QStringLiteral("Write"));
    m_driver->click("metaApplyAll");
    QVERIFY(
        m_driver->waitFor([&] { return commentOf(path("c.png")) == QLatin1String("for all") && scope->isEnabled(); }));
    QCOMPARE(commentOf(path("b.jpg")), QStringLiteral("for all"));
    scope->setFocus();
    key(Qt::Key_Left);
    QCOMPARE(comment()->toPlainText(), QStringLiteral("typed"));
    QVERIFY(button("metaApply")->isEnabled());
}

void TestTypedComments::writesCommentAfterCommentByKeyboard()
{
    addPictures();
    m_driver->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_driver->window()));
    comment()->setFocus();
    for (const char *text : {"one", "two"}) {
        comment()->selectAll();
        QTest::keyClicks(comment(), QString::fromLatin1(text));
        QTest::keyClick(comment(), Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(comment()->hasFocus());
    }
    QCOMPARE(m_driver->text("metaName"), QStringLiteral("c.png"));
    QCOMPARE(commentOf(path("a.jpg")), QStringLiteral("one"));
    QCOMPARE(commentOf(path("b.jpg")), QStringLiteral("two"));
    QTest::keyClicks(comment(), QStringLiteral("three"));
    m_driver->click("metaApply");
    QVERIFY(comment()->hasFocus());
    QCOMPARE(commentOf(path("c.png")), QStringLiteral("three"));
}

QUORLIN_GUI_TEST(TestTypedComments)

#include "tst_typed_comments.moc"
