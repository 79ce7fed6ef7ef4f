#include "narration/lines.h"

#include <algorithm>
#include <cctype>

#include "narration/phrases.h"

namespace tipline {
namespace {

std::string CityOf(int side, bool cut) {
  std::string_view city = game.team[side].City.View();
  if (cut && (city.ends_with(" C") || city.ends_with(" L"))) city = Trimmed(city.substr(0, city.size() - 2));
  return std::string(city);
}

std::string NameFor(std::string_view key, const Cast& cast) {
  const Play& play = game.play;
  const int o = game.scene.OffenseSide, d = game.scene.DefenseSide;
  if (key == "ball") return BallName();
  if (key == "def") return NameOf(d, game.scene.BallDefender);
  if (key == "fouler") return NameOf(FoulingSide(), play.Fouler);
  if (key == "blocker") return NameOf(d, play.Blocker);
  if (key == "stealer") return NameOf(d, play.Stealer);
  if (key == "rebounder") return play.ReboundSide > 2 ? "" : NameOf(play.ReboundSide, play.Rebounder);
  if (key == "passer") return NameOf(o, play.Assister);
  if (key == "team") return PbpTeamName(o);
  if (key == "opp") return PbpTeamName(d);
  if (key == "nick") return PluralNickname(o);
  if (key == "who") return std::string(cast.who);
  if (key == "other") return std::string(cast.other);
  if (key == "word") return std::string(cast.word);
  if (key == "n") return std::to_string(cast.number);
  if (key == "ord") return OrdinalText(cast.number);
  if (key == "a") return std::string(ArticleFor(cast.number));
  return "";
}

/// The saying with its names; "" when one of them is not known.
std::string Filled(std::string_view text, const Cast& cast) {
  std::string line;
  line.reserve(64);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '{') {
      const std::size_t end = text.find('}', i);
      const std::string name = NameFor(text.substr(i + 1, end - i - 1), cast);
      if (name.empty()) return "";
      line += name;
      i = end;
    } else if (text[i] == '#' && i + 3 < text.size() &&
               std::isdigit(static_cast<unsigned char>(text[i + 1]))) {
      const int slot = (text[i + 1] - '0') * 100 + (text[i + 2] - '0') * 10 + (text[i + 3] - '0');
      line += Phrase(slot);
      i += 3;
    } else {
      line += text[i];
    }
  }
  return line;
}

bool UsedLately(const Saying* saying) {
  const auto& recent = game.commentary.Recent;
  return std::find(recent.begin(), recent.end(), static_cast<const void*>(saying)) != recent.end();
}

void Remember(const Saying* saying) {
  CommentaryState& c = game.commentary;
  c.Recent[c.RecentCount % c.Recent.kCount] = saying;
  ++c.RecentCount;
  if (game.Tally) ++game.Tally->said[saying];
}

constexpr std::size_t kMostSayings = 64;

/// Indexes of the sayings that fit, and their weight together.
struct Fitting {
  std::size_t index[kMostSayings];
  std::size_t count = 0;
  int weight = 0;
};

Fitting FittingOf(const Family& family) {
  Fitting f;
  for (std::size_t i = 0; i < family.sayings.size() && f.count < kMostSayings; ++i) {
    const Saying& s = family.sayings[i];
    if (s.when && !s.when()) continue;
    f.index[f.count++] = i;
    f.weight += s.weight;
  }
  return f;
}

/// Place in `f` of the drawn saying.
std::size_t Draw(const Family& family, const Fitting& f) {
  int left = ShowRnd(f.weight);
  for (std::size_t k = 0; k < f.count; ++k) {
    left -= family.sayings[f.index[k]].weight;
    if (left <= 0) return k;
  }
  return f.count - 1;
}

}  // namespace

std::string NameOf(int side, int slot) {
  if (slot == 0 || side < 1 || side > 2) return "";
  const PlayerRecord& p = PlayerAt(side, slot);
  const std::string_view shown = p.ShortName.View(), whole = p.LastName.View();
  if (shown.empty()) return std::string(whole);
  const bool cut =
      static_cast<int>(shown.size()) == decltype(p.ShortName)::kLength && whole.starts_with(shown);
  return std::string(cut ? whole : shown);
}

std::string BallName() { return NameOf(game.scene.OffenseSide, game.scene.BallPlayer); }

std::string PbpTeamName(int side) {
  const std::string name = CityOf(side, true);
  return name == CityOf(3 - side, true) ? CityOf(side, false) : name;
}

std::string PluralNickname(int side) {
  const std::string_view nick = game.team[side].Nickname.View();
  return nick.ends_with('s') && nick != PbpTeamName(side) ? std::string(nick) : "";
}

bool IsPlural(std::string_view name) {
  const std::string_view city = game.team[1].City.View(), other = game.team[2].City.View();
  return name.ends_with('s') && name != city && name != other && name != CityOf(1, true) &&
         name != CityOf(2, true);
}

bool NamesHim(std::string_view line, std::string_view name) {
  const auto letter = [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; };
  for (auto at = line.find(name); !name.empty() && at != line.npos; at = line.find(name, at + 1)) {
    const auto end = at + name.size();
    if ((at == 0 || !letter(line[at - 1])) && (end == line.size() || !letter(line[end]))) return true;
  }
  return false;
}

std::string_view Uncounted(std::string_view text) {
  text = Trimmed(text);
  if (text.ends_with('!')) text.remove_suffix(1);
  text = Trimmed(text);
  const std::size_t open = text.rfind('(');
  if (open != std::string_view::npos && text.ends_with(')') && text.size() - open <= 4) {
    text = Trimmed(text.substr(0, open));
  }
  return text;
}

std::string OrdinalText(int n) {
  const int tens = n / 10 % 10, ones = n % 10;
  const char* end = tens == 1 ? "th" : ones == 1 ? "st" : ones == 2 ? "nd" : ones == 3 ? "rd" : "th";
  return std::to_string(n) + end;
}

std::string_view ArticleFor(int n) { return n == 8 || n == 11 || n == 18 || n / 10 == 8 ? "an" : "a"; }

std::string_view ArticleFor(std::string_view word) {
  constexpr std::string_view kVowels = "AEIOUaeiou";
  return !word.empty() && kVowels.find(word.front()) != std::string_view::npos ? "an" : "a";
}

void NewLine(std::string text, int spokenKind, int side) {
  CommentaryState& c = game.commentary;
  if (text.empty() || c.PbpLineCount == kPbpLines) return;
  PbpLine& line = c.Line[++c.PbpLineCount];
  line = {};
  line.Text = std::move(text);
  line.SpokenKind = spokenKind;
  line.Side = side;
}

void AddToLine(std::string_view text) {
  if (text.empty()) return;
  if (NoLineYet() || LastLine().IsPause()) return NewLine(std::string(text));
  LastLine().Text += text;
}

void Exclaim() {
  if (!NoLineYet() && !LastLine().IsPause() && !LastLine().Text.ends_with('!')) LastLine().Text += '!';
}

void PauseLine() { NewLine(".."); }

bool NoLineYet() { return game.commentary.PbpLineCount == 0; }

PbpLine& LastLine() { return game.commentary.Line[std::max(1, game.commentary.PbpLineCount)]; }

std::string Pick(const Family& family, const Cast& cast) {
  Fitting f = FittingOf(family);
  bool again = f.count > 1;
  while (f.count > 0 && f.weight > 0) {
    const std::size_t k = Draw(family, f);
    const Saying& s = family.sayings[f.index[k]];
    if (again && UsedLately(&s)) {
      again = false;  // a second draw stands
      continue;
    }
    std::string text = Filled(s.text, cast);
    if (!text.empty()) {
      Remember(&s);
      return text;
    }
    f.weight -= s.weight;
    f.index[k] = f.index[--f.count];
  }
  return "";
}

bool Say(const Family& family, const Cast& cast, int spokenKind, int side) {
  std::string text = Pick(family, cast);
  if (text.empty()) return false;
  NewLine(std::move(text), spokenKind, side);
  return true;
}

bool WomensGame() { return game.team[1].TeamSex == 'W'; }

}  // namespace tipline
