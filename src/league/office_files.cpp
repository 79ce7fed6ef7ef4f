#include "league/office_files.h"

#include <algorithm>

#include "base/record_file.h"
#include "league/files.h"
#include "league/program.h"
#include "league/schedule.h"

namespace tipline {
namespace {

constexpr std::size_t kBookSlot = 30000;
constexpr std::size_t kDraftSlot = 32000;

/// A whole file, filled up with zeros to `bytes`. `*known`, where given, is false for one that is there and
/// can't be read: nothing may be written over it.
std::string ReadUpTo(std::string_view name, std::size_t bytes, bool* known = nullptr) {
  bool read = false;
  std::string text = ReadWholeFile(LeagueFile(name), &read);
  std::error_code error;
  if (known) *known = read || !std::filesystem::exists(LeagueFile(name), error);
  text.resize(std::max(text.size(), bytes), '\0');
  return text;
}

bool WriteFile(std::string_view name, const std::string& bytes) {
  const auto file = LeagueFile(name);
  return Written(WriteWholeFile(file, bytes), file);
}

u8* At(std::string& bytes, std::size_t offset) { return reinterpret_cast<u8*>(bytes.data()) + offset; }

}  // namespace

void LoadAddressBook(AddressBook& book) {
  std::string bytes = ReadUpTo("HCADDRESSBOOK", kBookSlot);
  ReadRecord(At(bytes, AddressBook::kOffset), book);
}

bool SaveAddressBook(const AddressBook& book) {
  bool known = true;
  std::string bytes = ReadUpTo("HCADDRESSBOOK", kBookSlot, &known);
  if (!known) return Written(false, LeagueFile("HCADDRESSBOOK"));
  WriteRecord(book, At(bytes, AddressBook::kOffset));
  return WriteFile("HCADDRESSBOOK", bytes);
}

void LoadDraftLog(DraftLog& log) {
  std::string bytes = ReadUpTo("DraftLog", 2 * kDraftSlot);
  ReadRecord(At(bytes, 0), log.settings);
  ReadRecord(At(bytes, kDraftSlot), log.selections);
}

bool SaveDraftLog(const DraftLog& log) {
  bool known = true;
  std::string bytes = ReadUpTo("DraftLog", 2 * kDraftSlot, &known);
  if (!known) return Written(false, LeagueFile("DraftLog"));
  WriteRecord(log.settings, At(bytes, 0));
  WriteRecord(log.selections, At(bytes, kDraftSlot));
  return WriteFile("DraftLog", bytes);
}

bool LoadScores() {
  if (program.LeagueFolder.empty()) return true;
  const RecordFile file(LeagueFile("SCORES"), kScheduleSlotBytes);
  const int rows = std::min(file.Count(), kMostScheduleRows);
  league.Scores.assign(static_cast<std::size_t>(rows) + 1, {});
  const bool read = file.ReadAll(
      rows, [](int n, const u8* bytes) { ReadRecord(bytes, league.Scores[static_cast<std::size_t>(n)]); });
  return WasRead(read, file.Path());
}

bool SaveScores() {
  const auto file = LeagueFile("SCORES");
  return Written(WriteSchedule(file, std::span(league.Scores).subspan(1)), file);
}

}  // namespace tipline
