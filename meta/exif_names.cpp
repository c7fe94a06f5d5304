#include "meta/exif_names.h"

namespace meta {

platform::XmpChange exifDateInXmp()
{
    platform::XmpChange change;
    change.property = {QStringLiteral("http://ns.adobe.com/exif/1.0/"), QStringLiteral("DateTimeOriginal")};
    change.prefix = QStringLiteral("exif");
    change.onlyIfThere = true;
    return change;
}

QString namesInExif(const QStringList &names)
{
    if (names.size() == 1 && !names.first().startsWith(u'"') && !names.first().contains(u';'))
        return names.first();
    QStringList quoted;
    for (const QString &name : names) {
        const bool needsMarks = name.contains(u';') || name.startsWith(u'"');
        quoted += needsMarks ? u'"' + QString(name).replace(u'"', QLatin1String("\"\"")) + u'"' : name;
    }
    return quoted.join(QLatin1String("; "));
}

QStringList namesFromExif(const QString &text)
{
    QStringList names;
    QString name;
    bool isQuoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i);
        if (letter == u'"' && isQuoted && i + 1 < text.size() && text.at(i + 1) == u'"') {
            name += letter;
            ++i;
        } else if (letter == u'"' && (isQuoted || name.trimmed().isEmpty())) {
            isQuoted = !isQuoted;
        } else if (letter == u';' && !isQuoted) {
            names += name.trimmed();
            name.clear();
        } else {
            name += letter;
        }
    }
    names += name.trimmed();
    names.removeAll(QString());
    return names;
}

} // namespace meta
