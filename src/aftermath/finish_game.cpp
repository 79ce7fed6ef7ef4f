#include "aftermath/finish_game.h"

#include <utility>
#include <vector>

#include "aftermath/box_file.h"
#include "aftermath/box_text.h"
#include "aftermath/game_film.h"
#include "aftermath/game_results.h"
#include "aftermath/highlights.h"
#include "aftermath/injury_history.h"
#include "aftermath/leader_boards.h"
#include "aftermath/power_rating.h"
#include "aftermath/record_book.h"
#include "aftermath/season_lines.h"
#include "aftermath/standings.h"
#include "aftermath/team_books.h"
#include "aftermath/ticker.h"
#include "base/group_save.h"
#include "engine/eligible.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/program.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

/// Calls visit(side, slot) for every man of both teams.
template <class Visit>
void ForMen(Visit visit) {
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (OnTeam(side, slot)) visit(side, slot);
    }
  }
}

bool OnDisk() { return !program.LeagueFolder.empty(); }

/// The game itself is closed, whatever its kind.
void CloseGame() {
  for (int side = 1; side <= 2; ++side) {
    const int left = CountEligible(side);
    game.side[side].ShortHanded = left < kPositions ? left : 0;
  }
  ForMen([](int side, int slot) {
    if (HasPlayed(side, slot)) CloseGameLine(side, slot);
  });
}

void ServeSuspensions() {
  ForMen([](int side, int slot) {
    ServeSuspension(side, slot);
    CountRest(side, slot);
  });
}

/// The first game of a playoff series: the men begin it with nothing.
void OpenSeries() {
  const bool series = program.PlayoffGame && program.CurrentRound > 0 && program.CurrentSeriesGame > 0;
  if (!series || program.SeriesWins[1] > 0 || program.SeriesWins[2] > 0) return;
  ForMen([](int side, int slot) { PlayerAt(side, slot).SeriesStats = {}; });
}

/// Adds the game to the season of all who played; `injuries` takes the lines of those who were hurt.
void BookMen(std::vector<std::string>& injuries) {
  ForMen(NoteLastGame);
  OpenSeries();
  ForMen([&injuries](int side, int slot) {
    if (!HasPlayed(side, slot)) return;
    PlayerRecord& p = PlayerAt(side, slot);
    if (p.InjuryReturnMonth != 0 && OnDisk()) injuries.push_back(InjuryLine(side, slot));
    EndOldInjury(side, slot);
    p.LastInjuryMonth = static_cast<u8>(game.GameMonth);
    p.LastInjuryDay = static_cast<u8>(game.GameDay);
    AddToSeason(side, slot);
  });
}

bool EnterRecords(const std::filesystem::path& folder) {
  if (!LoadRecordBook(folder)) return false;
  UpdatePlayerRecords();
  UpdateTeamRecords();
  return SaveRecordBook(folder);
}

bool EnterAllRecords() {
  const bool allTime = OnDisk() && league.rules.AllTimeRecordCheck == 1;
  return EnterRecords({}) && (!allTime || EnterRecords(AllTimeFolder()));
}

bool SaveTeams() { return !OnDisk() || (SaveTeam(game.GameTeam[1], 1) && SaveTeam(game.GameTeam[2], 2)); }

/// The row of the schedule, the record of the scores, and the box that both name.
bool BookResult(const std::vector<int>& rows) {
  const int n = NextScore();
  program.BoxFileName = BoxFileNameOf(n);
  CloseRows(rows, program.BoxFileName);
  if (OnDisk() && !rows.empty() && !SaveScheduleRows(rows)) return false;
  return AppendScore(n, ScoreOfGame(program.BoxFileName)) && (!OnDisk() || SaveBoxFile());
}

/// What the game leaves besides the season's figures.
struct News {
  std::vector<std::string> highlights, injuries;
};

News BookTables() {
  News news;
  WriteTicker();
  ServeSuspensions();
  if (OnDisk()) news.highlights = GameHighlights();
  (void)WriteBoxText();  // a page that can't be written costs no game
  AddTeamBooks();
  UpdatePowerRatings();
  BookMen(news.injuries);
  AddToStandings();
  return news;
}

/// Without a league folder what is no file all the same: the book of records, the row and the scores.
bool BookFiles(const News& news, const std::vector<int>& rows) {
  return PostHighlights(news.highlights) && PostInjuries(news.injuries) && EnterAllRecords() && SaveTeams() &&
         BookResult(rows) && UpdateLeaders() && UpdateTop40();
}

/// The league in memory as it was before the game was booked.
class LeagueBefore {
 public:
  explicit LeagueBefore(const std::vector<int>& rows) : scores_(league.Scores.size()) {
    for (int s = 1; s <= 2; ++s) {
      team_[s] = league.team[game.GameTeam[s]];
      coach_[s] = league.coach[game.GameTeam[s]];
    }
    for (const int n : rows) rows_.emplace_back(n, *league.Row(n));
  }
  void PutBack() const {
    for (int s = 1; s <= 2; ++s) {
      league.team[game.GameTeam[s]] = team_[s];
      league.coach[game.GameTeam[s]] = coach_[s];
    }
    for (const auto& [n, row] : rows_) league.ScheduleGame[static_cast<std::size_t>(n)] = row;
    league.Scores.resize(scores_);
  }

 private:
  Table<TeamRecord, 1, 2> team_;
  Table<CoachRecord, 1, 2> coach_;
  std::vector<std::pair<int, ScheduleRecord>> rows_;
  std::size_t scores_;
};

/// The men as the files have them now: the next game's league is measured by them.
void KeepMenInMemory() {
  const ScheduleRecord* row = league.Row(game.ScheduleRow);
  if (row && row->GameType == 'C') return;  // the final of a cup is saved for nobody
  ForMen([](int side, int slot) {
    const PlayerRecord& p = PlayerAt(side, slot);
    if (p.RecNo > 0 && static_cast<std::size_t>(p.RecNo) < league.player.size())
      league.player[static_cast<std::size_t>(p.RecNo)] = p;
  });
}

bool BookInOneStep() {
  if (program.BooksBehind) {
    return platform::RefusedWith(
        "The game could not be kept: the one before is not wholly in the books yet. "
        "Open the league again.");
  }
  const std::vector<int> rows = RowsToClose();
  const LeagueBefore before(rows);
  const News news = BookTables();
  GroupSave::Kept kept = GroupSave::Kept::kNo;
  {
    GroupSave group(program.LeagueFolder);
    if (BookFiles(news, rows)) kept = group.Keep();
  }
  if (kept == GroupSave::Kept::kLater) {
    program.BooksBehind = true;
    return platform::RefusedWith(
        "A file of the league can't be written. The game will be in the books when the "
        "league is opened again.");
  }
  game.InTheBooks = kept == GroupSave::Kept::kYes;
  if (!game.InTheBooks) {
    before.PutBack();
    (void)LoadRecordBook();
    return platform::RefusedWith("The game could not be kept: the files of the league stay as they were.");
  }
  (void)PostTicker();
  KeepMenInMemory();
  ListHighlights(news.highlights);
  return SaveGameFilm();
}

}  // namespace

void FinishGame() {
  CloseGame();
  if (program.GameKind != "L" || game.AnalysisMode) {
    (void)WriteBoxText();
  } else if (OnDisk()) {
    (void)BookInOneStep();
  } else {
    (void)BookFiles(BookTables(), RowsToClose());
  }
}

}  // namespace tipline
