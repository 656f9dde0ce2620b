#include "TestBlueprint.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "BlueprintAccess.h"
#include "Editor.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_FunctionResult.h"
#include "K2Node_VariableGet.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/PackageName.h"
#include "Modules/ModuleManager.h"
#include "Serialization/JsonSerializer.h"
#include "UObject/SavePackage.h"

FCleanEditor::FCleanEditor()
{
	for (const TCHAR* const Module : { TEXT("AssetRegistry"), TEXT("AssetTools"), TEXT("UnrealEd"), TEXT("AIModule") })
	{
		FModuleManager::Get().LoadModule(Module);
	}
	Forget();
}

FCleanEditor::~FCleanEditor()
{
	Forget();
}

void FCleanEditor::Forget()
{
	GEditor->ResetTransaction(FText::GetEmpty());
	CollectGarbage(RF_NoFlags);
}

FEdGraphPinType PinType(FName Category, UObject* Object, EPinContainerType Container)
{
	const FName SubCategory = Category == UEdGraphSchema_K2::PC_Real ? UEdGraphSchema_K2::PC_Double : FName();
	return FEdGraphPinType(Category, SubCategory, Object, Container, false, FEdGraphTerminalType());
}

bool SaveAsset(UObject* Asset)
{
	UPackage* const Package = Asset->GetOutermost();
	const FString File = FPackageName::LongPackageNameToFilename(Package->GetName(), FPackageName::GetAssetPackageExtension());
	FSavePackageArgs Args;
	Args.TopLevelFlags = RF_Standalone;
	return UPackage::Save(Package, Asset, *File, Args).IsSuccessful();
}

UK2Node* AddCall(UEdGraph* Graph, UClass* Class, const TCHAR* Function)
{
	return AddNode<UK2Node_CallFunction>(
		Graph, [=](UK2Node_CallFunction& Node) { Node.SetFromFunction(Class->FindFunctionByName(Function)); });
}

UK2Node* AddGet(UEdGraph* Graph, const TCHAR* Variable)
{
	return AddNode<UK2Node_VariableGet>(Graph, [=](UK2Node_VariableGet& Node) { Node.VariableReference.SetSelfMember(Variable); });
}

UK2Node* AddCustomEvent(UEdGraph* Graph, const TCHAR* Name)
{
	return AddNode<UK2Node_CustomEvent>(Graph, [=](UK2Node_CustomEvent& Node) { Node.CustomFunctionName = Name; });
}

void Link(UK2Node* From, const TCHAR* Output, UK2Node* To, const TCHAR* Input)
{
	UEdGraphPin* const Source = From->FindPin(Output, EGPD_Output);
	UEdGraphPin* const Target = To->FindPin(Input, EGPD_Input);
	EXPECT_TRUE(Source && Target && From->GetSchema()->TryCreateConnection(Source, Target))
		<< ToUtf8(Output) << " does not fit " << ToUtf8(Input);
}

FTestBlueprint::FTestBlueprint(const TCHAR* PackageName, UClass* Parent, EBlueprintType Type)
	: Blueprint(FKismetEditorUtilities::CreateBlueprint(
		  Parent, CreatePackage(PackageName), FName(FPackageName::GetShortName(FString(PackageName))), Type))
{
	IAssetRegistry::GetChecked().AssetCreated(Blueprint);
}

void FTestBlueprint::AddVariable(const TCHAR* Name, const FEdGraphPinType& Type, const TCHAR* Default) const
{
	EXPECT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, Name, Type, Default)) << ToUtf8(Name);
}

UEdGraph* FTestBlueprint::AddFunction(const TCHAR* Name) const
{
	UEdGraph* const Graph =
		FBlueprintEditorUtils::CreateNewGraph(Blueprint, Name, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Graph, true, nullptr);
	return Graph;
}

void FTestBlueprint::AddParameter(UEdGraph* Function, const TCHAR* Name, const FEdGraphPinType& Type, bool bOutput)
{
	TArray<UK2Node_FunctionTerminator*> Ends;
	Function->GetNodesOfClass(Ends);
	const UClass* const Kind = bOutput ? UK2Node_FunctionResult::StaticClass() : UK2Node_FunctionEntry::StaticClass();
	UK2Node_FunctionTerminator* const* const Found = Ends.FindByPredicate([Kind](const auto* End) { return End->IsA(Kind); });
	UK2Node_FunctionTerminator* const End = Found ? *Found : AddNode<UK2Node_FunctionResult>(Function);
	End->CreateUserDefinedPin(Name, Type, bOutput ? EGPD_Input : EGPD_Output);
}

UEdGraph* FTestBlueprint::MakeEmptyEventGraph() const
{
	UEdGraph* const Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
	while (!Graph->Nodes.IsEmpty())
	{
		Graph->RemoveNode(Graph->Nodes.Last());
	}
	return Graph;
}

void FTestBlueprint::Compile() const
{
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(Blueprint->Status, BS_UpToDate);
}

void FTestBlueprint::Save() const
{
	Compile();
	EXPECT_TRUE(SaveAsset(Blueprint));
}

TSharedPtr<FJsonObject> FKestrinBlueprintUtilsTestAccess::Parse(std::string_view Json)
{
	return ParseDocument(Json);
}

std::string FKestrinBlueprintUtilsTestAccess::Apply(FSectionOperation Operation, UBlueprint* Blueprint, std::string_view Entries)
{
	const TSharedPtr<FJsonObject> Section = Parse("{\"Entries\":" + std::string(Entries) + "}");
	TSharedPtr<FJsonObject> Result = MakeShared<FJsonObject>();
	const bool bChanged = Operation(Blueprint, Section->GetArrayField(TEXT("Entries")), Result);
	return (bChanged ? "changed " : "same ") + ToText(Result);
}

TSharedPtr<FJsonObject> ParseDocument(std::string_view Json)
{
	TSharedPtr<FJsonObject> Object;
	FJsonSerializer::Deserialize(TJsonReaderFactory<TCHAR>::Create(FUtf8::Decode(Json)), Object);
	EXPECT_TRUE(Object.IsValid()) << Json;
	return Object.IsValid() ? Object : MakeShared<FJsonObject>();
}
