#include "harness/bench_coach.h"

#include "coach/substitutions.h"
#include "engine/commands.h"
#include "engine/eligible.h"
#include "engine/engine.h"
#include "engine/game_state.h"
#include "league/setup.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

/// The attack is asked for a play.
bool Attack() { return !BallIsDue() && AttackIsAsked(); }

void DrawCall() {
  Call& call = game.call;
  call.CallKind = Rnd(9) - 1;
  call.CallPlayer = Rnd(7) - 1;
  call.CallAlleyOop = Rnd(2) - 1;
  call.CallAlleyPlayer = Rnd(6) - 1;
  call.CallDrive = Rnd(2) - 1;
  call.CallForce = Rnd(2) - 1;
}

void Attacks() {
  switch (Rnd(9)) {
    case 1:
      return ShootChosen();
    case 2:
      return DriveChosen();
    case 3:
      return PassChosen();
    case 4:
      game.possession.QuickPassTarget = Rnd(8) - 2;
      return QuickPassChosen();
    case 5:
      return PlayGridChosen(Rnd(7) - 1);
    case 6:
      DrawCall();
      return UsePlayNowRoutine();
    case 7:
      return BurnChosen();
    case 8:
      return FastBreakChosen();
    default:
      return ComputerChosen();
  }
}

/// What a coach may turn between two plays.
void TurnKnobs() {
  Side& s = game.side[game.ActingSide];
  s.OffensePace = Rnd(5) - 1;
  s.DefenseType = Rnd(4) - 1;
  s.Pressure = Rnd(5) - 1;
  s.DefenseHelp = Rnd(5) - 1;
  s.QuickFoul = Rnd(4) - 1;
  s.StealFoul = Rnd(2) - 1;
  s.LastShot = Rnd(2) - 1;
  s.QuickShot = Rnd(2) - 1;
  s.NoFoul = Rnd(2) - 1;
  s.TimeoutOffense = Rnd(2) - 1;
  s.TimeoutDefense = Rnd(2) - 1;
  s.CrashBoardsOffense = Rnd(3) - 1;
  s.CrashBoardsDefense = Rnd(3) - 1;
  s.InsideOffense = Rnd(6) - 1;
  s.BothOffenses = Rnd(2) - 1;
  s.BothDefenses = Rnd(2) - 1;
}

/// Says yes to everything.
class Agreeable : public platform::Dialogs {
 public:
  Agreeable() { platform::UseDialogs(this); }
  ~Agreeable() override { platform::UseDialogs(nullptr); }
  void Tell(std::string_view, std::string_view) override {}
  bool Ask(std::string_view, std::string_view) override { return true; }
};

/// Goes on; a man who has left and was named for the jump or the line is replaced by one on the floor.
void GoOn() {
  const Agreeable answers;
  const Refusal why = ContinueChosen();
  const int side = why == Refusal::kJumperGone ? game.ActingSide : game.OffenseSide;
  const int position = DrawPosition(side);
  const int slot = position > 0 ? game.side[side].Lineup[position] : 0;
  if (why == Refusal::kJumperGone) game.side[side].JumperOf = slot;
  if (why == Refusal::kShooterGone) game.BallPlayer = slot;
  if (why == Refusal::kLineup) LoadLineups();
}

}  // namespace

void SeatHumans() {
  CallAllPlays();
  for (Side& side : game.side) side.CoachMode = "H";
}

void LeaveItToTheComputer() {
  for (Side& side : game.side) side.AutoSubWhenTired = side.AutoSubWhenFoulTrouble = 1;
  if (Attack()) return ComputerChosen();
  if (game.GameState == "DEFENSE-CALL") return DefensePlayCallChosen();
  if (game.GameState == "FREETHROW-SHOOT") return FreeThrowChosen();
  GoOn();
}

void CommandAnything() {
  if (Rnd(20) == 1) TurnKnobs();
  if (Rnd(40) == 1) return TimeoutChosen();
  game.call.DefenseCall = Rnd(8) - 1;
  if (Rnd(2) == 1 || !Attack()) return LeaveItToTheComputer();
  Attacks();
}

}  // namespace tipline
