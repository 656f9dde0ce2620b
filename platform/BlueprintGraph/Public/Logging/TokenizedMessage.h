#pragma once

#include "UObject/WeakObjectPtrTemplates.h"

namespace EMessageSeverity
{
enum Type : int
{
	Error,
	Warning,
	Info,
};
}

/** A line for the user, and the object that it is about. */
class FTokenizedMessage
{
public:
	FTokenizedMessage(EMessageSeverity::Type InSeverity, const FText& InText, UObject* InSubject)
		: Severity(InSeverity)
		, Text(InText)
		, Subject(InSubject)
	{
	}

	EMessageSeverity::Type GetSeverity() const { return Severity; }
	const FText& ToText() const { return Text; }
	/** The first object that the text names, for instance the node that is wrong; null for none, or one that is gone. */
	UObject* GetSubject() const { return Subject.Get(); }

private:
	EMessageSeverity::Type Severity;
	FText Text;
	TWeakObjectPtr<UObject> Subject;
};
