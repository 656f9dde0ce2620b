#include "ScrollColumn.h"

#include "Widgets/SWidget.h"

#include <algorithm>

FScrollColumn::FEntries::iterator FScrollColumn::Find(FEntries::iterator Begin, FEntries::iterator End, const SWidget* Child)
{
	return std::find_if(Begin, End, [Child](const FEntry& Each) { return Each.Child.Pin().Get() == Child; });
}

void FScrollColumn::SetChildren(const FChildren& Children)
{
	const TSharedPtr<SWidget> Anchor = First < static_cast<int32>(Entries.size()) ? Entries[First].Child.Pin() : nullptr;
	const auto GetChild = [&Children](SIZE_T Index) { return Children.GetSlotAt(static_cast<int32>(Index)).GetWidget(); };
	// They come at the end and go from anywhere: up to the last one that still has its number nothing has changed.
	const SIZE_T Count = static_cast<SIZE_T>(Children.Num());
	SIZE_T Same = std::min(Entries.size(), Count);
	while (Same > 0 && Entries[Same - 1].Child.Pin().Get() != &*GetChild(Same - 1))
	{
		--Same;
	}
	FEntries Old(Entries.begin() + static_cast<std::ptrdiff_t>(Same), Entries.end());
	Entries.resize(Same);
	auto Next = Old.begin();
	for (SIZE_T Index = Same; Index < Count; ++Index)
	{
		const TSharedRef<SWidget> Child = GetChild(Index);
		const auto Known = Find(Next, Old.end(), &*Child);
		Entries.push_back(Known == Old.end() ? FEntry{ Child } : *Known);
		Next = Known == Old.end() ? Next : Known + 1;
	}
	if (First < static_cast<int32>(Same))
	{
		return;
	}
	const auto Found = Anchor.IsValid() ? Find(Entries.begin(), Entries.end(), Anchor.Get()) : Entries.end();
	if (Found == Entries.end())
	{
		First = std::clamp(First, 0, std::max(static_cast<int32>(Entries.size()) - 1, 0));
		Hidden = 0.0;
	}
	else
	{
		First = static_cast<int32>(Found - Entries.begin());
	}
}

void FScrollColumn::SetWidth(qreal NewWidth)
{
	if (Width != NewWidth)
	{
		Width = NewWidth;
		for (FEntry& Entry : Entries)
		{
			Entry.bMeasured = false;
		}
	}
}

void FScrollColumn::Forget(const SWidget& Child)
{
	if (const auto Found = Find(Entries.begin(), Entries.end(), &Child); Found != Entries.end())
	{
		Found->bMeasured = false;
	}
}

qreal FScrollColumn::MeasureEntry(int32 Index, FMeasure Measure)
{
	FEntry& Entry = Entries[Index];
	if (!Entry.bMeasured)
	{
		Entry.bMeasured = true;
		Entry.Height = Measure(Index);
	}
	return Entry.Height;
}

qreal FScrollColumn::GetUsualHeight() const
{
	constexpr qreal Guess = 40.0;
	qreal Sum = 0.0;
	int32 Count = 0;
	for (const FEntry& Entry : Entries)
	{
		Sum += std::max(Entry.Height, 0.0);
		Count += Entry.Height >= 0.0 ? 1 : 0;
	}
	return Count > 0 ? Sum / Count : Guess;
}

qreal FScrollColumn::GetPosition() const
{
	const qreal Usual = GetUsualHeight();
	qreal Sum = Hidden;
	for (int32 Index = 0; Index < First; ++Index)
	{
		Sum += Entries[Index].Height >= 0.0 ? Entries[Index].Height : Usual;
	}
	return Sum;
}

qreal FScrollColumn::GetHeight() const
{
	const qreal Usual = GetUsualHeight();
	qreal Sum = 0.0;
	for (const FEntry& Entry : Entries)
	{
		Sum += Entry.Height >= 0.0 ? Entry.Height : Usual;
	}
	return Sum;
}

void FScrollColumn::ShowEnd(qreal ViewHeight, FMeasure Measure)
{
	qreal Rest = ViewHeight;
	First = static_cast<int32>(Entries.size());
	while (First > 0 && Rest > 0.0)
	{
		Rest -= MeasureEntry(--First, Measure);
	}
	// When all of it fits, it begins at the top.
	Hidden = std::max(-Rest, 0.0);
}

std::vector<FScrollColumn::FShown> FScrollColumn::Show(qreal ViewHeight, bool bAtEnd, FMeasure Measure)
{
	const auto FromFirst = [&]
	{
		std::vector<FShown> Shown;
		qreal Top = -Hidden;
		for (int32 Index = First; Index < static_cast<int32>(Entries.size()) && Top < ViewHeight; ++Index)
		{
			Shown.push_back({ Index, Top, MeasureEntry(Index, Measure) });
			Top += Shown.back().Height;
		}
		return Shown;
	};
	if (!bAtEnd)
	{
		const std::vector<FShown> Shown = FromFirst();
		if (!Shown.empty() && Shown.back().Top + Shown.back().Height >= ViewHeight)
		{
			return Shown;
		}
	}
	// There is no empty room below the last while there is something above the first.
	ShowEnd(ViewHeight, Measure);
	return FromFirst();
}

bool FScrollColumn::ScrollBy(qreal Distance, qreal ViewHeight, FMeasure Measure)
{
	if (Entries.empty())
	{
		return true;
	}
	Hidden += Distance;
	while (Hidden < 0.0 && First > 0)
	{
		Hidden += MeasureEntry(--First, Measure);
	}
	Hidden = std::max(Hidden, 0.0);
	while (First + 1 < static_cast<int32>(Entries.size()) && Hidden >= MeasureEntry(First, Measure))
	{
		Hidden -= MeasureEntry(First++, Measure);
	}
	const std::vector<FShown> Shown = Show(ViewHeight, false, Measure);
	const FShown& Last = Shown.back();
	return Last.Index + 1 == static_cast<int32>(Entries.size()) && Last.Top + Last.Height <= ViewHeight + 0.5;
}
