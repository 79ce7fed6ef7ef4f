// What a setup of an older layout lacks, filled in, marker by marker in the order of the record.
#include <string>

#include "league/markers.h"
#include "league/program.h"
#include "league/setup.h"

namespace tipline {
namespace {

constexpr u8 kEditionMark = kEditionYear - 2000;
constexpr i16 kMostColumns = 300;
constexpr std::string_view kOwnView = "Custom";
// clang-format off
constexpr std::string_view kStatViews[] = {"Expanded", "Basic", "Per Game", "Per 48 Minutes", "Home Games",
                                           "Road Games", "High Games", "Shooting", "Salary", "Ratings"};
constexpr std::string_view kLeaderBoards[] = {"Basic", "Per Game", "Per 48 Minutes", "At Home", "On Road",
                                              "High Games", "Shooting"};
// clang-format on
constexpr int kSalaryView = 9;

/// The human calls some plays.
void Layout() {
  if (!TakeMark(setup.LayoutMark, 77)) return;
  for (auto& band : setup.PlayCallFrequency) band.Fill(3);
  for (const int period : {2, 4, 5}) setup.PlayCallFrequency[3][period] = 10;
}

void PlayByPlay() {
  SetupRecord& s = setup;
  if (TakeMark(s.PbpIconsMark, 111)) s.PbpIconsCheck = 0;
  if (TakeMark(s.FontMark, 211)) s.OpeningFontList = 8;  // the choice for narrow screens
  if (TakeMark(s.PbpStatsMark, 22)) s.DisplayStatsInPbpCheck = 0;
  if (TakeMark(s.CourtLayoutMark, 25)) {
    s.GamescreenTab = 3;
    s.CourtDisplayList = s.PlayCallList = 0;
  }
  if (TakeMark(s.PlayCallMark, 99)) UseDefaultCalls();
  if (TakeMark(s.LogOrderMark, 123)) s.GameLogSortOrder = 0;
  if (TakeMark(s.FixedDisplayMark, 99)) s.FixedPlayerDisplayLocationsCheck = 0;
  if (TakeMark(s.PhotoSizeMark, 99)) s.PhotoSizeList = {};
  if (TakeMark(s.FontSizeMark, 99)) s.PlayerFontSizeList = {{2, 2}};
  if (TakeMark(s.PbpFontMark, 22)) s.PbpFontStyle = 1, s.PbpFontSize = 2;
}

void Reports() {
  SetupRecord& s = setup;
  if (TakeMark(s.StandingsColumnsMark, 55)) {
    s.HomeRoadCheck = s.DivisionCheck = s.RebAstGameCheck = s.StBkToGameCheck = s.PtsGameCheck =
        s.Pts100Check = {};
    s.OpeningSecondaryLeadersList = s.OpeningScoringLeadersList = s.OpeningMenuTeamLeadersList = 0;
  }
  if (TakeMark(s.ScoutingMark, 123)) s.ScoutingColumns = s.ScoutingColumns2 = {};
  if (TakeMark(s.BoxOptionsMark, 123)) s.PlusMinusCheck = s.GameScoreCheck = 0;
}

void SoundAndNarrator() {
  SetupRecord& s = setup;
  if (TakeMark(s.SoundEditionMark, kEditionMark)) {
    s.SoundActionScroll = s.SoundCrowdScroll = s.SoundWhistleScroll = s.SoundHornScroll = 100;
  }
  if (TakeMark(s.DraftFormMark, 33)) s.DraftFormState = {};
  if (TakeMark(s.FontAreaMark, 99)) s.ReportFontSize = 12;
  if (TakeMark(s.NarratorEditionMark, kEditionMark)) {
    s.NarratorStartingLineupsList = s.NarratorLineupsCheck = s.NarratorScoringCheck = s.NarratorFoulsCheck =
        s.NarratorQuarterScoresCheck = s.NarratorMiscCheck = s.NarratorFullPBPCheck = 0;
    s.NarratorScroll = 10;
    s.NarratorVolumeScroll = 100;
  }
}

void Rest() {
  SetupRecord& s = setup;
  if (TakeMark(s.ColumnSortMark, 99)) {
    s.ViewSortColumn.Fill(1);
    s.ViewSortOrder.Fill(2);
  }
  if (TakeMark(s.ReportFontMark, 55)) s.ReportFontMenu = 3;
  if (TakeMark(s.OpeningListMark, 187)) s.LeaderPanelView = 0;
  if (TakeMark(s.SoundTableMark, 170)) {
    for (auto& situation : s.CustomSoundName) {
      for (int n = 0; n <= 25; ++n) situation[n] = "VTX Short Cheer " + std::to_string(n);
    }
  }
  if (TakeMark(s.FightSongMark, 77)) {
    s.TeamFightSongsPostGameCheck = s.TeamFightSongsPregameCheck = 0;
    s.FightSongDurationList = 5;
  }
  if (TakeMark(s.EncyclopediaNameMark, 44)) {
    for (int n = 1; n <= 10; ++n)
      s.EncyclopediaName[n] = "HCencyclopedia" + (n == 1 ? "" : std::to_string(n));
  }
}

/// What no marker guards.
void Bounds() {
  SetupRecord& s = setup;
  if (s.PBPscroll < 0 || s.PBPscroll > 100) s.PBPscroll = 20;
  if (s.PBPdelayscroll < 1) s.PBPdelayscroll = 1;
  if (s.PBPdelayscroll > 10) s.PBPdelayscroll = 3;
  if (s.BallspeedScroll > 20) s.BallspeedScroll = 0;
  if (s.HelpOption == 0) s.HelpOption = 1;
  if (s.ComputerCheck > 1) s.ComputerCheck = 0;
  if (s.PBPOption > 1) s.PBPOption = 0;
  for (u8* check : {&s.SubWhenTiredCheck, &s.SubWhenInFoulTroubleCheck, &s.UseRotationGridCheck,
                    &s.DisplayTeamRatingsCheck}) {
    if (*check > 1) *check = 1;
  }
  if (s.EncyclopediaChoice < 1 || s.EncyclopediaChoice > 10) s.EncyclopediaChoice = 1;
  if (s.ScreenNameText.Empty()) s.ScreenNameText = "MyName";
  for (auto& band : s.PlayCallFrequency) {
    for (u8& share : band) {
      if (share > 10) share = 0;
    }
  }
}

/// The program's own views and boards stand in front, the user's keep a name.
void ViewsAndBoards() {
  SetupRecord& s = setup;
  for (int view = 1; view <= 100; ++view) {
    if (view <= static_cast<int>(std::size(kStatViews))) {
      s.StatViewName[view] = kStatViews[view - 1];
    } else if (s.StatViewName[view].Empty()) {
      s.StatViewName[view] = kOwnView;
    }
  }
  s.StatViewColumns[1][kSalaryView] = 265;
  s.StatViewColumns[2][kSalaryView] = 300;
  for (int board = 1; board <= 50; ++board) {
    if (board <= static_cast<int>(std::size(kLeaderBoards))) {
      s.LeaderBoardName[board] = kLeaderBoards[board - 1];
    } else if (s.LeaderBoardName[board].Empty()) {
      s.LeaderBoardName[board] = kOwnView;
    }
    for (int place = 0; place <= 45; ++place) {
      i16& column = s.LeaderBoardColumns[place][board];
      if (column < 0 || column > kMostColumns) column = 0;
    }
  }
}

}  // namespace

void RepairSetup() {
  Layout();
  PlayByPlay();
  Reports();
  SoundAndNarrator();
  Rest();
  Bounds();
  ViewsAndBoards();
}

}  // namespace tipline
