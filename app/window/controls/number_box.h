#pragma once

#include <QDoubleSpinBox>

namespace window {

/**
 * A field for numbers with decimals that does not interfere with typing.
 *
 * Every key that makes a number tells the pane, and the pane writes its settings back into its fields. So a value that
 * the field already has is not written again, since "12." would become "12" before the next digit. Both point and comma
 * are accepted as the decimal point of the reader's language: nobody types a thousands separator, and 12.5 read as 125
 * would be worse than a beep.
 */
class NumberBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE showValue USER true)
    Q_PROPERTY(int decimals READ decimals WRITE showDecimals)
    Q_PROPERTY(QString suffix READ suffix WRITE showSuffix)
    /** Leaves out zeros at the end of the decimals, and the point with them. */
    Q_PROPERTY(bool isShort READ isShort WRITE setShort)

public:
    using QDoubleSpinBox::QDoubleSpinBox;

    /** The toolkit measures the ink of the text; what is drawn is a little wider. */
    QSize sizeHint() const override { return QDoubleSpinBox::sizeHint() + QSize(6, 0); }

    void showValue(double value);
    void showDecimals(int decimals);
    void showSuffix(const QString &suffix);
    bool isShort() const { return m_isShort; }
    void setShort(bool isShort);
    QString textFromValue(double value) const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool m_isShort = false;
};

} // namespace window
