// A stored game, or a snapshot, back into the tables of the game.
#include <algorithm>
#include <memory>

#include "aftermath/box_fields.h"
#include "aftermath/box_file.h"
#include "aftermath/box_sums.h"
#include "base/calendar.h"
#include "base/record_file.h"
#include "league/files.h"
#include "league/program.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

constexpr int kMostPeriods = 20;       // whose tables a game has
constexpr i32 kLongestClock = 36000;   // of a period: an hour
constexpr i32 kLongestTime = 1000000;  // of a man
constexpr int kLongestShotClock = 990;

/// What is outside the bounds reads as `otherwise`.
int Within(int value, int low, int high, int otherwise = 0) {
  return value < low || value > high ? otherwise : value;
}

template <int Bytes>
bool Bit(const Table<u8, 1, Bytes>& bits, int bit) {
  return (bits[bit / 8 + 1] >> bit % 8 & 1) != 0;
}

template <class Words>
Word<Words> WordOf(std::string_view text) {
  Word<Words> word;
  word.Set(text);
  return word;
}

/// Old files number the teams in two bytes. False when the box is of no two teams.
bool FindTeams(BoxRecord& box) {
  for (int s = 1; s <= 2; ++s) {
    if (box.OldTeamNo[s] > 0) box.GameTeam[s] = box.OldTeamNo[s];
    if (box.GameTeam[s] < 1 || box.GameTeam[s] > kTeams) return false;
  }
  return true;
}

/// The box under the current name; nothing, told, when there is none.
std::unique_ptr<BoxRecord> CurrentBox() {
  constexpr std::size_t kShortestName = 4;
  const std::string_view name = Trimmed(program.BoxFileName);
  auto box = std::make_unique<BoxRecord>();
  const bool plain = name.find_first_of("/\\") == name.npos;
  if (name.size() < kShortestName || !plain || !ReadBox(LeagueFile(name), *box) || !FindTeams(*box)) {
    platform::RefusedWith("Box file is not available!");
    return nullptr;
  }
  return box;
}

// The scoring log -------------------------------------------------------------------------------------------

void LoadScoreLog(const BoxRecord& box) {
  game.ScoreLogCount = game.ScoreLogDropped = 0;
  if (game.GameStarted || box.ScoreLogMark != kBoxMark) return;
  const int rows = Clamp<int>(box.ScoreLogCount, 0, kScoreLogRows);
  for (int n = 1; n <= rows; ++n) {
    const BoxScoreRow& kept = box.ScoreLog[n];
    if (kept.Side < 1 || kept.Side > 2 || kept.Slot > kRosterSlots) continue;
    ScoreLogRow& row = game.ScoreLog[++game.ScoreLogCount];
    row = {};
    row.Slot = kept.Slot;
    row.Side = kept.Side;
    row.VisitorScore = kept.VisitorScore;
    row.HomeScore = kept.HomeScore;
    row.Period = kept.Period;
    row.TimeLeft = std::max(kept.TimeLeft, i16{0});
    row.Kind = kept.Kind.bytes[0];
    row.ScorerPoints = kept.ScorerPoints;
  }
  // A full log began with a basket, or what came before has made room.
  const ScoreLogRow& first = game.ScoreLog[1];
  if (game.ScoreLogCount == kScoreLogRows && first.VisitorScore + first.HomeScore > 3)
    game.ScoreLogDropped = 1;
}

// The game --------------------------------------------------------------------------------------------------

void LoadClock(const BoxRecord& box) {
  game.Period = Clamp<int>(box.Period, 1, kMostPeriods);
  game.GameClock = Clamp(box.GameClock, 0, kLongestClock);
  game.ShotClock = Clamp<i32>(box.ShotClock, 0, kLongestShotClock);
  game.GameState = WordOf<GameStateWords>(box.GameState.View());
  game.OffenseSide = box.OffenseSide == 1 ? 1 : 2;
  game.DefenseSide = 3 - game.OffenseSide;
  game.BallPlayer = Within(box.BallPlayer, 0, kRosterSlots);
  game.PlayResult = WordOf<PlayResultWords>(box.PlayResult.View());
  game.PreviousResult = WordOf<PlayResultWords>(box.PreviousResult.View());
  game.DeadBallKind = Within(box.DeadBallKind, 0, 4);
  game.NeedsBringUp = Within(box.NeedsBringUp, 0, 1);
}

void LoadDate(const BoxRecord& box) {
  constexpr int kJanuary = 5;  // of a season
  game.GameDay = Within(box.GameDay, 0, 31);
  game.GameMonth = Within(box.GameMonth, 0, 12);
  game.GameCalendarMonth = game.GameMonth > 0 ? CalendarMonth(game.GameMonth) : 0;
  game.GameYear = box.GameYear;
  // From New Year on a game may be kept under the year in which its season began.
  if (game.GameMonth >= kJanuary && game.GameYear == league.team[1].Year) ++game.GameYear;
}

void LoadCourse(const BoxRecord& box) {
  game.ScheduleRow = std::max<int>(box.ScheduleRow, 0);
  game.NeutralGame = box.NeutralMark == kBoxMark && box.NeutralGame == 1;
  game.RunTeam = Within(box.RunTeam, 0, 2);
  game.RunPoints = box.RunPoints;
  game.LeadChanges = box.LeadChanges;
  game.Ties = box.Ties;
  game.OpeningTipWinner = Within(box.OpeningTipWinner, 0, 2);
  for (const BoxNameList& names : kBoxNameLists) {
    game.*names.list = (box.*names.box).Str();
    if (!(game.*names.list).empty()) game.*names.list += ", ";
  }
}

// Sides -----------------------------------------------------------------------------------------------------

/// A side that holds another team takes this one, as the league has it; its men are yet to come.
void SeatTeam(const BoxRecord& box, int s) {
  const int team = box.GameTeam[s];
  if (game.GameTeam[s] != team) {
    game.GameTeam[s] = team;
    game.team[s] = league.team[team];
    game.player[s].Fill({});
    game.loaded[s].Fill({});
  }
  if (game.team[s].Abbrev.Empty()) game.team[s].Abbrev = box.BoxAbbrevs[s];
}

void LoadScouting(const BoxRecord& box, int s) {
  const auto count = [](i16 value) { return std::max<int>(value, 0); };
  Side& side = game.side[s];
  for (int k = 0; k <= 10; ++k) side.ScoutOffense[k] = count(box.ScoutOffense[s][k]);
  for (int k = 0; k <= 4; ++k) {
    side.ScoutHelp[k] = count(box.ScoutHelp[s][k]);
    side.ScoutPressure[k] = count(box.ScoutPressure[s][k]);
    side.ScoutDefenseType[k] = count(box.ScoutDefenseType[s][k]);
  }
  for (int zone = 1; zone <= 3; ++zone) {
    for (int rating = 0; rating <= 10; ++rating) {
      for (int coverage = 1; coverage <= 6; ++coverage) {
        side.ScoutCoverage[zone][rating][coverage] = count(box.ScoutCoverage[s][zone][rating][coverage]);
      }
    }
  }
}

void LoadPlaces(const BoxRecord& box, int s) {
  Side& side = game.side[s];
  for (int p = 1; p <= kPositions; ++p) {
    side.Lineup[p] = Within(box.Lineup[p][s], 0, kRosterSlots);
    side.Starters[p] = Within(box.Starters[p][s], 0, kRosterSlots);
    side.StoredMatchup[p] = Within(box.StoredMatchup[p][s], 1, kPositions, p);
    side.Matchup[p] =
        s == game.DefenseSide ? Within(box.Matchup[p], 1, kPositions, p) : side.StoredMatchup[p];
    const int pick = Within(box.ShotPick[p], 0, kThree);
    if (s == game.OffenseSide && side.Lineup[p] > 0) ManAt(s, side.Lineup[p]).ShotPick = pick;
  }
}

void LoadSide(const BoxRecord& box, int s) {
  Side& side = game.side[s];
  for (const BoxSideField& field : kBoxSideFields) {
    side.*field.side = Within((box.*field.box)[s], field.low, field.high, field.otherwise);
  }
  for (const BoxMarkedField& field : kBoxMarkedFields) {
    side.*field.side = box.*field.mark == kBoxMark ? (box.*field.box)[s] : 0;
  }
  for (int p = 1; p <= 10; ++p) side.PeriodScore[p] = box.PeriodScore[p][s];
  game.team[s].Possessions[3] = std::max(box.Possessions[s], i16{0});
  game.team[s].OppPossessions[3] = std::max(box.OppPossessions[s], i16{0});
  side.CoachMode = WordOf<CoachModeWords>(box.CoachMode[s].Letter.View());
  side.GameFGA = box.TeamFGA[s];
  side.GameTo = box.TeamTo[s] + side.GameTeamTurnovers;
  LoadPlaces(box, s);
  LoadScouting(box, s);
}

// Men -------------------------------------------------------------------------------------------------------

/// A man of whom the tables know nothing is who the box says he is.
void SeatMan(const BoxRecord& box, int s, int slot) {
  if (program.ResumingGame || OnTeam(s, slot)) return;
  PlayerRecord& p = PlayerAt(s, slot);
  p = {};
  if (box.PlayerRecNo[slot][s] <= 0) return;
  p.RecNo = box.PlayerRecNo[slot][s];
  p.TeamNo = box.GameTeam[s];
  p.LastName = box.BoxNames[slot][s].View();
}

void LoadPlayer(const BoxRecord& box, int s, int slot) {
  PlayerRecord& p = PlayerAt(s, slot);
  const u8 grade2 = p.Stats[3].Flagrant2;
  p.Stats[3] = box.Line[slot][s];
  if (box.Flagrant2Mark != kBoxMark) p.Stats[3].Flagrant2 = grade2;
  for (const BoxCounter& field : kBoxCounters) (p.*field.player)[3] = (box.*field.box)[slot][s];
  for (const BoxCarried& field : kBoxCarried) (p.*field.player)[3] = (box.*field.box)[slot][s];
  for (int q = 1; q <= 5; ++q) p.QuarterPoints[q][3] = box.QuarterPoints[slot][s][q];
  p.Flagrants[3] = box.Flagrants[slot][s];
}

void LoadMan(const BoxRecord& box, int s, int slot) {
  Man& man = ManAt(s, slot);
  for (const BoxManField& field : kBoxManFields) {
    man.*field.man = Within((box.*field.box)[slot][s], field.low, field.high, field.otherwise);
  }
  for (const BoxClock& clock : kBoxClocks) {
    man.*clock.man = Clamp((box.*clock.box)[slot][s], -kLongestTime, kLongestTime);
  }
  man.PlayerGameTime = std::max(man.PlayerGameTime, 0);
  man.PlusMinus = box.PlusMinus[slot][s];
  const bool placed = box.PositionMark == kBoxMark;
  for (int p = 1; p <= kPositions; ++p) {
    man.PositionTime[p] = placed ? std::max<int>(box.PositionTime[slot][s][p], 0) : 0;
    man.PositionPoints[p] = placed ? box.PositionPoints[slot][s][p] : 0;
  }
  const auto& out = box.PlayerOutMark == kBoxMark ? box.PlayerOutCopy : box.PlayerOut;
  LoadedAt(s, slot).PlayerOut = Within(out[slot][s], 0, 1, 1);
}

/// A season line that is full takes no more.
void AddToSeason(const BoxRecord& box, PlayerRecord& p) {
  constexpr int kFullSeason = 6000;
  StatLine& season = p.Stats[2];
  const StatLine& line = p.Stats[3];
  if (season.Min >= kFullSeason) return;
  for (const auto counter :
       {&StatLine::G, &StatLine::GS, &StatLine::Min, &StatLine::FGA, &StatLine::FGM, &StatLine::F3A,
        &StatLine::F3M, &StatLine::FTA, &StatLine::FTM, &StatLine::Reb, &StatLine::Off, &StatLine::Ast,
        &StatLine::St, &StatLine::Bk, &StatLine::To, &StatLine::Pf, &StatLine::Dq, &StatLine::Dunks}) {
    AddHeld(season.*counter, line.*counter);
  }
  for (const auto counter : {&StatLine::Technicals, &StatLine::GameMvps, &StatLine::Ejections}) {
    AddHeld(season.*counter, line.*counter);
  }
  if (box.Flagrant2Mark == kBoxMark) AddHeld(season.Flagrant2, line.Flagrant2);
  for (const BoxCarried& field : kBoxCarried) {
    AddHeld((p.*field.player)[2], (p.*field.player)[3], field.most);
  }
}

// Where a snapshot stood ------------------------------------------------------------------------------------

void LoadBooksOfGame(const BoxRecord& box) {
  program.GameKind = WordOf<GameKindWords>(box.GameKind.View());
  program.PlayoffGame = box.PlayoffGame == 'Y';
  program.CurrentRound = Within(box.CurrentRound, 0, 4);
  program.CurrentBracket = Within(box.CurrentBracket, 0, 5);
  program.RoundWins = box.RoundWins;
  program.CurrentSeriesGame = Within(box.CurrentSeriesGame, 0, 15);
  for (int s = 1; s <= 2; ++s) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(s, slot)) continue;
      PlayerRecord& p = PlayerAt(s, slot);
      p.InjuryReturnMonth = static_cast<u8>(Within(box.InjuryReturnMonth[slot][s], 0, 12));
      p.InjuryReturnDay = static_cast<u8>(Within(box.InjuryReturnDay[slot][s], 0, 31));
      if (box.SuspensionMark == kBoxMark) p.SuspensionGames = box.SuspensionGames[slot][s];
    }
  }
}

void LoadResumeMarks(const BoxResume& r) {
  for (int band = 1; band <= 16; ++band) {
    for (int period = 1; period <= 20; ++period) {
      game.MediaDone[band][period] = Bit(r.MediaDone, (band - 1) * 20 + period - 1);
    }
  }
  for (int period = 1; period <= 40; ++period) {
    game.PeriodNoticeDone[period] = Bit(r.PeriodNoticeDone, period - 1);
  }
  for (int s = 1; s <= 2; ++s) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      ManAt(s, slot).TemporaryInjury = r.TemporaryInjury[slot][s];
      ManAt(s, slot).GameInjury = Bit(r.GameInjury, (s - 1) * kRosterSlots + slot - 1);
    }
  }
}

/// A snapshot of an older program does not tell these: the game then goes on from its next stop.
void LoadResume(const BoxResume& r) {
  game.PlayKind = WordOf<PlayKindWords>(r.PlayKind.View());
  game.MomentumTime = Clamp<int>(r.MomentumTime, 0, kMinute);
  game.LastSubClock = Clamp<i32>(r.LastSubClock, 0, 99999);
  game.fastBreak.BreakStealer = Within(r.BreakStealer, 0, kRosterSlots);
  for (const BoxResumeGame& field : kBoxResumeGame) game.*field.game = Within(r.*field.box, 0, field.high);
  for (const BoxResumePossession& field : kBoxResumePossession) {
    game.possession.*field.possession = Within(r.*field.box, 0, field.high);
  }
  for (int s = 1; s <= 2; ++s) {
    Side& side = game.side[s];
    for (const BoxResumeSide& field : kBoxResumeSides) {
      side.*field.side = Within((r.*field.box)[s], 0, field.high);
    }
    side.TimeoutFocus.SetIndex(r.TimeoutFocus[s]);
    side.LastPossessionClock = std::max<int>(r.LastPossessionClock[s], 0);
    for (int p = 1; p <= 20; ++p) side.TimeoutsByPeriod[p] = r.TimeoutsByPeriod[p][s];
    for (int m = 0; m <= 20; ++m) side.TimeoutsByMinute[m] = r.TimeoutsByMinute[m][s];
  }
  LoadResumeMarks(r);
}

void LoadMen(const BoxRecord& box) {
  for (int s = 1; s <= 2; ++s) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      SeatMan(box, s, slot);
      LoadPlayer(box, s, slot);
      LoadMan(box, s, slot);
      if (!program.ResumingGame) AddToSeason(box, PlayerAt(s, slot));
    }
    game.side[s].TeamLine = TotalsOf(s);
  }
}

}  // namespace

bool ReadBox(const std::filesystem::path& file, BoxRecord& box) {
  const RecordFile record(file, kBoxBytes);
  return record.Exists() && record.Read(1, box);
}

bool LoadBoxFile() {
  const auto box = CurrentBox();
  if (!box) return false;
  LoadScoreLog(*box);
  if (program.BoxRecordOnly) return true;
  for (int s = 1; s <= 2; ++s) SeatTeam(*box, s);
  LoadClock(*box);
  LoadDate(*box);
  LoadCourse(*box);
  LoadMen(*box);
  for (int s = 1; s <= 2; ++s) LoadSide(*box, s);
  if (!program.ResumingGame) return true;
  LoadBooksOfGame(*box);
  if (box->Resume.ResumeMark == kBoxMark) LoadResume(box->Resume);
  return true;
}

}  // namespace tipline
