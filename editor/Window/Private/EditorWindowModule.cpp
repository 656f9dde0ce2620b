#include "EditorWindow.h"

#include "CoreHost/MainLoop.h"
#include "MainWindow.h"
#include "Modules/ModuleManager.h"
#include "Picture.h"
#include "QtMessages.h"
#include "SlateQtHost/SlateView.h"

#define LOCTEXT_NAMESPACE "EditorWindow"

namespace
{
constexpr const char* Platform = "QT_QPA_PLATFORM";

/** Qt's application, with its messages in the log. */
class FWindowApplication
{
public:
	FWindowApplication() { Messages.NoteStarted(); }

private:
	FQtMessages Messages;
	FQtApplication Application;
};

/** Frames in which what was just made finds its size and its content. */
void Settle()
{
	constexpr int32 Frames = 10;
	int32 Frame = 0;
	FMainLoop::RunUntil([&Frame] { return ++Frame >= Frames; }, 5.0);
}

class FEditorWindowModule final : public IEditorWindow
{
public:
	void ShutdownModule() override { Close(); }

	bool Open(FText& OutError) override
	{
		if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
			qEnvironmentVariableIsEmpty(Platform))
		{
			OutError = LOCTEXT("NoDisplay", "there is no display to open a window on: neither DISPLAY nor WAYLAND_DISPLAY is set");
			return false;
		}
		Application = MakeUnique<FWindowApplication>();
		Window = MakeUnique<FMainWindow>();
		Window->show();
		return true;
	}

	void Close() override
	{
		if (Window)
		{
			Window->SaveLayout();
		}
		Window.Reset();
		Application.Reset();
	}

	bool SaveWindowPicture(const FString& File, FText& OutError) override
	{
		Settle();
		return WritePicture(*Window, File, OutError);
	}

	bool SavePicture(const TSharedRef<SWidget>& Root, const FString& File, FText& OutError) override
	{
		if (qEnvironmentVariableIsEmpty(Platform))
		{
			qputenv(Platform, "offscreen");
		}
		const FWindowApplication PictureApplication;
		const std::unique_ptr<QWidget> View(MakeSlateView(Root, nullptr));
		View->resize(1000, 800);
		View->setFocus();
		View->show();
		Settle();
		return WritePicture(*View, File, OutError);
	}

private:
	TUniquePtr<FWindowApplication> Application;
	TUniquePtr<FMainWindow> Window;
};
}

#undef LOCTEXT_NAMESPACE

IMPLEMENT_MODULE(FEditorWindowModule, EditorWindow)
