#include "cli/speaker.h"

#include <iostream>

#include "league/setup.h"

namespace tipline::cli {

Speaker::Speaker(bool tells) : voice_(platform::DesktopVoice()) {
  if (!voice_ && tells) std::cerr << "tipline: nothing is spoken, for spd-say is not installed\n";
  platform::UseVoice(voice_.get());
}

void TurnNarratorOn() {
  SetupRecord& s = setup;
  s.MasterNarratorCheck = 1;
  const bool chosen = s.NarratorShotPlusResultCheck || s.NarratorTurnoversCheck || s.NarratorReboundsCheck ||
                      s.NarratorFoulsCheck || s.NarratorLineupsCheck || s.NarratorScoringCheck ||
                      s.NarratorAssistsCheck || s.NarratorMiscCheck || s.NarratorQuarterScoresCheck ||
                      s.NarratorFullPBPCheck || s.NarratorStartingLineupsList;
  if (chosen) return;
  s.NarratorShotPlusResultCheck = s.NarratorTurnoversCheck = s.NarratorReboundsCheck = s.NarratorFoulsCheck =
      1;
  s.NarratorScoringCheck = s.NarratorAssistsCheck = s.NarratorMiscCheck = s.NarratorQuarterScoresCheck = 1;
  s.NarratorLineupsCheck = s.NarratorStartingLineupsList = 1;
}

}  // namespace tipline::cli
