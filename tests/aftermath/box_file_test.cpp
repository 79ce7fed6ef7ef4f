#include "aftermath/box_file.h"

#include <gtest/gtest.h>

#include <memory>

#include "aftermath/box_text.h"
#include "aftermath/play_log.h"
#include "base/record_file.h"
#include "engine/engine.h"
#include "harness/bench_coach.h"
#include "harness/laws.h"
#include "harness/memory_league.h"
#include "harness/temporary_home.h"
#include "league/files.h"
#include "platform/dialogs.h"
#include "support/two_teams.h"

namespace tipline {
namespace {

/// A small league whose games are written to a folder of their own.
class BoxFile : public ::testing::Test {
 protected:
  BoxFile() {
    OpenSmallLeague("pro");
    program.LeagueFolder = home_.Home();
    program.GameKind = "L";
  }
  void Play(std::uint64_t seed = 5) {
    random.Seed(seed);
    const auto teams = MemoryTeams();
    PlayMatch(teams[0], teams[1]);
    ASSERT_TRUE(game.GameOver);
  }
  static std::string Save(const char* name) {
    program.BoxFileName = name;
    EXPECT_TRUE(SaveBoxFile());
    return ReadWholeFile(LeagueFile(name));
  }
  static bool Load(const char* name, bool resuming = false) {
    program.BoxFileName = name;
    program.ResumingGame = resuming;
    return LoadBoxFile();
  }
  static void Write(const char* name, const std::string& bytes) {
    ASSERT_TRUE(WriteWholeFile(LeagueFile(name), bytes));
  }

  TemporaryHome home_;
  platform::ScriptedDialogs dialogs_;
};

long NumberAt(const std::string& bytes, int offset, int size) {
  long value = 0;
  for (int k = size - 1; k >= 0; --k)
    value = value << 8 | static_cast<unsigned char>(bytes[static_cast<std::size_t>(offset + k)]);
  return value;
}

/// Every table of the game has a value of its own, in the second man of side 2 where it is a table of men.
void FillTables() {
  TwoTeams();
  program.GameKind = "L";
  game.Period = 5, game.GameClock = 70001, game.ShotClock = 171;
  game.GameState = "FREETHROW-WAIT", game.PlayResult = "MF", game.PreviousResult = "FTG";
  game.OffenseSide = 1, game.DefenseSide = 2, game.BallPlayer = 4;
  game.GameDay = 17, game.GameMonth = 6, game.GameYear = 2011;
  game.DeadBallKind = 3, game.NeedsBringUp = 1, game.NeutralGame = true;
  game.ScheduleRow = 1234;
  game.RunTeam = 2, game.RunPoints = 9, game.LeadChanges = 21, game.Ties = 14, game.OpeningTipWinner = 1;
  game.InjuryNames = "Ames, ", game.TechnicalNames = "Bond, ", game.EjectionNames = "Cole, ";
  game.FlagrantNames = "Dunn, Eads, ";
  program.PlayoffGame = true, program.CurrentRound = 3, program.CurrentBracket = 2, program.RoundWins = 4;
  program.CurrentSeriesGame = 11;
  Side& home = game.side[2];
  home.Score = 101, home.PeriodScore[5] = 12, home.HalfScore = 55, home.Starters = {{6, 7, 8, 9, 10}};
  home.StoredMatchup = {{2, 1, 3, 5, 4}}, home.Matchup = {{5, 4, 3, 2, 1}};
  home.OffensePace = 4, home.DefenseType = 3, home.InsideOffense = 5, home.DefenseHelp = 2, home.Pressure = 1;
  home.CrashBoardsOffense = 1, home.CrashBoardsDefense = 2, home.TimeoutsLeft = 6, home.TeamFouls = 7;
  home.LastShot = home.StealFoul = home.TimeoutOffense = 1, home.AutoSubWhenFoulTrouble = 1;
  home.GameTeamTurnovers = 8, home.ExtraPaintPoints = 10, home.ExtraSecondChancePoints = 13;
  home.FastbreakPoints = 22, home.BenchPoints = 33, home.BiggestLead = 19, home.GameTeamRebounds = 15;
  home.ScoutOffense[5] = 301, home.ScoutHelp[2] = 302, home.ScoutPressure[4] = 303;
  home.ScoutDefenseType[1] = 304, home.ScoutCoverage[3][10][6] = 305;
  game.team[2].Abbrev = "HOM", game.team[2].ArenaAge = 3, game.team[2].Wins = 40, game.team[2].Losses = 2;
  game.team[2].Possessions[3] = 98, game.team[2].OppPossessions[3] = 97;
  ManAt(1, 4).ShotPick = 3;

  PlayerRecord& p = PlayerAt(2, 2);
  p.RecNo = 777, p.LastName = "Longnamedfellowes";
  p.Stats[3].FGA = 21, p.Stats[3].FGM = 11, p.Stats[3].Pf = 5, p.Stats[3].Flagrant2 = 1;
  p.ShotAttInside[3] = 9, p.ShotAttOffReb3[3] = 4, p.ShotMadeInside[3] = 6, p.ShotMadeOffReb3[3] = 3;
  p.OppFGA[3] = 23, p.OppFGM[3] = 12, p.CarriedTotal1[3] = 401, p.CarriedTotal4[3] = 404;
  p.QuarterPoints[5][3] = 7, p.Flagrants[3] = 2, p.InjuryReturnMonth = 8, p.InjuryReturnDay = 30;
  p.SuspensionGames = 3;
  Man& man = ManAt(2, 2);
  man.PlayerGameTime = 24120, man.RestTime = 1300, man.FatigueLoad = 2500, man.PositionTime[3] = 40000;
  man.PositionPoints[3] = 18, man.CoverageInside = 5, man.CoverageThree = 6, man.DoubleTeamInside = 1;
  man.DoubleTeamThree = 1, man.Ejected = 1, man.GlobalOffense = 2, man.SafeStyle = 1, man.PlusMinus = -13;
  man.ShareShots = 61, man.ShareBlocks = 62, man.ShareAssists = 63, man.ShareOffReb = 64,
  man.ShareDefReb = 65;
  LoadedAt(2, 2).PlayerOut = 1;
  game.ScoreLogCount = 2;
  game.ScoreLog[2] = {2, 2, 99, 101, 5, 513, 'k', 27};
}

TEST_F(BoxFile, EveryFieldHasItsPlace) {
  FillTables();
  program.LeagueFolder = home_.Home();
  const std::string bytes = Save("BOX3.BOX");
  ASSERT_EQ(bytes.size(), 20000u);
  const struct {
    const char* field;
    int offset, size;
    long value;
  } numbers[] = {{"Score", 3, 1, 101},
                 {"PeriodScore", 18, 1, 12},
                 {"Period", 24, 1, 5},
                 {"GameClock", 25, 4, 70001},
                 {"ShotClock", 29, 2, 171},
                 {"ScheduleRow", 52, 2, 1234},
                 {"DefenseSideCopy", 55, 1, 2},
                 {"OffenseSide", 56, 1, 1},
                 {"DefenseSide", 57, 1, 2},
                 {"BallPlayer", 58, 1, 4},
                 {"time played", 99 + 31 * 4, 4, 24120},
                 {"RestTime", 339 + 31 * 4, 4, 1300},
                 {"FatigueLoad", 579 + 31 * 4, 4, 2500},
                 {"Lineup", 819, 1, 1},
                 {"Starters", 829 + 6, 1, 7},
                 {"Day", 841, 1, 17},
                 {"Month", 842, 1, 6},
                 {"Year", 843, 2, 2011},
                 {"mark", 6670, 1, 99},
                 {"PlayerOutCopy", 6671 + 31, 1, 1},
                 {"mark of the text", 6731, 1, 99},
                 {"mark", 6777, 1, 99},
                 {"team turnovers", 6779, 1, 8},
                 {"FormatStamp", 6780, 2, 2018},
                 {"mark", 6782, 1, 99},
                 {"PositionTime, held", 6783 + (2 * 60 + 31) * 2, 2, 32000},
                 {"PositionPoints", 7383 + 2 * 60 + 31, 1, 18},
                 {"PlayerRecNo", 7683 + 31 * 2, 2, 777},
                 {"Line: G", 7803 + 31 * 64, 2, 1},
                 {"Line: Min", 7803 + 31 * 64 + 4, 2, 40},
                 {"Line: FGA", 7803 + 31 * 64 + 6, 2, 21},
                 {"Line: Flagrant2", 7803 + 31 * 64 + 40, 1, 1},
                 {"ShotAttInside", 11643 + 31, 1, 9},
                 {"ShotAttOffReb3", 12063 + 31, 1, 4},
                 {"ShotMadeInside", 12123 + 31, 1, 6},
                 {"ShotMadeOffReb3", 12543 + 31, 1, 3},
                 {"CoverageInside", 12663 + 31, 1, 5},
                 {"CoverageThree", 12783 + 31, 1, 6},
                 {"DoubleTeamInside", 12843 + 31, 1, 1},
                 {"DoubleTeamOutside", 12903 + 31, 1, 0},
                 {"DoubleTeamThree", 12963 + 31, 1, 1},
                 {"RunTeam", 13023, 1, 2},
                 {"RunPoints", 13024, 1, 9},
                 {"mark", 13031, 1, 99},
                 {"ExtraPaintPoints", 13033, 1, 10},
                 {"mark", 13034, 1, 99},
                 {"ExtraSecondChancePoints", 13036, 1, 13},
                 {"mark", 13037, 1, 99},
                 {"neutral court", 13038, 1, 1},
                 {"DeadBallKind", 13039, 1, 3},
                 {"NeedsBringUp", 13040, 1, 1},
                 {"HalfScore", 13042, 1, 55},
                 {"time zone", 13043, 1, 37},
                 {"pace", 13045, 1, 4},
                 {"DefenseType", 13047, 1, 3},
                 {"InsideOffense", 13049, 1, 5},
                 {"help", 13051, 1, 2},
                 {"Pressure", 13053, 1, 1},
                 {"CrashBoardsOffense", 13055, 1, 1},
                 {"CrashBoardsDefense", 13057, 1, 2},
                 {"LastShot", 13059, 1, 1},
                 {"QuickShot", 13061, 1, 0},
                 {"StealFoul", 13063, 1, 1},
                 {"NoFoul", 13065, 1, 0},
                 {"TimeoutOffense", 13067, 1, 1},
                 {"TimeoutDefense", 13069, 1, 0},
                 {"StoredMatchup", 13075, 1, 2},
                 {"TimeoutTeam and counts", 13080, 3, 0},
                 {"CarriedTotal1", 13083 + 31 * 2, 2, 401},
                 {"CarriedTotal4", 13443 + 31 * 2, 2, 404},
                 {"Ejected", 13563 + 31, 1, 1},
                 {"Ties", 13623, 1, 14},
                 {"TimeoutsLeft", 13625, 1, 6},
                 {"round", 13627, 1, 3},
                 {"bracket", 13628, 1, 2},
                 {"wins", 13629, 1, 4},
                 {"game of the bracket", 13630, 1, 11},
                 {"return month", 13631 + 31, 1, 8},
                 {"day", 13691 + 31, 1, 30},
                 {"PlayerOut", 13751 + 31, 1, 1},
                 {"TeamFouls", 14053, 1, 7},
                 {"AutoSubWhenTired", 14056, 1, 0},
                 {"AutoSubWhenFoulTrouble", 14059, 1, 1},
                 {"OpeningTipWinner", 14063, 1, 1},
                 {"GameTeam", 14066, 2, 2},
                 {"ScoutOffense", 14068 + (5 * 3 + 2) * 2, 2, 301},
                 {"ScoutHelp", 14134 + (2 * 3 + 2) * 2, 2, 302},
                 {"ScoutPressure", 14164 + (4 * 3 + 2) * 2, 2, 303},
                 {"ScoutDefenseType", 14194 + (3 + 2) * 2, 2, 304},
                 {"ScoutCoverage", 14224 + (((5 * 11 + 10) * 3 + 2) * 3 + 2) * 2, 2, 305},
                 {"FastbreakPoints", 15413, 1, 22},
                 {"LeadChanges", 15414, 1, 21},
                 {"BenchPoints", 15416, 1, 33},
                 {"BiggestLead", 15418, 1, 19},
                 {"OppFGA", 15419 + 31, 1, 23},
                 {"OppFGM", 15479 + 31, 1, 12},
                 {"CoachMode length", 15542, 2, 1},
                 {"ShareShots", 15545 + 31, 1, 61},
                 {"ShareBlocks", 15605 + 31, 1, 62},
                 {"ShareAssists", 15665 + 31, 1, 63},
                 {"ShareOffReb", 15725 + 31, 1, 64},
                 {"ShareDefReb", 15785 + 31, 1, 65},
                 {"PlusMinus", 15845 + 31 * 2, 2, 65536 - 13},
                 {"possessions", 15967, 2, 98},
                 {"theirs", 15971, 2, 97},
                 {"CalendarMonth", 15973, 1, 2},
                 {"TeamFga", 15975, 1, 21},
                 {"TeamFgm", 15977, 1, 11},
                 {"TeamPf", 15997, 1, 5},
                 {"match-ups of the stop", 15998, 1, 5},
                 {"team rebounds", 16014, 1, 15},
                 {"points in overtime", 16075 + 4 * 60 + 31, 1, 7},
                 {"Flagrants", 16555 + 31, 1, 2},
                 {"mark", 16615, 1, 99},
                 {"ScoreLogCount", 16616, 2, 2},
                 {"log: Slot", 17533, 1, 2},
                 {"log: Side", 17534, 1, 2},
                 {"log: visitor", 17535, 1, 99},
                 {"log: home", 17536, 1, 101},
                 {"log: period", 17537, 1, 5},
                 {"log: clock", 17538, 2, 513},
                 {"log: points", 17541, 1, 27},
                 {"GlobalOffense", 19776 + 31, 1, 2},
                 {"SafeStyle", 19836 + 31, 1, 1},
                 {"Overtime", 19896, 1, 1},
                 {"mark", 19897, 1, 99},
                 {"mark", 19898, 1, 99},
                 {"SuspensionGames", 19899 + 31, 1, 3},
                 {"ShotPick", 19959 + 3 * 2, 2, 3},
                 {"type length", 19969, 2, 1},
                 {"last bytes", 19998, 2, 0}};
  for (const auto& n : numbers)
    EXPECT_EQ(NumberAt(bytes, n.offset, n.size), n.value) << n.field << " " << n.offset;
  const struct {
    int offset;
    std::string_view text;
  } texts[] = {{31, "FREETHROW-WAIT      L"},
               {54, "Y"},
               {59, "MF                  FTG "},
               {866, "0-0     40-2    "},
               {6732, "2023 Edition 0-1-0       HH"},
               {13626, "Y"},
               {13811, "Ames    "},
               {13871, "Bond    "},
               {13931, "Cole    "},
               {13991, "Dunn, Eads    "},
               {15544, "H"},
               {16618 + 31 * 15, "Longnamedfellow"},
               {17521, "HOM"},
               {17540, "k"},
               {19971, "R"}};
  for (const auto& t : texts) {
    EXPECT_EQ(bytes.substr(static_cast<std::size_t>(t.offset), t.text.size()), t.text) << t.offset;
  }
}

TEST_F(BoxFile, AGameUnderWayIsTakenUpWhereItStood) {
  for (int stops : {1, 8, 40, 120, 200}) {
    random.Seed(static_cast<std::uint64_t>(stops));
    const auto teams = MemoryTeams();
    SetUpMatch(teams[0], teams[1]);
    SeatHumans();
    NewGame();
    for (int k = 0; k < stops && !game.GameOver; ++k) LeaveItToTheComputer();
    if (game.GameOver) continue;
    const std::string before = Save("TempBox");
    for (int s = 1; s <= 2; ++s) SeatTeam(teams[static_cast<std::size_t>(s) - 1], s);
    PrepareGame();
    ASSERT_TRUE(Load("TempBox", true)) << stops;
    EXPECT_TRUE(Save("Again") == before) << "after " << stops << " stops";
    game.GameStarted = true;
    SetPlayBox();
    for (int k = 0; k < 2000 && !game.GameOver; ++k) LeaveItToTheComputer();
    EXPECT_TRUE(game.GameOver) << stops;
    EXPECT_EQ(BrokenLaw(), "") << "after " << stops << " stops";
  }
}

TEST_F(BoxFile, BoxesInARowSumUp) {
  Play();
  const Game played = game;
  Save("BOX1.BOX");
  EXPECT_TRUE(std::filesystem::exists(LeagueFile("BOX1.PLY")));
  game = {};
  ASSERT_TRUE(Load("BOX1.BOX"));
  ASSERT_TRUE(Load("BOX1.BOX"));
  for (int s = 1; s <= 2; ++s) {
    EXPECT_EQ(game.side[s].Score, played.side[s].Score);
    EXPECT_EQ(game.team[s].Abbrev, played.team[s].Abbrev);
    EXPECT_GT(game.side[s].TeamLine.FGA, 50);
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      const PlayerRecord& man = PlayerAt(s, slot);
      if (played.player[s][slot].TeamNo != played.GameTeam[s]) continue;
      EXPECT_EQ(man.LastName.View(), played.player[s][slot].LastName.View().substr(0, 15));
      EXPECT_EQ(RecordBytes(man.Stats[3]), RecordBytes(played.player[s][slot].Stats[3]));
      EXPECT_EQ(man.Stats[2].FGA, 2 * man.Stats[3].FGA) << "once for each load";
      EXPECT_EQ(man.Stats[2].Min, 2 * man.Stats[3].Min);
    }
  }
  EXPECT_EQ(game.ScoreLogCount, played.ScoreLogCount);
  PlayerAt(1, 1).Stats[2].Min = 6000;
  const int had = PlayerAt(1, 1).Stats[2].FGA;
  PlayerAt(1, 2).CarriedTotal3[2] = 24990;
  auto box = std::make_unique<BoxRecord>();
  ASSERT_TRUE(ReadBox(LeagueFile("BOX1.BOX"), *box));
  box->CarriedTotal3[2][1] = 100;
  Write("BOX2.BOX", [&] {
    const auto bytes = RecordBytes(*box);
    return std::string(bytes.begin(), bytes.end());
  }());
  ASSERT_TRUE(Load("BOX2.BOX"));
  EXPECT_EQ(PlayerAt(1, 1).Stats[2].FGA, had) << "a season line of 6000 minutes is full";
  EXPECT_EQ(PlayerAt(1, 2).CarriedTotal3[2], 25000);

  game = {};
  program.BoxRecordOnly = true;
  ASSERT_TRUE(Load("BOX1.BOX"));
  EXPECT_EQ(game.ScoreLogCount, played.ScoreLogCount);
  EXPECT_EQ(game.side[1].Score, 0);
  game.GameStarted = true;
  ASSERT_TRUE(Load("BOX1.BOX"));
  EXPECT_EQ(game.ScoreLogCount, 0) << "the log of the game that is on is not to be mixed up with it";
}

TEST_F(BoxFile, WhatOlderFilesLack) {
  Play();
  game.side[1].GameTeamTurnovers = 4;
  game.GameMonth = 7, game.GameYear = league.team[1].Year;
  LoadedAt(1, 1).PlayerOut = 1;
  PlayerAt(1, 1).Stats[3].Flagrant2 = 1;
  std::string bytes = Save("BOX1.BOX");
  ASSERT_TRUE(Load("BOX1.BOX"));
  EXPECT_EQ(game.GameYear, league.team[1].Year + 1) << "March belongs to the next year";
  for (const int mark : {6670, 6777, 6782, 13037, 16615, 19897}) bytes[static_cast<std::size_t>(mark)] = 0;
  bytes[6671] = 0;                                 // the copy of who is out
  bytes[12663] = 0;                                // coverage that was never set
  bytes[0] = static_cast<char>(MemoryTeams()[2]);  // the team in the old way
  Write("BOX1.BOX", bytes);
  game = {};
  ASSERT_TRUE(Load("BOX1.BOX"));
  EXPECT_EQ(game.GameTeam[1], MemoryTeams()[2]);
  EXPECT_EQ(game.side[1].GameTeamTurnovers, 0);
  EXPECT_EQ(game.ScoreLogCount, 0);
  EXPECT_EQ(ManAt(1, 1).PositionTime, (Table<i32, 1, 5>{}));
  EXPECT_GT(ManAt(1, 1).PlayerGameTime, 0);
  EXPECT_EQ(LoadedAt(1, 1).PlayerOut, 1);
  EXPECT_EQ(ManAt(1, 1).CoverageInside, 3);
  EXPECT_EQ(PlayerAt(1, 1).Stats[2].Flagrant2, 0);
}

/// Nothing in the game's tables leads out of another.
void ExpectWithinTables(int seed) {
  const auto within = [seed](int value, int low, int high, const char* what) {
    EXPECT_TRUE(value >= low && value <= high) << what << " " << value << ", seed " << seed;
  };
  within(game.Period, 1, 20, "Period");
  within(game.OffenseSide, 1, 2, "OffenseSide");
  within(game.DefenseSide, 1, 2, "DefenseSide");
  within(game.BallPlayer, 0, 30, "BallPlayer");
  within(game.BallSlot, 0, 5, "BallSlot");
  within(game.BallDefender, 0, 30, "BallDefender");
  within(game.DeadBallKind, 0, 4, "DeadBallKind");
  within(game.GameCalendarMonth, 0, 12, "month");
  for (int s = 1; s <= 2; ++s) {
    const Side& side = game.side[s];
    within(side.DefenseHelp, 0, 4, "DefenseHelp");
    within(side.DefenseType, 0, 3, "DefenseType");
    within(side.Pressure, 0, 4, "Pressure");
    within(side.WaitingSub, 0, 30, "WaitingSub");
    within(side.FreeThrowMan, 0, 30, "FreeThrowMan");
    for (int p = 1; p <= kPositions; ++p) {
      within(side.Lineup[p], 0, 30, "Lineup");
      within(side.Starters[p], 0, 30, "Starters");
      within(side.StoredMatchup[p], 1, 5, "StoredMatchup");
      within(side.Matchup[p], 1, 5, "Matchup");
    }
    for (int slot = 1; slot <= kRosterSlots; ++slot) {
      within(ManAt(s, slot).CoverageInside, 1, 6, "coverage");
      within(ManAt(s, slot).ShotPick, 0, 3, "ShotPick");
    }
  }
  for (int n = 1; n <= game.ScoreLogCount; ++n) {
    within(game.ScoreLog[n].Side, 1, 2, "log side");
    within(game.ScoreLog[n].Slot, 0, 30, "log slot");
  }
  for (int n = 1; n <= game.PlayLogCount; ++n) {
    within(game.PlayLog[n].Side, 1, 2, "play side");
    within(game.PlayLog[n].OtherSlot, 0, 30, "play slot");
  }
}

TEST_F(BoxFile, DamageHarmsNobody) {
  Play();
  const std::string sound = Save("BOX1.BOX");
  const std::string plays = ReadWholeFile(LeagueFile("BOX1.PLY"));
  ASSERT_GT(plays.size(), 2000u);
  const Game before = game;
  const auto noise = [](std::string& bytes, int every) {
    for (char& byte : bytes) {
      if (Rnd(every) == 1) byte = static_cast<char>(Rnd(256) - 1);
    }
  };
  for (int seed = 1; seed <= 500; ++seed) {
    random.Seed(static_cast<std::uint64_t>(seed));
    std::string box = sound, log = plays;
    noise(box, seed % 3 == 0 ? 1 : seed % 3 == 1 ? 20 : 300);
    noise(log, 5);
    if (seed % 4 == 0) box.resize(static_cast<std::size_t>(Rnd(20000)));
    if (seed % 10 != 0 && box.size() > 14068) {  // mostly of the two teams
      box.replace(0, 2, 2, '\0').replace(14064, 4, sound, 14064, 4);
    }
    Write("BOX2.BOX", box);
    Write("BOX2.PLY", log);
    game = before;
    game.GameStarted = false;
    if (!Load("BOX2.BOX", seed % 2 == 0)) continue;
    ReadPlayLog(LeagueFile("BOX2.PLY"));
    ExpectWithinTables(seed);
    EXPECT_FALSE(BoxPage().empty() || ScoringPage().empty() || PlayLogPage().empty());
    Save("TempBox");
  }
  for (int seed = 1; seed <= 60; ++seed) {  // and the game goes on from it
    random.Seed(static_cast<std::uint64_t>(seed));
    const auto teams = MemoryTeams();
    SetUpMatch(teams[0], teams[1]);
    std::string box = sound;
    noise(box, seed % 2 == 0 ? 8 : 200);
    box.replace(0, 2, 2, '\0').replace(14064, 4, sound, 14064, 4);
    Write("BOX2.BOX", box);
    ASSERT_TRUE(Load("BOX2.BOX", true));
    for (auto& side : game.side) side.CoachMode = "C";
    game.GameStarted = true;
    program.Autoplaying = true;
    SetPlayBox();
    program.Autoplaying = false;
    ExpectWithinTables(seed);
  }
}

TEST_F(BoxFile, HoldsThePageThatWasWritten) {
  Play();
  const auto lines = [](const std::string& bytes) { return NumberAt(bytes, 882, 1); };
  const auto line = [](const std::string& bytes, int n) {
    return bytes.substr(static_cast<std::size_t>(883 + (n - 1) * 85), 85);
  };
  ASSERT_TRUE(WriteBoxText());
  std::string page = ReadWholeFile(LeagueFile("VTX.txt"));
  EXPECT_EQ(page, game.BoxPageText);
  std::string bytes = Save("BOX1.BOX");
  const auto written = std::count(page.begin(), page.end(), '\n') - 1;  // and the end of the page
  EXPECT_EQ(lines(bytes), std::min<std::ptrdiff_t>(written, 65));
  EXPECT_EQ(Trimmed(line(bytes, 1)), Trimmed(page.substr(0, page.find('\n'))));

  game.BoxPageText.clear();  // a report of another screen, or of another program
  page.clear();
  for (int n = 1; n <= 70; ++n) page += "line " + std::to_string(n) + std::string(90, '.') + "\r\n";
  Write("VTX.txt", page);
  bytes = Save("BOX1.BOX");
  EXPECT_EQ(lines(bytes), 65);
  EXPECT_EQ(line(bytes, 64), "line 64" + std::string(78, '.'));
  EXPECT_EQ(line(bytes, 65), "line 70" + std::string(78, '.')) << "the last line stands at the end";

  Write("VTX.txt", std::string(99, 'x'));
  EXPECT_EQ(line(Save("BOX1.BOX"), 64), "line 64" + std::string(78, '.')) << "too short: the page stays";
  std::filesystem::remove(LeagueFile("VTX.txt"));
  bytes = Save("BOX9.BOX");
  EXPECT_EQ(lines(bytes), 0);
  EXPECT_EQ(NumberAt(bytes, 6731, 1), 99);
}

TEST_F(BoxFile, RefusesWhatIsNoBox) {
  Play();
  const auto unchanged = [](auto&& act) {
    const int score = game.side[1].Score;
    game.ScoreLogCount = 7;
    EXPECT_FALSE(act());
    EXPECT_EQ(game.ScoreLogCount, 7);
    EXPECT_EQ(game.side[1].Score, score);
  };
  Write("EMPTY.BOX", "");
  for (const char* name : {"", "BOX", "BOX7.BOX", "EMPTY.BOX", "../BOX1.BOX"}) {
    unchanged([&] { return Load(name); });
    EXPECT_EQ(dialogs_.told.back(), "Box file is not available!") << name;
  }
  TemporaryLeague::Block(LeagueFile("BOX5.BOX"));
  unchanged([&] { return Load("BOX5.BOX"); });
  program.BoxFileName = "BOX5.BOX";
  unchanged([] { return SaveBoxFile(); });
  EXPECT_NE(dialogs_.told.back().find("BOX5.BOX"), std::string::npos);
}

TEST_F(BoxFile, ALeagueInMemoryHasNoFiles) {
  Play();
  program.LeagueFolder.clear();
  PlayerAt(1, 1).Stats[3].G = 0;
  ManAt(1, 1).PlayerGameTime = 659;
  ManAt(1, 2).PlayerGameTime = 599;
  PlayerAt(1, 2).Stats[3].G = 0;
  PlayerAt(1, 2).ShotAttDrive[3] = 101;
  EXPECT_TRUE(SaveBoxFile());
  EXPECT_EQ(PlayerAt(1, 1).Stats[3].G, 1);
  EXPECT_EQ(PlayerAt(1, 1).Stats[3].Min, 1);
  EXPECT_EQ(PlayerAt(1, 2).Stats[3].G, 0) << "not a whole minute";
  EXPECT_EQ(PlayerAt(1, 2).ShotAttDrive[3], 0) << "no man takes so many shots of a kind";
}

}  // namespace
}  // namespace tipline
