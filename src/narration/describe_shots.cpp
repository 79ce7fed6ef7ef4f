// A shot up to the moment it leaves the hand.
#include "narration/break_sayings.h"
#include "narration/describe.h"
#include "narration/drive_sayings.h"
#include "narration/inside_sayings.h"
#include "narration/shot_parts.h"
#include "narration/shot_phrases.h"
#include "narration/shot_sayings.h"

namespace tipline {
namespace {

bool DunkInTheBooks() {
  const char kind = game.ScoreLogCount > 0 ? game.ScoreLog[game.ScoreLogCount].Kind : ' ';
  return Scored() && !game.play.GoaltendMark && (kind == 'K' || kind == 'k');
}

bool MeantToDunk() {
  const Play& play = game.play;
  if (Scored() || play.Blocked || WasFouled() || play.ShotStuck || play.BasketInterference) return false;
  return ShowRnd(12) <= BallMan().RateDunk && OneIn(30);
}

Look LookOfShot() {
  if (!FromClose()) return Look::kPlain;
  if (DunkInTheBooks()) return Look::kSlam;
  if (MeantToDunk()) return Look::kBlownSlam;
  const int layups = OnBreak() ? 55 : OnDrive() ? 35 : 10;  // of a hundred
  return ShowRnd(100) <= layups ? Look::kLayup : Look::kPlain;
}

/// Of so many tries in his real season so many went in.
double Rate(int made, int tried) { return tried > 0 ? static_cast<double>(made) / tried : 1; }

bool PoorShooter() {
  const StatLine& real = BallMan().Stats[1];
  return FromBeyond() ? Rate(real.F3M, real.F3A) < 0.325 : Rate(real.FGM, real.FGA) < 0.425;
}

/// One who hits from anywhere: more than thirty-nine of a hundred where thirty-five are the rule.
bool DeepShooter() {
  const StatLine& real = BallMan().Stats[1];
  const double era = OffenseThen().Era3Pct > 0 ? OffenseThen().Era3Pct / 0.4 : 1;
  return real.F3A > 0 && Rate(real.F3M, real.F3A) > era * 0.105 + 0.301;
}

/// Days when men shot from the chest with both feet on the floor.
bool SetShotDays() {
  const int year = BallMan().Year;
  return year > 0 && (FromBeyond() || FromOutside()) && year <= 1953 + ShowRnd(5) && OneIn(2);
}

/// The last line names him, at its start or its end.
bool NamedLast() {
  const std::string name = BallName();
  const std::string& last = LastLine().Text;
  return last == name || last.starts_with(name + " ") || last.ends_with(" " + name);
}

/// Behind a pass he is named again while little has been said.
bool NeedsName(int linesBefore) {
  if (NoLineYet() || !NamedLast()) return true;
  const int lines = game.commentary.PbpLineCount;
  return lines == linesBefore && OffThePass() && lines < 3;
}

void ShotLine(std::string verb, int linesBefore) {
  if (verb.empty()) return;
  VerbLine(std::move(verb), linesBefore, kShotLine);
  LastLine().Display = kInTheAir;
}

const Family& PlainShot() {
  if (OnBreak()) return FromBeyond() ? kBreakThree : kBreakShot;
  if (FromBeyond()) return kThreeShot;
  if (OnDrive()) return kDriveShot;
  if (FromPost()) return kInsideShot;
  if (FromClose()) return OneIn(3) ? kInsideShot : kPutbackShot;
  return kOutsideShot;
}

/// He shoots again from where he shot last, and nobody of his side has shot in between.
bool SameSpot() {
  const CommentaryState& c = game.commentary;
  return (FromBeyond() || FromOutside()) && SpotOfShot() > 0 && c.LastPerimeterSide == scene().OffenseSide &&
         c.LastPerimeterSlot == scene().BallPlayer && c.LastPerimeterPosition == SpotOfShot();
}

const Family& ShotWords() {
  if (PoorShooter() && OneIn(50) && OneIn(3)) return kWildShot;
  if (FromBeyond() && !OnBreak() && DeepShooter() && OneIn(5) && OneIn(5)) return kDeepThree;
  if (SetShotDays()) return kSetShot;
  if (SameSpot() && OneIn(2)) return kSameSpotShot;
  return PlainShot();
}

// Where each of the twelve favourite shots belongs.
enum : int { kFromPost = 1, kOnMove = 2, kFromAfar = 4 };
constexpr int kFavoriteFits[] = {kFromAfar, kFromPost, kFromPost, kFromPost, kFromPost | kFromAfar,
                                 kOnMove,   kOnMove,   kFromAfar, kOnMove,   kFromAfar,
                                 kFromAfar, kFromPost};
constexpr int kFirstFavoriteSlot = 242;

bool FavoriteFits(int favorite) {
  if (favorite < 1 || favorite > static_cast<int>(std::size(kFavoriteFits)) || FromBeyond()) return false;
  const int here = FromPost() ? kFromPost : OnDrive() ? kOnMove : FromOutside() ? kFromAfar : 0;
  return (kFavoriteFits[favorite - 1] & here) != 0;
}

/// A favourite three is no favourite on a drive.
bool FavoriteTextFits(std::string_view text) {
  const bool three = text.find("three") != text.npos || text.find('3') != text.npos;
  return !text.empty() && three == FromBeyond() && !OnBreak() && !Putback();
}

/// The name of a shot that is his own, now and then; "" mostly.
std::string NamedShot() {
  const PlayerRecord& p = BallMan();
  if (FavoriteTextFits(p.FavoriteShotText.View())) return OneIn(4) ? p.FavoriteShotText.Str() : "";
  if (FavoriteFits(p.FavoriteShot)) return OneIn(4) ? Phrase(kFirstFavoriteSlot - 1 + p.FavoriteShot) : "";
  return "";
}

void PlainTry(int linesBefore) {
  if (Heaved()) {
    ShotLine(Pick(kHeaveShot), linesBefore);
    Say(kHeave);
    return;
  }
  if (const std::string shot = NamedShot(); !shot.empty()) {
    return ShotLine(Pick(kFavorite, {.other = ArticleFor(shot), .word = shot}), linesBefore);
  }
  ShotLine(Pick(ShotWords()), linesBefore);
}

/// The way to the shot; a drive is told with it, others now and then.
void TellMove(int linesBefore) {
  if (OnDrive()) {
    VerbLine(Pick(kDriveMove), linesBefore, kUnspoken);
  } else if (FromPost() && OneIn(3)) {
    VerbLine(Pick(kInsideMove), linesBefore, kUnspoken);
  } else if ((FromBeyond() || FromOutside()) && !OnBreak() && !Heaved() && OneIn(8)) {
    VerbLine(Pick(kOutsideMove), linesBefore, kUnspoken);
  }
}

/// A pass to the rim ends in a dunk.
bool ThrownToTheRim() {
  const bool lob = scene().Call.SetPlay && scene().Call.LobTarget == scene().BallSlot;
  return GoodPasser() && (lob || (OnBreak() && OneIn(4)));
}

const Family* SetupFor(int coverage) {
  switch (coverage) {
    case 1:
      return &kWayOffSetup;
    case 2:
      return &kLooseSetup;
    case 4:
    case 5:
      return &kTightSetup;
    case 6:
      return &kFoulSetup;
    default:
      return nullptr;
  }
}

/// How they guard him, as far as there is time to tell.
void DescribeShotSetup() {
  constexpr int kTimeToTell = 120, kShotClockToTell = 50;
  if (!IsSetShot(scene().PlayKind) || scene().GameClock < kTimeToTell || !Guarded()) return;
  if (league.rules.ShotClockList > 0 && scene().ShotClock < kShotClockToTell) return;
  Man& shooter = ManAt(scene().OffenseSide, scene().BallPlayer);
  const int zone = FromPost() ? kInside : scene().PlayKind == "THREE" ? kThree : kOutside;
  const Family* setup = SetupFor(CoverageOf(shooter, zone));
  if (DoubleOf(shooter, zone)) setup = &kDoubledSetup;
  if (scene().QuickFoul >= 1) setup = &kFoulSetup;
  if (setup && OneIn(2)) Say(*setup);
}

}  // namespace

void VerbLine(std::string verb, int linesBefore, int spokenKind) {
  if (verb.empty()) return;
  // A move that is only named follows the name with "with the".
  const bool noun = verb == "spin move" || verb == "turnaround jump shot";
  if (NeedsName(linesBefore)) verb = BallName() + (noun ? " with the " : " ") + verb;
  NewLine(std::move(verb), spokenKind);
}

void DescribeSpin() {
  const bool losing = game.play.Posted == "TO";
  if (scene().ShotClock <= 20 || BallName().empty() || Brief()) return;
  if (losing ? !OneIn(100) : !OneIn(5000)) return;
  VerbLine(Pick(kSpin), game.commentary.PbpLineCount, kUnspoken);
}

void DescribeShotTry(Look look) {
  if (look == Look::kSlam && ThrownToTheRim()) {
    if (OffThePass()) --game.commentary.PbpLineCount;  // the lob is that very pass
    Say(kLob, {}, kShotLine);
    LastLine().Display = kInTheAir;
    return;
  }
  const int linesBefore = game.commentary.PbpLineCount;
  DescribeSpin();
  DescribeShotSetup();
  TellMove(linesBefore);
  if (look == Look::kSlam) return;
  if (look == Look::kBlownSlam) return ShotLine(Pick(kDunkTry), linesBefore);
  if (look == Look::kLayup) return ShotLine(Pick(kLayup), linesBefore);
  PlainTry(linesBefore);
}

void DescribeShot() {
  if (BallName().empty()) return;
  if (Brief()) {
    DescribeShotBriefly();
  } else {
    const Look look = LookOfShot();
    DescribeShotTry(look);
    DescribeShotResult(look);
  }
  CommentaryState& c = game.commentary;
  int& run = c.ShotRun[scene().OffenseSide][scene().BallPlayer];
  if (Scored()) {
    NoteBasket();
    run = std::max(run, 0) + 1;
  } else if (!WasFouled()) {
    run = std::min(run, 0) - 1;
  }
  const bool perimeter = FromBeyond() || FromOutside();
  c.LastPerimeterSide = perimeter ? scene().OffenseSide : 0;
  c.LastPerimeterSlot = perimeter ? scene().BallPlayer : 0;
  c.LastPerimeterPosition = perimeter ? SpotOfShot() : 0;
}

std::span<const PhraseRole> ShotPhrases() { return kShotPhraseRoles; }

}  // namespace tipline
