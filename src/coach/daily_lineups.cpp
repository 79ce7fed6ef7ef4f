#include "coach/daily_lineups.h"

#include "league/player_values.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

bool IsDate(int date) {
  const int month = date / 100;
  const int day = date % 100;
  return month >= 1 && month <= 12 && day >= 1 && day <= 31;
}

/// Enters the date; false, told, when the man's entries are taken.
bool Enter(Roster& own, int slot, int date) {
  return EnterDate(own.daily[slot], date) ||
         platform::RefusedWith(FullName(own.player[slot]) + " sits out on 100 days already!");
}

}  // namespace

std::string HcDailyLineups::Cell(int slot, int date) const {
  return OnTeam(own, slot) && SitsOut(own.daily[slot], date) ? "X" : "";
}

bool HcDailyLineups::Toggle(int slot, int date) {
  if (slot < 1 || slot > kRosterSlots || !OnTeam(own, slot) || !IsDate(date)) return false;
  const PlayerRecord& player = own.player[slot];
  if (AwayOn(player, date)) {
    return platform::RefusedWith(FullName(player) + " is not available for this day!");
  }
  DailyRecord& daily = own.daily[slot];
  if (SitsOut(daily, date)) {
    ClearDate(daily, date);
    return true;
  }
  return Enter(own, slot, date);
}

bool HcDailyLineups::ActivateAll() {
  if (!platform::dialogs().Ask("Activate all players for every game?")) return false;
  for (int slot = 1; slot <= kRosterSlots; ++slot) own.daily[slot].InactiveDates = {};
  return true;
}

bool HcDailyLineups::InactivateAll(std::span<const int> gameDates) {
  if (!platform::dialogs().Ask("Inactivate all players for every game?")) return false;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(own, slot)) continue;
    for (const int date : gameDates) {
      if (IsDate(date) && !SitsOut(own.daily[slot], date) && !Enter(own, slot, date)) break;
    }
  }
  return true;
}

}  // namespace tipline
