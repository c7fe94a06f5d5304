#include "app/window/forms/accessible_controls.h"

#include "app/window/controls/angle_dial.h"

#include <QAccessibleWidget>
#include <QHash>

namespace window {

namespace {

/** Exposes the angle of the dial as a number that can be read and set. */
class AccessibleDial : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleDial(AngleDial *dial) : QAccessibleWidget(dial, QAccessible::Dial), m_dial(dial) {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return m_dial->value(); }
    void setCurrentValue(const QVariant &value) override
    {
        m_dial->setValue(value.toDouble());
        Q_EMIT m_dial->turned(m_dial->value());
    }
    QVariant maximumValue() const override { return 180.0; }
    QVariant minimumValue() const override { return -180.0; }
    QVariant minimumStepSize() const override { return 0.1; }

private:
    AngleDial *m_dial;
};

/** The current choice of a group of choices is its description. */
const QHash<QString, QAccessible::Role> &roles()
{
    static const QHash<QString, QAccessible::Role> all = {
        {QStringLiteral("window::SegmentedControl"), QAccessible::Grouping},
        {QStringLiteral("window::PositionPad"), QAccessible::Grouping},
        {QStringLiteral("window::ComparePreview"), QAccessible::Graphic},
        {QStringLiteral("window::PagesView"), QAccessible::Graphic},
        {QStringLiteral("window::CropFrameEditor"), QAccessible::Graphic},
        {QStringLiteral("window::CardHandle"), QAccessible::Graphic}};
    return all;
}

QAccessibleInterface *describe(const QString &className, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (auto *dial = qobject_cast<AngleDial *>(widget); dial && className == QLatin1String("window::AngleDial"))
        return new AccessibleDial(dial);
    const auto role = roles().constFind(className);
    return widget && role != roles().cend() ? new QAccessibleWidget(widget, *role) : nullptr;
}

} // namespace

void describeOwnControls()
{
    QAccessible::installFactory(describe); // which it does once only
}

} // namespace window
