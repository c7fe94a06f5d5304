#include "app/window/look/interface_texts.h"

#include "platform/file/atomic_file.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace window {

namespace {

QByteArray keyOf(const QByteArray &context, const QByteArray &text)
{
    return context + '\0' + text;
}

} // namespace

bool InterfaceTexts::read(const QString &path)
{
    m_texts.clear();
    const QJsonObject contexts = QJsonDocument::fromJson(platform::readFile(path).value_or(QByteArray())).object();
    for (auto context = contexts.begin(); context != contexts.end(); ++context) {
        const QJsonObject texts = context.value().toObject();
        for (auto text = texts.begin(); text != texts.end(); ++text)
            if (text.value().isString())
                m_texts.insert(keyOf(context.key().toUtf8(), text.key().toUtf8()), text.value().toString());
    }
    return !m_texts.isEmpty();
}

// A null text makes the toolkit go on to the next table, and at the end to the English text itself.
QString InterfaceTexts::translate(const char *context, const char *text, const char *, int) const
{
    return m_texts.value(keyOf(context, text));
}

} // namespace window
