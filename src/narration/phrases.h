#pragma once
// The phrase table: its built-in texts, its file, and the draw of a variant.
#include <span>
#include <string>
#include <string_view>

namespace tipline {

/// What a slot is for, in a sentence with PLAYER, PLAYER1, PLAYER2 or TEAM where a name stands, and its
/// built-in text.
struct PhraseRole {
  int slot;
  std::string_view text;
  std::string_view role;
};
std::span<const PhraseRole> ShotPhrases();
std::span<const PhraseRole> WhistlePhrases();
std::span<const PhraseRole> FloorPhrases();

/// A variant, 1 to 20, by the setting for how often the rarer ones come.
int PickVariant();
/// A phrase of slot 1 to 253, by PickVariant; "" for another slot. Loads the table at its first use.
std::string Phrase(int slot);
std::string_view DefaultPhrase(int slot);  ///< "" for a slot that is not used
std::string_view RoleOfPhrase(int slot);   ///< the sentence of its role; "" for a slot that is not used

}  // namespace tipline
