#pragma once
// Run-time flags and folders of the program.
#include <deque>
#include <filesystem>
#include <string>
#include <vector>

#include "base/tables.h"
#include "base/words.h"
#include "league/name_tables.h"
#include "league/phrase_table.h"
#include "league/translation_table.h"

namespace tipline {

inline constexpr int kEditionYear = 2023;  ///< edition of the program: its last season, and its setup file
inline constexpr std::string_view kVersionText = "2023 Edition 0-1-0";  ///< stands in stored games

struct GameKindWords {
  static constexpr std::string_view kTexts[] = {"L", "E"};
};
using GameKind =
    Word<GameKindWords>;  ///< "L" league game, "E" exhibition, scenario, or the bracket screen is open

struct Program {
  std::filesystem::path Home;             ///< the data home
  std::filesystem::path ProgramFolder;    ///< era file, name files; serves all leagues
  std::string DataDrive = "C:";           ///< drive of the data tree
  std::vector<std::string> RecentList;    ///< tree texts of recent leagues, the current one first
  NameTables Names;                       ///< read at their first use, by Names()
  PhraseTable Phrases;                    ///< the announcer's, read at their first use
  TranslationTable Translate;             ///< how the voice says names, read at its first use
  std::filesystem::path LeagueFolder;     ///< folder of the open league, empty when none is
  std::deque<std::string> HighlightList;  ///< highlights of the games played, newest first, at most 500
  tipline::GameKind GameKind;
  std::string BoxFileName;     ///< current box file of the league folder
  bool BoxRecordOnly = false;  ///< a load of a box restores no more than the scoring log
  bool ResumingGame = false;   ///< a load of a box does not add its lines to the season lines
  std::string LastFilmFile;    ///< film of the last game that left one
  std::string ReportName;      ///< what stands in the report file
  bool BooksBehind = false;    ///< a game is in the journal that could not be brought into all files
  bool SilentReport = false;   ///< a report is worked out and not written
  bool PlayoffGame = false;
  int CurrentRound = 0;           ///< playoff round 1 to 4, 0 none
  int CurrentBracket = 0;         ///< its bracket 1 to 5
  int CurrentSeriesGame = 0;      ///< game of the bracket, 1 to 15
  int RoundWins = 0;              ///< wins that take a series of the round
  Table<int, 1, 2> SeriesWins{};  ///< of each side in the series, before the running game
  int SeriesHome = 2;             ///< side of the running game that opened the series at home
  bool ScenarioGame = false;      ///< the team pick screen sets up a scenario
  bool TwoFolderGame = false;     ///< an exhibition of teams from two leagues: it is neither saved nor stored
  bool ReplayLocked = false;      ///< a game, or its set-up, holds the data
  bool FilmReplay = false;        ///< a film is looked at: it is spoken whatever the preferences say
  bool Autoplaying = false;       ///< bulk play: the computer acts at every stop, nothing is shown
};

extern Program program;

}  // namespace tipline
