#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "BlueprintPathsLibrary.generated.h"

/** FPaths for Blueprints and scripts. */
UCLASS(meta = (ScriptName = "Paths"))
class ENGINE_API UBlueprintPathsLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString ProjectDir();
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString ProjectContentDir();
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString ProjectPluginsDir();
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString ProjectConfigDir();
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString ProjectSavedDir();
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString ProjectLogDir();
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString GetProjectFilePath();
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString EngineDir();
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString EngineContentDir();

	UFUNCTION(BlueprintPure, Category = "Paths")
	static bool FileExists(const FString& InPath);
	UFUNCTION(BlueprintPure, Category = "Paths")
	static bool DirectoryExists(const FString& InPath);
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString GetExtension(const FString& InPath, bool bIncludeDot = false);
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString GetCleanFilename(const FString& InPath);
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString GetPath(const FString& InPath);
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString ConvertRelativePathToFull(const FString& InPath, const FString& InBasePath = TEXT(""));
	UFUNCTION(BlueprintPure, Category = "Paths")
	static FString Combine(const TArray<FString>& InPaths);
};
