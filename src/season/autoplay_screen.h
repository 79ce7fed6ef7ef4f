#pragma once
// The screen of the scheduled games, which drives a season. A season goes on by its next marked game: the
// date of the league is that game's date, and between two games nothing else runs.
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "gamesetup/game_screens.h"
#include "season/now_playing.h"
#include "season/selection.h"

namespace tipline {

/// What a front end opens and shows on the way.
class AutoplayScreens : public GameScreens {
 public:
  bool Preview(const ScheduleRecord&) override { return true; }
  /// The day, the leaders or the standings have changed.
  virtual void Refresh() {}
  /// A line of a game that is looked at, as it is told.
  virtual void PlayTold(std::string_view) {}
  /// The game pauses: returns when a command of the screen was called, or a second has been counted down.
  virtual void WaitAtPause() {}
  /// The running game as a box score.
  virtual void ShowBox() {}
  /// Replays: asked between two games; false stops behind this one.
  virtual bool GoesOn() { return true; }
  /// Replays: so many are done, and so many games of the one under way here.
  virtual void BulkProgress(int /*replays*/, int /*games*/) {}
};

inline constexpr int kMostReplays = 99;  ///< of the list behind the bulk command

struct HCAUTOPLAY {
  // The run.
  bool GamesMarked = false;    ///< a row is marked to be played next
  bool ContinueRun = false;    ///< the run goes on by itself: an empty selection is its end and no fault
  bool AutoRunning = false;    ///< the timer may start the next game
  bool StopRun = false;        ///< no further game is started
  bool GameLost = false;       ///< the last game could not be loaded or kept; the run has stopped
  bool NoCompleteBox = false;  ///< the end of a run is not told
  bool IncompletePoolPicture = false;  ///< the cup's dates are not all set; play is possible all the same
  int PlayingRow = 0;                  ///< "***** Now Playing *****"; 0 none
  GameDate CurrentDate;  ///< of the league: the date of the game played last, at first of the next one
  std::unique_ptr<NowPlaying> Live;  ///< while the tab of the running game is open

  /// With a seed every game draws from a seed of its own, made of this one, its date and teams, and `Replay`:
  /// a season then repeats whole, wherever it was stopped and taken up again, and a game does whether the
  /// games before it were coached or not. Without one chance runs on.
  std::optional<std::uint64_t> SeasonSeed;
  int Replay = 0;

  explicit HCAUTOPLAY(AutoplayScreens& screens) : screens_(screens) {}

  /// Reads the schedule from its file, so that it begins with what the games played so far have left there;
  /// marks of an earlier run go, and rows of teams that are gone. False, told, when that failed.
  bool Open(bool playoffs = false);
  void DismessPoolWarningCommand() { IncompletePoolPicture = false; }
  /// The tab of the running game is opened: its plays are told and it pauses by the settings of the league.
  void OpenLiveTab(bool open);

  // What is to be played. A selection is of the current date.
  std::vector<std::string> SetSelectLists() const;  ///< captions of SelectList
  void SelectList(int index);                       ///< 0 the day, 1 its month, 2 up to the day, 3 all games
  void UnselectList(int index);                     ///< 0 the day, 1 its month, 2 all games
  void PlayDayCommand(int index);                   ///< marks as SelectList does, and runs
  std::string PlayDayCaption(int index) const;
  void SelectTeamList(int team);  ///< after asking, all games of a team; runs
  void UnselectTeamList(int team, int index);
  /// A double click on a row: marks it, or takes the mark away; a played game is told of.
  void GridDoubleClick(int row);
  void Choose(const Selection& selection, bool marked);
  int ChooseFirst(const Selection& selection, int count);  ///< the next `count` games; gives how many

  // Who coaches.
  bool VisitorGameCoachCommand(int row) { return ToggleCoach(row, 1); }
  bool HomeGameCoachCommand(int row) { return ToggleCoach(row, 2); }
  bool SetAllCoachesHumanMenu() { return SetAllCoaches("H"); }
  bool SetAAllCoachesComputerMenu() { return SetAllCoaches("C"); }

  // How games of two computers go, kept in the user's setup. False, told, when that can't be written.
  bool InstantOption() { return SetSpeed(0); }
  bool RegularOption() { return SetSpeed(1); }  ///< shown play by play; the run then stops behind each game

  /// "Display Total Record" (false) or "Display Conference Record" (true) in the standings, saved at once.
  bool StandingsTypeMenu(bool conference);

  // The run.
  void GameAutoCommand(int row);  ///< marks this game as well, and runs
  /// The same on the game screen: both coaches are human when both were computers.
  void GamePlayCommand(int row);
  /// The next game of the run; the end of the run when there is none.
  void PlayCommandChosen();
  /// The game that the run comes to next; nullptr at its end.
  const ScheduleRecord* Upcoming();
  /// Between two games: starts the next one while the run goes on. A front end calls it until AutoRunning is
  /// false.
  void Timer1();
  void PauseCommand();  ///< stops the run behind this game; all marks go
  void ExitCommand();   ///< breaks the running game off, which is not counted, and ends the run

  void Command1();  ///< the same, with the flags as behind a finished run

  // Of the game that is looked at.
  void ContinueCommand();
  void NextPlayCommand();
  void FinishGameCommand();  ///< to the end without a pause; the timer then begins no other game
  void BoxCommand();         ///< keeps the running game in "TempBox", and shows it
  /// Takes the game over as it stands, both sides; beeps when it is decided.
  bool JoinGameCommand();

  /// So many times: the league begins anew and plays its whole schedule, in `jobs` processes (see
  /// season/bulk_replay.h). After asking; false when the answer is no or a replay failed.
  bool BulkRunCommand(int replays, int jobs = 1);
  std::string BulkCompletedLabel;  ///< "Bulk Completed: 3"

 private:
  bool SaveMarks();
  void Reselected();
  bool ToggleCoach(int row, int side);
  bool SetAllCoaches(std::string_view kind);
  static bool SetSpeed(u8 speed);
  void RunRow(int row);

  MarkedGames& Marked();
  void EndRun();
  void StopAtUndecided();
  void Abandon();
  void TakeRow(int row);
  bool BeginGame();
  bool LoadBothTeams();
  void QuickAutoLoadAndPlay();
  void PlayHumanGame();
  void AfterGame();

  AutoplayScreens& screens_;
  MarkedGames marked_;
  int gathered_ = -1;  ///< rows of the schedule when the marks were gathered; -1 they have changed since
};

}  // namespace tipline
