// Any text as the value of a property of each kind: what is taken is written and read again as the same value.

#include "Containers/StringConv.h"
#include "TestKinds.h"
#include "UObject/UnrealType.h"

#include <cstdlib>

namespace
{
/** One object of each class, and the properties of both. */
struct FTargets
{
	FTargets()
	{
		for (const UClass* const Class : { UTestObject::StaticClass(), UTestKinds::StaticClass() })
		{
			UObject* const Object = NewObject<UObject>(GetTransientPackage(), Class);
			Object->AddToRoot();
			for (TFieldIterator<FProperty> Property(Class); Property; ++Property)
			{
				All.Add({ *Property, Object });
			}
		}
	}

	TArray<TPair<FProperty*, UObject*>> All;
};

bool Import(const FProperty* Property, UObject* Object, const FString& Text)
{
	void* const Value = Property->ContainerPtrToValuePtr<void>(Object);
	Property->ClearValue(Value);
	return Property->ImportText_Direct(*Text, Value, Object, PPF_Delimited, nullptr) != nullptr;
}

FString Export(const FProperty* Property, UObject* Object)
{
	FString Text;
	Property->ExportTextItem_InContainer(Text, Object, nullptr, Object, PPF_Delimited);
	return Text;
}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, SIZE_T Size)
{
	static const FTargets Targets;
	if (Size == 0)
	{
		return 0;
	}
	const auto& [Property, Object] = Targets.All[Data[0] % Targets.All.Num()];
	const FString Text = FUtf8::Decode({ reinterpret_cast<const char*>(Data + 1), Size - 1 });
	if (Import(Property, Object, Text))
	{
		const FString Written = Export(Property, Object);
		if (!Import(Property, Object, Written) || !Export(Property, Object).Equals(Written))
		{
			std::abort();
		}
	}
	return 0;
}
