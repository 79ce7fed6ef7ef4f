#include "gamesetup/game_setup_screen.h"

#include <cstdlib>

#include "engine/engine.h"
#include "engine/game_state.h"
#include "engine/point_spread.h"
#include "league/program.h"
#include "league/rules.h"

namespace tipline {
namespace {

constexpr int kLastFont = 15, kMostCalls = 10;

/// Stored values that no control can show.
void HoldToControls(SetupRecord& controls) {
  controls.ScreenNameText = controls.ScreenNameText.Str();
  if (controls.OpeningFontList > kLastFont) controls.OpeningFontList = 0;
  for (auto& band : controls.PlayCallFrequency) {
    for (u8& calls : band) {
      if (calls > kMostCalls) calls = 0;
    }
  }
}

bool OnNeutralRow() {
  const int row = game.ScheduleRow;
  return row >= 1 && row <= league.GameCount() &&
         league.ScheduleGame[static_cast<std::size_t>(row)].NeutralSite == 1;
}

}  // namespace

HCGAMEsetup::HCGAMEsetup(bool neutral) : Controls(setup), NeutralBox(neutral) {
  HoldToControls(Controls);
  GameFolderLabel = "  Game Folder: " + program.ProgramFolder.string();
  TodaysGameFrame = program.ReplayLocked;
  DefaultSubEnabled = !(game.GameStarted && program.ReplayLocked);
  if (!program.ReplayLocked) {
    game.WatchUntil = "NONE";
    return;
  }
  LoadRules();
  NeutralBox = NeutralBox || league.rules.NeutralCheck == 1;
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
  const bool unplayed = game.GameClock == FullPeriod() && game.Period == 1;
  if (program.PlayoffGame && program.ReplayLocked && unplayed) PrepareGame();  // by the round that it is now
  return saved;
}

}  // namespace tipline
