// All that is said of shots, the score and the clock.
#include "narration/break_sayings.h"
#include "narration/describe.h"
#include "narration/drive_sayings.h"
#include "narration/inside_sayings.h"
#include "narration/made_sayings.h"
#include "narration/missed_sayings.h"
#include "narration/score_sayings.h"
#include "narration/shot_sayings.h"

namespace tipline {

std::span<const Family> ShotFamilies() {
  static constexpr Family kAll[] = {
      kOutsideShot,  kOutsideMove,   kSetShot,      kSameSpotShot,  kThreeShot,     kDeepThree,
      kHeave,        kHeaveShot,     kWildShot,     kFavorite,      kLayup,         kSpin,
      kDoubledSetup, kWayOffSetup,   kLooseSetup,   kTightSetup,    kFoulSetup,     kInsideMove,
      kInsideShot,   kPutbackShot,   kInsideFinish, kInsideLetdown, kDriveMove,     kDriveShot,
      kDriveFinish,  kDriveLetdown,  kPoster,       kBreakShot,     kBreakThree,    kBreakThreeMade,
      kBreakFinish,  kLob,           kDunk,         kFollowDunk,    kDunkTry,       kBlownDunk,
      kMade,         kThreeMade,     kLayupMade,    kHeaveMade,     kHeaveEnd,      kLineTouched,
      kOldThree,     kThreesSoFar,   kFinallyOne,   kHotShooter,    kPointMark,     kDoubleDouble,
      kTripleDouble, kAssist,        kGreatPasser,  kTipMade,       kTipDunk,       kTipMissed,
      kGoaltend,     kGoaltendCount, kMissed,       kAirBall,       kHumanAfterAll, kColdShooter,
      kBlock,        kBlockRemark,   kHang,         kHangIn,        kHangOut,       kInterferenceCall,
      kPointsOff,    kStuck,         kStraight,     kRun,           kAheadBy,       kLeadsBy,
      kLeadBy,       kLeadForThe,    kBehindBy,     kTrailsBy,      kTrailBy,       kTieGame,
      kLeadChange,   kScheme,        kSchemeFor,    kDrought,       kHold,          kKill,
      kCantFoul,     kNoShot,        kNoShotBeaten, kTooLateShot,   kHorn,          kWaved,
      kForTheLead,   kToTie};
  return kAll;
}

}  // namespace tipline
