#pragma once

#include "CoreMinimal.h"
#include "SlateQtHost/Qt.h"

/** Writes what a widget looks like as a PNG file. @return false, with a message that names the file, when it can't be written */
[[nodiscard]] bool WritePicture(QWidget& Widget, const FString& File, FText& OutError);
