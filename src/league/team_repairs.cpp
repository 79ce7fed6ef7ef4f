#include "league/team_repairs.h"

#include <algorithm>

#include "league/league.h"
#include "league/markers.h"
#include "league/name_tables.h"
#include "league/season_reset.h"

namespace tipline {
namespace {

constexpr int kMostRealGames = 100;      // more real wins or losses are rubbish
constexpr int kMostTeamRebounds = 2000;  // of a season
constexpr int kMostTeamReboundsAGame = 30;
constexpr int kMostPossessions = 25000;
constexpr int kMostPeriodPoints = 4000;

int GamesOf(const TeamRecord& t) { return t.Wins + t.Losses; }

std::string FirstThree(const TeamRecord& t) { return t.City.Str().substr(0, 3); }

std::string Without(std::string_view text, std::string_view letters) {
  std::string kept(text);
  std::erase_if(kept, [letters](char c) { return letters.find(c) != std::string_view::npos; });
  return kept;
}

struct TeamRepair {
  TeamRecord& t;

  void Totals() {
    if (!TakeMark(t.TeamTotalsMark, 99)) return;
    t.TeamTurnovers = {};
    t.OppTeamRebounds = 0;
  }

  void Name() {
    if (!TakeMark(t.NameMark, 37)) return;
    const CityRow* city = FindCity(t);
    if (city && !city->Abbrev.empty()) t.Abbrev = city->Abbrev;
  }

  void RealRecord() {
    const bool tooMany = t.RealWins > kMostRealGames || t.RealLosses > kMostRealGames;
    if (TakeMark(t.RealRecordMark, 99) || tooMany) t.RealWins = t.RealLosses = 0;
  }

  void Conference() {
    if (!TakeMark(t.ConferenceMark, 99)) return;
    t.ConferenceWins = t.DivisionWins;
    t.ConferenceLosses = t.DivisionLosses;
  }

  void Splits() {
    if (TakeMark(t.SplitsMark, 99)) ClearSplits(t);
  }

  void Abbreviation() {
    if (t.Abbrev.View().find_first_of("/\\*!@?#=") != std::string_view::npos) t.Abbrev = FirstThree(t);
  }

  /// A draft team is a pro team with men of all teams.
  void Type() {
    if (t.TeamType == 'D') t.RosterKind = "D";
    if (t.TeamType != 'C' && t.TeamType != 'A' && t.TeamType != 'O') t.TeamType = "P";
  }

  void Types() {
    Type();
    if (t.RosterKind != 'D') t.RosterKind = "S";
    if (t.TeamSex != 'W') t.TeamSex = "M";
    if (t.TeamType == 'O') t.RosterKind = "S";
  }

  void Canada() {
    if (!TakeMark(t.CanadaMark, 199)) return;
    constexpr std::string_view kCanadian[] = {"Canada",   "Toronto", "Montreal",  "Ottawa",
                                              "Winnipeg", "Alberta", "Vancouver", "Calgary"};
    const bool named =
        std::find(std::begin(kCanadian), std::end(kCanadian), t.City.View()) != std::end(kCanadian);
    const CityRow* city = FindCity(t);
    t.CanadianTeam = named || (city && city->Canadian) ? 1 : 0;
  }

  void TeamRebounds() {
    const int games = GamesOf(t);
    const bool tooMany =
        t.OppTeamRebounds > kMostTeamRebounds || t.OppTeamRebounds > kMostTeamReboundsAGame * (games + 1);
    if (tooMany || games == 0) t.OppTeamRebounds = 0;
  }

  /// The city is a part of file names. One team had two.
  void City() {
    if (t.City == "Kansas City/Omaha" || t.City == "Kansas City\\Omaha") {
      t.City = "Kansas City-Omaha";
      t.Abbrev = "KCO";
    }
    if (t.City.View().find_first_of("/\\+*?") != std::string_view::npos) {
      t.City = Trimmed(Without(t.City.View(), "/\\+*?"));
      Abbreviation();  // it may have been taken from the city with them
    }
  }

  void Arena() {
    const CityRow* city = FindCity(t);
    if (TakeMark(t.ArenaSizeMark, 99) && city && city->TimeZone >= 0) {
      t.ArenaAge = static_cast<u8>(city->TimeZone);
    }
    if (!TakeMark(t.ArenaMark, 123)) return;
    t.ArenaName = t.OldArenaName.View();
    if (t.ArenaName.Empty() && city) t.ArenaName = city->Arena;  // the hall that the city is known for
  }

  void ShotTable() {
    if (TakeMark(t.ShotTableMark, 99) && GamesOf(t) > 0) ClearShotTable(t);
  }

  void Unplayed() {
    if (GamesOf(t) != 0) return;
    t.NeutralWins = t.NeutralLosses = t.HomeWins = t.HomeLosses = t.DivisionWins = t.DivisionLosses = 0;
    t.Streak = 0;
  }

  void GameMarks() {
    if (TakeMark(t.LastTenMark, 99)) t.LastTen.Fill(std::string_view(" "));
    if (TakeMark(t.HighLowMark, 33)) ClearHighsAndLows(t);
    if (GamesOf(t) == 0) t.PossessionMark = 99;
  }

  void Bounds() {
    if (t.Nickname.Empty()) t.Nickname = t.City.View();
    for (auto& period : t.PeriodPoints) {
      for (i16& points : period) {
        if (points < 0 || points > kMostPeriodPoints) points = 0;
      }
    }
    if (t.ScheduleStrength < 1) t.ScheduleStrength = 1;
    for (auto* counts : {&t.Possessions, &t.OppPossessions}) {
      for (auto& count : *counts) {
        if (count < 0 || count > kMostPossessions) count = 0;
      }
    }
  }

  void Courts() {
    if (TakeMark(t.HomeCourtMark, 111)) AssignHomeCourt(t);
    if (TakeMark(t.CourtMark, 11)) AssignCourt(t);
    if (TakeMark(t.CourtYearMark, 99) && t.TeamType == 'P' && t.Year == 2013) {
      t.CourtFile = "VTX-Court-" + Without(t.City.View(), " ") + "14.jpg";
    }
  }

  /// Letters in the colour of the shirt can't be read.
  void RoadColors() {
    if (t.RoadForeColor != t.RoadBackColor) return;
    t.RoadForeColor = t.HomeForeColor;
    t.RoadBackColor = t.HomeBackColor;
  }
};

}  // namespace

void RepairSlot(TeamRecord& t) {
  if (t.Abbrev.Empty()) t.Abbrev = FirstThree(t);
  if (t.Year < kFirstEraYear) t.Year = 2013;
  if (t.HomeForeColor == 0 && t.HomeBackColor == 0) t.HomeForeColor = 0x00FFFFFF;
  TeamRepair repair{t};
  repair.Type();
  repair.Unplayed();
}

void RepairTeamAtOpening(TeamRecord& team) {
  TeamRepair repair{team};
  repair.Totals();
  repair.Name();
  repair.RealRecord();
  repair.Conference();
  repair.Splits();
}

void RepairTeam(TeamRecord& team, CoachRecord& coach) {
  if (TakeMark(coach.FontMark, 99)) coach.TeamFont = "Arial";
  TeamRepair repair{team};
  repair.Abbreviation();
  repair.Name();
  repair.Types();
  repair.Canada();
  repair.Totals();
  repair.TeamRebounds();
  if (TakeMark(team.ArenaFileMark, 99)) team.ArenaFile = "Arena.jpg";
  repair.RealRecord();
  repair.City();
  repair.Splits();
  repair.Arena();
  repair.Conference();
  repair.ShotTable();
  repair.Unplayed();
  repair.GameMarks();
  repair.Bounds();
  repair.Courts();
  repair.RoadColors();
}

void AssignHomeCourt(TeamRecord& team) {
  const CityRow* city = FindCity(team);
  if (city && !city->HomeCourt.empty()) team.HomeCourtFile = city->HomeCourt;
}

void AssignCourt(TeamRecord& team) {
  const CityRow* city = FindCity(team);
  if (city && !city->Court.empty()) team.CourtFile = city->Court;
}

}  // namespace tipline
