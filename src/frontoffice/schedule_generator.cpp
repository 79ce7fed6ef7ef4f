#include "frontoffice/schedule_generator.h"

#include <algorithm>
#include <bitset>
#include <utility>

#include "base/calendar.h"
#include "base/numbers.h"
#include "base/random.h"
#include "league/schedule.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

constexpr int kDateSlots = 200;
constexpr int kFillInAttempt = 10;  // above it, divisions are no bar any more
constexpr int kLastAttempt = 25;
constexpr int kMostExtra = 8;  // date slots opened one by one for the last games

using Slots = std::bitset<kDateSlots>;

/// Slots 1 to `last`.
Slots FirstSlots(int last) { return ~Slots() >> static_cast<std::size_t>(kDateSlots - last); }

/// Which teams may visit, and what makes one the better choice.
struct Search {
  int last;               // slots 1 to this one count
  std::size_t needed;     // free for both
  bool ascending = true;  // order in which the visitors are looked at
  bool anyDivision = false;
  bool preferFew = false;  // mind the preferred most games of a pair
};

/// The working tables of an attempt. Teams go by their place in the list of active ones, from 0.
class Placer {
 public:
  Placer(const ScheduleRequest& request, const std::vector<int>& teams);

  void Attempt(int attempt);
  /// Every team has as many games at home as away.
  bool Balanced() const { return home_ == visitor_; }
  int Games() const { return games_; }  ///< of a team, an even number
  ScheduleDraft Draft();

 private:
  void Clear();
  void PlaceDivisional();
  void FirstPass();
  void SecondPass();
  void FillIn();
  void Rounds(const Search& search, int last);
  void SearchAndPlace(int a, const Search& search, int last);
  int PickSlot(int a, int b, int last) const;
  void Place(int a, int b, int last);
  u8& Meetings(int a, int b) { return meetings_[static_cast<std::size_t>(a * count_ + b)]; }
  bool NeedsHomeGame(int a) const { return home_[At(a)] < half_; }
  static std::size_t At(int i) { return static_cast<std::size_t>(i); }

  const std::vector<int>& teams_;
  int count_, games_, half_, divisional_, most_;
  std::vector<int> division_;
  int divisions_ = 0, slack_ = 0, extra_ = 0;
  bool filledIn_ = false;

  std::vector<int> home_, visitor_;  // games of each team
  std::vector<Slots> busy_;          // slots in which it plays
  std::vector<u8> meetings_;         // games of each pair
  Table<int, 1, kDateSlots> slotGames_;
  std::vector<ScheduleDraft::Game> placed_;
};

Placer::Placer(const ScheduleRequest& request, const std::vector<int>& teams)
    : teams_(teams),
      count_(static_cast<int>(teams.size())),
      games_(Clamp(request.Games, 10, 98) / 2 * 2),
      half_(games_ / 2),
      divisional_(Clamp(request.Divisional, 0, 20)),
      most_(Clamp(request.MostNonDivisional, 0, 98)) {
  Table<int, 1, kDivisions> size{};
  for (const int team : teams) {
    division_.push_back(DivisionOf(team));
    ++size[division_.back()];
  }
  int first = 0;
  bool uneven = false;
  for (const int of : size) {
    if (of == 0) continue;
    ++divisions_;
    if (first == 0) first = of;
    uneven = uneven || of != first;
  }
  if (divisional_ % 2 == 1) slack_ = 1;
  if (uneven || divisions_ == 1) slack_ = 2;
}

void Placer::Clear() {
  home_.assign(At(count_), 0);
  visitor_.assign(At(count_), 0);
  busy_.assign(At(count_), {});
  meetings_.assign(At(count_) * At(count_), 0);
  slotGames_.Fill(0);
  placed_.clear();
  filledIn_ = false;
}

void Placer::Attempt(int attempt) {
  Clear();
  PlaceDivisional();
  extra_ = 0;
  if (divisions_ >= 2) {
    FirstPass();
    SecondPass();
  }
  if (divisions_ == 1) extra_ = 6;
  const bool wanting = std::any_of(home_.begin(), home_.end(), [this](int games) { return games < half_; });
  if (wanting && (attempt > kFillInAttempt || divisions_ <= 1)) FillIn();
}

/// Every team at home against every other of its division, round by round. A pair without a common free slot
/// is passed over: beginning anew, as often as may be, would come to the same, as nothing is drawn here.
void Placer::PlaceDivisional() {
  for (int round = 1; round <= divisional_ / 2; ++round) {
    for (int a = 0; a < count_; ++a) {
      for (int b = 0; b < count_; ++b) {
        if (a != b && division_[At(a)] == division_[At(b)]) Place(a, b, games_ + 1 + slack_);
      }
    }
  }
}

/// Games between divisions for leagues where pairs should hardly meet twice: visitors who have met the host
/// seldom, and who share two open dates with it, come first. With a most of two or more all these games are
/// left to the second pass.
void Placer::FirstPass() {
  if (most_ >= 2) return;
  const int last = games_ + extra_ + slack_;
  Search search{games_ + extra_ + 3 * slack_, 2};
  search.preferFew = true;
  for (int round = 1; round <= games_; ++round) {
    const bool ascending = Rnd(2) == 1;
    for (int k = 0; k < count_; ++k) {
      const int a = ascending ? k : count_ - 1 - k;
      if (!NeedsHomeGame(a) || visitor_[At(a)] >= half_) continue;
      search.ascending = Rnd(2) == 1;
      SearchAndPlace(a, search, last);
    }
  }
}

/// What is still open between divisions, with ever later dates.
void Placer::SecondPass() {
  for (extra_ = 1; extra_ <= kMostExtra; ++extra_) {
    Rounds({games_ + extra_ + 2 + 2 * slack_, 1}, games_ + extra_ + slack_);
  }
  extra_ = kMostExtra;  // all of them stay open
}

/// What is open then is played against anybody.
void Placer::FillIn() {
  filledIn_ = true;
  Search search{games_ + extra_ + 2 + slack_, 1};
  search.anyDivision = true;
  Rounds(search, games_ + extra_ + slack_);
}

/// A home game for every team that needs one, round after round.
void Placer::Rounds(const Search& search, int last) {
  for (int round = 1; round <= games_; ++round) {
    for (int a = 0; a < count_; ++a) {
      if (NeedsHomeGame(a)) SearchAndPlace(a, search, last);
    }
  }
}

/// Brings the best visitor, the last of equals, to team a on a date out of the first `last`, if they have
/// one.
void Placer::SearchAndPlace(int a, const Search& search, int last) {
  const Slots open = FirstSlots(search.last) & ~busy_[At(a)];
  int best = -1, bestScore = 0;
  for (int k = 0; k < count_; ++k) {
    const int b = search.ascending ? k : count_ - 1 - k;
    if (a == b || visitor_[At(b)] >= half_) continue;
    if (!search.anyDivision && division_[At(a)] == division_[At(b)]) continue;
    const Slots both = open & ~busy_[At(b)];
    int score = 0;
    if (search.needed == 1 ? both.any() : both.count() >= search.needed) {
      const int met = Meetings(a, b);
      score = 1000000 - 100 * met;
      if (search.preferFew && met >= most_) score -= 1000 + 1000 * (met - most_);
      score += Rnd(9);
    }
    if (score < bestScore) continue;
    best = b;
    bestScore = score;
  }
  if (best >= 0) Place(a, best, last);
}

/// The slot from 1 to `last` with the fewest games in which neither plays, the lowest of equals; 0 for none.
int Placer::PickSlot(int a, int b, int last) const {
  const Slots taken = busy_[At(a)] | busy_[At(b)];
  int best = 0;
  for (int slot = last; slot >= 1; --slot) {
    if (taken[At(slot - 1)]) continue;
    if (best == 0 || slotGames_[slot] <= slotGames_[best]) best = slot;
  }
  return best;
}

/// Team a at home against b, on a date out of the first `last`, where there is one.
void Placer::Place(int a, int b, int last) {
  const int slot = PickSlot(a, b, last);
  if (slot == 0 || placed_.size() >= kMostScheduleRows) return;
  ++slotGames_[slot];
  busy_[At(a)].set(At(slot - 1));
  busy_[At(b)].set(At(slot - 1));
  ++home_[At(a)];
  ++visitor_[At(b)];
  ++Meetings(a, b);
  ++Meetings(b, a);
  placed_.push_back({slot, teams_[At(a)], teams_[At(b)]});
}

ScheduleDraft Placer::Draft() {
  ScheduleDraft draft;
  draft.missing = count_ * games_ / 2 - static_cast<int>(placed_.size());
  draft.games = std::move(placed_);
  draft.divisions = divisions_;
  draft.slack = slack_;
  draft.filledIn = filledIn_;
  return draft;
}

/// One date in two days, in three for a short season.
std::vector<ScheduleDraft::Date> Dates(const ScheduleRequest& request, int games) {
  int month = Clamp(request.Month, 1, 12);
  int day = Clamp(request.Day, 1, DaysOfMonth(month));
  const int step = games < 50 ? 3 : 2;
  std::vector<ScheduleDraft::Date> dates{{month, day}};
  for (int slot = 2; slot <= games + 10; ++slot) {
    for (int days = 1; days <= step; ++days) {
      if (++day <= DaysOfMonth(month)) continue;
      day = 1;
      if (++month == 13) month = 1;
    }
    dates.push_back({month, day});
  }
  return dates;
}

/// The placing favours low team numbers: teams of one division change places at random.
void ScrambleTeams(const std::vector<int>& teams, std::vector<ScheduleDraft::Game>& games) {
  Table<int, 1, kTeams> at;  // the team whose games the team of this number takes
  for (int team = 1; team <= kTeams; ++team) at[team] = team;
  const auto active = [&teams](int team) { return std::binary_search(teams.begin(), teams.end(), team); };
  for (int n = 1; n <= 1000; ++n) {
    const int x = Rnd(kTeams);
    int y = Rnd(kTeams);
    while (DivisionOf(y) != DivisionOf(x)) y = Rnd(kTeams);
    if (active(x) && active(y)) std::swap(at[x], at[y]);
  }
  Table<int, 1, kTeams> now;
  for (int team = 1; team <= kTeams; ++team) now[at[team]] = team;
  for (auto& game : games) {
    game.home = now[game.home];
    game.visitor = now[game.visitor];
  }
}

/// And low slots: they change places, too, but for the last ones.
void ScrambleSlots(int last, std::vector<ScheduleDraft::Game>& games) {
  Table<int, 1, kDateSlots> at, now;
  for (int slot = 1; slot <= kDateSlots; ++slot) at[slot] = slot;
  for (int n = 1; n <= 10000; ++n) {
    const int x = Rnd(last);
    const int y = Rnd(last);
    std::swap(at[x], at[y]);
  }
  for (int slot = 1; slot <= kDateSlots; ++slot) now[at[slot]] = slot;
  for (auto& game : games) game.slot = now[game.slot];
}

/// The number in a box; -1 for what is none.
int BoxNumber(std::string_view box) { return NumberIn<int>(box).value_or(-1); }

}  // namespace

std::string ScheduleRequestProblem(int activeTeams, int games, int divisional) {
  if (activeTeams < 2) return "A minimum of two teams is required to create a schedule!";
  if (games < 10 || games > 98 || games % 2 != 0) {
    return "Schedules must be an even number of games between 10 and 98.";
  }
  if (divisional < 0 || divisional > 20 || divisional % 2 != 0) {
    return "Divisional games must be zero or an even number between 2 and 20 games.";
  }
  // Stopped at the last row the season would come out uneven, and drawing it would take minutes.
  if (activeTeams * games / 2 > kMostScheduleRows) {
    return "A schedule holds at most " + std::to_string(kMostScheduleRows) + " games, these would be " +
           std::to_string(activeTeams * games / 2) + ".";
  }
  return "";
}

ScheduleDraft DrawSchedule(const ScheduleRequest& request, const std::vector<int>& teams,
                           const std::function<void()>& attempt) {
  Placer placer(request, teams);
  for (int n = 1;; n += 2) {  // the count goes up twice for every attempt
    if (attempt) attempt();
    placer.Attempt(n);
    if (n >= kLastAttempt || placer.Balanced()) break;
  }
  ScheduleDraft draft = placer.Draft();
  draft.dates = Dates(request, placer.Games());
  ScrambleTeams(teams, draft.games);
  ScrambleSlots(placer.Games() - 1, draft.games);
  return draft;
}

std::string ScheduleMessage(const ScheduleDraft& draft) {
  std::string message = "Schedule complete!";
  if (draft.missing > 0) message = "Schedule Missing " + std::to_string(draft.missing) + " Games!";
  if (draft.filledIn && draft.divisions >= 2) {
    message += "\nAdditional divisional games were added to the schedule.";
  }
  if (draft.slack >= 1) message += "\nUnbalanced League.";
  return message;
}

std::vector<ScheduleRecord> ScheduleRows(const ScheduleDraft& draft, int year) {
  std::vector<ScheduleRecord> rows;
  for (const auto& game : draft.games) {
    const auto& date = draft.dates[static_cast<std::size_t>(game.slot - 1)];
    rows.push_back(NewScheduleGame(game.visitor, game.home, date.month, date.day));
    rows.back().Year = static_cast<i16>(year);
  }
  return rows;
}

bool HCCOMPUTERSCHEDULE::GENERATECommand() {
  auto& dialogs = platform::dialogs();
  if (!dialogs.Ask("Overwrite Existing Schedule?")) return false;
  std::vector<int> teams;
  for (int team = 1; team <= kTeams; ++team) {
    if (league.team[team].TeamActive == 1) teams.push_back(team);
  }
  const ScheduleRequest request{BoxNumber(GAMETEXT), BoxNumber(DIVISIONTEXT),
                                BoxNumber(MaxVersusNonDivisionalText), CalendarMonth(MonthList + 1), DayList};
  const auto problem =
      ScheduleRequestProblem(static_cast<int>(teams.size()), request.Games, request.Divisional);
  if (!problem.empty()) return platform::RefusedWith(problem);
  Caption = "Please Wait..";
  const auto draft = DrawSchedule(request, teams, [this] {
    if (Working) Working(Caption);
    Caption += '.';
  });
  Caption.clear();
  TakeSeasonOfLeague();
  const auto rows = ScheduleRows(draft, league.ScheduleYear);
  league.ScheduleGame.resize(1);
  league.ScheduleGame.insert(league.ScheduleGame.end(), rows.begin(), rows.end());
  const bool saved = SaveSchedule();
  if (!LoadSchedule() || !saved) return false;
  dialogs.Tell(ScheduleMessage(draft));
  return true;
}

}  // namespace tipline
