#pragma once
// What a command prints, caught while this lives.
#include <iostream>
#include <sstream>

namespace tipline {

class Catch {
 public:
  Catch() : out_(std::cout.rdbuf(text.rdbuf())), err_(std::cerr.rdbuf(faults.rdbuf())) {}
  ~Catch() { std::cout.rdbuf(out_), std::cerr.rdbuf(err_); }

  std::ostringstream text, faults;

 private:
  std::streambuf *out_, *err_;
};

}  // namespace tipline
