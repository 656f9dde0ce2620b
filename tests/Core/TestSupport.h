#pragma once

// What the tests of this folder share.

#include "CoreHost/Clock.h"
#include "CoreHost/MainLoop.h"
#include "CoreMinimal.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <string_view>

inline void PrintTo(const FString& Text, std::ostream* Out)
{
	*Out << '"' << TCHAR_TO_UTF8(*Text) << '"';
}

/** A new folder that goes with the object, whatever is in it. */
class FTestDirectory
{
public:
	FTestDirectory()
	{
		std::string Template = (std::filesystem::temp_directory_path() / "kestrin-test-XXXXXX").string();
		Root = ::mkdtemp(Template.data());
	}
	~FTestDirectory() { std::filesystem::remove_all(Root); }
	UE_NONCOPYABLE(FTestDirectory)

	std::filesystem::path Native(const std::string& Name) const { return Root / Name; }
	FString operator/(const std::string& Name) const { return FUtf8::Decode((Root / Name).string()); }
	FString Path() const { return FUtf8::Decode(Root.string()); }

	/** Makes the directories too. */
	void Write(const std::string& Name, std::string_view Bytes = "") const
	{
		std::filesystem::create_directories(Native(Name).parent_path());
		std::ofstream(Native(Name), std::ios::binary) << Bytes;
	}
	std::string Read(const std::string& Name) const
	{
		std::ifstream File(Native(Name), std::ios::binary);
		return { std::istreambuf_iterator<char>(File), {} };
	}

private:
	std::filesystem::path Root;
};

/** Keeps the lines that are logged while it lives, as "Category|Verbosity|text". */
class FLogLines final : public FOutputDevice
{
public:
	FLogLines() { GLog->AddOutputDevice(this); }
	~FLogLines() override { GLog->RemoveOutputDevice(this); }

	void Serialize(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		Lines.Add(FString::Printf(TEXT("%s|%s|%s"), *Category.ToString(), ToString(Verbosity), Message));
	}
	bool HasLineWith(const TCHAR* Part) const
	{
		return Lines.ContainsByPredicate([Part](const FString& Line) { return Line.Contains(Part, ESearchCase::CaseSensitive); });
	}

	TArray<FString> Lines;
};

/** The clock stands and moves only as the test says. */
struct FManualClock
{
	FManualClock()
	{
		FHostClock::SetManual(true);
		FMainLoop::Tick();
	}
	~FManualClock() { FHostClock::SetManual(false); }
};
