#pragma once
// What each command does. A command gives the program's exit code: 0 done, 1 refused with one line on
// standard error.
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "frontoffice/league_maker.h"

namespace tipline::cli {

struct Common {
  std::string League;  ///< name, "" the current one
  std::optional<std::uint64_t> Seed;
  bool Quiet = false;
  bool Csv = false;
};

/// A calendar date as the user says it.
struct MonthDay {
  int month = 0, day = 0;
};

struct PlayRequest {
  std::string Visitor, Home;   ///< number, abbreviation, city or nickname
  std::string Coach = "none";  ///< who is coached by the user: "none", "visitor", "home", "both"
  std::string Calls = "";      ///< how often he is asked: "none", "default", "all", "" by his preferences
  std::string Date = "";       ///< "MM-DD", "" the first of October
  std::string From = "";       ///< league of the visitor, "" the open one
  std::string Scenario = "";  ///< "P4 1:30 100-98 home": period, clock, points, whose ball or "jump"; "" none
  std::string Until = "";     ///< mark up to which both sides play alone, "" none
  bool Neutral = false;
  bool Fast = false;      ///< no pauses between the plays at a terminal
  bool Brief = false;     ///< the short style of commentary, this game alone
  bool Log = false;       ///< one line a play in place of the commentary
  bool Speak = false;     ///< the commentary is spoken, this game alone
  std::string Film = "";  ///< file that the game's film is written to, "" none
};

int NewLeague(LeagueRequest request, const Common& common);
/// The recent leagues and those of the seasons root, the current one marked.
int ListLeagues(const Common& common);
/// Makes a league current, by its name or its folder in the data tree. When that is refused, the one before
/// stays current.
int OpenLeagueNamed(const std::string& name, const Common& common);
/// What the league is, how far its season is, the rules that matter most.
int ShowLeague(const Common& common);
/// From the league to its playoff module, or back.
int SwitchLeague(const Common& common);
/// The drives of the data tree; moves to `drive` ("D:") when one is named.
int ShowDrives(const std::string& drive);
int ShowTeams(const Common& common);
/// `view`: "stats" (this season), "real" or "ratings".
int ShowRoster(const std::string& team, const std::string& view, const Common& common);
int RateTeams(const std::string& team, bool all, const Common& common);
/// What the coach of a team has laid down, and what the computer would.
struct CoachRequest {
  std::string team, opponent;
  std::vector<std::string> settings;  ///< CAPTION=VALUE
  bool make = false, clear = false;
  bool all = false;  ///< made for every team of the league; `team` is not read
  bool importPlan = false, exportPlan = false, clearDefense = false;
};
/// The depth chart by rank and the special lineups.
int ShowDepth(const CoachRequest& request, const Common& common);
/// The rotation grid, minute by minute.
int ShowRotation(const CoachRequest& request, const Common& common);
/// Sliders, and against an opponent the coverage of his men. A plan is imported before anything else is done
/// to it and exported at the end.
int ShowPlan(const CoachRequest& request, const Common& common);

struct DailyRequest {
  std::string team;
  std::vector<std::pair<std::string, std::string>> toggle;  ///< a man, by name or roster number, and MM-DD
  bool activateAll = false, inactivateAll = false;
  std::string use;  ///< "on" or "off": games go by these lists; "" as before
};
/// Who sits out on which game day. All that is asked for is done, or nothing.
int ShowDaily(const DailyRequest& request, const Common& common);
int PlayExhibition(const PlayRequest& request, const Common& common);
/// Shows the film of a game, and speaks it; at a terminal it is stepped through.
/// A name that is no file is looked for in the league; without a name the league's films are listed.
int ShowFilm(const std::string& file, bool speak, const Common& common);
/// What is wrong with the league's files and what an opening would repair; changes nothing.
int ExamineLeague(const Common& common);
/// Counts the season anew from the boxes of its games and tells of every figure that differs.
int RecountBooks(const Common& common);
/// After asking, the league before its first game; `realLifeToo` takes the real season lines as well.
int StartSeasonAnew(bool realLifeToo, const Common& common);
/// After asking, rows of men who stand nowhere go.
int CleanLeague(const Common& common);
int Dump(const std::string& file, int record, const Common& common);
/// What ./run does without arguments: a league is made where there is none, then the menu or one game.
int Start(const Common& common);

/// The era tables are there: read, or made. False, told, when they can't be.
bool EnsureEra();
/// Opens the league of the command, or tells why not. True when it is open.
bool OpenTheLeague(const Common& common);
/// "MM-DD"; false, told, for any other text and for days that no month has.
bool ReadDate(const std::string& text, MonthDay& date);
std::string DateText(const MonthDay& date);
/// Team number for what a user types: number, abbreviation, city, nickname or both; 0, told, when it names no
/// team or more than one.
int FindTeam(const std::string& text);
/// The same among the teams of another league, by number.
int FindTeam(const std::string& text, const std::vector<TeamRecord>& teams);

}  // namespace tipline::cli
