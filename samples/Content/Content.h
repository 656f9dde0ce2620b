#pragma once

class UClass;
class UEnum;
class UScriptStruct;

// The sample game's assets, each group made and saved by one function. Those that need others take them.

/** What the lanterns' Blueprints share. */
struct FLanternTypes
{
	/** The weather of the night. */
	UEnum* Weather;
	/** What sets a moth apart. */
	UScriptStruct* MothTrait;
	/** An interface: something that the keeper tends. */
	UClass* Tendable;
};

FLanternTypes MakeTypes();
/** @return the class of a lantern on its post */
UClass* MakeLanterns(const FLanternTypes& Types);
/** The tree that a moth lives by, with its blackboard and the nodes made for it; and the moth's animation. */
void MakeMoths(const FLanternTypes& Types, UClass* LanternPost);
/** The keeper, and the map with the hollow's posts. */
void MakeHollow(const FLanternTypes& Types, UClass* LanternPost);
