#pragma once
// The schedules of a league: it may keep several, one of them is the current one.
#include <string>
#include <string_view>
#include <vector>

namespace tipline {

/// Names of the league's schedule files, in alphabetical order.
std::vector<std::string> ScheduleFileList();
/// Makes one of them current, in the rules, and loads it. False, told, when it is none of them or the rules
/// can't be written; nothing has changed then.
bool ChooseSchedule(std::string_view file);

struct HCNEWSCHEDULE {
  std::string NameText;  ///< typed name, without ".skd"

  /// Makes an empty schedule of this name and makes it current.
  bool CreateCommand() const;
  /// Gives the current schedule this name.
  bool RenameCommand() const;
  // Both give false, told and with nothing changed, when the name can't be a file's or is taken, or when the
  // files can't be written.
};

}  // namespace tipline
