#include "InputCoreTypes.h"

const FKey EKeys::BackSpace("BackSpace");
const FKey EKeys::Tab("Tab");
const FKey EKeys::Enter("Enter");
const FKey EKeys::Escape("Escape");
const FKey EKeys::SpaceBar("SpaceBar");
const FKey EKeys::PageUp("PageUp");
const FKey EKeys::PageDown("PageDown");
const FKey EKeys::End("End");
const FKey EKeys::Home("Home");
const FKey EKeys::Left("Left");
const FKey EKeys::Up("Up");
const FKey EKeys::Right("Right");
const FKey EKeys::Down("Down");
const FKey EKeys::Delete("Delete");
const FKey EKeys::LeftShift("LeftShift");
const FKey EKeys::RightShift("RightShift");

namespace
{
TSet<FName> MakeKeyNames()
{
	TSet<FName> Names;
	for (const FKey& Key :
		{ EKeys::BackSpace, EKeys::Tab, EKeys::Enter, EKeys::Escape, EKeys::SpaceBar, EKeys::PageUp, EKeys::PageDown, EKeys::End,
			EKeys::Home, EKeys::Left, EKeys::Up, EKeys::Right, EKeys::Down, EKeys::Delete, EKeys::LeftShift, EKeys::RightShift })
	{
		Names.Add(Key.GetFName());
	}
	for (const ANSICHAR* Digit : { "Zero", "One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine" })
	{
		Names.Add(Digit);
	}
	for (TCHAR Letter = TEXT('A'); Letter <= TEXT('Z'); ++Letter)
	{
		Names.Add(FName(FString::Chr(Letter)));
	}
	return Names;
}
}

bool FKey::IsValid() const
{
	static const TSet<FName> Names = MakeKeyNames();
	return Names.Contains(KeyName);
}
