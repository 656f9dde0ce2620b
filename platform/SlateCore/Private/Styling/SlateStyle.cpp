#include "Styling/SlateStyle.h"

#include "Styling/SlateStyleRegistry.h"
#include "Textures/SlateIcon.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlateStyle, Log, All);

namespace
{
TMap<FName, const ISlateStyle*>& Registry()
{
	static TMap<FName, const ISlateStyle*> Sets;
	return Sets;
}
}

FSlateStyleSet::FSlateStyleSet(const FName& InStyleSetName)
	: StyleSetName(InStyleSetName)
{
}

FSlateStyleSet::~FSlateStyleSet() = default;

const FSlateBrush* FSlateStyleSet::GetBrush(const FName PropertyName) const
{
	if (const TSharedPtr<FSlateBrush>* const Brush = Brushes.Find(PropertyName))
	{
		return Brush->Get();
	}
	static const FSlateBrush Missing;
	UE_LOG(LogSlateStyle, Warning, TEXT("The style set %s has no brush '%s'."), *StyleSetName.ToString(), *PropertyName.ToString());
	return &Missing;
}

const FSlateWidgetStyle* FSlateStyleSet::FindWidgetStyle(const FName& StyleName) const
{
	return WidgetStyles.FindRef(StyleName).Get();
}

FName FSlateStyleSet::FindKey(const void* Item) const
{
	for (const auto& [Key, Brush] : Brushes)
	{
		if (Brush.Get() == Item)
		{
			return Key;
		}
	}
	for (const auto& [Key, Style] : WidgetStyles)
	{
		if (Style.Get() == Item)
		{
			return Key;
		}
	}
	return NAME_None;
}

void FSlateStyleRegistry::RegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	Registry().Add(InSlateStyle.GetStyleSetName(), &InSlateStyle);
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	Registry().Remove(InSlateStyle.GetStyleSetName());
}

const ISlateStyle* FSlateStyleRegistry::FindSlateStyle(const FName& InSlateStyleName)
{
	return Registry().FindRef(InSlateStyleName);
}

const FSlateBrush* FSlateIcon::GetIcon() const
{
	const ISlateStyle* const Set = FSlateStyleRegistry::FindSlateStyle(StyleSetName);
	return Set ? Set->GetBrush(StyleName) : nullptr;
}
