#include "frontoffice/efficiency.h"
#include "league/player_values.h"

#include "frontoffice/rating_math.h"

namespace tipline {
namespace {

template <class Line>
EfficiencyLine CountsOf(const Line& x) {
  EfficiencyLine y;
  y.FGA = x.FGA, y.FGM = x.FGM, y.F3M = x.F3M, y.FTA = x.FTA, y.FTM = x.FTM;
  y.Reb = x.Reb, y.Off = x.Off, y.Ast = x.Ast, y.St = x.St, y.Bk = x.Bk, y.To = x.To, y.Pf = x.Pf;
  return y;
}

EfficiencyLine OfEra(const EraRecord& era, bool college) {
  EfficiencyLine y;
  y.Games = 1;
  y.Min = college ? 200 : 240;
  y.FGA = era.FGA, y.FGM = era.FGM, y.F3M = era.F3M, y.FTA = era.FTA, y.FTM = era.FTM;
  y.Reb = era.Reb, y.Off = era.OffReb, y.Ast = era.Ast, y.St = era.St, y.Bk = era.Bk, y.To = era.TO;
  y.Pf = era.PF;
  return y;
}

void Add(EfficiencyLine& sum, const EfficiencyLine& x) {
  for (const auto field :
       {&EfficiencyLine::Games, &EfficiencyLine::Min, &EfficiencyLine::FGA, &EfficiencyLine::FGM,
        &EfficiencyLine::F3M, &EfficiencyLine::FTA, &EfficiencyLine::FTM, &EfficiencyLine::Reb,
        &EfficiencyLine::Off, &EfficiencyLine::Ast, &EfficiencyLine::St, &EfficiencyLine::Bk,
        &EfficiencyLine::To, &EfficiencyLine::Pf}) {
    sum.*field += x.*field;
  }
}

/// A league that kept no rebounds, or in a replay no turnovers, had some: a share of the missed shots.
EfficiencyLine WithEstimates(EfficiencyLine y, bool replay) {
  const double missed = (y.FTA - y.FTM) * 0.5 + y.FGA - y.FGM;
  if (y.Reb <= 0) {
    y.Reb = missed;
    y.Off = 0.3 * missed;
  }
  if (replay && y.To <= 0) y.To = 0.3 * missed;
  return y;
}

/// What a league makes of its possessions.
struct LeagueConstants {
  double factor = 0, possession = 0, defBoards = 0, madePerFoul = 0, shotPerFoul = 0;
};

LeagueConstants Measure(const EfficiencyLine& y) {
  LeagueConstants c;
  c.factor = 2.0 / 3 - Share(0.5 * Share(y.Ast, y.FGM), 2 * Share(y.FGM, y.FTM));
  c.possession = Share(2 * y.FGM + y.FTM + y.F3M, y.FGA - y.Off + y.To + 0.44 * y.FTA);
  c.defBoards = Share(y.Reb - y.Off, y.Reb);
  c.madePerFoul = Share(y.FTM, y.Pf);
  c.shotPerFoul = Share(y.FTA, y.Pf);
  return c;
}

/// The worth of a line in points, `t` his team's assists per basket.
double Worth(const EfficiencyLine& x, const LeagueConstants& c, double t) {
  const double vop = c.possession, drb = c.defBoards;
  double u = x.F3M + 2.0 / 3 * x.Ast + (2 - c.factor * t) * x.FGM;
  u += 0.5 * x.FTM * (1 + (1 - t) + 2.0 / 3 * t);
  u -= vop * x.To;
  u -= vop * drb * (x.FGA - x.FGM);
  u -= vop * 0.44 * (0.44 + 0.56 * drb) * (x.FTA - x.FTM);
  u += vop * (1 - drb) * (x.Reb - x.Off);
  u += vop * drb * x.Off;
  u += vop * x.St;
  u += vop * drb * x.Bk;
  return u - x.Pf * (c.madePerFoul - 0.44 * c.shotPerFoul * vop);
}

double SidePossessions(const EfficiencyLine& own, const EfficiencyLine& other) {
  const double boards = Share(own.Off, own.Off + other.Reb - other.Off);
  return own.FGA + 0.4 * own.FTA - 1.07 * boards * (own.FGA - own.FGM) + own.To;
}

double PossessionsPerGame(const EfficiencyLine& own, const EfficiencyLine& other) {
  return Share((SidePossessions(own, other) + SidePossessions(other, own)) / 2, own.Games);
}

/// One season of a man between his team and his league.
struct EfficiencyCase {
  EfficiencyLine league, leagueOpponents, own, opponents;
};

double Efficiency(const StatLine& line, const EfficiencyCase& x) {
  if (line.Min <= 0 || line.G <= 0) return 0;
  const LeagueConstants c = Measure(x.league);
  const double leagueMean = Share(Worth(x.league, c, Share(x.league.Ast, x.league.FGM)), x.league.Min);
  if (leagueMean == 0) return 0;
  const double leaguePace = PossessionsPerGame(x.league, x.leagueOpponents);
  const double teamPace = PossessionsPerGame(x.own, x.opponents);
  const bool known = x.own.FGA > 0 && x.opponents.FGA > 0;
  const double pace = known && leaguePace > 0 && teamPace > 0 ? Clamp(leaguePace / teamPace, 0.7, 1.3) : 1.0;
  const double worth = Worth(CountsOf(line), c, Share(x.own.Ast, x.own.FGM)) / line.Min;
  return worth * pace * (15 / leagueMean);
}

EfficiencyCase RealCase(const PlayerRecord& player, const TeamRecord& team) {
  const bool college = IsCollegeLevel(player);
  const EraRecord& era = EraRow(player.Year < kFirstEraYear ? kFirstEraYear : player.Year, college, 2012);
  EfficiencyCase x;
  x.league = x.leagueOpponents = WithEstimates(OfEra(era, college), false);
  x.own = CountsOf(team.RealTotals[1]);
  x.opponents = CountsOf(team.RealTotals[2]);
  x.own.Games = x.opponents.Games = era.Games;
  return x;
}

EfficiencyCase ReplayCase(const TeamRecord& team, const ReplayLeague& replay) {
  EfficiencyCase x;
  x.league = WithEstimates(replay.own, true);
  x.leagueOpponents = WithEstimates(replay.opponents, true);
  x.own = CountsOf(team.TeamStats[1]);
  x.opponents = CountsOf(team.TeamStats[2]);
  x.own.Games = x.opponents.Games = team.Wins + team.Losses;
  return x;
}

}  // namespace

ReplayLeague MeasureReplayLeague() {
  ReplayLeague replay;
  const double regulation = 5.0 * league.rules.PeriodList * league.rules.MinuteList;
  for (int t = 1; t <= kTeams; ++t) {
    const TeamRecord& team = league.team[t];
    const int games = team.Wins + team.Losses;
    if (team.TeamActive != 1 || games < 1) continue;
    EfficiencyLine own = CountsOf(team.TeamStats[1]), opponents = CountsOf(team.TeamStats[2]);
    own.Games = opponents.Games = games;
    own.Min = team.TeamStats[1].Min > 0 ? team.TeamStats[1].Min : games * regulation;
    Add(replay.own, own);
    Add(replay.opponents, opponents);
  }
  return replay;
}

Table<double, 1, 2> CalculatePlayerPer(const PlayerRecord& player, const TeamRecord& team,
                                       const ReplayLeague& replay) {
  Table<double, 1, 2> per;
  per[1] = Efficiency(player.Stats[1], RealCase(player, team));
  per[2] = Efficiency(player.Stats[2], ReplayCase(team, replay));
  return per;
}

StatRates ComputeRates(const StatLine& line, bool collegeTeam) {
  const double scale = Share(collegeTeam ? 40 : 48, line.Min);
  StatRates r;
  r.FGPct = Share(line.FGM, line.FGA), r.F3Pct = Share(line.F3M, line.F3A);
  r.FTPct = Share(line.FTM, line.FTA), r.MinutesPerGame = Share(line.Min, line.G);
  r.FGA = line.FGA * scale, r.FGM = line.FGM * scale, r.F3A = line.F3A * scale, r.F3M = line.F3M * scale;
  r.FTA = line.FTA * scale, r.FTM = line.FTM * scale, r.Off = line.Off * scale, r.Reb = line.Reb * scale;
  r.Ast = line.Ast * scale, r.Bk = line.Bk * scale, r.St = line.St * scale, r.To = line.To * scale;
  r.Pf = line.Pf * scale;
  return r;
}

}  // namespace tipline
