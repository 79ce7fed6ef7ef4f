// What is marked to be played, and who coaches.
#include "base/calendar.h"
#include "league/setup.h"
#include "platform/dialogs.h"
#include "season/autoplay_screen.h"
#include "season/bulk_replay.h"

namespace tipline {
namespace {

constexpr Scope kScopes[] = {Scope::kDay, Scope::kMonth, Scope::kThrough, Scope::kAll};
constexpr Scope kUnselectScopes[] = {Scope::kDay, Scope::kMonth, Scope::kAll};

ScheduleRecord* Game(int row) {
  const bool there = league.Row(row) && league.Row(row)->Status != 'D';
  return there ? &league.ScheduleGame[static_cast<std::size_t>(row)] : nullptr;
}

template <std::size_t N>
bool ScopeOf(const Scope (&scopes)[N], int index, Scope& scope) {
  if (index < 0 || index >= static_cast<int>(N)) return false;
  scope = scopes[index];
  return true;
}

}  // namespace

std::vector<std::string> HCAUTOPLAY::SetSelectLists() const {
  const std::string month(MonthName(CurrentDate.month));
  const std::string day = month + " " + std::to_string(CurrentDate.day);
  return {day + " only", "All of " + month, "Through " + day, "All Games"};
}

std::string HCAUTOPLAY::PlayDayCaption(int index) const {
  const std::string month(MonthName(CurrentDate.month));
  const std::string day = month.substr(0, 3) + " " + std::to_string(CurrentDate.day);
  const std::string captions[] = {"Play " + day, "Play " + month, "Play Through " + day, "Play All Games"};
  return index < 0 || index > 3 ? "" : captions[index];
}

void HCAUTOPLAY::Choose(const Selection& selection, bool marked) {
  ChangeMarks(selection, marked ? 'U' : 'N', marked ? 'N' : 'U');
  Reselected();
  screens_.Refresh();
}

int HCAUTOPLAY::ChooseFirst(const Selection& selection, int count) {
  const int marked = MarkFirst(selection, count);
  Reselected();
  screens_.Refresh();
  return marked;
}

void HCAUTOPLAY::SelectList(int index) {
  Scope scope;
  if (ScopeOf(kScopes, index, scope)) Choose({scope, CurrentDate, 0}, true);
}

void HCAUTOPLAY::UnselectList(int index) {
  Scope scope;
  if (ScopeOf(kUnselectScopes, index, scope)) Choose({scope, CurrentDate, 0}, false);
}

void HCAUTOPLAY::PlayDayCommand(int index) {
  SelectList(index);
  PlayCommandChosen();
}

void HCAUTOPLAY::SelectTeamList(int team) {
  const std::string name = ScheduleTeamName(team);
  if (name.empty() || !platform::dialogs().Ask("Play all games for " + name + "?")) return;
  Choose({Scope::kAll, {}, team}, true);
  PlayCommandChosen();
}

void HCAUTOPLAY::UnselectTeamList(int team, int index) {
  Scope scope;
  if (team != 0 && ScopeOf(kUnselectScopes, index, scope)) Choose({scope, CurrentDate, team}, false);
}

void HCAUTOPLAY::GridDoubleClick(int row) {
  ScheduleRecord* game = Game(row);
  if (!game) return;
  if (game->Status == 'P') {
    platform::dialogs().Tell("This game has been played");
    return;
  }
  if (game->Status != 'N' && DateKey(*game) == kNoDateKey) return;
  game->Status = game->Status == 'N' ? "U" : "N";
  Reselected();
  screens_.Refresh();
}

bool HCAUTOPLAY::ToggleCoach(int row, int side) {
  ScheduleRecord* game = Game(row);
  if (!game || game->Status == 'P') return false;
  game->CoachKind[side] = game->CoachKind[side] == 'H' ? "C" : "H";
  return SaveMarks();
}

bool HCAUTOPLAY::SetAllCoaches(std::string_view kind) {
  for (auto row = league.ScheduleGame.begin() + 1; row != league.ScheduleGame.end(); ++row) {
    row->CoachKind.Fill(kind);
  }
  return SaveMarks();
}

bool HCAUTOPLAY::SetSpeed(u8 speed) {
  setup.ComputerCheck = speed;
  return SaveSetup();
}

void HCAUTOPLAY::RunRow(int row) {
  Game(row)->Status = "N";
  Reselected();
  PlayCommandChosen();
}

void HCAUTOPLAY::GameAutoCommand(int row) {
  const ScheduleRecord* game = Game(row);
  if (game && game->Status != 'P' && DateKey(*game) < kNoDateKey) RunRow(row);
}

void HCAUTOPLAY::GamePlayCommand(int row) {
  ScheduleRecord* game = Game(row);
  if (!game || game->Status == 'P' || DateKey(*game) == kNoDateKey) return;
  if (ComputersPlay(*game)) game->CoachKind.Fill(std::string_view("H"));
  RunRow(row);
}

bool HCAUTOPLAY::BulkRunCommand(int replays, int jobs) {
  if (replays < 1 || replays > kMostReplays) return false;
  if (!platform::dialogs().Ask("Run " + std::to_string(replays) + " Replays?")) return false;
  return RunReplays(*this, screens_, replays, jobs);
}

}  // namespace tipline
