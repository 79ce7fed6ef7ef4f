#include "players.h"

#include <cmath>
#include <iomanip>
#include <ostream>

#include "harness/memory_league.h"
#include "league/player_values.h"

namespace tipline {
namespace {

struct Spread4 {
  double sum = 0, squares = 0, least = 1e9, most = -1e9;
  int n = 0;
  void Add(double x) {
    sum += x;
    squares += x * x;
    least = std::min(least, x);
    most = std::max(most, x);
    ++n;
  }
  double Mean() const { return n ? sum / n : 0; }
  double Deviation() const { return n ? std::sqrt(std::max(0.0, squares / n - Mean() * Mean())) : 0; }
};

struct Row {
  const char* name;
  double middle;
  double (*value)(const PlayerRecord&);
};
// clang-format off
constexpr Row kRows[] = {
    {"Offense",   50, [](const PlayerRecord& p) -> double { return p.RateOffense; }},
    {"Real In",   50, [](const PlayerRecord& p) -> double { return p.RealInsidePct; }},
    {"Free thr",   5, [](const PlayerRecord& p) -> double { return p.RateReserved1; }},
    {"Inside",     5, [](const PlayerRecord& p) -> double { return p.RateOffInside; }},
    {"Outside",    5, [](const PlayerRecord& p) -> double { return p.RateOffOutside; }},
    {"Three",      5, [](const PlayerRecord& p) -> double { return p.RateOffThree; }},
    {"Drive",      5, [](const PlayerRecord& p) -> double { return p.RateOffDrive; }},
    {"Fastbreak",  5, [](const PlayerRecord& p) -> double { return p.RateOffFastbreak; }},
    {"Passing",    5, [](const PlayerRecord& p) -> double { return p.RatePassing; }},
    {"Def out",    5, [](const PlayerRecord& p) -> double { return p.RateDefOutside; }},
    {"Def in",     5, [](const PlayerRecord& p) -> double { return p.RateDefInside; }},
    {"Force",      5, [](const PlayerRecord& p) -> double { return p.RateDefForce; }},
    {"Off reb",    5, [](const PlayerRecord& p) -> double { return p.RateRebOff; }},
    {"Def reb",    5, [](const PlayerRecord& p) -> double { return p.RateRebDef; }},
    {"Dunk",       5, [](const PlayerRecord& p) -> double { return p.RateDunk; }},
    {"Sports",     5, [](const PlayerRecord& p) -> double { return p.RateSportsmanship; }},
    {"Durable",    5, [](const PlayerRecord& p) -> double { return p.RateDurability; }},
    {"Clutch",     5, [](const PlayerRecord& p) -> double { return p.RateClutch; }},
    {"Overall",    5, [](const PlayerRecord& p) -> double { return PlayerOverall(p); }},
    {"Min/game",  24, [](const PlayerRecord& p) -> double { return double(p.Stats[1].Min) / std::max<int>(1, p.Stats[1].G); }},
};
// clang-format on
constexpr int kRowCount = std::size(kRows);

struct PresetSpread {
  Spread4 rating[kRowCount][6];
  Spread4 bestTeam, worstTeam, teamDeviation;

  void AddLeague(const MadeLeague& made) {
    Spread4 teams;
    for (const Roster& roster : made.teams) {
      double value = 0, minutes = 0;
      for (int slot = 1; slot <= kRosterSlots; ++slot) {
        const PlayerRecord& man = roster.player[slot];
        if (man.RecNo == 0) continue;
        for (int r = 0; r < kRowCount; ++r) rating[r][man.PrimaryPosition].Add(kRows[r].value(man));
        value += PlayerOverall(man) * man.Stats[1].Min;
        minutes += man.Stats[1].Min;
      }
      teams.Add(minutes > 0 ? value / minutes : 0);
    }
    bestTeam.Add(teams.most);
    worstTeam.Add(teams.least);
    teamDeviation.Add(teams.Deviation());
  }

  void Print(std::ostream& out) const {
    out << std::fixed << std::setprecision(1) << std::setw(10) << ""
        << " middle ";
    for (const char* label : {"PG", "SG", "SF", "PF", "C"}) out << std::setw(24) << label;
    out << '\n';
    for (int r = 0; r < kRowCount; ++r) {
      out << std::setw(10) << kRows[r].name << std::setw(7) << kRows[r].middle << ' ';
      for (int p = 1; p <= 5; ++p) {
        const Spread4& s = rating[r][p];
        out << std::setw(8) << s.Mean() << std::setw(6) << s.Deviation() << std::setw(5)
            << std::setprecision(0) << s.least << std::setw(5) << s.most << std::setprecision(1);
      }
      out << '\n';
    }
    out << std::setprecision(2) << "teams, overall by minutes: best " << bestTeam.Mean() << ", worst "
        << worstTeam.Mean() << ", deviation " << teamDeviation.Mean() << " (middle 5)\n\n";
  }
};

}  // namespace

void PrintPlayerSpread(std::ostream& out, int leagues) {
  for (const char* preset : kPresets) {
    PresetSpread spread;
    for (int n = 1; n <= leagues; ++n) {
      LeagueRequest request;
      request.Preset = preset;
      request.Seed = static_cast<std::uint64_t>(n);
      MadeLeague made;
      std::string message;
      if (!DrawLeague(request, made, message)) {
        out << preset << ": " << message << '\n';
        return;
      }
      spread.AddLeague(made);
    }
    out << preset << ", " << leagues << " leagues: mean, deviation, least, most\n";
    spread.Print(out);
  }
}

}  // namespace tipline
