#include "base/tables.h"

#include <cstdio>
#include <cstdlib>

namespace tipline {

void IndexOutside(int first, int last, int index) {
  std::fprintf(stderr, "tipline: index %d outside its table of %d to %d\n", index, first, last);
  std::abort();
}

}  // namespace tipline
