#include "Serialization/ArchiveReplaceObjectRef.h"

#include "UObject/Class.h"

FArchiveReplaceObjectRefBase::FArchiveReplaceObjectRefBase()
{
	bObjectReferenceCollector = true;
	bWeakReferences = true;
}

void FArchiveReplaceObjectRefBase::Run(UObject* InSearchObject)
{
	SearchObject = InSearchObject;
	Seen.Add(SearchObject);
	Pending.Add(SearchObject);
	while (!Pending.IsEmpty())
	{
		Pending.Pop()->Serialize(*this);
	}
}

FArchive& FArchiveReplaceObjectRefBase::operator<<(UObject*& Object)
{
	if (UObject* const* const Replacement = Object ? Replacements.Find(Object) : nullptr)
	{
		Object = *Replacement;
		++Count;
	}
	else if (Object && Object->IsIn(SearchObject) && !Seen.Contains(Object))
	{
		Seen.Add(Object);
		Pending.Add(Object);
	}
	return *this;
}
