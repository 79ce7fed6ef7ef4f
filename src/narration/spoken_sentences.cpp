// What the voice says of its own: scores, line-ups, baskets and fouls in whole sentences.
#include "engine/execution.h"
#include "league/setup.h"
#include "narration/lines.h"
#include "narration/speech.h"

namespace tipline {
namespace {

std::string TeamAndScore(int side) { return PbpTeamName(side) + " " + std::to_string(game.side[side].Score); }

/// The leader of a team by what `figure` counts; 0 when nobody has any.
template <class Figure>
int LeaderBy(int side, Figure figure) {
  int leader = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const int own = figure(PlayerAt(side, slot).Stats[3]);
    if (own > 0 && (leader == 0 || own > figure(PlayerAt(side, leader).Stats[3]))) leader = slot;
  }
  return leader;
}

template <class Figure>
std::string Leader(int side, Figure figure, const char* before, const char* behind) {
  const int slot = LeaderBy(side, figure);
  if (slot == 0) return "";
  return before + NameOf(side, slot) + (*before ? " with " : " ") +
         std::to_string(figure(PlayerAt(side, slot).Stats[3])) + behind;
}

std::string LedBy(int side) {
  const std::string who = PbpTeamName(side) + " was led by ";
  return Leader(
             side, [](const StatLine& s) { return 2 * s.FGM + s.F3M + s.FTM; }, who.c_str(), " points  ") +
         Leader(
             side, [](const StatLine& s) { return int{s.Reb}; }, "", " re-bounds ") +
         Leader(
             side, [](const StatLine& s) { return int{s.Ast}; }, "", " assists ");
}

bool FinalHorn() { return LastPeriod() && Margin() > 0; }

/// What precedes the score, by the period that has ended.
std::string_view ScoreOpening() {
  const int period = game.Period, regular = league.rules.PeriodList;
  if (FinalHorn()) return "final score, ";
  if (period > regular) return "at the end of overtime, ";
  if (period == regular) return "at the end of regulation, ";
  const bool plainly = VoiceRnd(10) <= 5;
  if (regular == 2) return plainly ? "at the half, " : "at the end of the first half, ";
  if (period == 2) return plainly ? "at the half, " : "at the end of the second quarter, ";
  return period == 1 ? "at the end of the first quarter, " : "at the end of the third quarter, ";
}

std::string_view LineupOpening() {
  if (game.Period > league.rules.PeriodList) return "on the court to start this overtime, ";
  if (game.Period == 1) return "on the court to start the game, ";
  if (league.rules.PeriodList == 2) return "on the court to start the second half, ";
  if (game.Period == 2) return "on the court to start the second quarter, ";
  return game.Period == 3 ? "on the court to start the third quarter, "
                          : "on the court to start the fourth quarter, ";
}

/// The opening fives in the long form have their first names.
std::string FiveOf(int side, bool firstNames) {
  std::string names;
  for (const int slot : game.side[side].Lineup) {
    if (slot == 0) continue;
    if (!names.empty()) names += " , ";
    if (firstNames) names += PlayerAt(side, slot).FirstName.Str() + " ";
    names += NameOf(side, slot);
  }
  return names + " for " + PbpTeamName(side);
}

bool WasFoul() {
  const PlayResult r = game.play.Posted;
  return IsFloorFoul(r) || r == "OF" || r == "2XPF" || (IsShot(r) && r.Text().ends_with('F')) ||
         game.PlayResult == "LOOSE-OFF" || game.PlayResult == "LOOSE-DEF";
}

bool BasketLineTold() {
  for (int n = 1; n <= game.commentary.PbpLineCount; ++n) {
    const int kind = game.commentary.Line[n].SpokenKind;
    if (kind == kMadeTwo || kind == kMadeThree) return true;
  }
  return false;
}

}  // namespace

void SpeakFinalScore() {
  if (!SpeechOn() || !setup.NarratorQuarterScoresCheck) return;
  const int winner = game.side[1].Score > game.side[2].Score ? 1 : 2;
  SpeakLine("The final score , " + TeamAndScore(winner) + " , " + TeamAndScore(3 - winner));
  SpeakLine(LedBy(winner));
  SpeakLine(LedBy(3 - winner));
}

void SpeakPeriodScore() {
  if (!SpeechOn() || !setup.NarratorQuarterScoresCheck) return;
  const int first = game.side[2].Score > game.side[1].Score ? 2 : 1;
  SpeakLine(std::string(ScoreOpening()) + TeamAndScore(first) + " , " + TeamAndScore(3 - first));
}

void SpeakLineups() {
  const bool wanted = game.Period == 1 ? setup.NarratorStartingLineupsList : setup.NarratorLineupsCheck;
  if (!SpeechOn() || !wanted || !PeriodOpens()) return;
  const bool firstNames = game.Period == 1 && setup.NarratorStartingLineupsList == 2;
  SpeakLine(std::string(LineupOpening()) + FiveOf(1, firstNames));
  SpeakLine(FiveOf(2, firstNames));
}

void SpeakShot() {
  if (!SpeechOn() || !setup.NarratorScoringCheck || !Scored() || BallName().empty()) return;
  const PlayResult result = game.play.Posted;
  const bool three = result == "G3" || result == "G3F";
  const int draw = VoiceRnd(10);
  std::string text = BallName() + (three       ? " for three "
                                   : draw <= 4 ? " scores "
                                   : draw <= 7 ? " for two"
                                               : " for two ");
  const std::string passer = NameOf(scene().OffenseSide, game.play.Assister);
  if (game.play.Assisted && !passer.empty()) text += " , from " + passer;
  SpeakLine(text);
}

void SpeakFoul(bool withCount) {
  if (!SpeechOn() || !setup.NarratorFoulsCheck) return;
  const int side = FoulingSide();
  const std::string name = NameOf(side, game.play.Fouler);
  if (name.empty()) return;
  std::string text = "foul is on " + name;
  if (withCount) {
    text += WomensGame() ? " , her " : " , his ";
    text += OrdinalText(PlayerAt(side, game.play.Fouler).Stats[3].Pf) + " personal";
  }
  if (InPenalty(side) && game.play.Posted != "OF") {
    text += " , " + OrdinalText(game.side[side].TeamFouls) + (VoiceRnd(10) <= 5 ? " team foul" : " team ");
  }
  SpeakLine(text);
}

void SpeakPlay() {
  if (!SpeechOn() || setup.NarratorFullPBPCheck) return;  // every line was said
  if (!BasketLineTold()) SpeakShot();
  if (WasFoul()) SpeakFoul(game.play.IntentionalFoul == 0);
}

void SpeakPeriodEnd() {
  // The leaders belong to the scoring; who wants none of it hears the score alone.
  if (FinalHorn() && setup.NarratorScoringCheck) return SpeakFinalScore();
  SpeakPeriodScore();
}

}  // namespace tipline
