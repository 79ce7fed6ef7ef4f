#pragma once
// Reads the commentary of games as a listener would, and holds it against what happened.
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/commentary_box.h"

namespace tipline {

/// What may be wrong with a line.
enum class Blemish {
  kTooLong,     ///< over 70 characters
  kBlanks,      ///< two blanks, or one at an end
  kArticle,     ///< "a 8-0 run", "an 10-0 run"
  kUnfilled,    ///< a brace, or a phrase that was not found
  kMadeOnMiss,  ///< told as good, though it was none
  kMissOnMade,  ///< and the other way round
  kStranger,    ///< a man who is not on the floor
  kScore,       ///< a score, a lead or a run that the books do not have
  kMasculine,   ///< he, him or his of a woman
};
constexpr const char* kBlemishNames[] = {"over 70 characters", "blanks",          "article",
                                         "left unfilled",      "good on a miss",  "missed on a make",
                                         "a stranger's name",  "score or margin", "he of a woman"};

/// In use as the box while it lives; the games are played with `game.CommentaryOn`.
class CommentaryJudge : private platform::CommentaryBox {
 public:
  CommentaryJudge() { platform::UseCommentaryBox(this); }
  ~CommentaryJudge() override { platform::UseCommentaryBox(nullptr); }
  CommentaryJudge(const CommentaryJudge&) = delete;
  CommentaryJudge& operator=(const CommentaryJudge&) = delete;

  /// Learns the names of both teams; before each game.
  void BeginGame();

  long lines = 0;
  std::map<Blemish, long> blemishes;
  std::vector<std::string> examples;                ///< the first of each kind, a few
  std::unordered_map<std::string, long> skeletons;  ///< lines without names and numbers, and how often
  long Faults() const;

 private:
  void Line(std::string_view text, int side, int sound) override;
  void Pause() override {}
  void StopShown() override;
  void Blame(Blemish blemish, const std::string& line);
  void JudgeResult(const std::string& line);
  void JudgeNames(const std::string& line);
  void JudgeNumbers(const std::string& line);
  std::string Skeleton(std::string line) const;

  std::vector<std::string> stop_;
  std::map<std::string, std::vector<std::pair<int, int>>> men_;  ///< name -> side and slot of who bears it
  std::vector<std::string> teams_;                               ///< names of teams, longest first
};

}  // namespace tipline
