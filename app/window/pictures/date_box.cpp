#include "app/window/pictures/date_box.h"

#include "platform/foundation/human_texts.h"

namespace window {

DateBox::DateBox(QWidget *parent) : QDateEdit(parent)
{
    setDisplayFormat(platform::localDateForm());
    connect(this, &QDateEdit::dateChanged, this, [this](QDate) { Q_EMIT dayChanged(day()); });
}

void DateBox::setDay(const QString &day)
{
    const QDate date = QDate::fromString(day, Qt::ISODate);
    if (date.isValid() && date != this->date())
        setDate(date);
}

} // namespace window
