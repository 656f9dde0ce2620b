#pragma once

#include "Misc/FileHelper.h"

#include <string>
#include <string_view>

/** A file's bytes as text, by the rules of FFileHelper. */
FString DecodeText(std::string_view Bytes);

/** A text as a file's bytes. */
std::string EncodeText(const FString& Text, FFileHelper::EEncodingOptions Encoding, bool bWithMark);
