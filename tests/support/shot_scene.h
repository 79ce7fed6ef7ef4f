#pragma once
// A shot of the neutral game as the announcer finds it, and what he says of it.
#include <algorithm>
#include <string>
#include <vector>

#include "narration/lines.h"
#include "support/neutral_game.h"

namespace tipline {

using Lines = std::vector<std::string>;

/// Side 2 attacks: Ball has the ball, Mate is beside him, Guard of side 1 stands before him.
inline void SetUpShot(PlayKind kind, PlayResult posted) {
  SetUpNeutralGame();
  game.player[2][1].LastName = "Ball";
  game.player[2][2].LastName = "Mate";
  game.player[1][1].LastName = "Guard";
  game.team[1].City = "Boston", game.team[2].City = "Denver", game.team[2].Nickname = "Rockets";
  Scene& s = game.scene;
  s.OffenseSide = 2, s.DefenseSide = 1;
  s.BallPlayer = s.BallSlot = s.BallDefender = 1;
  s.PlayKind = kind, s.PlayResult = game.play.Posted = posted;
  s.GameClock = 3000, s.ShotClock = 150, s.PlayTime = 50;
}

inline Lines LinesNow() {
  Lines lines;
  for (int n = 1; n <= game.commentary.PbpLineCount; ++n) lines.push_back(game.commentary.Line[n].Text);
  return lines;
}

/// What `tell` says with each of many seeds, from one state.
template <class Tell>
std::vector<Lines> Tellings(Tell tell, int times = 400) {
  std::vector<Lines> all;
  const CommentaryState start = game.commentary;
  for (int seed = 1; seed <= times; ++seed) {
    game.commentary = start;
    showRandom.Seed(static_cast<std::uint64_t>(seed));
    tell();
    all.push_back(LinesNow());
  }
  return all;
}

/// In how many tellings a line holds these words.
inline int Told(const std::vector<Lines>& all, std::string_view words) {
  return static_cast<int>(std::count_if(all.begin(), all.end(), [&](const Lines& lines) {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const std::string& line) { return line.find(words) != line.npos; });
  }));
}

}  // namespace tipline
