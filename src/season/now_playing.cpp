#include "season/now_playing.h"

#include <algorithm>

#include "engine/game_state.h"
#include "league/program.h"

namespace tipline {
namespace {

using Rules = RulesRecord;

// Places of PlayerReachesList.
enum : int { kPoints, kRebounds, kAssists, kBlocks, kSteals, kTurnovers };

const StatLine& LineOf(int side, int slot) { return PlayerAt(side, slot).Stats[3]; }

bool Reaches(int count, int setting) {
  const int wanted = league.rules.PlayerReachesList[setting];
  return wanted > 0 && count == wanted;
}

/// Who scored with this play, and how much.
struct Scorer {
  int side = 0, slot = 0, points = 0;
};
Scorer ScorerOf(const PlayMoment& m) {
  const PlayResult r = m.PlayResult;
  if (game.play.TipIn == 2) return {m.Side, game.play.Tipper, 2};
  const int points = r == "G3" || r == "G3F" ? 3 : r == "G" || r == "GF" ? 2 : r == "FTG" ? 1 : 0;
  return {m.Side, points > 0 ? m.Slot : 0, points};
}

bool PointsReached(const Scorer& s) {
  const int wanted = league.rules.PlayerReachesList[kPoints];
  if (s.slot == 0 || wanted == 0) return false;
  const int now = PointsOf(LineOf(s.side, s.slot));
  return now - s.points < wanted && now >= wanted;
}

/// Two or three of points, rebounds, assists, steals and blocks stand at ten or more.
bool DoublesReached(int side, int slot) {
  const StatLine& line = LineOf(side, slot);
  int tens = 0;
  for (const int count : {PointsOf(line), +line.Reb, +line.Ast, +line.St, +line.Bk}) tens += count >= 10;
  return (tens == 2 && league.rules.DoubleDoubleAchievedCheck == 1) ||
         (tens == 3 && league.rules.TripleDoubleAchievedCheck == 1);
}

int EjectedMen() {
  int men = 0;
  for (int side = 1; side <= 2; ++side) {
    for (int slot = 1; slot <= kRosterSlots; ++slot) men += ManAt(side, slot).Ejected > 0;
  }
  return men;
}

bool IsGameOverLine(const std::string& line) {
  if (line.starts_with("Game Over")) return true;
  constexpr int kGameOver = 97;  // slot of the announcer's phrases
  if (!program.Phrases.Loaded()) return false;
  for (int variant = 1; variant <= kPhraseVariants; ++variant) {
    const std::string text = program.Phrases.At(variant, kGameOver).Str();
    if (!text.empty() && line == text) return true;
  }
  return false;
}

bool TeamsArePauseTeams() {
  return std::any_of(game.GameTeam.begin(), game.GameTeam.end(), [](int team) {
    return team >= 1 && team <= kTeams && league.rules.PauseTeamList[team] == 255;
  });
}

}  // namespace

NowPlaying::NowPlaying() {
  game.Watcher = this;
  game.CommentaryOn = true;
  platform::UseCommentaryBox(this);
}

NowPlaying::~NowPlaying() {
  game.Watcher = nullptr;
  game.CommentaryOn = false;
  platform::UseCommentaryBox(nullptr);
}

void NowPlaying::BeginGame() {
  NowPlayingPaused = NextPlayRequested = FinishRequested = false;
  LastPeriodPauseDone = PauseCountdownRunning = false;
  JoinEnabled = true;
  NowPlayingFrame = {};
  Moment = {};
  ejected_ = 0;
  ShowNowPlaying();
}

void NowPlaying::NextPlayCommand() {
  NextPlayRequested = true;
  ContinueCommand();
}

void NowPlaying::FinishCommand() {
  FinishRequested = true;
  ContinueCommand();
}

void NowPlaying::NowPlayingTimer() {
  if (!PauseCountdownRunning) return;
  if (--NowPlayingTimerLabel <= 0) ContinueCommand();
}

void NowPlaying::Line(std::string_view text, int, int) {
  auto& plays = NowPlayingFrame.Plays;
  if (plays.size() >= kPlays) plays.erase(plays.begin());
  plays.emplace_back(text);
  if (LineShown) LineShown(text);
}

void NowPlaying::ShowNowPlaying() {
  for (int side = 1; side <= 2; ++side) {
    NowPlayingFrame.Team[side] = TeamName(game.team[side]);
    NowPlayingFrame.Score[side] = game.side[side].Score;
  }
  NowPlayingFrame.Period = Moment.Period;
  NowPlayingFrame.Clock = Moment.Clock;
}

/// A man of this play has reached a figure that the settings name.
bool NowPlaying::SomethingReached(const PlayMoment& m) const {
  const Play& play = game.play;
  const int other = 3 - m.Side;
  const Scorer scorer = ScorerOf(m);
  bool pause = PointsReached(scorer);
  const auto count = [&pause](int side, int slot, i16 StatLine::*counter, int setting) {
    if (side < 1 || side > 2 || slot < 1) return;
    const int now = LineOf(side, slot).*counter;
    if (Reaches(now, setting)) pause = true;
    if (setting != kTurnovers && now == 10 && DoublesReached(side, slot)) pause = true;
  };
  if (play.Rebounder > 0) count(play.ReboundSide, play.Rebounder, &StatLine::Reb, kRebounds);
  if (play.Assisted && IsMadeShot(m.PlayResult)) count(m.Side, play.Assister, &StatLine::Ast, kAssists);
  if (play.Blocked) count(other, play.Blocker, &StatLine::Bk, kBlocks);
  if (m.PlayResult == "ST") count(other, play.Stealer, &StatLine::St, kSteals);
  if (m.PlayResult == "TO" || m.PlayResult == "ST" || m.PlayResult == "OF") {
    count(m.Side, m.Slot, &StatLine::To, kTurnovers);
  }
  if (scorer.slot > 0) {
    const int now = PointsOf(LineOf(scorer.side, scorer.slot));
    if (now >= 10 && now - scorer.points < 10 && DoublesReached(scorer.side, scorer.slot)) pause = true;
  }
  return pause;
}

bool NowPlaying::SomebodyHurtOrOut() {
  const IncidentKind kind = game.incident.Kind;
  const bool hurt = kind == IncidentKind::kInjury || kind == IncidentKind::kTemporaryInjury;
  const int before = ejected_;
  ejected_ = EjectedMen();
  return (hurt && league.rules.InjuryCheck == 1) || (ejected_ > before && league.rules.EjectionCheck == 1);
}

/// Once a game: the last minutes of a game that is not decided.
bool NowPlaying::LastPeriodIsClose() {
  const Rules& rules = league.rules;
  if (LastPeriodPauseDone || Moment.Period < rules.PeriodList || rules.Pause4thQuarterTimeList == 0)
    return false;
  if (Moment.Clock <= 0 || Moment.Clock / kMinute > rules.Pause4thQuarterTimeList) return false;
  if (Margin() > rules.Pause4thQuarterScoreList) return false;
  LastPeriodPauseDone = true;
  return true;
}

/// The last half minute of a game that has a leader.
bool NowPlaying::CloseFinish() const {
  if (league.rules.endOfGameCheck != 1 || Moment.Period < league.rules.PeriodList) return false;
  if (Moment.Clock >= 300 || Margin() == 0) return false;
  return game.GameOver || Moment.PeriodEnded || Moment.Clock <= game.ShotClock ||
         (!NowPlayingFrame.Plays.empty() && IsGameOverLine(NowPlayingFrame.Plays.back()));
}

bool NowPlaying::CheckNowPlayingPause(const PlayMoment& moment) {
  Moment = moment;
  NowPlayingPaused = PauseCountdownRunning = false;
  ShowNowPlaying();
  if (FinishRequested) return false;
  bool pause = false;
  if (!game.GameOver && moment.Posted) {
    pause = SomethingReached(moment);
    pause = SomebodyHurtOrOut() || pause;
  }
  pause = LastPeriodIsClose() || pause;
  if (league.rules.BlowoutSkipPauseCheck == 1 && game.Blowout) pause = false;
  pause = CloseFinish() || pause;
  const bool periodPauses = league.rules.PauseEndOfQuarterCheck == 1;
  if (periodPauses && moment.PeriodEnded && moment.Period <= league.rules.PeriodList) pause = true;
  if (NextPlayRequested) pause = true;
  NextPlayRequested = false;
  if (!TeamsArePauseTeams()) pause = false;
  NowPlayingPaused = pause;
  if (!pause) return false;
  NowPlayingTimerLabel = league.rules.KeyPlayPauseTimeList;
  PauseCountdownRunning = NowPlayingTimerLabel >= 1;
  JoinEnabled = !(Margin() != 0 && moment.PeriodEnded && moment.Period >= 4);
  return true;
}

void NowPlaying::PlayShown(const PlayMoment& moment) {
  if (!program.Autoplaying || !CheckNowPlayingPause(moment)) return;
  while (NowPlayingPaused && WaitAtPause) WaitAtPause();
  NowPlayingPaused = false;
}

}  // namespace tipline
