#include "support/torture.h"

#include <algorithm>
#include <vector>

#include "engine/game_state.h"
#include "harness/memory_league.h"
#include "league/program.h"
#include "league/rules.h"
#include "league/rules_screen.h"
#include "league/setup.h"

namespace tipline {
namespace {

int Between(int low, int high) { return low + Rnd(high - low + 1) - 1; }
bool OneIn(int n) { return Rnd(n) == 1; }
template <class T>
T OneOf(std::initializer_list<T> all) {
  return *(all.begin() + Rnd(static_cast<int>(all.size())) - 1);
}
u8 Byte() { return static_cast<u8>(Rnd(256) - 1); }

/// A record of bytes that mean nothing, with texts and numbers alike.
template <class Record>
void FillWithGarbage(Record& record) {
  std::vector<u8> bytes(Record::kRecordSize);
  const int kind = Rnd(3);  // all sorts, all ones, small numbers
  for (u8& byte : bytes) byte = kind == 1 ? Byte() : kind == 2 ? u8{255} : static_cast<u8>(Rnd(12) - 1);
  ReadRecord(bytes.data(), record);
}

/// Any line of every list and any check of the rule book; the first lines, where the odd values stand, more
/// often.
void DrawRules(RulesRecord& r) {
  r = {};
  for (const RuleControl& control : RuleControls()) {
    u8& field = control.Field(r);
    if (control.Choices) {
      const auto choices = control.Choices();
      const int lines = static_cast<int>(choices.size());
      field = choices[static_cast<std::size_t>(Rnd(OneIn(2) ? std::min(3, lines) : lines)) - 1].value;
    } else {
      field = OneIn(2) ? control.Ticked : control.Unticked;
    }
  }
  r.PeriodList = static_cast<u8>(Rnd(9));
  if (OneIn(5)) r.OverTimeList = 0;
}

void DrawEras() {
  const int kind = Rnd(4);
  if (kind == 1) {
    UseShippedEras();
    return;
  }
  for (EraTable* table : {&league.EraPro, &league.EraCollege}) {
    for (EraRecord& row : *table) {
      row = {};
      if (kind == 2) continue;
      if (kind == 3) FillWithGarbage(row);
      row.Games = static_cast<i16>(Rnd(90) - 1);
      if (kind == 4) {
        for (const auto figure : kEraFigures) row.*figure = static_cast<f32>(Rnd(100) - 1);
      }
    }
  }
}

/// A man with a real season of some sort.
void DrawLine(StatLine& line) {
  line.G = static_cast<i16>(Rnd(83) - 1);
  line.Min = static_cast<i16>(Rnd(3500) - 1);
  for (auto counter : {&StatLine::GS, &StatLine::FGA, &StatLine::FGM, &StatLine::F3A, &StatLine::F3M,
                       &StatLine::FTA, &StatLine::FTM, &StatLine::Reb, &StatLine::Off, &StatLine::Ast,
                       &StatLine::St, &StatLine::Bk, &StatLine::To, &StatLine::Pf}) {
    line.*counter = static_cast<i16>(Rnd(900) - 1);
  }
}

void DrawRatings(PlayerRecord& man) {
  const u8 value = OneOf<u8>({0, 1, 5, 10, 255});
  for (u8* rating :
       {&man.RatePassing, &man.RateOffense, &man.RateOffInside, &man.RateOffOutside, &man.RateOffFastbreak,
        &man.RateOffDrive, &man.RateOffThree, &man.RealInsidePct, &man.RateDunk, &man.RateRebDef,
        &man.RateRebOff, &man.RateDefForce, &man.RateSportsmanship, &man.RateDefOutside, &man.RateDefInside,
        &man.RateDurability, &man.RateClutch}) {
    *rating = value;
  }
}

void DrawPlaces(PlayerRecord& man, bool anyCentre) {
  man.PrimaryPosition = static_cast<u8>(Between(0, anyCentre ? 5 : 4));
  man.SecondaryPosition = static_cast<u8>(Between(0, anyCentre ? 6 : 4));
  man.SpotPosition = static_cast<u8>(Between(0, anyCentre ? 6 : 4));
  man.TargetMinutes = OneOf<u8>({0, 10, 30, 48, 255});
  for (int p = 1; p <= kPositions; ++p) {
    man.DepthRank[p] = OneIn(8) ? Byte() : static_cast<u8>(Rnd(7) - 1);
    man.PositionAllowed[p] = static_cast<u8>(Rnd(2) - 1);
    man.ShotSelection[p] = static_cast<u8>(Rnd(7) - 1);
  }
}

void DrawMan(PlayerRecord& man, bool anyCentre) {
  man = {};
  const int kind = Rnd(5);  // nothing at all, a line, ratings, both, garbage
  if (kind == 5) FillWithGarbage(man);
  if (kind == 2 || kind == 4) DrawLine(man.Stats[1]);
  if (kind == 3 || kind == 4) DrawRatings(man);
  if (kind == 4) DrawLine(man.Stats[2]);
  if (kind != 1) DrawPlaces(man, anyCentre);
  man.Year = OneOf<i16>({0, 1946, 1965, 1990, 2022, 2050, static_cast<i16>(Rnd(32000)), i16{-5}});
  man.PlayerType = OneOf<const char*>({"P", "C", "A", "O", " "});
  if (kind != 5) man.Status = OneIn(12) ? u8{99} : u8{0};
  if (kind != 5 && OneIn(2)) man.HeightFeet = 6;
}

int MenOnRoster() { return OneOf<int>({0, 1, 3, 4, 5, 6, 8, 12, 15, 30}); }

void DrawTeam(int teamNo) {
  TeamRecord& team = league.team[teamNo];
  CoachRecord& coach = league.coach[teamNo];
  team = {};
  coach = {};
  if (OneIn(3)) FillWithGarbage(team);
  if (OneIn(3)) FillWithGarbage(coach);
  team.TeamActive = 1;
  team.Year = OneOf<i16>({0, 1946, 1965, 1995, 2022, 2050, i16{-9}, i16{32000}});
  team.TeamType = OneOf<const char*>({"P", "P", "C", "A", "O", ""});
  team.RosterKind = OneOf<const char*>({"S", "D", ""});
  for (auto& row : team.Roster) row = 0;
  const int men = MenOnRoster();
  const bool anyCentre = !OneIn(4);
  for (int k = 1; k <= men; ++k) {
    const auto row = static_cast<i16>(league.player.size());
    PlayerRecord man;
    DrawMan(man, anyCentre);
    man.RecNo = row;
    man.TeamNo = static_cast<i16>(teamNo);
    team.Roster[men == 30 ? k : Clamp(k + Rnd(2) - 1, 1, 30)] = row;
    league.player.push_back(man);
  }
}

void DrawSetup() {
  setup.MoveUpList[0] = OneOf<u8>({0, 2, 20});
  setup.MoveUpList[1] = OneOf<u8>({0, 2, 20});
  for (auto& band : setup.PlayCallFrequency) {
    for (u8& share : band) share = static_cast<u8>(Rnd(11) - 1);
  }
  setup.ComputerCheck = static_cast<u8>(Rnd(2) - 1);
}

}  // namespace

void OpenTortureLeague(std::uint64_t seed) {
  random.Script({});
  random.Seed(seed);
  league = {};
  program = {};
  setup = {};
  game = {};
  DrawEras();
  DrawRules(league.rules);
  DrawSetup();
  league.player.assign(1, {});
  DrawTeam(1);
  DrawTeam(2);
  for (int spare = Rnd(80); spare > 0; --spare) {  // free agents and men of nowhere
    PlayerRecord man;
    DrawMan(man, true);
    league.player.push_back(man);
  }
  program.GameKind = OneIn(2) ? GameKind("L") : GameKind("E");
  program.PlayoffGame = OneIn(4);
  game.NeutralGame = OneIn(3);
  league.ActiveTeams = Rnd(40);
  SeatTeam(1, 1);
  SeatTeam(2, 2);
}

std::string TortureLabel() {
  const RulesRecord& r = league.rules;
  const auto men = [](int team) {
    int count = 0;
    for (const int row : league.team[team].Roster) count += row > 0 ? 1 : 0;
    return std::to_string(count);
  };
  return std::to_string(r.PeriodList) + " periods of " + std::to_string(r.MinuteList) + ", overtime " +
         std::to_string(r.OverTimeList) + ", foul limit " + std::to_string(r.DqList) + ", shot clock " +
         std::to_string(r.ShotClockList) + ", men " + men(1) + " and " + men(2);
}

}  // namespace tipline
