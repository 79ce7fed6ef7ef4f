#pragma once
// The words of a game: states, kinds of play, results. Their texts stand in files, on the wire and in
// prompts; the play log of a stored game holds its kinds and results by number, so new ones of these go to
// the end.
#include "base/words.h"

namespace tipline {

struct GameStateWords {
  static constexpr std::string_view kTexts[] = {"",
                                                "JUMPBALL-1",
                                                "JUMPBALL-2",
                                                "JUMPBALL",
                                                "OFFENSE",
                                                "DEFENSE-CALL",
                                                "DEFENSE",
                                                "OFFREB",
                                                "FASTBREAK",
                                                "FREETHROW-WAIT",
                                                "FREETHROW-SHOOT",
                                                "DEADBALL-DEFENSE",
                                                "DEADBALL-OFFENSE",
                                                "TIMEOUT-DEFENSE",
                                                "TIMEOUT-OFFENSE",
                                                "QUARTER-DEFENSE",
                                                "QUARTER-OFFENSE"};
};
using GameState = Word<GameStateWords>;

struct PlayKindWords {
  static constexpr std::string_view kTexts[] = {
      "",       "INSIDE", "OUTSIDE", "THREE",    "DRIVE",    "FASTBREAK", "OFFREB",   "BURN",     "HOLD BALL",
      "SHOOT1", "SHOOT2", "SHOOT3",  "SHOOT1-1", "SHOOT2-1", "SHOOT2-2",  "SHOOT3-2", "ENDPERIOD"};
};
using PlayKind = Word<PlayKindWords>;

struct PlayResultWords {
  static constexpr std::string_view kTexts[] = {"",
                                                "G",
                                                "G3",
                                                "GF",
                                                "G3F",
                                                "M",
                                                "M3",
                                                "MF",
                                                "M3F",
                                                "F0",
                                                "F1",
                                                "F2",
                                                "F1-1",
                                                "F3-2",
                                                "FTG",
                                                "FTM",
                                                "TO",
                                                "ST",
                                                "OF",
                                                "OB",
                                                "REB",
                                                "OFFREB",
                                                "DEFREB",
                                                "LOOSE-OFF",
                                                "LOOSE-DEF",
                                                "DEAD",
                                                "NOSHOT",
                                                "SHOTCLOCK",
                                                "DELAY",
                                                "2XPF",
                                                "HOLD BALL",
                                                "BURN",
                                                "PASS",
                                                "JUMPBALL",
                                                "FORCED-TIMEOUT",
                                                "FLAGRANT",
                                                "DEAD-GOALTENDING",
                                                "MOVE-UP",
                                                "MOVE-UP-OB",
                                                "MOVE-UP-OB-OFF",
                                                "MOVE-UP-ST",
                                                "IN-EZ",
                                                "IN-5",
                                                "IN-OB",
                                                "IN-OB-OFF",
                                                "IN-OB-DEF",
                                                "IN-ST",
                                                "ILLEGAL DEFENSE",
                                                "SHAKEN-UP",
                                                "TIMEOUT",
                                                "OFFENSE-BASKET-INTERFERENCE",
                                                "SHOTSTUCK"};
};
using PlayResult = Word<PlayResultWords>;

struct ShotValueWords {
  static constexpr std::string_view kTexts[] = {"TWO", "THREE"};
};
using ShotValue = Word<ShotValueWords>;

struct TimeoutFocusWords {
  static constexpr std::string_view kTexts[] = {"None",     "Offense", "Defense",
                                                "Pressure", "Rebound", "Fastbreak"};
};
using TimeoutFocus = Word<TimeoutFocusWords>;  ///< what a coach stressed in his last timeout

struct WatchUntilWords {
  static constexpr std::string_view kTexts[] = {"NONE",
                                                "End 1st Period",
                                                "End 2nd Period",
                                                "End 3rd Period",
                                                "End 4th Period",
                                                "1st Period - Six Minutes",
                                                "1st Period - Two Minutes",
                                                "1st Period - One Minute",
                                                "2nd Period - Six Minutes",
                                                "2nd Period - Two Minutes",
                                                "2nd Period - One Minute",
                                                "3rd Period - Six Minutes",
                                                "3rd Period - Two Minutes",
                                                "3rd Period - One Minute",
                                                "4th Period - Six Minutes",
                                                "4th Period - Two Minutes",
                                                "4th Period - One Minute",
                                                "4th Period - 30 Seconds"};
};
using WatchUntil = Word<WatchUntilWords>;  ///< the mark up to which both sides run unattended

/// Where a mark is reached: in that period, with less than so many tenths left.
struct WatchMark {
  int period = 0, below = 0;
};
constexpr WatchMark MarkOf(WatchUntil until) {
  constexpr int kBelow[] = {3600, 1200, 600};  // six, two and one minutes
  const int index = until.Index();
  if (index == 0) return {};
  if (index <= 4) return {index, 1};
  if (until == "4th Period - 30 Seconds") return {4, 300};
  return {(index - 5) / 3 + 1, kBelow[(index - 5) % 3]};
}

struct CoachModeWords {
  static constexpr std::string_view kTexts[] = {"C", "H"};
};
using CoachMode = Word<CoachModeWords>;  ///< "C" computer, "H" human

constexpr bool IsFreeThrow(GameState s) { return s == "FREETHROW-WAIT" || s == "FREETHROW-SHOOT"; }
constexpr bool IsTimeout(GameState s) { return s == "TIMEOUT-DEFENSE" || s == "TIMEOUT-OFFENSE"; }
constexpr bool IsQuarter(GameState s) { return s == "QUARTER-DEFENSE" || s == "QUARTER-OFFENSE"; }
constexpr bool IsDeadBall(GameState s) { return s == "DEADBALL-DEFENSE" || s == "DEADBALL-OFFENSE"; }
constexpr bool IsJump(GameState s) { return s == "JUMPBALL-1" || s == "JUMPBALL-2" || s == "JUMPBALL"; }
/// The offense acts at this stop and the ball could be brought in: a state that ends in OFFENSE.
constexpr bool EndsInOffense(GameState s) {
  return s == "OFFENSE" || s == "DEADBALL-OFFENSE" || s == "TIMEOUT-OFFENSE" || s == "QUARTER-OFFENSE";
}

constexpr bool IsFreeThrow(PlayKind k) {
  return k.Index() >= PlayKind("SHOOT1").Index() && k.Index() <= PlayKind("SHOOT3-2").Index();
}
/// A shot out of a set: the four kinds that coverage, help and pressure act on.
constexpr bool IsSetShot(PlayKind k) {
  return k == "INSIDE" || k == "OUTSIDE" || k == "THREE" || k == "DRIVE";
}

/// The shot went in, with or without a foul.
constexpr bool IsMadeShot(PlayResult r) { return r == "G" || r == "G3" || r == "GF" || r == "G3F"; }
/// A shot was taken or a shooter fouled.
constexpr bool IsShot(PlayResult r) {
  return r.Index() >= PlayResult("G").Index() && r.Index() <= PlayResult("M3F").Index();
}
/// A foul away from a shot.
constexpr bool IsFloorFoul(PlayResult r) {
  return r.Index() >= PlayResult("F0").Index() && r.Index() <= PlayResult("F3-2").Index();
}

/// The inside, outside or three-point shot that a man has open.
enum : int { kInside = 1, kOutside = 2, kThree = 3 };

constexpr PlayKind KindOfPick(int shotPick) {
  return shotPick == kInside  ? PlayKind("INSIDE")
         : shotPick == kThree ? PlayKind("THREE")
                              : PlayKind("OUTSIDE");
}

}  // namespace tipline
