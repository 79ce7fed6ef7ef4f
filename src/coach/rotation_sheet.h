#pragma once
// The sheet on which a rotation grid is drawn up, before it goes to men and coach. Four periods are built in
// every league, period 5 is overtime.
#include "league/roster.h"

namespace tipline {

inline constexpr int kBuiltPeriods = 4;
inline constexpr int kOvertimeGrid = 5;
inline constexpr int kGridMinutes = 20;
/// The order in which periods are filled: who closes a game, who opens it, then the rest.
inline constexpr int kPeriodsByWeight[kBuiltPeriods] = {4, 1, 3, 2};

/// A man as the sheet sees him.
struct GridMan {
  bool member = false;
  int target = 0;     ///< minutes he should play
  int placed = 0;     ///< minutes of regulation placed so far
  int places = 0;     ///< positions where he is among the first four
  int bestRank = 0;   ///< his highest `DepthRank`
  double spread = 1;  ///< a man needed at several positions is spread thinner in each
  bool regular = false;
};

class RotationSheet {
 public:
  /// `regulation`: periods of the league's games, 2 or 4; `minutes`: of a built period, 1 to 20.
  RotationSheet(const Roster& roster, int regulation, int minutes);

  const Roster& roster;
  const int regulation, minutes;
  Table<GridMan, 1, kRosterSlots> man;

  int SlotAt(int period, int minute, int position) const { return cell_[period][minute][position]; }
  int PositionOf(int slot, int period, int minute) const { return own_[slot][period][minute]; }
  const PlayerRecord& Player(int slot) const { return roster.player[slot]; }

  /// A minute of the period at which the man and the position are both free.
  bool IsOpen(int slot, int period, int minute, int position) const {
    return own_[slot][period][minute] == 0 && cell_[period][minute][position] == 0;
  }
  /// Puts him there; a minute of regulation counts. Needs an open cell.
  void Place(int slot, int period, int minute, int position);
  /// The man at `from` moves to the free position `to`, his minutes stay.
  void Shift(int period, int minute, int from, int to);
  /// The block rule: n minutes from the period's start when he can open it, else n minutes up to the last
  /// open one. Only open minutes are taken, and none once he has `most` minutes.
  void PlaceBlock(int slot, int period, int position, int n, double most);
  /// Minutes of regulation that nobody stands for, by the count of the league's own periods.
  int Open() const;
  /// Calls visit(period, minute, position) for the free cells of regulation, period by period.
  template <class Visit>
  void EachFree(Visit visit) const {
    for (int period = 1; period <= kBuiltPeriods; ++period) {
      for (int minute = 1; minute <= minutes; ++minute) {
        for (int position = 1; position <= 5; ++position) {
          if (cell_[period][minute][position] == 0) visit(period, minute, position);
        }
      }
    }
  }

 private:
  Table3<u8, 1, 5, 1, kGridMinutes, 1, 5> cell_{};            ///< slot by period, minute, position
  Table3<u8, 1, kRosterSlots, 1, 5, 1, kGridMinutes> own_{};  ///< position by slot, period, minute
};

/// The first choice of each position; who needs more than one of them pays his minutes back at the others.
void PlaceKeyMen(RotationSheet& sheet);
/// Who of the others belongs to the rotation.
void ChooseRegulars(RotationSheet& sheet);
/// Five rounds of minutes for the regulars behind the first choices.
void PlaceRegulars(RotationSheet& sheet);
/// Men move over into holes that they can fill.
void MoveIntoHoles(RotationSheet& sheet);
/// The last holes go to men beside them, then to whoever plays there. A sheet with many holes keeps them.
void FillHoles(RotationSheet& sheet);

}  // namespace tipline
