#include "base/text.h"

namespace tipline {

std::string Upper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

bool SameText(std::string_view a, std::string_view b) { return Upper(Trimmed(a)) == Upper(Trimmed(b)); }

}  // namespace tipline
