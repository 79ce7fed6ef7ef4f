#include "narration/phrases.h"

#include <array>

#include "engine/game_state.h"
#include "league/phrase_table.h"
#include "league/setup.h"
#include "narration/lines.h"

namespace tipline {
namespace {

const std::array<const PhraseRole*, kPhraseSlotsUsed + 1>& Roles() {
  static const auto roles = [] {
    std::array<const PhraseRole*, kPhraseSlotsUsed + 1> all{};
    for (const auto part : {ShotPhrases(), WhistlePhrases(), FloorPhrases()}) {
      for (const PhraseRole& role : part) all[static_cast<std::size_t>(role.slot)] = &role;
    }
    return all;
  }();
  return roles;
}

}  // namespace

std::string_view DefaultPhrase(int slot) {
  if (slot < 1 || slot > kPhraseSlotsUsed) return "";
  const PhraseRole* role = Roles()[static_cast<std::size_t>(slot)];
  return role ? role->text : "";
}

int PickVariant() {
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
  PickVariant();
  if (game.Tally && slot >= 1 && slot <= kPhraseSlots) ++game.Tally->slots[slot];
  return std::string(DefaultPhrase(slot));
}

}  // namespace tipline
