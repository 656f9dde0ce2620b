#pragma once

#include "Widgets/SCompoundWidget.h"

/** The stand-in's own: what a picker offers, whatever the type of its options. */
class SLATE_API SOptionPicker : public SCompoundWidget
{
public:
	virtual int32 GetNumOptions() const = 0;
	virtual TSharedRef<SWidget> GenerateOption(int32 Index) const = 0;
	/** The user has picked an option. */
	virtual void PickOption(int32 Index) = 0;
};

/** Shows its content; opened, it offers options of which the user picks one. */
template <typename OptionType>
class SComboBox : public SOptionPicker
{
public:
	DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SWidget>, FOnGenerateWidget, OptionType);
	DECLARE_DELEGATE_TwoParams(FOnSelectionChanged, OptionType, ESelectInfo::Type);

	SLATE_BEGIN_ARGS(SComboBox<OptionType>) {}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	/** Must outlive the widget. */
	SLATE_ARGUMENT(const TArray<OptionType>*, OptionsSource)
	SLATE_EVENT(FOnGenerateWidget, OnGenerateWidget)
	SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		OptionsSource = InArgs._OptionsSource;
		OnGenerateWidget = InArgs._OnGenerateWidget;
		OnSelectionChanged = InArgs._OnSelectionChanged;
		this->ChildSlot[InArgs._Content.ToSharedRef()];
	}

	int32 GetNumOptions() const override { return OptionsSource->Num(); }
	TSharedRef<SWidget> GenerateOption(int32 Index) const override { return OnGenerateWidget.Execute((*OptionsSource)[Index]); }
	void PickOption(int32 Index) override { OnSelectionChanged.ExecuteIfBound((*OptionsSource)[Index], ESelectInfo::OnMouseClick); }

private:
	const TArray<OptionType>* OptionsSource = nullptr;
	FOnGenerateWidget OnGenerateWidget;
	FOnSelectionChanged OnSelectionChanged;
};
