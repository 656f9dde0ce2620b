#include "Animation/AnimBlueprint.h"
#include "Animation/AnimBlueprintGeneratedClass.h"
#include "Animation/AnimInstance.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "CoreHost/FileFaults.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_DynamicCast.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Support/BlueprintAccess.h"
#include "Support/TestBlueprint.h"

namespace
{
const std::string AllDone = R"("Success":"All dirty Blueprints were processed successfully."})";
const std::string SomeFailed = R"("Error":"Some Blueprints failed to save or compile."})";

class BlueprintAssets : public FBlueprintTest
{
protected:
	static std::string Create(const TCHAR* Path, const TCHAR* Name, const TCHAR* Parent)
	{
		return ToUtf8(FKestrinBlueprintUtils::CreateBlueprintAsset(Path, Name, Parent));
	}
	static std::string RunBatch() { return ToUtf8(FKestrinBlueprintUtils::SaveAndCompileAllDirtyBlueprints()); }
	/** An entry of the batch's answer. */
	static std::string Entry(const std::string& Path, bool bSaved = true, bool bCompiled = true)
	{
		const std::string Save = bSaved ? R"("SaveResult":"Blueprint ')" + Path + "' saved successfully.\""
										: R"("SaveError":"Failed to save Blueprint asset: )" + Path + '"';
		const std::string Compile = bCompiled ? R"("CompileResult":"Blueprint ')" + Path + "' compiled successfully.\""
											  : R"("CompileError":"Failed to compile Blueprint ')" + Path + "'.\"";
		return R"({"BlueprintPath":")" + Path + "\"," + Save + "," + Compile + "}";
	}
	static std::string Results(const std::string& Entries, const std::string& End)
	{
		return R"({"BlueprintResults":[)" + Entries + "]," + End;
	}
};
}

TEST_F(BlueprintAssets, ANewOneStaysDirtyUntilTheBatch)
{
	FTestBlueprint(TEXT("/Game/BP_Base"), AActor::StaticClass()).Save();
	EXPECT_EQ(Create(TEXT("/Game/Doors"), TEXT("BP_Door"), TEXT("actor")), "Success: Blueprint 'BP_Door' created at '/Game/Doors'.");
	EXPECT_EQ(Create(TEXT("/Game/Doors/"), TEXT("BP_Gate"), TEXT("bp_base")), "Success: Blueprint 'BP_Gate' created at '/Game/Doors/'.");
	EXPECT_FALSE(Project.Has("Content/Doors/BP_Door.uasset"));
	EXPECT_TRUE(FindPackage(nullptr, TEXT("/Game/Doors/BP_Door"))->IsDirty());
	EXPECT_EQ(RunBatch(), Results(Entry("/Game/Doors/BP_Door.BP_Door") + "," + Entry("/Game/Doors/BP_Gate.BP_Gate"), AllDone));
	EXPECT_TRUE(Project.Has("Content/Doors/BP_Door.uasset"));
	EXPECT_EQ(RunBatch(), Results("", AllDone)) << "nothing is dirty any more";

	const FString Before = FKestrinBlueprintUtils::ReadBlueprint(TEXT("BP_Gate"), TEXT("All"));
	EXPECT_NE(ToUtf8(Before).find(R"("SuperClass":"BP_Base_C")"), std::string::npos);
	Forget();
	EXPECT_EQ(ToUtf8(FKestrinBlueprintUtils::ReadBlueprint(TEXT("BP_Gate"), TEXT("All"))), ToUtf8(Before));
}

TEST_F(BlueprintAssets, WhatCanNotBeIsRefused)
{
	FTestBlueprint(TEXT("/Game/BP_Saved")).Save();
	Forget();
	// Of the many reasons there is one of each kind; the asset tools know them all.
	const struct
	{
		const TCHAR* Path;
		const TCHAR* Name;
		const TCHAR* Parent;
	} Cases[] = {
		{ TEXT("/Game"), TEXT("BP_Saved"), TEXT("Actor") },
		{ TEXT("/Game"), TEXT("a b"), TEXT("Actor") },
		{ TEXT("/Game"), TEXT(""), TEXT("Actor") },
		{ TEXT(""), TEXT("BP_X"), TEXT("Actor") },
		// No Blueprint may derive from it.
		{ TEXT("/Game"), TEXT("BP_X"), TEXT("Controller") },
	};
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Create(Case.Path, Case.Name, Case.Parent),
			"Error: Failed to create Blueprint '" + ToUtf8(Case.Name) + "' at '" + ToUtf8(Case.Path) +
				"'. Check if the path is valid and the name is unique.");
	}
	EXPECT_EQ(Create(TEXT("/Game"), TEXT("BP_X"), TEXT("AActor")), "Error: Parent class 'AActor' not found or could not be loaded.");
	EXPECT_EQ(Create(TEXT("/Game"), TEXT("BP_X"), TEXT("")), "Error: Parent class '' not found or could not be loaded.");
	EXPECT_EQ(RunBatch(), Results("", AllDone)) << "nothing came of it";
}

TEST_F(BlueprintAssets, TheBatchGoesOnAfterAFailureAndTellsEach)
{
	const FTestBlueprint Bad(TEXT("/Game/BP_A"));
	AddNode<UK2Node_CallFunction>(
		Bad.MakeEmptyEventGraph(), [](auto& Node) { Node.FunctionReference.SetExternalMember(TEXT("Gone"), AActor::StaticClass()); });
	const FTestBlueprint Warned(TEXT("/Game/BP_B"), AActor::StaticClass());
	AddNode<UK2Node_DynamicCast>(Warned.MakeEmptyEventGraph(), [](auto& Node) { Node.TargetType = AActor::StaticClass(); });
	const FTestBlueprint ReadOnly(TEXT("/Game/BP_C"));
	ReadOnly.Save();
	std::filesystem::permissions(Project.Folder() / "Content/BP_C.uasset", std::filesystem::perms::owner_read);
	ReadOnly->MarkPackageDirty();
	const FTestBlueprint Good(TEXT("/Game/BP_D"));
	const FTestBlueprint Clean(TEXT("/Game/BP_E"));
	Clean.Save();
	UObject* const Animation = FKismetEditorUtilities::CreateBlueprint(UAnimInstance::StaticClass(), CreatePackage(TEXT("/Game/ABP_F")),
		TEXT("ABP_F"), BPTYPE_Normal, UAnimBlueprint::StaticClass(), UAnimBlueprintGeneratedClass::StaticClass());
	IAssetRegistry::GetChecked().AssetCreated(Animation);
	EXPECT_EQ(RunBatch(),
		Results(Entry("/Game/BP_A.BP_A", true, false) + "," + Entry("/Game/BP_B.BP_B", true, false) + "," +
				Entry("/Game/BP_C.BP_C", false) + "," + Entry("/Game/BP_D.BP_D"),
			SomeFailed));
	EXPECT_EQ(Warned->Status, BS_UpToDateWithWarnings);
	EXPECT_TRUE(Animation->GetOutermost()->IsDirty()) << "it is of another class";
	EXPECT_EQ(RunBatch(), Results(Entry("/Game/BP_C.BP_C", false), SomeFailed)) << "what was saved is not dirty, compiled or not";
}

TEST_F(BlueprintAssets, WhatIsNoBlueprintIsNotSavedOrCompiled)
{
	for (UObject* const Object : { static_cast<UObject*>(nullptr), static_cast<UObject*>(AActor::StaticClass()) })
	{
		const std::string Answer = R"({"Error":"Provided asset is not a valid Blueprint."})";
		EXPECT_EQ(ToUtf8(FKestrinBlueprintUtils::SaveBlueprint(Object)), Answer);
		EXPECT_EQ(ToUtf8(FKestrinBlueprintUtils::CompileBlueprint(Object)), Answer);
	}
}

TEST_F(BlueprintAssets, AreSavedBeforeTheyAreCompiled)
{
	const FTestBlueprint Lamp(TEXT("/Game/BP_Lamp"));
	Lamp.AddVariable(TEXT("Oil"), PinType(UEdGraphSchema_K2::PC_Int), TEXT("4"));
	TArray<int32> Seen;
	FFileFaults::SetHook(
		[&](EFileOperation Operation, const FString&)
		{
		if (Operation == EFileOperation::OpenWrite)
		{
			Seen.Add(Lamp->Status);
		}
		return true;
	});
	EXPECT_EQ(RunBatch(), Results(Entry("/Game/BP_Lamp.BP_Lamp"), AllDone));
	FFileFaults::SetHook({});
	EXPECT_EQ(Seen, TArray<int32>{ BS_Dirty });
	EXPECT_EQ(Lamp->Status, BS_UpToDate);
}
