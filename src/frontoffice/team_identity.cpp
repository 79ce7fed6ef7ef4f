#include "frontoffice/team_identity.h"

#include <algorithm>
#include <set>

#include "base/csv.h"
#include "base/numbers.h"
#include "base/random.h"
#include "base/record_file.h"
#include "platform/folders.h"

namespace tipline {
namespace {

constexpr std::size_t kLongestLabel = 20;

std::vector<std::string> DataLines(const char* file) {
  return Lines(ReadWholeFile(platform::ShippedData() / file));
}

int Number(const std::string& text) { return NumberIn<int>(text).value_or(0); }

struct StateZones {
  std::vector<std::pair<std::string, int>> rows;
  int Of(const std::string& state) const {
    for (const auto& [name, zone] : rows) {
      if (name == state) return zone;
    }
    return 0;
  }
};

StateZones ReadZones() {
  StateZones zones;
  for (const auto& line : DataLines("states.csv")) {
    const auto fields = CsvFields(line);
    if (fields.size() >= 2) zones.rows.emplace_back(fields[0], Number(fields[1]));
  }
  return zones;
}

void ReadCities(const char* file, bool canadian, const StateZones& zones, std::vector<City>& cities) {
  const auto lines = DataLines(file);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const auto fields = CsvFields(lines[i]);
    if (fields.size() < 3) continue;
    cities.push_back({fields[0], fields[1], Number(fields[2]), zones.Of(fields[1]), canadian});
  }
}

template <class T>
T TakeOne(std::vector<T>& from) {
  const auto at = from.begin() + (Rnd(static_cast<int>(from.size())) - 1);
  T taken = std::move(*at);
  from.erase(at);
  return taken;
}

// School names: what stands before and behind the city. No real school is called so; a name of the list of
// real colleges is turned down all the same.
struct SchoolPattern {
  std::string_view before, behind;
};
constexpr SchoolPattern kSchools[] = {
    {"", " Normal"}, {"Old ", ""},       {"", " Lyceum"},     {"", " Mechanical"}, {"Upper ", ""},
    {"", " Agri"},   {"", " Athenaeum"}, {"", " Collegiate"}, {"", " Crossing"},   {"", " Guild"},
};
// A second, third .. team of a city.
constexpr std::string_view kQuarters[] = {"", "East ", "West ", "North ", "South "};

std::string LabelOf(const City& city, int round, int start, bool college) {
  if (!college) return std::string(kQuarters[round]) + city.name;
  const auto& pattern = kSchools[static_cast<std::size_t>(start + round) % std::size(kSchools)];
  return std::string(pattern.before) + city.name + std::string(pattern.behind);
}

bool IsRealCollege(const std::string& label, const std::vector<std::string>& colleges) {
  return std::any_of(colleges.begin(), colleges.end(),
                     [&](const std::string& name) { return SameText(name, label); });
}

/// Half as many cities again as teams, the largest ones: which of them get a team is drawn.
std::vector<City> Candidates(const NameData& data, int count) {
  const auto pool = std::min(data.cities.size(), static_cast<std::size_t>(count) * 3 / 2 + 10);
  return {data.cities.begin(), data.cities.begin() + static_cast<std::ptrdiff_t>(pool)};
}

/// From the Atlantic to Hawaii, so that neighbours in the order are neighbours on the map.
int Westward(const City& city) { return city.timeZone == 6 ? -1 : city.timeZone; }

void GiveNicknames(std::vector<TeamIdentity>& teams, const NameData& data) {
  std::vector<std::string> left;
  for (auto& team : teams) {
    if (left.empty()) left = data.nicknames;
    team.nickname = TakeOne(left);
  }
}

// Team colours as red, green, blue, and the colours that letters may have on them.
constexpr int kColors[] = {0xC8102E, 0x00338D, 0x006341, 0xF58426, 0x552583, 0x0077C8, 0x041E42, 0x862633,
                           0xFDB927, 0x007A33, 0x98002E, 0x1D428A, 0x5D76A9, 0x12173F, 0xB4975A, 0x236192,
                           0x4F2683, 0xE03A3E, 0x00788C, 0x3E2680, 0x7C2529, 0x2F4F4F, 0xA4343A, 0x1B5E20};
constexpr int kLetters[] = {0xFFFFFF, 0x000000, 0xFFD100, 0xC4CED4, 0x0C2340};
constexpr int kReadable = 125;  // least difference of brightness between letters and ground

int Brightness(int rgb) {
  return ((rgb >> 16 & 255) * 299 + (rgb >> 8 & 255) * 587 + (rgb & 255) * 114) / 1000;
}
i32 FileColor(int rgb) { return (rgb & 255) << 16 | (rgb & 0xFF00) | (rgb >> 16 & 255); }

void DrawColors(TeamRecord& team) {
  const int ground = kColors[Rnd(std::size(kColors)) - 1];
  std::vector<int> letters;
  for (const int color : kLetters) {
    if (std::abs(Brightness(color) - Brightness(ground)) >= kReadable) letters.push_back(color);
  }
  const int letter = letters[static_cast<std::size_t>(Rnd(static_cast<int>(letters.size())) - 1)];
  team.HomeForeColor = FileColor(letter);
  team.HomeBackColor = FileColor(ground);
  team.RoadForeColor = FileColor(ground);
  team.RoadBackColor = FileColor(letter);
  team.TextColor = FileColor(letter);
}

std::string DrawCoach(const NameData& data, bool women) {
  const auto pick = [](const std::vector<std::string>& names) {
    return names[static_cast<std::size_t>(Rnd(static_cast<int>(names.size())) - 1)];
  };
  std::string name;
  for (int tries = 0; tries < 20; ++tries) {
    const bool woman = women && Rnd(2) == 1;
    name = pick(woman ? data.people.FirstWomen : data.people.First) + " ";
    name += pick(data.people.Last);
    if (name.size() <= kLongestLabel) break;
  }
  return name;
}

std::string WithoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

}  // namespace

NameData NameData::Load() {
  NameData data;
  const StateZones zones = ReadZones();
  ReadCities("us_cities.csv", false, zones, data.cities);
  ReadCities("canadian_cities.csv", true, zones, data.cities);
  std::stable_sort(data.cities.begin(), data.cities.end(),
                   [](const City& a, const City& b) { return a.population > b.population; });
  std::set<std::string> seen;
  std::erase_if(data.cities, [&](const City& city) { return !seen.insert(city.name).second; });
  data.nicknames = DataLines("nicknames.txt");
  data.arenaWords = DataLines("arena_words.txt");
  data.people = ShippedFictionFiles();
  return data;
}

bool NameData::Complete() const {
  return !cities.empty() && !nicknames.empty() && !arenaWords.empty() && !people.First.empty() &&
         !people.FirstWomen.empty() && people.Last.size() >= 10 && !people.College.empty();
}

std::string FreeAbbreviation(std::string_view label, const std::vector<std::string>& taken) {
  std::string letters;
  for (const char c : Upper(label)) {
    if (c >= 'A' && c <= 'Z') letters += c;
  }
  letters += "XYZ";
  const auto free = [&](const std::string& text) {
    return std::find(taken.begin(), taken.end(), text) == taken.end();
  };
  for (std::size_t j = 1; j < letters.size(); ++j) {
    for (std::size_t k = j + 1; k < letters.size(); ++k) {
      const std::string text{letters[0], letters[j], letters[k]};
      if (free(text)) return text;
    }
  }
  std::string text = "AAA";
  for (text[0] = 'A'; text[0] <= 'Z'; ++text[0]) {
    for (text[1] = 'A'; text[1] <= 'Z'; ++text[1]) {
      for (text[2] = 'A'; text[2] <= 'Z'; ++text[2]) {
        if (free(text)) return text;
      }
    }
  }
  return "";
}

std::vector<TeamIdentity> DrawIdentities(const NameData& data, int count, bool college) {
  const int rounds = college ? std::size(kSchools) : std::size(kQuarters);
  std::vector<TeamIdentity> teams;
  std::set<std::string> labels;
  for (int round = 0; round < rounds; ++round) {
    std::vector<City> left = Candidates(data, count);
    while (!left.empty() && static_cast<int>(teams.size()) < count) {
      const City city = TakeOne(left);
      const int start = college ? Rnd(std::size(kSchools)) - 1 : 0;
      const std::string label = LabelOf(city, round, start, college);
      if (label.size() > kLongestLabel || IsRealCollege(label, data.people.College)) continue;
      if (labels.insert(label).second) teams.push_back({city, label, "", ""});
    }
  }
  GiveNicknames(teams, data);
  std::stable_sort(teams.begin(), teams.end(), [](const TeamIdentity& a, const TeamIdentity& b) {
    return std::make_pair(Westward(a.place), a.place.state) <
           std::make_pair(Westward(b.place), b.place.state);
  });
  std::vector<std::string> taken;
  for (auto& team : teams) taken.push_back(team.abbrev = FreeAbbreviation(team.place.name, taken));
  return teams;
}

void DressTeam(TeamRecord& team, const TeamIdentity& identity, const NameData& data, bool women) {
  constexpr std::string_view kHalls[] = {" Arena",    " Coliseum", " Fieldhouse",
                                         " Pavilion", " Hall",     " Center"};
  team.City = identity.label;
  team.Nickname = identity.nickname;
  team.Abbrev = identity.abbrev;
  team.CoachName = DrawCoach(data, women);
  DrawColors(team);
  const auto word = static_cast<std::size_t>(Rnd(static_cast<int>(data.arenaWords.size())) - 1);
  const auto hall = kHalls[Rnd(std::size(kHalls)) - 1];
  team.ArenaName = data.arenaWords[word] + std::string(hall);
  team.OldArenaName = team.ArenaName.View();
  team.LogoFile = identity.label + ".jpg";
  team.CourtFile = "VTX-Court-" + WithoutBlanks(identity.label) + "14.jpg";
  team.HomeCourtFile = "VTX-COURT-H-" + WithoutBlanks(identity.label) + ".jpg";
  team.ArenaFile = "Arena.jpg";
  team.ArenaAge = static_cast<u8>(identity.place.timeZone);
  team.CanadianTeam = identity.place.canadian;
}

}  // namespace tipline
