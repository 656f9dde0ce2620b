#include "Editor/EditorEngine.h"

#include "BlueprintCompilationManager.h"
#include "Editor/Transactor.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "UObject/UObjectGlobals.h"

UEditorEngine* GEditor = nullptr;

UEditorEngine::UEditorEngine()
{
	Trans = CreateDefaultSubobject<UTransactor>(TEXT("Trans"));
}

bool UEditorEngine::UndoTransaction(bool bCanRedo)
{
	return Trans->Undo(bCanRedo);
}

bool UEditorEngine::RedoTransaction()
{
	return Trans->Redo();
}

int32 UEditorEngine::BeginTransaction(const TCHAR* SessionContext, const FText& Description, UObject* PrimaryObject)
{
	return Trans->Begin(SessionContext, Description);
}

int32 UEditorEngine::EndTransaction()
{
	return Trans->End();
}

void UEditorEngine::CancelTransaction(int32 Index)
{
	Trans->Cancel(Index);
}

bool UEditorEngine::IsTransactionActive() const
{
	return Trans->IsActive();
}

void UEditorEngine::ResetTransaction(const FText& Reason)
{
	Trans->Reset(Reason);
}

namespace
{
/** The editor lives as long as the module. */
class FUnrealEdModule final : public IModuleInterface
{
	void StartupModule() override
	{
		GEditor = NewObject<UEditorEngine>();
		GEditor->AddToRoot();
		GEngine = GEditor;
		OnBeginFrame = FCoreDelegates::OnBeginFrame.AddLambda([] { GEngine->TickDeferredCommands(); });
		FBlueprintCompilationManager::Initialize();
	}

	void ShutdownModule() override
	{
		FBlueprintCompilationManager::Shutdown();
		GEditor->ResetTransaction(FText::GetEmpty());
		FCoreDelegates::OnBeginFrame.Remove(OnBeginFrame);
		GEditor->RemoveFromRoot();
		GEditor = nullptr;
		GEngine = nullptr;
	}

	FDelegateHandle OnBeginFrame;
};
}

IMPLEMENT_MODULE(FUnrealEdModule, UnrealEd)
