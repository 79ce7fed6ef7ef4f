// The end of a period, and of the game.
#include <algorithm>

#include "narration/describe.h"
#include "narration/phrases.h"
#include "narration/stop_sayings.h"

namespace tipline {

using namespace floor_talk;

namespace {

bool Tied() { return game.side[1].Score == game.side[2].Score; }
int Leader() { return Lead(1) > 0 ? 1 : 2; }

/// The last shot was good as the clock ran out.
bool GoodAtTheHorn() {
  return IsMadeShot(scene().PlayResult) && scene().GameClock - scene().PlayTime <= 0 && game.PlayTime > 0;
}

/// It turned a deficit or a tie into the lead.
bool WonIt() {
  const int side = scene().OffenseSide;
  return LastPeriod() && IsMadeShot(game.play.Posted) && GoodAtTheHorn() && Lead(side) > 0 &&
         scene().Score[side] <= scene().Score[3 - side];
}

void Review() {
  if (league.rules.ReplayReviewsCheck == 0 || !GoodAtTheHorn() || !OneIn(8)) return;
  NewLine("this one will be reviewed");
  PauseLine();
  NewLine(LastPeriod() && Lead(2) > 0 ? "count it!" : "count it");
}

std::string_view PeriodWords() {
  static constexpr std::string_view kQuarters[] = {"end of the 1st quarter", "the end of the first half",
                                                   "end of the 3rd quarter"};
  if (league.rules.PeriodList == 2) return "end of the first half";
  return kQuarters[std::clamp(game.Period, 1, 3) - 1];
}

std::string ScoreOf(int side) { return PbpTeamName(side) + " " + std::to_string(game.side[side].Score); }

void TellScore() {
  const int first = Leader();
  if (Tied()) {
    NewLine("we're tied at " + std::to_string(game.side[1].Score));
  } else {
    NewLine(ScoreOf(first) + " " + ScoreOf(3 - first));
  }
}

/// Slot of the side's leading scorer, 0 when nobody has scored twice.
int TopScorer(int side) {
  int best = 0, most = 3;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const int points = OnTeam(side, slot) ? PointsOf(PlayerAt(side, slot).Stats[3]) : 0;
    if (points > most) best = slot, most = points;
  }
  return best;
}

void TellLeaders() {
  for (int side = 1; side <= 2; ++side) {
    const int slot = TopScorer(side);
    const std::string who = NameOf(side, slot), other = PbpTeamName(side);
    if (!who.empty())
      Say(kLeaders, {.who = who, .other = other, .number = PointsOf(PlayerAt(side, slot).Stats[3])});
  }
}

void TellMargin() {
  const std::string who = PbpTeamName(Leader());
  if (Margin() >= 15) Say(kRout, {.who = who, .number = Margin()});
}

void TellLed() {
  for (int side = 1; side <= 2; ++side) {
    const int slot = TopScorer(side);
    if (slot == 0) continue;
    WrapLine(PbpTeamName(side) + " was led by " + NameOf(side, slot),
             {"with " + std::to_string(PointsOf(PlayerAt(side, slot).Stats[3])) + " points"});
  }
}

void Farewell() {
  if (Margin() <= 2) Say(kEndRemark);
  if (!WonIt() || BallName().empty() || game.NeutralGame) return;
  if (scene().OffenseSide == 2) {
    NewLine(BallName() + " sends them home happy!");
  } else if (ShowRnd(2) == 1) {
    NewLine(BallName() + " sends home a quiet crowd");
  }
}

}  // namespace

void DescribePeriodEnd() {
  const bool over = LastPeriod() && !Tied();
  TellHolder(0, 0);
  if (!Brief()) Review();
  if (WonIt() && !Brief()) Say(kGameWinner);
  if (!LastPeriod()) {
    NewLine(std::string(PeriodWords()));
  } else {
    NewLine(Phrase(over ? 97 : 98));
  }
  if (over && !Brief()) Farewell();
  TellScore();
  if (Brief()) return;
  if (over) return TellLed();
  if (game.Period > 1) TellMargin();
  if (!LastPeriod()) TellLeaders();
}

}  // namespace tipline
