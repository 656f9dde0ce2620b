#include "UObject/SoftObjectPtr.h"

UObject* FSoftObjectPtr::Get() const
{
	UObject* Object = Found.Get();
	if (!Object && !Path.IsNull())
	{
		Object = Path.ResolveObject();
		Found = Object;
	}
	return Object;
}

UObject* FSoftObjectPtr::LoadSynchronous() const
{
	UObject* const Object = Get();
	if (Object || Path.IsNull())
	{
		return Object;
	}
	Found = Path.TryLoad();
	return Found.Get();
}
