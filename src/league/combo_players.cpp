#include "league/combo_players.h"

#include <algorithm>
#include <map>

#include "base/numbers.h"
#include "league/league.h"

namespace tipline {
namespace {

int BareTeam(int team) { return team > kFormerMember ? team - kFormerMember : team; }
bool IsTeam(int team) { return team >= 1 && team <= kTeams; }
int GamesOf(int team) { return IsTeam(team) ? league.team[team].Wins + league.team[team].Losses : 0; }
bool MayCome(int team) { return team <= 288 || (team >= 1001 && team <= 1288); }
bool MayLead(int team) { return (IsTeam(team) || (team >= 1001 && team <= 1288)) && team != kFreeAgent; }

std::string TeamText(int team) { return IsTeam(team) ? Upper(league.team[team].Abbrev.View()) : "FA"; }

i16 Sum(i16 a, i16 b) { return static_cast<i16>(Clamp(a + b, -32768, 32767)); }

class Scan {
 public:
  Scan() : last_(static_cast<int>(league.player.size()) - 1), team_(Size()), used_(Size()) {
    NoteTeams();
    for (int row = 1; row <= last_; ++row) {
      PlayerRecord& man = Row(row);
      man.ComboTag = "";
      namesakes_[KeyOf(man)].push_back(row);
    }
  }

  void Run() {
    for (int row = 1; row <= last_; ++row) {
      if (!used_[At(row)] && team_[At(row)] != 0 && MayLead(Row(row).TeamNo)) Join(row);
    }
  }

 private:
  static std::size_t At(int row) { return static_cast<std::size_t>(row); }
  std::size_t Size() const { return league.player.size(); }
  static PlayerRecord& Row(int row) { return league.player[At(row)]; }
  static std::string KeyOf(const PlayerRecord& p) {
    return p.FirstName.Str() + '\n' + p.LastName.Str() + '\n' + std::to_string(p.Age);
  }

  void NoteTeams() {
    for (int team = 1; team <= kTeams; ++team) {
      if (league.team[team].TeamActive != 1) continue;
      mostGames_ = std::max(mostGames_, GamesOf(team));
      for (const i16 row : league.team[team].Roster) {
        if (row >= 1 && row <= last_ && IsTeam(Row(row).TeamNo)) team_[At(row)] = team;
      }
    }
  }

  /// More games than one of the teams has played can't be one man's.
  bool AreOne(int i, int j) const {
    const PlayerRecord& a = Row(i);
    const PlayerRecord& b = Row(j);
    if (BareTeam(a.TeamNo) == BareTeam(b.TeamNo) || a.ComboDone != 0) return false;
    const int games = a.Stats[2].G + b.Stats[2].G;
    return games <= GamesOf(team_[At(i)]) && games <= GamesOf(BareTeam(b.TeamNo));
  }

  void Join(int i) {
    const auto& rows = namesakes_[KeyOf(Row(i))];
    int m = 0;
    for (const int j : rows) {
      if (j == i || used_[At(j)] || !MayCome(Row(j).TeamNo) || !AreOne(i, j)) continue;
      if (m == 0) m = Append(i);
      used_[At(j)] = true;
      league.ComboTeams[m] += "-" + TeamText(BareTeam(Row(j).TeamNo));
      Add(Row(m), Row(j));
    }
    if (m != 0 && Row(m).Stats[2].G > mostGames_ + 3) TakeLongest(m, rows);
  }

  int Append(int i) {
    league.player.push_back(PlayerRecord(Row(i)));
    const int m = static_cast<int>(league.player.size()) - 1;
    Row(m).TeamNo = kCombined;
    Row(m).ComboTag = "COMBO";
    used_[At(i)] = true;
    league.ComboTeams[m] = TeamText(BareTeam(team_[At(i)]));
    return m;
  }

  void Add(PlayerRecord& whole, const PlayerRecord& part) const {
    StatLine& a = whole.Stats[2];
    const StatLine& b = part.Stats[2];
    if (a.G == b.G && a.Min == b.Min && a.FGA == b.FGA && a.Ast == b.Ast)
      return;  // one season, written twice
    if (part.ComboDone == 1 || a.G + b.G > mostGames_ + 1) return;
    a.G = Sum(a.G, b.G);
    a.Ast = Sum(a.Ast, b.Ast);
    a.Min = Sum(a.Min, b.Min);
  }

  /// The rows were not one man's: the longest of them stands for him.
  void TakeLongest(int m, const std::vector<int>& rows) {
    const int longest = *std::max_element(
        rows.begin(), rows.end(), [](int a, int b) { return Row(a).Stats[2].Min < Row(b).Stats[2].Min; });
    Row(m) = PlayerRecord(Row(longest));
    Row(m).TeamNo = kCombined;
    Row(m).ComboTag = "COMBO";
  }

  int last_;
  int mostGames_ = 0;
  std::vector<int> team_;
  std::vector<char> used_;
  std::map<std::string, std::vector<int>> namesakes_;
};

}  // namespace

void ComboPlayerScan() {
  league.ComboTeams.clear();
  while (league.player.size() > 1 && league.player.back().TeamNo == kCombined) league.player.pop_back();
  if (!league.player.empty()) Scan().Run();
}

}  // namespace tipline
