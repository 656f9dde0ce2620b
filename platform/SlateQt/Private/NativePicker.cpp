#include "NativeWidget.h"

#include "SlateHost/WidgetDriver.h"
#include "Widgets/Input/SComboBox.h"

namespace
{
/** A wheel that goes over it on its way through the panel changes nothing. */
class FPickerBox final : public QComboBox
{
public:
	using QComboBox::QComboBox;

protected:
	void wheelEvent(QWheelEvent* Event) override { Event->ignore(); }
};

/** Its options are asked for when it is made; what it shows is the picker's content. */
class FNativePicker final : public FNativeWidget
{
public:
	FNativePicker(SOptionPicker& Picker, QWidget* Parent)
		: FNativeWidget(Picker, new FPickerBox(Parent))
	{
		for (int32 Index = 0; Index < Picker.GetNumOptions(); ++Index)
		{
			GetBox().addItem(ToQString(FWidgetDriver::GetShownText(Picker.GenerateOption(Index))));
		}
		QObject::connect(&GetBox(), &QComboBox::activated, &GetBox(),
			[Slate = TWeakPtr<SWidget>(GetSlate())](int Index)
			{
			if (const TSharedPtr<SWidget> Picked = Slate.Pin())
			{
				static_cast<SOptionPicker&>(*Picked).PickOption(Index);
			}
		});
	}

	void Follow(FViewContents&) override
	{
		const int Selected = GetBox().findText(ToQString(FWidgetDriver::GetShownText(GetSlate().ToSharedRef())));
		if (GetBox().currentIndex() != Selected)
		{
			GetBox().setCurrentIndex(Selected);
		}
	}

private:
	QComboBox& GetBox() { return static_cast<QComboBox&>(*GetQt()); }
};
}

TUniquePtr<FNativeWidget> MakeNativePicker(SWidget& Picker, QWidget* Parent)
{
	return MakeUnique<FNativePicker>(static_cast<SOptionPicker&>(Picker), Parent);
}
