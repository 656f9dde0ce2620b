#include "SlateHost/WidgetTree.h"

#include "SlateHost/WidgetDriver.h"
#include "Styling/AppStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/SMultiLineEditableText.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
const TCHAR* const HorizontalNames[] = { TEXT("fill"), TEXT("left"), TEXT("center"), TEXT("right") };
const TCHAR* const VerticalNames[] = { TEXT("fill"), TEXT("top"), TEXT("center"), TEXT("bottom") };
const TCHAR* const JustifyNames[] = { TEXT("left"), TEXT("center"), TEXT("right") };

TArray<TSharedPtr<FJsonValue>> ToNumbers(std::initializer_list<float> Numbers)
{
	TArray<TSharedPtr<FJsonValue>> Values;
	for (const float Number : Numbers)
	{
		Values.Add(MakeShared<FJsonValueNumber>(Number));
	}
	return Values;
}

void SetColor(FJsonObject& Object, const TCHAR* Name, const FLinearColor& Color)
{
	Object.SetArrayField(Name, ToNumbers({ Color.R, Color.G, Color.B, Color.A }));
}

void SetMargin(FJsonObject& Object, const TCHAR* Name, const FMargin& Margin)
{
	Object.SetArrayField(Name, ToNumbers({ Margin.Left, Margin.Top, Margin.Right, Margin.Bottom }));
}

void SetFont(FJsonObject& Object, const FSlateFontInfo& Font)
{
	const TSharedRef<FJsonObject> Described = MakeShared<FJsonObject>();
	Described->SetStringField(TEXT("name"), Font.TypefaceFontName.ToString());
	Described->SetNumberField(TEXT("size"), Font.Size);
	Object.SetObjectField(TEXT("font"), Described);
}

/** Lengths of 0 are rules that a box does not have. */
void SetLength(FJsonObject& Object, const TCHAR* Name, float Length)
{
	if (Length > 0.0f)
	{
		Object.SetNumberField(Name, Length);
	}
}

/** By its name in the application's set, or else in the core's; a brush or style of the widget's own has none. */
void SetStyleName(FJsonObject& Object, const TCHAR* Name, const void* Item)
{
	for (const ISlateStyle* const Set : { &FAppStyle::Get(), &FCoreStyle::Get() })
	{
		if (const FName Key = Set->FindKey(Item); !Key.IsNone())
		{
			Object.SetStringField(Name, Key.ToString());
			return;
		}
	}
}

void Describe(const STextBlock& Widget, FJsonObject& Props)
{
	Props.SetStringField(TEXT("text"), Widget.GetText().ToString());
	SetColor(Props, TEXT("color"), Widget.GetColorAndOpacity().GetSpecifiedColor());
	SetFont(Props, Widget.GetFont());
	SetStyleName(Props, TEXT("style"), &Widget.GetTextStyle());
	Props.SetStringField(TEXT("justify"), JustifyNames[Widget.GetJustification()]);
}

void Describe(const SMultiLineEditableText& Widget, FJsonObject& Props)
{
	Props.SetStringField(TEXT("text"), Widget.GetText().ToString());
	Props.SetStringField(TEXT("hint"), Widget.GetHintText().ToString());
	SetColor(Props, TEXT("color"), Widget.GetForegroundColor().GetSpecifiedColor());
	SetFont(Props, Widget.GetFont());
	SetStyleName(Props, TEXT("style"), &Widget.GetTextStyle());
	Props.SetBoolField(TEXT("read_only"), Widget.IsTextReadOnly());
	Props.SetBoolField(TEXT("wrap"), Widget.GetAutoWrapText());
}

void Describe(const SBorder& Widget, FJsonObject& Props)
{
	SetColor(Props, TEXT("color"), Widget.GetBorderBackgroundColor().GetSpecifiedColor());
	SetStyleName(Props, TEXT("image"), Widget.GetBorderImage());
	SetMargin(Props, TEXT("padding"), Widget.GetPadding());
}

void Describe(const SBox& Widget, FJsonObject& Props)
{
	SetMargin(Props, TEXT("padding"), Widget.GetPadding());
	SetLength(Props, TEXT("min_width"), Widget.GetMinDesiredWidth());
	SetLength(Props, TEXT("min_height"), Widget.GetMinDesiredHeight());
	SetLength(Props, TEXT("width"), Widget.GetWidthOverride());
}

void Describe(const SButton& Widget, FJsonObject& Props)
{
	const FButtonStyle& Style = Widget.GetButtonStyle();
	const TSharedRef<FJsonObject> Brushes = MakeShared<FJsonObject>();
	SetColor(*Brushes, TEXT("normal"), Style.Normal.GetTint());
	SetColor(*Brushes, TEXT("hovered"), Style.Hovered.GetTint());
	SetColor(*Brushes, TEXT("pressed"), Style.Pressed.GetTint());
	SetColor(*Brushes, TEXT("disabled"), Style.Disabled.GetTint());
	Props.SetObjectField(TEXT("brushes"), Brushes);
	SetStyleName(Props, TEXT("style"), &Style);
}

void Describe(SOptionPicker& Widget, FJsonObject& Props)
{
	TArray<TSharedPtr<FJsonValue>> Options;
	for (int32 Index = 0; Index < Widget.GetNumOptions(); ++Index)
	{
		Options.Add(MakeShared<FJsonValueString>(FWidgetDriver::GetShownText(Widget.GenerateOption(Index))));
	}
	Props.SetArrayField(TEXT("options"), Options);
	Props.SetStringField(TEXT("selected"), FWidgetDriver::GetShownText(Widget.AsShared()));
}

template <typename WidgetType>
void DescribeAs(SWidget& Widget, FJsonObject& Props)
{
	if (auto* const Typed = dynamic_cast<WidgetType*>(&Widget))
	{
		Describe(*Typed, Props);
	}
}

TSharedRef<FJsonObject> DescribeProps(SWidget& Widget)
{
	const TSharedRef<FJsonObject> Props = MakeShared<FJsonObject>();
	for (const auto Part : { &DescribeAs<STextBlock>, &DescribeAs<SMultiLineEditableText>, &DescribeAs<SBorder>, &DescribeAs<SBox>,
			 &DescribeAs<SButton>, &DescribeAs<SOptionPicker> })
	{
		Part(Widget, *Props);
	}
	return Props;
}

TSharedRef<FJsonObject> DescribeSlot(const FSlotBase& Slot)
{
	const TSharedRef<FJsonObject> Described = MakeShared<FJsonObject>();
	if (const FSizeParam* const Size = Slot.GetSizeParam())
	{
		const bool bFill = Size->SizeRule == FSizeParam::SizeRule_Stretch;
		Described->SetStringField(TEXT("size"), bFill ? TEXT("fill") : TEXT("auto"));
		if (bFill)
		{
			Described->SetNumberField(TEXT("value"), Size->Value);
		}
	}
	SetMargin(*Described, TEXT("padding"), Slot.GetPadding());
	Described->SetStringField(TEXT("halign"), HorizontalNames[Slot.GetHorizontalAlignment()]);
	Described->SetStringField(TEXT("valign"), VerticalNames[Slot.GetVerticalAlignment()]);
	return Described;
}

/** Without what its type is a template of. */
FString GetTypeName(const SWidget& Widget)
{
	const FString Type = Widget.GetTypeAsString();
	int32 Bracket = INDEX_NONE;
	return Type.FindChar(TEXT('<'), Bracket) ? Type.Left(Bracket) : Type;
}

TSharedRef<FJsonObject> DescribeWidget(SWidget& Widget, const FSlotBase* Slot)
{
	const TSharedRef<FJsonObject> Described = MakeShared<FJsonObject>();
	Described->SetStringField(TEXT("type"), GetTypeName(Widget));
	Described->SetBoolField(TEXT("visible"), Widget.GetVisibility().IsVisible());
	Described->SetBoolField(TEXT("enabled"), Widget.IsEnabled());
	Described->SetObjectField(TEXT("slot"), Slot ? DescribeSlot(*Slot) : MakeShared<FJsonObject>());
	Described->SetObjectField(TEXT("props"), DescribeProps(Widget));
	const FChildren& Children = *Widget.GetChildren();
	TArray<TSharedPtr<FJsonValue>> Below;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlotBase& ChildSlot = Children.GetSlotAt(Index);
		Below.Add(MakeShared<FJsonValueObject>(DescribeWidget(*ChildSlot.GetWidget(), &ChildSlot)));
	}
	Described->SetArrayField(TEXT("children"), Below);
	return Described;
}
}

TSharedRef<FJsonObject> DescribeWidgetTree(const TSharedRef<SWidget>& Root)
{
	return DescribeWidget(*Root, nullptr);
}
