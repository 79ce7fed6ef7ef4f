#pragma once
// Records, leaders and best games, found again in the boxes by looking at every one.
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "season/recount_tally.h"

namespace tipline {

/// One performance in a category.
struct Performance {
  double value = 0;
  std::string name, team;
};

class BooksTally {
 public:
  /// A game, in the order of play; `season` counts it already.
  void Add(const BoxRecord& box, const ScheduleRecord& row, const SeasonTally& season);
  /// Tells of every row of HCRECORDS, HcLeaders and HcTop40 that is not what the boxes say, and adds to
  /// `figures` how many rows were compared.
  void Compare(const std::function<void(std::string)>& tell, long& figures) const;

 private:
  void AddRecords(const BoxRecord& box);
  void AddTopGames(const BoxRecord& box);
  void AddLeaders(const BoxRecord& box, const SeasonTally& season);

  std::map<int, std::vector<Performance>> records_;   ///< by id of the record book, in the order of play
  std::map<int, std::vector<Performance>> topGames_;  ///< by category
  struct Leader {
    int recNo = 0, value = 0;
  };
  std::map<int, std::vector<Leader>> boards_;  ///< ten places in order
};

}  // namespace tipline
