#include "TestSubject.h"

#include "Modules/ModuleManager.h"
#include "UObject/UnrealType.h"

bool UTestSubject::FindWord(const FName& Word, int32& OutIndex, FString& OutText) const
{
	OutIndex = Words.Contains(Word) ? Words.Num() : 0;
	OutText = Word.ToString();
	return Words.Contains(Word);
}

FString UTestSubject::JoinWords(const TArray<FString>& Parts, const FString& Between)
{
	return FString::Join(Parts, *Between);
}

void UTestSubject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Changed.Add(PropertyChangedEvent.GetPropertyName());
}

IMPLEMENT_MODULE(FDefaultModuleImpl, TestSubjects)
