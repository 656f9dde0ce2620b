#include "Canvas.h"

void FCanvas::AddFill(const QRectF& Area, const QColor& Color)
{
	if (Color.alpha() > 0)
	{
		NextFills.push_back({ ToPixels(Area).intersected(rect()), Color.rgba() });
	}
}

void FCanvas::EndFills()
{
	if (Fills != NextFills)
	{
		Fills.swap(NextFills);
		update();
	}
}

void FCanvas::paintEvent(QPaintEvent* Event)
{
	QPainter Painter(this);
	for (const FFill& Fill : Fills)
	{
		if (Fill.Area.intersects(Event->rect()))
		{
			Painter.fillRect(Fill.Area, QColor::fromRgba(Fill.Color));
		}
	}
}
