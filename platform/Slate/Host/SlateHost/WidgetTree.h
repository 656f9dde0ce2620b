#pragma once

#include "Dom/JsonObject.h"

class SWidget;

/**
 * The tree as it is at this moment: {"type", "visible", "enabled", "slot", "props", "children"}. "slot" tells the place in the parent
 * ("size" and "value" where the parent has such a rule, "padding" [left, top, right, bottom], "halign", "valign"); "props" what the widget
 * has of "text", "hint", "color" [r, g, b, a], "font" {"name", "size"}, "style", "image", "padding", "min_width", "min_height", "width",
 * "read_only", "wrap", "justify", "brushes", "options", "selected".
 */
SLATE_API TSharedRef<FJsonObject> DescribeWidgetTree(const TSharedRef<SWidget>& Root);
