#include "engine/chances_terms.h"

namespace tipline {

namespace {

/// What a man's ratings say about his twos, by kind; only the proportion of the three counts.
struct SetMix {
  double inside, outside, drive;
};

SetMix SetMixOf(const PlayerRecord& r) {
  const double in = r.RateOffInside, out = r.RateOffOutside, drive = r.RateOffDrive, pct = r.RealInsidePct;
  const SetMix mix{
      in * 0.021730463 + out * 0.008100465 + drive * 0.00270215 + pct * 0.008156387 - 0.03027088,
      out * 0.016665702 - in * 0.00350097 + drive * 0.002566626 - pct * 0.005463591 + 0.575974541,
      -out * 0.011592598 + in * 0.001611827 + drive * 0.009389086 - pct * 0.003436008 + 0.333163332};
  return {std::max(mix.inside, 0.01), std::max(mix.outside, 0.01), std::max(mix.drive, 0.01)};
}

/// Second chances: his offensive rebounds for each two that he takes.
double PutbackShare(const PlayerRecord& r) {
  const int twos = r.Stats[1].FGA - r.Stats[1].F3A + 1;
  const double perRebound = (r.RealInsidePct * 0.005 + 0.3 + r.RateOffInside * 0.05) * 0.4676692849;
  return Clamp(perRebound * r.Stats[1].Off / twos * 1.46, 0.01, 0.99);
}

double BreakShare(const PlayerRecord& r, double putback) {
  const double running = r.RateOffense * -0.017001979 / 10 + r.RateOffFastbreak * 0.01772924 + 0.150009904;
  return std::min(std::max(running * (1 - putback), 0.01) * 0.9, 0.99);
}

void MixOf(const PlayerRecord& r, LoadedMan& man) {
  man.SharePutback = PutbackShare(r);
  man.ShareBreak = BreakShare(r, man.SharePutback);
  const SetMix mix = SetMixOf(r);
  const double part = (1 - man.SharePutback - man.ShareBreak) / (mix.inside + mix.outside + mix.drive);
  man.ShareInside = part * mix.inside;
  man.ShareOutside = part * mix.outside;
  man.ShareDrive = part * mix.drive;
}

}  // namespace

void ShotMix(int side) {
  for (int slot = 1; slot <= kRosterSlots; ++slot) {
    const PlayerRecord& player = PlayerAt(side, slot);
    LoadedMan& man = LoadedAt(side, slot);
    man.SharePutback = man.ShareBreak = man.ShareInside = man.ShareOutside = man.ShareDrive = 0;
    if (player.Stats[1].F3A <= player.Stats[1].FGA) MixOf(player, man);
  }
}

double DrawHotHand() {
  double form = 0;
  if (Rnd(5) == 1) form = Spread(0, 0.035);
  if (Rnd(15) == 1) form = Spread(0, 0.055);
  return form;
}

}  // namespace tipline
