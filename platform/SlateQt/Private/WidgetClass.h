#pragma once

#include "Widgets/SWidget.h"

#include <algorithm>
#include <iterator>
#include <typeindex>
#include <unordered_map>

/** Whether the widget is of that class, or of one below it. */
template <typename WidgetType>
bool IsWidget(SWidget& Widget)
{
	if constexpr (std::is_same_v<WidgetType, SWidget>)
	{
		return true;
	}
	else
	{
		return dynamic_cast<WidgetType*>(&Widget) != nullptr;
	}
}

/** The first entry whose "Is" holds for the widget; looked for once for each class. The last one holds for all widgets. */
template <typename EntryType>
const EntryType& FindForClass(const EntryType* Begin, const EntryType* End, SWidget& Widget)
{
	static std::unordered_map<std::type_index, const EntryType*> Known;
	const EntryType*& Entry = Known[typeid(Widget)];
	if (!Entry)
	{
		Entry = std::find_if(Begin, End, [&Widget](const EntryType& Each) { return Each.Is(Widget); });
	}
	return *Entry;
}
