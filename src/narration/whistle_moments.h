#pragma once
// What the sayings of whistles and lost balls ask of the play of `game.scene`.
#include "engine/execution.h"
#include "narration/lines.h"
#include "narration/shot_conditions.h"

namespace tipline::whistles {

// Who had a hand in it.
inline const StatLine& FoulerLine() { return PlayerAt(FoulingSide(), game.play.Fouler).Stats[3]; }
/// Slot of the man who was fouled: away from the ball that is another than the man who had it.
inline int FouledSlot() {
  const bool elsewhere = game.play.OffBallFoul && IsFloorFoul(game.play.Posted);
  return elsewhere ? game.BallPlayer : scene().BallPlayer;
}
inline std::string FouledName() { return NameOf(scene().OffenseSide, FouledSlot()); }
/// The last line has his name.
inline bool JustNamed(const std::string& name) { return !NoLineYet() && NamesHim(LastLine().Text, name); }
/// "he" can only be this man: the last line ends with his name, or begins with it and has no other.
bool MeansHim(const std::string& name);
inline bool BallManMeant() { return MeansHim(BallName()); }
inline bool FouledManMeant() { return MeansHim(FouledName()); }
inline bool FoulerMeant() { return MeansHim(NameOf(FoulingSide(), game.play.Fouler)); }

inline bool ForWomen() { return WomensGame(); }

// Where and how the play went.
inline bool TowardsTheBasket() { return FromPost() || OnDrive() || OnBreak(); }
inline bool Holding() { return scene().PlayKind == "HOLD BALL" || scene().PlayKind == "BURN"; }
inline bool Lobbed() { return scene().Call.LobFrom > 0; }
inline bool Guard() { return scene().BallSlot == 1 || scene().BallSlot == 2; }
inline bool FullCourtPressure() { return DefenseThen().Pressure >= 3; }
inline bool SetOffense() { return !OnBreak() && !Putback(); }
inline bool LateAndClose() { return LastPeriod() && scene().GameClock < 3000 && Margin() <= 3; }

// Fouls.
inline bool HardFoul() { return game.Tension > scene().Tension; }
inline bool ByHisDefender() { return game.play.Fouler == scene().BallDefender; }
inline bool ByHelp() { return !ByHisDefender(); }
/// The defense goes for the worst man at the line.
inline bool HuntsTheWorst() { return scene().PlayKind == "HOLD BALL" && scene().QuickFoul == 3; }
inline bool StopsTheClock() { return scene().QuickFoul == 1 || scene().QuickFoul == 2; }
/// Both names leave room for a long line.
inline bool ShortNames() {
  return FouledName().size() + NameOf(FoulingSide(), game.play.Fouler).size() <= 29;
}
/// Fouled as the ball comes up: the books give two shots for it, or the possession is still young.
inline bool InBackcourt() {
  constexpr int kToCross = 80;
  const bool young = scene().ShotClock - scene().PlayTime > FullShotClock() - kToCross;
  return game.play.IntentionalFoul && (league.rules.BackcourtTwoShotsCheck || young);
}
inline bool BadAtTheLine() {
  const StatLine& real = PlayerAt(scene().OffenseSide, FouledSlot()).Stats[1];
  return real.FTA > 20 && 10 * real.FTM < 6 * real.FTA;
}
inline bool OneFoulLeft() { return league.rules.DqList > 0 && FoulerLine().Pf == league.rules.DqList - 1; }
inline bool FouledOut() { return tipline::FouledOut(FoulerLine()); }
inline bool MayFoulOn() { return !FouledOut(); }
/// More fouls than a coach likes to see by now.
inline bool FoulTrouble() {
  const int half = league.rules.PeriodList / 2;
  const int fouls = FoulerLine().Pf;
  return (game.Period <= half && fouls >= 3) || (!LastPeriod() && fouls >= 4);
}

// Free throws; the counts hold the shot that is told.
inline bool FirstOfTrip() { return game.commentary.FreeThrowNo == 0; }
/// Neither a common trip nor the shots of a flagrant foul.
bool Technical();
/// One shot and no more, as it stands.
inline bool OneShot() { return scene().PlayKind == "SHOOT1" && FirstOfTrip(); }
inline bool MoreShots() { return !OneShot(); }
inline bool FreeThrowMade() { return game.play.Posted == "FTG"; }

}  // namespace tipline::whistles
