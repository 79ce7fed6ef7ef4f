// Parts of the running game on paper.
#include "cli/box_score.h"

#include <algorithm>
#include <vector>

#include "aftermath/box_text.h"
#include "cli/columns.h"
#include "engine/game_state.h"

namespace tipline::cli {

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

void PrintBox(std::ostream& out) { PrintPlain(out, BoxPage()); }

}  // namespace tipline::cli
