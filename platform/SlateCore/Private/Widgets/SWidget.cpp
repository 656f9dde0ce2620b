#include "Widgets/SWidget.h"

#include "HAL/PlatformTime.h"
#include "Widgets/SNullWidget.h"

namespace
{
class SNullWidgetContent final : public SLeafWidget
{
};
}

const TSharedRef<SWidget> SNullWidget::NullWidget = MakeShared<SNullWidgetContent>();
FNoChildren FNoChildren::NoChildrenInstance;

FSlotBase::FSlotBase()
	: Widget(SNullWidget::NullWidget)
{
}

FSlotBase::~FSlotBase()
{
	Widget->ParentWidget.Reset();
}

bool FSlotBase::HasWidget() const
{
	return !(Widget == SNullWidget::NullWidget);
}

void FSlotBase::AttachWidget(const TSharedRef<SWidget>& InWidget)
{
	Widget->ParentWidget.Reset();
	Widget = InWidget;
	if (Owner && HasWidget())
	{
		Widget->ParentWidget = Owner->AsShared();
	}
}

void FSlotBase::SetOwner(SWidget& InOwner)
{
	Owner = &InOwner;
	if (HasWidget())
	{
		Widget->ParentWidget = Owner->AsShared();
	}
}

SWidget::~SWidget()
{
	FTSTicker::RemoveTicker(TickHandle);
	for (const TSharedRef<FActiveTimerHandle>& Timer : ActiveTimers)
	{
		FTSTicker::RemoveTicker(Timer->Ticker);
	}
}

void SWidget::SWidgetConstruct(const ANSICHAR* TypeName, const FSlateBaseNamedArgs& Args)
{
	WidgetType = TypeName;
	Visibility = Args._Visibility;
	EnabledState = Args._IsEnabled;
	ToolTipText = Args._ToolTipText;
}

void SWidget::SetCanTick(bool bInCanTick)
{
	FTSTicker::RemoveTicker(TickHandle);
	TickHandle = nullptr;
	if (bInCanTick)
	{
		TickHandle = FTSTicker::GetCoreTicker().AddTicker(TEXT("SWidget::Tick"), 0.0f,
			[this](float DeltaTime)
			{
			Tick(FGeometry(), FPlatformTime::Seconds(), DeltaTime);
			return true;
		});
	}
}

TSharedRef<FActiveTimerHandle> SWidget::RegisterActiveTimer(float TickPeriod, FWidgetActiveTimerDelegate TickFunction)
{
	const TSharedRef<FActiveTimerHandle> Handle = MakeShared<FActiveTimerHandle>();
	ActiveTimers.Add(Handle);
	Handle->Ticker = FTSTicker::GetCoreTicker().AddTicker(TEXT("SWidget::ActiveTimer"), TickPeriod,
		[Widget = AsWeak(), Weak = TWeakPtr<FActiveTimerHandle>(Handle), Function = MoveTemp(TickFunction)](float DeltaTime)
		{
		const bool bGoesOn =
			Function.IsBound() && Function.Execute(FPlatformTime::Seconds(), DeltaTime) == EActiveTimerReturnType::Continue;
		const TSharedPtr<SWidget> Alive = Widget.Pin();
		const TSharedPtr<FActiveTimerHandle> Timer = Weak.Pin();
		if (!bGoesOn && Alive.IsValid() && Timer.IsValid())
		{
			Alive->ActiveTimers.Remove(Timer.ToSharedRef());
		}
		return bGoesOn;
	});
	return Handle;
}

void SWidget::UnRegisterActiveTimer(const TSharedRef<FActiveTimerHandle>& ActiveTimerHandle)
{
	FTSTicker::RemoveTicker(ActiveTimerHandle->Ticker);
	ActiveTimers.Remove(ActiveTimerHandle);
}

void SWidget::Invalidate(EInvalidateWidgetReason InvalidateReason)
{
	OnInvalidated().Broadcast(*this, InvalidateReason);
}

TMulticastDelegate<SWidget&, EInvalidateWidgetReason>& SWidget::OnInvalidated()
{
	static TMulticastDelegate<SWidget&, EInvalidateWidgetReason> Listeners;
	return Listeners;
}
