#pragma once
// A game that a person coaches line by line: at each stop that asks him it shows the floor, and takes
// commands until the game goes on. Plain lines in, plain lines out, so that a script coaches as well as a
// fan.
#include <array>
#include <istream>
#include <iterator>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "cli/coach_words.h"
#include "engine/game_state.h"
#include "platform/dialogs.h"

namespace tipline::cli {

/// What a command came to.
enum class Answer {
  kStays,    ///< done, and the stop asks on
  kGoesOn,   ///< the game has gone on
  kRefused,  ///< nothing has changed, and the coach was told why
  kQuits,
};

/// The messages and questions of the game's own operations are its to tell while it lives.
class CoachSession : private platform::Dialogs {
 public:
  struct Manner {
    bool prompt = false;  ///< somebody types: "> " is shown; a script's commands are echoed instead
    bool bold = false;    ///< the score line stands out
    bool told = false;    ///< the announcer tells the plays: no line of the log for each
  };
  CoachSession(std::istream& in, std::ostream& out, std::ostream& err, Manner manner);
  ~CoachSession() override;
  CoachSession(const CoachSession&) = delete;
  CoachSession& operator=(const CoachSession&) = delete;

  /// Plays the prepared game, whose human sides it asks, to its end. At the end of the input the computer
  /// takes the humans' sides. False when the coach leaves the game unfinished.
  bool Run();
  /// The same from the stop where the game stands; of a game that is over it tells the course.
  bool GoOnFromHere();

  // For the commands.
  /// One line, or more below one another, set in by `indent`, where it is longer than the screen is wide.
  void Say(std::string_view line, std::size_t indent = 4);
  /// The refusal of a command, with its reason.
  Answer Refuse(std::string_view reason);
  /// A question of the program's own operations, or of a command.
  bool Ask(std::string_view question, std::string_view title = "") override;
  /// Calls an operation that ends in the next stop. `what` is said when it was carried out.
  template <class Operation>
  Answer GoOn(const std::string& what, Operation operation) {
    refused_ = false;
    operation();
    if (refused_) return Answer::kRefused;
    if (!what.empty()) Say(what);
    return Answer::kGoesOn;
  }
  std::ostream& Out() { return out_; }
  /// The side that is asked at this stop.
  int Side() const;

 private:
  void Tell(std::string_view message, std::string_view title) override;
  /// The next line of the coach; nothing at the end of input.
  std::optional<std::string> NextLine(std::string_view prompt);
  /// Everything that happened between two stops, in its order.
  void TellSinceLastStop();
  void TellPeriodEnd(int period);
  void TellOrdersGone();
  void TellRow(int n, bool incident);
  void TellChanges();
  void ShowTheStop();
  Answer TakeCommand();
  Answer Obey(const std::string& line);
  void HandOver();

  std::istream& in_;
  std::ostream& out_;
  std::ostream& err_;
  Manner manner_;
  platform::Dialogs& before_;
  std::optional<std::string> kept_;           ///< a line that was no answer to a question: the next command
  int toldRows_ = 0;                          ///< rows of the play log that were told
  int toldPeriod_ = 1;                        ///< periods whose score was told, plus one
  Table2<int, 1, 2, 1, kPositions> fives_{};  ///< who was on the floor when it was last told
  Table<bool, 1, 2> orders_{};                ///< sides with orders that a period's end takes back
  bool refused_ = false;
  std::array<bool, std::size(GameStateWords::kTexts)> shown_{};  ///< states whose commands were named
};

}  // namespace tipline::cli
