#include "league/rules_screen.h"

#include <algorithm>

#include "league/program.h"
#include "league/rules.h"
#include "platform/dialogs.h"
#include "platform/folders.h"

namespace tipline {
namespace {

constexpr u8 kFavorite = 1;
constexpr u8 kPauses = 255;

std::filesystem::path LogoFolder() {
  return platform::RealPath(program.Home, "C:\\orvex-data\\Basketball\\TeamLogos\\");
}

std::vector<std::string> ImageFiles(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    const auto kind = Upper(entry.path().extension().string());
    const bool image =
        kind == ".JPG" || kind == ".WMF" || kind == ".BMP" || kind == ".GIF" || kind == ".JPEG";
    if (image && entry.is_regular_file(error)) names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<int> TeamsByCity() {
  std::vector<int> teams;
  for (int team = 1; team <= kTeams; ++team) {
    if (league.team[team].TeamActive == 1) teams.push_back(team);
  }
  std::stable_sort(teams.begin(), teams.end(), [](int a, int b) {
    return Upper(league.team[a].City.View()) < Upper(league.team[b].City.View());
  });
  return teams;
}

bool SeasonStarted() {
  for (int team = 1; team <= kTeams; ++team) {
    const TeamRecord& t = league.team[team];
    if (t.TeamActive == 1 && t.Wins + t.Losses > 0) return true;
  }
  return false;
}

bool IsAlternateReality(const RuleControl& control) { return control.Name == "AlternateRealityCheck"; }

/// The two checks that only mean something while an offensive foul counts as a team foul.
bool NeedsTeamFoul(const RuleControl& control) {
  return control.Name == "OneShotOnOffensiveFoulBeforePenalty" ||
         control.Name == "OnePlusOneAfterPenaltyONOffensiveFouls";
}

int IndexOfValue(const std::vector<RuleChoice>& choices, u8 value) {
  const auto at = std::find_if(choices.begin(), choices.end(),
                               [value](const RuleChoice& choice) { return choice.value == value; });
  return at == choices.end() ? -1 : static_cast<int>(at - choices.begin());
}

}  // namespace

void HCRULESFORM::Open() {
  Closed = false;
  LeagueName = league.rules.LeagueName.Str();
  for (int division = 1; division <= kDivisions; ++division) {
    DivisionName[division] = league.rules.DivisionName[division].Str();
  }
  const int limit = league.rules.RosterLimitList;
  RosterLimitIndex = limit > 7 && limit <= 20 ? limit - 7 : 0;
  Teams = TeamsByCity();
  File1 = ImageFiles(LogoFolder());
  File1Index = -1;
}

const RuleControl* HCRULESFORM::Find(std::string_view name) {
  const auto controls = RuleControls();
  const auto at = std::find_if(controls.begin(), controls.end(),
                               [name](const RuleControl& control) { return control.Name == name; });
  return at == controls.end() ? nullptr : &*at;
}

std::string HCRULESFORM::Caption(const RuleControl& control) const {
  if (IsAlternateReality(control) && !Enabled(control) && !IsTicked(control)) {
    return "Alternate Reality (Season Started!)";
  }
  return std::string(control.Caption);
}

bool HCRULESFORM::Enabled(const RuleControl& control) const {
  if (IsAlternateReality(control)) return !SeasonStarted();
  if (NeedsTeamFoul(control)) return league.rules.OffensiveFoulTeamFoulCheck != 0;
  return true;
}

bool HCRULESFORM::IsTicked(const RuleControl& check) const {
  const u8 value = check.Field(league.rules);
  return check.Unticked == 0 ? value != 0 : value == check.Ticked;
}

int HCRULESFORM::ListIndex(const RuleControl& list) const {
  if (list.Name == "RosterLimitList") return RosterLimitIndex;
  return IndexOfValue(list.Choices(), list.Field(league.rules));
}

bool HCRULESFORM::Check(std::string_view name, bool ticked) {
  const RuleControl* check = Find(name);
  if (!check || check->Choices || !Enabled(*check)) return false;
  check->Field(league.rules) = ticked ? check->Ticked : check->Unticked;
  if (league.rules.OffensiveFoulTeamFoulCheck == 0) {
    league.rules.OneShotOnOffensiveFoulBeforePenalty = 0;
    league.rules.OnePlusOneAfterPenaltyONOffensiveFouls = 0;
  }
  return true;
}

bool HCRULESFORM::Choose(std::string_view name, int index) {
  const RuleControl* list = Find(name);
  if (!list || !list->Choices) return false;
  const auto choices = list->Choices();
  if (index < 0 || index >= static_cast<int>(choices.size())) return false;
  if (name == "RosterLimitList") {
    RosterLimitIndex = index;
  } else {
    list->Field(league.rules) = choices[static_cast<std::size_t>(index)].value;
  }
  return true;
}

bool HCRULESFORM::IsFavorite(int team) const { return league.rules.TeamList[team] != 0; }
bool HCRULESFORM::IsPauseTeam(int team) const { return league.rules.PauseTeamList[team] != 0; }

void HCRULESFORM::TeamList(int team, bool ticked) { league.rules.TeamList[team] = ticked ? kFavorite : 0; }
void HCRULESFORM::PauseTeamList(int team, bool ticked) {
  league.rules.PauseTeamList[team] = ticked ? kPauses : 0;
}

void HCRULESFORM::SelectAllTeamsFavoriteCommand() {
  for (const int team : Teams) TeamList(team, true);
}
void HCRULESFORM::ClearFavoriteTeamSelectionCommand() {
  for (const int team : Teams) TeamList(team, false);
}
void HCRULESFORM::SelectAllPauseTeamsCommand() {
  for (const int team : Teams) PauseTeamList(team, true);
}
void HCRULESFORM::ClearAllPauseTeamsCommand() {
  for (const int team : Teams) PauseTeamList(team, false);
}

void HCRULESFORM::USELOGOCommand() {
  if (File1Index < 0 || File1Index >= static_cast<int>(File1.size())) {
    platform::dialogs().Tell("You must highlight a logo!");
    return;
  }
  league.rules.LeagueLogo = File1[static_cast<std::size_t>(File1Index)];
  SaveRules();
}

void HCRULESFORM::Command4() {
  league.rules.LeagueLogo = "";
  SaveRules();
}

std::filesystem::path HCRULESFORM::DisplayLeagueLogo() const {
  const auto name = league.rules.LeagueLogo.View();
  return name.empty() ? std::filesystem::path() : platform::RealPath(LogoFolder(), name);
}

std::string_view HCRULESFORM::HistoricalEraLabel() const {
  return league.MixedYears ? "Average historical era is recommended for this league." : "";
}

bool HCRULESFORM::EraListRed() const { return league.MixedYears && league.rules.GameEraList != 1; }

bool HCRULESFORM::SAVE() {
  league.rules.LeagueName = LeagueName;
  for (int division = 1; division <= kDivisions; ++division) {
    league.rules.DivisionName[division] = DivisionName[division];
  }
  league.rules.RosterLimitList = static_cast<u8>(RosterLimitIndex == 0 ? 0 : RosterLimitIndex + 7);
  DerivePhotoRatio();
  FindPhotoFolder();
  if (!SaveRules()) return false;
  LoadRules();
  Closed = true;
  return true;
}

void HCRULESFORM::CANCEL() {
  LoadRules();
  Closed = true;
}

}  // namespace tipline
