#include "league/dump.h"

#include <cstdio>
#include <iomanip>
#include <memory>
#include <utility>

#include "base/record_file.h"
#include "league/box_record.h"
#include "league/daily.h"
#include "league/files.h"
#include "league/film_record.h"
#include "league/leader_tables.h"
#include "league/phrase_table.h"
#include "league/program.h"
#include "league/schedule.h"
#include "league/setup.h"
#include "league/ticker_record.h"
#include "platform/folders.h"

namespace tipline {
namespace {

/// A file of records, by the record type that describes it.
struct FileFormat {
  std::string_view name;
  std::filesystem::path (*path)();
  int slot;
  std::string_view records;
  void (*dump)(const RecordFile& file, int n, std::ostream& out);
  void (*document)(std::string& text);
};

// Values ------------------------------------------------------------------------------------------------

/// In quotes, without the blanks and zeros at its end; a byte that can't be printed as \xNN.
std::string Quoted(std::string_view text) {
  while (!text.empty() && (text.back() == ' ' || text.back() == '\0')) text.remove_suffix(1);
  std::string quoted = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 32 || byte > 126 || c == '"' || c == '\\') {
      char escaped[8];
      std::snprintf(escaped, sizeof escaped, "\\x%02X", byte);
      quoted += escaped;
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

template <class T>
std::string Value(const T& value) {
  if constexpr (kIsText<T>) {
    return Quoted({value.bytes.data(), value.bytes.size()});
  } else if constexpr (std::is_floating_point_v<T>) {
    char text[40];
    std::snprintf(text, sizeof text, "%.*g", std::is_same_v<T, f32> ? 7 : 15, static_cast<double>(value));
    return text;
  } else {
    return std::to_string(value);
  }
}

// Dump --------------------------------------------------------------------------------------------------

constexpr std::size_t kLineWidth = 100;

class Dump {
 public:
  Dump(std::ostream& out, int start, int indent) : out_(out), start_(start), indent_(indent) {}

  template <class T>
  void operator()(int offset, const char* name, const T& member, const char* meaning) const {
    if constexpr (TableShape<T>::kDepth > 0) {
      Line(offset, name, "", meaning);
      Cells(offset, member, "");
    } else if constexpr (Described<const T>) {
      Line(offset, name, "", meaning);
      Describe(member, Dump(out_, start_ + offset, indent_ + 2));
    } else {
      Line(offset, name, Value(member), meaning);
    }
  }

 private:
  void Line(int offset, std::string_view name, const std::string& value, std::string_view meaning) const {
    out_ << std::setw(6) << start_ + offset << "  " << std::string(static_cast<std::size_t>(indent_), ' ')
         << std::left << std::setw(24) << name << ' ' << std::setw(12) << value << std::right << ' '
         << meaning << '\n';
  }

  /// The cells of a table, `stride` bytes from one to the next; `index` names those of the outer tables.
  template <class T, int First, int Last>
  void Cells(int offset, const Table<T, First, Last>& table, const std::string& index,
             int stride = DiskSize<typename TableShape<T>::Cell>()) const {
    if constexpr (TableShape<T>::kDepth == 0 && !Described<const T>) {
      Row(table, index);
    } else {
      for (int i = First; i <= Last; ++i, offset += stride) {
        const std::string here = index + std::to_string(i);
        if constexpr (TableShape<T>::kDepth > 0) {
          Cells(offset, table[i], here + ", ", stride * (Last - First + 1));
        } else {
          Line(offset, "[" + here + "]", "", "");
          Describe(table[i], Dump(out_, start_ + offset, indent_ + 2));
        }
      }
    }
  }

  /// Cells in lines of one width, each line with the index that it begins with.
  template <class T, int First, int Last>
  void Row(const Table<T, First, Last>& table, const std::string& index) const {
    const std::string margin(static_cast<std::size_t>(indent_ + 10), ' ');
    std::string line;
    for (int i = First; i <= Last; ++i) {
      const std::string value = Value(table[i]);
      if (!line.empty() && line.size() + 1 + value.size() > kLineWidth) {
        out_ << line << '\n';
        line.clear();
      }
      if (line.empty()) line = margin + "[" + index + std::to_string(i) + "]";
      line += ' ' + value;
    }
    out_ << line << '\n';
  }

  std::ostream& out_;
  int start_, indent_;
};

template <class Record>
void DumpSlot(const RecordFile& file, int n, std::ostream& out) {
  const auto record = std::make_unique<Record>();
  file.Read(n, *record);
  Describe(std::as_const(*record), Dump(out, 0, 0));
}

// Document ----------------------------------------------------------------------------------------------

template <class T>
inline constexpr std::string_view kTypeName = "";
template <>
inline constexpr std::string_view kTypeName<u8> = "u8";
template <>
inline constexpr std::string_view kTypeName<i16> = "i16";
template <>
inline constexpr std::string_view kTypeName<i32> = "i32";
template <>
inline constexpr std::string_view kTypeName<f32> = "f32";
template <>
inline constexpr std::string_view kTypeName<f64> = "f64";
template <>
inline constexpr std::string_view kTypeName<StatLine> = "StatLine";
template <>
inline constexpr std::string_view kTypeName<RealTotalsLine> = "RealTotalsLine";
template <>
inline constexpr std::string_view kTypeName<SeriesLine> = "SeriesLine";
template <>
inline constexpr std::string_view kTypeName<BoxResume> = "BoxResume";
template <>
inline constexpr std::string_view kTypeName<BoxLetter> = "BoxLetter";
template <>
inline constexpr std::string_view kTypeName<BoxScoreRow> = "BoxScoreRow";

template <class T>
std::string Bounds() {
  std::string bounds = std::to_string(T::kFirst) + ".." + std::to_string(T::kLast);
  if constexpr (TableShape<typename T::value_type>::kDepth > 0) {
    bounds += ", " + Bounds<typename T::value_type>();
  }
  return bounds;
}

template <class T>
std::string TypeName() {
  if constexpr (TableShape<T>::kDepth > 0) {
    return TypeName<typename TableShape<T>::Cell>() + '[' + Bounds<T>() + ']';
  } else if constexpr (kIsText<T>) {
    return "text(" + std::to_string(T::kLength) + ')';
  } else {
    static_assert(!kTypeName<T>.empty());
    return std::string(kTypeName<T>);
  }
}

/// Characters that Markdown would take for its own.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '<' || c == '|' || c == '\\' || c == '*') escaped += '\\';
    escaped += c;
  }
  return escaped;
}

template <class Record>
void DocumentRecord(std::string& text) {
  text += "| Offset | Type | Field | Meaning |\n|---:|---|---|---|\n";
  const auto record = std::make_unique<Record>();
  Describe(std::as_const(*record),
           [&text](int offset, const char* name, const auto& member, const char* meaning) {
             using Member = std::remove_cvref_t<decltype(member)>;
             text += "| " + std::to_string(offset) + " | " + TypeName<Member>() + " | `" + name + "` | " +
                     Escaped(meaning) + " |\n";
           });
  text += '\n';
}

template <class Record>
void DocumentFile(std::string& text) {
  text += "Record of " + std::to_string(Record::kRecordSize) + " bytes.\n\n";
  DocumentRecord<Record>(text);
}

template <class Line>
void DocumentLine(std::string& text) {
  text +=
      "## " + TypeName<Line>() + "\n\nPart of a record, " + std::to_string(Line::kRecordSize) + " bytes.\n\n";
  DocumentRecord<Line>(text);
}

constexpr std::string_view kPreface =
    R"(# File formats

Printed from the descriptions that read and write the files; `tests/league/dump_test.cpp` keeps it so.

A file is an array of slots of one length: record n, from 1, begins at byte (n - 1) x slot length. A record may be
shorter than its slot; the bytes behind it stay as they are. What lies past the end of a file reads as zeros.

Numbers are little-endian: `u8` unsigned byte, `i16` and `i32` signed, `f32` and `f64` floating point. Fields follow
one another without gaps. `text(n)` is n characters of one byte, left-justified, padded with blanks. `X[a..b]` is a
table with the indexes a to b; with several indexes the first one runs fastest.

A marker is a byte beside a field that older layouts did not have: it holds its value once the field has been set.

)";

// Files -------------------------------------------------------------------------------------------------

template <class Record>
constexpr FileFormat Format(std::string_view name, std::filesystem::path (*path)(), int slot,
                            std::string_view records) {
  return {name, path, slot, records, DumpSlot<Record>, DocumentFile<Record>};
}

constexpr std::string_view kAnyFilm = "*.flm", kPhrases = "HCpbp.HCp", kAnyBox = "BOX<n>.BOX",
                           kAnyPlayLog = "BOX<n>.PLY";

std::filesystem::path RecordsFile() { return LeagueFile("HCRECORDS"); }
std::filesystem::path LeadersFile() { return LeagueFile("HcLeaders"); }
std::filesystem::path Top40File() { return LeagueFile("HcTop40"); }
std::filesystem::path DefaultSchedule() { return LeagueFile(kDefaultScheduleFile); }
std::filesystem::path ScoresFile() { return LeagueFile("SCORES"); }
std::filesystem::path TickerFile() { return LeagueFile("HcTicker"); }
std::filesystem::path AnyFilm() { return LeagueFile(kAnyFilm); }
std::filesystem::path AnyBox() { return LeagueFile(kAnyBox); }
std::filesystem::path AnyPlayLog() { return LeagueFile(kAnyPlayLog); }
std::filesystem::path PhrasesFile() { return program.ProgramFolder / kPhrases; }

const FileFormat kFormats[] = {
    Format<TeamRecord>("HCTEAMS", TeamsFile, kTeamSlotBytes, "720 records; record number = team number"),
    Format<PlayerRecord>("HCPLAYER", PlayersFile, kPlayerSlotBytes,
                         "as many records as it holds; record number = RecNo"),
    Format<CoachRecord>("HCgameplan", CoachesFile, kCoachSlotBytes,
                        "720 records; record number = team number"),
    Format<RulesRecord>("HCRULES", RulesFile, kRulesSlotBytes,
                        "2 records: 1 the rules, below; 2 the pools of the tournament"),
    Format<ScheduleRecord>(kDefaultScheduleFile, DefaultSchedule, kScheduleSlotBytes,
                           "as many records as there are games; the rules name the file"),
    Format<ScheduleRecord>("SCORES", ScoresFile, kScheduleSlotBytes,
                           "a record for each game played, in order"),
    Format<TickerRecord>("HcTicker", TickerFile, kTickerSlotBytes,
                         "entries of the score ticker in the order of the games"),
    Format<DailyRecord>("HcDaily", DailyFile, kDailySlotBytes, "record number = RecNo of the player"),
    Format<RecordRow>("HCRECORDS", RecordsFile, kRecordSlotBytes,
                      "800 records: 1 to 400 the season's records by category, teams from 201 on; 401 to 800 "
                      "those of a game"),
    Format<LeaderTable>("HcLeaders", LeadersFile, kLeaderSlotBytes, "1 record"),
    Format<Top40Table>("HcTop40", Top40File, kLeaderSlotBytes, "1 record"),
    Format<EraRecord>("Basketball-Era.dat", EraFile, kEraSlotBytes,
                      "305 records: 1 to 105 the pro seasons 1946 to 2050, 201 to 305 the college seasons"),
    Format<SetupRecord>("HcSetup2023.dat", SetupFile, kSetupSlotBytes, "1 record: the user's preferences"),
    Format<FilmFrame>(kAnyFilm, AnyFilm, kFilmSlotBytes,
                      "a frame for each play that was told; without its version in record 1 a film is an old "
                      "one"),
    Format<PhraseRecord>(kPhrases, PhrasesFile, kPhraseLength,
                         "6000 records, 20 to each of 300 slots; record number = (slot - 1) x 20 + variant"),
    Format<BoxRecord>(kAnyBox, AnyBox, kBoxBytes, "1 record: game n of SCORES; TempBox has the same form"),
    Format<BoxPlayRow>(kAnyPlayLog, AnyPlayLog, BoxPlayRow::kRecordSize,
                       "a row for each play of the game in the box of that number"),
};
// Films of the first kind have the name of the others.
const FileFormat kOldFilm =
    Format<OldFilmFrame>("*.flm, old", AnyFilm, kOldFilmSlotBytes, "a frame for each play that was told");

/// A file of many names, by their end.
bool NamedLike(std::string_view format, const std::string& capitals) {
  return (format == kDefaultScheduleFile && capitals.ends_with(".SKD")) ||
         (format == kAnyFilm && capitals.ends_with(".FLM")) ||
         (format == kAnyBox && (capitals.ends_with(".BOX") || capitals == "TEMPBOX")) ||
         (format == kAnyPlayLog && capitals.ends_with(".PLY")) ||
         (format == kPhrases && (capitals.ends_with("HCP") || capitals == "HSKHPBP"));
}

const FileFormat* FormatOf(std::string_view name) {
  for (const auto& format : kFormats) {
    if (SameText(format.name, name)) return &format;
    if (NamedLike(format.name, Upper(name))) return &format;
  }
  return nullptr;
}

/// A bare name, where files of its format lie; of some there may be several.
std::filesystem::path PathOf(const FileFormat& format, std::string_view name) {
  if (SameText(name, format.name)) return format.path();
  if (format.name == kPhrases) return platform::RealPath(program.ProgramFolder, name);
  return LeagueFile(name);
}

bool IsOldFilm(const std::filesystem::path& path) {
  FilmFrame first;
  RecordFile(path, kFilmSlotBytes).Read(1, first);
  return first.FilmVersion != kFilmVersion;
}

void DocumentFormat(const FileFormat& format, std::string& text) {
  text += "## " + Escaped(format.name) + "\n\nSlots of " + std::to_string(format.slot) + " bytes, " +
          std::string(format.records) + ". ";
  format.document(text);
}

}  // namespace

std::string FormatNames() {
  std::string names;
  for (const auto& format : kFormats) {
    if (!names.empty()) names += &format == std::end(kFormats) - 1 ? " and " : ", ";
    names += format.name;
  }
  return names;
}

bool DumpRecord(std::string_view fileName, int n, std::ostream& out) {
  const std::filesystem::path given(fileName);
  const FileFormat* format = FormatOf(given.filename().string());
  const bool hasFormat = format && n >= 1 && (n == 1 || format->name != "HCRULES");
  if (!hasFormat) return false;
  const auto path = given.has_parent_path() ? given : PathOf(*format, fileName);
  if (format->name == kAnyFilm && IsOldFilm(path)) format = &kOldFilm;
  const RecordFile file(path, format->slot);
  if (file.Bytes() <= (n - 1LL) * format->slot) return false;
  format->dump(file, n, out);
  return true;
}

std::string FormatDocument() {
  std::string text(kPreface);
  for (const auto& format : kFormats) DocumentFormat(format, text);
  DocumentFormat(kOldFilm, text);
  DocumentLine<StatLine>(text);
  DocumentLine<RealTotalsLine>(text);
  DocumentLine<SeriesLine>(text);
  DocumentLine<BoxResume>(text);
  DocumentLine<BoxLetter>(text);
  DocumentLine<BoxScoreRow>(text);
  while (text.ends_with("\n\n")) text.pop_back();
  return text;
}

}  // namespace tipline
