#include "app/window/forms/sheet_host.h"

#include <QDialog>
#include <QLayout>
#include <QScreen>

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
    // A window cannot be a sheet of itself or of its children.
    if (!dialog || dialog == &m_window || dialog->isAncestorOf(&m_window))
        return;
    if (dialog->parentWidget() != &m_window)
        dialog->setParent(&m_window, dialog->windowFlags());
    m_sheet = dialog;
    // A dialog computes the height of its texts as if they were never wrapped.
    const QLayout *layout = dialog->layout();
    const QSize least = dialog->sizeHint().expandedTo(dialog->size());
    if (layout && layout->hasHeightForWidth())
        dialog->resize(least.expandedTo({0, layout->totalHeightForWidth(least.width())})
                           .boundedTo(dialog->screen()->availableSize()));
    dialog->open();
}

} // namespace window
