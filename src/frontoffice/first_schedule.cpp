#include "frontoffice/first_schedule.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

#include "base/random.h"
#include "league/league.h"

namespace tipline {
namespace {

/// Numbers of divisional meetings that fit into the season, the most natural first.
std::vector<int> DivisionalChoices(const std::vector<int>& teams, int games) {
  Table<int, 1, kDivisions> size{};
  for (const int team : teams) ++size[DivisionOf(team)];
  const int rivals = *std::max_element(size.begin(), size.end()) - 1;
  const int opponents = static_cast<int>(teams.size()) - 1;
  const int natural = (games / opponents + 2) / 2 * 2;  // more than the even share, and even
  std::vector<int> choices;
  for (int meetings = 0; meetings <= 20; meetings += 2) {
    if (meetings == 0 || meetings * rivals <= games) choices.push_back(meetings);
  }
  // Rivals who never meet are the last resort.
  const auto distance = [natural](int meetings) {
    return meetings == 0 ? 100 : std::abs(meetings - natural);
  };
  std::stable_sort(choices.begin(), choices.end(),
                   [distance](int a, int b) { return distance(a) < distance(b); });
  return choices;
}

ScheduleDraft DrawFirstSchedule(const std::vector<int>& teams, int games) {
  std::optional<ScheduleDraft> best;
  for (const int divisional : DivisionalChoices(teams, games)) {
    for (const int most : {2, 1}) {
      auto draft = DrawSchedule({games, divisional, most}, teams);
      if (draft.missing == 0) return draft;
      // More games than asked for are no better than as many missing.
      if (!best || std::abs(draft.missing) < std::abs(best->missing)) best = std::move(draft);
    }
  }
  return *best;
}

}  // namespace

FirstSchedule MakeFirstSchedule(std::vector<int> teams, int games, int year, std::uint64_t seed) {
  const auto problem = ScheduleRequestProblem(static_cast<int>(teams.size()), games, 0);
  if (!problem.empty()) return {{}, "No schedule was made: " + problem};
  std::sort(teams.begin(), teams.end());
  const Random before = random;
  random.Seed(seed);
  const ScheduleDraft draft = DrawFirstSchedule(teams, games);
  random = before;
  const std::string each = draft.missing == 0 ? ", " + std::to_string(games) + " for a team" : "";
  return {ScheduleRows(draft, year),
          std::to_string(draft.games.size()) + " games are scheduled" + each + ". " + ScheduleMessage(draft)};
}

}  // namespace tipline
