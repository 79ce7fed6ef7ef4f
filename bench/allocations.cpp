// Every heap allocation of the program is counted.
#include <cstdlib>
#include <new>

#include "bench.h"

namespace {
std::uint64_t allocations = 0;
}

std::uint64_t tipline::Allocations() { return allocations; }

void* operator new(std::size_t size) {
  ++allocations;
  if (void* block = std::malloc(size > 0 ? size : 1)) return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
