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

void FillCalls(const u8 (&grid)[3][5]) {
  for (int band = 1; band <= 3; ++band) {
    for (int period = 1; period <= 5; ++period)
      setup.PlayCallFrequency[band][period] = grid[band - 1][period - 1];
  }
}

}  // namespace

std::filesystem::path SetupFile() {
  return program.ProgramFolder / ("HcSetup" + std::to_string(kEditionYear) + ".dat");
}

void LoadSetup() {
  ReadRecentList();
  const RecordFile file(SetupFile(), kSetupSlotBytes);
  if (file.Bytes() < kShortest) {
    Blank();
  } else {
    file.Read(1, setup);
    if (Damaged()) Blank();
  }
  RepairSetup();
}

bool SaveSetup() {
  if (!program.RecentList.empty()) setup.SetupLeagueFolder = program.RecentList.front();
  const RecordFile file(SetupFile(), kSetupSlotBytes);
  return Written(file.Write(1, setup), file.Path());
}

void UseDefaultCalls() {
  // clang-format off
  FillCalls({{2,  2, 2,  3, 10},     // more than six minutes left: first to fourth period, overtime
             {2,  2, 2,  5, 10},     // less than six
             {2, 10, 2, 10, 10}});   // less than two
  // clang-format on
}

void CallNoPlays() { setup.PlayCallFrequency = {}; }

void CallAllPlays() {
  for (auto& band : setup.PlayCallFrequency) band.Fill(10);
}

}  // namespace tipline
