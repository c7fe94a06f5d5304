#include "jobs/reading/undo_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace jobs {
namespace {

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

QString base64(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

QByteArray bytesOf(const QJsonValue &value)
{
    return QByteArray::fromBase64(value.toString().toLatin1());
}

QString textOf(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QJsonObject objectOf(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

} // namespace

QString undoText(const PictureUndo &undo)
{
    QJsonArray splices;
    for (const platform::Splice &each : undo.splices)
        splices.append(
            QJsonObject{{key("at"), each.at}, {key("size"), each.removed}, {key("old"), base64(each.inserted)}});
    return textOf(
        {{key("splices"), splices}, {key("digest"), base64(undo.digest)}, {key("before"), base64(undo.before)}});
}

QString undoText(const SidecarUndo &undo)
{
    return textOf({{key("sidecar"), undo.path}, {key("before"), base64(undo.before)}, {key("now"), base64(undo.now)}});
}

std::optional<PictureUndo> pictureUndo(const QString &text)
{
    const QJsonObject object = objectOf(text);
    if (!object.value(key("splices")).isArray())
        return std::nullopt;
    PictureUndo undo{{}, bytesOf(object.value(key("digest"))), bytesOf(object.value(key("before")))};
    for (const QJsonValue each : object.value(key("splices")).toArray())
        undo.splices.append(
            {qint64(each[key("at")].toDouble()), qint64(each[key("size")].toDouble()), bytesOf(each[key("old")])});
    return undo;
}

std::optional<SidecarUndo> sidecarUndo(const QString &text)
{
    const QJsonObject object = objectOf(text);
    const QString path = object.value(key("sidecar")).toString();
    if (path.isEmpty())
        return std::nullopt;
    return SidecarUndo{path, bytesOf(object.value(key("before"))), bytesOf(object.value(key("now")))};
}

} // namespace jobs
