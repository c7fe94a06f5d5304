#pragma once

class QObject;

/**
 * Sheets: windows that are open on another window. A window knows its sheet in its property "sheet", of several the one that
 * was opened last; null controls, and windows without that property, ignore the calls. Main thread only.
 */
namespace platform {

/** Opens @p sheet on @p window. Whether one is open there already is not looked at; that one is still open then. */
void beginSheet(QObject *window, QObject *sheet);

/**
 * Closes @p sheet, wherever it is open; nothing happens where it is not. A window on which another sheet was opened before
 * shows that one again. @p window is looked at too, in case it got the sheet from someone else.
 */
void endSheet(QObject *sheet, QObject *window);

/** Takes a sheet off the screen, and with it off the window that it is open on. */
void orderOutSheet(QObject *sheet);

} // namespace platform
