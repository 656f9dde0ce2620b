#include "UObject/Package.h"

#include "ObjectConstruction.h"
#include "ObjectTable.h"
#include "UObject/UObjectGlobals.h"

UPackage* CreatePackage(const TCHAR* PackageName)
{
	UClass* const Class = UPackage::StaticClass(); // the first call makes packages itself
	FObjectTable::Get().GiveWay(nullptr, PackageName);
	UObject* const Found = FObjectTable::Get().Find(nullptr, PackageName);
	return static_cast<UPackage*>(Found ? Found : AllocateObject(Class, nullptr, PackageName, RF_Public));
}

UPackage* FindPackage(UObject*, const TCHAR* PackageName)
{
	return static_cast<UPackage*>(StaticFindObjectFast(UPackage::StaticClass(), nullptr, PackageName));
}

UPackage* GetTransientPackage()
{
	static UPackage* const Package = []
	{
		UPackage* const New = CreatePackage(TEXT("/Engine/Transient"));
		New->SetFlags(RF_Transient);
		New->AddToRoot();
		return New;
	}();
	return Package;
}
