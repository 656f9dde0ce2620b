#pragma once

#include "UObject/Object.h"

/** An object of a class with some interface, and where in the object the C++ part of the interface lies. */
class COREUOBJECT_API FScriptInterface
{
public:
	UObject* GetObject() const { return Object; }
	/** Null when the class has the interface without C++, as a Blueprint does. */
	void* GetInterface() const { return Interface; }
	explicit operator bool() const { return Object != nullptr; }
	/** @return false, and nothing changes, when the object's class does not have the interface */
	bool Set(UObject* InObject, const UClass* InterfaceClass);

	bool operator==(const FScriptInterface& Other) const { return Object == Other.Object; }
	friend uint32 GetTypeHash(const FScriptInterface& Value) { return GetTypeHash(Value.Object); }

private:
	UObject* Object = nullptr;
	void* Interface = nullptr;
};

/** An object with the interface InterfaceType ("IName"), or null. */
template <typename InterfaceType>
class TScriptInterface : public FScriptInterface
{
public:
	TScriptInterface() = default;
	TScriptInterface(std::nullptr_t) {}
	/** An object without the interface becomes null. */
	TScriptInterface(UObject* InObject) { Set(InObject, InterfaceType::UClassType::StaticClass()); }

	InterfaceType* GetInterface() const { return static_cast<InterfaceType*>(FScriptInterface::GetInterface()); }
	/** Only for an object whose class has the interface in C++. */
	InterfaceType* operator->() const { return GetInterface(); }
};
