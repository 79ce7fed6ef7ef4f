// What interrupts games, beside what real leagues show; and the games that men miss over a season.
#include <algorithm>
#include <iomanip>
#include <ostream>
#include <vector>

#include "base/random.h"
#include "bench.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "harness/memory_league.h"
#include "league/program.h"
#include "season_sums.h"

namespace tipline {
namespace {

struct Counts {
  int games = 0, shakenUp = 0, temporary = 0, injuries = 0, illegal = 0, warnings = 0, fights = 0,
      technicals = 0, technicalEjections = 0, delays = 0, flagrant1 = 0, flagrant2 = 0, ejections = 0;

  void AddGame();
};

void Counts::AddGame() {
  ++games;
  for (int n = 1; n <= game.PlayLogCount; ++n) {
    const PlayLogRow& row = game.PlayLog[n];
    shakenUp += row.Outcome == "SHAKEN-UP";
    illegal += row.Outcome == "ILLEGAL DEFENSE";
    delays += row.Outcome == "DELAY";
    fights += row.Note == kFightNote;
    temporary += row.Note == kInjuryNote;
  }
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      const PlayerRecord& p = PlayerAt(side, slot);
      const StatLine& line = p.Stats[3];
      const Man& man = ManAt(side, slot);
      injuries += man.GameInjury;
      temporary -= man.GameInjury;
      technicals += line.Technicals;
      technicalEjections += man.Ejected && line.Technicals >= 2;
      ejections += man.Ejected;
      flagrant1 += p.Flagrants[3] - line.Flagrant2;
      flagrant2 += line.Flagrant2;
    }
  }
}

void PrintCounts(std::ostream& out, const Counts& c) {
  const auto row = [&](const char* name, int count, const char* real) {
    out << std::left << std::setw(24) << name << std::right << std::fixed << std::setprecision(1)
        << std::setw(8) << 100.0 * count / c.games << "   " << real << '\n';
  };
  out << c.games << " games; in a hundred games:  (real leagues of about 2015 to 2023)\n";
  row("shaken up, plays on", c.shakenUp, "");
  row("out for a while", c.temporary, "");
  row("injured", c.injuries, "");
  row("illegal defenses", c.illegal, "defensive three seconds: several tens");
  row("fights", c.fights, "about one, or less");
  row("technicals", c.technicals, "about 120");
  row("  and ejected", c.technicalEjections, "a few");
  row("delays", c.delays, "");
  row("flagrant 1", c.flagrant1, "about ten");
  row("flagrant 2", c.flagrant2, "one or two");
  row("ejections of all kinds", c.ejections, "about five");
}

constexpr int kBands[] = {0, 5, 10, 20, 30, 50, 82};
constexpr int kBandCount = 6;

/// By real games missed: the share of games that men missed, in real life and in the replay, and how many of
/// those by injury.
class Missed {
 public:
  explicit Missed(std::size_t men) : hurt_(men) {}

  void AddGame() {
    for (int side = 1; side <= 2; ++side) {
      for (int slot = 1; slot <= kRosterSlots; ++slot) {
        const PlayerRecord& p = PlayerAt(side, slot);
        if (OnTeam(side, slot) && p.InjuryReturnMonth > 0 && !ManAt(side, slot).GameInjury) {
          ++hurt_[static_cast<std::size_t>(p.RecNo)];
        }
        lengths_ += ManAt(side, slot).GameInjury;
      }
    }
  }

  void Print(std::ostream& out, int teamGames) const {
    out << "\nreal games missed      men   real share   replay share   by injury\n";
    for (int band = 0; band < kBandCount; ++band) PrintBand(out, band, teamGames);
    int days = 0;
    for (const int games : hurt_) days += games;
    out << "games an injury costs, on average: " << std::setprecision(1)
        << static_cast<double>(days) / std::max(1, lengths_) << '\n';
  }

 private:
  void PrintBand(std::ostream& out, int band, int teamGames) const {
    int men = 0;
    double real = 0, replay = 0, injury = 0;
    for (const PlayerRecord& p : league.player) {
      const int missed = 82 - p.Stats[1].G;
      const bool last = band == kBandCount - 1;
      if (p.TeamNo < 1 || p.TeamNo > kTeams || missed < kBands[band]) continue;
      if (last ? missed > kBands[band + 1] : missed >= kBands[band + 1]) continue;
      ++men;
      real += missed / 82.0;
      replay += 1.0 - static_cast<double>(p.Stats[2].G) / teamGames;
      injury += static_cast<double>(hurt_[static_cast<std::size_t>(p.RecNo)]) / teamGames;
    }
    const double n = std::max(1, men);
    out << std::setw(7) << kBands[band] << " to " << std::left << std::setw(9)
        << kBands[band + 1] - (band == kBandCount - 1 ? 0 : 1) << std::right << std::setw(6) << men
        << std::setprecision(3) << std::setw(13) << real / n << std::setw(15) << replay / n << std::setw(12)
        << injury / n << '\n';
  }

  std::vector<int> hurt_;
  int lengths_ = 0;
};

}  // namespace

int Incidents(std::ostream& out, const BenchOptions& options) {
  const int year = options.year > 0 ? options.year : 2022;
  OpenMemoryLeague("pro", year, options.seed);
  program.GameKind = "L";
  program.ReplayLocked = true;
  SeedRandom(options.seed);
  const auto teams = MemoryTeams();
  const int half = static_cast<int>(teams.size()) / 2;
  const int rounds = options.games > 0 ? (options.games + half - 1) / half : 82;
  Counts counts;
  Missed missed(league.player.size());
  for (int round = 0; round < rounds; ++round) {
    SetDateOfRound(round, rounds);
    for (const Pairing& pair : RoundOf(teams, round)) {
      PlayMatch(pair.visitor, pair.home);
      counts.AddGame();
      missed.AddGame();
      KeepBooks();
    }
  }
  out << "pro " << year << ", seed " << options.seed << ": ";
  PrintCounts(out, counts);
  missed.Print(out, rounds);
  return 0;
}

}  // namespace tipline
