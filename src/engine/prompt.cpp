// What a coach is asked at a stop.
#include <string>

#include "engine/engine.h"
#include "engine/game_state.h"

namespace tipline {
namespace {

std::string TeamName(int side) { return game.team[side].City.Str(); }
std::string NameOf(int side, int slot) { return PlayerAt(side, slot).ShortName.Str(); }
std::string HandlerName() { return NameOf(game.OffenseSide, game.BallPlayer); }

std::string WhenReady() { return TeamName(game.ActingSide) + " Press 'Continue' When Ready"; }

/// The ball has to come in, or up, first; empty when it has not.
std::string BallFirst() {
  if (game.NeedsInbound) return TeamName(game.OffenseSide) + " Press 'Continue' To Inbound";
  if (game.NeedsMoveUp) return TeamName(game.OffenseSide) + " Press 'Continue' To Frontcourt";
  return "";
}

std::string SetOffense() {
  const int pick = ManAt(game.OffenseSide, game.BallPlayer).ShotPick;
  if (PositionOf(game.OffenseSide, game.BallPlayer) == 0 || pick == 0)
    return TeamName(game.OffenseSide) + " Select A Play";
  const char* place = pick == kInside ? "Inside" : pick == kThree ? "Beyond The Arc" : "Outside";
  return HandlerName() + " With The Ball " + place;
}

std::string Putback() {
  const PlayerRecord& p = BallHandler();
  const std::string pass = "Or Pass (" + std::to_string(p.RatePassing) + ")?";
  if (game.PutbackClass == 2) {
    return HandlerName() + " Shoot Outside( " + std::to_string(p.RateOffOutside) + "), Drive(" +
           std::to_string(p.RateOffDrive) + "), " + pass;
  }
  if (game.PutbackClass == 3)
    return HandlerName() + " Shoot Three (" + std::to_string(p.RateOffThree) + ") " + pass;
  return HandlerName() + " Shoot Inside (" + std::to_string(p.RateOffInside) + ") " + pass;
}

std::string Break() {
  const int side = game.OffenseSide;
  std::string runners;
  for (const int slot : game.side[side].Lineup) {
    if (slot == 0 || !ManAt(side, slot).InBreak) continue;
    if (!runners.empty()) runners += ", ";
    runners += NameOf(side, slot) + " " + std::to_string(PlayerAt(side, slot).RateOffFastbreak);
  }
  return std::to_string(game.fastBreak.BreakAttackers) + "-" + std::to_string(game.fastBreak.BreakDefenders) +
         " " + TeamName(side) + " Fastbreak (" + runners + ")?";
}

}  // namespace

std::string Prompt() {
  const GameState s = game.GameState;
  if (game.GameOver || s.Empty() || s == "JUMPBALL") return "";
  if (s == "OFFENSE") return BallFirst().empty() ? SetOffense() : BallFirst();
  if (s == "DEFENSE-CALL") return TeamName(game.DefenseSide) + " select defense and click Ok";
  if (s == "DEFENSE") return TeamName(game.DefenseSide) + " Continue";
  if (s == "OFFREB") return Putback();
  if (s == "FASTBREAK") return Break();
  if (s == "FREETHROW-WAIT")
    return TeamName(game.DefenseSide) + " Press Continue When Ready (" + HandlerName() + " at the line)";
  if (s == "FREETHROW-SHOOT") return HandlerName() + " - Shoot Free Throw";
  const std::string ball = EndsInOffense(s) ? BallFirst() : "";
  return ball.empty() ? WhenReady() : ball;
}

}  // namespace tipline
