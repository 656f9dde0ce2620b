#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "SlateQtHost/Qt.h"

/** Where a window and its docks stand, kept in the project's "Saved/Config/EditorWindow.ini". */
struct FWindowLayout
{
	/** As QWidget::saveGeometry and QMainWindow::saveState give them. */
	QByteArray Geometry;
	QByteArray Docks;
	/** The ids of the open tabs. */
	TArray<FName> Tabs;

	/** Nothing when there is no such file, or one that this editor has not written. */
	static TOptional<FWindowLayout> Read();
	void Write() const;
};
