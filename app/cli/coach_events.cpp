#include "cli/coach_events.h"

#include <cstdio>

#include "cli/coach_words.h"
#include "narration/incident_lines.h"

namespace tipline::cli {
namespace {

/// How a shot of this kind is told; "" for what is no shot.
std::string_view How(PlayKind kind) {
  if (kind == "INSIDE") return " inside";
  if (kind == "OUTSIDE") return " from outside";
  if (kind == "DRIVE") return " on the drive";
  if (kind == "FASTBREAK") return " on the break";
  if (kind == "OFFREB") return " on the putback";
  if (kind == "THREE") return " with a foot on the line";  // it counted two
  if (kind == "HOLD BALL") return " at the end of the clock";
  if (kind == "BURN") return " while the clock runs";
  return "";
}

struct Sentence {
  PlayResult result;
  std::string_view words;  ///< behind the name of the man; what begins with '~' needs none
};
constexpr Sentence kSentences[] = {
    {"G3", " hits a three"},
    {"G3F", " hits a three and is fouled"},
    {"M3", " misses a three"},
    {"M3F", " is fouled shooting a three"},
    {"FTG", " makes the free throw"},
    {"FTM", " misses the free throw"},
    {"TO", " turns it over"},
    {"ST", " loses the ball"},
    {"OF", " fouls on offense"},
    {"OB", "~out of bounds"},
    {"REB", "~rebound"},
    {"LOOSE-OFF", " fouls under the basket"},
    {"LOOSE-DEF", " fouls under the basket"},
    {"NOSHOT", "~no shot before the horn"},
    {"SHOTCLOCK", "~the shot clock runs out"},
    {"DELAY", "~delay of game"},
    {"2XPF", " is in a double foul"},
    {"HOLD BALL", " holds the ball"},
    {"BURN", "~runs time off the clock"},
    {"JUMPBALL", " is tied up: jump ball"},
    {"FORCED-TIMEOUT", "~calls time to keep the ball"},
    {"FLAGRANT", " takes a flagrant foul"},
    {"DEAD-GOALTENDING", " is called for goaltending"},
    {"MOVE-UP-OB", "~the ball goes out on the way up"},
    {"MOVE-UP-ST", " loses the ball on the way up"},
    {"IN-5", "~five seconds without bringing the ball in"},
    {"IN-OB", "~the inbound pass goes out"},
    {"IN-OB-DEF", "~the inbound pass is knocked out"},
    {"IN-ST", "~the inbound pass is stolen"},
    {"ILLEGAL DEFENSE", "~illegal defense"},
    {"SHAKEN-UP", " is shaken up"},
    {"OFFENSE-BASKET-INTERFERENCE", " touches the ball on the rim"},
    {"SHOTSTUCK", "~the ball sticks at the rim"},
};

/// Why the game stands still.
std::string Stopped(const PlayLogRow& row) {
  switch (row.Note) {
    case kMediaTimeout:
      return "~media timeout";
    case kInjuryNote:
      return " is hurt and leaves the game";
    case kTechnicalNote:
      return " is called for a technical foul";
    case kFightNote:
      return " and " + ManName(row.OtherSide, row.OtherSlot) + " fight, and both are ejected";
    default:
      return "~timeout";
  }
}

/// What the man did, behind his name.
std::string What(const PlayLogRow& row) {
  const PlayResult r = row.Outcome;
  if (r == "G") return " scores" + std::string(How(row.Action));
  if (r == "GF") return " scores" + std::string(How(row.Action)) + " and is fouled";
  if (r == "M") return " misses" + std::string(How(row.Action));
  if (r == "MF")
    return " is fouled" + std::string(row.Action == "INSIDE" ? " shooting inside" : How(row.Action));
  if (r == "TIMEOUT") return Stopped(row);
  if (IsFloorFoul(r)) return " is fouled";
  for (const Sentence& s : kSentences) {
    if (s.result == r) return std::string(s.words);
  }
  return "~" + std::string(r.Text());
}

std::string Helped(const PlayLogRow& row) {
  if (row.OtherSlot == 0) return "";
  const std::string name = ManName(row.OtherSide, row.OtherSlot);
  switch (row.Note) {
    case kAssistedBy:
      return ", pass from " + name;
    case kBlockedBy:
      return ", blocked by " + name;
    case kStolenBy:
      return ", stolen by " + name;
    case kFouledBy:
      if (row.Outcome == "M" || row.Outcome == "M3") return "; " + name + " fouls under the basket";
      return row.OtherSide == row.Side && row.OtherSlot == row.Slot ? "" : " by " + name;
    default:
      return "";
  }
}

/// Clock, score and team, in front of what happened.
std::string Head(const PlayLogRow& row) {
  char head[64];
  std::snprintf(head, sizeof head, "%6s %7s  %-4s", ClockText(row.Clock).c_str(),
                (std::to_string(row.VisitorScore) + "-" + std::to_string(row.HomeScore)).c_str(),
                game.team[row.Side].Abbrev.Str().c_str());
  return head;
}

bool Is(const PlayLogRow& row, PlayNote note) {
  return row.Note == note && row.Side == game.incident.Side && row.Slot == game.incident.Slot;
}

/// The officials looked at this foul, and it was a common one after all.
bool IsReviewedFoul(const PlayLogRow& row) {
  const Incident& i = game.incident;
  return i.FlagrantLevel == 0 && row.Note == kFouledBy && row.OtherSide == i.Side && row.OtherSlot == i.Slot;
}

}  // namespace

bool IsOfIncident(const PlayLogRow& row) {
  switch (game.incident.Kind) {
    case IncidentKind::kNone:
      return false;
    case IncidentKind::kShakenUp:
      return row.Outcome == "SHAKEN-UP";
    case IncidentKind::kTemporaryInjury:
    case IncidentKind::kInjury:
      return Is(row, kInjuryNote);
    case IncidentKind::kIllegalDefense:
      return row.Outcome == "ILLEGAL DEFENSE";
    case IncidentKind::kFight:
      return Is(row, kFightNote);
    case IncidentKind::kTechnical:
      return Is(row, kTechnicalNote);
    case IncidentKind::kDelay:
      return row.Outcome == "DELAY";
    case IncidentKind::kFlagrant:
      return row.Outcome == "FLAGRANT" || IsReviewedFoul(row);
  }
  return false;
}

std::string IncidentLine(const PlayLogRow& row) {
  std::string text;
  for (const std::string& line : IncidentLines()) {
    if (!text.empty()) text += text.back() == '!' || text.back() == '.' ? " " : ", ";
    text += line;
  }
  return Head(row) + text;
}

std::string EventLine(const PlayLogRow& row) {
  const std::string what = What(row);
  const std::string who = what[0] == '~' || row.Slot == 0 ? "" : ManName(row.Side, row.Slot);
  return Head(row) + (who.empty() ? what.substr(1) : who + what) + Helped(row);
}

}  // namespace tipline::cli
