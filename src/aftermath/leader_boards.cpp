#include "aftermath/leader_boards.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/record_file.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"

namespace tipline {
namespace {

RecordFile LeadersFile() { return {LeagueFile("HcLeaders"), kLeaderSlotBytes}; }

int TotalOf(int board, const StatLine& season) {
  switch (board) {
    case 1:
      return PointsOf(season);
    case 2:
      return season.Reb;
    case 3:
      return season.Ast;
    case 4:
      return season.St;
    default:
      return season.Bk;
  }
}

struct ShotBoard {
  i16 StatLine::*tried;
  i16 StatLine::*made;
  double leastTried, leastMade;  ///< a game of his team; either will do
};
// clang-format off
constexpr ShotBoard kShotBoards[] = {
    {&StatLine::FGA, &StatLine::FGM, 5, 3.65},  // board 6
    {&StatLine::FTA, &StatLine::FTM, 3, 1.52},
    {&StatLine::F3A, &StatLine::F3M, 1, 1.0},
};
// clang-format on

const ShotBoard& ShotsOf(int board) { return kShotBoards[board - kFirstPercentageBoard]; }

void SwapPlaces(LeaderTable& t, int board, int a, int b) {
  std::swap(t.LeaderName[a][board], t.LeaderName[b][board]);
  std::swap(t.LeaderTeam[a][board], t.LeaderTeam[b][board]);
  std::swap(t.LeaderValue[a][board], t.LeaderValue[b][board]);
  std::swap(t.LeaderRecNo[a][board], t.LeaderRecNo[b][board]);
}

/// His place on the board; 0 when he has none.
int PlaceOf(const LeaderTable& t, int board, const BoardEntry& entry) {
  for (int place = 1; place <= kBoardPlaces; ++place) {
    const auto& name = t.LeaderName[place][board];
    if (name.bytes[0] == entry.Name.bytes[0] && name == entry.Name &&
        t.LeaderTeam[place][board] == entry.Team)
      return place;
  }
  return 0;
}

BoardEntry EntryOf(const TeamRecord& team, const PlayerRecord& man) {
  BoardEntry entry;
  const std::string first = man.FirstName.Empty() ? "---" : man.FirstName.Str();
  entry.Name = first + " " + man.LastName.Str();
  entry.Team = team.Abbrev.View();
  entry.RecNo = man.RecNo;
  return entry;
}

bool EnterTeam(LeaderTable& table, int side) {
  const TeamRecord& team = game.team[side];
  bool changed = false;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(side, slot)) continue;
    const PlayerRecord& man = PlayerAt(side, slot);
    BoardEntry entry = EntryOf(team, man);
    for (int board = 1; board <= kBoards; ++board) {
      entry.Value = BoardValue(board, man, team.Wins + team.Losses);
      if (EnterBoard(table, board, entry)) changed = true;
    }
  }
  return changed;
}

}  // namespace

std::string_view BoardName(int board) {
  constexpr std::string_view kNames[] = {"Scoring", "Rebounds",    "Assists",     "Steals",
                                         "Blocks",  "Field Goal%", "Free Throw%", "Three Point%"};
  return board >= 1 && board <= kBoards ? kNames[board - 1] : std::string_view();
}

bool BoardQualifies(int board, const StatLine& season, const PlayerRecord& man, int teamGames) {
  if (board < kFirstPercentageBoard) return season.G >= 1 && season.G >= 0.7 * teamGames;
  const ShotBoard& shots = ShotsOf(board);
  const int tried = season.*shots.tried, made = season.*shots.made;
  const double leastMade = shots.leastMade * (IsCollege(man) ? 0.5 : 1);  // college men get fewer shots
  return tried > 0 && (tried >= shots.leastTried * teamGames || made >= leastMade * teamGames);
}

int BoardValue(int board, const PlayerRecord& man, int teamGames) {
  const StatLine& season = man.Stats[2];
  if (!BoardQualifies(board, season, man, teamGames)) return kNotQualified;
  const double value = board < kFirstPercentageBoard
                           ? 100.0 * TotalOf(board, season) / season.G
                           : 1000.0 * (season.*ShotsOf(board).made) / (season.*ShotsOf(board).tried);
  return Clamp<int>(Round(value), kNotQualified, std::numeric_limits<i16>::max());
}

bool EnterBoard(LeaderTable& t, int board, const BoardEntry& entry) {
  int place = PlaceOf(t, board, entry);
  if (place == 0) {
    if (entry.Value <= t.LeaderValue[kBoardPlaces][board]) return false;
    place = kBoardPlaces;
  } else if (t.LeaderValue[place][board] == entry.Value && t.LeaderRecNo[place][board] == entry.RecNo) {
    return false;
  }
  t.LeaderName[place][board] = entry.Name;
  t.LeaderTeam[place][board] = entry.Team;
  t.LeaderValue[place][board] = static_cast<i16>(entry.Value);
  t.LeaderRecNo[place][board] = static_cast<i16>(entry.RecNo);
  SortLeaderBoard(t, board);
  return true;
}

void SortLeaderBoard(LeaderTable& t, int board) {
  for (int a = 1; a <= kBoardPlaces; ++a) {
    for (int b = kBoardPlaces; b >= a; --b) {
      if (t.LeaderValue[b][board] > t.LeaderValue[a][board]) SwapPlaces(t, board, a, b);
    }
  }
}

bool ReadLeaders(LeaderTable& table) {
  table = {};
  const RecordFile file = LeadersFile();
  const bool read = file.Path().empty() || file.Read(1, table);
  if (!read || table.LeaderMark != kLeaderMark) table = {};
  table.LeaderMark = kLeaderMark;
  return WasRead(read, file.Path());
}

bool UpdateLeaders() {
  if (program.PlayoffGame || program.LeagueFolder.empty()) return true;
  LeaderTable table;
  if (!ReadLeaders(table)) return false;
  const bool visitors = EnterTeam(table, 1), home = EnterTeam(table, 2);
  if (!visitors && !home) return true;
  const RecordFile file = LeadersFile();
  return Written(file.Write(1, table), file.Path());
}

}  // namespace tipline
