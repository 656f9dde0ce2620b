#include "Misc/DateTime.h"
#include "Misc/Guid.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

TEST(Rotator, AndQuaternionAreTheSameRotation)
{
	struct
	{
		FRotator Rotator;
		/** Where forward and up point after it. */
		FVector Forward;
		FVector Up;
	} const Cases[] = {
		{ FRotator(0, 0, 0), FVector(1, 0, 0), FVector(0, 0, 1) },
		{ FRotator(0, 90, 0), FVector(0, 1, 0), FVector(0, 0, 1) },
		{ FRotator(90, 0, 0), FVector(0, 0, 1), FVector(-1, 0, 0) },
		{ FRotator(-90, 0, 0), FVector(0, 0, -1), FVector(1, 0, 0) },
		{ FRotator(0, 0, 90), FVector(1, 0, 0), FVector(0, 1, 0) },
		{ FRotator(0, 180, 90), FVector(-1, 0, 0), FVector(0, -1, 0) },
		{ FRotator(30, -120, 45), FRotator(30, -120, 0).Vector(), FQuat(FRotator(30, -120, 45)).RotateVector(FVector::UpVector) },
	};
	for (const auto& Each : Cases)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*Each.Rotator.ToString()));
		const FQuat Quat(Each.Rotator);
		EXPECT_TRUE(Quat.RotateVector(FVector::ForwardVector).Equals(Each.Forward));
		EXPECT_TRUE(Quat.RotateVector(FVector::UpVector).Equals(Each.Up));
		EXPECT_TRUE(FQuat(Quat.Rotator()).Equals(Quat));
		EXPECT_TRUE(Quat.UnrotateVector(Each.Forward).Equals(FVector::ForwardVector));
	}
	EXPECT_TRUE(FRotator(30, -120, 45).Quaternion().Rotator().Equals(FRotator(30, 240, 45)));
	EXPECT_TRUE(FQuat(FVector::UpVector, std::numbers::pi / 2).Equals(FQuat(FRotator(0, 90, 0))));
	EXPECT_TRUE(FVector(1, 1, 0).Rotation().Equals(FRotator(0, 45, 0)));
}

TEST(Transform, IsScaleThenRotationThenTranslation)
{
	const FTransform Child(FRotator(0, 90, 0), FVector(10, 0, 0), FVector(2));
	const FTransform Parent(FRotator(0, 0, 90), FVector(0, 0, 5), FVector(3));
	const FVector Point(1, 2, 3);
	EXPECT_TRUE(Child.TransformPosition(FVector(1, 0, 0)).Equals(FVector(10, 2, 0)));
	const FTransform Both = Child * Parent;
	EXPECT_TRUE(Both.TransformPosition(Point).Equals(Parent.TransformPosition(Child.TransformPosition(Point))));
	EXPECT_TRUE(Both.GetRelativeTransform(Parent).Equals(Child));
	EXPECT_TRUE((Both * Both.Inverse()).Equals(FTransform::Identity));
	EXPECT_TRUE(Both.InverseTransformPosition(Both.TransformPosition(Point)).Equals(Point));
	EXPECT_EQ(FTransform(FQuat(), FVector(), FVector(0.0)).InverseTransformPosition(Point), FVector()) << "not infinite";
}

TEST(Color, GoesThroughTheScreensCurve)
{
	EXPECT_EQ(FLinearColor(1.0f, 0.5f, 0.0f).ToFColor(false), FColor(255, 128, 0));
	EXPECT_EQ(FLinearColor(1.0f, 0.5f, 0.0f).ToFColor(true), FColor(255, 188, 0));
	EXPECT_EQ(FLinearColor(2.0f, -1.0f, std::nanf("")).ToFColor(true), FColor(255, 0, 0));
	for (int32 Channel = 0; Channel < 256; ++Channel)
	{
		const FColor Color(static_cast<uint8>(Channel), 0, 0);
		EXPECT_EQ(FLinearColor(Color).ToFColor(true), Color);
	}
}

TEST(Guid, IsReadInEachOfItsFormats)
{
	const FGuid Guid(0x01234567, 0x89abcdef, 0x00000001, 0xfedcba98);
	for (const EGuidFormats Format :
		{ EGuidFormats::Digits, EGuidFormats::DigitsLower, EGuidFormats::DigitsWithHyphens, EGuidFormats::DigitsWithHyphensLower })
	{
		FGuid Read;
		EXPECT_TRUE(FGuid::Parse(Guid.ToString(Format), Read));
		EXPECT_EQ(Read, Guid);
	}
	for (const TCHAR* const Bad : { TEXT(""), TEXT("0123456789ABCDEF00000001FEDCBA9G"), TEXT("0123456789ABCDEF00000001FEDCBA989"),
			 TEXT("01234567-89AB-CDEF-0000-0001FEDCBA9-"), TEXT("01234567-89AB-CDEF-00000001-FEDCBA98") })
	{
		FGuid Read(1, 2, 3, 4);
		EXPECT_FALSE(FGuid::Parse(Bad, Read)) << TCHAR_TO_UTF8(Bad);
		EXPECT_EQ(Read, FGuid(1, 2, 3, 4));
	}
}

TEST(TimeText, IsReadAsItIsWritten)
{
	FDateTime Time;
	EXPECT_TRUE(FDateTime::Parse(TEXT("2024.02.29-23.59.59"), Time));
	EXPECT_EQ(Time, FDateTime(2024, 2, 29, 23, 59, 59));
	for (const TCHAR* const Bad : { TEXT(""), TEXT("2023.02.29-12.00.00"), TEXT("2023.02.28-24.00.00"), TEXT("2023.02.28"),
			 TEXT("2023.02.28-12.00.00x"), TEXT("0000.01.01-00.00.00"), TEXT("2023.-1.28-12.00.00") })
	{
		EXPECT_FALSE(FDateTime::Parse(Bad, Time)) << TCHAR_TO_UTF8(Bad);
	}
	for (const int64 Ticks : { int64(0), int64(1), int64(-1), ETimespan::TicksPerDay, -3 * ETimespan::TicksPerDay - 12345678 })
	{
		FTimespan Span;
		EXPECT_TRUE(FTimespan::Parse(FTimespan(Ticks).ToString(), Span));
		EXPECT_EQ(Span.GetTicks(), Ticks);
	}
}
