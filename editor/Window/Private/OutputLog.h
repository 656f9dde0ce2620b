#pragma once

#include "SlateQtHost/Qt.h"

/**
 * The newest lines of the global log, with the local time and a filter. It takes over the backlog of the global log, which keeps none afterwards.
 * @param Parent may be null
 */
EDITORWINDOW_API QWidget* MakeOutputLog(QWidget* Parent);
