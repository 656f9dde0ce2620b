#pragma once

#include "Engine/LatentActionManager.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "Templates/SubclassOf.h"
#include "UObject/Interface.h"
#include "KismetSystemLibrary.generated.h"

class APlayerController;

UENUM(BlueprintType)
namespace EQuitPreference
{
enum Type : int
{
	Quit,
	Background,
};
}

/** Functions of the system for Blueprints. */
UCLASS(meta = (ScriptName = "SystemLibrary"))
class ENGINE_API UKismetSystemLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool IsValid(const UObject* Object);
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool IsValidClass(UClass* Class);
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetObjectName(const UObject* Object);
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetPathName(const UObject* Object);
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Get Display Name"))
	static FString GetDisplayName(const UObject* Object);
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Get Display Name"))
	static FString GetClassDisplayName(const UClass* Class);
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static UObject* GetOuterObject(const UObject* Object);
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (Keywords = "interface"))
	static bool DoesImplementInterface(const UObject* TestObject, TSubclassOf<UInterface> Interface);

	UFUNCTION(BlueprintPure, Category = "Game", meta = (DisplayName = "Get Project Name"))
	static FString GetGameName();
	UFUNCTION(BlueprintPure, Category = "Development")
	static FString GetEngineVersion();
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GetProjectDirectory();
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GetProjectContentDirectory();
	UFUNCTION(BlueprintPure, Category = "Utilities|Paths")
	static FString GetProjectSavedDirectory();

	/** In seconds; 0 where no game runs. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetGameTimeInSeconds(const UObject* WorldContextObject);
	UFUNCTION(BlueprintPure, Category = "Networking", meta = (WorldContext = "WorldContextObject"))
	static bool IsServer(const UObject* WorldContextObject);
	UFUNCTION(BlueprintPure, Category = "Networking", meta = (WorldContext = "WorldContextObject"))
	static bool IsDedicatedServer(const UObject* WorldContextObject);
	UFUNCTION(BlueprintPure, Category = "Networking", meta = (WorldContext = "WorldContextObject"))
	static bool IsStandalone(const UObject* WorldContextObject);

	/** A line in the log. */
	UFUNCTION(BlueprintCallable, Category = "Development",
		meta = (WorldContext = "WorldContextObject", CallableWithoutWorldContext, Keywords = "log print", AdvancedDisplay = "2",
			DevelopmentOnly))
	static void PrintString(const UObject* WorldContextObject, const FString& InString = FString(TEXT("Hello")), bool bPrintToScreen = true,
		bool bPrintToLog = true, FLinearColor TextColor = FLinearColor(0.0f, 0.66f, 1.0f), float Duration = 2.0f,
		const FName Key = NAME_None);
	UFUNCTION(BlueprintCallable, Category = "Development",
		meta = (WorldContext = "WorldContextObject", CallableWithoutWorldContext, Keywords = "log", AdvancedDisplay = "2", DevelopmentOnly))
	static void PrintText(const UObject* WorldContextObject, const FText InText = INVTEXT("Hello"), bool bPrintToScreen = true,
		bool bPrintToLog = true, FLinearColor TextColor = FLinearColor(0.0f, 0.66f, 1.0f), float Duration = 2.0f,
		const FName Key = NAME_None);
	UFUNCTION(BlueprintCallable, Category = "Development", meta = (BlueprintInternalUseOnly = "TRUE"))
	static void PrintWarning(const FString& InString);

	/** Goes on after Duration seconds. Called again meanwhile, it does nothing. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|FlowControl",
		meta = (Latent, WorldContext = "WorldContextObject", LatentInfo = "LatentInfo", Duration = "0.2", Keywords = "sleep"))
	static void Delay(const UObject* WorldContextObject, float Duration, FLatentActionInfo LatentInfo);
	/** Called again meanwhile, the time starts anew. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|FlowControl",
		meta = (Latent, WorldContext = "WorldContextObject", LatentInfo = "LatentInfo", Duration = "0.2", Keywords = "sleep"))
	static void RetriggerableDelay(const UObject* WorldContextObject, float Duration, FLatentActionInfo LatentInfo);

	/** There is no console here: the log says that the command is not known. */
	UFUNCTION(BlueprintCallable, Category = "Development", meta = (WorldContext = "WorldContextObject"))
	static void ExecuteConsoleCommand(
		const UObject* WorldContextObject, const FString& Command, APlayerController* SpecificPlayer = nullptr);
	/** Without effect where no game runs, which the log says. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (WorldContext = "WorldContextObject", CallableWithoutWorldContext))
	static void QuitGame(const UObject* WorldContextObject, APlayerController* SpecificPlayer,
		TEnumAsByte<EQuitPreference::Type> QuitPreference, bool bIgnorePlatformRestrictions);

	UFUNCTION(BlueprintPure, Category = "Math|Integer", meta = (BlueprintThreadSafe))
	static int32 MakeLiteralInt(int32 Value) { return Value; }
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (BlueprintThreadSafe))
	static double MakeLiteralDouble(double Value) { return Value; }
	UFUNCTION(BlueprintPure, Category = "Math|Boolean", meta = (BlueprintThreadSafe))
	static bool MakeLiteralBool(bool Value) { return Value; }
	UFUNCTION(BlueprintPure, Category = "Utilities|Name", meta = (BlueprintThreadSafe))
	static FName MakeLiteralName(FName Value) { return Value; }
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (BlueprintThreadSafe))
	static FString MakeLiteralString(FString Value) { return Value; }
	UFUNCTION(BlueprintPure, Category = "Utilities|Text", meta = (BlueprintThreadSafe))
	static FText MakeLiteralText(FText Value) { return Value; }

	// Each sets a property of an object; nothing happens when it has none of that name and type.

	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static void SetIntPropertyByName(UObject* Object, FName PropertyName, int32 Value);
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static void SetDoublePropertyByName(UObject* Object, FName PropertyName, double Value);
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static void SetBoolPropertyByName(UObject* Object, FName PropertyName, bool Value);
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static void SetObjectPropertyByName(UObject* Object, FName PropertyName, UObject* Value);
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static void SetStringPropertyByName(UObject* Object, FName PropertyName, const FString& Value);
	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	static void SetNamePropertyByName(UObject* Object, FName PropertyName, const FName& Value);
};
