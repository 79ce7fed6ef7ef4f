#include "narration/incident_lines.h"

#include "league/injury_names.h"
#include "narration/describe.h"
#include "narration/incident_sayings.h"

namespace tipline {
namespace {

using namespace whistles;
using Lines = std::vector<std::string>;

bool Seldom() { return ShowRnd(10) <= 3; }

std::string TheMan() { return NameOf(game.incident.Side, game.incident.Slot); }

void Tell(Lines& lines, const Family& family, const Cast& cast = {}) {
  std::string text = Pick(family, cast);
  if (!text.empty()) lines.push_back(std::move(text));
}
void TellOf(Lines& lines, const Family& family, const std::string& name) {
  Tell(lines, family, {.who = name});
}

void InjuryTimeoutLines(Lines& lines) {
  if (OneIn(10)) lines.emplace_back("..");
  Tell(lines, kInjuryTimeout);
  TellOf(lines, kHurtMan, TheMan());
}

void TellInjury(Lines& lines, bool shakenUp) {
  if (shakenUp) Tell(lines, kShakenUp);
  lines.emplace_back(InjuryName(game.incident.InjuryWord));
}

void ShakenUp(Lines& lines) {
  InjuryTimeoutLines(lines);
  TellInjury(lines, Seldom());
  Tell(lines, kStays);
}

void OutForAWhile(Lines& lines) {
  InjuryTimeoutLines(lines);
  TellInjury(lines, Seldom());
  Tell(lines, Seldom() ? kLeavesCourt : kLeavesGame);
  const bool backSoon = !LastPeriod() && OneIn(4);
  Tell(lines, backSoon ? kBackSoon : kShouldReturn);
}

/// How it looks from the stands: the longer the injury, the more is said, and in graver words.
void HowBad(Lines& lines, int length) {
  if (length > 30 + ShowRnd(60)) return Tell(lines, kVeryBad);
  if (length > ShowRnd(20)) Tell(lines, kBad);
}

void HowLong(Lines& lines, int length) {
  if (length < 3 + ShowRnd(3)) {
    Tell(lines, kOutForGame);
    if (length > 1 && OneIn(2)) Tell(lines, kMaybeMore);
  } else if (length >= 60) {
    Tell(lines, kMonths);
  } else if (length >= 15) {
    Tell(lines, kWeeks);
  } else if (length >= 5 && length <= 12) {
    Tell(lines, kWeek);
  } else {
    Tell(lines, kFewGames);
  }
}

void Injury(Lines& lines) {
  const int length = game.incident.Length;
  InjuryTimeoutLines(lines);
  TellInjury(lines, OneIn(10) || length < 3);
  HowBad(lines, length);
  Tell(lines, OneIn(2) ? kWalksOff : kTakenOff);
  HowLong(lines, length);
}

void TellShots(Lines& lines) {
  const Incident& i = game.incident;
  if (i.Shots == 0) return;
  TellOf(lines, i.Shots == 2 ? kTwoTechnicalShots : kOneTechnicalShot, NameOf(i.ShooterSide, i.Shooter));
}

void IllegalDefense(Lines& lines) {
  Tell(lines, kIllegalDefense);
  if (game.incident.Warning) return Tell(lines, kWarning);
  TellShots(lines);
}

void Fight(Lines& lines) {
  const Incident& i = game.incident;
  const std::string first = NameOf(i.Side, i.Slot), second = NameOf(3 - i.Side, i.OtherSlot);
  Tell(lines, kFight);
  Tell(lines, kFighters, {.who = first, .other = second});
  TellOf(lines, kEjected, first);
  TellOf(lines, kEjected, second);
  if (i.Suspension > 0) TellOf(lines, kSuspension, first);
  if (i.OtherSuspension > 0) TellOf(lines, kSuspension, second);
  TellShots(lines);
}

void TechnicalFoul(Lines& lines) {
  TellOf(lines, kTemper, TheMan());
  Tell(lines, kTechnical);
  if (game.incident.Ejected) TellOf(lines, kEjected, TheMan());
  TellShots(lines);
}

/// Somebody may be in an official's way: anybody of the ten.
std::string AnyOfTheTen() {
  const int side = ShowRnd(2);
  const int position = ShowRnd(kPositions);
  return NameOf(side, game.side[side].Lineup[position]);
}

void Delay(Lines& lines) {
  Tell(lines, kDelay);
  TellOf(lines, kDelayWhy, AnyOfTheTen());
  Tell(lines, kReady);
}

void Verdict(Lines& lines) {
  const int level = game.incident.FlagrantLevel;
  TellOf(lines, level == 2 ? kFlagrantTwo : level == 1 ? kFlagrantOne : kCommon, TheMan());
}

void Flagrant(Lines& lines) {
  TellOf(lines, kShouldBeFlagrant, TheMan());
  if (OneIn(3)) Tell(lines, kMustBeFlagrant);
  if (game.incident.Reviewed) Tell(lines, kReview);
  Verdict(lines);
  if (game.incident.Ejected) Tell(lines, kSentOff);
}

void Show(const Lines& lines) {
  for (const std::string& line : lines) NewLine(line, kSituationRemark);
}

}  // namespace

std::vector<std::string> IncidentLines() {
  Lines lines;
  switch (game.incident.Kind) {
    case IncidentKind::kNone:
      break;
    case IncidentKind::kShakenUp:
      ShakenUp(lines);
      break;
    case IncidentKind::kTemporaryInjury:
      OutForAWhile(lines);
      break;
    case IncidentKind::kInjury:
      Injury(lines);
      break;
    case IncidentKind::kIllegalDefense:
      IllegalDefense(lines);
      break;
    case IncidentKind::kFight:
      Fight(lines);
      break;
    case IncidentKind::kTechnical:
      TechnicalFoul(lines);
      break;
    case IncidentKind::kDelay:
      Delay(lines);
      break;
    case IncidentKind::kFlagrant:
      Flagrant(lines);
      break;
  }
  return lines;
}

void DescribeFlagrant() {
  if (game.incident.Kind != IncidentKind::kFlagrant) return;
  Lines lines;
  Brief() ? Verdict(lines) : Flagrant(lines);
  Show(lines);
}

void DescribeDelay() {
  Lines lines;
  Brief() ? Tell(lines, kDelay) : Delay(lines);
  Show(lines);
}

}  // namespace tipline
