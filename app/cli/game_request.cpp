#include "cli/game_request.h"

#include <array>
#include <optional>

#include "cli/coach_words.h"
#include "cli/terminal.h"

namespace tipline::cli {
namespace {

std::optional<int> NumberOf(std::string_view text) {
  if (text.empty() || text.size() > 3) return {};
  int number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return {};
    number = number * 10 + (c - '0');
  }
  return number;
}

struct Pair {
  int first, second;
};
/// Two numbers with a mark between: "1:30", "100-98".
std::optional<Pair> PairOf(std::string_view text, char between) {
  const auto at = text.find(between);
  if (at == std::string_view::npos) return {};
  const auto first = NumberOf(text.substr(0, at)), second = NumberOf(text.substr(at + 1));
  if (!first || !second) return {};
  return Pair{*first, *second};
}

bool Enter(const Words& words, HCGameTeams2008& screen) {
  if (words.size() != 4 || (words[0][0] != 'P' && words[0][0] != 'p')) return false;
  constexpr std::array<std::string_view, 3> kSituations{"jump", "visitor", "home"};
  const auto period = NumberOf(std::string_view(words[0]).substr(1));
  const auto clock = PairOf(words[1], ':');
  const auto points = PairOf(words[2], '-');
  const int situation = ChoiceOf(words[3], kSituations);
  const auto periods = static_cast<int>(screen.ScenarioPeriodList.size());
  if (!period || *period < 1 || *period > periods || !clock || !points || situation < 0) return false;
  screen.ScenarioPeriod = *period - 1;
  screen.SetScenarioMinutes(clock->first);
  screen.SetScenarioSeconds(clock->second);
  screen.SetScenarioPoints(1, points->first);
  screen.SetScenarioPoints(2, points->second);
  screen.ScenarioSituation = situation;
  // What the boxes had to change was no time of a period.
  return screen.ScenarioMinutes == clock->first && screen.ScenarioSeconds == clock->second &&
         clock->first + clock->second > 0;
}

}  // namespace

bool EnterScenario(const std::string& text, HCGameTeams2008& screen) {
  if (Enter(SplitWords(text), screen)) return true;
  Refuse("\"" + text + "\" is no scenario; write period (P1 to P" +
         std::to_string(screen.ScenarioPeriodList.size()) + "), clock (up to " +
         std::to_string(league.rules.MinuteList) +
         ":00), points of visitor and home, and visitor, home or jump, such as P4 1:30 100-98 home");
  return false;
}

bool EnterDate(const std::string& text, HCGameTeams2008& screen) {
  MonthDay date;
  if (!ReadDate(text, date)) return false;
  screen.PickDate(date.month, date.day, screen.CalendarYear);
  return true;
}

}  // namespace tipline::cli
