#pragma once
// The screen that gives a team, or a whole league, its default ratings.
#include "frontoffice/ratings.h"
#include "league/roster.h"

namespace tipline {

struct hcratings {
  bool ScoringCheck = true, ShootingCheck = true, RealInsidePctCheck = true, PassingCheck = true,
       ReboundingCheck = true, DefenseCheck = true, AllSeasonCheck = true, DurabilityCheck = true,
       SportsmanshipCheck = true, TurnoversCheck = true, StealsCheck = true, BlockedShotsCheck = true,
       ClutchCheck = true, DunkCheck = true, SalaryCheck = true;
  bool MissingDataCheck = false;

  /// Asks, then rates the men of one team in memory; who saves the team is the caller. False when the answer
  /// was no.
  bool DEFAULTRATINGS(Roster& roster) const;
  /// Asks, then rates every active team of `league` and saves it. False when the answer was no, or a team
  /// could not be written.
  bool DEFAULTRATINGS_ALL() const;

  /// Rates the men of a team who have real minutes, without a question.
  void RateTeam(Roster& roster) const;
  /// Rates one man by the checks that are on.
  void RatePlayer(PlayerRecord& player, const TeamRecord& team) const;
};

}  // namespace tipline
