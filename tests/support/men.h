#pragma once
// Men with a real season line, for tests of what follows from it.
#include <string_view>

#include "league/league.h"

namespace tipline {

struct ManOf {
  int year;
  std::string_view type = "P";
  int primary = 1, secondary = 0, spot = 0;
  int age = 25, inches = 78;
};
/// In the order of a box score: games, minutes, shots, threes, free throws, rebounds, the rest.
struct LineOf {
  int G = 0, Min = 0, FGA = 0, FGM = 0, F3A = 0, F3M = 0, FTA = 0, FTM = 0, Reb = 0, Off = 0, Ast = 0, St = 0,
      Bk = 0, To = 0, Pf = 0;
};

inline PlayerRecord MakeMan(const ManOf& man, const LineOf& line) {
  PlayerRecord p;
  p.Year = static_cast<i16>(man.year);
  p.PlayerType = man.type;
  p.Sex = "M";
  p.PrimaryPosition = static_cast<u8>(man.primary);
  p.SecondaryPosition = static_cast<u8>(man.secondary);
  p.SpotPosition = static_cast<u8>(man.spot);
  p.Age = static_cast<u8>(man.age);
  p.HeightFeet = static_cast<u8>(man.inches / 12);
  p.HeightInches = static_cast<u8>(man.inches % 12);
  const int counts[] = {line.G,   line.Min, line.FGA, line.FGM, line.F3A, line.F3M, line.FTA, line.FTM,
                        line.Reb, line.Off, line.Ast, line.St,  line.Bk,  line.To,  line.Pf};
  StatLine& s = p.Stats[1];
  i16* const fields[] = {&s.G,   &s.Min, &s.FGA, &s.FGM, &s.F3A, &s.F3M, &s.FTA, &s.FTM,
                         &s.Reb, &s.Off, &s.Ast, &s.St,  &s.Bk,  &s.To,  &s.Pf};
  for (std::size_t i = 0; i < std::size(fields); ++i) *fields[i] = static_cast<i16>(counts[i]);
  return p;
}

inline TeamRecord MakeTeam(std::string_view type, int year) {
  TeamRecord team;
  team.TeamActive = 1;
  team.TeamType = type;
  team.TeamSex = "M";
  team.Year = static_cast<i16>(year);
  return team;
}

}  // namespace tipline
