// A team comes to its side of the game, and goes back to its files.
#include "base/random.h"
#include "engine/availability.h"
#include "engine/chances.h"
#include "engine/engine.h"
#include "engine/fatigue.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"
#include "league/roster.h"

namespace tipline {
namespace {

constexpr int kMostForm = 20;
constexpr int kRubbishForm = 25;  // a stored form above this was never drawn

/// Ten is neutral; now and then he goes on from where he stood.
u8 DrawForm(int previous) {
  const auto from = [](int middle) {
    const int up = Rnd(3);
    return middle + up - Rnd(3);
  };
  int form = from(10);
  if (Rnd(5) == 1) form = from(previous);
  if (Rnd(10) == 1) form = from(previous);
  return static_cast<u8>(Clamp(form, 0, kMostForm));
}

/// How he differs, this season, from what his real figures say. It stands from his first game on.
void DrawAlternateReality(PlayerRecord& p) {
  if (!program.ReplayLocked || league.rules.IsPlayoffModule == 1) return;
  u8* forms[] = {&p.AltForm2, &p.AltForm5, &p.AltForm1, &p.AltForm3, &p.AltForm4};
  bool rubbish = false;
  for (const u8* form : forms) rubbish = rubbish || *form > kRubbishForm;
  if (p.Stats[2].G != 0 && !rubbish) return;
  for (u8* form : forms) *form = DrawForm(*form);
}

/// The coach's list of days off, where his team goes by it.
void GoByDailyList(const Roster& roster, int side) {
  if (!InLeagueGame() || roster.coach.UseDailyInactive != 1) return;
  const int today = DateOf(game.GameMonth, game.GameDay);
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    LoadedAt(side, slot).PlayerUnavailable = SitsOut(roster.daily[slot], today) ? 1 : 0;
  }
}

/// Men who were traded away play for nobody here, but keep their slots. False when they can't be read.
bool KeepFormerMembers(Roster& roster, int side) {
  std::vector<int> rows(kRosterSlots + 1);
  std::vector<PlayerRecord> men(kRosterSlots + 1);
  const auto row = [&rows](int slot) -> int& { return rows[static_cast<std::size_t>(slot)]; };
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(side, slot)) row(slot) = roster.team.Roster[slot];
  }
  if (!WasRead(ReadPlayers(rows, men), PlayersFile())) return false;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const PlayerRecord& man = men[static_cast<std::size_t>(slot)];
    if (row(slot) > 0 && man.RecNo == row(slot) && man.TeamNo == roster.TeamNo + kFormerMember)
      roster.player[slot] = man;
  }
  return true;
}

bool ReadDaysOff(Roster& roster) {
  std::vector<int> rows;
  for (const PlayerRecord& man : roster.player) rows.push_back(man.RecNo);
  return WasRead(ReadDailies(rows, roster.daily.cells_), DailyFile());
}

}  // namespace

bool LoadTeam(int teamNo, int side) {
  Roster roster;
  if (!ReadRoster(teamNo, roster)) return false;
  game.GameTeam[side] = teamNo;
  game.team[side] = roster.team;
  game.coach[side] = roster.coach;
  for (int slot = 0; slot <= kRosterSlots; ++slot) {
    game.player[side][slot] = roster.player[slot];
    game.loaded[side][slot] = {};
  }
  GoByDailyList(roster, side);
  ReadySide(side);
  return true;
}

void ReadySide(int side) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    PlayerRecord& man = PlayerAt(side, slot);
    if (!OnTeam(side, slot)) {
      man = {};
      continue;
    }
    DrawLightInjury(man);
    LoadedAt(side, slot).HotHand = DrawHotHand();
    DrawAlternateReality(man);
  }
  SetAvailability(side);
  ShotMix(side);
  SetStints(side);
}

bool SaveTeam(int teamNo, int side) {
  if (teamNo < 1 || teamNo > kTeams || game.GameTeam[side] != teamNo) return false;
  // The final of the in-season cup does not count.
  const ScheduleRecord* row = league.Row(game.ScheduleRow);
  if (row && row->GameType == 'C') return true;
  Roster roster;
  roster.TeamNo = teamNo;
  roster.team = game.team[side];
  roster.coach = game.coach[side];
  for (int slot = 1; slot <= kRosterSlots; ++slot) roster.player[slot] = PlayerAt(side, slot);
  return KeepFormerMembers(roster, side) && ReadDaysOff(roster) && WriteRoster(roster);
}

}  // namespace tipline
