#pragma once

#include <QObject>

/**
 * Lengths that were typed in a unit, converted to pixels of one picture at that picture's own resolution.
 *
 * An object keeps its last result. Used by one caller at a time, on the main thread.
 */
class cMConversion : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qint32 myNewValue MEMBER myNewValue)
    Q_PROPERTY(float myDPIvalue MEMBER myDPIvalue)

public:
    Q_INVOKABLE explicit cMConversion(QObject *parent = nullptr);

    /**
     * @p value, a length in @p unit, in whole pixels of the picture at @p path; kept in myNewValue.
     *
     * @param targetUnit  "pixel"; for any other the answer is the result of the previous call, initially 0
     * @param unit        "mm", "cm", "inch", "pica" (4.2175176 mm) or "punt" (0.3527777777778 mm): converted with the
     *                    resolution, which is kept in myDPIvalue; "pixel" and any other are taken as pixels
     * @return fractions of a pixel are truncated, of picas they are rounded; 0 if the result is not a number or
     *         infinite, the nearest whole number of 32 bits if it does not fit
     */
    Q_INVOKABLE float convertXtoPixel(const QString &path, const QString &targetUnit, const QString &unit, float value);

    /**
     * The horizontal resolution of the upright picture in dots per inch, rounded up; 72 if it states none, 0 if it
     * cannot be read. Reads the header only.
     */
    Q_INVOKABLE float getPictureDPI(const QString &path);

private:
    qint32 myNewValue = 0;
    float myDPIvalue = 0;
};
