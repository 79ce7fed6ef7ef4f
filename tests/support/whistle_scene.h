#pragma once
// A play that ends with a whistle, and what the announcer says of it.
#include <string>

#include "support/neutral_game.h"

namespace tipline {

inline constexpr int kTellings = 400;

/// Side 2 attacks; Smith has the ball, Jones guards him and has fouled him or taken the ball.
inline void SetScene(PlayKind kind, PlayResult posted) {
  game.play.Posted = posted;
  game.scene = {};
  game.scene.PlayKind = kind;
  game.scene.BallPlayer = game.scene.BallSlot = game.scene.BallDefender = 1;
  game.scene.GameClock = game.GameClock = 3000;
  game.play.Fouler = game.play.Stealer = 1;
  game.play.FoulingSide = 1;
}
inline void SetUpWhistle() {
  SetUpNeutralGame();
  Shooter().LastName = "Smith", Defender().LastName = "Jones";
  for (int slot = 2; slot <= 5; ++slot) {
    game.player[1][slot].LastName = "Away" + std::to_string(slot);
    game.player[2][slot].LastName = "Home" + std::to_string(slot);
  }
  Rules().DqList = 6, Rules().ShotClockList = 24;
  showRandom.Seed(5);
}
/// The lines, "/" behind each; nothing is kept.
inline std::string Telling(void (*routine)()) {
  const CommentaryState before = game.commentary;
  std::string text;
  routine();
  for (int n = 1; n <= game.commentary.PbpLineCount; ++n) text += game.commentary.Line[n].Text + "/";
  game.commentary = before;
  return text;
}
inline int Told(void (*routine)(), const char* words) {
  int told = 0;
  for (int n = 0; n < kTellings; ++n) told += Telling(routine).find(words) != std::string::npos;
  return told;
}
inline StatLine& Books() { return Shooter().Stats[3]; }

}  // namespace tipline
