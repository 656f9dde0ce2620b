#include "NativeWidget.h"

#include "SlateHost/WidgetDriver.h"
#include "Widgets/Input/SComboBox.h"

namespace
{
/** Its options are asked for when it is made; what it shows is the picker's content. */
class FNativePicker final : public QComboBox, public FNativeWidget
{
public:
	FNativePicker(SOptionPicker& Picker, QWidget* Parent)
		: QComboBox(Parent)
		, FNativeWidget(Picker)
	{
		for (int32 Index = 0; Index < Picker.GetNumOptions(); ++Index)
		{
			addItem(ToQString(FWidgetDriver::GetShownText(Picker.GenerateOption(Index))));
		}
		connect(this, &QComboBox::activated, this,
			[this](int Index)
			{
			if (const TSharedPtr<SWidget> Picked = GetSlate())
			{
				static_cast<SOptionPicker&>(*Picked).PickOption(Index);
			}
		});
	}

	QWidget& GetQt() override { return *this; }

	void Follow(FViewContents&) override
	{
		const int Selected = findText(ToQString(FWidgetDriver::GetShownText(GetSlate().ToSharedRef())));
		if (currentIndex() != Selected)
		{
			setCurrentIndex(Selected);
		}
	}

protected:
	/** A wheel that goes over it on its way through the panel changes nothing. */
	void wheelEvent(QWheelEvent* Event) override { Event->ignore(); }
};
}

FNativeWidget* MakeNativePicker(SWidget& Picker, QWidget* Parent)
{
	return new FNativePicker(static_cast<SOptionPicker&>(Picker), Parent);
}
