#include "coach/plan_screen.h"

#include "base/random.h"
#include "league/files.h"
#include "league/saved_rotation.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

constexpr int kNormalCoverage = 3;
constexpr int kMostCoverage = 6;  // "Foul"
constexpr int kMostUsage = 3;     // "100%"

constexpr std::string_view kOffense = "Off Adjustments (least..most)";
constexpr std::string_view kCoverages = "Def Coverages (least..most)";
constexpr std::string_view kDefense = "Def Adjustments (least..most)";

// clang-format off
constexpr std::array<SliderCaption, kSliders> kCaptions{{
    {kOffense,   "Fastbreak"},
    {kOffense,   "Drive"},
    {kOffense,   "Inside"},
    {kOffense,   "Outside"},
    {kOffense,   "Three"},
    {kCoverages, "Off"},
    {kCoverages, "Loose"},
    {kCoverages, "Tight"},
    {kCoverages, "Deny"},
    {kCoverages, "Foul"},
    {kDefense,   "Press/Trap"},
    {kDefense,   "Inside Help"},
    {kDefense,   "Outside Help"},
    {kDefense,   "Use Zones"},
    {kDefense,   "Double"},
    {kOffense,   "Crash Boards"},
    {kDefense,   "Crash Boards"},
}};
// clang-format on

bool HoldsTeam(int teamNo) { return teamNo >= 1 && teamNo <= kTeams && league.team[teamNo].TeamActive == 1; }

/// The cells of one plan for one man: coverage and double teams by zone inside, outside, three.
struct ManCells {
  ManCells(CoachRecord& c, int plan, int slot)
      : coverage{&c.DefendInside[plan][slot], &c.DefendOutside[plan][slot], &c.DefendThree[plan][slot]},
        doubled{&c.DoubleInside[plan][slot], &c.DoubleOutside[plan][slot], &c.DoubleThree[plan][slot]},
        usage(c.DefendUsage[plan][slot]) {}
  std::array<u8*, 3> coverage, doubled;
  u8& usage;
};

/// What a coach decides for one man out of the sliders of the plan.
class ManPlan {
 public:
  ManPlan(const CoachRecord& coach, int plan, const PlayerRecord& man, ManCells cells)
      : coach_(coach),
        plan_(plan),
        rating_{man.RateOffInside, man.RateOffOutside, man.RateOffThree},
        cells_(cells) {}

  void Double() {
    for (std::size_t zone = 0; zone < 3; ++zone) {
      if (Wants(coach_.DefAdjust4) && rating_[zone] >= 4 + Rnd(5)) *cells_.doubled[zone] = 1;
    }
  }
  /// Tight and deny go to the good shooters.
  void Closer() {
    if (Rnd(2) == 1) {
      CoverGood(coach_.OffAdjust3, 4);
      CoverGood(coach_.OffAdjust4, 5);
    } else {
      CoverGood(coach_.OffAdjust4, 5);
      CoverGood(coach_.OffAdjust3, 4);
    }
  }
  /// Loose and off go to the poor ones.
  void Away() {
    if (Rnd(2) == 1) {
      CoverPoor(coach_.OffAdjust2, 2);
      CoverPoor(coach_.OffAdjust1, 1);
    } else {
      CoverPoor(coach_.OffAdjust1, 1);
      CoverPoor(coach_.OffAdjust2, 2);
    }
  }

 private:
  bool Wants(const Table<u8, 0, 10>& slider) const { return slider[plan_] >= Rnd(10); }
  void CoverGood(const Table<u8, 0, 10>& slider, u8 coverage) {
    for (std::size_t zone = 0; zone < 3; ++zone) {
      if (Wants(slider) && rating_[zone] >= 4 + Rnd(5)) *cells_.coverage[zone] = coverage;
    }
  }
  void CoverPoor(const Table<u8, 0, 10>& slider, u8 coverage) {
    for (std::size_t zone = 0; zone < 3; ++zone) {
      if (Wants(slider) && rating_[zone] < 2 + Rnd(3)) *cells_.coverage[zone] = coverage;
    }
  }

  const CoachRecord& coach_;
  int plan_;
  std::array<int, 3> rating_;
  ManCells cells_;
};

}  // namespace

const SliderCaption& CaptionOf(int slider) { return kCaptions[static_cast<std::size_t>(slider)]; }

std::vector<std::string> PlanScreen::GamePlanList() const {
  std::vector<std::string> lines{" General Game Plan"};
  for (int j = 1; j <= 10; ++j) {
    const int teamNo = own.coach.PlanOpponent[j];
    const std::string number = (j < 10 ? "0" : "") + std::to_string(j);
    lines.push_back(number + (HoldsTeam(teamNo) ? " vs " + TeamName(league.team[teamNo]) : ""));
  }
  return lines;
}

std::string PlanScreen::Title() const {
  const int teamNo = plan == 0 ? 0 : own.coach.PlanOpponent[plan];
  return "Game Plan vs " + (HoldsTeam(teamNo) ? TeamName(league.team[teamNo]) : "All Opponents");
}

bool PlanScreen::ChooseOpponent(int teamNo) {
  if (plan == 0) return platform::RefusedWith("You can't change the team for this gameplan!");
  if (teamNo != 0 && !HoldsTeam(teamNo)) return false;
  own.coach.PlanOpponent[plan] = static_cast<i16>(teamNo);
  return true;
}

bool PlanScreen::OpponentLoaded() const {
  return plan > 0 && opponent && opponent->TeamNo != 0 && own.coach.PlanOpponent[plan] == opponent->TeamNo;
}

int PlanScreen::Slider(int slider) const { return (own.coach.*SliderField(slider))[plan]; }

bool PlanScreen::SetSlider(int slider, int value) {
  if (slider < 0 || slider >= kSliders || value < 0 || value > 4) return false;
  (own.coach.*SliderField(slider))[plan] = static_cast<u8>(value);
  return true;
}

bool PlanScreen::SetOverallPace(int value) {
  if (value < 0 || value >= static_cast<int>(kOverallPaceCaptions.size())) return false;
  own.coach.OverallPace = static_cast<u8>(value);
  return true;
}

bool PlanScreen::StepCell(int slot, PlanColumn column) {
  if (!OpponentLoaded() || slot < 1 || slot > kRosterSlots || !OnTeam(*opponent, slot)) return false;
  const ManCells cells(own.coach, plan, slot);
  const auto index = static_cast<std::size_t>(column);
  if (column == PlanColumn::kUsage) {
    cells.usage = cells.usage >= kMostUsage ? 0 : static_cast<u8>(cells.usage + 1);
  } else if (index < cells.coverage.size()) {
    u8& cell = *cells.coverage[index];
    const int shown = cell == 0 ? kNormalCoverage : cell;  // nobody has set it yet
    cell = shown >= kMostCoverage ? 1 : static_cast<u8>(shown + 1);
  } else {
    u8& cell = *cells.doubled[index - cells.coverage.size()];
    cell = cell == 0 ? 1 : 0;
  }
  return true;
}

void PlanScreen::ClearPlayerDefense() { NormalCoverage(own.coach, plan); }

bool PlanScreen::ExportPlan() const { return WriteRoster(own) && ExportCoach(own.TeamNo); }

bool PlanScreen::ImportPlan() {
  if (!ImportCoach(own.TeamNo, own.coach)) return false;
  CopyRotationFromCoach(own);
  return true;
}

void PlanScreen::ComputerGamePlan() {
  SetDefaultPlanSliders(own, true);
  if (!OpponentLoaded()) return;
  NormalCoverage(own.coach, plan);
  own.coach.DefendUsage[plan].Fill(static_cast<u8>(Clamp(DefaultUsageList, 0, kMostUsage)));
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    ManPlan man(own.coach, plan, opponent->player[slot], ManCells(own.coach, plan, slot));
    man.Double();
    man.Closer();
    man.Away();
  }
}

}  // namespace tipline
