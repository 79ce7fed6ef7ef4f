#pragma once
// The screen on which the user writes phrases of his own.
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tipline {

/// Edits `program.Phrases` and the phrase files; `setup` notes the file in use and how often its rarer
/// variants come. An operation that gives false has told why, or was answered no, and has changed nothing.
struct HCDESCRIPS {
  /// Chance of each single variant: of the first, of 2 to 5, of 6 to 10, of 11 to 20.
  static constexpr std::array<std::string_view, 5> DescriptionUsageList{
      "50% / 10% / 1% / .5%", "35% / 10% / 3% / 1%", "20% / 10% / 4% / 2%", "15% / 5% / 5% / 4%",
      "5% / 5% / 5% / 5%"};
  struct Found {
    int slot, variant;  ///< variant 0: its role
  };

  HCDESCRIPS();  ///< shows the file in use, read anew

  int Slot = 1, Variant = 2;  ///< picked in the lists, 1 to 253 and 1 to 20
  std::string PhraseText;     ///< in the edit box

  std::string FileLabel() const;         ///< "Current Play-By-Play File: " and its name
  std::string Shown(int variant) const;  ///< a variant of the slot
  /// Picks a variant of a slot into the edit box.
  bool Pick(int slot, int variant);
  /// All roles and variants with this text in them, small letters or large; none for an empty text.
  std::vector<Found> SearchCommand(std::string_view text) const;
  /// The edit box becomes the variant, and the file is written. At most 40 printable characters; an empty box
  /// brings the built-in text back. Variant 1 always is the built-in text and refuses another.
  bool SaveCommand();
  /// The table goes to a new file of that name, with ".HCp" behind it, which is then in use.
  bool SaveAsCommand(std::string_view name);
  bool ChangeFileCommand(std::string_view name);  ///< asks first
  /// Asks first; the standard file is then in use.
  bool DeleteFileCommand(std::string_view name);
  bool UsageCommand(int usage);  ///< 0 to 4, an index of the list
};

}  // namespace tipline
