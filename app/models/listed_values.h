#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace window {

/** The value of one property of a picture, to be shown, sorted and compared. */
struct ListedValue
{
    QString words;                ///< as people read it: "1/250 s"
    QString stated;               ///< as in the file, if it is a text or a number
    std::optional<double> number; ///< if it is one
};

/** By the names of properties, see jobs::propertyValues(); those without a value are missing. */
using ListedValues = QHash<QString, ListedValue>;

/** @param values  {name: {value, reference}} */
ListedValues listedValues(const QVariantMap &values);

/** The last part of a path in words, with its group unless it is a camera's: "F-number", "IPTC: City". */
QString propertyPathWords(const QString &path);

/** Properties that are offered for every picture; paths only, since scripts name the fields. */
QStringList usualPropertyPaths();

/** A number as people type it: "3200", "1/250", "5,6" in a language that writes it so. */
std::optional<double> numberIn(const QString &text);

} // namespace window
