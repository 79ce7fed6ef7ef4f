#include "aftermath/record_book.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

#include "aftermath/box_sums.h"
#include "aftermath/record_names.h"
#include "aftermath/season_lines.h"
#include "base/record_file.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/program.h"

namespace tipline {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kRowBytes = RecordRow::kRecordSize;

RecordFile FileOf(const fs::path& folder) { return {folder / "HCRECORDS", kRecordSlotBytes}; }

fs::path FolderOf(const fs::path& folder) { return folder.empty() ? program.LeagueFolder : folder; }

void Empty(RecordBook& book) {
  book.Row.assign(kRecordSlots + 1, {});
  book.Stored.assign(kRowBytes * kRecordSlots, 0);
  book.Changed.assign(kRecordSlots + 1, false);
}

/// The book in use is that of the folder, as it was when it was last in use, or an empty one.
void Fetch(const fs::path& folder) {
  RecordBook& book = league.RecordBook;
  if (book.Folder != folder) std::swap(book, league.ShelvedBook);
  if (book.Folder != folder || book.Row.empty()) Empty(book);
  book.Folder = folder;
}

void TakeRow(RecordBook& book, int slot, const u8* bytes) {
  u8* stored = book.Stored.data() + kRowBytes * static_cast<std::size_t>(slot - 1);
  const auto at = static_cast<std::size_t>(slot);
  if (!book.Changed[at] && std::memcmp(stored, bytes, kRowBytes) == 0) return;
  std::memcpy(stored, bytes, kRowBytes);
  ReadRecord(bytes, book.Row[at]);
  book.Changed[at] = false;
}

/// What has to be written; with the last row the file has its whole length.
RecordFile::Slots ChangedSlots(const RecordBook& book, bool tooShort) {
  RecordFile::Slots slots;
  for (int slot = 1; slot <= kRecordSlots; ++slot) {
    const auto at = static_cast<std::size_t>(slot);
    if (book.Changed[at]) slots.emplace_back(slot, RecordBytes(book.Row[at]));
  }
  const bool last = book.Changed[kRecordSlots];
  if (!slots.empty() && tooShort && !last)
    slots.emplace_back(kRecordSlots, RecordBytes(book.Row[kRecordSlots]));
  return slots;
}

void NoteStored(RecordBook& book, const RecordFile::Slots& slots) {
  for (const auto& [slot, bytes] : slots) {
    const auto place = kRowBytes * static_cast<std::size_t>(slot - 1);
    std::copy(bytes.begin(), bytes.end(), book.Stored.begin() + static_cast<std::ptrdiff_t>(place));
    book.Changed[static_cast<std::size_t>(slot)] = false;
  }
}

// Entering ----------------------------------------------------------------------------------------------

void PutInPlace(RecordRow& row, int place, const RecordEntry& entry) {
  row.Value[place] = static_cast<i16>(std::min<int>(entry.Value, std::numeric_limits<i16>::max()));
  row.Holder[place] = entry.Holder;
  row.HolderTeam[place] = entry.HolderTeam;
  row.Opponent[place] = entry.Opponent;
  row.Date[place] = entry.Date;
}

void SwapPlaces(RecordRow& row, int a, int b) {
  std::swap(row.Value[a], row.Value[b]);
  std::swap(row.Holder[a], row.Holder[b]);
  std::swap(row.HolderTeam[a], row.HolderTeam[b]);
  std::swap(row.Opponent[a], row.Opponent[b]);
  std::swap(row.Date[a], row.Date[b]);
}

/// The place of the same man, or team, 0 when he has none.
int PlaceOf(const RecordRow& row, const RecordEntry& entry) {
  for (int place = 1; place <= kRecordPlaces; ++place) {
    if (row.Holder[place] == entry.Holder && row.HolderTeam[place] == entry.HolderTeam) return place;
  }
  return 0;
}

/// One man, or team, of the game just ended on his way through the book.
struct Candidate {
  int base = 0;  ///< what is added to an id to find the row
  RecordEntry entry;

  void Enter(RecordBlock block, int id, int value) {
    const int slot = RecordSlot(block, base + id);
    RecordRow& row = league.RecordBook.Row[static_cast<std::size_t>(slot)];
    entry.Value = value;
    if (InsertRecord(row, block, entry)) league.RecordBook.Changed[static_cast<std::size_t>(slot)] = true;
  }
  void EnterLine(RecordBlock block, int first, const StatLine& line) {
    int id = first;
    for (const RecordFigure& figure : kRecordFigures) Enter(block, id++, figure.of(line));
  }
  /// count(k): the counter of `kShotSplits[k]`.
  void EnterShots(RecordBlock block, auto&& count) {
    int id = kShotRecords;
    for (const RecordShot& shot : kRecordShots) {
      for (const int makes : {0, kMadeSplits}) {
        const int threes = shot.threes < 0 ? 0 : count(shot.threes + makes);
        Enter(block, id++, count(shot.split + makes) + threes);
      }
    }
  }
};

/// The visitors' games are those on the road.
int PlaceRecords(int side) { return side == 1 ? kRoadRecords : kHomeRecords; }

std::string DateText(const std::string& year) {
  return std::to_string(game.GameCalendarMonth) + "/" + std::to_string(game.GameDay) + "/" + year;
}

void EnterSeason(Candidate& man, int side, const PlayerRecord& p) {
  man.EnterLine(RecordBlock::kSeason, 1, p.Stats[2]);
  man.EnterLine(RecordBlock::kSeason, PlaceRecords(side), side == 1 ? p.RoadStats[2] : p.HomeStats[2]);
  man.EnterShots(RecordBlock::kSeason, [&p](int k) -> int { return (p.*kShotSplits[k].man)[2]; });
}

void EnterStretches(Candidate& man, int first, const ShortLine& best) {
  int id = first;
  for (const RecordStretch& stretch : kRecordStretches) {
    man.Enter(RecordBlock::kGame, id++, best.*stretch.counter);
  }
}

void EnterGame(Candidate& man, int side, int slot) {
  const PlayerRecord& p = PlayerAt(side, slot);
  man.EnterLine(RecordBlock::kGame, 1, p.Stats[3]);
  man.EnterLine(RecordBlock::kGame, PlaceRecords(side), p.Stats[3]);
  man.EnterShots(RecordBlock::kGame, [&p](int k) -> int { return (p.*kShotSplits[k].man)[3]; });
  EnterStretches(man, kQuarterRecords, ManAt(side, slot).BestPeriodLine);
  EnterStretches(man, kHalfRecords, ManAt(side, slot).BestHalfLine);
}

// Teams -------------------------------------------------------------------------------------------------

// clang-format off
constexpr i16 StatLine::*kTeamCounters[] = {
    &StatLine::Min, &StatLine::FGA, &StatLine::FGM, &StatLine::F3A, &StatLine::F3M, &StatLine::FTA, &StatLine::FTM,
    &StatLine::Reb, &StatLine::Off, &StatLine::Ast, &StatLine::St,  &StatLine::Bk,  &StatLine::To,  &StatLine::Pf};
// clang-format on

i16 Held(int value) {
  return static_cast<i16>(
      Clamp<int>(value, std::numeric_limits<i16>::min(), std::numeric_limits<i16>::max()));
}

/// A team plays the minutes of five men.
StatLine InTeamMinutes(StatLine line) {
  line.Min /= kPositions;
  return line;
}

/// The games on the road are those that were not at home.
StatLine RoadLine(const TeamRecord& team) {
  StatLine line;
  for (const auto counter : kTeamCounters) {
    line.*counter = Held(team.TeamStats[1].*counter - team.HomeStats[1].*counter);
  }
  return line;
}

/// What only a single game has; in a season's row it is the best of the team's.
void EnterPeriods(Candidate& entry, RecordBlock block, int side) {
  if (Lead(side) > 0) entry.Enter(block, kMarginRecord, Lead(side));
  for (int period = 1; period <= kRecordPeriods; ++period) {
    entry.Enter(block, kPeriodRecords + period - 1, game.side[side].PeriodScore[period]);
    entry.Enter(block, kOppPeriodRecords + period - 1, game.side[3 - side].PeriodScore[period]);
  }
}

void EnterTeamSeason(Candidate& entry, int side) {
  const TeamRecord& team = game.team[side];
  entry.EnterLine(RecordBlock::kSeason, 1, InTeamMinutes(team.TeamStats[1]));
  const StatLine place = side == 1 ? RoadLine(team) : team.HomeStats[1];
  entry.EnterLine(RecordBlock::kSeason, PlaceRecords(side), InTeamMinutes(place));
  entry.EnterShots(RecordBlock::kSeason, [&team](int k) -> int { return team.*kShotSplits[k].team; });
  EnterPeriods(entry, RecordBlock::kSeason, side);
}

int ShotsOfMen(int side, int split) {
  int sum = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (HasPlayed(side, slot)) sum += (PlayerAt(side, slot).*kShotSplits[split].man)[3];
  }
  return sum;
}

/// Of a team only the points are known quarter by quarter. Where a game has two periods, they are halves;
/// overtime is neither.
void EnterBestStretch(Candidate& entry, const Table<int, 1, 10>& points) {
  if (league.rules.PeriodList == 2) {
    entry.Enter(RecordBlock::kGame, kHalfRecords, std::max(points[1], points[2]));
    return;
  }
  entry.Enter(RecordBlock::kGame, kQuarterRecords, *std::max_element(points.begin(), points.begin() + 4));
  entry.Enter(RecordBlock::kGame, kHalfRecords, std::max(points[1] + points[2], points[3] + points[4]));
}

void EnterTeamGame(Candidate& entry, int side) {
  const StatLine sum = InTeamMinutes(TotalsOf(side));
  entry.EnterLine(RecordBlock::kGame, 1, sum);
  entry.EnterLine(RecordBlock::kGame, PlaceRecords(side), sum);
  entry.EnterShots(RecordBlock::kGame, [side](int k) { return ShotsOfMen(side, k); });
  EnterPeriods(entry, RecordBlock::kGame, side);
  EnterBestStretch(entry, game.side[side].PeriodScore);
}

bool BookIsOpen() {
  if (program.PlayoffGame) return false;
  if (league.RecordBook.Row.empty()) Empty(league.RecordBook);
  return true;
}

}  // namespace

fs::path AllTimeFolder() { return TreePath("Basketball"); }

bool LoadRecordBook(const fs::path& folder) {
  const fs::path of = FolderOf(folder);
  Fetch(of);
  if (of.empty()) return true;
  RecordBook& book = league.RecordBook;
  const RecordFile file = FileOf(of);
  const bool read =
      file.ReadAll(kRecordSlots, [&book](int slot, const u8* bytes) { TakeRow(book, slot, bytes); });
  if (!read) book = {};
  return WasRead(read, file.Path());
}

bool SaveRecordBook(const fs::path& folder) {
  const fs::path of = FolderOf(folder);
  RecordBook& book = league.RecordBook;
  if (of.empty()) return true;
  if (book.Folder != of) return false;
  const RecordFile file = FileOf(of);
  const auto slots = ChangedSlots(book, file.Count() < kRecordSlots);
  const bool written = file.WriteSlots(slots);
  if (written) NoteStored(book, slots);
  if (!written) book = {};
  return Written(written, file.Path());
}

bool InsertRecord(RecordRow& row, RecordBlock block, const RecordEntry& entry) {
  if (entry.Value <= row.Value[kRecordPlaces]) return false;
  const int own = block == RecordBlock::kSeason ? PlaceOf(row, entry) : 0;
  if (own > 0 && entry.Value <= row.Value[own]) return false;  // his better season stands
  PutInPlace(row, own > 0 ? own : kRecordPlaces, entry);
  for (int place = kRecordPlaces; place >= 2; --place) {
    if (row.Value[place] > row.Value[place - 1]) SwapPlaces(row, place, place - 1);
  }
  return true;
}

void UpdatePlayerRecords() {
  if (!BookIsOpen()) return;
  Candidate man;
  man.entry.Date = DateText(std::to_string(game.GameYear));
  for (int side = 1; side <= 2; ++side) {
    man.entry.HolderTeam = game.team[side].Abbrev.View();
    man.entry.Opponent = game.team[3 - side].Abbrev.View();
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!HasPlayed(side, slot)) continue;
      man.entry.Holder = PlayerAt(side, slot).LastName.View();
      EnterSeason(man, side, PlayerAt(side, slot));
      EnterGame(man, side, slot);
    }
  }
}

void UpdateTeamRecords() {
  if (!BookIsOpen()) return;
  Candidate team;
  team.base = kTeamRecords;
  const std::string year = std::to_string(game.GameYear);
  team.entry.Date = DateText(year.substr(year.size() - std::min<std::size_t>(year.size(), 2)));
  for (int side = 1; side <= 2; ++side) {
    team.entry.Holder = std::to_string(game.team[side].Year) + " " + game.team[side].City.Str();
    team.entry.HolderTeam = "";
    team.entry.Opponent = game.team[3 - side].Abbrev.View();
    EnterTeamSeason(team, side);
    EnterTeamGame(team, side);
  }
}

}  // namespace tipline
