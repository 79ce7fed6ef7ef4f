#include "league/injury_names.h"

namespace tipline {
namespace {

// clang-format off
constexpr std::string_view kNames[] = {
    // light: back at once, or in a game or two
    "bruised knee", "sore ankle", "jammed finger", "bruised hip", "bruised thigh", "sore back", "bruised elbow",
    "twisted ankle", "leg cramps", "sore wrist", "bruised ribs", "cut lip", "stiff neck",
    // bad: days to weeks
    "sprained ankle", "pulled groin", "pulled hamstring", "strained calf", "sprained wrist", "sprained thumb",
    "strained back", "sprained knee", "strained shoulder", "dislocated finger", "hip pointer", "back spasms",
    "inflamed tendon in the knee", "sprained foot", "strained hip", "bone bruise in the knee", "concussion",
    // grave: weeks to months
    "high ankle sprain", "torn calf muscle", "torn hamstring", "broken finger", "broken hand", "broken wrist",
    "broken nose", "broken toe", "cracked ribs", "separated shoulder", "dislocated shoulder", "stress fracture in the foot",
    "stress fracture in the shin", "broken foot", "herniated disc", "torn meniscus", "broken ankle",
    "torn shoulder muscle", "torn knee ligament", "torn Achilles tendon",
    // odd
    "poked eye", "lost contact lens", "bloody nose", "chipped tooth", "upset stomach", "bitten tongue",
    "bump on the head", "torn fingernail", "floor burn", "wind knocked out"};
// clang-format on
static_assert(std::size(kNames) == kInjuryNames);

}  // namespace

std::string_view InjuryName(int word) {
  return word >= 1 && word <= kInjuryNames ? kNames[word - 1] : std::string_view{};
}

}  // namespace tipline
