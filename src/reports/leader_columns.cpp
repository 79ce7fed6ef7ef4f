#include "reports/leader_columns.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "aftermath/leader_boards.h"
#include "base/numbers.h"
#include "league/shot_splits.h"
#include "reports/award_score.h"

namespace tipline {
namespace {

struct Figure {
  std::string_view name, heading;
  int (*of)(const StatLine& line);
  bool rate;  ///< it makes sense a game and a minute
};
// clang-format off
constexpr Figure kFigures[] = {
    {"Games",                "G",    [](const StatLine& l) -> int { return l.G; },           false},
    {"Games Started",        "GS",   [](const StatLine& l) -> int { return l.GS; },          false},
    {"Minutes",              "Min",  [](const StatLine& l) -> int { return l.Min; },         true},
    {"Field Goals Made",     "FGM",  [](const StatLine& l) -> int { return l.FGM; },         true},
    {"Field Goal Attempts",  "FGA",  [](const StatLine& l) -> int { return l.FGA; },         true},
    {"Three Pointers Made",  "F3M",  [](const StatLine& l) -> int { return l.F3M; },         true},
    {"Three Point Attempts", "F3A",  [](const StatLine& l) -> int { return l.F3A; },         true},
    {"Free Throws Made",     "FTM",  [](const StatLine& l) -> int { return l.FTM; },         true},
    {"Free Throw Attempts",  "FTA",  [](const StatLine& l) -> int { return l.FTA; },         true},
    {"Offensive Rebounds",   "Off",  [](const StatLine& l) -> int { return l.Off; },         true},
    {"Defensive Rebounds",   "Def",  [](const StatLine& l) -> int { return l.Reb - l.Off; }, true},
    {"Rebounds",             "Reb",  [](const StatLine& l) -> int { return l.Reb; },         true},
    {"Assists",              "Ast",  [](const StatLine& l) -> int { return l.Ast; },         true},
    {"Steals",               "St",   [](const StatLine& l) -> int { return l.St; },          true},
    {"Blocks",               "Bk",   [](const StatLine& l) -> int { return l.Bk; },          true},
    {"Turnovers",            "To",   [](const StatLine& l) -> int { return l.To; },          true},
    {"Fouls",                "Pf",   [](const StatLine& l) -> int { return l.Pf; },          true},
    {"Disqualifications",    "Dq",   [](const StatLine& l) -> int { return l.Dq; },          false},
    {"Scoring",              "Pts",  [](const StatLine& l) -> int { return PointsOf(l); },   true},
};

// The numbers of each group begin behind these.
constexpr int kTotals = 0, kPerGame = 30, kPer48 = 60, kShots = 90, kMisc = 130, kHighs = 150, kHome = 170,
              kRoad = 200, kLast = 230;

struct Pair { std::string_view name, heading; i16 StatLine::*made; i16 StatLine::*tried; int board; };
constexpr Pair kPairs[] = {
    {"Field Goal%",  "FG%", &StatLine::FGM, &StatLine::FGA, 6},
    {"Three Point%", "3P%", &StatLine::F3M, &StatLine::F3A, 8},
    {"Free Throw%",  "FT%", &StatLine::FTM, &StatLine::FTA, 7},
};

struct Kind { std::string_view name, heading; int split, threes; };  // places in kShotSplits; -1 none
constexpr Kind kKinds[] = {
    {"Inside", "In", 0, -1}, {"Outside", "Out", 1, -1}, {"Three", "3", 2, -1},
    {"Drive", "Drv", 3, -1}, {"Fastbreak", "FB", 4, 6}, {"Off-Reb", "OR", 5, 7},
};
constexpr int kMadeSplits = 8;

struct Special {
  std::string_view name, heading;
  LeaderFormat format;
  bool replayOnly;
  double (*of)(const LeaderMan& m);
};
using M = LeaderMan;
constexpr LeaderFormat kWhole = LeaderFormat::kWhole;
constexpr Special kSpecials[] = {
    {"Assist/TO",           "A/TO", LeaderFormat::kHundredths, false,
     [](const M& m) { return m.Line().To > 0 ? static_cast<double>(m.Line().Ast) / m.Line().To : m.Line().Ast; }},
    {"Player Efficiency",   "PER",  LeaderFormat::kTenths,     false, [](const M& m) { return m.Efficiency; }},
    {"MVP Race",            "MVP",  LeaderFormat::kHundredths, false,
     [](const M& m) { return MvpScore(m.Line(), m.Efficiency, *m.man, *m.team); }},
    {"Game MVPs",           "MVPs", kWhole, true, [](const M& m) -> double { return m.Line().GameMvps; }},
    {"Long FT Streak",      "LFT",  kWhole, true, [](const M& m) -> double { return m.man->LongestFreeThrowStreak; }},
    {"Current FT Streak",   "CFT",  kWhole, true, [](const M& m) -> double { return m.man->FreeThrowStreak; }},
    {"Long FG Streak",      "LFG",  kWhole, true, [](const M& m) -> double { return m.man->LongestFieldGoalStreak; }},
    {"Current FG Streak",   "CFG",  kWhole, true, [](const M& m) -> double { return m.man->FieldGoalStreak; }},
    {"Technicals",          "Tech", kWhole, true, [](const M& m) -> double { return m.Line().Technicals; }},
    {"Double-Doubles",      "DD",   kWhole, true, [](const M& m) -> double { return m.man->DoubleDoubles; }},
    {"Triple-Doubles",      "TD",   kWhole, true, [](const M& m) -> double { return m.man->TripleDoubles; }},
    {"Quadruple-Doubles",   "QD",   kWhole, true, [](const M& m) -> double { return m.man->QuadDoubles; }},
    {"Plus Minus",          "+/-",  kWhole, true, [](const M& m) -> double { return m.man->PlusMinus; }},
    {"Dunks",               "Dunk", kWhole, true, [](const M& m) -> double { return m.Line().Dunks; }},
    {"Flagrant Fouls",      "Flag", kWhole, true, [](const M& m) -> double { return m.man->Flagrants[2]; }},
    {"Ejections",           "Ej",   kWhole, true, [](const M& m) -> double { return m.Line().Ejections; }},
};

struct High { std::string_view name, heading; i16 StatLine::*counter; };
constexpr High kHighFigures[] = {
    {"High Minutes",        "HMin", &StatLine::Min}, {"High Field Goals",  "HFGM", &StatLine::FGM},
    {"High FG Attempts",    "HFGA", &StatLine::FGA}, {"High Threes",       "HF3M", &StatLine::F3M},
    {"High 3P Attempts",    "HF3A", &StatLine::F3A}, {"High Free Throws",  "HFTM", &StatLine::FTM},
    {"High FT Attempts",    "HFTA", &StatLine::FTA}, {"High Rebounds",     "HReb", &StatLine::Reb},
    {"High Off Rebounds",   "HOff", &StatLine::Off}, {"High Assists",      "HAst", &StatLine::Ast},
    {"High Steals",         "HSt",  &StatLine::St},  {"High Blocks",       "HBk",  &StatLine::Bk},
    {"High Turnovers",      "HTo",  &StatLine::To},
};
// clang-format on
constexpr int kHighPoints = kHighs + static_cast<int>(std::size(kHighFigures)) + 1;

double Share(double part, double whole) { return whole > 0 ? part / whole : 0; }

bool Within(int number, int behind, std::size_t count) {
  return number > behind && number <= behind + static_cast<int>(count);
}

const Figure* FigureOf(int number, int behind) {
  if (!Within(number, behind, std::size(kFigures))) return nullptr;
  const Figure& figure = kFigures[number - behind - 1];
  return behind == kTotals || figure.rate ? &figure : nullptr;
}

LeaderColumn Made(int number, std::string_view group, std::string name, std::string heading,
                  LeaderFormat format, bool replayOnly) {
  return {number, group, std::move(name), std::move(heading), format, replayOnly};
}

/// The figures in one of their five looks.
struct Look {
  int behind;
  std::string_view group, suffix;
  LeaderFormat format;
  bool replayOnly;
};
constexpr Look kLooks[] = {{kTotals, "STAT", "", LeaderFormat::kWhole, false},
                           {kPerGame, "PERGAME", "", LeaderFormat::kHundredths, false},
                           {kPer48, "PER48", "", LeaderFormat::kHundredths, false},
                           {kHome, "HOMEROAD", " at Home", LeaderFormat::kHundredths, true},
                           {kRoad, "HOMEROAD", " on Road", LeaderFormat::kHundredths, true}};

const Look* LookOf(int number) {
  for (const Look& look : kLooks) {
    if (FigureOf(number, look.behind)) return &look;
  }
  return nullptr;
}

constexpr int kKindsFrom = kShots + static_cast<int>(std::size(kPairs)) + 1;
/// A kind of shot has three columns: 0 attempts, 1 makes, 2 percentage.
int KindPart(int number) { return (number - kKindsFrom) % 3; }
const Kind& KindOf(int number) { return kKinds[(number - kKindsFrom) / 3]; }
bool IsKind(int number) { return Within(number, kKindsFrom - 1, 3 * std::size(kKinds)); }

LeaderColumn KindColumn(int number) {
  constexpr std::string_view kParts[] = {" Attempts", " Made", "%"};
  constexpr std::string_view kHeads[] = {"A", "M", "%"};
  const Kind& kind = KindOf(number);
  const int part = KindPart(number);
  return Made(number, "SHOT", std::string(kind.name) + std::string(kParts[part]),
              std::string(kind.heading) + std::string(kHeads[part]),
              part == 2 ? LeaderFormat::kPercentage : LeaderFormat::kWhole, true);
}

int ShotCount(const Kind& kind, int makes, const PlayerRecord& man) {
  const auto at = [&man](int split) { return (man.*kShotSplits[split].man)[2]; };
  return at(kind.split + makes) + (kind.threes < 0 ? 0 : at(kind.threes + makes));
}

double KindValue(int number, const PlayerRecord& man) {
  const Kind& kind = KindOf(number);
  const int part = KindPart(number);
  const int tried = ShotCount(kind, 0, man), made = ShotCount(kind, kMadeSplits, man);
  return part == 0 ? tried : part == 1 ? made : Share(made, tried);
}

const StatLine& LineOf(const Look& look, const LeaderMan& m) {
  if (look.behind == kHome) return m.man->HomeStats[2];
  return look.behind == kRoad ? m.man->RoadStats[2] : m.Line();
}

double FigureValue(const Look& look, const Figure& figure, const LeaderMan& m) {
  const StatLine& line = LineOf(look, m);
  const double count = figure.of(line);
  if (look.behind == kTotals) return count;
  if (look.behind != kPer48) return Share(count, line.G);
  return Share(count * (m.team->TeamType == 'C' ? 40 : 48), line.Min);
}

double HighValue(int number, const LeaderMan& m) {
  if (number == kHighPoints) return m.man->AwardCounts[2];
  return m.man->GameHighs[static_cast<int>(m.season)].*kHighFigures[number - kHighs - 1].counter;
}

bool IsHigh(int number) { return Within(number, kHighs, std::size(kHighFigures) + 1); }

}  // namespace

LeaderColumn LeaderColumnOf(int number) {
  if (const Look* look = LookOf(number)) {
    const Figure& figure = *FigureOf(number, look->behind);
    const std::string name = std::string(figure.name) + std::string(look->suffix);
    return Made(number, look->group, name, std::string(figure.heading), look->format, look->replayOnly);
  }
  if (Within(number, kShots, std::size(kPairs))) {
    const Pair& pair = kPairs[number - kShots - 1];
    return Made(number, "SHOT", std::string(pair.name), std::string(pair.heading), LeaderFormat::kPercentage,
                false);
  }
  if (IsKind(number)) return KindColumn(number);
  if (Within(number, kMisc, std::size(kSpecials))) {
    const Special& special = kSpecials[number - kMisc - 1];
    return Made(number, "MISC", std::string(special.name), std::string(special.heading), special.format,
                special.replayOnly);
  }
  if (number == kHighPoints) return Made(number, "MISC", "High Points", "HPts", LeaderFormat::kWhole, true);
  if (!IsHigh(number)) return {};
  const High& high = kHighFigures[number - kHighs - 1];
  return Made(number, "MISC", std::string(high.name), std::string(high.heading), LeaderFormat::kWhole, false);
}

std::vector<LeaderColumn> LeaderColumns() {
  std::vector<LeaderColumn> columns;
  for (int number = 1; number < kLast; ++number) {
    if (LeaderColumn column = LeaderColumnOf(number); column.Number > 0) columns.push_back(std::move(column));
  }
  return columns;
}

int FindLeaderColumn(std::string_view text) {
  if (const auto number = NumberIn<int>(text)) return LeaderColumnOf(*number).Number;
  const auto colon = text.find(':');
  const std::string_view group = colon == text.npos ? "" : text.substr(0, colon);
  const std::string_view name = colon == text.npos ? text : text.substr(colon + 1);
  constexpr std::string_view kOrder[] = {"PERGAME", "SHOT", "MISC", "STAT", "PER48", "HOMEROAD"};
  const auto columns = LeaderColumns();
  for (const std::string_view candidate : kOrder) {
    if (!group.empty() && !SameText(group, candidate)) continue;
    for (const LeaderColumn& column : columns) {
      if (column.Group != candidate) continue;
      if (SameText(column.Name, name) || SameText(column.Heading, name)) return column.Number;
    }
  }
  return 0;
}

bool NeedsEfficiency(int column) { return column == kMisc + 2 || column == kMisc + 3; }

double LeaderValue(int column, const LeaderMan& m) {
  if (const Look* look = LookOf(column)) return FigureValue(*look, *FigureOf(column, look->behind), m);
  if (Within(column, kShots, std::size(kPairs))) {
    const Pair& pair = kPairs[column - kShots - 1];
    return Share(m.Line().*pair.made, m.Line().*pair.tried);
  }
  if (IsKind(column)) return KindValue(column, *m.man);
  if (Within(column, kMisc, std::size(kSpecials))) return kSpecials[column - kMisc - 1].of(m);
  return IsHigh(column) ? HighValue(column, m) : 0;
}

bool Qualifies(int column, const LeaderMan& m) {
  const bool playedOften = BoardQualifies(1, m.Line(), *m.man, m.TeamGames);
  const bool playedLong = m.Line().Min > 0 && m.Line().Min >= 12 * m.TeamGames;
  if (const Look* look = LookOf(column)) {
    if (look->behind == kTotals) return true;
    if (look->behind == kPerGame) return playedOften;
    if (look->behind == kPer48) return playedLong;
    const int games = LineOf(*look, m).G;
    return games > 0 && games >= 0.35 * m.TeamGames;
  }
  if (Within(column, kShots, std::size(kPairs))) {
    return BoardQualifies(kPairs[column - kShots - 1].board, m.Line(), *m.man, m.TeamGames);
  }
  if (IsKind(column) && KindPart(column) == 2)
    return KindValue(column - 2, *m.man) >= std::max(1, m.TeamGames);
  if (column == kMisc + 1) return playedOften && m.Line().Ast >= 2 * m.TeamGames;
  return !NeedsEfficiency(column) || playedLong;
}

std::string LeaderText(int column, double value) {
  const LeaderFormat format = LeaderColumnOf(column).Format;
  const int places = format == LeaderFormat::kWhole        ? 0
                     : format == LeaderFormat::kTenths     ? 1
                     : format == LeaderFormat::kHundredths ? 2
                                                           : 3;
  char text[60];
  std::snprintf(text, sizeof text, "%.*f", places, value);
  return format == LeaderFormat::kPercentage && text[0] == '0' ? text + 1 : text;
}

}  // namespace tipline
