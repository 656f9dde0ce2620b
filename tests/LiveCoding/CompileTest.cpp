#include "EdGraphSchema_K2.h"
#include "GameProject.h"
#include "ILiveCodingModule.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

#include <cstdlib>

void PrintTo(ELiveCodingCompileResult Result, std::ostream* Out)
{
	*Out << static_cast<int>(Result);
}

namespace
{
using EResult = ELiveCodingCompileResult;

/** A build takes seconds, so a test walks through what happens to one project. */
class LiveCoding : public testing::Test
{
protected:
	LiveCoding() { Module = FModuleManager::LoadModulePtr<ILiveCodingModule>("LiveCoding"); }
	~LiveCoding() override { ::unsetenv("CMAKE_CXX_COMPILER_LAUNCHER"); }

	EResult Compile()
	{
		Log.Lines.Empty();
		EResult Result = EResult::InProgress;
		const bool bDone = Module->Compile(ELiveCodingCompileFlags::WaitForCompletion, &Result);
		EXPECT_EQ(bDone, Result == EResult::Success || Result == EResult::NoChanges);
		return Result;
	}
	/** How many lines of the compile begin so. */
	int32 Count(const TCHAR* Line) const
	{
		const FString Whole = FString(TEXT("LogCompile|Display|")) + Line;
		return Log.Lines.FilterByPredicate([&Whole](const FString& Each) { return Each.StartsWith(Whole); }).Num();
	}
	std::string GetLog() const { return FUtf8::Encode(FString::Join(Log.Lines, TEXT("\n"))); }
	static UClass* Find(const TCHAR* Class) { return FindObject<UClass>(nullptr, *(FString(TEXT("/Script/Game.")) + Class)); }
	static FString Get(UObject* Object, const TCHAR* Property)
	{
		FString Text;
		const FProperty* const Found = Object->GetClass()->FindPropertyByName(Property);
		return Found && Found->ExportText_InContainer(0, Text, Object, nullptr, nullptr, PPF_None) ? Text : FString(TEXT("-"));
	}
	static void Set(UObject* Object, const TCHAR* Property, const TCHAR* Text)
	{
		Object->GetClass()->FindPropertyByName(Property)->ImportText_InContainer(Text, Object, Object, PPF_None);
	}

	FGameProject Game;
	FLogLines Log;
	ILiveCodingModule* Module;
};
}

TEST_F(LiveCoding, ClassesComeChangeAndGoWhileTheEditorRuns)
{
	Game.WriteModule();
	Game.WriteClass("Lamp", "\tUPROPERTY(EditAnywhere)\n\tint32 Oil = 4;\n\tUPROPERTY(EditAnywhere)\n\tint32 Wick = 1;\n");
	Game.WriteClass("Other", "");
	ASSERT_EQ(Compile(), EResult::Success) << GetLog();
	EXPECT_EQ(Count(TEXT("Compiling")), 5) << "the shared header, three files and the generated one\n" << GetLog();
	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded("Game"));

	ASSERT_NE(Find(TEXT("Lamp")), nullptr);
	UBlueprint* const Blueprint =
		FKismetEditorUtilities::CreateBlueprint(Find(TEXT("Lamp")), CreatePackage(TEXT("/Game/BP_Lamp")), TEXT("BP_Lamp"), BPTYPE_Normal);
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Twin"),
		FEdGraphPinType(UEdGraphSchema_K2::PC_Object, NAME_None, Find(TEXT("Lamp")), EPinContainerType::None, false, {}));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	Set(Blueprint->GeneratedClass->GetDefaultObject(), TEXT("Oil"), TEXT("7"));
	UObject* const Native = NewObject<UObject>(GetTransientPackage(), Find(TEXT("Lamp")), TEXT("Native"));
	UObject* const Derived = NewObject<UObject>(GetTransientPackage(), Blueprint->GeneratedClass, TEXT("Derived"));
	Derived->AddToRoot();
	Set(Native, TEXT("Oil"), TEXT("9"));
	FindFProperty<FObjectProperty>(Blueprint->GeneratedClass, TEXT("Twin"))->SetObjectPropertyValue_InContainer(Derived, Native);

	EXPECT_EQ(Compile(), EResult::NoChanges);
	EXPECT_TRUE(Log.Lines.IsEmpty()) << GetLog();

	// One line of one file.
	Game.Write("Source/Game/Private/Other.cpp", Game.Read("Source/Game/Private/Other.cpp") + "// changed\n");
	ASSERT_EQ(Compile(), EResult::Success) << GetLog();
	EXPECT_EQ(Count(TEXT("Compiling")), 1) << GetLog();
	EXPECT_EQ(Count(TEXT("Linking")), 1) << GetLog();

	// A new layout and new defaults: objects and Blueprints come along.
	UClass* const Before = Find(TEXT("Lamp"));
	Game.WriteClass("Lamp",
		"\tUPROPERTY()\n\tFString Name = TEXT(\"lamp\");\n\tUPROPERTY(EditAnywhere)\n\tint32 Oil = 4;\n"
		"\tUPROPERTY(EditAnywhere)\n\tint32 Wick = 1;\n\tvirtual void Burn() {}\n",
		"\tWick = 3;\n");
	ASSERT_EQ(Compile(), EResult::Success) << GetLog();
	UClass* const Lamp = Find(TEXT("Lamp"));
	EXPECT_NE(Lamp, Before);
	EXPECT_EQ(Blueprint->ParentClass.Get(), Lamp);
	EXPECT_EQ(Blueprint->GeneratedClass->GetSuperClass(), Lamp);
	EXPECT_EQ(Blueprint->Status, BS_UpToDate);
	UObject* const NewNative = FindObject<UObject>(GetTransientPackage(), TEXT("Native"));
	UObject* const NewDerived = FindObject<UObject>(GetTransientPackage(), TEXT("Derived"));
	ASSERT_TRUE(NewNative && NewDerived && NewNative->IsA(Lamp) && NewDerived->IsA(Blueprint->GeneratedClass));
	const struct
	{
		UObject* Object;
		const TCHAR* Oil;
	} Cases[] = { { Lamp->GetDefaultObject(), TEXT("4") }, { NewNative, TEXT("9") }, { NewDerived, TEXT("7") },
		{ Blueprint->GeneratedClass->GetDefaultObject(), TEXT("7") } };
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Get(Case.Object, TEXT("Oil")), Case.Oil) << "its own, or its Blueprint's";
		EXPECT_EQ(Get(Case.Object, TEXT("Wick")), TEXT("3")) << "the new default";
		EXPECT_EQ(Get(Case.Object, TEXT("Name")), TEXT("lamp"));
	}
	FObjectProperty* const Twin = FindFProperty<FObjectProperty>(Blueprint->GeneratedClass, TEXT("Twin"));
	EXPECT_EQ(Twin->PropertyClass, Lamp);
	EXPECT_EQ(Twin->GetObjectPropertyValue_InContainer(NewDerived), NewNative);

	// A class that is needed can't go; one that nobody needs can.
	const std::string Header = Game.Read("Source/Game/Public/Lamp.h");
	const std::string Code = Game.Read("Source/Game/Private/Lamp.cpp");
	Game.Remove("Source/Game/Public/Lamp.h");
	Game.Remove("Source/Game/Private/Lamp.cpp");
	for (int Round = 0; Round < 2; ++Round)
	{
		EXPECT_EQ(Compile(), EResult::Failure);
		EXPECT_NE(Game.GetBuildLog().find("error: the type Lamp is gone, but "), std::string::npos) << Game.GetBuildLog();
		EXPECT_EQ(Find(TEXT("Lamp")), Lamp);
	}
	Game.Write("Source/Game/Public/Lamp.h", Header);
	Game.Write("Source/Game/Private/Lamp.cpp", Code);
	Game.Remove("Source/Game/Public/Other.h");
	Game.Remove("Source/Game/Private/Other.cpp");
	EXPECT_EQ(Compile(), EResult::Success) << GetLog();
	EXPECT_EQ(Find(TEXT("Other")), nullptr);
	ASSERT_NE(Find(TEXT("Lamp")), nullptr);
	UObject* const LastDerived = FindObject<UObject>(GetTransientPackage(), TEXT("Derived"));
	ASSERT_NE(LastDerived, nullptr);
	EXPECT_EQ(Get(LastDerived, TEXT("Oil")), TEXT("7"));
	CollectGarbage(RF_Standalone);
	EXPECT_TRUE(Blueprint->GeneratedClass->IsChildOf(Find(TEXT("Lamp"))));
	LastDerived->RemoveFromRoot();
	const std::vector<std::string> Libraries = Game.GetLibraries();
	ASSERT_EQ(Libraries.size(), 2u) << "that of the last build, and what the next start loads";
	EXPECT_EQ(Libraries[1], "libKestrinEditor-Game.so");
}

TEST_F(LiveCoding, StructsAndEnumsTakeVariablesOfBlueprintsAlong)
{
	Game.WriteModule();
	const auto WriteTypes = [this](const std::string& Members, const std::string& Enumerators)
	{
		Game.Write("Source/Game/Public/Types.h",
			"#pragma once\n#include \"UObject/ObjectMacros.h\"\n#include \"Types.generated.h\"\n\nUENUM(BlueprintType)\nenum class EMood : "
			"uint8\n{\n" +
				Enumerators + "};\n\nUSTRUCT(BlueprintType)\nstruct FBlend\n{\n\tGENERATED_BODY()\n" + Members + "};\n");
	};
	WriteTypes("\tUPROPERTY()\n\tint32 Parts = 1;\n", "\tCalm,\n\tWild,\n");
	ASSERT_EQ(Compile(), EResult::Success) << GetLog();
	UBlueprint* const Blueprint =
		FKismetEditorUtilities::CreateBlueprint(UObject::StaticClass(), CreatePackage(TEXT("/Game/BP_Mix")), TEXT("BP_Mix"), BPTYPE_Normal);
	const auto Add = [Blueprint](const TCHAR* Name, FName Category, const TCHAR* Type)
	{
		UObject* const Object = FindObject<UObject>(nullptr, *(FString(TEXT("/Script/Game.")) + Type));
		FBlueprintEditorUtils::AddMemberVariable(
			Blueprint, Name, FEdGraphPinType(Category, NAME_None, Object, EPinContainerType::None, false, {}));
	};
	Add(TEXT("Blend"), UEdGraphSchema_K2::PC_Struct, TEXT("Blend"));
	Add(TEXT("Mood"), UEdGraphSchema_K2::PC_Byte, TEXT("EMood"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	Set(Blueprint->GeneratedClass->GetDefaultObject(), TEXT("Blend"), TEXT("(Parts=6)"));
	Set(Blueprint->GeneratedClass->GetDefaultObject(), TEXT("Mood"), TEXT("Wild"));

	WriteTypes("\tUPROPERTY()\n\tFString Name = TEXT(\"mix\");\n\tUPROPERTY()\n\tint32 Parts = 1;\n", "\tCalm,\n\tTense,\n\tWild,\n");
	ASSERT_EQ(Compile(), EResult::Success) << GetLog();
	EXPECT_EQ(Get(Blueprint->GeneratedClass->GetDefaultObject(), TEXT("Blend")), TEXT("(Name=\"mix\",Parts=6)"));
	EXPECT_EQ(Get(Blueprint->GeneratedClass->GetDefaultObject(), TEXT("Mood")), TEXT("Wild"));
	CollectGarbage(RF_Standalone);
	EXPECT_EQ(FindFProperty<FStructProperty>(Blueprint->GeneratedClass, TEXT("Blend"))->Struct->GetName(), TEXT("Blend"));
}

TEST_F(LiveCoding, FaultsComeWithFileAndLineAndChangeNothing)
{
	const std::string Source = FUtf8::Encode(Game.Folder / "Game/Source/Game/");
	Game.WriteModule();
	Game.WriteClass("Lamp", "\tint32 Undefined();\n");
	ASSERT_EQ(Compile(), EResult::Success) << GetLog();
	UClass* const Lamp = Find(TEXT("Lamp"));
	const struct
	{
		const char* File;
		const char* Text;
		std::string Error;
	} Cases[] = {
		{ "Private/Bad.cpp", "int32 A() { return B; }\n", Source + "Private/Bad.cpp:1:" },
		{ "Public/Bad.h", "#include \"Bad.generated.h\"\nUCLASS()\nclass UBad : public UObject\n{\n\tUPROPERTY(Nonsense)\n\tint32 A;\n};\n",
			Source + "Public/Bad.h:" },
		{ "Private/Bad.cpp", "#include \"Lamp.h\"\nint32 A() { return GetMutableDefault<ULamp>()->Undefined(); }\n",
			"undefined reference to" },
		{ "Game.cpp", "// no module\n", "error: the module Game can't be loaded: no source file has IMPLEMENT_MODULE for it" },
		{ "Game.Build.cs", "PublicDependencyModuleNames.AddRange(new string[] { \"Core\", \"Nowhere\" });",
			Source + "Game.Build.cs:1: warning: this editor has no module Nowhere" },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Error);
		const std::string Path = std::string("Source/Game/") + Case.File;
		const bool bThere = std::filesystem::exists(Game.Folder.Native("Game/" + Path));
		const std::string Old = Game.Read(Path);
		Game.Write(Path, Case.Text);
		EXPECT_EQ(Compile(), EResult::Failure);
		EXPECT_NE(Game.GetBuildLog().find(Case.Error), std::string::npos) << Game.GetBuildLog();
		EXPECT_NE(GetLog().find(Case.Error), std::string::npos) << GetLog();
		EXPECT_EQ(Find(TEXT("Lamp")), Lamp);
		bThere ? Game.Write(Path, Old) : Game.Remove(Path);
	}
	EXPECT_EQ(Compile(), EResult::Success) << GetLog();
}

TEST_F(LiveCoding, TheLauncherRunsTheCompilerAndABuildThatIsStoppedSaysSo)
{
	Game.WriteModule();
	const std::string Seen = Game.Folder.Native("seen").string();
	const auto Launch = [&](const std::string& Script)
	{
		Game.Folder.Write("launch.sh", "#!/bin/sh\n" + Script);
		std::filesystem::permissions(Game.Folder.Native("launch.sh"), std::filesystem::perms::all);
		::setenv("CMAKE_CXX_COMPILER_LAUNCHER", (Game.Folder.Native("launch.sh").string() + ";first").c_str(), 1);
	};
	const auto KillNinja = [](const std::string& Signal)
	{
		return "p=$$\nwhile [ \"$(cat /proc/$p/comm)\" != ninja ]; do p=$(sed 's/.*) . //; s/ .*//' /proc/$p/stat); done\nkill -" + Signal +
			" $p\nsleep 1\nexit 1\n";
	};
	const struct
	{
		std::string Script;
		EResult Result;
		const TCHAR* Line;
	} Cases[] = {
		{ KillNinja("INT"), EResult::Cancelled, TEXT("the build was interrupted") },
		{ KillNinja("TERM"), EResult::Cancelled, TEXT("the build was interrupted") },
		{ KillNinja("KILL"), EResult::Failure, TEXT("error: the build was ended by the signal 9") },
		{ "kill -SEGV $$\n", EResult::Failure, TEXT("Segmentation fault") },
		{ "echo \"$1\" >>'" + Seen + "'\nshift\nexec \"$@\"\n", EResult::Success, TEXT("Linking") },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Script);
		Launch(Case.Script);
		EXPECT_EQ(Compile(), Case.Result) << GetLog();
		EXPECT_TRUE(Log.HasLineWith(Case.Line)) << GetLog();
	}
	EXPECT_EQ(Game.Folder.Read("seen"), "first\n");
}

TEST_F(LiveCoding, SaysWhyNothingWasCompiled)
{
	EXPECT_EQ(Compile(), EResult::NoChanges);
	EXPECT_TRUE(Log.HasLineWith(TEXT("Game has no C++ modules: there is nothing to compile"))) << GetLog();
	Game.WriteModule();
	EResult Result = EResult::Success;
	EXPECT_TRUE(Module->Compile(ELiveCodingCompileFlags::None, &Result));
	EXPECT_EQ(Result, EResult::InProgress);
	EXPECT_TRUE(Module->IsCompiling());
	EXPECT_EQ(Compile(), EResult::CompileStillActive);
	bool bPatched = false;
	Module->GetOnPatchCompleteDelegate().AddLambda([&bPatched] { bPatched = true; });
	EXPECT_TRUE(FMainLoop::RunUntil([&bPatched] { return bPatched; }, 60));
	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded("Game"));
	Module->EnableForSession(false);
	EXPECT_EQ(Compile(), EResult::NotStarted);
	Module->EnableForSession(true);
	FHostProject::Set(FString());
	EXPECT_EQ(Compile(), EResult::NotStarted);
}
