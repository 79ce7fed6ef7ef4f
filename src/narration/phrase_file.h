#pragma once
// The phrase table's files: the one in use, others that the user made, and the master copy with the built-in
// texts. They lie in the program folder; without one there are the built-in texts alone.
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tipline {

inline constexpr int kPhraseSlotBytes = 40;
inline constexpr std::string_view kStandardPhraseFile = "HCpbp.HCp";
inline constexpr std::string_view kMasterPhraseFile = "HSKHpbp";

/// Fills `program.Phrases` from the file that `setup.PhraseFileName` names; a name that is none of a phrase
/// file gives way to the standard one. A master copy or a file in use that is missing is written anew. What
/// is blank, or lies behind the end of the file, and variant 1 of every slot has the built-in text.
void LoadPhraseTable();
/// Writes all 6000 variants to the file in use. False, after telling the user, when that failed.
bool SavePhraseTable();

/// At most 50 printable characters without a folder in them, the last three of them HCP in any case.
bool IsPhraseFileName(std::string_view name);
/// That file of the program folder, whatever the case of its letters.
std::filesystem::path PhraseFile(std::string_view name);
/// Names of the phrase files that are there, sorted.
std::vector<std::string> PhraseFiles();
/// All characters are printable ones of one byte.
bool IsPrintable(std::string_view text);

}  // namespace tipline
