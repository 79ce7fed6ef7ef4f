// The record of a game, filled from its tables.
#include <algorithm>
#include <memory>

#include "aftermath/box_fields.h"
#include "aftermath/box_file.h"
#include "aftermath/box_sums.h"
#include "aftermath/play_log.h"
#include "base/record_file.h"
#include "league/files.h"
#include "league/program.h"
#include "league/report_file.h"
#include "platform/clock.h"

namespace tipline {
namespace {

u8 Byte(int value) { return static_cast<u8>(Clamp(value, 0, 255)); }
i16 Word16(int value) { return static_cast<i16>(Clamp(value, -32768, 32767)); }

/// Bit `bit` of a row of bytes, the lowest first.
template <int Bytes>
void SetBit(Table<u8, 1, Bytes>& bits, int bit) {
  bits[bit / 8 + 1] = static_cast<u8>(bits[bit / 8 + 1] | 1 << bit % 8);
}

/// Men of the team who were on the floor for a whole minute have played; more shots than a hundred of a kind
/// are a slip of an old table.
void CloseLines() {
  for (int s = 1; s <= 2; ++s) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(s, slot)) continue;
      PlayerRecord& p = PlayerAt(s, slot);
      p.Stats[3].Min = Word16(ManAt(s, slot).PlayerGameTime / kMinute);
      if (p.Stats[3].Min > 0) p.Stats[3].G = 1;
      for (int k = 0; k < kBoxShotCounters; ++k) {
        i16& count = (p.*kBoxCounters[k].player)[3];
        if (count < 0 || count > 100) count = 0;
      }
    }
  }
}

// The page --------------------------------------------------------------------------------------------------

/// The page that is to go into the box; empty to keep what it had.
std::string ReportPage() {
  constexpr std::size_t kShortest = 100;
  std::string page = game.BoxPageText.empty() ? ReadWholeFile(ReportFile()) : game.BoxPageText;
  return page.size() >= kShortest ? page : "";
}

/// Lines beyond the last take its place, so that the end of the page stands. The line end that closes the
/// page is no line of it.
void TakePage(std::string_view page, BoxRecord& box) {
  int lines = 0;
  if (page.ends_with("\n\n")) page.remove_suffix(1);
  while (!page.empty()) {
    const std::size_t end = page.find('\n');
    std::string_view line = page.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines = std::min(lines + 1, kBoxLines);
    box.BoxText[lines] = line;
    page.remove_prefix(end == page.npos ? page.size() : end + 1);
  }
  for (int n = lines + 1; n <= kBoxLines; ++n) box.BoxText[n] = "";
  box.BoxTextLines = Byte(lines);
}

void PutPage(const std::filesystem::path& file, BoxRecord& box) {
  if (const std::string page = ReportPage(); !page.empty()) {
    TakePage(page, box);
  } else if (const auto old = std::make_unique<BoxRecord>(); ReadBox(file, *old)) {
    box.BoxText = old->BoxText;
    box.BoxTextLines = old->BoxTextLines;
  }
  box.BoxTextMark = kBoxMark;
}

// The game --------------------------------------------------------------------------------------------------

void PutClock(BoxRecord& box) {
  box.Period = Byte(game.Period);
  box.GameClock = game.GameClock;
  box.ShotClock = Word16(game.ShotClock);
  box.GameState = game.GameState.Text();
  box.OffenseSide = Byte(game.OffenseSide);
  box.DefenseSide = box.DefenseSideCopy = Byte(game.DefenseSide);
  box.BallPlayer = Byte(game.BallPlayer);
  box.PlayResult = game.PlayResult.Text();
  box.PreviousResult = game.PreviousResult.Text();
  box.DeadBallKind = Byte(game.DeadBallKind);
  box.NeedsBringUp = Byte(game.NeedsBringUp);
  box.Overtime = game.Period > league.rules.PeriodList ? 1 : 0;
}

void PutDates(BoxRecord& box) {
  const std::string today = platform::ComputerDate();
  box.GameDay = Byte(game.GameDay);
  box.GameMonth = Byte(game.GameMonth);
  box.GameYear = Word16(game.GameYear);
  // A game without a date has none of a month either.
  const int month = game.GameMonth;
  box.GameCalendarMonth = Byte(month < 1 || month > 12 ? 0 : month >= 5 ? month - 4 : month + 8);
  box.SavedOn = today;
  box.PlayedOn = today;
}

void PutKind(BoxRecord& box) {
  const ScheduleRecord* row = league.Row(game.ScheduleRow);
  box.GameKind = program.GameKind.Text();
  box.ScheduleRow = Word16(game.ScheduleRow);
  box.Scheduled = game.ScheduleRow > 0 ? "Y" : "N";
  box.GameTypeCode.Length = 1;
  box.GameTypeCode.Letter = row && !row->GameType.Empty() ? row->GameType.View() : "R";
  box.PlayoffGame = program.PlayoffGame ? "Y" : "N";
  box.CurrentRound = Byte(program.CurrentRound);
  box.CurrentBracket = Byte(program.CurrentBracket);
  box.RoundWins = Byte(program.RoundWins);
  box.CurrentSeriesGame = Byte(program.CurrentSeriesGame);
  box.NeutralMark = kBoxMark;
  box.NeutralGame = game.NeutralGame ? 1 : 0;
  box.Autoplayed = program.Autoplaying ? 1 : 0;
  box.VersionText = kVersionText;
  box.FormatStamp = kBoxFormat;
  box.HomeTimeZoneCode = Byte(game.team[2].ArenaAge * 12 + 1);
}

void PutCourse(BoxRecord& box) {
  box.RunTeam = Byte(game.RunTeam);
  box.RunPoints = Byte(game.RunPoints);
  box.LeadChanges = Byte(game.LeadChanges);
  box.Ties = Byte(game.Ties);
  box.OpeningTipWinner = Byte(game.OpeningTipWinner);
  for (const BoxNameList& names : kBoxNameLists) box.*names.box = ListedNames(game.*names.list);
  for (int p = 1; p <= kPositions; ++p) {
    box.Matchup[p] = Byte(Defense().Matchup[p]);
    box.ShotPick[p] = Word16(ManAt(game.OffenseSide, Offense().Lineup[p]).ShotPick);
  }
}

void PutScoreLog(BoxRecord& box) {
  box.ScoreLogMark = kBoxMark;
  box.ScoreLogCount = Word16(game.ScoreLogCount);
  for (int n = 1; n <= game.ScoreLogCount; ++n) {
    const ScoreLogRow& row = game.ScoreLog[n];
    BoxScoreRow& kept = box.ScoreLog[n];
    kept.Slot = row.Slot;
    kept.Side = row.Side;
    kept.VisitorScore = Byte(row.VisitorScore);
    kept.HomeScore = Byte(row.HomeScore);
    kept.Period = row.Period;
    kept.TimeLeft = row.TimeLeft;
    kept.Kind = std::string_view(&row.Kind, 1);
    kept.ScorerPoints = row.ScorerPoints;
  }
}

// Sides -----------------------------------------------------------------------------------------------------

void PutTotals(BoxRecord& box, int s) {
  const StatLine sum = TotalsOf(s);
  box.TeamFGA[s] = Byte(sum.FGA), box.TeamFGM[s] = Byte(sum.FGM);
  box.TeamF3A[s] = Byte(sum.F3A), box.TeamF3M[s] = Byte(sum.F3M);
  box.TeamFTA[s] = Byte(sum.FTA), box.TeamFTM[s] = Byte(sum.FTM);
  box.TeamReb[s] = Byte(sum.Reb), box.TeamAst[s] = Byte(sum.Ast);
  box.TeamTo[s] = Byte(sum.To), box.TeamSt[s] = Byte(sum.St);
  box.TeamBk[s] = Byte(sum.Bk), box.TeamPf[s] = Byte(sum.Pf);
}

void PutScouting(BoxRecord& box, int s) {
  const Side& side = game.side[s];
  for (int k = 0; k <= 10; ++k) box.ScoutOffense[s][k] = Word16(side.ScoutOffense[k]);
  for (int k = 0; k <= 4; ++k) {
    box.ScoutHelp[s][k] = Word16(side.ScoutHelp[k]);
    box.ScoutPressure[s][k] = Word16(side.ScoutPressure[k]);
    box.ScoutDefenseType[s][k] = Word16(side.ScoutDefenseType[k]);
  }
  for (int zone = 1; zone <= 3; ++zone) {
    for (int rating = 0; rating <= 10; ++rating) {
      for (int coverage = 1; coverage <= 6; ++coverage) {
        box.ScoutCoverage[s][zone][rating][coverage] = Word16(side.ScoutCoverage[zone][rating][coverage]);
      }
    }
  }
}

void PutSide(BoxRecord& box, int s) {
  const Side& side = game.side[s];
  for (const BoxSideField& field : kBoxSideFields) (box.*field.box)[s] = Byte(side.*field.side);
  for (const BoxMarkedField& field : kBoxMarkedFields) {
    box.*field.mark = kBoxMark;
    (box.*field.box)[s] = Byte(side.*field.side);
  }
  for (int p = 1; p <= 10; ++p) box.PeriodScore[p][s] = Byte(side.PeriodScore[p]);
  for (int p = 1; p <= kPositions; ++p) {
    box.Lineup[p][s] = Byte(side.Lineup[p]);
    box.Starters[p][s] = Byte(side.Starters[p]);
    box.StoredMatchup[p][s] = Byte(side.StoredMatchup[p]);
  }
  box.GameTeam[s] = Word16(game.GameTeam[s]);
  box.BoxAbbrevs[s] = game.team[s].Abbrev.View();
  box.RecordText[s] = RecordText(s);
  box.CoachKinds[s] = side.CoachMode.Text();
  box.CoachMode[s].Length = 1;
  box.CoachMode[s].Letter = side.CoachMode.Text();
  box.Possessions[s] = game.team[s].Possessions[3];
  box.OppPossessions[s] = game.team[s].OppPossessions[3];
  PutTotals(box, s);
  PutScouting(box, s);
}

// Men -------------------------------------------------------------------------------------------------------

/// What stands in his record, which outlives the game.
void PutPlayer(BoxRecord& box, int s, int slot) {
  const PlayerRecord& p = PlayerAt(s, slot);
  box.PlayerRecNo[slot][s] = p.RecNo;
  box.BoxNames[slot][s] = p.LastName.View();
  box.Line[slot][s] = p.Stats[3];
  for (const BoxCounter& field : kBoxCounters) (box.*field.box)[slot][s] = Byte((p.*field.player)[3]);
  for (const BoxCarried& field : kBoxCarried) (box.*field.box)[slot][s] = (p.*field.player)[3];
  for (int q = 1; q <= 5; ++q) box.QuarterPoints[slot][s][q] = Byte(p.QuarterPoints[q][3]);
  box.Flagrants[slot][s] = p.Flagrants[3];
  box.InjuryReturnMonth[slot][s] = p.InjuryReturnMonth;
  box.InjuryReturnDay[slot][s] = p.InjuryReturnDay;
  box.SuspensionGames[slot][s] = p.SuspensionGames;
}

void PutMan(BoxRecord& box, int s, int slot) {
  constexpr int kMostTime = 32000;
  const Man& man = ManAt(s, slot);
  for (const BoxManField& field : kBoxManFields) (box.*field.box)[slot][s] = Byte(man.*field.man);
  for (const BoxClock& clock : kBoxClocks) (box.*clock.box)[slot][s] = man.*clock.man;
  for (int p = 1; p <= kPositions; ++p) {
    box.PositionTime[slot][s][p] = static_cast<i16>(Clamp(man.PositionTime[p], 0, kMostTime));
    box.PositionPoints[slot][s][p] = Byte(man.PositionPoints[p]);
  }
  box.PlusMinus[slot][s] = Word16(man.PlusMinus);
  box.PlayerOut[slot][s] = box.PlayerOutCopy[slot][s] = Byte(LoadedAt(s, slot).PlayerOut);
}

void PutMen(BoxRecord& box) {
  box.PlayerOutMark = box.PositionMark = box.Flagrant2Mark = box.SuspensionMark = kBoxMark;
  for (int s = 1; s <= 2; ++s) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(s, slot)) continue;
      PutPlayer(box, s, slot);
      PutMan(box, s, slot);
    }
  }
}

// Where the game stands -------------------------------------------------------------------------------------

void PutResumeMarks(BoxResume& r) {
  for (int band = 1; band <= 16; ++band) {
    for (int period = 1; period <= 20; ++period) {
      if (game.MediaDone[band][period]) SetBit(r.MediaDone, (band - 1) * 20 + period - 1);
    }
  }
  for (int period = 1; period <= 40; ++period) {
    if (game.PeriodNoticeDone[period]) SetBit(r.PeriodNoticeDone, period - 1);
  }
  for (int s = 1; s <= 2; ++s) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      r.TemporaryInjury[slot][s] = Byte(ManAt(s, slot).TemporaryInjury);
      if (ManAt(s, slot).GameInjury > 0) SetBit(r.GameInjury, (s - 1) * kRosterSlots + slot - 1);
    }
  }
}

void PutResume(BoxResume& r) {
  r.ResumeMark = kBoxMark;
  r.PlayKind = game.PlayKind.Text();
  r.MomentumTime = Word16(game.MomentumTime);
  r.LastSubClock = game.LastSubClock;
  r.BreakStealer = Byte(game.fastBreak.BreakStealer);
  for (const BoxResumeGame& field : kBoxResumeGame) r.*field.box = Byte(game.*field.game);
  for (const BoxResumePossession& field : kBoxResumePossession) {
    r.*field.box = Byte(game.possession.*field.possession);
  }
  for (int s = 1; s <= 2; ++s) {
    const Side& side = game.side[s];
    for (const BoxResumeSide& field : kBoxResumeSides) (r.*field.box)[s] = Byte(side.*field.side);
    r.TimeoutFocus[s] = side.TimeoutFocus.Index();
    r.LastPossessionClock[s] = Word16(side.LastPossessionClock);
    for (int p = 1; p <= 20; ++p) r.TimeoutsByPeriod[p][s] = Byte(side.TimeoutsByPeriod[p]);
    for (int m = 0; m <= 20; ++m) r.TimeoutsByMinute[m][s] = Byte(side.TimeoutsByMinute[m]);
  }
  PutResumeMarks(r);
}

void PutGame(BoxRecord& box) {
  PutClock(box);
  PutDates(box);
  PutKind(box);
  PutCourse(box);
  PutScoreLog(box);
  for (int s = 1; s <= 2; ++s) PutSide(box, s);
  PutMen(box);
  PutResume(box.Resume);
}

/// Texts that nobody fills are blank.
void BlankTexts(BoxRecord& box) {
  const auto blank = [](auto& cell, int) {
    using Cell = std::remove_cvref_t<decltype(cell)>;
    if constexpr (kIsText<Cell>) cell = "";
  };
  Describe(box, [&](int, const char*, auto& member, const char*) {
    using Member = std::remove_cvref_t<decltype(member)>;
    if constexpr (TableShape<Member>::kDepth > 0) {
      ForCells(member, blank);
    } else {
      blank(member, 0);
    }
  });
}

bool IsStoredGame(const std::filesystem::path& file) { return Upper(file.extension().string()) == ".BOX"; }

}  // namespace

std::string BoxFileNameOf(int n) { return "BOX" + std::to_string(n) + ".BOX"; }

bool SaveBoxFile() {
  CloseLines();
  if (program.LeagueFolder.empty()) return true;
  const auto file = LeagueFile(program.BoxFileName);
  const auto box = std::make_unique<BoxRecord>();
  BlankTexts(*box);
  PutPage(file, *box);
  PutGame(*box);
  std::string bytes(kBoxBytes, '\0');
  WriteRecord(*box, reinterpret_cast<u8*>(bytes.data()));
  const bool stored = IsStoredGame(file);
  if (!WriteWholeFile(file, bytes, stored ? Saving::kFlushed : Saving::kUnflushed))
    return Written(false, file);
  const auto plays = PlayLogBeside(file);
  return !stored || Written(SavePlayLog(plays), plays);
}

}  // namespace tipline
