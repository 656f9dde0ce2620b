#pragma once

#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"

/** A text for the user's eyes: what it shows, and the namespace and key under which a translation would be found. */
class CORE_API FText
{
public:
	FText();
	static const FText& GetEmpty();
	static FText FromString(const FString& String);
	static FText FromName(const class FName& Name);
	static FText AsCultureInvariant(const FString& String);
	/** As LOCTEXT and NSLOCTEXT make it. */
	static FText Localized(const TCHAR* Namespace, const TCHAR* Key, const TCHAR* Source);

	const FString& ToString() const;
	bool IsEmpty() const { return ToString().IsEmpty(); }
	bool IsEmptyOrWhitespace() const { return ToString().TrimStartAndEnd().IsEmpty(); }
	bool IsCultureInvariant() const;
	/** False, with nothing written, for a text that has no key. */
	bool GetNamespaceAndKey(FString& OutNamespace, FString& OutKey) const;
	bool EqualTo(const FText& Other) const { return ToString().Equals(Other.ToString()); }

private:
	struct FData;
	explicit FText(TSharedRef<const FData> InData);

	TSharedRef<const FData> Data;
};
