// Commands for how a side plays: zone, help, press, pace, boards; and the list of commands, which shares the
// word "help".
#include <algorithm>
#include <array>
#include <cstdio>

#include "cli/coach_table.h"
#include "coach/strategy_screens.h"

namespace tipline::cli {
namespace {

constexpr std::array<std::string_view, 7> kListNames{
    "Defense", "Help", "Press", "Pace", "Men inside", "Offensive boards", "Defensive boards"};

std::string_view ListName(StrategyList list) { return kListNames[static_cast<std::size_t>(list)]; }

std::string_view CaptionNow(int side, StrategyList list) {
  const auto captions = StrategyCaptions(list);
  const int value = StrategyValue(side, list);
  const bool shown = value >= 0 && value < static_cast<int>(captions.size());
  return shown ? captions[static_cast<std::size_t>(value)] : "other";
}

/// The caption that is meant; `hint` stands for the list where the words alone leave it open ("press full").
int Choice(const std::string& said, StrategyList list, const std::string& hint) {
  const auto captions = StrategyCaptions(list);
  const int found = ChoiceOf(said, captions);
  return found == kSeveral ? ChoiceOf(said + " " + hint, captions) : found;
}

Answer SetList(CoachSession& session, StrategyList list, const std::string& said, const std::string& hint) {
  const int value = Choice(said, list, hint);
  if (value < 0 || !SetStrategy(session.Side(), list, value))
    return session.Refuse(std::string(ListName(list)) + ": " + Listed(StrategyCaptions(list)) + ".");
  session.Say(std::string(ListName(list)) + ": " + std::string(CaptionNow(session.Side(), list)) + ".");
  return Answer::kStays;
}

void Explain(CoachSession& session, const Command& c) {
  std::string head = std::string(c.name) + (c.arguments.empty() ? "" : " " + std::string(c.arguments));
  if (!c.brief.empty()) head += "   (short: " + std::string(c.brief) + ")";
  session.Say(head);
  session.Say("  " + std::string(c.help) + (c.open() ? "." : "; not open at this stop."));
  if (c.examples.size() <= 1) return;
  std::string examples;
  for (std::size_t at = 0; at <= c.examples.size();) {
    const std::size_t end = std::min(c.examples.find(';', at), c.examples.size());
    if (end > at) {
      examples += (examples.empty() ? "" : ", ") + std::string(c.name) + " " +
                  std::string(c.examples.substr(at, end - at));
    }
    at = end + 1;
  }
  session.Say("  For example: " + examples + ".");
}

/// The whole first word of a caption: a part of one is more likely a command mistyped.
bool BeginsHelpDefense(const std::string& word) {
  const auto captions = StrategyCaptions(StrategyList::kHelp);
  return std::any_of(captions.begin(), captions.end(), [&word](std::string_view caption) {
    return Squeezed(SplitWords(caption)[0]) == Squeezed(word);
  });
}

void ListCommands(CoachSession& session, bool all) {
  for (const Command& c : Commands()) {
    if (!all && !c.open()) continue;
    char head[32];
    std::snprintf(head, sizeof head, "%2s  %-10s ", std::string(c.brief).c_str(),
                  std::string(c.name).c_str());
    session.Say(head + std::string(c.help), 15);
  }
  session.Say("Men go by name, roster number (#9) or position (1 to 5, PG to C).", 0);
  session.Say("\"help COMMAND\" tells more, \"help all\" lists what is closed now, too.", 0);
}

// The checks of the defense screen.

struct Check {
  std::string_view name, caption;
  bool DefenseScreen::*value;
};
constexpr Check kChecks[] = {
    {"lastshot", "hold for the last shot", &DefenseScreen::LastShotCheck},
    {"quickshot", "shoot quickly late in the game", &DefenseScreen::QuickShotCheck},
    {"nofoul", "no fouls", &DefenseScreen::NoFoulCheck},
    {"stealfoul", "go for steals and risk the foul", &DefenseScreen::StealFoulCheck},
    {"timeoutoffense", "timeout behind our basket", &DefenseScreen::TimeoutOffenseCheck},
    {"timeoutdefense", "timeout when we win the ball", &DefenseScreen::TimeoutDefenseCheck},
    {"tired", "the computer takes tired men off", &DefenseScreen::AutoSubWhenTiredCheck},
    {"foultrouble", "the computer takes men in foul trouble off",
     &DefenseScreen::AutoSubWhenFoulTroubleCheck},
    {"grid", "the computer follows the rotation grid", &DefenseScreen::UseRotationGridCheck},
};
constexpr std::array<std::string_view, 3> kFoulWords{"none", "any", "poor"};

void ListChecks(CoachSession& session, const DefenseScreen& screen) {
  for (const Check& c : kChecks) {
    char head[40];
    std::snprintf(head, sizeof head, "  %-15s %-4s ", std::string(c.name).c_str(),
                  screen.*c.value ? "on" : "off");
    session.Say(head + std::string(c.caption));
  }
  char head[40];
  std::snprintf(head, sizeof head, "  %-15s %-4s ", "quickfoul",
                std::string(kFoulWords[static_cast<std::size_t>(screen.QuickFoulList)]).c_str());
  session.Say(head + std::string("foul a shooter at once: ") + Listed(kFoulWords));
}

Answer Save(CoachSession& session, DefenseScreen& screen, const std::string& what) {
  if (!screen.SaveDefenseScreen()) return Answer::kRefused;
  session.Say(what);
  return Answer::kStays;
}

Answer SetQuickFoul(CoachSession& session, DefenseScreen& screen, const std::string& said) {
  const int list = ChoiceOf(said, kFoulWords);
  if (list < 0) return session.Refuse("quickfoul: " + Listed(kFoulWords) + ".");
  screen.QuickFoulList = list;
  return Save(session, screen,
              "Foul at once: " + std::string(kQuickFoulCaptions[static_cast<std::size_t>(list)]) + ".");
}

}  // namespace

Answer DoZone(CoachSession& session, const Words& words) {
  if (StrategyCaptions(StrategyList::kType).size() == 1) return session.Refuse("The rules forbid a zone.");
  return SetList(session, StrategyList::kType, Joined(words), "zone");
}

Answer DoPress(CoachSession& session, const Words& words) {
  return SetList(session, StrategyList::kPressure, Joined(words), "press");
}

Answer DoPace(CoachSession& session, const Words& words) {
  return SetList(session, StrategyList::kPace, Joined(words), "");
}

Answer DoAttack(CoachSession& session, const Words& words) {
  return SetList(session, StrategyList::kInsideOffense, Joined(words), "players");
}

Answer DoCrash(CoachSession& session, const Words& words) {
  constexpr std::array<std::string_view, 2> kEnds{"offense", "defense"};
  const int end = words.size() > 1 ? ChoiceOf(words[0], kEnds) : kNoChoice;
  const std::string how = Joined(words, end >= 0 ? 1 : 0);
  if (end == 0) return SetList(session, StrategyList::kCrashOffense, how, "");
  const Answer answer = SetList(session, StrategyList::kCrashDefense, how, "");
  if (end == 1 || answer == Answer::kRefused) return answer;
  return SetList(session, StrategyList::kCrashOffense, how, "");
}

Answer DoHelp(CoachSession& session, const Words& words) {
  const std::string said = Joined(words);
  if (words.empty() || Squeezed(said) == "all") {
    ListCommands(session, !words.empty());
    return Answer::kStays;
  }
  if (BeginsHelpDefense(words[0])) return SetList(session, StrategyList::kHelp, said, "");
  const Command* command = FindCommand(words[0]);
  if (!command) {
    return session.Refuse("There is no command \"" + Shortened(words[0]) +
                          "\"; help defense goes: " + Listed(StrategyCaptions(StrategyList::kHelp)) + ".");
  }
  Explain(session, *command);
  return Answer::kStays;
}

Answer DoStrategy(CoachSession& session, const Words&) {
  const QuickStrategy screen{session.Side()};
  session.Say(screen.Title());
  for (const StrategyList list : kStrategyLists) {
    char head[32];
    std::snprintf(head, sizeof head, "  %-17s", std::string(ListName(list)).c_str());
    session.Say(head + std::string(CaptionNow(session.Side(), list)));
  }
  const tipline::Side& side = game.side[session.Side()];
  if (side.BothOffenses) session.Say("  The computer calls your offense.");
  if (side.BothDefenses) session.Say("  The computer calls your defense.");
  return Answer::kStays;
}

Answer DoSet(CoachSession& session, const Words& words) {
  DefenseScreen screen(session.Side());
  if (words.empty()) {
    ListChecks(session, screen);
    return Answer::kStays;
  }
  const std::string name = Squeezed(words[0]);
  const std::string value = Joined(words, 1);
  if (name == "quickfoul") return SetQuickFoul(session, screen, value);
  for (const Check& c : kChecks) {
    if (c.name != name) continue;
    const int on = OnOff(value);
    if (on == kNoChoice) return session.Refuse(name + ": on or off.");
    screen.*c.value = on == 1;
    return Save(session, screen, std::string(on ? "On: " : "Off: ") + std::string(c.caption) + ".");
  }
  return session.Refuse("There is no setting \"" + Shortened(words[0]) + "\"; set alone lists them.");
}

}  // namespace tipline::cli
