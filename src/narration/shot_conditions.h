#pragma once
// What the sayings of shots ask of the play that was just posted.
#include <algorithm>

#include "engine/game_state.h"
#include "league/setup.h"
#include "narration/lines.h"

namespace tipline {

/// Tenths left when the play was over.
inline int ClockLeft() { return std::max(0, scene().GameClock - scene().PlayTime); }
inline bool AtTheHorn() { return ClockLeft() == 0; }

inline bool CountsThree() {
  const PlayResult r = game.play.Posted;
  return r == "G3" || r == "G3F" || r == "M3" || r == "M3F";
}
/// Let go from beyond the arc, or with a foot on it.
inline bool FromBeyond() {
  return CountsThree() || scene().PlayKind == "THREE" ||
         (scene().PlayKind == "FASTBREAK" && scene().FastBreak.BreakThree);
}
inline bool FootOnLine() { return game.play.Posted == "G" && FromBeyond(); }
inline bool WasFouled() {
  const PlayResult r = game.play.Posted;
  return r == "GF" || r == "G3F" || r == "MF" || r == "M3F";
}

inline const StatLine& GameOfShooter() { return BallMan().Stats[3]; }
/// Shots in a row before this one: baskets above 0, misses below.
inline int RunBefore() { return game.commentary.ShotRun[scene().OffenseSide][scene().BallPlayer]; }

inline bool OnDrive() { return scene().PlayKind == "DRIVE"; }
inline bool OnBreak() { return scene().PlayKind == "FASTBREAK"; }
inline bool Putback() { return scene().PlayKind == "OFFREB"; }
inline bool FromPost() { return scene().PlayKind == "INSIDE"; }
/// From close to the basket: where lay-ups and dunks come from.
inline bool FromClose() {
  return !FromBeyond() && (FromPost() || OnDrive() || OnBreak() || (Putback() && scene().PutbackClass == 1));
}
inline bool FromOutside() { return !FromBeyond() && !FromClose(); }
/// Thrown from far away with the horn about to sound.
inline bool Heaved() { return CountsThree() && scene().GameClock <= 30 && ClockLeft() <= 5; }
inline bool Guarded() { return scene().BallDefender > 0; }
inline bool AloneOnBreak() {
  return OnBreak() && (scene().FastBreak.Breakaway || scene().FastBreak.BreakDefenders == 0);
}
inline bool BreakGuarded() { return OnBreak() && scene().FastBreak.BreakDefenders > 0; }

inline int SpotOfShot() { return ManAt(scene().OffenseSide, scene().BallPlayer).CourtSpot; }
inline bool FromCorner() { return FromBeyond() && (SpotOfShot() == 301 || SpotOfShot() == 309); }
inline bool FromTheTop() { return FromBeyond() && SpotOfShot() == 305; }
inline bool FromTheWing() {
  return FromBeyond() &&
         (SpotOfShot() == 303 || SpotOfShot() == 304 || SpotOfShot() == 306 || SpotOfShot() == 307);
}
inline bool FromBaseline() { return SpotOfShot() == 201 || SpotOfShot() == 209; }
inline bool FromFoulLine() { return SpotOfShot() == 205; }
inline bool FromLeft() { return SpotOfShot() == 202 || SpotOfShot() == 203; }
inline bool FromRight() { return SpotOfShot() == 207 || SpotOfShot() == 208; }
inline bool LeftBlock() { return SpotOfShot() == 101; }
inline bool RightBlock() { return SpotOfShot() == 104; }

inline bool ManyThreesTried() { return GameOfShooter().F3A >= 8; }
inline bool BigMan() { return scene().BallSlot >= 4; }
inline bool GoodPasser() { return game.play.Assisted && game.play.Assister != scene().BallPlayer; }
/// The last line brings the ball to him: it tells of him, and of nobody's defense.
inline bool OffThePass() {
  if (NoLineYet()) return false;
  const std::string& last = LastLine().Text;
  const std::string name = BallName(), guard = NameOf(scene().DefenseSide, scene().BallDefender);
  const bool guarded = !guard.empty() && last.find(guard) != last.npos;
  return last.find(" " + name) != last.npos && !guarded && !last.starts_with(name);
}
inline bool ShotClockLow() {
  return league.rules.ShotClockList > 0 && scene().ShotClock - scene().PlayTime < 30;
}
inline bool MismatchTall() { return game.play.HeightMismatch >= 4; }
inline bool ModernDays() { return BallMan().Year >= 1975; }
inline bool HomeShot() { return scene().OffenseSide == 2 && !game.NeutralGame; }

}  // namespace tipline
