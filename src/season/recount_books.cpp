#include "season/recount_books.h"

#include <algorithm>
#include <cmath>

#include "aftermath/leader_boards.h"
#include "aftermath/record_book.h"
#include "aftermath/record_names.h"
#include "league/program.h"

namespace tipline {
namespace {

/// The best first; who was first with a value stays ahead, or, in the lists of best games, who was last.
void SortBest(std::vector<Performance>& all, bool lastAhead) {
  if (lastAhead) std::reverse(all.begin(), all.end());
  std::stable_sort(all.begin(), all.end(), [](const auto& a, const auto& b) { return a.value > b.value; });
}

bool Same(const Performance& counted, double value, std::string_view name) {
  return std::abs(counted.value - value) < 0.001 && (value == 0 || counted.name == Trimmed(name));
}

std::string NameAndValue(double value, std::string_view name) {
  return std::string(Trimmed(name)) + " " + std::to_string(std::lround(value * 100) / 100.0).substr(0, 6);
}

/// Ids that a man's line enters, with what they take from it.
void ForFigures(const StatLine& line, int side, const std::function<void(int, int)>& visit) {
  for (int k = 0; k < static_cast<int>(std::size(kRecordFigures)); ++k) {
    const int value = kRecordFigures[k].of(line);
    visit(1 + k, value);
    visit((side == 1 ? kRoadRecords : kHomeRecords) + k, value);
  }
}

/// Categories of which a box tells: not those by the kind of shot, nor of a man's quarter or half.
bool IsCounted(int id, bool team) {
  if (id >= kMarginRecord && id < kQuarterRecords) return team;
  return id < kShotRecords || (id >= kRoadRecords && id < kMarginRecord);
}

const auto& Best(const std::map<int, std::vector<Performance>>& all, int id) {
  static const std::vector<Performance> kNone;
  const auto found = all.find(id);
  return found == all.end() ? kNone : found->second;
}

}  // namespace

void BooksTally::AddRecords(const BoxRecord& box) {
  for (int side = 1; side <= 2; ++side) {
    StatLine sum;
    int minutes = 0;
    for (const BoxMan& man : MenOfBox(box, side)) {
      if (!man.Played()) continue;
      ForFigures(*man.line, side, [&](int id, int value) {
        if (value > 0)
          records_[id].push_back(
              {double(value), box.BoxNames[man.slot][side].Str(), box.BoxAbbrevs[side].Str()});
      });
      for (const auto count : {&StatLine::FGA, &StatLine::FGM, &StatLine::F3A, &StatLine::F3M, &StatLine::FTA,
                               &StatLine::FTM, &StatLine::Reb, &StatLine::Off, &StatLine::Ast, &StatLine::St,
                               &StatLine::Bk, &StatLine::To, &StatLine::Pf}) {
        sum.*count = static_cast<i16>(sum.*count + man.line->*count);
      }
      minutes += man.line->Min;
    }
    sum.Min = static_cast<i16>(minutes / 5);
    const TeamRecord& team = league.team[std::clamp<int>(box.GameTeam[side], 0, kTeams)];
    const std::string holder = (std::to_string(team.Year) + " " + team.City.Str()).substr(0, 20);
    const auto enter = [&](int id, int value) {
      if (value > 0) records_[kTeamRecords + id].push_back({double(value), holder, ""});
    };
    ForFigures(sum, side, enter);
    enter(kMarginRecord, box.Score[side] - box.Score[3 - side]);
    for (int period = 1; period <= kRecordPeriods; ++period) {
      enter(kPeriodRecords + period - 1, box.PeriodScore[period][side]);
      enter(kOppPeriodRecords + period - 1, box.PeriodScore[period][3 - side]);
    }
  }
}

void BooksTally::AddTopGames(const BoxRecord& box) {
  for (int side = 1; side <= 2; ++side) {
    for (const BoxMan& man : MenOfBox(box, side)) {
      if (!man.Played()) continue;
      for (int category = 1; category <= kTopCategories; ++category) {
        const double value = static_cast<f32>(TopCategoryValue(category, *man.line));
        if (value >= 0) topGames_[category].push_back({value, box.BoxNames[man.slot][side].Str(), ""});
      }
    }
  }
}

/// As the boards are kept in order: by swaps from the end, which decides between equals.
template <class Rows>
void SortBoard(Rows& rows) {
  for (std::size_t a = 0; a < rows.size(); ++a) {
    for (std::size_t b = rows.size(); b-- > a;) {
      if (rows[b].value > rows[a].value) std::swap(rows[a], rows[b]);
    }
  }
}

/// Every man of both teams comes up again with what he has now; the others keep what they had.
void BooksTally::AddLeaders(const BoxRecord& box, const SeasonTally& season) {
  for (int side = 1; side <= 2; ++side) {
    const auto team = season.team.find(box.GameTeam[side]);
    if (team == season.team.end()) continue;
    const int games = team->second.Wins + team->second.Losses;
    for (const BoxMan& man : MenOfBox(box, side)) {
      const auto record = season.man.find(man.recNo);
      if (record == season.man.end()) continue;
      for (int board = 1; board <= kBoards; ++board) {
        auto& rows = boards_[board];
        rows.resize(kBoardPlaces);  // an empty place has 0
        const int value = BoardValue(board, record->second, games);
        const auto own =
            std::find_if(rows.begin(), rows.end(), [&](const Leader& l) { return l.recNo == man.recNo; });
        if (own != rows.end()) {
          own->value = value;
        } else if (value > rows.back().value) {
          rows.back() = {man.recNo, value};
        } else {
          continue;
        }
        SortBoard(rows);
      }
    }
  }
}

void BooksTally::Add(const BoxRecord& box, const ScheduleRecord& row, const SeasonTally& season) {
  if (row.PlayoffFlag != 'Y') {
    AddRecords(box);
    AddLeaders(box, season);
  }
  AddTopGames(box);
}

void BooksTally::Compare(const std::function<void(std::string)>& tell, long& figures) const {
  const auto differs = [&](const std::string& where, double stored, std::string_view storedName,
                           const Performance& counted) {
    ++figures;
    if (Same(counted, stored, storedName)) return;
    tell(where + " is " + NameAndValue(stored, storedName) + ", the boxes have " +
         NameAndValue(counted.value, counted.name) + ".");
  };
  if (LoadRecordBook()) {
    for (int id = 1; id <= kRecordIds; ++id) {
      const std::string name = RecordName(id > kTeamRecords ? id - kTeamRecords : id);
      if (name.empty() || !IsCounted(id > kTeamRecords ? id - kTeamRecords : id, id > kTeamRecords)) continue;
      auto all = Best(records_, id);
      SortBest(all, false);
      all.resize(kRecordPlaces);
      const RecordRow& row =
          league.RecordBook.Row[static_cast<std::size_t>(RecordSlot(RecordBlock::kGame, id))];
      for (int place = 1; place <= kRecordPlaces; ++place) {
        auto counted = all[static_cast<std::size_t>(place - 1)];
        counted.name = std::string(Trimmed(counted.name));
        differs("Record \"" + name + "\" (" + std::to_string(id) + "), place " + std::to_string(place),
                row.Value[place], row.Holder[place].View().substr(0, id > kTeamRecords ? 20 : 15), counted);
      }
    }
  } else {
    tell("The record book can't be read.");
  }
  if (Top40Table table; ReadTop40(table)) {
    for (int category = 1; category <= kTopCategories; ++category) {
      auto all = Best(topGames_, category);
      SortBest(all, true);
      all.resize(kTopPlaces);
      for (int place = 1; place <= kTopPlaces; ++place) {
        const TopRow row = TopRowOf(table, place, category);
        differs(
            "Best game in \"" + std::string(TopCategoryName(category)) + "\", place " + std::to_string(place),
            row.Value, row.Name.View(), all[static_cast<std::size_t>(place - 1)]);
      }
    }
  } else {
    tell("The best games can't be read.");
  }
  if (LeaderTable table; ReadLeaders(table)) {
    for (int board = 1; board <= kBoards; ++board) {
      const auto found = boards_.find(board);
      for (int place = 1; place <= kBoardPlaces; ++place) {
        Performance counted;
        if (found != boards_.end() && place <= static_cast<int>(found->second.size())) {
          const Leader& leader = found->second[static_cast<std::size_t>(place - 1)];
          counted = {double(leader.value), std::to_string(leader.recNo), ""};
        }
        differs("Leader board \"" + std::string(BoardName(board)) + "\", place " + std::to_string(place),
                table.LeaderValue[place][board], std::to_string(table.LeaderRecNo[place][board]), counted);
      }
    }
  } else {
    tell("The leader boards can't be read.");
  }
}

}  // namespace tipline
