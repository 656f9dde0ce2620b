#pragma once

#include "Serialization/Archive.h"

/** The base of those that look at an object's references and nothing else. */
class FReferenceArchive : public FArchive
{
public:
	using FArchive::operator<<;
	FArchive& operator<<(FName&) override { return *this; }

protected:
	FReferenceArchive() { bObjectReferenceCollector = true; }
};
