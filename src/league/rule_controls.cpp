// What stands on the screen of the rules: captions, choices and the field of each control.
#include "league/rules_screen.h"

namespace tipline {
namespace {

using Choices = std::vector<RuleChoice>;
using R = RulesRecord;

template <auto Member>
u8& At(R& rules) {
  return rules.*Member;
}

template <auto Member, int Index>
u8& At(R& rules) {
  return (rules.*Member)[Index];
}

/// `choices` and a line for each value from first to last: `before`, the number, `after`.
Choices Count(Choices choices, int first, int last, std::string before, std::string after, int step = 1) {
  for (int n = first; n <= last; ++n) {
    choices.push_back({static_cast<u8>(n), before + std::to_string(n * step) + after});
  }
  return choices;
}

Choices Periods() { return {{2, "2 Per Game"}, {4, "4 Per Game"}}; }
Choices Minutes() { return Count({}, 1, 20, "", " Minutes"); }
Choices Fouls() { return Count({}, 0, 20, "", " Fouls"); }
Choices Shots() { return {{0, "No Free Throws"}, {1, "1 Shot"}, {2, "1 And 1"}, {3, "2 Shots"}}; }
Choices TechnicalShots() { return {{1, "1 Shot"}, {2, "2 Shots"}}; }
Choices Disqualifying() { return Count({{0, "None"}}, 1, 10, "", " Fouls"); }
Choices Ejecting() {
  return {{0, "No Ejections"}, {1, "1 Technical"}, {2, "2 Technicals"}, {3, "3 Technicals"}};
}
Choices Seconds() { return Count({{0, "No Shot Clock"}}, 1, 45, "", " Seconds"); }
Choices Timeouts() { return Count({{0, "None"}}, 1, 15, "", ""); }
Choices TimeoutsLeft() { return Count({{0, "-----"}}, 1, 15, "", ""); }
Choices OvertimeTimeouts() { return {{0, "-----"}, {1, "1"}, {2, "2"}, {3, "3"}, {4, "+1"}, {5, "+2"}}; }
Choices TiedBall() { return {{0, "Jump Ball"}, {1, "Alternating Possession"}}; }
Choices Illegal() { return {{0, "None"}, {1, "One Warning"}, {2, "No Warnings"}}; }

Choices Injuries() {
  return {
      {0, "None"},
      {1,
       "In Game - Players are injured during the game based on their durability rating. Injuries may extend "
       "beyond one game."},
      {2, "Pregame - Players are randomly injured for one game only based on their durability rating."}};
}

Choices Durability() {
  Choices choices = Count({{0, "Use Player Ratings"}}, 1, 10, "All Players Rated ", "");
  choices[1].text += " (Low)";
  choices[10].text += " (High)";
  return choices;
}

Choices RosterLimits() { return Count({{0, "No Limit"}}, 8, 20, "", " Players"); }
Choices Standings() { return {{0, "Total Record"}, {1, "Division\\Conference"}}; }
Choices SalaryValues() { return {{0, "ORV Value"}, {1, "User\\Real Salary"}}; }

Choices Eras() {
  return {{0, "Blended Off/Def Era"},
          {1, "Average Historical Era"},
          {2, "1950's"},
          {3, "1960's"},
          {4, "1970's"},
          {5, "1980's"},
          {6, "1990's"},
          {7, "2000's"}};
}

Choices PhotoShapes() {
  return {{0, "1.1 to 1"}, {1, "3.5 to 2.5 (Basketball Card)"},  {2, "1 to 1 (Square)"},       {3, "10 to 8"},
          {4, "7 to 5"},   {5, "3 to 2  (Original ORV format)"}, {6, "2.5 to 3.5 (Horz Card)"}};
}

/// Value i: above 100 + i per cent of real life, in a playoff module above i per cent.
Choices UsageLevels(const std::string& what) {
  const int base = league.rules.IsPlayoffModule == 1 ? 0 : 100;
  Choices choices;
  for (int i = 0; i <= 100; ++i) {
    choices.push_back({static_cast<u8>(i), "Over " + std::to_string(base + i) + "% Of Real Life " + what});
  }
  return choices;
}
Choices UsageGames() { return UsageLevels("Games"); }
Choices UsageMinutes() { return UsageLevels("Minutes"); }
Choices ExemptGames() { return Count({{0, "No Exemptions"}}, 1, 80, "", " Games"); }
Choices ExemptMinutes() { return Count({{0, "No Exemptions"}}, 1, 40, "", " Minutes", 100); }
Choices ExemptAverage() {
  return Count({{0, "No Exemptions"}, {1, "1 Minute/Game"}}, 2, 50, "", " Minutes/Game");
}

Choices PauseSeconds() { return Count({{0, "Click To Continue"}}, 1, 15, "", " Seconds"); }
Choices ScoreWithin() { return Count({{0, "Tied"}}, 1, 30, "Within ", ""); }
Choices TimeRemaining() { return Count({{0, "-----"}, {1, "1 Minute"}}, 2, 14, "", " Minutes"); }
Choices Reaches() { return Count({{0, "None"}}, 1, 50, "", ""); }

// clang-format off
const RuleControl kControls[] = {
    {"Game", "PeriodList", "Periods", At<&R::PeriodList>, Periods},
    {"Game", "MinuteList", "Minutes Per Period", At<&R::MinuteList>, Minutes},
    {"Game", "OverTimeList", "Minutes Per Overtime", At<&R::OverTimeList>, Minutes},
    {"Game", "ThreePointCheck", "Three Point Shot", At<&R::ThreePointCheck>},
    {"Game", "QuarterJumpCheck", "Period Jump", At<&R::QuarterJumpCheck>},
    {"Game", "JumpBallList", "Tied Ball Jump Rule", At<&R::JumpBallList>, TiedBall},
    {"Game", "ShotClockList", "Shot Clock", At<&R::ShotClockList>, Seconds},
    {"Game", "ShotClockResetList", "Off Rebound Reset", At<&R::ShotClockResetList>, Seconds},
    {"Game", "DisplayTenthsCheck", "Display Tenths", At<&R::DisplayTenthsCheck>},
    {"Game", "ZoneLegalCheck", "Zone Legal", At<&R::ZoneLegalCheck>},
    {"Game", "IllegalDefenseList", "Illegal Defense", At<&R::IllegalDefenseList>, Illegal},
    {"Game", "ReplayReviewsCheck", "Replay Reviews", At<&R::ReplayReviewsCheck>},
    {"Game", "NeutralCheck", "All Games On Neutral Courts", At<&R::NeutralCheck>},
    {"Game", "GameEraList", "Era", At<&R::GameEraList>, Eras},
    {"Game", "FatigueMeterCheck", "Fatigue Meter Penalties", At<&R::FatigueMeterCheck>},

    {"Timeouts", "TimeoutList", "Timeouts - Regulation", At<&R::TimeoutList>, Timeouts},
    {"Timeouts", "LastPeriodTimeoutList", "Timeouts - Last Period", At<&R::LastPeriodTimeoutList>, TimeoutsLeft},
    {"Timeouts", "Last3MinTimeoutList", "Timeouts - Last 3 Min", At<&R::Last3MinTimeoutList>, TimeoutsLeft},
    {"Timeouts", "OvertimeTimeoutList", "Timeouts - Overtime", At<&R::OvertimeTimeoutList>, OvertimeTimeouts},
    {"Timeouts", "AutomaticTimeoutsCheck", "Media Timeouts", At<&R::AutomaticTimeoutsCheck>},

    {"Fouls", "FoulLimit(1)", "First Penalty", At<&R::FoulLimit, 1>, Fouls},
    {"Fouls", "Penalty(1)", "First Penalty Shots", At<&R::Penalty, 1>, Shots},
    {"Fouls", "FoulLimit(2)", "Second Penalty", At<&R::FoulLimit, 2>, Fouls},
    {"Fouls", "Penalty(2)", "Second Penalty Shots", At<&R::Penalty, 2>, Shots},
    {"Fouls", "FoulLimit(3)", "Third Penalty", At<&R::FoulLimit, 3>, Fouls},
    {"Fouls", "Penalty(3)", "Third Penalty Shots", At<&R::Penalty, 3>, Shots},
    {"Fouls", "ThreeToMakeTwoCheck", "3 To Make 2 When In Penalty On Missed Shots", At<&R::ThreeToMakeTwoCheck>},
    {"Fouls", "TwoToMakeOneCheck", "2 To Make 1 When In Penalty On Made Shots", At<&R::TwoToMakeOneCheck>},
    {"Fouls", "ThreeToMakeTwoBackcourtCheck", "3 To Make 2 When In Penalty On Backcourt Fouls",
     At<&R::ThreeToMakeTwoBackcourtCheck>},
    {"Fouls", "OneShotPrePenaltyCheck", "One Shot Pre Penalty", At<&R::OneShotPrePenaltyCheck>},
    {"Fouls", "BackcourtTwoShotsCheck", "Backcourt Two Shots", At<&R::BackcourtTwoShotsCheck>},
    {"Fouls", "PenaltyUnderTwoMinutesCheck", "One Foul Before Penalty Under Two Minutes",
     At<&R::PenaltyUnderTwoMinutesCheck>},
    {"Fouls", "OffensiveFoulTeamFoulCheck", "Offensive Foul Counts As Team Foul",
     At<&R::OffensiveFoulTeamFoulCheck>},
    {"Fouls", "OneShotOnOffensiveFoulBeforePenalty", "One FT Before Penalty",
     At<&R::OneShotOnOffensiveFoulBeforePenalty>},
    {"Fouls", "OnePlusOneAfterPenaltyONOffensiveFouls", "One + One After Penalty",
     At<&R::OnePlusOneAfterPenaltyONOffensiveFouls>},
    {"Fouls", "DqList", "Disqualification", At<&R::DqList>, Disqualifying},
    {"Fouls", "FlagrantCheck", "Flagrant Fouls", At<&R::FlagrantCheck>},
    {"Fouls", "TechList", "Tech Ejections", At<&R::TechList>, Ejecting},
    {"Fouls", "TechnicalFTslist", "Technical Free Throws", At<&R::TechnicalFTslist>, TechnicalShots},
    {"Fouls", "TechnicalPFCheck", "Count Technical As Personal Foul", At<&R::TechnicalPFCheck>, nullptr, 2, 1},
    {"Fouls", "SuspensionsCheck", "Suspensions", At<&R::SuspensionsCheck>},

    {"Players", "InjuryOption", "Injuries", At<&R::InjuryOption>, Injuries},
    {"Players", "TemporaryGameInjuriesCheck", "Temporary Partial Game Injuries",
     At<&R::TemporaryGameInjuriesCheck>},
    {"Players", "UniversalDurabilityList", "Player Durabilty Rating", At<&R::UniversalDurabilityList>, Durability},
    {"Players", "RosterLimitList", "Active Roster Limit", At<&R::RosterLimitList>, RosterLimits},
    {"Players", "TransactionDatesCheck", "Use Transaction Dates (If Available)", At<&R::TransactionDatesCheck>},
    {"Players", "TraditionalPosCheck", "Traditional Position Labels (C-F-G)", At<&R::TraditionalPosCheck>},
    {"Players", "AlternateRealityCheck", "Alternate Reality (Play Analysis Disabled)",
     At<&R::AlternateRealityCheck>},
    {"Players", "AllowComputerManMatchupsCheck", "Allow Human Coaches To Use Computer Man Matchups",
     At<&R::AllowComputerManMatchupsCheck>},
    {"Players", "AllowComputerGeneralManagerRosterChangesCheck",
     "Allow Computer GM To Make Roster Changes (Helps Control Player Usage. Does not apply to teams using daily "
     "lineups.)",
     At<&R::AllowComputerGeneralManagerRosterChangesCheck>},

    {"Usage", "SeasonUsagePenaltiesCheck", "Season Usage Penalties", At<&R::SeasonUsagePenaltiesCheck>},
    {"Usage", "SeasonUsageGamesList(1)", "Mild", At<&R::SeasonUsageGamesList, 1>, UsageGames},
    {"Usage", "SeasonUsageGamesList(2)", "Moderate", At<&R::SeasonUsageGamesList, 2>, UsageGames},
    {"Usage", "SeasonUsageGamesList(3)", "Major", At<&R::SeasonUsageGamesList, 3>, UsageGames},
    {"Usage", "SeasonUsageMinutesList(1)", "Mild", At<&R::SeasonUsageMinutesList, 1>, UsageMinutes},
    {"Usage", "SeasonUsageMinutesList(2)", "Moderate", At<&R::SeasonUsageMinutesList, 2>, UsageMinutes},
    {"Usage", "SeasonUsageMinutesList(3)", "Major", At<&R::SeasonUsageMinutesList, 3>, UsageMinutes},
    {"Usage", "SeasonUsageGamesExemptionList", "Exempt From", At<&R::SeasonUsageGamesExemptionList>, ExemptGames},
    {"Usage", "SeasonUsageMinutesExemptionList", "Exempt From", At<&R::SeasonUsageMinutesExemptionList>,
     ExemptMinutes},
    {"Usage", "MinutesPerGameExemptionList", "Exempt Up To", At<&R::MinutesPerGameExemptionList>, ExemptAverage},

    {"League", "StandingsOption", "Standings", At<&R::StandingsOption>, Standings},
    {"League", "HighlightAllTeamsCheck", "Highlight All Teams In Standings", At<&R::HighlightAllTeamsCheck>},
    {"League", "TickerCheck", "Game Score Ticker", At<&R::TickerCheck>},
    {"League", "AllTimeRecordCheck", "Include League Records In All-Time Record Book", At<&R::AllTimeRecordCheck>},
    {"League", "GameFilmsComputer", "Save Game Films From Computer Games", At<&R::GameFilmsComputer>},
    {"League", "GameFilmsHuman", "Save Game Films From Human Games", At<&R::GameFilmsHuman>},
    {"League", "SalaryValueList", "Salary\\Value Display", At<&R::SalaryValueList>, SalaryValues},
    {"League", "HideRealStatsCheck", "Hide Real Stats", At<&R::HideRealStatsCheck>, nullptr, 1, 0,
     " Don't Display Real Stats "},
    {"League", "PrivateLeaguePhotoFolderCheck", "Private League Photo Folder",
     At<&R::PrivateLeaguePhotoFolderCheck>},
    {"League", "PlayerHeigtToWidthList", "Player Photo Dimensions", At<&R::PlayerHeigtToWidthList>, PhotoShapes},

    {"Now Playing", "KeyPlayPauseTimeList", "Key Play Pause Time", At<&R::KeyPlayPauseTimeList>, PauseSeconds},
    {"Now Playing", "BlowoutSkipPauseCheck", "Skip Pauses In Blowouts", At<&R::BlowoutSkipPauseCheck>},
    {"Now Playing", "endOfGameCheck", "End Of Game", At<&R::endOfGameCheck>},
    {"Now Playing", "PauseEndOfQuarterCheck", "End Of Period", At<&R::PauseEndOfQuarterCheck>},
    {"Now Playing", "Pause4thQuarterScoreList", "Score Within", At<&R::Pause4thQuarterScoreList>, ScoreWithin},
    {"Now Playing", "Pause4thQuarterTimeList", "Time Remaining", At<&R::Pause4thQuarterTimeList>, TimeRemaining},
    {"Now Playing", "PlayerReachesList(0)", "Points", At<&R::PlayerReachesList, 0>, Reaches},
    {"Now Playing", "PlayerReachesList(1)", "Rebounds", At<&R::PlayerReachesList, 1>, Reaches},
    {"Now Playing", "PlayerReachesList(2)", "Assists", At<&R::PlayerReachesList, 2>, Reaches},
    {"Now Playing", "PlayerReachesList(3)", "Blocks", At<&R::PlayerReachesList, 3>, Reaches},
    {"Now Playing", "PlayerReachesList(4)", "Steals", At<&R::PlayerReachesList, 4>, Reaches},
    {"Now Playing", "PlayerReachesList(5)", "Turnovers", At<&R::PlayerReachesList, 5>, Reaches},
    {"Now Playing", "DoubleDoubleAchievedCheck", "Double-Double Achieved", At<&R::DoubleDoubleAchievedCheck>},
    {"Now Playing", "TripleDoubleAchievedCheck", "Triple-Double Achieved", At<&R::TripleDoubleAchievedCheck>},
    {"Now Playing", "InjuryCheck", "Injury", At<&R::InjuryCheck>},
    {"Now Playing", "EjectionCheck", "Ejection", At<&R::EjectionCheck>},
};
// clang-format on

}  // namespace

std::span<const RuleControl> RuleControls() { return kControls; }

}  // namespace tipline
