#pragma once

class QObject;

/**
 * Sheets: windows that are open on another window. A window stores its sheet in its property "sheet", the last one
 * opened if there are several; null controls, and windows without that property, ignore the calls. Main thread only.
 */
namespace platform {

/** Opens @p sheet on @p window, even if another one is open there already; that one stays open. */
void beginSheet(QObject *window, QObject *sheet);

/**
 * Closes @p sheet; does nothing if it is not open. A window on which another sheet was opened before
 * shows that one again. @p window is checked too, in case it got the sheet from someone else.
 */
void endSheet(QObject *sheet, QObject *window);

/** Takes a sheet off the screen, and removes it from its window. */
void orderOutSheet(QObject *sheet);

} // namespace platform
