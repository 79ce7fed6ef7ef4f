#pragma once
// One slot of HCTEAMS; the record number is the team number, 1 to 720.
#include <concepts>
#include <type_traits>

#include "base/record.h"
#include "league/stat_line.h"

namespace tipline {

struct TeamRecord {
  static constexpr int kRecordSize = 1500;

  i16 TeamActive = 0;
  Text<20> City, Nickname, CoachName;
  Text<3> Abbrev;
  i32 HomeForeColor = 0, HomeBackColor = 0;
  i16 Year = 0;
  Text<1> TeamType;
  Table<RealTotalsLine, 1, 2> RealTotals;
  Table<i16, 1, 30> Roster;
  Table<StatLine, 1, 2> TeamStats;
  i16 Wins = 0, Losses = 0, Streak = 0;
  u8 HomeWins = 0, HomeLosses = 0, DivisionWins = 0, DivisionLosses = 0;
  StatLine ReservedLine;
  i16 ReservedWord = 0;
  Text<30> OldArenaName;
  u8 ScheduleStrength = 0;
  Table<StatLine, 1, 2> HomeStats;
  Text<40> LogoFile;
  u8 ReservedFlagA = 0;
  i32 RoadForeColor = 0, RoadBackColor = 0;
  u8 NeutralWins = 0, NeutralLosses = 0;
  Table<i16, 0, 10> ScoutOffense;
  Table<i16, 0, 4> ScoutHelp, ScoutPressure, ScoutDefenseType;
  Table3<i16, 1, 3, 0, 10, 1, 6> ScoutCoverage;
  Text<40> CourtFile;
  u8 CourtMark = 0;
  Table2<i16, 1, 10, 1, 2> PeriodPoints;
  u8 PlanMark = 0;
  i32 TextColor = 0;
  u8 NameMark = 0, RotationMark = 0, RotationMark2 = 0;
  f64 PowerRating = 0;
  u8 ReservedFlagB = 0;
  Table<i16, 2, 3> Possessions, OppPossessions;
  u8 PossessionMark = 0, HighLowMark = 0;
  Table<u8, 1, 2> HighPoints, HighFGA, HighFGM, HighF3A, HighF3M, HighFTA, HighFTM, HighReb;
  Table<u8, 1, 2> HighOff, HighAst, HighBk, HighTo, HighSt, HighPf, LowPoints, LowFGA;
  Table<u8, 1, 2> LowFGM, LowF3A, LowF3M, LowFTA, LowFTM, LowReb, LowOff, LowAst;
  Table<u8, 1, 2> LowBk, LowTo, LowSt, LowPf;
  Table<i16, 1, 3> TeamRebounds;
  Table<Text<1>, 1, 10> LastTen;
  u8 LastTenMark = 0, SavedWins = 0, SavedLosses = 0;
  f64 SavedPowerRating = 0;
  u8 SavedDivisionLosses = 0, DurabilityMark = 0, ConferenceMark = 0, ConferenceWins = 0,
     ConferenceLosses = 0;
  u8 ShotTableMark = 0;
  i16 ShotAttInside = 0, ShotAttOutside = 0, ShotAttSpare1 = 0, ShotAttDrive = 0, ShotAttFastbreak2 = 0,
      ShotAttOffReb2 = 0;
  i16 ShotAttFastbreak3 = 0, ShotAttOffReb3 = 0, ShotAttThree = 0, ShotMadeInside = 0, ShotMadeOutside = 0,
      ShotMadeSpare1 = 0;
  i16 ShotMadeDrive = 0, ShotMadeFastbreak2 = 0, ShotMadeOffReb2 = 0, ShotMadeFastbreak3 = 0,
      ShotMadeOffReb3 = 0;
  i16 ShotMadeThree = 0;
  u8 CourtYearMark = 0, ArenaMark = 0;
  Text<40> ArenaName;
  u8 ArenaSizeMark = 0, ArenaAge = 0, SplitsMark = 0, OvertimeWins = 0, OvertimeLosses = 0, WinsVsWinning = 0,
     LossesVsWinning = 0;
  u8 WinsVsLosing = 0, LossesVsLosing = 0, CloseWins = 0, CloseLosses = 0, BlowoutWins = 0, BlowoutLosses = 0;
  u8 WinsLeadingAtHalf = 0, LossesLeadingAtHalf = 0, WinsTrailingAtHalf = 0, LossesTrailingAtHalf = 0,
     WinsScoring100 = 0;
  u8 LossesScoring100 = 0, WinsAllowing100 = 0, LossesAllowing100 = 0, HomeCourtMark = 0;
  Text<40> HomeCourtFile, ArenaFile;
  u8 ArenaFileMark = 0, RealRecordMark = 0, RealWins = 0, RealLosses = 0, LogoYearMark = 0,
     TeamTotalsMark = 0;
  Table<i16, 1, 2> TeamTurnovers;
  i16 OppTeamRebounds = 0;
  u8 CanadaMark = 0, CanadianTeam = 0;
  Text<1> RosterKind, TeamSex;
  u8 ReservedFlagC = 0;
  Text<4> ReservedText;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, TeamRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "TeamActive", r.TeamActive, "1: this slot holds a team");
  field(2, "City", r.City, "city or school name, the main label of the team");
  field(22, "Nickname", r.Nickname, "team nickname");
  field(42, "CoachName", r.CoachName,
        "head coach's name; the stem of the default coach photo <CoachName>.jpg");
  field(62, "Abbrev", r.Abbrev, "three-letter abbreviation used in every report column");
  field(65, "HomeForeColor", r.HomeForeColor, "home uniform foreground colour, a 24-bit value 0x00BBGGRR");
  field(69, "HomeBackColor", r.HomeBackColor, "home uniform background colour, same form");
  field(73, "Year", r.Year, "season year of this team");
  field(75, "TeamType", r.TeamType, "'P' pro, 'C' college, 'A' alternate pro league, 'O' international");
  field(76, "RealTotals", r.RealTotals,
        "real-life season totals, index 1 the team, 2 its opponents; a figure of 0 is not known");
  field(180, "Roster", r.Roster, "record numbers of the players, 0 for an empty slot");
  field(240, "TeamStats", r.TeamStats, "replay totals, index 1 the team, 2 its opponents");
  field(368, "Wins", r.Wins, "games won in the replay season");
  field(370, "Losses", r.Losses, "games lost in the replay season");
  field(372, "Streak", r.Streak, "wins in a row, losses below zero");
  field(374, "HomeWins", r.HomeWins, "wins as home side, neutral courts left out");
  field(375, "HomeLosses", r.HomeLosses, "losses as home side, neutral courts left out");
  field(376, "DivisionWins", r.DivisionWins, "wins against a team of the same division");
  field(377, "DivisionLosses", r.DivisionLosses, "losses against a team of the same division");
  field(378, "ReservedLine", r.ReservedLine, "not used; cleared at the season reset");
  field(442, "ReservedWord", r.ReservedWord, "not used; cleared at the season reset");
  field(444, "OldArenaName", r.OldArenaName, "arena name of the older layout; ArenaName takes it once");
  field(474, "ScheduleStrength", r.ScheduleStrength, "strength of schedule of the team");
  field(475, "HomeStats", r.HomeStats,
        "replay totals of the games as home side in index 1; index 2 is spare");
  field(603, "LogoFile", r.LogoFile, "logo image file name, in the league's logo folder");
  field(643, "ReservedFlagA", r.ReservedFlagA, "not used");
  field(644, "RoadForeColor", r.RoadForeColor, "road uniform foreground colour");
  field(648, "RoadBackColor", r.RoadBackColor, "road uniform background colour");
  field(652, "NeutralWins", r.NeutralWins, "wins at neutral sites");
  field(653, "NeutralLosses", r.NeutralLosses, "losses at neutral sites");
  field(654, "ScoutOffense", r.ScoutOffense,
        "times each kind was run: 1 inside, 2 outside, 3 three, 4 fastbreak, 5 drive, 6 hold ball; held at "
        "32000");
  field(676, "ScoutHelp", r.ScoutHelp,
        "times each defensive help was played: 0 normal, 1 inside, 2 outside, 3 strong inside, 4 strong "
        "outside");
  field(686, "ScoutPressure", r.ScoutPressure,
        "times each pressure was played: 0 normal, 1 and 2 halfcourt trap and press, 3 and 4 fullcourt trap "
        "and press");
  field(696, "ScoutDefenseType", r.ScoutDefenseType,
        "times each defence was played: 0 man, 1 2-1-2 zone, 2 2-3 zone, 3 3-2 zone");
  field(706, "ScoutCoverage", r.ScoutCoverage,
        "times each coverage was played, by (zone 1 inside, 2 outside, 3 three; shooter's rating; coverage 1 "
        "off, 2 loose, 3 normal, 4 tight, 5 deny, 6 foul)");
  field(1102, "CourtFile", r.CourtFile, "court image file name for road-style display");
  field(1142, "CourtMark", r.CourtMark, "marker 11: CourtFile has been assigned");
  field(1143, "PeriodPoints", r.PeriodPoints, "points by (period, 1 the team or 2 its opponents)");
  field(1183, "PlanMark", r.PlanMark, "marker 9: the team's game plan defaults have been generated");
  field(1184, "TextColor", r.TextColor, "team text colour used on scoreboards and grids");
  field(1188, "NameMark", r.NameMark, "marker 37: team names have been normalised");
  field(1189, "RotationMark", r.RotationMark, "marker 2: rotation defaults have been generated");
  field(1190, "RotationMark2", r.RotationMark2, "marker 99: the second rotation default step has run");
  field(1191, "PowerRating", r.PowerRating, "power rating; 0 until worked out");
  field(1199, "ReservedFlagB", r.ReservedFlagB, "not used; cleared at the season reset");
  field(1200, "Possessions", r.Possessions, "team possessions; index 2 replay total, index 3 current game");
  field(1204, "OppPossessions", r.OppPossessions, "opponents' possessions, same indexes");
  field(1208, "PossessionMark", r.PossessionMark,
        "marker 99: every game of the season was played with possessions counted");
  field(1209, "HighLowMark", r.HighLowMark, "marker 33: game highs and lows have been cleared");
  field(1210, "HighPoints", r.HighPoints, "game-high points: index 1 the team, 2 its opponents");
  field(1212, "HighFGA", r.HighFGA, "game-high field-goal attempts");
  field(1214, "HighFGM", r.HighFGM, "game-high field goals made");
  field(1216, "HighF3A", r.HighF3A, "game-high three-point attempts");
  field(1218, "HighF3M", r.HighF3M, "game-high three-pointers made");
  field(1220, "HighFTA", r.HighFTA, "game-high free-throw attempts");
  field(1222, "HighFTM", r.HighFTM, "game-high free throws made");
  field(1224, "HighReb", r.HighReb, "game-high rebounds");
  field(1226, "HighOff", r.HighOff, "game-high offensive rebounds");
  field(1228, "HighAst", r.HighAst, "game-high assists");
  field(1230, "HighBk", r.HighBk, "game-high blocks");
  field(1232, "HighTo", r.HighTo, "game-high turnovers");
  field(1234, "HighSt", r.HighSt, "game-high steals");
  field(1236, "HighPf", r.HighPf, "game-high personal fouls");
  field(1238, "LowPoints", r.LowPoints, "game-low points: index 1 the team, 2 its opponents");
  field(1240, "LowFGA", r.LowFGA, "game-low field-goal attempts");
  field(1242, "LowFGM", r.LowFGM, "game-low field goals made");
  field(1244, "LowF3A", r.LowF3A, "game-low three-point attempts");
  field(1246, "LowF3M", r.LowF3M, "game-low three-pointers made");
  field(1248, "LowFTA", r.LowFTA, "game-low free-throw attempts");
  field(1250, "LowFTM", r.LowFTM, "game-low free throws made");
  field(1252, "LowReb", r.LowReb, "game-low rebounds");
  field(1254, "LowOff", r.LowOff, "game-low offensive rebounds");
  field(1256, "LowAst", r.LowAst, "game-low assists");
  field(1258, "LowBk", r.LowBk, "game-low blocks");
  field(1260, "LowTo", r.LowTo, "game-low turnovers");
  field(1262, "LowSt", r.LowSt, "game-low steals");
  field(1264, "LowPf", r.LowPf, "game-low personal fouls");
  field(1266, "TeamRebounds", r.TeamRebounds,
        "rebounds of the team and of no player: index 1 real life, 2 replay, 3 current game");
  field(1272, "LastTen", r.LastTen, "results of the last ten games, newest first: 'W', 'L' or blank");
  field(1282, "LastTenMark", r.LastTenMark, "marker 99: LastTen has been cleared");
  field(1283, "SavedWins", r.SavedWins, "regular-season wins saved at playoff creation");
  field(1284, "SavedLosses", r.SavedLosses, "regular-season losses saved at playoff creation");
  field(1285, "SavedPowerRating", r.SavedPowerRating, "power rating saved at playoff creation");
  field(1293, "SavedDivisionLosses", r.SavedDivisionLosses,
        "division losses saved at playoff creation, a tie-break of the seeding");
  field(1294, "DurabilityMark", r.DurabilityMark,
        "marker 99: durability of college players has been worked out from their games");
  field(1295, "ConferenceMark", r.ConferenceMark,
        "marker 99: the conference counters took those of the division once");
  field(1296, "ConferenceWins", r.ConferenceWins, "wins against a team of the same conference");
  field(1297, "ConferenceLosses", r.ConferenceLosses, "losses against a team of the same conference");
  field(1298, "ShotTableMark", r.ShotTableMark, "marker 99: the shot table has been cleared");
  field(1299, "ShotAttInside", r.ShotAttInside, "team shot table, attempts: Inside");
  field(1301, "ShotAttOutside", r.ShotAttOutside, "attempts: Outside");
  field(1303, "ShotAttSpare1", r.ShotAttSpare1, "spare, cleared with the table");
  field(1305, "ShotAttDrive", r.ShotAttDrive, "attempts: Drive");
  field(1307, "ShotAttFastbreak2", r.ShotAttFastbreak2, "attempts: Fastbreak two-pointers");
  field(1309, "ShotAttOffReb2", r.ShotAttOffReb2, "attempts: off an offensive rebound, two-pointers");
  field(1311, "ShotAttFastbreak3", r.ShotAttFastbreak3, "attempts: Fastbreak three-pointers");
  field(1313, "ShotAttOffReb3", r.ShotAttOffReb3, "attempts: off an offensive rebound, three-pointers");
  field(1315, "ShotAttThree", r.ShotAttThree, "attempts: Three (from a play)");
  field(1317, "ShotMadeInside", r.ShotMadeInside, "made: Inside");
  field(1319, "ShotMadeOutside", r.ShotMadeOutside, "made: Outside");
  field(1321, "ShotMadeSpare1", r.ShotMadeSpare1, "spare, cleared with the table");
  field(1323, "ShotMadeDrive", r.ShotMadeDrive, "made: Drive");
  field(1325, "ShotMadeFastbreak2", r.ShotMadeFastbreak2, "made: Fastbreak two-pointers");
  field(1327, "ShotMadeOffReb2", r.ShotMadeOffReb2, "made: off an offensive rebound, two-pointers");
  field(1329, "ShotMadeFastbreak3", r.ShotMadeFastbreak3, "made: Fastbreak three-pointers");
  field(1331, "ShotMadeOffReb3", r.ShotMadeOffReb3, "made: off an offensive rebound, three-pointers");
  field(1333, "ShotMadeThree", r.ShotMadeThree, "made: Three (from a play)");
  field(1335, "CourtYearMark", r.CourtYearMark,
        "marker 99: the pro court file of the 2013 layout has been assigned");
  field(1336, "ArenaMark", r.ArenaMark, "marker 123: ArenaName has been copied from OldArenaName");
  field(1337, "ArenaName", r.ArenaName, "arena name");
  field(1377, "ArenaSizeMark", r.ArenaSizeMark, "marker 99: ArenaAge has been assigned from the city table");
  field(1378, "ArenaAge", r.ArenaAge, "index of the time zone of the city");
  field(1379, "SplitsMark", r.SplitsMark, "marker 99: the splits of wins and losses have been cleared");
  field(1380, "OvertimeWins", r.OvertimeWins, "wins in overtime games");
  field(1381, "OvertimeLosses", r.OvertimeLosses, "losses in overtime games");
  field(1382, "WinsVsWinning", r.WinsVsWinning,
        "wins against teams with at least as many wins as losses before the game");
  field(1383, "LossesVsWinning", r.LossesVsWinning, "losses against such teams");
  field(1384, "WinsVsLosing", r.WinsVsLosing, "wins against teams with fewer wins than losses");
  field(1385, "LossesVsLosing", r.LossesVsLosing, "losses against such teams");
  field(1386, "CloseWins", r.CloseWins, "wins by 3 points or fewer");
  field(1387, "CloseLosses", r.CloseLosses, "losses by 3 points or fewer");
  field(1388, "BlowoutWins", r.BlowoutWins, "wins by 10 points or more");
  field(1389, "BlowoutLosses", r.BlowoutLosses, "losses by 10 points or more");
  field(1390, "WinsLeadingAtHalf", r.WinsLeadingAtHalf, "wins in games led at half time");
  field(1391, "LossesLeadingAtHalf", r.LossesLeadingAtHalf, "losses in games led at half time");
  field(1392, "WinsTrailingAtHalf", r.WinsTrailingAtHalf, "wins in games trailed at half time");
  field(1393, "LossesTrailingAtHalf", r.LossesTrailingAtHalf, "losses in games trailed at half time");
  field(1394, "WinsScoring100", r.WinsScoring100, "wins with 100 points or more scored");
  field(1395, "LossesScoring100", r.LossesScoring100, "losses with 100 points or more scored");
  field(1396, "WinsAllowing100", r.WinsAllowing100, "wins with 100 points or more allowed");
  field(1397, "LossesAllowing100", r.LossesAllowing100, "losses with 100 points or more allowed");
  field(1398, "HomeCourtMark", r.HomeCourtMark, "marker 111: HomeCourtFile has been assigned");
  field(1399, "HomeCourtFile", r.HomeCourtFile, "court image file name for the home-style display");
  field(1439, "ArenaFile", r.ArenaFile, "arena image file name; default 'Arena.jpg'");
  field(1479, "ArenaFileMark", r.ArenaFileMark, "marker 99: ArenaFile has been set");
  field(1480, "RealRecordMark", r.RealRecordMark, "marker 99: RealWins and RealLosses have been cleared");
  field(1481, "RealWins", r.RealWins, "real-life wins of the season, for the real standings");
  field(1482, "RealLosses", r.RealLosses, "real-life losses");
  field(1483, "LogoYearMark", r.LogoYearMark,
        "marker 99: the logo file of the 2016 layout has been assigned");
  field(1484, "TeamTotalsMark", r.TeamTotalsMark,
        "marker 99: TeamTurnovers and OppTeamRebounds have been cleared");
  field(1485, "TeamTurnovers", r.TeamTurnovers,
        "turnovers of the team and of no player; index 2 of its opponents");
  field(1489, "OppTeamRebounds", r.OppTeamRebounds,
        "rebounds credited to the opposing team and to no player");
  field(1491, "CanadaMark", r.CanadaMark, "marker 199: CanadianTeam has been set");
  field(1492, "CanadianTeam", r.CanadianTeam, "1 when the team's city is one of the Canadian names");
  field(1493, "RosterKind", r.RosterKind, "'S' stock team, 'D' draft team");
  field(1494, "TeamSex", r.TeamSex, "'M' or 'W'");
  field(1495, "ReservedFlagC", r.ReservedFlagC, "spare");
  field(1496, "ReservedText", r.ReservedText, "spare text");
}

}  // namespace tipline
