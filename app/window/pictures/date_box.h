#pragma once

#include <QDateEdit>

namespace window {

/** A field for a day, in the reader's own form with all four digits of the year. */
class DateBox : public QDateEdit
{
    Q_OBJECT
    /** Such as "2026-08-14"; anything that is not a day is ignored. */
    Q_PROPERTY(QString day READ day WRITE setDay NOTIFY dayChanged)

public:
    explicit DateBox(QWidget *parent = nullptr);

    QString day() const { return date().toString(Qt::ISODate); }
    void setDay(const QString &day);

Q_SIGNALS:
    void dayChanged(const QString &day);
};

} // namespace window
