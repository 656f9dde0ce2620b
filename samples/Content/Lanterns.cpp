#include "BlueprintMaker.h"
#include "Components/PointLightComponent.h"
#include "Components/SphereComponent.h"
#include "Components/StaticMeshComponent.h"
#include "Content.h"
#include "Curves/CurveFloat.h"
#include "Engine/StaticMesh.h"
#include "Engine/TimelineTemplate.h"
#include "GameFramework/Actor.h"
#include "Kismet/KismetMathLibrary.h"
#include "Kismet/KismetSystemLibrary.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "AssetMaker.h"
#include "PinTypes.h"
#include "Sound/SoundBase.h"

namespace
{
using Schema = UEdGraphSchema_K2;

void AddOil(FBlueprintMaker& Post)
{
	Post.Variable(TEXT("OilLeft"), PinTypes::Real(), TEXT("60.0"), TEXT("Oil"))
		.SetMetaData(TEXT("Tooltip"), TEXT("Millilitres that are left."));
	Post.Variable(TEXT("Capacity"), PinTypes::Real(), TEXT("120.0"), TEXT("Oil"));
	Post.Variable(TEXT("OilName"), PinTypes::Name(), TEXT("Amber"), TEXT("Oil")).PropertyFlags |= CPF_SaveGame;
	Post.Variable(
		TEXT("OilPrices"), PinTypes::Map(PinTypes::Name(), PinTypes::Real()), TEXT("((Amber, 1.500000),(Pale, 2.250000))"), TEXT("Oil"));
}

void AddLight(FBlueprintMaker& Post, const FLanternTypes& Types)
{
	Post.Variable(TEXT("bLit"), PinTypes::Bool(), TEXT("false"), TEXT("Light")).PropertyFlags |= CPF_Net;
	Post.Variable(TEXT("Weather"), PinTypes::Enum(Types.Weather), TEXT("NewEnumerator0"), TEXT("Light"));
	Post.Variable(
		TEXT("FlameColor"), PinTypes::Struct(TBaseStructure<FLinearColor>::Get()), TEXT("(R=1.0,G=0.72,B=0.33,A=1.0)"), TEXT("Light"));
	Post.Variable(TEXT("WickLevel"), PinTypes::Of(Schema::PC_Byte), TEXT("3"), TEXT("Light"));
	Post.Variable(TEXT("Kindled"), PinTypes::Of(Schema::PC_Int64), TEXT("0"), TEXT("Light"));
	Post.Variable(TEXT("GlassMesh"), PinTypes::Of(Schema::PC_SoftObject, UStaticMesh::StaticClass()), TEXT(""), TEXT("Light"));
	Post.Variable(TEXT("Hiss"), PinTypes::Object(USoundBase::StaticClass()), TEXT(""), TEXT("Light"));
}

void AddPlace(FBlueprintMaker& Post, const FLanternTypes& Types)
{
	Post.Variable(TEXT("PathName"), PinTypes::String(), TEXT("The Birch Walk"), TEXT("Place"));
	Post.Variable(TEXT("Plaque"), PinTypes::Of(Schema::PC_Text), TEXT("INVTEXT(\"Keep me lit\")"), TEXT("Place"));
	Post.Variable(TEXT("Lean"), PinTypes::Struct(TBaseStructure<FRotator>::Get()), TEXT("(Pitch=0.0,Yaw=0.0,Roll=4.0)"), TEXT("Place"));
	Post.Variable(TEXT("MothAnchor"), PinTypes::Struct(TBaseStructure<FTransform>::Get()), TEXT(""), TEXT("Place"));
	Post.Variable(
		TEXT("Neighbours"), PinTypes::In(EPinContainerType::Array, PinTypes::Object(AActor::StaticClass())), TEXT(""), TEXT("Place"));
	Post.Variable(TEXT("Paths"), PinTypes::In(EPinContainerType::Set, PinTypes::Name()), TEXT("(Birch,Fern)"), TEXT("Place"));
	Post.Variable(TEXT("Visitors"), PinTypes::In(EPinContainerType::Array, PinTypes::Struct(Types.MothTrait)), TEXT(""), TEXT("Moths"));
	Post.Variable(TEXT("MothClass"), PinTypes::Of(Schema::PC_Class, AActor::StaticClass()), TEXT(""), TEXT("Moths"));
	Post.Variable(TEXT("RareMoth"), PinTypes::Of(Schema::PC_SoftClass, AActor::StaticClass()), TEXT(""), TEXT("Moths"));
	Post.Variable(TEXT("MothsAtGlass"), PinTypes::Int(), TEXT("0"), TEXT("Moths"));
	Post.Variable(TEXT("OnGuttered"), PinTypes::Of(Schema::PC_MCDelegate));
}

void AddComponents(FBlueprintMaker& Post)
{
	USCS_Node* const Pole = Post.Component(TEXT("Pole"), UStaticMeshComponent::StaticClass());
	USCS_Node* const Flame = Post.Component(TEXT("Flame"), UPointLightComponent::StaticClass(), Pole, FVector(0.0, 0.0, 182.5));
	SetProperty(Flame->ComponentTemplate, TEXT("Intensity"), TEXT("1800.0"));
	USCS_Node* const Reach = Post.Component(TEXT("Reach"), USphereComponent::StaticClass(), Pole, FVector(0.0, 0.0, 90.0));
	SetProperty(Reach->ComponentTemplate, TEXT("SphereRadius"), TEXT("240.0"));
}

/** Gives back how much fitted, and puts it in. */
void AddRefill(FBlueprintMaker& Post)
{
	const FGraphMaker Refill = Post.Function(TEXT("Refill"));
	UK2Node* const Entry = Refill.Entry();
	UK2Node* const Result = Refill.Result(900, 0);
	FBlueprintMaker::Parameter(Entry, TEXT("Millilitres"), PinTypes::Real());
	FBlueprintMaker::Parameter(Result, TEXT("Poured"), PinTypes::Real());
	UClass* const Math = UKismetMathLibrary::StaticClass();
	UK2Node* const Room = Refill.Call(Math, TEXT("Subtract_DoubleDouble"), 250, 160);
	UK2Node* const Poured = Refill.Call(Math, TEXT("FClamp"), 450, 120);
	UK2Node* const Sum = Refill.Call(Math, TEXT("Add_DoubleDouble"), 500, 240);
	UK2Node* const Store = Refill.Set(TEXT("OilLeft"), 650, 0);
	const FName A = TEXT("A");
	const FName B = TEXT("B");
	const FName Value = Schema::PN_ReturnValue;
	FGraphMaker::Link(Refill.Get(TEXT("Capacity"), 50, 160), TEXT("Capacity"), Room, A);
	FGraphMaker::Link(Refill.Get(TEXT("OilLeft"), 50, 240), TEXT("OilLeft"), Room, B);
	FGraphMaker::Link(Entry, TEXT("Millilitres"), Poured, TEXT("Value"));
	FGraphMaker::Link(Room, Value, Poured, TEXT("Max"));
	FGraphMaker::Link(Refill.Get(TEXT("OilLeft"), 300, 280), TEXT("OilLeft"), Sum, A);
	FGraphMaker::Link(Poured, Value, Sum, B);
	FGraphMaker::Link(Sum, Value, Store, TEXT("OilLeft"));
	FGraphMaker::Link(Poured, Value, Result, TEXT("Poured"));
	FGraphMaker::Chain({ Entry, Store, Result });
}

void AddIsBright(FBlueprintMaker& Post)
{
	const FGraphMaker IsBright = Post.Function(TEXT("IsBright"));
	UK2Node* const Result = IsBright.Result(600, 0);
	FBlueprintMaker::Parameter(Result, TEXT("bBright"), PinTypes::Bool());
	UK2Node* const Enough = IsBright.Call(UKismetMathLibrary::StaticClass(), TEXT("Greater_DoubleDouble"), 300, 100);
	FGraphMaker::Link(IsBright.Get(TEXT("OilLeft"), 100, 100), TEXT("OilLeft"), Enough, TEXT("A"));
	FGraphMaker::SetValue(Enough, TEXT("B"), TEXT("15.0"));
	FGraphMaker::Link(Enough, Schema::PN_ReturnValue, Result, TEXT("bBright"));
	FGraphMaker::Chain({ IsBright.Entry(), Result });
}

/** At the start of play the lantern says where it stands; when it gutters, it waits, and says so. */
void AddEvents(FBlueprintMaker& Post)
{
	const FGraphMaker Events = Post.Events();
	UClass* const System = UKismetSystemLibrary::StaticClass();
	UK2Node* const Begin = Events.Event(AActor::StaticClass(), TEXT("ReceiveBeginPlay"), 0, 0);
	UK2Node* const IfLit = Events.Branch(250, 0);
	UK2Node* const Say = Events.Call(System, TEXT("PrintString"), 500, 0);
	FGraphMaker::Link(Events.Get(TEXT("bLit"), 100, 120), TEXT("bLit"), IfLit, TEXT("Condition"));
	FGraphMaker::Link(Events.Get(TEXT("PathName"), 300, 160), TEXT("PathName"), Say, TEXT("InString"));
	FGraphMaker::Chain({ Begin, IfLit, Say });

	UK2Node* const Gutter = Events.CustomEvent(TEXT("Gutter"), 0, 420);
	UK2Node* const Out = Events.Set(TEXT("bLit"), 250, 420);
	UK2Node* const Wait = Events.Call(System, TEXT("Delay"), 500, 420);
	UK2Node* const Complain = Events.Call(System, TEXT("PrintString"), 750, 420);
	FGraphMaker::SetValue(Out, TEXT("bLit"), TEXT("false"));
	FGraphMaker::SetValue(Wait, TEXT("Duration"), TEXT("1.5"));
	FGraphMaker::SetValue(Complain, TEXT("InString"), TEXT("The wick smokes."));
	FGraphMaker::Chain({ Gutter, Out, Wait, Complain });
}

void AddFlicker(FBlueprintMaker& Post)
{
	UTimelineTemplate* const Flicker = FBlueprintEditorUtils::AddNewTimeline(Post.Get(), TEXT("Flicker"));
	Flicker->TimelineLength = 2.0f;
	Flicker->bLoop = true;
	UCurveFloat* const Curve = NewObject<UCurveFloat>(Post.GetClass(), NAME_None, RF_Public);
	for (const FVector2D& Key : { FVector2D(0.0, 1.0), FVector2D(0.4, 0.82), FVector2D(1.1, 0.95), FVector2D(2.0, 1.0) })
	{
		Curve->FloatCurve.AddKey(static_cast<float>(Key.X), static_cast<float>(Key.Y));
	}
	FTTFloatTrack Track;
	Track.CurveFloat = Curve;
	Track.SetTrackName(TEXT("Brightness"), Flicker);
	Flicker->FloatTracks.Add(Track);
}

/** A lantern for exposed places: it holds more, and has a shutter. */
void MakeStormLantern(UClass* LanternPost)
{
	FBlueprintMaker Storm(TEXT("Lanterns/BP_StormLantern"), LanternPost);
	Storm.Variable(TEXT("ShutterAngle"), PinTypes::Real(), TEXT("35.0"), TEXT("Shutter")).PropertyFlags |= CPF_ExposeOnSpawn;
	Storm.Component(TEXT("Shutter"), UStaticMeshComponent::StaticClass(), nullptr, FVector(0.0, 0.0, 200.0));
	const FGraphMaker Close = Storm.Function(TEXT("CloseShutter"));
	UK2Node* const Shut = Close.Set(TEXT("ShutterAngle"), 300, 0);
	FGraphMaker::SetValue(Shut, TEXT("ShutterAngle"), TEXT("0.0"));
	FGraphMaker::Chain({ Close.Entry(), Shut });
	Storm.Compile();
	SetProperty(Storm.GetClass()->GetDefaultObject(), TEXT("Capacity"), TEXT("200.0"));
	SetProperty(Storm.GetClass()->GetDefaultObject(), TEXT("Weather"), TEXT("NewEnumerator2"));
	Storm.Save();
}
}

UClass* MakeLanterns(const FLanternTypes& Types)
{
	FBlueprintMaker Post(TEXT("Lanterns/BP_LanternPost"), AActor::StaticClass());
	AddOil(Post);
	AddLight(Post, Types);
	AddPlace(Post, Types);
	AddComponents(Post);
	verify(FBlueprintEditorUtils::ImplementNewInterface(Post.Get(), Types.Tendable));
	AddFlicker(Post);
	Post.Compile();
	AddRefill(Post);
	AddIsBright(Post);
	AddEvents(Post);
	Post.Save();
	MakeStormLantern(Post.GetClass());
	return Post.GetClass();
}
