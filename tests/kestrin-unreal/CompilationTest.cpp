#include "Agent/CompilationManager.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "CoreHost/MainLoop.h"
#include "Engine/Engine.h"
#include "Engine/World.h"
#include "IHotReload.h"
#include "ILiveCodingModule.h"
#include "Support/Conversation.h"
#include "Support/TestBlueprint.h"

#include <cstdlib>

namespace
{
using EResult = ELiveCodingCompileResult;

/** A project without C++ modules, which a compile has done with at once. */
class Compilation : public testing::Test
{
protected:
	struct FEnd
	{
		std::string Id;
		std::string Output;
		bool bSuccess = false;
		int32 Messages = 0;
	};

	Compilation()
	{
		LiveCoding().EnableForSession(true);
		Handle = FCompilationManager::OnCompilationFinishedDelegate.AddLambda(
			[this](const TArray<TSharedPtr<FJsonObject>>& Messages, FString Id, FString Output, bool bSuccess) {
			Ends.push_back({ ToUtf8(Id), ToUtf8(Output), bSuccess, Messages.Num() });
		});
	}
	~Compilation() override
	{
		FCompilationManager::OnCompilationFinishedDelegate.Remove(Handle);
		FCompilationManager::CaptureCompilationLogs();
		GEngine->DeferredCommands.Empty();
		LiveCoding().EnableForSession(true);
		::unsetenv("LOCALAPPDATA");
	}

	static ILiveCodingModule& LiveCoding() { return FModuleManager::LoadModuleChecked<ILiveCodingModule>("LiveCoding"); }
	void WriteBuildLog(std::string_view Bytes) const { Talk.Project.Write("../Engine/Programs/UnrealBuildTool/Log.txt", Bytes); }
	static void LogLine(const TCHAR* Category, const TCHAR* Text) { FMsg::Log(Category, ELogVerbosity::Display, Text); }
	bool WaitForEnd()
	{
		return FMainLoop::RunUntil([this] { return !Ends.empty(); }, 60);
	}
	static std::vector<std::string> Commands()
	{
		std::vector<std::string> Names;
		for (const FString& Command : GEngine->DeferredCommands)
		{
			Names.push_back(ToUtf8(Command));
		}
		return Names;
	}

	FConversation Talk;
	FCleanEditor Editor;
	std::vector<FEnd> Ends;
	FDelegateHandle Handle;
	const std::string Nothing = "[LogCompile] Game has no C++ modules: there is nothing to compile";
};
}

TEST_F(Compilation, TheTwoWaysPutTheirOutputTogetherInTheirOwnWay)
{
	const FString Heading = TEXT("--- LiveCoding Console Output ---\n");
	const std::string Logs = "\n\n--- General Compilation Logs ---\n[LogCompile] a\n[LogLiveCoding] b error\n";
	const struct
	{
		bool bLogged;
		const TCHAR* Output;
		EResult Result;
		std::string Combined;
		bool bSuccess;
	} Cases[] = {
		{ false, TEXT(""), EResult::NoChanges, "", true },
		{ false, TEXT("x.cpp:1: warning: w\n"), EResult::Success, "--- LiveCoding Console Output ---\nx.cpp:1: warning: w\n", true },
		{ true, TEXT("e\n"), EResult::Failure, "--- LiveCoding Console Output ---\ne\n" + Logs, false },
		{ true, TEXT(""), EResult::InProgress, Logs, false },
		{ false, TEXT(""), EResult::CompileStillActive, "", false },
		{ false, TEXT(""), EResult::NotStarted, "", false },
		{ false, TEXT(""), EResult::Cancelled, "", false },
		{ false, TEXT(""), static_cast<EResult>(7), "", false },
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(static_cast<int>(Case.Result));
		Ends.clear();
		GEngine->DeferredCommands.Empty();
		FCompilationManager::CaptureCompilationLogs();
		if (Case.bLogged)
		{
			LogLine(TEXT("LogCompile"), TEXT("a"));
			LogLine(TEXT("LogTemp"), TEXT("error: not of a compile"));
			LogLine(TEXT("LogLiveCoding"), TEXT("b error"));
		}
		FCompilationManager::OnLiveCodingCompilationFinished(Case.Output, Case.Result);
		ASSERT_EQ(Ends.size(), 1u);
		EXPECT_EQ(Ends[0].Output, Case.Combined);
		EXPECT_EQ(Ends[0].bSuccess, Case.bSuccess);
		EXPECT_EQ(Commands(), Case.bSuccess ? std::vector<std::string>{ "RescanAllBlueprintClasses" } : std::vector<std::string>());
	}
	FCompilationManager::CaptureCompilationLogs();
	LogLine(TEXT("LogCompile"), TEXT("a"));
	LogLine(TEXT("LogCompile"), TEXT("b ERROR"));
	EXPECT_EQ(FCompilationManager::FilterCompilationErrors(TEXT("error")), TArray<FString>{ TEXT("[LogCompile] b ERROR") });
	for (const ECompilationResult::Type Result : { ECompilationResult::OtherCompilationError, ECompilationResult::Succeeded })
	{
		Ends.clear();
		GEngine->DeferredCommands.Empty();
		bool bScannedBefore = true;
		const FDelegateHandle Listener = FCompilationManager::OnCompilationFinishedDelegate.AddLambda(
			[&bScannedBefore](const TArray<TSharedPtr<FJsonObject>>&, FString, FString, bool)
			{ bScannedBefore = !GEngine->DeferredCommands.IsEmpty(); });
		FCompilationManager::OnHotReloadCompilationFinished(TEXT("out\n"), Result, false);
		FCompilationManager::OnCompilationFinishedDelegate.Remove(Listener);
		ASSERT_EQ(Ends.size(), 1u);
		EXPECT_EQ(Ends[0].Output, "out\n\n[LogCompile] a\n[LogCompile] b ERROR");
		EXPECT_EQ(Ends[0].bSuccess, Result == ECompilationResult::Succeeded);
		EXPECT_FALSE(bScannedBefore);
		EXPECT_EQ(Commands(),
			Ends[0].bSuccess ? (std::vector<std::string>{ "RescanAllBlueprintClasses", "HotReload.ModuleCompilationFinished" })
							 : std::vector<std::string>());
	}
	FMainLoop::Tick();
	EXPECT_TRUE(Commands().empty());
}

TEST_F(Compilation, LiveCodingReportsTheErrorsAndWarningsOfTheBuildLog)
{
	const std::string General = "\n\n--- General Compilation Logs ---\n" + Nothing + "\n";
	FCompilationManager::CompileGameProject(TEXT("id"), { MakeShared<FJsonObject>(), MakeShared<FJsonObject>() });
	ASSERT_EQ(Ends.size(), 1u) << "before the call returns";
	EXPECT_EQ(Ends[0].Id, "id");
	EXPECT_EQ(Ends[0].Output, General);
	EXPECT_TRUE(Ends[0].bSuccess);
	EXPECT_EQ(Ends[0].Messages, 2);

	// The module writes the log anew at each compile; a log of another build stays when it can't.
	std::filesystem::remove_all(Talk.Project.Folder() / "../Engine/Programs");
	Talk.Project.Write("../Engine/Programs", "in the way");
	Talk.Project.Write("UnrealBuildTool/Log.txt", "an Error: here\r\nfine\n\nERROR: there\rnote: Warning:x\nwarning without colon");
	::setenv("LOCALAPPDATA", Talk.Project.Folder().c_str(), 1);
	FCompilationManager::CompileGameProject(TEXT("id"), {});
	EXPECT_EQ(Ends[1].Output, "--- LiveCoding Console Output ---\nan Error: here\nERROR: there\nnote: Warning:x\n" + General);
	EXPECT_EQ(Ends[1].Messages, 0);
}

TEST_F(Compilation, HotReloadTakesOverWhereLiveCodingIsOff)
{
	LiveCoding().EnableForSession(false);
	FCompilationManager::CompileGameProject(TEXT("first"), { MakeShared<FJsonObject>() });
	EXPECT_TRUE(IHotReloadInterface::Get().IsCurrentlyCompiling());
	// A second one takes the first one's place.
	FCompilationManager::CompileGameProject(TEXT("second"), {});
	EXPECT_TRUE(Ends.empty());
	ASSERT_TRUE(WaitForEnd());
	EXPECT_EQ(Ends.size(), 1u);
	EXPECT_EQ(Ends[0].Id, "second");
	EXPECT_EQ(Ends[0].Messages, 0);
	EXPECT_EQ(Ends[0].Output, "Game has no C++ modules: there is nothing to compile\n\n" + Nothing);
	EXPECT_TRUE(Ends[0].bSuccess);
	// The binding is gone with it: another compile's end is nobody's.
	IHotReloadInterface::Get().DoHotReloadFromEditor(EHotReloadFlags::None);
	EXPECT_TRUE(FMainLoop::RunUntil([] { return !IHotReloadInterface::Get().IsCurrentlyCompiling(); }, 60));
	EXPECT_EQ(Ends.size(), 1u);
}

TEST_F(Compilation, SavesWhatHasChangedFirst)
{
	const FTestBlueprint Lamp(TEXT("/Game/BP_Lamp"));
	UWorld* const World = UWorld::CreateWorld(CreatePackage(TEXT("/Game/Maps/Hollow")), TEXT("Hollow"));
	UPackage* const Broken = CreatePackage(TEXT("/Game/Dir"));
	NewObject<UBlueprint>(Broken, TEXT("Dir"), RF_Standalone | RF_Public);
	Talk.Project.Write("Content/Dir.uasset/file", "in the way");
	for (UPackage* const Package : { Lamp->GetOutermost(), World->GetOutermost(), Broken })
	{
		Package->SetDirtyFlag(true);
	}
	FCompilationManager::CompileGameProject(TEXT("id"), {});
	EXPECT_TRUE(Talk.Project.Has("Content/BP_Lamp.uasset"));
	EXPECT_TRUE(Talk.Project.Has("Content/Maps/Hollow.umap"));
	EXPECT_FALSE(Lamp->GetOutermost()->IsDirty() || World->GetOutermost()->IsDirty());
	EXPECT_TRUE(Ends[0].bSuccess) << "whatever could not be saved";
}

TEST_F(Compilation, ResultsLeaveWithTheAnswersOtherResultsInTheOrderOfTheirCompletion)
{
	Talk.Project.Write("a.txt", "text");
	const std::string Read = R"({"type":"tool_use","id":"r","name":"read_file","input":{"path":"a.txt"}})";
	const std::string Compile = R"({"type":"tool_use","id":"c","name":"Compile","input":{}})";
	const std::string Unanswered = R"({"type":"tool_use","id":"u","name":"compile"})";
	Talk.StartAndFinishWith(Compile + "," + Read + "," + Unanswered, true);
	const std::string Content = R"(\n\n--- General Compilation Logs ---\n)" + Nothing + R"(\n)";
	const std::string Result = R"({"type":"tool_result","tool_use_id":"c","content":")" + Content + R"(","is_error":false})";
	EXPECT_EQ(Talk.LastBody(),
		R"({"tool_results":[)" + Result +
			R"(,{"type":"tool_result","tool_use_id":"r","content":"text","is_error":false}],"was_confirmed":true})");
	EXPECT_EQ(Talk.CountRequests(TEXT("POST")), 2);
	const auto Lines = [this](const char* Line) { return std::count(Talk.Chat.begin(), Talk.Chat.end(), std::string("progress|") + Line); };
	EXPECT_EQ(Lines("Compiling..."), 1) << "a call without input compiles nothing";
	EXPECT_EQ(Lines("Compilation successful!"), 1);
	const TSharedPtr<FJsonObject> Message = FAgent::Get().GetConversationMessages().Last()->AsObject();
	EXPECT_EQ(ToUtf8(Message->GetStringField(TEXT("role"))), "user");
	EXPECT_EQ(Message->GetArrayField(TEXT("content")).Num(), 1) << "the results of that moment";
	EXPECT_EQ(Ends[0].Messages, 1) << "the assistant's turn";

	// One that ends later waits for the next request.
	LiveCoding().EnableForSession(false);
	Ends.clear();
	Talk.FinishWith(Compile, true);
	EXPECT_EQ(Talk.State(), "AwaitingUpdate");
	ASSERT_TRUE(WaitForEnd());
	EXPECT_EQ(Talk.CountRequests(TEXT("POST")), 2);
	EXPECT_EQ(FAgent::Get().GetToolResults().Num(), 1);
}

TEST_F(Compilation, ErrorsOfARealCompilerReachTheService)
{
	Talk.Project.Write("Game.uproject", R"({"Modules":[{"Name":"Game"}]})");
	Talk.Project.Write("Source/Game/Game.Build.cs", R"(PublicDependencyModuleNames.Add("Core");)");
	Talk.Project.Write("Source/Game/Game.cpp", "int A = B;\n");
	Talk.StartAndFinishWith(R"({"type":"tool_use","id":"c","name":"compile","input":{}})", true);
	const std::string Error = ToUtf8(Talk.Project.Dir()) + "Source/Game/Game.cpp:1:9: error: ";
	const size_t Place = Talk.LastBody().find(R"("content":"--- LiveCoding Console Output ---\n)" + Error);
	EXPECT_NE(Place, std::string::npos) << Talk.LastBody();
	EXPECT_NE(Talk.LastBody().find(R"(","is_error":true})"), std::string::npos);
	EXPECT_EQ(Talk.Chat.back(), "progress|Sending request...");
	EXPECT_EQ(Talk.Chat[Talk.Chat.size() - 2], "progress|Compilation failed, processing error...");
}
