#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/look/key_header.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QSet>
#include <QSpinBox>
#include <QTest>

using window::PictureModel;

/** The window without a mouse. */
class Keyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void theTabKeyReachesTheHeadings();
    void columnsAreSortedByKeyboard();
    void theRowOfTheKeyboardIsSeen();
    void theNextPictureIsAKeyAway();
    void inATextTheKeysAreThoseOfTheText();
    void escapeClosesWhatOpenedLast();

private:
    window::KeyHeader &header() { return *m_driver->pictures().findChild<window::KeyHeader *>(); }
    int place() { return m_driver->pictures().currentPlace(); }
    QString listed();

    std::unique_ptr<WindowDriver> m_driver;
};

void Keyboard::init()
{
    m_driver = WindowDriver::showing("resize");
    int width = 30;
    for (const char *name : {"b", "c", "a"}) {
        QImage image(width += 10, 30, QImage::Format_RGB32);
        image.fill(Qt::darkYellow);
        QVERIFY(image.save(m_driver->inputFolder() + u'/' + QString::fromLatin1(name) + QStringLiteral(".png")));
    }
    for (const char *name : {"b", "c", "a"})
        m_driver->drop({m_driver->inputFolder() + u'/' + QString::fromLatin1(name) + QStringLiteral(".png")});
    m_driver->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_driver->window()));
}

QString Keyboard::listed()
{
    QString names;
    for (int row = 0; row < m_driver->pictures().model()->rowCount(); ++row)
        names += m_driver->cell(row, PictureModel::Name).left(1);
    return names;
}

void Keyboard::theTabKeyReachesTheHeadings()
{
    m_driver->pictures().setFocus();
    QSet<QWidget *> visited;
    while (!visited.contains(QApplication::focusWidget())) {
        visited.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QVERIFY(visited.contains(&header()));
    QVERIFY(visited.contains(m_driver->control<QWidget>("startButton")));
    QVERIFY(visited.contains(m_driver->control<QWidget>("preview")));
    QVERIFY(visited.contains(m_driver->control<QWidget>("addPicturesButton")));
}

void Keyboard::columnsAreSortedByKeyboard()
{
    QCOMPARE(listed(), QStringLiteral("bca"));
    header().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&header(), Qt::Key_Right); // from the thumbnails to the names
    QCOMPARE(header().accessibleName(), QStringLiteral("Name"));
    QTest::keyClick(&header(), Qt::Key_Space);
    QCOMPARE(listed(), QStringLiteral("abc"));
    QTest::keyClick(&header(), Qt::Key_Space);
    QCOMPARE(listed(), QStringLiteral("cba"));
    QTest::keyClick(&header(), Qt::Key_Return);
    QCOMPARE(listed(), QStringLiteral("bca"));
    QTest::keyClick(&header(), Qt::Key_Left);
    QTest::keyClick(&header(), Qt::Key_Left); // stays at the end
    QTest::keyClick(&header(), Qt::Key_Right);
    QCOMPARE(header().accessibleName(), QStringLiteral("Name"));
}

void Keyboard::theRowOfTheKeyboardIsSeen()
{
    window::PictureTable &list = m_driver->pictures();
    list.setFocus();
    const QImage with = list.viewport()->grab().toImage();
    m_driver->control<QWidget>("startButton")->setFocus();
    const QImage without = list.viewport()->grab().toImage();
    const QRect row = list.visualRect(list.currentIndex());
    const QPoint edge(row.center().x(), row.top());
    QCOMPARE(with.pixelColor(edge), window::Theme::color(QStringLiteral("focus")));
    QVERIFY(without.pixelColor(edge) != with.pixelColor(edge));
}

void Keyboard::theNextPictureIsAKeyAway()
{
    QCOMPARE(place(), 1);
    for (const char *name : {"startButton", "preview", "sideBar", "preset", "fitFill", "ifTaken"}) {
        auto *control = m_driver->control<QWidget>(name);
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Right, Qt::ControlModifier);
        QVERIFY2(place() == 2, name);
        QVERIFY2(m_driver->pictures().selectedIds().size() == 1, name); // Ctrl adds nothing to what is chosen
        QTest::keyClick(control, Qt::Key_Left, Qt::ControlModifier);
        QVERIFY2(place() == 1, name);
    }
}

void Keyboard::inATextTheKeysAreThoseOfTheText()
{
    auto *field = m_driver->control<QDoubleSpinBox>("value")->findChild<QLineEdit *>();
    field->setFocus();
    field->setCursorPosition(0);
    QTest::keyClick(field, Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(place(), 1);
    QVERIFY(field->cursorPosition() > 0);
    QTest::keyClick(field, Qt::Key_PageDown, Qt::AltModifier);
    QCOMPARE(place(), 2);
    QTest::keyClick(field, Qt::Key_PageUp, Qt::AltModifier);
    QCOMPARE(place(), 1);
}

void Keyboard::escapeClosesWhatOpenedLast()
{
    auto *large = m_driver->window().findChild<QWidget *>(QStringLiteral("largePreview"));
    auto *entry = m_driver->control<QAction>("cancelAction");
    QVERIFY(!entry->isEnabled());
    m_driver->trigger("showFailedAction");
    if (!m_driver->pictures().property("problemsOnly").toBool())
        m_driver->pictures().setProperty("problemsOnly", true);
    m_driver->trigger("fullScreenAction");
    m_driver->trigger("largeAction");
    QVERIFY(m_driver->waitFor([&] { return m_driver->startUp().shell().isFullScreen(); }));
    const bool isLargeOpen = large->isVisible();
    if (isLargeOpen) {
        m_driver->trigger("cancelAction");
        QVERIFY(!large->isVisible());
        QVERIFY(m_driver->startUp().shell().isFullScreen());
    }
    m_driver->trigger("cancelAction");
    QVERIFY(!m_driver->startUp().shell().isFullScreen());
    QVERIFY(m_driver->pictures().property("problemsOnly").toBool());
    m_driver->trigger("cancelAction");
    QVERIFY(!m_driver->pictures().property("problemsOnly").toBool());
    QVERIFY(!entry->isEnabled());
}

QUORLIN_GUI_TEST(Keyboard)

#include "tst_keyboard.moc"
