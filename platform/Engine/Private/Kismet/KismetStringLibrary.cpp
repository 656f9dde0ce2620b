#include "Kismet/KismetStringLibrary.h"

TArray<FString> UKismetStringLibrary::ParseIntoArray(const FString& SourceString, const FString& Delimiter, const bool CullEmptyStrings)
{
	TArray<FString> Parts;
	SourceString.ParseIntoArray(Parts, *Delimiter, CullEmptyStrings);
	return Parts;
}
