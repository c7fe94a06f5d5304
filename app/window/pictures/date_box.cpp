#include "app/window/pictures/date_box.h"

#include <QLocale>

namespace window {

DateBox::DateBox(QWidget *parent) : QDateEdit(parent)
{
    QString form = QLocale().dateFormat(QLocale::ShortFormat);
    if (!form.contains(QLatin1String("yyyy")))
        form.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    setDisplayFormat(form);
    connect(this, &QDateEdit::dateChanged, this, [this](QDate) { Q_EMIT dayChanged(day()); });
}

void DateBox::setDay(const QString &day)
{
    const QDate date = QDate::fromString(day, Qt::ISODate);
    if (date.isValid() && date != this->date())
        setDate(date);
}

} // namespace window
