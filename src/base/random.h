#pragma once
// The game's one source of chance. With a seed a run repeats exactly, with every compiler.
#include <cstddef>
#include <span>
#include <vector>

#include "base/numbers.h"
#include "base/types.h"

namespace tipline {

class Random {
 public:
  Random() { Seed(1); }
  void Seed(std::uint64_t seed);

  /// A whole number from 1 to n, all alike. An n below 1 counts as 1.
  int Whole(int n) {
    if (!script_.empty()) [[unlikely]]
      return ScriptedWhole(n);
    if (n <= 1) {
      Next();
      return 1;
    }
    return 1 + static_cast<int>(((Next() >> 32) * static_cast<std::uint64_t>(n)) >> 32);
  }

  /// A real number from 0 up to, not including, 1.
  double Real() {
    if (!script_.empty()) [[unlikely]]
      return ScriptedReal();
    return static_cast<double>(Next() >> 11) * 0x1.0p-53;
  }

  /// For tests: the next draws in order, whole numbers for `Whole` (held to 1..n), reals for `Real`.
  /// When they are used up the generator goes on. An empty script ends the scripting.
  void Script(std::vector<double> draws);
  /// Draws of the script not yet used.
  std::size_t ScriptLeft() const { return script_.size() - used_; }

 private:
  std::uint64_t Next() {  // xoshiro256** of Blackman and Vigna, public domain
    const auto turn = [](std::uint64_t x, int k) { return (x << k) | (x >> (64 - k)); };
    const std::uint64_t result = turn(state_[1] * 5, 7) * 9;
    const std::uint64_t t = state_[1] << 17;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= t;
    state_[3] = turn(state_[3], 45);
    return result;
  }
  int ScriptedWhole(int n);
  double ScriptedReal();
  double TakeScripted();

  std::uint64_t state_[4] = {};
  std::vector<double> script_;
  std::size_t used_ = 0;
};

extern Random random;       ///< seeded from the clock at start, from --seed or by a test otherwise
extern Random showRandom;   ///< for what is only for show: no result hangs on it
extern Random voiceRandom;  ///< for what the voice makes of it: no line that is shown hangs on that

/// Seeds them: the game by the seed, the two that are only for show alike.
void SeedRandom(std::uint64_t seed);

inline int Rnd(int n) { return random.Whole(n); }
inline double Rnd() { return random.Real(); }
/// The same whole number where only words hang on it.
inline int ShowRnd(int n) { return showRandom.Whole(n); }
inline int VoiceRnd(int n) { return voiceRandom.Whole(n); }
/// With a bound that is no whole number: 1 + Int(bound x Rnd()), the bound at least 1.
inline int RndTo(double bound) { return 1 + Int((bound < 1 ? 1 : bound) * Rnd()); }

/// m + w x Rnd() - w x Rnd(), the first draw added.
inline double Spread(double middle, double width) {
  const double up = Rnd();
  const double down = Rnd();
  return middle + width * up - width * down;
}

/// The index (from 0) drawn with the given weights: r is `Rnd` of the whole part of their sum, and the first
/// place whose running sum reaches r is taken. -1, without a draw, when the whole part of the sum is below 1.
int WeightedDraw(std::span<const double> weights);
int WeightedDraw(std::span<const int> weights);

}  // namespace tipline
