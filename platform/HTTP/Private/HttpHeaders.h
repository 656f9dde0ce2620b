#pragma once

#include "HttpTransport.h"

namespace HttpHeaders
{
/** Names ignore case; INDEX_NONE when there is no such header. */
inline int32 IndexOf(const FHttpHeaders& Headers, const FString& Name)
{
	return Headers.IndexOfByPredicate([&Name](const TPair<FString, FString>& Each) { return Each.Key == Name; });
}

/** Empty when there is no such header. */
inline FString Find(const FHttpHeaders& Headers, const FString& Name)
{
	const int32 Index = IndexOf(Headers, Name);
	return Index == INDEX_NONE ? FString() : Headers[Index].Value;
}

inline TArray<FString> ToLines(const FHttpHeaders& Headers)
{
	TArray<FString> Lines;
	for (const TPair<FString, FString>& Header : Headers)
	{
		Lines.Add(Header.Key + TEXT(": ") + Header.Value);
	}
	return Lines;
}
}
