#include "JsonLine.h"

#include "Serialization/JsonSerializer.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace
{
std::FILE* Output = stdout;
}

void TakeStandardOutput()
{
	const int Kept = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
	std::FILE* const Stream = Kept < 0 ? nullptr : ::fdopen(Kept, "w");
	if (Stream)
	{
		Output = Stream;
		::dup2(STDERR_FILENO, STDOUT_FILENO);
	}
}

void WriteJsonLine(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	FJsonSerializer::Serialize(Object, TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text));
	std::string Line = FUtf8::Encode(Text);
	Line.push_back('\n');
	// A reader who has gone away is no concern of the conversation's.
	std::fwrite(Line.data(), 1, Line.size(), Output);
	std::fflush(Output);
}

TSharedPtr<FJsonObject> ReadJsonObject(const FString& Text, FString& OutError)
{
	const TSharedRef<TJsonReader<TCHAR>> Reader = TJsonReaderFactory<TCHAR>::Create(Text);
	TSharedPtr<FJsonObject> Object;
	if (!FJsonSerializer::Deserialize(Reader, Object))
	{
		OutError = Reader->GetErrorMessage().IsEmpty() ? FString(TEXT("The document is no object.")) : Reader->GetErrorMessage();
	}
	return Object;
}
