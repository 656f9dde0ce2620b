#include "Picture.h"

bool WritePicture(QWidget& Widget, const FString& File, FText& OutError)
{
	const QPixmap Picture = Widget.grab();
	QSaveFile Output(ToQString(File));
	if (Output.open(QIODevice::WriteOnly) && Picture.save(&Output, "PNG") && Output.commit())
	{
		return true;
	}
	OutError = FText::FromString(FString::Printf(TEXT("%s: the picture can't be written: %s"), *File, *ToFString(Output.errorString())));
	return false;
}
