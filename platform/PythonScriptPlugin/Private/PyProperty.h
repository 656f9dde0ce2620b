#pragma once

#include "PyText.h"
#include "UObject/UnrealType.h"

// An object's properties as editors see them. What Python raises is thrown.

/** Refuses what neither editors nor Blueprints see. */
py::object GetEditorProperty(const UObject& Object, const FString& Name);
/**
 * As a change in the details panel: recorded in the open transaction, the object told, and what is made after the object follows when it
 * had the same value. Refuses what the panel refuses. Nothing happens when the value is the same or none for the property.
 */
void SetEditorProperty(UObject& Object, const FString& Name, py::handle Value);
