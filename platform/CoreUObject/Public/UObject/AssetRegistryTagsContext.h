#pragma once

#include "UObject/Object.h"

/** Something that the Asset Registry knows of an asset without loading it. */
struct UObject::FAssetRegistryTag
{
	/** How a list of assets would show it. */
	enum ETagType
	{
		TT_Hidden,
		TT_Alphabetical,
		TT_Numerical,
		TT_Dimensional,
		TT_Chronological
	};

	FAssetRegistryTag(FName InName, const FString& InValue, ETagType InType)
		: Name(InName)
		, Value(InValue)
		, Type(InType)
	{
	}

	FName Name;
	FString Value;
	ETagType Type;
};

/** Where GetAssetRegistryTags puts the tags of an object; the copies of one share them. */
class FAssetRegistryTagsContext
{
public:
	FAssetRegistryTagsContext(const UObject* InObject, TArray<UObject::FAssetRegistryTag>& InTags)
		: Object(InObject)
		, Tags(&InTags)
	{
	}

	const UObject* GetObject() const { return Object; }
	/** Replaces a tag of the same name. */
	void AddTag(UObject::FAssetRegistryTag Tag)
	{
		UObject::FAssetRegistryTag* const Same =
			Tags->FindByPredicate([&Tag](const UObject::FAssetRegistryTag& Each) { return Each.Name == Tag.Name; });
		if (Same)
		{
			*Same = MoveTemp(Tag);
		}
		else
		{
			Tags->Add(MoveTemp(Tag));
		}
	}

private:
	const UObject* Object;
	TArray<UObject::FAssetRegistryTag>* Tags;
};
