#pragma once
// One made-up player: body, name, and a real season line drawn from his era, rated like anybody else's.
#include "frontoffice/fiction_files.h"
#include "league/player_record.h"
#include "league/team_record.h"

namespace tipline {

enum class FictionQuality { kReplacement, kRookieMix, kVeteranMix, kVeteranRookieMix };

struct FictionOrder {
  int TeamNo = 999;
  int Year = 2022;
  int Position = 1;  ///< 1 to 5
  FictionQuality Quality = FictionQuality::kVeteranRookieMix;
};

/// Draws a player. `team` is the team he is meant for, or for the pool any team of his league: its letters
/// say whether he is a man or a woman, a professional or a college player. Reads the era tables; writes no
/// file. `names` needs a last name.
///
/// College and women's players come from the figures of their own level, not from the men's professional
/// game: games of 40 minutes (with overtime 40.5), the college row of the era, college men of 18 to 22 an
/// inch and 12 pounds below the professionals, women 5.5 inches and 45 pounds below (a women's professional
/// league averages about six feet and 170 pounds), with the shots, rebounds and assists of a women's game at
/// 0.79 and its fouls, steals, blocks and turnovers at 0.92 of the men's row, the factors their ratings go
/// by.
PlayerRecord CreateOnePlayer(const FictionOrder& order, const FictionFiles& names, const TeamRecord& team);

/// Sets every marker of a player record, with the fields they guard, as the load of his team would.
void SetPlayerMarks(PlayerRecord& player, const TeamRecord& team);

/// Target minutes, positions and the tired rule from his real line, as a first load sets them.
void SetUsageFromLine(PlayerRecord& player);

}  // namespace tipline
