#pragma once

#include <QStringList>
#include <QWidget>

namespace window {

/** Covers a window while files are dragged over it, says what a drop does, and takes the drop. */
class DropTarget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool open READ isOpen WRITE setOpen)

public:
    /** Watches @p window and all in it that does not take drops itself. */
    explicit DropTarget(QWidget *window);

    bool isOpen() const { return m_open; }
    /** While closed, drops are refused: a job is running. */
    void setOpen(bool open) { m_open = open; }
    Q_INVOKABLE void setMessage(const QString &message);

Q_SIGNALS:
    /** Local paths of files and folders, in the order given. */
    void dropped(const QStringList &paths);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_message;
    bool m_open = true;
};

} // namespace window
