#include "cli/coach_words.h"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "base/text.h"
#include "engine/game_state.h"
#include "league/player_values.h"

namespace tipline::cli {
namespace {

bool AllDigits(std::string_view text) {
  return !text.empty() &&
         std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c); });
}

/// A number of at most three digits; 0 otherwise.
int SmallNumber(std::string_view text) {
  return AllDigits(text) && text.size() <= 3 ? std::stoi(std::string(text)) : 0;
}

bool Begins(std::string_view text, std::string_view part) { return text.substr(0, part.size()) == part; }

/// Every word of `said` begins a word of the choice.
bool WordsBegin(const Words& said, std::string_view choice) {
  const Words words = SplitWords(choice);
  return std::all_of(said.begin(), said.end(), [&words](const std::string& s) {
    return std::any_of(words.begin(), words.end(), [&s](const std::string& w) {
      const std::string part = Squeezed(s);
      return !part.empty() && Begins(Squeezed(w), part);
    });
  });
}

/// The position that alone bears this label; 0 for none.
int PositionLabelled(std::string_view said) {
  int found = 0;
  for (int p = 1; p <= kPositions; ++p) {
    if (!SameText(league.PositionLabel[p], said)) continue;
    if (found > 0) return 0;
    found = p;
  }
  return found;
}

/// How well a name fits: 3 it is the last or the whole name, 2 the last name begins so, 1 it holds it.
int NameFit(const PlayerRecord& p, const std::string& said) {
  const std::string last = Squeezed(p.LastName.View());
  const std::string whole = Squeezed(FullName(p));
  if (said == last || said == whole || said == Squeezed(p.ShortName.View())) return 3;
  if (Begins(last, said)) return 2;
  return whole.find(said) != std::string::npos ? 1 : 0;
}

/// Who answers to a name; `manAt` gives the man of the team at a roster slot, nullptr for none.
template <class ManAt>
Found ByName(ManAt manAt, std::string_view said) {
  const std::string name = Squeezed(said);
  const std::string nobody = "Nobody on the team answers to \"" + Shortened(said) + "\".";
  if (name.empty()) return {0, nobody};
  int best = 0;
  Words found;
  Found man;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const PlayerRecord* const p = manAt(slot);
    const int fit = p ? NameFit(*p, name) : 0;
    if (fit == 0 || fit < best) continue;
    if (fit > best) found.clear();
    best = fit;
    man.value = slot;
    found.push_back(FullName(*p) + " #" + std::to_string(slot));
  }
  if (found.empty()) return {0, nobody};
  if (found.size() == 1) return man;
  std::string which = "Which one: ";
  for (std::size_t i = 0; i < found.size(); ++i) which += (i ? ", " : "") + found[i];
  return {0, which + "?"};
}

bool IsMarked(std::string_view said) { return !said.empty() && said[0] == '#'; }
int NumberIn(std::string_view said) { return SmallNumber(IsMarked(said) ? said.substr(1) : said); }

/// By roster number or name.
template <class ManAt>
Found OnRoster(ManAt manAt, std::string_view said) {
  const int number = NumberIn(said);
  if (number == 0 && !IsMarked(said)) return ByName(manAt, said);
  if (number >= 1 && number <= kRosterSlots && manAt(number)) return {number, ""};
  return {0, "There is no man " + std::string(said) + " on the team."};
}

}  // namespace

Words SplitWords(std::string_view line) {
  std::istringstream stream{std::string(line)};
  Words words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

std::string Joined(const Words& words, std::size_t first, std::size_t end) {
  std::string text;
  for (std::size_t i = first; i < std::min(end, words.size()); ++i)
    text += (text.empty() ? "" : " ") + words[i];
  return text;
}

std::string Squeezed(std::string_view text) {
  std::string kept;
  for (const unsigned char c : text) {
    if (std::isalnum(c)) kept += static_cast<char>(std::tolower(c));
  }
  return kept;
}

int ChoiceOf(std::string_view said, std::span<const std::string_view> choices) {
  const std::string wanted = Squeezed(said);
  if (wanted.empty()) return kNoChoice;
  const Words words = SplitWords(said);
  const auto only = [&choices](auto fits) {
    int found = kNoChoice;
    for (std::size_t i = 0; i < choices.size(); ++i) {
      if (fits(choices[i])) found = found == kNoChoice ? static_cast<int>(i) : kSeveral;
    }
    return found;
  };
  int found = only([&](std::string_view c) { return Squeezed(c) == wanted; });
  if (found == kNoChoice) {
    found = only([&](std::string_view c) { return !c.empty() && Squeezed(SplitWords(c)[0]) == wanted; });
  }
  if (found < 0) found = only([&](std::string_view c) { return Begins(Squeezed(c), wanted); });
  if (found == kNoChoice) found = only([&](std::string_view c) { return WordsBegin(words, c); });
  return found;
}

std::string Listed(std::span<const std::string_view> choices) {
  std::string text;
  for (const auto choice : choices) {
    if (!choice.empty()) text += (text.empty() ? "" : ", ") + std::string(choice);
  }
  return text;
}

std::string Shortened(std::string_view said) {
  constexpr std::size_t kMost = 30;
  if (said.size() <= kMost) return std::string(said);
  std::size_t cut = kMost;
  while (cut > 0 && (static_cast<unsigned char>(said[cut]) & 0xC0) == 0x80) --cut;  // between two letters
  return std::string(said.substr(0, cut)) + "..";
}

int OnOff(std::string_view said) {
  const std::string word = Squeezed(said);
  return word == "on" ? 1 : word == "off" ? 0 : kNoChoice;
}

Found FindMan(int side, std::string_view said) {
  const int number = NumberIn(said);
  const bool onFloor = number >= 1 && number <= kPositions;
  const int position = IsMarked(said) ? 0 : onFloor ? number : PositionLabelled(said);
  if (position > 0) {
    const int slot = game.side[side].Lineup[position];
    if (slot > 0) return {slot, ""};
    return {0, "Nobody stands at position " + std::to_string(position) + "."};
  }
  return OnRoster([side](int slot) { return OnTeam(side, slot) ? &PlayerAt(side, slot) : nullptr; }, said);
}

Found FindMan(const Roster& roster, std::string_view said) {
  return OnRoster([&roster](int slot) { return OnTeam(roster, slot) ? &roster.player[slot] : nullptr; },
                  said);
}

Found FindPosition(int side, std::string_view said) {
  const int number = SmallNumber(said);
  if (number >= 1 && number <= kPositions) return {number, ""};
  if (const int labelled = PositionLabelled(said)) return {labelled, ""};
  const Found man = FindMan(side, said);
  if (man.value == 0) return man;
  const int position = PositionOf(side, man.value);
  if (position > 0) return {position, ""};
  return {0, ManName(side, man.value) + " is not on the floor."};
}

std::string ManName(int side, int slot) { return KnownName(PlayerAt(side, slot)); }

}  // namespace tipline::cli
