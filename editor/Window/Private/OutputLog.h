#pragma once

#include "SlateQtHost/Qt.h"

/**
 * The newest lines of the global log, with the local time and a filter. Lines that are logged before it is made are not in it.
 * @param Parent may be null
 */
EDITORWINDOW_API QWidget* MakeOutputLog(QWidget* Parent);
