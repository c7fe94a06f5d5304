#include "platform/controls/sheets.h"

#include "platform/controls/controls.h"

#include <QObject>
#include <QPointer>
#include <QVariant>

#include <algorithm>
#include <vector>

namespace platform {
namespace {

struct OpenSheet
{
    QPointer<QObject> window;
    QPointer<QObject> sheet;
};

/** Oldest first. */
std::vector<OpenSheet> &openSheets()
{
    static std::vector<OpenSheet> open;
    return open;
}

bool hasSheets(const QObject *window)
{
    return window && window->metaObject()->indexOfProperty("sheet") >= 0;
}

/** The user can close a real window without asking anybody here. */
bool isHidden(const QObject &sheet)
{
    const QVariant visible = sheet.property("visible");
    return visible.isValid() && !visible.toBool();
}

void show(QObject &window, QObject *sheet)
{
    window.setProperty("sheet", QVariant::fromValue(sheet));
}

/** Forgets that @p sheet is open, even if its window is gone, and answers the windows on which it was open. */
std::vector<QPointer<QObject>> forget(const QObject *sheet)
{
    std::vector<QPointer<QObject>> windows;
    std::erase_if(openSheets(), [&](const OpenSheet &each) {
        if (each.sheet == sheet && each.window)
            windows.push_back(each.window);
        return each.sheet == sheet || !each.sheet || !each.window || isHidden(*each.sheet);
    });
    return windows;
}

QObject *lastOpenOn(const QObject &window)
{
    const auto last = std::find_if(openSheets().rbegin(), openSheets().rend(),
                                   [&window](const OpenSheet &each) { return each.window == &window; });
    return last == openSheets().rend() ? nullptr : last->sheet.data();
}

} // namespace

void beginSheet(QObject *window, QObject *sheet)
{
    if (!hasSheets(window) || !sheet)
        return;
    forget(sheet);
    openSheets().push_back({window, sheet});
    show(*window, sheet);
}

void endSheet(QObject *sheet, QObject *window)
{
    if (!sheet)
        return;
    std::vector<QPointer<QObject>> windows = forget(sheet);
    if (hasSheets(window))
        windows.push_back(window);
    setVisibleOf(sheet, false);
    for (const QPointer<QObject> &each : windows)
        if (each && each->property("sheet").value<QObject *>() == sheet)
            show(*each, lastOpenOn(*each));
}

void orderOutSheet(QObject *sheet)
{
    endSheet(sheet, nullptr);
}

} // namespace platform
