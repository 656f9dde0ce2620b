#pragma once

#include "Widgets/SWidget.h"

/** Whether it takes no room at all, its padding included. */
inline bool IsCollapsed(const FSlotBase& Slot)
{
	return Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed;
}

/** The share of what is left that the slot asks for; 0 for one that asks for its content's length. */
inline double GetShare(const FSlotBase& Slot)
{
	const FSizeParam* const Size = Slot.GetSizeParam();
	return Size && Size->SizeRule == FSizeParam::SizeRule_Stretch ? static_cast<double>(Size->Value) : 0.0;
}

inline double GetHorizontal(const FMargin& Margin)
{
	return static_cast<double>(Margin.Left + Margin.Right);
}

inline double GetVertical(const FMargin& Margin)
{
	return static_cast<double>(Margin.Top + Margin.Bottom);
}
