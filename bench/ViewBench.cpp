// The chat panel as it is shown, without a screen, beside a QTextEdit with the same text: one more block, a diff, scrolling, a long
// message. Each time ends with the whole view painted by the software renderer.

#include "CoreHost/MainLoop.h"
#include "Memory.h"
#include "OpenPanel.h"
#include "SlateQtHost/SlateView.h"

#include <benchmark/benchmark.h>

namespace
{
FString MakeBlock(int64_t Index)
{
	return FString::Printf(
		TEXT(" [ Kestrin %d ]\n\nSome text of a block that is long enough to wrap once or twice where the panel is not very ")
			TEXT("wide, said the firefly to the moth, and flew on to the next of many lanterns.\n"),
		static_cast<int32>(Index));
}

/** The panel in a view of 1000 by 800. */
class FPanelView
{
public:
	FPanelView()
	{
		View->resize(1000, 800);
		View->show();
		Paint();
	}
	~FPanelView() { delete View; }
	UE_NONCOPYABLE(FPanelView)

	void Add(const FString& Text) { Say(Text); }
	void AddFile(const FChangedFile& File) { FKestrinInterface::Get().OnAddDiffMessage(TEXT("Source/Lantern.cpp"), File.Old, File.New); }
	void Paint()
	{
		FMainLoop::Tick();
		benchmark::DoNotOptimize(View->grab());
	}
	void Scroll(int Distance)
	{
		QScrollBar* const Bar = FindBar();
		Bar->setValue(Bar->value() + Distance);
		Paint();
	}

private:
	QScrollBar* FindBar() const
	{
		for (QScrollBar* const Each : View->findChildren<QScrollBar*>())
		{
			if (Each->isVisible() && Each->orientation() == Qt::Vertical)
			{
				return Each;
			}
		}
		return nullptr;
	}

	FOpenPanel Panel;
	QWidget* View = MakeSlateView(Panel.GetContent(), nullptr);
};

/** What a chat in one text would be. */
class FTextView
{
public:
	FTextView()
	{
		Edit.setReadOnly(true);
		Edit.resize(1000, 800);
		Edit.show();
		Paint();
	}

	void Add(const FString& Text)
	{
		Edit.append(ToQString(Text));
		Edit.verticalScrollBar()->setValue(Edit.verticalScrollBar()->maximum());
	}
	void AddFile(const FChangedFile& File) { Add(File.New); }
	void Paint()
	{
		FMainLoop::Tick();
		benchmark::DoNotOptimize(Edit.grab());
	}
	void Scroll(int Distance)
	{
		Edit.verticalScrollBar()->setValue(Edit.verticalScrollBar()->value() + Distance);
		Paint();
	}

private:
	QTextEdit Edit;
};

template <typename ViewType>
void AddBlocks(ViewType& View, int64_t Count)
{
	for (int64_t Index = 0; Index < Count; ++Index)
	{
		View.Add(MakeBlock(Index));
	}
	View.Paint();
}

template <typename ViewType>
void BM_OneMoreBlock(benchmark::State& State)
{
	ViewType View;
	const double Before = AllocatedMemory();
	AddBlocks(View, State.range(0));
	State.counters["MiB"] = AllocatedMemory() - Before;
	int64_t Index = 0;
	for (auto _ : State)
	{
		View.Add(MakeBlock(--Index));
		View.Paint();
	}
}
BENCHMARK(BM_OneMoreBlock<FPanelView>)->Arg(10)->Arg(5000)->Arg(20000)->Iterations(100)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OneMoreBlock<FTextView>)->Arg(10)->Arg(5000)->Arg(20000)->Iterations(100)->Unit(benchmark::kMillisecond);

template <typename ViewType>
void BM_ShowFile(benchmark::State& State)
{
	const FChangedFile File(State.range(0));
	ViewType View;
	for (auto _ : State)
	{
		View.AddFile(File);
		View.Paint();
	}
}
BENCHMARK(BM_ShowFile<FPanelView>)->Arg(5000)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ShowFile<FTextView>)->Arg(5000)->Iterations(5)->Unit(benchmark::kMillisecond);

template <typename ViewType>
void BM_ScrollOneFrame(benchmark::State& State)
{
	ViewType View;
	AddBlocks(View, 5000);
	View.AddFile(FChangedFile(5000));
	View.Paint();
	int Turn = 0;
	for (auto _ : State)
	{
		View.Scroll(++Turn % 2000 < 1000 ? -150 : 150);
	}
}
BENCHMARK(BM_ScrollOneFrame<FPanelView>)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ScrollOneFrame<FTextView>)->Unit(benchmark::kMillisecond);

template <typename ViewType>
void BM_LongMessage(benchmark::State& State)
{
	FString Text;
	while (Text.Len() < State.range(0))
	{
		Text += TEXT("a line of some length with **marks** in it\n");
	}
	for (auto _ : State)
	{
		ViewType View;
		View.Add(Text);
		View.Paint();
	}
}
BENCHMARK(BM_LongMessage<FPanelView>)->Arg(1 << 20)->Arg(10 << 20)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LongMessage<FTextView>)->Arg(1 << 20)->Arg(10 << 20)->Iterations(1)->Unit(benchmark::kMillisecond);
}

int main(int ArgumentCount, char** Arguments)
{
	qputenv("QT_QPA_PLATFORM", "offscreen");
	const FQtApplication Application;
	benchmark::Initialize(&ArgumentCount, Arguments);
	benchmark::RunSpecifiedBenchmarks();
}
