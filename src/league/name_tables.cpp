#include "league/name_tables.h"

#include <limits>
#include <sstream>

#include "base/csv.h"
#include "base/numbers.h"
#include "base/record_file.h"
#include "league/player_record.h"
#include "league/program.h"
#include "league/team_record.h"
#include "platform/dialogs.h"
#include "platform/folders.h"

namespace tipline {
namespace {

using Fields = std::vector<std::string>;

/// The whole text as a number from `low` to `high`.
bool Number(std::string_view text, long low, long high, long& number) {
  const auto value = NumberIn<long>(text);
  if (value) number = *value;
  return value && number >= low && number <= high;
}

/// A table of the program folder as text, taken from what ships when the user has none.
std::string TableText(const char* name) {
  const auto file = program.ProgramFolder / name;
  bool there = false;
  std::string text = ReadWholeFile(file, &there);
  std::error_code error;
  if (there || std::filesystem::exists(file, error)) return text;
  text = ReadWholeFile(platform::ShippedData() / name, &there);
  if (there) (void)WriteWholeFile(file, text);  // it serves either way
  return text;
}

void TellBadLines(const char* file, const std::vector<int>& lines) {
  constexpr std::size_t kNamed = 10;
  if (lines.empty()) return;
  std::string text = std::string(file) + (lines.size() == 1 ? ": line " : ": lines ");
  for (std::size_t k = 0; k < std::min(lines.size(), kNamed); ++k) {
    text += (k ? ", " : "") + std::to_string(lines[k]);
  }
  if (lines.size() > kNamed) text += " and " + std::to_string(lines.size() - kNamed) + " more";
  platform::dialogs().Tell(text + " can't be used and " + (lines.size() == 1 ? "is" : "are") +
                           " passed over!");
}

/// Every line behind the `header` lines: `take` says whether it can be used.
template <class Take>
void ReadTable(const char* name, int header, std::size_t columns, Take take) {
  std::istringstream text(TableText(name));
  std::string line;
  std::vector<int> bad;
  for (int number = 1; std::getline(text, line); ++number) {
    if (number <= header || Trimmed(line).empty() || line == "\r") continue;
    Fields fields = CsvFields(line);
    for (auto& field : fields) field = Trimmed(field);
    if (fields.size() != columns || fields[0].empty() || !take(fields)) bad.push_back(number);
  }
  TellBadLines(name, bad);
}

std::string Key(const Fields& fields) { return Upper(fields[0] + " " + fields[1]); }

bool TakeCity(const Fields& f, NameTables& names) {
  CityRow row{f[1], f[2], f[3], f[4], f[5], -1, f[7] == "1"};
  long zone = -1;
  if (!f[6].empty() && !Number(f[6], 0, 6, zone)) return false;
  if (f[1].size() > 3 || (f[7] != "" && f[7] != "0" && f[7] != "1")) return false;
  row.TimeZone = static_cast<int>(zone);
  names.City[Upper(f[0])] = row;
  return true;
}

bool TakeShot(const Fields& f, NameTables& names) {
  long shot = 0;
  if (!Number(f[2], 0, 255, shot)) return false;
  names.Shot[Key(f)] = {static_cast<int>(shot), f[3]};
  return true;
}

bool TakeDebut(const Fields& f, NameTables& names) {
  long year = 0;
  if (!Number(f[2], 1921, 2100, year)) return false;
  names.Debut[Key(f)] = {static_cast<int>(year), f[3]};
  return true;
}

bool TakeCorrection(const Fields& f, NameTables& names) {
  long year = 0;
  PlayerRecord anybody;
  if ((!f[2].empty() && !Number(f[2], 0, 2100, year)) || !SetField(anybody, f[4], f[5])) return false;
  names.Corrections[Key(f)].push_back({static_cast<int>(year), f[3], f[4], f[5]});
  return true;
}

void ReadPlayerTables(NameTables& names) {
  ReadTable("VTX-First-Names.csv", 1, 2, [&](const Fields& f) {
    names.FirstNamePlayer.insert(Key(f));
    return true;
  });
  ReadTable("VTX-Uniforms.csv", 1, 3, [&](const Fields& f) {
    if (f[2].size() > 2) return false;
    names.Uniform[Key(f)] = f[2];
    return true;
  });
  ReadTable("VTX-Nicknames.csv", 1, 3, [&](const Fields& f) {
    if (f[2].size() > 30) return false;
    names.Nickname[Key(f)] = f[2];
    return true;
  });
  ReadTable("VTX-Shots.csv", 1, 4, [&](const Fields& f) { return TakeShot(f, names); });
  ReadTable("VTX-Debuts.csv", 1, 4, [&](const Fields& f) { return TakeDebut(f, names); });
  ReadTable("VTX-Corrections.csv", 1, 6, [&](const Fields& f) { return TakeCorrection(f, names); });
}

void ReadTables(NameTables& names) {
  ReadTable("VTX-Cities.csv", 1, 8, [&](const Fields& f) { return TakeCity(f, names); });
  ReadPlayerTables(names);
  ReadTable("VTX-Surnames.csv", 1, 1, [&](const Fields& f) {
    names.Surname.insert(Upper(f[0]));
    return true;
  });
  ReadTable("VTX-Basketball-Colleges.txt", 0, 4, [&](const Fields& f) {
    names.College[f[0]] = f[1];
    return true;
  });
}

/// Sets one described member of `record` called `field`.
template <class Record>
bool SetMember(Record& record, std::string_view field, std::string_view value) {
  bool set = false;
  Describe(record, [&](int, const char* name, auto& member, const char*) {
    using Member = std::remove_cvref_t<decltype(member)>;
    if (field != name) return;
    if constexpr (kIsText<Member>) {
      set = value.size() <= static_cast<std::size_t>(Member::kLength);
      if (set) member = value;
    } else if constexpr (std::is_integral_v<Member>) {
      long number = 0;
      set = Number(value, std::numeric_limits<Member>::min(), std::numeric_limits<Member>::max(), number);
      if (set) member = static_cast<Member>(number);
    }
  });
  return set;
}

}  // namespace

const NameTables& Names() {
  if (program.Names.From != program.ProgramFolder) {
    program.Names = {};
    program.Names.From = program.ProgramFolder;
    ReadTables(program.Names);
  }
  return program.Names;
}

std::string NameKey(const PlayerRecord& player) {
  return Upper(player.FirstName.Str() + " " + player.LastName.Str());
}

const CityRow* FindCity(const TeamRecord& team) {
  const auto& cities = Names().City;
  const auto found = cities.find(Upper(team.City.View()));
  return found == cities.end() ? nullptr : &found->second;
}

bool SetField(PlayerRecord& player, std::string_view field, std::string_view value) {
  constexpr std::string_view kReal = "Real.";
  if (field.starts_with(kReal)) return SetMember(player.Stats[1], field.substr(kReal.size()), value);
  if (field == "RecNo" || field == "TeamNo") return false;
  return SetMember(player, field, value);
}

}  // namespace tipline
