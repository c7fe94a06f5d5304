#pragma once

#include "tests/gui/support/window_driver.h"

#include <QSet>
#include <QTimer>

class QFileDialog;

/**
 * Visits everything that the program shows: each action without and with pictures, each choice of its settings, its
 * cards and slots, a run and its summary, every sheet, and questions that come up. At each stop the window, or the
 * sheet, is passed to the caller.
 */
class WindowTour
{
public:
    using Look = std::function<void(const QString &place, const QWidget &window)>;

    /** @param size  of the main window; sheets have their own */
    WindowTour(WindowDriver &driver, QSize size, Look look);

    void actions();
    /** Bars that ask for something inside the window. */
    void bars();
    void runs();
    void sheets();
    /** Windows beside the main window. */
    void windows();
    /** The manual, whose pages are in each language. */
    void manual();
    /** Panels for files that have choices of this program. */
    void panels();

private:
    void look(const QString &place);
    void look(const QString &place, QWidget &window);
    void addPictures();
    void addFolders();
    void visit(const QString &place, QSet<QString> &visited);
    void visitValues(const QString &place, QWidget &control, QSet<QString> &visited);
    void visitCards();
    void visitOperations();
    void lookAtQuestion();
    void startAgain();
    void choosePreset();
    void visitSheet(const char *opens, bool isAction, const char *sheet, const char *closes);
    void visitWindow(const char *opens, const char *name);
    void visitPanel(const char *opens, const std::function<void(QFileDialog &)> &prepare);

    WindowDriver &m_driver;
    QSize m_size;
    Look m_look;
    QSet<QString> m_visited;
    QTimer m_questions;
};
