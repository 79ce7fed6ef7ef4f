#include "narration/translations.h"

#include <algorithm>

#include "base/csv.h"
#include "base/record_file.h"
#include "league/files.h"
#include "league/program.h"
#include "narration/speech.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

constexpr std::uintmax_t kShortestFile = 10, kLongestFile = 4'000'000;  // bytes

struct FixedWord {
  std::string_view written, said;
};
constexpr FixedWord kFixedWords[] = {
    {"9", "nine"},     {"II", ""},       {"III", ""},      {"JR.", ""},        {"JR", ""},
    {"SR.", ""},       {"SR", ""},       {"1ST", "first"}, {"2ND", "second"},  {"3RD", "third"},
    {"4TH", "fourth"}, {"5TH", "fifth"}, {"6TH", "sixth"}, {"7TH", "seventh"}, {"8TH", "eight"},
    {"9TH", "ninth"},  {"10TH", "tenth"}};

std::string TranslatedWord(std::string_view word) {
  word = word.substr(0, word.find_first_of("!("));
  const std::string capitals = Upper(word);
  const auto& rows = program.Translate.rows;
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& r) { return r.name == capitals; });
  if (row != rows.end()) return row->text;
  for (const FixedWord& fixed : kFixedWords) {
    if (fixed.written == capitals) return std::string(fixed.said);
  }
  return std::string(word);
}

/// One line of the file can't hold a line end, or what would steer a terminal.
std::string OneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 32; }, ' ');
  return std::string(Trimmed(line));
}

}  // namespace

std::filesystem::path TranslationFile() {
  return program.ProgramFolder / ("VTX-HC-Translate" + std::to_string(kEditionYear) + ".csv");
}

void LoadTranslations() {
  TranslationTable& table = program.Translate;
  table = {};
  table.Loaded = true;
  if (program.ProgramFolder.empty()) return;
  std::error_code error;
  const auto bytes = std::filesystem::file_size(TranslationFile(), error);
  if (error || bytes < kShortestFile || bytes > kLongestFile) return;
  for (const std::string& line : Lines(ReadWholeFile(TranslationFile()))) {
    const auto fields = CsvFields(line);
    if (fields.size() != 2) continue;
    Translation row{Upper(OneLine(fields[0])), OneLine(fields[1])};
    if (!row.name.empty() && !row.text.empty()) table.rows.push_back(std::move(row));
  }
}

bool SaveTranslations() {
  std::string text;
  for (const Translation& row : program.Translate.rows) {
    text += CsvField(row.name) + "," + CsvField(row.text) + "\n";
  }
  if (!text.empty() && text.size() < kShortestFile) text.append(kShortestFile - text.size(), '\n');
  return Written(WriteWholeFile(TranslationFile(), text), TranslationFile());
}

std::string Translated(std::string_view text) {
  if (!program.Translate.Loaded) LoadTranslations();
  std::string said;
  for (text = Trimmed(text); !text.empty();) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string word = TranslatedWord(text.substr(0, end));
    if (!said.empty() && !word.empty()) said += ' ';
    said += word;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return said;
}

void HcTranslationEditor::NameSpeechCommand() const { SayAloud(Translated(NameText)); }

void HcTranslationEditor::TestTranslationCommand() const { SayAloud(TranslationText); }

bool HcTranslationEditor::SaveTranslationCommand() {
  const std::string name = OneLine(NameText), text = OneLine(TranslationText);
  if (name.empty() || text.empty()) {
    platform::dialogs().Beep();
    return false;
  }
  if (!program.Translate.Loaded) LoadTranslations();
  std::error_code error;
  if (const auto bytes = std::filesystem::file_size(TranslationFile(), error);
      !error && bytes > kLongestFile) {
    return platform::RefusedWith("The file of names is too long: " + TranslationFile().string());
  }
  auto& rows = program.Translate.rows;
  const auto before = rows;
  const std::string capitals = Upper(name);
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const auto& r) { return r.name == capitals; });
  if (row != rows.end()) {
    row->text = text;
  } else {
    rows.push_back({capitals, text});
  }
  if (!SaveTranslations()) {
    rows = before;
    return false;
  }
  platform::dialogs().Tell(name + " - " + text + " Saved!");
  return true;
}

}  // namespace tipline
