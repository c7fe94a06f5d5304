#include "tests/gui/clicks/hand.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGuiApplication>
#include <QStyleHints>
#include <QTest>
#include <QWindow>

namespace clicks {

namespace {

/** The window that gets keys. */
QWindow &keyWindow()
{
    QCoreApplication::processEvents();
    QWindow *window = QGuiApplication::focusWindow();
    if (!window)
        qFatal("no window has the focus");
    return *window;
}

} // namespace

void Hand::click(QWidget &control)
{
    click(control, control.rect().center());
}

void Hand::click(QWidget &control, QPoint at)
{
    QWidget *window = control.window();
    const QPoint place = control.mapTo(window, at);
    const QWidget *hit = window->childAt(place);
    if (!control.isVisible() || !control.isEnabled() || !hit || (hit != &control && !control.isAncestorOf(hit)))
        qFatal("%s cannot be clicked", qPrintable(control.objectName()));
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
    QCoreApplication::processEvents();
    ++m_count;
}

void Hand::choose(QComboBox &box, const QString &entry)
{
    const int row = box.findText(entry);
    if (row < 0)
        qFatal("%s has no entry %s", qPrintable(box.objectName()), qPrintable(entry));
    click(box);
    // The toolkit takes no click that comes within the time of a double one for a choice.
    QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 100);
    QAbstractItemView &view = *box.view();
    const QModelIndex index = view.model()->index(row, box.modelColumn(), view.rootIndex());
    click(*view.viewport(), view.visualRect(index).center());
    if (!QTest::qWaitFor([&] { return box.currentText() == entry; }, 2000))
        qFatal("%s was not chosen: %s", qPrintable(entry), qPrintable(box.currentText()));
    // The windowless platform may leave the list of a box open, and the focus in it.
    box.hidePopup();
    box.window()->activateWindow();
    QCoreApplication::processEvents();
}

void Hand::press(const QString &chord)
{
    const QKeyCombination keys = QKeySequence(chord)[0];
    QTest::keyClick(&keyWindow(), keys.key(), keys.keyboardModifiers());
    QCoreApplication::processEvents();
    ++m_count;
}

void Hand::type(const QString &text)
{
    for (const QChar each : text)
        QTest::keyClick(&keyWindow(), each.toLatin1());
    QCoreApplication::processEvents();
}

} // namespace clicks
