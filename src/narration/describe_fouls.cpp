// Fouls of the defense, of both sides, and in the fight for a loose ball.
#include "narration/contact_sayings.h"
#include "narration/describe.h"
#include "narration/foul_remarks.h"
#include "narration/foul_sayings.h"
#include "narration/shot_parts.h"

namespace tipline {
namespace {

using namespace whistles;

/// Who was fouled, as the sayings of fouls call him; it lives as long as the play is told.
struct Fouled {
  std::string name = FouledName();
  Cast cast() const { return {.who = name}; }
};

void TellBriefFoul() {
  const Fouled fouled;
  Say(kBriefFoul, fouled.cast());
  if (league.rules.BackcourtTwoShotsCheck && InBackcourt()) NewLine("backcourt foul");
}

void TellBackcourtFoul(const Cast& cast) {
  if (OneIn(2)) Say(kBringsItUp, cast);
  Say(kBackcourtFoul, cast);
}

/// The line of the foul itself: how it came about decides which.
void TellContact(const Cast& cast) {
  if (HuntsTheWorst() && Say(kWorstShooter, cast)) return;
  if (StopsTheClock() && OneIn(2) && Say(kStopClock, cast)) return;
  if (InBackcourt()) return TellBackcourtFoul(cast);
  if (HardFoul() && Say(kHardFoul, cast)) return;
  if (game.play.OffBallFoul && Say(kAway, cast)) return;
  if (OneIn(5) && Say(kFoulAct, cast)) return;
  Say(kFoul, cast);
}

void TellFoul() {
  const Fouled fouled;
  TellContact(fouled.cast());
  if (!JustNamed(NameOf(FoulingSide(), game.play.Fouler))) DescribeFoulCalled();
  if (HuntsTheWorst() && BadAtTheLine() && OneIn(2)) Say(kHack, fouled.cast());
}

void TellAndOne() {
  const bool three = game.play.Posted == "G3F";
  if (Say(HardFoul() ? kCounted : kAndOne)) MarkBasket(three);
  AddStat(PointsOf(BallMan().Stats[3]));
  if (HardFoul()) Say(kHardAndOne);
  if (three) {
    Say(kFourPoint);
  } else if (OneIn(3)) {
    Say(kThreePoint);
  }
}

void TellBriefShotFoul() {
  if (Scored()) {
    if (Say(kBriefAndOne)) LastLine().Sound = 2;
  } else {
    Say(kBriefShotFoul);
  }
}

void TellDoubleFoulMan(int side, int slot) {
  const std::string name = NameOf(side, slot);
  if (name.empty()) return;
  Say(kDoubleFoulMan, {.who = name, .number = PlayerAt(side, slot).Stats[3].Pf});
  AddToLine(" F:" + std::to_string(game.side[side].TeamFouls));
}

}  // namespace

void DescribeFouledOnShot() {
  if (game.play.Fouler == 0) return;
  if (Brief()) return TellBriefShotFoul();
  if (Scored()) {
    TellAndOne();
  } else {
    Say(HardFoul() ? kHardShotFoul : kShotFoul, {}, kMissedShot);
  }
  TellFoulCounts();
  DescribeWeakCall();
  DescribeComplaint();
}

void DescribeFoul() {
  if (game.play.Fouler == 0 || !IsFloorFoul(game.play.Posted)) return;
  if (Brief()) return TellBriefFoul();
  TellFoul();
  TellFoulCounts();
  DescribeWeakCall();
  DescribeComplaint();
}

void DescribeDoubleFoul() {
  const int offense = scene().OffenseSide, defense = scene().DefenseSide;
  const std::string first = NameOf(offense, game.play.OffenseFouler);
  const std::string second = NameOf(defense, game.play.Fouler);
  if (Brief()) {
    Say(kBriefDoubleFoul, {.who = first, .other = second});
    return;
  }
  if (OneIn(3)) Say(kDoubleFoulWhy, {.who = first, .other = second});
  Say(kDoubleFoul);
  TellDoubleFoulMan(offense, game.play.OffenseFouler);
  TellDoubleFoulMan(defense, game.play.Fouler);
}

void DescribeLooseBallFoul() {
  const Play& play = game.play;
  if (play.Fouler == 0) return;
  if (Brief()) {
    Say(kBriefLooseBall);
    return;
  }
  const bool held = play.ReboundSide == 3 - play.FoulingSide;
  const std::string fouled = held ? NameOf(play.ReboundSide, play.Rebounder) : "";
  Say(kLooseBall, {.who = fouled});
  TellFoulCounts();
}

void DescribeBegForCall() {
  if (Brief() || !(FromPost() || OnDrive()) || Scored() || game.play.TipIn || !OneIn(25)) return;
  if (!Say(kBeg)) return;
  if (OneIn(4)) Say(kBegAnswer);
}

}  // namespace tipline
