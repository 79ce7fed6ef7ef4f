#pragma once
// The chance, in thousandths, that a shot goes in.

namespace tipline {

/// The expected mix of two-point attempts of a side's men, at team load: the five shares of `game.loaded`.
void ShotMix(int side);
/// Today's shooting form of one man.
double DrawHotHand();

/// The era's means over the two fives: `EraFGA` to `EraPF` of both sides.
void EraMeans();
/// How far a man has been used beyond his real season, 0 to 3. 0 with the rule off or in an exhibition. An
/// analysis outside a game gets the level that his last game left.
int UsageLevel(int side, int slot);

/// What the defense is worth against this shot: `TeamDefense` to `DefenseUse` of `game.play`. After
/// LineupValues.
void DefenseRatings();
/// The ball handler's chances; they need the means of the eras, the sums of the line-ups, the usage levels of
/// the play and the defense's ratings.
void TwoChance();       ///< sets `TwoPointChance`; never below 0, above 1000 always goes in
void ThreeChance();     ///< sets `ThreePointChance`, likewise
int FreeThrowChance();  ///< of the ball handler

/// Which row the era setting of the rules ties the chances to: 1955 .. 2005, or 1995 for the average
/// historical era; 0 when every team keeps its own.
int EraSettingYear();

/// Strength of conference 1 in a pro season: the share of games between the conferences that it won.
double ConferenceStrength(int year);
/// That share as it counts for a team: of its own conference; 0.5 for a team in none.
double ConferenceShare(int team, int year);

}  // namespace tipline
