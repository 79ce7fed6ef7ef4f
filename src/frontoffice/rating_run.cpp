#include "frontoffice/rating_run.h"

#include "frontoffice/rating_math.h"
#include "league/player_values.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

constexpr std::string_view kTitle = "Tipline Please Confirm..";

}  // namespace

// The order stands: inside share before shooting, offense before all; salary reads ratings made before it.
void hcratings::RatePlayer(PlayerRecord& player, const TeamRecord& team) const {
  RatingRun run;
  run.MissingDataCheck = MissingDataCheck;
  run.SetFactors(player);
  if (ScoringCheck) DefaultScoring(player, team, run);
  if (RealInsidePctCheck) DefaultRealInside(player, team, run);
  if (ShootingCheck) DefaultShooting(player, team, run);
  if (PassingCheck) DefaultPassing(player, team, run);
  if (ReboundingCheck) DefaultRebounding(player, team, run);
  if (DefenseCheck) DefaultDefense(player, team, run);
  if (AllSeasonCheck) DefaultAllSeason(player, run);
  if (DurabilityCheck) DefaultDurability(player, team, run);
  if (SportsmanshipCheck) DefaultSportsmanship(player, team, run);
  if (SalaryCheck) DefaultSALARY(player, IsCollegeTeam(team));
  if (ClutchCheck) DefaultClutch(player);
  if (DunkCheck) DefaultDunk(player);
  if (TurnoversCheck) DefaultTurnovers(player, team);
  if (StealsCheck) DefaultSteals(player, team, run);
  if (BlockedShotsCheck) DefaultBlockedShots(player, team, run);
}

void hcratings::RateTeam(Roster& roster) const {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    PlayerRecord& player = roster.player[slot];
    if (player.TeamNo == roster.TeamNo && player.Stats[1].Min >= 1) RatePlayer(player, roster.team);
  }
}

bool hcratings::DEFAULTRATINGS(Roster& roster) const {
  if (!platform::dialogs().Ask("Generate Default Ratings?", kTitle)) return false;
  RateTeam(roster);
  return true;
}

bool hcratings::DEFAULTRATINGS_ALL() const {
  if (!platform::dialogs().Ask("Generate Default Ratings For All Players?", kTitle)) return false;
  for (int t = 1; t <= kTeams; ++t) {
    if (league.team[t].TeamActive != 1) continue;
    Roster roster;
    if (!ReadRoster(t, roster)) continue;
    RateTeam(roster);
    if (!WriteRoster(roster)) return false;
  }
  return true;
}

}  // namespace tipline
