// The computer's call for the defense.
#include <algorithm>

#include "coach/computer_coach.h"
#include "engine/game_state.h"

namespace tipline {
namespace {

enum Coverages : int { kOff = 1, kLoose, kNormal, kTight, kDeny };

/// A slider of the plan, 0 to 4, against four: 0 and 1 never do.
bool Holds(int slider) { return slider > 1 && slider > Rnd(4); }

/// The plan against this opponent; the lowest number wins, 0 when there is none.
int FindPlan(const CoachRecord& coach, int opponent) {
  for (int plan = 1; plan <= 10; ++plan) {
    if (opponent != 0 && coach.PlanOpponent[plan] == opponent) return plan;
  }
  return 0;
}

/// Strong, light or as usual; the more the plan asks for, the oftener strong.
int CrashBoards(int slider) {
  const int against = 4 - slider;
  if (Rnd(2) != 1) return 0;
  if (Rnd(2) == 1) return Rnd(10) > against ? 1 : 0;
  return Rnd(10) < against ? 2 : 0;
}

void NormalCoverage(Man& man) {
  man.CoverageInside = man.CoverageOutside = man.CoverageThree = kNormal;
  man.DoubleTeamInside = man.DoubleTeamOutside = man.DoubleTeamThree = 0;
}

/// What the plan says of one man, each entry on as many plays as its usage asks for.
void CoverByPlan(const CoachRecord& coach, int plan, int k, Man& man) {
  const int odds = (coach.DefendUsage[plan][k] + 1) * 25;
  const auto doubled = [odds](int entry, int& flag) {
    if (entry == 1 && Rnd(100) <= odds) flag = 1;
  };
  const auto covered = [odds](int entry, int& coverage) {
    if (entry >= 1 && entry <= 6 && entry != kNormal && Rnd(100) <= odds) coverage = entry;
  };
  doubled(coach.DoubleInside[plan][k], man.DoubleTeamInside);
  doubled(coach.DoubleOutside[plan][k], man.DoubleTeamOutside);
  doubled(coach.DoubleThree[plan][k], man.DoubleTeamThree);
  covered(coach.DefendInside[plan][k], man.CoverageInside);
  covered(coach.DefendOutside[plan][k], man.CoverageOutside);
  covered(coach.DefendThree[plan][k], man.CoverageThree);
}

/// Two men on him where he shoots well.
void DoubleTeam(int slider, const PlayerRecord& p, Man& man) {
  if (!Holds(slider) || !(Rnd(3) == 1 || p.RateOffense >= Rnd(70))) return;
  if (p.RateOffInside >= 4 + Rnd(6)) man.DoubleTeamInside = 1;
  if (p.RateOffOutside >= 4 + Rnd(6)) man.DoubleTeamOutside = 1;
  if (p.RateOffThree >= 4 + Rnd(6)) man.DoubleTeamThree = 1;
}

/// Closer on a good shooter.
void Tighten(int slider, int coverage, const PlayerRecord& p, Man& man) {
  if (!Holds(slider)) return;
  if (p.RateOffInside >= 4 + Rnd(5)) man.CoverageInside = coverage;
  if (p.RateOffOutside >= 4 + Rnd(5)) man.CoverageOutside = coverage;
  if (p.RateOffThree >= 4 + Rnd(5)) man.CoverageThree = coverage;
}

/// Away from a poor one.
void Loosen(int slider, int coverage, const PlayerRecord& p, Man& man) {
  if (!Holds(slider)) return;
  if (p.RateOffInside < 2 + Rnd(3)) man.CoverageInside = coverage;
  if (p.RateOffOutside < 2 + Rnd(3)) man.CoverageOutside = coverage;
  if (p.RateOffThree < 2 + Rnd(3)) man.CoverageThree = coverage;
}

/// The sliders of the general plan that a man is covered by.
struct CoverSliders {
  explicit CoverSliders(const CoachRecord& coach)
      : off(coach.OffAdjust1[0]),
        loose(coach.OffAdjust2[0]),
        tight(coach.OffAdjust3[0]),
        deny(coach.OffAdjust4[0]),
        twice(coach.DefAdjust4[0]) {}
  int off, loose, tight, deny, twice;
};

void CoverBySliders(const CoverSliders& s, bool college, const PlayerRecord& p, Man& man) {
  DoubleTeam(s.twice, p, man);
  if (std::max(s.tight, s.deny) > 1) {
    if (Rnd(2) == 1) {
      Tighten(s.tight, kTight, p, man);
      Tighten(s.deny, kDeny, p, man);
    } else {
      Tighten(s.deny, kDeny, p, man);
      Tighten(s.tight, kTight, p, man);
    }
  }
  if (std::max(s.loose, s.off) <= 1) return;
  const int order = Rnd(college ? 4 : 2);
  if (order == 1) {
    Loosen(s.loose, kLoose, p, man);
    Loosen(s.off, kOff, p, man);
  } else if (order == 2) {
    Loosen(s.off, kOff, p, man);
    Loosen(s.loose, kLoose, p, man);
  }
}

/// How every man of the other side is covered.
void CoverOpponents(int side, int plan) {
  const int other = 3 - side;
  const CoachRecord& coach = game.coach[side];
  const CoverSliders sliders(coach);
  const bool college = game.team[side].TeamType == 'C';
  for (int k = 1; k <= kRosterSlots; ++k) {
    Man& man = ManAt(other, k);
    NormalCoverage(man);
    if (!OnTeam(other, k)) continue;
    if (plan > 0) {
      CoverByPlan(coach, plan, k, man);
    } else {
      CoverBySliders(sliders, college, PlayerAt(other, k), man);
    }
  }
}

bool DrawsHelp(int rating, int slider) {
  const int first = Rnd(5);
  const int second = Rnd(5);
  if (rating >= first + second) return true;
  if (Rnd(2) != 1) return false;
  const int third = Rnd(5);
  const int fourth = Rnd(5);
  return slider >= third + fourth;
}

/// Help against a man who carries the other side's attack.
int HelpOnScorer(int other, int inside, int outside) {
  const int slot = game.side[other].Lineup[Rnd(kPositions)];
  const PlayerRecord& p = PlayerAt(other, slot);
  if (p.RateOffense / 10.0 < Rnd(10)) return 0;
  const int pick = ManAt(other, slot).ShotPick;
  if (pick == kInside && DrawsHelp(p.RateOffInside, inside)) return Rnd(3) == 1 ? 3 : 1;
  if ((pick == kOutside || pick == kThree) && DrawsHelp(p.RateOffOutside, outside))
    return Rnd(3) == 2 ? 4 : 2;
  return 0;
}

/// Help as the plan likes it; the zone that is looked at last wins.
int HelpByPlan(int help, int inside, int outside) {
  if (Rnd(2) != 1) return help;
  const bool insideLast = Rnd(2) == 1;
  for (int look = 0; look < 2; ++look) {
    if (insideLast == (look == 1)) {
      if (Holds(inside)) help = Rnd(3) == 1 ? 3 : 1;
    } else {
      if (Holds(outside)) help = Rnd(3) == 1 ? 4 : 2;
    }
  }
  return help;
}

/// Early in a game, early in a period and well ahead a side mostly stays home.
bool StaysHome(int side) {
  if (game.Period < league.rules.PeriodList && Rnd(10) <= 8) return true;
  if (game.GameClock > 3000 + Rnd(6000) && Rnd(10) <= 8) return true;
  return Lead(side) > 10 + Rnd(10) && Rnd(10) <= 8;
}

void CallHelp(int side, int plan) {
  const CoachRecord& coach = game.coach[side];
  const int inside = coach.DefAdjust1[plan];
  const int outside = coach.DefAdjust2[plan];
  int help = HelpOnScorer(3 - side, inside, outside);
  help = HelpByPlan(help, inside, outside);
  if (help > 0 && StaysHome(side)) help = 0;
  game.side[side].DefenseHelp = help;
}

/// The chance of a press, in hundredths: on a poor passer, behind, and as the plan asks for it.
int PressOdds(int side, int slider) {
  int position = 1;
  if (Rnd(5) == 1) position = 2;
  if (Rnd(15) == 1) position = Rnd(3);
  int odds = std::max(0, Round((11.5 - OnFloor(3 - side, position).RatePassing) * 3.5 + 1));
  const int lead = Lead(side);
  if (lead < 0) Scale(odds, 1.5);
  if (lead <= -Rnd(10)) Scale(odds, 3.5);
  if (lead <= -Rnd(20) && game.Period <= league.rules.PeriodList) Scale(odds, 3.5);
  if (Margin() > 20 + Rnd(10)) Scale(odds, 0.5);
  Scale(odds, slider / 2.0);
  if (slider == 4) Scale(odds, 1.5);
  const PlayResult before = game.PreviousResult;
  if (game.GameClock > 300 + Rnd(300) && !IsMadeShot(before) && before != "FTG") {
    if (slider <= Rnd(3)) odds = 0;
    if (slider <= Rnd(2) && Rnd(2) == 1) odds = 0;
  }
  Scale(odds, 2.5);
  return odds;
}

void CallPress(int side, int plan) {
  int& pressure = game.side[side].Pressure;
  pressure = 0;
  const int slider = game.coach[side].OffAdjust6[plan];
  if (slider == 0) return;
  if (game.Period < league.rules.PeriodList && Rnd(10) <= 8) return;
  const int odds = PressOdds(side, slider);
  if (Rnd(100) <= odds) pressure = Rnd(4);
}

/// Zone or man; the pros mostly go back to man.
void CallZone(int side, int plan) {
  constexpr int kBackToMan[5] = {100, 95, 90, 85, 75};  // in hundredths, by slider
  int& type = game.side[side].DefenseType;
  type = 0;
  if (!league.rules.ZoneLegalCheck) return;
  const int slider = game.coach[side].DefAdjust3[plan];
  if (slider < Rnd(4)) return;
  type = 1;
  if (Rnd(5) == 1) type = Rnd(2) + 1;
  if (game.team[side].TeamType == 'C') return;
  if (Rnd(100) <= kBackToMan[std::min(slider, 4)]) type = 0;
}

}  // namespace

void ComputerDefenseCall(int side) {
  if (side != 1 && side != 2) return;
  Side& s = game.side[side];
  const CoachRecord& coach = game.coach[side];
  if (s.CoachMode == "H" && s.BothDefenses) ComputerFoulDecision(side);
  const int plan = FindPlan(coach, game.GameTeam[3 - side]);
  s.GamePlanIndex = plan;
  s.CrashBoardsOffense = CrashBoards(coach.DefAdjust5[plan]);
  s.CrashBoardsDefense = CrashBoards(coach.DefAdjust6[plan]);
  CoverOpponents(side, plan);
  CallHelp(side, plan);
  CallPress(side, plan);
  CallZone(side, plan);
  ComputerFoulDecision(side);
}

}  // namespace tipline
