#include "gamesetup/game_setup_screen.h"

#include <algorithm>
#include <cstdlib>

#include "base/numbers.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "engine/point_spread.h"
#include "league/program.h"
#include "league/rules.h"

namespace tipline {
namespace {

using S = SetupRecord;

// Last entry of each list, 1 for a check box.
// clang-format off
constexpr struct { u8 S::*field; u8 last; } kLists[] = {
    {&S::OpeningFontList, 15},                {&S::CourtStatOption, 3},
    {&S::ReportStyleList, 2},                 {&S::BoxReportStyleList, 2},
    {&S::CourtDisplayList, 1},                {&S::PlayCallList, 1},
    {&S::GameLogSortOrder, 1},                {&S::PbpFontSize, 4},
    {&S::PbpStartingLineupsList, 2},          {&S::OpeningSecondaryLeadersList, 1},
    {&S::OpeningScoringLeadersList, 2},       {&S::OpeningMenuTeamLeadersList, 2},
    {&S::NarratorStartingLineupsList, 2},     {&S::CourtSizeList, 1},
    {&S::RosterDisplayColorsList, 1},         {&S::AdditionalStatsList, 4},
    {&S::ArenaIconList, 2},                   {&S::ChalkboardMorphSpeedList, 3},
    {&S::ChalboardPauseAfterPlayList, 2},     {&S::StandingsTeamNameList, 1},
    {&S::IconColorList, 2},                   {&S::ScoreboardTypeList, 4},
    {&S::ScoreboardTeamNameList, 2},          {&S::BothOffensesCheck, 1},
    {&S::BothDefensesCheck, 1},               {&S::SoundCheck, 1},
};
constexpr struct { Table<u8, 0, 1> S::*field; u8 last; } kCourtLists[] = {  // half court and full court
    {&S::PhotoSizeList, 4}, {&S::PlayerFontSizeList, 4}, {&S::FullCourtIconList, 4},
    {&S::FullCourtIconBackupList, 1},
};
// clang-format on
constexpr u8 S::*kVolumes[] = {&S::SoundActionScroll, &S::SoundCrowdScroll,   &S::SoundWhistleScroll,
                               &S::SoundHornScroll,   &S::SoundTimeoutScroll, &S::NarratorVolumeScroll};
constexpr u8 kLoudest = 100;

void HoldToList(u8& choice, u8 last) {
  if (choice > last) choice = 0;
}

/// Stored values that no control can show: a list shows its first entry then, a slider its end.
void HoldToControls(SetupRecord& controls) {
  for (const auto& list : kLists) HoldToList(controls.*list.field, list.last);
  for (const auto& list : kCourtLists) {
    for (u8& choice : controls.*list.field) HoldToList(choice, list.last);
  }
  for (const auto volume : kVolumes) controls.*volume = std::min(controls.*volume, kLoudest);
  controls.SoundAmbientScroll = Clamp<i16>(controls.SoundAmbientScroll, 0, kLoudest);
}

/// A human begins with what his preferences leave to the computer.
void UseDefaultSubs(Side& side) {
  side.AutoSubWhenTired = setup.SubWhenTiredCheck;
  side.AutoSubWhenFoulTrouble = setup.SubWhenInFoulTroubleCheck;
  side.UseRotationGrid = setup.UseRotationGridCheck;
  side.BothOffenses = setup.BothOffensesCheck;
  side.BothDefenses = setup.BothDefensesCheck;
}

/// What a human sets once a play was made is his until the end.
bool BeforeTheFirstPlay() { return !game.GameStarted || (program.ScenarioGame && game.PlayLogCount == 0); }

bool OnNeutralRow() {
  const ScheduleRecord* row = league.Row(game.ScheduleRow);
  return row && row->NeutralSite == 1;
}

}  // namespace

HCGAMEsetup::HCGAMEsetup() : Controls(setup) {
  HoldToControls(Controls);
  GameFolderLabel = "  Game Folder: " + program.ProgramFolder.string();
  TodaysGameFrame = program.ReplayLocked;
  DefaultSubEnabled = !(game.GameStarted && program.ReplayLocked);
  if (!program.ReplayLocked) {
    game.WatchUntil = "NONE";
    return;
  }
  LoadRules();
  NeutralBox = league.rules.NeutralCheck == 1;
  SetCourt();
  ArenaLabel = game.team[2].ArenaName.Str();
  for (int s = 1; s <= 2; ++s) ComputerOption[s] = game.side[s].CoachMode == "C";
}

void HCGAMEsetup::SetCourt() {
  game.NeutralGame = NeutralBox || league.rules.NeutralCheck == 1 || OnNeutralRow();
  ShowSpread();
}

void HCGAMEsetup::ShowSpread() {
  const BettingLine line = PointSpread();
  const bool rated = game.team[1].PowerRating != 0 && game.team[2].PowerRating != 0;
  PointSpreadLabel = "No Line";
  if (!rated || line.favorite == 0) return;
  PointSpreadLabel = game.team[line.favorite].City.Str() + " by " + std::to_string(std::abs(line.points));
}

void HCGAMEsetup::ClickNeutral(bool ticked) {
  NeutralBox = ticked;
  if (program.ReplayLocked) SetCourt();
}

void HCGAMEsetup::Zoom(WatchUntil mark) { game.WatchUntil = mark; }

void HCGAMEsetup::SaveChanges() const {
  setup = Controls;
  setup.HelpOption = Controls.HelpOption == 1 ? 1 : 2;
  for (int s = 1; s <= 2; ++s) {
    game.side[s].CoachMode = "H";
    if (ComputerOption[s]) game.side[s].CoachMode = "C";
  }
  program.Autoplaying = ComputerOption[1] && ComputerOption[2] && setup.ComputerCheck == 0;
}

bool HCGAMEsetup::Ok() const {
  game.GameOver = false;
  SaveChanges();
  const bool saved = SaveSetup();
  if (NeutralBox) game.NeutralGame = true;
  if (!program.ReplayLocked) return saved;
  const bool unplayed = !game.GameStarted && game.GameClock == FullPeriod() && game.Period == 1;
  if (program.PlayoffGame && unplayed) PrepareGame();  // by the round that it is now
  for (Side& side : game.side) {
    if (side.CoachMode == "H" && BeforeTheFirstPlay()) UseDefaultSubs(side);
  }
  return saved;
}

}  // namespace tipline
