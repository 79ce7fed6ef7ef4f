// The page of a box, top to bottom.
#include <algorithm>
#include <string>

#include "aftermath/box_sums.h"
#include "aftermath/box_text.h"
#include "aftermath/season_lines.h"
#include "base/calendar.h"
#include "base/page.h"
#include "engine/game_state.h"
#include "league/player_values.h"
#include "league/program.h"
#include "league/setup.h"
#include "league/shot_splits.h"
#include "platform/clock.h"

namespace tipline {
namespace {

constexpr int kStoredPeriods = 10;

std::string NameOf(const TeamRecord& team, std::size_t width) { return team.City.Str().substr(0, width); }

// Head --------------------------------------------------------------------------------------------------

struct TypeName {
  char letter;
  std::string_view words;
};
constexpr TypeName kCupGames[] = {{'P', "Pool Play"},      {'N', "Non-Advance Game"}, {'Q', "Quarter Final"},
                                  {'L', "Quarter(Loser)"}, {'S', "Semi Final"},       {'C', "Championship"}};

/// A game of the cup says which.
void PutGameType(Page& page) {
  const ScheduleRecord* row = league.Row(game.ScheduleRow);
  if (!row) return;
  for (const TypeName& type : kCupGames) {
    if (row->GameType == type.letter)
      page.Put(" ").Put(type.words).Put(" (").Put(row->GameType.View()).Put(")");
  }
}

/// The game's number in the series and how the series stands, the leader first. A game that is over counts.
void PutSeries(Page& page) {
  if (!program.PlayoffGame) return;
  int wins[3] = {0, program.SeriesWins[1], program.SeriesWins[2]};
  page.Put(" < Playoff Game ").Put(wins[1] + wins[2] + 1).Put("   ");
  for (int s = 1; s <= 2; ++s) wins[s] += game.GameOver && Lead(s) > 0 ? 1 : 0;
  const int first = wins[1] > wins[2] ? 1 : wins[2] > wins[1] ? 2 : program.SeriesHome;
  for (const int s : {first, 3 - first}) {
    page.Put(game.team[s].Abbrev.View()).Put(" ").Put(wins[s]).Put(s == first ? " " : " > ");
  }
}

void PutDate(Page& page) {
  const int month = game.GameCalendarMonth > 12 ? 9 : game.GameCalendarMonth;
  page.Put(" ").Put(MonthName(month)).Put(" ").Put(game.GameDay).Put(", ").Put(game.GameYear);
  PutGameType(page);
  PutSeries(page);
  const ScheduleRecord* row = league.Row(game.ScheduleRow);
  const bool neutral = game.NeutralGame || (row && row->NeutralSite == 1);
  page.Tab(35).Put(neutral ? "Neutral Court" : game.team[2].ArenaName.View());
  page.Tab(75).Put(platform::ComputerDate()).End();
}

void PutScoreboard(Page& page) {
  const int periods = Clamp(game.Period, 1, kStoredPeriods);
  page.Tab(30);
  for (int p = 1; p <= periods; ++p) page.Right(4, p);
  page.Right(4, "T").End();
  for (int s = 1; s <= 2; ++s) {
    page.Put(" ").Put(NameOf(game.team[s], 15)).Tab(17);
    if (game.GameOver && program.GameKind == "L") page.Put(RecordText(s));
    page.Tab(30);
    for (int p = 1; p <= periods; ++p) page.Right(4, game.side[s].PeriodScore[p]);
    page.Right(4, game.side[s].Score).End();
  }
}

// The men -----------------------------------------------------------------------------------------------

bool Threes() { return league.rules.ThreePointCheck != 0; }

void WriteColumnHeads(Page& page) {
  page.Tab(17).Put(Threes() ? "Min     FG    3PT     FT    Reb  Ast To St Bk PF Pts"
                            : "Min     FG     FT    Reb  Ast To St Bk PF Pts");
  if (setup.PlusMinusCheck) page.Put("    +/-");
  if (setup.GameScoreCheck) page.Put("    GS");
  page.End();
}

void PutOf(Page& page, int width, int made, int tried) { page.Right(width, made).Put("-").Put(tried); }

/// Where the columns of a row begin, and how wide the two behind a wider neighbor are. The columns behind the
/// field goals move up where there is no three-point shot.
struct RowColumns {
  int three, line, rebounds, assists;
  int behindShots, assistWidth;
};
constexpr RowColumns kManColumns[2] = {{0, 28, 35, 43, 4, 3}, {28, 35, 42, 50, 4, 3}};
constexpr RowColumns kTeamColumns[2] = {{0, 29, 35, 42, 3, 4},
                                        {29, 35, 42, 49, 3, 4}};  // 14-30 ends before the free throws

/// From the field goals to the points.
void PutCounters(Page& page, const StatLine& s, const RowColumns& at) {
  PutOf(page, 4, s.FGM, s.FGA);
  if (at.three > 0) {
    PutOf(page.Tab(at.three), at.behindShots, s.F3M, s.F3A);
    PutOf(page.Tab(at.line), 4, s.FTM, s.FTA);
  } else {
    PutOf(page.Tab(at.line), at.behindShots, s.FTM, s.FTA);
  }
  PutOf(page.Tab(at.rebounds), 4, s.Off, s.Reb);
  page.Tab(at.assists).Right(at.assistWidth, s.Ast);
  for (const int count : {s.To, s.St, s.Bk, s.Pf}) page.Right(3, count);
  page.Put(" ").Right(3, PointsOf(s));
}

void PutPlusMinus(Page& page, std::string_view value) {
  if (setup.PlusMinusCheck) page.Put("  ").Right(5, value);
}
void PutGameScore(Page& page, double score) {
  if (setup.GameScoreCheck) page.Right(6, Decimal(score, 1));
}

void WriteBoxPlayerLine(Page& page, int side, int slot) {
  const StatLine& s = PlayerAt(side, slot).Stats[3];
  const Man& man = ManAt(side, slot);
  const int seconds = Int(man.PlayerGameTime / 10.0 + 0.49);
  page.Right(2, seconds / 60).Put(seconds % 60 < 10 ? ":0" : ":").Put(seconds % 60);
  PutCounters(page, s, kManColumns[Threes()]);
  PutPlusMinus(page, (man.PlusMinus > 0 ? "+" : "") + std::to_string(man.PlusMinus));
  PutGameScore(page, GameScore(s));
  page.End();
}

void WriteBoxTeamTotals(Page& page, const StatLine& sum) {
  PutCounters(page.Put("  TOTAL").Tab(21), sum, kTeamColumns[Threes()]);
  PutPlusMinus(page, "");  // the sum of the men would be five times the margin
  PutGameScore(page, GameScore(sum, 0.4));
  page.End().Tab(23).Put(ShareText(sum.FGM, sum.FGA));
  if (Threes()) page.Tab(30).Put(ShareText(sum.F3M, sum.F3A));
  page.Tab(Threes() ? 37 : 30).Put(ShareText(sum.FTM, sum.FTA)).End();
}

int RoundedMinutes(int side, int slot) { return Round(ManAt(side, slot).PlayerGameTime / double{kMinute}); }

/// Slots of those who did not start and were on the floor for a minute, the longest first.
int BenchOf(int side, Table<int, 1, kRosterSlots>& bench) {
  int men = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(side, slot) && !Started(side, slot) && RoundedMinutes(side, slot) > 0) bench[++men] = slot;
  }
  std::sort(bench.begin(), bench.begin() + men, [side](int a, int b) {
    const int first = RoundedMinutes(side, a), second = RoundedMinutes(side, b);
    return first != second ? first > second : a < b;
  });
  return men;
}

void PutTeam(Page& page, int side, const StatLine& sum) {
  page.End().Put(" ").Put(NameOf(game.team[side], 13));
  WriteColumnHeads(page);
  for (const int slot : game.side[side].Starters) {
    if (slot == 0) continue;
    page.Put(" ").Left(13, KnownName(PlayerAt(side, slot))).Put(" ");
    WriteBoxPlayerLine(page, side, slot);
  }
  Table<int, 1, kRosterSlots> bench{};
  const int men = BenchOf(side, bench);
  for (int k = 1; k <= men; ++k) {
    page.Put("  ").Left(12, KnownName(PlayerAt(side, bench[k]))).Put(" ");
    WriteBoxPlayerLine(page, side, bench[k]);
  }
  WriteBoxTeamTotals(page, sum);
}

// Team against team -------------------------------------------------------------------------------------

constexpr int kSecondColumn = 10;  // columns from one team's figures to the other's

/// A row of the shot table: its kinds by their place in kShotSplits, which has the shots made 8 further on.
struct ShotRow {
  std::string_view label;
  int kind, other;  ///< other -1: none
};
constexpr ShotRow kShotRows[] = {{" Inside", 0, -1},       {" Outside", 1, -1},     {" Three", 2, -1},
                                 {" Drive", 3, -1},        {" Off-Reb(2)", 5, -1},  {" Off-Reb(3)", 7, -1},
                                 {" Fastbreak(2)", 4, -1}, {" Fastbreak(3)", 6, -1}};
constexpr ShotRow kTwoPointRows[] = {
    {" Inside", 0, -1}, {" Outside", 1, -1}, {" Drive", 3, -1}, {" Off-Reb", 5, 7}, {" Fastbreak", 4, 6}};

int CountOf(int side, int kind) {
  int count = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(side, slot)) count += (PlayerAt(side, slot).*kShotSplits[kind].man)[3];
  }
  return count;
}

void PutShotRow(Page& page, const ShotRow& row) {
  page.Put(row.label);
  for (int s = 1; s <= 2; ++s) {
    int tried = CountOf(s, row.kind), made = CountOf(s, row.kind + 8);
    if (row.other >= 0) {
      tried += CountOf(s, row.other);
      made += CountOf(s, row.other + 8);
    }
    PutOf(page.Tab(15 + (s - 1) * kSecondColumn), 4, made, tried);
  }
  page.End();
}

void PutCounts(Page& page, std::string_view label, int visitor, int home) {
  page.Put(label).Tab(16).Right(3, visitor).Tab(16 + kSecondColumn).Right(3, home).End();
}

void PutComparison(Page& page) {
  page.End().Put(" Shooting").Tab(17).Put(game.team[1].Abbrev.View());
  page.Tab(17 + kSecondColumn).Put(game.team[2].Abbrev.View()).End();
  if (Threes()) {
    for (const ShotRow& row : kShotRows) PutShotRow(page, row);
  } else {
    for (const ShotRow& row : kTwoPointRows) PutShotRow(page, row);
  }
  const Side &v = game.side[1], &h = game.side[2];
  const BoxPoints a = PointsBy(1), b = PointsBy(2);
  PutCounts(page, " Fastbreak Pts", v.FastbreakPoints, h.FastbreakPoints);
  PutCounts(page, " Bench", a.Bench, b.Bench);
  PutCounts(page, " Second Chance", a.SecondChance + v.ExtraSecondChancePoints,
            b.SecondChance + h.ExtraSecondChancePoints);
  PutCounts(page, " Paint", a.Paint + v.ExtraPaintPoints, b.Paint + h.ExtraPaintPoints);
  PutCounts(page, " Biggest Lead", v.BiggestLead, h.BiggestLead);
  PutCounts(page, " Team Rebounds", v.GameTeamRebounds, h.GameTeamRebounds);
  PutCounts(page, " Team Turnovers", v.GameTeamTurnovers, h.GameTeamTurnovers);
  page.End().End();
}

// Last lines --------------------------------------------------------------------------------------------

void PutNames(Page& page) {
  const bool live = game.GameStarted && !game.GameOver;
  const struct {
    std::string_view label, names;
    bool printed;
  } lists[] = {{" Technicals: ", ListedNames(game.TechnicalNames), true},
               {" Ejections: ", ListedNames(game.EjectionNames), true},
               {" Flagrant Fouls: ", ListedNames(game.FlagrantNames), true},
               {" Injuries: ", ListedNames(game.InjuryNames), !live}};
  for (const auto& list : lists) {
    if (list.printed && list.names.size() > 3) page.Put(list.label).Put(list.names).End();
  }
  if (std::any_of(std::begin(lists), std::end(lists), [](const auto& l) { return l.names.size() >= 2; }))
    page.End().End();
}

/// Who could have played and was left on the bench.
void PutIdle(Page& page) {
  if (!game.GameOver) return;
  for (int s = 1; s <= 2; ++s) {
    page.Put(s == 1 ? " DNP " : "     ").Right(3, game.team[s].Abbrev.View()).Put(": ");
    bool first = true;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(s, slot) || LoadedAt(s, slot).PlayerOut || HasPlayed(s, slot)) continue;
      page.Put(first ? "" : ", ").Put(KnownName(PlayerAt(s, slot)));
      first = false;
    }
    page.End();
  }
}

void PutShortHanded(Page& page) {
  for (int s = 1; s <= 2; ++s) {
    if (game.side[s].ShortHanded == 0) continue;
    page.Put(" *").Put(game.team[s].City.View()).Put(" allowed to play with ").Put(game.side[s].ShortHanded);
    page.Put(" active players.").End();
  }
}

void PutMvp(Page& page) {
  const GameMvp best = PickGameMvp();
  if (best.Slot == 0) return;
  const PlayerRecord& p = PlayerAt(best.Side, best.Slot);
  page.End().Put(" Game MVP: ").Put(p.FirstName.View()).Put(" ").Put(KnownName(p)).End();
}

}  // namespace

std::string_view ListedNames(std::string_view names) {
  names = Trimmed(names);
  if (names.ends_with(',')) names.remove_suffix(1);
  return names;
}

std::string BoxPage() {
  Page page;
  PutDate(page);
  PutScoreboard(page);
  for (int s = 1; s <= 2; ++s) PutTeam(page, s, TotalsOf(s));
  PutComparison(page);
  page.Put(" Lead Changes: ").Put(game.LeadChanges).End();
  page.Put(" Ties: ").Put(game.Ties).End();
  PutNames(page);
  PutIdle(page);
  PutShortHanded(page);
  PutMvp(page);
  page.End();
  return page.Text();
}

}  // namespace tipline
