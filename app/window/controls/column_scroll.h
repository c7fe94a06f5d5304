#pragma once

#include <QScrollArea>

namespace window {

/** An area that is scrolled up and down only: it is never narrower than what is in it. */
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
