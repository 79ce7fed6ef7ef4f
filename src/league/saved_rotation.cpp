#include "league/saved_rotation.h"

namespace tipline {
namespace {

constexpr int kRanks = 6;
constexpr int kDates = 100;

/// Visits each pair of a man's field and its copy with the coach.
template <class Player, class Coach, class Visit>
void ForSavedFields(Player& p, Coach& c, int slot, Visit visit) {
  visit(p.Status, c.SavedStatus[slot]);
  visit(p.OnlyPlayInBlowouts, c.SavedOnlyBlowouts[slot]);
  visit(p.NeverPlayInBlowouts, c.SavedNeverBlowouts2[slot]);
  visit(p.TargetMinutes, c.SavedTargetMinutes[slot]);
  visit(p.DontPlayCrunchTime, c.SavedDontPlayCrunch[slot]);
  visit(p.DontPlayWhenTired, c.SavedDontPlayTired[slot]);
  for (int k = 1; k <= 10; ++k) visit(p.RotationOrder[k], c.SavedRotationOrder[k][slot]);
  for (int q = 1; q <= 5; ++q) {
    visit(p.ShotSelection[q], c.SavedShotSelection[slot][q]);
    visit(p.PositionAllowed[q], c.SavedPositionAllowed[slot][q]);
  }
}

void ChartToCoach(const PlayerRecord& player, int slot, CoachRecord& coach) {
  for (int position = 1; position <= 5; ++position) {
    const int rank = player.DepthRank[position];
    if (rank >= 1 && rank <= kRanks) coach.DepthChart[position][kRanks + 1 - rank] = static_cast<u8>(slot);
  }
  for (int period = 1; period <= 5; ++period) {
    for (int minute = 1; minute <= 20; ++minute) {
      const int position = player.RotationGrid[period][minute];
      if (position < 1 || position > 5) continue;
      coach.RotationByRank[position][minute][period] = static_cast<u8>(slot);
    }
  }
}

void ChartFromCoach(const CoachRecord& coach, int slot, PlayerRecord& player) {
  player.DepthRank = {};
  player.RotationGrid = {};
  for (int position = 1; position <= 5; ++position) {
    for (int place = 1; place <= kRanks; ++place) {
      if (coach.DepthChart[position][place] != slot) continue;
      player.DepthRank[position] = static_cast<u8>(kRanks + 1 - place);
    }
    for (int period = 1; period <= 5; ++period) {
      for (int minute = 1; minute <= 20; ++minute) {
        if (coach.RotationByRank[position][minute][period] != slot) continue;
        player.RotationGrid[period][minute] = static_cast<u8>(position);
      }
    }
  }
}

}  // namespace

void CopyRotationToCoach(const Roster& roster, CoachRecord& coach) {
  coach.DepthChart = {};
  coach.RotationByRank = {};
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const PlayerRecord& player = roster.player[slot];
    ForSavedFields(player, coach, slot, [](const u8& own, u8& copy) { copy = own; });
    coach.SavedNeverBlowouts[slot] = player.NeverPlayInBlowouts;
    for (int k = 1; k <= kDates; ++k) {
      coach.SavedDailyDates[slot][k] = roster.daily[slot].InactiveDates[k];
    }
    if (OnTeam(roster, slot)) ChartToCoach(player, slot, coach);
  }
}

void CopyRotationFromCoach(Roster& roster) {
  const CoachRecord& coach = roster.coach;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(roster, slot)) continue;
    PlayerRecord& player = roster.player[slot];
    ForSavedFields(player, coach, slot, [](u8& own, const u8& copy) { own = copy; });
    for (u8& position : player.RotationOrder) position = position <= 5 ? position : u8{0};
    for (int k = 1; k <= kDates; ++k) {
      roster.daily[slot].InactiveDates[k] = coach.SavedDailyDates[slot][k];
    }
    ChartFromCoach(coach, slot, player);
  }
}

}  // namespace tipline
