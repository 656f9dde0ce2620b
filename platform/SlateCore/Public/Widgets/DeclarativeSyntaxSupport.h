#pragma once

#include "Widgets/SWidget.h"

// How trees are written down:
//
//   SNew(SBorder).Padding(8).BorderBackgroundColor(this, &SPanel::GetColor)[ SAssignNew(Text, STextBlock).Text(LOCTEXT("Key", "Text")) ]
//
// A widget class has a record of arguments between SLATE_BEGIN_ARGS and SLATE_END_ARGS and an operation Construct that takes it.

/** The arguments that every widget has, in a form that goes on to the class's own. */
template <typename WidgetType>
struct TSlateBaseNamedArgs : FSlateBaseNamedArgs
{
	using WidgetArgsType = typename WidgetType::FArguments;

	WidgetArgsType& Me() { return static_cast<WidgetArgsType&>(*this); }

#define SLATE_PRIVATE_BIND(AttrType, AttrName)                                                                                             \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute)                                                                             \
	{                                                                                                                                      \
		_##AttrName = MoveTemp(InAttribute);                                                                                               \
		return this->Me();                                                                                                                 \
	}                                                                                                                                      \
	template <typename OwnerType, typename MethodType, typename... VarTypes>                                                               \
	requires std::is_member_function_pointer_v<MethodType> WidgetArgsType& AttrName(OwnerType* Owner, MethodType Method, VarTypes... Vars) \
	{                                                                                                                                      \
		return AttrName(TAttribute<AttrType>::CreateSP(Owner, Method, Vars...));                                                           \
	}                                                                                                                                      \
	template <typename FunctorType>                                                                                                        \
	WidgetArgsType& AttrName##_Lambda(FunctorType&& Functor)                                                                               \
	{                                                                                                                                      \
		return AttrName(TAttribute<AttrType>::CreateLambda(std::forward<FunctorType>(Functor)));                                           \
	}

	SLATE_PRIVATE_BIND(bool, IsEnabled)
	SLATE_PRIVATE_BIND(EVisibility, Visibility)
	SLATE_PRIVATE_BIND(FText, ToolTipText)
};

#define SLATE_BEGIN_ARGS(WidgetType)                                                                                                       \
public:                                                                                                                                    \
	struct FArguments : public TSlateBaseNamedArgs<WidgetType>                                                                             \
	{                                                                                                                                      \
		using WidgetArgsType = FArguments;                                                                                                 \
		FArguments()

#define SLATE_END_ARGS()                                                                                                                   \
	}                                                                                                                                      \
	;

/** A value, or a function that is asked whenever the value is needed. */
#define SLATE_ATTRIBUTE(AttrType, AttrName)                                                                                                \
	TAttribute<AttrType> _##AttrName;                                                                                                      \
	SLATE_PRIVATE_BIND(AttrType, AttrName)

#define SLATE_ARGUMENT(ArgType, ArgName)                                                                                                   \
	ArgType _##ArgName{};                                                                                                                  \
	WidgetArgsType& ArgName(ArgType InArgument)                                                                                            \
	{                                                                                                                                      \
		_##ArgName = MoveTemp(InArgument);                                                                                                 \
		return this->Me();                                                                                                                 \
	}

/** A style by its address, or by its name in a style set; it must outlive the widget. */
#define SLATE_STYLE_ARGUMENT(ArgType, ArgName)                                                                                             \
	const ArgType* _##ArgName = nullptr;                                                                                                   \
	WidgetArgsType& ArgName(const ArgType* InStyle)                                                                                        \
	{                                                                                                                                      \
		_##ArgName = InStyle;                                                                                                              \
		return this->Me();                                                                                                                 \
	}                                                                                                                                      \
	WidgetArgsType& ArgName(const ISlateStyle* InSlateStyle, const FName& StyleName)                                                       \
	{                                                                                                                                      \
		return ArgName(&InSlateStyle->template GetWidgetStyle<ArgType>(StyleName));                                                        \
	}

#define SLATE_EVENT(DelegateName, EventName)                                                                                               \
	DelegateName _##EventName;                                                                                                             \
	WidgetArgsType& EventName(DelegateName InDelegate)                                                                                     \
	{                                                                                                                                      \
		_##EventName = MoveTemp(InDelegate);                                                                                               \
		return this->Me();                                                                                                                 \
	}                                                                                                                                      \
	template <typename OwnerType, typename MethodType, typename... VarTypes>                                                               \
	requires std::is_member_function_pointer_v<MethodType> WidgetArgsType& EventName(                                                      \
		OwnerType* Owner, MethodType Method, VarTypes... Vars)                                                                             \
	{                                                                                                                                      \
		return EventName(DelegateName::CreateSP(Owner, Method, Vars...));                                                                  \
	}                                                                                                                                      \
	template <typename FunctorType>                                                                                                        \
	WidgetArgsType& EventName##_Lambda(FunctorType&& Functor)                                                                              \
	{                                                                                                                                      \
		return EventName(DelegateName::CreateLambda(std::forward<FunctorType>(Functor)));                                                  \
	}

/** The widget in square brackets. */
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName)                                                                                      \
	TSharedPtr<SWidget> _##SlotName;                                                                                                       \
	WidgetArgsType& operator[](const TSharedRef<SWidget>& InChild)                                                                         \
	{                                                                                                                                      \
		_##SlotName = InChild;                                                                                                             \
		return this->Me();                                                                                                                 \
	}

/** Any number of slots behind "+"; Construct takes them out of the record. */
#define SLATE_SLOT_ARGUMENT(SlotType, SlotName)                                                                                            \
	mutable TArray<typename SlotType::FSlotArguments> _##SlotName;                                                                         \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments& InSlot)                                                                   \
	{                                                                                                                                      \
		_##SlotName.Add(MoveTemp(InSlot));                                                                                                 \
		return this->Me();                                                                                                                 \
	}                                                                                                                                      \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments&& InSlot)                                                                  \
	{                                                                                                                                      \
		return *this + InSlot;                                                                                                             \
	}

/** A widget about to be made: the arguments follow. */
template <typename WidgetType>
class TSlateDecl
{
public:
	explicit TSlateDecl(const ANSICHAR* InTypeName)
		: TypeName(InTypeName)
	{
	}

	/** The variable holds the widget already while it is constructed. */
	template <typename ExposeAsWidgetType>
	TSlateDecl& Expose(TSharedPtr<ExposeAsWidgetType>& OutVariable)
	{
		OutVariable = Widget;
		return *this;
	}

	TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& Args) const
	{
		Widget->SWidgetConstruct(TypeName, Args);
		Widget->Construct(Args);
		return Widget;
	}

private:
	const ANSICHAR* TypeName;
	TSharedRef<WidgetType> Widget = MakeShared<WidgetType>();
};

#define SNew(WidgetType) TSlateDecl<WidgetType>(#WidgetType) <<= WidgetType::FArguments()
#define SAssignNew(ExposeAs, WidgetType) TSlateDecl<WidgetType>(#WidgetType).Expose(ExposeAs) <<= WidgetType::FArguments()
