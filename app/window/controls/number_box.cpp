#include "app/window/controls/number_box.h"

#include <QKeyEvent>

namespace window {

void NumberBox::showValue(double value)
{
    // Rounds as the toolkit does: through the text of the value.
    const double rounded = QString::number(qBound(minimum(), value, maximum()), 'f', decimals()).toDouble();
    if (!hasFocus() || rounded != this->value())
        setValue(value);
}

void NumberBox::showDecimals(int decimals)
{
    if (decimals != this->decimals())
        setDecimals(decimals);
}

void NumberBox::showSuffix(const QString &suffix)
{
    if (suffix != this->suffix())
        setSuffix(suffix);
}

void NumberBox::setShort(bool isShort)
{
    m_isShort = isShort;
    setValue(value());
}

QString NumberBox::textFromValue(double value) const
{
    QString text = QDoubleSpinBox::textFromValue(value);
    if (!m_isShort || decimals() == 0)
        return text;
    while (text.endsWith(locale().zeroDigit()))
        text.chop(locale().zeroDigit().size());
    if (text.endsWith(locale().decimalPoint()))
        text.chop(locale().decimalPoint().size());
    return text;
}

void NumberBox::keyPressEvent(QKeyEvent *event)
{
    const bool isPoint = event->text() == QLatin1String(".") || event->text() == QLatin1String(",");
    if (!isPoint || (event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != 0) {
        QDoubleSpinBox::keyPressEvent(event);
        return;
    }
    QKeyEvent point(event->type(), event->key(), event->modifiers(), locale().decimalPoint(), event->isAutoRepeat());
    QDoubleSpinBox::keyPressEvent(&point);
}

} // namespace window
