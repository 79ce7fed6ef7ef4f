#include "harness/commentary_judge.h"

#include <algorithm>
#include <cctype>
#include <regex>

#include "engine/game_state.h"
#include "narration/lines.h"

namespace tipline {
namespace {

constexpr std::size_t kMostLength = 70;
constexpr std::size_t kMostExamples = 60;

bool Is(const std::string& line, const std::regex& pattern) { return std::regex_search(line, pattern); }

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

/// A basket, however it is told.
const std::regex& Good() {
  static const std::regex pattern(
      "\\b(scores|scored from|hits (it|the|a)|makes (it|the)|made (it|the)|knocks it down|drains|buries|"
      "all net|nothing but net|swish|count it|and in\\b|it's good|good!|drops in|gets the roll|slams it home|"
      "throws it down|banks it in|finishes|converts|for the lead|to tie it)",
      std::regex::icase);
  return pattern;
}
const std::regex& Missed() {
  static const std::regex pattern(
      "\\b(misses|missed|no good|won't (go|fall|drop)|off the (rim|front|back|heel|iron)|too "
      "(strong|long|short)|"
      "short!|air ?ball|rims out|doesn't fall|can't get it|blew|stoned|hoop didn't want it|leaves it short)",
      std::regex::icase);
  return pattern;
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
  static const std::regex article("\\b(a (8|11|18|8\\d)\\b|an (?!8|11|18)\\d)");
  static const std::regex masculine("\\b(he|he's|him|his|himself)\\b", std::regex::icase);
  ++stops;
  for (const std::string& line : stop_) {
    ++lines;
    ++skeletons[Skeleton(line)];
    if (line.size() > kMostLength) Blame(Blemish::kTooLong, line);
    if (line.find("  ") != std::string::npos || line.front() == ' ' || line.back() == ' ')
      Blame(Blemish::kBlanks, line);
    if (Is(line, article)) Blame(Blemish::kArticle, line);
    if (line.find_first_of("{}#") != std::string::npos) Blame(Blemish::kUnfilled, line);
    if (WomensGame() && Is(line, masculine)) Blame(Blemish::kMasculine, line);
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
  if (!Made(r) && Is(line, Good())) Blame(Blemish::kMadeOnMiss, line);
  if (Made(r) && Is(line, Missed())) Blame(Blemish::kMissOnMade, line);
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
  static const std::regex lead(
      "\\b(?:leads?|ahead|trails?|trailing|behind|down) by (\\d+)|(\\d+) point lead");
  static const std::regex run("(\\d+)-0 run");
  std::smatch found;
  if (std::regex_search(line, found, lead)) {
    const int told = std::stoi(found[1].matched ? found[1].str() : found[2].str());
    if (told != MarginNow()) Blame(Blemish::kScore, line);
  }
  if (std::regex_search(line, found, run) && std::stoi(found[1].str()) != game.RunPoints)
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
