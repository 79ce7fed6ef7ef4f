#include "narration/phrase_manager.h"

#include <filesystem>

#include "league/program.h"
#include "league/setup.h"
#include "narration/phrase_file.h"
#include "narration/phrases.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using platform::RefusedWith;

constexpr std::string_view kExtension = ".HCp";

/// A name as the user gives it, with its extension.
std::string WithExtension(std::string_view name) {
  name = Trimmed(name);
  const bool has = Upper(name).ends_with(Upper(kExtension));
  return std::string(name) + (has || name.empty() ? "" : std::string(kExtension));
}

bool IsThere(const std::string& name) {
  std::error_code error;
  return std::filesystem::is_regular_file(PhraseFile(name), error);
}

/// The name of a phrase file that is there; false, told, for any other.
bool Known(const std::string& name) {
  if (IsPhraseFileName(name) && IsThere(name)) return true;
  return RefusedWith("There is no play-by-play file \"" + name + "\"!");
}

/// From now on this file is used, and the setup says so.
bool Use(const std::string& name) {
  const auto before = setup.PhraseFileName;
  setup.PhraseFileName = name;
  if (!SaveSetup()) {
    setup.PhraseFileName = before;
    return false;
  }
  LoadPhraseTable();
  return true;
}

bool Holds(std::string_view text, const std::string& capitals) {
  return Upper(text).find(capitals) != std::string::npos;
}

/// The edit box can be a variant; else why not.
bool FitsAPhrase(int slot, int variant, std::string_view text) {
  if (variant == 1 && !text.empty() && text != DefaultPhrase(slot)) {
    return RefusedWith("The first phrase of a play can't be changed!");
  }
  if (text.size() > kPhraseLength) return RefusedWith("A phrase has at most 40 characters!");
  return IsPrintable(text) || RefusedWith("A phrase has plain letters, digits and signs only!");
}

}  // namespace

HCDESCRIPS::HCDESCRIPS() { LoadPhraseTable(); }

std::string HCDESCRIPS::FileLabel() const {
  return "Current Play-By-Play File: " + setup.PhraseFileName.Str();
}

std::string HCDESCRIPS::Shown(int variant) const {
  return variant >= 1 && variant <= kPhraseVariants ? program.Phrases.At(variant, Slot).Str() : "";
}

bool HCDESCRIPS::Pick(int slot, int variant) {
  if (slot < 1 || slot > kPhraseSlotsUsed) return RefusedWith("There are plays 1 to 253!");
  if (variant < 1 || variant > kPhraseVariants) return RefusedWith("A play has phrases 1 to 20!");
  Slot = slot;
  Variant = variant;
  PhraseText = Shown(variant);
  return true;
}

std::vector<HCDESCRIPS::Found> HCDESCRIPS::SearchCommand(std::string_view text) const {
  std::vector<Found> found;
  const std::string capitals = Upper(Trimmed(text));
  for (int slot = 1; slot <= kPhraseSlotsUsed && !capitals.empty(); ++slot) {
    if (Holds(RoleOfPhrase(slot), capitals)) found.push_back({slot, 0});
    for (int variant = 1; variant <= kPhraseVariants; ++variant) {
      if (Holds(program.Phrases.At(variant, slot).View(), capitals)) found.push_back({slot, variant});
    }
  }
  return found;
}

bool HCDESCRIPS::SaveCommand() {
  const std::string_view text = Trimmed(PhraseText);
  if (!FitsAPhrase(Slot, Variant, text)) return false;
  auto& cell = program.Phrases.At(Variant, Slot);
  const auto before = cell;
  cell = text.empty() ? DefaultPhrase(Slot) : text;
  if (SavePhraseTable()) return true;
  cell = before;
  return false;
}

bool HCDESCRIPS::SaveAsCommand(std::string_view name) {
  const std::string file = WithExtension(name);
  if (!IsPhraseFileName(file))
    return RefusedWith("\"" + file + "\" can't be the name of a play-by-play file!");
  std::error_code error;
  if (std::filesystem::exists(PhraseFile(file), error))
    return RefusedWith("\"" + file + "\" is there already!");
  const auto before = setup.PhraseFileName;
  setup.PhraseFileName = file;
  if (SavePhraseTable() && SaveSetup()) return true;
  std::filesystem::remove(PhraseFile(file), error);
  setup.PhraseFileName = before;
  return false;
}

bool HCDESCRIPS::ChangeFileCommand(std::string_view name) {
  const std::string file = WithExtension(name);
  if (!Known(file)) return false;
  return platform::dialogs().Ask("Change play-by-play file to " + file + "?") && Use(file);
}

bool HCDESCRIPS::DeleteFileCommand(std::string_view name) {
  const std::string file = WithExtension(name);
  if (SameText(file, kStandardPhraseFile)) {
    return RefusedWith("You may not delete the standard play-by-play file!");
  }
  if (!Known(file) || !platform::dialogs().Ask("Delete " + file + "?")) return false;
  std::error_code error;
  std::filesystem::remove(PhraseFile(file), error);
  if (error) return RefusedWith("The file can't be deleted: " + PhraseFile(file).string());
  return Use(std::string(kStandardPhraseFile));
}

bool HCDESCRIPS::UsageCommand(int usage) {
  if (usage < 0 || usage >= static_cast<int>(DescriptionUsageList.size())) {
    return RefusedWith("The usage is a number from 0 to 4!");
  }
  const auto before = setup.DescriptionUsage;
  setup.DescriptionUsage = static_cast<u8>(usage);
  if (SaveSetup()) return true;
  setup.DescriptionUsage = before;
  return false;
}

}  // namespace tipline
