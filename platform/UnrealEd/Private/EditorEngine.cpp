#include "Editor/EditorEngine.h"

#include "Editor/Transactor.h"
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
	}

	void ShutdownModule() override
	{
		GEditor->ResetTransaction(FText::GetEmpty());
		GEditor->RemoveFromRoot();
		GEditor = nullptr;
	}
};
}

IMPLEMENT_MODULE(FUnrealEdModule, UnrealEd)
