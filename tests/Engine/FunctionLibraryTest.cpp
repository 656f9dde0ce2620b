#include "Containers/Ticker.h"
#include "Curves/CurveFloat.h"
#include "Engine/World.h"
#include "Kismet/KismetMathLibrary.h"
#include "Kismet/KismetStringLibrary.h"
#include "Kismet/KismetSystemLibrary.h"
#include "TestSupport.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
/** Calls a function as a Blueprint would: the arguments as text, the parameters left out as the metadata has them. */
FString Call(UClass* Library, const TCHAR* Name, const TMap<FName, FString>& Arguments)
{
	UFunction* const Function = Library->FindFunctionByName(FName(Name));
	if (!Function)
	{
		return TEXT("no function");
	}
	TArray<uint8> Block;
	Block.SetNum(Function->GetPropertiesSize());
	Function->InitializeStruct(Block.GetData());
	FString Result;
	for (TFieldIterator<FProperty> Each(Function); Each; ++Each)
	{
		const FString* const Given = Arguments.Find(Each->GetFName());
		const FString& Text = Given ? *Given : Function->GetMetaData(FName(TEXT("CPP_Default_") + Each->GetName()));
		if (!Text.IsEmpty())
		{
			Each->ImportText_Direct(*Text, Each->ContainerPtrToValuePtr<void>(Block.GetData()), nullptr, PPF_None);
		}
	}
	Library->GetDefaultObject()->ProcessEvent(Function, Block.GetData());
	if (const FProperty* const Return = Function->GetReturnProperty())
	{
		Return->ExportText_Direct(Result, Return->ContainerPtrToValuePtr<void>(Block.GetData()), nullptr, nullptr, PPF_None);
	}
	Function->DestroyStruct(Block.GetData());
	return Result;
}
}

TEST(FunctionLibraries, FunctionsRunThroughReflection)
{
	struct FCase
	{
		UClass* Library;
		const TCHAR* Function;
		TMap<FName, FString> Arguments;
		const TCHAR* Result;
	};
	UClass* const Math = UKismetMathLibrary::StaticClass();
	UClass* const String = UKismetStringLibrary::StaticClass();
	UClass* const System = UKismetSystemLibrary::StaticClass();
	const FCase Cases[] = {
		{ Math, TEXT("Add_IntInt"), { { FName("A"), TEXT("41") } }, TEXT("42") },
		{ Math, TEXT("Add_IntInt"), { { FName("A"), TEXT("2147483647") } }, TEXT("-2147483648") },
		{ Math, TEXT("Divide_IntInt"), { { FName("A"), TEXT("7") }, { FName("B"), TEXT("0") } }, TEXT("0") },
		{ Math, TEXT("Divide_IntInt"), { { FName("A"), TEXT("-2147483648") }, { FName("B"), TEXT("-1") } }, TEXT("-2147483648") },
		{ Math, TEXT("FTrunc"), { { FName("A"), TEXT("1e30") } }, TEXT("2147483647") },
		{ Math, TEXT("Greater_DoubleDouble"), { { FName("A"), TEXT("0.5") } }, TEXT("True") },
		{ Math, TEXT("Multiply_VectorFloat"), { { FName("A"), TEXT("(X=1,Y=2,Z=3)") }, { FName("B"), TEXT("2") } },
			TEXT("(X=2.000000,Y=4.000000,Z=6.000000)") },
		{ String, TEXT("Concat_StrStr"), { { FName("A"), TEXT("a") }, { FName("B"), TEXT("b") } }, TEXT("ab") },
		{ String, TEXT("ParseIntoArray"), { { FName("SourceString"), TEXT("a b") } }, TEXT("(\"a\",\"b\")") },
		{ String, TEXT("GetSubstring"),
			{ { FName("SourceString"), TEXT("abc") }, { FName("StartIndex"), TEXT("-5") }, { FName("Length"), TEXT("2") } }, TEXT("ab") },
		{ System, TEXT("IsValid"), {}, TEXT("False") },
		{ System, TEXT("GetObjectName"), { { FName("Object"), TEXT("/Script/Engine.Actor") } }, TEXT("Actor") },
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(Call(Case.Library, Case.Function, Case.Arguments), Case.Result) << TCHAR_TO_UTF8(Case.Function);
	}
}

TEST(FunctionLibraries, PrintStringHasTheDefaultsOfItsDeclaration)
{
	FLogLines Log;
	Call(UKismetSystemLibrary::StaticClass(), TEXT("PrintString"), {});
	ASSERT_EQ(Log.Lines.Num(), 1);
	EXPECT_TRUE(Log.Lines[0].EndsWith(TEXT("Hello"))) << TCHAR_TO_UTF8(*Log.Lines[0]);
	const UFunction* const Function = UKismetSystemLibrary::StaticClass()->FindFunctionByName(FName("PrintString"));
	EXPECT_EQ(Function->GetMetaData(FName("CPP_Default_Duration")), TEXT("2.000000"));
	EXPECT_EQ(Function->GetMetaData(FName("CPP_Default_bPrintToScreen")), TEXT("true"));
	EXPECT_EQ(Function->GetMetaData(FName("WorldContext")), TEXT("WorldContextObject"));
}

TEST(FunctionLibraries, SetsPropertiesByName)
{
	UCurveFloat* const Curve = NewObject<UCurveFloat>();
	UKismetSystemLibrary::SetBoolPropertyByName(Curve, FName("bIsEventCurve"), true);
	EXPECT_TRUE(Curve->bIsEventCurve);
	UKismetSystemLibrary::SetIntPropertyByName(Curve, FName("bIsEventCurve"), 0);
	UKismetSystemLibrary::SetIntPropertyByName(Curve, FName("None"), 0);
	UKismetSystemLibrary::SetIntPropertyByName(nullptr, FName("bIsEventCurve"), 0);
	EXPECT_TRUE(Curve->bIsEventCurve);
	ULevel* const Level = NewObject<ULevel>();
	UKismetSystemLibrary::SetObjectPropertyByName(Level, FName("OwningWorld"), Curve);
	EXPECT_EQ(Level->OwningWorld, nullptr) << "of another class";
}
