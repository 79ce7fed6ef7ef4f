// The ball and the floor: its families, its phrases, and where men stand.
#include "engine/court.h"
#include "narration/describe.h"
#include "narration/opening_sayings.h"
#include "narration/pass_sayings.h"
#include "narration/phrases.h"
#include "narration/rebound_sayings.h"
#include "narration/running_sayings.h"
#include "narration/stop_sayings.h"

namespace tipline {

using namespace floor_talk;

namespace {

constexpr Family kAll[] = {kPassWord,
                           kPass,
                           kPassOn,
                           kPassBack,
                           kFeedInside,
                           kFeedOutside,
                           kLob,
                           kExtraPass,
                           kPassFirst,
                           kScreen,
                           kRoll,
                           kBringUp,
                           kBeatPress,
                           kPressTrouble,
                           kBallHolder,
                           kDribbleMove,
                           kMoreDribble,
                           kLooseBall,
                           kRecovered,
                           kPerimeter,
                           kQuickPass,
                           kKickOut,
                           kReset,
                           kOutlet,
                           kFastbreakStart,
                           kLongPass,
                           kAllAlone,
                           kGetsBack,
                           kRebound,
                           kOffensiveRebound,
                           kOwnRebound,
                           kEasyRebound,
                           kCrash,
                           kBoardFight,
                           kMissRecap,
                           kBoardOut,
                           kTeamRebound,
                           kReboundCount,
                           kStuckBall,
                           kInbound,
                           kInboundTrouble,
                           kGetsItIn,
                           kInboundSteal,
                           kDeflected,
                           kWhoseBall,
                           kTiedUp,
                           kWantsTimeout,
                           kNoTimeout,
                           kJumpCall,
                           kArrow,
                           kCallsTime,
                           kTimeoutRemark,
                           kForcedTimeout,
                           kGameWinner,
                           kEndRemark,
                           kLeaders,
                           kRout,
                           kWonStreak,
                           kLostStreak,
                           kToss,
                           kMismatch,
                           kBadToss,
                           kTossAgain,
                           kTip,
                           kStarts,
                           kSub,
                           kFirstAction,
                           kToken,
                           kSeasonDebut,
                           kSlide,
                           kEntersAt,
                           kLeavesWithFouls,
                           kGetsRest,
                           kExits,
                           kFreshSide};

// clang-format off
constexpr PhraseRole kPhrases[] = {
    {1, "brings it across the timeline", "PLAYER brings it across the timeline"},
    {2, "walks it up", "PLAYER walks the ball up the floor"},
    {3, "pushes it up the floor", "PLAYER pushes the ball up the floor"},
    {4, "crosses midcourt", "PLAYER crosses midcourt with the ball"},
    {5, "sets up the offense", "PLAYER sets up the offense"},
    {6, "rebounded by", "rebounded by PLAYER"},
    {7, "with the rebound", "PLAYER with the rebound"},
    {8, "goes out of bounds", "it goes out of bounds off the board"},
    {9, "at the top of the key", "PLAYER1 passes to PLAYER2 at the top of the key, beyond the arc"},
    {10, "on the right wing", "PLAYER1 passes to PLAYER2 on the right wing"},
    {11, "on the left wing", "PLAYER1 passes to PLAYER2 on the left wing"},
    {12, "in the right corner", "PLAYER1 passes to PLAYER2 in the right corner"},
    {13, "in the left corner", "PLAYER1 passes to PLAYER2 in the left corner"},
    {14, "on the right baseline", "PLAYER1 passes to PLAYER2 on the right baseline"},
    {15, "on the left baseline", "PLAYER1 passes to PLAYER2 on the left baseline"},
    {16, "at the free throw line", "PLAYER1 passes to PLAYER2 at the free throw line"},
    {17, "at the right elbow", "PLAYER1 passes to PLAYER2 at the right elbow"},
    {18, "at the left elbow", "PLAYER1 passes to PLAYER2 at the left elbow"},
    {19, "on the block", "PLAYER1 passes to PLAYER2 on the block"},
    {20, "in the lane", "PLAYER1 passes to PLAYER2 in the lane"},
    {21, "looks inside", "PLAYER looks inside before the pass"},
    {22, "surveys the floor", "PLAYER surveys the floor"},
    {23, "calls out the play", "PLAYER calls out the play"},
    {24, "backs it out", "PLAYER backs the ball out"},
    {27, "whips it to", "PLAYER1 whips it to PLAYER2"},
    {28, "finds", "PLAYER1 finds PLAYER2 with a pass"},
    {29, "feeds", "PLAYER1 feeds PLAYER2"},
    {30, "kicks it out to", "PLAYER1 kicks it out to PLAYER2"},
    {31, "throws it inside to", "PLAYER1 throws it inside to PLAYER2"},
    {32, "lobs it to", "PLAYER1 lobs it to PLAYER2"},
    {33, "there's a battle for the rebound", "there's a battle for the rebound"},
    {34, "lobs it up for", "PLAYER1 lobs it up for PLAYER2"},
    {35, "throws a bullet to", "PLAYER1 throws a bullet to PLAYER2"},
    {36, "comes off the screen of", "PLAYER1 comes off the screen of PLAYER2"},
    {38, "uses the pick by", "PLAYER1 uses the pick by PLAYER2"},
    {39, "rolls to the basket", "PLAYER rolls to the basket behind the pick"},
    {40, "steps out after the pick", "PLAYER steps out after the pick"},
    {41, "leads the break", "PLAYER leads the break"},
    {42, "is out and running", "PLAYER is out and running"},
    {43, "the press on", "TEAM has the press on"},
    {44, "gets out of the trap", "PLAYER gets out of the trap"},
    {45, "holds it", "PLAYER holds the ball and waits"},
    {46, "jabs and waits", "PLAYER jabs and waits, near the basket"},
    {47, "crosses over", "PLAYER crosses over"},
    {48, "goes between the legs", "PLAYER dribbles between the legs"},
    {49, "puts it on the floor", "PLAYER puts it on the floor"},
    {76, "gets his own rebound", "PLAYER gets his own rebound"},
    {87, "got his own rebound", "PLAYER got his own rebound"},
    {93, "wants to talk it over", "TEAM wants to talk it over, in a timeout"},
    {94, "the possession arrow favors", "the possession arrow favors TEAM"},
    {95, "controls the jump", "PLAYER controls the jump"},
    {96, "the referee tosses it up", "the referee tosses it up"},
    {97, "Game Over", "Game Over, at the end of the game"},
    {98, "Overtime", "Overtime, at a tie at the end of the game"},
    {99, "what a ball game!", "what a ball game!, behind a close one"},
    {148, "easy rebound for", "easy rebound for PLAYER"},
    {152, "with the offensive rebound", "PLAYER with the offensive rebound"},
    {187, "pulls it down in the lane", "PLAYER pulls the rebound down near the basket"},
    {188, "tracks down the rebound", "PLAYER tracks down the rebound away from the basket"},
    {189, "runs down the long rebound", "PLAYER runs down the long rebound, beyond the arc"},
    {205, "inbounds the ball to", "PLAYER1 inbounds the ball to PLAYER2"}};

// The rows of spots from one sideline to the other, as a man who faces the basket sees them.
constexpr int kOutsidePlace[] = {15, 15, 18, 18, 16, 17, 17, 14, 14};  // 201 to 209
constexpr int kBeyondPlace[]  = {13, 13, 11, 11,  9, 10, 10, 12, 12};  // 301 to 309
// clang-format on

}  // namespace

std::span<const Family> FloorFamilies() { return kAll; }
std::span<const PhraseRole> FloorPhrases() { return kPhrases; }

namespace floor_talk {

void TellHolder(int side, int slot, bool offBoard) {
  game.commentary.HolderOffBoard = offBoard;
  game.commentary.HolderSide = slot > 0 ? side : 0;
  game.commentary.Holder = slot;
}

int ToldHolder() {
  const CommentaryState& c = game.commentary;
  const int side = scene().OffenseSide;
  return c.HolderSide == side && PositionOf(side, c.Holder) > 0 ? c.Holder : 0;
}

std::string PlaceOf(int slot) {
  const int spot = ManAt(scene().OffenseSide, slot).CourtSpot;
  if (IsInsideSpot(spot)) return Phrase(spot == 102 || spot == 103 ? 20 : 19);
  if (IsThreeSpot(spot)) return Phrase(kBeyondPlace[spot - 301]);
  return spot >= 201 && spot <= 209 ? Phrase(kOutsidePlace[spot - 201]) : "";
}

int ReboundZone() {
  const int side = game.play.ReboundSide;
  if (side != 1 && side != 2) return 0;
  int spot = ManAt(side, game.play.Rebounder).CourtSpot;
  if (side == scene().DefenseSide) {  // he stands with his man
    const int own = PositionOf(side, game.play.Rebounder);
    spot = 0;
    for (int p = 1; p <= kPositions; ++p) {
      if (game.side[side].Matchup[p] == own) spot = ManAt(3 - side, game.side[3 - side].Lineup[p]).CourtSpot;
    }
  }
  return IsInsideSpot(spot) ? 1 : IsThreeSpot(spot) ? 3 : spot >= 201 && spot <= 209 ? 2 : 0;
}

std::vector<std::string> Listed(std::vector<std::string> parts) {
  for (std::size_t i = 0; i + 1 < parts.size(); ++i) parts[i] += ",";
  if (parts.size() > 1) parts.back() = "and " + parts.back();
  return parts;
}

void WrapLine(std::string lead, const std::vector<std::string>& parts) {
  constexpr std::size_t kMostLength = 60;
  std::string line = std::move(lead);
  for (const std::string& part : parts) {
    if (!line.empty() && line.size() + 1 + part.size() > kMostLength) {
      NewLine(std::move(line));
      line = "";
    }
    if (!line.empty()) line += ' ';
    line += part;
  }
  NewLine(std::move(line));
}

std::string_view PositionWord(int position) {
  static constexpr std::string_view kWords[] = {
      "", "point guard", "shooting guard", "small forward", "power forward", "center"};
  return position >= 1 && position <= kPositions ? kWords[position] : kWords[0];
}

std::string SideWithArticle(int side) {
  const std::string nick = PluralNickname(side);
  return nick.empty() ? PbpTeamName(side) : "the " + nick;
}

}  // namespace floor_talk
}  // namespace tipline
