#include "Internationalization/Text.h"

#include "UObject/NameTypes.h"

struct FText::FData
{
	FString Display;
	FString Namespace;
	FString Key;
	bool bInvariant = false;
};

FText::FText()
	: FText(GetEmpty())
{
}

FText::FText(TSharedRef<const FData> InData)
	: Data(MoveTemp(InData))
{
}

const FText& FText::GetEmpty()
{
	static const FText Empty(MakeShared<const FData>());
	return Empty;
}

FText FText::FromString(const FString& String)
{
	return FText(MakeShared<const FData>(FData{ String, {}, {}, false }));
}

FText FText::FromName(const FName& Name)
{
	return FromString(Name.ToString());
}

FText FText::AsCultureInvariant(const FString& String)
{
	return FText(MakeShared<const FData>(FData{ String, {}, {}, true }));
}

FText FText::Localized(const TCHAR* Namespace, const TCHAR* Key, const TCHAR* Source)
{
	return FText(MakeShared<const FData>(FData{ Source, Namespace, Key, false }));
}

const FString& FText::ToString() const
{
	return Data->Display;
}

bool FText::IsCultureInvariant() const
{
	return Data->bInvariant;
}

bool FText::GetNamespaceAndKey(FString& OutNamespace, FString& OutKey) const
{
	if (Data->Key.IsEmpty())
	{
		return false;
	}
	OutNamespace = Data->Namespace;
	OutKey = Data->Key;
	return true;
}
