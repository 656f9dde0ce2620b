#include "TestObject.h"

int32 UTestObject::Destroyed = 0;

FString UTestObject::Join(const TArray<FString>& Parts, const FString& Separator, int32& OutLength) const
{
	const FString Joined = FString::Join(Parts, *Separator);
	OutLength = Joined.Len();
	return Joined;
}

void UTestObject::Reset()
{
	Number = -1;
}

UTestBase::UTestBase(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, ClassSeenByConstructor(ObjectInitializer.GetClass()->GetFName())
{
}
