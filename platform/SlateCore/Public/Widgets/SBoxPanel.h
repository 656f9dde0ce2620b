#pragma once

#include "Widgets/SPanel.h"

/** Children one behind the other, downward or to the right. */
class SLATECORE_API SBoxPanel : public SPanel
{
public:
	/** Stretches with the value 1 unless it is told otherwise. */
	class FSlot : public FSlotBase
	{
	public:
		const FSizeParam* GetSizeParam() const override { return &Size; }
		void SetSizeParam(FSizeParam InSize) { Size = InSize; }

	private:
		FSizeParam Size = { FSizeParam::SizeRule_Stretch, 1.0f };
	};

	FChildren* GetChildren() override { return &Children; }

protected:
	SBoxPanel()
		: Children(*this)
	{
	}

	/** Adds the slot when the statement that makes it ends. */
	template <typename ArgumentsType>
	struct TScopedWidgetSlotArguments : ArgumentsType
	{
		explicit TScopedWidgetSlotArguments(SBoxPanel& InPanel)
			: Panel(InPanel)
		{
		}
		~TScopedWidgetSlotArguments()
		{
			Panel.Children.AddSlot(MoveTemp(this->Slot));
			Panel.Invalidate(EInvalidateWidgetReason::ChildOrder);
		}
		UE_NONCOPYABLE(TScopedWidgetSlotArguments)

	private:
		SBoxPanel& Panel;
	};

	template <typename ArgumentsType>
	void TakeSlots(TArray<ArgumentsType>& Slots)
	{
		for (ArgumentsType& Arguments : Slots)
		{
			Children.AddSlot(MoveTemp(Arguments.Slot));
		}
	}

private:
	TPanelChildren<FSlot> Children;
};

class SLATECORE_API SVerticalBox : public SBoxPanel
{
public:
	struct FSlot : SBoxPanel::FSlot
	{
		struct FSlotArguments : TBasicLayoutWidgetSlotArguments<SBoxPanel::FSlot, FSlotArguments>
		{
			FSlotArguments& AutoHeight()
			{
				Slot->SetSizeParam({ FSizeParam::SizeRule_Auto });
				return *this;
			}
			FSlotArguments& FillHeight(float StretchCoefficient)
			{
				Slot->SetSizeParam({ FSizeParam::SizeRule_Stretch, StretchCoefficient });
				return *this;
			}
		};
	};

	using FScopedWidgetSlotArguments = TScopedWidgetSlotArguments<FSlot::FSlotArguments>;

	SLATE_BEGIN_ARGS(SVerticalBox) {}
	SLATE_SLOT_ARGUMENT(SVerticalBox::FSlot, Slots)
	SLATE_END_ARGS()

	static FSlot::FSlotArguments Slot() { return {}; }
	/** At the end. */
	FScopedWidgetSlotArguments AddSlot() { return FScopedWidgetSlotArguments(*this); }

	void Construct(const FArguments& InArgs) { TakeSlots(InArgs._Slots); }
};

class SLATECORE_API SHorizontalBox : public SBoxPanel
{
public:
	struct FSlot : SBoxPanel::FSlot
	{
		struct FSlotArguments : TBasicLayoutWidgetSlotArguments<SBoxPanel::FSlot, FSlotArguments>
		{
			FSlotArguments& AutoWidth()
			{
				Slot->SetSizeParam({ FSizeParam::SizeRule_Auto });
				return *this;
			}
			FSlotArguments& FillWidth(float StretchCoefficient)
			{
				Slot->SetSizeParam({ FSizeParam::SizeRule_Stretch, StretchCoefficient });
				return *this;
			}
		};
	};

	SLATE_BEGIN_ARGS(SHorizontalBox) {}
	SLATE_SLOT_ARGUMENT(SHorizontalBox::FSlot, Slots)
	SLATE_END_ARGS()

	static FSlot::FSlotArguments Slot() { return {}; }

	void Construct(const FArguments& InArgs) { TakeSlots(InArgs._Slots); }
};
