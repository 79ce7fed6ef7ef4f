#pragma once
// The marks up to which both sides play on alone.
#include "cli/coach_words.h"
#include "engine/words.h"

namespace tipline::cli {

/// The mark that is meant, by its own text or by period and clock: "end 2", "4th 2:00", "2:00" in `period`.
/// "NONE" when there is none.
WatchUntil ReadMark(const Words& words, int period);
/// The mark belongs to regulation and lies ahead of that time; `clock` in tenths left.
bool Ahead(WatchUntil until, int period, int clock);

}  // namespace tipline::cli
