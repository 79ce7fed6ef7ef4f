#pragma once
// The names that made-up players get, in four text files of the program folder.
#include <string>
#include <vector>

namespace tipline {

struct FictionFiles {
  std::vector<std::string> City, College, Last, First;
  std::vector<std::string> FirstWomen;  ///< from the shipped data alone
};

/// Reads VTX-Fiction-City.txt, -College.txt, -Last.txt and -First.txt. A missing one is filled from the data
/// that ship with the program, or created empty without them.
FictionFiles LoadFictionFiles();

/// The shipped names alone, whatever a user has put into the four files.
FictionFiles ShippedFictionFiles();

}  // namespace tipline
