#pragma once
// How the voice says what is written: a table of names that the user keeps, and what holds for all texts.
#include <filesystem>
#include <string>
#include <string_view>

namespace tipline {

std::filesystem::path TranslationFile();  ///< VTX-HC-Translate2023.csv of the program folder

/// Reads `program.Translate`: a line per name, "NAME,text". A missing or cut file, and one beyond all
/// measure, leaves it empty; a line of another form is passed over.
void LoadTranslations();
/// Rewrites the file. False, after telling the user, when that failed.
bool SaveTranslations();

/// The text word by word as it is said: by the table, ordinals as words, without suffixes of names and what
/// stands in brackets. Loads the table at its first use.
std::string Translated(std::string_view text);

/// The editor of the table.
struct HcTranslationEditor {
  std::string NameText;         ///< as it is written
  std::string TranslationText;  ///< as it is to be said

  void NameSpeechCommand() const;       ///< reads the name aloud, by the table
  void TestTranslationCommand() const;  ///< reads the translation as it stands
  /// The name is said so from now on. A beep, and nothing else, when a field is empty.
  bool SaveTranslationCommand();
};

}  // namespace tipline
