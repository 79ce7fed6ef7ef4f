#pragma once
// Record 1 of the program's setup file: the user's preferences and what the screens remember.
// A field called a marker holds its value once the repair that fills the fields beside it has run.
#include "base/record.h"

namespace tipline {

struct SetupRecord {
  static constexpr int kRecordSize = 21280;

  Text<68> StatViewFilter;
  u8 RosterDisplayMark = 0, RosterDisplayCheck = 0, LayoutMark = 0;
  i16 PBPscroll = 25;
  Text<30> ExportFolder;
  u8 ViewDataTab = 0;
  i16 ViewDataTeam = 0;
  Table<Text<20>, 0, 100> StatViewName;
  Table2<i16, 1, 25, 0, 100> StatViewColumns;
  Table2<i16, 0, 45, 0, 50> LeaderBoardColumns;
  Table<Text<20>, 0, 50> LeaderBoardName;
  Table<u8, 0, 2> LeaderBoardState;
  Table<u8, 0, 50> LeaderBoardMain, LeaderBoardSub;
  /// Tenths of the plays that the human calls, 0 to 10: [clock band 1 to 3][period 1 to 4, 5 overtime].
  Table2<u8, 1, 3, 1, 5> PlayCallFrequency{};
  Table<u8, 0, 1> LeagueReportState;
  Table<u8, 1, 4> NotUsed13010;
  i16 PBPdelayscroll = 3;
  Table<u8, 1, 3> NotUsed13016;
  Table<u8, 0, 50> LeaderBoardDisplay;
  u8 HelpOption = 1, ComputerCheck = 0, NotUsed13072 = 0, PbpIconsCheck = 0, PbpIconsMark = 0, PBPOption = 0,
     TeamColorCheck = 0, BallMovementCheck = 0, BallspeedScroll = 10, NotUsed13079 = 0, PbpFontStyle = 1,
     PbpFontSize = 2, BothOffensesCheck = 0, BothDefensesCheck = 0, ZoomOptionValue = 0;
  Table<u8, 1, 2> NotUsed13085;
  u8 OpeningFontList = 8, FontMark = 0, CourtStatOption = 0, PlayerCardOption = 0, SoundCheck = 0,
     ReportStyleList = 0, CourtsEdition = 0, SubWhenTiredCheck = 1, SubWhenInFoulTroubleCheck = 1,
     UseRotationGridCheck = 1, DisplayStatsInPbpCheck = 0, PbpStatsMark = 0, DisplayTeamRatingsCheck = 1,
     SeasonsEdition = 0, LeaderScreenPick = 0;
  Text<3> LeaderScreenText;
  Table<u8, 0, 2> LeaderScreenState;
  Table<u8, 1, 12> NotUsed13108;
  u8 LeaderTeamToggle = 0;
  Table<u8, 0, 20> TeamReportState, TeamReportState2;
  Text<50> PhraseFileName;
  Table<u8, 1, 5> NotUsed13213;
  u8 GamescreenTab = 3, CourtLayoutMark = 0, CourtDisplayList = 0, PlayCallList = 0, PlayCallMark = 0,
     GameLogSortOrder = 0, LogOrderMark = 0, FixedDisplayMark = 0, FixedPlayerDisplayLocationsCheck = 0,
     PhotoSizeMark = 0;
  Table<u8, 0, 1> PhotoSizeList;
  u8 FontSizeMark = 0;
  Table<u8, 0, 1> PlayerFontSizeList{{2, 2}};
  u8 PbpFontMark = 0, StandingsColumnsMark = 0;
  Table<u8, 0, 1> HomeRoadCheck, DivisionCheck, RebAstGameCheck, StBkToGameCheck, PtsGameCheck, Pts100Check;
  u8 OpeningSecondaryLeadersList = 0, OpeningScoringLeadersList = 0, OpeningMenuTeamLeadersList = 0,
     ScoutingMark = 0;
  Table<u8, 0, 15> ScoutingColumns, ScoutingColumns2;
  u8 BoxOptionsMark = 0, PlusMinusCheck = 0, GameScoreCheck = 0, SoundEditionMark = 0,
     SoundActionScroll = 100, SoundCrowdScroll = 100, SoundWhistleScroll = 100, SoundHornScroll = 100,
     DraftFormMark = 0;
  Table<u8, 0, 7> DraftFormState;
  Table<u8, 1, 2> NotUsed13300;
  u8 EncyclopediaChoice = 1;
  Table<u8, 1, 201> NotUsed13303;
  Table<u8, 0, 1> ConferenceCheck;
  u8 ScoringPlaysCheck = 0, FontAreaMark = 0, ReportFontSize = 12, NarratorEditionMark = 0,
     NarratorStartingLineupsList = 0, NarratorLineupsCheck = 0, NarratorScoringCheck = 0,
     NarratorFoulsCheck = 0, NarratorQuarterScoresCheck = 0, NarratorMiscCheck = 0, NarratorFullPBPCheck = 0,
     NotUsed13517 = 0, NarratorScroll = 10, RosterViewMode = 0;
  Text<200> SetupLeagueFolder;
  Table<u8, 0, 2> BoxViewState;
  u8 PbpStartingLineupsList = 0, ColumnSortMark = 0;
  Table<u8, 0, 100> ViewSortColumn, ViewSortOrder;
  u8 ReportFontMark = 0, ReportFontMenu = 3, OpeningListMark = 0, NotUsed13930 = 0;
  i16 VoiceList = 0;
  Table<u8, 1, 2> NotUsed13933;
  u8 DescriptionUsage = 2, NotUsed13936 = 0, DefensivePositioningCheck = 0, NotUsed13938 = 0,
     PlayerCardHistory = 0, NotUsed13940 = 0, PlayerCardZlist = 0, NotUsed13942 = 0;
  Table<i16, 0, 1> GameGridFontList;
  Table2<u8, 0, 1, 1, 13> GameGridStatCheck;
  u8 NotUsed13973 = 0, CourtSizeList = 0, NotUsed13975 = 0, RosterDisplayColorsList = 0;
  Table<u8, 1, 5> NotUsed13977;
  u8 UseGenericCheck = 0, NotUsed13983 = 0, DeadballAlwaysCheck = 0, DeadballWithTiredPlayersCheck = 0,
     DeadBallStartOfPeriod = 0, DeadballLastPeriodCheck = 0, DeadBallLastPeriodUnderTwoMinutesCheck = 0,
     NotUsed13989 = 0;
  Table<u8, 0, 5> MoveUpList;
  u8 NotUsed13996 = 0, AdditionalStatsList = 0, NotUsed13998 = 0, GreenBallWithMadeShotCheck = 0,
     NotUsed14000 = 0, DisplayUniformInsteadOfPhotoCheck = 0, NotUsed14002 = 0;
  Table<u8, 0, 1> NameLengthList{{12, 12}};
  u8 NotUsed14005 = 0, RosterPhotosCheck = 0, AutoplayTab = 0;
  i16 LeaderPanelView = 0;
  u8 NotUsed14010 = 0, ArenaIconList = 0, NotUsed14012 = 0, DefensePhotosJumpBallCheck = 0,
     DefensePhotosDeadBallsCheck = 0, NotUsed14015 = 0;
  i32 NotablesWindowLeft = 0, NotablesWindowTop = 0;
  u8 NotablesPopupList = 3, NotUsed14025 = 0, AutomaticallyDisplayBoxAfterGameDoneCheck = 0;
  i16 ReportViewState = 0;
  u8 NotUsed14029 = 0, MaxRecordList = 3, MasterNarratorCheck = 0, NarratorVolumeScroll = 100,
     NotUsed14033 = 0, BoxReportStyleList = 0, RecapFileTypeList = 0, NotUsed14036 = 0, AnthemsCheck = 0,
     NotUsed14038 = 0;
  Table<u8, 0, 1> FullCourtIconList{{3, 3}};
  u8 NotUsed14041 = 0, VideoChalkboardCheck = 0, ChalkboardSpeedScroll = 10, ChalkboardMorphSpeedList = 0,
     ChalboardPauseAfterPlayList = 0, FullCourtGreenBallCheck = 0;
  Table<u8, 0, 1> FullCourtIconBackupList;
  u8 NotUsed14049 = 0, StandingsTeamNameList = 0, NotUsed14051 = 0, IconColorList = 0, NotUsed14053 = 0,
     OpeningScreen = 0;
  Table<u8, 1, 2> NotUsed14055;
  u8 SoundTableMark = 0;
  Table2<Text<25>, 0, 9, 0, 25> CustomSoundName;
  u8 NarratorShotPlusResultCheck = 0, NarratorTurnoversCheck = 0, NarratorReboundsCheck = 0,
     FightSongMark = 0, TeamFightSongsPostGameCheck = 0;
  i16 FightSongDurationList = 5, SoundAmbientScroll = 100;
  u8 NarratorAssistsCheck = 0;
  Table<Text<20>, 1, 30> EncyclopediaName;
  u8 EncyclopediaNameMark = 0, TeamFightSongsPregameCheck = 0, NotUsed21170 = 0, SoundTimeoutScroll = 30,
     NotUsed21172 = 0, ViewDataStatList = 0;
  i16 ViewDataMinutes = 0;
  u8 ViewDataGames = 0;
  Table<double, 1, 6> ViewDataMinimums;
  u8 NotUsed21225 = 0, DraftAge = 0, DraftGames = 0;
  i16 DraftMinutes = 0;
  double DraftMinutesPerGame = 0;
  u8 DraftValue = 0, NotUsed21239 = 0, ScoreboardTypeList = 0, ScoreboardTeamNameList = 0, NotUsed21242 = 0,
     RosterScreenPick = 0;
  i16 RosterScreenState = 0;
  u8 NotUsed21246 = 0;
  Text<20> ScreenNameText;
  Table<u8, 1, 2> NotUsed21267;
  u8 NewFolderChoice = 0;
  Table<u8, 1, 2> NotUsed21270;
  u8 LeadersTab = 0;
  Table<u8, 1, 6> NotUsed21273;
  u8 PaceCheck = 0;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, SetupRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "StatViewFilter", r.StatViewFilter, "remembered text of HCVIEWDATAPLAYER");
  field(68, "RosterDisplayMark", r.RosterDisplayMark, "marker");
  field(69, "RosterDisplayCheck", r.RosterDisplayCheck, "HCROSTER display option");
  field(70, "LayoutMark", r.LayoutMark, "marker 77: every preference has its default");
  field(71, "PBPscroll", r.PBPscroll, "play-by-play speed, 0 to 100; default 25; out of range becomes 20");
  field(73, "ExportFolder", r.ExportFolder, "export screen's folder");
  field(103, "ViewDataTab", r.ViewDataTab, "remembered tab of HCVIEWDATAPLAYER");
  field(104, "ViewDataTeam", r.ViewDataTeam, "remembered team of HCVIEWDATAPLAYER");
  field(106, "StatViewName", r.StatViewName, "names of the stat views, the built-in ten first");
  field(2126, "StatViewColumns", r.StatViewColumns,
        "for each view, up to 25 column numbers of the player report");
  field(7176, "LeaderBoardColumns", r.LeaderBoardColumns,
        "by (place, board): the columns of the user's leader reports; 300 begins a section, its key column "
        "follows; 0 ends them");
  field(11868, "LeaderBoardName", r.LeaderBoardName, "names of the leader boards, the built-in seven first");
  field(12888, "LeaderBoardState", r.LeaderBoardState, "remembered choices of the leader screen");
  field(12891, "LeaderBoardMain", r.LeaderBoardMain, "per board: 0 'Top 5' to 9 'Top 50'");
  field(12942, "LeaderBoardSub", r.LeaderBoardSub, "per board: its team, low byte; 0 'All Teams'");
  field(12993, "PlayCallFrequency", r.PlayCallFrequency[1],
        "tenths of the plays that the human calls, by period, 5 overtime: more than 6 minutes left");
  field(12998, "PlayCallFrequency", r.PlayCallFrequency[2],
        "tenths of the plays that the human calls, by period, 5 overtime: less than 6");
  field(13003, "PlayCallFrequency", r.PlayCallFrequency[3],
        "tenths of the plays that the human calls, by period, 5 overtime: less than 2");
  field(13008, "LeagueReportState", r.LeagueReportState, "remembered team and report of HCLEAGUEREPORTS");
  field(13010, "NotUsed13010", r.NotUsed13010, "not used");
  field(13014, "PBPdelayscroll", r.PBPdelayscroll, "'Pause Between Plays', 1 to 10; default 3");
  field(13016, "NotUsed13016", r.NotUsed13016, "not used");
  field(13019, "LeaderBoardDisplay", r.LeaderBoardDisplay,
        "per board: bit 0 'Real Stats', above it the high bits of the team");
  field(13070, "HelpOption", r.HelpOption, "play-calling help, 1 or 2: 'Coverage' or 'Percentages'");
  field(13071, "ComputerCheck", r.ComputerCheck,
        "'View Computer vs Computer Plays': 0 played at once, 1 shown");
  field(13072, "NotUsed13072", r.NotUsed13072, "not used");
  field(13073, "PbpIconsCheck", r.PbpIconsCheck, "'Play-By-Play Result Icons'");
  field(13074, "PbpIconsMark", r.PbpIconsMark, "marker 111");
  field(13075, "PBPOption", r.PBPOption, "play-by-play style: 0 'Long', 1 'Short'");
  field(13076, "TeamColorCheck", r.TeamColorCheck, "'Team Color Play-By-Play'");
  field(13077, "BallMovementCheck", r.BallMovementCheck, "'Ball Movement'");
  field(13078, "BallspeedScroll", r.BallspeedScroll, "0 to 20; default 10");
  field(13079, "NotUsed13079", r.NotUsed13079, "not used");
  field(13080, "PbpFontStyle", r.PbpFontStyle, "play-by-play font style; default 1");
  field(13081, "PbpFontSize", r.PbpFontSize, "'Very Small' to 'Very Large'; default 2");
  field(13082, "BothOffensesCheck", r.BothOffensesCheck, "the computer calls both offences");
  field(13083, "BothDefensesCheck", r.BothDefensesCheck, "the computer calls both defences");
  field(13084, "ZoomOptionValue", r.ZoomOptionValue, "zoom option button");
  field(13085, "NotUsed13085", r.NotUsed13085, "not used");
  field(13087, "OpeningFontList", r.OpeningFontList, "font of the main screen, 0 to 15");
  field(13088, "FontMark", r.FontMark, "marker 211");
  field(13089, "CourtStatOption", r.CourtStatOption, "'Game', 'Replay', 'Ratings', 'Real'");
  field(13090, "PlayerCardOption", r.PlayerCardOption, "print screen of player cards");
  field(13091, "SoundCheck", r.SoundCheck, "'Sound Effects'");
  field(13092, "ReportStyleList", r.ReportStyleList, "report style: 0 'Traditional', 1 'Document', 2 'Html'");
  field(13093, "CourtsEdition", r.CourtsEdition, "(edition year - 2020) + 99 once the courts are installed");
  field(13094, "SubWhenTiredCheck", r.SubWhenTiredCheck, "human auto-substitution 'When Tired'");
  field(13095, "SubWhenInFoulTroubleCheck", r.SubWhenInFoulTroubleCheck,
        "human auto-substitution 'When In Foul Trouble'");
  field(13096, "UseRotationGridCheck", r.UseRotationGridCheck, "human auto-substitution 'Use Rotation Grid'");
  field(13097, "DisplayStatsInPbpCheck", r.DisplayStatsInPbpCheck, "'Game Stats In Play-By-Play'");
  field(13098, "PbpStatsMark", r.PbpStatsMark, "marker 22");
  field(13099, "DisplayTeamRatingsCheck", r.DisplayTeamRatingsCheck, "'Display Team Ratings'");
  field(13100, "SeasonsEdition", r.SeasonsEdition,
        "(edition year - 2020) + 99 once seasons were offered for installation");
  field(13101, "LeaderScreenPick", r.LeaderScreenPick, "remembered pick of the leader screen");
  field(13102, "LeaderScreenText", r.LeaderScreenText, "remembered text of the leader screen");
  field(13105, "LeaderScreenState", r.LeaderScreenState, "remembered picks of the leader screen");
  field(13108, "NotUsed13108", r.NotUsed13108, "not used");
  field(13120, "LeaderTeamToggle", r.LeaderTeamToggle, "which of the two leader lists the main screen shows");
  field(13121, "TeamReportState", r.TeamReportState, "remembered list picks of HCTEAMREPORTS");
  field(13142, "TeamReportState2", r.TeamReportState2, "the second list of picks");
  field(13163, "PhraseFileName", r.PhraseFileName, "name of the phrase store in use");
  field(13213, "NotUsed13213", r.NotUsed13213, "not used");
  field(13218, "GamescreenTab", r.GamescreenTab, "remembered tab of the game screen; default 3");
  field(13219, "CourtLayoutMark", r.CourtLayoutMark, "marker 25");
  field(13220, "CourtDisplayList", r.CourtDisplayList, "side of the court display: 'Left', 'Right'");
  field(13221, "PlayCallList", r.PlayCallList, "side of the play-call panel: 'Left', 'Right'");
  field(13222, "PlayCallMark", r.PlayCallMark, "marker 99");
  field(13223, "GameLogSortOrder", r.GameLogSortOrder, "'Newest to Oldest', 'Oldest To Newest'");
  field(13224, "LogOrderMark", r.LogOrderMark, "marker 123");
  field(13225, "FixedDisplayMark", r.FixedDisplayMark, "marker 99");
  field(13226, "FixedPlayerDisplayLocationsCheck", r.FixedPlayerDisplayLocationsCheck,
        "'Lock Player Display Locations'");
  field(13227, "PhotoSizeMark", r.PhotoSizeMark, "marker 99");
  field(13228, "PhotoSizeList", r.PhotoSizeList,
        "half and full court: 'No Photos', 'Small', 'Medium', 'Large', 'Extra Large'");
  field(13230, "FontSizeMark", r.FontSizeMark, "marker 99");
  field(13231, "PlayerFontSizeList", r.PlayerFontSizeList,
        "half and full court, 'Very Small' to 'Very Large'; default 2");
  field(13233, "PbpFontMark", r.PbpFontMark, "marker 22");
  field(13234, "StandingsColumnsMark", r.StandingsColumnsMark, "marker 55");
  field(13235, "HomeRoadCheck", r.HomeRoadCheck, "standings column on the report and on the main screen");
  field(13237, "DivisionCheck", r.DivisionCheck, "standings column on the report and on the main screen");
  field(13239, "RebAstGameCheck", r.RebAstGameCheck, "standings column on the report and on the main screen");
  field(13241, "StBkToGameCheck", r.StBkToGameCheck, "standings column on the report and on the main screen");
  field(13243, "PtsGameCheck", r.PtsGameCheck, "standings column on the report and on the main screen");
  field(13245, "Pts100Check", r.Pts100Check, "standings column on the report and on the main screen");
  field(13247, "OpeningSecondaryLeadersList", r.OpeningSecondaryLeadersList,
        "'Averages', 'Totals And Averages'");
  field(13248, "OpeningScoringLeadersList", r.OpeningScoringLeadersList,
        "'Averages', 'Points + Averages', 'Complete Scoring'");
  field(13249, "OpeningMenuTeamLeadersList", r.OpeningMenuTeamLeadersList, "'Short', 'Medium', 'Long'");
  field(13250, "ScoutingMark", r.ScoutingMark, "marker 123");
  field(13251, "ScoutingColumns", r.ScoutingColumns, "picks of the scouting report");
  field(13267, "ScoutingColumns2", r.ScoutingColumns2, "the second list of picks");
  field(13283, "BoxOptionsMark", r.BoxOptionsMark, "marker 123");
  field(13284, "PlusMinusCheck", r.PlusMinusCheck, "box score 'Plus Minus'");
  field(13285, "GameScoreCheck", r.GameScoreCheck, "box score 'Game Score (GS)'");
  field(13286, "SoundEditionMark", r.SoundEditionMark, "marker: edition year - 2000");
  field(13287, "SoundActionScroll", r.SoundActionScroll, "volume 'Game Action'");
  field(13288, "SoundCrowdScroll", r.SoundCrowdScroll, "volume 'Crowd Reactions'");
  field(13289, "SoundWhistleScroll", r.SoundWhistleScroll, "volume 'Referee Whistle'");
  field(13290, "SoundHornScroll", r.SoundHornScroll, "volume 'Horn'");
  field(13291, "DraftFormMark", r.DraftFormMark, "marker 33");
  field(13292, "DraftFormState", r.DraftFormState, "remembered options of HCDRAFTFORM");
  field(13300, "NotUsed13300", r.NotUsed13300, "not used");
  field(13302, "EncyclopediaChoice", r.EncyclopediaChoice, "number of the encyclopedia in use, 1 to 10");
  field(13303, "NotUsed13303", r.NotUsed13303, "not used");
  field(13504, "ConferenceCheck", r.ConferenceCheck, "standings 'Conference' column");
  field(13506, "ScoringPlaysCheck", r.ScoringPlaysCheck, "box score 'Scoring Plays'");
  field(13507, "FontAreaMark", r.FontAreaMark, "marker 99");
  field(13508, "ReportFontSize", r.ReportFontSize, "font of the report viewer; default 12");
  field(13509, "NarratorEditionMark", r.NarratorEditionMark, "marker: edition year - 2000");
  field(13510, "NarratorStartingLineupsList", r.NarratorStartingLineupsList,
        "narrator speaks the starting lineups: 'None', 'Short', 'Long'");
  field(13511, "NarratorLineupsCheck", r.NarratorLineupsCheck, "narrator speaks 'Lineup Changes'");
  field(13512, "NarratorScoringCheck", r.NarratorScoringCheck, "narrator speaks 'Scoring'");
  field(13513, "NarratorFoulsCheck", r.NarratorFoulsCheck, "narrator speaks 'Fouls'");
  field(13514, "NarratorQuarterScoresCheck", r.NarratorQuarterScoresCheck, "narrator speaks 'Period Scores'");
  field(13515, "NarratorMiscCheck", r.NarratorMiscCheck,
        "narrator speaks 'Misc Events (Change Poss, Injury, DQ, Techs)'");
  field(13516, "NarratorFullPBPCheck", r.NarratorFullPBPCheck, "narrator speaks 'Full Play-By-Play'");
  field(13517, "NotUsed13517", r.NotUsed13517, "not used");
  field(13518, "NarratorScroll", r.NarratorScroll, "narrator's speed, 0 to 20; default 10");
  field(13519, "RosterViewMode", r.RosterViewMode, "HCROSTER mode");
  field(13520, "SetupLeagueFolder", r.SetupLeagueFolder,
        "folder of the league that was current when the setup was saved");
  field(13720, "BoxViewState", r.BoxViewState, "report viewer state");
  field(13723, "PbpStartingLineupsList", r.PbpStartingLineupsList,
        "starting lineups in the play-by-play: 'None', 'Short', 'Long'");
  field(13724, "ColumnSortMark", r.ColumnSortMark, "marker 99");
  field(13725, "ViewSortColumn", r.ViewSortColumn, "sort column of each stat view");
  field(13826, "ViewSortOrder", r.ViewSortOrder, "sort order of each stat view");
  field(13927, "ReportFontMark", r.ReportFontMark, "marker 55");
  field(13928, "ReportFontMenu", r.ReportFontMenu, "report font, small, medium or large; default 3");
  field(13929, "OpeningListMark", r.OpeningListMark, "marker 187");
  field(13930, "NotUsed13930", r.NotUsed13930, "not used");
  field(13931, "VoiceList", r.VoiceList, "voice index");
  field(13933, "NotUsed13933", r.NotUsed13933, "not used");
  field(13935, "DescriptionUsage", r.DescriptionUsage, "phrase usage pick of HCDESCRIPS; default 2");
  field(13936, "NotUsed13936", r.NotUsed13936, "not used");
  field(13937, "DefensivePositioningCheck", r.DefensivePositioningCheck, "'Display Defensive Positioning'");
  field(13938, "NotUsed13938", r.NotUsed13938, "not used");
  field(13939, "PlayerCardHistory", r.PlayerCardHistory, "pick of HCPLAYERCARD");
  field(13940, "NotUsed13940", r.NotUsed13940, "not used");
  field(13941, "PlayerCardZlist", r.PlayerCardZlist, "picks of HCPLAYERCARD");
  field(13942, "NotUsed13942", r.NotUsed13942, "not used");
  field(13943, "GameGridFontList", r.GameGridFontList, "half and full court grid font");
  field(13947, "GameGridStatCheck", r.GameGridStatCheck,
        "stat columns of the game screen's roster grid, half and full court");
  field(13973, "NotUsed13973", r.NotUsed13973, "not used");
  field(13974, "CourtSizeList", r.CourtSizeList, "'Half Court', 'Full Court'");
  field(13975, "NotUsed13975", r.NotUsed13975, "not used");
  field(13976, "RosterDisplayColorsList", r.RosterDisplayColorsList, "'Black and White', 'Team Colors'");
  field(13977, "NotUsed13977", r.NotUsed13977, "not used");
  field(13982, "UseGenericCheck", r.UseGenericCheck, "'Generic Photo If Player Photo Not Available'");
  field(13983, "NotUsed13983", r.NotUsed13983, "not used");
  field(13984, "DeadballAlwaysCheck", r.DeadballAlwaysCheck, "when the dead-ball bench screen shows");
  field(13985, "DeadballWithTiredPlayersCheck", r.DeadballWithTiredPlayersCheck,
        "when the dead-ball bench screen shows");
  field(13986, "DeadBallStartOfPeriod", r.DeadBallStartOfPeriod, "when the dead-ball bench screen shows");
  field(13987, "DeadballLastPeriodCheck", r.DeadballLastPeriodCheck, "when the dead-ball bench screen shows");
  field(13988, "DeadBallLastPeriodUnderTwoMinutesCheck", r.DeadBallLastPeriodUnderTwoMinutesCheck,
        "when the dead-ball bench screen shows");
  field(13989, "NotUsed13989", r.NotUsed13989, "not used");
  field(13990, "MoveUpList", r.MoveUpList,
        "minutes left from which the ball is brought up as a play of its own, 0 never: 0 'Early Periods', 1 "
        "'Last Period'");
  field(13996, "NotUsed13996", r.NotUsed13996, "not used");
  field(13997, "AdditionalStatsList", r.AdditionalStatsList,
        "'None', 'Shooting', 'Game Stats', 'Team Stats', 'Leaders'");
  field(13998, "NotUsed13998", r.NotUsed13998, "not used");
  field(13999, "GreenBallWithMadeShotCheck", r.GreenBallWithMadeShotCheck,
        "green ball with a made shot, half court");
  field(14000, "NotUsed14000", r.NotUsed14000, "not used");
  field(14001, "DisplayUniformInsteadOfPhotoCheck", r.DisplayUniformInsteadOfPhotoCheck,
        "'Uniform Instead Of Photo'");
  field(14002, "NotUsed14002", r.NotUsed14002, "not used");
  field(14003, "NameLengthList", r.NameLengthList, "half and full court name length; default 12");
  field(14005, "NotUsed14005", r.NotUsed14005, "not used");
  field(14006, "RosterPhotosCheck", r.RosterPhotosCheck, "HCROSTER photo option");
  field(14007, "AutoplayTab", r.AutoplayTab, "remembered tab of HCAUTOPLAY");
  field(14008, "LeaderPanelView", r.LeaderPanelView, "view of the news panel, 0 to 6");
  field(14010, "NotUsed14010", r.NotUsed14010, "not used");
  field(14011, "ArenaIconList", r.ArenaIconList, "'None', 'Small', 'Large'");
  field(14012, "NotUsed14012", r.NotUsed14012, "not used");
  field(14013, "DefensePhotosJumpBallCheck", r.DefensePhotosJumpBallCheck,
        "photos of the defense at a jump ball");
  field(14014, "DefensePhotosDeadBallsCheck", r.DefensePhotosDeadBallsCheck,
        "photos of the defense at dead balls");
  field(14015, "NotUsed14015", r.NotUsed14015, "not used");
  field(14016, "NotablesWindowLeft", r.NotablesWindowLeft,
        "position of the notable-moment pop-up HcStarPlayer");
  field(14020, "NotablesWindowTop", r.NotablesWindowTop,
        "position of the notable-moment pop-up HcStarPlayer");
  field(14024, "NotablesPopupList", r.NotablesPopupList, "'Notables Pop-up Pause'; default 3");
  field(14025, "NotUsed14025", r.NotUsed14025, "not used");
  field(14026, "AutomaticallyDisplayBoxAfterGameDoneCheck", r.AutomaticallyDisplayBoxAfterGameDoneCheck,
        "show the box when the game is done");
  field(14027, "ReportViewState", r.ReportViewState, "remembered size of the report viewer");
  field(14029, "NotUsed14029", r.NotUsed14029, "not used");
  field(14030, "MaxRecordList", r.MaxRecordList, "HCENCYCLOPEDIA record limit; default 3");
  field(14031, "MasterNarratorCheck", r.MasterNarratorCheck, "'MS Narrator'");
  field(14032, "NarratorVolumeScroll", r.NarratorVolumeScroll, "narrator's volume; default 100");
  field(14033, "NotUsed14033", r.NotUsed14033, "not used");
  field(14034, "BoxReportStyleList", r.BoxReportStyleList, "style of box reports, as ReportStyleList");
  field(14035, "RecapFileTypeList", r.RecapFileTypeList, "file type of HcGameRecaps");
  field(14036, "NotUsed14036", r.NotUsed14036, "not used");
  field(14037, "AnthemsCheck", r.AnthemsCheck, "'National Anthem'");
  field(14038, "NotUsed14038", r.NotUsed14038, "not used");
  field(14039, "FullCourtIconList", r.FullCourtIconList,
        "'Position', 'Initials', 'Uniform#', 'Name (Large)', 'Photo'; default 3");
  field(14041, "NotUsed14041", r.NotUsed14041, "not used");
  field(14042, "VideoChalkboardCheck", r.VideoChalkboardCheck, "'Video Chalkboard'");
  field(14043, "ChalkboardSpeedScroll", r.ChalkboardSpeedScroll, "speed of the chalkboard; default 10");
  field(14044, "ChalkboardMorphSpeedList", r.ChalkboardMorphSpeedList, "'Instant', 'Fast', 'Medium', 'Slow'");
  field(14045, "ChalboardPauseAfterPlayList", r.ChalboardPauseAfterPlayList, "'Short', 'Medium', 'Long'");
  field(14046, "FullCourtGreenBallCheck", r.FullCourtGreenBallCheck,
        "green ball with a made shot, full court");
  field(14047, "FullCourtIconBackupList", r.FullCourtIconBackupList, "'Position', 'Initials'");
  field(14049, "NotUsed14049", r.NotUsed14049, "not used");
  field(14050, "StandingsTeamNameList", r.StandingsTeamNameList, "'City', 'Nickname'");
  field(14051, "NotUsed14051", r.NotUsed14051, "not used");
  field(14052, "IconColorList", r.IconColorList, "'Home/Road', 'Home Colors', 'Road Colors'");
  field(14053, "NotUsed14053", r.NotUsed14053, "not used");
  field(14054, "OpeningScreen", r.OpeningScreen, "screen that opens after the first paint; 0 none");
  field(14055, "NotUsed14055", r.NotUsed14055, "not used");
  field(14057, "SoundTableMark", r.SoundTableMark, "marker 170");
  field(14058, "CustomSoundName", r.CustomSoundName, "sound file name per situation and variant");
  field(20558, "NarratorShotPlusResultCheck", r.NarratorShotPlusResultCheck,
        "narrator speaks shots with their result");
  field(20559, "NarratorTurnoversCheck", r.NarratorTurnoversCheck, "narrator speaks turnovers");
  field(20560, "NarratorReboundsCheck", r.NarratorReboundsCheck, "narrator speaks rebounds");
  field(20561, "FightSongMark", r.FightSongMark, "marker 77");
  field(20562, "TeamFightSongsPostGameCheck", r.TeamFightSongsPostGameCheck, "fight song after the game");
  field(20563, "FightSongDurationList", r.FightSongDurationList, "seconds of a fight song; default 5");
  field(20565, "SoundAmbientScroll", r.SoundAmbientScroll, "'Crowd Background' volume");
  field(20567, "NarratorAssistsCheck", r.NarratorAssistsCheck, "narrator speaks assists");
  field(20568, "EncyclopediaName", r.EncyclopediaName,
        "names of the encyclopedias; the first ten are in use");
  field(21168, "EncyclopediaNameMark", r.EncyclopediaNameMark, "marker 44");
  field(21169, "TeamFightSongsPregameCheck", r.TeamFightSongsPregameCheck, "fight song before the game");
  field(21170, "NotUsed21170", r.NotUsed21170, "not used");
  field(21171, "SoundTimeoutScroll", r.SoundTimeoutScroll, "'Timeouts', default 30");
  field(21172, "NotUsed21172", r.NotUsed21172, "not used");
  field(21173, "ViewDataStatList", r.ViewDataStatList, "minimum filter of HCVIEWDATAPLAYER: stat list");
  field(21174, "ViewDataMinutes", r.ViewDataMinutes, "least minutes");
  field(21176, "ViewDataGames", r.ViewDataGames, "least games");
  field(21177, "ViewDataMinimums", r.ViewDataMinimums,
        "least assists, points, rebounds, minutes, blocks, steals a game");
  field(21225, "NotUsed21225", r.NotUsed21225, "not used");
  field(21226, "DraftAge", r.DraftAge, "filter of HCDRAFTFORM: age");
  field(21227, "DraftGames", r.DraftGames, "games");
  field(21228, "DraftMinutes", r.DraftMinutes, "minutes");
  field(21230, "DraftMinutesPerGame", r.DraftMinutesPerGame, "minutes a game");
  field(21238, "DraftValue", r.DraftValue, "value");
  field(21239, "NotUsed21239", r.NotUsed21239, "not used");
  field(21240, "ScoreboardTypeList", r.ScoreboardTypeList,
        "'Team Colors', 'Team Colors + Team Fonts', 'Black & White + Team Fonts', 'Black & White', 'Black & "
        "White Retro!'");
  field(21241, "ScoreboardTeamNameList", r.ScoreboardTeamNameList,
        "'City Name', 'Nickname', 'Home Team Nickname!'");
  field(21242, "NotUsed21242", r.NotUsed21242, "not used");
  field(21243, "RosterScreenPick", r.RosterScreenPick, "remembered options of HcRosters2021");
  field(21244, "RosterScreenState", r.RosterScreenState, "remembered options of HcRosters2021");
  field(21246, "NotUsed21246", r.NotUsed21246, "not used");
  field(21247, "ScreenNameText", r.ScreenNameText,
        "'Screen Name'; default 'MyName', and a blank value reads 'MyName'");
  field(21267, "NotUsed21267", r.NotUsed21267, "not used");
  field(21269, "NewFolderChoice", r.NewFolderChoice, "HCINSTALLFORM new folder option");
  field(21270, "NotUsed21270", r.NotUsed21270, "not used");
  field(21272, "LeadersTab", r.LeadersTab, "remembered tab of HcLeaders2023");
  field(21273, "NotUsed21273", r.NotUsed21273, "not used");
  field(21279, "PaceCheck", r.PaceCheck, "'Display Team Pace'");
}

}  // namespace tipline
