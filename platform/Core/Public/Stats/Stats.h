#pragma once

/** What a task is counted under; nothing is counted here. */
struct TStatId
{
};
