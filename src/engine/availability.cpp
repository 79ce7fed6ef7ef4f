#include "engine/availability.h"

#include <algorithm>

#include "engine/game_state.h"
#include "league/daily.h"
#include "league/player_values.h"
#include "league/program.h"
#include "league/season_date.h"

namespace tipline {
namespace {

constexpr int kNextSeason = 12;  // a return in August is none

SeasonDate Today() { return {game.GameMonth, game.GameDay}; }
SeasonDate ReturnOf(const PlayerRecord& p) { return {p.InjuryReturnMonth, p.InjuryReturnDay}; }

void Heal(PlayerRecord& p) {
  p.InjuryReturnMonth = p.InjuryReturnDay = 0;
  p.InjuryType = p.InjurySeverity = 0;
  p.Status = 0;
}

void HealInTime(PlayerRecord& p) {
  if (p.InjuryReturnMonth == 0) return;
  const bool over = program.ReplayLocked && ReturnOf(p) < Today();
  if (over || p.InjuryReturnMonth == kNextSeason) Heal(p);
}

void SetMan(int side, int slot) {
  PlayerRecord& p = PlayerAt(side, slot);
  LoadedMan& man = LoadedAt(side, slot);
  if (!OnTeam(side, slot)) {
    man.PlayerOut = 1;
    return;
  }
  HealInTime(p);
  if (p.RestGames > 99) p.RestGames = 0;
  man.PlayerOut = p.Status == kInactive ? 1 : 0;
  if (!InLeagueGame()) return;
  const bool dated = game.GameMonth > 0;  // a game without a date asks for none
  if (dated && AwayOn(p, DateOf(game.GameMonth, game.GameDay))) man.PlayerUnavailable = 1;
  man.Suspended = p.SuspensionGames > 0;
  const bool hurt = dated && league.rules.InjuryOption == 1 && p.InjuryReturnMonth > 0;
  if (man.PlayerUnavailable || man.Suspended || hurt) man.PlayerOut = 1;
}

/// Pre-game injuries: out for this game alone.
void DrawInjuriesOfTheDay(int side) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    LoadedMan& man = LoadedAt(side, slot);
    if (man.PlayerOut) continue;
    if (Rnd(250) <= 11 - Durability(PlayerAt(side, slot))) man.PlayerOut = 1;
  }
}

}  // namespace

void DrawLightInjury(PlayerRecord& p) {
  if (!InLeagueGame() || p.InjurySeverity != 1 || p.InjuryReturnMonth == 0) return;
  if (p.InjuryReturnMonth != game.GameMonth) return;
  if (Rnd(2) == 1 && p.InjuryReturnDay <= game.GameDay + Rnd(7)) return Heal(p);
  if (Rnd(4) != 1 || p.InjuryReturnDay > game.GameDay || p.RateDurability > 6 + Rnd(3)) return;
  if (game.GameDay > 25 && p.InjuryReturnMonth + 1 < kNextSeason) {
    ++p.InjuryReturnMonth;
    p.InjuryReturnDay = static_cast<u8>(Rnd(3));
  } else {
    p.InjuryReturnDay = static_cast<u8>(std::min(31, p.InjuryReturnDay + Rnd(3)));
  }
}

void SetAvailability(int side) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) SetMan(side, slot);
  if (InLeagueGame() && league.rules.InjuryOption == 2) DrawInjuriesOfTheDay(side);
}

}  // namespace tipline
