#pragma once
// A game of the schedule file, 200 bytes; the game as played has the same record.
#include <concepts>

#include "base/record.h"

namespace tipline {

struct ScheduleRecord {
  static constexpr int kRecordSize = 200;

  // Sides: 1 visitor, 2 home.
  Table<u8, 1, 2> LegacyTeam;
  Table<Text<1>, 1, 2> CoachKind;
  u8 Month = 0, Day = 0;
  i16 Year = 0;
  Text<12> Reserved12;
  Text<20> ScoringLeader, ReboundLeader, AssistLeader;
  Text<1> Status;
  Table<i16, 1, 2> Score;
  Table<Text<7>, 1, 2> RecordAfter;
  Text<15> BoxFile;
  Table<i16, 1, 2> Team;
  u8 NeutralSite = 0;
  Text<1> PlayoffFlag;
  u8 Overtime = 0;
  Text<20> StealLeader, BlockLeader;
  Text<1> PairingStatus;
  u8 Reserved1 = 0;
  Table2<u8, 1, 2, 1, 12> GameStats;
  u8 Reserved2 = 0;
  Text<1> GameType;
  Text<11> Reserved11;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, ScheduleRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "LegacyTeam", r.LegacyTeam, "team numbers of old files; a load moves them to Team");
  field(2, "CoachKind", r.CoachKind, "'H' human, 'C' computer; index 1 visitor, 2 home");
  field(4, "Month", r.Month, "calendar month, 1 to 12");
  field(5, "Day", r.Day, "1 to 31");
  field(6, "Year", r.Year, "year in which the season begins; the same in all rows");
  field(8, "Reserved12", r.Reserved12, "of a game played, in SCORES: the computer's date; else not used");
  field(20, "ScoringLeader", r.ScoringLeader, "leader of the game in points: name and points");
  field(40, "ReboundLeader", r.ReboundLeader, "leader in rebounds");
  field(60, "AssistLeader", r.AssistLeader, "leader in assists");
  field(80, "Status", r.Status, "'U' unplayed, 'N' to be played next, 'P' played, 'D' deleted");
  field(81, "Score", r.Score, "points, visitor and home");
  field(85, "RecordAfter", r.RecordAfter, "record W-L of each team after this game");
  field(99, "BoxFile", r.BoxFile, "name of the box file");
  field(114, "Team", r.Team, "team numbers, visitor and home; 999 a team not decided yet");
  field(118, "NeutralSite", r.NeutralSite, "1: neutral court");
  field(119, "PlayoffFlag", r.PlayoffFlag, "'Y' or 'N'");
  field(120, "Overtime", r.Overtime, "1: the game went past the last regulation period");
  field(121, "StealLeader", r.StealLeader, "leader in steals; the last two characters are the number");
  field(141, "BlockLeader", r.BlockLeader, "leader in blocks; the last two characters are the number");
  field(161, "PairingStatus", r.PairingStatus, "mark of the tournament screen; blank in a schedule");
  field(162, "Reserved1", r.Reserved1, "not used");
  field(
      163, "GameStats", r.GameStats,
      "totals by (side, 1 FGA, 2 FGM, 3 FTA, 4 FTM, 5 F3A, 6 F3M, 7 Reb, 8 Ast, 9 To, 10 St, 11 Bk, 12 Pf); "
      "zero in a schedule");
  field(187, "Reserved2", r.Reserved2, "not used");
  field(188, "GameType", r.GameType,
        "type of the date: 'R' season, 'P' pool, 'N' non-advancing, 'Q' and 'L' quarter finals, 'S', 'C'");
  field(189, "Reserved11", r.Reserved11, "not used");
}

}  // namespace tipline
