#pragma once
// The box of a game: one record of 20000 bytes in a file of its own. It holds the page of text, every line
// and clock, the settings of both coaches and the scoring list; a snapshot of a game under way has the same
// form.
#include <concepts>
#include <type_traits>

#include "base/record.h"
#include "league/stat_line.h"

namespace tipline {

inline constexpr int kBoxBytes = 20000;
inline constexpr int kBoxLines = 65;
inline constexpr int kBoxLineWidth = 85;
inline constexpr int kBoxScoreRows = 250;
inline constexpr u8 kBoxMark = 99;
inline constexpr i16 kBoxFormat = 2018;

// Tables are indexed with what runs fastest in the file in front.
template <class T>
using BoxSides = Table<T, 1, 2>;
template <class T>
using BoxMen = Table2<T, 1, 30, 1, 2>;  ///< (slot, side)
template <class T>
using BoxPlaces = Table2<T, 1, 5, 1, 2>;  ///< (position, side)
template <class T>
using BoxManPlaces = Table3<T, 1, 30, 1, 2, 1, 5>;  ///< (slot, side, position)

struct BoxScoreRow {
  static constexpr int kRecordSize = 9;

  u8 Slot = 0, Side = 0, VisitorScore = 0, HomeScore = 0, Period = 0;
  i16 TimeLeft = 0;
  Text<1> Kind;
  u8 ScorerPoints = 0;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, BoxScoreRow>
void Describe(Record& r, Visitor&& field) {
  field(0, "Slot", r.Slot, "slot of the scorer");
  field(1, "Side", r.Side, "his side");
  field(2, "VisitorScore", r.VisitorScore, "score of the visitor after the play");
  field(3, "HomeScore", r.HomeScore, "score of the home team after the play");
  field(4, "Period", r.Period, "period of the play");
  field(5, "TimeLeft", r.TimeLeft, "game clock in tenths when the play was over");
  field(7, "Kind", r.Kind,
        "O outside, I inside, D drive, B fastbreak, R off an offensive rebound, K dunk, k dunk off an "
        "offensive "
        "rebound, F free throw, 3 three, + three on a fastbreak, - three off an offensive rebound");
  field(8, "ScorerPoints", r.ScorerPoints, "his points in the game after the play");
}

/// What a snapshot needs, besides the box of a game, to be taken up where it stood.
struct BoxResume {
  static constexpr int kRecordSize = 261;

  u8 ResumeMark = 0;
  Text<10> PlayKind;
  u8 BallSlot = 0, BallDefender = 0, PossessionArrow = 0;
  BoxSides<u8> QuickFoul, TimeoutFocus;
  i16 MomentumTime = 0;
  Table2<u8, 1, 20, 1, 2> TimeoutsByPeriod;
  Table2<u8, 0, 20, 1, 2> TimeoutsByMinute;
  Table<u8, 1, 40> MediaDone;
  Table<u8, 1, 5> PeriodNoticeDone;
  BoxMen<u8> TemporaryInjury;
  Table<u8, 1, 8> GameInjury;
  u8 InboundSlot = 0, AfterTimeout = 0, TimeoutTaken = 0, TimeoutHandover = 0, AfterPassNoLook = 0,
     TechnicalFreeThrow = 0, TechnicalSide = 0, PutbackClass = 0, SecondChance = 0, LeadSide = 0, Tension = 0;
  i32 LastSubClock = 0;
  BoxSides<u8> WaitingSub, FreeThrowMan, IllegalDefenses, LooseBalls, DefenseList, QuickPassesGame;
  BoxSides<i16> LastPossessionClock;
  u8 PassCount = 0, QuickPassCount = 0, LastPasserSlot = 0, PassedThisPossession = 0, BreakStealer = 0;
  Text<10> Spare;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, BoxResume>
void Describe(Record& r, Visitor&& field) {
  field(0, "ResumeMark", r.ResumeMark, "marker 99: the game stood as the fields behind it say");
  field(1, "PlayKind", r.PlayKind, "kind of the play under way");
  field(11, "BallSlot", r.BallSlot, "position of the man with the ball");
  field(12, "BallDefender", r.BallDefender, "slot of the man who guards him");
  field(13, "PossessionArrow", r.PossessionArrow, "side to which the arrow points, 0 unset");
  field(14, "QuickFoul", r.QuickFoul,
        "0 none, 1 any shooter, 2 poor shooter, 3 the worst free-throw shooter");
  field(16, "TimeoutFocus", r.TimeoutFocus,
        "stressed in the last timeout: 0 nothing, 1 offense, 2 defense, 3 pressure, 4 rebounds, 5 fastbreak");
  field(18, "MomentumTime", r.MomentumTime, "tenths for which that still acts");
  field(20, "TimeoutsByPeriod", r.TimeoutsByPeriod, "timeouts by (period, side)");
  field(60, "TimeoutsByMinute", r.TimeoutsByMinute, "timeouts by (clock / 60, 20 all above; side)");
  field(102, "MediaDone", r.MediaDone,
        "media timeouts that were taken, a bit each, lowest first: (band - 1) x 20 + period - 1");
  field(142, "PeriodNoticeDone", r.PeriodNoticeDone, "periods whose end was told, a bit each, lowest first");
  field(147, "TemporaryInjury", r.TemporaryInjury, "above 0: out for so many counts");
  field(207, "GameInjury", r.GameInjury,
        "men hurt in this game, a bit each, lowest first: (side - 1) x 30 + slot - 1");
  field(215, "InboundSlot", r.InboundSlot, "position that takes the ball out");
  field(216, "AfterTimeout", r.AfterTimeout, "1: behind a timeout");
  field(217, "TimeoutTaken", r.TimeoutTaken, "1: a timeout was taken at this stop");
  field(218, "TimeoutHandover", r.TimeoutHandover, "kind of the dead ball behind a timeout, 0 as it stands");
  field(219, "AfterPassNoLook", r.AfterPassNoLook, "1: the man who got the pass does not look for another");
  field(220, "TechnicalFreeThrow", r.TechnicalFreeThrow, "1: the shot at the line is a technical");
  field(221, "TechnicalSide", r.TechnicalSide, "side that has the ball behind it");
  field(222, "PutbackClass", r.PutbackClass, "putback from 1 inside, 2 outside, 3 beyond the arc");
  field(223, "SecondChance", r.SecondChance, "1: this possession had an offensive rebound");
  field(224, "LeadSide", r.LeadSide, "side that led last");
  field(225, "Tension", r.Tension, "hard fouls since the game or the last fight began");
  field(226, "LastSubClock", r.LastSubClock, "game clock at the last substitution");
  field(230, "WaitingSub", r.WaitingSub, "slot that comes in for the shooter after the last free throw");
  field(232, "FreeThrowMan", r.FreeThrowMan, "slot that must stay for free throws");
  field(234, "IllegalDefenses", r.IllegalDefenses, "illegal defenses called");
  field(236, "LooseBalls", r.LooseBalls, "loose-ball fouls");
  field(238, "DefenseList", r.DefenseList, "last answer to a call of the offense");
  field(240, "QuickPassesGame", r.QuickPassesGame, "quick passes of the game");
  field(242, "LastPossessionClock", r.LastPossessionClock, "game clock when the side last lost the ball");
  field(246, "PassCount", r.PassCount, "passes of this possession");
  field(247, "QuickPassCount", r.QuickPassCount, "quick passes of this possession");
  field(248, "LastPasserSlot", r.LastPasserSlot, "position that passed last");
  field(249, "PassedThisPossession", r.PassedThisPossession, "1: the ball was passed");
  field(250, "BreakStealer", r.BreakStealer, "slot of the man whose steal began the fast break");
  field(251, "Spare", r.Spare, "spare");
}

/// A text of one character behind its length.
struct BoxLetter {
  static constexpr int kRecordSize = 3;

  i16 Length = 0;
  Text<1> Letter;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, BoxLetter>
void Describe(Record& r, Visitor&& field) {
  field(0, "Length", r.Length, "1");
  field(2, "Letter", r.Letter, "the text");
}

using BoxCoverage = Table<Table3<i16, 1, 3, 0, 10, 1, 6>, 0, 2>;  ///< (side, zone, rating, coverage)

/// A game. What has no meaning of its own is spare; a marker is 0 in files older than what it stands for.
struct BoxRecord {
  static constexpr int kRecordSize = 20000;

  BoxSides<u8> OldTeamNo, Score;
  Table2<u8, 1, 10, 1, 2> PeriodScore;
  u8 Period = 0;
  i32 GameClock = 0;
  i16 ShotClock = 0;
  Text<20> GameState;
  Text<1> GameKind;
  i16 ScheduleRow = 0;
  Text<1> Scheduled;
  u8 DefenseSideCopy = 0, OffenseSide = 0, DefenseSide = 0, BallPlayer = 0;
  Text<20> PlayResult, PreviousResult;
  BoxMen<i32> PlayerGameTime, RestTime, FatigueLoad;
  BoxPlaces<u8> Lineup, Starters;
  BoxSides<u8> Reserved839;
  u8 GameDay = 0, GameMonth = 0;
  i16 GameYear = 0;
  u8 Reserved845 = 0;
  Text<20> SavedOn;
  BoxSides<Text<8>> RecordText;
  u8 BoxTextLines = 0;
  Table<Text<kBoxLineWidth>, 1, kBoxLines> BoxText;
  BoxResume Resume;
  u8 Reserved6669 = 0, PlayerOutMark = 0;
  BoxMen<u8> PlayerOutCopy;
  u8 BoxTextMark = 0;
  Text<25> VersionText;
  BoxSides<Text<1>> CoachKinds;
  u8 NetGame = 0, Reserved6760 = 0, Autoplayed = 0;
  Text<15> PlayedOn;
  u8 TurnoversMark = 0;
  BoxSides<u8> GameTeamTurnovers;
  i16 FormatStamp = 0;
  u8 PositionMark = 0;
  BoxManPlaces<i16> PositionTime;
  BoxManPlaces<u8> PositionPoints;
  BoxMen<i16> PlayerRecNo;
  BoxMen<StatLine> Line;
  BoxMen<u8> ShotAttInside, ShotAttOutside, ShotAttThree, ShotAttDrive, ShotAttFastbreak2, ShotAttOffReb2,
      ShotAttFastbreak3, ShotAttOffReb3, ShotMadeInside, ShotMadeOutside, ShotMadeThree, ShotMadeDrive,
      ShotMadeFastbreak2, ShotMadeOffReb2, ShotMadeFastbreak3, ShotMadeOffReb3, Reserved12603, CoverageInside,
      CoverageOutside, CoverageThree, DoubleTeamInside, DoubleTeamOutside, DoubleTeamThree;
  u8 RunTeam = 0, RunPoints = 0;
  Text<6> Reserved13025;
  u8 PaintMark = 0;
  BoxSides<u8> ExtraPaintPoints;
  u8 SecondChanceMark = 0;
  BoxSides<u8> ExtraSecondChancePoints;
  u8 NeutralMark = 0, NeutralGame = 0, DeadBallKind = 0, NeedsBringUp = 0;
  BoxSides<u8> HalfScore;
  u8 HomeTimeZoneCode = 0;
  BoxSides<u8> OffensePace, DefenseType, InsideOffense, DefenseHelp, Pressure, CrashBoardsOffense,
      CrashBoardsDefense, LastShot, QuickShot, StealFoul, NoFoul, TimeoutOffense, TimeoutDefense;
  BoxPlaces<u8> StoredMatchup;
  u8 TimeoutTeam = 0;
  BoxSides<u8> TimeoutCounts;
  BoxMen<i16> CarriedTotal1, CarriedTotal2, CarriedTotal3, CarriedTotal4;
  BoxMen<u8> Ejected;
  u8 Ties = 0;
  BoxSides<u8> TimeoutsLeft;
  Text<1> PlayoffGame;
  u8 CurrentRound = 0, CurrentBracket = 0, RoundWins = 0, CurrentSeriesGame = 0;
  BoxMen<u8> InjuryReturnMonth, InjuryReturnDay, PlayerOut;
  Text<60> InjuryNames, TechnicalNames, EjectionNames, FlagrantNames;
  u8 Reserved14051 = 0;
  BoxSides<u8> TeamFouls;
  u8 Reserved14054 = 0;
  BoxSides<u8> AutoSubWhenTired;
  u8 Reserved14057 = 0;
  BoxSides<u8> AutoSubWhenFoulTrouble;
  u8 Reserved14060 = 0;
  BoxSides<u8> UseRotationGrid;
  u8 OpeningTipWinner = 0;
  BoxSides<i16> GameTeam;
  Table2<i16, 0, 2, 0, 10> ScoutOffense;
  Table2<i16, 0, 2, 0, 4> ScoutHelp, ScoutPressure, ScoutDefenseType;
  BoxCoverage ScoutCoverage;
  BoxSides<u8> FastbreakPoints;
  u8 LeadChanges = 0;
  BoxSides<u8> BenchPoints, BiggestLead;
  BoxMen<u8> OppFGA, OppFGM;
  BoxSides<BoxLetter> CoachMode;
  BoxMen<u8> ShareShots, ShareBlocks, ShareAssists, ShareOffReb, ShareDefReb;
  BoxMen<i16> PlusMinus;
  BoxSides<i16> Possessions, OppPossessions;
  u8 GameCalendarMonth = 0;
  BoxSides<u8> TeamFGA, TeamFGM, TeamF3A, TeamF3M, TeamFTA, TeamFTM, TeamReb, TeamAst, TeamTo, TeamSt, TeamBk,
      TeamPf;
  Table<u8, 1, 5> Matchup, PlayGridPick, PlayGridRow;
  BoxSides<u8> GameTeamRebounds;
  BoxMen<u8> RotationFlag;
  Table3<u8, 1, 30, 1, 2, 1, 5> QuarterPoints;
  BoxMen<u8> Reserved16375, Reserved16435, Reserved16495, Flagrants;
  u8 ScoreLogMark = 0;
  i16 ScoreLogCount = 0;
  BoxMen<Text<15>> BoxNames;
  BoxSides<Text<3>> BoxAbbrevs;
  Table<BoxScoreRow, 1, kBoxScoreRows> ScoreLog;
  BoxSides<u8> CoachTechnicals;
  BoxMen<u8> GlobalOffense, SafeStyle;
  u8 Overtime = 0, Flagrant2Mark = 0, SuspensionMark = 0;
  BoxMen<u8> SuspensionGames;
  Table<i16, 1, 5> ShotPick;
  BoxLetter GameTypeCode;
  Text<26> Reserved19972;
  Table<u8, 1, 2> Reserved19998;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, BoxRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "OldTeamNo", r.OldTeamNo, "team numbers of old files, above 0 they stand for GameTeam");
  field(2, "Score", r.Score, "score");
  field(4, "PeriodScore", r.PeriodScore, "points by (period, side); 10 takes later ones as well");
  field(24, "Period", r.Period, "periods played");
  field(25, "GameClock", r.GameClock, "tenths left");
  field(29, "ShotClock", r.ShotClock, "tenths left");
  field(31, "GameState", r.GameState, "state of the game");
  field(51, "GameKind", r.GameKind, "'L' league game, 'E' exhibition");
  field(52, "ScheduleRow", r.ScheduleRow, "row in the schedule, 0 unscheduled");
  field(54, "Scheduled", r.Scheduled, "'Y' or 'N'");
  field(55, "DefenseSideCopy", r.DefenseSideCopy, "equal to DefenseSide");
  field(56, "OffenseSide", r.OffenseSide, "side with the ball");
  field(57, "DefenseSide", r.DefenseSide, "the other side");
  field(58, "BallPlayer", r.BallPlayer, "slot of the man with the ball");
  field(59, "PlayResult", r.PlayResult, "result of the last play");
  field(79, "PreviousResult", r.PreviousResult, "result of the play before");
  field(99, "PlayerGameTime", r.PlayerGameTime, "time played, tenths; here and below by (slot, side)");
  field(339, "RestTime", r.RestTime, "tenths on the bench in the present rest");
  field(579, "FatigueLoad", r.FatigueLoad, "tenths on the floor since he was last rested");
  field(819, "Lineup", r.Lineup, "slots on the floor by (position, side)");
  field(829, "Starters", r.Starters, "slots of the starters");
  field(839, "Reserved839", r.Reserved839, "spare");
  field(841, "GameDay", r.GameDay, "date of the game: day");
  field(842, "GameMonth", r.GameMonth, "season month, 1 September to 12 August");
  field(843, "GameYear", r.GameYear, "year");
  field(845, "Reserved845", r.Reserved845, "spare");
  field(846, "SavedOn", r.SavedOn, "date of the computer when it was saved");
  field(866, "RecordText", r.RecordText, "each team's record, wins-losses");
  field(882, "BoxTextLines", r.BoxTextLines, "lines of BoxText in use");
  field(883, "BoxText", r.BoxText, "the box as a page of text");
  field(6408, "Resume", r.Resume, "where the game stood");
  field(6669, "Reserved6669", r.Reserved6669, "spare");
  field(6670, "PlayerOutMark", r.PlayerOutMark, "marker 99: the field behind it holds");
  field(6671, "PlayerOutCopy", r.PlayerOutCopy, "PlayerOut once more");
  field(6731, "BoxTextMark", r.BoxTextMark, "marker 99: BoxText is filled");
  field(6732, "VersionText", r.VersionText, "edition of the program that saved it");
  field(6757, "CoachKinds", r.CoachKinds, "'H' human, 'C' computer");
  field(6759, "NetGame", r.NetGame, "1: an internet game");
  field(6760, "Reserved6760", r.Reserved6760, "spare");
  field(6761, "Autoplayed", r.Autoplayed, "1: played in bulk");
  field(6762, "PlayedOn", r.PlayedOn, "date of the computer when it was played");
  field(6777, "TurnoversMark", r.TurnoversMark, "marker 99: GameTeamTurnovers holds");
  field(6778, "GameTeamTurnovers", r.GameTeamTurnovers, "turnovers of the team and of no man");
  field(6780, "FormatStamp", r.FormatStamp, "2018");
  field(6782, "PositionMark", r.PositionMark, "marker 99: the next two tables hold");
  field(6783, "PositionTime", r.PositionTime, "tenths by (slot, side, position), held at 32000");
  field(7383, "PositionPoints", r.PositionPoints, "points scored there");
  field(7683, "PlayerRecNo", r.PlayerRecNo, "record of the man in HCPLAYER, 0 nobody");
  field(7803, "Line", r.Line, "line of the game");
  field(11643, "ShotAttInside", r.ShotAttInside, "attempts: Inside");
  field(11703, "ShotAttOutside", r.ShotAttOutside, "attempts: Outside");
  field(11763, "ShotAttThree", r.ShotAttThree, "attempts: Three (from a play)");
  field(11823, "ShotAttDrive", r.ShotAttDrive, "attempts: Drive");
  field(11883, "ShotAttFastbreak2", r.ShotAttFastbreak2, "attempts: Fastbreak, two points");
  field(11943, "ShotAttOffReb2", r.ShotAttOffReb2, "attempts: off an offensive rebound, two points");
  field(12003, "ShotAttFastbreak3", r.ShotAttFastbreak3, "attempts: Fastbreak, three points");
  field(12063, "ShotAttOffReb3", r.ShotAttOffReb3, "attempts: off an offensive rebound, three points");
  field(12123, "ShotMadeInside", r.ShotMadeInside, "made: Inside");
  field(12183, "ShotMadeOutside", r.ShotMadeOutside, "made: Outside");
  field(12243, "ShotMadeThree", r.ShotMadeThree, "made: Three (from a play)");
  field(12303, "ShotMadeDrive", r.ShotMadeDrive, "made: Drive");
  field(12363, "ShotMadeFastbreak2", r.ShotMadeFastbreak2, "made: Fastbreak, two points");
  field(12423, "ShotMadeOffReb2", r.ShotMadeOffReb2, "made: off an offensive rebound, two points");
  field(12483, "ShotMadeFastbreak3", r.ShotMadeFastbreak3, "made: Fastbreak, three points");
  field(12543, "ShotMadeOffReb3", r.ShotMadeOffReb3, "made: off an offensive rebound, three points");
  field(12603, "Reserved12603", r.Reserved12603, "spare");
  field(12663, "CoverageInside", r.CoverageInside,
        "how he is covered inside: 1 off, 2 loose, 3 normal, 4 tight, 5 deny, 6 foul");
  field(12723, "CoverageOutside", r.CoverageOutside, "the same outside");
  field(12783, "CoverageThree", r.CoverageThree, "the same beyond the arc");
  field(12843, "DoubleTeamInside", r.DoubleTeamInside, "1: doubled inside");
  field(12903, "DoubleTeamOutside", r.DoubleTeamOutside, "1: doubled outside");
  field(12963, "DoubleTeamThree", r.DoubleTeamThree, "1: doubled beyond the arc");
  field(13023, "RunTeam", r.RunTeam, "side of the scoring run");
  field(13024, "RunPoints", r.RunPoints, "its points");
  field(13025, "Reserved13025", r.Reserved13025, "spare");
  field(13031, "PaintMark", r.PaintMark, "marker 99: the field behind it holds");
  field(13032, "ExtraPaintPoints", r.ExtraPaintPoints, "points in the paint besides those by kind of shot");
  field(13034, "SecondChanceMark", r.SecondChanceMark, "marker 99: the field behind it holds");
  field(13035, "ExtraSecondChancePoints", r.ExtraSecondChancePoints,
        "second-chance points besides those by kind of shot");
  field(13037, "NeutralMark", r.NeutralMark, "marker 99: NeutralGame holds");
  field(13038, "NeutralGame", r.NeutralGame, "1: played on a neutral court");
  field(13039, "DeadBallKind", r.DeadBallKind,
        "0 live; 1, 2 taken out in the frontcourt; 3, 4 in the backcourt");
  field(13040, "NeedsBringUp", r.NeedsBringUp, "1: the ball is to be brought up");
  field(13041, "HalfScore", r.HalfScore, "score at the half");
  field(13043, "HomeTimeZoneCode", r.HomeTimeZoneCode, "time zone of the home team x 12, plus 1");
  field(13044, "OffensePace", r.OffensePace, "0 very slow to 4 very fast");
  field(13046, "DefenseType", r.DefenseType, "0 man, 1 2-1-2, 2 2-3, 3 3-2 zone");
  field(13048, "InsideOffense", r.InsideOffense, "inside men: 0 none, 1 0-1, 2 one, 3 1-2, 4 two, 5 2-3");
  field(13050, "DefenseHelp", r.DefenseHelp,
        "0 normal, 1 inside, 2 outside, 3 strong inside, 4 strong outside");
  field(13052, "Pressure", r.Pressure,
        "0 none, 1 halfcourt trap, 2 halfcourt press, 3 fullcourt trap, 4 fullcourt press");
  field(13054, "CrashBoardsOffense", r.CrashBoardsOffense, "0 normal, 1 strong, 2 light");
  field(13056, "CrashBoardsDefense", r.CrashBoardsDefense, "the same");
  field(13058, "LastShot", r.LastShot, "1: hold the ball for the last shot");
  field(13060, "QuickShot", r.QuickShot, "1: shoot quickly");
  field(13062, "StealFoul", r.StealFoul, "1: reach for the ball");
  field(13064, "NoFoul", r.NoFoul, "1: do not foul");
  field(13066, "TimeoutOffense", r.TimeoutOffense, "1: a timeout behind our basket");
  field(13068, "TimeoutDefense", r.TimeoutDefense, "1: a timeout when we have won the ball");
  field(13070, "StoredMatchup", r.StoredMatchup,
        "as defense: attacker's position -> own position, by (attacker's position, side)");
  field(13080, "TimeoutTeam", r.TimeoutTeam, "spare");
  field(13081, "TimeoutCounts", r.TimeoutCounts, "spare");
  field(13083, "CarriedTotal1", r.CarriedTotal1, "carried, read by nobody");
  field(13203, "CarriedTotal2", r.CarriedTotal2, "the same");
  field(13323, "CarriedTotal3", r.CarriedTotal3, "the same");
  field(13443, "CarriedTotal4", r.CarriedTotal4, "the same");
  field(13563, "Ejected", r.Ejected, "1: thrown out");
  field(13623, "Ties", r.Ties, "times tied");
  field(13624, "TimeoutsLeft", r.TimeoutsLeft, "timeouts left");
  field(13626, "PlayoffGame", r.PlayoffGame, "'Y' or 'N'");
  field(13627, "CurrentRound", r.CurrentRound, "playoff round 1 to 4");
  field(13628, "CurrentBracket", r.CurrentBracket, "its bracket 1 to 5");
  field(13629, "RoundWins", r.RoundWins, "wins that take a series of the round");
  field(13630, "CurrentSeriesGame", r.CurrentSeriesGame, "game of the bracket, 1 to 15");
  field(13631, "InjuryReturnMonth", r.InjuryReturnMonth, "season month of his return from injury");
  field(13691, "InjuryReturnDay", r.InjuryReturnDay, "day of that return");
  field(13751, "PlayerOut", r.PlayerOut, "1: out of the game");
  field(13811, "InjuryNames", r.InjuryNames, "men hurt");
  field(13871, "TechnicalNames", r.TechnicalNames, "men called for a technical foul");
  field(13931, "EjectionNames", r.EjectionNames, "men thrown out");
  field(13991, "FlagrantNames", r.FlagrantNames, "men called for a flagrant foul");
  field(14051, "Reserved14051", r.Reserved14051, "spare");
  field(14052, "TeamFouls", r.TeamFouls, "team fouls in the period");
  field(14054, "Reserved14054", r.Reserved14054, "spare");
  field(14055, "AutoSubWhenTired", r.AutoSubWhenTired, "1: the computer takes out tired men");
  field(14057, "Reserved14057", r.Reserved14057, "spare");
  field(14058, "AutoSubWhenFoulTrouble", r.AutoSubWhenFoulTrouble,
        "1: the computer takes out men in foul trouble");
  field(14060, "Reserved14060", r.Reserved14060, "spare");
  field(14061, "UseRotationGrid", r.UseRotationGrid, "1: by the rotation grid");
  field(14063, "OpeningTipWinner", r.OpeningTipWinner, "side that had the first possession");
  field(14064, "GameTeam", r.GameTeam, "team numbers");
  field(14068, "ScoutOffense", r.ScoutOffense,
        "plays by (side, 0 unused; kind: 1 inside, 2 outside, 3 three, 4 fastbreak, 5 drive, 6 hold ball)");
  field(14134, "ScoutHelp", r.ScoutHelp, "plays by (side; help)");
  field(14164, "ScoutPressure", r.ScoutPressure, "plays by (side; pressure)");
  field(14194, "ScoutDefenseType", r.ScoutDefenseType, "plays by (side; defense)");
  field(14224, "ScoutCoverage", r.ScoutCoverage,
        "plays by (side; zone 1 inside, 2 outside, 3 three; shooter's rating; coverage)");
  field(15412, "FastbreakPoints", r.FastbreakPoints, "fast-break points");
  field(15414, "LeadChanges", r.LeadChanges, "lead changes");
  field(15415, "BenchPoints", r.BenchPoints, "points of the bench");
  field(15417, "BiggestLead", r.BiggestLead, "biggest lead");
  field(15419, "OppFGA", r.OppFGA, "shots of the men he guarded, attempts");
  field(15479, "OppFGM", r.OppFGM, "shots of the men he guarded, made");
  field(15539, "CoachMode", r.CoachMode, "'C' computer, 'H' human");
  field(15545, "ShareShots", r.ShareShots, "shots of his team while he was on the floor");
  field(15605, "ShareBlocks", r.ShareBlocks, "twos of the other team, likewise");
  field(15665, "ShareAssists", r.ShareAssists, "baskets of his team, likewise");
  field(15725, "ShareOffReb", r.ShareOffReb, "offensive rebound chances, likewise");
  field(15785, "ShareDefReb", r.ShareDefReb, "defensive rebound chances, likewise");
  field(15845, "PlusMinus", r.PlusMinus, "points of his team less those of the other, likewise");
  field(15965, "Possessions", r.Possessions, "possessions");
  field(15969, "OppPossessions", r.OppPossessions, "possessions of the other team");
  field(15973, "GameCalendarMonth", r.GameCalendarMonth, "calendar month of the game");
  field(15974, "TeamFGA", r.TeamFGA, "totals of the team");
  field(15976, "TeamFGM", r.TeamFGM, "totals of the team");
  field(15978, "TeamF3A", r.TeamF3A, "totals of the team");
  field(15980, "TeamF3M", r.TeamF3M, "totals of the team");
  field(15982, "TeamFTA", r.TeamFTA, "totals of the team");
  field(15984, "TeamFTM", r.TeamFTM, "totals of the team");
  field(15986, "TeamReb", r.TeamReb, "totals of the team");
  field(15988, "TeamAst", r.TeamAst, "totals of the team");
  field(15990, "TeamTo", r.TeamTo, "totals of the team");
  field(15992, "TeamSt", r.TeamSt, "totals of the team");
  field(15994, "TeamBk", r.TeamBk, "totals of the team");
  field(15996, "TeamPf", r.TeamPf, "totals of the team");
  field(15998, "Matchup", r.Matchup, "StoredMatchup of the defense for this stop, after switches");
  field(16003, "PlayGridPick", r.PlayGridPick, "spare");
  field(16008, "PlayGridRow", r.PlayGridRow, "spare");
  field(16013, "GameTeamRebounds", r.GameTeamRebounds, "rebounds of the team and of no man");
  field(16015, "RotationFlag", r.RotationFlag, "spare");
  field(16075, "QuarterPoints", r.QuarterPoints, "points by (slot, side, period 1 to 4, 5 overtime)");
  field(16375, "Reserved16375", r.Reserved16375, "spare");
  field(16435, "Reserved16435", r.Reserved16435, "spare");
  field(16495, "Reserved16495", r.Reserved16495, "spare");
  field(16555, "Flagrants", r.Flagrants, "flagrant fouls of either grade");
  field(16615, "ScoreLogMark", r.ScoreLogMark, "marker 99: ScoreLog holds");
  field(16616, "ScoreLogCount", r.ScoreLogCount, "rows of ScoreLog in use");
  field(16618, "BoxNames", r.BoxNames, "last names");
  field(17518, "BoxAbbrevs", r.BoxAbbrevs, "team abbreviations");
  field(17524, "ScoreLog", r.ScoreLog, "baskets and free throws made");
  field(19774, "CoachTechnicals", r.CoachTechnicals, "spare");
  field(19776, "GlobalOffense", r.GlobalOffense, "standing order: 0 none, 1 inside, 2 outside, 3 three");
  field(19836, "SafeStyle", r.SafeStyle, "1: told to defend without fouling");
  field(19896, "Overtime", r.Overtime, "1: past the regulation periods");
  field(19897, "Flagrant2Mark", r.Flagrant2Mark, "marker 99: Flagrant2 of Line holds");
  field(19898, "SuspensionMark", r.SuspensionMark, "marker 99: the field behind it holds");
  field(19899, "SuspensionGames", r.SuspensionGames, "games of suspension left");
  field(19959, "ShotPick", r.ShotPick,
        "shot that each of the attackers has now: 1 inside, 2 outside, 3 three");
  field(19969, "GameTypeCode", r.GameTypeCode, "type of the game in the schedule, 'R' regular season");
  field(19972, "Reserved19972", r.Reserved19972, "spare");
  field(19998, "Reserved19998", r.Reserved19998, "spare");
}

/// A row of the play log of a stored game, in a file beside its box.
struct BoxPlayRow {
  static constexpr int kRecordSize = 14;

  u8 Period = 0;
  i16 Clock = 0;
  u8 Side = 0, Slot = 0, Action = 0, Outcome = 0, OtherSide = 0, OtherSlot = 0, Note = 0;
  i16 VisitorScore = 0, HomeScore = 0;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, BoxPlayRow>
void Describe(Record& r, Visitor&& field) {
  field(0, "Period", r.Period, "period");
  field(1, "Clock", r.Clock, "tenths left when the play was over");
  field(3, "Side", r.Side, "side that acted");
  field(4, "Slot", r.Slot, "slot of the man, 0 the team");
  field(5, "Action", r.Action,
        "number of the kind of play: 1 inside, 2 outside, 3 three, 4 drive, 5 fastbreak ...");
  field(6, "Outcome", r.Outcome, "number of the result: 1 G, 2 G3, 3 GF, 4 G3F, 5 M, 6 M3, 7 MF, 8 M3F ...");
  field(7, "OtherSide", r.OtherSide, "side of the man who helped");
  field(8, "OtherSlot", r.OtherSlot, "his slot");
  field(9, "Note", r.Note,
        "what he did: 1 assisted, 2 blocked, 3 stole, 4 fouled; 5 timeout, 6 media timeout, 7 injury, 8 "
        "fight, 9 "
        "technical");
  field(10, "VisitorScore", r.VisitorScore, "score of the visitor");
  field(12, "HomeScore", r.HomeScore, "score of the home team");
}

}  // namespace tipline
