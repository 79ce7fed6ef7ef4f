#include "league/team_defaults.h"

#include "coach/depth_chart.h"
#include "coach/plan_load.h"
#include "frontoffice/ratings.h"

namespace tipline {
namespace {

RatingRun RunFor(const PlayerRecord& player) {
  RatingRun run;
  run.SetFactors(player);
  return run;
}

}  // namespace

bool DefaultPlans(Roster& roster) { return ReadyPlan(roster); }
void DefaultDepthCharts(Roster& roster) { SetDefaultDepthCharts(roster); }
void DefaultSpecialLineups(Roster& roster) { SetDefaultSpecialLineups(roster); }

void DeriveDefense(PlayerRecord& player, const TeamRecord& team) {
  DefaultDefense(player, team, RunFor(player));
}

void DeriveDurability(Roster& roster) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    PlayerRecord& player = roster.player[slot];
    if (OnTeam(roster, slot)) DefaultDurability(player, roster.team, RunFor(player));
  }
}

}  // namespace tipline
