#include "app/seam/facade.h"
#include "app/seam/seam.h"

#include "platform/foundation/raised.h"

#include <QUrl>

#include <new>

namespace script {

Location locationInStack(const QString &stack)
{
    for (const QString &frame : stack.split(u'\n')) {
        const qsizetype at = frame.indexOf(u'@');
        const qsizetype colon = frame.lastIndexOf(u':');
        if (at < 0 || colon < at + 1)
            continue;
        const QString source = frame.mid(at + 1, colon - at - 1);
        const int line = std::abs(frame.mid(colon + 1).toInt());
        if (line == 0 || source.isEmpty() || source.endsWith(facadeFileName()))
            continue;
        const QUrl url(source);
        return {url.isLocalFile() ? url.toLocalFile() : source, line};
    }
    return {};
}

void Seam::rejectName(const QString &className, const QString &name)
{
    raise(QStringLiteral("TypeError"), QStringLiteral("%1 has no operation or field %2").arg(className, name));
}

void Seam::rejectAssignment(const QString &className, const QString &name)
{
    raise(QStringLiteral("TypeError"), QStringLiteral("%1 has no field %2 that can be set").arg(className, name));
}

void Seam::raise(const QString &name, const QString &message)
{
    const auto type = name == QStringLiteral("TypeError")        ? QJSValue::TypeError
                      : name == QStringLiteral("RangeError")     ? QJSValue::RangeError
                      : name == QStringLiteral("ReferenceError") ? QJSValue::ReferenceError
                                                                 : QJSValue::GenericError;
    QJSValue error = m_engine.newErrorObject(type, message);
    if (type == QJSValue::GenericError && name != QStringLiteral("Error"))
        m_setName.call({error, name});
    const Location location = locationInStack(error.property(QStringLiteral("stack")).toString());
    if (!location.file.isEmpty()) {
        error.setProperty(QStringLiteral("fileName"), location.file);
        error.setProperty(QStringLiteral("lineNumber"), location.line);
    }
    m_engine.throwError(error);
}

void Seam::raiseCurrentException()
{
    const QString genericName = QStringLiteral("Error");
    try {
        throw;
    } catch (const platform::Raised &raised) {
        raise(raised.name(), raised.message());
    } catch (const std::bad_alloc &) {
        raise(QStringLiteral("RangeError"), QStringLiteral("There is not enough memory"));
    } catch (const std::exception &exception) {
        raise(genericName, QString::fromUtf8(exception.what()));
    } catch (...) {
        raise(genericName, QStringLiteral("An unknown exception was thrown"));
    }
}

} // namespace script
