#pragma once

#include "CoreTypes.h"

/** Whether a widget shows, takes room, and takes the mouse. */
struct EVisibility
{
	static const EVisibility Visible;
	/** Takes no room. */
	static const EVisibility Collapsed;
	/** Takes its room. */
	static const EVisibility Hidden;

	constexpr EVisibility() = default;
	constexpr bool IsVisible() const { return Value == 0; }
	constexpr bool operator==(const EVisibility&) const = default;

private:
	constexpr explicit EVisibility(uint8 InValue)
		: Value(InValue)
	{
	}

	uint8 Value = 0;
};

inline constexpr EVisibility EVisibility::Visible{ 0 };
inline constexpr EVisibility EVisibility::Collapsed{ 1 };
inline constexpr EVisibility EVisibility::Hidden{ 2 };
