#include "platform/controls/screens.h"

#include <QGuiApplication>
#include <QScreen>

namespace platform {
namespace {

std::function<QRectF()> &currentProvider()
{
    static std::function<QRectF()> provider;
    return provider;
}

} // namespace

QRectF firstScreenFrame()
{
    if (currentProvider())
        return currentProvider()();
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return {};
    const QList<QScreen *> screens = QGuiApplication::screens();
    return screens.isEmpty() ? QRectF() : QRectF(screens.first()->geometry());
}

void setScreenProvider(std::function<QRectF()> provider)
{
    currentProvider() = std::move(provider);
}

} // namespace platform
