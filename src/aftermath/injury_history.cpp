#include "aftermath/injury_history.h"

#include "aftermath/text_lines.h"
#include "base/calendar.h"
#include "base/numbers.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/injury_names.h"

namespace tipline {
namespace {

std::string DateWords(int seasonMonth, int day) {
  return std::string(MonthName(CalendarMonth(Clamp(seasonMonth, 1, 12)))) + " " + std::to_string(day);
}

std::string PositionOfMan(const PlayerRecord& p) {
  const int position = p.PrimaryPosition;
  return position >= 1 && position <= kPositions ? league.PositionLabel[position] : "";
}

std::string FullName(const PlayerRecord& p) { return p.FirstName.Str() + " " + p.LastName.Str(); }

std::filesystem::path InjuriesFile() { return LeagueFile("HcInjuryHistory"); }

OutMan OutManOf(const TeamRecord& team, int teamNo, const PlayerRecord& p) {
  OutMan man;
  man.TeamNo = teamNo;
  man.RecNo = p.RecNo;
  man.Position = PositionOfMan(p);
  man.Name = FullName(p);
  man.Abbrev = team.Abbrev.Str();
  man.SuspensionGames = p.SuspensionGames;
  if (p.InjuryReturnMonth < 1 || p.InjuryReturnMonth > 12) return man;
  man.ReturnMonth = p.InjuryReturnMonth;
  man.ReturnDay = p.InjuryReturnDay;
  man.MayReturnEarly = p.InjurySeverity == 1;
  man.Injury = InjuryName(p.InjuryType);
  return man;
}

}  // namespace

std::string InjuryLine(int side, int slot) {
  const PlayerRecord& p = PlayerAt(side, slot);
  return DateWords(game.GameMonth, game.GameDay) + "," + game.team[side].Abbrev.Str() + "," +
         PositionOfMan(p) + "," + FullName(p) + "," + DateWords(p.InjuryReturnMonth, p.InjuryReturnDay) +
         "," + std::string(InjuryName(p.InjuryType));
}

void EndOldInjury(int side, int slot) {
  PlayerRecord& p = PlayerAt(side, slot);
  const bool today = p.InjuryReturnMonth == game.GameMonth && p.InjuryReturnDay <= game.GameDay;
  if (p.InjuryReturnMonth >= game.GameMonth && !today) return;
  if (!today) p.InjuryType = 0;
  p.InjuryReturnMonth = p.InjuryReturnDay = p.InjurySeverity = 0;
}

bool PostInjuries(const std::vector<std::string>& lines) { return AppendLines(InjuriesFile(), lines); }

std::vector<std::string> ReadInjury(const std::string& line) {
  std::vector<std::string> fields(1);
  for (const char c : line) {
    if (c == ',') {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

bool LoadInjuries(std::vector<std::string>& lines) { return LoadLines(InjuriesFile(), lines); }

std::vector<OutMan> MenOut() {
  std::vector<OutMan> out;
  for (int teamNo = 1; teamNo <= kTeams; ++teamNo) {
    const TeamRecord& team = league.team[teamNo];
    if (team.TeamActive != 1) continue;
    for (const int row : team.Roster) {
      if (row < 1 || static_cast<std::size_t>(row) >= league.player.size()) continue;
      const PlayerRecord& p = league.player[static_cast<std::size_t>(row)];
      if (p.TeamNo != teamNo || (p.InjuryReturnMonth == 0 && p.SuspensionGames == 0)) continue;
      out.push_back(OutManOf(team, teamNo, p));
    }
  }
  return out;
}

}  // namespace tipline
