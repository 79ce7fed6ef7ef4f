// What a play comes to: the weights of shot, turnover and foul, the draw among them, and the results that
// precede it.
#include "engine/resolution.h"

#include <algorithm>

#include "engine/chances.h"
#include "engine/clock.h"
#include "engine/execution.h"
#include "engine/fatigue.h"
#include "engine/outcome.h"
#include "engine/shot_selection.h"
#include "engine/weights.h"
#include "engine/who.h"

namespace tipline {
namespace {

int RuleTenths() { return league.rules.ShotClockList * 10; }
bool ShotClockRule() { return league.rules.ShotClockList > 0; }
bool OpenFloor() { return game.GameState == "OFFENSE" || game.GameState == "DEFENSE-CALL"; }
bool FoulCalled(const Side& defense) { return defense.QuickFoul != 0 || defense.StealFoul != 0; }

/// The defender of the man with the ball, by the match-ups of this stop; the centre where that leaves nobody.
int DefenderOf(int position) {
  const Side& defense = Defense();
  if (position < 1) return defense.Lineup[kPositions];
  const int own = defense.Matchup[position];
  const int slot = own >= 1 && own <= kPositions ? defense.Lineup[own] : 0;
  return slot ? slot : defense.Lineup[kPositions];
}

void ClearPlay() {
  game.play = {};
  game.TimeoutTaken = 0;
  game.MomentumMark = 0;
  if (game.GameState != "OFFREB") game.PutbackClass = 0;
  const int passer = game.possession.LastPasserSlot;
  if (passer > 0) game.play.Assister = Offense().Lineup[passer];
}

/// Somebody has the ball, and his place is known.
void HoldBall() {
  if (game.BallPlayer > 0 && PositionOf(game.OffenseSide, game.BallPlayer) == 0) game.BallPlayer = 0;
  if (game.BallPlayer == 0) {
    const int position = DrawPosition(game.OffenseSide);
    if (position > 0) game.BallPlayer = Offense().Lineup[position];
  }
  game.BallSlot = PositionOf(game.OffenseSide, game.BallPlayer);
}

/// A lob or a pick may be on; a pick that was called before is run now.
void SetPlays() {
  bool pickMade = false;
  const int clock = game.ShotClock;
  if (game.GameState == "OFFENSE" && game.GameClock > 100 && clock > Rnd(30) + 30) {
    const bool room = ShotClockRule() ? clock < FullShotClock() || Rnd(2) == 1 : clock > 100;
    if (room && (Offense().CoachMode == "C" || Rnd(4) == 1)) {
      FindLob();
      if (!game.call.SetPlay) {
        const bool before = game.call.PickBall > 0 && game.call.PickScreener > 0;
        FindPick();
        pickMade = !before && game.call.PickBall > 0;
      }
    }
  }
  if (game.call.PickBall > 0 && game.call.PickScreener > 0 && !pickMade) {
    ResolvePick();
    if (game.BallSlot == game.call.PickBall) game.PlayKind = "DRIVE";
  }
}

void SeasonForm() {
  for (int s = 1; s <= 2; ++s) {
    if (game.GameClock > kMinute) game.side[s].LastPossessionClock = 999;
    const TeamRecord& team = game.team[s];
    const auto points = [](const StatLine& line) { return 2 * line.FGM + line.F3M + line.FTM; };
    const int games = team.Wins + team.Losses;
    game.side[s].TeamPointDiff =
        games > 0 ? static_cast<double>(points(team.TeamStats[1]) - points(team.TeamStats[2])) / games : 0;
  }
}

/// How many points the attempt is worth. A break can end in a three by a man who takes them.
void ValueOfShot() {
  game.play.ShotValue = "TWO";
  const bool arc = league.rules.ThreePointCheck;
  if (game.PlayKind == "THREE" || (game.PlayKind == "OFFREB" && game.PutbackClass == 3 && arc)) {
    game.play.ShotValue = "THREE";
  }
  game.fastBreak.BreakThree = 0;
  if (game.PlayKind != "FASTBREAK" || !arc || game.AnalysisMode) return;
  if (ManAt(game.OffenseSide, game.BallPlayer).BreakSpot < 300) return;
  const StatLine& real = BallHandler().Stats[1];
  int share = Round(1000.0 * real.F3A / (real.FGA + 1));
  const FastBreak& run = game.fastBreak;
  if (run.BreakAttackers >= run.BreakDefenders + 2) Scale(share, 0.3);
  if (run.BreakAttackers <= run.BreakDefenders) Scale(share, 1.2);
  if (Rnd(1000) <= share) {
    game.play.ShotValue = "THREE";
    game.fastBreak.BreakThree = 1;
  }
}

/// College and international teams carry the strength of their schedules into the game.
int StrengthOf(PlayerRecord& player, const TeamRecord& team) {
  if (player.ScheduleStrength == 0) player.ScheduleStrength = team.ScheduleStrength;
  return Round((player.ScheduleStrength * 1.5 + 7) / 3);
}

/// Who guards the ball, and what both men bring with them.
void FaceDefender() {
  game.BallDefender = DefenderOf(game.BallSlot);
  const auto college = [](const TeamRecord& t) { return t.TeamType == 'C' || t.TeamType == 'O'; };
  if (college(game.team[1]) && college(game.team[2]) && game.BallDefender > 0 && game.BallPlayer > 0) {
    Offense().CollegeStrength = StrengthOf(BallHandler(), game.team[game.OffenseSide]);
    Defense().CollegeStrength =
        StrengthOf(PlayerAt(game.DefenseSide, game.BallDefender), game.team[game.DefenseSide]);
  }
  game.play.UsageLevelOffense = UsageLevel(game.OffenseSide, game.BallPlayer);
  game.play.UsageLevelDefense = UsageLevel(game.DefenseSide, game.BallDefender);
}

void ChooseInbounder() {
  if (game.DeadBallKind == 0) return;
  if (game.DeadBallKind > 2) {
    game.InboundSlot = 2;
  } else {
    const int o = game.OffenseSide;
    game.InboundSlot = OnFloor(o, 3).RateOffense > OnFloor(o, 4).RateOffense ? 4 : 3;
  }
}

/// Men left to both sides. A defense that is down to three, or a computer's that is too far behind, stops
/// fouling.
void CountTheEligible() {
  for (int s = 1; s <= 2; ++s) game.side[s].EligibleCount = CountEligible(s);
  Side& defense = Defense();
  if (defense.EligibleCount <= 3) defense.QuickFoul = defense.StealFoul = 0;
  if (defense.CoachMode == "C" && LastPeriod()) {
    const int margin = Margin();
    const int clock = game.GameClock;
    if ((margin > 9 && clock < 600) || (margin > 8 && clock < 450) || (margin > 7 && clock < 350) ||
        (margin > 6 && clock < 200)) {
      defense.QuickFoul = defense.StealFoul = 0;
    }
  }
}

/// Kinds of play that this moment or the rules do not allow become an outside shot.
void FitKind() {
  if (game.PlayKind == "FASTBREAK" && Offense().EligibleCount <= 3) game.PlayKind = "OUTSIDE";
  if (game.PlayKind == "DRIVE" && game.GameClock < 20 && !game.AnalysisMode) game.PlayKind = "OUTSIDE";
  if (game.PlayKind == "THREE" && !league.rules.ThreePointCheck) {
    game.PlayKind = "OUTSIDE";
    game.play.ShotValue = "TWO";
    ManAt(game.OffenseSide, game.BallPlayer).ShotPick = kOutside;
  }
}

/// Doubled men on the floor, each on the shot he has now.
void CountDoubleTeams() {
  game.DoubleTeamCount = 0;
  for (int p = 1; p <= kPositions; ++p) {
    const Man& man = ManAt(game.OffenseSide, Offense().Lineup[p]);
    game.DoubleTeamCount += man.ShotPick == kInside  ? man.DoubleTeamInside
                            : man.ShotPick == kThree ? man.DoubleTeamThree
                                                     : man.DoubleTeamOutside;
  }
}

int CoverageFor(PlayKind kind, int slot) {
  const Man& man = ManAt(game.OffenseSide, slot);
  if (kind == "INSIDE") return man.CoverageInside;
  if (kind == "THREE") return man.CoverageThree;
  if (kind == "OUTSIDE" || kind == "DRIVE" || kind == "HOLD BALL") return man.CoverageOutside;
  return 3;
}

bool DoubledFor(PlayKind kind, const Man& man) {
  if (kind == "INSIDE") return man.DoubleTeamInside == 1;
  if (kind == "THREE") return man.DoubleTeamThree == 1;
  if (kind == "OUTSIDE") return man.DoubleTeamOutside == 1;
  return false;
}

bool WantsExtraPass() {
  const Man& man = ManAt(game.OffenseSide, game.BallPlayer);
  const int coverage = CoverageFor(game.PlayKind, game.BallPlayer);
  game.play.PlayCoverage = coverage;
  int eager = coverage == 0 ? -15 : coverage == 1 ? -10 : coverage == 3 ? 20 : 1;
  if (DoubledFor(game.PlayKind, man) && !game.Switched) eager += 10;
  if (eager < -20) eager = -20;
  int passing = BallHandler().RatePassing;
  if (game.BallSlot != 1 && passing > 7) passing = 7;
  bool wants = Rnd(100) <= 35 + eager && passing > Rnd(10);
  if (game.call.PlayGridShot && Rnd(10) <= 8) wants = false;
  if (game.call.ExtraPassCall) wants = true;
  const bool pick = game.call.PickBall > 0 && game.call.PickScreener > 0;
  return wants && coverage != 6 && !FoulCalled(Defense()) && game.PlayKind != "HOLD BALL" &&
         Offense().EligibleCount >= 5 && !pick && !game.call.SetPlay;
}

/// One more pass before the shot: the man who is covered gives the ball to somebody else.
void ExtraPass() {
  const bool pick = game.call.PickBall > 0 && game.call.PickScreener > 0;
  if (game.DeadBallKind != 0 || game.NeedsMoveUp || game.PlayKind == "BURN" || pick || game.call.SetPlay ||
      !OpenFloor() || game.AnalysisMode || IsFreeThrow(game.PlayKind) || !WantsExtraPass()) {
    return;
  }
  const int passer = game.BallPlayer;
  const PlayKind kind = game.PlayKind;
  game.BallPlayer = 0;
  bool found = false;
  for (;;) {
    FindShooter();
    found = game.BallPlayer > 0 && game.BallPlayer != passer &&
            PositionOf(game.OffenseSide, game.BallPlayer) > 0 &&
            !LoadedAt(game.OffenseSide, game.BallPlayer).PlayerOut;
    if (found || Rnd(1000) == 1) break;
  }
  if (!found) {
    game.BallPlayer = passer;
    game.PlayKind = kind;
    HoldBall();
    return;
  }
  game.play.ExtraPass = 1;
  game.play.ExtraPassFrom = passer;
  game.call.ShotConfirmed = 0;
  game.PlayKind = KindOfPick(ManAt(game.OffenseSide, game.BallPlayer).ShotPick);
  game.play.ShotValue = game.PlayKind == "THREE" ? ShotValue("THREE") : ShotValue("TWO");
  HoldBall();
  FaceDefender();
}

/// A big man brings the ball up, or a small one plays the middle.
int PlaysOutOfPosition() {
  const PlayerRecord& p = BallHandler();
  const auto holds = [&p](int low, int high) {
    const auto in = [&](int v) { return v >= low && v <= high; };
    return in(p.PrimaryPosition) || in(p.SecondaryPosition) || in(p.SpotPosition);
  };
  return (game.BallSlot == 1 && !holds(1, 3)) || (game.BallSlot == 5 && !holds(3, 5)) ? 1 : 0;
}

void CoverageOfShot() {
  Play& play = game.play;
  const Side& defense = Defense();
  play.PlayCoverage = IsSetShot(game.PlayKind) ? CoverageFor(game.PlayKind, game.BallPlayer) : 3;
  const bool poorShooter = game.WorstFreeThrowShooter > 0 && game.BallPlayer == game.WorstFreeThrowShooter;
  if (defense.QuickFoul == 1 || (defense.QuickFoul >= 2 && poorShooter)) play.PlayCoverage = 6;
  if (defense.StealFoul == 1 && Rnd(2) == 1) play.PlayCoverage = 6;
}

/// The last seconds: a shot thrown up from wherever he stands.
void Desperation() {
  Play& play = game.play;
  play.ShotLate = 0;
  const int clock = game.GameClock;
  if (clock < 40 && !game.call.ShotConfirmed) {
    if (game.PutbackClass != 3 && game.GameState != "OFFREB" && game.PlayKind == "THREE" && Rnd(2) == 1 &&
        clock < Rnd(10) + 10) {
      play.ShotLate = 1;
    }
    if (Rnd(2) == 1 && game.AfterTimeout != 1 && clock < Rnd(20) + 20) {
      const bool arc = league.rules.ThreePointCheck;
      game.PlayKind = arc ? PlayKind("THREE") : PlayKind("OUTSIDE");
      play.ShotValue = arc ? ShotValue("THREE") : ShotValue("TWO");
      play.ShotLate = 1;
    }
  }
  if (game.GameState == "OFFREB" || game.AfterTimeout == 1 || (LastPeriod() && Lead(game.OffenseSide) > 0)) {
    play.ShotLate = 0;
  }
  if (play.ShotLate) {
    play.FoulChance = play.TurnoverChance = 0;
    play.ShotChance = 1000;
  }
}

/// In a 2-1-2 zone a gap in height opens the inside game, or the drive past a taller man.
void Mismatch() {
  Play& play = game.play;
  int inches = 1;
  const bool zone = Defense().DefenseType == 1;
  if (zone && game.BallDefender > 0) {
    const int gap = HeightOf(BallHandler()) - HeightOf(PlayerAt(game.DefenseSide, game.BallDefender));
    if (game.PlayKind == "INSIDE" && gap >= 3) inches = gap;
    if (game.PlayKind == "DRIVE" && gap <= -3) inches = -gap;
  }
  if (zone) {
    Scale(play.ShotChance, 1 + 0.04 * inches);
    Scale(play.FoulChance, 1 + 0.03 * inches);
    Scale(play.TurnoverChance, 1 - 0.05 * inches);
  }
  play.HeightMismatch = inches;
}

/// Shot, turnover and foul of this man in this moment, in proportion.
void Weigh() {
  Play& play = game.play;
  Offense().OutOfPosition = PlaysOutOfPosition();
  Defense().OutOfPosition = 0;
  ShotWeight();
  CoverageOfShot();
  TurnoverWeight();
  FoulWeight();
  Desperation();
  Mismatch();
  if (game.GameClock < 70 && !game.AnalysisMode) play.FoulChance = 0;
  for (int* weight : {&play.ShotChance, &play.TurnoverChance, &play.FoulChance})
    *weight = std::max(0, *weight);
  const int sum = std::max(1, play.TurnoverChance + play.FoulChance + play.ShotChance);
  for (int* weight : {&play.TurnoverChance, &play.FoulChance, &play.ShotChance}) {
    *weight = Int(1000.0 / sum * *weight + 0.5);
  }
}

/// He gives the ball up instead of shooting: a drive cut off, or two men on him.
bool GivesUpTheBall() {
  if (game.GameClock <= 50 || (ShotClockRule() && game.ShotClock <= 50)) return false;
  if (game.PlayKind == "DRIVE") return Rnd(10) == 1;
  if (!IsSetShot(game.PlayKind) || !DoubledFor(game.PlayKind, ManAt(game.OffenseSide, game.BallPlayer)))
    return false;
  const int passing = BallHandler().RatePassing;
  const int odds = game.PlayKind == "INSIDE" ? 2 : 3;
  if (Rnd(odds) == 1 && passing >= Rnd(10)) return true;
  return Rnd(odds) == 1 && passing >= Rnd(7) + 3;
}

bool RunsOutOfShotClock() {
  const int clock = game.ShotClock;
  if (clock <= 0) return true;
  if (clock < 80) {
    const int first = Rnd(40);
    const int second = Rnd(40);
    if (clock < first + second && Rnd(100) == 1) return true;
  }
  if (game.call.LongPlay && Rnd(100) == 1 && clock < Rnd(50) + 50) return true;
  if (clock < 40 && clock < Rnd(40) && Rnd(10) == 1) return true;
  if (clock < 15 && clock < Rnd(10) + 5 && Rnd(10) < 10) return true;
  if (Offense().LastShot == 1 && game.GameClock < 1200 && Rnd(100) == 1) return true;
  const int position = game.BallSlot > 0 ? game.BallSlot : Rnd(kPositions);
  return Rnd(Offense().Option[position] + 1) == 1 && Rnd(75) == 1;
}

/// The shot clock beats them, sooner for a side that sits on a lead. False when there is no violation.
bool ShotClockViolation() {
  if (!ShotClockRule() || game.GameClock <= RuleTenths() || game.call.SetPlay) return false;
  bool violation = RunsOutOfShotClock();
  if (game.PlayKind == "FASTBREAK" || game.PlayKind == "OFFREB") violation = false;
  if (Rnd(3) == 1 || LastPeriod()) {
    const int lead = Lead(game.OffenseSide);
    if (lead > Rnd(10) + 7) {
      const int first = Rnd(100);
      const int second = Rnd(75);
      if (game.ShotClock < first + second && Rnd(2) == 1) violation = true;
    } else if (lead < -7 - Rnd(10) && violation && Rnd(10) <= 9) {
      violation = false;
    }
  }
  if (!violation) return false;
  game.PlayTime = game.ShotClock;
  game.PlayResult = game.GameClock <= game.ShotClock ? PlayResult("NOSHOT") : PlayResult("SHOTCLOCK");
  return true;
}

/// The horn comes before the shot.
bool NoShotLeft() {
  const int clock = game.GameClock;
  if (clock >= 40) return false;
  const bool breaking = game.PlayKind == "FASTBREAK";
  const bool putback = game.PlayKind == "OFFREB";
  const int lost = Defense().LastPossessionClock;
  bool none = (clock < Rnd(5) + 5 && Rnd(10) == 1) || (clock < Rnd(3) && Rnd(3) == 1);
  none = none || (Rnd(10) <= 9 && clock < Rnd(5) + 3 && !LastPeriod());
  none = none || (breaking && clock < Rnd(10) + 5);
  none = none || (!putback && clock <= 3);
  none = none || clock <= Rnd(2) + 2;
  none = none || (!breaking && !putback && clock < Rnd(10) + 10 && lost < Offense().LastPossessionClock &&
                  lost < Rnd(20) + 10);
  if (none && Offense().LastShot == 1 && clock > Rnd(30) + 10) none = false;
  if (none) game.PlayResult = "NOSHOT";
  return none;
}

bool ForcedTimeout() {
  const Side& offense = Offense();
  const Side& defense = Defense();
  if (Rnd(100) != 1 || game.GameClock <= 300) return false;
  if (!(game.GameClock < league.rules.MinuteList * 450 || game.Period >= 2 || Rnd(10) == 1)) return false;
  if (offense.TimeoutsLeft < 1 || offense.LastShot != 0) return false;
  if (game.PlayKind != "INSIDE" && game.PlayKind != "OUTSIDE" && game.PlayKind != "THREE") return false;
  if (defense.QuickFoul || defense.NoFoul || defense.StealFoul || Margin() > 12) return false;
  return !(LastPeriod() && game.GameClock < 1800 && Margin() > 8);
}

bool HeldBall() {
  if (game.GameClock >= FullPeriod()) return false;
  int odds = 250;
  const TeamRecord& team = game.team[game.OffenseSide];
  if (team.TeamType == 'O' || team.TeamType == 'C') Scale(odds, 0.35);
  if (Defense().LineupDefense >= Rnd(10) + 24) Scale(odds, 0.7);
  return Rnd(odds) == 1;
}

/// What stops a play before it comes to anything.
bool Stoppage() {
  if (game.AnalysisMode) return false;
  if (game.GameState == "OFFENSE" && Rnd(50) == 1) {
    game.PlayResult = "OB";
  } else if (ForcedTimeout()) {
    game.PlayResult = "FORCED-TIMEOUT";
  } else if (HeldBall()) {
    game.PlayResult = "JUMPBALL";
  }
  return !game.PlayResult.Empty();
}

template <class Counter>
void CountUp(Counter& counter) {
  if (counter < 32000) ++counter;
}

/// Number of a kind of play in the scouting counters, 0 when it is not scouted.
int ScoutedKind(PlayKind kind) {
  constexpr PlayKind kKinds[] = {"INSIDE", "OUTSIDE", "THREE", "FASTBREAK", "DRIVE", "HOLD BALL"};
  for (int k = 0; k < 6; ++k) {
    if (kKinds[k] == kind) return k + 1;
  }
  return 0;
}

void Scout() {
  const int kind = ScoutedKind(game.PlayKind);
  if (kind == 0) return;
  Side& offense = Offense();
  Side& defense = Defense();
  TeamRecord& attackers = game.team[game.OffenseSide];
  TeamRecord& defenders = game.team[game.DefenseSide];
  CountUp(attackers.ScoutOffense[kind]);
  CountUp(offense.ScoutOffense[kind]);
  CountUp(defenders.ScoutPressure[defense.Pressure]);
  CountUp(defense.ScoutPressure[defense.Pressure]);
  CountUp(defenders.ScoutHelp[defense.DefenseHelp]);
  CountUp(defense.ScoutHelp[defense.DefenseHelp]);
  CountUp(defenders.ScoutDefenseType[defense.DefenseType]);
  CountUp(defense.ScoutDefenseType[defense.DefenseType]);
  if (game.PlayKind == "FASTBREAK") return;
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = offense.Lineup[p];
    if (slot == 0) continue;
    Man& man = ManAt(game.OffenseSide, slot);
    const PlayerRecord& player = PlayerAt(game.OffenseSide, slot);
    const int zone = man.ShotPick == kInside || man.ShotPick == kThree ? man.ShotPick : kOutside;
    int& coverage = zone == kInside  ? man.CoverageInside
                    : zone == kThree ? man.CoverageThree
                                     : man.CoverageOutside;
    if (coverage == 0) coverage = 3;
    const int rating = zone == kInside  ? player.RateOffInside
                       : zone == kThree ? player.RateOffThree
                                        : player.RateOffOutside;
    CountUp(defenders.ScoutCoverage[zone][std::min(rating, 10)][coverage]);
    CountUp(defense.ScoutCoverage[zone][std::min(rating, 10)][coverage]);
  }
}

/// Whistles grow rare as a game is decided or its last seconds run.
void QuietWhistle() {
  int& foul = game.play.FoulChance;
  const int clock = game.GameClock;
  const int margin = Margin();
  const bool last = game.Period == league.rules.PeriodList;
  if (clock < 150) Scale(foul, 0.2);
  if (clock < 100) Scale(foul, 0.1);
  if (clock < 50) Scale(foul, 0.1);
  if ((last && clock < 1200 && margin >= Rnd(10) + 10) || margin >= Rnd(10) + 20) Scale(foul, 0.3);
  if ((last && clock < 300 && margin >= Rnd(7) + 8) || margin >= Rnd(10) + 15) Scale(foul, 0.3);
  if (last && clock < 200 && margin >= 15) Scale(foul, 0.01);
  if (last && clock < 100 && margin >= 7) Scale(foul, 0.01);
  Scale(foul, game.FoulTune);
}

bool FoulsNow() {
  const Side& defense = Defense();
  bool now = defense.StealFoul == 1 && Rnd(10) <= 7;
  if (defense.QuickFoul == 1) now = true;
  if (defense.QuickFoul == 2 && Rnd(100) <= 95) now = true;
  if (defense.QuickFoul == 3 && Rnd(100) <= 90) {
    if (!(LastPeriod() && game.GameClock <= 1200)) now = true;
    if (game.WorstFreeThrowShooter > 0 && game.BallPlayer == game.WorstFreeThrowShooter) now = true;
  }
  return now;
}

/// The bounds of the draw: foul first, turnover on top of it, the rest is the shot's.
void SetBounds() {
  Play& play = game.play;
  const Side& defense = Defense();
  if (defense.QuickFoul == 0) QuietWhistle();
  if ((defense.CoachMode == "C" || defense.BothDefenses) && defense.QuickFoul >= 1 &&
      play.FoulChance < 1000) {
    play.FoulChance = LastPeriod() && game.GameClock > Rnd(10) + 5 ? 1000 : 999;
  }
  Scale(play.TurnoverChance, game.TurnoverTune);
  if (game.PlayKind == "BURN") {
    play.ShotChance = 0;
    Scale(play.TurnoverChance, 0.1);
  }
  play.TurnoverBound = play.TurnoverChance + play.FoulChance;
  if (FoulsNow()) {
    play.FoulChance = LastPeriod() && game.GameClock > Rnd(5) + 5 ? 1000 : 999;
    if (Rnd(50) == 1 || (defense.StealFoul && Rnd(25) == 1)) {
      play.FoulChance = 0;
      play.TurnoverBound = 1000;
    }
  }
  if (defense.EligibleCount <= 3) Scale(play.FoulChance, 0.01);
  if (defense.EligibleCount == 1) play.FoulChance = 0;
  if (game.GameClock <= Rnd(3)) play.FoulChance = 0;
  if (game.call.SetPlay) {
    const double safe = BallHandler().RateOffInside >= Rnd(6) + 4 ? 0.5 : 1.0;
    for (int* bound : {&play.FoulChance, &play.TurnoverBound}) {
      Scale(*bound, 0.7);
      Scale(*bound, safe);
    }
  }
  if (game.GameClock < 15) play.FoulChance = 0;
  if (game.call.ForcedFoul) play.FoulChance = 1000;
  const GameState state = game.GameState;
  const bool dead =
      IsFreeThrow(state) || IsDeadBall(state) || IsTimeout(state) || IsQuarter(state) || IsJump(state);
  play.DelayChance =
      !dead || game.GameClock < 300 || game.PlayKind == "FASTBREAK" || game.ShotClock < 200 ? 0 : 2;
  play.DoubleFoulChance = game.GameClock < 300 || defense.QuickFoul != 0 ? 0 : 2;
  if (Margin() >= Rnd(10) + 15) Scale(play.DoubleFoulChance, 0.2);
}

void DrawBranch() {
  const Play& play = game.play;
  const int r = Rnd(1000);
  if (r <= play.DelayChance) {
    game.PlayResult = "DELAY";
  } else if (r <= play.DelayChance + play.DoubleFoulChance) {
    DoubleFoul();
  } else if (r <= play.FoulChance) {
    FoulBranch();
  } else if (r <= play.TurnoverBound) {
    TurnoverBranch();
  } else {
    ShotBranch();
  }
}

/// A side that holds the ball to the horn takes no shot.
void KeepHolding() {
  if (game.PlayKind != "HOLD BALL" || !(Defense().QuickFoul == 0 || Rnd(100) <= 99)) return;
  if (IsShot(game.PlayResult)) {
    game.PlayResult = "HOLD BALL";
  } else if ((game.PlayResult == "TO" || game.PlayResult == "ST") && Rnd(20) < 20) {
    game.PlayResult = "HOLD BALL";
  }
}

bool PressureOn() { return Defense().Pressure == 2 || Defense().Pressure == 4; }

/// The pass that brings the ball in, before anything else can happen.
void Inbound() {
  game.play.OffBallFoul = 0;
  game.PlayResult = "IN-EZ";
  if (game.DeadBallKind > 2 && !PressureOn()) return;
  const bool poorPass = OnFloor(game.OffenseSide, game.InboundSlot).RatePassing < Rnd(10);
  const int defender = DrawPosition(game.DefenseSide);
  const bool pest = defender > 0 && OnFloor(game.DefenseSide, defender).RateDefForce >= Rnd(10);
  if (Rnd(10) != 1 || !(Rnd(10) == 1 || poorPass || pest)) return;
  game.PlayResult = "IN-OB";
  if (Rnd(5) == 1) game.PlayResult = "IN-5";
  if (pest && Rnd(5) == 1) game.PlayResult = "IN-ST";
}

/// Bringing the ball up the floor.
void MoveUp() {
  game.play.OffBallFoul = 0;
  game.PlayResult = "MOVE-UP";
  bool broken = false;
  if (PressureOn()) {
    broken = Rnd(100) == 1;
    int position = Rnd(2);
    if (Rnd(10) == 1) position = Rnd(kPositions);
    if (Rnd(50) == 1 && OnFloor(game.DefenseSide, position).RateDefForce > Rnd(10)) broken = true;
    if (Rnd(50) == 1 && OnFloor(game.OffenseSide, 1).RatePassing < Rnd(10)) broken = true;
  }
  if (Rnd(300) == 1) broken = true;
  if (!broken) return;
  game.PlayResult = "MOVE-UP-OB";
  if (Rnd(3) == 1) game.PlayResult = "MOVE-UP-ST";
}

void AfterTheDraw() {
  KeepHolding();
  if (game.DeadBallKind == 0) game.NeedsInbound = 0;
  if (game.NeedsInbound) Inbound();
  if (game.NeedsMoveUp) MoveUp();
  if (game.PlayResult == "M" || game.PlayResult == "M3") {
    BlockTest();
  } else {
    game.play.Blocked = false;
    game.play.Blocker = 0;
  }
}

/// A clock that is being burned takes shots and turnovers away.
void BurnClock() {
  if (game.PlayKind != "BURN" || !(Defense().QuickFoul == 0 || Rnd(100) <= 9)) return;
  game.play.Blocked = false;
  const PlayResult result = game.PlayResult;
  if (IsShot(result)) {
    game.PlayResult = "BURN";
  } else if (result != "F0" && result != "F1" && result != "F2" && Rnd(10) <= 9) {
    game.PlayResult = "BURN";
  }
  if (game.PlayResult != "BURN") return;
  if (ShotClockRule() && game.ShotClock < Rnd(15) + 5) game.PlayResult = "SHOTCLOCK";
  if (game.GameClock < Rnd(10) + 10) game.PlayResult = "NOSHOT";
}

/// Everything between the weights and the posting: what precedes the draw, the draw, what follows it.
void Resolve() {
  if (game.call.ForcedTurnover) {
    game.PlayResult = "TO";
    return;
  }
  if (GivesUpTheBall()) {
    game.PlayResult = "PASS";
    return;
  }
  if (ShotClockViolation() || NoShotLeft() || Stoppage()) return;
  Scout();
  SetBounds();
  DrawBranch();
  AfterTheDraw();
  BurnClock();
}

void PrepareWeights() {
  CountTheEligible();
  EraMeans();
  game.GameStarted = true;
  FitKind();
  LineupValues();
  CountDoubleTeams();
  game.PlayTime = 0;
  game.PreviousResult = game.PlayResult;
  game.PlayResult = "";
}

/// What the play's orders leave behind: nothing. They were for this play alone.
void ClearOrders() {
  game.call = {};
  game.possession.LastPasserSlot = 0;
  game.possession.PassFirst = 0;
  game.possession.PassFirstFrom = 0;
  game.AfterTimeout = 0;
}

}  // namespace

bool IsEligible(int side, int slot) {
  if (!OnTeam(side, slot)) return false;
  const PlayerRecord& player = PlayerAt(side, slot);
  const int limit = league.rules.DqList;
  return (limit == 0 || player.Stats[3].Pf < limit) && !LoadedAt(side, slot).PlayerOut &&
         ManAt(side, slot).TemporaryInjury <= 0 && ManAt(side, slot).GameInjury <= 0;
}

int CountEligible(int side) {
  int count = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(side, slot) && PlayerAt(side, slot).Status == 99) LoadedAt(side, slot).PlayerOut = 1;
    count += IsEligible(side, slot) ? 1 : 0;
  }
  return count;
}

int DrawPosition(int side) {
  const int drawn = Rnd(kPositions);
  for (int k = 0; k < kPositions; ++k) {
    const int position = (drawn - 1 + k) % kPositions + 1;
    if (game.side[side].Lineup[position] > 0) return position;
  }
  return 0;
}

void FindResult() {
  ClearPlay();
  HoldBall();
  SetPlays();
  SeasonForm();
  ValueOfShot();
  FaceDefender();
  ChooseInbounder();
  game.PeriodStart = game.GameClock == FullPeriod() ? 1 : 0;
  PrepareWeights();
  if (game.GameOver) return;
  ExtraPass();
  const int hadBall = game.OffenseSide;
  if (IsFreeThrow(game.PlayKind)) {
    ShootFreeThrow();
  } else {
    Weigh();
    if (game.AnalysisMode) return;
    Resolve();
    game.TechnicalFreeThrow = 0;
    ChargeTime();
  }
  PostPlay();
  if (!game.GameOver && hadBall != game.OffenseSide) game.side[hadBall].LastPossessionClock = game.GameClock;
  RestoreCoverage();
  ClearOrders();
}

}  // namespace tipline
