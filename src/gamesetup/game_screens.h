#pragma once
// The screens of a front end that open on the way into a game.
#include "gamesetup/game_setup_screen.h"
#include "league/schedule_record.h"

namespace tipline {

class GameScreens {
 public:
  virtual ~GameScreens() = default;
  /// The preview of a scheduled game; true for its start command.
  virtual bool Preview(const ScheduleRecord&) = 0;
  /// The preference screen; returns when the user has left it, as a rule by `Ok`.
  virtual void GameSetupScreen(HCGAMEsetup& screen) = 0;
  /// The game screen as the viewer of a computer game, ahead of its first play; returns at once.
  virtual void OpenViewer() = 0;
  /// The game screen at the stop where the game stands; returns when the user has left it.
  virtual void OpenGame() = 0;
};

}  // namespace tipline
