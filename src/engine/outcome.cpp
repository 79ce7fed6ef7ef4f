// The three branches of a play's draw, and the free throw.
#include "engine/outcome.h"
#include "engine/eligible.h"

#include <algorithm>

#include "engine/chances.h"
#include "engine/execution.h"
#include "engine/resolution.h"
#include "engine/who.h"
#include "league/program.h"

namespace tipline {
namespace {

bool SetKindOrHold() { return IsSetShot(game.PlayKind) || game.PlayKind == "HOLD BALL"; }

/// Replay against real free throws per play, in (0, inf); 0 when one of the lines says too little.
double FreeThrowDrift(const PlayerRecord& p) {
  const StatLine& real = p.Stats[1];
  const StatLine& replay = p.Stats[2];
  if (real.FGA + real.To <= 3 || replay.FGA + replay.To <= 3 || real.FTA <= 10 || replay.FTA <= 3) return 0;
  const double now = static_cast<double>(replay.FTA) / (replay.To + replay.FGA);
  return now / (static_cast<double>(real.FTA) / (real.To + real.FGA));
}

/// Share of the fouls, in thousandths, that come on the shot.
int ShootingFoulShare() {
  const PlayerRecord& p = BallHandler();
  int share = 720;
  if (p.Year <= 1990) Scale(share, 0.8);
  if (p.Year <= 1966) share += 200;
  const double drift = game.AnalysisMode ? 0 : FreeThrowDrift(p);
  if (drift > 0) {
    if (drift >= 1 + 0.1 * Rnd()) {
      Scale(share, 0.75);
    } else if (drift <= 1 - 0.1 * Rnd()) {
      Scale(share, 1.25);
    }
  }
  if (IsCollegeOrInternational(game.team[game.OffenseSide])) Scale(share, 0.75);
  return Clamp(share, 350, 950);
}

/// A foul on the shot, or before it.
void ShotOrFloor() {
  const Side& defense = Defense();
  game.PlayResult = "MF";
  if (game.play.ShotValue == "THREE") game.PlayResult = Rnd(3) == 1 ? PlayResult("M3F") : PlayResult("F0");
  if (Rnd(1000) > ShootingFoulShare()) game.PlayResult = "F0";
  if (game.call.SetPlay && game.call.LobFrom > 0) game.PlayResult = "MF";
  if (game.play.PlayCoverage == 6 && Rnd(100) <= 99) game.PlayResult = "F0";
  if (defense.QuickFoul >= 1) game.PlayResult = Rnd(1000) <= 999 ? PlayResult("F0") : PlayResult("HOLD BALL");
}

/// Some floor fouls are away from the ball.
void AwayFromTheBall() {
  const Side& defense = Defense();
  Play& play = game.play;
  if (game.PlayResult != "F0" || !SetKindOrHold()) return;
  play.OffBallFoul = (Rnd(15) == 1 && game.BallSlot > Rnd(4)) || Rnd(18) == 1 ? 1 : 0;
  if (play.PlayCoverage == 6 || defense.QuickFoul || defense.StealFoul) play.OffBallFoul = 0;
  if (play.OffBallFoul) play.Assisted = false;
  if (defense.QuickFoul == 3 && game.BallPlayer != game.WorstFreeThrowShooter) play.OffBallFoul = 1;
}

/// A foul on purpose, on the man who brings the ball up.
void OnPurpose() {
  const Side& defense = Defense();
  game.play.IntentionalFoul = 0;
  bool onPurpose = Rnd(10) == 1;
  if (!onPurpose && Rnd(2) == 1 && defense.QuickFoul >= 1) {
    onPurpose = game.ShotClock < (0.7 + 0.3 * Rnd()) * league.rules.ShotClockList * 10;
  }
  if (!onPurpose || game.PlayResult == "HOLD BALL" || IsJump(game.GameState) ||
      game.PlayKind == "FASTBREAK" || game.PlayKind == "OFFREB" || game.PlayKind == "DRIVE" ||
      defense.QuickFoul == 3) {
    return;
  }
  game.play.IntentionalFoul = 1;
  int position = 1;
  if (game.team[game.OffenseSide].Year <= 1975 + Rnd(30)) position = Rnd(2);
  if (Rnd(5) == 1) position = Rnd(3);
  if (Rnd(50) == 1) position = Rnd(kPositions);
  if (const int slot = Offense().Lineup[position]; slot > 0) {
    game.BallPlayer = slot;
    game.BallSlot = position;
  }
}

PlayResult ResultOfTrip(PlayKind trip) {
  if (trip == "SHOOT1") return "F1";
  if (trip == "SHOOT1-1") return "F1-1";
  if (trip == "SHOOT2") return "F2";
  return "F0";
}

/// A steal of this turnover, in hundredths, by the drawn defender's own habit and the era's.
int StealShare(const PlayerRecord& d) {
  const EraRecord& era = EraRow(d.Year, IsCollege(d), 2013, 1940);
  const StatLine& real = d.Stats[1];
  int share = era.TO > 0 ? Round(100.0 * era.St / era.TO) : 50;
  if (real.Min >= 50 && real.St >= 10 && era.St > 0) {
    const int minutes = IsCollege(d) ? 40 : 48;
    share = Round(static_cast<double>(real.St) / real.Min * minutes * share / (era.St / 5));
  }
  Scale(share, 1.25);
  if (Defense().StealFoul) Scale(share, 1.5);
  Scale(share, game.StealTune);
  Scale(share, game.PlayKind == "FASTBREAK" ? 0.2 : 1.15);
  return share;
}

void OffensiveFoul() {
  const StatLine& real = BallHandler().Stats[1];
  int odds = 20;
  const double fouls = real.Min > 0 ? 48.0 * real.Pf / real.Min : 0;
  if (fouls < Rnd(3) + 1) odds = 3;
  if (Offense().EligibleCount <= 3) odds = 0;
  if (Rnd(100) > odds || game.PlayKind == "HOLD BALL") return;
  Play& play = game.play;
  game.PlayResult = "OF";
  play.FoulingSide = game.OffenseSide;
  play.Fouler = game.BallPlayer;
  play.FoulerSlot = game.BallSlot;
  if (Rnd(5) == 5) return;
  if (SetKindOrHold()) {
    play.OffBallFoul = (Rnd(2) == 1 && game.BallSlot > Rnd(4)) || Rnd(10) == 1 ? 1 : 0;
    const auto called = [](const Side& s) { return s.QuickFoul || s.StealFoul; };
    if (called(game.side[1]) || called(game.side[2])) play.OffBallFoul = 0;
  }
  if (game.PlayKind == "OUTSIDE" || game.PlayKind == "THREE") game.PlayKind = "DRIVE";
}

/// A college man's replay percentage is pulled towards his real one.
void PullToReal(int& chance, int realMade, int realTried, int madeNow, int triedNow) {
  if (realMade <= 0 || triedNow <= 0) return;
  const double drift =
      (static_cast<double>(madeNow) / triedNow) / (static_cast<double>(realMade) / realTried);
  if (drift > 1 + 0.05 * Rnd()) {
    chance -= 75;
  } else if (drift > 1 + 0.01 * Rnd()) {
    chance -= 25;
  } else if (drift < 1 - 0.05 * Rnd()) {
    chance += 75;
  } else if (drift < 1 - 0.01 * Rnd()) {
    chance += 25;
  }
}

void CollegePull() {
  if (game.AnalysisMode) return;
  const auto both = [](char type) { return game.team[1].TeamType == type && game.team[2].TeamType == type; };
  if (!both('O') && !both('C')) return;
  if (std::abs(game.side[1].CollegeStrength - game.side[2].CollegeStrength) > Rnd(3)) return;
  const StatLine& real = BallHandler().Stats[1];
  const StatLine& replay = BallHandler().Stats[2];
  Play& play = game.play;
  if (real.FGA > 50 && play.TwoPointChance > 200 && replay.FGA >= Rnd(50) + 25) {
    PullToReal(play.TwoPointChance, real.FGM, real.FGA, replay.FGM, replay.FGA);
  }
  if (real.F3A > 25 && play.ThreePointChance > 100 && replay.F3A >= Rnd(25) + 25) {
    PullToReal(play.ThreePointChance, real.F3M, real.F3A, replay.F3M, replay.F3A);
  }
}

/// Five seasons of great defenses.
bool GreatDefense(const TeamRecord& team) {
  constexpr struct {
    std::string_view city;
    int year;
  } kGreat[] = {
      {"New York", 1972}, {"New York", 1992}, {"Chicago", 1992}, {"Chicago", 1995}, {"Los Angeles L", 2009}};
  return std::any_of(std::begin(kGreat), std::end(kGreat),
                     [&](const auto& g) { return team.Year == g.year && team.City == g.city; });
}

/// The moment and the league on top of the shooter's own chance.
void AdjustChances() {
  Play& play = game.play;
  const TeamRecord& attackers = game.team[game.OffenseSide];
  const TeamRecord& defenders = game.team[game.DefenseSide];
  const auto both = [&play](auto change) {
    change(play.TwoPointChance);
    change(play.ThreePointChance);
  };
  if (game.GameClock < 40 && game.GameClock < Rnd(20) + 20) both([](int& c) { Scale(c, 0.8); });
  if (game.call.SetPlay) Scale(play.TwoPointChance, BallHandler().RateOffInside <= Rnd(6) + 3 ? 0.9 : 1.1);
  if (BallHandler().Year >= 2018) both([](int& c) { Scale(c, 0.97); });
  CollegePull();
  if (attackers.TeamType == 'P' && !(defenders.RosterKind == 'D') && GreatDefense(defenders)) {
    both([](int& c) { c -= 20; });
  }
  if (attackers.RosterKind == 'D') {
    play.TwoPointChance -= 5;
    play.ThreePointChance -= 3;
    if (attackers.Year >= 2005 && league.ActiveTeams < 30) {
      const double few = std::min(10.0, (30 - league.ActiveTeams) * 0.6);
      play.TwoPointChance -= Round(few);
      play.ThreePointChance -= Round(few * 0.6);
    }
  }
}

}  // namespace

void FoulBranch() {
  Play& play = game.play;
  const Side& defense = Defense();
  if (!OnTeam(game.OffenseSide, game.BallPlayer)) {
    game.BallSlot = DrawPosition(game.OffenseSide);
    game.BallPlayer = game.BallSlot > 0 ? Offense().Lineup[game.BallSlot] : 0;
  }
  ShotOrFloor();
  AwayFromTheBall();
  const int fouls = defense.TeamFouls + 1;
  if (game.PlayResult == "F0") game.PlayResult = ResultOfTrip(PenaltyTrip(fouls));
  OnPurpose();
  if (league.rules.BackcourtTwoShotsCheck && play.IntentionalFoul) {
    game.PlayResult = "F2";
    const int counted = fouls + (game.Period > league.rules.PeriodList ? 2 : 0);
    const auto& limits = league.rules.FoulLimit;
    const bool reached =
        std::any_of(limits.begin(), limits.end(), [&](int l) { return l > 0 && counted >= l; });
    if (reached && league.rules.ThreeToMakeTwoBackcourtCheck) game.PlayResult = "F3-2";
  }
  play.FoulingSide = game.DefenseSide;
  FindFouler();
  if (defense.QuickFoul == 3 && play.OffBallFoul &&
      PositionOf(game.OffenseSide, game.WorstFreeThrowShooter) > 0) {
    game.BallPlayer = game.WorstFreeThrowShooter;
    game.BallSlot = PositionOf(game.OffenseSide, game.BallPlayer);
  }
}

void TurnoverBranch() {
  game.PlayResult = "TO";
  const int position = DrawPosition(game.DefenseSide);
  const int share = position > 0 ? StealShare(OnFloor(game.DefenseSide, position)) : 0;
  if (Rnd(100) <= share) game.PlayResult = "ST";
  if (Defense().QuickFoul >= 1) game.PlayResult = "ST";
  if (game.PlayKind == "FASTBREAK" && game.fastBreak.BreakDefenders == 0) game.PlayResult = "TO";
  OffensiveFoul();
}

void ShotBranch() {
  Play& play = game.play;
  const bool three = play.ShotValue == "THREE";
  DefenseRatings();
  if (three) {
    ThreeChance();
  } else {
    TwoChance();
  }
  AdjustChances();
  if (program.GameKind == "L" && !game.AnalysisMode) {
    if (play.TwoPointChance > 150) play.TwoPointChance += Round(game.TwoTune);
    if (play.ThreePointChance > 100) play.ThreePointChance += Round(game.ThreeTune);
  }
  if (three) {
    game.PlayResult = "M3";
    if (Rnd(1000) <= play.ThreePointChance)
      game.PlayResult = Rnd(100) <= 3 ? PlayResult("G3F") : PlayResult("G3");
  } else {
    game.PlayResult = "M";
    if (Rnd(1000) <= play.TwoPointChance) {
      const bool fouled = Defense().EligibleCount >= Rnd(3) + 3 && Rnd(100) <= 7;
      game.PlayResult = fouled ? PlayResult("GF") : PlayResult("G");
    }
  }
  if (game.PlayResult == "GF" || game.PlayResult == "G3F") {
    play.FoulingSide = game.DefenseSide;
    FindFouler();
  }
}

void DoubleFoul() {
  Play& play = game.play;
  game.PlayResult = "2XPF";
  const Side& offense = Offense();
  int position = 0;
  for (int tries = 0; tries < 100; ++tries) {  // anybody but the man with the ball
    position = Rnd(kPositions);
    if (Rnd(2) == 1) position = Rnd(3) + 2;
    if (Rnd(3) == 2) position = 3 + Rnd(2);
    if (offense.Lineup[position] > 0 && position != game.BallSlot) break;
  }
  play.OffenseFouler = offense.Lineup[position];
  if (Rnd(4) == 1 && position >= 2) position = 1 + Rnd(4);
  if (Rnd(3) == 1) position = 3 + Rnd(2);
  play.FoulingSide = game.DefenseSide;
  play.Fouler = Defense().Lineup[position];
  play.FoulerSlot = position;
}

void ShootFreeThrow() {
  const int side = game.OffenseSide;
  PlayerRecord& shooter = BallHandler();
  const bool last = game.PlayKind == "SHOOT1" && !game.TechnicalFreeThrow;
  bool made = Rnd(1000) <= FreeThrowChance();
  // Two behind with five seconds left and one shot to come: the miss is the only way to a basket.
  if (last && LastPeriod() && Lead(side) <= -2 && game.GameClock > 0 && game.GameClock < 50 && Rnd(10) <= 9)
    made = false;
  game.PlayResult = made ? PlayResult("FTG") : PlayResult("FTM");
  if (game.BallPlayer == 0) return;
  ContinueStreak(shooter.FreeThrowStreak, shooter.LongestFreeThrowStreak, made);
}

}  // namespace tipline
