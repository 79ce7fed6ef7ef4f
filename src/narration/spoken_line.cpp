// The plain sentence on a result that the voice says where the line leaves the man unnamed.
#include <algorithm>
#include <array>

#include "narration/shot_conditions.h"
#include "narration/speech.h"

namespace tipline {
namespace {

constexpr std::size_t kSpokenLength = 100;

bool Names(int n, std::string_view name) {
  if (n < 1) return false;
  const std::string_view text = Uncounted(game.commentary.Line[n].Text);
  const std::string_view first = text.substr(0, name.size() + 1);
  const std::string_view last = text.substr(text.size() - std::min(text.size(), name.size() + 1));
  return NamesHim(first, name) || NamesHim(last, name);
}

bool IsShotResult(int kind) { return kind == kMadeTwo || kind == kMadeThree || kind == kMissedShot; }

/// The shot was missed, and line n tells what became of the tip.
bool OfTheTip(int n) {
  if (game.play.TipIn == 0 || !IsShotResult(game.commentary.Line[n].SpokenKind)) return false;
  for (int k = 1; k < n; ++k) {
    if (IsShotResult(game.commentary.Line[k].SpokenKind)) return true;
  }
  return false;
}

/// The man whom line n is about.
std::string ActingMan(int n) {
  const Play& play = game.play;
  const int kind = game.commentary.Line[n].SpokenKind;
  if (OfTheTip(n)) return NameOf(scene().OffenseSide, play.Tipper);
  if (kind == kStealLine) return NameOf(scene().DefenseSide, play.Stealer);
  if (kind == kReboundLine) return play.ReboundSide > 2 ? "" : NameOf(play.ReboundSide, play.Rebounder);
  return BallName();
}

/// In the lines of the shot itself and of its result.
bool Said(std::string_view word) {
  for (int n = 1; n <= game.commentary.PbpLineCount; ++n) {
    const PbpLine& line = game.commentary.Line[n];
    const bool ofShot = line.SpokenKind == kShotLine || IsShotResult(line.SpokenKind);
    if (ofShot && line.Text.find(word) != std::string::npos) return true;
  }
  return false;
}

/// How the announcer called the shot, where he did: "hook".
std::string_view ShotWord() {
  for (const std::string_view word : {"hook", "fadeaway", "turnaround", "set shot", "runner", "floater",
                                      "bank shot", "finger roll", "jumper"}) {
    if (Said(word)) return word;
  }
  return "";
}
bool WasDunk() { return Said("dunk") || Said("slam") || Said("jams it"); }
bool WasLayup() {
  return Said("layup") || Said("lay-in") || Said("lays it") || Said("underhands") || Said("scoops it");
}

/// From where, where that tells something.
std::string_view SpotWord() {
  constexpr std::array<std::string_view, 9> kOutside{"the baseline", "the side",      "the wing",
                                                     "the elbow",    "the foul line", "the elbow",
                                                     "the wing",     "the side",      "the baseline"};
  constexpr std::array<std::string_view, 9> kBeyondArc{
      "the corner",         "the wing", "the wing", "the top of the key", "the top of the key",
      "the top of the key", "the wing", "the wing", "the corner"};
  const bool three = scene().PlayKind == "THREE";
  const int first = three ? 301 : 201;
  if ((!three && scene().PlayKind != "OUTSIDE") || SpotOfShot() < first || SpotOfShot() > first + 8)
    return "";
  const auto place = static_cast<std::size_t>(SpotOfShot() - first);
  return three ? kBeyondArc[place] : kOutside[place];
}

std::string Missed(const std::string& name) {
  std::string text = name + " missed";
  if (WasDunk()) {
    text = name + " missed a dunk";
  } else if (WasLayup()) {
    text = name + " missed a lay up";
  } else if (!ShotWord().empty()) {
    text = name + " misses a " + std::string(ShotWord());
  } else if (scene().PlayKind == "DRIVE") {
    text = name + " misses on a drive";
  } else if (!SpotWord().empty()) {
    text += " from " + std::string(SpotWord());
  }
  return game.play.AirBall ? text + " , air ball " : text;
}

std::string MadeTwo(const std::string& name) {
  const std::string text = name + " scores";
  if (WasDunk()) return text + " on a dunk";
  if (WasLayup()) return text + " on a lay up";
  if (!ShotWord().empty()) return text + " on a " + std::string(ShotWord());
  if (scene().PlayKind == "DRIVE") return text + " on a drive";
  if (scene().PlayKind == "INSIDE") return text + " from inside";
  if (!SpotWord().empty()) return text + " from " + std::string(SpotWord());
  return text;
}

std::string MadeThree(const std::string& name) {
  const bool first = VoiceRnd(10) <= 5;
  if (Said("deep") || Said("well beyond")) return name + (first ? " scores on a deep 3" : " hits a deep 3");
  if (SpotOfShot() == 301 || SpotOfShot() == 309) {
    return name + (first ? " scores on a 3 from the corner" : " hits a 3 from the corner");
  }
  return name + " hits a three";
}

std::string ShotSentence(int kind, const std::string& name) {
  std::string text = kind == kMissedShot ? Missed(name) : kind == kMadeTwo ? MadeTwo(name) : MadeThree(name);
  if (game.play.Posted.Text().ends_with('F')) text += " , and it was fouled";
  return text;
}

/// What has been whistled, whoever did it; "" for other kinds.
std::string_view Violation(int kind) {
  switch (kind) {
    case kShotClockViolation:
      return "shot clock violation";
    case kFiveSeconds:
      return "5 second violation";
    case kBackcourtViolation:
      return "back court violation";
    case kThreeSeconds:
      return "3 second violation";
    default:
      return "";
  }
}

/// "" for a line that carries no result.
std::string Sentence(int n, const std::string& name) {
  const int kind = game.commentary.Line[n].SpokenKind;
  if (OfTheTip(n)) return name + (kind == kMissedShot ? " missed the tip" : " scores on a tip");
  switch (kind) {
    case kStealLine:
      return "stolen by " + name;
    case kReboundLine:
      return "rebounded by " + name;
    case kLostOutOfBounds:
      return name + " lost it out of bounds";
    case kTraveling:
      return name + " traveled";
    case kDoubleDribble:
      return name + " double dribbled";
    case kOffensiveFoulLine:
      return name + " is called for an offensive foul";
    case kMadeTwo:
    case kMadeThree:
    case kMissedShot:
      return ShotSentence(kind, name);
    default:
      return "";
  }
}

}  // namespace

void FillSpokenLine(int n) {
  PbpLine& line = game.commentary.Line[n];
  if (!Violation(line.SpokenKind).empty()) {
    line.SpokenText = Violation(line.SpokenKind);
    return;
  }
  const std::string name = ActingMan(n);
  const bool heard = n > 1 && WantsToHear(game.commentary.Line[n - 1].SpokenKind);
  if (name.empty() || Names(n, name) || (heard && Names(n - 1, name))) return;
  line.SpokenText = Sentence(n, name).substr(0, kSpokenLength);
}

}  // namespace tipline
