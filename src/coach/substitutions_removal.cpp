// Who has to leave the floor.
#include "base/numbers.h"
#include "coach/substitutions_pass.h"
#include "engine/eligible.h"
#include "engine/fatigue.h"

namespace tipline {
namespace {

/// A man on the floor whose stay is in question.
struct FloorMan {
  int side, position, slot;
  const PlayerRecord& p = PlayerAt(side, slot);
  Man& man = ManAt(side, slot);
  const LoadedMan& loaded = LoadedAt(side, slot);
};

enum class Verdict { kStays, kPlaysTired, kOpen, kOff };

void TakeOff(int side, int position) { game.side[side].Lineup[position] = 0; }

bool OutOfPosition(const PlayerRecord& p, int position) {
  return !Lists(p, position) && p.DepthRank[position] == 0 && p.PositionAllowed[position] == 0;
}

bool StandsEarlier(const Side& side, int position) {
  for (int p = 1; p < position; ++p) {
    if (side.Lineup[p] == side.Lineup[position]) return true;
  }
  return false;
}

bool MustGo(const SubPass& pass, int side, int position) {
  const int slot = game.side[side].Lineup[position];
  PlayerRecord& p = PlayerAt(side, slot);
  if (!IsEligible(side, slot) || StandsEarlier(game.side[side], position)) {
    if (FouledOut(p.Stats[3])) ManAt(side, slot).FouledOutFlag = 1;
    return true;
  }
  if (pass.IsShooter(side, slot)) return false;
  if (pass.hasGrid[side] && GridCell(pass, p) != position) return true;
  return AnySubCheck(side) && OutOfPosition(p, position);
}

/// A fresh man who is higher on the depth chart waits on the bench.
bool BetterManReady(int side, int position) {
  const int onFloor = OnFloor(side, position).DepthRank[position];
  const bool late = LastPeriod() && game.GameClock <= 12 * kMinute;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(side, slot) || PlayerAt(side, slot).DepthRank[position] <= onFloor) continue;
    if (ManAt(side, slot).Energy != 100 || PositionOf(side, slot) != 0 || !IsEligible(side, slot)) continue;
    if (!late || LoadedAt(side, slot).PlayLength + 600 >= game.GameClock) return true;
  }
  return false;
}

/// What keeps a man on the floor whatever his legs say.
bool MomentKeepsHim(const SubPass& pass, const FloorMan& f) {
  const int margin = Margin();
  const int clock = game.GameClock;
  const bool last = LastPeriod();
  if (game.side[f.side].FreeThrowMan == f.slot) return true;
  if (last && game.Blowout == 1 && clock < 100) return true;
  if (pass.early && f.man.Energy >= 81) return true;
  if (margin >= 20 && f.man.Energy >= 70 && last && clock < 1200) return true;
  if (margin >= 15 && last && clock < 600) return true;
  return pass.freeThrow && f.side == game.OffenseSide && PositionOf(f.side, game.BallPlayer) != 0;
}

bool IsStar(const FloorMan& f) { return f.p.TargetMinutes > 39 + 4 * Rnd(); }

/// A role player gives way when the lead is safe.
bool RolePlayerRests(const FloorMan& f) {
  if (f.p.TargetMinutes >= 25 + 5 * Rnd()) return false;
  const int lead = Lead(f.side);
  if (f.man.Energy <= 82 + Rnd(5) && lead > 15 && game.Blowout == 1) return true;
  return lead > 9 && game.Period <= league.rules.PeriodList && game.GameClock < 120;
}

/// A star sits at the start of the last period, and rests early in it for its end.
bool RestsForTheEnd(const SubPass& pass, const FloorMan& f) {
  if (!LastPeriod()) return false;
  const bool firstChoice = f.p.DepthRank[f.position] == 6;
  if (pass.fullClock && firstChoice && IsStar(f)) return true;
  if (game.GameClock > 12 * kMinute || game.CrunchTime == 1) return false;
  return ((firstChoice && IsStar(f)) || f.p.PlayAtCrunchTime != 0) && f.man.Energy <= 94;
}

bool GoesByTheMoment(const FloorMan& f, bool betterManReady) {
  const bool crunch = game.CrunchTime == 1;
  if (crunch && f.p.DepthRank[f.position] != 6 && f.p.PlayAtCrunchTime == 0) return true;
  if (betterManReady) return true;
  if (crunch && IsComputer(f.side) && Lead(f.side) > 0 && PoorFreeThrower(f.p)) return true;
  if (f.man.Energy <= 83) return true;
  return RolePlayerRests(f) || (crunch && f.p.DontPlayCrunchTime != 0);
}

Verdict Judge(const SubPass& pass, const FloorMan& f, bool betterManReady) {
  if (MomentKeepsHim(pass, f)) return Verdict::kStays;
  if (f.p.DontPlayWhenTired == 0) return Verdict::kPlaysTired;
  if (IsCrunchMan(f.p) && f.man.Energy >= 30 && Lists(f.p, f.position)) return Verdict::kStays;
  if (GoesByTheMoment(f, betterManReady) || RestsForTheEnd(pass, f)) return Verdict::kOff;
  if (IsStar(f) && f.man.Energy >= 80 + Rnd(3) && Margin() <= 20 + Rnd(5)) return Verdict::kStays;
  return Verdict::kOpen;
}

/// His stint is over. Men who are told to play on when tired sit down for their rest as well, but not in the
/// last two minutes and not when the end is close. In the last period a short stint can be overdrawn only so
/// far; in its last two minutes a tired man stays only if his stints are long.
bool StintOver(const SubPass& pass, const FloorMan& f, bool playsTired) {
  const bool tiring = f.man.Energy <= 82;
  if (playsTired) return tiring && pass.subTimeLeft > 1200 && game.CrunchTime == 0;
  const int length = f.loaded.PlayLength;
  const int rank = f.p.DepthRank[f.position];
  if (length < f.man.FatigueLoad - Rnd(900) && f.man.PlayerGameTime > 0 && LastPeriod() && length < 9000) {
    return true;
  }
  if (pass.subTimeLeft > 1200 && tiring) return true;
  if (rank < Rnd(5) && f.man.FatigueLoad > 1800 && tiring && game.Blowout == 0) return true;
  return (tiring && length < 12000) || (rank == 6 && game.Blowout == 1 && length < 9000);
}

void RestTiredMan(const SubPass& pass, const FloorMan& f, bool betterManReady) {
  const Verdict verdict = Judge(pass, f, betterManReady);
  if (verdict == Verdict::kStays) return;
  const bool shooting = pass.freeThrow && f.side == game.OffenseSide;
  const bool off =
      verdict == Verdict::kOff || (!shooting && StintOver(pass, f, verdict == Verdict::kPlaysTired));
  if (!off) return;
  TakeOff(f.side, f.position);
  if (f.man.Energy <= 69) f.man.TiredFlag = 1;
}

bool InFoulTrouble(const SubPass& pass, int side, int slot) {
  const PlayerRecord& p = PlayerAt(side, slot);
  return p.Stats[3].Pf >= pass.foulLimit && MinutesPerGame(p) <= 45 + 3 * Rnd();
}

}  // namespace

void TakeOffUnfit(const SubPass& pass) {
  for (int side = 1; side <= 2; ++side) {
    for (int position = 1; position <= kPositions; ++position) {
      if (game.side[side].Lineup[position] != 0 && MustGo(pass, side, position)) TakeOff(side, position);
    }
  }
}

void TakeOffTired(const SubPass& pass) {
  const bool contested = Margin() <= 20 && game.Blowout == 0;
  for (int side = 1; side <= 2; ++side) {
    if (!TiredCheck(pass, side)) continue;
    const Side& s = game.side[side];
    Table<bool, 1, kPositions> betterManReady{};
    for (int position = 1; position <= kPositions; ++position) {
      betterManReady[position] = contested && s.Lineup[position] != 0 && BetterManReady(side, position);
    }
    for (int position = 1; position <= kPositions; ++position) {
      const int slot = s.Lineup[position];
      if (slot != 0) RestTiredMan(pass, {side, position, slot}, betterManReady[position]);
    }
  }
}

void TakeOffForBlowout() {
  if (game.Blowout != 1 || IsFreeThrow(game.GameState)) return;
  for (int side = 1; side <= 2; ++side) {
    if (game.side[side].AutoSubWhenTired != 1) continue;
    for (int position = 1; position <= kPositions; ++position) {
      if (OnFloor(side, position).NeverPlayInBlowouts != 0) TakeOff(side, position);
    }
  }
}

void TakeOffFoulTrouble(const SubPass& pass) {
  const bool computers = IsComputer(1) && IsComputer(2);
  for (int side = 1; side <= 2; ++side) {
    const Side& s = game.side[side];
    if (s.AutoSubWhenFoulTrouble != 1 && !pass.unattended && !computers) continue;
    for (int position = 1; position <= kPositions; ++position) {
      const int slot = s.Lineup[position];
      if (slot == 0 || slot == s.FreeThrowMan || pass.IsShooter(side, slot)) continue;
      if (!InFoulTrouble(pass, side, slot)) continue;
      TakeOff(side, position);
      ManAt(side, slot).FoulTroubleFlag = 1;
    }
  }
}

}  // namespace tipline
