#include "aftermath/ticker.h"

#include <cstdlib>

#include "aftermath/season_lines.h"
#include "base/record_file.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"

namespace tipline {
namespace {

bool TickerIsOn() {
  return program.GameKind != "E" && league.rules.TickerCheck == 1 && !game.AnalysisMode &&
         !program.LeagueFolder.empty();
}

struct Scorer {
  int side = 0, slot = 0, points = 0;
};

Scorer TopScorer() {
  Scorer best;
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (!OnTeam(side, slot)) continue;
      const int points = PointsOf(PlayerAt(side, slot).Stats[3]);
      if (points > best.points) best = {side, slot, points};
    }
  }
  return best;
}

std::string ScorerText(const Scorer& top) {
  const PlayerRecord& p = PlayerAt(top.side, top.slot);
  std::string text =
      p.ShortName.Str() + "(" + game.team[top.side].Abbrev.Str() + ") " + std::to_string(top.points) + " Pts";
  const auto many = [](int count) { return count >= 10 || count > game.Period * 5; };
  if (many(p.Stats[3].Reb)) text += ", " + std::to_string(p.Stats[3].Reb) + " Reb";
  if (many(p.Stats[3].Ast)) text += ", " + std::to_string(p.Stats[3].Ast) + " Ast";
  return text;
}

/// A team that has won or lost five in a row is the talk of the first minutes.
std::string StreakText() {
  std::string text;
  for (const TeamRecord& team : game.team) {
    if (std::abs(team.Streak) < 5) continue;
    text = team.Abbrev.Str() + " - " + std::to_string(std::abs(team.Streak)) +
           (team.Streak > 0 ? " Game Win Streak" : " Game Losing Streak");
  }
  return text;
}

std::string TickerText() {
  const Scorer top = TopScorer();
  if (top.points <= 7 && game.Period == 1 && game.GameClock > 3600) {
    if (std::string streak = StreakText(); !streak.empty()) return streak;
  }
  return top.points > 0 ? ScorerText(top) : "";
}

}  // namespace

TickerRecord TickerEntry() {
  TickerRecord entry;
  entry.TickerStamp = static_cast<u8>(game.TickerStamp);
  entry.Month = static_cast<u8>(game.GameMonth);
  entry.Day = static_cast<u8>(game.GameDay);
  entry.Period = Held<u8>(game.Period);
  entry.GameClock = Held<i16>(game.GameClock);
  entry.Final = game.GameOver ? 1 : 0;
  entry.Team1 = static_cast<i16>(game.GameTeam[1]);
  entry.Team2 = static_cast<i16>(game.GameTeam[2]);
  entry.Score1 = Held<i16>(game.side[1].Score);
  entry.Score2 = Held<i16>(game.side[2].Score);
  entry.Text = TickerText();
  return entry;
}

void WriteTicker() {
  if (!TickerIsOn()) return;
  const auto bytes = RecordBytes(TickerEntry());
  game.TickerRows.append(bytes.begin(), bytes.end());
  ++game.TickerStamp;
}

void TickNowAndThen() {
  if (TickerIsOn() && ShowRnd(4) == 1) WriteTicker();
}

void TickPeriod() {
  WriteTicker();
  if (game.Period != (league.rules.PeriodList == 2 ? 2 : 3)) return;
  WriteTicker();
  WriteTicker();
}

bool PostTicker() {
  if (game.TickerRows.empty()) return true;
  const RecordFile file(LeagueFile("HcTicker"), kTickerSlotBytes);
  const int first = file.Count() + 1;
  RecordFile::Slots slots;
  const auto* bytes = reinterpret_cast<const u8*>(game.TickerRows.data());
  const int count = static_cast<int>(game.TickerRows.size()) / kTickerSlotBytes;
  for (int k = 0; k < count; ++k, bytes += kTickerSlotBytes)
    slots.emplace_back(first + k, std::vector<u8>(bytes, bytes + kTickerSlotBytes));
  return file.WriteSlots(slots);
}

bool LoadTicker(std::vector<TickerRecord>& entries) {
  const RecordFile file(LeagueFile("HcTicker"), kTickerSlotBytes);
  entries.assign(static_cast<std::size_t>(file.Count()), {});
  return WasRead(file.ReadAll(file.Count(),
                              [&entries](int n, const u8* bytes) {
                                ReadRecord(bytes, entries[static_cast<std::size_t>(n - 1)]);
                              }),
                 file.Path());
}

}  // namespace tipline
