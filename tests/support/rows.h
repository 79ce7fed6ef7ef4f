#pragma once
// Tables of one shape: a change to a set-up and what it leaves.
#include <gtest/gtest.h>

#include <initializer_list>
#include <type_traits>

namespace tipline {

template <class T>
struct Row {
  const char* why;
  void (*change)();
  T left;
};

/// Sets up and changes, row after row, and compares what `measure` finds. A tuple for several findings.
template <class SetUp, class Measure>
void ExpectRows(SetUp setUp, Measure measure,
                std::initializer_list<Row<std::invoke_result_t<Measure>>> rows) {
  for (const auto& row : rows) {
    setUp();
    row.change();
    EXPECT_EQ(measure(), row.left) << row.why;
  }
}

}  // namespace tipline
