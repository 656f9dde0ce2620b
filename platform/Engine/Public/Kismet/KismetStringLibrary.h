#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetStringLibrary.generated.h"

/** Functions of strings for Blueprints. */
UCLASS(meta = (BlueprintThreadSafe, ScriptName = "StringLibrary"))
class ENGINE_API UKismetStringLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintPure, meta = (DisplayName = "To String (Integer)", CompactNodeTitle = "->", BlueprintAutocast),
		Category = "Utilities|String")
	static FString Conv_IntToString(int32 InInt) { return FString::FromInt(InInt); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "To String (Float)", CompactNodeTitle = "->", BlueprintAutocast),
		Category = "Utilities|String")
	static FString Conv_DoubleToString(double InDouble) { return FString::SanitizeFloat(InDouble); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "To String (Boolean)", CompactNodeTitle = "->", BlueprintAutocast),
		Category = "Utilities|String")
	static FString Conv_BoolToString(bool InBool) { return InBool ? TEXT("true") : TEXT("false"); }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "To String (Name)", CompactNodeTitle = "->", BlueprintAutocast), Category = "Utilities|String")
	static FString Conv_NameToString(FName InName) { return InName.ToString(); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "To String (Vector)", CompactNodeTitle = "->", BlueprintAutocast),
		Category = "Utilities|String")
	static FString Conv_VectorToString(FVector InVec) { return InVec.ToString(); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "To String (Object)", CompactNodeTitle = "->", BlueprintAutocast),
		Category = "Utilities|String")
	static FString Conv_ObjectToString(UObject* InObj) { return InObj ? InObj->GetName() : FString(); }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "String to Name", CompactNodeTitle = "->", BlueprintAutocast), Category = "Utilities|String")
	static FName Conv_StringToName(const FString& InString) { return FName(InString); }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "String to Integer", CompactNodeTitle = "->", BlueprintAutocast),
		Category = "Utilities|String")
	static int32 Conv_StringToInt(const FString& InString) { return FCString::Atoi(*InString); }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "String to Float", CompactNodeTitle = "->", BlueprintAutocast), Category = "Utilities|String")
	static double Conv_StringToDouble(const FString& InString) { return FCString::Atod(*InString); }
	UFUNCTION(BlueprintPure,
		meta = (DisplayName = "Append", Keywords = "concat concatenate add", CommutativeAssociativeBinaryOperator = "true"),
		Category = "Utilities|String")
	static FString Concat_StrStr(const FString& A, const FString& B) { return A + B; }
	UFUNCTION(BlueprintPure, meta = (DisplayName = "Equal Exactly (String)", CompactNodeTitle = "==="), Category = "Utilities|String")
	static bool EqualEqual_StrStr(const FString& A, const FString& B) { return A.Equals(B); }
	UFUNCTION(
		BlueprintPure, meta = (DisplayName = "Equal, Case Insensitive (String)", CompactNodeTitle = "=="), Category = "Utilities|String")
	static bool EqualEqual_StriStri(const FString& A, const FString& B) { return A == B; }
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static int32 Len(const FString& S) { return S.Len(); }
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static bool IsEmpty(const FString& InString) { return InString.IsEmpty(); }
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString ToUpper(const FString& SourceString) { return SourceString.ToUpper(); }
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString ToLower(const FString& SourceString) { return SourceString.ToLower(); }
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString Trim(const FString& SourceString) { return SourceString.TrimStart(); }
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString Left(const FString& SourceString, int32 Count) { return SourceString.Left(Count); }
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString Right(const FString& SourceString, int32 Count) { return SourceString.Right(Count); }
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString GetSubstring(const FString& SourceString, int32 StartIndex = 0, int32 Length = 1)
	{
		return SourceString.Mid(FMath::Max(0, StartIndex), FMath::Max(0, Length));
	}
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static bool Contains(const FString& SearchIn, const FString& Substring, bool bUseCase = false, bool bSearchFromEnd = false)
	{
		return SearchIn.Contains(Substring, bUseCase ? ESearchCase::CaseSensitive : ESearchCase::IgnoreCase);
	}
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString Replace(const FString& SourceString, const FString& From, const FString& To) { return SourceString.Replace(*From, *To); }
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Parse Into Array"))
	static TArray<FString> ParseIntoArray(
		const FString& SourceString, const FString& Delimiter = FString(TEXT(" ")), const bool CullEmptyStrings = true);
	UFUNCTION(BlueprintPure, Category = "Utilities|String")
	static FString JoinStringArray(const TArray<FString>& SourceArray, const FString& Separator = FString(TEXT(" ")))
	{
		return FString::Join(SourceArray, *Separator);
	}
};
