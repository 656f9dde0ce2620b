#include "DescriptorFile.h"

#include "Misc/FileHelper.h"
#include "PluginDescriptor.h"
#include "ProjectDescriptor.h"
#include "Serialization/JsonSerializer.h"

bool FDescriptorFile::Load()
{
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *FileName))
	{
		return Fail(TEXT("the file can't be read"));
	}
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(Text);
	return FJsonSerializer::Deserialize(Reader, Root) || Fail(TEXT("it is no JSON object. ") + Reader->GetErrorMessage());
}

bool FDescriptorFile::ReadString(const TCHAR* Field, FString& Out)
{
	const TSharedPtr<FJsonValue> Value = Root->TryGetField(Field);
	if (Value.IsValid() && Value->Type != EJson::String)
	{
		return Fail(FString::Printf(TEXT("'%s' is no string"), Field));
	}
	Out = Value.IsValid() ? Value->AsString() : FString();
	return true;
}

bool FDescriptorFile::ReadModules(TArray<FModuleDescriptor>& Out)
{
	const TSharedPtr<FJsonValue> Value = Root->TryGetField(TEXT("Modules"));
	if (!Value.IsValid())
	{
		return true;
	}
	if (Value->Type != EJson::Array)
	{
		return Fail(TEXT("'Modules' is no array"));
	}
	for (const TSharedPtr<FJsonValue>& Item : Value->AsArray())
	{
		const int32 Index = Out.Num();
		if (Item->Type != EJson::Object)
		{
			return Fail(FString::Printf(TEXT("'Modules[%d]' is no object"), Index));
		}
		if (!ReadModule(*Item->AsObject(), Index, Out.AddDefaulted_GetRef()))
		{
			return false;
		}
	}
	return true;
}

bool FDescriptorFile::ReadModule(const FJsonObject& Object, int32 Index, FModuleDescriptor& Out)
{
	FString Name;
	if (!Object.TryGetStringField(TEXT("Name"), Name) || Name.IsEmpty())
	{
		return Fail(FString::Printf(TEXT("'Modules[%d]' has no 'Name'"), Index));
	}
	Out.Name = FName(Name);
	return ReadEnum(Object, Out, TEXT("Type"), EHostType::Max, Out.Type) &&
		ReadEnum(Object, Out, TEXT("LoadingPhase"), ELoadingPhase::Max, Out.LoadingPhase);
}

template <typename EnumType>
bool FDescriptorFile::ReadEnum(const FJsonObject& Object, const FModuleDescriptor& Module, const TCHAR* Field, EnumType End, EnumType& Out)
{
	FString Text;
	if (!Object.HasField(Field))
	{
		return true;
	}
	Object.TryGetStringField(Field, Text);
	for (int32 Value = 0; Value < End; ++Value)
	{
		if (Text == LexToString(static_cast<EnumType>(Value)))
		{
			Out = static_cast<EnumType>(Value);
			return true;
		}
	}
	return Fail(FString::Printf(TEXT("module '%s' has an unknown '%s': '%s'"), *Module.Name.ToString(), Field, *Text));
}

bool FDescriptorFile::Fail(const FString& Reason)
{
	FailReason = FileName + TEXT(": ") + Reason;
	return false;
}

bool FPluginDescriptor::Load(const FString& FileName, FText* OutFailReason)
{
	FDescriptorFile File(FileName);
	const bool bLoaded = File.Load() && File.ReadString(TEXT("VersionName"), VersionName) &&
		File.ReadString(TEXT("FriendlyName"), FriendlyName) && File.ReadString(TEXT("Description"), Description) &&
		File.ReadModules(Modules);
	if (!bLoaded && OutFailReason)
	{
		*OutFailReason = File.GetFailReason();
	}
	return bLoaded;
}

bool FProjectDescriptor::Load(const FString& FileName, FText& OutFailReason)
{
	FDescriptorFile File(FileName);
	const bool bLoaded = File.Load() && File.ReadString(TEXT("EngineAssociation"), EngineAssociation) &&
		File.ReadString(TEXT("Description"), Description) && File.ReadModules(Modules);
	if (!bLoaded)
	{
		OutFailReason = File.GetFailReason();
	}
	return bLoaded;
}
