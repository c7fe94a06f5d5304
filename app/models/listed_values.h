#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace window {

/** What a picture says under one property, to be shown, sorted and compared. */
struct ListedValue
{
    QString words;                ///< as people read it: "1/250 s"
    QString stated;               ///< as the file has it, where that is a text or a number
    std::optional<double> number; ///< where it is one
};

/** By the names of properties, see jobs::propertyValues(); what is not stated is missing. */
using ListedValues = QHash<QString, ListedValue>;

/** @param values  {name: {value, reference}} */
ListedValues listedValues(const QVariantMap &values);

/** The last part of a path in words, with its group where it is no camera's: "F-number", "IPTC: City". */
QString propertyPathWords(const QString &path);

/** Properties that are offered for every picture; paths, since fields are named by scripts. */
QStringList usualPropertyPaths();

/** A number as people write it: "3200", "1/250", "5,6" in a language that writes it so. */
std::optional<double> numberIn(const QString &text);

} // namespace window
