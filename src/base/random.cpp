#include "base/random.h"

#include <utility>

namespace tipline {

Random random;
Random showRandom;
Random voiceRandom;

void SeedRandom(std::uint64_t seed) {
  random.Seed(seed);
  showRandom.Seed(~seed);
  voiceRandom.Seed(~seed);
}

void Random::Seed(std::uint64_t seed) {
  for (auto& word : state_) {  // splitmix64, so that neighbouring seeds give unlike games
    seed += 0x9e3779b97f4a7c15;
    std::uint64_t z = seed;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
    z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
    word = z ^ (z >> 31);
  }
}

void Random::Script(std::vector<double> draws) {
  script_ = std::move(draws);
  used_ = 0;
}

double Random::TakeScripted() {
  const double draw = script_[used_++];
  if (used_ == script_.size()) Script({});
  return draw;
}

int Random::ScriptedWhole(int n) { return Clamp(Int(TakeScripted()), 1, n < 1 ? 1 : n); }
double Random::ScriptedReal() { return TakeScripted(); }

namespace {

template <class T>
int Draw(std::span<const T> weights) {
  T total = 0;
  for (const T w : weights) total += w;
  const int whole = Int(static_cast<double>(total));
  if (whole < 1) return -1;
  const int r = Rnd(whole);
  T sum = 0;
  int last = -1;
  for (int i = 0; i < static_cast<int>(weights.size()); ++i) {
    const T w = weights[static_cast<std::size_t>(i)];
    if (w <= 0) continue;
    last = i;
    sum += w;
    if (r <= sum) return i;
  }
  return last;
}

}  // namespace

int WeightedDraw(std::span<const double> weights) { return Draw(weights); }
int WeightedDraw(std::span<const int> weights) { return Draw(weights); }

}  // namespace tipline
