#include "aftermath/game_results.h"

#include "aftermath/season_lines.h"
#include "base/calendar.h"
#include "base/record_file.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"
#include "league/schedule.h"
#include "league/setup.h"
#include "platform/clock.h"

namespace tipline {
namespace {

/// "Smith 31" of the man with the most, the visitors' first; blank where nobody has any.
template <class Count>
std::string LeaderText(Count count) {
  std::string text;
  int most = 0;
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(side, slot)) continue;
      const PlayerRecord& p = PlayerAt(side, slot);
      const int value = count(p.Stats[3]);
      if (value <= most) continue;
      most = value;
      text = p.ShortName.Str() + " " + std::to_string(value);
    }
  }
  return text;
}

void FillLeaders(ScheduleRecord& row) {
  row.ScoringLeader = LeaderText([](const StatLine& line) { return PointsOf(line); });
  row.ReboundLeader = LeaderText([](const StatLine& line) { return line.Reb; });
  row.AssistLeader = LeaderText([](const StatLine& line) { return line.Ast; });
  row.StealLeader = LeaderText([](const StatLine& line) { return line.St; });
  row.BlockLeader = LeaderText([](const StatLine& line) { return line.Bk; });
}

/// Rebounds and turnovers of nobody count with those of the men.
void FillTotals(ScheduleRecord& score) {
  for (int s = 1; s <= 2; ++s) {
    const Side& side = game.side[s];
    const StatLine& t = side.TeamLine;
    const int totals[] = {t.FGA,
                          t.FGM,
                          t.FTA,
                          t.FTM,
                          t.F3A,
                          t.F3M,
                          t.Reb + side.GameTeamRebounds,
                          t.Ast,
                          t.To + side.GameTeamTurnovers,
                          t.St,
                          t.Bk,
                          t.Pf};
    for (int k = 0; k < 12; ++k) score.GameStats[s][k + 1] = Held<u8>(totals[k]);
  }
}

bool HumanGame() { return game.side[1].CoachMode == "H" || game.side[2].CoachMode == "H"; }

RecordFile ScoresFile() { return RecordFile(LeagueFile("SCORES"), kScheduleSlotBytes); }

}  // namespace

void FillResult(ScheduleRecord& row) {
  row.Status = "P";
  row.Overtime = game.Period > league.rules.PeriodList ? 1 : 0;
  row.PlayoffFlag = program.PlayoffGame ? "Y" : "N";
  for (int s = 1; s <= 2; ++s) {
    row.CoachKind[s] = game.side[s].CoachMode.Text();
    row.Score[s] = Held<i16>(game.side[s].Score);
    row.RecordAfter[s] = std::to_string(game.team[s].Wins) + "-" + std::to_string(game.team[s].Losses);
  }
  FillLeaders(row);
}

std::vector<int> RowsToClose() {
  std::vector<int> rows;
  if (!league.Row(game.ScheduleRow)) return rows;
  rows.push_back(game.ScheduleRow);
  if (!HumanGame() && setup.ComputerCheck == 0) return rows;
  for (int n = 1; n <= league.GameCount(); ++n) {
    if (n != game.ScheduleRow && league.Row(n)->Status == 'N') rows.push_back(n);
  }
  return rows;
}

void CloseRows(const std::vector<int>& rows, const std::string& boxFile) {
  for (const int n : rows) {
    ScheduleRecord& row = league.ScheduleGame[static_cast<std::size_t>(n)];
    row.Status = "U";
    if (n != game.ScheduleRow) continue;
    FillResult(row);
    row.BoxFile = boxFile;
  }
}

int NextScore() {
  if (program.LeagueFolder.empty()) return static_cast<int>(league.Scores.size());
  return static_cast<int>(ScoresFile().Bytes() / kScheduleSlotBytes) + 1;
}

ScheduleRecord ScoreOfGame(const std::string& boxFile) {
  ScheduleRecord score = NewScheduleGame(game.GameTeam[1], game.GameTeam[2],
                                         CalendarMonth(Clamp(game.GameMonth, 1, 12)), game.GameDay);
  if (const ScheduleRecord* row = league.Row(game.ScheduleRow)) {
    score.GameType = row->GameType;
    score.PairingStatus = row->PairingStatus;
  }
  score.Year = static_cast<i16>(league.ScheduleYear);
  score.NeutralSite = game.NeutralGame ? 1 : 0;
  score.Reserved12 = platform::ComputerDate();
  score.BoxFile = boxFile;
  FillResult(score);
  FillTotals(score);
  return score;
}

bool AppendScore(int n, const ScheduleRecord& score) {
  const RecordFile file = ScoresFile();
  if (!program.LeagueFolder.empty() && !Written(file.Write(n, score), file.Path())) return false;
  if (league.Scores.size() == static_cast<std::size_t>(n)) league.Scores.push_back(score);
  return true;
}

}  // namespace tipline
