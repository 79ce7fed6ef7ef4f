#include "harness/commentary_judge.h"

#include <algorithm>
#include <cctype>
#include <initializer_list>

#include "engine/game_state.h"
#include "narration/lines.h"

namespace tipline {
namespace {

constexpr std::size_t kMostLength = 70;
constexpr std::size_t kMostExamples = 60;

bool IsLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) || c == '\''; }

/// Where `word` stands in the line as a word of its own; npos when it does not.
std::size_t FindWord(const std::string& line, const std::string& word) {
  for (std::size_t at = line.find(word); at != std::string::npos; at = line.find(word, at + 1)) {
    const std::size_t end = at + word.size();
    const bool begins = at == 0 || !std::isalpha(static_cast<unsigned char>(line[at - 1]));
    const bool ends = end == line.size() || !std::isalpha(static_cast<unsigned char>(line[end]));
    if (begins && ends) return at;
  }
  return std::string::npos;
}

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

/// One of the phrases stands in the line, in whole words and in any case.
bool Tells(const std::string& line, std::initializer_list<const char*> phrases) {
  const std::string lower = Lower(line);
  return std::any_of(phrases.begin(), phrases.end(),
                     [&](const char* phrase) { return FindWord(lower, phrase) != std::string::npos; });
}

/// A basket, however it is told.
bool TellsBasket(const std::string& line) {
  return line == "good" || line == "good!" ||
         Tells(line,
               {"scores",          "hits it",       "hits the",       "hits a",      "makes it",  "makes the",
                "made it",         "made the",      "knocks it down", "drains",      "buries",    "all net",
                "nothing but net", "swish",         "count it",       "and in",      "it's good", "drops in",
                "gets the roll",   "slams it home", "throws it down", "banks it in", "finishes",  "converts",
                "for the lead",    "to tie it"});
}
bool TellsMiss(const std::string& line) {
  return Tells(line, {"misses",         "missed",        "no good",
                      "won't go",       "won't fall",    "won't drop",
                      "off the rim",    "off the front", "off the back",
                      "off the heel",   "off the iron",  "too strong",
                      "too long",       "too short",     "air ball",
                      "rims out",       "doesn't fall",  "can't get it",
                      "blew",           "stoned",        "hoop didn't want it",
                      "leaves it short"});
}

int NumberAt(const std::string& line, std::size_t at) {
  int number = -1;
  for (; at < line.size() && std::isdigit(static_cast<unsigned char>(line[at])) && number < 10000; ++at)
    number = (number < 0 ? 0 : number * 10) + (line[at] - '0');
  return number;
}
/// The number that ends in front of place `end`; -1 for none.
int NumberBefore(const std::string& line, std::size_t end) {
  std::size_t at = end;
  while (at > 0 && std::isdigit(static_cast<unsigned char>(line[at - 1]))) --at;
  return at == end ? -1 : NumberAt(line, at);
}

/// "a 8-0 run", "an 10-0 run".
bool WrongArticle(const std::string& line) {
  for (std::size_t at = 0; at + 2 < line.size(); ++at) {
    if (line[at] != 'a' || (at > 0 && line[at - 1] != ' ')) continue;
    const bool an = line[at + 1] == 'n';
    const int number = line[at + (an ? 2 : 1)] == ' ' ? NumberAt(line, at + (an ? 3 : 2)) : -1;
    if (number >= 0 && an != (ArticleFor(number) == "an")) return true;
  }
  return false;
}

/// The margin that the line tells, -1 when it tells none.
int ToldMargin(const std::string& line) {
  for (const char* words : {"leads by ", "lead by ", "ahead by ", "trails by ", "trail by ", "trailing by ",
                            "behind by ", "down by "}) {
    if (const auto at = line.find(words); at != std::string::npos)
      return NumberAt(line, at + std::char_traits<char>::length(words));
  }
  const auto lead = line.find(" point lead");
  return lead == std::string::npos ? -1 : NumberBefore(line, lead);
}

bool Made(PlayResult r) { return IsMadeShot(r) || r == "FTG"; }

}  // namespace

long CommentaryJudge::Faults() const {
  long sum = 0;
  for (const auto& [kind, count] : blemishes) sum += count;
  return sum;
}

void CommentaryJudge::BeginGame() {
  men_.clear();
  teams_.clear();
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (OnTeam(side, slot)) men_[NameOf(side, slot)].emplace_back(side, slot);
    }
    for (const std::string& name : {game.team[side].City.Str(), PbpTeamName(side),
                                    game.team[side].Nickname.Str(), game.team[side].CoachName.Str()}) {
      if (!name.empty()) teams_.push_back(name);
    }
  }
  std::sort(teams_.begin(), teams_.end(), [](const auto& a, const auto& b) { return a.size() > b.size(); });
}

void CommentaryJudge::Line(std::string_view text, int, int) { stop_.emplace_back(text); }

void CommentaryJudge::Blame(Blemish blemish, const std::string& line) {
  ++blemishes[blemish];
  if (examples.size() < kMostExamples && blemishes[blemish] <= 8) {
    examples.push_back(std::string(kBlemishNames[static_cast<int>(blemish)]) + ": \"" + line + "\" (" +
                       std::string(game.scene.PlayKind.Text()) + " " + std::string(game.play.Posted.Text()) +
                       ")");
  }
}

void CommentaryJudge::StopShown() {
  for (const std::string& line : stop_) {
    ++lines;
    ++skeletons[Skeleton(line)];
    if (line.size() > kMostLength) Blame(Blemish::kTooLong, line);
    if (line.find("  ") != std::string::npos || line.front() == ' ' || line.back() == ' ')
      Blame(Blemish::kBlanks, line);
    if (WrongArticle(line)) Blame(Blemish::kArticle, line);
    if (line.find_first_of("{}#") != std::string::npos) Blame(Blemish::kUnfilled, line);
    if (WomensGame() && Tells(line, {"he", "him", "his", "himself"})) Blame(Blemish::kMasculine, line);
    JudgeNumbers(line);
    if (!game.commentary.TellsPlay) continue;
    JudgeResult(line);
    JudgeNames(line);
  }
  stop_.clear();
}

/// A tip is told with the miss before it.
void CommentaryJudge::JudgeResult(const std::string& line) {
  const PlayResult r = game.play.Posted;
  if (game.play.TipIn || r == "OF") return;  // a shot let go behind the whistle does not count
  if (!Made(r) && TellsBasket(line)) Blame(Blemish::kMadeOnMiss, line);
  if (Made(r) && TellsMiss(line)) Blame(Blemish::kMissOnMade, line);
}

void CommentaryJudge::JudgeNames(const std::string& line) {
  for (const auto& [name, bearers] : men_) {
    if (FindWord(line, name) == std::string::npos) continue;
    const bool team = std::any_of(teams_.begin(), teams_.end(), [&](const std::string& t) {
      return t.find(name) != std::string::npos && line.find(t) != std::string::npos;
    });
    const bool there = std::any_of(bearers.begin(), bearers.end(),
                                   [](const auto& man) { return PositionOf(man.first, man.second) > 0; });
    if (!there && !team) Blame(Blemish::kStranger, line);
  }
}

void CommentaryJudge::JudgeNumbers(const std::string& line) {
  if (const int told = ToldMargin(line); told >= 0 && told != Margin()) Blame(Blemish::kScore, line);
  if (const auto run = line.find("-0 run");
      run != std::string::npos && NumberBefore(line, run) != game.RunPoints)
    Blame(Blemish::kScore, line);
  for (int a = 1; a <= 2; ++a) {  // "Boston 45 Denver 43", leader first
    for (const std::string& first : {PbpTeamName(a), game.team[a].Nickname.Str()}) {
      if (line.rfind(first + " ", 0) != 0) continue;
      const std::string rest = line.substr(first.size() + 1);
      std::size_t digits = 0;
      while (digits < rest.size() && std::isdigit(static_cast<unsigned char>(rest[digits]))) ++digits;
      if (digits == 0 || digits > 3 || digits >= rest.size() || rest[digits] != ' ') continue;
      const std::size_t last = rest.find_last_of(' ');
      const std::string end = rest.substr(last + 1);
      if (last <= digits || end.empty() || end.find_first_not_of("0123456789") != std::string::npos) continue;
      if (std::stoi(rest.substr(0, digits)) != game.side[a].Score || std::stoi(end) != game.side[3 - a].Score)
        Blame(Blemish::kScore, line);
    }
  }
}

std::string CommentaryJudge::Skeleton(std::string line) const {
  for (const std::string& team : teams_) {
    for (std::size_t at = FindWord(line, team); at != std::string::npos; at = FindWord(line, team))
      line.replace(at, team.size(), "@");
  }
  std::string bare;
  for (std::size_t i = 0; i < line.size();) {
    if (std::isdigit(static_cast<unsigned char>(line[i]))) {
      bare += '0';
      while (i < line.size() && std::isdigit(static_cast<unsigned char>(line[i]))) ++i;
      continue;
    }
    std::size_t end = i;
    while (end < line.size() && IsLetter(line[end])) ++end;
    if (end == i) {
      bare += line[i++];
      continue;
    }
    std::string word = line.substr(i, end - i);
    const bool owner = word.ends_with("'s");
    const std::string name = owner ? word.substr(0, word.size() - 2) : word;
    bare += men_.count(name) ? (owner ? "*'s" : "*") : word;
    i = end;
  }
  return bare;
}

}  // namespace tipline
