#include "frontoffice/schedule_editor.h"

#include <algorithm>

#include "base/calendar.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using platform::RefusedWith;

bool AnyPlayed() {
  return std::any_of(league.ScheduleGame.begin() + 1, league.ScheduleGame.end(),
                     [](const ScheduleRecord& row) { return row.Status == 'P'; });
}

/// A row that can still be changed; nullptr, told, for any other number.
ScheduleRecord* OpenRow(int row) {
  const ScheduleRecord* game = league.Row(row);
  const bool played = game && game->Status == 'P';
  if (game && !played && game->Status != 'D') return &league.ScheduleGame[static_cast<std::size_t>(row)];
  platform::dialogs().Tell(played ? "This game has been played" : "There is no such game on the schedule!");
  return nullptr;
}

ScheduleLine LineOf(const ScheduleRecord& row, int number) {
  return {number,
          StatusWords(row),
          ScheduleTeamName(row.Team[1]),
          ScheduleTeamName(row.Team[2]),
          row.ScoringLeader.Str(),
          row.ReboundLeader.Str(),
          row.AssistLeader.Str(),
          row.NeutralSite == 1 ? "neutral" : ""};
}

std::string Pairing(const ScheduleRecord& row) {
  return ScheduleTeamName(row.Team[1]) + " @ " + ScheduleTeamName(row.Team[2]);
}

void SetAllCoaches(HCSCHEDULE& screen, std::string_view kind) {
  screen.WarnOfChange();
  for (auto row = league.ScheduleGame.begin() + 1; row != league.ScheduleGame.end(); ++row) {
    row->CoachKind.Fill(kind);
  }
}

bool TwoTeams(const ScheduleChoice& choice) {
  return (IsScheduleTeam(choice.visitor) && IsScheduleTeam(choice.home)) ||
         RefusedWith("You must select two teams for a game!");
}

bool DayInMonth(const ScheduleChoice& choice) {
  return choice.day >= 1 && choice.day <= ScheduleDays(choice.month);
}

}  // namespace

std::string StatusWords(const ScheduleRecord& row) {
  switch (row.Status.bytes[0]) {
    case 'D':
      return "Deleted";
    case 'N':
      return "Play Now";
    case 'P':
      return std::to_string(row.Score[1]) + "-" + std::to_string(row.Score[2]) +
             (row.Overtime == 1 ? " (ot)" : "");
    default:
      return "Unplayed";
  }
}

bool HCSCHEDULE::Open() {
  Warned = false;
  Closed = !LoadSchedule();
  if (!Closed && AnyPlayed()) {
    Closed = !platform::dialogs().Ask("Warning: Games have already been played! Continue?");
  }
  return !Closed;
}

void HCSCHEDULE::WarnOfChange() {
  if (Warned || !AnyPlayed()) return;
  Warned = true;
  platform::dialogs().Tell(
      "Editing games after the season has begun can impact leagues with multiple users. Changes should only "
      "be made by the commissoner prior to sending league file!",
      "WARNING: Editing Games During Season!");
}

std::vector<ScheduleLine> HCSCHEDULE::Grid(int month, int day) const {
  std::vector<ScheduleLine> lines;
  for (int n = 1; n <= league.GameCount(); ++n) {
    const ScheduleRecord& row = league.ScheduleGame[static_cast<std::size_t>(n)];
    if (IsOn(row, month, day)) lines.push_back(LineOf(row, n));
  }
  return lines;
}

std::vector<ScheduleSummary> HCSCHEDULE::Summary() const {
  Table<ScheduleSummary, 1, kTeams> sums;
  ForScheduledGames([&sums](const ScheduleRecord& row, int) {
    const bool division = DivisionOf(row.Team[1]) == DivisionOf(row.Team[2]);
    for (int side = 1; side <= 2; ++side) {
      if (row.Team[side] < 1 || row.Team[side] > kTeams) continue;
      ScheduleSummary& sum = sums[row.Team[side]];
      ++sum.total;
      ++(side == 1 ? sum.visitor : sum.home);
      sum.division += division;
      (side == 1 ? sum.divisionVisitor : sum.divisionHome) += division;
      sum.pool += row.GameType == 'P';
      sum.poolNonAdvancing += row.GameType == 'N';
    }
  });
  std::vector<ScheduleSummary> summary;
  for (int team = 1; team <= kTeams; ++team) {
    if (league.team[team].TeamActive != 1) continue;
    sums[team].team = team;
    summary.push_back(sums[team]);
  }
  return summary;
}

bool HCSCHEDULE::AddGameCommand(const ScheduleChoice& choice) {
  if (!TwoTeams(choice)) return false;
  if (choice.visitor == choice.home) {
    return RefusedWith("You must select two different teams for a game!");
  }
  if (!DayInMonth(choice)) return RefusedWith("You must specify a Month and Day for this game!");
  if (league.GameCount() >= kMostScheduleRows) {
    return RefusedWith("A schedule holds at most " + std::to_string(kMostScheduleRows) + " games!");
  }
  if (!ScheduleAllows(choice, 0)) return false;
  WarnOfChange();
  league.ScheduleGame.push_back(NewScheduleGame(choice.visitor, choice.home, choice.month, choice.day));
  TakeDateType(league.ScheduleGame.back(), ReadPools());
  return true;
}

bool HCSCHEDULE::DeleteGame(int row) {
  ScheduleRecord* game = OpenRow(row);
  if (!game) return false;
  WarnOfChange();
  if (!platform::dialogs().Ask("Delete Game " + Pairing(*game) + "?")) return false;
  game->Status = "D";
  return true;
}

bool HCSCHEDULE::ToggleNeutral(int row) {
  ScheduleRecord* game = OpenRow(row);
  if (!game) return false;
  WarnOfChange();
  game->NeutralSite = game->NeutralSite == 1 ? 0 : 1;
  return true;
}

bool HCSCHEDULE::ToggleCoach(int row, int side) {
  ScheduleRecord* game = OpenRow(row);
  if (!game || side < 1 || side > 2) return false;
  WarnOfChange();
  game->CoachKind[side] = game->CoachKind[side] == 'H' ? "C" : "H";
  return true;
}

void HCSCHEDULE::SETALLCOMPUTER() { SetAllCoaches(*this, "C"); }
void HCSCHEDULE::SETALLHUMAN() { SetAllCoaches(*this, "H"); }

bool HCSCHEDULE::ERASESCHEDULE() {
  auto& dialogs = platform::dialogs();
  if (!dialogs.Ask("Delete All Games From The Schedule?")) return false;
  if (!dialogs.Ask("Please confirm! Delete All Games From The Schedule?")) return false;
  const auto rows = std::move(league.ScheduleGame);
  league.ScheduleGame.assign(1, {});
  if (UnloadSortedSchedule()) return true;
  league.ScheduleGame = rows;
  return false;
}

bool HCSCHEDULE::SaveCommand() {
  Closed = UnloadSortedSchedule();
  return Closed;
}

bool HCSCHEDULE::CancelCommand() {
  Closed = platform::dialogs().Ask("Cancel without saving?");
  return Closed;
}

bool HCSCHEDULE::OpenComputerSchedule(HCCOMPUTERSCHEDULE& generator) {
  if (!UnloadSortedSchedule()) return false;
  const bool made = generator.GENERATECommand();
  return LoadSchedule() && made;
}

std::vector<std::string> HCSCHEDULE::PRINTSCHEDULE() const {
  std::vector<std::string> lines;
  for (int season = 1; season <= 12; ++season) {
    for (int day = 1; day <= 31; ++day) {
      const auto date = PrintCommand(CalendarMonth(season), day);
      lines.insert(lines.end(), date.begin(), date.end());
    }
  }
  return lines;
}

std::vector<std::string> HCSCHEDULE::PrintCommand(int month, int day) const {
  std::vector<std::string> lines;
  ForScheduledGames([&](const ScheduleRecord& row, int) {
    if (!IsOn(row, month, day)) return;
    if (lines.empty()) lines.push_back(std::string(MonthName(month)) + " " + std::to_string(day));
    lines.push_back("  " + Pairing(row));
  });
  return lines;
}

bool HcScheduleEditGame::Open(int row) {
  const ScheduleRecord* game = OpenRow(row);
  if (!game) return false;
  Row = row;
  choice = {game->Team[1], game->Team[2], game->Month, game->Day};
  return true;
}

bool HcScheduleEditGame::SaveCommand(HCSCHEDULE& schedule) const {
  if (!TwoTeams(choice)) return false;
  if (choice.visitor == choice.home) {
    return RefusedWith("Visitor and Home must be different teams!", "Invalid Teams!");
  }
  if (choice.month < 1 || choice.month > 12) {
    return RefusedWith("You must specify a Month and Day for this game!");
  }
  if (!DayInMonth(choice)) return RefusedWith("Invalid Day!");
  ScheduleRecord* game = OpenRow(Row);
  if (!game || !ScheduleAllows(choice, Row)) return false;
  schedule.WarnOfChange();
  game->Team = {{static_cast<i16>(choice.visitor), static_cast<i16>(choice.home)}};
  game->Month = static_cast<u8>(choice.month);
  game->Day = static_cast<u8>(choice.day);
  TakeDateType(*game, ReadPools());
  return true;
}

}  // namespace tipline
