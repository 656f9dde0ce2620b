#include "BuildFile.h"

#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

namespace
{
const TCHAR* const NumberKey = TEXT("number = ");

/** A path in ninja's own syntax; ninja quotes it for the shell. */
FString AsPath(const FString& Path)
{
	return Path.Replace(TEXT("$"), TEXT("$$")).Replace(TEXT(" "), TEXT("$ ")).Replace(TEXT(":"), TEXT("$:"));
}

FString AsPaths(const TArray<FString>& Paths)
{
	FString Text;
	for (const FString& Path : Paths)
	{
		Text += TEXT(" ") + AsPath(Path);
	}
	return Text;
}

/** A word of a command, for the shell. */
FString AsWord(const FString& Word)
{
	const bool bPlain = Word.View().find_first_not_of(u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-+=./,:@%") ==
		std::u16string_view::npos;
	const FString Quoted = bPlain ? Word : TEXT("'") + Word.Replace(TEXT("'"), TEXT("'\\''")) + TEXT("'");
	return Quoted.Replace(TEXT("$"), TEXT("$$"));
}

FString AsWords(const TArray<FString>& Words)
{
	FString Text;
	for (const FString& Word : Words)
	{
		Text += TEXT(" ") + AsWord(Word);
	}
	return Text;
}

FString GetPrecompiled(const FModuleSources& Module)
{
	return Module.Name / TEXT("Precompiled/Shared.h");
}
}

FBuildFile::FBuildFile(const FString& ProjectDirectory, const FProjectSources& InSources, const FToolchain& InToolchain)
	: Directory(FPaths::Combine(ProjectDirectory, TEXT("Intermediate/Build/Linux")))
	, Binaries(FPaths::Combine(ProjectDirectory, TEXT("Binaries/Linux")))
	, Sources(InSources)
	, Toolchain(InToolchain)
{
}

FString FBuildFile::GetLibrary(const FString& Module, int32 Number) const
{
	return FPaths::Combine(Binaries, FString::Printf(TEXT("lib%s%s-%04d.so"), *Toolchain.ModulePrefix, *Module, Number));
}

FString FBuildFile::GetStartLibrary(const FString& Module) const
{
	return FPaths::Combine(Binaries, FString::Printf(TEXT("lib%s%s.so"), *Toolchain.ModulePrefix, *Module));
}

int32 FBuildFile::ReadNumber() const
{
	FString Text;
	FFileHelper::LoadFileToString(Text, *FPaths::Combine(Directory, TEXT("build.ninja")));
	const int32 Place = Text.Find(NumberKey, ESearchCase::CaseSensitive);
	return Place == INDEX_NONE ? 0 : FCString::Atoi(*Text + Place + FCString::Strlen(NumberKey));
}

TArray<TPair<FString, int32>> FBuildFile::FindNumbered() const
{
	TArray<TPair<FString, int32>> Found;
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *FPaths::Combine(Binaries, TEXT("*.so")), true, false);
	for (const FString& Name : Names)
	{
		for (const FModuleSources& Module : Sources.Modules)
		{
			const FString Prefix = FString::Printf(TEXT("lib%s%s-"), *Toolchain.ModulePrefix, *Module.Name);
			const FString Digits = FPaths::GetBaseFilename(Name).RightChop(Prefix.Len());
			if (Name.StartsWith(Prefix, ESearchCase::CaseSensitive) && Digits.IsNumeric())
			{
				Found.Add({ FPaths::Combine(Binaries, Name), FCString::Atoi(*Digits) });
			}
		}
	}
	return Found;
}

int32 FBuildFile::GetNextNumber() const
{
	int32 Highest = ReadNumber();
	for (const auto& [File, Number] : FindNumbered())
	{
		Highest = std::max(Highest, Number);
	}
	return Highest + 1;
}

void FBuildFile::DeleteLibraries(int32 ExceptNumber) const
{
	for (const auto& [File, Number] : FindNumbered())
	{
		if (Number != ExceptNumber)
		{
			IFileManager::Get().Delete(*File);
		}
	}
}

TArray<const FModuleSources*> FBuildFile::GetOwnDependencies(const FModuleSources& Module) const
{
	TArray<const FModuleSources*> Found;
	TArray<FString> Names = Module.Dependencies;
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		const FModuleSources* const Own =
			Sources.Modules.FindByPredicate([&](const FModuleSources& Each) { return Each.Name == Names[Index] && &Each != &Module; });
		if (Own && !Found.Contains(Own))
		{
			Found.Add(Own);
			Names.Append(Own->Dependencies);
		}
	}
	return Found;
}

FString FBuildFile::MakeFlags(const FModuleSources& Module) const
{
	TArray<FString> Words = Toolchain.CompileFlags;
	TArray<FString> Includes;
	const auto AddOwn = [&](const FModuleSources& Own)
	{
		Words.Add(FString::Printf(TEXT("-D%s_API=DLLEXPORT"), *Own.Name.ToUpper()));
		Includes.Append({ Own.Name / TEXT("Inc"), Own.Root, Own.Root / TEXT("Public") });
	};
	Words.Add(FString::Printf(TEXT("-DUE_MODULE_NAME=\"%s\""), *Module.Name));
	AddOwn(Module);
	Includes.Add(Module.Root / TEXT("Private"));
	TArray<FString> Named = Module.Dependencies;
	for (const FModuleSources* const Own : GetOwnDependencies(Module))
	{
		AddOwn(*Own);
		Named.Append(Own->Dependencies);
	}
	for (const FString& Name : Named)
	{
		if (const FToolchain::FEngineModule* const Engine = Toolchain.Modules.Find(Name))
		{
			Includes.Append(Engine->Includes);
			for (const FString& Definition : Engine->Definitions)
			{
				Words.AddUnique(TEXT("-D") + Definition);
			}
		}
	}
	TArray<FString> Seen;
	for (const FString& Include : Includes)
	{
		if (!Seen.Contains(Include))
		{
			Seen.Add(Include);
			Words.Add(TEXT("-I") + Include);
		}
	}
	return AsWords(Words);
}

FString FBuildFile::MakeModule(const FModuleSources& Module, int32 Number) const
{
	const FString Generated = Module.Name / TEXT("Inc");
	const FString GeneratedCode = Generated / (Module.Name + TEXT(".gen.cpp"));
	FString Text = FString::Printf(TEXT("\n# %s\n"), *Module.Name);
	const FString Flags = FString::Printf(TEXT("  flags =%s\n"), *MakeFlags(Module));

	TArray<FString> Cpps = Module.CppFiles;
	FString BeforeAll;
	if (!Module.ReflectedHeaders.IsEmpty())
	{
		Cpps.Add(GeneratedCode);
		TArray<FString> Made{ GeneratedCode };
		for (const FString& Header : Module.ReflectedHeaders)
		{
			Made.Add(Generated / (FPaths::GetBaseFilename(Header) + TEXT(".generated.h")));
		}
		Text += FString::Printf(TEXT("build%s: reflect%s | %s\n  module = %s\n  root = %s\n  inc = %s\n"), *AsPaths(Made),
			*AsPaths(Module.ReflectedHeaders), *AsPath(Toolchain.HeaderTool), *AsWord(Module.Name), *AsWord(Module.Root),
			*AsWord(Generated));
		BeforeAll += TEXT(" ") + AsPath(GeneratedCode);
	}
	for (const FModuleSources* const Own : GetOwnDependencies(Module))
	{
		BeforeAll +=
			Own->ReflectedHeaders.IsEmpty() ? FString() : TEXT(" ") + AsPath(Own->Name / TEXT("Inc") / (Own->Name + TEXT(".gen.cpp")));
	}
	// A launcher sends or hashes the whole text of a file, where a precompiled header is in the way.
	const FString Shared = GetPrecompiled(Module);
	const FString Precompiled = Toolchain.Launcher.IsEmpty() ? Shared + Toolchain.PrecompiledSuffix : FString();
	if (!Precompiled.IsEmpty())
	{
		Text += FString::Printf(TEXT("build %s: precompile %s\n"), *AsPath(Precompiled), *AsPath(Shared)) + Flags;
	}
	TArray<FString> Objects;
	for (const FString& Cpp : Cpps)
	{
		const FString Short = Cpp.StartsWith(Module.Root) ? Cpp.RightChop(Module.Root.Len() + 1) : FPaths::GetCleanFilename(Cpp);
		const FString& Object = Objects.Add_GetRef(Module.Name / TEXT("Obj") / Short + TEXT(".o"));
		Text += FString::Printf(TEXT("build %s: compile %s |%s ||%s\n  name = %s\n"), *AsPath(Object), *AsPath(Cpp),
					*(Precompiled.IsEmpty() ? FString() : TEXT(" ") + AsPath(Precompiled)), *BeforeAll,
					*FPaths::GetCleanFilename(Cpp).Replace(TEXT("$"), TEXT("$$"))) +
			Flags + (Precompiled.IsEmpty() ? FString() : FString::Printf(TEXT("  pch = -include %s\n"), *AsWord(Shared)));
	}

	TArray<FString> Libraries;
	for (const FModuleSources* const Own : GetOwnDependencies(Module))
	{
		Libraries.Add(GetLibrary(Own->Name, Number));
	}
	for (const FString& Name : Module.Dependencies)
	{
		if (const FToolchain::FEngineModule* const Engine = Toolchain.Modules.Find(Name))
		{
			Libraries.Add(Engine->Library);
		}
	}
	const FString Library = GetLibrary(Module.Name, Number);
	// The editor's libraries are no inputs: what of them matters to the link is in the headers.
	Text += FString::Printf(TEXT("build %s: link%s |%s\n  name = %s\n  libraries =%s\n"), *AsPath(Library), *AsPaths(Objects),
		*AsPaths(Libraries.FilterByPredicate([this](const FString& Each) { return Each.StartsWith(Binaries); })),
		*AsWord(FPaths::GetCleanFilename(Library)), *AsWords(Libraries));
	return Text;
}

FString FBuildFile::MakeText(int32 Number) const
{
	const FString Compiler = AsWord(Toolchain.Compiler);
	TArray<FString> Link = Toolchain.LinkFlags;
	Link.Append({ TEXT("-Wl,-rpath,") + Toolchain.LibraryDirectory, TEXT("-Wl,-rpath,$ORIGIN") });
	FString Text = FString::Printf(TEXT("# Written by the editor; changes made here are lost.\n%s%d\n\n"), NumberKey, Number);
	Text += FString::Printf(TEXT("rule reflect\n  command = %s --module $module --include-root $root --out $inc $in\n")
								TEXT("  description = Reading the reflected headers of $module\n  restat = 1\n"),
		*AsWord(Toolchain.HeaderTool));
	Text += FString::Printf(TEXT("rule precompile\n  command = %s $flags -x c++-header -MMD -MF $out.d -o $out -c $in\n")
								TEXT("  description = Compiling the shared header\n  depfile = $out.d\n  deps = gcc\n"),
		*Compiler);
	Text += FString::Printf(TEXT("rule compile\n  command =%s %s $flags $pch -MMD -MF $out.d -o $out -c $in\n")
								TEXT("  description = Compiling $name\n  depfile = $out.d\n  deps = gcc\n"),
		*AsWords(Toolchain.Launcher), *Compiler);
	Text += FString::Printf(TEXT("rule link\n  command = %s -shared -fPIC -Wl,-soname,$name -o $out @$out.rsp $libraries%s\n")
								TEXT("  description = Linking $name\n  rspfile = $out.rsp\n  rspfile_content = $in\n"),
		*Compiler, *AsWords(Link));
	for (const FModuleSources& Module : Sources.Modules)
	{
		Text += MakeModule(Module, Number);
	}
	return Text;
}

bool FBuildFile::Write(int32 Number) const
{
	const auto WriteIfOther = [](const FString& File, const FString& Text)
	{
		FString Old;
		const bool bSame = FPaths::FileExists(File) && FFileHelper::LoadFileToString(Old, *File) && Old.Equals(Text);
		return bSame || FFileHelper::SaveStringToFile(Text, *File, FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM);
	};
	bool bWritten = true;
	for (const FModuleSources& Module : Sources.Modules)
	{
		bWritten &= WriteIfOther(FPaths::Combine(Directory, GetPrecompiled(Module)), TEXT("#include <CoreMinimal.h>\n"));
	}
	return bWritten && WriteIfOther(FPaths::Combine(Directory, TEXT("build.ninja")), MakeText(Number));
}
