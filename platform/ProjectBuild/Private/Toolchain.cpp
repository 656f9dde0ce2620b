#include "Toolchain.h"

#include "HAL/PlatformMisc.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Serialization/JsonSerializer.h"

#include <dlfcn.h>
#include <filesystem>
#include <unistd.h>

namespace
{
FString GetLibraryDirectory()
{
	static const ANSICHAR Inside = 0;
	Dl_info Info;
	return ::dladdr(&Inside, &Info) != 0 ? FPaths::GetPath(FPaths::ConvertRelativePathToFull(FUtf8::Decode(Info.dli_fname))) : FString();
}

TArray<FString> ReadStrings(const FJsonObject& Object, const TCHAR* Field)
{
	TArray<FString> Strings;
	for (const TSharedPtr<FJsonValue>& Value : Object.GetArrayField(Field))
	{
		// An empty list of the build's is written as one empty text.
		if (!Value->AsString().IsEmpty())
		{
			Strings.AddUnique(Value->AsString());
		}
	}
	return Strings;
}

/** The program's path: as it is, or else where PATH has it. Empty when there is none. */
FString FindProgram(const FString& Program)
{
	TArray<FString> Places{ Program };
	TArray<FString> Directories;
	FPlatformMisc::GetEnvironmentVariable(TEXT("PATH")).ParseIntoArray(Directories, TEXT(":"));
	for (const FString& Directory : Directories)
	{
		Places.Add(FPaths::Combine(Directory, FPaths::GetCleanFilename(Program)));
	}
	const FString* const Found = Places.FindByPredicate([](const FString& Place) { return ::access(TCHAR_TO_UTF8(*Place), X_OK) == 0; });
	return Found ? *Found : FString();
}
}

bool FToolchain::Load(FString& OutError)
{
	LibraryDirectory = GetLibraryDirectory();
	File = FPaths::Combine(LibraryDirectory, TEXT("ProjectBuild.json"));
	FString Text;
	TSharedPtr<FJsonObject> Root;
	if (!FFileHelper::LoadFileToString(Text, *File) || !FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Text), Root))
	{
		OutError = FString::Printf(TEXT("%s:1: error: the file that tells how this editor was built can't be read"), *File);
		return false;
	}
	for (const auto& [Field, Program] :
		{ TPair<const TCHAR*, FString*>(TEXT("Compiler"), &Compiler), { TEXT("Ninja"), &Ninja }, { TEXT("HeaderTool"), &HeaderTool } })
	{
		const FString Named = Root->GetStringField(Field);
		*Program = FindProgram(Named);
		if (Program->IsEmpty())
		{
			OutError = FString::Printf(TEXT("error: %s is not there; without it C++ can't be compiled on this machine"), *Named);
			return false;
		}
	}
	FPlatformMisc::GetEnvironmentVariable(TEXT("CMAKE_CXX_COMPILER_LAUNCHER")).ParseIntoArray(Launcher, TEXT(";"));
	CompileFlags = ReadStrings(*Root, TEXT("CompileFlags"));
	LinkFlags = ReadStrings(*Root, TEXT("LinkFlags"));
	PrecompiledSuffix = Root->GetStringField(TEXT("PrecompiledSuffix"));
	ModulePrefix = Root->GetStringField(TEXT("ModulePrefix"));
	for (const TSharedPtr<FJsonValue>& Value : Root->GetArrayField(TEXT("Modules")))
	{
		const FJsonObject& Module = *Value->AsObject();
		Modules.Add(Module.GetStringField(TEXT("Name")),
			{ ReadStrings(Module, TEXT("Includes")), ReadStrings(Module, TEXT("Definitions")), Module.GetStringField(TEXT("Library")) });
	}
	return true;
}
