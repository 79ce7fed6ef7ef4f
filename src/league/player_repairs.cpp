#include "league/player_repairs.h"

#include "base/numbers.h"
#include "league/league.h"
#include "league/markers.h"
#include "league/name_tables.h"
#include "league/player_values.h"
#include "league/season_reset.h"
#include "league/team_defaults.h"

namespace tipline {
namespace {

bool IsOutside(int value, int most) { return value < 0 || value > most; }

/// What `table` knows of the man; nullptr when nothing.
template <class Row>
const Row* Known(const std::map<std::string, Row, std::less<>>& table, const PlayerRecord& p) {
  if (table.empty()) return nullptr;
  const auto found = table.find(NameKey(p));
  return found == table.end() ? nullptr : &found->second;
}

/// A surname with the initial before it, as common surnames are shown: "J,Smith".
bool HasInitial(const PlayerRecord& p) {
  return p.ShortName.View().size() >= 2 && p.ShortName.View()[1] == ',';
}

struct PlayerRepair {
  PlayerRecord& p;
  const TeamRecord& t;

  void Nobody() {
    const bool played = p.Stats[1].G != 0 || p.Stats[2].G != 0;
    if (p.LastName == "Noname" && p.PrimaryPosition == 0 && !played) p.TeamNo = 0;
  }

  void WinLoss() {
    if (TakeMark(p.WinLossMark, 99)) ClearWinLoss(p);
  }

  void FirstName() {
    const auto& known = Names().FirstNamePlayer;
    if (!TakeMark(p.FirstNameMark, 99) || known.empty()) return;
    p.UsePlayerFirstName = known.contains(NameKey(p)) ? 1 : 0;
  }

  /// A surname cut short is found whole in the name that screens show. One with an initial before it holds
  /// nothing but the surname itself.
  void CutSurname() {
    const auto shown = p.ShortName.View();
    const auto last = p.LastName.View();
    if (shown.size() < 3 || HasInitial(p) || last.size() >= shown.size()) return;
    if (last.substr(0, 3) == shown.substr(0, 3)) return;
    const std::string whole(Trimmed(shown.substr(0, shown.find(','))));
    if (!whole.empty()) p.LastName = whole;
  }

  void Health() {
    if (TakeMark(p.InjuryCountMark, 99)) p.SeasonInjuryCount = 0;
    if (league.rules.SuspensionsCheck != 1) p.SuspensionGames = 0;
  }

  void College() {
    const std::string upper = Upper(p.College.View().substr(0, 4));
    if (upper == "NULL" || upper == "NONE") p.College = "";
    const auto& colleges = Names().College;
    const auto found = colleges.find(p.College.View());
    if (found != colleges.end()) p.College = found->second;
  }

  void Counters() {
    if (TakeMark(p.PositionGamesMark, 99)) ClearPositionGames(p);
    if (TakeMark(p.InjuryMark, 33)) p.InjuryType = p.InjurySeverity = p.SuspensionGames = 0;
    if (TakeMark(p.Salary2Mark, 99)) p.Salary2 = 0;
    if (TakeMark(p.UsageMark, 99)) p.DontPlayWhenTired = MinutesPerGame(p) < 30 ? 1 : 0;
    if (p.Stats[2].G == 0) p.ShareMark = 99;
  }

  void Photo() {
    const std::string own = p.LastName.Str() + "_" + p.FirstName.Str() + ".jpg";
    const auto file = p.PhotoFile.View();
    if (file == "hcdefault.WMF" || file.find('/') != std::string_view::npos) p.PhotoFile = own;
    if (TakeMark(p.PhotoMark, 99) && p.Year >= 2013) p.PhotoFile = own;
  }

  void TrailingComma() {
    std::string shown = p.ShortName.Str();
    if (!shown.ends_with(',')) return;
    while (shown.ends_with(',') || shown.ends_with(' ') || shown.ends_with('\0')) shown.pop_back();
    p.ShortName = shown;
  }

  void Defense() {
    if (!TakeMark(p.DefRatingMark, 99)) return;
    p.RateDefOutside = p.OldRateDefOutside;
    p.RateDefInside = p.OldRateDefInside;
    if (p.OldRateDefOutside == 0 && p.OldRateDefInside == 0) DeriveDefense(p, t);
  }

  void RealTeam() {
    if (t.RosterKind == 'S' && p.RealTeamMark != 11) CopyRealTeam(p, t);
  }

  void DepthShift() {
    if (!TakeMark(p.PositionShiftMark, 55)) return;
    for (u8& rank : p.DepthRank) rank = static_cast<u8>(rank > 0 ? rank - 1 : 0);
  }

  void Corrections() {
    const auto* rows = Known(Names().Corrections, p);
    if (!rows) return;
    for (const Correction& row : *rows) {
      if (row.Year != 0 && row.Year != p.Year) continue;
      const bool his = SameText(row.Team, t.City.View()) || SameText(row.Team, t.Abbrev.View());
      if (row.Team.empty() || his) SetField(p, row.Field, row.Value);
    }
  }

  void Type() {
    if (!TakeMark(p.TypeMark, 55)) return;
    p.PlayerType = t.TeamType.View();
    p.Sex = t.TeamSex.View();
    if (IsCollegeLevel(p) && p.ScheduleStrength == 0) p.ScheduleStrength = t.ScheduleStrength;
  }

  /// Nobody counted dunks then: taller men dunked more.
  void OldDunks() {
    if (!TakeMark(p.DunkMark, 99) || p.Year >= 1960) return;
    p.RateDunk = 0;
    for (const int limit : {72, 74, 76, 78, 80, 82}) {
      if (HeightOf(p) > limit) ++p.RateDunk;
    }
  }

  void Marks() {
    if (TakeMark(p.FlagrantMark, 99)) p.Flagrants = {};
    if (TakeMark(p.StreakFieldsMark, 99)) ClearStreakFields(p);
    OldDunks();
    if (TakeMark(p.RotationMark, 22)) p.RotationOrder = {};
  }

  void Bounds() {
    constexpr i16 kMostCarried = 20000;
    constexpr int kMostShots = 4000, kMostShares = 20000, kMostHalfShares = 10000;
    for (const int line : {2, 3}) {
      const bool rubbish = IsOutside(p.OppFGA[line], kMostShots) || IsOutside(p.OppFGM[line], kMostShots);
      if (rubbish || p.OppFGM[line] > p.OppFGA[line]) p.OppFGA[line] = p.OppFGM[line] = 0;
    }
    for (auto* totals : {&p.CarriedTotal1, &p.CarriedTotal2, &p.CarriedTotal3, &p.CarriedTotal4}) {
      for (i16& total : *totals) total = Clamp<i16>(total, -kMostCarried, kMostCarried);
    }
    if (IsOutside(p.ShareShots, kMostShares) || IsOutside(p.ShareBlocks, kMostShares) ||
        IsOutside(p.ShareAssists, kMostHalfShares) || IsOutside(p.ShareOffReb, kMostHalfShares) ||
        IsOutside(p.ShareDefReb, kMostHalfShares)) {
      p.ShareShots = p.ShareBlocks = p.ShareAssists = p.ShareOffReb = p.ShareDefReb = 0;
    }
  }

  void NewColumns() {
    const bool dunks = TakeMark(p.Stats[2].DunkMark, 99);
    const bool ejections = TakeMark(p.Stats[1].EjectionMark, 99);
    for (StatLine& line : p.Stats) {
      if (dunks) line.Dunks = 0;
      if (ejections) line.Flagrant2 = line.Ejections = 0;
    }
    if (TakeMark(p.SeriesStats.SeriesMark, 99)) p.SeriesStats.FGA = p.SeriesStats.OldFGA;
  }

  void KnownMen() {
    if (TakeMark(p.UniformMark, 33) && !Names().Uniform.empty()) {
      const auto* number = Known(Names().Uniform, p);
      p.UniformNumber = number ? *number : "";
    }
    if (TakeMark(p.NicknameMark, 199) && !Names().Nickname.empty()) {
      const auto* nickname = Known(Names().Nickname, p);
      p.Nickname = nickname ? *nickname : "";
    }
    if (TakeMark(p.FavoriteShotMark, 33) && !Names().Shot.empty()) {
      const auto* shot = Known(Names().Shot, p);
      p.FavoriteShot = static_cast<u8>(shot ? shot->Shot : 0);
      p.FavoriteShotText = shot ? shot->Text : "";
    }
  }

  void Debut() {
    const u8 mark = p.Year >= 2016 ? 155 : p.Year >= 2014 ? 123 : 210;
    if (!TakeMark(p.SalaryModelMark, mark)) return;
    const bool plausible = p.DebutYear < p.Year && p.DebutYear >= 1921 && p.DebutYear <= 2100;
    const auto* row = plausible || p.PlayerType == 'C' ? nullptr : Known(Names().Debut, p);
    if (!row) return;
    p.DebutYear = static_cast<i16>(row->Year);
    if (!row->College.empty()) p.College = row->College;
  }

  /// How his coach uses him, before anybody has said so.
  void Usage() {
    if (TakeMark(p.MinutesMark, 33)) SetMinutesFromLine(p);
    if (TakeMark(p.UsageMark2, 33)) {
      p.PlayAtCrunchTime = p.DontPlayCrunchTime = p.OnlyPlayInBlowouts = p.NeverPlayInBlowouts = 0;
    }
    if (TakeMark(p.OriginalTeamMark, 22) && p.OriginalTeam.Empty()) p.OriginalTeam = t.Abbrev.View();
    if (p.Salary == 0) DefaultSALARY(p, t.TeamType == 'C');
  }

  /// Two men of a common surname differ by their initials.
  void CommonSurname() {
    if (p.ShortNameMark == 99) return;
    const auto& surnames = Names().Surname;
    if (!HasInitial(p) && !p.FirstName.Empty() && surnames.contains(Upper(p.ShortName.View()))) {
      p.ShortName = p.FirstName.Str().substr(0, 1) + "," + p.LastName.Str();
    }
    p.ShortNameMark = 99;
  }
};

}  // namespace

void RepairPlayer(PlayerRecord& player, const TeamRecord& team) {
  PlayerRepair repair{player, team};
  repair.Nobody();
  repair.WinLoss();
  repair.FirstName();
  repair.CutSurname();
  repair.Health();
  repair.College();
  repair.Counters();
  repair.Photo();
  repair.TrailingComma();
  repair.Defense();
  repair.RealTeam();
  repair.DepthShift();
  repair.Corrections();
  repair.Type();
  repair.Marks();
  repair.Bounds();
  repair.NewColumns();
  repair.KnownMen();
  repair.Debut();
  if (TakeMark(player.InfoMark, 99)) player.InfoText = "";
  repair.Usage();
  repair.CommonSurname();
}

void SetMinutesFromLine(PlayerRecord& player) {
  player.TargetMinutes = static_cast<u8>(Clamp(Int(MinutesPerGame(player) + 0.75), 0, 255));
  player.PositionAllowed.Fill(0);
  for (const int position : {player.PrimaryPosition, player.SecondaryPosition, player.SpotPosition}) {
    if (position >= 1 && position <= 5) player.PositionAllowed[position] = 1;
  }
}

void CopyRealTeam(PlayerRecord& player, const TeamRecord& team) {
  for (const auto& line : team.RealTotals) {
    if (line.FGA <= 0 || line.FGM <= 0 || line.FTA <= 0 || line.FTM <= 0) return;
  }
  for (int side = 1; side <= 2; ++side) {
    const RealTotalsLine& line = team.RealTotals[side];
    player.RealTeamFGA[side] = line.FGA, player.RealTeamFGM[side] = line.FGM;
    player.RealTeamFTA[side] = line.FTA, player.RealTeamFTM[side] = line.FTM;
    player.RealTeamReb[side] = line.Reb, player.RealTeamOff[side] = line.Off;
    player.RealTeamTo[side] = line.To, player.RealTeamAst[side] = line.Ast;
  }
  player.RealTeamMark = 11;
}

}  // namespace tipline
