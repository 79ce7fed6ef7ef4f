#include "narration/phrases.h"

#include <array>

#include "engine/game_state.h"
#include "league/program.h"
#include "league/setup.h"
#include "narration/lines.h"
#include "narration/phrase_file.h"

namespace tipline {
namespace {

const std::array<const PhraseRole*, kPhraseSlotsUsed + 1>& Roles() {
  static const auto roles = [] {
    std::array<const PhraseRole*, kPhraseSlotsUsed + 1> all{};
    for (const auto part : {ShotPhrases(), WhistlePhrases(), FloorPhrases()}) {
      for (const PhraseRole& role : part) all.at(static_cast<std::size_t>(role.slot)) = &role;
    }
    return all;
  }();
  return roles;
}

const PhraseRole* RoleAt(int slot) {
  return slot >= 1 && slot <= kPhraseSlotsUsed ? Roles()[static_cast<std::size_t>(slot)] : nullptr;
}

}  // namespace

std::string_view DefaultPhrase(int slot) {
  const PhraseRole* role = RoleAt(slot);
  return role ? role->text : "";
}

std::string_view RoleOfPhrase(int slot) {
  const PhraseRole* role = RoleAt(slot);
  return role ? role->role : "";
}

int PickVariant() {
  // The shares of variant 1, of 2 to 5 and of 6 to 10 in a hundred, added up; 11 to 20 have the rest.
  constexpr int kBorders[4][3] = {{50, 90, 95}, {35, 75, 90}, {20, 60, 80}, {15, 35, 60}};
  const int usage = setup.DescriptionUsage;
  if (usage > 3) return ShowRnd(kPhraseVariants);
  const int r = ShowRnd(100);
  const auto& border = kBorders[usage];
  if (r <= border[0]) return 1;
  if (r <= border[1]) return 1 + ShowRnd(4);
  if (r <= border[2]) return 5 + ShowRnd(5);
  return 10 + ShowRnd(10);
}

std::string Phrase(int slot) {
  if (slot < 1 || slot > kPhraseSlotsUsed) return "";
  if (!program.Phrases.Loaded()) LoadPhraseTable();
  if (game.Tally) ++game.Tally->slots[slot];
  return program.Phrases.At(PickVariant(), slot).Str();
}

}  // namespace tipline
