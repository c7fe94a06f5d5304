#pragma once

#include <QObject>

/** Holds one number. */
class MyModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double floatValue READ floatValue WRITE setFloatValue)

public:
    double floatValue() const { return m_floatValue; }
    Q_INVOKABLE void setFloatValue(double value) { m_floatValue = value; }

private:
    double m_floatValue = 0;
};
