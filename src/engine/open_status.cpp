// Who is open for what: the shot each of the five has, and how high he stands in the passing order.
#include <algorithm>
#include <array>
#include <cmath>

#include "engine/chances.h"
#include "engine/game_state.h"
#include "engine/shot_selection.h"
#include "league/program.h"

namespace tipline {
namespace {

/// (rating / 5.5) to the power of 1.8, for ratings 0 to 20.
const std::array<double, 21>& OutsideCurve() {
  static const std::array<double, 21> curve = [] {
    std::array<double, 21> c{};
    for (std::size_t r = 1; r < c.size(); ++r) c[r] = std::pow(static_cast<double>(r) / 5.5, 1.8);
    return c;
  }();
  return curve;
}

/// x to the power of 1.3, held to 0.7 .. 1.3.
double Damped(double x) {
  if (x <= 0.76) return 0.7;
  if (x >= 1.224) return 1.3;
  return Clamp(std::pow(x, 1.3), 0.7, 1.3);
}

int Twos(const StatLine& s) { return s.FGA - s.F3A; }

/// What the whole five share at this stop.
struct Moment {
  const PlayerRecord& ball;
  const PlayerRecord& guard;
  bool arc = league.rules.ThreePointCheck;
  bool sameYear = ball.Year == guard.Year;
  bool sameType = ball.PlayerType == guard.PlayerType;
  bool ownEra = league.rules.GameEraList == 0;
  bool draft = game.team[game.OffenseSide].RosterKind == 'D';
  bool lateSkip = LastPeriod() && game.GameClock < 300;
  int settingYear = EraSettingYear();
  int plan = Offense().GamePlanIndex;
  const CoachRecord& coach = game.coach[game.OffenseSide];
};

/// The plays of his real season that he ends, less breaks and putbacks.
int PossessionWeight(const Moment& m, const PlayerRecord& p) {
  const EraRecord& era = EraRow(m.ball.Year, IsCollege(p), 2002);
  const double fouls = era.FTA > 0 ? era.PF / era.FTA : 0.9;
  const double boards = p.RealInsidePct * 0.005 + 0.3 + p.RateOffInside * 0.05;
  const StatLine& real = p.Stats[1];
  const double plays = (real.FGA * 0.95 + real.To + real.FTA * fouls) * (1 - p.RateOffFastbreak * 0.01);
  return std::max(100, Int(plays - real.Off * boards));
}

/// Seasons before the line: what he would have taken from out there.
void OldSeason(const PlayerRecord& p, int& w) {
  const bool college = IsCollege(p);
  if (p.Year > (college ? 1985 : 1978) || p.PlayerType == 'A') return;
  if (!college && p.Stats[1].F3A != 0) {
    if (HeightOf(p) >= 77 + Rnd(3)) w = 0;
    return;
  }
  const EraRecord& era =
      college ? league.EraCollege[p.Year >= 1980 && p.Year <= 1985 ? 1986 : 1995] : league.EraPro[1995];
  const double share = era.FGA > 0 ? era.F3A / era.FGA : 0;
  w = Round(OutsideCurve()[std::min<std::size_t>(p.RateOffOutside, 20)] * share * p.Stats[1].FGA);
  if (HeightOf(p) >= 77 + Rnd(3)) w = 0;
}

/// Threes a basket, real season against replay and against this game.
void SeasonCorrection(const Moment& m, const PlayerRecord& p, int& w) {
  const auto rate = [](const StatLine& s) { return s.F3A / (s.FGM + 1.0); };
  const StatLine& real = p.Stats[1];
  const StatLine& replay = p.Stats[2];
  if (!m.ownEra || !m.sameType || !m.sameYear || p.ShotSelection[3] != 3 || real.F3A < 5 || replay.F3A < 5)
    return;
  const double own = rate(real);
  if (own <= 0) return;
  if (replay.Min > 100 && program.GameKind != "E") w = Round(w / Damped(rate(replay) / own));
  if (p.Stats[3].Min > Rnd(5) + 5) w = Round(w / Damped(rate(p.Stats[3]) / own));
}

void ByInstruction(int selection, int& w) {
  constexpr double kFactor[6] = {1, 0.25, 0.75, 1, 1.2, 1.5};
  Scale(w, kFactor[selection <= 5 ? selection : 3]);
}

/// How many of his plays are threes.
int ThreeWeight(const Moment& m, int position, const PlayerRecord& p, int plays) {
  int w = p.Stats[1].F3A;
  if (position == 1) Scale(w, 0.95);
  if (position == 5) Scale(w, 1.05);
  Scale(w, 1.21);
  const int threshold = Rnd(5) + (position == 1 ? 5 : position == 2 ? 4 : 0);
  if (p.RatePassing >= threshold) Scale(w, 1 + (p.RateOffFastbreak - 1) * 0.03);
  if (IsCollege(p)) Scale(w, 1.25);
  OldSeason(p, w);
  if (m.settingYear > 0 && m.ball.Year != 0 && m.guard.Year != 0) {
    const double setting = EraRow(m.settingYear, IsCollege(p), 2002).F3A;
    const double own = EraRow(m.ball.Year, IsCollege(p), 2002).F3A;
    if (own > 0) Scale(w, setting / own);
  }
  if (!m.lateSkip) {
    SeasonCorrection(m, p, w);
    w = std::min(w, Int(plays * 0.95));
    ByInstruction(p.ShotSelection[3], w);
    w = std::min(w, Int(plays * 0.9));
  }
  Scale(w, 1 + (m.coach.Coverage5[m.plan] - 2) * 0.05);
  return w;
}

/// How many of his two-point shots come from inside, in hundredths.
int InsideShare(const Moment& m, int slot, const PlayerRecord& p) {
  int s = p.RealInsidePct;
  const StatLine& replay = p.Stats[2];
  if (p.ShotSelection[1] == 3 && p.ShotSelection[2] == 3 && p.ShotSelection[4] == 3 && Twos(replay) >= 10) {
    const double share = static_cast<double>(p.ShotAttInside[2]) / Twos(replay);
    const double drift = share / (LoadedAt(game.OffenseSide, slot).ShareInside + 0.001);
    if (drift > 1 + 0.15 * Rnd()) {
      s = Round(s * 0.8 - 2);
    } else if (drift < 1 - 0.15 * Rnd()) {
      s = Round(s * 1.2 + 2);
    }
  }
  s = Clamp(s, 0, 100);
  const int zone = Defense().DefenseType;
  if (zone == 1 || zone == 3) Scale(s, 0.9);
  if (zone == 2) Scale(s, 0.8);
  return s + m.coach.Coverage3[m.plan] * 2 - m.coach.Coverage4[m.plan] * 2;
}

/// The coach's standing order for the man.
int StandingOrder(const Moment& m, const Man& man, int pick, int threes) {
  if (man.GlobalOffense == 0) return pick;
  int odds = 50;
  if ((LastPeriod() || game.Period == 2) && game.GameClock < 300 + Rnd(900)) odds = 75;
  if (Rnd(100) > odds) return pick;
  if (man.GlobalOffense != kThree) return man.GlobalOffense;
  if (!m.arc) return pick;
  const int first = Rnd(20);
  const int second = Rnd(50);
  if (threes > first + 3 + second) return kThree;
  if (LastPeriod() && game.GameClock < 20 + Rnd(200) && threes > Rnd(3) + 3) return kThree;
  return pick;
}

int DrawPick(const Moment& m, int position, int slot) {
  const PlayerRecord& p = PlayerAt(game.OffenseSide, slot);
  const int plays = PossessionWeight(m, p);
  const int threes = m.arc ? ThreeWeight(m, position, p, plays) : 0;
  int pick = kOutside;
  if (Rnd(plays) <= threes) {
    pick = kThree;
  } else {
    if (Rnd(100) <= InsideShare(m, slot, p)) pick = kInside;
    if (Rnd(100) == 1) pick = kOutside;
  }
  return StandingOrder(m, ManAt(game.OffenseSide, slot), pick, threes);
}

/// The coach's wish for men inside, kept half of the time; never too many.
bool Refused(int inside) {
  if (Rnd(100) > 50) {
    switch (Offense().InsideOffense) {
      case 0:
        if (inside > 0) return true;
        break;
      case 1:
        if (inside > 1) return true;
        break;
      case 2:
        if (inside != 1) return true;
        break;
      case 3:
        if (inside != 1 && inside != 2) return true;
        break;
      case 4:
        if (inside != 2) return true;
        break;
      case 5:
        if (inside != 2 && inside != 3) return true;
        break;
      default:
        break;
    }
  }
  if (inside > 3 && Rnd(10) <= 9) return true;
  return inside >= Rnd(2) + 3 && Rnd(10) < 9;
}

void DrawPicks(const Moment& m) {
  constexpr int kMostTries = 1000;
  for (int tries = 0; tries < kMostTries; ++tries) {
    int inside = 0;
    for (int p = 1; p <= kPositions; ++p) {
      const int slot = Offense().Lineup[p];
      if (slot == 0) continue;
      Man& man = ManAt(game.OffenseSide, slot);
      man.ShotPick = DrawPick(m, p, slot);
      if (man.ShotPick == kInside) ++inside;
    }
    if (!Refused(inside)) return;
  }
}

struct Lines {
  const StatLine& real;
  const StatLine& replay;
  const StatLine& now;
};

/// Enough is known of both seasons, and both men are of one season, to hold him to his real share of
/// two-point plays.
bool Comparable(const Moment& m, const Man& man, const Lines& l) {
  return man.ShotPick != kThree && m.ownEra && !m.draft && Twos(l.real) > 150 && Twos(l.replay) > 50 &&
         l.real.Min > 200 && l.replay.Min > 200 && m.sameYear;
}

double Usage(const StatLine& s) { return (s.To + s.FGA + s.FTA) / (s.Min + 1.0); }

int ByZone(const Man& man, const PlayerRecord& p, int g) {
  constexpr double kCoverage[7] = {1, 1.5, 1.2, 1, 0.8, 0.5, 1};
  const int coverage = CoverageOf(man, man.ShotPick);
  Scale(g, kCoverage[coverage >= 0 && coverage <= 6 ? coverage : 3]);
  if (man.ShotPick == kInside && p.RateOffense > Rnd(100)) Scale(g, 2);
  if (man.ShotPick == kOutside) {
    if (p.RealInsidePct > 80 + Rnd(20)) Scale(g, 0.5);
    if (p.RealInsidePct <= 10 + Rnd(20) && p.RateOffOutside >= 7 + Rnd(3)) Scale(g, 1.5);
  }
  return g;
}

double TwoPointDrift(const Lines& l) {
  const double own = static_cast<double>(Twos(l.real)) / l.real.Min;
  const double q = (static_cast<double>(Twos(l.replay)) / l.replay.Min) / own;
  if (q > 1.05 + 0.05 * Rnd()) return 0.5;
  if (q > 1 + 0.05 * Rnd()) return 0.7;
  if (q < 0.95 - 0.05 * Rnd()) return 1.5;
  if (q < 1 - 0.05 * Rnd()) return 1.3;
  return 1;
}

double ThreeDrift(const Moment& m, const Man& man, const Lines& l) {
  if (!m.ownEra || man.ShotPick != kThree || l.real.FGA <= 10 || l.real.F3A <= 5 || l.replay.FGA <= 10 ||
      l.replay.F3A <= 5 || !m.sameYear) {
    return 1;
  }
  const double own = static_cast<double>(l.real.F3A) / l.real.FGA;
  const double q = (static_cast<double>(l.replay.F3A) / l.replay.FGA) / own;
  if (q > 1 + 0.05 * Rnd()) return 0.7;
  return q < 1 - 0.05 * Rnd() ? 1.3 : 1;
}

/// How much the play is his.
int OptionWeight(const Moment& m, int position, int slot) {
  constexpr double kModern[6] = {1, 1.35, 1.05, 0.97, 0.88, 0.84};
  const PlayerRecord& p = PlayerAt(game.OffenseSide, slot);
  const Man& man = ManAt(game.OffenseSide, slot);
  const Lines l{p.Stats[1], p.Stats[2], p.Stats[3]};
  const bool comparable = Comparable(m, man, l);
  int g = std::max(10, p.RateOffense * 2);
  if (const double own = Usage(l.real); comparable && own > 0) {
    if (program.GameKind != "E" && l.replay.Min > 10) g = Round(g / Clamp(Usage(l.replay) / own, 0.5, 3.0));
    if (man.PlayerGameTime > 1800) g = Round(g / Clamp(Usage(l.now) / own, 0.5, 3.0));
  }
  g = std::min(g, p.RateOffense * 5);
  if (p.Year >= 2013) Scale(g, kModern[position]);
  g = ByZone(man, p, g);
  g += Round(p.RatePassing / 15.0 * 10);
  if (Margin() < 10 && LastPeriod() && game.GameClock < Rnd(4200)) Scale(g, p.RateOffense / 50.0);
  if (man.Energy <= 99 && league.rules.FatigueMeterCheck) Scale(g, (man.Energy + 1) / 101.0);
  if (comparable && !(Margin() <= 10 && LastPeriod() && game.GameClock <= 300)) Scale(g, TwoPointDrift(l));
  Scale(g, ThreeDrift(m, man, l));
  if (p.RateOffense >= 40 + Rnd(60)) {
    const bool hisTime = LastPeriod() && game.GameClock < 150 + Rnd(150) && Margin() <= 7 + Rnd(5);
    Scale(g, hisTime ? 1.5 : 0.95);
  }
  return g;
}

/// In a close finish the ball goes to the best.
bool LateStar(const PlayerRecord& p) {
  if (!LastPeriod() || game.GameClock >= 120 + Rnd(120) || Margin() > 6 + Rnd(6)) return false;
  if (p.RateOffense < 50 + Rnd(75)) return false;
  return (Rnd(2) == 1 || Rnd(2) == 1) && p.RateOffense >= 75 + Rnd(50);
}

void SetOption(const Moment& m, int position) {
  const int slot = Offense().Lineup[position];
  int& option = Offense().Option[position];
  if (slot == 0) {
    option = 0;
    return;
  }
  const PlayerRecord& p = PlayerAt(game.OffenseSide, slot);
  const int g = OptionWeight(m, position, slot);
  if (p.RateOffense == 0 && Rnd(5) == 1) option = 1;
  for (int k = 0; k < 3; ++k) {
    if (Rnd(350) <= g) ++option;
  }
  if (LateStar(p)) ++option;
  option = std::min(option, 3);
  Man& man = ManAt(game.OffenseSide, slot);
  man.NaturalZone = man.ShotPick;
}

/// After a quick pass the order only shifts.
void ShiftOptions() {
  for (int p = 1; p <= kPositions; ++p) {
    int& option = Offense().Option[p];
    if (p == game.BallSlot) {
      option = 3;
    } else if (p == game.possession.PreviousSlot) {
      option = Rnd(2) + 1;
    } else if (option >= 1) {
      for (const int odds : {5, 7}) {
        if (Rnd(odds) != 1) continue;
        const int up = Rnd(2);
        option += up - Rnd(2);
      }
    } else if (Rnd(5) == 1) {
      option = Rnd(7) == 1 ? 2 : 1;
    }
    option = Clamp(option, 0, 3);
  }
}

/// Where each of the five stands: a spot of the zone of his shot, no two on one. Inside there are 4, outside
/// and beyond the arc 9 of them.
void SetCourtSpots() {
  bool taken[310] = {};
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = Offense().Lineup[p];
    if (slot == 0) continue;
    Man& man = ManAt(game.OffenseSide, slot);
    const int zone = man.ShotPick == kInside || man.ShotPick == kThree ? man.ShotPick : kOutside;
    const int count = zone == kInside ? 4 : 9;
    int place = Rnd(count);
    for (int k = 0; k < count && taken[zone * 100 + place]; ++k) place = place % count + 1;
    man.CourtSpot = zone * 100 + place;
    taken[man.CourtSpot] = true;
  }
}

/// Three or six behind with half a minute left: everybody looks for the three.
void LateThrees() {
  if (Offense().CoachMode != "C" || !league.rules.ThreePointCheck || !LastPeriod() || game.GameClock >= 300)
    return;
  const int lead = Lead(game.OffenseSide);
  if (lead != -3 && lead != -6) return;
  for (int p = 1; p <= kPositions; ++p) {
    if (const int slot = Offense().Lineup[p]; slot > 0) ManAt(game.OffenseSide, slot).GlobalOffense = kThree;
  }
}

/// The minutes of the five so far, in the lines that the comparisons read.
void NoteMinutes() {
  for (int p = 1; p <= kPositions; ++p) {
    const int slot = Offense().Lineup[p];
    if (slot == 0) continue;
    const int minutes = Round(ManAt(game.OffenseSide, slot).PlayerGameTime / 600.0);
    PlayerAt(game.OffenseSide, slot).Stats[3].Min = static_cast<i16>(minutes);
  }
}

}  // namespace

void SetOpenStatus() {
  if (game.possession.JustQuickPassed) return ShiftOptions();
  if (PositionOf(game.OffenseSide, game.BallPlayer) == 0) FindShooter();
  LateThrees();
  NoteMinutes();
  const Moment m{BallHandler(), PlayerAt(game.DefenseSide, game.BallDefender)};
  DrawPicks(m);
  for (int p = 1; p <= kPositions; ++p) SetOption(m, p);
  SetCourtSpots();
}

}  // namespace tipline
