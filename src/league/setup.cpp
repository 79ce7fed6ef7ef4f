#include "league/setup.h"

#include <filesystem>

#include "base/record_file.h"
#include "league/data_tree.h"
#include "league/files.h"
#include "league/program.h"

namespace tipline {
namespace {

constexpr long long kShortest = 1000;  // a shorter file was never a setup

void Blank() {
  (void)WriteWholeFile(SetupFile(), std::string(kSetupSlotBytes, ' '));  // it is repaired in memory anyway
  setup = {};  // what blanks would come to: no marker is set, every preference has its default
}

/// Two settings that no screen can have left like this.
bool Damaged() {
  return setup.NarratorScroll > 20 || setup.ConferenceCheck[0] > 1 || setup.ConferenceCheck[1] > 1;
}

}  // namespace

std::filesystem::path SetupFile() {
  return program.ProgramFolder / ("HcSetup" + std::to_string(kEditionYear) + ".dat");
}

void LoadSetup() {
  ReadRecentList();
  const RecordFile file(SetupFile(), kSetupSlotBytes);
  if (!WasRead(file.Read(1, setup), file.Path())) {
    setup = {};  // the file is left for better days
  } else if (file.Bytes() < kShortest || Damaged()) {
    Blank();
  }
  RepairSetup();
}

bool SaveSetup() {
  if (!program.RecentList.empty()) setup.SetupLeagueFolder = program.RecentList.front();
  const RecordFile file(SetupFile(), kSetupSlotBytes);
  return Written(file.Write(1, setup), file.Path());
}

void UseDefaultCalls(SetupRecord& s) {
  // clang-format off
  s.PlayCallFrequency[1] = {{2,  2, 2,  3, 10}};  // more than six minutes left: first to fourth period, overtime
  s.PlayCallFrequency[2] = {{2,  2, 2,  5, 10}};  // less than six
  s.PlayCallFrequency[3] = {{2, 10, 2, 10, 10}};  // less than two
  // clang-format on
}

void CallNoPlays(SetupRecord& s) { s.PlayCallFrequency = {}; }

void CallAllPlays(SetupRecord& s) {
  for (auto& band : s.PlayCallFrequency) band.Fill(10);
}

}  // namespace tipline
