// Commands about the men: substitutions, line-ups, the jumper, box and figures; and the end of it all.
#include <algorithm>
#include <vector>

#include "cli/box_score.h"
#include "cli/coach_screen.h"
#include "cli/coach_table.h"
#include "coach/sub_screens.h"

namespace tipline::cli {
namespace {

std::string FiveOf(int side) {
  std::string text;
  for (const int slot : game.side[side].Lineup) text += (text.empty() ? "" : ", ") + ManName(side, slot);
  return text;
}

bool IsPosition(const std::string& word) { return word.size() == 1 && word[0] >= '1' && word[0] <= '5'; }

struct Pair {
  int position;
  std::string man;
};

/// "2 #7 3 John Smith": each man behind his position. None when the words don't begin with a position.
std::vector<Pair> PairsOf(const Words& words) {
  std::vector<Pair> pairs;
  for (std::size_t at = 0; at < words.size();) {
    if (!IsPosition(words[at])) return {};
    std::size_t end = std::min(at + 2, words.size());  // the man may go by his own position
    while (end < words.size() && !IsPosition(words[end])) ++end;
    pairs.push_back({words[at][0] - '0', Joined(words, at + 1, end)});
    at = end;
  }
  return pairs;
}

Answer SubOne(CoachSession& session, const Words& words) {
  const int side = session.Side();
  const Found position = FindPosition(side, words[0]);
  if (position.value == 0) return session.Refuse(position.fault);
  const Found man = FindMan(side, Joined(words, 1));
  if (man.value == 0) return session.Refuse(man.fault);
  const int out = game.side[side].Lineup[position.value];
  if (out == man.value) return session.Refuse(ManName(side, out) + " is there already.");
  const bool wasIn = PositionOf(side, man.value) > 0;
  HCquickOnePlayerSub panel{side, position.value};
  if (!panel.Choose(man.value)) return Answer::kRefused;
  session.Say(ManName(side, man.value) +
              (wasIn || out == 0 ? " plays position " + std::to_string(position.value)
                                 : " comes in for " + ManName(side, out)) +
              ".");
  return Answer::kStays;
}

Answer SubMany(CoachSession& session, const std::vector<Pair>& pairs) {
  const int side = session.Side();
  HCQUICKSUB panel(side);
  for (const Pair& pair : pairs) {
    if (pair.man.empty()) return session.Refuse("Who plays position " + std::to_string(pair.position) + "?");
    const Found man = FindMan(side, pair.man);
    if (man.value == 0) return session.Refuse(man.fault);
    if (!panel.PutIn(pair.position, man.value)) return Answer::kRefused;
  }
  if (!panel.Ok()) return Answer::kRefused;
  session.Say("On the floor: " + FiveOf(side) + ".");
  return Answer::kStays;
}

}  // namespace

Answer DoSub(CoachSession& session, const Words& words) {
  if (words.empty()) {
    PrintBench(session.Out(), session.Side());
    return Answer::kStays;
  }
  if (words.size() == 1) return session.Refuse("sub POSITION MAN; sub alone shows the bench.");
  const std::vector<Pair> pairs = PairsOf(words);
  return pairs.size() > 1 ? SubMany(session, pairs) : SubOne(session, words);
}

Answer DoBench(CoachSession& session, const Words& words) {
  if (words.empty()) {
    PrintBench(session.Out(), session.Side());
  } else if (Squeezed(Joined(words)) == "ratings") {
    PrintBenchRatings(session.Out(), session.Side());
  } else {
    return session.Refuse("bench, or bench ratings.");
  }
  return Answer::kStays;
}

Answer DoLineup(CoachSession& session, const Words& words) {
  const int lineup = ChoiceOf(Joined(words), kQuickLineups);
  if (lineup < 0) return session.Refuse("Which line-up: " + Listed(kQuickLineups) + "?");
  HCQUICKSUB panel(session.Side());
  if (!panel.QuickLineup(lineup)) return session.Refuse("Nobody is named for that line-up.");
  if (!panel.Ok()) return Answer::kRefused;
  session.Say("On the floor: " + FiveOf(session.Side()) + ".");
  return Answer::kStays;
}

Answer DoJumper(CoachSession& session, const Words& words) {
  const int side = session.Side();
  const Found position = FindPosition(side, Joined(words));
  if (position.value == 0) return session.Refuse(position.fault);
  const int slot = game.side[side].Lineup[position.value];
  if (slot == 0) return session.Refuse("Nobody stands there.");
  game.side[side].JumperOf = slot;
  session.Say(ManName(side, slot) + " jumps.");
  return Answer::kStays;
}

Answer DoBox(CoachSession& session, const Words&) {
  PrintBox(session.Out());
  return Answer::kStays;
}

Answer DoStats(CoachSession& session, const Words& words) {
  if (words.empty()) {
    PrintTeams(session.Out());
    return Answer::kStays;
  }
  const std::string said = Joined(words);
  int side = session.Side();
  Found man = FindMan(side, said);
  if (man.value == 0) {
    const Found other = FindMan(3 - side, said);
    if (other.value == 0) return session.Refuse(man.fault);
    side = 3 - side;
    man = other;
  }
  PrintMan(session.Out(), side, man.value);
  return Answer::kStays;
}

Answer DoQuit(CoachSession& session, const Words&) {
  return session.Ask("Leave the game unfinished?") ? Answer::kQuits : Answer::kRefused;
}

}  // namespace tipline::cli
