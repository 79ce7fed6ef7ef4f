#pragma once
// A piece of work done by a copy of this program beside it. The copy has the memory of this moment; what it
// changes there stays its own, so it brings its results home in files.
#include <functional>

namespace tipline::platform {

class Worker {
 public:
  /// Begins the work at once; it says whether it succeeded. Where no copy can be made it is done here, before
  /// this returns.
  explicit Worker(const std::function<bool()>& work);
  ~Worker();  ///< waits for the end
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  bool Running();
  void Stop();  ///< ends the work where it stands
  /// Waits for the end; false when the work failed, or its copy of the program was ended.
  bool Wait();

 private:
  bool Collect(bool wait);

  int process_ = 0;  ///< 0: nothing runs
  bool succeeded_ = false;
};

}  // namespace tipline::platform
