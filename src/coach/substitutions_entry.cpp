// Who comes in: by the rotation grid, and by weight for every position that is empty.
#include "base/numbers.h"
#include "coach/substitutions_pass.h"
#include "engine/eligible.h"
#include "engine/fatigue.h"

namespace tipline {
namespace {

bool FirstChoiceSomewhere(const PlayerRecord& p) {
  for (const u8 rank : p.DepthRank) {
    if (rank == 6) return true;
  }
  return false;
}

/// He has been on the floor so much this season that his computer coach saves him minutes.
bool OverTarget(const PlayerRecord& p) {
  const StatLine& season = p.Stats[2];
  return season.G > p.Stats[1].G && (season.Min + 20) / (season.G + 1.0) > p.TargetMinutes * 1.1;
}

bool GridPassesOver(const SubPass& pass, int side, int slot) {
  const Side& s = game.side[side];
  const PlayerRecord& p = PlayerAt(side, slot);
  const Man& man = ManAt(side, slot);
  const bool computer = IsComputer(side);
  if ((computer || s.AutoSubWhenFoulTrouble == 1) && p.Stats[3].Pf >= pass.foulLimit) return true;
  if ((s.AutoSubWhenTired == 1 || pass.fullClock) && man.Energy <= 79 + Rnd(15)) return true;
  if (computer && Rnd(5) < 5 && OverTarget(p)) return true;
  return game.Blowout == 1 && FirstChoiceSomewhere(p) && LoadedAt(side, slot).PlayLength < 9000;
}

/// A candidate for an empty position.
struct Candidate {
  int side, slot, position;
  const PlayerRecord& p = PlayerAt(side, slot);
  Man& man = ManAt(side, slot);
  const LoadedMan& loaded = LoadedAt(side, slot);
  int rank = p.DepthRank[position];
  bool allowed = p.PositionAllowed[position] != 0;
  bool crunchMan = IsCrunchMan(p);
  bool tiring = man.Energy <= 82;
  int weight = 0;

  void Times(double factor) { weight = Round(weight * factor); }
  bool Regular() const { return rank == 6 || p.PlayAtCrunchTime != 0; }
};

/// What all candidates of a side have in common.
struct Bench {
  int played = 0;  ///< men of the side who have played
  bool computer = false, unattended = false;
  bool foulCheck = false, tiredCheck = false;
};

bool InLastQuarter() { return game.Period == league.rules.PeriodList && game.GameClock <= 12 * kMinute; }

/// His place on the depth chart, less for those who play little.
double DepthFactor(const Candidate& c, bool gameStart) {
  static constexpr int kFullAt[] = {0, 20, 20, 20, 20, 25, 30};  // minutes from which a rank counts in full
  const int minutes = c.p.TargetMinutes;
  double factor = 1;
  if (!gameStart && c.rank >= 1 && c.rank <= 6) {
    const int fullAt = kFullAt[c.rank];
    if (minutes < fullAt) factor = static_cast<double>(minutes) / fullAt;
    if (c.rank == 6 && minutes < 5) factor = 0;
  }
  if (!c.crunchMan && c.tiring) {
    if (c.man.FatigueLoad > c.loaded.PlayLength * 1.03) factor *= 0.01;
    if (c.p.DontPlayWhenTired != 0) factor *= 0.001;
  }
  return factor;
}

void WeighDepth(Candidate& c, bool gameStart) {
  c.weight = Rnd(5);
  c.weight += c.p.TargetMinutes * 10;
  const double factor = DepthFactor(c, gameStart);
  double base = 2000;
  if (game.CrunchTime == 1) {
    base = c.p.PlayAtCrunchTime != 0 ? 3000 : c.p.DontPlayCrunchTime != 0 ? 50 : 1000;
  } else if (c.p.PlayAtCrunchTime != 0 && LastPeriod() && Margin() < game.GameClock / 500.0 + 5 &&
             c.loaded.PlayLength < 7500) {
    c.Times(0.0001);  // held for the end
  }
  if (c.tiring && c.p.DontPlayWhenTired != 0) base *= 0.001;
  c.weight += Round(c.rank * factor * base);
}

void WeighPosition(Candidate& c) {
  if (game.Blowout == 1 && c.p.OnlyPlayInBlowouts != 0 && Lists(c.p, c.position)) c.weight += 10000;
  c.weight += c.rank == 6 || c.p.PrimaryPosition == c.position ? 1000
              : c.p.SecondaryPosition == c.position            ? 900
              : c.p.SpotPosition == c.position                 ? 800
                                                               : 0;
}

// In the last quarter the regulars wait on the bench until what they have in their legs lasts to the end.
void HoldRegularsBack(Candidate& c, const Bench& bench) {
  if (!bench.computer && !bench.unattended) return;
  if (LastPeriod() && league.rules.MinuteList == 12 && game.GameClock == 12 * kMinute && c.Regular() &&
      c.p.TargetMinutes > 37 + 3 * Rnd() && c.loaded.PlayLength + c.man.FatigueLoad < 9000) {
    c.Times(0.01);
  }
  if (InLastQuarter() && game.CrunchTime == 0 && c.Regular() && c.loaded.PlayLength < game.GameClock + 600 &&
      (c.man.Energy < 100 || c.p.TargetMinutes > 39 + 4 * Rnd())) {
    c.Times(0.01);
  }
}

void WeighRestAndScore(Candidate& c, const Bench& bench) {
  const bool end = LastPeriod() && game.GameClock < 1200;
  if (game.Period >= 2 && c.man.RestTime < 600 && c.man.Energy < 95 && !end) c.Times(0.01);
  if (game.Blowout != 1 || (!bench.computer && !bench.unattended)) return;
  c.weight = (c.rank == 6 ? 1500 : 8000) + Rnd(10);
  if (c.man.PlayerGameTime > 18000 && c.loaded.PlayLength < 9000) c.Times(0.05);
}

// Who can play in one place only is used there first.
void WeighVersatility(Candidate& c) {
  const int places = 5 + (c.p.SecondaryPosition != 0 ? 3 : 0) + (c.p.SpotPosition != 0 ? 1 : 0);
  const int share = c.rank == 6 || c.p.PrimaryPosition == c.position ? 2000
                    : c.p.SecondaryPosition == c.position            ? 1500
                    : c.p.SpotPosition == c.position                 ? 1000
                                                                     : 0;
  c.weight += Round(static_cast<double>(share) / places);
}

// Men in foul trouble wait. So do those who have not played, as long as the rotation is not through.
void WeighFoulsAndFirstEntry(Candidate& c, const Bench& bench, int foulLimit) {
  if (bench.foulCheck && c.p.Stats[3].Pf >= foulLimit && MinutesPerGame(c.p) <= 45 + 3 * Rnd()) c.weight = 0;
  if (c.man.PlayerGameTime > 0 || LastPeriod() || game.Blowout == 1) return;
  const bool early = bench.played >= 2 && game.Period <= Rnd(3);
  if (early || (bench.played >= 12 && game.Period > 1)) c.Times(0.5);
}

void WeighFatigue(Candidate& c, const Bench& bench) {
  if (!bench.tiredCheck || c.crunchMan) return;
  if (c.man.FatigueLoad > 0) {
    const int down = Rnd(600);
    const int up = Rnd(600);
    if (c.man.FatigueLoad > c.loaded.PlayLength - down + up) c.Times(0.1);
    if (!LastPeriod() && c.man.FatigueLoad > c.loaded.PlayLength + Rnd(2)) c.Times(0.1);
    return;
  }
  if (c.man.Energy <= 82 + Rnd(7) && c.man.RestTime < c.loaded.RestLength) c.Times(0.1);
  if (c.man.Energy <= 89 + Rnd(10) && c.p.DontPlayWhenTired != 0) c.Times(0.1);
  c.man.FatigueLoad = 0;
}

void WeighRole(Candidate& c, const Bench& bench) {
  const bool worn = game.CrunchTime == 0 && c.man.FatigueLoad > c.loaded.PlayLength * 1.01;
  if ((c.allowed || c.rank == 6) && !worn) c.weight += 1000;
  if (!c.allowed && c.rank == 0) c.Times(0.01);
  if (game.Blowout == 1) {
    if (c.p.NeverPlayInBlowouts != 0) c.Times(0.001);
    if (c.p.OnlyPlayInBlowouts != 0 && Lists(c.p, c.position)) c.weight += 10000;
  }
  if (game.CrunchTime == 1) {
    if (c.crunchMan && Lists(c.p, c.position)) c.weight += 10000;
    if (c.p.DontPlayCrunchTime != 0) c.Times(0.01);
    if (bench.computer && Lead(c.side) > 0 && PoorFreeThrower(c.p)) c.Times(0.01);
  }
  if (c.man.Energy < 60 && !c.crunchMan) c.weight = 0;
}

// Nobody on the bench plays this position: among those whose coach allows it, and those who play one like
// it, fresh legs decide.
void WeighMakeshift(Candidate& c) {
  const int energy = c.man.Energy;
  if (c.allowed) {
    c.weight = energy >= 80   ? 100000 + c.weight + energy
               : energy >= 70 ? energy * 3
               : energy >= 60 ? energy
                              : energy / 2;
  } else if (IsLikeMan(c.p, c.position)) {
    c.weight = energy * 2;
  } else {
    return;
  }
  c.weight += Rnd(3);
  if (energy >= 60) c.weight += 1000;
}

bool IsCandidate(int side, int slot, const Bench& bench) {
  if (!IsEligible(side, slot) || PositionOf(side, slot) != 0) return false;
  const int limit = league.rules.RosterLimitList;
  return limit == 0 || bench.played < limit || ManAt(side, slot).PlayerGameTime > 0;
}

Bench ReadBench(const SubPass& pass, int side) {
  Bench bench;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(side, slot) && ManAt(side, slot).PlayerGameTime > 0) ++bench.played;
  }
  bench.computer = IsComputer(side);
  bench.unattended = pass.unattended;
  bench.foulCheck = game.side[side].AutoSubWhenFoulTrouble == 1;
  bench.tiredCheck = TiredCheck(pass, side);
  return bench;
}

bool SomebodyPlaysIt(int side, int position, const Bench& bench) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!IsCandidate(side, slot, bench)) continue;
    const PlayerRecord& p = PlayerAt(side, slot);
    if (Lists(p, position) || p.DepthRank[position] != 0) return true;
  }
  return false;
}

int Weigh(const SubPass& pass, const Bench& bench, bool makeshift, Candidate c) {
  WeighDepth(c, game.Period == 1 && pass.fullClock);
  WeighPosition(c);
  HoldRegularsBack(c, bench);
  WeighRestAndScore(c, bench);
  WeighVersatility(c);
  WeighFoulsAndFirstEntry(c, bench, pass.foulLimit);
  WeighFatigue(c, bench);
  WeighRole(c, bench);
  if (makeshift) WeighMakeshift(c);
  return c.weight + Rnd(7);
}

/// The man with the highest weight, the lower slot on a tie; 0 when there is nobody.
int PickFor(const SubPass& pass, const Bench& bench, int side, int position) {
  const bool makeshift = !SomebodyPlaysIt(side, position, bench);
  int best = 0;
  int bestWeight = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!IsCandidate(side, slot, bench)) continue;
    const int weight = Weigh(pass, bench, makeshift, {side, slot, position});
    if (weight > bestWeight) {
      bestWeight = weight;
      best = slot;
    }
  }
  return best;
}

}  // namespace

void EnterByGrid(SubPass& pass) {
  for (int side = 1; side <= 2; ++side) {
    if (!pass.hasGrid[side]) continue;
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!IsEligible(side, slot) || PositionOf(side, slot) != 0) continue;
      const int position = GridCell(pass, PlayerAt(side, slot));
      if (position == 0 || GridPassesOver(pass, side, slot)) continue;
      int& place = game.side[side].Lineup[position];
      if (pass.IsShooter(side, place)) continue;
      place = slot;
      pass.gridUsed[side] = true;
    }
  }
}

bool FillPositions(const SubPass& pass) {
  bool filled = true;
  for (int side = 1; side <= 2; ++side) {
    Side& s = game.side[side];
    const Bench bench = ReadBench(pass, side);
    for (const int position : pass.order[side]) {
      if (s.Lineup[position] != 0) continue;
      s.Lineup[position] = PickFor(pass, bench, side, position);
      if (s.Lineup[position] == 0) filled = false;
    }
  }
  return filled;
}

}  // namespace tipline
