#pragma once
// The season at the terminal: how far a run is, a game that is told, a game that is coached.
#include <chrono>
#include <optional>
#include <string>

#include "cli/commentary_print.h"
#include "cli/season_command.h"
#include "cli/stop_signals.h"
#include "season/autoplay_screen.h"

namespace tipline::cli {

/// One line that is written over while long work goes on, on a terminal; nothing elsewhere.
class ProgressLine {
 public:
  ProgressLine(int games, bool quiet);
  ~ProgressLine() { Clear(); }
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  /// So many are done; `what` stands in front. Written ten times a second at most.
  void Show(int done, const std::string& what);
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;
  int games_;
  bool shown_, dirty_ = false;
  Clock::time_point start_ = Clock::now(), last_{};
};

class SeasonScreens : public AutoplayScreens {
 public:
  SeasonScreens(const SeasonArguments& a, const Common& common, StopRequest& stop)
      : a_(a), quiet_(common.Quiet), stop_(stop) {}
  void GameSetupScreen(HCGAMEsetup& screen) override;
  void OpenViewer() override;
  void OpenGame() override;
  void PlayTold(std::string_view line) override;
  void WaitAtPause() override;
  void ShowBox() override;
  bool GoesOn() override { return StopRequest::Signal() == 0; }
  void BulkProgress(int replays, int games) override;

  /// Behind a game that somebody has watched or coached: its box.
  void TellResult();

  HCAUTOPLAY* screen = nullptr;
  ProgressLine* progress = nullptr;
  int gamesOfReplay = 0;

 private:
  void TakeCommand();

  const SeasonArguments& a_;
  bool quiet_;
  StopRequest& stop_;
  bool seen_ = false;
  std::optional<CommentaryPrinter> printer_;
};

}  // namespace tipline::cli
