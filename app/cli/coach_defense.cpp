// Commands of the full defense screen and of the game plan.
#include <array>
#include <memory>

#include "cli/coach_screen.h"
#include "cli/coach_table.h"
#include "cli/columns.h"
#include "coach/plan_screen.h"
#include "coach/strategy_screens.h"

namespace tipline::cli {
namespace {

constexpr std::array<std::string_view, 4> kZones{"inside", "outside", "three", "all"};
constexpr int kAllZones = 3;

/// Does something in one zone or, for kAllZones, in each.
template <class Act>
void InZones(int zone, Act act) {
  for (int z = 0; z < kAllZones; ++z) {
    if (zone == z || zone == kAllZones) act(static_cast<Zone>(z));
  }
}

/// The zone named by the word at `at`; where it names none all zones, and the word is left to the name.
int ZoneAt(const Words& words, std::size_t& at) {
  if (at > 0) {
    const int zone = ChoiceOf(words[at - 1], kZones);
    if (zone >= 0 && at > 1) {
      --at;
      return zone;
    }
  }
  return kAllZones;
}

std::string CoverageText(int coverage) {
  return coverage >= 1 && coverage <= 6
             ? std::string(kCoverageCaptions[static_cast<std::size_t>(coverage - 1)])
             : "";
}

/// "Tight*": how a man is covered, with a mark where he is doubled.
std::string CoverCell(int coverage, int doubled) { return CoverageText(coverage) + (doubled ? "*" : ""); }

void ShowMatchups(CoachSession& session) {
  const int side = session.Side();
  const int other = 3 - side;
  Columns table({"<", "<Attacker", "<Inside", "<Outside", "<Three", "", "<Defender"});
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = game.side[other].Lineup[p];
    const Man& man = ManAt(other, slot);
    const int own = Clamp(game.side[side].StoredMatchup[p], 1, kPositions);
    table.Row({Str(p), ManName(other, slot), CoverCell(man.CoverageInside, man.DoubleTeamInside),
               CoverCell(man.CoverageOutside, man.DoubleTeamOutside),
               CoverCell(man.CoverageThree, man.DoubleTeamThree), Str(own),
               ManName(side, game.side[side].Lineup[own])});
  }
  table.Print(session.Out(), false);
  if (game.coach[side].ComputerMatchups) session.Say("The computer sets the match-ups at the stops.");
}

void ShowOrders(CoachSession& session) {
  constexpr std::array<std::string_view, 4> kShots{"", "inside", "outside", "three"};
  const int side = session.Side();
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const Man& man = ManAt(side, slot);
    if (!OnTeam(side, slot) || (man.GlobalOffense == 0 && man.SafeStyle == 0)) continue;
    std::string text = "  " + ManName(side, slot) + ":";
    if (man.GlobalOffense >= 1 && man.GlobalOffense <= kThree)
      text += " shoots " + std::string(kShots[static_cast<std::size_t>(man.GlobalOffense)]);
    if (man.SafeStyle) text += " defends safely";
    session.Say(text);
  }
}

Answer SaveMatchups(CoachSession& session, DefenseScreen& screen) {
  if (!screen.SaveDefenseScreen()) return Answer::kRefused;
  std::string text = "Match-ups:";
  for (int p = 1; p <= kPositions; ++p) {
    text += (p > 1 ? ", " : " ") +
            ManName(session.Side(), game.side[session.Side()].Lineup[screen.StoredMatchup[p]]) + " on " +
            ManName(3 - session.Side(), game.side[3 - session.Side()].Lineup[p]);
  }
  session.Say(text + ".");
  return Answer::kStays;
}

/// One defender changes places with whoever had the attacker.
Answer MatchOne(CoachSession& session, DefenseScreen& screen, const Words& words) {
  const Found attacker = FindPosition(3 - session.Side(), words[0]);
  if (attacker.value == 0) return session.Refuse(attacker.fault);
  const Found defender = FindPosition(session.Side(), words[1]);
  if (defender.value == 0) return session.Refuse(defender.fault);
  for (int p = 1; p <= kPositions; ++p) {
    if (screen.StoredMatchup[p] == defender.value)
      screen.StoredMatchup[p] = screen.StoredMatchup[attacker.value];
  }
  screen.StoredMatchup[attacker.value] = defender.value;
  return SaveMatchups(session, screen);
}

Answer MatchAll(CoachSession& session, DefenseScreen& screen, const Words& words) {
  for (int p = 1; p <= kPositions; ++p) {
    const Found own = FindPosition(session.Side(), words[static_cast<std::size_t>(p - 1)]);
    if (own.value == 0) return session.Refuse(own.fault);
    screen.StoredMatchup[p] = own.value;
  }
  return SaveMatchups(session, screen);
}

Answer MatchAuto(CoachSession& session, DefenseScreen& screen, int on) {
  if (on == kNoChoice) return session.Refuse("match auto on, or off.");
  screen.ComputerMatchups = on == 1;
  if (!screen.SaveDefenseScreen()) return Answer::kRefused;
  session.Say(on ? "The computer sets your match-ups at the stops." : "Your match-ups stay as you set them.");
  return Answer::kStays;
}

Answer MatchByComputer(CoachSession& session, DefenseScreen& screen) {
  if (!screen.ComputerSuggestMatchupsCommand()) {
    const bool byRule = !league.rules.AllowComputerManMatchupsCheck;
    session.Say(std::string(byRule ? "The rules leave the match-ups to you" : "A zone has no match-ups") +
                ": nothing was searched, each man takes his own position.");
  }
  return SaveMatchups(session, screen);
}

/// Both teams as the plan screen takes them, out of the running game.
Roster RosterOf(int side) {
  Roster roster;
  roster.TeamNo = game.GameTeam[side];
  roster.team = game.team[side];
  roster.coach = game.coach[side];
  for (int slot = 1; slot <= kRosterSlots; ++slot) roster.player[slot] = PlayerAt(side, slot);
  return roster;
}

void ShowPlan(CoachSession& session, const PlanScreen& screen) {
  session.Say(screen.Title());
  Columns table({"", "<Slider", "0-4", "<"});
  for (int slider = 0; slider < kSliders; ++slider) {
    const SliderCaption& caption = CaptionOf(slider);
    table.Row(
        {Str(slider), std::string(caption.caption), Str(screen.Slider(slider)), std::string(caption.frame)});
  }
  table.Print(session.Out(), false);
}

/// The slider that is meant, by number or caption; -1 where none or more than one is.
int SliderOf(const std::string& said) {
  if (said.size() <= 2 && !said.empty() && said.find_first_not_of("0123456789") == std::string::npos) {
    const int number = std::stoi(said);
    return number < kSliders ? number : kNoChoice;
  }
  std::array<std::string_view, kSliders> captions{};
  for (int slider = 0; slider < kSliders; ++slider)
    captions[static_cast<std::size_t>(slider)] = CaptionOf(slider).caption;
  return ChoiceOf(said, captions);
}

Answer PlanCell(CoachSession& session, PlanScreen& screen, const Words& words) {
  std::size_t name = 1;
  int column = kNoChoice;
  while (column < 0 && ++name < words.size()) column = ChoiceOf(Joined(words, name), kPlanColumns);
  if (column < 0) return session.Refuse("plan cell WHO COLUMN; columns: " + Listed(kPlanColumns) + ".");
  const Found man = FindMan(3 - session.Side(), Joined(words, 1, name));
  if (man.value == 0) return session.Refuse(man.fault);
  if (!screen.StepCell(man.value, static_cast<PlanColumn>(column)))
    return session.Refuse("The plan in force is for all opponents; plan against begins one for this team.");
  session.Say("The plan's cell has stepped on: " + ManName(3 - session.Side(), man.value) + ", " +
              std::string(kPlanColumns[static_cast<std::size_t>(column)]) + ".");
  return Answer::kStays;
}

Answer PlanSlider(CoachSession& session, PlanScreen& screen, const Words& words) {
  const std::string said = Joined(words, 0, words.size() - 1);
  const int slider = SliderOf(said);
  if (slider < 0) {
    return session.Refuse(
        std::string(slider == kSeveral ? "More than one slider is called" : "There is no slider") + " \"" +
        Shortened(said) + "\"; plan lists them with their numbers.");
  }
  const std::string& value = words.back();
  if (value.size() != 1 || !screen.SetSlider(slider, value[0] - '0'))
    return session.Refuse("A slider goes from 0, least, to 4, most.");
  session.Say(std::string(CaptionOf(slider).caption) + ": " + value + ", for this game.");
  return Answer::kStays;
}

/// The plan against this opponent comes into force: his own, or the first that is free.
Answer PlanForThem(CoachSession& session, PlanScreen& screen) {
  const int side = session.Side();
  const int them = game.GameTeam[3 - side];
  if (!screen.OpponentLoaded()) {
    screen.plan = FirstFreePlan(screen.own.coach);
    if (screen.plan == 0) return session.Refuse("All ten plans are taken.");
    if (!screen.ChooseOpponent(them)) return session.Refuse("No plan can be written against this team.");
  }
  game.side[side].GamePlanIndex = PlanAgainst(screen.own.coach, them);
  session.Say(screen.Title() + " is in force, for this game.");
  return Answer::kStays;
}

Answer ChangePlan(CoachSession& session, PlanScreen& screen, const Words& words) {
  const std::string verb = Squeezed(words[0]);
  if (verb == "cell") return PlanCell(session, screen, words);
  if (words.size() >= 2) return PlanSlider(session, screen, words);
  if (verb == "against") return PlanForThem(session, screen);
  if (verb == "computer") {
    screen.ComputerGamePlan();
    session.Say("The computer has made the plan, for this game.");
    return Answer::kStays;
  }
  if (verb == "clear") {
    screen.ClearPlayerDefense();
    session.Say("The plan covers every man as usual.");
    return Answer::kStays;
  }
  return session.Refuse("plan SLIDER 0-4, plan computer, plan clear, plan against, plan cell WHO COLUMN.");
}

}  // namespace

Answer DoDefense(CoachSession& session, const Words&) {
  ShowMatchups(session);
  ShowOrders(session);
  return DoStrategy(session, {});
}

Answer DoMatch(CoachSession& session, const Words& words) {
  DefenseScreen screen(session.Side());
  if (words.size() == 1 && Squeezed(words[0]) == "computer") return MatchByComputer(session, screen);
  if (words.size() == 2 && Squeezed(words[0]) == "auto") return MatchAuto(session, screen, OnOff(words[1]));
  if (words.size() == 2) return MatchOne(session, screen, words);
  if (words.size() == 5) return MatchAll(session, screen, words);
  if (!words.empty()) return session.Refuse("match ATTACKER DEFENDER, five positions, computer, or auto on.");
  ShowMatchups(session);
  return Answer::kStays;
}

Answer DoCover(CoachSession& session, const Words& words) {
  const int coverage = words.empty() ? kNoChoice : ChoiceOf(words.back(), kCoverageCaptions);
  if (words.size() < 2 || coverage < 0)
    return session.Refuse("cover WHO ZONE " + Listed(kCoverageCaptions) + ".");
  std::size_t end = words.size() - 1;
  const int zone = ZoneAt(words, end);
  const Found man = FindMan(3 - session.Side(), Joined(words, 0, end));
  if (man.value == 0) return session.Refuse(man.fault);
  DefenseScreen screen(session.Side());
  InZones(zone, [&](Zone z) { screen.SetCoverage(man.value, z, coverage + 1); });
  session.Say(ManName(3 - session.Side(), man.value) + " is covered " +
              (zone == kAllZones ? "everywhere" : std::string(kZones[static_cast<std::size_t>(zone)])) +
              ": " + CoverageText(coverage + 1) + ".");
  return Answer::kStays;
}

Answer DoDouble(CoachSession& session, const Words& words) {
  std::size_t end = words.size();
  const int on = words.empty() ? kNoChoice : OnOff(words.back());
  if (on != kNoChoice) --end;
  const int zone = ZoneAt(words, end);
  if (end == 0) return session.Refuse("double WHO ZONE [off]; zones: " + Listed(kZones) + ".");
  const Found man = FindMan(3 - session.Side(), Joined(words, 0, end));
  if (man.value == 0) return session.Refuse(man.fault);
  DefenseScreen screen(session.Side());
  InZones(zone, [&](Zone z) { screen.SetDoubleTeam(man.value, z, on != 0); });
  session.Say(ManName(3 - session.Side(), man.value) + (on == 0 ? " is not doubled " : " is doubled ") +
              (zone == kAllZones ? "anywhere" : std::string(kZones[static_cast<std::size_t>(zone)])) + ".");
  return Answer::kStays;
}

Answer DoOrder(CoachSession& session, const Words& words) {
  constexpr std::array<std::string_view, 4> kOrders{"normal", "inside", "outside", "three"};
  const int order = words.size() < 2 ? kNoChoice : ChoiceOf(words.back(), kOrders);
  if (order < 0) return session.Refuse("order WHO " + Listed(kOrders) + ".");
  if (order == kThree && !league.rules.ThreePointCheck)
    return session.Refuse("There is no three in this game.");
  const Found man = FindMan(session.Side(), Joined(words, 0, words.size() - 1));
  if (man.value == 0) return session.Refuse(man.fault);
  DefenseScreen screen(session.Side());
  for (int step = 0; step < 4 && ManAt(session.Side(), man.value).GlobalOffense != order; ++step)
    screen.StepGlobalOffense(man.value);
  session.Say(ManName(session.Side(), man.value) +
              " is told to shoot: " + std::string(kOrders[static_cast<std::size_t>(order)]) + ".");
  return Answer::kStays;
}

Answer DoSafe(CoachSession& session, const Words& words) {
  if (words.empty()) return session.Refuse("safe WHO [off].");
  const int on = words.size() > 1 ? OnOff(words.back()) : kNoChoice;
  const Found man = FindMan(session.Side(), Joined(words, 0, words.size() - (on == kNoChoice ? 0 : 1)));
  if (man.value == 0) return session.Refuse(man.fault);
  const bool safe = on != 0;
  DefenseScreen screen(session.Side());
  if ((ManAt(session.Side(), man.value).SafeStyle == 1) != safe) screen.StepSafeStyle(man.value);
  session.Say(ManName(session.Side(), man.value) + (safe ? " defends safely." : " defends as usual."));
  return Answer::kStays;
}

Answer DoPlan(CoachSession& session, const Words& words) {
  const int side = session.Side();
  const auto own = std::make_unique<Roster>(RosterOf(side));
  const auto other = std::make_unique<Roster>(RosterOf(3 - side));
  PlanScreen screen(*own);
  screen.opponent = other.get();
  screen.plan = game.side[side].GamePlanIndex;
  if (words.empty()) {
    ShowPlan(session, screen);
    return Answer::kStays;
  }
  const Answer answer = ChangePlan(session, screen, words);
  if (answer == Answer::kStays) game.coach[side] = own->coach;
  return answer;
}

}  // namespace tipline::cli
