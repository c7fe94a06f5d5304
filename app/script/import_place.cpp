#include "app/script/import_place.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

namespace script {
namespace {

struct Import
{
    QUrl target;
    int line = 0;
};

QString textOf(const QString &path)
{
    QFile file(path);
    // Opening a named pipe would block for ever.
    const bool canBeRead = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    return canBeRead ? QString::fromUtf8(file.readAll()) : QString();
}

/** What a module imports and re-exports, in the order of its statements. */
QList<Import> importsOf(const QString &path)
{
    static const QRegularExpression form(
        QStringLiteral("(?:^|[;}])[ \\t]*(import|export)\\b(?:[^;'\"]*\\bfrom)?\\s*[\"']([^\"'\\n]+)[\"']"),
        QRegularExpression::MultilineOption);
    const QString text = textOf(path);
    const QUrl base = QUrl::fromLocalFile(path);
    QList<Import> imports;
    auto matches = form.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const qsizetype before = text.left(match.capturedStart(1)).count(u'\n');
        imports.append({base.resolved(QUrl(match.captured(2))), int(before) + 1});
    }
    return imports;
}

} // namespace

Location placeOfMissingImport(const QString &root, const QString &text)
{
    static const QRegularExpression form(QStringLiteral("Could not open module (.+) for reading"));
    const QUrl missing(form.match(text).captured(1));
    if (!missing.isLocalFile())
        return {};
    QStringList paths = {root};
    for (qsizetype i = 0; i < paths.size(); ++i)
        for (const Import &import : importsOf(paths.at(i))) {
            if (import.target == missing)
                return {paths.at(i), import.line};
            const QString path = import.target.toLocalFile();
            if (!path.isEmpty() && !paths.contains(path))
                paths.append(path);
        }
    return {};
}

} // namespace script
