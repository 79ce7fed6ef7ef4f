#pragma once
// The open league in memory. Its files stay the truth: whatever changes a record here is written to them.
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "base/tables.h"
#include "league/coach_record.h"
#include "league/era_record.h"
#include "league/player_record.h"
#include "league/record_row.h"
#include "league/rules_record.h"
#include "league/schedule_record.h"
#include "league/team_record.h"

namespace tipline {

inline constexpr int kTeams = 720;           ///< team slots that are stored
inline constexpr int kDivisions = 36;        ///< of 20 slots each
inline constexpr int kRosterSlots = 30;      ///< players of a team
inline constexpr int kMostPlayers = 100000;  ///< rows to which a player file is read
inline constexpr int kFreeAgent = 999;       ///< TeamNo of a free agent; team slot of an undecided game
inline constexpr int kFormerMember = 1000;   ///< TeamNo = team + this: a part of a season with a former team
inline constexpr int kFirstEraYear = 1946;
inline constexpr int kLastEraYear = 2050;
inline constexpr int kTeamSlotBytes = 1500;
inline constexpr int kPlayerSlotBytes = 1500;
inline constexpr int kCoachSlotBytes = 15000;
inline constexpr int kRulesSlotBytes = 10000;
inline constexpr int kEraSlotBytes = 100;

using EraTable = Table<EraRecord, kFirstEraYear, kLastEraYear>;

struct League {
  BigTable<TeamRecord, 0, 999> team;      ///< slots 1 to 720 are stored; 0 is scratch, 999 "TBD"
  BigTable<CoachRecord, 0, 721> coach;    ///< by team; filled team by team
  std::vector<PlayerRecord> player;       ///< index = RecNo, 0 unused; filled by LoadLeaguePlayers
  std::map<int, std::string> ComboTeams;  ///< teams of a combined row of `player`, by row: "BOS-ATL"
  RulesRecord rules;
  std::vector<u8> tournamentPools;  ///< record 2 of HCRULES as it stands in the file, a whole slot
  EraTable EraPro, EraCollege;

  std::vector<ScheduleRecord> ScheduleGame = std::vector<ScheduleRecord>(1);  ///< index = row, 0 unused
  int ScheduleYear = 2000;  ///< year in which the scheduled season begins
  bool HasAugustGames = false, HasSeptemberGames = false;
  int GameCount() const { return static_cast<int>(ScheduleGame.size()) - 1; }  ///< rows in use
  /// The game in this row of the schedule, deleted or not; nullptr for a number that it does not have.
  const ScheduleRecord* Row(int row) const {
    return row >= 1 && row <= GameCount() ? &ScheduleGame[static_cast<std::size_t>(row)] : nullptr;
  }

  std::vector<ScheduleRecord> Scores =
      std::vector<ScheduleRecord>(1);  ///< games played; index = row, 0 unused

  tipline::RecordBook RecordBook;   ///< the one that was loaded last, by LoadRecordBook
  tipline::RecordBook ShelvedBook;  ///< the one before it: the league's beside that of all leagues

  std::string LeagueFolderName;       ///< last part of the league folder
  std::filesystem::path PhotoFolder;  ///< where this league's player photos lie
  double PhotoRatio = 1.5;            ///< height to width of player photos
  Table<std::string, 1, 5> PositionLabel;

  // Lookups, rebuilt by LoadAllTeams.
  Table<int, 0, 999> Conference{};  ///< 1 or 2 (a college team: its division), 0 in no used division
  Table<int, 1, kDivisions> DivisionTeams{};  ///< active teams in each division
  std::vector<int> UsedDivisions;             ///< ascending
  int ActiveTeams = 0;
  int LargestDivision = 0;     ///< active teams of the largest division
  bool EqualDivisions = true;  ///< all used divisions are of one size
  bool MixedYears = false;     ///< the active teams hold more than one Year

  double FullSeasonScale = 1.0;  ///< 82 / 71 when men of 2019 played more games than that season had
};

extern League league;

/// City and nickname, the city alone where both are the same.
std::string TeamName(const TeamRecord& team);
/// Division 1 to 36 of team slot 1 to 720; 0 for any other number.
int DivisionOf(int team);
/// Conference of a team by the lookup; 0 for a number outside 1 to 720.
int ConferenceOf(int team);
/// The 20 slots of division 1 to 36, in order.
Table<int, 1, 20> TeamsOfDivision(int division);

/// Row of the era table for a season. A year below `oldest` or above 2050 counts as `fallback`, the answer of
/// the place that asks; what is left is held to 1946..2050.
const EraRecord& EraRow(int year, bool college, int fallback, int oldest = 1);

inline int HeightOf(const PlayerRecord& player) {
  return player.HeightFeet * 12 + player.HeightInches;
}  ///< inches

inline bool IsCollegeOrInternational(const TeamRecord& team) {
  return team.TeamType == 'C' || team.TeamType == 'O';
}

}  // namespace tipline
