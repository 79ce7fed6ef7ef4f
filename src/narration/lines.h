#pragma once
// How lines are made: the line buffer of the stop, the names, and the choice among sayings.
//
// A family is a table of sayings for one kind of event. A saying may hold
//   {ball} {def} {fouler} {blocker} {stealer} {rebounder} {passer}  names of the men of the play
//   {team} {opp} {nick}   the offense's name, the defense's, the offense's nickname
//   {who} {other} {n} {ord} {word}   what the caller gives: two names, a number, it as an ordinal, a word
//   {a}    "an" or "a", as {n} is spoken
//   #140   a phrase of that slot of the phrase table, three digits
// A saying whose name is not known (nobody guards him, say) is passed over.
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

#include "engine/game_state.h"
#include "league/setup.h"

namespace tipline {

/// What the voice makes of a line.
enum SpokenKind : int {
  kUnspoken = 0,
  kMadeTwo = 2,
  kMadeThree = 3,
  kStealLine = 21,
  kReboundLine = 33,
  kShotLine = 55,
  kScoreRemark = 71,
  kSituationRemark = 72,
  kLostOutOfBounds = 90,
  kTraveling = 91,
  kDoubleDribble = 92,
  kOffensiveFoulLine = 93,
  kShotClockViolation = 94,
  kFiveSeconds = 95,
  kBackcourtViolation = 96,
  kThreeSeconds = 97,
  kMissedShot = 220
};

/// One way to say it.
struct Saying {
  std::string_view text;
  bool (*when)() = nullptr;  ///< it fits this play; nullptr: always
  int weight = 10;           ///< against the others of its table
};
struct Family {
  std::string_view name;
  std::span<const Saying> sayings;
};

/// What a caller adds to the names of the play.
struct Cast {
  std::string_view who = {}, other = {}, word = {};
  int number = 0;
};

/// Counts of what has been said, by saying and by phrase slot.
struct SayingTally {
  std::unordered_map<const Saying*, int> said;
  Table<int, 1, 300> slots{};
};

// Names.
std::string NameOf(int side,
                   int slot);  ///< as the announcer says it, a cut surname whole again; "" for slot 0
std::string BallName();        ///< the man with the ball in `game.scene`; "" when nobody has it
/// A side's name in all lines: its city without a trailing " C" or " L", unless the two would then be alike.
std::string PbpTeamName(int side);
/// The nickname when it is a plural that tells more than the name, else "".
std::string PluralNickname(int side);
/// The line without a final "!" and a count of one or two digits in brackets.
std::string_view Uncounted(std::string_view text);
/// `name` stands in the line as a whole word.
bool NamesHim(std::string_view line, std::string_view name);
bool IsPlural(std::string_view name);           ///< "Rockets lead", "Boston leads"
std::string OrdinalText(int n);                 ///< "1st", "2nd", "11th"; n from 1
std::string_view ArticleFor(int n);             ///< "an" before 8, 11, 18, 80 to 89, else "a"
std::string_view ArticleFor(std::string_view);  ///< "an" before a vowel, else "a"

// Lines. None is added behind the fiftieth.
void NewLine(std::string text, int spokenKind = kUnspoken, int side = 0);
void AddToLine(std::string_view text);  ///< to the last line; a new one when there is none
void Exclaim();                         ///< the last line ends in "!"
void PauseLine();                       ///< ".."
bool NoLineYet();
/// The last line, to set its cues; a spare one when there is none.
PbpLine& LastLine();

// The choice. Each draws one of the sayings that fit, by weight, and rather one that was not used lately.
/// The text, "" when none fits.
std::string Pick(const Family& family, const Cast& cast = {});
bool Say(const Family& family, const Cast& cast = {}, int spokenKind = kUnspoken,
         int side = 0);  ///< new line
/// One time in n, by the generator for show.
inline bool OneIn(int n) { return ShowRnd(n) == 1; }

// What plays and conditions ask of the moment of `game.scene`.
inline const Scene& scene() { return game.scene; }
inline bool Brief() { return setup.PBPOption == 1; }
bool WomensGame();  ///< the lines are turned to a woman's
inline bool ForMen() { return !WomensGame(); }
inline bool Scored() { return IsMadeShot(game.play.Posted); }
inline const PlayerRecord& BallMan() { return game.player[game.scene.OffenseSide][game.scene.BallPlayer]; }
inline Side& OffenseThen() { return game.side[game.scene.OffenseSide]; }
inline int FoulingSide() { return game.play.FoulingSide == 0 ? scene().DefenseSide : game.play.FoulingSide; }
inline Side& DefenseThen() { return game.side[game.scene.DefenseSide]; }

}  // namespace tipline
