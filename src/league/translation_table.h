#pragma once
// Names that the voice says in another way than they are written.
#include <string>
#include <vector>

namespace tipline {

struct Translation {
  std::string name;  ///< in capital letters
  std::string text;
};

struct TranslationTable {
  bool Loaded = false;
  std::vector<Translation> rows;  ///< the first row of a name stands
};

}  // namespace tipline
