#pragma once
// The highlights of the season: one line for each feat, injury and ejection, in HcHighlights.txt.
#include <string>
#include <vector>

namespace tipline {

/// The lines of the game just ended, in order: who was hurt, thrown out, did much or shot well, side by side
/// and slot by slot, then a basket that won it at the horn. A line is "30 Pts, 12 Reb Smith BOSNov 5 ".
/// Reads `game`.
std::vector<std::string> GameHighlights();

/// Appends lines to the file. False, told, when that failed.
bool PostHighlights(const std::vector<std::string>& lines);
/// Puts them on top of `program.HighlightList`, the last one first.
void ListHighlights(const std::vector<std::string>& lines);

/// A line of the file taken apart.
struct Highlight {
  std::string Text;  ///< what was done, and by whom
  std::string Abbrev;
  std::string Date;  ///< "Nov 5"; empty where the line had no room for it
};
Highlight ReadHighlight(const std::string& line);
/// All lines of the open league, oldest first; none when there is no file. False, told, when it can't be
/// read.
bool LoadHighlights(std::vector<std::string>& lines);

}  // namespace tipline
