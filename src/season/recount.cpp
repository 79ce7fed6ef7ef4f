#include "season/recount.h"

#include "aftermath/box_file.h"
#include "league/files.h"
#include "league/office_files.h"
#include "league/player_values.h"
#include "season/recount_books.h"
#include "season/recount_tally.h"

namespace tipline {
namespace {

constexpr std::size_t kMostFaults = 1000;

class Findings {
 public:
  explicit Findings(Recount& recount) : recount_(recount) {}
  void operator()(std::string sentence) {
    if (recount_.faults.size() < kMostFaults) {
      recount_.faults.push_back(std::move(sentence));
    } else {
      ++recount_.leftOut;
    }
  }
  void Count() { ++recount_.figures; }
  void Compare(const std::string& what, long stored, long counted) {
    Count();
    if (stored != counted) {
      (*this)(what + " is " + std::to_string(stored) + ", the boxes add up to " + std::to_string(counted) +
              ".");
    }
  }

 private:
  Recount& recount_;
};

/// Every number of a record against the one counted; texts too.
template <class T>
void CompareValues(Findings& findings, const std::string& what, const u8* stored, const u8* counted) {
  if constexpr (TableShape<T>::kDepth > 0) {
    using Cell = typename TableShape<T>::Cell;
    for (int k = 0; k < DiskSize<T>() / DiskSize<Cell>(); ++k) {
      CompareValues<Cell>(findings, what + "[" + std::to_string(k + 1) + "]", stored + k * DiskSize<Cell>(),
                          counted + k * DiskSize<Cell>());
    }
  } else if constexpr (kIsText<T>) {
    T a, b;
    GetValue(stored, a);
    GetValue(counted, b);
    findings.Count();
    if (!(a == b)) findings(what + " is \"" + a.Str() + "\", not \"" + b.Str() + "\".");
  } else if constexpr (std::is_integral_v<T>) {
    T a{}, b{};
    GetValue(stored, a);
    GetValue(counted, b);
    findings.Compare(what, a, b);
  } else if constexpr (Described<T>) {
    T shape;
    Describe(shape, [&](int offset, const char* name, auto& member, const char*) {
      CompareValues<std::remove_cvref_t<decltype(member)>>(findings, what + "." + name, stored + offset,
                                                           counted + offset);
    });
  }
}

template <Described R>
void CompareRecords(Findings& findings, const std::string& whose, const R& stored, const R& counted) {
  const auto a = RecordBytes(stored), b = RecordBytes(counted);
  CompareValues<R>(findings, whose, a.data(), b.data());
}

/// A record of SCORES against the box it names.
void CompareScore(Findings& findings, int n, const ScheduleRecord& row, const BoxRecord& box) {
  const std::string game = "Game " + std::to_string(n) + ": ";
  for (int s = 1; s <= 2; ++s) {
    const std::string side = game + (s == 1 ? "the visitors'" : "the home team's");
    findings.Compare(side + " number", row.Team[s], box.GameTeam[s]);
    findings.Compare(side + " score", row.Score[s], box.Score[s]);
    int points = 0, periods = 0;
    for (const BoxMan& man : MenOfBox(box, s)) points += PointsOf(*man.line);
    for (int period = 1; period <= 10; ++period) periods += box.PeriodScore[period][s];
    findings.Compare(side + " score against the men's points", row.Score[s], points);
    findings.Compare(side + " score against the periods'", row.Score[s], periods);
  }
}

void CompareTally(Findings& findings, SeasonTally& tally, Recount& recount) {
  for (const auto& [number, counted] : tally.team) {
    ++recount.teams;
    CompareRecords(findings, TeamName(counted), league.team[number], counted);
  }
  for (const auto& [recNo, position] : tally.uncertain) {
    const auto man = tally.man.find(recNo);
    if (man == tally.man.end()) continue;
    man->second.MinutesAtPosition[position] =
        league.player[static_cast<std::size_t>(recNo)].MinutesAtPosition[position];
  }
  for (const auto& [recNo, counted] : tally.man) {
    ++recount.men;
    CompareRecords(findings, FullName(counted), league.player[static_cast<std::size_t>(recNo)], counted);
  }
}

}  // namespace

Recount RecountLeague() {
  Recount recount;
  Findings findings(recount);
  SeasonTally tally;
  BooksTally books;
  tally.Begin();
  if (!LoadScores()) findings("The scores can't be read.");
  recount.games = static_cast<int>(league.Scores.size()) - 1;
  for (int n = 1; n <= recount.games; ++n) {
    const ScheduleRecord& row = league.Scores[static_cast<std::size_t>(n)];
    BoxRecord box;
    if (!ReadBox(LeagueFile(row.BoxFile.View()), box)) {
      findings("Game " + std::to_string(n) + " has no box: " + row.BoxFile.Str() + ".");
      continue;
    }
    ++recount.boxes;
    CompareScore(findings, n, row, box);
    // The final of the cup stands in SCORES and in no season.
    if (row.GameType != 'C') tally.Add(box, row);
    books.Add(box, row, tally);
  }
  CompareTally(findings, tally, recount);
  books.Compare([&findings](std::string sentence) { findings(std::move(sentence)); }, recount.figures);
  return recount;
}

}  // namespace tipline
