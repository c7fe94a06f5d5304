#pragma once

#include <QWidget>

namespace window {

/** The handle by which a card in a column of cards is dragged to another place; the arrow keys move it too. */
class CardHandle : public QWidget
{
    Q_OBJECT

public:
    explicit CardHandle(QWidget *parent = nullptr);

    QSize sizeHint() const override { return {16, 24}; }

Q_SIGNALS:
    /** The pointer is this many pixels below the place where it was pressed; above it, if negative. */
    void dragged(int by);
    void released();
    /** One place up (-1) or down (1), by the arrow keys. */
    void stepped(int by);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int m_pressedAt = 0;
    bool m_dragging = false;
};

} // namespace window
