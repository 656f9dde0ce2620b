#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"

/** The reflected types of modules, moved out of the way of others with the same names. */
class FRetiredTypes
{
public:
	/** Finds them; they stay where they are. @param Modules as in "/Script/<Module>" */
	explicit FRetiredTypes(const TArray<FName>& Modules);

	/** Moves them, and the classes' default objects, to the transient package. */
	void MoveAway();
	/** Moves what has their place now away, and them back. */
	void MoveBack();
	/** What has the type's place now; null when nothing of that kind has. */
	UField* FindSuccessor(const UField* Type) const;

	/** Classes, structs, enums, and the signatures of delegates. */
	const TArray<UField*>& GetTypes() const { return Types; }
	bool Contains(const UObject* Object) const { return Homes.Contains(const_cast<UObject*>(Object)); }
	/** The type's name from before. */
	FString GetName(const UField* Type) const { return Homes[const_cast<UField*>(Type)].Value.ToString(); }

private:
	static TArray<UField*> FindTypes(UObject* Package);

	TArray<UObject*> Packages;
	TArray<UField*> Types;
	/** Place and name of each. */
	TMap<UObject*, TPair<UObject*, FName>> Homes;
};
