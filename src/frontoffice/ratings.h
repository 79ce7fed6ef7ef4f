#pragma once
// A man's ratings, worked out from his real season line (`Stats[1]`), measured against his league's season
// and his team's real totals. Each routine is a plain function of one record: it writes the ratings named at
// it and nothing else. A real line without minutes counts as one minute; an era figure of 0 never divides,
// the man is then average in it.
#include "league/player_record.h"
#include "league/team_record.h"

namespace tipline {

/// One run of the ratings over men.
struct RatingRun {
  bool FictionalRatingRun = false;  ///< a made-up man: no team's real totals stand behind his line
  bool MissingDataCheck = false;    ///< leave alone what already holds a value
  double SexFGFactor = 1.0;         ///< shots of a women's game against a men's
  double SexBFactor = 1.0;          ///< fouls likewise
  double LevelFactor = 1.0;         ///< length of the game against 48 minutes

  /// Sets the three factors for a man or a woman.
  void SetFactors(const PlayerRecord& player);
};

/// `RateOffense`: his use of possessions, 50 the league's average. On a college team his points.
void DefaultScoring(PlayerRecord& player, const TeamRecord& team, const RatingRun& run);
/// `RealInsidePct`, tens of per cent.
void DefaultRealInside(PlayerRecord& player, const TeamRecord& team, const RatingRun& run);
/// Free throw (`RateReserved1`), three, outside, inside, drive and fastbreak. Needs the two above.
void DefaultShooting(PlayerRecord& player, const TeamRecord& team, const RatingRun& run);
void DefaultPassing(PlayerRecord& player, const TeamRecord& team, const RatingRun& run);
/// `RateRebDef` and `RateRebOff`.
void DefaultRebounding(PlayerRecord& player, const TeamRecord& team, const RatingRun& run);
/// `RateDefOutside`, `RateDefInside` with their older twins, and `RateDefForce`.
void DefaultDefense(PlayerRecord& player, const TeamRecord& team, const RatingRun& run);
/// Dates: the whole season.
void DefaultAllSeason(PlayerRecord& player, const RatingRun& run);
void DefaultDurability(PlayerRecord& player, const TeamRecord& team, const RatingRun& run);
void DefaultSportsmanship(PlayerRecord& player, const TeamRecord& team, const RatingRun& run);
/// `RateClutch`; needs `RateOffense`.
void DefaultClutch(PlayerRecord& player);
void DefaultDunk(PlayerRecord& player);

/// Figures that old seasons did not keep: each fills its own when it is 0, on other than college teams.
void DefaultTurnovers(PlayerRecord& player, const TeamRecord& team);
void DefaultSteals(PlayerRecord& player, const TeamRecord& team, const RatingRun& run);
void DefaultBlockedShots(PlayerRecord& player, const TeamRecord& team, const RatingRun& run);

}  // namespace tipline
