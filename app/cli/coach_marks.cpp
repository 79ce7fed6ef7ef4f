#include "cli/coach_marks.h"

#include <array>

#include "league/league.h"

namespace tipline::cli {
namespace {

int TenthsOf(std::string_view word) {
  constexpr std::array<std::string_view, 4> kShort{"6:00", "2:00", "1:00", "0:30"};
  constexpr std::array<std::string_view, 4> kLong{"six", "two", "one", "30"};
  constexpr int kTenths[] = {3600, 1200, 600, 300};
  for (std::size_t i = 0; i < kShort.size(); ++i) {
    if (word == kShort[i] || Squeezed(word) == kLong[i]) return kTenths[i];  // ":30" is a short "30"
  }
  return 0;
}

/// 1 to 4 for "2nd" or "2"; 0 for anything else.
int PeriodOf(std::string_view said) {
  constexpr std::array<std::string_view, 4> kNth{"1st", "2nd", "3rd", "4th"};
  for (std::size_t i = 0; i < kNth.size(); ++i) {
    if (said == kNth[i] || said == kNth[i].substr(0, 1)) return static_cast<int>(i) + 1;
  }
  return 0;
}

}  // namespace

WatchUntil ReadMark(const Words& words, int period) {
  WatchUntil mark;
  int below = 0;
  for (const auto text : WatchUntilWords::kTexts) {
    if (Squeezed(text) == Squeezed(Joined(words))) {
      mark.Set(text);
      return mark;
    }
  }
  for (const std::string& word : words) {
    const std::string said = Squeezed(word);
    if (const int tenths = TenthsOf(word)) {
      below = tenths;
    } else if (said == "end") {
      below = 1;
    } else if (const int named = PeriodOf(said)) {
      period = named;
    } else if (said != "period" && said != "minutes" && said != "minute" && said != "seconds") {
      return mark;
    }
  }
  for (const auto text : WatchUntilWords::kTexts) {
    WatchUntil candidate;
    candidate.Set(text);
    const WatchMark at = MarkOf(candidate);
    if (below > 0 && at.period == period && at.below == below) mark = candidate;
  }
  return mark;
}

bool Ahead(WatchUntil until, int period, int clock) {
  const WatchMark mark = MarkOf(until);
  if (mark.period == 0 || mark.period > league.rules.PeriodList) return false;
  return mark.period > period || (mark.period == period && clock >= mark.below);
}

}  // namespace tipline::cli
