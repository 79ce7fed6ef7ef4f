#include "gamesetup/team_pick_screen.h"

#include <algorithm>

#include "base/calendar.h"
#include "base/numbers.h"
#include "base/record_file.h"
#include "coach/substitutions.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

constexpr std::string_view kSideWord[3] = {"", "Visiting Team", "Home Team"};
constexpr int kReal = 1, kReplay = 2;  // lines of a man's season

bool LeagueGame() { return program.GameKind == "L"; }

std::string TitleOfGame() {
  if (program.ScenarioGame) return "Choose teams for a scenario game.";
  if (LeagueGame()) return "Choose teams for an unscheduled league game.";
  return "Choose teams for an exhibition game.";
}

/// A folder by its own name, however it is written.
std::filesystem::path Plainly(const std::filesystem::path& folder) {
  const auto plain = folder.lexically_normal();
  return plain.has_filename() ? plain : plain.parent_path();
}

int RealMinutes(const PlayerRecord& man) {
  return man.Stats[kReal].Min / (std::max<int>(man.Stats[kReal].G, 0) + 1);
}

}  // namespace

HCGameTeams2008::HCGameTeams2008() : Title(TitleOfGame()), CalendarYear(league.team[1].Year) {
  for (int period = 1; period <= league.rules.PeriodList + 1; ++period) {
    ScenarioPeriodList.push_back("Period: " + std::to_string(period));
  }
  ScenarioMinutes = league.rules.MinuteList;
  savedLeagueFolder_ = program.LeagueFolder;
  game.WatchUntil = "NONE";
  game.GameOver = game.GameStarted = false;
  for (int s = 1; s <= 2; ++s) {
    game.side[s].CoachMode = "H";
    TeamDir[s] = program.LeagueFolder;
    ClearPick(s);
  }
  FillList(1);
  PickTeams[2] = PickTeams[1];
  PickList[2] = PickList[1];
}

void HCGameTeams2008::ClearPick(int side) {
  game.GameTeam[side] = 0;
  TeamLabel[side] = {std::string(kSideWord[side])};
  RosterPanel[side].clear();
}

void HCGameTeams2008::FillList(int side) {
  auto& teams = PickTeams[side];
  teams.assign(kTeams + 1, {});
  RecordFile(TeamDir[side] / "HCTEAMS", kTeamSlotBytes).ReadAll(kTeams, [&teams](int n, const u8* bytes) {
    ReadRecord(bytes, teams[static_cast<std::size_t>(n)]);
  });
  auto& list = PickList[side];
  list.clear();
  const auto at = [&teams](int team) -> const TeamRecord& { return teams[static_cast<std::size_t>(team)]; };
  for (int team = 1; team <= kTeams; ++team) {
    if (at(team).TeamActive == 1) list.push_back(team);
  }
  std::stable_sort(list.begin(), list.end(),
                   [&](int a, int b) { return at(a).City.View() < at(b).City.View(); });
}

void HCGameTeams2008::PickFolder(int side, const std::filesystem::path& folder) {
  if (LeagueGame()) return;
  ClearPick(side);
  TeamDir[side] = folder;
  FillList(side);
}

/// A load may bring a coach's plan up to date, in the file and in the league's tables; those of a team from
/// elsewhere must not stay in this league's.
bool HCGameTeams2008::LoadFrom(int side, int team) const {
  const bool own = Plainly(TeamDir[side]) == Plainly(program.LeagueFolder);
  if (own || team < 1 || team > kTeams) return LoadTeam(team, side);
  const TeamRecord before = league.team[team];
  const CoachRecord coach = league.coach[team];
  const auto folder = program.LeagueFolder;
  program.LeagueFolder = TeamDir[side];
  const bool loaded = LoadTeam(team, side);
  program.LeagueFolder = folder;
  league.team[team] = before;
  league.coach[team] = coach;
  return loaded;
}

void HCGameTeams2008::PickTeam(int side, int team) {
  ClearPick(side);
  if (!LoadFrom(side, team)) return;
  const TeamRecord& t = game.team[side];
  Label& label = TeamLabel[side];
  label.Text = t.City.Str() + " " + std::to_string(t.Year);
  if (LeagueGame() && t.Wins + t.Losses > 0) {
    label.Text += " (" + std::to_string(t.Wins) + "-" + std::to_string(t.Losses) + ")";
  }
  label.ForeColor = side == 2 ? t.HomeForeColor : t.RoadForeColor;
  label.BackColor = side == 2 ? t.HomeBackColor : t.RoadBackColor;
  ShowRoster(side);
  ScenarioSituationList[static_cast<std::size_t>(side)] = t.City.Str() + " Possession";
}

void HCGameTeams2008::ShowRoster(int side) {
  std::vector<int> slots;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(side, slot)) slots.push_back(slot);
  }
  std::stable_sort(slots.begin(), slots.end(), [side](int a, int b) {
    return RealMinutes(PlayerAt(side, a)) > RealMinutes(PlayerAt(side, b));
  });
  for (const int slot : slots) {
    const PlayerRecord& man = PlayerAt(side, slot);
    const StatLine& line = man.Stats[LeagueGame() ? kReplay : kReal];
    const double games = std::max<int>(line.G, 1);
    const int position = man.PrimaryPosition;
    RosterPanel[side].push_back(
        {slot, position >= 1 && position <= kPositions ? league.PositionLabel[position] : "",
         man.FirstName.Str() + " " + man.LastName.Str(), line.Reb / games, line.Ast / games, line.St / games,
         line.Bk / games, PointsOf(line) / games});
  }
}

void HCGameTeams2008::PickDate(int calendarMonth, int day, int year) {
  game.GameDay = day;
  game.GameCalendarMonth = calendarMonth;
  game.GameYear = CalendarYear = year;
  game.GameMonth = SeasonMonth(calendarMonth);
}

void HCGameTeams2008::SetScenarioMinutes(int minutes) {
  ScenarioMinutes = Clamp<int>(minutes, 0, league.rules.MinuteList);
  SetScenarioSeconds(ScenarioSeconds);  // a period can't be longer than full, whichever box came last
}

void HCGameTeams2008::SetScenarioSeconds(int seconds) {
  ScenarioSeconds = ScenarioMinutes == league.rules.MinuteList ? 0 : Clamp(seconds, 0, 59);
}

void HCGameTeams2008::SetScenarioPoints(int side, int points) { ScenarioPoints[side] = std::max(points, 0); }

/// An exhibition without a date is played at the start of a season.
bool HCGameTeams2008::TakeDate() const {
  game.GameYear = CalendarYear;
  if (game.GameDay != 0 && game.GameMonth != 0 && game.GameYear != 0) return true;
  if (LeagueGame()) return platform::RefusedWith("You must select a month, day, and year for this game!");
  game.GameMonth = 2;
  game.GameCalendarMonth = 10;
  game.GameDay = 1;
  return true;
}

void HCGameTeams2008::StartScenario() const {
  LoadLineups();
  NoteStarters();  // there is no opening tip to do it
  game.GameStarted = true;
  game.Period = ScenarioPeriod + 1;
  game.GameClock = ScenarioMinutes * kMinute + ScenarioSeconds * 10;
  for (int s = 1; s <= 2; ++s) game.side[s].Score = ScenarioPoints[s];
  if (const int lead = Lead(1)) game.LeadSide = lead > 0 ? 1 : 2;
  if (ScenarioSituation == 0) {
    game.GameState = "JUMPBALL-1";
  } else {
    game.GameState = "OFFENSE";
    game.OffenseSide = ScenarioSituation;
    game.DefenseSide = 3 - ScenarioSituation;
    game.ShotClock = FullShotClock();
  }
}

bool HCGameTeams2008::PlayCommand(GameScreens& screens) {
  program.ReplayLocked = true;
  game.WatchUntil = "NONE";
  game.GameStarted = game.GameOver = game.GameDone = false;
  if (!TakeDate()) return false;
  if (game.GameTeam[1] == 0 || game.GameTeam[2] == 0)
    return platform::RefusedWith("You must select two teams!");
  if (LeagueGame() && game.GameTeam[1] == game.GameTeam[2]) {
    return platform::RefusedWith("You must select two different teams for a league game!");
  }
  program.TwoFolderGame = !LeagueGame() && Plainly(TeamDir[1]) != Plainly(TeamDir[2]);
  for (int s = 1; LeagueGame() && s <= 2; ++s) LoadTeam(game.GameTeam[s], s);
  PrepareGame();
  program.Autoplaying = false;
  if (program.ScenarioGame) StartScenario();
  HCGAMEsetup setupScreen;
  screens.GameSetupScreen(setupScreen);
  const bool computers = game.side[1].CoachMode == "C" && game.side[2].CoachMode == "C";
  if (computers && setup.ComputerCheck == 1) screens.OpenViewer();
  if (!game.GameOver && !program.ScenarioGame) NewGame();
  if (program.ScenarioGame && !game.GameOver) SetPlayBox();  // by what the screen has settled
  if (!game.GameOver && !program.Autoplaying) screens.OpenGame();
  return true;
}

void HCGameTeams2008::CancelCommand() {
  program.ReplayLocked = false;
  LoadSetup();
  program.LeagueFolder = savedLeagueFolder_;  // behind the setup, whose recent list names another at times
  LoadAllTeams();
}

}  // namespace tipline
