#include "base/record_file.h"
#include "engine/weights_terms.h"

namespace tipline {

namespace {

/// Replay totals of the sampled men.
struct Sample {
  int twosTried = 0, twosMade = 0, threesTried = 0, threesMade = 0;
  int fouls = 0, turnovers = 0, steals = 0, blocks = 0;

  int Attempts() const { return twosTried + threesTried; }

  void Add(const PlayerRecord& player) {
    if (player.TeamNo < 1 || player.TeamNo > kTeams) return;
    if (league.team[player.TeamNo].TeamActive != 1) return;
    const StatLine& replay = player.Stats[2];
    twosTried += replay.FGA - replay.F3A;
    twosMade += replay.FGM - replay.F3M;
    threesTried += replay.F3A;
    threesMade += replay.F3M;
    fouls += replay.Pf;
    turnovers += replay.To;
    steals += replay.St;
    blocks += replay.Bk;
  }
};

/// A quarter of the league's men, 50 at most, drawn from 50 men on. From memory when the league is loaded,
/// else from its file.
Sample DrawSample() {
  const bool loaded = league.player.size() > 1;
  const RecordFile file(program.LeagueFolder / "HCPLAYER", kPlayerSlotBytes);
  int rows = static_cast<int>(league.player.size()) - 1;
  if (!loaded) rows = program.LeagueFolder.empty() ? 0 : file.Count();
  Sample sample;
  if (rows < 50) return sample;
  for (int k = std::min(rows / 4, 50); k > 0; --k) {
    const int row = Rnd(rows);
    if (loaded) {
      sample.Add(league.player[static_cast<std::size_t>(row)]);
    } else {
      PlayerRecord player;
      file.Read(row, player);
      sample.Add(player);
    }
  }
  return sample;
}

/// How far the replay's rate per attempt is from the era's; 1 where either is unknown.
double Drift(double eraCount, double eraAttempts, int count, int attempts, double exponent, double low,
             double high) {
  const double era = Ratio(eraCount, eraAttempts), replay = Ratio(count, attempts);
  return era > 0 && replay > 0 ? Clamp(std::pow(era / replay, exponent), low, high) : 1;
}

void TuneShots(const Sample& s, const EraRecord& era) {
  if (TwoPct(era) > 0) {
    const double drift = TwoPct(era) - Ratio(s.twosMade, s.twosTried);
    game.TwoTune = Clamp(drift * 1000 * 5, -50.0, 50.0);
  }
  if (s.threesTried > 100 && era.F3M > 0) {
    const double drift = Ratio(era.F3M, era.F3A) - Ratio(s.threesMade, s.threesTried);
    game.ThreeTune = Clamp(drift * 1000 * 3, -40.0, 40.0);
  }
}

void Tune(const Sample& s, const EraRecord& era) {
  if (s.twosTried <= 500) return;
  if (s.turnovers > 50 && s.fouls > 30) {
    TuneShots(s, era);
    game.TurnoverTune = Drift(era.TO, era.FGA, s.turnovers, s.Attempts(), 3, 0.89, 1.1);
    if (s.fouls >= 50) game.FoulTune = Drift(era.PF, era.FGA, s.fouls, s.Attempts(), 3, 0.7, 1.3);
  }
  if (s.steals >= 50) game.StealTune = Drift(era.St, era.FGA, s.steals, s.Attempts(), 1.5, 0.7, 1.3);
  if (s.blocks >= 50) game.BlockTune = Drift(era.Bk, era.FGA, s.blocks, s.Attempts(), 1.5, 0.7, 1.3);
}

/// The two teams play a season of a plain league that has gone far enough to be measured. Up to two draws.
bool CanCalibrate() {
  const TeamRecord &a = game.team[1], &b = game.team[2];
  if (a.RosterKind == 'D' || b.RosterKind == 'D' || a.TeamType == 'A' || b.TeamType == 'A') return false;
  if (program.GameKind != "L" || a.Year != b.Year || a.Year < 1945 || a.Year > kLastEraYear) return false;
  if (league.rules.GameEraList != 0) return false;
  if (GamesPlayed(a) < 5 + Rnd(5)) return false;
  if (GamesPlayed(b) < 5 + Rnd(5)) return false;
  return !HawaiiLeague();
}

/// Passing of an average five of the real team; of an average team where no minutes are known.
double RealPassing(int side) {
  double minutes = 0, sum = 0;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(side, slot)) continue;
    const PlayerRecord& player = PlayerAt(side, slot);
    minutes += player.Stats[1].Min;
    sum += static_cast<double>(player.RatePassing) * player.Stats[1].Min;
  }
  return minutes > 0 ? sum / minutes * 5 : 18;
}

bool RostersMixed() {
  int year = -1;
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(side, slot)) continue;
      const int own = PlayerAt(side, slot).Year;
      if (year != -1 && own != year) return true;
      year = own;
    }
  }
  return false;
}

}  // namespace

void CalibrateLeague() {
  for (int side = 1; side <= 2; ++side) {
    game.side[side].TeamPassing = RealPassing(side);
    game.side[side].WinShare = Ratio(game.team[side].Wins, GamesPlayed(game.team[side]));
  }
  game.MixedEras = league.MixedYears || RostersMixed() ? 1 : 0;
  game.TwoTune = game.ThreeTune = 0;
  game.TurnoverTune = game.FoulTune = game.StealTune = game.BlockTune = 1;
  if (CanCalibrate()) Tune(DrawSample(), EraRow(game.team[1].Year, false, 2017));
}

}  // namespace tipline
