// Who comes in, who moves over, who leaves, and why.
#include <algorithm>

#include "engine/eligible.h"
#include "league/program.h"
#include "narration/describe.h"
#include "narration/opening_sayings.h"

namespace tipline {

using namespace floor_talk;

namespace {

/// Who stood there: also the man who was taken off as he fouled out or was sent off.
int Before(int side, int position) {
  if (const int slot = game.side[side].PreviousLineup[position]; slot > 0) return slot;
  const int stood = scene().Five[side][position];
  return stood > 0 && !IsEligible(side, stood) ? stood : 0;
}
int Now(int side, int position) { return game.side[side].Lineup[position]; }
bool Contains(const Table<int, 1, kPositions>& five, int slot) {
  return std::find(five.begin(), five.end(), slot) != five.end();
}
bool WasOn(int side, int slot) { return Contains(game.side[side].PreviousLineup, slot); }
bool IsOn(int side, int slot) { return Contains(game.side[side].Lineup, slot); }
bool Changed(int side) { return !(game.side[side].Lineup == game.side[side].PreviousLineup); }

// A line change.

int FreshMen(int side) {
  int fresh = 0;
  for (const int slot : game.side[side].Lineup)
    fresh += slot > 0 && ManAt(side, slot).FatigueLoad == 0 ? 1 : 0;
  return fresh;
}

bool IsLineChange(int side) {
  const int fresh = FreshMen(side), margin = Margin();
  if (fresh == kPositions) return true;
  if (fresh < 4) return false;
  return margin >= 25 || (margin >= 15 && LastPeriod() && game.GameClock < 1800);
}

void TellLineChange(int side) {
  const std::string who = PbpTeamName(side);
  NewLine((FreshMen(side) == kPositions && OneIn(10) ? "fresh five for " : "line change for ") + who,
          kUnspoken, side);
  std::vector<std::string> names;
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = Now(side, p);
    if (slot > 0 && ManAt(side, slot).FatigueLoad == 0) names.push_back(NameOf(side, slot));
  }
  for (std::size_t i = 0; i + 1 < names.size(); ++i) names[i] += ",";
  if (names.size() > 1) names.back() = "and " + names.back();
  WrapLine("", names);
  Say(kFreshSide, {.who = who}, kUnspoken, side);
}

// Man for man.

bool FirstOfGame(int side, int slot) {
  return ManAt(side, slot).PlayerGameTime == 0 && !Contains(game.side[side].Starters, slot);
}
bool FirstOfSeason(int side, int slot) {
  const TeamRecord& team = game.team[side];
  return program.GameKind == "L" && team.Wins + team.Losses > 5 && PlayerAt(side, slot).Stats[2].G == 0;
}

/// His first steps of the season, or of the game, have a word of their own; those of the game one time in
/// three, in a decided one more often, since all of a bench would sound alike.
const Family* FirstSteps(int side, int slot) {
  if (!FirstOfGame(side, slot)) return nullptr;
  if (FirstOfSeason(side, slot)) return &kSeasonDebut;
  if (game.Blowout == 1 && LastPeriod() && OneIn(2)) return &kToken;
  return OneIn(3) ? &kFirstAction : nullptr;
}

void TellEntry(int side, int position) {
  constexpr std::size_t kMostWithPosition = 35;
  const int in = Now(side, position), out = Before(side, position);
  const std::string who = NameOf(side, in), other = NameOf(side, out), word(PositionWord(position));
  if (const Family* first = FirstSteps(side, in)) {
    Say(*first, {.who = who}, kUnspoken, side);
  } else if (other.empty() || IsOn(side, out)) {
    Say(kEntersAt, {.who = who, .word = word}, kUnspoken, side);
  } else if (Say(kSub, {.who = who, .other = other}, kUnspoken, side)) {
    const std::string at = " at " + word;
    if (LastLine().Text.size() + at.size() <= kMostWithPosition) AddToLine(at);
  }
}

void TellPosition(int side, int position) {
  const int slot = Now(side, position);
  if (slot == 0 || slot == Before(side, position)) return;
  if (!WasOn(side, slot)) return TellEntry(side, position);
  const std::string who = NameOf(side, slot), word(PositionWord(position));
  Say(kSlide, {.who = who, .word = word}, kUnspoken, side);
}

// Who leaves.

void AddPart(std::vector<std::string>& parts, int count, const char* one, const char* more) {
  if (count == 1 && *one) parts.push_back("1" + std::string(one));
  if (count > 1) parts.push_back(std::to_string(count) + more);
}

/// His line: what he leaves the game with.
void TellExit(int side, int slot) {
  const StatLine& line = PlayerAt(side, slot).Stats[3];
  std::vector<std::string> parts;
  AddPart(parts, PointsOf(line), " point,", " points,");
  AddPart(parts, line.Reb, " rebound,", " rebounds,");
  AddPart(parts, line.Ast, "", " assists,");
  AddPart(parts, line.St, "", " steals,");
  AddPart(parts, line.Bk, "", " blocks,");
  if (parts.empty()) {
    if (line.Pf == 0) return;
    const std::string fouls = std::to_string(line.Pf) + (line.Pf == 1 ? " foul" : " fouls");
    return NewLine(NameOf(side, slot) + " leaves with " + fouls, kUnspoken, side);
  }
  parts.back().pop_back();
  WrapLine(NameOf(side, slot) + " " + Pick(kExits), parts);
}

/// His day is done: fouled out, or his side needs him no more.
bool DayIsDone(int side, int slot) {
  if (FouledOut(PlayerAt(side, slot).Stats[3])) return true;
  return game.Blowout == 1 && LastPeriod() && game.GameClock < 3000 &&
         PointsOf(PlayerAt(side, slot).Stats[3]) >= 10;
}

void TellLeaver(int side, int slot) {
  const Man& man = ManAt(side, slot);
  const std::string who = NameOf(side, slot);
  if (who.empty()) return;
  if (DayIsDone(side, slot)) return TellExit(side, slot);
  if (man.FoulTroubleFlag == 1) {
    const int fouls = PlayerAt(side, slot).Stats[3].Pf;
    const std::string word = std::to_string(fouls) + (OneIn(2) ? " fouls" : " personals");
    Say(kLeavesWithFouls, {.who = who, .word = word}, kUnspoken, side);
  } else if (man.TiredFlag == 1 && OneIn(2)) {
    Say(kGetsRest, {.who = who}, kUnspoken, side);
  }
}

void TellSide(int side) {
  if (!Changed(side)) return;
  if (IsLineChange(side)) return TellLineChange(side);
  for (int p = 1; p <= kPositions; ++p) TellPosition(side, p);
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = Before(side, p);
    if (slot > 0 && !IsOn(side, slot)) TellLeaver(side, slot);
  }
}

}  // namespace

void DescribeLineupChanges() {
  game.commentary.PbpLineCount = 0;
  NewLine("Lineup Changes..");
  PauseLine();
  for (int side = 1; side <= 2; ++side) TellSide(side);
}

}  // namespace tipline
