#pragma once

/** Where a widget is on the screen. Events carry it; this tree has no places of its own: what shows it arranges it. */
struct FGeometry
{
};
