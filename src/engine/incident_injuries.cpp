// Men who are hurt: shaken up and playing on, out for a while, out for games.
#include <algorithm>

#include "coach/substitutions.h"
#include "engine/execution.h"
#include "engine/incident_steps.h"
#include "engine/incidents.h"
#include "league/player_values.h"
#include "league/program.h"
#include "league/season_date.h"

namespace tipline {
namespace {

constexpr int kLastLightWord = 13;
constexpr int kFirstOddWord = 51;
constexpr int kDaysOfSeason = 180;  // from opening night to the last game
constexpr SeasonDate kSeasonIsOver{11, 31};

double RealMinutes(const PlayerRecord& p) { return p.Stats[1].Min / (p.Stats[1].G + 0.1); }

/// A man who plays that much is hard to hurt.
bool Durable(const PlayerRecord& p) {
  const double minutes = RealMinutes(p);
  if (minutes > 15 + 30 * Rnd() && Rnd(2) == 1) return true;
  if (minutes > 25 + 30 * Rnd() && Rnd(2) == 1) return true;
  return minutes > 45 + 3 * Rnd() && Rnd(10) <= 9;
}

bool EarlyInShotClock() { return league.rules.ShotClockList == 0 || game.ShotClock >= 80; }

/// What a man has who is back soon.
int LightWord() {
  int word = Rnd(kLastLightWord);
  if (Rnd(20) == 1) word = kFirstOddWord - 1 + Rnd(10);
  return word;
}

/// What he has by the games it costs: the list goes from light to grave, with the odd ones behind.
int WordFor(int games) {
  if (games < 3) return LightWord();
  if (games < 15) return kLastLightWord + Rnd(17);
  return 30 + Rnd(20);
}

/// How long he sits: counts that the periods' ends take off. A man of few minutes is in no hurry.
int CountsOut(double minutes) {
  int counts = Rnd(25);
  if (Rnd(3) == 2) counts += 10;
  for (int base = 5; base <= 25; base += 5) {
    if (base + 20 * Rnd() > minutes && Rnd(3) == 2) counts += 10;
  }
  return std::max(counts, 3);
}

bool Frail(int durability) { return durability <= Rnd(6) || durability <= Rnd(9) || Rnd(3) == 1; }

/// The position of the five that the injury falls to, mostly that of the least durable man; 0 for nobody.
int PositionAtRisk(int side) {
  const int drawn = Rnd(kPositions);
  if (league.rules.UniversalDurabilityList > 0) {
    return Frail(Durability(OnFloor(side, drawn))) ? drawn : 0;
  }
  if (Rnd(10) > 8) return drawn;
  int weakest = 1;
  for (int p = 2; p <= kPositions; ++p) {
    if (OnFloor(side, p).RateDurability < OnFloor(side, weakest).RateDurability) weakest = p;
  }
  return Frail(OnFloor(side, weakest).RateDurability) ? weakest : drawn;
}

bool EnoughMen(int side) {
  const int fewest = 9 + Rnd(3);
  int men = 0, active = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(side, slot)) continue;
    ++men;
    active += LoadedAt(side, slot).PlayerOut ? 0 : 1;
  }
  return men > fewest && active > fewest;
}

/// Share of the season in which he belonged to the team, October to March.
double ShareOfSeason(const PlayerRecord& p) {
  const double from = std::max(2.0, p.StartMonth + p.StartDay / 31.0);
  const double to = p.EndMonth == 0 ? 7.0 : std::min(7.0, p.EndMonth + p.EndDay / 31.0);
  const double days = Clamp((to - from) * 30, 30.0, 180.0);
  return std::min(1.0, days / 150);
}

/// Games of a season, by its era; women play two fifths of it.
double FullSeason(int year, bool college, bool women) {
  const int games = EraRow(year, college, 2013).Games;
  return std::max(1.0, (games > 0 ? games : 82) * (women ? 0.4 : 1.0));
}

int GamesOfTeam(int side) { return game.team[side].Wins + game.team[side].Losses; }
int GamesLeft(int side) { return std::max(1, SeasonGames(side) - GamesOfTeam(side) - 1); }

/// Games that this injury costs him; 0 for none. The risk of each chance is what he has still to miss, as a
/// share of the games left, over the length that an injury of his has on average and over the chances that a
/// man of his minutes meets in a game. So a man who has been spared so far is more and more at risk, and a
/// man who has missed his share is safe.
int DrawLength(int side, int slot) {
  const PlayerRecord& p = PlayerAt(side, slot);
  const double owed = GamesToMiss(side, slot);
  const int left = GamesLeft(side);
  if (owed < 0.5) return 0;
  constexpr double kChancesAMinute = 0.0009;
  const double chances = kChancesAMinute * std::max(6.0, RealMinutes(p));
  // Most injuries are over in a few games; a man who misses much of his season has long ones.
  const bool grave = owed > 0.4 * left;
  double risk = owed / (left + 1) / (1 + owed / (grave ? 2 : 3)) / chances;
  if (p.MinutesInjuryFactor > 10) risk *= p.MinutesInjuryFactor / 10.0;
  if (Rnd() >= risk) return 0;
  const double r = Rnd();
  return std::min(1 + Int(owed * (grave ? r : r * r)), left);
}

/// How far the list of the men hurt today has grown, and what it spares the others.
bool EnoughHurt() {
  for (const int chars : {20, 40, 60}) {
    if (static_cast<int>(game.InjuryNames.size()) > chars && Rnd(10) <= 9) return true;
  }
  return false;
}

/// One play in so many is looked at; the more shots a game has, the fewer plays.
int PlaysForALook() {
  const PlayerRecord& first = OnFloor(game.OffenseSide, 1);
  const double attempts = EraRow(Clamp<int>(first.Year, 1920, 2020), IsCollege(first), 2020).FGA;
  return std::max(10, Round(100 / std::max(attempts, 1.0) * 40));
}

/// The days off and on the books. A game without a date leaves none to return on: he is out for this game.
void KeepOnRecord(PlayerRecord& p, int side, int length, int word) {
  if (p.SeasonInjuryCount < 255) ++p.SeasonInjuryCount;
  const SeasonDate today{game.GameMonth, game.GameDay};
  const SeasonDate back = DaysLater(today, Round(length * double{kDaysOfSeason} / SeasonGames(side)));
  if (back.month == 0) return;
  // A return in August counts as none at all, so the longest injury lasts until the end of July.
  const SeasonDate kept = today < kSeasonIsOver ? std::min(back, kSeasonIsOver) : back;
  p.InjuryType = static_cast<u8>(word);
  p.InjurySeverity = length < 3 ? 1 : length < 15 ? 2 : 3;
  p.InjuryReturnMonth = static_cast<u8>(kept.month);
  p.InjuryReturnDay = static_cast<u8>(kept.day);
}

void CarryOutInjury() {
  const int side = game.play.InjuredSide, slot = game.play.InjuredPlayer;
  const int length = game.play.InjuryLength;
  PlayerRecord& p = PlayerAt(side, slot);
  const int word = WordFor(length);
  Incident& incident = Note(IncidentKind::kInjury, side, slot);
  incident.InjuryWord = word;
  incident.Length = length;
  KeepOnRecord(p, side, length, word);
  LoadedAt(side, slot).PlayerOut = 1;
  ManAt(side, slot).GameInjury = 1;
  game.InjuryNames += p.LastName.Str() + ", ";
  AddPlayLog(game.GameClock, side, slot, "", "TIMEOUT", kInjuryNote);
  LeaveFloor(side, slot);
  StopForIncident();
  LoadLineups();
}

}  // namespace

int SeasonGames(int side) {
  const TeamRecord& team = game.team[side];
  return Round(FullSeason(team.Year, IsCollegeOrInternational(team), team.TeamSex == 'W'));
}

double GamesToMiss(int side, int slot) {
  const PlayerRecord& p = PlayerAt(side, slot);
  const int season = SeasonGames(side);
  const double full = FullSeason(p.Year, IsCollegeLevel(p), p.Sex == 'W');
  double share = p.Stats[1].G > 0 ? std::max(0.0, ShareOfSeason(p) - p.Stats[1].G / full)
                                  : std::max(0, 10 - Durability(p)) * 0.02;  // no real season to go by
  if (p.Year <= 1980) share *= 1.1;
  const int missed = std::max(0, GamesOfTeam(side) - p.Stats[2].G);
  return Clamp(share * season - missed, 0.0, static_cast<double>(GamesLeft(side)));
}

bool ShakenUpTest() {
  if (league.rules.TemporaryGameInjuriesCheck == 0 || !EarlyInShotClock() || Rnd(30) != 1) return false;
  const int slot = Offense().Lineup[Rnd(kPositions)];
  if (slot == 0 || Durable(PlayerAt(game.OffenseSide, slot))) return false;
  Note(IncidentKind::kShakenUp, game.OffenseSide, slot).InjuryWord = LightWord();
  AddPlayLog(game.GameClock, game.OffenseSide, slot, "", "SHAKEN-UP");
  game.PlayResult = "SHAKEN-UP";
  StopInFrontcourt();
  return true;
}

bool TemporaryInjuryTest() {
  if (league.rules.TemporaryGameInjuriesCheck == 0 || !EarlyInShotClock() || Rnd(50) != 1) return false;
  for (const Side& each : game.side) {
    if (each.EligibleCount <= 8 + Rnd(2)) return false;
  }
  const int side = Rnd(2);
  const int position = Rnd(kPositions);
  if (game.side[side].EligibleCount <= 8 + Rnd(2)) return false;
  const int slot = game.side[side].Lineup[position];
  if (slot == 0 || Durable(PlayerAt(side, slot))) return false;
  LeaveFloor(side, slot);
  ManAt(side, slot).TemporaryInjury = CountsOut(RealMinutes(PlayerAt(side, slot)));
  Note(IncidentKind::kTemporaryInjury, side, slot).InjuryWord = LightWord();
  AddPlayLog(game.GameClock, side, slot, "", "TIMEOUT", kInjuryNote);
  StopForIncident();
  LoadLineups();
  return true;
}

void PickInjury() {
  Play& play = game.play;
  const int side = game.OffenseSide;
  play.InjuryFound = false;
  if (!EnoughMen(side)) return;
  const TeamRecord& team = game.team[side];
  if (team.TeamType == 'C' && Rnd(100) > 30) return;
  if (team.TeamType == 'O' && Rnd(100) > 70) return;
  const int position = PositionAtRisk(side);
  const int slot = position > 0 ? Offense().Lineup[position] : 0;
  if (slot == 0 || slot == game.BallPlayer || ManAt(side, slot).PlayerGameTime <= 0) return;
  if (Offense().EligibleCount - 1 < 7 + Rnd(2)) return;
  const int length = DrawLength(side, slot);
  if (length == 0) return;
  play.InjuryFound = true;
  play.InjuredSide = side;
  play.InjuredPlayer = slot;
  play.InjuryLength = length;
}

bool InjuryTest() {
  if (league.rules.InjuryOption != 1) return false;
  if (program.PlayoffGame && (program.CurrentRound == 1 || program.CurrentRound == 2)) return false;
  if (!EarlyInShotClock() || EnoughHurt()) return false;
  if (game.GameClock >= FullPeriod() - kMinute && Rnd(10) <= 7) return false;
  if (game.GameClock < kMinute || FoulCalled() || Rnd(PlaysForALook()) != 1) return false;
  PickInjury();
  if (!game.play.InjuryFound) return false;
  CarryOutInjury();
  return true;
}

}  // namespace tipline
