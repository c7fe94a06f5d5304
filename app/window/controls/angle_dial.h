#pragma once

#include <QWidget>

namespace window {

/**
 * A dial for an angle in degrees, -180 to 180 in tenths; anticlockwise is positive, 0 points up.
 *
 * One tab stop. The mouse drags the hand, which snaps to multiples of 15 degrees (not with Shift); the wheel and the
 * arrow keys turn by 1 degree, with Shift by 0.1, Page Up and Page Down by 15; Home sets 0.
 */
class AngleDial : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)

public:
    explicit AngleDial(QWidget *parent = nullptr);

    double value() const { return m_value; }
    /** Any angle; it is brought into range and rounded to tenths. */
    void setValue(double degrees);

    QSize sizeHint() const override { return {72, 72}; }
    QSize minimumSizeHint() const override { return {56, 56}; }

Q_SIGNALS:
    void valueChanged(double degrees);
    /** As valueChanged, but only if a person turned the dial. */
    void turned(double degrees);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void turnTo(double degrees);
    void follow(const QMouseEvent &event);

    double m_value = 0;
};

} // namespace window
