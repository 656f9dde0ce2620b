#include "SlateQtHost/SlateView.h"

QIcon MakeQtIcon(const FSlateIcon& Icon)
{
	const FSlateBrush* const Brush = Icon.GetIcon();
	return Brush && !Brush->GetResourceName().IsNone() ? QIcon(ToQString(Brush->GetResourceName().ToString())) : QIcon();
}
