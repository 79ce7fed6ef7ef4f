#include "cli/coach_screen.h"

#include <vector>

#include "cli/box_score.h"
#include "cli/coach_events.h"
#include "cli/coach_words.h"
#include "cli/columns.h"
#include "cli/team_work.h"
#include "coach/substitutions.h"
#include "engine/eligible.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/player_values.h"
#include "narration/lines.h"

namespace tipline::cli {
namespace {

std::string PeriodText() {
  if (game.Period > league.rules.PeriodList) return PeriodName(game.Period);
  return OrdinalText(game.Period) + (league.rules.PeriodList == 2 ? " half" : "");
}

int RatingFor(const PlayerRecord& p, int pick) {
  return pick == kInside ? p.RateOffInside : pick == kThree ? p.RateOffThree : p.RateOffOutside;
}

/// "1 PG".
std::string Place(int position) { return Str(position) + " " + league.PositionLabel[position]; }

bool BallIsLive() {
  const GameState s = game.GameState;
  return s == "OFFENSE" || s == "DEFENSE-CALL" || s == "OFFREB" || s == "FASTBREAK";
}

/// The rebound may go up again, or goes up and the defense is asked.
bool PutbackIsOn() { return game.PlayKind == "OFFREB" && game.GameState != "OFFENSE"; }

/// The zone from which the man with the ball may shoot: at the offensive board where he stands.
int BallZone() {
  return PutbackIsOn() ? game.PutbackClass : ManAt(game.OffenseSide, game.BallPlayer).ShotPick;
}

/// "At the line: Daly, 2 to shoot, 3-4 today".
std::string LineOfShooter() {
  constexpr struct {
    PlayKind trip;
    std::string_view words;
  } kTrips[] = {{"SHOOT3", "3 to shoot"},    {"SHOOT3-2", "3 to make 2"}, {"SHOOT2", "2 to shoot"},
                {"SHOOT2-1", "2 to make 1"}, {"SHOOT2-2", "2 to make 2"}, {"SHOOT1-1", "one and one"},
                {"SHOOT1", "1 to shoot"}};
  const StatLine& line = BallHandler().Stats[3];
  std::string text = "At the line: " + ManName(game.OffenseSide, game.BallPlayer);
  for (const auto& t : kTrips) {
    if (t.trip == game.PlayKind) text += ", " + std::string(t.words);
  }
  return text + ", " + Of(line.FTM, line.FTA) + " today";
}

/// Who jumps: as named, at a period's start the centres.
std::string LineOfJumpers() {
  std::string text = "Jump: ";
  for (int s = 1; s <= 2; ++s) {
    const Side& side = game.side[s];
    const bool named = !PeriodOpens() && PositionOf(s, side.JumperOf) > 0;
    text += (s == 2 ? " and " : "") + ManName(s, named ? side.JumperOf : side.Lineup[kPositions]);
  }
  return text;
}

/// Who has the ball and where, shoots at the line or jumps; "" while it is dead or on its way in.
std::string BallLine() {
  const int side = game.OffenseSide;
  if (IsFreeThrow(game.GameState) && game.BallPlayer > 0) return LineOfShooter();
  if (IsJump(game.GameState)) return LineOfJumpers();
  if (!BallIsLive() || BallIsDue() || PositionOf(side, game.BallPlayer) == 0) return "";
  const std::string shot = ShotName(BallZone());
  const int position = PositionOf(side, game.BallPlayer);
  std::string line = "Ball: " + ManName(side, game.BallPlayer) + " (" + Place(position) + ")";
  const bool set = game.GameState == "OFFENSE" || game.GameState == "DEFENSE-CALL";
  if ((set || game.GameState == "OFFREB") && !shot.empty())
    line += shot == "three" ? " beyond the arc" : " " + shot;
  if (set) line += ", guarded by " + ManName(game.DefenseSide, GuardOf(position));
  if (game.GameState == "OFFENSE" && QuickPassLabel().back() == '!') line += "; " + QuickPassLabel();
  return line;
}

void PrintAttack(std::ostream& out, int side) {
  Columns table({"<", "<" + game.team[side].City.Str().substr(0, 16), "<Shot", "Rtg", "Opt", "Eng", "PF",
                 "Pts", "FG", "<Guarded by"});
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = game.side[side].Lineup[p];
    if (slot == 0) continue;
    const PlayerRecord& record = PlayerAt(side, slot);
    const Man& man = ManAt(side, slot);
    table.Row({Place(p), (slot == game.BallPlayer ? "*" : " ") + ManName(side, slot), ShotName(man.ShotPick),
               Str(RatingFor(record, man.ShotPick)), Str(game.side[side].Option[p]), Str(man.Energy),
               Str(record.Stats[3].Pf), Str(PointsOf(record.Stats[3])),
               Of(record.Stats[3].FGM, record.Stats[3].FGA), ManName(game.DefenseSide, GuardOf(p))});
  }
  table.Print(out, false);
}

/// The five who run, or fight under the basket: what the set before had open counts no more.
void PrintLooseBall(std::ostream& out, int side) {
  const bool run = game.GameState == "FASTBREAK";
  Columns table({"<", "<" + game.team[side].City.Str().substr(0, 16), run ? "<Break" : "<Shot",
                 run ? "Fast" : "Rtg", "Eng", "PF", "Pts", "FG"});
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = game.side[side].Lineup[p];
    if (slot == 0) continue;
    const PlayerRecord& record = PlayerAt(side, slot);
    const Man& man = ManAt(side, slot);
    const bool has = slot == game.BallPlayer;
    const int rating = run ? record.RateOffFastbreak : RatingFor(record, game.PutbackClass);
    table.Row({Place(p), (has ? "*" : " ") + ManName(side, slot),
               run   ? man.InBreak ? "runs" : ""
               : has ? ShotName(game.PutbackClass)
                     : "",
               run || has ? Str(rating) : "", Str(man.Energy), Str(record.Stats[3].Pf),
               Str(PointsOf(record.Stats[3])), Of(record.Stats[3].FGM, record.Stats[3].FGA)});
  }
  table.Print(out, false);
}

/// The attacker whom the man at a position guards, 0 for none. In a live play a switch counts.
int ManGuardedBy(int side, int position) {
  const auto& match = BallIsLive() ? game.side[side].Matchup : game.side[side].StoredMatchup;
  for (int p = 1; p <= kPositions; ++p) {
    if (match[p] == position) return game.side[3 - side].Lineup[p];
  }
  return 0;
}

/// The five at a stop where the side has no shot to choose.
void PrintFive(std::ostream& out, int side) {
  const bool attacked = BallIsLive() && side == game.DefenseSide;
  Columns table({"<", "<" + game.team[side].City.Str().substr(0, 16), "Eng", "PF", "Min", "Pts", "<Guards",
                 "Pts", attacked ? "<Shot" : "<"});
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = game.side[side].Lineup[p];
    if (slot == 0) continue;
    const Man& man = ManAt(side, slot);
    const StatLine& line = PlayerAt(side, slot).Stats[3];
    const int other = ManGuardedBy(side, p);
    const int zone = other == game.BallPlayer ? BallZone()
                     : PutbackIsOn()          ? 0
                                              : ManAt(3 - side, other).ShotPick;
    table.Row({Place(p), " " + ManName(side, slot), Str(man.Energy), Str(line.Pf),
               Str(BoxMinutes(man.PlayerGameTime)), Str(PointsOf(line)), ManName(3 - side, other),
               Str(PointsOf(PlayerAt(3 - side, other).Stats[3])), attacked ? ShotName(zone) : ""});
  }
  table.Print(out, false);
}

std::string BenchStatus(int side, int slot) {
  const Man& man = ManAt(side, slot);
  const int fouls = PlayerAt(side, slot).Stats[3].Pf;
  if (league.rules.DqList > 0 && fouls >= league.rules.DqList) return "fouled out";
  if (man.GameInjury > 0 || man.TemporaryInjury > 0) return "hurt";
  if (!IsEligible(side, slot)) return "out";
  if (!MayAppear(side, slot)) return "not dressed";
  if (man.Energy < 80) return "tired";
  return fouls >= FoulTroubleLimit() ? "foul trouble" : "";
}

StatLine SumOf(int side) {
  StatLine sum;
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (OnTeam(side, slot)) AddTo(sum, PlayerAt(side, slot).Stats[3]);
  }
  return sum;
}

std::string Average(int count, int games) {
  return Fixed(games > 0 ? static_cast<double>(count) / games : 0, 1);
}

}  // namespace

std::string ShotName(int pick) {
  return pick == kInside ? "inside" : pick == kOutside ? "outside" : pick == kThree ? "three" : "";
}

std::string ShortTeam(int side) {
  const std::string abbrev = game.team[side].Abbrev.Str();
  return abbrev.empty() ? game.team[side].City.Str().substr(0, 3) : abbrev;
}

std::string ScoreLine() {
  const Side& visitor = game.side[1];
  const Side& home = game.side[2];
  const auto pair = [](int a, int b) { return Str(a) + "-" + Str(b); };
  std::string line = ShortTeam(1) + " " + Str(visitor.Score) + "  " + ShortTeam(2) + " " + Str(home.Score) +
                     "   " + PeriodText() + " " + ClockText(game.GameClock);
  if (league.rules.ShotClockList > 0 && game.ShotClock <= game.GameClock)
    line += "   shot " + Str((game.ShotClock + 9) / 10);
  line += "   fouls " + pair(visitor.TeamFouls, home.TeamFouls) + "   timeouts " +
          pair(visitor.TimeoutsLeft, home.TimeoutsLeft);
  if (!IsJump(game.GameState)) line += "   " + ShortTeam(game.OffenseSide) + " ball";
  return line;
}

void PrintFloor(std::ostream& out) {
  const std::string ball = BallLine();
  if (!ball.empty()) out << Plain(ball) << '\n';
  const int side = game.ActingSide;
  const bool attacks = side == game.OffenseSide && !BallIsDue() && BallIsLive();
  if (attacks && game.GameState == "OFFENSE") {
    PrintAttack(out, side);
  } else if (attacks) {
    PrintLooseBall(out, side);
  } else {
    PrintFive(out, side);
  }
}

void PrintBench(std::ostream& out, int side) {
  Columns table({"#", "<Bench", "<Pos", "Eng", "PF", "Min", "Pts", "Reb", "Ast", "Off", "<"});
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(side, slot) || PositionOf(side, slot) > 0) continue;
    const PlayerRecord& p = PlayerAt(side, slot);
    const StatLine& s = p.Stats[3];
    table.Row({"#" + Str(slot), ManName(side, slot), Positions(p), Str(ManAt(side, slot).Energy), Str(s.Pf),
               Str(BoxMinutes(ManAt(side, slot).PlayerGameTime)), Str(PointsOf(s)), Str(s.Reb), Str(s.Ast),
               Str(p.RateOffense / 10), BenchStatus(side, slot)});
  }
  table.Print(out, false);
}

void PrintBenchRatings(std::ostream& out, int side) {
  Columns table(
      {"#", "<Bench", "In", "Out", "Drv", "3P", "Fast", "Pass", "OReb", "DReb", "D-Out", "D-In", "D-To"}, 1);
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    if (!OnTeam(side, slot) || PositionOf(side, slot) > 0) continue;
    const PlayerRecord& p = PlayerAt(side, slot);
    table.Row({"#" + Str(slot), ManName(side, slot), Str(p.RateOffInside), Str(p.RateOffOutside),
               Str(p.RateOffDrive), Str(p.RateOffThree), Str(p.RateOffFastbreak), Str(p.RatePassing),
               Str(p.RateRebOff), Str(p.RateRebDef), Str(p.RateDefOutside), Str(p.RateDefInside),
               Str(p.RateDefForce)});
  }
  table.Print(out, false);
}

void PrintTeams(std::ostream& out) {
  Columns table({"<", "FG", "3P", "FT", "Off", "Reb", "Ast", "St", "Bk", "TO", "Break", "Bench", "Pts"});
  for (int side = 1; side <= 2; ++side) {
    const StatLine s = SumOf(side);
    const Side& own = game.side[side];
    table.Row({ShortTeam(side), Of(s.FGM, s.FGA), Of(s.F3M, s.F3A), Of(s.FTM, s.FTA), Str(s.Off),
               Str(s.Reb + own.GameTeamRebounds), Str(s.Ast), Str(s.St), Str(s.Bk),
               Str(s.To + own.GameTeamTurnovers), Str(own.FastbreakPoints), Str(own.BenchPoints),
               Str(own.Score)});
  }
  table.Print(out, false);
  PrintPeriods(out, game.Period);
}

void PrintMan(std::ostream& out, int side, int slot) {
  const PlayerRecord& p = PlayerAt(side, slot);
  const StatLine& now = p.Stats[3];
  const StatLine& real = p.Stats[1];
  out << Plain(FullName(p) + " (#" + Str(slot) + ", " + Positions(p) + "), " + ShortTeam(side)) << '\n';
  Columns lines({"<", "Min", "FG", "3P", "FT", "Off", "Reb", "Ast", "PF", "St", "Bk", "TO", "Pts"});
  lines.Row({"This game", Str(BoxMinutes(ManAt(side, slot).PlayerGameTime)), Of(now.FGM, now.FGA),
             Of(now.F3M, now.F3A), Of(now.FTM, now.FTA), Str(now.Off), Str(now.Reb), Str(now.Ast),
             Str(now.Pf), Str(now.St), Str(now.Bk), Str(now.To), Str(PointsOf(now))});
  const auto each = [&real](int count) { return Average(count, real.G); };
  lines.Row({"His season", each(real.Min), Share(real.FGM, real.FGA), Share(real.F3M, real.F3A),
             Share(real.FTM, real.FTA), each(real.Off), each(real.Reb), each(real.Ast), each(real.Pf),
             each(real.St), each(real.Bk), each(real.To), each(PointsOf(real))});
  lines.Print(out, false);
  Columns ratings({"Off", "In", "Out", "Drv", "3P", "Fast", "Pass", "OReb", "DReb", "D-Out", "D-In", "D-To"});
  ratings.Row({Str(p.RateOffense / 10), Str(p.RateOffInside), Str(p.RateOffOutside), Str(p.RateOffDrive),
               Str(p.RateOffThree), Str(p.RateOffFastbreak), Str(p.RatePassing), Str(p.RateRebOff),
               Str(p.RateRebDef), Str(p.RateDefOutside), Str(p.RateDefInside), Str(p.RateDefForce)});
  ratings.Print(out, false);
}

}  // namespace tipline::cli
