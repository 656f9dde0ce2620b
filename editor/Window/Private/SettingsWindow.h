#pragma once

#include "SlateQtHost/Qt.h"

/**
 * The registered settings: their sections at the left, the page of the chosen one at the right. A top-level window that can stay open; it
 * follows sections that come and go, and values that change elsewhere, while it is shown.
 * @param Parent may be null
 */
EDITORWINDOW_API QWidget* MakeSettingsWindow(QWidget* Parent);
