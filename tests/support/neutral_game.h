#pragma once
// A game in which nothing moves a chance: two mean fives of one pro season, a neutral court, the first
// period.
#include "engine/game_state.h"
#include "league/program.h"
#include "league/setup.h"

namespace tipline {

inline EraRecord PlainEra() {  // two-pointers .500, threes .332, free throws .750
  EraRecord era;
  era.FGA = 85.3f, era.FGM = 40, era.F3A = 16, era.F3M = 5.35f;
  era.FTA = 24.25f, era.FTM = 18.1875f, era.TO = 15, era.PF = 24.25f;
  era.St = 8, era.Bk = 5;
  return era;
}

/// 500 of 1000 twos, 35 of 100 threes, 300 of 400 free throws; a foul each ten minutes.
inline PlayerRecord MeanMan(int team, int position) {
  PlayerRecord man;
  man.TeamNo = static_cast<i16>(team), man.Year = 2000, man.PlayerType = "P";
  StatLine& real = man.Stats[1];
  real.G = 80, real.Min = 2399, real.FGA = 1099, real.FGM = 535, real.F3A = 100, real.F3M = 35;
  real.FTA = 400, real.FTM = 300, real.To = 200, real.Pf = 240;
  man.PrimaryPosition = static_cast<u8>(position);
  man.RateOffense = 50, man.RealInsidePct = 50, man.RateClutch = 5;
  man.RateOffInside = man.RateOffOutside = man.RateOffDrive = man.RateOffFastbreak = 6;
  man.RateOffThree = 5, man.RatePassing = man.RateRebDef = man.RateRebOff = 4;
  man.RateSportsmanship = 10, man.RateDurability = 10;  // nothing interrupts the play
  man.RateDefOutside = 5, man.RateDefInside = 4, man.RateDefForce = 5;
  man.AltForm1 = man.AltForm2 = man.AltForm3 = man.AltForm4 = man.AltForm5 = 10;
  return man;
}

inline void SetUpSide(int side) {
  TeamRecord& team = game.team[side];
  team.TeamActive = 1, team.Year = 2000, team.TeamType = "P", team.RosterKind = "S";
  game.GameTeam[side] = side;
  for (int p = 1; p <= kPositions; ++p) {
    game.player[side][p] = MeanMan(side, p);
    game.side[side].Lineup[p] = p;
    game.side[side].Option[p] = 3;
  }
  Side& s = game.side[side];
  s.LineupOffense = 250, s.LineupPassing = 18, s.TeamPassing = 18, s.LineupForce = 26;
  s.EligibleCount = 12;
}

/// Side 2 attacks; slot 1 at position 1 has the ball and his twin guards him. `TwoChance` of such a man on a
/// put-back three that may not count is his real 500.
inline void SetUpNeutralGame() {
  random.Script({});
  random.Seed(1);
  league = {};
  program = {};
  setup = {};
  CallAllPlays();
  game = {};
  league.EraPro.Fill(PlainEra());
  league.EraCollege.Fill(PlainEra());
  league.rules.PeriodList = 4, league.rules.MinuteList = 12, league.rules.ThreePointCheck = 1;
  SetUpSide(1);
  SetUpSide(2);
  game.NeutralGame = true;
  game.GameClock = 7000;
  game.PlayKind = "OFFREB";
  game.PutbackClass = 3;
  game.BallPlayer = game.BallSlot = game.BallDefender = 1;
  game.play.TeamDefense = 23.1;
}

/// An ordinary play of that game at this stop: twelve men a side who take every kind of shot,
/// rebound, stand outside on spots of their own and are first options; five team fouls are the penalty.
inline void SetUpPlay(PlayKind kind, GameState state = "OFFENSE") {
  SetUpNeutralGame();
  game.PutbackClass = 0;
  game.PlayKind = kind;
  game.GameState = state;
  game.GameStarted = true;
  game.GameClock = 5000;
  game.ShotClock = 200;
  league.rules.ShotClockList = 24;
  league.rules.FoulLimit = {{5, 7, 10}};
  league.rules.Penalty = {{3, 3, 3}};
  for (int s = 1; s <= 2; ++s) {
    game.side[s].Option = {{1, 1, 1, 1, 1}};
    for (int slot = 1; slot <= 12; ++slot) {
      PlayerRecord& man = game.player[s][slot];
      man = MeanMan(s, (slot - 1) % 5 + 1);
      man.PositionAllowed[man.PrimaryPosition] = 1;
      man.HeightFeet = 6;
      man.Stats[1].Reb = 400, man.Stats[1].Off = 120;
      for (int k = 1; k <= 5; ++k) man.ShotSelection[k] = 3;
      game.man[s][slot].ShotPick = kOutside;
      game.man[s][slot].CourtSpot = 200 + slot % 9 + 1;
    }
  }
}

inline Side& O() { return game.side[2]; }
inline Side& D() { return game.side[1]; }
inline TeamRecord& OTeam() { return game.team[2]; }
inline TeamRecord& DTeam() { return game.team[1]; }
inline PlayerRecord& Shooter() { return game.player[2][1]; }
inline PlayerRecord& Defender() { return game.player[1][1]; }
inline StatLine& Real() { return Shooter().Stats[1]; }
inline StatLine& Replay() { return Shooter().Stats[2]; }
inline Man& OMan(int slot = 1) { return game.man[2][slot]; }
inline Man& DMan(int slot = 1) { return game.man[1][slot]; }
inline RulesRecord& Rules() { return league.rules; }

inline void Level(int side, const char* type, int year) {
  game.team[side].TeamType = type, game.team[side].Year = static_cast<i16>(year);
}
/// All ten men play in this season.
inline void SeasonOfAll(int year) {
  for (auto& side : game.player) {
    for (auto& man : side) man.Year = static_cast<i16>(year);
  }
}
inline void VisitorAttacks() { game.NeutralGame = false, game.OffenseSide = 1, game.DefenseSide = 2; }

/// Runs `play` from the present state with every seed below `times`.
template <typename Play>
void EachSeed(int times, Play play) {
  const Game start = game;
  for (int k = 0; k < times; ++k) {
    game = start;
    random.Seed(static_cast<std::uint64_t>(k));
    play();
  }
}

}  // namespace tipline
