// The score, the lead, and what happens when the clock dies.
#include <algorithm>

#include "narration/describe.h"
#include "narration/score_sayings.h"
#include "narration/shot_parts.h"

namespace tipline {
namespace {

bool Ahead(int side) { return Lead(side) > 0; }

int LeadBefore() {
  const auto& score = scene().Score;
  return score[scene().OffenseSide] - score[scene().DefenseSide];
}
/// Nobody speaks of a lead at two to nothing.
bool FirstBasket() { return scene().Score[1] + scene().Score[2] == 0; }

void ExclaimLate() {
  if (LastPeriod() && ClockLeft() < 45) Exclaim();
}

/// A basket, or a whistle that leaves the ball dead and no free throws to come.
bool TimeForTheScore() {
  const PlayResult r = game.play.Posted;
  return r == "G" || r == "G3" || r == "F0" || r == "TO" || r == "OB" || r == "OF" || r == "SHOTCLOCK" ||
         r == "2XPF" || r == "JUMPBALL" || r == "DELAY";
}

bool Decided() {
  if (!LastPeriod()) return false;
  return (ClockLeft() < 600 && Margin() >= 5) || (ClockLeft() < 1800 && Margin() >= 10);
}

/// Lines of the result; of the whole stop where nothing led up to it.
int LinesSinceResult() {
  const CommentaryState& c = game.commentary;
  return c.PbpLineCount - std::max(c.ResultLine, 1) + 1;
}

bool LiveKind(PlayKind kind) { return kind == "OFFREB" || kind == "FASTBREAK"; }

bool NothingToRemark(PlayKind before) {
  return !TimeForTheScore() || Decided() || scene().QuickFoul > 1 || OffenseThen().QuickShot >= 1 ||
         LinesSinceResult() >= 2 || Brief() || LiveKind(scene().PlayKind) || LiveKind(before) ||
         game.side[1].Score + game.side[2].Score < 10 || IsFreeThrow(game.GameState);
}

bool RunRemark() {
  const int side = scene().OffenseSide, points = game.RunPoints;
  if (game.RunTeam != side || points < 6 + ShowRnd(2)) return false;
  if (!OneIn(3) && !(points >= 10 && OneIn(2))) return false;
  Say(ShowRnd(10) <= 3 ? kStraight : kRun, {.who = PbpTeamName(side), .number = points}, kScoreRemark);
  const std::string nick = PluralNickname(side);
  if (side == 2 && OneIn(2) && !nick.empty()) Say(kRun, {.who = nick, .number = points}, kScoreRemark);
  return true;
}

/// "Boston 45 Denver 43", the leader first.
std::string ExactScore() {
  const int first = Ahead(2) ? 2 : 1;
  const bool nicks = OneIn(2) && !PluralNickname(1).empty() && !PluralNickname(2).empty();
  const auto part = [&](int side) {
    return (nicks ? PluralNickname(side) : PbpTeamName(side)) + " " + std::to_string(game.side[side].Score);
  };
  return part(first) + " " + part(3 - first);
}

std::string LeadText() {
  const int side = scene().OffenseSide;
  if (Margin() == 0) return Pick(kTieGame, {.number = game.side[1].Score});
  const std::string nick = PluralNickname(side);
  const std::string who = !nick.empty() && OneIn(2) ? nick : PbpTeamName(side);
  const Cast cast{.who = who, .number = Margin()};
  const int ladder = ShowRnd(10);
  if (!Ahead(side)) return Pick(ladder > 5 ? kBehindBy : IsPlural(who) ? kTrailBy : kTrailsBy, cast);
  if (ladder <= 3) return Pick(IsPlural(who) ? kLeadBy : kLeadsBy, cast);
  return Pick(ladder == 4 && !nick.empty() ? kLeadForThe : kAheadBy, cast);
}

/// Whether the lead is worth a line now.
bool LeadIsDue() {
  const int margin = Margin();
  if (game.Period < 3 && OneIn(2)) return true;
  if (game.Period >= 3 && margin > 15 + ShowRnd(5) && OneIn(3)) return true;
  if (game.Period == 1 && margin < 5 + ShowRnd(5)) return true;
  if (game.Period >= 4 && margin < ShowRnd(5) && ClockLeft() < 3000) return true;
  return game.commentary.ForceScoreRemark != 0;
}

void LeadRemark() {
  constexpr std::size_t kShortest = 10;
  std::string text = LeadText();
  if (OneIn(3)) text = ExactScore();
  if (text.size() < kShortest || !LeadIsDue()) return;
  NewLine(std::move(text), kScoreRemark);
  game.commentary.ForceScoreRemark = 0;
}

/// Each count is told once.
void LeadChangeRemark() {
  int& said = game.commentary.LeadChangesSaid;
  if (game.LeadChanges < 10 + ShowRnd(15) || !OneIn(3) || said == game.LeadChanges) return;
  said = game.LeadChanges;
  Say(kLeadChange, {.number = said}, kSituationRemark);
}

void SchemeRemark() {
  constexpr std::string_view kSchemeNames[] = {"man defense", "2-1-2 zone", "2-3 zone", "3-2 zone"};
  const int scheme = DefenseThen().DefenseType;
  if (scheme < 0 || scheme >= static_cast<int>(std::size(kSchemeNames))) return;
  if (scheme == 0 ? !league.rules.ZoneLegalCheck || !OneIn(20) : !OneIn(5)) return;
  Say(OneIn(3) ? kSchemeFor : kScheme, {.word = kSchemeNames[scheme]}, kSituationRemark);
}

std::string MinutesAndSeconds(int tenths) {
  const int seconds = tenths / 10;
  return std::to_string(seconds / 60) + ":" + (seconds % 60 < 10 ? "0" : "") + std::to_string(seconds % 60);
}

void DroughtRemark() {
  const int dry = OffenseThen().TimeSinceScore;
  const bool told = (dry >= 1200 + ShowRnd(1200) && OneIn(3)) || (dry >= 2400 + ShowRnd(1200) && OneIn(3)) ||
                    (dry >= 6000 && OneIn(2));
  if (!told) return;
  Say(kDrought, {.who = PbpTeamName(scene().OffenseSide), .word = MinutesAndSeconds(dry)}, kSituationRemark);
}

/// A side that is about to lose and wanted the clock stopped.
void DescribeCantFoul() {
  int& said = game.commentary.CantFoulSaid;
  if (LastPeriod() && said) return;
  said = 1;
  if (Say(kCantFoul, {}, kSituationRemark)) Exclaim();
}

/// Thrown up when it was too late: it does not stand in the books.
void TellHeave() {
  if (!Say(kTooLateShot, {}, kShotLine)) return;
  LastLine().Display = kInTheAir;
  Say(kHorn);
  Say(kWaved, {}, kSituationRemark);
}

}  // namespace

void DescribeGoAhead() {
  if (FirstBasket() || LeadBefore() > 0 || Lead(scene().OffenseSide) <= 0) return;
  const bool win = LastPeriod() && ClockLeft() < 15 && ShowRnd(10) <= 7;
  Say(kForTheLead, {.word = win ? "win!" : "lead"}, kScoreRemark);
  ExclaimLate();
}

void DescribeTieIt() {
  if (LeadBefore() >= 0 || Lead(scene().OffenseSide) != 0) return;
  Say(kToTie, {}, kScoreRemark);
  ExclaimLate();
}

void DescribeBuzzerBeater() {
  constexpr int kHornSound = 22;
  if (Putback() || !AtTheHorn()) return;
  Say(kHorn);
  LastLine().Sound = kHornSound;
  if (game.play.Blocked && (scene().PlayKind == "THREE" || scene().PlayKind == "OUTSIDE")) PauseLine();
}

void NoteBasket() {
  CommentaryState& c = game.commentary;
  if (c.BasketPeriod != game.Period) c.ForceScoreRemark = 1;
  c.BasketPeriod = game.Period;
}

void DescribeScoreSituation() {
  CommentaryState& c = game.commentary;
  const PlayKind before = c.KindBefore;
  c.KindBefore = game.play.TipIn ? PlayKind("OFFREB") : scene().PlayKind;
  const bool quiet = NothingToRemark(before);
  c.ResultLine = 0;
  if (quiet) return;
  if (!RunRemark()) LeadRemark();
  LeadChangeRemark();
  SchemeRemark();
  DroughtRemark();
}

void DescribeHoldBall() {
  Say(kHold, {}, kSituationRemark);
  if (Brief() || BallName().empty()) return;
  const bool gate = OneIn(10) || (!LastPeriod() && OneIn(2));
  if (gate && OneIn(10)) Say(kKill, {}, kSituationRemark);
}

void DescribeNoShot() {
  CommentaryState& c = game.commentary;
  const int possession = game.Period * 10 + scene().OffenseSide;
  if (c.NoShotSaid == possession) return;
  c.NoShotSaid = possession;
  if (Brief()) return NewLine("they won't get a shot off", kSituationRemark);
  const int lead = Lead(scene().OffenseSide);
  const bool last = LastPeriod();
  if (last) PauseLine();
  const bool holding = (last && lead > 0) || scene().PlayKind == "BURN";
  if (holding) DescribeHoldBall();
  const bool beaten = last && lead <= -7 && OneIn(10);
  Say(beaten ? kNoShotBeaten : kNoShot, {}, kSituationRemark);
  if (last && lead < 0 && lead >= -3) Exclaim();
  if (scene().QuickFoul || scene().StealFoul) DescribeCantFoul();
  // Who is ahead holds the ball to the end, and throws nothing up.
  if (!holding && AtTheHorn()) TellHeave();
}

}  // namespace tipline
