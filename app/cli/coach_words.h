#pragma once
// What a coach types, and the men and things he means by it.
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "league/roster.h"

namespace tipline::cli {

using Words = std::vector<std::string>;

/// The words of a line, between blanks.
Words SplitWords(std::string_view line);
/// The words from index `first` up to, not including, `end`, with a blank between.
std::string Joined(const Words& words, std::size_t first = 0, std::size_t end = std::string::npos);

/// Letters and digits alone, small: "Strong Inside" and "strong-inside" are the same.
std::string Squeezed(std::string_view text);

inline constexpr int kNoChoice = -1, kSeveral = -2;
/// Index of the choice that `said` is, whose first word it is, or that it begins as a whole or word by word;
/// kNoChoice, kSeveral. An empty text chooses nothing.
int ChoiceOf(std::string_view said, std::span<const std::string_view> choices);
/// "a, b, c".
std::string Listed(std::span<const std::string_view> choices);

/// What was typed, cut where it is too long to be shown in a refusal.
std::string Shortened(std::string_view said);

/// 1 for "on", 0 for "off", kNoChoice for anything else.
int OnOff(std::string_view said);

/// A man or a position found, or `value` 0 and why not.
struct Found {
  int value = 0;
  std::string fault;
};
/// Roster slot of the man of a side that is meant: "#9" or 9 roster number 9, 1 to 5 and position labels
/// ("PG") the man on the floor there, else a part of his name.
Found FindMan(int side, std::string_view said);
/// The same away from a game: "#9" or 9, else a part of his name.
Found FindMan(const Roster& roster, std::string_view said);
/// Position 1 to 5 on a side's floor: its number, its label, or its man by name.
Found FindPosition(int side, std::string_view said);

/// The name by which a man goes on the screen.
std::string ManName(int side, int slot);

}  // namespace tipline::cli
