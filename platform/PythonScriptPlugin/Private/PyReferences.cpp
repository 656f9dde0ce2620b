#include "PyReferences.h"

#include "HAL/CriticalSection.h"
#include "Misc/ScopeLock.h"

namespace
{
FCriticalSection ReferencersLock;
TSet<FPyReferencer*> Referencers;
}

FPyReferencer::FPyReferencer()
{
	const FScopeLock Guard(&ReferencersLock);
	Referencers.Add(this);
}

FPyReferencer::~FPyReferencer()
{
	const FScopeLock Guard(&ReferencersLock);
	Referencers.Remove(this);
}

void UPyReferenceCollector::Start()
{
	if (!StaticFindObjectFast(StaticClass(), GetTransientPackage(), FName(TEXT("PyReferences"))))
	{
		NewObject<UPyReferenceCollector>(GetTransientPackage(), FName(TEXT("PyReferences")))->AddToRoot();
	}
}

void UPyReferenceCollector::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	if (Ar.IsObjectReferenceCollector())
	{
		const FScopeLock Guard(&ReferencersLock);
		for (FPyReferencer* const Each : Referencers)
		{
			Each->AddReferences(Ar);
		}
	}
}
