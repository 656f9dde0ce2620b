#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "PropertyText.h"
#include "ScratchValue.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"

namespace
{
FString GetDefaultFilename(const UClass* Class)
{
	return FPaths::Combine(FPaths::ProjectConfigDir(), TEXT("Default") + Class->ClassConfigName.ToString() + TEXT(".ini"));
}

/** The file that a class's config is saved to. */
FString GetConfigFilename(const UClass* Class)
{
	if (Class->HasAnyClassFlags(CLASS_DefaultConfig))
	{
		return GetDefaultFilename(Class);
	}
	return FPaths::Combine(FPaths::ProjectSavedDir(), TEXT("Config/LinuxEditor"), Class->ClassConfigName.ToString() + TEXT(".ini"));
}

/** The files that a class's config is read from, each over those before it. */
TArray<FString> GetConfigFilenames(const UClass* Class)
{
	TArray<FString> Filenames{ GetDefaultFilename(Class) };
	Filenames.AddUnique(GetConfigFilename(Class));
	return Filenames;
}

/** Whether all of Text is a value of the property; Value may be half read otherwise. */
bool ImportWhole(const FProperty* Property, const FString& Text, void* Value, UObject* Owner)
{
	const TCHAR* const End = Property->ImportText_Direct(*Text, Value, Owner, PPF_None, nullptr);
	return End && *PropertyText::SkipBlanks(End) == '\0';
}

/** Reads the properties of one object from one section of a file. */
class FSectionReader
{
public:
	FSectionReader(UObject* InObject, const FString& InFilename, const FString& InSection)
		: Object(InObject)
		, Filename(InFilename)
		, Section(InSection)
		, File(*GConfig->Find(InFilename))
	{
	}

	void Read(const FProperty* Property) const
	{
		const TArray<FString>* const Values = File.FindValues(Section, Property->GetName());
		void* const Target = Property->ContainerPtrToValuePtr<void>(Object);
		if (!Values)
		{
			return;
		}
		if (const FArrayProperty* const Array = CastField<FArrayProperty>(Property))
		{
			ReadArray(Array, *Values, Target);
		}
		else if (!Values->IsEmpty())
		{
			const FScratchValue Scratch(Property);
			Property->CopyCompleteValue(Scratch.Get(), Target);
			if (Accept(Scratch, Property, Values->Last()))
			{
				Property->CopyCompleteValue(Target, Scratch.Get());
			}
		}
	}

private:
	void ReadArray(const FArrayProperty* Array, const TArray<FString>& Values, void* Target) const
	{
		FScriptArrayHelper Elements(Array, Target);
		Elements.EmptyValues();
		for (const FString& Value : Values)
		{
			const FScratchValue Scratch(Array->Inner);
			if (Accept(Scratch, Array->Inner, Value))
			{
				const int32 Index = Elements.AddValue();
				Array->Inner->CopyCompleteValue(Elements.GetRawPtr(Index), Scratch.Get());
			}
		}
	}

	bool Accept(const FScratchValue& Scratch, const FProperty* Property, const FString& Value) const
	{
		const bool bGood = ImportWhole(Property, Value, Scratch.Get(), Object);
		if (!bGood)
		{
			UE_LOG(LogConfig, Warning, TEXT("%s: [%s] %s: '%s' is no %s and is passed over"), *Filename, *Section, *Property->GetName(),
				*Value, *Property->GetCPPType());
		}
		return bGood;
	}

	UObject* Object;
	const FString& Filename;
	const FString& Section;
	const FConfigFile& File;
};

/** Where a property's value is kept: a GlobalConfig one with the class that declares it. */
FString GetSection(const UClass* Class, const FProperty* Property)
{
	return (Property->HasAnyPropertyFlags(CPF_GlobalConfig) ? Property->GetOwnerClass() : Class)->GetPathName();
}

FString ExportValue(const FProperty* Property, const void* Value, UObject* Owner)
{
	FString Text;
	Property->ExportTextItem_Direct(Text, Value, nullptr, Owner, PPF_None);
	return Text;
}

void SetValue(FConfigFile& File, const FString& Section, const FProperty* Property, UObject* Object)
{
	const void* const Value = Property->ContainerPtrToValuePtr<void>(Object);
	const FArrayProperty* const Array = CastField<FArrayProperty>(Property);
	if (!Array)
	{
		File.SetString(*Section, *Property->GetName(), *ExportValue(Property, Value, Object));
		return;
	}
	const FScriptArrayHelper Elements(Array, Value);
	TArray<FString> Values;
	for (int32 Index = 0; Index < Elements.Num(); ++Index)
	{
		Values.Add(ExportValue(Array->Inner, Elements.GetRawPtr(Index), Object));
	}
	File.SetArray(*Section, *Property->GetName(), Values);
}

/** Writes some of the properties to the file as it is on disk now. */
bool SaveTo(UObject* Object, FConfigCacheIni& Config, const FString& Filename, TFunctionRef<bool(const FProperty& Property)> IsWanted)
{
	FConfigFile& File = *Config.Find(Filename);
	File.Read(Filename);
	for (TFieldIterator<FProperty> Property(Object->GetClass()); Property; ++Property)
	{
		if (IsWanted(**Property))
		{
			SetValue(File, GetSection(Object->GetClass(), *Property), *Property, Object);
		}
	}
	const bool bWritten = File.Write(Filename);
	Config.UnloadFile(Filename);
	return bWritten;
}

bool HasConfigFile(const UClass* Class)
{
	return FPaths::IsProjectFilePathSet() && Class->HasAnyClassFlags(CLASS_Config);
}
}

void UObject::LoadConfig(UClass* ConfigClass, const TCHAR* Filename, uint32, FProperty* PropertyToLoad)
{
	UClass* const Class = ConfigClass ? ConfigClass : GetClass();
	if (!Filename && !HasConfigFile(Class))
	{
		return;
	}
	if (Class->GetSuperClass()->HasAnyClassFlags(CLASS_Config))
	{
		LoadConfig(Class->GetSuperClass(), Filename, 0, PropertyToLoad);
	}
	const FString Section = Class->GetPathName();
	for (const FString& Each : Filename ? TArray<FString>{ Filename } : GetConfigFilenames(Class))
	{
		const FSectionReader Reader(this, Each, Section);
		for (TFieldIterator<FProperty> Property(Class); Property; ++Property)
		{
			const bool bWanted = !PropertyToLoad || PropertyToLoad == *Property;
			if (bWanted && Property->HasAnyPropertyFlags(CPF_Config) && GetSection(Class, *Property) == Section)
			{
				Reader.Read(*Property);
			}
		}
	}
}

void UObject::SaveConfig(uint64 Flags, const TCHAR* Filename, FConfigCacheIni* Config, bool bAllowCopyToDefaultObject)
{
	if (!Filename && !HasConfigFile(GetClass()))
	{
		UE_LOG(LogConfig, Warning, TEXT("%s has no config file to be saved to"), *GetPathName());
		return;
	}
	SaveTo(this, *Config, Filename ? FString(Filename) : GetConfigFilename(GetClass()),
		[Flags](const FProperty& Property) { return Property.HasAnyPropertyFlags(Flags); });
	UObject* const Defaults = GetClass()->GetDefaultObject();
	if (!bAllowCopyToDefaultObject || Defaults == this)
	{
		return;
	}
	for (TFieldIterator<FProperty> Property(GetClass()); Property; ++Property)
	{
		if (Property->HasAnyPropertyFlags(Flags))
		{
			Property->CopyCompleteValue_InContainer(Defaults, this);
		}
	}
}

bool UObject::TryUpdateDefaultConfigFile(const FString& SpecificFileLocation)
{
	if (SpecificFileLocation.IsEmpty() && !HasConfigFile(GetClass()))
	{
		return false;
	}
	return SaveTo(this, *GConfig, SpecificFileLocation.IsEmpty() ? GetDefaultConfigFilename() : SpecificFileLocation,
		[](const FProperty& Property) { return Property.HasAnyPropertyFlags(CPF_Config); });
}

bool UObject::UpdateSinglePropertyInConfigFile(const FProperty* InProperty, const FString& InConfigIniName)
{
	return SaveTo(this, *GConfig, InConfigIniName, [InProperty](const FProperty& Property) { return &Property == InProperty; });
}

FString UObject::GetDefaultConfigFilename() const
{
	return GetDefaultFilename(GetClass());
}
