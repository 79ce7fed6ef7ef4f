#include "aftermath/play_log.h"

#include <cstdio>
#include <utility>

#include "aftermath/box_sums.h"
#include "aftermath/box_text.h"
#include "base/page.h"
#include "base/record_file.h"
#include "league/box_record.h"
#include "league/player_values.h"

namespace tipline {
namespace {

struct Happening {
  PlayResult result;
  std::string_view action, outcome;  ///< an action of "": by the kind of shot
};
constexpr Happening kHappenings[] = {
    {"G", "", "Made"},
    {"G3", "", "Made"},
    {"GF", "", "Made+F"},
    {"G3F", "", "Made+F"},
    {"M", "", "Missed"},
    {"M3", "", "Missed"},
    {"MF", "", "Fouled"},
    {"M3F", "", "Fouled"},
    {"F0", "Fouled", ""},
    {"F1", "Fouled", "Shots"},
    {"F2", "Fouled", "Shots"},
    {"F1-1", "Fouled", "Shots"},
    {"F3-2", "Fouled", "Shots"},
    {"FTG", "Free Throw", "Made"},
    {"FTM", "Free Throw", "Missed"},
    {"TO", "Turnover", ""},
    {"ST", "Turnover", "Steal"},
    {"OF", "Off Foul", ""},
    {"OB", "Ball Out", ""},
    {"REB", "Rebound", ""},
    {"OFFREB", "Rebound", "Off"},
    {"DEFREB", "Rebound", "Def"},
    {"LOOSE-OFF", "Loose Ball", "Foul"},
    {"LOOSE-DEF", "Loose Ball", "Foul"},
    {"DEAD", "Dead Ball", ""},
    {"NOSHOT", "No Shot", ""},
    {"SHOTCLOCK", "Shot Clock", "Over"},
    {"DELAY", "Delay", ""},
    {"2XPF", "Foul Each", ""},
    {"HOLD BALL", "Hold Ball", ""},
    {"BURN", "Burn", ""},
    {"PASS", "Pass", ""},
    {"JUMPBALL", "Jump Ball", ""},
    {"FORCED-TIMEOUT", "Timeout", ""},
    {"FLAGRANT", "Flagrant", "Foul"},
    {"DEAD-GOALTENDING", "Goaltend", ""},
    {"MOVE-UP-OB", "Move Up", "Out"},
    {"MOVE-UP-ST", "Move Up", "Steal"},
    {"IN-5", "Inbound", "5 Sec"},
    {"IN-OB", "Inbound", "Out"},
    {"IN-OB-DEF", "Inbound", "Out"},
    {"IN-ST", "Inbound", "Steal"},
    {"ILLEGAL DEFENSE", "Illegal D", ""},
    {"SHAKEN-UP", "Shaken Up", ""},
    {"TIMEOUT", "Timeout", ""},
    {"OFFENSE-BASKET-INTERFERENCE", "Interfere", ""},
    {"SHOTSTUCK", "Ball Stuck", ""},
};

bool IsThree(PlayResult r) { return r == "G3" || r == "G3F" || r == "M3" || r == "M3F"; }

std::string_view ShotName(const PlayLogRow& row) {
  const bool three = IsThree(row.Outcome);
  if (row.Action == "FASTBREAK") return three ? "Fastbreak3" : "Fastbreak";
  if (row.Action == "OFFREB") return three ? "Off-Reb(3)" : "Off-Reb";
  if (row.Action == "THREE") return three ? "Three" : "Three/2";  // with a foot on the line
  if (three) return "Three";
  if (row.Action == "INSIDE") return "Inside";
  if (row.Action == "DRIVE") return "Drive";
  return "Outside";
}

/// A timeout is noted for all that stops the clock.
std::string_view StopName(PlayNote note) {
  switch (note) {
    case kInjuryNote:
      return "Injury";
    case kFightNote:
      return "Fight";
    case kTechnicalNote:
      return "Technical";
    default:
      return "Timeout";
  }
}

std::string_view NoteWords(u8 note) {
  switch (note) {
    case kAssistedBy:
      return "Assist ";
    case kBlockedBy:
      return "Block ";
    case kStolenBy:
      return "Steal ";
    case kFouledBy:
      return "Foul ";
    case kFightNote:
      return "With ";
    default:
      return "";
  }
}

std::string NoteOf(const PlayLogRow& row) {
  if (row.Note == kMediaTimeout) return "Media";
  const std::string_view words = NoteWords(row.Note);
  const bool himself = row.OtherSide == row.Side && row.OtherSlot == row.Slot;  // he charged
  if (words.empty() || row.OtherSlot == 0 || himself) return "";
  return (std::string(words) + KnownName(PlayerAt(row.OtherSide, row.OtherSlot))).substr(0, 25);
}

// The scoring list ------------------------------------------------------------------------------------------

struct ScoreKind {
  char letter;
  std::string_view words;
};
constexpr ScoreKind kScoreKinds[] = {{'O', "Outside     "}, {'I', "Inside      "}, {'D', "Drive       "},
                                     {'B', "Fastbreak   "}, {'K', "Dunk        "}, {'k', "Off-Reb-Dunk"},
                                     {'F', "Free Throw  "}, {'3', "Three       "}, {'+', "Fastbreak(3)"},
                                     {'-', "Off-Reb(3)  "}, {'R', "Off-Reb     "}};

/// What is no kind prints as itself.
std::string_view WordsOf(const char& kind) {
  for (const ScoreKind& known : kScoreKinds) {
    if (known.letter == kind) return known.words;
  }
  return {&kind, 1};
}

void PutScore(Page& page, const ScoreLogRow& row) {
  page.Right(3, row.Period).Put("  ").Right(6, ClockText(row.TimeLeft)).Put("  ");
  page.Left(3, game.team[row.Side].Abbrev.View()).Put("  ");
  page.Left(15, KnownName(PlayerAt(row.Side, row.Slot)))
      .Put("  ")
      .Left(12, WordsOf(row.Kind))
      .Right(5, row.ScorerPoints);
  page.Right(7, row.VisitorScore).Right(5, row.HomeScore).End();
}

// The file --------------------------------------------------------------------------------------------------

BoxPlayRow StoredRow(const PlayLogRow& row) {
  BoxPlayRow stored;
  stored.Period = row.Period;
  stored.Clock = static_cast<i16>(Clamp(row.Clock, 0, 32000));
  stored.Side = row.Side, stored.Slot = row.Slot;
  stored.Action = row.Action.Index(), stored.Outcome = row.Outcome.Index();
  stored.OtherSide = row.OtherSide, stored.OtherSlot = row.OtherSlot;
  stored.Note = row.Note;
  stored.VisitorScore = row.VisitorScore, stored.HomeScore = row.HomeScore;
  return stored;
}

/// False for a row that no game has left.
bool TakeRow(const BoxPlayRow& stored, PlayLogRow& row) {
  if (stored.Side < 1 || stored.Side > 2 || stored.Slot > kRosterSlots || stored.OtherSide > 2) return false;
  if (stored.OtherSlot > (stored.OtherSide == 0 ? 0 : kRosterSlots) || stored.Note > kTechnicalNote)
    return false;
  if (!row.Action.SetIndex(stored.Action) || !row.Outcome.SetIndex(stored.Outcome)) return false;
  row.Period = stored.Period;
  row.Clock = Clamp<i32>(stored.Clock, 0, 32000);
  row.Side = stored.Side, row.Slot = stored.Slot;
  row.OtherSide = stored.OtherSide, row.OtherSlot = stored.OtherSlot;
  row.Note = stored.Note;
  row.VisitorScore = stored.VisitorScore, row.HomeScore = stored.HomeScore;
  return true;
}

}  // namespace

std::string ClockText(int tenths) {
  char text[32];
  if (tenths < kMinute) {
    std::snprintf(text, sizeof text, "0:%02d.%d", tenths / 10, tenths % 10);
  } else {
    std::snprintf(text, sizeof text, "%d:%02d", tenths / kMinute, tenths % kMinute / 10);
  }
  return text;
}

PlayText TextOf(const PlayLogRow& row) {
  PlayText text;
  text.Period = row.Period;
  text.Clock = ClockText(row.Clock).substr(0, 6);
  text.Abbrev = game.team[row.Side].Abbrev.Str();
  if (row.Slot > 0) text.Name = KnownName(PlayerAt(row.Side, row.Slot)).substr(0, 12);
  for (const Happening& known : kHappenings) {
    if (known.result != row.Outcome) continue;
    text.Action = known.action.empty() ? ShotName(row) : known.action;
    text.Outcome = known.outcome;
  }
  if (row.Outcome == "TIMEOUT") text.Action = StopName(static_cast<PlayNote>(row.Note));
  text.Score = (std::to_string(row.VisitorScore) + "-" + std::to_string(row.HomeScore)).substr(0, 7);
  text.Note = NoteOf(row);
  return text;
}

std::string PlayLogPage() {
  Page page;
  page.Put("Per   Time  Team Player        Action      Result    Score  Note").End();
  int period = 0;
  for (int n = 1; n <= game.PlayLogCount; ++n) {
    const PlayText row = TextOf(game.PlayLog[n]);
    if (period != 0 && row.Period != period) page.End();
    period = row.Period;
    page.Right(3, row.Period).Put(" ").Right(6, row.Clock).Put("  ").Left(3, row.Abbrev).Put("  ");
    page.Left(12, row.Name).Put("  ").Left(10, row.Action).Put("  ").Left(6, row.Outcome).Put("  ");
    page.Right(7, row.Score);
    if (!row.Note.empty()) page.Put("  ").Put(row.Note);
    page.End();
  }
  return page.Text();
}

std::string ScoringPage() {
  Page page;
  page.Put("Per    Time  Team Player           Shot           Pts").Right(8, game.team[1].Abbrev.View());
  page.Right(5, game.team[2].Abbrev.View()).End();
  if (game.ScoreLogDropped > 0) page.Put("Earlier baskets are not listed.").End();
  int period = 0;
  for (int n = 1; n <= game.ScoreLogCount; ++n) {
    const ScoreLogRow& row = game.ScoreLog[n];
    if (period != 0 && row.Period != period) page.End();
    period = row.Period;
    PutScore(page, row);
  }
  return page.Text();
}

std::filesystem::path PlayLogBeside(const std::filesystem::path& box) {
  std::filesystem::path file = box;
  return file.replace_extension(".PLY");
}

bool SavePlayLog(const std::filesystem::path& file) {
  std::string bytes(static_cast<std::size_t>(game.PlayLogCount) * BoxPlayRow::kRecordSize, '\0');
  auto* at = reinterpret_cast<u8*>(bytes.data());
  for (int n = 1; n <= game.PlayLogCount; ++n, at += BoxPlayRow::kRecordSize) {
    WriteRecord(StoredRow(game.PlayLog[n]), at);
  }
  return WriteWholeFile(file, bytes);
}

bool ReadPlayLog(const std::filesystem::path& file) {
  game.PlayLogCount = 0;
  const RecordFile rows(file, BoxPlayRow::kRecordSize);
  if (!rows.Exists()) return false;
  return rows.ReadAll(std::min(rows.Count(), kPlayLogRows), [](int, const u8* bytes) {
    BoxPlayRow stored;
    ReadRecord(bytes, stored);
    PlayLogRow row;
    if (TakeRow(stored, row)) game.PlayLog[++game.PlayLogCount] = row;
  });
}

}  // namespace tipline
