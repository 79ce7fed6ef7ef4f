#include "frontoffice/season_lines.h"

#include <array>

#include "base/random.h"
#include "frontoffice/rating_math.h"
#include "frontoffice/ratings.h"
#include "league/player_values.h"

namespace tipline {
namespace {

constexpr double kMostMinutes = 42;  // a game of 48 minutes, for a man who never rests

/// Minutes a night of a team's five starters, the best one first, in a game of 48: from the season in `from`
/// until the next row of its level. The stars of the sixties hardly rested; today's benches are deep.
struct StarterRow {
  GameLevel level;
  int from;
  double minutes[5];
};
// clang-format off
constexpr StarterRow kStarters[] = {
    {GameLevel::kPro,     1946, {38.5, 36.5, 34.5, 32, 29}},
    {GameLevel::kPro,     1975, {37,   35,   33,   31, 28}},
    {GameLevel::kPro,     2010, {35,   33,   31,   29, 27}},
    {GameLevel::kCollege, 1946, {39,   37,   34.5, 32, 28}},
    {GameLevel::kWomen,   1946, {38.5, 36,   33.5, 30, 27}},
};
// clang-format on
constexpr double kPair = 47;  // minutes of a starter and the next man together; the rest is a third man's

const StarterRow& StartersOf(GameLevel level, int year) {
  const StarterRow* found = nullptr;
  for (const StarterRow& row : kStarters) {
    if (row.level == level && (!found || row.from <= year)) found = &row;
  }
  return *found;
}

/// What a team's season of this level comes to.
struct SeasonNorm {
  const EraRecord& era;
  const StarterRow& starters;
  double games;
  double teamMinutes;   // of all men together
  double mostMinutes;   // of one man
  double shots, fouls;  // against the era's row
};

SeasonNorm NormOf(GameLevel level, int year) {
  const EraRecord& era = SeasonRow(year, level == GameLevel::kCollege);
  const bool shortGame = level != GameLevel::kPro;
  const bool women = level == GameLevel::kWomen;
  const double games = era.Games;
  return {era,
          StartersOf(level, year),
          games,
          games * 5 * (shortGame ? 40.5 : 48.5),
          kMostMinutes * (shortGame ? 40.0 / 48 : 1),
          women ? 0.79 : 1,
          women ? 0.92 : 1};
}

template <class Visit>
void ForMen(Roster& team, Visit&& visit) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (team.player[slot].TeamNo == team.TeamNo) visit(team.player[slot]);
  }
}

i16 Scaled(int count, double factor) { return static_cast<i16>(Clamp(Round(count * factor), 0, 32767)); }

/// Nothing more made than tried, no more offensive boards than boards.
void Mend(StatLine& line) {
  line.F3A = std::min(line.F3A, line.FGA);
  line.F3M = std::min(line.F3M, line.F3A);
  const auto mostTwos = static_cast<i16>(line.FGA - line.F3A);
  line.FGM = static_cast<i16>(Clamp<int>(line.FGM - line.F3M, 0, mostTwos) + line.F3M);
  line.FTM = std::min(line.FTM, line.FTA);
  line.Off = std::min(line.Off, line.Reb);
}

void ScaleLine(StatLine& line, int minutes) {
  const double factor = static_cast<double>(minutes) / std::max<int>(1, line.Min);
  const i16 twos = Scaled(line.FGM - line.F3M, factor);
  for (i16* count : {&line.FGA, &line.F3A, &line.F3M, &line.FTA, &line.FTM, &line.Reb, &line.Off, &line.Ast,
                     &line.St, &line.Bk, &line.To, &line.Pf}) {
    *count = Scaled(*count, factor);
  }
  line.FGM = static_cast<i16>(twos + line.F3M);
  line.Min = static_cast<i16>(minutes);
  Mend(line);
}

using Men = std::vector<PlayerRecord*>;

/// The men of each position, the most valuable first, and the positions in the order of their first men.
std::array<Men, 5> MenByWorth(Roster& team) {
  std::array<Men, 5> places;
  ForMen(team, [&](PlayerRecord& man) { places[man.PrimaryPosition - 1u].push_back(&man); });
  for (Men& men : places) {
    std::stable_sort(men.begin(), men.end(), [](auto* a, auto* b) { return a->Salary > b->Salary; });
  }
  const auto worth = [](const Men& men) { return men.empty() ? 0 : men[0]->Salary; };
  std::stable_sort(places.begin(), places.end(), [&](auto& a, auto& b) { return worth(a) > worth(b); });
  return places;
}

/// The first two miss few nights, fewest where nobody is behind them; a third man comes in on as many nights
/// as they leave minutes for.
void ShapePosition(const Men& men, double starter, const SeasonNorm& norm) {
  const double length = norm.mostMinutes / kMostMinutes;
  const int season = Round(norm.games);
  double left = norm.teamMinutes / 5;
  for (std::size_t i = 0; i < men.size(); ++i) {
    StatLine& line = men[i]->Stats[1];
    double minutes = (i == 0 ? starter : kPair - starter) * length;
    if (i < 2) {
      line.G = static_cast<i16>(season - (season - line.G) / (men.size() > 2 ? 2 : 4));
    } else {
      minutes = (4 + 2 * Rnd()) * length;
      const double his = left / static_cast<double>(men.size() - i);
      line.G = static_cast<i16>(std::max(1, std::min(Round(his / minutes), season)));
    }
    ScaleLine(line, std::max(1, Round(line.G * minutes)));
    left -= line.Min;
  }
}

/// Parts the minutes as a coach does: the best starter plays most and the man behind him least.
void ShapeMinutes(Roster& team, const SeasonNorm& norm) {
  const double* starter = norm.starters.minutes;
  for (const Men& men : MenByWorth(team)) ShapePosition(men, Spread(*starter++, 2), norm);
}

/// x, the part of the most he can play in his games, becomes x - k x (1 - x): both ends stay, the middle
/// gives way (or gains, for a k below 0) so that the men of a position fill it. What k can't do alone is done
/// in proportion.
void SettleMinutes(Roster& team, int position, const SeasonNorm& norm) {
  double sum = 0, room = 0;
  const auto most = [&](const StatLine& line) { return line.G * norm.mostMinutes; };
  const auto part = [&](const StatLine& line) { return std::min(1.0, Share(line.Min, most(line))); };
  const auto forPosition = [&](auto&& visit) {
    ForMen(team, [&](PlayerRecord& man) {
      if (man.PrimaryPosition == position) visit(man.Stats[1]);
    });
  };
  forPosition([&](const StatLine& line) {
    const double x = part(line);
    sum += most(line) * x;
    room += most(line) * x * (1 - x);
  });
  const double target = norm.teamMinutes / 5;
  const double k = room > 0 ? Clamp((sum - target) / room, -0.9, 0.9) : 0;
  const double proportion = Share(target, sum - k * room);
  forPosition([&](StatLine& line) {
    const double x = part(line);
    const double minutes = std::min(1.0, (x - k * x * (1 - x)) * proportion) * most(line);
    ScaleLine(line, Clamp(Round(minutes), 1, 32767));
  });
}

struct Figure {
  i16 StatLine::*man;
  i16 RealTotalsLine::*team;
  f32 EraRecord::*era;
  bool foulKind;  // a women's game has it at the rate of fouls, not of shots
};
// Tries before makes.
constexpr Figure kFigures[] = {
    {&StatLine::FGA, &RealTotalsLine::FGA, &EraRecord::FGA, false},
    {&StatLine::F3A, &RealTotalsLine::F3A, &EraRecord::F3A, false},
    {&StatLine::F3M, &RealTotalsLine::F3M, &EraRecord::F3M, false},
    {&StatLine::FGM, &RealTotalsLine::FGM, &EraRecord::FGM, false},
    {&StatLine::FTA, &RealTotalsLine::FTA, &EraRecord::FTA, false},
    {&StatLine::FTM, &RealTotalsLine::FTM, &EraRecord::FTM, false},
    {&StatLine::Reb, &RealTotalsLine::Reb, &EraRecord::Reb, false},
    {&StatLine::Off, &RealTotalsLine::Off, &EraRecord::OffReb, false},
    {&StatLine::Ast, &RealTotalsLine::Ast, &EraRecord::Ast, false},
    {&StatLine::St, &RealTotalsLine::St, &EraRecord::St, true},
    {&StatLine::Bk, &RealTotalsLine::Bk, &EraRecord::Bk, true},
    {&StatLine::To, &RealTotalsLine::To, &EraRecord::TO, true},
    {&StatLine::Pf, &RealTotalsLine::Pf, &EraRecord::PF, true},
};

/// Counts that go together: a team's surplus of the first moves all of them. `kept` is the part of it that
/// stays; the lead counts of real teams lie about so far apart.
struct FigureGroup {
  i16 StatLine::*lead;
  std::array<i16 StatLine::*, 3> others;
  double kept;
};
constexpr FigureGroup kGroups[] = {
    {&StatLine::FGA, {&StatLine::FGM, &StatLine::F3A, &StatLine::F3M}, 0.35},
    {&StatLine::FTA, {&StatLine::FTM}, 0.7},
    {&StatLine::Reb, {&StatLine::Off}, 0.5},
    {&StatLine::Ast, {}, 0.7},
    {&StatLine::St, {}, 0.7},
    {&StatLine::Bk, {}, 0.8},
    {&StatLine::To, {}, 0.5},
    {&StatLine::Pf, {}, 0.8},
};

/// Men drawn one by one make teams that shoot 70 or 110 times a game; men who play together share one ball.
void EvenTeams(std::vector<Roster>& teams) {
  for (const FigureGroup& group : kGroups) {
    const auto sumOf = [&](Roster& team) {
      double sum = 0;
      ForMen(team, [&](PlayerRecord& man) { sum += man.Stats[1].*group.lead; });
      return sum;
    };
    double mean = 0;
    for (auto& team : teams) mean += sumOf(team) / static_cast<double>(teams.size());
    for (auto& team : teams) {
      const double sum = sumOf(team);
      const double factor = Share(mean + (sum - mean) * group.kept, sum);
      ForMen(team, [&](PlayerRecord& man) {
        StatLine& line = man.Stats[1];
        line.*group.lead = Scaled(line.*group.lead, factor);
        for (const auto other : group.others) {
          if (other) line.*other = Scaled(line.*other, factor);
        }
      });
    }
  }
}

void SettleFigures(std::vector<Roster>& teams, const SeasonNorm& norm) {
  for (const Figure& figure : kFigures) {
    double sum = 0;
    for (auto& team : teams) ForMen(team, [&](PlayerRecord& man) { sum += man.Stats[1].*figure.man; });
    const double perGame = norm.era.*figure.era * (figure.foulKind ? norm.fouls : norm.shots);
    const double factor = Share(perGame * norm.games * static_cast<double>(teams.size()), sum);
    for (auto& team : teams) {
      ForMen(team,
             [&](PlayerRecord& man) { man.Stats[1].*figure.man = Scaled(man.Stats[1].*figure.man, factor); });
    }
  }
  for (auto& team : teams) ForMen(team, [](PlayerRecord& man) { Mend(man.Stats[1]); });
}

void SettleStarts(Roster& team, int games) {
  for (int position = 1; position <= 5; ++position) {
    std::vector<StatLine*> men;
    ForMen(team, [&](PlayerRecord& man) {
      if (man.PrimaryPosition == position) men.push_back(&man.Stats[1]);
    });
    std::stable_sort(men.begin(), men.end(), [](auto* a, auto* b) { return a->Min > b->Min; });
    int left = games;
    for (StatLine* line : men) {
      line->GS = static_cast<i16>(std::min<int>(left, line->G));
      left -= line->GS;
    }
  }
}

void AddUp(Roster& team) {
  RealTotalsLine& own = team.team.RealTotals[1];
  for (const Figure& figure : kFigures) {
    int sum = 0;
    ForMen(team, [&](PlayerRecord& man) { sum += man.Stats[1].*figure.man; });
    own.*figure.team = static_cast<i16>(std::min(sum, 32767));
  }
}

double TeamDefense(Roster& team) {
  double sum = 0, minutes = 0;
  ForMen(team, [&](PlayerRecord& man) {
    sum += PositionDefense(man, man.PrimaryPosition) * man.Stats[1].Min;
    minutes += man.Stats[1].Min;
  });
  return Share(sum, minutes);
}

double Possessions(const RealTotalsLine& line) { return line.FGA + 0.44 * line.FTA - line.Off + line.To; }

/// The opponents of a team before the league's sums are met.
RealTotalsLine OpponentsOf(const Roster& team, const RealTotalsLine& mean, double betterDefense) {
  const RealTotalsLine& own = team.team.RealTotals[1];
  RealTotalsLine opponents = mean;
  const double pace = Against(Possessions(own), Possessions(mean));
  const double shooting = 1 - Spread(betterDefense * 0.02, 0.02);
  const double thefts = 1 + 0.3 * (Against(own.St, mean.St) - 1);
  for (const Figure& figure : kFigures) opponents.*figure.team = Scaled(mean.*figure.team, pace);
  opponents.FGM = Scaled(opponents.FGM, shooting);
  opponents.F3M = Scaled(opponents.F3M, shooting);
  opponents.To = Scaled(opponents.To, thefts);
  return opponents;
}

/// Moves the opponents' figures so that they add up to the teams' own, the remainder one by one.
void Balance(std::vector<Roster>& teams) {
  for (const Figure& figure : kFigures) {
    int own = 0, opponents = 0;
    for (const auto& team : teams) {
      own += team.team.RealTotals[1].*figure.team;
      opponents += team.team.RealTotals[2].*figure.team;
    }
    int left = own;
    for (auto& team : teams) {
      i16& value = team.team.RealTotals[2].*figure.team;
      value = Scaled(value, Share(own, opponents));
      left -= value;
    }
    for (std::size_t t = 0; left != 0 && opponents > 0; t = (t + 1) % teams.size()) {
      const int step = left > 0 ? 1 : -1;
      teams[t].team.RealTotals[2].*figure.team =
          static_cast<i16>(teams[t].team.RealTotals[2].*figure.team + step);
      left -= step;
    }
  }
}

void SettleOpponents(std::vector<Roster>& teams) {
  RealTotalsLine mean;
  for (const Figure& figure : kFigures) {
    int sum = 0;
    for (const auto& team : teams) sum += team.team.RealTotals[1].*figure.team;
    mean.*figure.team = static_cast<i16>(sum / static_cast<int>(teams.size()));
  }
  std::vector<double> defense;
  double meanDefense = 0;
  for (auto& team : teams) {
    defense.push_back(TeamDefense(team));
    meanDefense += defense.back() / static_cast<double>(teams.size());
  }
  for (std::size_t t = 0; t < teams.size(); ++t) {
    teams[t].team.RealTotals[2] = OpponentsOf(teams[t], mean, defense[t] - meanDefense);
  }
  Balance(teams);
}

/// What the drawn lines leave at 0 although the season kept it. Before any rating reads it.
void FillIn(Roster& team) {
  ForMen(team, [&](PlayerRecord& man) {
    RatingRun run;
    run.SetFactors(man);
    DefaultTurnovers(man, team.team);
    DefaultSteals(man, team.team, run);
    DefaultBlockedShots(man, team.team, run);
  });
}

}  // namespace

void SettleSeasonLines(std::vector<Roster>& teams, GameLevel level, int year) {
  if (teams.empty()) return;
  const SeasonNorm norm = NormOf(level, year);
  for (auto& team : teams) {
    ShapeMinutes(team, norm);
    for (int position = 1; position <= 5; ++position) SettleMinutes(team, position, norm);
  }
  EvenTeams(teams);
  SettleFigures(teams, norm);
  for (auto& team : teams) {
    SettleStarts(team, static_cast<int>(norm.games));
    AddUp(team);
    FillIn(team);
    AddUp(team);
  }
  SettleOpponents(teams);
}

}  // namespace tipline
