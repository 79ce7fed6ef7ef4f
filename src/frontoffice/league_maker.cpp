#include "frontoffice/league_maker.h"

#include <set>
#include <utility>

#include "base/random.h"
#include "base/record_file.h"
#include "coach/depth_chart.h"
#include "coach/game_plan.h"
#include "coach/plan_load.h"
#include "frontoffice/first_schedule.h"
#include "frontoffice/made_up_player.h"
#include "frontoffice/rating_math.h"
#include "frontoffice/rating_run.h"
#include "frontoffice/season_lines.h"
#include "frontoffice/team_identity.h"
#include "league/coach_repairs.h"
#include "league/data_tree.h"
#include "league/league_reset.h"
#include "league/player_values.h"
#include "league/rules.h"
#include "league/saved_rotation.h"
#include "league/schedule.h"
#include "league/team_repairs.h"

namespace tipline {
namespace {

constexpr int kFreeAgents = 30;
constexpr int kMostDivisionTeams = 20;
constexpr int kNeutralSchedule = 7;  // strength of schedule at which a college man is worth what he shows

constexpr std::string_view kDivisionNames[kDivisions] = {
    "Harbor",    "Lakes",   "River",  "Prairie", "Mountain", "Coast",  "Tidewater", "Piedmont", "Orchard",
    "Heartland", "Delta",   "Gulf",   "Plains",  "Canyon",   "Sierra", "Cascade",   "Valley",   "Forest",
    "Summit",    "Island",  "Bay",    "Granite", "Timber",   "Meadow", "Desert",    "Mesa",     "Bluff",
    "Ridge",     "Glacier", "Aurora", "Lantern", "Beacon",   "Anchor", "Compass",   "Horizon",  "Frontier"};

/// A request with every gap filled from its preset.
struct Plan {
  const LeaguePreset* preset = nullptr;
  int year = 0, divisions = 0, teams = 0, men = 0;

  bool Women() const { return preset->level == GameLevel::kWomen; }
  bool College() const { return preset->level == GameLevel::kCollege; }
};

/// Why a name can't be a league's folder; empty when it can.
std::string NameProblem(const std::string& name) {
  if (name.empty()) return "The league needs a name.";
  if (name.size() > 60) return "The name of a league has at most 60 characters.";
  if (name.front() == '.') return "The name of a league can't begin with a dot.";
  if (name.front() == ' ' || name.back() == ' ') {
    return "The name of a league can't begin or end with a blank.";
  }
  for (const char c : name) {
    if (static_cast<unsigned char>(c) < 32 || c == 127) {
      return "The name of a league can't hold control characters.";
    }
    if (std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos) {
      return std::string("The name of a league can't hold the character ") + c + " .";
    }
  }
  return "";
}

std::string PlanProblem(const LeagueRequest& request, const Plan& plan) {
  if (plan.year < kFirstEraYear || plan.year > kLastEraYear) return "The year must be from 1946 to 2050.";
  if (plan.divisions < 1 || plan.divisions > kDivisions) return "A league has 1 to 36 divisions.";
  if (plan.teams < 2) return "A league needs at least two teams.";
  if (plan.teams % plan.divisions != 0) {
    return std::to_string(plan.teams) + " teams can't be parted into " + std::to_string(plan.divisions) +
           " equal divisions.";
  }
  if (plan.teams / plan.divisions > kMostDivisionTeams) return "A division has at most 20 teams.";
  return request.Games == 0 ? "" : ScheduleRequestProblem(plan.teams, request.Games, 0);
}

bool MakePlan(const LeagueRequest& request, Plan& plan, std::string& message) {
  plan.preset = FindPreset(request.Preset);
  if (!plan.preset) {
    message = "\"" + request.Preset + "\" is no kind of league: pro, college, women or historic.";
    return false;
  }
  plan.year = request.Year ? request.Year : plan.preset->year;
  plan.divisions = request.Divisions ? request.Divisions : plan.preset->divisions;
  plan.teams = request.Teams ? request.Teams : plan.preset->teams;
  plan.men = RosterSize(*plan.preset, plan.year);
  message = PlanProblem(request, plan);
  return message.empty();
}

/// Everything that a load of the team would else have to set.
void SetTeamMarks(TeamRecord& t) {
  t.CourtMark = 11, t.PlanMark = 9, t.NameMark = 37, t.RotationMark = 2, t.HighLowMark = 33;
  t.ArenaMark = 123, t.HomeCourtMark = 111, t.CanadaMark = 199;
  for (u8* mark : {&t.RotationMark2, &t.PossessionMark, &t.LastTenMark, &t.DurabilityMark, &t.ConferenceMark,
                   &t.ShotTableMark, &t.CourtYearMark, &t.ArenaSizeMark, &t.SplitsMark, &t.ArenaFileMark,
                   &t.RealRecordMark, &t.LogoYearMark, &t.TeamTotalsMark}) {
    *mark = 99;
  }
}

TeamRecord NewTeam(const Plan& plan, const TeamIdentity& identity, const NameData& data) {
  TeamRecord team;
  team.TeamActive = 1;
  team.Year = static_cast<i16>(plan.year);
  team.TeamType = plan.College() ? "C" : "P";
  team.TeamSex = plan.Women() ? "W" : "M";
  team.RosterKind = "S";
  team.ScheduleStrength = plan.College() ? kNeutralSchedule : 1;
  DressTeam(team, identity, data, plan.Women());
  for (auto& result : team.LastTen) result = " ";
  SetTeamMarks(team);
  return team;
}

void SetCoach(Roster& roster) {
  RepairTeam(roster.team, roster.coach);
  RepairCoach(roster.coach, roster.team);
  roster.coach.TeamNo = static_cast<i16>(roster.TeamNo);
  SetDefaultPlanSliders(roster);
  roster.coach.PlanVersion = static_cast<i16>(PlanVersionOf(roster.team.Year));
  CopyRotationToCoach(roster);
}

/// Draws men with names that nobody of the league has yet.
class Recruiter {
 public:
  Recruiter(const Plan& plan, const NameData& data) : plan_(plan), data_(data) {}

  PlayerRecord Draw(int teamNo, int position, FictionQuality quality, const TeamRecord& team) {
    const FictionOrder order{teamNo, plan_.year, position, quality};
    PlayerRecord man = CreateOnePlayer(order, data_.people, team);
    for (int tries = 0; tries < 50 && !taken_.insert(man.FirstName.Str() + " " + man.LastName.Str()).second;
         ++tries) {
      man = CreateOnePlayer(order, data_.people, team);
    }
    if (plan_.College()) man.College = Pick(data_.people.City);
    if (man.College == "None") man.College = "";
    if (!plan_.College()) man.DebutYear = static_cast<i16>(man.Year - std::max(0, man.Age - 21));
    return man;
  }

 private:
  static std::string Pick(const std::vector<std::string>& from) {
    return from[static_cast<std::size_t>(Rnd(static_cast<int>(from.size())) - 1)];
  }

  const Plan& plan_;
  const NameData& data_;
  std::set<std::string> taken_;
};

/// A number that no teammate wears: the drawn one or the next above it.
void GiveUniform(PlayerRecord& man, std::set<std::string>& worn) {
  int n = 0;
  for (const char digit : man.UniformNumber.View()) n = 10 * n + (digit - '0');
  while (!worn.insert(std::to_string(n)).second) n = (n + 1) % 100;
  man.UniformNumber = std::to_string(n);
}

/// Teammates of one surname go by their initials.
void TellNamesakesApart(Roster& roster, int men) {
  for (int a = 1; a <= men; ++a) {
    PlayerRecord& man = roster.player[a];
    for (int b = 1; b <= men; ++b) {
      if (a != b && roster.player[b].LastName == man.LastName.View()) {
        man.ShortName = man.FirstName.Str().substr(0, 1) + "," + man.LastName.Str();
      }
    }
  }
}

/// Positions go round, so that every one has its men: two at least on a roster of ten and more. Some teams
/// have been built well and some have not: of two men for a place the fortunate ones keep the better, the
/// others the worse.
void FillRoster(Roster& roster, int men, Recruiter& recruiter) {
  constexpr auto kMix = FictionQuality::kVeteranRookieMix;
  std::set<std::string> worn;
  const double fortune = Rnd();
  for (int slot = 1; slot <= men; ++slot) {
    const int position = (slot - 1) % 5 + 1;
    const PlayerRecord one = recruiter.Draw(roster.TeamNo, position, kMix, roster.team);
    const PlayerRecord other = recruiter.Draw(roster.TeamNo, position, kMix, roster.team);
    const bool better = PlayerOverall(one) >= PlayerOverall(other);
    roster.player[slot] = better == (Rnd() < fortune) ? one : other;
    GiveUniform(roster.player[slot], worn);
  }
  TellNamesakesApart(roster, men);
}

void NumberRows(MadeLeague& made, int men) {
  int row = 0;
  for (auto& roster : made.teams) {
    for (int slot = 1; slot <= men; ++slot) {
      roster.player[slot].RecNo = static_cast<i16>(++row);
      roster.team.Roster[slot] = roster.player[slot].RecNo;
    }
  }
  for (auto& man : made.freeAgents) man.RecNo = static_cast<i16>(++row);
}

/// Ratings of the settled lines, then everything that follows from them.
void FinishRoster(Roster& roster, int men, const RulesRecord& rules) {
  hcratings().RateTeam(roster);
  for (int slot = 1; slot <= men; ++slot) {
    PlayerRecord& man = roster.player[slot];
    man.RateOffense = std::min<u8>(man.RateOffense, 100);
    DefaultClutch(man);
    DefaultSALARY(man, roster.team.TeamType == 'C');
    SetPlayerMarks(man, roster.team);
    SetUsageFromLine(man);
  }
  SetDefaultDepthCharts(roster, rules);
  SetDefaultSpecialLineups(roster);
  SetCoach(roster);
}

void DrawTeams(const Plan& plan, const NameData& data, const std::vector<TeamIdentity>& identities,
               MadeLeague& made) {
  Recruiter recruiter(plan, data);
  const int each = plan.teams / plan.divisions;
  made.teams.resize(static_cast<std::size_t>(plan.teams));
  for (int i = 0; i < plan.teams; ++i) {
    Roster& roster = made.teams[static_cast<std::size_t>(i)];
    roster.TeamNo = TeamsOfDivision(i / each + 1)[i % each + 1];
    roster.team = NewTeam(plan, identities[static_cast<std::size_t>(i)], data);
    FillRoster(roster, plan.men, recruiter);
  }
  TeamRecord pool;
  pool.TeamType = made.teams[0].team.TeamType.View();
  pool.TeamSex = made.teams[0].team.TeamSex.View();
  pool.ScheduleStrength = made.teams[0].team.ScheduleStrength;
  for (int i = 0; i < kFreeAgents; ++i) {
    made.freeAgents.push_back(recruiter.Draw(kFreeAgent, i % 5 + 1, FictionQuality::kReplacement, pool));
  }
}

RulesRecord NewRules(const LeagueRequest& request, const Plan& plan) {
  RulesRecord rules = RulesOf(plan.preset->level, plan.year);
  rules.LeagueName = request.Name;
  rules.CleanMark = kCleaned;  // a new folder has nothing to clean
  rules.GameFilmMark = 99;  // films of a season between computers are a gigabyte: only humans' games have one
  rules.GameFilmsHuman = 1;
  for (int d = 1; d <= kDivisions; ++d)
    rules.DivisionName[d] = d <= plan.divisions ? kDivisionNames[d - 1] : "";
  return rules;
}

/// The rule book as the first load would leave it.
RulesRecord Repaired(const RulesRecord& rules, const Plan& plan) {
  const RulesRecord open = league.rules;
  league.rules = rules;
  RepairRules(plan.year, plan.College() ? 'C' : 'P');
  const RulesRecord repaired = league.rules;
  league.rules = open;
  return repaired;
}

bool DrawWithSeed(const LeagueRequest& request, MadeLeague& made, std::string& message) {
  Plan plan;
  if (!MakePlan(request, plan, message)) return false;
  if (SeasonRow(plan.year, plan.College()).FGA <= 0) {
    message = "The era figures are missing.";
    return false;
  }
  const NameData data = NameData::Load();
  if (!data.Complete()) {
    message = "The names that ship with the program can't be read.";
    return false;
  }
  random.Seed(request.Seed);
  const auto identities = DrawIdentities(data, plan.teams, plan.College());
  if (static_cast<int>(identities.size()) < plan.teams) {
    message = "There are not enough cities for " + std::to_string(plan.teams) + " teams.";
    return false;
  }
  made = {};
  made.rules = Repaired(NewRules(request, plan), plan);
  made.games = request.Games ? request.Games : SeasonGames(*plan.preset, plan.year);
  DrawTeams(plan, data, identities, made);
  NumberRows(made, plan.men);
  SettleSeasonLines(made.teams, plan.preset->level, plan.year);
  for (auto& roster : made.teams) FinishRoster(roster, plan.men, made.rules);
  return true;
}

/// A free slot is no team, but reads as one of this league's time and kind.
TeamRecord EmptySlot(const TeamRecord& like) {
  TeamRecord team;
  team.Year = like.Year;
  team.TeamType = like.TeamType.View();
  team.HomeForeColor = 0x00FFFFFF;
  return team;
}

bool WriteTeams(const std::filesystem::path& folder, const MadeLeague& made) {
  std::vector<const Roster*> slot(kTeams + 1, nullptr);
  for (const auto& roster : made.teams) slot[static_cast<std::size_t>(roster.TeamNo)] = &roster;
  const TeamRecord empty = EmptySlot(made.teams[0].team);
  const bool teams = RecordFile(folder / "HCTEAMS", kTeamSlotBytes).RewriteAll(kTeams, [&](int n, u8* bytes) {
    const Roster* roster = slot[static_cast<std::size_t>(n)];
    WriteRecord(roster ? roster->team : empty, bytes);
  });
  return teams &&
         RecordFile(folder / "HCgameplan", kCoachSlotBytes).RewriteAll(kTeams, [&](int n, u8* bytes) {
           if (const Roster* roster = slot[static_cast<std::size_t>(n)]) WriteRecord(roster->coach, bytes);
         });
}

bool WritePlayers(const std::filesystem::path& folder, const MadeLeague& made) {
  std::vector<const PlayerRecord*> rows;
  for (const auto& roster : made.teams) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      if (roster.player[slot].RecNo > 0) rows.push_back(&roster.player[slot]);
    }
  }
  for (const auto& man : made.freeAgents) rows.push_back(&man);
  return RecordFile(folder / "HCPLAYER", kPlayerSlotBytes)
      .RewriteAll(static_cast<int>(rows.size()),
                  [&](int n, u8* bytes) { WriteRecord(*rows[static_cast<std::size_t>(n - 1)], bytes); });
}

bool WriteRules(const std::filesystem::path& folder, const MadeLeague& made) {
  return RecordFile(folder / "HCRULES", kRulesSlotBytes).RewriteAll(2, [&](int n, u8* bytes) {
    if (n == 1) WriteRecord(made.rules, bytes);
  });
}

FirstSchedule ScheduleOf(const MadeLeague& made, std::uint64_t seed) {
  std::vector<int> teams;
  for (const auto& roster : made.teams) teams.push_back(roster.TeamNo);
  return MakeFirstSchedule(std::move(teams), made.games, made.teams.front().team.Year, seed);
}

bool WriteFolder(const std::filesystem::path& folder, const MadeLeague& made,
                 const std::vector<ScheduleRecord>& schedule) {
  std::error_code error;
  std::filesystem::remove_all(folder, error);
  if (!std::filesystem::create_directories(folder, error) || error) return false;
  return WriteTeams(folder, made) && WritePlayers(folder, made) && WriteRules(folder, made) &&
         WriteSchedule(folder / kDefaultScheduleFile, schedule) && WriteSchedule(folder / "SKED", schedule);
}

}  // namespace

bool DrawLeague(const LeagueRequest& request, MadeLeague& made, std::string& message) {
  const Random before = random;
  const bool drawn = DrawWithSeed(request, made, message);
  random = before;
  return drawn;
}

bool RequestIsSound(const LeagueRequest& request, std::string& message) {
  Plan plan;
  message = NameProblem(request.Name);
  return message.empty() && MakePlan(request, plan, message);
}

bool MakeLeague(const LeagueRequest& request, std::string& message) {
  if (!RequestIsSound(request, message)) return false;
  const auto folder = LeaguesFolder() / request.Name;
  std::error_code error;
  if (std::filesystem::exists(std::filesystem::symlink_status(folder, error))) {
    message = "A league \"" + request.Name + "\" exists already.";
    return false;
  }
  MadeLeague made;
  if (!DrawLeague(request, made, message)) return false;
  const auto beside = LeaguesFolder() / ("." + request.Name + ".new");
  const FirstSchedule schedule = ScheduleOf(made, request.Seed);
  if (WriteFolder(beside, made, schedule.rows)) {
    std::filesystem::rename(beside, folder, error);
    if (!error) {
      message = "Made \"" + request.Name + "\": " + std::to_string(made.teams.size()) + " teams, " +
                std::to_string(made.freeAgents.size()) + " free agents, season " +
                std::to_string(made.teams.front().team.Year) + ", seed " + std::to_string(request.Seed) +
                ".\n" + schedule.message;
      return true;
    }
  }
  std::filesystem::remove_all(beside, error);
  message = "The league can't be written to " + LeaguesFolder().string() + ".";
  return false;
}

}  // namespace tipline
