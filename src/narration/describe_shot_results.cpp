// How a shot ended: in, out, blocked, on the rim; who passed, and what the scorer has done so far.
#include <algorithm>

#include "narration/break_sayings.h"
#include "narration/describe.h"
#include "narration/drive_sayings.h"
#include "narration/inside_sayings.h"
#include "narration/made_sayings.h"
#include "narration/missed_sayings.h"
#include "narration/shot_parts.h"

namespace tipline {
namespace {

std::string MadeOf(const StatLine& line) {
  return std::to_string(line.FGM) + " for " + std::to_string(line.FGA);
}

/// The line of a basket, his points behind it when the listener wants them.
void TellBasket(const Family& family) {
  if (!Say(family)) return;
  MarkBasket(CountsThree());
  AddStat(PointsOf(GameOfShooter()));
}

/// What kind of basket it was, now and then.
void TellFinish() {
  if (!OneIn(7)) return;
  if (OnBreak()) {
    Say(CountsThree() ? kBreakThreeMade : kBreakFinish);
  } else if (OnDrive()) {
    Say(kDriveFinish);
  } else if (FromPost()) {
    Say(kInsideFinish);
  }
}

void TellLetdown() {
  if (!OneIn(8)) return;
  if (OnDrive()) Say(kDriveLetdown);
  if (FromPost()) Say(kInsideLetdown);
}

void DescribeDunk() {
  const bool follow = Putback() && OneIn(2);
  VerbLine(Pick(follow ? kFollowDunk : kDunk), game.commentary.PbpLineCount);
  MarkBasket(false);
  AddStat(PointsOf(GameOfShooter()));
  if (Guarded() && (OnDrive() || FromPost()) && OneIn(4)) Say(kPoster);
}

/// The ball hangs on the rim before it decides.
void DescribeRimResult() {
  Say(kHang);
  PauseLine();
  if (Scored()) return TellBasket(kHangIn);
  if (!game.play.BasketInterference) {
    Say(kHangOut, {}, kMissedShot);
    return;
  }
  Say(kInterferenceCall, {}, kMissedShot);
  Say(kPointsOff);
}

bool Hangs() { return !FromBeyond() && OneIn(70); }

void DescribeGoaltending() {
  const std::string defender = NameOf(scene().DefenseSide, scene().BallDefender);
  Say(kGoaltend, {.who = defender.empty() ? PbpTeamName(scene().DefenseSide) : defender});
  TellBasket(kGoaltendCount);
}

void DescribeShotMade(Look look) {
  if (look == Look::kSlam) return DescribeDunk();
  if (Hangs()) return DescribeRimResult();
  if (Heaved()) {
    Say(kHeaveMade);
    return TellBasket(kHeaveEnd);
  }
  TellBasket(look == Look::kLayup ? kLayupMade : CountsThree() ? kThreeMade : kMade);
  if (FootOnLine() && league.rules.ThreePointCheck) Say(kLineTouched);
  TellFinish();
}

void DescribeBlock() {
  const PlayerRecord& blocker = PlayerAt(scene().DefenseSide, game.play.Blocker);
  std::string name = NameOf(scene().DefenseSide, game.play.Blocker);
  if (scene().DefenseSide == 2 && !blocker.Nickname.Empty() && OneIn(5)) name = blocker.Nickname.Str();
  Say(kBlock, {.who = name}, kMissedShot);
  const int blocks = blocker.Stats[3].Bk;
  if (blocks >= 4 && OneIn(3)) Say(kBlockRemark, {.who = name, .number = blocks});
}

/// A man who had been hitting is human; one who had been missing is cold.
void TellColdHand() {
  constexpr int kRun = 4;
  if (RunBefore() >= kRun) {
    if (OneIn(2)) Say(kHumanAfterAll);
  } else if (RunBefore() <= 1 - kRun && OneIn(4)) {
    Say(kColdShooter, {.word = MadeOf(GameOfShooter())});
  }
}

void DescribeShotMissed(Look look) {
  const Play& play = game.play;
  if (look == Look::kBlownSlam) {
    Say(kBlownDunk, {}, kMissedShot);
    return;
  }
  if (play.ShotStuck) {
    Say(kStuck, {}, kMissedShot);
    return;
  }
  if (play.BasketInterference || (!play.AirBall && Hangs())) return DescribeRimResult();
  Say(play.AirBall ? kAirBall : kMissed, {}, kMissedShot);
  TellColdHand();
  TellLetdown();
}

void DescribeAssist() {
  const Play& play = game.play;
  const int side = scene().OffenseSide;
  const std::string passer = NameOf(side, play.Assister);
  if (Putback() || !play.Assisted || passer.empty() || play.Assister == scene().BallPlayer ||
      scene().QuickFoul == 3) {
    return;
  }
  constexpr int kAssistDisplay = 4;
  const int assists = PlayerAt(side, play.Assister).Stats[3].Ast;
  Say(kAssist, {.who = passer, .number = assists});
  LastLine().Display = kAssistDisplay;
  AddStat(assists);
  const bool set = FromPost() || OnDrive() || OnBreak() || scene().PlayKind == "OUTSIDE";
  if (set && assists >= 8 && OneIn(3)) Say(kGreatPasser, {.who = passer, .number = assists});
}

/// Told once of a man: his age does not change during the game.
bool TellVeteran() {
  const PlayerRecord& p = BallMan();
  u8& said = game.commentary.VeteranSaid[scene().OffenseSide][scene().BallPlayer];
  if (!CountsThree() || WomensGame() || said) return false;
  if (p.RateOffThree < 4 + ShowRnd(4) || p.Age < 32 + ShowRnd(4)) return false;
  said = 1;
  return Say(kOldThree);
}

bool TellThrees() {
  const StatLine& line = GameOfShooter();
  if (!CountsThree() || line.F3M < 4 || !OneIn(3)) return false;
  const std::string tries = std::to_string(line.F3M) + " for " + std::to_string(line.F3A);
  return Say(kThreesSoFar, {.word = tries, .number = line.F3M});
}

bool TellStreak() {
  constexpr int kRun = 4;
  const int before = RunBefore();
  if (before <= -kRun) return Say(kFinallyOne, {.word = MadeOf(GameOfShooter())});
  return before >= kRun - 1 && OneIn(4) && Say(kHotShooter, {.number = before + 1});
}

/// Twenty, thirty and so on, at the basket that brings them.
bool TellPoints() {
  const int points = PointsOf(GameOfShooter());
  const int before = points - (CountsThree() ? 3 : 2);
  return points >= 20 && points / 10 > before / 10 && OneIn(2) && Say(kPointMark, {.number = points});
}

int TensOf(const StatLine& line) {
  const int counts[] = {PointsOf(line), line.Reb, line.Ast, line.St, line.Bk};
  return static_cast<int>(std::count_if(std::begin(counts), std::end(counts), [](int n) { return n >= 10; }));
}

/// The first time that he has two, or three, counts of ten.
void TellDoubles(int slot) {
  const int side = scene().OffenseSide;
  const int tens = slot > 0 ? TensOf(PlayerAt(side, slot).Stats[3]) : 0;
  u8& said = game.commentary.DoubleSaid[side][slot];
  if (tens < 2 || tens - 1 <= said) return;
  said = tens > 2 ? 2 : 1;
  Say(tens > 2 ? kTripleDouble : kDoubleDouble, {.who = NameOf(side, slot)});
}

void TellWhatFollowsABasket() {
  if (!TellVeteran() && !TellThrees() && !TellStreak()) TellPoints();
  DescribeAssist();
  DescribeGoAhead();
  DescribeTieIt();
  DescribeBuzzerBeater();
  TellDoubles(scene().BallPlayer);
  if (game.play.Assisted) TellDoubles(game.play.Assister);
}

struct BriefWords {
  std::string_view made, missed, blocks;
};

BriefWords BriefWordsOfShot() {
  const bool three = FromBeyond() && !FootOnLine();
  if (OnBreak() && three)
    return {" scores on a fastbreak 3", " misses on a fastbreak 3", " blocks 3 shot by "};
  if (OnBreak()) return {" scores on a fastbreak", " misses on a fastbreak", " blocks fastbreak shot by "};
  if (three) return {" scores a three", " misses a three", " blocks three by "};
  if (OnDrive()) return {" scores on a drive", " misses on a drive", " blocks drive shot by "};
  if (FromPost() || (Putback() && scene().PutbackClass == 1))
    return {" scores from inside", " misses from inside", " blocks inside shot by "};
  return {" scores from outside", " misses from outside", " blocks outside shot by "};
}

}  // namespace

void AddStat(int count) {
  if (setup.DisplayStatsInPbpCheck) AddToLine(" (" + std::to_string(count) + ")");
}

void MarkBasket(bool three) {
  constexpr int kScoreCue = 2;
  PbpLine& line = LastLine();
  line.SpokenKind = three ? kMadeThree : kMadeTwo;
  line.Side = scene().OffenseSide;
  line.Sound = kScoreCue;
  game.commentary.ResultLine = game.commentary.PbpLineCount;
}

void DescribeShotResult(Look look) {
  if (Scored() && game.play.GoaltendMark) {
    DescribeGoaltending();
  } else if (WasFouled()) {
    if (look == Look::kSlam) VerbLine(Pick(kDunk), game.commentary.PbpLineCount, kShotLine);
    DescribeFouledOnShot();
  } else if (Scored()) {
    DescribeShotMade(look);
  } else {
    if (AtTheHorn()) DescribeBuzzerBeater();
    if (game.play.Blocked && game.play.Blocker > 0) return DescribeBlock();
    DescribeShotMissed(look);
  }
  if (Scored()) TellWhatFollowsABasket();
}

void DescribeShotBriefly() {
  const BriefWords words = BriefWordsOfShot();
  const std::string name = BallName();
  NewLine(name + std::string(Scored() ? words.made : words.missed), Scored() ? kUnspoken : kMissedShot);
  if (Scored()) MarkBasket(CountsThree());
  if (game.play.Blocked && !Scored()) {
    const std::string blocker = NameOf(scene().DefenseSide, game.play.Blocker);
    if (!blocker.empty()) NewLine(blocker + std::string(words.blocks) + name);
  }
  if (WasFouled()) DescribeFouledOnShot();
}

void DescribeTip() {
  const std::string who = NameOf(scene().OffenseSide, game.play.Tipper);
  if (who.empty()) return;
  const bool scored = game.play.TipIn == 2;
  const char kind = game.ScoreLogCount > 0 ? game.ScoreLog[game.ScoreLogCount].Kind : ' ';
  int& run = game.commentary.ShotRun[scene().OffenseSide][game.play.Tipper];
  run = scored ? std::max(run, 0) + 1 : std::min(run, 0) - 1;
  if (Brief()) {
    NewLine(who + (scored ? " tips it in" : " misses the tip"), kMissedShot);
  } else {
    Say(scored ? (kind == 'k' ? kTipDunk : kTipMade) : kTipMissed, {.who = who}, kMissedShot);
  }
  if (!scored) return;
  MarkBasket(false);
  NoteBasket();
  if (Brief()) return;
  AddStat(PointsOf(PlayerAt(scene().OffenseSide, game.play.Tipper).Stats[3]));
  DescribeGoAhead();
  DescribeTieIt();
  TellDoubles(game.play.Tipper);
}

}  // namespace tipline
