#include "league/setup.h"

namespace tipline {
namespace {

// clang-format off
constexpr u8 kDefaultCalls[3][5] = {{2,  2, 2,  3, 10},   // more than six minutes left
                                    {2,  2, 2,  5, 10},   // less than six
                                    {2, 10, 2, 10, 10}};  // less than two
// clang-format on

void CallAlike(u8 tenths) {
  for (auto& band : setup.PlayCallFrequency) band.Fill(tenths);
}

}  // namespace

void UseDefaultCalls() {
  for (int band = 1; band <= 3; ++band) {
    for (int period = 1; period <= 5; ++period)
      setup.PlayCallFrequency[band][period] = kDefaultCalls[band - 1][period - 1];
  }
}

void CallNoPlays() { CallAlike(0); }
void CallAllPlays() { CallAlike(10); }

}  // namespace tipline
