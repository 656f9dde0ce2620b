#pragma once

#include "ToolMenuSection.h"
#include "UObject/Object.h"
#include "ToolMenu.generated.h"

/** A menu or tool bar. */
UCLASS()
class TOOLMENUS_API UToolMenu : public UObject
{
	GENERATED_BODY()

public:
	FName MenuName;
	TArray<FToolMenuSection> Sections;

	/** The reference is valid until another section is added. */
	FToolMenuSection& FindOrAddSection(const FName InSectionName);
};
