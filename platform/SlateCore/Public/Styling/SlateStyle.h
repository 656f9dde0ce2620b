#pragma once

#include "Styling/ISlateStyle.h"

/** A set that is filled by its owner, who registers it to be found by name. */
class SLATECORE_API FSlateStyleSet : public ISlateStyle
{
public:
	explicit FSlateStyleSet(const FName& InStyleSetName);
	~FSlateStyleSet() override;
	UE_NONCOPYABLE(FSlateStyleSet)

	const FName& GetStyleSetName() const override { return StyleSetName; }

	void SetContentRoot(const FString& InContentRootDir) { ContentRootDir = InContentRootDir; }
	/** @param Extension with its dot */
	FString RootToContentDir(const FString& RelativePath, const TCHAR* Extension) const
	{
		return ContentRootDir / RelativePath + Extension;
	}

	/** The set owns the brush from now on. One of the same name is replaced. */
	void Set(const FName PropertyName, FSlateBrush* InBrush) { Brushes.Add(PropertyName, MakeShareable(InBrush)); }
	template <typename WidgetStyleType>
	requires std::is_base_of_v<FSlateWidgetStyle, WidgetStyleType>
	void Set(const FName PropertyName, const WidgetStyleType& InStyle)
	{
		WidgetStyles.Add(PropertyName, TSharedPtr<FSlateWidgetStyle>(MakeShared<WidgetStyleType>(InStyle)));
	}

	const FSlateBrush* GetBrush(const FName PropertyName) const override;
	FName FindKey(const void* Item) const override;

protected:
	const FSlateWidgetStyle* FindWidgetStyle(const FName& StyleName) const override;

private:
	const FName StyleSetName;
	FString ContentRootDir;
	TMap<FName, TSharedPtr<FSlateBrush>> Brushes;
	TMap<FName, TSharedPtr<FSlateWidgetStyle>> WidgetStyles;
};
