#include "Kismet/KismetSystemLibrary.h"

#include "Engine/World.h"
#include "Misc/App.h"
#include "Misc/EngineVersion.h"
#include "Misc/Paths.h"
#include "Kismet/WorldContext.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY_STATIC(LogBlueprintUserMessages, Log, All);

bool UKismetSystemLibrary::IsValid(const UObject* Object)
{
	return ::IsValid(Object);
}

bool UKismetSystemLibrary::IsValidClass(UClass* Class)
{
	return ::IsValid(Class);
}

FString UKismetSystemLibrary::GetObjectName(const UObject* Object)
{
	return GetNameSafe(Object);
}

FString UKismetSystemLibrary::GetPathName(const UObject* Object)
{
	return GetPathNameSafe(Object);
}

FString UKismetSystemLibrary::GetDisplayName(const UObject* Object)
{
	return Object ? Object->GetName() : FString();
}

FString UKismetSystemLibrary::GetClassDisplayName(const UClass* Class)
{
	return Class ? Class->GetName() : FString();
}

UObject* UKismetSystemLibrary::GetOuterObject(const UObject* Object)
{
	return Object ? Object->GetOuter() : nullptr;
}

bool UKismetSystemLibrary::DoesImplementInterface(const UObject* TestObject, TSubclassOf<UInterface> Interface)
{
	return TestObject && Interface && TestObject->GetClass()->ImplementsInterface(Interface);
}

FString UKismetSystemLibrary::GetGameName()
{
	return FApp::GetProjectName();
}

FString UKismetSystemLibrary::GetEngineVersion()
{
	return FEngineVersion::Current().ToString();
}

FString UKismetSystemLibrary::GetProjectDirectory()
{
	return FPaths::ProjectDir();
}

FString UKismetSystemLibrary::GetProjectContentDirectory()
{
	return FPaths::ProjectContentDir();
}

FString UKismetSystemLibrary::GetProjectSavedDirectory()
{
	return FPaths::ProjectSavedDir();
}

double UKismetSystemLibrary::GetGameTimeInSeconds(const UObject* WorldContextObject)
{
	const UWorld* const World = GetWorldFromContextObject(WorldContextObject);
	return World ? World->GetTimeSeconds() : 0.0;
}

bool UKismetSystemLibrary::IsServer(const UObject* WorldContextObject)
{
	// A world that nobody has joined is its own server.
	return GetWorldFromContextObject(WorldContextObject) != nullptr;
}

bool UKismetSystemLibrary::IsDedicatedServer(const UObject*)
{
	return false;
}

bool UKismetSystemLibrary::IsStandalone(const UObject* WorldContextObject)
{
	return GetWorldFromContextObject(WorldContextObject) != nullptr;
}

void UKismetSystemLibrary::PrintString(
	const UObject* WorldContextObject, const FString& InString, bool, bool bPrintToLog, FLinearColor, float, const FName)
{
	if (bPrintToLog)
	{
		UE_LOG(LogBlueprintUserMessages, Log, TEXT("[%s] %s"), *GetNameSafe(WorldContextObject), *InString);
	}
}

void UKismetSystemLibrary::PrintText(const UObject* WorldContextObject, const FText InText, bool bPrintToScreen, bool bPrintToLog,
	FLinearColor TextColor, float Duration, const FName Key)
{
	PrintString(WorldContextObject, InText.ToString(), bPrintToScreen, bPrintToLog, TextColor, Duration, Key);
}

void UKismetSystemLibrary::PrintWarning(const FString& InString)
{
	UE_LOG(LogBlueprintUserMessages, Warning, TEXT("%s"), *InString);
}

void UKismetSystemLibrary::Delay(const UObject*, float Duration, FLatentActionInfo LatentInfo)
{
	FLatentActions::Delay(LatentInfo, Duration, false);
}

void UKismetSystemLibrary::RetriggerableDelay(const UObject*, float Duration, FLatentActionInfo LatentInfo)
{
	FLatentActions::Delay(LatentInfo, Duration, true);
}

void UKismetSystemLibrary::ExecuteConsoleCommand(const UObject*, const FString& Command, APlayerController*)
{
	UE_LOG(LogBlueprintUserMessages, Warning, TEXT("Command not recognized: %s"), *Command);
}

void UKismetSystemLibrary::QuitGame(const UObject*, APlayerController*, TEnumAsByte<EQuitPreference::Type>, bool)
{
	UE_LOG(LogBlueprintUserMessages, Warning, TEXT("QuitGame: no game runs"));
}

namespace
{
template <typename PropertyType, typename ValueType>
void SetPropertyByName(UObject* Object, FName PropertyName, const ValueType& Value)
{
	const PropertyType* const Property = Object ? CastField<PropertyType>(Object->GetClass()->FindPropertyByName(PropertyName)) : nullptr;
	if (Property)
	{
		Property->SetPropertyValue_InContainer(Object, Value);
	}
}
}

void UKismetSystemLibrary::SetIntPropertyByName(UObject* Object, FName PropertyName, int32 Value)
{
	SetPropertyByName<FIntProperty>(Object, PropertyName, Value);
}

void UKismetSystemLibrary::SetDoublePropertyByName(UObject* Object, FName PropertyName, double Value)
{
	SetPropertyByName<FDoubleProperty>(Object, PropertyName, Value);
	SetPropertyByName<FFloatProperty>(Object, PropertyName, static_cast<float>(Value));
}

void UKismetSystemLibrary::SetBoolPropertyByName(UObject* Object, FName PropertyName, bool Value)
{
	SetPropertyByName<FBoolProperty>(Object, PropertyName, Value);
}

void UKismetSystemLibrary::SetObjectPropertyByName(UObject* Object, FName PropertyName, UObject* Value)
{
	const FObjectProperty* const Property =
		Object ? CastField<FObjectProperty>(Object->GetClass()->FindPropertyByName(PropertyName)) : nullptr;
	if (Property && (!Value || Value->IsA(Property->PropertyClass)))
	{
		Property->SetObjectPropertyValue(Property->ContainerPtrToValuePtr<void>(Object), Value);
	}
}

void UKismetSystemLibrary::SetStringPropertyByName(UObject* Object, FName PropertyName, const FString& Value)
{
	SetPropertyByName<FStrProperty>(Object, PropertyName, Value);
}

void UKismetSystemLibrary::SetNamePropertyByName(UObject* Object, FName PropertyName, const FName& Value)
{
	SetPropertyByName<FNameProperty>(Object, PropertyName, Value);
}
