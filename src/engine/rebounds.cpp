// The fight for the ball after a miss, and where it goes from there.
#include <algorithm>
#include <cmath>

#include "engine/chances.h"
#include "engine/clock.h"
#include "engine/court.h"
#include "engine/execution.h"
#include "engine/fast_break.h"
#include "engine/resolution.h"
#include "engine/who.h"
#include "league/program.h"

namespace tipline {
namespace {

/// Strength on the boards of the side that shot, and of the side that defends.
struct Boards {
  double attack = 0, defend = 0;
};

void ByLeague(Boards& b) {
  const TeamRecord& o = game.team[game.OffenseSide];
  const TeamRecord& d = game.team[game.DefenseSide];
  const auto factors = [](const TeamRecord& t, double& attack, double& defend) {
    attack = t.TeamType == 'A' ? 0.9 : t.TeamType == 'C' ? 0.8 : t.TeamType == 'O' ? 0.85 : 1.0;
    defend = t.TeamType == 'A' ? 1.1 : t.TeamType == 'C' ? 1.2 : t.TeamType == 'O' ? 1.15 : 1.0;
  };
  double attack = 1, defend = 1;
  if (!(o.TeamType == d.TeamType)) {
    factors(o, attack, defend);
    b.attack *= attack;
    b.defend *= defend;
    factors(d, attack, defend);
    b.attack /= attack;
    b.defend /= defend;
  }
  if (!(o.TeamSex == d.TeamSex)) {
    b.attack = o.TeamSex == 'W' ? b.attack * 0.8 : b.attack / 0.8;
    b.defend = o.TeamSex == 'W' ? b.defend * 1.2 : b.defend / 1.2;
  }
  if (o.TeamType == 'P' && d.TeamType == 'P' && o.Year == d.Year) {
    b.defend += (ConferenceShare(game.GameTeam[game.OffenseSide], o.Year) - 0.5) * 1.2;
    b.attack -= (ConferenceShare(game.GameTeam[game.DefenseSide], o.Year) - 0.5) * 0.5;
  }
}

bool Season1966() { return OnFloor(1, 2).Year == 1966; }

/// A trailing side fights harder, a leading one lets up.
double Effort(int lead, int noise) {
  if (lead >= 3 + Rnd(noise)) return 0.94;
  if (lead <= -3 - Rnd(noise)) return 1.06;
  return 1.0;
}

void ByMoment(Boards& b) {
  if (!game.NeutralGame) {
    b.attack *= game.OffenseSide == 1 ? 0.97 : 1.03;
    b.defend *= game.DefenseSide == 1 ? 0.97 : 1.03;
  }
  if (Season1966()) b.attack *= 1.15;
  if (LastPeriod() || Rnd(5) == 1) b.attack *= Effort(Lead(game.OffenseSide), 6);
  b.defend *= Effort(Lead(game.DefenseSide), 8);
  if (game.MomentumTime >= 1) {
    const auto focus = [](const Side& s) {
      return s.TimeoutFocus == "None" ? 1.0 : s.TimeoutFocus == "Rebound" ? 1.05 : 0.95;
    };
    b.attack *= focus(Offense());
    b.defend *= focus(Defense());
  }
}

void ByShot(Boards& b) {
  const PlayKind k = game.PlayKind;
  if (k == "THREE") b.attack *= 0.88;
  if (k == "OUTSIDE") b.attack *= 0.83;
  if (k == "DRIVE") b.attack *= 1.39;
  if (k == "INSIDE" || k == "OFFREB") b.attack *= 1.29;
  if (k == "SHOOT1") b.attack *= 0.52;
  b.attack *= 1.03;
  const auto both = [](char type) { return game.team[1].TeamType == type && game.team[2].TeamType == type; };
  if (both('C') || both('O')) {
    const int offense = BallHandler().ScheduleStrength;
    const int defense = PlayerAt(game.DefenseSide, game.BallDefender).ScheduleStrength;
    if (defense >= offense + Rnd(7)) b.defend *= 1.3;
    if (offense >= defense + Rnd(7)) b.attack *= 1.3;
  }
}

/// The boards belong to the big men, most of the time.
int DrawBigMan() {
  int position = 3 + Rnd(2);
  if (Rnd(4) == 1) position = 2 + Rnd(3);
  if (Rnd(4) == 1) position = Rnd(kPositions);
  return position;
}

void ByForm(Boards& b) {
  if (!league.rules.AlternateRealityCheck) return;
  b.attack += (OnFloor(game.OffenseSide, DrawBigMan()).AltForm4 - 10) / 5.0;
  b.attack = std::max(1.0, b.attack);
  b.defend += (OnFloor(game.DefenseSide, DrawBigMan()).AltForm4 - 10) / 2.5;
  b.defend = std::max(1.0, b.defend);
}

void DrawSide() {
  Boards b{static_cast<double>(Offense().LineupRebOff), static_cast<double>(Defense().LineupRebDef)};
  ByLeague(b);
  ByMoment(b);
  ByShot(b);
  ByForm(b);
  game.play.ReboundSide = RndTo(b.attack + b.defend) <= b.attack ? game.OffenseSide : game.DefenseSide;
  if (game.play.AirBall && game.ShotClock < 20) game.play.ReboundSide = game.DefenseSide;
}

/// How often, in thousandths, the ball goes out.
int OutOfBoundsOdds() {
  const PlayKind k = game.PlayKind;
  const Play& play = game.play;
  double odds = 65;
  if (k == "DRIVE") odds = 10;
  if (k == "INSIDE" || k == "FASTBREAK") odds = 40;
  if (k == "OUTSIDE") odds = 70;
  if (k == "THREE") odds = 90;
  if (play.Blocked) odds = 200;
  if (play.AirBall) odds = 800;
  if (game.GameState == "FREETHROW-SHOOT") odds = play.AirBall ? 1000 : 20;
  int g = Round(odds * 0.87);
  const PlayerRecord& centre = OnFloor(game.DefenseSide, 5);
  const StatLine& real = centre.Stats[1];
  const StatLine& replay = centre.Stats[2];
  if (real.Reb > 0 && real.Min > 0 && replay.Reb > 0 && replay.Min > 0 &&
      !(game.team[game.DefenseSide].RosterKind == 'D') && !league.rules.AlternateRealityCheck) {
    const double drift =
        (static_cast<double>(replay.Reb) / replay.Min) / (static_cast<double>(real.Reb) / real.Min);
    if (drift > 1.03 + 0.05 * Rnd()) {
      Scale(g, 1.4);
    } else if (drift > 1 + 0.02 * Rnd()) {
      Scale(g, 1.2);
    } else if (drift < 0.97 - 0.05 * Rnd()) {
      Scale(g, 0.6);
    } else if (drift < 1 - 0.02 * Rnd()) {
      Scale(g, 0.8);
    }
  }
  if (k == "DRIVE") Scale(g, 0.1);
  if (k == "INSIDE") Scale(g, 0.4);
  if (k == "OUTSIDE" || k == "THREE") Scale(g, 1.3);
  if (Season1966()) Scale(g, 0.35);
  return g;
}

/// The men whom the man at `position` of the defense guards change how near the basket he stands.
double NearBasket(int side, int position, int slot) {
  constexpr double kOwn[4] = {1, 1.1, 0.9, 0.5};
  constexpr double kGuarded[4] = {1, 1.3, 0.9, 0.5};
  double near = 1;
  if (side == game.OffenseSide) {
    near = kOwn[ManAt(side, slot).ShotPick];
  } else {
    for (int p = 1; p <= kPositions; ++p) {
      if (Defense().Matchup[p] != position) continue;
      near *= kGuarded[ManAt(game.OffenseSide, Offense().Lineup[p]).ShotPick];
    }
  }
  return near * (position == 4 ? 1.05 : position == 5 ? 1.2 : 1.0);
}

/// Held to his real season: a man ahead of it gets fewer.
double ReboundDrift(const PlayerRecord& r) {
  const StatLine& real = r.Stats[1];
  const StatLine& replay = r.Stats[2];
  if (replay.Reb <= 10 || replay.Min <= 0 || real.Reb <= 0 || real.Min <= 0) return 1;
  const double drift =
      (static_cast<double>(replay.Reb) / replay.Min) / (static_cast<double>(real.Reb) / real.Min);
  if (drift > 1.03 + 0.03 * Rnd()) return 0.4;
  if (drift > 1 + 0.03 * Rnd()) return 0.7;
  if (drift < 0.97 - 0.03 * Rnd()) return 1.6;
  if (drift < 1 - 0.03 * Rnd()) return 1.3;
  return 1;
}

double ReboundWeight(int side, int position) {
  const int slot = game.side[side].Lineup[position];
  if (slot == 0) return 0;
  const PlayerRecord& r = PlayerAt(side, slot);
  const StatLine& real = r.Stats[1];
  const bool attacking = side == game.OffenseSide;
  const bool freeThrow = game.PlayResult == "FTM";
  const bool shooter = attacking && slot == game.BallPlayer;
  double w = (attacking ? real.Off : real.Reb - real.Off) / (real.Min + 1.0) * 1000;
  if (league.rules.AlternateRealityCheck) w *= (r.AltForm5 + 20) / 30.0;
  if (game.GameState == "OFFENSE" || game.GameState == "DEFENSE") w *= NearBasket(side, position, slot);
  if (game.GameState == "FASTBREAK" && !InTheBreak(side, slot)) return 0;
  if (r.Year >= 1950 && r.Year <= 2050 && league.EraPro[r.Year].Reb > 0) {
    w *= league.EraPro[2005].Reb / league.EraPro[r.Year].Reb;
  }
  if (freeThrow && shooter) w *= 0.001;
  if (freeThrow && position == 1) w *= 0.001;
  if (freeThrow && position >= 4) w *= 1.5;
  if (position <= 2 && r.RateRebDef > 5) w *= 5.0 / r.RateRebDef;
  if (position == 1 && (r.PrimaryPosition == 1 || (r.SecondaryPosition == 1 && Rnd(2) == 1))) {
    w *= 1 + (r.RateRebDef - 6) * 0.5;
  }
  w *= ReboundDrift(r);
  if (game.play.AirBall && shooter) w = 0;
  if (w < 0) w = 0;
  if (game.play.Blocked && game.play.BlockKept && side == game.DefenseSide && slot == game.play.Blocker)
    w = 0;
  if (game.GameState == "FASTBREAK") w += 1;
  return w;
}

void DeadBallRebound() {
  Play& play = game.play;
  play.DeadBallRebound = 1;
  play.Rebounder = 0;
  play.ReboundSide = play.Blocked ? game.OffenseSide : game.DefenseSide;
}

/// How close the man with the offensive rebound stands: 1 inside, 2 outside, 3 beyond the arc.
int DrawPutbackClass() {
  const int slot = game.play.Rebounder;
  const int inside = PlayerAt(game.OffenseSide, slot).RealInsidePct;
  int c = 1;
  if (Rnd(10) == 1) c = 2;
  if (Rnd(100) == 1) c = 3;
  if (inside >= 40 + Rnd(60) && Rnd(2) == 1) c = 1;
  if (inside >= 70 + Rnd(30) && Rnd(2) == 1) c = 1;
  if (game.GameState == "OFFENSE") {
    const int spot = ManAt(game.OffenseSide, slot).CourtSpot;
    c = 1;
    if (IsThreeSpot(spot)) {
      c = Rnd(10) == 1 ? 3 : 2;
    } else if (spot >= 201 && spot <= 209 && Rnd(10) <= 3) {
      c = 2;
    }
  }
  if ((game.PlayKind == "DRIVE" || game.PlayKind == "FASTBREAK" || game.play.CloseMiss) && Rnd(10) <= 5)
    c = 1;
  if (c >= 1 + Rnd(2) && Rnd(2) == 1) c = 1;
  return c == 3 && !league.rules.ThreePointCheck ? 2 : c;
}

/// The new offense may run: the chance in hundredths after a defensive rebound.
int BreakOdds(int newOffense) {
  const Side& side = game.side[newOffense];
  int g = (side.OffensePace - 2) * 5 + 40;
  if (Rnd(3) == 1) g += game.play.Blocked ? 10 : -1;
  if (game.LastShotKind == "INSIDE" || game.LastShotKind == "DRIVE") g -= 3;
  if (game.LastShotKind == "OUTSIDE" || game.LastShotKind == "THREE") g += 3;
  const int crash = game.side[3 - newOffense].CrashBoardsOffense;
  g += crash == 1 ? 10 : crash == 2 ? -10 : 0;
  g += side.CrashBoardsDefense == 1 ? -10 : side.CrashBoardsDefense == 2 ? 10 : 0;
  const int tendency = game.coach[newOffense].Coverage1[side.GamePlanIndex];
  g = Round(g * (tendency + 1) / 3.0);
  if (tendency == 4) Scale(g, 1.5);
  return NoTimeToRun(newOffense) ? 0 : g;
}

void DefensiveRebound() {
  const bool freeThrow = game.PlayKind == "SHOOT1" || IsFreeThrow(game.GameState);
  game.PlayResult = "DEFREB";
  game.PlayKind = "";
  game.fastBreak = {};
  const int newOffense = game.DefenseSide;
  const int odds = BreakOdds(newOffense);
  const bool runs = Rnd(100) <= odds && !freeThrow;
  SwapSides();
  game.NeedsBringUp = 1;
  game.DeadBallKind = 0;
  game.GameState = runs ? GameState("FASTBREAK") : GameState("OFFENSE");
  game.ShotClock = FullShotClock();
}

/// The rule's clock after the ball has touched the rim, never more than what is left of the period.
void OffensiveRebound() {
  const bool running = game.GameState == "FASTBREAK";
  game.PlayResult = "OFFREB";
  game.SecondChance = 1;
  game.NeedsBringUp = 0;
  game.BallPlayer = game.play.Rebounder;
  game.BallSlot = PositionOf(game.OffenseSide, game.BallPlayer);
  game.PutbackClass = game.PutbackClass == 0 ? 1 : game.PutbackClass;
  game.GameState = running ? GameState("OFFENSE") : GameState("OFFREB");
  game.PlayKind = "OFFREB";
  if (!game.play.Blocked && !game.play.AirBall) game.ShotClock = ReboundShotClock();
}

void OutOfBounds() {
  const bool keeps = game.play.ReboundSide == game.OffenseSide;
  game.PlayResult = keeps ? PlayResult("OFFREB") : PlayResult("DEFREB");
  game.GameState = "DEADBALL-DEFENSE";
  game.PlayKind = "";
  game.DeadBallKind = keeps ? 1 : 4;
  if (keeps) {
    game.SecondChance = 1;
    game.possession = {};
  } else {
    SwapSides();
    game.ShotClock = FullShotClock();
  }
}

}  // namespace

void FindRebounder() {
  Play& play = game.play;
  if (play.BasketInterference || play.ShotStuck) {
    game.PlayResult =
        play.BasketInterference ? PlayResult("OFFENSE-BASKET-INTERFERENCE") : PlayResult("SHOTSTUCK");
    play.Rebounder = 0;
    play.ReboundSide = 99;
    return;
  }
  for (;;) {
    play.DeadBallRebound = 0;
    DrawSide();
    if (Rnd(1000) <= OutOfBoundsOdds()) return DeadBallRebound();
    double weights[kPositions];
    for (int p = 1; p <= kPositions; ++p) weights[p - 1] = ReboundWeight(play.ReboundSide, p);
    const int drawn = WeightedDraw(weights);
    if (drawn < 0) {
      if (Rnd(10) == 1) return DeadBallRebound();
      continue;
    }
    play.Rebounder = game.side[play.ReboundSide].Lineup[drawn + 1];
    break;
  }
  if (play.ReboundSide == game.OffenseSide) game.PutbackClass = DrawPutbackClass();
}

void BallAfterRebound() {
  if (game.play.DeadBallRebound || game.play.Rebounder == 0) return OutOfBounds();
  if (game.play.ReboundSide == game.OffenseSide) return OffensiveRebound();
  DefensiveRebound();
}

}  // namespace tipline
