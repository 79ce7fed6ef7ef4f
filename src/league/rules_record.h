#pragma once
// Record 1 of HCRULES: the rule book of a league. Slots are 10000 bytes.
// A field called a marker holds its value once the repair that fills the fields beside it has run.
#include <concepts>
#include <type_traits>

#include "base/record.h"

namespace tipline {

struct RulesRecord {
  static constexpr int kRecordSize = 2680;

  Table<Text<15>, 1, 36> DivisionName;
  Text<30> LeagueName;
  u8 PeriodList = 0, MinuteList = 0, OverTimeList = 0, ThreePointCheck = 0;
  Table<u8, 1, 3> FoulLimit, Penalty;
  u8 ThreeToMakeTwoCheck = 0, FlagrantCheck = 0, DqList = 0, QuarterJumpCheck = 0, ShotClockList = 0,
     ZoneLegalCheck = 0;
  u8 TimeoutList = 0, TechList = 0, OneShotPrePenaltyCheck = 0, BackcourtTwoShotsCheck = 0,
     LastPeriodTimeoutList = 0;
  u8 InjuryOption = 0, PenaltyUnderTwoMinutesCheck = 0, TechnicalFTslist = 0, TechnicalPFCheck = 0;
  u8 AutomaticTimeoutsCheck = 0, NeutralCheck = 0, GameEraList = 0, EraMark = 0, PrePenaltyMark = 0,
     GameFilmsComputer = 0;
  u8 GameFilmsHuman = 0, TransactionDatesCheck = 0, RosterLimitList = 0, RosterLimitMark = 0,
     TraditionalPosCheck = 0;
  u8 StandingsOption = 0, StandingsMark = 0, NotUsed608 = 0;
  Table<u8, 0, 720> TeamList;
  u8 HighlightAllTeamsCheck = 0, ModuleMark = 0, IsPlayoffModule = 0, HasPlayoffModule = 0;
  Text<100> NotUsed1334;
  u8 AlternateRealityCheck = 0, AlternateRealityMark = 0, TwoToMakeOneCheck = 0, TwoToMakeOneMark = 0,
     BackcourtMark = 0;
  u8 ThreeToMakeTwoBackcourtCheck = 0, OffensiveFoulMark = 0, OffensiveFoulTeamFoulCheck = 0;
  u8 OneShotOnOffensiveFoulBeforePenalty = 0, OnePlusOneAfterPenaltyONOffensiveFouls = 0,
     ReplayReviewMark = 0;
  u8 ReplayReviewsCheck = 0, TemporaryInjuryMark = 0, TemporaryGameInjuriesCheck = 0, FlagrantMark = 0;
  u8 PrivateLeaguePhotoFolderCheck = 0, PhotoFolderMark = 0, AllTimeMark = 0, AllTimeRecordCheck = 0,
     JumpBallMark = 0;
  u8 JumpBallList = 0, TenthsMark = 0, DisplayTenthsCheck = 0, ManMatchupsMark = 0,
     AllowComputerManMatchupsCheck = 0;
  Text<200> ParentLeagueFolder;
  u8 ScrollMark = 0, StandingsScrollPos = 0, UsageMark = 0, SeasonUsagePenaltiesCheck = 0;
  Table<u8, 1, 3> SeasonUsageGamesList, SeasonUsageMinutesList;
  u8 SeasonUsageGamesExemptionList = 0, SeasonUsageMinutesExemptionList = 0, TickerMark = 0, TickerCheck = 0;
  u8 AnalysisMark = 0;
  i16 AnalysisOffenseTeam = 0, AnalysisDefenseTeam = 0;
  u8 GameFilmMark = 0, PauseMark = 0;
  Table<u8, 0, 720> PauseTeamList;
  u8 KeyPlayPauseTimeList = 0, BlowoutSkipPauseCheck = 0, endOfGameCheck = 0, PauseEndOfQuarterCheck = 0;
  u8 Pause4thQuarterScoreList = 0, Pause4thQuarterTimeList = 0;
  Table<u8, 0, 5> PlayerReachesList;
  u8 DoubleDoubleAchievedCheck = 0, TripleDoubleAchievedCheck = 0, InjuryCheck = 0, EjectionCheck = 0,
     NotUsed2417 = 0;
  u8 MinutesPerGameExemptionList = 0, DraftRangeMark = 0;
  i16 MMinText = 0, MMaxText = 0, GMinText = 0, GMaxText = 0, AgeMinText = 0, AgeMaxText = 0, YearMinText = 0,
      YearMaxText = 0;
  u8 SuspensionMark = 0, SuspensionsCheck = 0, FreeAgentBlendMark = 0, LogoMark = 0;
  Text<50> LeagueLogo;
  i16 NotUsed2490 = 0;
  u8 SalaryMark = 0, SalaryValueList = 0, IllegalDefenseMark = 0, IllegalDefenseList = 0, TimeoutMark = 0;
  u8 Last3MinTimeoutList = 0, OvertimeTimeoutList = 0, ComputerGmMark = 0;
  u8 AllowComputerGeneralManagerRosterChangesCheck = 0, ScheduleFileMark = 0;
  Text<30> ScheduleFile;
  u8 ExportNameMark = 0;
  Text<25> MyNameText;
  u8 RecapMark = 0;
  Table<u8, 1, 3> RecapChoices;
  u8 DurabilityMark = 0, UniversalDurabilityList = 0, HideRealMark = 0, HideRealStatsCheck = 0,
     ShotClockResetMark = 0;
  u8 ShotClockResetList = 0, FatigueMark = 0, FatigueMeterCheck = 0, RosterViewMark = 0, RosterView = 0,
     CleanMark = 0;
  u8 ZipNameMark = 0, IncludeDateInName = 0;
  i16 NotUsed2575 = 0;
  u8 PhotoShapeMark = 0, PlayerHeigtToWidthList = 0, NotUsed2579 = 0;
  Text<100> NotUsed2580;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, RulesRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "DivisionName", r.DivisionName, "division names");
  field(540, "LeagueName", r.LeagueName, "the league's name");
  field(570, "PeriodList", r.PeriodList, "periods per game: 2 ('2 Per Game') or 4 ('4 Per Game')");
  field(571, "MinuteList", r.MinuteList, "minutes per period, 1 to 20");
  field(572, "OverTimeList", r.OverTimeList, "minutes of an overtime period, 1 to 20");
  field(573, "ThreePointCheck", r.ThreePointCheck, "1: 'Three Point Shot' exists");
  field(574, "FoulLimit", r.FoulLimit, "team fouls at which penalty step 1, 2, 3 begins; ascending");
  field(577, "Penalty", r.Penalty,
        "shots at each step: 0 'No Free Throws', 1 '1 Shot', 2 '1 And 1', 3 '2 Shots'");
  field(580, "ThreeToMakeTwoCheck", r.ThreeToMakeTwoCheck,
        "1: '3 To Make 2 When In Penalty On Missed Shots'");
  field(581, "FlagrantCheck", r.FlagrantCheck, "1: 'Flagrant Fouls' are called");
  field(582, "DqList", r.DqList, "personal fouls that disqualify, 1 to 10; 0 'None'");
  field(583, "QuarterJumpCheck", r.QuarterJumpCheck,
        "1: 'Period Jump': every period starts with a jump ball");
  field(584, "ShotClockList", r.ShotClockList, "shot clock in seconds, 1 to 45; 0 'No Shot Clock'");
  field(585, "ZoneLegalCheck", r.ZoneLegalCheck, "1: 'Zone Legal'");
  field(586, "TimeoutList", r.TimeoutList, "'Timeouts - Regulation': 0 'None' or 1 to 15");
  field(587, "TechList", r.TechList, "'Tech Ejections': technicals that eject, 0 none");
  field(588, "OneShotPrePenaltyCheck", r.OneShotPrePenaltyCheck, "1: 'One Shot Pre Penalty'");
  field(589, "BackcourtTwoShotsCheck", r.BackcourtTwoShotsCheck, "1: 'Backcourt Two Shots'");
  field(590, "LastPeriodTimeoutList", r.LastPeriodTimeoutList,
        "'Timeouts - Last Period': at most this many may be left for it; 0 no limit");
  field(591, "InjuryOption", r.InjuryOption, "0 'None', 1 'In Game', 2 'Pregame'");
  field(592, "PenaltyUnderTwoMinutesCheck", r.PenaltyUnderTwoMinutesCheck,
        "1: 'One Foul Before Penalty Under Two Minutes'");
  field(593, "TechnicalFTslist", r.TechnicalFTslist, "free throws for a technical: 1 '1 Shot', 2 '2 Shots'");
  field(594, "TechnicalPFCheck", r.TechnicalPFCheck, "2: 'Count Technical As Personal Foul'; 1: not counted");
  field(595, "AutomaticTimeoutsCheck", r.AutomaticTimeoutsCheck, "1: 'Media Timeouts'");
  field(596, "NeutralCheck", r.NeutralCheck, "1: 'All Games On Neutral Courts'");
  field(597, "GameEraList", r.GameEraList,
        "era the chances are tied to: 0 blended, 1 average historical, 2 to 7 the decades");
  field(598, "EraMark", r.EraMark, "marker 99");
  field(599, "PrePenaltyMark", r.PrePenaltyMark, "marker 1");
  field(600, "GameFilmsComputer", r.GameFilmsComputer, "1: 'Save Game Films From Computer Games'");
  field(601, "GameFilmsHuman", r.GameFilmsHuman, "1: 'Save Game Films From Human Games'");
  field(602, "TransactionDatesCheck", r.TransactionDatesCheck, "1: 'Use Transaction Dates (If Available)'");
  field(603, "RosterLimitList", r.RosterLimitList, "'Active Roster Limit': 8 to 20 players; 0 'No Limit'");
  field(604, "RosterLimitMark", r.RosterLimitMark, "marker 77");
  field(605, "TraditionalPosCheck", r.TraditionalPosCheck, "1: 'Traditional Position Labels (C-F-G)'");
  field(606, "StandingsOption", r.StandingsOption, "0 'Total Record', 1 'Division\\Conference'");
  field(607, "StandingsMark", r.StandingsMark, "marker 99");
  field(608, "NotUsed608", r.NotUsed608, "not used");
  field(609, "TeamList", r.TeamList, "favourite teams: non-zero marks a team highlighted on the main screen");
  field(1330, "HighlightAllTeamsCheck", r.HighlightAllTeamsCheck, "1: 'Highlight All Teams In Standings'");
  field(1331, "ModuleMark", r.ModuleMark, "marker 99");
  field(1332, "IsPlayoffModule", r.IsPlayoffModule, "1 in a playoff module");
  field(1333, "HasPlayoffModule", r.HasPlayoffModule, "1 when the league has a playoff module");
  field(1334, "NotUsed1334", r.NotUsed1334, "not used");
  field(1434, "AlternateRealityCheck", r.AlternateRealityCheck,
        "1: 'Alternate Reality (Play Analysis Disabled)'");
  field(1435, "AlternateRealityMark", r.AlternateRealityMark, "marker 99");
  field(1436, "TwoToMakeOneCheck", r.TwoToMakeOneCheck, "1: '2 To Make 1 When In Penalty On Made Shots'");
  field(1437, "TwoToMakeOneMark", r.TwoToMakeOneMark, "marker 22");
  field(1438, "BackcourtMark", r.BackcourtMark, "marker 99");
  field(1439, "ThreeToMakeTwoBackcourtCheck", r.ThreeToMakeTwoBackcourtCheck,
        "1: '3 To Make 2 When In Penalty On Backcourt Fouls'");
  field(1440, "OffensiveFoulMark", r.OffensiveFoulMark, "marker 77");
  field(1441, "OffensiveFoulTeamFoulCheck", r.OffensiveFoulTeamFoulCheck,
        "1: 'Offensive Foul Counts As Team Foul'");
  field(1442, "OneShotOnOffensiveFoulBeforePenalty", r.OneShotOnOffensiveFoulBeforePenalty,
        "1: 'One FT Before Penalty'");
  field(1443, "OnePlusOneAfterPenaltyONOffensiveFouls", r.OnePlusOneAfterPenaltyONOffensiveFouls,
        "1: 'One + One After Penalty'");
  field(1444, "ReplayReviewMark", r.ReplayReviewMark, "marker 33");
  field(1445, "ReplayReviewsCheck", r.ReplayReviewsCheck, "1: 'Replay Reviews'");
  field(1446, "TemporaryInjuryMark", r.TemporaryInjuryMark, "marker 199");
  field(1447, "TemporaryGameInjuriesCheck", r.TemporaryGameInjuriesCheck,
        "non-zero: 'Temporary Partial Game Injuries'");
  field(1448, "FlagrantMark", r.FlagrantMark, "marker 22");
  field(1449, "PrivateLeaguePhotoFolderCheck", r.PrivateLeaguePhotoFolderCheck,
        "1: photos lie in a sub-folder named after the league folder");
  field(1450, "PhotoFolderMark", r.PhotoFolderMark, "marker 99");
  field(1451, "AllTimeMark", r.AllTimeMark, "marker 99");
  field(1452, "AllTimeRecordCheck", r.AllTimeRecordCheck,
        "1: 'Include League Records In All-Time Record Book'");
  field(1453, "JumpBallMark", r.JumpBallMark, "marker 99");
  field(1454, "JumpBallList", r.JumpBallList,
        "'Tied Ball Jump Rule': 0 'Jump Ball', 1 'Alternating Possession'");
  field(1455, "TenthsMark", r.TenthsMark, "marker 99");
  field(1456, "DisplayTenthsCheck", r.DisplayTenthsCheck,
        "1: 'Display Tenths': tenths of a second on the clock");
  field(1457, "ManMatchupsMark", r.ManMatchupsMark, "marker 11");
  field(1458, "AllowComputerManMatchupsCheck", r.AllowComputerManMatchupsCheck,
        "1: 'Allow Human Coaches To Use Computer Man Matchups'");
  field(1459, "ParentLeagueFolder", r.ParentLeagueFolder,
        "in a playoff module, the folder of the league it came from");
  field(1659, "ScrollMark", r.ScrollMark, "marker 99");
  field(1660, "StandingsScrollPos", r.StandingsScrollPos, "scroll position of the main screen's standings");
  field(1661, "UsageMark", r.UsageMark, "marker 22");
  field(1662, "SeasonUsagePenaltiesCheck", r.SeasonUsagePenaltiesCheck, "1: 'Season Usage Penalties'");
  field(1663, "SeasonUsageGamesList", r.SeasonUsageGamesList,
        "levels mild, moderate, major: i means over 100 + i per cent of the real games");
  field(1666, "SeasonUsageMinutesList", r.SeasonUsageMinutesList, "the same levels for minutes");
  field(1669, "SeasonUsageGamesExemptionList", r.SeasonUsageGamesExemptionList,
        "players with at least this many real games are exempt; 0 nobody");
  field(1670, "SeasonUsageMinutesExemptionList", r.SeasonUsageMinutesExemptionList,
        "players with at least this many hundred real minutes are exempt; 0 nobody");
  field(1671, "TickerMark", r.TickerMark, "marker 99");
  field(1672, "TickerCheck", r.TickerCheck, "1: 'Game Score Ticker' while a game is played");
  field(1673, "AnalysisMark", r.AnalysisMark, "marker 99");
  field(1674, "AnalysisOffenseTeam", r.AnalysisOffenseTeam,
        "remembered pick of the offence list of HcPlayAnalysis");
  field(1676, "AnalysisDefenseTeam", r.AnalysisDefenseTeam,
        "remembered pick of the defence list of HcPlayAnalysis");
  field(1678, "GameFilmMark", r.GameFilmMark, "marker 99");
  field(1679, "PauseMark", r.PauseMark, "marker 77");
  field(1680, "PauseTeamList", r.PauseTeamList,
        "teams for which 'Now Playing' pauses apply; 255 for all at first");
  field(2401, "KeyPlayPauseTimeList", r.KeyPlayPauseTimeList,
        "'Key Play Pause Time': 0 'Click To Continue', 1 to 15 seconds");
  field(2402, "BlowoutSkipPauseCheck", r.BlowoutSkipPauseCheck, "1: 'Skip Pauses In Blowouts'");
  field(2403, "endOfGameCheck", r.endOfGameCheck, "1: pause at 'End Of Game'");
  field(2404, "PauseEndOfQuarterCheck", r.PauseEndOfQuarterCheck, "1: pause at 'End Of Period'");
  field(2405, "Pause4thQuarterScoreList", r.Pause4thQuarterScoreList,
        "last period 'Score Within': 0 'Tied', n 'Within <n>', up to 30");
  field(2406, "Pause4thQuarterTimeList", r.Pause4thQuarterTimeList,
        "last period 'Time Remaining': 0 none, else minutes, up to 14");
  field(2407, "PlayerReachesList", r.PlayerReachesList,
        "pause when a player reaches this many points, rebounds, assists, blocks, steals, turnovers");
  field(2413, "DoubleDoubleAchievedCheck", r.DoubleDoubleAchievedCheck,
        "1: pause at 'Double-Double Achieved'");
  field(2414, "TripleDoubleAchievedCheck", r.TripleDoubleAchievedCheck,
        "1: pause at 'Triple-Double Achieved'");
  field(2415, "InjuryCheck", r.InjuryCheck, "1: pause at an 'Injury'");
  field(2416, "EjectionCheck", r.EjectionCheck, "1: pause at an 'Ejection'");
  field(2417, "NotUsed2417", r.NotUsed2417, "not used");
  field(2418, "MinutesPerGameExemptionList", r.MinutesPerGameExemptionList,
        "players at or below this many replay minutes a game are exempt; 0 nobody");
  field(2419, "DraftRangeMark", r.DraftRangeMark, "marker 33");
  field(2420, "MMinText", r.MMinText, "draft limits: least real minutes");
  field(2422, "MMaxText", r.MMaxText, "most real minutes");
  field(2424, "GMinText", r.GMinText, "least real games");
  field(2426, "GMaxText", r.GMaxText, "most real games");
  field(2428, "AgeMinText", r.AgeMinText, "least age");
  field(2430, "AgeMaxText", r.AgeMaxText, "most age");
  field(2432, "YearMinText", r.YearMinText, "earliest Year");
  field(2434, "YearMaxText", r.YearMaxText, "latest Year");
  field(2436, "SuspensionMark", r.SuspensionMark, "marker 99");
  field(2437, "SuspensionsCheck", r.SuspensionsCheck, "1: 'Suspensions' follow ejections and flagrant fouls");
  field(2438, "FreeAgentBlendMark", r.FreeAgentBlendMark, "marker 99: the free agents have been blended in");
  field(2439, "LogoMark", r.LogoMark, "marker 99");
  field(2440, "LeagueLogo", r.LeagueLogo, "file name of the league logo, default 'LeagueLogo.jpg'");
  field(2490, "NotUsed2490", r.NotUsed2490, "not used");
  field(2492, "SalaryMark", r.SalaryMark, "marker 199");
  field(2493, "SalaryValueList", r.SalaryValueList,
        "'Salary\\Value Display': 0 'ORV Value', 1 'User\\Real Salary'");
  field(2494, "IllegalDefenseMark", r.IllegalDefenseMark, "marker 111");
  field(2495, "IllegalDefenseList", r.IllegalDefenseList,
        "'Illegal Defense': 0 'None', 1 'One Warning', 2 'No Warnings'");
  field(2496, "TimeoutMark", r.TimeoutMark, "marker 99");
  field(2497, "Last3MinTimeoutList", r.Last3MinTimeoutList,
        "'Timeouts - Last 3 Min': at most this many from then on; 0 no limit");
  field(2498, "OvertimeTimeoutList", r.OvertimeTimeoutList,
        "'Timeouts - Overtime': 0 no limit, 1 to 3, 4 and 5 one or two more than left");
  field(2499, "ComputerGmMark", r.ComputerGmMark, "marker 99");
  field(2500, "AllowComputerGeneralManagerRosterChangesCheck",
        r.AllowComputerGeneralManagerRosterChangesCheck, "1: 'Allow Computer GM To Make Roster Changes'");
  field(2501, "ScheduleFileMark", r.ScheduleFileMark, "marker 99");
  field(2502, "ScheduleFile", r.ScheduleFile, "current schedule file, default 'Sked.skd'");
  field(2532, "ExportNameMark", r.ExportNameMark, "marker 99");
  field(2533, "MyNameText", r.MyNameText, "game name for exported games, default 'MyName'");
  field(2558, "RecapMark", r.RecapMark, "marker 99");
  field(2559, "RecapChoices", r.RecapChoices, "three remembered choices of HcGameRecaps");
  field(2562, "DurabilityMark", r.DurabilityMark, "marker 99");
  field(2563, "UniversalDurabilityList", r.UniversalDurabilityList,
        "'Player Durabilty Rating': 0 'Use Player Ratings', n 'All Players Rated <n>'");
  field(2564, "HideRealMark", r.HideRealMark, "marker 99");
  field(2565, "HideRealStatsCheck", r.HideRealStatsCheck, "1: 'Hide Real Stats'");
  field(2566, "ShotClockResetMark", r.ShotClockResetMark, "marker 99");
  field(2567, "ShotClockResetList", r.ShotClockResetList,
        "'Off Rebound Reset': shot clock after an offensive rebound, in seconds");
  field(2568, "FatigueMark", r.FatigueMark, "marker 222");
  field(2569, "FatigueMeterCheck", r.FatigueMeterCheck, "1: 'Fatigue Meter Penalties'");
  field(2570, "RosterViewMark", r.RosterViewMark, "marker 99");
  field(2571, "RosterView", r.RosterView, "remembered page of HcRosters2021; default 1");
  field(2572, "CleanMark", r.CleanMark, "marker 133: the league folder has been cleaned");
  field(2573, "ZipNameMark", r.ZipNameMark, "marker 99");
  field(2574, "IncludeDateInName", r.IncludeDateInName, "1: HCZIPLEAGUEFILES puts the date in the file name");
  field(2575, "NotUsed2575", r.NotUsed2575, "not used");
  field(2577, "PhotoShapeMark", r.PhotoShapeMark, "marker 99");
  field(2578, "PlayerHeigtToWidthList", r.PlayerHeigtToWidthList,
        "'Player Photo Dimensions', height to width: 0 1.1, 1 3.5 to 2.5, 2 square, 3 10 to 8, 4 7 to 5, 5 3 "
        "to 2, 6 2.5 to 3.5");
  field(2579, "NotUsed2579", r.NotUsed2579, "not used");
  field(2580, "NotUsed2580", r.NotUsed2580, "not used");
}

}  // namespace tipline
