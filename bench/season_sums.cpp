#include "season_sums.h"

#include <algorithm>
#include <cmath>

#include "base/calendar.h"
#include "engine/game_state.h"
#include "harness/memory_league.h"
#include "league/program.h"
#include "league/season_date.h"

namespace tipline {
namespace {

struct Pair {
  double TeamRates::*rate;
  i16 StatLine::*counter;
};
constexpr Pair kPairs[] = {
    {&TeamRates::FGA, &StatLine::FGA}, {&TeamRates::FGM, &StatLine::FGM}, {&TeamRates::F3A, &StatLine::F3A},
    {&TeamRates::F3M, &StatLine::F3M}, {&TeamRates::FTA, &StatLine::FTA}, {&TeamRates::FTM, &StatLine::FTM},
    {&TeamRates::Reb, &StatLine::Reb}, {&TeamRates::Off, &StatLine::Off}, {&TeamRates::Ast, &StatLine::Ast},
    {&TeamRates::St, &StatLine::St},   {&TeamRates::Bk, &StatLine::Bk},   {&TeamRates::To, &StatLine::To},
    {&TeamRates::Pf, &StatLine::Pf}};

/// Chance that a man who fouls at his own rate draws `limit` fouls in these minutes.
double FoulOutChance(const StatLine& real, double minutes, int limit) {
  if (real.Min == 0 || limit == 0) return 0;
  const double mean = static_cast<double>(real.Pf) / real.Min * minutes;
  double term = std::exp(-mean), below = 0;
  for (int fouls = 0; fouls < limit; ++fouls) {
    below += term;
    term *= mean / (fouls + 1);
  }
  return std::max(0.0, 1 - below);
}

}  // namespace

void TeamRates::Add(const StatLine& line, double times) {
  for (const Pair& pair : kPairs) this->*pair.rate += line.*pair.counter * times;
}

void TeamRates::Divide(double by) {
  for (const Pair& pair : kPairs) this->*pair.rate /= by;
}

TeamRates RatesOf(const EraRecord& era) {
  TeamRates rates;
  rates.FGA = era.FGA, rates.FGM = era.FGM, rates.F3A = era.F3A, rates.F3M = era.F3M;
  rates.FTA = era.FTA, rates.FTM = era.FTM, rates.Reb = era.Reb, rates.Off = era.OffReb;
  rates.Ast = era.Ast, rates.St = era.St, rates.Bk = era.Bk, rates.To = era.TO, rates.Pf = era.PF;
  return rates;
}

void SeasonSums::Add() {
  ++games;
  const int lead = Lead(2);
  homeWins += lead > 0 ? 1 : 0;
  overtimes += game.Period > league.rules.PeriodList ? 1 : 0;
  margin += lead;
  marginSquares += static_cast<double>(lead) * lead;
  for (int side = 1; side <= 2; ++side) {
    possessions += game.team[side].Possessions[3];
    teamRebounds += game.side[side].GameTeamRebounds;
    teamTurnovers += game.side[side].GameTeamTurnovers;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      const Man& played = ManAt(side, slot);
      if (played.PlayerGameTime == 0) continue;
      const PlayerRecord& p = PlayerAt(side, slot);
      const double minutes = played.PlayerGameTime / 600.0;
      const int limit = league.rules.DqList;
      foulOuts += limit > 0 && p.Stats[3].Pf >= limit ? 1 : 0;
      freeFoulOuts += FoulOutChance(p.Stats[1], minutes, limit);
      replay.Add(p.Stats[3], 1);
      if (p.Stats[1].Min > 0) real.Add(p.Stats[1], minutes / p.Stats[1].Min);
      for (int position = 1; position <= kPositions; ++position) {
        positionPoints[position] += played.PositionPoints[position];
      }
      ManSums& sums = man[static_cast<std::size_t>(p.RecNo)];
      ++sums.games;
      sums.minutes += minutes;
    }
  }
}

void SeasonSums::Close() {
  const double teamGames = 2.0 * games;
  for (double* sum : {&possessions, &teamRebounds, &teamTurnovers}) *sum /= teamGames;
  replay.Divide(teamGames);
  real.Divide(teamGames);
}

void SetDateOfRound(int round, int rounds) {
  constexpr SeasonDate kOpeningNight{2, 20};
  constexpr int kSeasonDays = 165;
  const SeasonDate date = DaysLater(kOpeningNight, round * kSeasonDays / std::max(1, rounds));
  game.GameMonth = date.month;
  game.GameDay = date.day;
  game.GameCalendarMonth = CalendarMonth(date.month);
}

SeasonSums PlaySeason(int games) {
  SeasonSums sums;
  sums.man.resize(league.player.size());
  const auto teams = MemoryTeams();
  const int rounds = games * 2 / static_cast<int>(std::max<std::size_t>(teams.size(), 1));
  for (int round = 0; sums.games < games; ++round) {
    if (program.ReplayLocked) SetDateOfRound(round, rounds);
    for (const Pairing& pair : RoundOf(teams, round)) {
      PlayMatch(pair.visitor, pair.home);
      sums.Add();
      KeepBooks();
    }
  }
  sums.Close();
  return sums;
}

}  // namespace tipline
