#pragma once

#include "Internationalization/Text.h"

#define NSLOCTEXT(Namespace, Key, Source) FText::Localized(TEXT(Namespace), TEXT(Key), TEXT(Source))
/** Takes the namespace from LOCTEXT_NAMESPACE, which the source file defines. */
#define LOCTEXT(Key, Source) NSLOCTEXT(LOCTEXT_NAMESPACE, Key, Source)
#define INVTEXT(Source) FText::AsCultureInvariant(TEXT(Source))
