#include "app/window/forms/sheet_host.h"

#include <QDialog>

namespace window {

SheetHost::SheetHost(QWidget &window) : QObject(&window), m_window(window) {}

QObject *SheetHost::sheet() const
{
    QWidget *sheet = m_sheet.data();
    return sheet && sheet->isVisible() ? sheet : nullptr;
}

void SheetHost::setSheet(QObject *sheet)
{
    auto *dialog = qobject_cast<QDialog *>(sheet);
    if (!sheet)
        m_sheet = nullptr;
    // A window is no sheet of itself, nor of what lies in it.
    if (!dialog || dialog == &m_window || dialog->isAncestorOf(&m_window))
        return;
    if (dialog->parentWidget() != &m_window)
        dialog->setParent(&m_window, dialog->windowFlags());
    m_sheet = dialog;
    dialog->open();
}

} // namespace window
