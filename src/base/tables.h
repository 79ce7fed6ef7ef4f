#pragma once
// Tables with the league's own indexes: sides 1 to 2, slots 1 to 30, teams 1 to 720.
// The bounds are part of the type. Debug and test builds (TIPLINE_CHECKED) stop at an index outside them.
#include <array>
#include <cstddef>
#include <vector>

namespace tipline {

/// Prints the table's bounds and the index on standard error and ends the program; never returns.
[[noreturn]] void IndexOutside(int first, int last, int index);

template <class T, int First, int Last>
class Table {
  static_assert(First <= Last);

 public:
  using value_type = T;
  static constexpr int kFirst = First;
  static constexpr int kLast = Last;
  static constexpr int kCount = Last - First + 1;

  constexpr T& operator[](int index) { return cells_[At(index)]; }
  constexpr const T& operator[](int index) const { return cells_[At(index)]; }

  constexpr T* begin() { return cells_.data(); }
  constexpr T* end() { return cells_.data() + kCount; }
  constexpr const T* begin() const { return cells_.data(); }
  constexpr const T* end() const { return cells_.data() + kCount; }

  constexpr void Fill(const T& value) { cells_.fill(value); }
  friend constexpr bool operator==(const Table&, const Table&) = default;

  std::array<T, kCount> cells_{};  // public so that a table of constants is written as {{1, 2, 3}}

 private:
  static constexpr std::size_t At(int index) {
#ifdef TIPLINE_CHECKED
    if (index < First || index > Last) IndexOutside(First, Last, index);
#endif
    return static_cast<std::size_t>(index - First);
  }
};

/// Two indexes, x[a][b]. In files the first index runs fastest; the record reader sees to that.
template <class T, int FirstA, int LastA, int FirstB, int LastB>
using Table2 = Table<Table<T, FirstB, LastB>, FirstA, LastA>;

/// Three indexes, x[a][b][c].
template <class T, int FirstA, int LastA, int FirstB, int LastB, int FirstC, int LastC>
using Table3 = Table<Table2<T, FirstB, LastB, FirstC, LastC>, FirstA, LastA>;

/// The same on the heap, for tables of a whole league.
template <class T, int First, int Last>
class BigTable {
 public:
  static constexpr int kFirst = First;
  static constexpr int kLast = Last;

  T& operator[](int index) { return cells_[At(index)]; }
  const T& operator[](int index) const { return cells_[At(index)]; }
  auto begin() { return cells_.begin(); }
  auto end() { return cells_.end(); }
  auto begin() const { return cells_.begin(); }
  auto end() const { return cells_.end(); }

 private:
  static std::size_t At(int index) {
#ifdef TIPLINE_CHECKED
    if (index < First || index > Last) IndexOutside(First, Last, index);
#endif
    return static_cast<std::size_t>(index - First);
  }
  std::vector<T> cells_ = std::vector<T>(Last - First + 1);
};

}  // namespace tipline
