#include "narration/incident_lines.h"

#include <initializer_list>
#include <string_view>

#include "engine/game_state.h"
#include "league/injury_names.h"

namespace tipline {
namespace {

using Lines = std::vector<std::string>;

std::string_view OneOf(std::initializer_list<std::string_view> words) {
  return words.begin()[ShowRnd(static_cast<int>(words.size())) - 1];
}
bool Seldom() { return ShowRnd(10) <= 3; }

std::string NameOf(int side, int slot) {
  const PlayerRecord& p = PlayerAt(side, slot);
  return std::string(p.ShortName.Empty() ? p.LastName.View() : p.ShortName.View());
}
std::string TheMan() { return NameOf(game.incident.Side, game.incident.Slot); }

void Say(Lines& lines, std::string_view words) { lines.emplace_back(words); }
void SayOf(Lines& lines, const std::string& name, std::string_view words) {
  lines.push_back(name + std::string(words));
}

void InjuryTimeoutLines(Lines& lines) {
  if (ShowRnd(10) == 1) Say(lines, "..");
  Say(lines, OneOf({"Injury timeout", "Injury timeout on the court"}));
  Say(lines, TheMan());
}

void ShakenUp(Lines& lines) {
  InjuryTimeoutLines(lines);
  if (Seldom()) Say(lines, "he's shaken-up");
  Say(lines, InjuryName(game.incident.InjuryWord));
  // Words behind "but" can't be turned to a woman's.
  if (game.team[1].TeamSex == 'W') return Say(lines, "he'll stay on the court");
  Say(lines, OneOf({"he'll stay on the court", "but he'll be okay", "but he'll be fine",
                    "but he'll remain in the game"}));
}

void OutForAWhile(Lines& lines) {
  InjuryTimeoutLines(lines);
  if (Seldom()) Say(lines, "he's shaken-up");
  Say(lines, InjuryName(game.incident.InjuryWord));
  Say(lines, Seldom() ? "he's leaving the court" : "he's leaving the game");
  if (!LastPeriod() && ShowRnd(4) == 1) return Say(lines, "he'll be back");
  Say(lines, OneOf({"he should return", "he should be back", "he'll return"}));
}

/// How it looks from the stands: the longer the injury, the more is said, and in graver words.
void HowBad(Lines& lines, int length) {
  if (length > 30 + ShowRnd(60)) {
    return Say(lines, OneOf({"looks pretty bad", "doesn't look good at all",
                             "looks to be a significant injury", "looks pretty serious"}));
  }
  if (length > ShowRnd(20)) {
    Say(lines, OneOf({"looks bad", "doesn't look good", "could be serious", "looks serious"}));
  }
}

void HowLong(Lines& lines, int length) {
  if (length < 3 + ShowRnd(3)) {
    Say(lines, "out for the game");
    if (length > 1 && ShowRnd(2) == 1) Say(lines, "maybe more");
  } else if (length >= 60) {
    Say(lines, "he'll miss a few months!");
  } else if (length >= 15) {
    Say(lines, OneOf({"he'll miss a few weeks", "he'll miss quite a few games"}));
  } else if (length >= 5 && length <= 12) {
    Say(lines, OneOf({"he'll miss about a week", "he'll miss a few games", "he'll miss quite a few games"}));
  } else {
    Say(lines, "he'll miss a few games");
  }
}

void Injury(Lines& lines) {
  const int length = game.incident.Length;
  InjuryTimeoutLines(lines);
  if (ShowRnd(10) == 1 || length < 3) Say(lines, "he's shaken-up");
  Say(lines, InjuryName(game.incident.InjuryWord));
  HowBad(lines, length);
  if (ShowRnd(2) == 1) {
    Say(lines, OneOf({"he's leaving the court", "he's walking off the court", "he's leaving the game"}));
  } else {
    Say(lines, OneOf({"he's being taken to the locker room", "he's heading to the locker room",
                      "he's being helped from the court"}));
  }
  HowLong(lines, length);
}

void SayShots(Lines& lines) {
  const Incident& i = game.incident;
  if (i.Shots == 0) return;
  SayOf(lines, NameOf(i.ShooterSide, i.Shooter),
        i.Shots == 2 ? " will shoot two" : " will shoot the technical");
}

void IllegalDefense(Lines& lines) {
  Say(lines, OneOf({"illegal defense", "illegal defense is called", "there's an illegal defense"}));
  if (game.incident.Warning) return Say(lines, "that's the warning");
  SayShots(lines);
}

void Fight(Lines& lines) {
  const Incident& i = game.incident;
  const std::string first = NameOf(i.Side, i.Slot), second = NameOf(3 - i.Side, i.OtherSlot);
  Say(lines, "Fight!");
  lines.push_back(first + " and " + second);
  for (const std::string& name : {first, second}) SayOf(lines, name, " has been ejected!");
  if (i.Suspension > 0) lines.push_back("(Suspension?) " + first);
  if (i.OtherSuspension > 0) lines.push_back("(Suspension?) " + second);
  SayShots(lines);
}

void Technical(Lines& lines) {
  SayOf(lines, TheMan(),
        OneOf({" is screaming at the ref", " must have said something to the ref",
               " is giving the ref an earful", " won't let it go"}));
  Say(lines, OneOf({"technical foul!", "he gets a technical"}));
  if (game.incident.Ejected) SayOf(lines, TheMan(), " has been ejected!");
  SayShots(lines);
}

/// Somebody must be in an official's way: anybody of the ten.
std::string AnyOfTheTen() {
  const int side = ShowRnd(2);
  const int position = ShowRnd(kPositions);
  return NameOf(side, game.side[side].Lineup[position]);
}

void Delay(Lines& lines) {
  Say(lines, "we have a delay");
  if (ShowRnd(4) == 1) {
    const std::string man = AnyOfTheTen();
    if (!man.empty()) lines.push_back("a ref got tangled up with " + man);
  } else {
    Say(lines, OneOf({"the ball boys are cleaning a wet spot", "the refs want a wet spot cleaned",
                      "we have a courtside disturbance"}));
  }
  Say(lines, OneOf({"we're ready", "now we're ready to roll", "now we're ready to continue"}));
}

void Flagrant(Lines& lines) {
  const Incident& i = game.incident;
  Say(lines, std::string(OneOf({"should be a flagrant on ", "should be called a flagrant on "})) + TheMan());
  if (ShowRnd(3) == 1) Say(lines, "that one has to be a flagrant foul");
  if (i.Reviewed) {
    Say(lines, OneOf({"they're taking a long look at this one", "taking their time",
                      "they're taking a close look"}));
  }
  if (i.FlagrantLevel == 0) return lines.push_back("ruled a common foul on " + TheMan());
  SayOf(lines, TheMan(),
        i.FlagrantLevel == 2 ? " is called for a flagrant 2!" : " is called for a flagrant 1!");
  if (i.Ejected) Say(lines, "he'll be ejected!");
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
      Technical(lines);
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

}  // namespace tipline
