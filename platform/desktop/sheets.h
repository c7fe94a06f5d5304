#pragma once

class QObject;

/**
 * Sheets: windows that are open on another window. A window knows its sheet in its property "sheet"; null controls, and
 * windows without that property, ignore the calls. Main thread only.
 */
namespace platform {

/** Opens @p sheet on @p window. Whether one is open there already is not looked at. */
void beginSheet(QObject *window, QObject *sheet);

} // namespace platform
