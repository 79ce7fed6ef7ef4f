#include <gtest/gtest.h>

#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/coach_repairs.h"
#include "league/name_tables.h"
#include "league/player_repairs.h"
#include "league/team_repairs.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

/// A team of its time with a coach and a man, whom a load has nothing to mend on.
class Repairs : public testing::Test {
 protected:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;
  TeamRecord team;
  CoachRecord coach;
  PlayerRecord man;

  void SetUp() override {
    Table("VTX-Cities.csv", "");
    MakeSound();
  }

  void Table(const char* name, const std::string& text) {
    ASSERT_TRUE(WriteWholeFile(program.ProgramFolder / name, text));
  }

  void MakeSound() {
    league.rules.SuspensionsCheck = 1;
    team = {}, coach = {}, man = {};
    team.TeamActive = 1, team.Year = 2022, team.TeamType = "P", team.City = "Salem", team.Abbrev = "SLM",
    team.Nickname = "Cats";
    team.HomeForeColor = 1, team.RoadForeColor = 3, team.Wins = 2, team.LogoFile = "Salem.jpg",
    team.CoachName = "A Coach";
    team.OldArenaName = "Hall";
    man.RecNo = 5, man.TeamNo = 3, man.Year = 2022, man.PrimaryPosition = 2, man.Salary = 900,
    man.DebutYear = 2015;
    man.FirstName = "Al", man.LastName = "Ames", man.ShortName = "Ames", man.OldRateDefOutside = 4;
    man.Stats[1].G = 10, man.Stats[1].Min = 340, man.Stats[2].G = 2, man.HeightFeet = 6, man.HeightInches = 7;
    RepairTeam(team, coach), RepairCoach(coach, team), RepairPlayer(man, team);
    team.PlanMark = 9;
  }
};

template <class Record>
struct MarkedCase {
  const char* why;
  u8 Record::*mark;
  void (*spoil)(Record&);
  bool (*mended)(const Record&);
};

/// With its marker a field stays; without, it is mended once.
template <class Record, class Repair>
void TestMarked(const Record& sound, const MarkedCase<Record>& test, Repair repair) {
  Record marked = sound;
  test.spoil(marked);
  ASSERT_FALSE(test.mended(marked)) << test.why << ": the case shows nothing";
  repair(marked);
  EXPECT_FALSE(test.mended(marked)) << test.why << ", marked: stays";
  Record old = sound;
  test.spoil(old);
  old.*test.mark = 1;
  repair(old);
  EXPECT_TRUE(test.mended(old)) << test.why;
  EXPECT_EQ(old.*test.mark, sound.*test.mark) << test.why;
  const auto once = RecordBytes(old);
  repair(old);
  EXPECT_EQ(RecordBytes(old), once) << test.why << ", twice";
}

// clang-format off
TEST_F(Repairs, OfATeamBehindMarkers) {
  using T = TeamRecord;
  Table("VTX-Cities.csv", "City,Abbrev,Arena,Court,HomeCourt,Logo,TimeZone,Canadian\n"
                          "Salem,SAL,Dome,court.jpg,home.jpg,logo.gif,3,1\n");
  program.Names = {};
  const MarkedCase<T> cases[] = {
      {"abbreviation", &T::NameMark, [](T&) {}, [](const T& t) { return t.Abbrev == "SAL"; }},
      {"Canada, by name", &T::CanadaMark, [](T& t) { t.City = "Ottawa"; }, [](const T& t) { return t.CanadianTeam == 1; }},
      {"Canada, by the table", &T::CanadaMark, [](T&) {}, [](const T& t) { return t.CanadianTeam == 1; }},
      {"no Canada", &T::CanadaMark, [](T& t) { t.City = "Bend", t.CanadianTeam = 1; }, [](const T& t) { return t.CanadianTeam == 0; }},
      {"team turnovers", &T::TeamTotalsMark, [](T& t) { t.TeamTurnovers[2] = 4; }, [](const T& t) { return t.TeamTurnovers[2] == 0; }},
      {"team rebounds", &T::TeamTotalsMark, [](T& t) { t.OppTeamRebounds = 4; }, [](const T& t) { return t.OppTeamRebounds == 0; }},
      {"arena file", &T::ArenaFileMark, [](T& t) { t.ArenaFile = "x"; }, [](const T& t) { return t.ArenaFile == "Arena.jpg"; }},
      {"real record", &T::RealRecordMark, [](T& t) { t.RealWins = 50; }, [](const T& t) { return t.RealWins == 0; }},
      {"splits", &T::SplitsMark, [](T& t) { t.LossesAllowing100 = 5; }, [](const T& t) { return t.LossesAllowing100 == 0; }},
      {"time zone", &T::ArenaSizeMark, [](T& t) { t.ArenaAge = 99; }, [](const T& t) { return t.ArenaAge == 3; }},
      {"arena name", &T::ArenaMark, [](T& t) { t.ArenaName = "x"; }, [](const T& t) { return t.ArenaName == "Hall"; }},
      {"arena of the city", &T::ArenaMark, [](T& t) { t.OldArenaName = ""; }, [](const T& t) { return t.ArenaName == "Dome"; }},
      {"conference", &T::ConferenceMark, [](T& t) { t.DivisionWins = 2, t.ConferenceWins = 9; }, [](const T& t) { return t.ConferenceWins == 2 && t.DivisionWins == 2; }},
      {"shot table", &T::ShotTableMark, [](T& t) { t.ShotMadeThree = 5; }, [](const T& t) { return t.ShotMadeThree == 0; }},
      {"last ten", &T::LastTenMark, [](T& t) { t.LastTen[10] = "W"; }, [](const T& t) { return t.LastTen[10].Empty(); }},
      {"highs", &T::HighLowMark, [](T& t) { t.LowPf[2] = 7; }, [](const T& t) { return t.LowPf[2] == 0; }},
      {"home court", &T::HomeCourtMark, [](T&) {}, [](const T& t) { return t.HomeCourtFile == "home.jpg"; }},
      {"court", &T::CourtMark, [](T&) {}, [](const T& t) { return t.CourtFile == "court.jpg"; }},
      {"court of 2013", &T::CourtYearMark, [](T& t) { t.Year = 2013, t.City = "New Bend"; }, [](const T& t) { return t.CourtFile == "VTX-Court-NewBend14.jpg"; }},
  };
  for (const auto& k : cases) TestMarked(team, k, [this](T& one) { RepairTeam(one, coach); });
  const MarkedCase<T> logo{"logo", &T::LogoYearMark, [](T&) {}, [](const T& t) { return t.LogoFile == "logo.gif"; }};
  TestMarked(team, logo, [this](T& one) { RepairCoach(coach, one); });
}

TEST_F(Repairs, OfATeamWhateverItsAge) {
  using T = TeamRecord;
  const struct { const char* why; void (*spoil)(T&); bool (*holds)(const T&); } cases[] = {
      {"odd abbreviation", [](T& t) { t.Abbrev = "S*M"; }, [](const T& t) { return t.Abbrev == "Sal"; }},
      {"draft team", [](T& t) { t.TeamType = "D"; }, [](const T& t) { return t.TeamType == 'P' && t.RosterKind == 'D'; }},
      {"international draft team", [](T& t) { t.TeamType = "O", t.RosterKind = "D"; }, [](const T& t) { return t.TeamType == 'O' && t.RosterKind == 'S'; }},
      {"no letters", [](T& t) { t.TeamType = "x", t.RosterKind = "x", t.TeamSex = "x"; }, [](const T& t) { return t.TeamType == 'P' && t.RosterKind == 'S' && t.TeamSex == 'M'; }},
      {"most team rebounds", [](T& t) { t.OppTeamRebounds = 90; }, [](const T& t) { return t.OppTeamRebounds == 90; }},
      {"too many a game", [](T& t) { t.OppTeamRebounds = 91; }, [](const T& t) { return t.OppTeamRebounds == 0; }},
      {"too many", [](T& t) { t.Wins = 80, t.OppTeamRebounds = 2001; }, [](const T& t) { return t.OppTeamRebounds == 0; }},
      {"a game never played", [](T& t) { t.Wins = 0, t.OppTeamRebounds = 3, t.Streak = 2, t.PossessionMark = 0; }, [](const T& t) { return t.OppTeamRebounds == 0 && t.Streak == 0 && t.PossessionMark == 99; }},
      {"101 real losses", [](T& t) { t.RealWins = 3, t.RealLosses = 101; }, [](const T& t) { return t.RealWins == 0 && t.RealLosses == 0; }},
      {"two cities", [](T& t) { t.City = "Kansas City/Omaha"; }, [](const T& t) { return t.City == "Kansas City-Omaha" && t.Abbrev == "KCO"; }},
      {"two cities, other slash", [](T& t) { t.City = "Kansas City\\Omaha"; }, [](const T& t) { return t.City == "Kansas City-Omaha"; }},
      {"a city no file can have", [](T& t) { t.City = "A/b+c*?"; }, [](const T& t) { return t.City == "Abc"; }},
      {"an abbreviation out of it", [](T& t) { t.City = "A/bc", t.Abbrev = "#"; }, [](const T& t) { return t.Abbrev == "Abc"; }},
      {"no nickname", [](T& t) { t.Nickname = ""; }, [](const T& t) { return t.Nickname == "Salem"; }},
      {"points of a period", [](T& t) { t.PeriodPoints[1][1] = 4000, t.PeriodPoints[2][1] = 4001, t.PeriodPoints[3][2] = -1; }, [](const T& t) { return t.PeriodPoints[1][1] == 4000 && t.PeriodPoints[2][1] == 0 && t.PeriodPoints[3][2] == 0; }},
      {"letters that can't be read", [](T& t) { t.RoadForeColor = t.RoadBackColor = 7; }, [](const T& t) { return t.RoadForeColor == 1 && t.RoadBackColor == 0; }},
  };
  for (const auto& k : cases) {
    MakeSound();
    k.spoil(team);
    RepairTeam(team, coach);
    EXPECT_TRUE(k.holds(team)) << k.why;
  }
  for (const char* file : {"a.doc", "x/y.jpg", ""}) {
    team.LogoFile = file;
    RepairCoach(coach, team);
    EXPECT_EQ(team.LogoFile, "Salem.jpg") << file;
  }
}

TEST_F(Repairs, OfACoach) {
  using C = CoachRecord;
  const MarkedCase<C> cases[] = {
      {"song", &C::FightSongMark, [](C& c) { c.FightSong = "song.wav"; }, [](const C& c) { return c.FightSong == "NONE"; }},
      {"sounds", &C::SoundListMark, [](C& c) { c.DefenseChant[9] = "x"; }, [](const C& c) { return c.DefenseChant[9] == "VTX Short Cheer 9.mp3"; }},
      {"colours", &C::ColorNameMark, [](C& c) { c.ColorNames[3] = "x"; }, [](const C& c) { return c.ColorNames[3].Empty(); }},
      {"uniforms", &C::UniformMark, [](C& c) { c.UniformFiles[1] = "x"; }, [](const C& c) { return c.UniformFiles[1] == "Uni-Road-Salem.jpg"; }},
      {"days off", &C::DailyMark, [](C& c) { c.UseDailyInactive = 1, c.DailyLineupMode = 0; }, [](const C& c) { return c.UseDailyInactive == 0 && c.DailyLineupMode == 1; }},
      {"photo", &C::CoachPhotoMark, [](C& c) { c.CoachPhoto = "x"; }, [](const C& c) { return c.CoachPhoto == "A Coach.jpg"; }},
      {"pace", &C::PaceMark, [](C& c) { c.OverallPace = 4; }, [](const C& c) { return c.OverallPace == 2; }},
      {"matchups", &C::ComputerMatchupMark, [](C& c) { c.ComputerMatchups = 1; }, [](const C& c) { return c.ComputerMatchups == 0; }},
      {"coverage", &C::DefaultsMark, [](C& c) { c.Coverage5[0] = 4; }, [](const C& c) { return c.Coverage5[0] == 2; }},
      {"sixth slider", &C::DefAdjust6Mark, [](C& c) { c.DefAdjust6[10] = 4; }, [](const C& c) { return c.DefAdjust6[10] == 2; }},
  };
  for (const auto& k : cases) TestMarked(coach, k, [this](C& one) { RepairCoach(one, team); });
  coach.DefAdjust6Mark = 0, coach.DefAdjust6[0] = 4, coach.OffAdjust1[0] = 5, coach.FightSongMark = 0, coach.FightSong = "song.Mp3";
  RepairCoach(coach, team);
  EXPECT_EQ(coach.DefAdjust6[0], 4) << "the general plan keeps its sixth slider";
  EXPECT_EQ(coach.OffAdjust1[0], 2) << "no slider goes above 4";
  EXPECT_EQ(coach.FightSong, "song.Mp3");
}

TEST_F(Repairs, OfAManBehindMarkers) {
  using P = PlayerRecord;
  Table("VTX-First-Names.csv", "FirstName,LastName\nAL,Ames\n");
  Table("VTX-Uniforms.csv", "FirstName,LastName,Number\nAl,Ames,00\n");
  Table("VTX-Nicknames.csv", "FirstName,LastName,Nickname\nAl,Ames,Ace\n");
  Table("VTX-Shots.csv", "FirstName,LastName,Shot,Text\nAl,Ames,7,the hook\n");
  Table("VTX-Debuts.csv", "FirstName,LastName,Year,College\nAl,Ames,2011,Bend\n");
  program.Names = {};
  const MarkedCase<P> cases[] = {
      {"team results", &P::WinLossMark, [](P& p) { p.TeamLossesByPosition[5] = 3; }, [](const P& p) { return p.TeamLossesByPosition[5] == 0; }},
      {"first name", &P::FirstNameMark, [](P&) {}, [](const P& p) { return p.UsePlayerFirstName == 1; }},
      {"injuries", &P::InjuryCountMark, [](P& p) { p.SeasonInjuryCount = 3; }, [](const P& p) { return p.SeasonInjuryCount == 0; }},
      {"positions", &P::PositionGamesMark, [](P& p) { p.PointsAtPosition[5] = 3; }, [](const P& p) { return p.PointsAtPosition[5] == 0; }},
      {"injury", &P::InjuryMark, [](P& p) { p.InjuryType = 3, p.SuspensionGames = 2; }, [](const P& p) { return p.InjuryType == 0 && p.SuspensionGames == 0; }},
      {"second salary", &P::Salary2Mark, [](P& p) { p.Salary2 = 3; }, [](const P& p) { return p.Salary2 == 0; }},
      {"plays much", &P::UsageMark, [](P& p) { p.DontPlayWhenTired = 1; }, [](const P& p) { return p.DontPlayWhenTired == 0; }},
      {"plays little", &P::UsageMark, [](P& p) { p.Stats[1].Min = 299; }, [](const P& p) { return p.DontPlayWhenTired == 1; }},
      {"photo", &P::PhotoMark, [](P& p) { p.PhotoFile = "x"; }, [](const P& p) { return p.PhotoFile == "Ames_Al.jpg"; }},
      {"defense", &P::DefRatingMark, [](P& p) { p.RateDefOutside = 9; }, [](const P& p) { return p.RateDefOutside == 4 && p.RateDefInside == 0; }},
      {"depth", &P::PositionShiftMark, [](P& p) { p.DepthRank[1] = 6; }, [](const P& p) { return p.DepthRank[1] == 5 && p.DepthRank[2] == 0; }},
      {"kind", &P::TypeMark, [](P& p) { p.PlayerType = "C", p.Sex = "W"; }, [](const P& p) { return p.PlayerType == 'P' && p.Sex == 'M'; }},
      {"flagrants", &P::FlagrantMark, [](P& p) { p.Flagrants[3] = 1; }, [](const P& p) { return p.Flagrants[3] == 0; }},
      {"last game", &P::StreakFieldsMark, [](P& p) { p.LastGameOpponent = "x"; }, [](const P& p) { return p.LastGameOpponent.Empty(); }},
      {"dunks of old", &P::DunkMark, [](P& p) { p.Year = 1959, p.SalaryModelMark = 210; }, [](const P& p) { return p.RateDunk == 4; }},
      {"lineups", &P::RotationMark, [](P& p) { p.RotationOrder[10] = 4; }, [](const P& p) { return p.RotationOrder[10] == 0; }},
      {"number", &P::UniformMark, [](P&) {}, [](const P& p) { return p.UniformNumber == "00"; }},
      {"nickname", &P::NicknameMark, [](P&) {}, [](const P& p) { return p.Nickname == "Ace"; }},
      {"shot", &P::FavoriteShotMark, [](P&) {}, [](const P& p) { return p.FavoriteShot == 7 && p.FavoriteShotText == "the hook"; }},
      {"debut in his year", &P::SalaryModelMark, [](P& p) { p.DebutYear = 2022; }, [](const P& p) { return p.DebutYear == 2011 && p.College == "Bend"; }},
      {"information", &P::InfoMark, [](P& p) { p.InfoText = "x"; }, [](const P& p) { return p.InfoText.Empty(); }},
      {"minutes", &P::MinutesMark, [](P& p) { p.TargetMinutes = 0; }, [](const P& p) { return p.TargetMinutes == 34 && p.PositionAllowed[2] == 1; }},
      {"crunch time", &P::UsageMark2, [](P& p) { p.PlayAtCrunchTime = 1; }, [](const P& p) { return p.PlayAtCrunchTime == 0; }},
      {"first team", &P::OriginalTeamMark, [](P& p) { p.OriginalTeam = ""; }, [](const P& p) { return p.OriginalTeam == "SLM"; }},
      {"surname", &P::ShortNameMark, [](P& p) { p.LastName = "SMITH", p.ShortName = "SMITH"; }, [](const P& p) { return p.ShortName == "A,SMITH"; }},
  };
  for (const auto& k : cases) TestMarked(man, k, [this](P& one) { RepairPlayer(one, team); });
  PlayerRecord plausible = man;
  plausible.SalaryModelMark = 0;
  RepairPlayer(plausible, team);
  EXPECT_EQ(plausible.DebutYear, 2015);
}

TEST_F(Repairs, OfAManWhateverHisAge) {
  using P = PlayerRecord;
  Table("VTX-Corrections.csv", "FirstName,LastName,Year,Team,Field,Value\n"
                               "Al,Ames,2022,Salem,StartMonth,4\nAl,Ames,0,,Real.FGA,77\nAl,Ames,2021,,EndDay,9\nAl,Ames,0,Bend,EndDay,8\n");
  Table("VTX-Basketball-Colleges.txt", "bnd,Bend,,\n");
  program.Names = {};
  const struct { const char* why; void (*spoil)(P&); bool (*holds)(const P&); } cases[] = {
      {"nobody", [](P& p) { p.LastName = "Noname", p.PrimaryPosition = 0, p.Stats[1].G = p.Stats[2].G = 0; }, [](const P& p) { return p.TeamNo == 0; }},
      {"somebody", [](P& p) { p.LastName = "Noname", p.PrimaryPosition = 0, p.Stats[1].G = 0; }, [](const P& p) { return p.TeamNo == 3; }},
      {"surname cut off", [](P& p) { p.LastName = "", p.ShortName = "Vandermeer, Al"; }, [](const P& p) { return p.LastName == "Vandermeer"; }},
      {"same beginning", [](P& p) { p.LastName = "Van", p.ShortName = "Vandermeer"; }, [](const P& p) { return p.LastName == "Van"; }},
      {"initial before it", [](P& p) { p.ShortName = "A,Ames"; }, [](const P& p) { return p.LastName == "Ames" && p.ShortName == "A,Ames"; }},
      {"comma behind it", [](P& p) { p.ShortName = "Ames,"; }, [](const P& p) { return p.ShortName == "Ames"; }},
      {"no college", [](P& p) { p.College = "nullsville"; }, [](const P& p) { return p.College.Empty(); }},
      {"college code", [](P& p) { p.College = "bnd"; }, [](const P& p) { return p.College == "Bend"; }},
      {"shares not begun", [](P& p) { p.Stats[2].G = 0, p.ShareMark = 0; }, [](const P& p) { return p.ShareMark == 99; }},
      {"photo elsewhere", [](P& p) { p.PhotoFile = "a/b.jpg"; }, [](const P& p) { return p.PhotoFile == "Ames_Al.jpg"; }},
      {"default photo", [](P& p) { p.PhotoFile = "hcdefault.WMF"; }, [](const P& p) { return p.PhotoFile == "Ames_Al.jpg"; }},
      {"shots against him", [](P& p) { p.OppFGA[2] = 4000, p.OppFGM[2] = 4000; }, [](const P& p) { return p.OppFGA[2] == 4000; }},
      {"more made than tried", [](P& p) { p.OppFGA[2] = 3, p.OppFGM[2] = 4; }, [](const P& p) { return p.OppFGA[2] == 0 && p.OppFGM[2] == 0; }},
      {"one share of rubbish", [](P& p) { p.ShareShots = 20000, p.ShareDefReb = 10001; }, [](const P& p) { return p.ShareShots == 0 && p.ShareDefReb == 0; }},
      {"shares at their most", [](P& p) { p.ShareBlocks = 20000, p.ShareDefReb = 10000; }, [](const P& p) { return p.ShareBlocks == 20000; }},
      {"dunks", [](P& p) { p.Stats[2].DunkMark = 0, p.Stats[1].Dunks = p.Stats[3].Dunks = 4; }, [](const P& p) { return p.Stats[1].Dunks + p.Stats[3].Dunks == 0; }},
      {"ejections", [](P& p) { p.Stats[1].EjectionMark = 0, p.Stats[3].Ejections = 1; }, [](const P& p) { return p.Stats[3].Ejections == 0; }},
      {"series shots", [](P& p) { p.SeriesStats.SeriesMark = 0, p.SeriesStats.OldFGA = 9; }, [](const P& p) { return p.SeriesStats.FGA == 9; }},
      {"no worth", [](P& p) { p.Salary = 0; }, [](const P& p) { return p.Salary >= 300; }},
      {"corrections", [](P& p) { p.StartMonth = 0, p.EndDay = 31; }, [](const P& p) { return p.StartMonth == 4 && p.Stats[1].FGA == 77 && p.EndDay == 31; }},
  };
  for (const auto& k : cases) {
    MakeSound();
    k.spoil(man);
    RepairPlayer(man, team);
    EXPECT_TRUE(k.holds(man)) << k.why;
  }
  man.SuspensionGames = 3;
  league.rules.SuspensionsCheck = 0;
  RepairPlayer(man, team);
  EXPECT_EQ(man.SuspensionGames, 0) << "the rules know none";
}
// clang-format on

TEST_F(Repairs, ARealTeamIsCopiedWhenItIsKnown) {
  for (auto& line : team.RealTotals) line.FGA = line.FGM = line.FTA = line.FTM = 10, line.Ast = 6;
  team.RosterKind = "D";
  RepairPlayer(man, team);
  EXPECT_NE(man.RealTeamMark, 11) << "a draft team is nobody's real team";
  team.RosterKind = "S";
  RepairPlayer(man, team);
  EXPECT_EQ(man.RealTeamAst[2], 6);
  team.RealTotals[1].FGA = 20;
  RepairPlayer(man, team);
  EXPECT_EQ(man.RealTeamFGA[1], 10) << "copied once";
}

TEST(NameTables, ShippedOnesAreCopiedAndAUsersOwnStay) {
  const TemporaryHome home;
  platform::ScriptedDialogs dialogs;
  ASSERT_TRUE(WriteWholeFile(program.ProgramFolder / "VTX-Surnames.csv", "LastName\r\nOwn\r\n"));
  ASSERT_TRUE(
      WriteWholeFile(program.ProgramFolder / "VTX-Cities.csv",
                     "any header\nBend,BND,,,,,7,0\nBend,TOOLONG,,,,,3,0\nSalem,SLM,,,,,3,0\n,,,,,,,\nx\n"));
  TeamRecord bend, salem;
  bend.City = "Bend", salem.City = "SALEM";
  EXPECT_EQ(FindCity(bend), nullptr);
  ASSERT_NE(FindCity(salem), nullptr);
  EXPECT_EQ(FindCity(salem)->TimeZone, 3);
  EXPECT_EQ(
      dialogs.told,
      (std::vector<std::string>{"VTX-Cities.csv: lines 2, 3, 5, 6 can't be used and are passed over!"}));
  EXPECT_EQ(Names().Surname.size(), 1u);
  EXPECT_TRUE(Names().Surname.contains("OWN"));
  EXPECT_GT(Names().College.size(), 300u);
  EXPECT_TRUE(std::filesystem::exists(program.ProgramFolder / "VTX-Corrections.csv"));
}

TEST(NameTables, AFieldIsSetByItsNameOrNotAtAll) {
  PlayerRecord man;
  const struct {
    const char *field, *value;
    bool set;
  } cases[] = {{"StartMonth", "5", true},      {"StartMonth", "256", false},  {"StartMonth", "-1", false},
               {"StartMonth", "5x", false},    {"Real.FGA", "-32769", false}, {"Real.FGA", "612", true},
               {"College", "Bend", true},      {"RecNo", "4", false},         {"TeamNo", "4", false},
               {"PositionText", "SGX", false}, {"Nonsense", "1", false},      {"Stats", "1", false}};
  for (const auto& c : cases) EXPECT_EQ(SetField(man, c.field, c.value), c.set) << c.field << " " << c.value;
  EXPECT_EQ(man.StartMonth, 5);
  EXPECT_EQ(man.Stats[1].FGA, 612);
}

}  // namespace
}  // namespace tipline
