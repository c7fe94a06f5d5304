#pragma once

#include <QScrollArea>

namespace window {

/** An area that scrolls vertically only: it is never narrower than its content. */
class ColumnScroll : public QScrollArea
{
    Q_OBJECT

public:
    explicit ColumnScroll(QWidget *parent = nullptr);

    QSize sizeHint() const override { return {minimumSizeHint().width(), QScrollArea::sizeHint().height()}; }
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace window
