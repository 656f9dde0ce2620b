#pragma once

#include "SlateQtHost/Qt.h"

/** What stands in a main window without tabs: the project's name, and how to open the assistant. */
QWidget* MakeEmptyPage(QWidget& Parent);
