#include "AssetMaker.h"
#include "BlueprintMaker.h"
#include "Content.h"
#include "Engine/UserDefinedEnum.h"
#include "Engine/UserDefinedStruct.h"
#include "PinTypes.h"
#include "UObject/Interface.h"
#include "UObject/UnrealType.h"

namespace
{
UEnum* MakeWeather()
{
	UUserDefinedEnum* const Weather = MakeAsset<UUserDefinedEnum>(TEXT("Lanterns/E_Weather"));
	Weather->EnumDescription = FText::FromString(TEXT("The weather of the night."));
	Weather->CppType = Weather->GetName();
	const TCHAR* const Names[] = { TEXT("Clear"), TEXT("Mist"), TEXT("Storm") };
	for (int32 Index = 0; Index < static_cast<int32>(UE_ARRAY_COUNT(Names)); ++Index)
	{
		FFieldMetaData MetaData;
		MetaData.Set(TEXT("DisplayName"), Names[Index]);
		const FString ShortName = FString::Printf(TEXT("NewEnumerator%d"), Index);
		Weather->AddEnumerator(FName(Weather->GetName() + TEXT("::") + ShortName), Index, MetaData);
		Weather->DisplayNameMap.Add(FName(ShortName), FText::FromString(Names[Index]));
	}
	Weather->AddEnumerator(
		FName(Weather->GetName() + TEXT("::E_Weather_MAX")), static_cast<int64>(UE_ARRAY_COUNT(Names)), FFieldMetaData());
	SaveAsset(Weather);
	return Weather;
}

template <typename PropertyType>
PropertyType* AddMember(UStruct* Struct, const TCHAR* Name)
{
	PropertyType* const Property = new PropertyType(Struct, Name, RF_Public);
	Property->SetPropertyFlags(CPF_Edit | CPF_BlueprintVisible);
	Struct->AddCppProperty(Property);
	return Property;
}

UScriptStruct* MakeMothTrait()
{
	UUserDefinedStruct* const Trait = MakeAsset<UUserDefinedStruct>(TEXT("Moths/F_MothTrait"));
	Trait->Guid = FGuid::NewGuid();
	AddMember<FNameProperty>(Trait, TEXT("Kind"));
	AddMember<FDoubleProperty>(Trait, TEXT("Longing"));
	AddMember<FStructProperty>(Trait, TEXT("Dust"))->Struct = TBaseStructure<FLinearColor>::Get();
	Trait->StaticLink();
	SaveAsset(Trait);
	return Trait;
}

UClass* MakeTendable()
{
	FBlueprintMaker Tendable(TEXT("Lanterns/BPI_Tendable"), UInterface::StaticClass(), BPTYPE_Interface);
	const FGraphMaker Tend = Tendable.Function(TEXT("Tend"));
	FBlueprintMaker::Parameter(Tend.Entry(), TEXT("Oil"), PinTypes::Real());
	FBlueprintMaker::Parameter(Tend.Result(600, 0), TEXT("Taken"), PinTypes::Real());
	Tendable.Save();
	return Tendable.GetClass();
}
}

FLanternTypes MakeTypes()
{
	return { MakeWeather(), MakeMothTrait(), MakeTendable() };
}
