#include "coach/strategy_screens.h"

#include <algorithm>

#include "coach/computer_coach.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

using Caption = std::string_view;
constexpr Caption kTypes[] = {"Man", "2-1-2 Zone", "2-3 Zone", "3-2 Zone"};
constexpr Caption kHelps[] = {"Normal", "Inside", "Outside", "Strong Inside", "Strong Outside"};
constexpr Caption kPressures[] = {"None", "Halfcourt Trap", "Halfcourt Pressure", "Fullcourt Trap",
                                  "Fullcourt Pressure"};
constexpr Caption kPaces[] = {"Very Slow", "Slow", "Normal", "Fast", "Very Fast"};
constexpr Caption kInsideMen[] = {"0 Players", "0-1 Players", "1 Player", "1-2 Players", "2 Players"};
constexpr Caption kCrash[] = {"Normal", "Strong", "Light"};

constexpr int kWorstFreeThrowShooter = 3;  // a foul order that only the computer gives

/// In the order of StrategyList: the setting behind a list, and its captions by value.
struct ListRow {
  int Side::*setting;
  std::span<const Caption> captions;
};
constexpr ListRow kLists[] = {
    {&Side::DefenseType, kTypes},        {&Side::DefenseHelp, kHelps},
    {&Side::Pressure, kPressures},       {&Side::OffensePace, kPaces},
    {&Side::InsideOffense, kInsideMen},  {&Side::CrashBoardsOffense, kCrash},
    {&Side::CrashBoardsDefense, kCrash},
};
const ListRow& RowOf(StrategyList list) { return kLists[static_cast<std::size_t>(list)]; }
int& Setting(int side, StrategyList list) { return game.side[side].*RowOf(list).setting; }

/// The boxes of the defense screen and what they stand for.
struct Check {
  bool DefenseScreen::*box;
  int Side::*setting;
};
constexpr Check kChecks[] = {
    {&DefenseScreen::UseRotationGridCheck, &Side::UseRotationGrid},
    {&DefenseScreen::AutoSubWhenTiredCheck, &Side::AutoSubWhenTired},
    {&DefenseScreen::AutoSubWhenFoulTroubleCheck, &Side::AutoSubWhenFoulTrouble},
    {&DefenseScreen::LastShotCheck, &Side::LastShot},
    {&DefenseScreen::QuickShotCheck, &Side::QuickShot},
    {&DefenseScreen::NoFoulCheck, &Side::NoFoul},
    {&DefenseScreen::StealFoulCheck, &Side::StealFoul},
    {&DefenseScreen::TimeoutDefenseCheck, &Side::TimeoutDefense},
    {&DefenseScreen::TimeoutOffenseCheck, &Side::TimeoutOffense},
};

int PickOf(Zone zone) { return zone == Zone::kInside ? kInside : zone == Zone::kOutside ? kOutside : kThree; }

bool HasMan(int side, int slot) { return slot >= 1 && slot <= kRosterSlots && OnTeam(side, slot); }

}  // namespace

std::span<const std::string_view> StrategyCaptions(StrategyList list) {
  const auto& captions = RowOf(list).captions;
  const bool manOnly = list == StrategyList::kType && !league.rules.ZoneLegalCheck;
  return manOnly ? captions.first(1) : captions;
}

int StrategyValue(int side, StrategyList list) { return Setting(side, list); }

bool SetStrategy(int side, StrategyList list, int value) {
  if (value < 0 || value >= static_cast<int>(StrategyCaptions(list).size())) return false;
  Setting(side, list) = value;
  return true;
}

std::string QuickStrategy::Title() const { return TeamName(game.team[side]) + " Strategy"; }
void QuickStrategy::UseRotationGridCheck(bool on) { game.side[side].UseRotationGrid = on; }
void QuickStrategy::AutoSubWhenTiredCheck(bool on) { game.side[side].AutoSubWhenTired = on; }
void QuickStrategy::AutoSubWhenFoulTroubleCheck(bool on) { game.side[side].AutoSubWhenFoulTrouble = on; }

DefenseScreen::DefenseScreen(int forSide) : side(forSide) {
  const Side& s = game.side[side];
  StoredMatchup = s.StoredMatchup;
  ComputerMatchups = game.coach[side].ComputerMatchups == 1;
  for (const Check& check : kChecks) this->*check.box = s.*check.setting == 1;
  QuickFoulList = Clamp(s.QuickFoul, 0, 2);
}

bool DefenseScreen::ComputerSuggestMatchupsCommand() {
  Table<int, 1, kPositions>& inForce = game.side[side].StoredMatchup;
  const Table<int, 1, kPositions> kept = inForce;
  const bool searched = ComputerSetMatchups(side);
  StoredMatchup = inForce;
  inForce = kept;  // a suggestion holds once it is saved
  return searched;
}

void DefenseScreen::ComputerCallCommand() {
  ComputerDefenseCall(side);
  QuickFoulList = Clamp(game.side[side].QuickFoul, 0, 2);  // the call decides on fouling, too
}

bool DefenseScreen::SetCoverage(int slot, Zone zone, int coverage) {
  if (!HasMan(3 - side, slot) || coverage < 1 || coverage > static_cast<int>(kCoverageCaptions.size())) {
    return false;
  }
  CoverageOf(ManAt(3 - side, slot), PickOf(zone)) = coverage;
  return true;
}

bool DefenseScreen::SetDoubleTeam(int slot, Zone zone, bool doubled) {
  if (!HasMan(3 - side, slot)) return false;
  DoubleOf(ManAt(3 - side, slot), PickOf(zone)) = doubled;
  return true;
}

bool DefenseScreen::StepGlobalOffense(int slot) {
  if (!HasMan(side, slot)) return false;
  int& order = ManAt(side, slot).GlobalOffense;
  order = order >= kThree ? 0 : order + 1;
  if (order == kThree && !league.rules.ThreePointCheck) order = 0;
  return true;
}

bool DefenseScreen::StepSafeStyle(int slot) {
  if (!HasMan(side, slot)) return false;
  int& safe = ManAt(side, slot).SafeStyle;
  safe = safe == 0 ? 1 : 0;
  return true;
}

bool DefenseScreen::SaveDefenseScreen() {
  for (int own = 1; own <= kPositions; ++own) {
    if (std::find(StoredMatchup.begin(), StoredMatchup.end(), own) != StoredMatchup.end()) continue;
    return platform::RefusedWith("Each position must be defended..check the Defensive Matchups Grid");
  }
  // No copy of the coverage is taken here: the one play whose call departs from it takes its own.
  Side& s = game.side[side];
  s.StoredMatchup = StoredMatchup;
  game.coach[side].ComputerMatchups = ComputerMatchups;
  for (const Check& check : kChecks) s.*check.setting = this->*check.box;
  // The list shows the computer's order against one man as "Poor Shooter"; left alone, it stays his.
  const bool leftAlone = s.QuickFoul == kWorstFreeThrowShooter && QuickFoulList == 2;
  if (!leftAlone) s.QuickFoul = Clamp(QuickFoulList, 0, 2);
  return true;
}

}  // namespace tipline
