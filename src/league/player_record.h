#pragma once
// One row of HCPLAYER: a player for one team and season. Slots are 1500 bytes, the record takes 1499.
#include <concepts>
#include <type_traits>

#include "base/record.h"
#include "league/stat_line.h"

namespace tipline {

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
  field(45, "Year", r.Year,
        "season year the data describe (full year, 1900 + list index on the edit screen)");
  field(47, "ImportTeam", r.ImportTeam, "team number the roster import last put the player on");
  field(48, "Stats", r.Stats, "three StatLine records, the player's totals in all games");
  field(240, "HomeStats", r.HomeStats, "three StatLine records for games as side 2");
  field(432, "RoadStats", r.RoadStats, "three StatLine records for games as side 1");
  field(624, "UsageMark", r.UsageMark,
        "marker 99: DontPlayWhenTired was set for players who average under 30 minutes");
  field(625, "ShortNameMark", r.ShortNameMark, "marker 99: ShortName has been rewritten for common surnames");
  field(626, "DunkRatingMark", r.DunkRatingMark,
        "marker for the one-time dunk-rating derivation of the 2021 data");
  field(627, "SourceIdMark", r.SourceIdMark, "marker 11: SourceId is valid");
  field(628, "FirstNameMark", r.FirstNameMark, "marker 99: UsePlayerFirstName has been initialised");
  field(629, "UsePlayerFirstName", r.UsePlayerFirstName,
        "1: the commentary calls the player by FirstName alone (one-name players)");
  field(630, "SeasonStartStatus", r.SeasonStartStatus,
        "copy of Status taken while the team has no games played");
  field(631, "ComboDone", r.ComboDone, "1: this row has been folded into the player's combined row");
  field(632, "ComboTag", r.ComboTag, "six-character tag of the combined-row tool; blank otherwise");
  field(638, "InjuryCountMark", r.InjuryCountMark, "marker 99: SeasonInjuryCount has been cleared");
  field(639, "SeasonInjuryCount", r.SeasonInjuryCount, "injuries suffered this season");
  field(640, "InjuryMark", r.InjuryMark, "marker 33: the three injury fields below have been cleared");
  field(641, "InjuryType", r.InjuryType,
        "index of the injury name in the league's injury name table; 0 none");
  field(642, "InjurySeverity", r.InjurySeverity,
        "1 for the day-to-day class that may clear by itself at game load");
  field(643, "SuspensionGames", r.SuspensionGames,
        "games of suspension left; one game is taken off after each game of the team");
  field(644, "College", r.College, "college or home town line");
  field(669, "FavoriteShotMark", r.FavoriteShotMark,
        "marker 33: favourite-shot fields have been cleared and reassigned from the built-in");
  field(670, "FavoriteShot", r.FavoriteShot, "index of the player's favourite shot phrase; 0 none");
  field(671, "FavoriteShotText", r.FavoriteShotText,
        "free text of the favourite shot, used by the commentary");
  field(691, "PhotoMark", r.PhotoMark,
        "marker 99: PhotoFile has been set to <LastName>_<FirstName>.jpg (only for Year 2013");
  field(692, "RealTeamMark", r.RealTeamMark, "marker 11: the RealTeam");
  field(693, "RealTeamFGA", r.RealTeamFGA,
        "field-goal attempts of the player's real team (index 1) and of its opponents (index");
  field(697, "RealTeamFGM", r.RealTeamFGM, "field goals made");
  field(701, "RealTeamFTA", r.RealTeamFTA, "free-throw attempts");
  field(705, "RealTeamFTM", r.RealTeamFTM, "free throws made");
  field(709, "RealTeamReb", r.RealTeamReb, "rebounds");
  field(713, "RealTeamOff", r.RealTeamOff, "offensive rebounds");
  field(717, "RealTeamTo", r.RealTeamTo, "turnovers");
  field(721, "RealTeamAst", r.RealTeamAst, "assists");
  field(725, "StreakFieldsMark", r.StreakFieldsMark,
        "marker 99: the four last-game fields have been cleared");
  field(726, "LastGamePoints", r.LastGamePoints, "points in his last game");
  field(727, "LastGameRebounds", r.LastGameRebounds, "rebounds in his last game");
  field(728, "LastGameAssists", r.LastGameAssists, "assists in his last game");
  field(729, "LastGameOpponent", r.LastGameOpponent, "the opponent of his last game");
  field(744, "ReservedA", r.ReservedA, "spare");
  field(745, "QuarterPoints", r.QuarterPoints,
        "points by period, indexed (period 1..5: 1st, 2nd, 3rd, 4th, overtime");
  field(775, "InfoMark", r.InfoMark, "marker 99: InfoText has been cleared");
  field(776, "LastName", r.LastName, "surname, up to 20 characters");
  field(796, "InfoText", r.InfoText, "free information line shown on the player card");
  field(816, "GameHighs", r.GameHighs, "two StatLine records of single-game highs");
  field(944, "HeightFeet", r.HeightFeet, "height, feet");
  field(945, "HeightInches", r.HeightInches, "height, inches");
  field(946, "Weight", r.Weight, "weight in pounds");
  field(948, "Age", r.Age, "age in years");
  field(949, "Salary", r.Salary, "computed value in thousands");
  field(953, "PrimaryPosition", r.PrimaryPosition, "primary position 1..5 (1 point guard");
  field(954, "SecondaryPosition", r.SecondaryPosition, "second position, 0 none");
  field(955, "SpotPosition", r.SpotPosition, "third position in which the player may fill in, 0 none");
  field(956, "Status", r.Status,
        "0 active; 99 inactive (set by the card's Active box and by the usage rules)");
  field(957, "PositionShiftMark", r.PositionShiftMark,
        "marker 55: depth values below have been taken down by one (they were 1 too high in");
  field(958, "ReservedB", r.ReservedB, "spare text");
  field(960, "DunkMark", r.DunkMark, "marker 99: RateDunk has been derived from height for old players");
  field(961, "PlusMinus", r.PlusMinus, "replay plus/minus total");
  field(963, "ReservedC", r.ReservedC, "spare text");
  field(985, "WinLossMark", r.WinLossMark, "marker 99: the team-result fields below have been cleared");
  field(986, "TeamWinsPlayed", r.TeamWinsPlayed, "team wins in games the player played");
  field(987, "TeamLossesPlayed", r.TeamLossesPlayed, "team losses in games the player played");
  field(988, "TeamWinsByPosition", r.TeamWinsByPosition,
        "team wins in games where the player played at position 1..5");
  field(993, "TeamLossesByPosition", r.TeamLossesByPosition, "team losses, same index");
  field(998, "TypeMark", r.TypeMark, "marker 55: PlayerType and Sex have been taken from the team");
  field(999, "Sex", r.Sex, "'M' or 'W'");
  field(1000, "Nickname", r.Nickname, "nickname the commentary may use");
  field(1030, "Salary2Mark", r.Salary2Mark, "marker 99: Salary2 has been cleared");
  field(1031, "Salary2", r.Salary2, "real or user salary in thousands");
  field(1035, "PositionGamesMark", r.PositionGamesMark,
        "marker 99: the per-position fields below have been cleared");
  field(1036, "GamesAtPosition", r.GamesAtPosition, "replay games at position 1..5");
  field(1041, "MinutesAtPosition", r.MinutesAtPosition, "replay minutes at position 1..5");
  field(1051, "PointsAtPosition", r.PointsAtPosition, "replay points at position 1..5");
  field(1061, "SeriesStats", r.SeriesStats,
        "one SeriesLine record: the player's totals in the current playoff series");
  field(1091, "RecNo", r.RecNo, "record number of this row in HCPLAYER");
  field(1093, "TeamNo", r.TeamNo, "the player's team; values as told above");
  field(1095, "ShotSelection", r.ShotSelection,
        "offensive shot selection: 1 Inside, 2 Outside, 3 Three, 4 Drive, 5 Fastbreak");
  field(1100, "InactiveStartMonth", r.InactiveStartMonth, "five inactive spans on the calendar: start month");
  field(1105, "InactiveStartDay", r.InactiveStartDay, "start day");
  field(1110, "InactiveStopMonth", r.InactiveStopMonth, "end month");
  field(1115, "InactiveStopDay", r.InactiveStopDay, "end day");
  field(1120, "EncyclopediaFlag", r.EncyclopediaFlag, "99 in an encyclopedia row of a draft team's player");
  field(1121, "EncyclopediaMark", r.EncyclopediaMark,
        "99 in an encyclopedia row that came from a playoff module");
  field(1122, "ReservedD", r.ReservedD, "spare text");
  field(1129, "OriginalTeam", r.OriginalTeam,
        "abbreviation of the team the player began the data with; set at first load when blank");
  field(1132, "OriginalTeamMark", r.OriginalTeamMark, "marker 22: OriginalTeam has been set");
  field(1133, "AltForm1", r.AltForm1, "alternate-reality variation 0..20, 10 neutral");
  field(1134, "AltForm2", r.AltForm2, "alternate-reality variation");
  field(1135, "AltForm3", r.AltForm3, "alternate-reality variation");
  field(1136, "AltForm4", r.AltForm4, "alternate-reality variation");
  field(1137, "AltForm5", r.AltForm5, "alternate-reality variation");
  field(1138, "PlayAtCrunchTime", r.PlayAtCrunchTime,
        "1: prefers the floor in the last minutes of close games (excludes DontPlayCrunchTime)");
  field(1139, "DontPlayCrunchTime", r.DontPlayCrunchTime, "1: kept off the floor at crunch time");
  field(1140, "DontPlayWhenTired", r.DontPlayWhenTired, "1: substituted when tired");
  field(1141, "UsageMark2", r.UsageMark2, "marker 33: the usage fields have been initialised");
  field(1142, "RotationOrder", r.RotationOrder, "ten rotation entries in the coach's order");
  field(1152, "RotationMark", r.RotationMark, "marker 22: RotationOrder has been cleared");
  field(1153, "PositionText", r.PositionText, "two-letter position text shown in reports");
  field(1155, "DepthRank", r.DepthRank,
        "depth at each position 1..5: rank of the player on the depth chart, 0 none");
  field(1160, "NicknameMark", r.NicknameMark, "marker 199: Nickname has been reassigned");
  field(1161, "ReservedE", r.ReservedE, "spare text");
  field(1180, "RatePassing", r.RatePassing, "rating: passing");
  field(1181, "RateOffense", r.RateOffense,
        "rating: overall offence, stored times 10 and shown as the whole part of value / 10");
  field(1182, "RateOffInside", r.RateOffInside, "rating: inside shot");
  field(1183, "RateOffOutside", r.RateOffOutside, "rating: outside shot");
  field(1184, "RateOffFastbreak", r.RateOffFastbreak, "rating: fastbreak");
  field(1185, "RateOffDrive", r.RateOffDrive, "rating: drive");
  field(1186, "RateOffThree", r.RateOffThree, "rating: three-point shot");
  field(1187, "RateReserved1", r.RateReserved1, "rating working value");
  field(1188, "RealInsidePct", r.RealInsidePct, "share of his shots from inside, in per cent, in tens");
  field(1189, "RateDunk", r.RateDunk, "rating: dunk");
  field(1190, "RateRebDef", r.RateRebDef, "rating: defensive rebounding");
  field(1191, "RateRebOff", r.RateRebOff, "rating: offensive rebounding");
  field(1192, "OldRateDefOutside", r.OldRateDefOutside,
        "older defensive rating, moved to RateDefOutside under marker 99");
  field(1193, "OldRateDefInside", r.OldRateDefInside, "older defensive rating, moved to RateDefInside");
  field(1194, "RateReserved2", r.RateReserved2, "rating working value");
  field(1195, "RateReserved3", r.RateReserved3, "rating working value");
  field(1196, "RateReserved4", r.RateReserved4, "rating working value");
  field(1197, "RateReserved5", r.RateReserved5, "rating working value");
  field(1198, "RateDefForce", r.RateDefForce, "rating: forcing turnovers");
  field(1199, "RateReserved6", r.RateReserved6, "rating working value");
  field(1200, "RateSportsmanship", r.RateSportsmanship, "rating: sportsmanship");
  field(1201, "ShotAttInside", r.ShotAttInside, "shot table, attempts, index 2 replay, index 3 game: Inside");
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
  field(1266, "ReservedG", r.ReservedG, "derived game value (game load)");
  field(1267, "ReservedH", r.ReservedH, "spare");
  field(1268, "AwardCounts", r.AwardCounts, "index 2: most points in a game, held at 255");
  field(1270, "ReservedI", r.ReservedI, "spare");
  field(1271, "DoubleDoubles", r.DoubleDoubles, "double-doubles");
  field(1272, "TripleDoubles", r.TripleDoubles, "triple-doubles");
  field(1273, "QuadDoubles", r.QuadDoubles, "quadruple-doubles");
  field(1274, "CarriedTotal1", r.CarriedTotal1,
        "accumulator carried through the game file, index 2 replay, index 3 game");
  field(1278, "CarriedTotal2", r.CarriedTotal2, "likewise");
  field(1282, "CarriedTotal3", r.CarriedTotal3, "likewise");
  field(1286, "CarriedTotal4", r.CarriedTotal4, "likewise");
  field(1290, "ReservedJ", r.ReservedJ, "spare text");
  field(1299, "LastInjuryMonth", r.LastInjuryMonth, "season month of the last game he played");
  field(1300, "LastInjuryDay", r.LastInjuryDay, "day of the last game he played");
  field(1301, "DebutYear", r.DebutYear, "first year in the league; only 1..2050 is shown");
  field(1303, "SalaryModelMark", r.SalaryModelMark,
        "marker of the data layout that the debut-year lookup has run under: 123, 155 or 210");
  field(1304, "RateDefOutside", r.RateDefOutside, "rating: defence of outside players ('D-Man')");
  field(1305, "RateDefInside", r.RateDefInside, "rating: defence of inside players ('D-In')");
  field(1306, "DefRatingMark", r.DefRatingMark, "marker 99: defensive ratings have been derived");
  field(1307, "EncyclopediaTeam", r.EncyclopediaTeam,
        "abbreviation under which the player's season goes into the encyclopedia");
  field(1310, "StartMonth", r.StartMonth, "month of the first day the player may play (transaction dates)");
  field(1311, "EndMonth", r.EndMonth, "month of the last such day");
  field(1312, "StartDay", r.StartDay, "day of the first day");
  field(1313, "EndDay", r.EndDay, "day of the last day");
  field(1314, "InjuryReturnMonth", r.InjuryReturnMonth, "return month of the current injury, 0 not injured");
  field(1315, "InjuryReturnDay", r.InjuryReturnDay, "return day of the current injury");
  field(1316, "RateDurability", r.RateDurability, "rating: durability");
  field(1317, "ReservedN", r.ReservedN, "spare");
  field(1318, "RestGames", r.RestGames, "games sat out since he last played");
  field(1319, "FreeThrowStreak", r.FreeThrowStreak, "free throws made in a row");
  field(1321, "LongestFreeThrowStreak", r.LongestFreeThrowStreak, "longest such streak");
  field(1323, "FieldGoalStreak", r.FieldGoalStreak, "field goals made in a row");
  field(1325, "LongestFieldGoalStreak", r.LongestFieldGoalStreak, "longest such streak");
  field(1327, "RotationGrid", r.RotationGrid,
        "where he stands by period (5 = overtime) and minute: position 1..5, 0 off the floor");
  field(1427, "MinutesInjuryFactor", r.MinutesInjuryFactor,
        "value read by the injury code; above 10 it raises the risk");
  field(1428, "RateClutch", r.RateClutch, "rating: clutch");
  field(1429, "OppFGA", r.OppFGA, "opposing field-goal attempts faced, index 2 replay, index 3 game");
  field(1433, "OppFGM", r.OppFGM, "opposing field goals made, same indexes");
  field(1437, "ReservedK", r.ReservedK, "zeroed at season reset");
  field(1439, "ReservedL", r.ReservedL, "zeroed at season reset");
  field(1441, "OriginalTeamFlag", r.OriginalTeamFlag, "set by the team setup tool");
  field(1442, "PlayerType", r.PlayerType, "'P' pro, 'C' college, 'A' alternate-league, 'O' international");
  field(1443, "ScheduleStrength", r.ScheduleStrength,
        "copy of the team's ScheduleStrength for college and international players");
  field(1444, "ShareShots", r.ShareShots,
        "replay denominator of shot share: team shots taken while the player was on the floor");
  field(1446, "ShareBlocks", r.ShareBlocks, "denominator of block percentage");
  field(1448, "ShareAssists", r.ShareAssists, "denominator of assist share");
  field(1450, "ShareOffReb", r.ShareOffReb, "denominator of offensive rebound percentage");
  field(1452, "ShareDefReb", r.ShareDefReb, "denominator of defensive rebound percentage");
  field(1454, "ShareMark", r.ShareMark,
        "99 while the five shares are valid (set when Stats[2] games are 0 at load)");
  field(1455, "MinutesMark", r.MinutesMark,
        "marker 33: TargetMinutes and PositionAllowed have been initialised");
  field(1456, "PositionAllowed", r.PositionAllowed,
        "whether the player may be used at position 1..5 (rotation tools)");
  field(1461, "OnlyPlayInBlowouts", r.OnlyPlayInBlowouts,
        "1: used only in decided games (excludes NeverPlayInBlowouts)");
  field(1462, "NeverPlayInBlowouts", r.NeverPlayInBlowouts, "1: never used in decided games");
  field(1463, "TargetMinutes", r.TargetMinutes,
        "target minutes per game; starts as the whole part of real minutes per game + 0.75");
  field(1464, "UniformNumber", r.UniformNumber,
        "uniform number text; cleared and reassigned from the built-in table under UniformMark");
  field(1466, "UniformMark", r.UniformMark, "marker 33: UniformNumber has been reassigned");
  field(1467, "PhotoFile", r.PhotoFile, "player photo file name");
  field(1492, "FlagrantMark", r.FlagrantMark, "marker 99: the two flagrant fields have been cleared");
  field(1493, "Flagrants", r.Flagrants, "index 2 replay flagrant fouls of both kinds, index 3 game");
  field(1495, "ReservedM", r.ReservedM, "spare text");
}

}  // namespace tipline
