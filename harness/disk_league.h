#pragma once
// A league on disk whose scheduled games are played as the season's driver plays them.
#include <functional>

#include "frontoffice/league_maker.h"
#include "season/autoplay_screen.h"

namespace tipline {

/// Screens that nobody looks at.
class NoScreens : public AutoplayScreens {
 public:
  void GameSetupScreen(HCGAMEsetup&) override {}
  void OpenViewer() override {}
  void OpenGame() override {}
};

/// Makes the league in the data home, which must be a temporary one, and opens it.
void MakeDiskLeague(LeagueRequest request);

/// Plays the next `most` games of the open league (0 all), behind(n) after each; gives how many were played
/// and kept. With a seed each game draws from one of its own.
int PlayScheduledGames(int most = 0, std::optional<std::uint64_t> seed = {},
                       const std::function<void(int)>& behind = {});

}  // namespace tipline
