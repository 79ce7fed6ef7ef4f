// Whole seasons played on disk, read as a fan reads them: the table, the leaders, the highs, beside what real
// leagues of the kind show.
#include <algorithm>
#include <cmath>
#include <iomanip>
#include <ostream>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "aftermath/leader_boards.h"
#include "aftermath/season_lines.h"
#include "bench.h"
#include "engine/game_state.h"
#include "frontoffice/rating_math.h"
#include "harness/disk_league.h"
#include "harness/memory_league.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "league/office_files.h"
#include "season_sums.h"

namespace tipline {
namespace {

constexpr int kSeeds = 5;

/// What a season came to.
struct SeasonFacts {
  int year = 0, games = 0, teamGames = 0;  ///< games of all teams together
  std::vector<double> shares;              ///< of games won, ascending
  TeamRates rates, era;                    ///< of a team and game
  double leader[kBoards + 1] = {};         ///< by board
  double promised[kBoards + 1] = {};       ///< the same from the lines that the men bring with them
  double high[5] = {};                     ///< of a man in a game: points, rebounds, assists, steals, blocks
  double doubles = 0, triples = 0, fouledOut = 0;  ///< of all men; in a hundred games of a team
  double hurt = 0;                                 ///< games that men miss by injury; of a team
  double homeWins = 0, overtimes = 0;              ///< in a hundred games
  double margin = 0;

  double Teams() const { return std::max<double>(1, static_cast<double>(shares.size())); }
  double Spread() const;
  double ChanceSpread() const { return 0.5 / std::sqrt(std::max(1.0, teamGames / Teams())); }
};

double SeasonFacts::Spread() const {
  double squares = 0;
  for (const double share : shares) squares += (share - 0.5) * (share - 0.5);
  return std::sqrt(squares / Teams());
}

/// Low and high of what is usual; none where nothing is known of the time.
struct Usual {
  double low = 0, high = 0;
};

struct Measure {
  const char* name;
  int decimals;
  double (*of)(const SeasonFacts&);
  Usual usual[4];  ///< by preset
};

// What leagues of men's professionals about 2015 to 2024, of a strong college conference and its neighbours
// in the same years, of women professionals about 2010 to 2024 and of men professionals about 1960 to 1968
// show: what every almanac has, widened by what one season in ten goes beyond. Nobody counted steals and
// blocks in the sixties. Doubles, fouling out and injuries are estimates from what is known of a few seasons.
// clang-format off
using S = const SeasonFacts&;
constexpr Measure kMeasures[] = {
    //                                                       pro         college     women       historic
    {"best", 3, [](S s) { return s.shares.back(); },       {{.70, .85}, {.82, 1.0}, {.68, .88}, {.65, .82}}},
    {"worst", 3, [](S s) { return s.shares.front(); },     {{.12, .28}, {.00, .20}, {.10, .30}, {.15, .38}}},
    {"spread", 3, [](S s) { return s.Spread(); },          {{.12, .18}, {.14, .21}, {.13, .21}, {.12, .20}}},
    {"  by chance alone", 3, [](S s) { return s.ChanceSpread(); }, {}},
    {"home wins, %", 1, [](S s) { return s.homeWins; },    {{53, 62},   {56, 68},   {50, 63},   {57, 70}}},
    {"overtimes, %", 1, [](S s) { return s.overtimes; },   {{4, 8},     {4, 8},     {2, 9},     {3, 9}}},
    {"biggest margin", 0, [](S s) { return s.margin; },    {{42, 73},   {40, 75},   {30, 53},   {38, 65}}},
    {"points", 1, [](S s) { return s.leader[1]; },         {{27, 36},   {20, 27},   {20, 26},   {28, 39}}},
    {"rebounds", 1, [](S s) { return s.leader[2]; },       {{12, 16},   {10, 15.5}, {9, 13},    {20, 26}}},
    {"assists", 1, [](S s) { return s.leader[3]; },        {{9, 12},    {6.5, 10},  {6, 9},     {8, 12}}},
    {"steals", 1, [](S s) { return s.leader[4]; },         {{1.8, 3},   {2.1, 3.5}, {1.8, 3},   {}}},
    {"blocks", 1, [](S s) { return s.leader[5]; },         {{2.4, 4},   {2.5, 4.5}, {1.8, 3.5}, {}}},
    {"field goal %", 1, [](S s) { return s.leader[6]; },   {{64, 76},   {60, 73},   {54, 68},   {47, 56}}},
    {"free throw %", 1, [](S s) { return s.leader[7]; },   {{90, 96},   {87, 96},   {89, 97},   {84, 92}}},
    {"three point %", 1, [](S s) { return s.leader[8]; },  {{43, 50},   {42, 51},   {41, 52},   {}}},
    {"most points", 0, [](S s) { return s.high[0]; },      {{50, 73},   {36, 54},   {36, 53},   {50, 73}}},
    {"most rebounds", 0, [](S s) { return s.high[1]; },    {{22, 31},   {18, 28},   {16, 25},   {33, 46}}},
    {"most assists", 0, [](S s) { return s.high[2]; },     {{18, 25},   {12, 20},   {11, 19},   {15, 23}}},
    {"most steals", 0, [](S s) { return s.high[3]; },      {{7, 11},    {6, 11},    {6, 10},    {}}},
    {"most blocks", 0, [](S s) { return s.high[4]; },      {{8, 12},    {7, 12},    {6, 11},    {}}},
    {"double-doubles", 1, [](S s) { return s.doubles; },   {{60, 95},   {30, 65},   {25, 60},   {90, 170}}},
    {"triple-doubles", 1, [](S s) { return s.triples; },   {{2.5, 6.5}, {0.1, 1.2}, {0, 2.5},   {3, 14}}},
    {"fouled out", 1, [](S s) { return s.fouledOut; },     {{8, 22},    {30, 70},   {3, 14},    {25, 65}}},
    {"hurt", 1, [](S s) { return s.hurt; },                {{100, 280}, {10, 60},   {15, 90},   {30, 140}}},
};

struct Average {
  const char* name;
  double (*of)(const TeamRates&);
  double near;   ///< share of the era's figure within which it should lie
  double women;  ///< what the women's game has of it against the men's row of its year
};
using R = const TeamRates&;
constexpr Average kAverages[] = {
    {"points", [](R r) { return r.Points(); },                0.04, 0.79},
    {"FGA",    [](R r) { return r.FGA; },                     0.04, 0.79},
    {"FG%",    [](R r) { return 100 * Share(r.FGM, r.FGA); }, 0.03, 1},
    {"3PA",    [](R r) { return r.F3A; },                     0.08, 0.79},
    {"FTA",    [](R r) { return r.FTA; },                     0.08, 0.79},
    {"reb",    [](R r) { return r.Reb; },                     0.05, 0.79},
    {"ast",    [](R r) { return r.Ast; },                     0.10, 0.79},
    {"st",     [](R r) { return r.St; },                      0.10, 0.92},
    {"bk",     [](R r) { return r.Bk; },                      0.10, 0.92},
    {"to",     [](R r) { return r.To; },                      0.10, 0.92},
    {"pf",     [](R r) { return r.Pf; },                      0.10, 0.92},
};
// clang-format on

int MenHurt() {
  int men = 0;
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot)
      men += OnTeam(side, slot) && PlayerAt(side, slot).InjuryReturnMonth > 0 && !HasPlayed(side, slot);
  }
  return men;
}

void ReadTeams(SeasonFacts& s) {
  for (int t = 1; t <= kTeams; ++t) {
    const TeamRecord& team = league.team[t];
    const int games = team.Wins + team.Losses;
    if (team.TeamActive != 1 || games == 0) continue;
    s.year = team.Year;
    s.teamGames += games;
    s.shares.push_back(Share(team.Wins, games));
    s.rates.Add(team.TeamStats[1], 1);
  }
  std::sort(s.shares.begin(), s.shares.end());
  s.rates.Divide(std::max(1, s.teamGames));
  s.hurt /= s.Teams();
}

/// Raises the best of each board to what this man's line has.
void Lead(double* best, const PlayerRecord& man, int teamGames) {
  for (int board = 1; board <= kBoards; ++board) {
    const double scale = board < kFirstPercentageBoard ? 100 : 10;
    best[board] = std::max(best[board], BoardValue(board, man, teamGames) / scale);
  }
}

void ReadMen(SeasonFacts& s) {
  const double each = 100.0 / s.teamGames;
  for (const PlayerRecord& man : league.player) {
    if (man.TeamNo < 1 || man.TeamNo > kTeams) continue;
    const TeamRecord& team = league.team[man.TeamNo];
    Lead(s.leader, man, team.Wins + team.Losses);
    PlayerRecord before = man;
    before.Stats[2] = man.Stats[1];
    Lead(s.promised, before, SeasonRow(man.Year, IsCollegeTeam(team)).Games);
    const StatLine& high = man.GameHighs[2];
    const int highs[] = {man.AwardCounts[2], high.Reb, high.Ast, high.St, high.Bk};
    for (int k = 0; k < 5; ++k) s.high[k] = std::max<double>(s.high[k], highs[k]);
    s.doubles += man.DoubleDoubles * each, s.triples += man.TripleDoubles * each;
    s.fouledOut += man.Stats[2].Dq * each;
  }
}

void ReadScores(SeasonFacts& s) {
  int wonByHome = 0, notNeutral = 0, late = 0;
  for (std::size_t n = 1; n < league.Scores.size(); ++n) {
    const ScheduleRecord& g = league.Scores[n];
    s.margin = std::max<double>(s.margin, std::abs(g.Score[1] - g.Score[2]));
    late += g.Overtime;
    if (g.NeutralSite) continue;
    ++notNeutral;
    wonByHome += g.Score[2] > g.Score[1];
  }
  s.homeWins = 100 * Share(wonByHome, notNeutral);
  s.overtimes = 100 * Share(late, s.games);
}

SeasonFacts PlayOneSeason(const char* preset, std::uint64_t seed, int most) {
  const TemporaryHome home;
  LeagueRequest request;
  request.Preset = preset;
  request.Seed = seed;
  MakeDiskLeague(request);
  SeasonFacts s;
  s.games = PlayScheduledGames(most, seed, [&](int) { s.hurt += MenHurt(); });
  if (!LoadAllTeams() || !LoadScores()) throw std::runtime_error("the season can't be read");
  LoadLeaguePlayers();
  ReadTeams(s);
  if (s.shares.empty()) throw std::runtime_error("no game was kept");
  ReadMen(s);
  ReadScores(s);
  s.era = RatesOf(SeasonRow(s.year, request.Preset == "college"));
  return s;
}

/// One figure of all seasons, marked where it lies outside.
template <class Of>
void PrintRow(std::ostream& out, std::string_view name, const std::vector<SeasonFacts>& seasons, int decimals,
              Usual usual, Of of, double era = 0) {
  out << std::left << std::setw(21) << name << std::right << std::fixed << std::setprecision(decimals);
  for (const SeasonFacts& s : seasons) {
    const double value = of(s), half = 0.5 * std::pow(10, -decimals);  // as it is printed
    const bool odd = usual.high > 0 && (value < usual.low - half || value > usual.high + half);
    out << std::setw(8) << value << (odd ? '!' : ' ');
  }
  if (usual.high > 0) out << "   " << usual.low << " to " << usual.high;
  if (era > 0) out << "   era " << era;
  out << '\n';
}

void PrintSeasons(std::ostream& out, int preset, const std::vector<SeasonFacts>& seasons) {
  const SeasonFacts& first = seasons.front();
  const bool women = std::string_view(kPresets[preset]) == "women";
  out << "\n==== " << kPresets[preset] << ' ' << first.year << ": " << first.shares.size() << " teams, "
      << first.games << " games, five seeds; what is usual, ! outside of it\n"
      << "doubles and fouled out: in 100 games of a team; hurt: games that men of a team miss\n";
  for (const Measure& m : kMeasures) PrintRow(out, m.name, seasons, m.decimals, m.usual[preset], m.of);
  out << "a team and game, and about its era\n";
  for (const Average& a : kAverages) {
    const double era = a.of(first.era) * (women ? a.women : 1);
    PrintRow(
        out, a.name, seasons, 1, {era * (1 - a.near), era * (1 + a.near)}, [&](S s) { return a.of(s.rates); },
        era);
  }
  out << "leaders of the lines that the men bring with them\n";
  for (int board = 1; board <= kBoards; ++board)
    PrintRow(out, BoardName(board), seasons, 1, {}, [&](S s) { return s.promised[board]; });
  out.flush();
}

}  // namespace

int Sanity(std::ostream& out, const BenchOptions& options) {
  for (int preset = 0; preset < static_cast<int>(std::size(kPresets)); ++preset) {
    std::vector<SeasonFacts> seasons;
    for (int k = 0; k < kSeeds; ++k) {
      const std::uint64_t seed = options.seed + static_cast<std::uint64_t>(k);
      seasons.push_back(PlayOneSeason(kPresets[preset], seed, options.games));
    }
    PrintSeasons(out, preset, seasons);
  }
  return 0;
}

}  // namespace tipline
