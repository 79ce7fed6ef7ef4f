// Sixty games of a made league: what the books kept, game by game, beside what all the games say together.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "aftermath/leader_boards.h"
#include "aftermath/record_book.h"
#include "aftermath/record_names.h"
#include "base/random.h"
#include "engine/game_state.h"
#include "harness/memory_league.h"
#include "harness/temporary_home.h"
#include "league/program.h"

namespace tipline {
namespace {

/// A man's game, as the log of the season has it.
struct Night {
  int side = 0, recNo = 0;
  Text<20> name;
  Text<3> team;
  StatLine line;
};

class BookSeason : public testing::Test {
 protected:
  void SetUp() override {
    const std::filesystem::path folder = home.Home() / "Demo";
    std::filesystem::create_directories(folder);
    OpenSmallLeague("college", 3);
    random.Seed(11);
    const auto teams = MemoryTeams();
    for (int round = 0; round < 20; ++round) {
      for (const Pairing& pair : RoundOf(teams, round)) {
        game.GameYear = 1996, game.GameCalendarMonth = 11, game.GameDay = round + 1;
        PlayMatch(pair.visitor, pair.home);
        Log();
        program.LeagueFolder = folder;
        Enter();
        program.LeagueFolder.clear();
        KeepBooks();
      }
    }
    program.LeagueFolder = folder;
    ASSERT_EQ(games_, 60);
  }
  void TearDown() override { league = {}; }

  void Log() {
    ++games_;
    for (int side = 1; side <= 2; ++side) {
      for (int slot = 1; slot <= kRosterSlots; ++slot) {
        if (!OnTeam(side, slot) || ManAt(side, slot).PlayerGameTime == 0) continue;
        const PlayerRecord& p = PlayerAt(side, slot);
        nights_.push_back({side, p.RecNo, Text<20>(p.LastName.View()), game.team[side].Abbrev, p.Stats[3]});
      }
    }
  }
  static void Enter() {
    ASSERT_TRUE(LoadRecordBook());
    UpdatePlayerRecords();
    UpdateTeamRecords();
    ASSERT_TRUE(SaveRecordBook());
    ASSERT_TRUE(UpdateLeaders());
    ASSERT_TRUE(UpdateTop40());
  }
  /// The season's nights, best first; of equals the older or the newer ahead.
  template <class Value>
  std::vector<const Night*> Ranked(Value value, bool newerAhead) const {
    std::vector<const Night*> ranked;
    for (const Night& night : nights_) ranked.push_back(&night);
    if (newerAhead) std::reverse(ranked.begin(), ranked.end());
    std::stable_sort(ranked.begin(), ranked.end(),
                     [&](const Night* a, const Night* b) { return value(*a) > value(*b); });
    return ranked;
  }

  TemporaryHome home;
  std::vector<Night> nights_;
  int games_ = 0;
};

TEST_F(BookSeason, HoldsWhatAllGamesTogetherSay) {
  league.RecordBook = {};  // what counts is what the file holds
  league.ShelvedBook = {};
  ASSERT_TRUE(LoadRecordBook());
  for (int k = 0; k < 16; ++k) {
    const auto value = [k](const Night& night) { return kRecordFigures[k].of(night.line); };
    const auto ranked = Ranked(value, false);
    const auto atHome = Ranked([&](const Night& n) { return n.side == 2 ? value(n) : 0; }, false);
    std::map<std::pair<std::string, std::string>, int> season;
    for (const Night& night : nights_) season[{night.name.Str(), night.team.Str()}] += value(night);
    std::vector<int> totals;
    for (const auto& [man, total] : season) totals.push_back(total);
    std::sort(totals.rbegin(), totals.rend());
    const RecordRow& best = league.RecordBook.Row[static_cast<std::size_t>(400 + k + 1)];
    const RecordRow& home5 = league.RecordBook.Row[static_cast<std::size_t>(400 + kHomeRecords + k)];
    const RecordRow& most = league.RecordBook.Row[static_cast<std::size_t>(k + 1)];
    for (int place = 1; place <= kRecordPlaces; ++place) {
      const auto at = static_cast<std::size_t>(place - 1);
      EXPECT_EQ(best.Value[place], value(*ranked[at])) << RecordName(k + 1);
      if (best.Value[place] > 0) {
        EXPECT_EQ(best.Holder[place], ranked[at]->name) << RecordName(k + 1);
      }
      EXPECT_EQ(home5.Value[place], value(*atHome[at])) << RecordName(kHomeRecords + k);
      EXPECT_EQ(most.Value[place], totals[at]) << RecordName(k + 1) << " of the season";
    }
  }
  Top40Table top;
  ASSERT_TRUE(ReadTop40(top));
  for (int category = 1; category <= kTopCategories; ++category) {
    const auto value = [category](const Night& n) {
      return static_cast<f32>(TopCategoryValue(category, n.line));
    };
    const auto ranked = Ranked(value, true);
    for (int place = 1; place <= kTopPlaces; ++place) {
      const Night& night = *ranked[static_cast<std::size_t>(place - 1)];
      const TopRow row = TopRowOf(top, place, category);
      EXPECT_EQ(row.Value, std::max(0.0f, value(night))) << TopCategoryName(category) << place;
      if (row.Value > 0) {
        EXPECT_EQ(row.Name, Text<15>(night.name.View())) << TopCategoryName(category) << place;
      }
    }
  }
}

TEST_F(BookSeason, TheBoardsHoldTheBestMenOfTheLeague) {
  LeaderTable table;
  ASSERT_TRUE(ReadLeaders(table));
  for (int board = 1; board <= kBoards; ++board) {
    std::vector<int> values;
    for (const PlayerRecord& man : league.player) {
      if (man.TeamNo < 1 || man.TeamNo > kTeams) continue;
      const TeamRecord& team = league.team[man.TeamNo];
      values.push_back(BoardValue(board, man, team.Wins + team.Losses));
    }
    std::sort(values.rbegin(), values.rend());
    for (int place = 1; place <= kBoardPlaces; ++place) {
      const int value = table.LeaderValue[place][board];
      if (place <= 5) {
        EXPECT_EQ(value, values[static_cast<std::size_t>(place - 1)]) << BoardName(board) << place;
      }
      if (place > 1) {
        EXPECT_LE(value, table.LeaderValue[place - 1][board]);
      }
      const int recNo = table.LeaderRecNo[place][board];
      if (recNo == 0) continue;
      const PlayerRecord& man = league.player[static_cast<std::size_t>(recNo)];
      const TeamRecord& team = league.team[man.TeamNo];
      EXPECT_EQ(value, BoardValue(board, man, team.Wins + team.Losses)) << "his season as it stands";
      EXPECT_EQ(table.LeaderTeam[place][board], team.Abbrev);
    }
  }
}

}  // namespace
}  // namespace tipline
