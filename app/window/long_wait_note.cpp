#include "app/window/long_wait_note.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace window {

void LongWaitNote::begin()
{
    if (++m_depth > 1)
        return;
    m_isGivenUp = false;
    show();
}

void LongWaitNote::show()
{
    m_note = std::make_unique<QDialog>(QApplication::activeWindow());
    m_note->setObjectName(QStringLiteral("longWaitNote"));
    m_note->setWindowTitle(QCoreApplication::translate("LongWait", "Still reading"));
    m_note->setWindowModality(Qt::ApplicationModal);
    auto *layout = new QVBoxLayout(m_note.get());
    layout->addWidget(new QLabel(QCoreApplication::translate("LongWait", "A picture is taking a long time to read.")));
    auto *buttons = new QDialogButtonBox();
    auto *stop =
        buttons->addButton(QCoreApplication::translate("LongWait", "Do Not Wait"), QDialogButtonBox::RejectRole);
    stop->setObjectName(QStringLiteral("longWaitStop"));
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::rejected, m_note.get(), &QDialog::reject);
    QObject::connect(m_note.get(), &QDialog::rejected, m_note.get(), [this] { m_isGivenUp = true; });
    m_note->show();
}

bool LongWaitNote::goOn()
{
    constexpr int mostMs = 50;
    QCoreApplication::processEvents(QEventLoop::AllEvents, mostMs);
    return !m_isGivenUp;
}

void LongWaitNote::end()
{
    if (--m_depth > 0)
        return;
    m_note->hide();
    m_note.release()->deleteLater(); // it may be in the middle of an event
}

} // namespace window
