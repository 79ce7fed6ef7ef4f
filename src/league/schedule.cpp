#include "league/schedule.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include "base/calendar.h"
#include "base/numbers.h"
#include "base/record_file.h"
#include "league/files.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

constexpr int kEmptyFile = 50;  // a file with fewer bytes holds no game

long long SizeOf(const std::filesystem::path& file) { return RecordFile(file, kScheduleSlotBytes).Bytes(); }

/// An empty default schedule takes what the spare copy holds.
bool Heal(const std::filesystem::path& file) {
  if (Upper(file.filename().string()) != "SKED.SKD" || SizeOf(file) >= kEmptyFile) return true;
  if (SizeOf(SpareSchedule()) <= kEmptyFile) return true;
  return Written(WriteWholeFile(file, ReadWholeFile(SpareSchedule())), file);
}

/// The file is there and can be read; a missing one is made.
bool MakeReady(const std::filesystem::path& file) {
  if (file.empty()) return false;
  std::error_code error;
  if (!std::filesystem::exists(file, error) && !Written(WriteWholeFile(file, ""), file)) return false;
  if (!std::filesystem::is_regular_file(file, error) ||
      !RecordFile(file, kScheduleSlotBytes).Fault().empty()) {
    return WasRead(false, file);
  }
  return Heal(file);
}

bool ReadRows(const std::filesystem::path& file) {
  const double rows = static_cast<double>(SizeOf(file)) / kScheduleSlotBytes + 0.75;
  if (rows >= kMostScheduleRows + 1) {
    platform::dialogs().Tell(file.filename().string() + " holds more than " +
                             std::to_string(kMostScheduleRows) + " games, those behind are left out!");
  }
  const int count = std::min(Int(rows), kMostScheduleRows);
  league.ScheduleGame.resize(static_cast<std::size_t>(count) + 1);
  const bool read = RecordFile(file, kScheduleSlotBytes).ReadAll(count, [](int n, const u8* bytes) {
    ReadRecord(bytes, league.ScheduleGame[static_cast<std::size_t>(n)]);
  });
  if (!read) league.ScheduleGame.resize(1);
  return WasRead(read, file);
}

/// Number of a game type; what is no type is a game of the regular season.
int NumberOf(char letter) {
  for (int number = 2; number <= 7; ++number) {
    if (kGameTypes[number - 1].letter == letter) return number;
  }
  return 1;
}

std::span<ScheduleRecord> Rows() { return std::span(league.ScheduleGame).subspan(1); }

/// All rows, in the season of the schedule, over file and spare copy. A spare that can't be written is told
/// of, and the schedule is saved all the same.
bool WriteRows(std::vector<ScheduleRecord> rows) {
  for (ScheduleRecord& row : rows) row.Year = static_cast<i16>(league.ScheduleYear);
  const auto file = ScheduleFile();
  if (!Written(WriteSchedule(file, rows), file)) return false;
  Written(WriteSchedule(SpareSchedule(), rows), SpareSchedule());
  return true;
}

/// The slots of these rows hold the same games.
bool HoldsRows(const std::filesystem::path& path, std::span<const int> rows) {
  const RecordFile file(path, kScheduleSlotBytes);
  if (file.Bytes() != static_cast<long long>(league.GameCount()) * kScheduleSlotBytes) return false;
  return std::all_of(rows.begin(), rows.end(), [&file](int n) {
    const ScheduleRecord& row = *league.Row(n);
    ScheduleRecord there;
    return file.Read(n, there) && there.Team == row.Team && IsOn(there, row.Month, row.Day);
  });
}

bool WriteTheseRows(const std::filesystem::path& path, std::span<const int> rows) {
  RecordFile::Slots slots;
  for (const int n : rows) {
    ScheduleRecord row = *league.Row(n);
    row.Year = static_cast<i16>(league.ScheduleYear);
    slots.emplace_back(n, RecordBytes(row));
  }
  return Written(RecordFile(path, kScheduleSlotBytes).WriteSlots(slots), path);
}

/// Place of a calendar month in the year of basketball, which begins in October.
int PlaceInYear(int month) { return month >= 10 ? month - 9 : month + 3; }

}  // namespace

std::string_view GameTypeWords(char type) {
  for (const auto& known : kGameTypes) {
    if (known.letter == type) return known.words;
  }
  return kGameTypes[0].words;
}

std::filesystem::path ScheduleFile() {
  const std::string name = league.rules.ScheduleFile.Str();
  const bool plain = name.find_first_of(std::string("/\\\0", 3)) == std::string::npos;
  const bool schedule = name.size() > 4 && Upper(name).ends_with(".SKD");
  return LeagueFile(plain && schedule ? name : kDefaultScheduleFile);
}

std::filesystem::path SpareSchedule() { return LeagueFile("SKED"); }

void TakeSeasonOfLeague() {
  const int year = league.team[1].Year;
  if (year >= 1900 && year <= 2100) league.ScheduleYear = year;
}

bool LoadSchedule() {
  league.ScheduleGame.assign(1, {});
  league.ScheduleYear = 2000;
  league.HasAugustGames = league.HasSeptemberGames = false;
  const auto file = ScheduleFile();
  if (!MakeReady(file) || !ReadRows(file)) return false;
  if (league.GameCount() > 0) {
    const int year = league.ScheduleGame[1].Year;
    if (year >= 1900 && year <= 2100) league.ScheduleYear = year;
  }
  const TournamentPools pools = ReadPools();
  for (ScheduleRecord& row : Rows()) {
    TakeLegacyTeams(row);
    league.HasAugustGames = league.HasAugustGames || row.Month == 8;
    league.HasSeptemberGames = league.HasSeptemberGames || row.Month == 9;
    TakeDateType(row, pools);
  }
  return true;
}

bool SaveSchedule() {
  league.team[kFreeAgent].TeamActive = 1;
  league.team[kFreeAgent].City = "TBD";
  std::vector<ScheduleRecord> kept;
  for (const ScheduleRecord& row : Rows()) {
    if (!IsScheduleTeam(row.Team[1]) || !IsScheduleTeam(row.Team[2])) continue;
    if (row.Status != 'D') kept.push_back(row);
  }
  return WriteRows(std::move(kept));
}

bool SaveScheduleRows(std::span<const int> rows) {
  if (std::any_of(rows.begin(), rows.end(), [](int n) { return !league.Row(n); })) return false;
  if (!HoldsRows(ScheduleFile(), rows) || !HoldsRows(SpareSchedule(), rows)) return SaveSchedule();
  if (!WriteTheseRows(ScheduleFile(), rows)) return false;
  WriteTheseRows(SpareSchedule(), rows);
  return true;
}

bool UnloadSortedSchedule() {
  std::vector<ScheduleRecord> sorted;
  for (const ScheduleRecord& row : Rows()) {
    const bool dated = row.Month >= 1 && row.Month <= 12 && row.Day >= 1 && row.Day <= 31;
    if (dated && row.Team[1] != 0 && row.Team[2] != 0 && row.Status != 'D') sorted.push_back(row);
  }
  std::stable_sort(sorted.begin(), sorted.end(), [](const ScheduleRecord& a, const ScheduleRecord& b) {
    return std::pair(PlaceInYear(a.Month), a.Day) < std::pair(PlaceInYear(b.Month), b.Day);
  });
  return WriteRows(std::move(sorted));
}

bool WriteSchedule(const std::filesystem::path& file, std::span<const ScheduleRecord> rows) {
  std::string bytes(rows.size() * kScheduleSlotBytes, '\0');
  std::size_t at = 0;
  for (const ScheduleRecord& row : rows) {
    WriteRecord(row, reinterpret_cast<u8*>(bytes.data()) + at);
    at += kScheduleSlotBytes;
  }
  return WriteWholeFile(file, bytes);
}

void TakeLegacyTeams(ScheduleRecord& row) {
  for (int side = 1; side <= 2; ++side) {
    if (row.LegacyTeam[side] != 0) row.Team[side] = row.LegacyTeam[side];
    row.LegacyTeam[side] = 0;
  }
}

ScheduleRecord NewScheduleGame(int visitor, int home, int month, int day) {
  ScheduleRecord row;
  Describe(row, [](int, const char*, auto& member, const char*) {
    using Member = std::remove_cvref_t<decltype(member)>;
    if constexpr (kIsText<Member>) member = "";
    if constexpr (TableShape<Member>::kDepth == 1) {
      if constexpr (kIsText<typename TableShape<Member>::Cell>) member.Fill(std::string_view());
    }
  });
  row.Team = {{static_cast<i16>(visitor), static_cast<i16>(home)}};
  row.CoachKind.Fill(std::string_view("C"));
  row.Month = static_cast<u8>(month);
  row.Day = static_cast<u8>(day);
  row.Status = "U";
  row.GameType = "R";
  return row;
}

TournamentPools ReadPools() {
  TournamentPools pools;
  if (league.tournamentPools.size() >= TournamentPools::kRecordSize) {
    ReadRecord(league.tournamentPools.data(), pools);
  }
  if (pools.PoolMark == TournamentPools::kSetMark) return pools;
  pools = {};
  for (auto& days : pools.DateType) days.Fill(std::string_view("R"));
  return pools;
}

char DateTypeOf(const TournamentPools& pools, int month, int day) {
  if (month < 1 || month > 12 || day < 1 || day > 31) return 'R';
  const char letter = pools.DateType[day][month].bytes[0];
  return std::string_view("PQLNSC").find(letter) == std::string_view::npos ? 'R' : letter;
}

void TakeDateType(ScheduleRecord& row, const TournamentPools& pools) {
  const char type = DateTypeOf(pools, row.Month, row.Day);
  row.GameType = std::string_view(&type, 1);
  if (type == 'C') row.NeutralSite = 1;
}

Table<GameTypeCount, 1, 7> CountGameTypes() {
  Table<GameTypeCount, 1, 7> counts;
  const TournamentPools pools = ReadPools();
  for (int month = 1; month <= 12; ++month) {
    for (int day = 1; day <= ScheduleDays(month); ++day)
      ++counts[NumberOf(DateTypeOf(pools, month, day))].dates;
  }
  for (const ScheduleRecord& row : Rows()) {
    GameTypeCount& count = counts[NumberOf(row.GameType.bytes[0])];
    if (row.Status == 'P' || row.Status == 'N' || row.Status == 'U') ++count.games;
    if (row.Status == 'P') ++count.played;
  }
  return counts;
}

std::string ScheduleTeamName(int team) {
  if (team == kFreeAgent) return "TBD";
  return team >= 1 && team <= kTeams ? league.team[team].City.Str() : "";
}

bool IsScheduleTeam(int team) {
  if (team == kFreeAgent) return true;
  return team >= 1 && team <= kTeams && league.team[team].TeamActive == 1 && !league.team[team].City.Empty();
}

}  // namespace tipline
