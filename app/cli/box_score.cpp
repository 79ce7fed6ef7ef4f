// The box of the game: periods, every man's line, totals.
#include "cli/box_score.h"

#include <algorithm>
#include <vector>

#include "cli/columns.h"
#include "engine/game_state.h"
#include "league/player_values.h"

namespace tipline::cli {
namespace {

constexpr std::size_t kLongestName = 16;  // or the lines of the box are wider than a screen

std::string Signed(int value) { return value > 0 ? "+" + Str(value) : Str(value); }

std::vector<std::string> LineCells(const std::string& name, const std::string& position, int tenths,
                                   const StatLine& s, const std::string& plusMinus) {
  return {name,
          position,
          Str(BoxMinutes(tenths)),
          Of(s.FGM, s.FGA),
          Of(s.F3M, s.F3A),
          Of(s.FTM, s.FTA),
          Str(s.Off),
          Str(s.Reb),
          Str(s.Ast),
          Str(s.Pf),
          Str(s.St),
          Str(s.Bk),
          Str(s.To),
          plusMinus,
          Str(PointsOf(s))};
}

/// Starters in their places, then the bench by minutes; men who did not play are left out.
std::vector<int> BoxOrder(int side) {
  std::vector<int> order;
  for (int p = 1; p <= kPositions; ++p) {
    if (const int slot = game.side[side].Starters[p]; slot > 0) order.push_back(slot);
  }
  const auto starters = static_cast<std::ptrdiff_t>(order.size());
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const bool listed = std::find(order.begin(), order.begin() + starters, slot) != order.begin() + starters;
    if (OnTeam(side, slot) && !listed && ManAt(side, slot).PlayerGameTime > 0) order.push_back(slot);
  }
  std::stable_sort(order.begin() + starters, order.end(), [side](int a, int b) {
    return ManAt(side, a).PlayerGameTime > ManAt(side, b).PlayerGameTime;
  });
  return order;
}

void PrintSide(std::ostream& out, int side) {
  const Side& s = game.side[side];
  Columns table({"<" + game.team[side].City.Str().substr(0, kLongestName), "<Pos", "Min", "FG", "3P", "FT",
                 "Off", "Reb", "Ast", "PF", "St", "Bk", "TO", "+/-", "Pts"},
                1);
  StatLine sum;
  int time = 0;
  for (const int slot : BoxOrder(side)) {
    const PlayerRecord& p = PlayerAt(side, slot);
    const Man& man = ManAt(side, slot);
    const auto place = std::find(s.Starters.begin(), s.Starters.end(), slot);
    const std::string label = place == s.Starters.end()
                                  ? ""
                                  : league.PositionLabel[static_cast<int>(place - s.Starters.begin()) + 1];
    const std::string name = InitialName(p).substr(0, kLongestName);
    table.Row(LineCells(name, label, man.PlayerGameTime, p.Stats[3], Signed(man.PlusMinus)));
    AddTo(sum, p.Stats[3]);
    time += man.PlayerGameTime;
  }
  sum.Reb = static_cast<i16>(sum.Reb + s.GameTeamRebounds);
  sum.To = static_cast<i16>(sum.To + s.GameTeamTurnovers);
  table.Rule();
  table.Row(LineCells("Team", "", time, sum, ""));
  table.Print(out, false);
  out << "FG " << Share(sum.FGM, sum.FGA) << ", 3P " << Share(sum.F3M, sum.F3A) << ", FT "
      << Share(sum.FTM, sum.FTA) << "; team rebounds " << s.GameTeamRebounds << ", team turnovers "
      << s.GameTeamTurnovers << "\nFast break " << s.FastbreakPoints << ", bench " << s.BenchPoints
      << ", biggest lead " << s.BiggestLead << "\n\n";
}

}  // namespace

std::string PeriodName(int period) {
  const int extra = period - league.rules.PeriodList;
  return extra <= 0 ? Str(period) : extra == 1 ? "OT" : Str(extra) + "OT";
}

int BoxMinutes(int tenths) { return (tenths + kMinute / 2) / kMinute; }

void AddTo(StatLine& sum, const StatLine& line) {
  for (auto counter : {&StatLine::FGA, &StatLine::FGM, &StatLine::F3A, &StatLine::F3M, &StatLine::FTA,
                       &StatLine::FTM, &StatLine::Reb, &StatLine::Off, &StatLine::Ast, &StatLine::St,
                       &StatLine::Bk, &StatLine::To, &StatLine::Pf}) {
    sum.*counter = static_cast<i16>(sum.*counter + line.*counter);
  }
}

void PrintPeriods(std::ostream& out, int last) {
  std::vector<std::string> headings{"<"};
  const int periods = Clamp(last, 1, 10);
  for (int p = 1; p <= periods; ++p) headings.push_back(PeriodName(p));
  headings.emplace_back(game.GameOver ? "Final" : "Total");
  Columns table(headings);
  for (int s = 1; s <= 2; ++s) {
    std::vector<std::string> cells{TeamName(game.team[s]).substr(0, 22)};
    int total = 0;
    for (int p = 1; p <= periods; ++p) {
      total += game.side[s].PeriodScore[p];
      cells.push_back(Str(game.side[s].PeriodScore[p]));
    }
    cells.push_back(Str(last >= game.Period ? game.side[s].Score : total));
    table.Row(std::move(cells));
  }
  table.Print(out, false);
}

void PrintBox(std::ostream& out) {
  PrintPeriods(out, game.Period);
  out << '\n';
  PrintSide(out, 1);
  PrintSide(out, 2);
  out << "Lead changes " << game.LeadChanges << ", ties " << game.Ties << "\n";
}

}  // namespace tipline::cli
