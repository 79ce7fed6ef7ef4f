#pragma once
// The game being played: every table that the engine, the coaches and the narrator share.
//
// Sides are 1 (visitor) and 2 (home). A player is [side][slot], slot 1 to 30 of his team's roster; slot 0 is
// an empty man whose record stays all zero, so that an empty position reads as a man who can do nothing.
// Positions are 1 (point guard) to 5 (centre); a name that ends in Slot (BallSlot, BlockerSlot) holds such a
// position. Times are tenths of a second. Chances and weights are thousandths.
#include <algorithm>
#include <string>

#include "base/random.h"
#include "base/tables.h"
#include "engine/commentary_state.h"
#include "engine/words.h"
#include "league/league.h"

namespace tipline {

class PlayWatcher;
struct SayingTally;

inline constexpr int kMinute = 600;  ///< tenths
inline constexpr int kPositions = 5;
inline constexpr int kScoreLogRows = 250;
inline constexpr int kPlayLogRows = 2000;
inline constexpr int kNoShotClock = 450;  ///< where the shot clock stands when the rule is off

/// What a team load works out for a man: it outlives the reset of a game.
struct LoadedMan {
  int PlayerOut = 0;  ///< 1 = cannot play (status, suspension, injury; in the game: ejection, lasting injury)
  int PlayerUnavailable = 0;  ///< 1 = out by dates, spans or the daily list
  double SharePutback = 0, ShareBreak = 0, ShareInside = 0, ShareOutside = 0,
         ShareDrive = 0;   ///< see ShotMix
  double HotHand = 0;      ///< today's shooting form, a fraction added to his percentages
  bool Suspended = false;  ///< he sits out a game of his suspension
  int PlayLength = 3000;   ///< stint before he needs a rest, 3000 to 14000
  int RestLength = 300;    ///< rest that restores him fully, 300 to 2400
};

/// Points, rebounds, assists, steals, blocks and turnovers of a stretch of the game.
struct ShortLine {
  int Points = 0, Reb = 0, Ast = 0, St = 0, Bk = 0, To = 0;
};

/// A man in this game. His counters of the game stand in his player record, index 3.
struct Man {
  int Energy = 100;        ///< 100 fresh, 80 to 99 tiring, below 80 tired
  i32 FatigueLoad = 0;     ///< time on the floor since he was last rested, less what rest gave back
  i32 RestTime = 200;      ///< time on the bench in the present rest
  i32 PlayerGameTime = 0;  ///< time played
  Table<i32, 1, kPositions> PositionTime{};
  Table<int, 1, kPositions> PositionPoints{};
  int FouledOutFlag = 0, TiredFlag = 0, FoulTroubleFlag = 0;  ///< why he left at this stop
  int GameInjury = 0;                                         ///< above 0: hurt in this game
  int TemporaryInjury = 0;  ///< above 0: out for so many counts, each period's end takes some off
  int Ejected = 0;
  int PlusMinus = 0;

  int ShotPick = 0;       ///< the shot he has now: kInside, kOutside, kThree; 0 none
  int NaturalZone = 0;    ///< his ShotPick as it was drawn for this possession
  int CourtSpot = 0;      ///< 101 to 104 inside, 201 to 209 outside, 301 to 309 beyond the arc
  int GlobalOffense = 0;  ///< his coach's standing order: 0 none, 1 inside, 2 outside, 3 three
  int SafeStyle = 0;      ///< 1 = told to defend without fouling
  /// How the defense covers him in each zone: 1 off, 2 loose, 3 normal, 4 tight, 5 deny, 6 foul.
  int CoverageInside = 3, CoverageOutside = 3, CoverageThree = 3;
  int DoubleTeamInside = 0, DoubleTeamOutside = 0, DoubleTeamThree = 0;  ///< 1 = doubled there

  int InBreak = 0;       ///< 1 = he runs in the fast break
  int BreakLane = 0;     ///< -2 to 2, 0 the middle
  int BreakSpot = 0;     ///< where it takes him, a spot code
  int DefendsBreak = 0;  ///< 1 = he is back to defend it

  int UsageLevel = 0;  ///< 0 to 3: how far he has been used beyond his real season

  /// Team events while he was on the floor: shots of his team, twos of the other, baskets of his team,
  /// rebound chances.
  int ShareShots = 0, ShareBlocks = 0, ShareAssists = 0, ShareOffReb = 0, ShareDefReb = 0;

  ShortLine PeriodStatLine, HalfStatLine, BestPeriodLine, BestHalfLine;
};

/// What a side owns in this game.
struct Side {
  tipline::CoachMode CoachMode;
  int Score = 0;
  Table<int, 1, 10> PeriodScore{};  ///< 10 takes all later overtimes as well
  int HalfScore = 0;
  int TeamFouls = 0;  ///< in the period
  int TimeoutsLeft = 0;
  int EligibleCount = 0;  ///< men who can still play
  int ShortHanded = 0;    ///< men left when the game ended with fewer than five eligible, else 0

  Table<int, 1, kPositions> Lineup{};          ///< slots, 0 empty
  Table<int, 1, kPositions> PreviousLineup{};  ///< before the last look of LoadLineups
  Table<int, 1, kPositions> Starters{};
  Table<int, 1, kPositions> StoredMatchup{
      {1, 2, 3, 4, 5}};                                ///< as defense: attacker's position -> own position
  Table<int, 1, kPositions> Matchup{{1, 2, 3, 4, 5}};  ///< the same for this stop, after switches
  Table<int, 1, kPositions> Option{};  ///< by position: 0 never looks for the shot .. 3 first option
  int JumperOf = 0;                    ///< slot of the man who jumps
  int WaitingSub = 0;                  ///< slot that comes in for the shooter after the last free throw
  int FreeThrowMan = 0;                ///< slot that must stay for free throws

  // The coach's settings.
  int OffensePace = 2;         ///< 0 very slow .. 4 very fast
  int InsideOffense = 3;       ///< inside men: 0 none, 1 0-1, 2 one, 3 1-2, 4 two, 5 2-3
  int CrashBoardsOffense = 0;  ///< 0 normal, 1 strong, 2 light
  int CrashBoardsDefense = 0;
  int DefenseType = 0;  ///< 0 man, 1 2-1-2, 2 2-3, 3 3-2 zone
  int Pressure = 0;     ///< 0 none, 1 halfcourt trap, 2 halfcourt press, 3 fullcourt trap, 4 fullcourt press
  int DefenseHelp = 0;  ///< 0 normal, 1 inside, 2 outside, 3 strong inside, 4 strong outside
  int QuickFoul = 0;    ///< 0 none, 1 any shooter, 2 poor shooter, 3 the worst free-throw shooter
  int StealFoul = 0, NoFoul = 0, LastShot = 0, QuickShot = 0;
  int TimeoutOffense = 0;  ///< wish: stop the clock behind our basket
  int TimeoutDefense = 0;  ///< wish: stop it when we have won the ball
  tipline::TimeoutFocus TimeoutFocus;
  int UseRotationGrid = 0, AutoSubWhenTired = 0, AutoSubWhenFoulTrouble = 0, ForcedRotation = 0;
  int DefenseList = 0;    ///< its last answer to a call of the offense, as `Call::DefenseCall`; 0 none yet
  int BothDefenses = 0;   ///< 1 = a human lets the computer call his defense
  int BothOffenses = 0;   ///< 1 = a human lets the computer call his offense
  int GamePlanIndex = 0;  ///< plan 0 to 10 in force

  int QuickPassesGame = 0;
  int GameFGA = 0, GameTo = 0;                      ///< the side's totals in this game
  int GameTeamTurnovers = 0, GameTeamRebounds = 0;  ///< charged to the team and to no player
  int LooseBalls = 0;
  int IllegalDefenses = 0;
  int FastbreakPoints = 0, BenchPoints = 0, BiggestLead = 0;
  int ExtraPaintPoints = 0, ExtraSecondChancePoints = 0;
  int PaintPoints = 0,
      SecondChancePoints = 0;  ///< by the kinds of shots; the box prints both with the extras
  StatLine TeamLine;           ///< sums of the men, by SumTeamTotals
  i32 TimeSinceScore = 0;
  Table<int, 1, 20> TimeoutsByPeriod{};
  Table<int, 0, 20> TimeoutsByMinute{};
  int LastPossessionClock = 999;  ///< game clock when the side last lost the ball

  // Of this play.
  double TeamPointDiff = 0;  ///< average point difference of the season to date
  double EraFGA = 0, Era2Pct = 0, Era3Pct = 0, EraFTPct = 0, EraFTA = 0, EraTO = 0,
         EraPF = 0;  ///< means of the five
  int CollegeStrength = 0;
  int OutOfPosition = 0;
  int LineupOffense = 0, LineupForce = 0, LineupPassing = 0, LineupRebDef = 0, LineupRebOff = 0;
  int LineupOutside = 0, LineupInside = 0, LineupFast = 0;
  double LineupDefense = 0, LineupDefInside = 0;

  // Measured once when the game is prepared.
  double TeamPassing = 0;  ///< minutes-weighted mean passing rating of the roster x 5
  double WinShare = 0;     ///< wins / games, 0 before the first

  // Copies of the scouting counters, for this game.
  Table<int, 0, 10> ScoutOffense{};
  Table<int, 0, 4> ScoutHelp{}, ScoutPressure{}, ScoutDefenseType{};
  Table3<int, 1, 3, 0, 10, 1, 6> ScoutCoverage{};
};

/// What a play leaves; cleared when the next one begins.
struct Play {
  tipline::ShotValue ShotValue;
  int ShotChance = 0, TurnoverChance = 0, FoulChance = 0;  ///< weights of the three branches, scaled to 1000
  int TurnoverBound = 0;                                   ///< foul and turnover weight together
  int TwoPointChance = 0, ThreePointChance = 0;
  int DelayChance = 0, DoubleFoulChance = 0;
  int PlayCoverage = 3;    ///< coverage of the ball handler in his zone
  int HeightMismatch = 0;  ///< inches
  int ShotLate = 0;        ///< desperation

  bool Assisted = false;
  int Assister = 0;  ///< slot of the offense
  bool Blocked = false;
  int Blocker = 0, BlockerSlot = 0;
  int Stealer = 0, StealerSlot = 0;
  int Fouler = 0, FoulerSlot = 0, FoulingSide = 0;
  int OffenseFouler = 0;  ///< the attacker of a double foul
  int Rebounder = 0;
  int ReboundSide = 0;  ///< 1, 2, 99 nobody's
  int DeadBallRebound = 0;
  int OffBallFoul = 0, IntentionalFoul = 0;
  int ExtraPass = 0, ExtraPassFrom = 0;
  int TrapPass = 0;  ///< 1 = a lob was stolen on a lazy pass
  int AirBall = 0, BlockKept = 0, GoaltendMark = 0, CloseMiss = 0;
  int BasketInterference = 0, ShotStuck = 0;
  int FlagrantLevel = 0;     ///< 0, 1, 2
  bool InjuryFound = false;  ///< what PickInjury found: whom, and for how many games
  int InjuredSide = 0, InjuredPlayer = 0, InjuryLength = 0;
  int NoShotEnd = 0;           ///< 1 = the period ran out without a shot
  int TipIn = 0;               ///< 0 none, 1 a tip-in missed, 2 a tip-in scored
  tipline::PlayResult Posted;  ///< the result as it was posted, before the ball went on
  int PostedSlot = 0;          ///< whose it was
  int Tipper = 0;              ///< the man who tipped
  int StolenInbound = 0;       ///< 1 = stolen as the ball was brought in from the backcourt
  tipline::PlayKind TripOwed;  ///< free throws that a foul away from a shot leads to, "" none

  // The defense as this play's shooter meets it, by DefenseRatings.
  double TeamDefense = 0, DefenseFactor = 1;
  Table<int, 1, 6> DefenseRating{};  ///< BallOut, BallIn, HelpOut, HelpOutIn, HelpIn, HelpInIn
  Table<double, 1, 6> DefenseNorm{};
  Table<int, 1, 6> DefenseUse{};
};

/// What the coaches order for the coming play; cleared when it is over.
struct Call {
  int CallKind =
      0;  ///< 0 none, 1 inside, 2 outside, 3 three, 4 drive, 5 go to, 6 pick and roll, 7 force three, 8 hold
  int CallPlayer = 0;  ///< position, 0 anybody, 6 (with kind 8) anybody
  int CallForce = 0;
  int CallAlleyOop = 0, CallAlleyPlayer = 0;
  int CallDrive = 0;
  int ForcedThree = 0;
  int ForcedTurnover = 0, ForcedFoul = 0;
  int ExtraPassCall = 0;
  int LongPlay = 0;  ///< a long set: takes its time
  int PlayGridShot = 0;
  int ShotConfirmed = 0;               ///< 1 = the coach pressed the button himself: no desperation
  int SetPlay = 0;                     ///< a lob or post feed is on
  int LobTarget = 0, LobFrom = 0;      ///< positions
  int PickBall = 0, PickScreener = 0;  ///< positions of a pick and roll under way
  int DefenseCall = 0;                 ///< 1 off, 2 loose, 3 normal, 4 tight, 5 foul, 6 double team
  int PassMade = 0;
};

/// What belongs to a possession; cleared when the ball changes hands and at a stoppage.
struct Possession {
  int PassCount = 0, QuickPassCount = 0;
  int QuickPassTarget = 0;    ///< position
  int LastPasserSlot = 0;     ///< position
  int QuickPassReceiver = 0;  ///< slot of the man the last quick pass went to
  int PreviousSlot = 0;       ///< position that had the ball before a pass
  int JustQuickPassed = 0;
  int PassedThisPossession = 0;
  int PassFirst = 0;      ///< the play starts with a pass away from the man who is guarded
  int PassFirstFrom = 0;  ///< slot that gives it
};

struct FastBreak {
  int BreakAttackers = 0, BreakDefenders = 0;
  int BreakThree = 0;    ///< 1 = it ends in a three
  int Breakaway = 0;     ///< the stealer is alone
  int BreakStealer = 0;  ///< slot of the man whose steal began it, 0 none
};

/// What interrupted the last play, for those who show the game.
enum class IncidentKind : u8 {
  kNone,
  kShakenUp,
  kTemporaryInjury,
  kInjury,
  kIllegalDefense,
  kFight,
  kTechnical,
  kDelay,
  kFlagrant
};
struct Incident {
  IncidentKind Kind = IncidentKind::kNone;
  int Side = 0, Slot = 0;   ///< who was hurt or is at fault; an illegal defense is nobody's alone
  int OtherSlot = 0;        ///< his opponent in a fight
  int InjuryWord = 0;       ///< 1 to 60
  int Length = 0;           ///< injury: games
  int FlagrantLevel = 0;    ///< 0 when the review made it a common foul
  bool Warning = false;     ///< illegal defense: no shot
  bool Reviewed = false;    ///< the officials looked at it again
  bool Ejected = false;     ///< both men, after a fight
  int Suspension = 0;       ///< games
  int OtherSuspension = 0;  ///< of the other man
  int Shots = 0;            ///< free throws, 0 none
  int ShooterSide = 0, Shooter = 0;
};

struct ScoreLogRow {
  u8 Slot = 0, Side = 0;
  i16 VisitorScore = 0, HomeScore = 0;  ///< after the play
  u8 Period = 0;
  i16 TimeLeft = 0;     ///< tenths
  char Kind = ' ';      ///< O I D B K k F 3 + - R
  u8 ScorerPoints = 0;  ///< his points in the game after the play
};

struct PlayLogRow {
  u8 Period = 0;
  i32 Clock = 0;          ///< tenths left when the play was over
  u8 Side = 0, Slot = 0;  ///< who acted; slot 0 the team
  tipline::PlayKind Action;
  tipline::PlayResult Outcome;
  u8 OtherSide = 0, OtherSlot = 0;  ///< who helped: passer, blocker, stealer, fouler, rebounder
  u8 Note = 0;                      ///< PlayNote
  i16 VisitorScore = 0, HomeScore = 0;
};
enum PlayNote : u8 {
  kNoNote,
  kAssistedBy,
  kBlockedBy,
  kStolenBy,
  kFouledBy,
  kTimeoutNote,
  kMediaTimeout,
  kInjuryNote,
  kFightNote,
  kTechnicalNote
};

/// A play as it stood when it was decided, before it was posted and the ball went on: what the announcer
/// tells of it. What the posting added stands in `game.play`.
struct Scene {
  int OffenseSide = 2, DefenseSide = 1;
  int BallPlayer = 0, BallSlot = 0, BallDefender = 0;
  tipline::PlayKind PlayKind;
  tipline::PlayResult PlayResult;
  tipline::GameState GameState;
  i32 GameClock = 0, ShotClock = 0, PlayTime = 0;
  int DeadBallKind = 0, InboundSlot = 0, NeedsBringUp = 0;
  int PutbackClass = 0;
  int Tension = 0;                          ///< before the play
  Table<int, 1, 2> Score{};                 ///< before the play
  Table2<int, 1, 2, 1, kPositions> Five{};  ///< [side][position] who stood on the floor
  int QuickFoul = 0, StealFoul = 0;         ///< orders of the defense, which the end of a period takes back
  tipline::Call Call;
  tipline::Possession Possession;
  tipline::FastBreak FastBreak;
};

/// The coverage, double teams and help as they stood before a call for one play changed them.
struct CoverageCopy {
  bool Taken = false;
  struct ManCoverage {
    int Inside = 3, Outside = 3, Three = 3, DoubleInside = 0, DoubleOutside = 0, DoubleThree = 0;
  };
  Table2<ManCoverage, 1, 2, 0, kRosterSlots> man{};
  Table<int, 1, 2> DefenseHelp{};
};

/// Everything that a new game begins afresh.
struct GameRun {
  tipline::GameState GameState;
  tipline::PlayKind PlayKind;
  tipline::PlayResult PlayResult, PreviousResult;
  int OffenseSide = 2, DefenseSide = 1;
  int ActingSide = 1;
  int BallPlayer = 0;    ///< slot of the man with the ball, 0 not yet known
  int BallSlot = 0;      ///< his position
  int BallDefender = 0;  ///< slot of the man who guards him
  int Period = 1;
  i32 GameClock = 0, ShotClock = 0, PlayTime = 0;
  int DeadBallKind = 0;  ///< 0 live; 1, 2 taken out in the frontcourt; 3, 4 in the backcourt
  int NeedsInbound = 0, NeedsMoveUp = 0, NeedsBringUp = 0;
  int InboundSlot = 0;  ///< position that takes the ball out
  int AfterPassNoLook = 0;
  int AfterTimeout = 0, TimeoutTaken = 0, TimeoutHandover = 0;
  bool GameStarted = false, GameOver = false, GameDone = false;
  bool TeamTotalsAdded = false;  ///< the team lines are in the season's totals
  bool BoxRebuild = false;       ///< the team records count this game already
  bool InTheBooks = false;       ///< FinishGame has kept the game in the league's files
  int MvpSide = 0, MvpSlot = 0;  ///< the game's most valuable player, 0 none yet
  int SpreadPoints = 0;          ///< expected margin, above 0 the visitor by so many
  int TickerStamp = 0;           ///< rises with every entry of the ticker
  std::string TickerRows;        ///< entries of this game, kept with its books
  bool FilmOn = false;           ///< plays are told for the film, even where nobody listens
  std::string BoxPageText;       ///< the page that the box text was written from last, "" none yet
  int PeriodStart = 0;
  int OpeningTipWinner = 0;  ///< side, 0 unset
  int PossessionArrow = 0;   ///< side, 0 unset
  int CrunchTime = 0, Blowout = 0;
  int WorstFreeThrowShooter = 0;  ///< slot of the offense, 0 none
  int Switched = 0;               ///< the defense has switched at this stop
  int DoubleTeamCount = 0;
  int PutbackClass = 0;  ///< 1 inside, 2 outside, 3 three
  int TechnicalFreeThrow = 0, TechnicalSide = 0;
  int MomentumTime = 0;  ///< 600 after a timeout; TimeoutFocus acts while it is above 0
  int MomentumMark = 0;
  int LastSubClock = 99999;
  int Tension = 0;  ///< hard fouls since the game or the last fight began
  /// Men of the box's last lines, each "<name>, ".
  std::string InjuryNames, TechnicalNames, EjectionNames, FlagrantNames;
  int LineupAnnounced = 0;  ///< 1 = the last stop brought a line-up change
  tipline::PlayKind LastShotKind;
  int SecondChance = 0;  ///< 1 = this possession had an offensive rebound

  Table<Side, 1, 2> side;
  Table2<Man, 1, 2, 0, kRosterSlots> man;
  Play play;
  Incident incident;  ///< of the last play
  Call call;
  Possession possession;
  FastBreak fastBreak;
  CoverageCopy coverageCopy;

  int RunTeam = 0, RunPoints = 0, RunOffset = 0;  ///< scoring run: side and points; a coach's nerves about it
  int LeadChanges = 0, Ties = 0, LeadSide = 0;
  Table2<int, 1, 16, 1, 20> MediaDone{};  ///< [band][period]
  Table<int, 1, 40> PeriodNoticeDone{};

  // League tuning for all plays of the game, by CalibrateLeague.
  double TwoTune = 0, ThreeTune = 0;  ///< thousandths
  double TurnoverTune = 1, FoulTune = 1, StealTune = 1, BlockTune = 1;
  int MixedEras = 0;  ///< 1 = more than one Year among the league's teams or the two rosters

  int ScoreLogCount = 0;    ///< rows in use
  int ScoreLogDropped = 0;  ///< oldest rows that made room, so that the log keeps the end of the game
  Table<ScoreLogRow, 1, kScoreLogRows> ScoreLog;
  int PlayLogCount = 0;
  Table<PlayLogRow, 1, kPlayLogRows> PlayLog;

  Scene scene;
  CommentaryState commentary;
};

struct Game : GameRun {
  Table<int, 1, 2> GameTeam{};   ///< team numbers
  Table<TeamRecord, 1, 2> team;  ///< the two teams of the game
  Table<CoachRecord, 1, 2> coach;
  Table2<PlayerRecord, 1, 2, 0, kRosterSlots> player;  ///< the game copy of the rosters
  Table2<LoadedMan, 1, 2, 0, kRosterSlots> loaded;
  bool NeutralGame = false;
  int GameMonth = 0, GameCalendarMonth = 0, GameDay = 0,
      GameYear = 0;                ///< season month (1 September), calendar month
  int ScheduleRow = 0;             ///< row of the running game in the schedule, 0 unscheduled
  bool AnalysisMode = false;       ///< the chances are run as a what-if
  tipline::WatchUntil WatchUntil;  ///< both sides run unattended up to this mark
  bool CommentaryOn = false;       ///< somebody listens, or a film is made: plays are told
  PlayWatcher* Watcher = nullptr;  ///< looks on while the game runs in one go; nullptr: nobody
  bool ExitRequested = false;      ///< the game is broken off: the cycle of its stops is left
  SayingTally* Tally = nullptr;    ///< counts what is said, for a survey; nullptr: nobody counts
};

extern Game game;

// Shorthands of every rule.
inline PlayerRecord& PlayerAt(int side, int slot) { return game.player[side][slot]; }
inline Man& ManAt(int side, int slot) { return game.man[side][slot]; }
inline LoadedMan& LoadedAt(int side, int slot) { return game.loaded[side][slot]; }
inline Side& Offense() { return game.side[game.OffenseSide]; }
inline Side& Defense() { return game.side[game.DefenseSide]; }
inline PlayerRecord& BallHandler() { return game.player[game.OffenseSide][game.BallPlayer]; }
inline PlayerRecord& OnFloor(int side, int position) {
  return game.player[side][game.side[side].Lineup[position]];
}
inline bool OnTeam(int side, int slot) {
  return slot > 0 && game.GameTeam[side] > 0 && PlayerAt(side, slot).TeamNo == game.GameTeam[side];
}
/// His position on the floor, 0 when he is not on it.
inline int PositionOf(int side, int slot) {
  if (slot > 0) {
    for (int p = 1; p <= kPositions; ++p) {
      if (game.side[side].Lineup[p] == slot) return p;
    }
  }
  return 0;
}
/// Slot of the man who guards the attacker at a position, by the match-ups of this stop; the centre where
/// that leaves nobody.
inline int GuardOf(int position) {
  const Side& defense = Defense();
  const int own = position > 0 ? defense.Matchup[position] : 0;
  const int slot = own >= 1 && own <= kPositions ? defense.Lineup[own] : 0;
  return slot > 0 ? slot : defense.Lineup[kPositions];
}
/// How a man is covered, and whether he is doubled, on a shot from this zone; all but inside and beyond the
/// arc is outside.
auto& CoverageOf(auto& man, int pick) {
  return pick == kInside ? man.CoverageInside : pick == kThree ? man.CoverageThree : man.CoverageOutside;
}
auto& DoubleOf(auto& man, int pick) {
  return pick == kInside  ? man.DoubleTeamInside
         : pick == kThree ? man.DoubleTeamThree
                          : man.DoubleTeamOutside;
}
inline bool LastPeriod() { return game.Period >= league.rules.PeriodList; }
inline int FullPeriod() { return league.rules.MinuteList * kMinute; }
inline int FullOvertime() { return std::max<int>(league.rules.OverTimeList, 1) * kMinute; }
/// Of the period that is played, in tenths.
inline int PeriodLength() { return game.Period > league.rules.PeriodList ? FullOvertime() : FullPeriod(); }
/// The clock stands at the start of a period, regulation or overtime.
inline bool PeriodOpens() { return game.GameClock == PeriodLength(); }
inline int FullShotClock() {
  return league.rules.ShotClockList == 0 ? kNoShotClock : league.rules.ShotClockList * 10;
}
/// Both sides run unattended up to a mark, in a game that is watched.
inline bool Watching() { return game.WatchUntil != "NONE"; }
inline bool FouledOut(const StatLine& line) {
  return league.rules.DqList > 0 && line.Pf >= league.rules.DqList;
}
/// Absolute difference of the scores.
inline int Margin() {
  const int d = game.side[1].Score - game.side[2].Score;
  return d < 0 ? -d : d;
}
/// Own score less the other's.
inline int Lead(int side) { return game.side[side].Score - game.side[3 - side].Score; }
inline bool IsCollege(const PlayerRecord& p) { return p.PlayerType == 'C'; }
inline const EraTable& EraTableOf(bool college) { return college ? league.EraCollege : league.EraPro; }

}  // namespace tipline
