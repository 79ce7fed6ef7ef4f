#include "frontoffice/fiction_files.h"

#include "base/csv.h"
#include "base/record_file.h"
#include "base/text.h"
#include "league/program.h"
#include "platform/folders.h"

namespace tipline {
namespace {

constexpr std::size_t kMostColleges = 10000;

std::vector<std::string> ShippedLines(const char* name) {
  return Lines(ReadWholeFile(platform::ShippedData() / name));
}

std::vector<std::string> ShippedCities() {
  std::vector<std::string> cities;
  const auto lines = ShippedLines("us_cities.csv");
  for (std::size_t i = 1; i < lines.size(); ++i) cities.push_back(CsvFields(lines[i]).front());
  return cities;
}

/// The items of a text: parted by commas and line ends, in quotes or not.
std::vector<std::string> Items(const std::vector<std::string>& lines, std::size_t most) {
  std::vector<std::string> items;
  for (const auto& line : lines) {
    for (const auto& field : CsvFields(line)) {
      const auto item = Trimmed(field);
      if (!item.empty() && items.size() < most) items.emplace_back(item);
    }
  }
  return items;
}

/// The lines of a file in the program folder, which is made of `shipped` when it is missing.
std::vector<std::string> ReadOrMake(const char* name, const std::vector<std::string>& shipped) {
  const auto path = program.ProgramFolder / name;
  std::error_code error;
  if (std::filesystem::exists(path, error)) return Lines(ReadWholeFile(path));
  std::filesystem::create_directories(program.ProgramFolder, error);
  std::string text;
  for (const auto& line : shipped) text += line + "\n";
  [[maybe_unused]] const bool written = WriteWholeFile(path, text);  // the names serve either way
  return shipped;
}

}  // namespace

FictionFiles ShippedFictionFiles() {
  return {ShippedCities(), ShippedLines("colleges.txt"), ShippedLines("last_names.txt"),
          ShippedLines("first_names.txt"), ShippedLines("female_first_names.txt")};
}

FictionFiles LoadFictionFiles() {
  FictionFiles files = ShippedFictionFiles();
  files.City = Items(ReadOrMake("VTX-Fiction-City.txt", files.City), kMostColleges);
  files.College = Items(ReadOrMake("VTX-Fiction-College.txt", files.College), kMostColleges);
  files.Last = ReadOrMake("VTX-Fiction-Last.txt", files.Last);
  files.First = ReadOrMake("VTX-Fiction-First.txt", files.First);
  return files;
}

}  // namespace tipline
