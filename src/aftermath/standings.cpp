#include "aftermath/standings.h"

#include "aftermath/season_lines.h"

namespace tipline {
namespace {

using Split = u8 TeamRecord::*;

/// A split of both: the winner's counter and the loser's.
void Count(Split winners, Split losers) {
  Add(game.team[WinnerSide()].*winners, 1);
  Add(game.team[LoserSide()].*losers, 1);
}

/// Level at the half counts as trailing, but for a half without a point.
void CountHalfTime() {
  const int winner = game.side[WinnerSide()].HalfScore, loser = game.side[LoserSide()].HalfScore;
  if (winner > loser) {
    Count(&TeamRecord::WinsLeadingAtHalf, &TeamRecord::LossesTrailingAtHalf);
  } else if (loser > 0) {
    Count(&TeamRecord::WinsTrailingAtHalf, &TeamRecord::LossesLeadingAtHalf);
  }
}

void CountHundreds() {
  TeamRecord &winner = game.team[WinnerSide()], &loser = game.team[LoserSide()];
  const bool loserHas = game.side[LoserSide()].Score >= 100;
  if (game.side[WinnerSide()].Score >= 100) {
    Count(&TeamRecord::WinsScoring100, &TeamRecord::LossesAllowing100);
    if (loserHas) Add(winner.WinsAllowing100, 1);
  }
  if (loserHas) Add(loser.LossesScoring100, 1);
}

void CountMargin() {
  if (Margin() <= 3) Count(&TeamRecord::CloseWins, &TeamRecord::CloseLosses);
  if (Margin() >= 10) Count(&TeamRecord::BlowoutWins, &TeamRecord::BlowoutLosses);
}

/// What kind of team each has met, by the records before this game.
void CountOpponents() {
  TeamRecord &winner = game.team[WinnerSide()], &loser = game.team[LoserSide()];
  const bool loserWins = loser.Wins >= loser.Losses, winnerWins = winner.Wins >= winner.Losses;
  Add(loserWins ? winner.WinsVsWinning : winner.WinsVsLosing, 1);
  Add(winnerWins ? loser.LossesVsWinning : loser.LossesVsLosing, 1);
}

void CountLastTen(TeamRecord& team, std::string_view letter) {
  for (int k = 10; k > 1; --k) team.LastTen[k] = team.LastTen[k - 1];
  team.LastTen[1] = letter;
}

/// Games on the road are those that are neither at home nor on a neutral court.
void CountCourt() {
  if (game.NeutralGame) return Count(&TeamRecord::NeutralWins, &TeamRecord::NeutralLosses);
  TeamRecord& home = game.team[2];
  Add(WinnerSide() == 2 ? home.HomeWins : home.HomeLosses, 1);
}

void CountStreaks() {
  i16 &up = game.team[WinnerSide()].Streak, &down = game.team[LoserSide()].Streak;
  up = Held<i16>(up >= 0 ? up + 1 : 1);
  down = Held<i16>(down <= 0 ? down - 1 : -1);
}

void CountDivision() {
  const int visitor = game.GameTeam[1], home = game.GameTeam[2];
  const auto same = [](int a, int b) { return a > 0 && a == b; };
  if (same(DivisionOf(visitor), DivisionOf(home)))
    Count(&TeamRecord::DivisionWins, &TeamRecord::DivisionLosses);
  if (same(ConferenceOf(visitor), ConferenceOf(home)))
    Count(&TeamRecord::ConferenceWins, &TeamRecord::ConferenceLosses);
}

}  // namespace

void AddToStandings() {
  TeamRecord &winner = game.team[WinnerSide()], &loser = game.team[LoserSide()];
  if (game.Period > league.rules.PeriodList) Count(&TeamRecord::OvertimeWins, &TeamRecord::OvertimeLosses);
  CountHalfTime();
  CountHundreds();
  CountMargin();
  CountOpponents();
  Add(winner.Wins, 1);
  Add(loser.Losses, 1);
  CountLastTen(winner, "W");
  CountLastTen(loser, "L");
  CountCourt();
  CountStreaks();
  CountDivision();
  game.BoxRebuild = true;
}

}  // namespace tipline
