#include "frontoffice/made_up_player.h"

#include "base/random.h"
#include "frontoffice/rating_math.h"
#include "frontoffice/ratings.h"
#include "league/player_repairs.h"
#include "league/player_values.h"

namespace tipline {
namespace {

// By position 1 to 5: point guard to centre.
// clang-format off
constexpr double kMeanAge[]     = {0,  26.3,   26.2,    26.0,    26.5,   26.5};
constexpr double kMeanHeight[]  = {0,  74.9,   76.8,    79.1,    81.1,   83.11};
constexpr double kMeanWeight[]  = {0, 192.6,  202.7,   213.8,   232.2,  247.1};
constexpr double kMeanMinutes[] = {0,  24.549, 24.0814, 23.8476, 23.38,  21.5096};

constexpr double kFGA[] = {0, 1.07, 1.08, 0.96, 0.96, 0.95};
constexpr double kF3A[] = {0, 1.06, 1.23, 1.16, 1.08, 0.41};
constexpr double kReb[] = {0, 0.7,  0.67, 0.84, 1.15, 1.7};
constexpr double kAst[] = {0, 1.74, 0.94, 0.83, 0.72, 0.76};
constexpr double kTo[]  = {0, 1.2,  0.9,  0.83, 0.72, 0.76};
constexpr double kSt[]  = {0, 1.18, 0.98, 1.07, 0.87, 0.91};
constexpr double kBk[]  = {0, 0.5,  0.58, 0.72, 1.03, 2.19};
constexpr double kPf[]  = {0, 0.89, 0.9,  0.92, 1.05, 1.27};
constexpr double kFTA[] = {0, 1.01, 0.9,  1.0,  0.97, 1.25};
// clang-format on

bool OneIn(int n) { return Rnd(n) == 1; }

/// What the game of his level looks like.
struct Level {
  bool college = false, women = false;
  double minutes = 48.5;            // of a team's game, overtime counted in, per position
  double length = 1;                // of the game against 48 minutes
  double shots = 1, fouls = 1;      // against the era's row
  double shorter = 0, lighter = 0;  // against professional men
};

Level LevelOf(const TeamRecord& team) {
  Level level;
  level.college = IsCollegeOrInternational(team);
  level.women = team.TeamSex == 'W';
  if (level.college) level.shorter = 1, level.lighter = 12;
  if (level.women) level.shorter = 5.5, level.lighter = 45, level.shots = 0.79, level.fouls = 0.92;
  if (level.college || level.women) level.minutes = 40.5, level.length = 40.0 / 48;
  return level;
}

/// The working values of one drawing.
struct Draft {
  PlayerRecord& p;
  const FictionOrder& order;
  Level level;
  const EraRecord& era;
  double meanHeight[6], meanWeight[6];
  int usedPosition = 1;  // of age, body and playing time
  double quality = 4.5;
  double minutes = 0;  // per game, as in games of 48
  int Min = 0;
  int FGA = 0, F3A = 0, Reb = 0, Ast = 0, To = 0, St = 0, Bk = 0, Pf = 0, FTA = 0;
  double two = 0, three = 0, freeThrow = 0;

  bool Is(FictionQuality q) const { return order.Quality == q; }
};

void Times(int& count, double factor) { count = Round(count * factor); }

/// His own position, or one time in three the second one when he has one.
int DrawnPosition(const PlayerRecord& p) {
  const bool second = OneIn(3);
  return second && p.SecondaryPosition ? p.SecondaryPosition : p.PrimaryPosition;
}

/// Men grew: five steps of half an inch and three pounds, from the sixties to the nineties.
void SetEraBodies(Draft& d) {
  double inches = d.level.shorter, pounds = d.level.lighter;
  for (int y = 1990; y >= 1950; y -= 10) {
    if (d.order.Year <= y + Rnd(10)) {
      inches += 0.5;
      pounds += 3;
    }
  }
  for (int p = 1; p <= 5; ++p) {
    d.meanHeight[p] = kMeanHeight[p] - inches;
    d.meanWeight[p] = kMeanWeight[p] - pounds;
  }
}

/// One of two neighbouring positions as the second, now and then the other as the third.
void DrawNeighbours(PlayerRecord& p, int lower, int upper) {
  const bool low = OneIn(2);
  p.SecondaryPosition = static_cast<u8>(low ? lower : upper);
  if (OneIn(5)) p.SpotPosition = static_cast<u8>(low ? upper : lower);
}

void DrawPositions(PlayerRecord& p) {
  if (!OneIn(3)) return;
  switch (p.PrimaryPosition) {
    case 1:
      p.SecondaryPosition = 2;
      break;
    case 2:
      DrawNeighbours(p, 1, 3);
      break;
    case 3:
      DrawNeighbours(p, 2, 4);
      break;
    case 4:
      DrawNeighbours(p, 3, 5);
      break;
    default:
      p.SecondaryPosition = 4;
      if (OneIn(5)) p.SpotPosition = 3;
  }
}

std::string Drawn(const std::vector<std::string>& names) {
  if (names.empty()) return "";
  const int n = Rnd(static_cast<int>(names.size()));
  return names[static_cast<std::size_t>(n - 1)];
}

void DrawNames(Draft& d, const FictionFiles& names) {
  PlayerRecord& p = d.p;
  std::string last = Drawn(names.Last);
  if (last.rfind("Mcc", 0) == 0) last[2] = 'C';
  p.LastName = last;
  p.FirstName = Drawn(d.level.women && !names.FirstWomen.empty() ? names.FirstWomen : names.First);
  p.ShortName = last;
  p.College = Rnd(100) <= 5 ? "None" : Drawn(names.College);
}

void DrawUniform(PlayerRecord& p) {
  int n = Rnd(16) - 1;
  const auto twoDigits = [](int tens) { return 10 * tens + Rnd(6) - 1; };
  if (OneIn(3)) n = twoDigits(Rnd(5));
  if (p.PrimaryPosition >= 2 + Rnd(3) && OneIn(2)) n = twoDigits(2 + Rnd(3));
  p.UniformNumber = std::to_string(n);
}

int WithinCareer(int age) {
  if (age <= 18) return 17 + Rnd(4);
  return age >= 36 ? 34 + Rnd(5) : age;
}

void DrawAge(Draft& d) {
  const bool second = OneIn(4);
  d.usedPosition = second && d.p.SecondaryPosition ? d.p.SecondaryPosition : d.p.PrimaryPosition;
  const double mean = kMeanAge[d.usedPosition];
  int age = 0;
  if (d.level.college) {
    age = 17 + Rnd(5);
  } else if (d.Is(FictionQuality::kRookieMix)) {
    age = 19 + Rnd(4);
    if (OneIn(10)) age = 18 + Rnd(4);
  } else if (d.Is(FictionQuality::kVeteranMix)) {
    age = Round(Spread(mean, 7));
    if (OneIn(30)) age += Rnd(4);
    age = WithinCareer(age);
  } else {
    age = WithinCareer(Round(Spread(mean, 9)));
  }
  d.p.Age = static_cast<u8>(age);
}

void DrawBody(Draft& d) {
  const double meanHeight = d.meanHeight[d.usedPosition];
  double height = Spread(meanHeight, 5);
  if (OneIn(10)) height = Spread(height, 3);
  const int inches = Int(height + 0.5);
  d.p.HeightFeet = static_cast<u8>(inches / 12);
  d.p.HeightInches = static_cast<u8>(inches % 12);
  const double weight = height / meanHeight * d.meanWeight[d.usedPosition];
  int pounds = Int(Spread(weight, 15) + 0.5);
  if (OneIn(5)) pounds = Int(Spread(weight, 15) + 0.5);
  d.p.Weight = static_cast<i16>(pounds);
}

void DrawQuality(Draft& d) {
  double& q = d.quality;
  if (d.Is(FictionQuality::kReplacement)) {
    q = Clamp(Spread(q, 1), 0.0, 9.0);
    return;
  }
  const bool veteran =
      d.Is(FictionQuality::kVeteranMix) || (d.Is(FictionQuality::kVeteranRookieMix) && OneIn(2));
  q = Spread(q, 6);
  if (veteran && OneIn(10)) q = Spread(q, 2);
  if (OneIn(2)) q = Spread(q, 3);
  if (OneIn(5)) q = Spread(q, 3);
  q = std::max(q, d.Is(FictionQuality::kVeteranMix) ? 1.0 : 0.0);
  if (d.Is(FictionQuality::kRookieMix)) q = std::min(q, 9.0);
}

/// The part of the season he plays, and what his quality does to his minutes.
double DrawShare(Draft& d) {
  const double q = d.quality;
  double& g = d.minutes;
  if (d.Is(FictionQuality::kReplacement)) return 0.9 + 0.01 * q;
  double share = 0.85 + 0.15 * Rnd();
  const int luck = Rnd(10);
  if (luck == 1) share += 0.2 * Rnd();
  if (luck == 2) share -= 0.2 * Rnd();
  share = Spread(share, 0.1);
  const auto goodEnough = [q] { return q >= 3 + 4 * Rnd() || OneIn(2); };
  if (q <= 3 + 5 * Rnd() || OneIn(2)) g -= 12 * Rnd();
  if (g > 20 + 3 * Rnd() && goodEnough()) g += 15 * Rnd();
  if (g > 23 + 3 * Rnd() && goodEnough()) g += 5 * Rnd();
  if (q > 3 + 4 * Rnd()) g += 3 * Rnd();
  if (q > 4 + 4 * Rnd()) g += 3 * Rnd();
  if (q > 5 + 5 * Rnd()) g += 3 * Rnd();
  if (q < 4 * Rnd()) g -= 7 * Rnd();
  return share;
}

void DrawPlayingTime(Draft& d) {
  double& g = d.minutes;
  g = Spread(kMeanMinutes[d.usedPosition], 5);
  if (d.p.Age <= 20 + Rnd(3)) {
    g -= Rnd(2);
  } else if (d.p.Age == 31 + Rnd(5)) {
    g -= Rnd(3);
  }
  double share = DrawShare(d);
  if (g >= 30 + 5 * Rnd()) g = 30 + 11 * Rnd();
  if (OneIn(3) && d.quality <= 4 + 4 * Rnd()) g *= 0.4 + 0.6 * Rnd();
  if (g < 10) g = 8 + 4 * Rnd();
  share = Spread(share, 0.1);
  const int season = d.era.Games;
  int games = Int(season * share + 0.5);
  if (games >= season) {
    games = season;
    if (Rnd(10) <= 8) games = season - Rnd(5);
  }
  games = std::max(1, games);
  d.p.Stats[1].G = static_cast<i16>(games);
  d.Min = std::max(1, Round(games * g * d.level.length));
}

void DrawBaseLine(Draft& d) {
  const EraRecord& era = d.era;
  const auto count = [&d](double eraFigure, double levelFactor, double position) {
    return Round(eraFigure * levelFactor / d.level.minutes / 5 * position * d.Min);
  };
  d.two = Share(era.FGM - era.F3M, era.FGA - era.F3A);
  d.three = era.F3M / (era.F3A + 0.01);
  d.freeThrow = era.FTM / (era.FTA + 0.01);
  const int own = d.p.PrimaryPosition;
  d.FGA = count(era.FGA, d.level.shots, kFGA[DrawnPosition(d.p)]);
  d.F3A = Round(Share(era.F3A, era.FGA) * d.FGA * kF3A[DrawnPosition(d.p)]);
  d.Reb = count(era.Reb, d.level.shots, kReb[DrawnPosition(d.p)]);
  d.Ast = count(era.Ast, d.level.shots, kAst[own]);
  d.To = count(era.TO, d.level.fouls, kTo[own]);
  d.St = count(era.St, d.level.fouls, kSt[DrawnPosition(d.p)]);
  d.Bk = count(era.Bk, d.level.fouls, kBk[DrawnPosition(d.p)]);
  d.Pf = count(era.PF, d.level.fouls, kPf[DrawnPosition(d.p)]);
  d.FTA = Round(Share(era.FTA, era.FGA - era.F3A) * (d.FGA - d.F3A) * kFTA[DrawnPosition(d.p)]);
  Times(d.FTA, 1.1);
}

/// His touch from afar moves the threes he takes, the threes he makes, and his free throws.
void DrawTouch(Draft& d) {
  double touch = Spread(5, 5);
  const int byQuality = Rnd(3);
  if (byQuality == 2) touch += (d.quality - 4.5) * 0.1;
  if (byQuality == 3) touch += (d.quality - 4.5) * 0.2;
  const int luck = Rnd(10);
  touch += (luck == 1 ? 4 : luck == 2 ? 2 : 0.5) * Rnd();
  Times(d.F3A, touch / 5);
  d.three += 0.01 * Rnd() * (touch - 5);
  d.freeThrow += 0.015 * Rnd() * (touch - 5);
}

/// A factor around 1 from his quality, or one time in two from an average man's. Nobody is below the lowest.
double SkillFactor(double quality, double lowest, double high) {
  double a = Spread(quality, 2);
  if (OneIn(2)) a = Spread(4.5, 2);
  a = std::max(a, 0.0);
  return a <= 4.5 ? lowest + (1 - lowest) * a / 4.5 : 1 + (high - 1) * (a - 4.5) / 5.5;
}

void DrawSkill(Draft& d) {
  const double q = d.quality, g = d.minutes;
  const int own = d.p.PrimaryPosition;
  double shots = SkillFactor(q, 0.55, own == 1 ? 1.6 : 1.5);
  if (OneIn(2) && g > 20 + 15 * Rnd()) shots *= 1.1;
  if (OneIn(2) && g > 25 + 15 * Rnd()) shots *= 1.1;
  if (OneIn(2) && g < 10 + 20 * Rnd()) shots *= 0.7;
  if (OneIn(2) && g < 10 + 10 * Rnd()) shots *= 0.7;
  Times(d.FGA, shots);
  Times(d.F3A, shots);
  Times(d.Reb, SkillFactor(q, 0.6, own == 1 ? 2.2 : 1.5));
  Times(d.Ast, SkillFactor(q, 0.33, 1.6 + 0.3 * (own - 1)));
  Times(d.To, 1 / SkillFactor(q, 0.3, 1.8));
  Times(d.St, SkillFactor(q, own == 5 ? 0.3 : 0.45, 2.0));
  Times(d.Bk, SkillFactor(q, 0.2, 2.5));
  Times(d.Pf, 1 / SkillFactor(q, 0.6, 1.7));
}

void ApplyAge(Draft& d) {
  const int up = Rnd(5);
  const int down = Rnd(5);
  const int a = d.p.Age + up - down;
  if (a <= 24) Times(d.FGA, 1.08);
  if (a >= 31) Times(d.FGA, 0.95);
  Times(d.F3A, a <= 25 ? 0.92 : 1.08);
  if (a >= 35) d.two *= 0.98;
  d.three *= 1.005;
  d.three *= a <= 23 || a >= 35 ? 0.95 : 1.02;
  d.freeThrow *= a <= 25 || a >= 35 ? 0.97 : 1.04;
  Times(d.Ast, a <= 26 ? 0.94 : 1.1);
  if (a <= 24) Times(d.Reb, 1.05);
  if (a >= 35) Times(d.Reb, 0.95);
  Times(d.St, a <= 24 || a >= 35 ? 0.97 : 1.04);
  if (a <= 24) Times(d.Bk, 1.1);
  if (a >= 31) Times(d.Bk, 0.9);
  Times(d.Pf, a <= 24 || a >= 35 ? 1.05 : 0.97);
}

void ApplyBody(Draft& d) {
  const int place = DrawnPosition(d.p);
  const double meanHeight = d.meanHeight[place], meanWeight = d.meanWeight[place];
  const double height = HeightOf(d.p);
  Times(d.Reb, height / meanHeight);
  Times(d.Ast, meanHeight / height);
  Times(d.Bk, 1 + 0.1 * (height - meanHeight));
  Times(d.Pf, (d.p.Weight / height) / (meanWeight / meanHeight));
}

void ApplyNoise(Draft& d) {
  for (int* count : {&d.FGA, &d.F3A, &d.FTA, &d.Reb, &d.Ast, &d.To, &d.St, &d.Bk, &d.Pf}) {
    Times(*count, Spread(1, 0.2));
    *count = Clamp(*count, 0, 32767);
  }
  for (double* rate : {&d.two, &d.three, &d.freeThrow}) *rate = Spread(*rate, 0.021);
}

int Makes(int attempts, double rate) { return Clamp(Int(attempts * rate + 0.5), 0, attempts); }

void WriteLine(Draft& d) {
  if (d.F3A > 0.8 * d.FGA) d.F3A = Round((0.7 + 0.15 * Rnd()) * d.FGA);
  const int off = Round(d.Reb * Spread(0.33, 0.04));
  d.freeThrow = std::min(d.freeThrow, 1.0);
  if (d.freeThrow > 0.95 && d.FTA >= 20 + Rnd(10)) d.freeThrow = 0.95;
  const int freeThrows = Makes(d.FTA, d.freeThrow);
  int threes = Makes(d.F3A, d.three);
  const int twos = Makes(d.FGA - d.F3A, d.two);
  if (threes <= Rnd(10) && OneIn(3)) threes = 0;

  StatLine& line = d.p.Stats[1];
  const auto put = [](i16& field, int value) { field = static_cast<i16>(Clamp(value, 0, 32767)); };
  put(line.Min, d.Min);
  put(line.FGA, d.FGA), put(line.FGM, twos + threes);
  put(line.F3A, d.F3A), put(line.F3M, threes);
  put(line.FTA, d.FTA), put(line.FTM, freeThrows);
  put(line.Reb, d.Reb), put(line.Off, off);
  put(line.Ast, d.Ast), put(line.To, d.To), put(line.St, d.St), put(line.Bk, d.Bk), put(line.Pf, d.Pf);
}

void RateMadeUp(PlayerRecord& p, const TeamRecord& team) {
  RatingRun run;
  run.FictionalRatingRun = true;
  run.SetFactors(p);
  DefaultScoring(p, team, run);
  DefaultRealInside(p, team, run);
  DefaultShooting(p, team, run);
  DefaultPassing(p, team, run);
  DefaultRebounding(p, team, run);
  DefaultDefense(p, team, run);
  DefaultAllSeason(p, run);
  DefaultDurability(p, team, run);
  DefaultSportsmanship(p, team, run);
  DefaultClutch(p);
  DefaultDunk(p);
  DefaultSALARY(p, IsCollegeTeam(team));
  p.RateOffense = std::min<u8>(p.RateOffense, 100);
}

}  // namespace

PlayerRecord CreateOnePlayer(const FictionOrder& order, const FictionFiles& names, const TeamRecord& team) {
  PlayerRecord p;
  const Level level = LevelOf(team);
  Draft d{p, order, level, SeasonRow(order.Year, level.college), {}, {}};
  SetEraBodies(d);
  p.TeamNo = static_cast<i16>(order.TeamNo);
  p.Year = static_cast<i16>(Clamp(order.Year, 1920, 2100));
  p.PrimaryPosition = static_cast<u8>(Clamp(order.Position, 1, 5));
  p.PlayerType = level.college ? std::string_view(team.TeamType.bytes.data(), 1) : " ";
  p.Sex = level.women ? "W" : "M";
  p.ScheduleStrength = team.ScheduleStrength;
  DrawPositions(p);
  DrawNames(d, names);
  DrawUniform(p);
  DrawAge(d);
  DrawBody(d);
  DrawQuality(d);
  DrawPlayingTime(d);
  DrawBaseLine(d);
  DrawTouch(d);
  DrawSkill(d);
  ApplyAge(d);
  ApplyBody(d);
  ApplyNoise(d);
  WriteLine(d);
  RateMadeUp(p, team);
  SetPlayerMarks(p, team);
  SetUsageFromLine(p);
  return p;
}

void SetPlayerMarks(PlayerRecord& p, const TeamRecord& team) {
  p.UsageMark = p.ShortNameMark = p.DunkRatingMark = p.FirstNameMark = p.InjuryCountMark = 99;
  p.PhotoMark = p.StreakFieldsMark = p.InfoMark = p.DunkMark = p.WinLossMark = p.Salary2Mark = 99;
  p.PositionGamesMark = p.DefRatingMark = p.ShareMark = p.FlagrantMark = 99;
  p.Stats[1].EjectionMark = p.Stats[2].DunkMark = p.SeriesStats.SeriesMark = 99;
  p.InjuryMark = p.FavoriteShotMark = p.UsageMark2 = p.MinutesMark = p.UniformMark = 33;
  p.PositionShiftMark = p.TypeMark = 55;
  p.OriginalTeamMark = p.RotationMark = 22;
  p.NicknameMark = 199;
  p.SalaryModelMark = p.Year >= 2016 ? 155 : p.Year >= 2014 ? 123 : 210;
  for (const char letter : {'P', 'C', 'A', 'O'}) {
    if (team.TeamType == letter) p.PlayerType = std::string_view(&letter, 1);
  }
  if (p.PlayerType.Empty()) p.PlayerType = "P";
  p.OriginalTeam = team.Abbrev.View();
  p.PhotoFile = p.LastName.Str() + "_" + p.FirstName.Str() + ".jpg";
  p.ShotSelection.Fill(3);
  for (u8* form : {&p.AltForm1, &p.AltForm2, &p.AltForm3, &p.AltForm4, &p.AltForm5}) *form = 10;
  CopyRealTeam(p, team);
}

void SetUsageFromLine(PlayerRecord& p) {
  constexpr std::string_view kLabels[] = {"", "PG", "SG", "SF", "PF", "C"};
  const StatLine& real = p.Stats[1];
  const double minutes = Share(real.Min, real.G);
  SetMinutesFromLine(p);
  p.DontPlayWhenTired = minutes < 30;
  if (p.PrimaryPosition <= 5) p.PositionText = kLabels[p.PrimaryPosition];
}

}  // namespace tipline
