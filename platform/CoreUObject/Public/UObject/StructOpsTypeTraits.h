#pragma once

/** What a struct does by itself, for TStructOpsTypeTraits. */
template <typename T>
struct TStructOpsTypeTraitsBase2
{
	enum
	{
		/** Values are written and read by its bool Serialize(FArchive&), or by its "<<" when it has no such function. */
		WithSerializer = false,
		/** That serializer has object references, also where the properties have none. */
		WithAddStructReferencedObjects = false,
		/** Values are equal when its "==" says so. */
		WithIdenticalViaEquality = false,
		/** bool ExportTextItem(FString&, const T& Default, UObject* Parent, int32 PortFlags, UObject* Root) const */
		WithExportTextItem = false,
		/** bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice*) */
		WithImportTextItem = false,
	};
};

/** To be specialised, behind the struct, for one that does more by itself than its properties tell. */
template <typename T>
struct TStructOpsTypeTraits : TStructOpsTypeTraitsBase2<T>
{
};
