#include "narration/foul_remarks.h"

#include "narration/contact_sayings.h"
#include "narration/foul_sayings.h"

namespace tipline::whistles {
namespace {

/// A man of the ten, but this one, is in the line.
bool NamesAnother(const std::string& line, const std::string& name) {
  for (int side = 1; side <= 2; ++side) {
    for (const int slot : game.side[side].Lineup) {
      const std::string other = NameOf(side, slot);
      if (other != name && NamesHim(line, other)) return true;
    }
  }
  return false;
}

void TellHisFouls() {
  const int fouls = FoulerLine().Pf;
  if (FouledOut() || (fouls >= 2 && OneIn(4)) || (OneFoulLeft() && OneIn(2)) || (FoulTrouble() && OneIn(2)))
    Say(kFoulCount, {.number = fouls});
}

void TellTeamFouls() {
  const int limit = league.rules.FoulLimit[1];
  if (limit == 0 || game.play.Posted == "OF") return;
  const int extra = game.Period > league.rules.PeriodList ? 2 : 0;
  const int fouls = game.side[FoulingSide()].TeamFouls + extra;
  const std::string other = PbpTeamName(3 - FoulingSide());
  if (fouls == limit && OneIn(2)) Say(kPenalty, {.word = other}, kSituationRemark);
  if (fouls == limit - 1 && OneIn(4)) Say(kPenaltyNext, {}, kSituationRemark);
}

/// The fouled man of a shot, or of a foul that gives two shots or none, else the man who was called.
int Complainer(int& side) {
  const PlayResult r = game.play.Posted;
  side = scene().OffenseSide;
  if (game.play.Fouler == 0 || r == "F2" || r == "F0" || IsShot(r)) return FouledSlot();
  side = FoulingSide();
  return game.play.Fouler;
}

}  // namespace

bool MeansHim(const std::string& name) {
  if (!JustNamed(name)) return false;
  const std::string& line = LastLine().Text;
  const std::string_view last = std::string_view(line).substr(line.rfind(' ') + 1);
  const std::string_view first = std::string_view(line).substr(0, line.find(' '));
  return last == name || (NamesHim(first, name) && !NamesAnother(line, name));
}

void TellFoulCounts() {
  TellHisFouls();
  TellTeamFouls();
}

void DescribeFoulCalled() { Say(kFoulCalled); }

void DescribeWeakCall() {
  if (scene().QuickFoul == 0 && !HardFoul() && OneIn(40)) Say(kWeakCall);
}

void DescribeComplaint() {
  if (!OneIn(10) || ShowRnd(4) >= 3 || scene().PlayKind == "HOLD BALL") return;
  if (game.play.Fouler > 0 && FoulerLine().Pf == 6) return;
  int side = 0;
  const int slot = Complainer(side);
  const std::string name = NameOf(side, slot);
  if (name.empty()) return;
  Say(kComplaint, {.who = name});
  if (PlayerAt(side, slot).RateSportsmanship <= ShowRnd(4)) {
    Say(kHotHead, {.who = name});
  } else if (OneIn(6)) {
    Say(kNoSurprise);
  }
}

}  // namespace tipline::whistles
