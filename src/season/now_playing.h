#pragma once
// A game of two computers, looked at while it runs: the score and the plays as they come, and pauses where
// the league's settings ask for one.
#include <functional>
#include <string>
#include <vector>

#include "base/tables.h"
#include "engine/play_watch.h"
#include "platform/commentary_box.h"

namespace tipline {

/// While it lives it is the watcher of the game and takes its commentary. Reads `game` and the rules.
class NowPlaying : public PlayWatcher, private platform::CommentaryBox {
 public:
  /// What the frame shows.
  struct Frame {
    Table<std::string, 1, 2> Team;
    Table<int, 1, 2> Score{};
    int Period = 0, Clock = 0;       ///< tenths
    std::vector<std::string> Plays;  ///< of this game, oldest first; the last `kPlays` of them
  };
  static constexpr std::size_t kPlays = 200;

  bool NowPlayingPaused = false;
  bool NextPlayRequested = false, FinishRequested = false;
  bool LastPeriodPauseDone = false;
  bool PauseCountdownRunning = false;
  int NowPlayingTimerLabel = 0;  ///< seconds that a pause with a countdown has left
  bool JoinEnabled = true;       ///< with it the commands for the next play and for the end
  tipline::PlayMoment Moment;    ///< the play that was looked at last
  Frame NowPlayingFrame;

  NowPlaying();
  ~NowPlaying() override;
  NowPlaying(const NowPlaying&) = delete;
  NowPlaying& operator=(const NowPlaying&) = delete;

  /// Told of a line as it is shown, and of a pause that stands: the front end waits there, and comes back
  /// when it has called one of the commands.
  std::function<void(std::string_view)> LineShown;
  std::function<void()> WaitAtPause;

  /// The teams are on their sides: an empty frame, the settings of one game afresh.
  void BeginGame();

  void ContinueCommand() { NowPlayingPaused = PauseCountdownRunning = false; }
  void NextPlayCommand();  ///< goes on, and pauses again behind one play
  void FinishCommand();    ///< finishes the game without another pause
  /// A second has passed; at 0 the game goes on.
  void NowPlayingTimer();

  /// Whether the game pauses behind this play; writes the pause and what belongs to it.
  bool CheckNowPlayingPause(const tipline::PlayMoment& moment);

  void PlayShown(const tipline::PlayMoment& moment) override;

 private:
  void Line(std::string_view text, int side, int sound) override;
  void Pause() override {}
  void StopShown() override {}

  void ShowNowPlaying();
  bool SomethingReached(const tipline::PlayMoment& moment) const;
  bool SomebodyHurtOrOut();
  bool LastPeriodIsClose();
  bool CloseFinish() const;

  int ejected_ = 0;  ///< men ejected so far
};

}  // namespace tipline
