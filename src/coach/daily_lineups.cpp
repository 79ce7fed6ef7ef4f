#include "coach/daily_lineups.h"

#include "platform/dialogs.h"

namespace tipline {
namespace {

bool IsDate(int date) {
  const int month = date / 100;
  const int day = date % 100;
  return month >= 1 && month <= 12 && day >= 1 && day <= 31;
}

std::string NameOf(const PlayerRecord& p) {
  return std::string(Trimmed(p.FirstName.Str() + " " + p.LastName.Str()));
}

bool Refuse(const std::string& message) {
  platform::dialogs().Tell(message);
  return false;
}

}  // namespace

std::string HcDailyLineups::Cell(int slot, int date) const {
  return OnTeam(own, slot) && SitsOut(own.daily[slot], date) ? "X" : "";
}

bool HcDailyLineups::Toggle(int slot, int date) {
  if (slot < 1 || slot > kRosterSlots || !OnTeam(own, slot) || !IsDate(date)) return false;
  const PlayerRecord& player = own.player[slot];
  if (AwayOn(player, date)) return Refuse(NameOf(player) + " is not available for this day!");
  DailyRecord& daily = own.daily[slot];
  if (SitsOut(daily, date)) {
    ClearDate(daily, date);
    return true;
  }
  return EnterDate(daily, date) || Refuse(NameOf(player) + " sits out on 100 days already!");
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
    DailyRecord& daily = own.daily[slot];
    daily.InactiveDates = {};  // dates of an older schedule make room
    for (const int date : gameDates) {
      if (IsDate(date) && !SitsOut(daily, date) && !EnterDate(daily, date)) break;
    }
  }
  return true;
}

}  // namespace tipline
