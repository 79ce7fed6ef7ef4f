#pragma once
// Records of the league's files. Each record type has one description, a function
//
//   template <class Record, class Visitor> void Describe(Record& r, Visitor&& field);
//
// that calls field(offset, name, member, meaning) for every field in the order of the file, spare bytes too.
// Reading, writing, the size check, the dump and the format document all run over it.
//
// Numbers are little-endian. A table with several indexes has the first index fastest.
#include <bit>
#include <concepts>
#include <cstring>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "base/tables.h"
#include "base/text.h"
#include "base/types.h"

namespace tipline {

struct IgnoreField {
  template <class... Args>
  void operator()(Args&&...) const {}
};

template <class T>
concept Described = requires(T& record, IgnoreField ignore) {
  Describe(record, ignore);
};

template <class T>
struct TableShape {
  static constexpr int kDepth = 0;
  using Cell = T;
};
template <class T, int A, int B>
struct TableShape<Table<T, A, B>> {
  static constexpr int kDepth = 1 + TableShape<T>::kDepth;
  using Cell = typename TableShape<T>::Cell;
};

template <class T>
inline constexpr bool kIsText = false;
template <int N>
inline constexpr bool kIsText<Text<N>> = true;

/// Bytes that a value takes in a file.
template <class T>
constexpr int DiskSize() {
  if constexpr (TableShape<T>::kDepth > 0) {
    return T::kCount * DiskSize<typename T::value_type>();
  } else if constexpr (kIsText<T>) {
    return T::kLength;
  } else if constexpr (std::is_arithmetic_v<T>) {
    return static_cast<int>(sizeof(T));
  } else {
    return T::kRecordSize;
  }
}

/// Calls visit(cell, offset in bytes from the table's start) for each cell, the first index fastest.
template <class Tbl, class Visit>
void ForCells(Tbl& table, Visit&& visit, int offset = 0,
              int stride = DiskSize<typename TableShape<std::remove_const_t<Tbl>>::Cell>()) {
  using Plain = std::remove_const_t<Tbl>;
  for (auto& cell : table.cells_) {
    if constexpr (TableShape<Plain>::kDepth == 1) {
      visit(cell, offset);
    } else {
      ForCells(cell, visit, offset, stride * Plain::kCount);
    }
    offset += stride;
  }
}

template <class T>
void GetValue(const u8* from, T& value);
template <class T>
void PutValue(u8* to, const T& value);

/// Fills a record from `bytes`, which must hold at least its size.
template <Described R>
void ReadRecord(const u8* bytes, R& record) {
  Describe(record,
           [bytes](int offset, const char*, auto& member, const char*) { GetValue(bytes + offset, member); });
}

/// Writes a record over the first bytes of `bytes`, which must hold at least its size.
template <Described R>
void WriteRecord(const R& record, u8* bytes) {
  Describe(record, [bytes](int offset, const char*, const auto& member, const char*) {
    PutValue(bytes + offset, member);
  });
}

/// The record as the file holds it.
template <Described R>
std::vector<u8> RecordBytes(const R& record) {
  std::vector<u8> bytes(static_cast<std::size_t>(R::kRecordSize));
  WriteRecord(record, bytes.data());
  return bytes;
}

template <class T>
void GetValue(const u8* from, T& value) {
  if constexpr (TableShape<T>::kDepth > 0) {
    if constexpr (std::is_same_v<typename TableShape<T>::Cell, u8> && TableShape<T>::kDepth == 1) {
      std::copy(from, from + T::kCount, value.begin());
    } else {
      ForCells(value, [from](auto& cell, int offset) { GetValue(from + offset, cell); });
    }
  } else if constexpr (kIsText<T>) {
    std::copy(from, from + T::kLength, value.bytes.begin());
  } else if constexpr (std::is_arithmetic_v<T>) {
    static_assert(std::endian::native == std::endian::little, "add a byte swap here for such a machine");
    std::memcpy(&value, from, sizeof(T));
  } else {
    ReadRecord(from, value);
  }
}

template <class T>
void PutValue(u8* to, const T& value) {
  if constexpr (TableShape<T>::kDepth > 0) {
    if constexpr (std::is_same_v<typename TableShape<T>::Cell, u8> && TableShape<T>::kDepth == 1) {
      std::copy(value.begin(), value.end(), to);
    } else {
      ForCells(value, [to](const auto& cell, int offset) { PutValue(to + offset, cell); });
    }
  } else if constexpr (kIsText<T>) {
    std::copy(value.bytes.begin(), value.bytes.end(), to);
  } else if constexpr (std::is_arithmetic_v<T>) {
    std::memcpy(to, &value, sizeof(T));
  } else {
    WriteRecord(value, to);
  }
}

}  // namespace tipline
