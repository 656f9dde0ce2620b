#include "TestSupport.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "Tests"

namespace
{
TEST(Text, KnowsItsNamespaceAndKey)
{
	const struct
	{
		FText Text;
		const TCHAR *Shown, *Namespace, *Key;
		bool bInvariant;
	} Cases[] = {
		{ LOCTEXT("Hello", "Hello there"), u"Hello there", u"Tests", u"Hello", false },
		{ NSLOCTEXT("Other", "Bye", "Farewell"), u"Farewell", u"Other", u"Bye", false },
		{ INVTEXT("fixed"), u"fixed", nullptr, nullptr, true },
		{ FText::AsCultureInvariant(TEXT("fixed")), u"fixed", nullptr, nullptr, true },
		{ FText::FromString(TEXT("Größe")), u"Größe", nullptr, nullptr, false },
		{ FText::FromName(TEXT("Foo_1")), u"Foo_1", nullptr, nullptr, false },
		{ FText(), u"", nullptr, nullptr, false },
	};
	for (const auto& Case : Cases)
	{
		FString Namespace = TEXT("untouched");
		FString Key;
		EXPECT_EQ(Case.Text.ToString().Native(), Case.Shown);
		EXPECT_EQ(Case.Text.IsCultureInvariant(), Case.bInvariant);
		EXPECT_EQ(Case.Text.GetNamespaceAndKey(Namespace, Key), Case.Key != nullptr);
		EXPECT_EQ(Namespace.Native(), Case.Key ? Case.Namespace : TEXT("untouched"));
		EXPECT_EQ(Key.Native(), Case.Key ? Case.Key : TEXT(""));
	}
}

TEST(Text, EmptinessAndEquality)
{
	EXPECT_TRUE(FText().IsEmpty());
	EXPECT_TRUE(FText::GetEmpty().IsEmpty());
	EXPECT_FALSE(FText::FromString(TEXT(" \n")).IsEmpty());
	EXPECT_TRUE(FText::FromString(TEXT(" \n")).IsEmptyOrWhitespace());
	EXPECT_TRUE(LOCTEXT("A", "same").EqualTo(INVTEXT("same")));
	EXPECT_FALSE(INVTEXT("same").EqualTo(INVTEXT("Same")));
	FText Changed = INVTEXT("old");
	const FText Kept = Changed;
	Changed = INVTEXT("new");
	EXPECT_EQ(Kept.ToString().Native(), u"old");
}
}
