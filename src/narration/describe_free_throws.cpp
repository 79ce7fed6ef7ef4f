// At the line: the walk to it, what is known of the shooter, the shot, and what it adds up to.
#include <algorithm>

#include "league/program.h"
#include "narration/describe.h"
#include "narration/free_throw_sayings.h"

namespace tipline {
namespace {

using namespace whistles;

constexpr std::string_view kWords[] = {"first", "second", "third"};
/// Which shot of the trip it is.
std::string_view WordOfShot() {
  const int before = std::min(game.commentary.FreeThrowNo, 2);
  return kWords[scene().PlayKind == "SHOOT2-2" ? std::max(before, 1) : before];
}

/// The shot belongs to the trip told last when the same man shoots, no time has passed, and it is no kind of
/// shot that only begins a trip.
void FollowTrip() {
  CommentaryState& c = game.commentary;
  const PlayKind kind = scene().PlayKind;
  const bool begins = kind == "SHOOT3" || kind == "SHOOT3-2" || kind == "SHOOT1-1";
  if (begins || c.FreeThrowShooter != scene().BallPlayer || c.FreeThrowClock != scene().GameClock)
    c.FreeThrowNo = 0;
  c.FreeThrowShooter = scene().BallPlayer;
  c.FreeThrowClock = scene().GameClock;
}

/// The trip is over with this shot.
bool TripEnds() {
  const PlayKind kind = scene().PlayKind;
  return kind == "SHOOT1" || (kind == "SHOOT1-1" && !FreeThrowMade()) ||
         (kind == "SHOOT2-1" && FreeThrowMade());
}

/// The season being played, once he has been to the line in it; else his real one.
const StatLine& SeasonAtTheLine() {
  constexpr int kEnough = 10;
  const StatLine& replay = BallMan().Stats[2];
  return program.GameKind == "L" && replay.FTA >= kEnough ? replay : BallMan().Stats[1];
}

/// ".756", "1.000".
std::string RateText(int made, int tried) {
  const int rate = Round(1000.0 * made / tried);
  if (rate >= 1000) return "1.000";
  const std::string digits = std::to_string(1000 + rate);
  return "." + digits.substr(1);
}

/// Behind his name, when the line has room for it.
bool AddIfShort(const std::string& words) {
  constexpr std::size_t kMostLength = 60;
  if (words.empty() || LastLine().Text.size() + words.size() > kMostLength) return false;
  AddToLine(words);
  return true;
}

/// A word on who he is, once a game at most, behind his name.
void TellBiography() {
  const PlayerRecord& p = BallMan();
  u8& said = game.commentary.BioSaid[scene().OffenseSide][scene().BallPlayer];
  if (said || GameOfShooter().FTA != 1) return;
  const int years = p.Year - p.DebutYear;
  const bool known = p.DebutYear >= 1930;
  bool told = false;
  if (known && years == 0 && OneIn(4)) {
    told = AddIfShort(Pick(kRookie));
  } else if (known && years >= 2 && years <= 25 && OneIn(10)) {
    told = AddIfShort(Pick(kVeteran, {.number = years}));
  } else if (!p.College.Empty() && OneIn(10)) {
    const std::string college = p.College.Str();
    told = AddIfShort(Pick(kCollege, {.other = ArticleFor(college), .word = college}));
  }
  if (told) said = 1;
}

void TellSeasonRate() {
  const StatLine& season = SeasonAtTheLine();
  if (season.FTA < 10 || !OneIn(8)) return;
  Say(kLineRate, {.word = RateText(season.FTM, season.FTA)}, kSituationRemark);
}

void StepToTheLine() {
  constexpr int kBigNight = 20;
  Say(kToTheLine);
  TellBiography();
  const StatLine& line = GameOfShooter();
  const int points = PointsOf(line) - (FreeThrowMade() ? 1 : 0);
  if (line.FTA == 1 && points >= kBigNight) {
    Say(kFirstTrip, {.number = points}, kSituationRemark);
  } else {
    TellSeasonRate();
  }
  if (OneIn(3)) Say(kTrip);
}

/// The shot and its result: in two lines or in one.
void TellShotAndResult() {
  const Cast cast{.word = WordOfShot()};
  const bool made = FreeThrowMade();
  const int side = made ? scene().OffenseSide : 0;
  if (OneIn(2) && Say(kFreeThrowShot, cast)) {
    Say(made ? kFreeThrowIn : kFreeThrowOut, {}, kUnspoken, side);
  } else {
    Say(made ? kFreeThrowMade : kFreeThrowMissed, cast, kUnspoken, side);
  }
  if (made) LastLine().Sound = 9;
}

/// A run at the line is told rather early than late: the note is set by the clock.
void TellForm() {
  CommentaryState& c = game.commentary;
  const StatLine& line = GameOfShooter();
  const int streak = BallMan().FreeThrowStreak;
  if (FreeThrowMade()) c.FreeThrowStreakNote = ShowRnd(600) <= scene().GameClock;
  if (FreeThrowMade() && line.FTM == 1 && line.FTA >= 3) {
    Say(kFinally, {.number = line.FTA});
  } else if (FreeThrowMade() && Say(kLineScore, {}, kScoreRemark)) {
    return;
  } else if (FreeThrowMade() && c.FreeThrowStreakNote && streak >= 10 && OneIn(6)) {
    Say(kLineStreak, {.number = streak}, kSituationRemark);
  } else if (OneIn(4)) {
    Say(kLineForm, {.number = line.FTA}, kSituationRemark);
  }
}

}  // namespace

bool whistles::Technical() {
  if (!game.TechnicalFreeThrow) return false;
  for (int n = game.PlayLogCount; n > 0; --n) {
    const PlayLogRow& row = game.PlayLog[n];
    if (row.Clock != scene().GameClock || row.Period != game.Period) break;
    if (row.Outcome == "FLAGRANT") return false;
  }
  return true;
}

void DescribeFreeThrow() {
  if (BallName().empty()) return;
  FollowTrip();
  if (Brief()) {
    if (Say(FreeThrowMade() ? kBriefMake : kBriefMiss, {}, kUnspoken,
            FreeThrowMade() ? scene().OffenseSide : 0))
      LastLine().Sound = 7;
  } else {
    if (FirstOfTrip()) StepToTheLine();
    TellShotAndResult();
    TellForm();
  }
  game.commentary.FreeThrowNo = TripEnds() ? 0 : game.commentary.FreeThrowNo + 1;
}

}  // namespace tipline
