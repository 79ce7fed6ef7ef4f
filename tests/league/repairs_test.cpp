#include <gtest/gtest.h>

#include "base/record_file.h"
#include "harness/temporary_home.h"
#include "league/coach_repairs.h"
#include "league/name_tables.h"
#include "league/player_repairs.h"
#include "league/setup.h"
#include "league/team_repairs.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

/// `spoil` makes a sound record an old or a damaged one; after a load it `holds`. Behind a marker that
/// happens once.
template <class R>
struct Case {
  const char* why;
  void (*spoil)(R&);
  bool (*holds)(const R&);
  u8 R::*mark = nullptr;
};
#define ALWAYS(why, spoil, holds) \
  Case<R>(                        \
      why, [](R& r) { spoil; }, [](const R& r) { return holds; })
#define MARKED(mark, spoil, holds) \
  Case<R>(                         \
      #mark, [](R& r) { spoil; }, [](const R& r) { return holds; }, &R::mark)

template <class R, class Repair>
void TestRepairs(const R& sound, const std::vector<Case<R>>& cases, Repair repair) {
  for (const auto& c : cases) {
    SCOPED_TRACE(c.why);
    R old = sound;
    c.spoil(old);
    if (c.mark) {
      ASSERT_FALSE(c.holds(old)) << "the case shows nothing";
      R marked = old;
      repair(marked);
      EXPECT_FALSE(c.holds(marked)) << "marked: stays";
      old.*c.mark = 1;
    }
    EXPECT_TRUE(repair(old) || !c.mark);
    EXPECT_TRUE(c.holds(old));
    EXPECT_TRUE(!c.mark || old.*c.mark == sound.*c.mark);
    EXPECT_FALSE(repair(old)) << "twice";
  }
}

/// A team of its time with a coach and a man, whom a load has nothing to mend on.
class Repairs : public testing::Test {
 protected:
  TemporaryLeague folder;
  platform::ScriptedDialogs dialogs;
  TeamRecord team;
  CoachRecord coach;
  PlayerRecord man;

  /// Each is true when something was mended.
  static bool Mend(TeamRecord& team, CoachRecord& coach) {
    const auto teamBefore = RecordBytes(team), coachBefore = RecordBytes(coach);
    RepairTeam(team, coach);
    RepairCoach(coach, team);
    return RecordBytes(team) != teamBefore || RecordBytes(coach) != coachBefore;
  }
  static bool Mend(PlayerRecord& man, const TeamRecord& team) {
    const auto before = RecordBytes(man);
    RepairPlayer(man, team);
    return RecordBytes(man) != before;
  }

  void SetUp() override {
    const std::pair<const char*, std::string> tables[] = {
        {"Cities.csv", "header\nSalem,SAL,Dome,court.jpg,home.jpg,logo.gif,3,1\n"},
        {"First-Names.csv", "header\nAL,Ames\n"},
        {"Uniforms.csv", "header\nAl,Ames,00\n"},
        {"Nicknames.csv", "header\nAl,Ames,Ace\n"},
        {"Shots.csv", "header\nAl,Ames,7,the hook\n"},
        {"Debuts.csv", "header\nAl,Ames,2011,Bend\n"},
        {"Basketball-Colleges.txt", "bnd,Bend,,\n"},
        {"Corrections.csv",
         "header\nAl,Ames,2022,Salem,StartMonth,4\nAl,Ames,0,,Real.FGA,77\n"
         "Al,Ames,2021,,EndDay,9\nAl,Ames,0,Bend,EndDay,8\n"},
    };
    for (const auto& [name, text] : tables)
      ASSERT_TRUE(WriteWholeFile(program.ProgramFolder / ("VTX-" + std::string(name)), text));
    league.rules.SuspensionsCheck = 1;
    team.TeamActive = 1, team.Year = 2022, team.TeamType = "P", team.City = "Salem", team.Nickname = "Cats";
    team.HomeForeColor = 1, team.RoadForeColor = 3, team.Wins = 2, team.CoachName = "A Coach";
    team.OldArenaName = "Hall";
    man.RecNo = 5, man.TeamNo = 3, man.Year = 2022, man.PrimaryPosition = 2, man.DebutYear = 2015;
    man.FirstName = "Al", man.LastName = "Ames", man.ShortName = "Ames", man.OldRateDefOutside = 4;
    man.Stats[1].G = 10, man.Stats[1].Min = 340, man.Stats[2].G = 2, man.HeightFeet = 6, man.HeightInches = 7;
    Mend(team, coach), Mend(man, team);
    EXPECT_FALSE(Mend(team, coach) || Mend(man, team)) << "once is enough";
  }
};

TEST_F(Repairs, OfATeam) {
  using R = TeamRecord;
  team.PlanMark = 9;
  const std::vector<Case<R>> cases = {
      MARKED(NameMark, r.Abbrev = "SLM", r.Abbrev == "SAL"),
      MARKED(CanadaMark, (r.City = "Ottawa", r.CanadianTeam = 0), r.CanadianTeam == 1),
      MARKED(CanadaMark, r.CanadianTeam = 0, r.CanadianTeam == 1),
      MARKED(ArenaSizeMark, r.ArenaAge = 99, r.ArenaAge == 3),
      MARKED(ArenaMark, r.ArenaName = "x", r.ArenaName == "Hall"),
      MARKED(ArenaMark, r.OldArenaName = "", r.ArenaName == "Dome"),
      MARKED(ConferenceMark, (r.DivisionWins = 2, r.ConferenceWins = 9), r.ConferenceWins == 2),
      MARKED(ShotTableMark, r.ShotMadeThree = 5, r.ShotMadeThree == 0),
      MARKED(HomeCourtMark, r.HomeCourtFile = "", r.HomeCourtFile == "home.jpg"),
      MARKED(CourtMark, r.CourtFile = "", r.CourtFile == "court.jpg"),
      MARKED(CourtYearMark, (r.Year = 2013, r.City = "New Bend"), r.CourtFile == "VTX-Court-NewBend14.jpg"),
      MARKED(LogoYearMark, r.LogoFile = "a.jpg", r.LogoFile == "logo.gif"),
      ALWAYS("odd abbreviation", r.Abbrev = "S*M", r.Abbrev == "Sal"),
      ALWAYS("draft team", r.TeamType = "D", r.TeamType == 'P' && r.RosterKind == 'D'),
      ALWAYS("international draft", (r.TeamType = "O", r.RosterKind = "D"), r.RosterKind == 'S'),
      ALWAYS("no letters", r.TeamType = r.TeamSex = "x", r.TeamType == 'P' && r.TeamSex == 'M'),
      ALWAYS("most team rebounds", r.OppTeamRebounds = 90, r.OppTeamRebounds == 90),
      ALWAYS("too many a game", r.OppTeamRebounds = 91, r.OppTeamRebounds == 0),
      ALWAYS("too many", (r.Wins = 80, r.OppTeamRebounds = 2001), r.OppTeamRebounds == 0),
      ALWAYS("no game played", (r.Wins = 0, r.OppTeamRebounds = 3, r.Streak = 2, r.PossessionMark = 0),
             r.OppTeamRebounds == 0 && r.Streak == 0 && r.PossessionMark == 99),
      ALWAYS("101 real losses", (r.RealWins = 3, r.RealLosses = 101), r.RealWins == 0 && r.RealLosses == 0),
      ALWAYS("two cities", r.City = "Kansas City/Omaha", r.City == "Kansas City-Omaha" && r.Abbrev == "KCO"),
      ALWAYS("a city no file can have", r.City = "A/b+c*?", r.City == "Abc"),
      ALWAYS("an abbreviation out of it", (r.City = "A/bc", r.Abbrev = "#"), r.Abbrev == "Abc"),
      ALWAYS("no nickname", r.Nickname = "", r.Nickname == "Salem"),
      ALWAYS("too many points", r.PeriodPoints[2][1] = 4001, r.PeriodPoints[2][1] == 0),
      ALWAYS("points below none", r.PeriodPoints[3][2] = -1, r.PeriodPoints[3][2] == 0),
      ALWAYS("letters that can't be read", r.RoadForeColor = r.RoadBackColor = 7,
             r.RoadForeColor == 1 && r.RoadBackColor == 0),
      ALWAYS("no image", r.LogoFile = "a.doc", r.LogoFile == "Salem.jpg"),
      ALWAYS("a path", r.LogoFile = "x/y.jpg", r.LogoFile == "Salem.jpg"),
  };
  TestRepairs(team, cases, [this](R& one) { return Mend(one, coach); });
}

TEST_F(Repairs, OfACoach) {
  using R = CoachRecord;
  const std::vector<Case<R>> cases = {
      MARKED(FontMark, r.TeamFont = "x", r.TeamFont == "Arial"),
      MARKED(FightSongMark, r.FightSong = "song.wav", r.FightSong == "NONE"),
      MARKED(SoundListMark, r.DefenseChant[9] = "x", r.DefenseChant[9] == "VTX Short Cheer 9.mp3"),
      MARKED(UniformMark, r.UniformFiles[1] = "x", r.UniformFiles[1] == "Uni-Road-Salem.jpg"),
      MARKED(CoachPhotoMark, r.CoachPhoto = "x", r.CoachPhoto == "A Coach.jpg"),
      MARKED(DefaultsMark, r.Coverage5[0] = 4, r.Coverage5[0] == 2),
      MARKED(DefAdjust6Mark, r.DefAdjust6[10] = 4, r.DefAdjust6[10] == 2),
      ALWAYS("general plan", (r.DefAdjust6Mark = 0, r.DefAdjust6[0] = 4), r.DefAdjust6[0] == 4),
      ALWAYS("no slider goes above 4", r.OffAdjust1[0] = 5, r.OffAdjust1[0] == 2),
      ALWAYS("a song", (r.FightSongMark = 0, r.FightSong = "song.Mp3"), r.FightSong == "song.Mp3"),
  };
  TestRepairs(coach, cases, [this](R& one) { return Mend(team, one); });
}

TEST_F(Repairs, OfAMan) {
  using R = PlayerRecord;
  const std::vector<Case<R>> cases = {
      MARKED(FirstNameMark, r.UsePlayerFirstName = 0, r.UsePlayerFirstName == 1),
      MARKED(InjuryMark, r.InjuryType = 3, r.InjuryType == 0),
      MARKED(UsageMark, r.DontPlayWhenTired = 1, r.DontPlayWhenTired == 0),
      MARKED(UsageMark, r.Stats[1].Min = 299, r.DontPlayWhenTired == 1),
      MARKED(PhotoMark, r.PhotoFile = "x", r.PhotoFile == "Ames_Al.jpg"),
      MARKED(DefRatingMark, r.RateDefOutside = 9, r.RateDefOutside == 4 && r.RateDefInside == 0),
      MARKED(PositionShiftMark, r.DepthRank[1] = 6, r.DepthRank[1] == 5 && r.DepthRank[2] == 0),
      MARKED(TypeMark, (r.PlayerType = "C", r.Sex = "W"), r.PlayerType == 'P' && r.Sex == 'M'),
      MARKED(DunkMark, (r.Year = 1959, r.SalaryModelMark = 210), r.RateDunk == 4),
      MARKED(UniformMark, r.UniformNumber = "", r.UniformNumber == "00"),
      MARKED(NicknameMark, r.Nickname = "", r.Nickname == "Ace"),
      MARKED(FavoriteShotMark, r.FavoriteShotText = "", r.FavoriteShotText == "the hook"),
      MARKED(SalaryModelMark, r.DebutYear = 2022, r.DebutYear == 2011 && r.College == "Bend"),
      MARKED(MinutesMark, r.TargetMinutes = 0, r.TargetMinutes == 34 && r.PositionAllowed[2] == 1),
      MARKED(OriginalTeamMark, r.OriginalTeam = "", r.OriginalTeam == "SAL"),
      MARKED(ShortNameMark, (r.LastName = "SMITH", r.ShortName = "SMITH"), r.ShortName == "A,SMITH"),
      ALWAYS("a plausible debut", r.SalaryModelMark = 0, r.DebutYear == 2015),
      ALWAYS("nobody", (r.LastName = "Noname", r.PrimaryPosition = 0, r.Stats[1].G = r.Stats[2].G = 0),
             r.TeamNo == 0),
      ALWAYS("somebody", (r.LastName = "Noname", r.PrimaryPosition = 0, r.Stats[1].G = 0), r.TeamNo == 3),
      ALWAYS("surname cut", (r.LastName = "", r.ShortName = "Vandermeer, Al"), r.LastName == "Vandermeer"),
      ALWAYS("same beginning", (r.LastName = "Van", r.ShortName = "Vandermeer"), r.LastName == "Van"),
      ALWAYS("initial before it", r.ShortName = "A,Ames", r.LastName == "Ames" && r.ShortName == "A,Ames"),
      ALWAYS("comma behind it", r.ShortName = "Ames,", r.ShortName == "Ames"),
      ALWAYS("no college", r.College = "nullsville", r.College.Empty()),
      ALWAYS("college code", r.College = "bnd", r.College == "Bend"),
      ALWAYS("shares not begun", (r.Stats[2].G = 0, r.ShareMark = 0), r.ShareMark == 99),
      ALWAYS("photo elsewhere", r.PhotoFile = "a/b.jpg", r.PhotoFile == "Ames_Al.jpg"),
      ALWAYS("default photo", r.PhotoFile = "hcdefault.WMF", r.PhotoFile == "Ames_Al.jpg"),
      ALWAYS("shots against him", r.OppFGA[2] = r.OppFGM[2] = 4000, r.OppFGA[2] == 4000),
      ALWAYS("more made than tried", (r.OppFGA[2] = 3, r.OppFGM[2] = 4), r.OppFGA[2] + r.OppFGM[2] == 0),
      ALWAYS("rubbish", (r.ShareShots = 5, r.ShareDefReb = 10001), r.ShareShots + r.ShareDefReb == 0),
      ALWAYS("shares at their most", (r.ShareBlocks = 20000, r.ShareDefReb = 10000), r.ShareBlocks == 20000),
      ALWAYS("dunks", (r.Stats[2].DunkMark = 0, r.Stats[3].Dunks = 4), r.Stats[3].Dunks == 0),
      ALWAYS("ejections", (r.Stats[1].EjectionMark = 0, r.Stats[3].Ejections = 1), r.Stats[3].Ejections == 0),
      ALWAYS("series", (r.SeriesStats.SeriesMark = 0, r.SeriesStats.OldFGA = 9), r.SeriesStats.FGA == 9),
      ALWAYS("no worth", r.Salary = 0, r.Salary >= 300),
      ALWAYS("corrections", (r.StartMonth = 0, r.EndDay = 31),
             r.StartMonth == 4 && r.Stats[1].FGA == 77 && r.EndDay == 31),
  };
  TestRepairs(man, cases, [this](R& one) { return Mend(one, team); });
  man.SuspensionGames = 3;
  league.rules.SuspensionsCheck = 0;
  RepairPlayer(man, team);
  EXPECT_EQ(man.SuspensionGames, 0) << "the rules know none";
}

TEST_F(Repairs, OfASetup) {
  using R = SetupRecord;
  setup = {};
  RepairSetup();
  const std::vector<Case<R>> cases = {
      MARKED(PlayCallMark, r.PlayCallFrequency[1][1] = 9, r.PlayCallFrequency[1][1] == 2),
      MARKED(SoundEditionMark, r.SoundCrowdScroll = 7, r.SoundCrowdScroll == 100),
      MARKED(NarratorEditionMark, r.NarratorScroll = 7, r.NarratorScroll == 10),
  };
  TestRepairs(SetupRecord(setup), cases, [](R& one) {
    const auto before = RecordBytes(one);
    setup = one;
    RepairSetup();
    one = setup;
    return RecordBytes(one) != before;
  });
  setup = {};
}

TEST_F(Repairs, ARealTeamIsCopiedWhenItIsKnown) {
  for (auto& line : team.RealTotals) line.FGA = line.FGM = line.FTA = line.FTM = 10, line.Ast = 6;
  team.RosterKind = "D";
  EXPECT_FALSE(Mend(man, team)) << "a draft team is nobody's real team";
  team.RosterKind = "S";
  EXPECT_TRUE(Mend(man, team));
  EXPECT_EQ(man.RealTeamAst[2], 6);
  team.RealTotals[1].FGA = 20;
  EXPECT_FALSE(Mend(man, team)) << "copied once";
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
  } cases[] = {{"StartMonth", "5", true}, {"StartMonth", "256", false},   {"StartMonth", "5x", false},
               {"Real.FGA", "612", true}, {"Real.FGA", "-32769", false},  {"College", "Bend", true},
               {"RecNo", "4", false},     {"PositionText", "SGX", false}, {"Stats", "1", false},
               {"Nonsense", "1", false}};
  for (const auto& c : cases) EXPECT_EQ(SetField(man, c.field, c.value), c.set) << c.field << " " << c.value;
  EXPECT_EQ(man.StartMonth, 5);
  EXPECT_EQ(man.Stats[1].FGA, 612);
}

}  // namespace
}  // namespace tipline
