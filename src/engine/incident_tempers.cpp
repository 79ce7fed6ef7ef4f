// Fights, technicals, flagrant fouls, and the defense that stands where it may not.
#include <algorithm>

#include "coach/substitutions.h"
#include "engine/execution.h"
#include "engine/incident_steps.h"
#include "engine/incidents.h"
#include "league/program.h"

namespace tipline {
namespace {

/// Slot of the man with the worst temper on the floor; 0 when it is empty.
int WorstTemper(int side) {
  int worst = 0;
  for (const int slot : game.side[side].Lineup) {
    if (slot == 0) continue;
    if (worst == 0 || PlayerAt(side, slot).RateSportsmanship < PlayerAt(side, worst).RateSportsmanship) {
      worst = slot;
    }
  }
  return worst;
}

/// Both men lose their heads: neither rating stands above its own draw.
bool BothUnder(int bound, int first, int second) {
  const int a = Rnd(bound);
  const int b = Rnd(bound);
  return a >= first && b >= second;
}

bool TempersMeet() {
  const int men[] = {WorstTemper(1), WorstTemper(2)};
  if (men[0] == 0 || men[1] == 0) return false;
  const int first = PlayerAt(1, men[0]).RateSportsmanship;
  const int second = PlayerAt(2, men[1]).RateSportsmanship;
  return (Rnd(2) == 1 && BothUnder(3, first, second)) || (Rnd(7) == 1 && BothUnder(6, first, second)) ||
         (Rnd(15) == 1 && BothUnder(9, first, second));
}

/// Early in a game, in the playoffs, in colleges and among women men keep their heads.
bool CoolHeads() {
  if (game.Period == 1 && Rnd(10) <= 9) return true;
  if (game.Period <= Rnd(3) && Rnd(10) <= 9) return true;
  if (program.PlayoffGame && Rnd(100) <= 97) return true;
  bool college = false, women = false;
  for (const TeamRecord& team : game.team) {
    college |= team.TeamType == 'C';
    women |= team.TeamSex == 'W';
  }
  return (college && Rnd(10) <= 9) || (women && Rnd(10) <= 9);
}

/// Not in the first two minutes of a period, nor behind `lowest`.
bool MidPeriod(int lowest) { return game.GameClock < FullPeriod() - 2 * kMinute && game.GameClock >= lowest; }

bool HotHeaded(int rating) {
  if (rating == 0) return true;
  return (Rnd(6) == 1 && Rnd(5) > rating) || (Rnd(5) == 1 && Rnd(3) >= rating) ||
         (Rnd(3) == 1 && Rnd(2) >= rating);
}

struct Suspect {
  int side = 0, slot = 0;
};

/// The first of the ten, from the attackers on, who has words with an official.
Suspect DrawSuspect() {
  for (const int side : {game.OffenseSide, game.DefenseSide}) {
    for (const int slot : game.side[side].Lineup) {
      if (slot > 0 && HotHeaded(PlayerAt(side, slot).RateSportsmanship)) return {side, slot};
    }
  }
  return {};
}

/// Since the turn of the century officials know their men: who has had his share of technicals is let off.
bool HadHisShare(const PlayerRecord& p) {
  if (p.Year < 2000 + Rnd(10)) return false;
  const StatLine& replay = p.Stats[2];
  if (replay.Technicals > (0.15 + 0.1 * Rnd()) * replay.G && Rnd(10) <= 7) return true;
  if (replay.Technicals > (0.25 + 0.2 * Rnd()) * replay.G && Rnd(10) <= 9) return true;
  return Rnd(2) == 1;
}

bool AboveThreeDraws(int rating) {
  for (int k = 0; k < 3; ++k) {
    if (rating <= Rnd(10)) return false;
  }
  return true;
}

bool LetOff(const Suspect& suspect) {
  const PlayerRecord& p = PlayerAt(suspect.side, suspect.slot);
  if (Rnd(100) <= 90 || HadHisShare(p)) return true;
  if (IsCollegeOrInternational(game.team[suspect.side]) && Rnd(100) <= 95) return true;
  if (AboveThreeDraws(p.RateSportsmanship) && Rnd(50) != 1) return true;
  return program.PlayoffGame && Rnd(10) <= 9;
}

void CallTechnical(const Suspect& suspect) {
  const RulesRecord& rules = league.rules;
  const int side = suspect.side, slot = suspect.slot;
  StatLine& line = GameLine(side, slot);
  Note(IncidentKind::kTechnical, side, slot);
  if (line.Technicals < 255) ++line.Technicals;
  game.TechnicalNames += PlayerAt(side, slot).LastName.Str() + ", ";
  if (rules.TechnicalPFCheck == 2) PostFoul(side, slot);
  AddPlayLog(game.GameClock, side, slot, "", "TIMEOUT", kTechnicalNote);
  if (rules.TechList > 0 && line.Technicals >= rules.TechList) {
    game.incident.Ejected = true;
    Eject(side, slot, 0);
  }
  if (rules.DqList > 0 && line.Pf >= rules.DqList) LeaveFloor(side, slot);
  if (PositionOf(side, slot) == 0) {
    StopForIncident();
    LoadLineups();
  }
  game.PlayResult = "";
  GiveTechnicalShots(3 - side, rules.TechnicalFTslist == 2 ? 2 : 1);
}

int LevelOfFoul(const PlayerRecord& fouler) {
  const StatLine& real = fouler.Stats[1];
  const double fouls = real.Pf / (real.Min + 0.001) * 48;
  int level = Rnd(300) == 1 ? 1 : 0;
  if (12 * Rnd() < fouls && fouler.RateSportsmanship <= Rnd(8) && Rnd(10) == 1) level = 1;
  if (level == 1 && Rnd(3) == 1 && 8 * Rnd() < fouls && fouler.RateSportsmanship <= Rnd(10)) level = 2;
  return level;
}

/// A common foul after all: more often than not, and again in a close finish.
bool LetGo() {
  if (Rnd(10) <= 5) return true;
  return LastPeriod() && game.GameClock < 1800 && Margin() < 5 + Rnd(5) && Rnd(10) == 1;
}

/// The officials go to the monitor: now and then for a common foul that looked like more.
bool Reviewed(int level) {
  if (!league.rules.ReplayReviewsCheck) return false;
  return level == 0 ? Rnd(5) == 1 : level == 1 ? Rnd(10) <= 7 : Rnd(10) <= 9;
}

void PostFlagrant(int level) {
  const int side = game.DefenseSide, slot = game.play.Fouler;
  PlayerRecord& p = PlayerAt(side, slot);
  if (p.Flagrants[3] < 255) ++p.Flagrants[3];
  game.FlagrantNames += p.LastName.Str() + ", ";
  if (level == 2 && p.Stats[3].Flagrant2 < 255) ++p.Stats[3].Flagrant2;
  game.incident.Ejected = level == 2 || p.Flagrants[3] >= 2;
}

}  // namespace

bool IllegalDefenseTest() {
  if (league.rules.IllegalDefenseList == 0) return false;
  if (game.Period == 1 && game.GameClock > league.rules.MinuteList * 450 && Rnd(10) <= 9) return false;
  if (game.GameClock < 100 + Rnd(100)) return false;
  if (game.TechnicalFreeThrow || FoulCalled() || Rnd(150) != 1) return false;
  IllegalDefenseCall();
  return true;
}

void IllegalDefenseCall() {
  const int calls = ++Defense().IllegalDefenses;
  Note(IncidentKind::kIllegalDefense, game.DefenseSide);
  game.incident.Warning = league.rules.IllegalDefenseList == 1 && calls == 1;
  AddPlayLog(game.GameClock, game.DefenseSide, 0, "", "ILLEGAL DEFENSE");
  game.PlayResult = "ILLEGAL DEFENSE";
  game.ShotClock = FullShotClock();
  if (!game.incident.Warning) return GiveTechnicalShots(game.OffenseSide, 1);
  StopInFrontcourt();
}

bool FightTest() {
  if (Rnd(100) != 1 || game.Tension <= Rnd(5) || CoolHeads()) return false;
  if (game.DeadBallKind > 1 || game.NeedsMoveUp || game.TechnicalFreeThrow || !MidPeriod(kMinute))
    return false;
  if (FoulCalled() || !BothHaveMoreThan(9)) return false;
  if (!TempersMeet()) return false;
  FightBegins();
  return true;
}

void FightBegins() {
  const int first = WorstTemper(1), second = WorstTemper(2);
  StopForIncident();
  game.Tension = 0;
  if (first == 0 || second == 0) return;
  Incident& incident = Note(IncidentKind::kFight, 1, first);
  incident.OtherSlot = second;
  incident.Ejected = true;
  AddPlayLog(game.GameClock, 1, first, "", "TIMEOUT", kFightNote, 2, second);
  const bool suspends = league.rules.SuspensionsCheck;
  game.incident.Suspension = Eject(1, first, suspends ? 1 + Rnd(3) : 0);
  game.incident.OtherSuspension = Eject(2, second, suspends ? 1 + Rnd(3) : 0);
  LoadLineups();
  // The technicals offset each other, unless one side alone is over the foul limit.
  if (InPenalty(1) == InPenalty(2)) return;
  GiveTechnicalShots(InPenalty(1) ? 2 : 1, 1);
}

bool TechnicalTest() {
  if (game.DeadBallKind != 0 || game.NeedsMoveUp) return false;
  if (program.PlayoffGame && Rnd(50) != 1) return false;
  if (!MidPeriod(1200)) return false;
  game.TechnicalFreeThrow = 0;
  if (Rnd(4) != 1) return false;
  const Suspect suspect = DrawSuspect();
  if (suspect.slot == 0 || !BothHaveMoreThan(9) || LetOff(suspect)) return false;
  CallTechnical(suspect);
  return true;
}

void FlagrantFoul() {
  const Play& play = game.play;
  const PlayResult r = game.PlayResult;
  const bool kind = r == "MF" || r == "F0" || r == "F1" || r == "F2";
  if (league.rules.FlagrantCheck != 1 || play.Fouler <= 0 || play.FoulingSide != game.DefenseSide || !kind)
    return;
  const int looked = LevelOfFoul(PlayerAt(game.DefenseSide, play.Fouler));
  if (looked == 0) return;
  const int level = LetGo() ? 0 : looked;
  const bool reviewed = Reviewed(level);
  game.play.FlagrantLevel = level;
  if (level == 0 && !reviewed) return;
  Incident& incident = Note(IncidentKind::kFlagrant, game.DefenseSide, play.Fouler);
  incident.FlagrantLevel = level;
  incident.Reviewed = reviewed;
  if (level > 0) PostFlagrant(level);
}

void EjectFlagrantFouler() {
  if (!game.incident.Ejected) return;
  const bool suspended = game.play.FlagrantLevel == 2 && league.rules.SuspensionsCheck;
  game.incident.Suspension = Eject(game.incident.Side, game.incident.Slot, suspended ? Rnd(2) : 0);
}

}  // namespace tipline
