#include "engine/chances.h"
#include "league/league.h"

namespace tipline {

namespace {

constexpr int kFirstYear = 1950, kLastYear = 2018;

// How often conference 1 won its games against conference 2, by pro season. Our own estimate between the
// seasons whose count is known; a row is ten seasons.
// clang-format off
constexpr double kStrength[kLastYear - kFirstYear + 1] = {
    0.482, 0.506, 0.521, 0.494, 0.510, 0.532, 0.498, 0.541, 0.563, 0.548,   // 1950
    0.574, 0.602, 0.631, 0.655, 0.682, 0.710, 0.661, 0.598, 0.557, 0.529,   // 1960
    0.511, 0.478, 0.465, 0.487, 0.502, 0.517, 0.495, 0.472, 0.489, 0.524,   // 1970
    0.547, 0.561, 0.536, 0.518, 0.509, 0.522, 0.533, 0.546, 0.528, 0.541,   // 1980
    0.515, 0.497, 0.508, 0.488, 0.503, 0.526, 0.552, 0.579, 0.548, 0.471,   // 1990
    0.442, 0.426, 0.413, 0.398, 0.384, 0.421, 0.437, 0.409, 0.401, 0.436,   // 2000
    0.428, 0.432, 0.418, 0.369, 0.369, 0.369, 0.369, 0.369, 0.389};         // 2010
// clang-format on

}  // namespace

double ConferenceStrength(int year) {
  return year < kFirstYear || year > kLastYear ? 0.5 : kStrength[year - kFirstYear];
}

double ConferenceShare(int team, int year) {
  switch (ConferenceOf(team)) {
    case 1:
      return ConferenceStrength(year);
    case 2:
      return 1 - ConferenceStrength(year);
    default:
      return 0.5;
  }
}

}  // namespace tipline
