#pragma once
// What the describers of the ball and the floor share: who has the ball as the listener knows it, and where.
#include <string>

#include "narration/lines.h"

namespace tipline::floor_talk {

/// The ball was told to be with this man, off the board of his own miss or a mate's; 0 forgets him.
void TellHolder(int side, int slot, bool offBoard = false);
/// Slot of the man of the offense whom the listener sees with the ball, 0 when he knows of none.
int ToldHolder();

/// Where a man of the offense stands, as a phrase; "" when it is not known.
std::string PlaceOf(int slot);
/// 1 near the basket, 2 outside, 3 beyond the arc, 0 unknown: where the rebounder stood.
int ReboundZone();

/// Each part but the last with its comma, the last behind "and".
std::vector<std::string> Listed(std::vector<std::string> parts);
/// Adds the parts behind `lead`, and begins a new line where one would grow beyond 60 characters.
void WrapLine(std::string lead, const std::vector<std::string>& parts);

/// "point guard" to "center", for positions 1 to 5.
std::string_view PositionWord(int position);
/// The nickname where it tells more, with the article, else the name: "the Rockets", "Utah".
std::string SideWithArticle(int side);
inline std::string At(int side, int position) { return NameOf(side, game.side[side].Lineup[position]); }

inline int PressureThen() { return DefenseThen().Pressure; }
inline bool PressOn() { return PressureThen() == 2 || PressureThen() == 4; }
inline bool TrapOn() { return PressureThen() == 1 || PressureThen() == 3; }

}  // namespace tipline::floor_talk
