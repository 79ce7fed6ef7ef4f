#pragma once
// One row of HCPLAYER: a player for one team and season. Slots are 1500 bytes, the record takes 1499.
#include <concepts>
#include <type_traits>

#include "base/record.h"
#include "league/stat_line.h"

namespace tipline {

inline constexpr int kInactive = 99;  ///< PlayerRecord::Status of a man who does not play

struct PlayerRecord {
  static constexpr int kRecordSize = 1499;

  Text<15> FirstName, SourceId, ShortName;
  i16 Year = 0;
  u8 ImportTeam = 0;
  Table<StatLine, 1, 3> Stats, HomeStats, RoadStats;
  u8 UsageMark = 0, ShortNameMark = 0, DunkRatingMark = 0, SourceIdMark = 0, FirstNameMark = 0,
     UsePlayerFirstName = 0;
  u8 SeasonStartStatus = 0, ComboDone = 0;
  Text<6> ComboTag;
  u8 InjuryCountMark = 0, SeasonInjuryCount = 0, InjuryMark = 0, InjuryType = 0, InjurySeverity = 0,
     SuspensionGames = 0;
  Text<25> College;
  u8 FavoriteShotMark = 0, FavoriteShot = 0;
  Text<20> FavoriteShotText;
  u8 PhotoMark = 0, RealTeamMark = 0;
  Table<i16, 1, 2> RealTeamFGA, RealTeamFGM, RealTeamFTA, RealTeamFTM, RealTeamReb, RealTeamOff;
  Table<i16, 1, 2> RealTeamTo, RealTeamAst;
  u8 StreakFieldsMark = 0, LastGamePoints = 0, LastGameRebounds = 0, LastGameAssists = 0;
  Text<15> LastGameOpponent;
  u8 ReservedA = 0;
  Table2<i16, 1, 5, 1, 3> QuarterPoints;
  u8 InfoMark = 0;
  Text<20> LastName, InfoText;
  Table<StatLine, 1, 2> GameHighs;
  u8 HeightFeet = 0, HeightInches = 0;
  i16 Weight = 0;
  u8 Age = 0;
  i32 Salary = 0;
  u8 PrimaryPosition = 0, SecondaryPosition = 0, SpotPosition = 0, Status = 0, PositionShiftMark = 0;
  Text<2> ReservedB;
  u8 DunkMark = 0;
  i16 PlusMinus = 0;
  Text<22> ReservedC;
  u8 WinLossMark = 0, TeamWinsPlayed = 0, TeamLossesPlayed = 0;
  Table<u8, 1, 5> TeamWinsByPosition, TeamLossesByPosition;
  u8 TypeMark = 0;
  Text<1> Sex;
  Text<30> Nickname;
  u8 Salary2Mark = 0;
  i32 Salary2 = 0;
  u8 PositionGamesMark = 0;
  Table<u8, 1, 5> GamesAtPosition;
  Table<i16, 1, 5> MinutesAtPosition, PointsAtPosition;
  SeriesLine SeriesStats;
  i16 RecNo = 0, TeamNo = 0;
  Table<u8, 1, 5> ShotSelection, InactiveStartMonth, InactiveStartDay, InactiveStopMonth;
  Table<u8, 1, 5> InactiveStopDay;
  u8 EncyclopediaFlag = 0, EncyclopediaMark = 0;
  Text<7> ReservedD;
  Text<3> OriginalTeam;
  u8 OriginalTeamMark = 0, AltForm1 = 0, AltForm2 = 0, AltForm3 = 0, AltForm4 = 0, AltForm5 = 0,
     PlayAtCrunchTime = 0;
  u8 DontPlayCrunchTime = 0, DontPlayWhenTired = 0, UsageMark2 = 0;
  Table<u8, 1, 10> RotationOrder;
  u8 RotationMark = 0;
  Text<2> PositionText;
  Table<u8, 1, 5> DepthRank;
  u8 NicknameMark = 0;
  Text<19> ReservedE;
  u8 RatePassing = 0, RateOffense = 0, RateOffInside = 0, RateOffOutside = 0, RateOffFastbreak = 0,
     RateOffDrive = 0;
  u8 RateOffThree = 0, RateReserved1 = 0, RealInsidePct = 0, RateDunk = 0, RateRebDef = 0, RateRebOff = 0,
     OldRateDefOutside = 0;
  u8 OldRateDefInside = 0, RateReserved2 = 0, RateReserved3 = 0, RateReserved4 = 0, RateReserved5 = 0,
     RateDefForce = 0;
  u8 RateReserved6 = 0, RateSportsmanship = 0;
  Table<i16, 2, 3> ShotAttInside, ShotAttOutside, ShotAttThree, ShotAttDrive, ShotAttFastbreak2;
  Table<i16, 2, 3> ShotAttOffReb2, ShotAttFastbreak3, ShotAttOffReb3, ShotMadeInside, ShotMadeOutside;
  Table<i16, 2, 3> ShotMadeThree, ShotMadeDrive, ShotMadeFastbreak2, ShotMadeOffReb2;
  Table<i16, 2, 3> ShotMadeFastbreak3, ShotMadeOffReb3;
  u8 ReservedF = 0, ReservedG = 0, ReservedH = 0;
  Table<u8, 1, 2> AwardCounts;
  u8 ReservedI = 0, DoubleDoubles = 0, TripleDoubles = 0, QuadDoubles = 0;
  Table<i16, 2, 3> CarriedTotal1, CarriedTotal2, CarriedTotal3, CarriedTotal4;
  Text<9> ReservedJ;
  u8 LastInjuryMonth = 0, LastInjuryDay = 0;
  i16 DebutYear = 0;
  u8 SalaryModelMark = 0, RateDefOutside = 0, RateDefInside = 0, DefRatingMark = 0;
  Text<3> EncyclopediaTeam;
  u8 StartMonth = 0, EndMonth = 0, StartDay = 0, EndDay = 0, InjuryReturnMonth = 0, InjuryReturnDay = 0,
     RateDurability = 0;
  u8 ReservedN = 0, RestGames = 0;
  i16 FreeThrowStreak = 0, LongestFreeThrowStreak = 0, FieldGoalStreak = 0, LongestFieldGoalStreak = 0;
  Table2<u8, 1, 5, 1, 20> RotationGrid;
  u8 MinutesInjuryFactor = 0, RateClutch = 0;
  Table<i16, 2, 3> OppFGA, OppFGM;
  i16 ReservedK = 0, ReservedL = 0;
  u8 OriginalTeamFlag = 0;
  Text<1> PlayerType;
  u8 ScheduleStrength = 0;
  i16 ShareShots = 0, ShareBlocks = 0, ShareAssists = 0, ShareOffReb = 0, ShareDefReb = 0;
  u8 ShareMark = 0, MinutesMark = 0;
  Table<u8, 1, 5> PositionAllowed;
  u8 OnlyPlayInBlowouts = 0, NeverPlayInBlowouts = 0, TargetMinutes = 0;
  Text<2> UniformNumber;
  u8 UniformMark = 0;
  Text<25> PhotoFile;
  u8 FlagrantMark = 0;
  Table<u8, 2, 3> Flagrants;
  Text<4> ReservedM;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, PlayerRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "FirstName", r.FirstName, "first name");
  field(15, "SourceId", r.SourceId, "identifier of the player in an outside statistics source");
  field(30, "ShortName", r.ShortName, "display surname for grids and play-by-play, up to 15 characters");
  field(45, "Year", r.Year, "season year the data describe");
  field(47, "ImportTeam", r.ImportTeam, "team number the roster import last put the player on");
  field(48, "Stats", r.Stats, "all games: index 1 real life, 2 replay, 3 current or last game");
  field(240, "HomeStats", r.HomeStats, "games as home side: index 2 replay, 3 last such game; 1 is spare");
  field(432, "RoadStats", r.RoadStats, "games as visitor: index 2 replay, 3 last such game; 1 is spare");
  field(624, "UsageMark", r.UsageMark,
        "marker 99: DontPlayWhenTired was set for men who average under 30 minutes");
  field(625, "ShortNameMark", r.ShortNameMark, "marker 99: ShortName has been rewritten for common surnames");
  field(626, "DunkRatingMark", r.DunkRatingMark,
        "marker: the dunk rating of the 2021 data has been worked out");
  field(627, "SourceIdMark", r.SourceIdMark, "marker 11: SourceId is valid");
  field(628, "FirstNameMark", r.FirstNameMark, "marker 99: UsePlayerFirstName has been initialised");
  field(629, "UsePlayerFirstName", r.UsePlayerFirstName,
        "1: the commentary calls him by his first name alone");
  field(630, "SeasonStartStatus", r.SeasonStartStatus, "Status as it was before the team's first game");
  field(631, "ComboDone", r.ComboDone, "1: this row has been folded into his combined row");
  field(632, "ComboTag", r.ComboTag, "tag of the combined row; blank otherwise");
  field(638, "InjuryCountMark", r.InjuryCountMark, "marker 99: SeasonInjuryCount has been cleared");
  field(639, "SeasonInjuryCount", r.SeasonInjuryCount, "injuries suffered this season");
  field(640, "InjuryMark", r.InjuryMark, "marker 33: injury type, severity and suspension have been cleared");
  field(641, "InjuryType", r.InjuryType, "index of the injury's name; 0 none");
  field(642, "InjurySeverity", r.InjurySeverity,
        "1 day to day, may clear by itself; else the class of the injury");
  field(643, "SuspensionGames", r.SuspensionGames,
        "games of suspension left; one game is taken off after each game of the team");
  field(644, "College", r.College, "college or home town line");
  field(669, "FavoriteShotMark", r.FavoriteShotMark,
        "marker 33: the two favourite-shot fields have been looked up");
  field(670, "FavoriteShot", r.FavoriteShot, "index of the phrase for his favourite shot; 0 none");
  field(671, "FavoriteShotText", r.FavoriteShotText, "favourite shot in free words, for the commentary");
  field(691, "PhotoMark", r.PhotoMark,
        "marker 99: PhotoFile has been set to <LastName>_<FirstName>.jpg, from Year 2013 on");
  field(692, "RealTeamMark", r.RealTeamMark, "marker 11: the totals of his real team below hold");
  field(693, "RealTeamFGA", r.RealTeamFGA,
        "field-goal attempts of his real team (index 1) and of its opponents (2)");
  field(697, "RealTeamFGM", r.RealTeamFGM, "field goals made, same indexes");
  field(701, "RealTeamFTA", r.RealTeamFTA, "free-throw attempts, same indexes");
  field(705, "RealTeamFTM", r.RealTeamFTM, "free throws made, same indexes");
  field(709, "RealTeamReb", r.RealTeamReb, "rebounds, same indexes");
  field(713, "RealTeamOff", r.RealTeamOff, "offensive rebounds, same indexes");
  field(717, "RealTeamTo", r.RealTeamTo, "turnovers, same indexes");
  field(721, "RealTeamAst", r.RealTeamAst, "assists, same indexes");
  field(725, "StreakFieldsMark", r.StreakFieldsMark,
        "marker 99: the four last-game fields have been cleared");
  field(726, "LastGamePoints", r.LastGamePoints, "points in his last game");
  field(727, "LastGameRebounds", r.LastGameRebounds, "rebounds in his last game");
  field(728, "LastGameAssists", r.LastGameAssists, "assists in his last game");
  field(729, "LastGameOpponent", r.LastGameOpponent, "the opponent of his last game");
  field(744, "ReservedA", r.ReservedA, "spare");
  field(745, "QuarterPoints", r.QuarterPoints,
        "points by (period 1 to 4, 5 overtime; 1 real life, 2 replay, 3 game)");
  field(775, "InfoMark", r.InfoMark, "marker 99: InfoText has been cleared");
  field(776, "LastName", r.LastName, "surname, up to 20 characters");
  field(796, "InfoText", r.InfoText, "free information line shown on the player card");
  field(816, "GameHighs", r.GameHighs, "most in a game, field by field: index 1 real life, 2 replay");
  field(944, "HeightFeet", r.HeightFeet, "height, feet");
  field(945, "HeightInches", r.HeightInches, "height, inches");
  field(946, "Weight", r.Weight, "weight in pounds");
  field(948, "Age", r.Age, "age in years");
  field(949, "Salary", r.Salary, "computed value in thousands");
  field(953, "PrimaryPosition", r.PrimaryPosition,
        "1 point guard, 2 shooting guard, 3 small forward, 4 power forward, 5 centre");
  field(954, "SecondaryPosition", r.SecondaryPosition, "second position, 0 none");
  field(955, "SpotPosition", r.SpotPosition, "third position in which the player may fill in, 0 none");
  field(956, "Status", r.Status, "0 active, 99 inactive");
  field(957, "PositionShiftMark", r.PositionShiftMark,
        "marker 55: depth values of the older layout, 1 too high, have been taken down");
  field(958, "ReservedB", r.ReservedB, "spare text");
  field(960, "DunkMark", r.DunkMark, "marker 99: RateDunk has been derived from height for old players");
  field(961, "PlusMinus", r.PlusMinus, "replay plus/minus total");
  field(963, "ReservedC", r.ReservedC, "spare text");
  field(985, "WinLossMark", r.WinLossMark, "marker 99: the counters of team results have been cleared");
  field(986, "TeamWinsPlayed", r.TeamWinsPlayed, "team wins in games the player played");
  field(987, "TeamLossesPlayed", r.TeamLossesPlayed, "team losses in games the player played");
  field(988, "TeamWinsByPosition", r.TeamWinsByPosition, "team wins in games he played at position 1..5");
  field(993, "TeamLossesByPosition", r.TeamLossesByPosition, "team losses, same index");
  field(998, "TypeMark", r.TypeMark, "marker 55: PlayerType and Sex have been taken from the team");
  field(999, "Sex", r.Sex, "'M' or 'W'");
  field(1000, "Nickname", r.Nickname, "nickname the commentary may use");
  field(1030, "Salary2Mark", r.Salary2Mark, "marker 99: Salary2 has been cleared");
  field(1031, "Salary2", r.Salary2, "real or user salary in thousands");
  field(1035, "PositionGamesMark", r.PositionGamesMark,
        "marker 99: the counters by position have been cleared");
  field(1036, "GamesAtPosition", r.GamesAtPosition, "replay games at position 1..5");
  field(1041, "MinutesAtPosition", r.MinutesAtPosition, "replay minutes at position 1..5");
  field(1051, "PointsAtPosition", r.PointsAtPosition, "replay points at position 1..5");
  field(1061, "SeriesStats", r.SeriesStats, "totals of the current playoff series");
  field(1091, "RecNo", r.RecNo, "his record number in this file; 0: to be removed from the roster");
  field(1093, "TeamNo", r.TeamNo,
        "1..720 a team, 1001..1720 a former team's part of his season, 999 free agent, 0 erased row");
  field(1095, "ShotSelection", r.ShotSelection,
        "how often he takes 1 inside, 2 outside, 3 three, 4 drive, 5 fast break: 1 rarely, 3 as in real "
        "life, 5 much more");
  field(1100, "InactiveStartMonth", r.InactiveStartMonth, "five inactive spans: first season month");
  field(1105, "InactiveStartDay", r.InactiveStartDay, "first day");
  field(1110, "InactiveStopMonth", r.InactiveStopMonth, "last season month");
  field(1115, "InactiveStopDay", r.InactiveStopDay, "last day");
  field(1120, "EncyclopediaFlag", r.EncyclopediaFlag, "99 in an encyclopedia row of a draft team's player");
  field(1121, "EncyclopediaMark", r.EncyclopediaMark,
        "99 in an encyclopedia row that came from a playoff module");
  field(1122, "ReservedD", r.ReservedD, "spare text");
  field(1129, "OriginalTeam", r.OriginalTeam, "abbreviation of his first team in these data");
  field(1132, "OriginalTeamMark", r.OriginalTeamMark, "marker 22: OriginalTeam has been set");
  field(1133, "AltForm1", r.AltForm1, "alternate-reality variation 0..20, 10 neutral");
  field(1134, "AltForm2", r.AltForm2, "alternate-reality variation");
  field(1135, "AltForm3", r.AltForm3, "alternate-reality variation");
  field(1136, "AltForm4", r.AltForm4, "alternate-reality variation");
  field(1137, "AltForm5", r.AltForm5, "alternate-reality variation");
  field(1138, "PlayAtCrunchTime", r.PlayAtCrunchTime, "1: preferred in the last minutes of close games");
  field(1139, "DontPlayCrunchTime", r.DontPlayCrunchTime, "1: kept off the floor at crunch time");
  field(1140, "DontPlayWhenTired", r.DontPlayWhenTired, "1: substituted when tired");
  field(1141, "UsageMark2", r.UsageMark2, "marker 33: the usage fields have been set");
  field(1142, "RotationOrder", r.RotationOrder, "ten rotation entries in the coach's order");
  field(1152, "RotationMark", r.RotationMark, "marker 22: RotationOrder has been cleared");
  field(1153, "PositionText", r.PositionText, "two-letter position text shown in reports");
  field(1155, "DepthRank", r.DepthRank, "depth at position 1..5: 6 first choice down to 1, 0 none");
  field(1160, "NicknameMark", r.NicknameMark, "marker 199: Nickname has been looked up");
  field(1161, "ReservedE", r.ReservedE, "spare text");
  field(1180, "RatePassing", r.RatePassing, "rating: passing");
  field(1181, "RateOffense", r.RateOffense, "rating: overall offence, times 10");
  field(1182, "RateOffInside", r.RateOffInside, "rating: inside shot");
  field(1183, "RateOffOutside", r.RateOffOutside, "rating: outside shot");
  field(1184, "RateOffFastbreak", r.RateOffFastbreak, "rating: fastbreak");
  field(1185, "RateOffDrive", r.RateOffDrive, "rating: drive");
  field(1186, "RateOffThree", r.RateOffThree, "rating: three-point shot");
  field(1187, "RateReserved1", r.RateReserved1, "not used");
  field(1188, "RealInsidePct", r.RealInsidePct, "share of his two-point shots from inside, per cent in tens");
  field(1189, "RateDunk", r.RateDunk, "rating: dunk");
  field(1190, "RateRebDef", r.RateRebDef, "rating: defensive rebounding");
  field(1191, "RateRebOff", r.RateRebOff, "rating: offensive rebounding");
  field(1192, "OldRateDefOutside", r.OldRateDefOutside, "older rating, moved to RateDefOutside once");
  field(1193, "OldRateDefInside", r.OldRateDefInside, "older rating, moved to RateDefInside once");
  field(1194, "RateReserved2", r.RateReserved2, "not used");
  field(1195, "RateReserved3", r.RateReserved3, "not used");
  field(1196, "RateReserved4", r.RateReserved4, "not used");
  field(1197, "RateReserved5", r.RateReserved5, "not used");
  field(1198, "RateDefForce", r.RateDefForce, "rating: forcing turnovers");
  field(1199, "RateReserved6", r.RateReserved6, "not used");
  field(1200, "RateSportsmanship", r.RateSportsmanship, "rating: sportsmanship");
  field(1201, "ShotAttInside", r.ShotAttInside,
        "shot table, attempts inside: index 2 replay, 3 game; so the next fifteen");
  field(1205, "ShotAttOutside", r.ShotAttOutside, "attempts: Outside");
  field(1209, "ShotAttThree", r.ShotAttThree, "attempts: Three (from a play)");
  field(1213, "ShotAttDrive", r.ShotAttDrive, "attempts: Drive");
  field(1217, "ShotAttFastbreak2", r.ShotAttFastbreak2, "attempts: Fastbreak, two points");
  field(1221, "ShotAttOffReb2", r.ShotAttOffReb2, "attempts: off an offensive rebound, two points");
  field(1225, "ShotAttFastbreak3", r.ShotAttFastbreak3, "attempts: Fastbreak, three points");
  field(1229, "ShotAttOffReb3", r.ShotAttOffReb3, "attempts: off an offensive rebound, three points");
  field(1233, "ShotMadeInside", r.ShotMadeInside, "made: Inside");
  field(1237, "ShotMadeOutside", r.ShotMadeOutside, "made: Outside");
  field(1241, "ShotMadeThree", r.ShotMadeThree, "made: Three (from a play)");
  field(1245, "ShotMadeDrive", r.ShotMadeDrive, "made: Drive");
  field(1249, "ShotMadeFastbreak2", r.ShotMadeFastbreak2, "made: Fastbreak, two points");
  field(1253, "ShotMadeOffReb2", r.ShotMadeOffReb2, "made: off an offensive rebound, two points");
  field(1257, "ShotMadeFastbreak3", r.ShotMadeFastbreak3, "made: Fastbreak, three points");
  field(1261, "ShotMadeOffReb3", r.ShotMadeOffReb3, "made: off an offensive rebound, three points");
  field(1265, "ReservedF", r.ReservedF, "spare");
  field(1266, "ReservedG", r.ReservedG, "derived in a game");
  field(1267, "ReservedH", r.ReservedH, "spare");
  field(1268, "AwardCounts", r.AwardCounts, "index 2: most points in a game, held at 255");
  field(1270, "ReservedI", r.ReservedI, "spare");
  field(1271, "DoubleDoubles", r.DoubleDoubles, "double-doubles");
  field(1272, "TripleDoubles", r.TripleDoubles, "triple-doubles");
  field(1273, "QuadDoubles", r.QuadDoubles, "quadruple-doubles");
  field(1274, "CarriedTotal1", r.CarriedTotal1,
        "carried through the game file, read by nobody: index 2 replay, 3 game");
  field(1278, "CarriedTotal2", r.CarriedTotal2, "the same");
  field(1282, "CarriedTotal3", r.CarriedTotal3, "the same");
  field(1286, "CarriedTotal4", r.CarriedTotal4, "the same");
  field(1290, "ReservedJ", r.ReservedJ, "spare text");
  field(1299, "LastInjuryMonth", r.LastInjuryMonth, "season month of the last game he played");
  field(1300, "LastInjuryDay", r.LastInjuryDay, "day of the last game he played");
  field(1301, "DebutYear", r.DebutYear, "first year in the league; shown from 1 to 2050");
  field(1303, "SalaryModelMark", r.SalaryModelMark,
        "marker of the debut-year lookup: 123, 155 or 210 by Year");
  field(1304, "RateDefOutside", r.RateDefOutside, "rating: defence of outside players ('D-Man')");
  field(1305, "RateDefInside", r.RateDefInside, "rating: defence of inside players ('D-In')");
  field(1306, "DefRatingMark", r.DefRatingMark, "marker 99: defensive ratings have been derived");
  field(1307, "EncyclopediaTeam", r.EncyclopediaTeam,
        "abbreviation under which his season goes into the encyclopedia; FA for a free agent");
  field(1310, "StartMonth", r.StartMonth, "first day he may play, season month");
  field(1311, "EndMonth", r.EndMonth, "last day he may play, season month");
  field(1312, "StartDay", r.StartDay, "first day he may play, day");
  field(1313, "EndDay", r.EndDay, "last day he may play, day");
  field(1314, "InjuryReturnMonth", r.InjuryReturnMonth,
        "season month of his return from injury, 0 not injured");
  field(1315, "InjuryReturnDay", r.InjuryReturnDay, "day of that return");
  field(1316, "RateDurability", r.RateDurability, "rating: durability");
  field(1317, "ReservedN", r.ReservedN, "spare");
  field(1318, "RestGames", r.RestGames, "games sat out since he last played");
  field(1319, "FreeThrowStreak", r.FreeThrowStreak, "free throws made in a row");
  field(1321, "LongestFreeThrowStreak", r.LongestFreeThrowStreak, "longest such streak");
  field(1323, "FieldGoalStreak", r.FieldGoalStreak, "field goals made in a row");
  field(1325, "LongestFieldGoalStreak", r.LongestFieldGoalStreak, "longest such streak");
  field(1327, "RotationGrid", r.RotationGrid,
        "where he stands by period (5 = overtime) and minute: position 1..5, 0 off the floor");
  field(1427, "MinutesInjuryFactor", r.MinutesInjuryFactor, "above 10 raises the risk of an injury");
  field(1428, "RateClutch", r.RateClutch, "rating: clutch");
  field(1429, "OppFGA", r.OppFGA, "shots of the men he guarded, attempts: index 2 replay, 3 game");
  field(1433, "OppFGM", r.OppFGM, "shots of the men he guarded, made");
  field(1437, "ReservedK", r.ReservedK, "not used; cleared at the season reset");
  field(1439, "ReservedL", r.ReservedL, "not used; cleared at the season reset");
  field(1441, "OriginalTeamFlag", r.OriginalTeamFlag, "set by the team setup tool");
  field(1442, "PlayerType", r.PlayerType,
        "'P' pro, 'C' college, 'A' alternate pro league, 'O' international");
  field(1443, "ScheduleStrength", r.ScheduleStrength,
        "strength of schedule of his college or international team");
  field(1444, "ShareShots", r.ShareShots, "team shots while he was on the floor, replay");
  field(1446, "ShareBlocks", r.ShareBlocks, "opponents' two-point shots while he was on the floor");
  field(1448, "ShareAssists", r.ShareAssists, "team field goals made while he was on the floor");
  field(1450, "ShareOffReb", r.ShareOffReb, "chances of an offensive rebound while he was on the floor");
  field(1452, "ShareDefReb", r.ShareDefReb, "chances of a defensive rebound while he was on the floor");
  field(1454, "ShareMark", r.ShareMark, "marker 99: the five shares hold");
  field(1455, "MinutesMark", r.MinutesMark, "marker 33: TargetMinutes and PositionAllowed have been set");
  field(1456, "PositionAllowed", r.PositionAllowed, "1: he may be used at position 1..5");
  field(1461, "OnlyPlayInBlowouts", r.OnlyPlayInBlowouts, "1: used in decided games only");
  field(1462, "NeverPlayInBlowouts", r.NeverPlayInBlowouts, "1: never used in decided games");
  field(1463, "TargetMinutes", r.TargetMinutes, "minutes per game wanted of him");
  field(1464, "UniformNumber", r.UniformNumber, "number on his shirt");
  field(1466, "UniformMark", r.UniformMark, "marker 33: UniformNumber has been looked up");
  field(1467, "PhotoFile", r.PhotoFile, "player photo file name");
  field(1492, "FlagrantMark", r.FlagrantMark, "marker 99: Flagrants has been cleared");
  field(1493, "Flagrants", r.Flagrants, "flagrant fouls of both grades: index 2 replay, 3 game");
  field(1495, "ReservedM", r.ReservedM, "spare text");
}

}  // namespace tipline
