// Before a game, and at each start of play: the welcome, the line-ups, the jump.
#include <cstdlib>

#include "league/program.h"
#include "narration/describe.h"
#include "narration/opening_sayings.h"

namespace tipline {

using namespace floor_talk;

namespace {

// The welcome.

bool LeagueGame() { return program.GameKind == "L" && !program.Autoplaying; }
int GamesOf(int side) { return game.team[side].Wins + game.team[side].Losses; }

/// His record, as the season stands; playoffs and exhibitions have none.
std::string TeamWithRecord(int side) {
  std::string label = PbpTeamName(side);
  if (!LeagueGame() || program.PlayoffGame || GamesOf(side) == 0) return label;
  const TeamRecord& team = game.team[side];
  return label + " (" + std::to_string(team.Wins) + " - " + std::to_string(team.Losses) + ")";
}

void TellStreak(int side) {
  const int streak = game.team[side].Streak;
  if (std::abs(streak) < 3) return;
  const std::string who = PbpTeamName(side);
  Say(streak > 0 ? kWonStreak : kLostStreak, {.who = who, .number = std::abs(streak)});
}

/// Schools decide it in one game. Which game of a series this is, and how the series stands, a game is not
/// told: hence "playoff game", and no line on the series.
std::string Occasion() {
  if (!program.PlayoffGame) return "for today's game between..";
  return game.team[2].TeamType == 'C' ? "for today's tournament game between.."
                                      : "for today's playoff game between..";
}

void Welcome() {
  const std::string arena = game.team[2].ArenaName.Str();
  if (!game.NeutralGame && arena.size() > 7) {
    NewLine("Welcome to " + arena);
    NewLine(Occasion());
  }
  WrapLine(TeamWithRecord(1) + " and", {TeamWithRecord(2)});
  for (int side = 1; side <= 2; ++side) TellStreak(side);
}

// The line-ups.

std::string Inches(const PlayerRecord& p) {
  return std::to_string(p.HeightFeet) + " foot " + std::to_string(p.HeightInches) +
         (p.HeightInches == 1 ? " inch" : " inches");
}

/// Years, school and height, as far as they are known.
std::vector<std::string> Biography(const PlayerRecord& p) {
  std::vector<std::string> parts;
  if (p.DebutYear >= 1930 && p.DebutYear <= p.Year)
    parts.push_back("in his " + OrdinalText(p.Year - p.DebutYear + 1) + " year");
  if (!p.College.Empty()) parts.push_back("from " + p.College.Str());
  if (p.HeightFeet > 0) parts.push_back(Inches(p));
  return Listed(parts);
}

void LongList(int side) {
  static constexpr std::string_view kPlaces[] = {"at guard ", "at the other guard ", "at forward ",
                                                 "at the other forward ", "and at center "};
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = game.side[side].Lineup[p];
    if (slot == 0) continue;
    const auto biography = Biography(PlayerAt(side, slot));
    WrapLine(std::string(kPlaces[p - 1]) + NameOf(side, slot) + (biography.empty() ? "" : ","), biography);
  }
}

/// "for Utah..", and the five.
void ShortList(const std::string& lead, int side) {
  std::vector<std::string> names;
  for (int p = 1; p <= kPositions; ++p) {
    if (game.side[side].Lineup[p] > 0) names.push_back(At(side, p));
  }
  NewLine(lead);
  for (std::size_t i = 0; i + 1 < names.size(); ++i) names[i] += ",";
  if (!names.empty()) WrapLine("", names);
}

std::string VisitorLead() {
  return IsPlural(PluralNickname(1)) ? "first for the " + PluralNickname(1)
                                     : "first for the visiting " + PbpTeamName(1);
}
std::string HomeLead() {
  const std::string nick = PluralNickname(2);
  const std::string name = nick.empty() ? PbpTeamName(2) : nick;
  return game.NeutralGame ? "and now for " + SideWithArticle(2) : "and now for your " + name;
}

void TellCoach(int side) {
  const std::string coach = game.team[side].CoachName.Str();
  if (!coach.empty()) NewLine(PbpTeamName(side) + " is coached by " + coach);
}

void FirstLineups() {
  NewLine("here are the starting lineups..");
  for (int side = 1; side <= 2; ++side) {
    const std::string lead = side == 1 ? VisitorLead() : HomeLead();
    if (setup.PbpStartingLineupsList >= 2) {
      NewLine(lead);
      LongList(side);
      TellCoach(side);
    } else {
      ShortList(lead, side);
    }
  }
}

std::string PeriodLead() {
  if (game.Period > league.rules.PeriodList) return "on the court to start this overtime,";
  if (league.rules.PeriodList == 2) return "on the court to start the second half..";
  return game.Period == 2   ? "on the court to start the second quarter.."
         : game.Period == 3 ? "on the court to start the third quarter.."
                            : "on the court to start the fourth quarter..";
}

void DescribeStartingLineups() {
  if (setup.PbpStartingLineupsList == 0) return;
  if (game.Period == 1) return FirstLineups();
  NewLine(PeriodLead());
  ShortList("for " + PbpTeamName(1) + "..", 1);
  ShortList("and for " + PbpTeamName(2) + "..", 2);
}

// The jump.

std::string Jumper(int side) { return NameOf(side, game.side[side].JumperOf); }
int HeightOfJumper(int side) { return HeightOf(PlayerAt(side, game.side[side].JumperOf)); }

void Toss() {
  constexpr int kMismatchInches = 5;
  Say(kToss);
  if (std::abs(HeightOfJumper(1) - HeightOfJumper(2)) >= kMismatchInches) {
    if (OneIn(2)) Say(kMismatch);
  } else if (OneIn(200)) {
    Say(kBadToss);
    Say(kTossAgain);
  }
}

void Jump(bool start) {
  const std::string winner = Jumper(game.OffenseSide), side = PbpTeamName(game.OffenseSide);
  if (Jumper(1).empty() || Jumper(2).empty()) return;
  if (Brief()) return NewLine(winner + " controls the jump");
  if (start) {
    for (int s = 1; s <= 2; ++s) NewLine(Jumper(s) + " will jump");
  }
  if (start || OneIn(2)) Toss();
  Say(kTip, {.who = winner, .other = side});
}

}  // namespace

void DescribeOpening() {
  const bool start = PeriodOpens();
  TellHolder(0, 0);
  if (start && game.Period == 1) Welcome();
  if (start && game.Period > league.rules.PeriodList) NewLine("we're ready for overtime");
  if (start) DescribeStartingLineups();
  if (!IsQuarter(game.GameState)) return Jump(start);
  const std::string side = PbpTeamName(game.OffenseSide);
  if (!Brief()) Say(kStarts, {.who = side});
}

}  // namespace tipline
