#include "app/script/script_output.h"

#include <QLoggingCategory>
#include <QString>

#include <cstdio>
#include <cstring>

namespace script {
namespace {

QtMessageHandler handlerBefore = nullptr;
QLoggingCategory::CategoryFilter filterBefore = nullptr;

/** The engine has print and console built in, not to be replaced, and sends them here under these categories. */
bool isScriptCategory(const char *category)
{
    return category && (std::strcmp(category, "qml") == 0 || std::strcmp(category, "js") == 0);
}

void writeLine(std::FILE *stream, const QString &text)
{
    const QByteArray line = text.toUtf8() + '\n';
    std::fwrite(line.constData(), 1, size_t(line.size()), stream);
    std::fflush(stream);
}

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (isScriptCategory(context.category)) {
        const bool isOutput = type == QtDebugMsg || type == QtInfoMsg;
        writeLine(isOutput ? stdout : stderr, text);
    } else if (handlerBefore && !text.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR"))) {
        // Its message, which appears in every container without a session, means nothing to somebody who reads the
        // errors of a script.
        handlerBefore(type, context, text);
    }
}

void filterCategory(QLoggingCategory *category)
{
    if (filterBefore)
        filterBefore(category);
    if (!isScriptCategory(category->categoryName()))
        return;
    for (const QtMsgType type : {QtDebugMsg, QtInfoMsg, QtWarningMsg, QtCriticalMsg})
        category->setEnabled(type, true);
}

} // namespace

void installScriptOutput()
{
    if (filterBefore)
        return;
    handlerBefore = qInstallMessageHandler(handleMessage);
    filterBefore = QLoggingCategory::installFilter(filterCategory);
}

} // namespace script
