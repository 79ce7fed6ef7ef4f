#include "narration/phrase_file.h"

#include <algorithm>

#include "base/record_file.h"
#include "league/files.h"
#include "league/program.h"
#include "league/setup.h"
#include "narration/phrases.h"
#include "platform/folders.h"

namespace tipline {
namespace {

constexpr int kCells = kPhraseSlots * kPhraseVariants;
constexpr long long kShortestMaster = 150000;  // bytes; a shorter one was cut off

bool Printable(char c) { return c >= ' ' && c <= '~'; }

int SlotOf(int record) { return (record - 1) / kPhraseVariants + 1; }

/// The built-in texts, to a file: every variant of a slot has its one text.
bool WriteDefaults(const std::filesystem::path& file) {
  return RecordFile(file, kPhraseSlotBytes).RewriteAll(kCells, [](int n, u8* bytes) {
    WriteRecord(PhraseRecord{DefaultPhrase(SlotOf(n))}, bytes);
  });
}

/// The texts serve whether or not they can be written.
void MakeMissingFiles() {
  const RecordFile master(program.ProgramFolder / kMasterPhraseFile, kPhraseSlotBytes);
  if (master.Bytes() < kShortestMaster) (void)WriteDefaults(master.Path());
  const RecordFile inUse(PhraseFile(setup.PhraseFileName.View()), kPhraseSlotBytes);
  if (inUse.Bytes() == 0) (void)WriteDefaults(inUse.Path());
}

/// What a file holds in a variant's place, fit to be shown.
PhraseText Shown(const u8* bytes) {
  PhraseRecord record;
  ReadRecord(bytes, record);
  for (char& c : record.PhraseTable.bytes) c = Printable(c) ? c : ' ';
  return record.PhraseTable;
}

}  // namespace

bool IsPrintable(std::string_view text) { return std::all_of(text.begin(), text.end(), Printable); }

bool IsPhraseFileName(std::string_view name) {
  constexpr std::string_view kEnd = "HCP";
  name = Trimmed(name);
  return name.size() >= kEnd.size() && name.size() <= decltype(setup.PhraseFileName)::kLength &&
         Upper(name).ends_with(kEnd) && name.find_first_of("/\\:") == std::string_view::npos &&
         IsPrintable(name);
}

std::filesystem::path PhraseFile(std::string_view name) {
  return platform::RealPath(program.ProgramFolder, name);
}

void LoadPhraseTable() {
  if (!IsPhraseFileName(setup.PhraseFileName.View())) setup.PhraseFileName = kStandardPhraseFile;
  auto& cells = program.Phrases.Cells;
  cells.assign(kCells, {});
  if (!program.ProgramFolder.empty()) {
    MakeMissingFiles();
    RecordFile(PhraseFile(setup.PhraseFileName.View()), kPhraseSlotBytes)
        .ReadAll(kCells,
                 [&cells](int n, const u8* bytes) { cells[static_cast<std::size_t>(n - 1)] = Shown(bytes); });
  }
  for (int n = 1; n <= kCells; ++n) {
    PhraseText& cell = cells[static_cast<std::size_t>(n - 1)];
    const bool first = n % kPhraseVariants == 1;
    if (first || cell.Empty()) cell = DefaultPhrase(SlotOf(n));
  }
}

bool SavePhraseTable() {
  const RecordFile file(PhraseFile(setup.PhraseFileName.View()), kPhraseSlotBytes);
  const bool written = file.RewriteAll(kCells, [](int n, u8* bytes) {
    if (n > kCells) return;  // what stands behind the table stays
    WriteRecord(PhraseRecord{program.Phrases.Cells[static_cast<std::size_t>(n - 1)]}, bytes);
  });
  return Written(written, file.Path());
}

std::vector<std::string> PhraseFiles() {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(program.ProgramFolder, error)) {
    const std::string name = entry.path().filename().string();
    if (IsPhraseFileName(name) && entry.is_regular_file(error)) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace tipline
