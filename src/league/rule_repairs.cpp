// What a rule book of an older layout lacks, filled in by the season its league plays.
#include "league/markers.h"
#include "league/rules.h"
#include "league/rules_screen.h"

namespace tipline {
namespace {

/// The rule book in repair with what drives its defaults.
struct RuleRepair {
  RulesRecord& r;
  int year;
  char type;

  bool College() const { return type == 'C'; }

  void ShotClockReset();
  void Pauses();
  void DraftRange();
  void Screens();
  void IllegalDefense();
  void BlankDivisionNames();
  void Players();
  void Usage();
  void Clock();
  void Flagrants();
  void OffensiveFouls();
  void Backcourt();
  void Season();
  void Always();
  void Timeouts();
  void Technicals();
};

void RuleRepair::ShotClockReset() {
  if (!TakeMark(r.ShotClockResetMark, 99)) return;
  r.ShotClockResetList = r.ShotClockList;
  if (r.ShotClockList == 0) return;
  if (r.PeriodList == 2 && year >= 2019) r.ShotClockResetList = 10;
  if (r.PeriodList == 4 && year >= 2018) r.ShotClockResetList = 14;
}

void RuleRepair::Pauses() {
  if (!TakeMark(r.PauseMark, 77)) return;
  r.PauseTeamList.Fill(255);
  r.KeyPlayPauseTimeList = r.PauseEndOfQuarterCheck = 0;
  r.Pause4thQuarterScoreList = r.Pause4thQuarterTimeList = 0;
  r.PlayerReachesList.Fill(0);
  r.DoubleDoubleAchievedCheck = r.TripleDoubleAchievedCheck = r.InjuryCheck = r.EjectionCheck = 0;
  r.endOfGameCheck = r.BlowoutSkipPauseCheck = 1;
}

void RuleRepair::DraftRange() {
  if (!TakeMark(r.DraftRangeMark, 33)) return;
  r.MMinText = r.GMinText = r.AgeMinText = r.YearMinText = 0;
  r.MMaxText = 9999;
  r.GMaxText = 999;
  r.AgeMaxText = 99;
  r.YearMaxText = 9999;
}

/// What screens show and remember.
void RuleRepair::Screens() {
  if (TakeMark(r.ZipNameMark, 99)) r.IncludeDateInName = 1;
  if (TakeMark(r.HideRealMark, 99)) r.HideRealStatsCheck = 0;
  if (TakeMark(r.PhotoShapeMark, 99)) r.PlayerHeigtToWidthList = 5;
  if (TakeMark(r.RecapMark, 99)) r.RecapChoices = {{0, 1, 0}};
  if (TakeMark(r.RosterViewMark, 99)) r.RosterView = 1;
  if (TakeMark(r.FatigueMark, 222)) r.FatigueMeterCheck = 1;
  if (TakeMark(r.DurabilityMark, 99)) r.UniversalDurabilityList = 0;
  if (TakeMark(r.ScheduleFileMark, 99)) r.ScheduleFile = "Sked.skd";
  if (TakeMark(r.ExportNameMark, 99)) r.MyNameText = "MyName";
  if (TakeMark(r.ComputerGmMark, 99)) r.AllowComputerGeneralManagerRosterChangesCheck = 1;
}

void RuleRepair::IllegalDefense() {
  if (!TakeMark(r.IllegalDefenseMark, 111)) return;
  r.IllegalDefenseList = 2;
  if (year <= 1983) r.IllegalDefenseList = 1;
  if (year <= 1970) r.IllegalDefenseList = 0;
  if (College()) r.IllegalDefenseList = 0;
}

/// "Division 7" is no name.
void RuleRepair::BlankDivisionNames() {
  for (auto& name : r.DivisionName) {
    if (name.View().starts_with("Division")) name = "";
  }
}

void RuleRepair::Players() {
  if (TakeMark(r.LogoMark, 99)) r.LeagueLogo = "LeagueLogo.jpg";
  BlankDivisionNames();
  if (TakeMark(r.PrePenaltyMark, 1) && year >= 1972) r.OneShotPrePenaltyCheck = 0;
  if (TakeMark(r.TemporaryInjuryMark, 199)) r.TemporaryGameInjuriesCheck = 2;
  if (TakeMark(r.SuspensionMark, 99)) r.SuspensionsCheck = 1;
  if (TakeMark(r.SalaryMark, 199)) r.SalaryValueList = 0;
  if (TakeMark(r.AnalysisMark, 99)) r.AnalysisOffenseTeam = r.AnalysisDefenseTeam = 0;
  if (TakeMark(r.TickerMark, 99)) r.TickerCheck = 0;
}

void RuleRepair::Usage() {
  if (TakeMark(r.UsageMark, 22)) {
    r.SeasonUsagePenaltiesCheck = 0;
    r.SeasonUsageGamesList = r.SeasonUsageMinutesList = {{10, 20, 30}};
    r.SeasonUsageGamesExemptionList = 75;
    r.SeasonUsageMinutesExemptionList = 30;
    r.MinutesPerGameExemptionList = 15;
  }
  for (auto* levels : {&r.SeasonUsageGamesList, &r.SeasonUsageMinutesList}) {
    for (int level = 2; level <= 3; ++level) {
      (*levels)[level] = std::max((*levels)[level - 1], (*levels)[level]);
    }
  }
}

void RuleRepair::Clock() {
  if (TakeMark(r.ScrollMark, 99)) r.StandingsScrollPos = 1;
  if (TakeMark(r.TenthsMark, 99)) r.DisplayTenthsCheck = year < 1989 ? 0 : 1;
  if (TakeMark(r.ManMatchupsMark, 11)) r.AllowComputerManMatchupsCheck = 0;
  if (TakeMark(r.JumpBallMark, 99)) r.JumpBallList = r.MinuteList > 12 ? 1 : 0;
  if (TakeMark(r.AllTimeMark, 99)) r.AllTimeRecordCheck = 1;
  if (TakeMark(r.PhotoFolderMark, 99)) r.PrivateLeaguePhotoFolderCheck = 0;
}

void RuleRepair::Flagrants() {
  if (TakeMark(r.FlagrantMark, 22)) r.FlagrantCheck = !College() && year >= 2009 ? 1 : 0;
  if (TakeMark(r.ReplayReviewMark, 33)) r.ReplayReviewsCheck = year >= 2002 ? 1 : 0;
}

void RuleRepair::OffensiveFouls() {
  if (!TakeMark(r.OffensiveFoulMark, 77)) return;
  const bool counts = (r.PeriodList == 2 || College()) && year >= 1959;
  r.OffensiveFoulTeamFoulCheck = counts ? 1 : 0;
  r.OneShotOnOffensiveFoulBeforePenalty = counts && year <= 1989 ? 1 : 0;
  r.OnePlusOneAfterPenaltyONOffensiveFouls = 0;
}

void RuleRepair::Backcourt() {
  if (TakeMark(r.ModuleMark, 99)) r.IsPlayoffModule = r.HasPlayoffModule = 0;
  if (TakeMark(r.BackcourtMark, 99)) r.ThreeToMakeTwoBackcourtCheck = year >= 1954 && year <= 1979 ? 1 : 0;
  if (TakeMark(r.TwoToMakeOneMark, 22)) r.TwoToMakeOneCheck = year <= 1980 ? 1 : 0;
}

void RuleRepair::Season() {
  if (TakeMark(r.AlternateRealityMark, 99)) r.AlternateRealityCheck = 0;
  if (TakeMark(r.RosterLimitMark, 77)) r.RosterLimitList = year >= 2020 ? 15 : year >= 2018 ? 13 : 12;
  if (TakeMark(r.StandingsMark, 99)) r.StandingsOption = r.PeriodList <= 2 ? 1 : 0;
  if (TakeMark(r.GameFilmMark, 99)) r.GameFilmsComputer = r.GameFilmsHuman = 1;
}

/// What no rule book may say, whatever its age.
void RuleRepair::Always() {
  if (r.TraditionalPosCheck > 1) r.TraditionalPosCheck = 0;
  if (r.TransactionDatesCheck > 1) r.TransactionDatesCheck = 1;
  if (r.InjuryOption > 2) r.InjuryOption = 1;
  if (r.PeriodList < 1 || r.MinuteList < 1) {
    r.PeriodList = 4;
    r.MinuteList = 12;
    r.ThreePointCheck = 1;
    r.FoulLimit[1] = 5;
    r.Penalty[1] = 2;
  }
  if (type == 'P' && year == 2007 && r.FoulLimit[1] > 5) r.FoulLimit.Fill(5);
  RaiseFoulLimits(r);
}

struct TimeoutRule {
  int from;  // first season
  u8 Regulation, LastPeriod, Last3Min, Overtime;
};

// clang-format off
constexpr TimeoutRule kProTimeouts[] = {
    {2017, 7, 4, 2, 2},
    {2000, 7, 3, 4, 3},
    {1984, 6, 3, 4, 3},
    {1972, 6, 3, 4, 2},
    {   0, 6, 3, 2, 2},
};
// clang-format on
constexpr TimeoutRule kOtherTimeouts = {0, 4, 3, 0, 4};

const TimeoutRule& TimeoutsOf(int season, char type) {
  if (type != 'P' && type != 'A') return kOtherTimeouts;
  const TimeoutRule* rule = kProTimeouts;
  while (season < rule->from) ++rule;
  return *rule;
}

void RuleRepair::Timeouts() {
  if (TakeMark(r.TimeoutMark, 99)) {
    const int season = year < 1940 ? 2018 : year;
    const TimeoutRule& rule = TimeoutsOf(season, type);
    r.AutomaticTimeoutsCheck = season >= 1985 ? 1 : 0;
    r.TimeoutList = rule.Regulation;
    r.LastPeriodTimeoutList = rule.LastPeriod;
    r.Last3MinTimeoutList = rule.Last3Min;
    r.OvertimeTimeoutList = rule.Overtime;
  }
  r.LastPeriodTimeoutList = std::min(r.LastPeriodTimeoutList, r.TimeoutList);
}

void RuleRepair::Technicals() {
  const u8 usual = r.PeriodList == 2 ? 2 : 1;
  if (r.TechnicalPFCheck < 1 || r.TechnicalPFCheck > 2) r.TechnicalPFCheck = usual;
  if (r.TechnicalFTslist < 1 || r.TechnicalFTslist > 2) r.TechnicalFTslist = usual;
}

/// A damaged rule book: each list takes the choice next below what it holds, a check that says neither is
/// off.
void HoldToLists(RulesRecord& rules) {
  for (const RuleControl& control : RuleControls()) {
    u8& field = control.Field(rules);
    if (!control.Choices) {
      if (field != control.Ticked) field = control.Unticked;
      continue;
    }
    const auto choices = control.Choices();
    u8 held = choices.front().value;
    for (const RuleChoice& choice : choices) {
      if (choice.value <= field && choice.value >= held) held = choice.value;
    }
    field = held;
  }
}

}  // namespace

bool RulesMakeSense(const RulesRecord& r) {
  const bool periods = r.PeriodList == 0 || r.PeriodList == 1 || r.PeriodList == 2 || r.PeriodList == 4;
  return periods && r.MinuteList <= 20 && r.OverTimeList <= 20 && r.DqList <= 10 && r.ShotClockList <= 45 &&
         r.ThreePointCheck <= 1;
}

bool RepairRules(int year, char teamType) {
  const auto before = RecordBytes(league.rules);
  if (!RulesMakeSense(league.rules)) HoldToLists(league.rules);
  RuleRepair repair{league.rules, year, teamType};
  repair.ShotClockReset();
  repair.Pauses();
  repair.DraftRange();
  repair.Screens();
  repair.IllegalDefense();
  repair.Players();
  repair.Usage();
  repair.Clock();
  repair.Flagrants();
  repair.OffensiveFouls();
  repair.Backcourt();
  repair.Season();
  repair.Always();
  repair.Timeouts();
  repair.Technicals();
  if (TakeMark(league.rules.EraMark, 99)) league.rules.GameEraList = 0;
  return RecordBytes(league.rules) != before;
}

}  // namespace tipline
