#pragma once
// Several files changed in one step: a finished game stands in a dozen of them. While a group is under way
// every write of the file operations is gathered in memory, in its order, and reads see what was gathered.
// When all is known it goes into one journal of the folder, from there into the files, and the journal is
// emptied. A program that is killed before the journal is whole has changed nothing; one that is killed later
// leaves it whole, and whoever opens the folder next carries it out.
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/undo_journal.h"

namespace tipline {

/// What a group has gathered for one file.
struct GatheredFile {
  bool replaced = false;  ///< `whole` is the new file; else pieces change the old one
  std::string whole;
  std::vector<FilePiece> pieces;  ///< in order, later ones over earlier ones
  long long length = 0;           ///< the file is at least so long when they are written

  /// Lays what was gathered over `got` bytes read from the file at `offset`; `bytes` has room for `size`.
  /// Returns how many there are now.
  long long Over(long long offset, u8* bytes, std::size_t size, long long got) const;
  long long LengthOver(long long fileLength) const;
};

class GroupSave {
 public:
  /// Gathers from here on; inside another group it joins that one.
  explicit GroupSave(std::filesystem::path folder);
  ~GroupSave();  ///< what was not kept is forgotten
  GroupSave(const GroupSave&) = delete;
  GroupSave& operator=(const GroupSave&) = delete;

  enum class Kept {
    kYes,
    kNo,  ///< the files are as they were: the disk is full, or another program holds one of them for too long
    kLater,  ///< some are written, and the next opening of the folder goes on
  };
  /// Writes all that was gathered, in its order.
  [[nodiscard]] Kept Keep();

 private:
  friend const GatheredFile* Gathered(const std::filesystem::path& file);
  friend bool Gather(const std::filesystem::path& file, std::vector<FilePiece> pieces, long long length);
  friend bool GatherWhole(const std::filesystem::path& file, std::string bytes);
  GatheredFile& Of(const std::filesystem::path& file);

  std::filesystem::path folder_;
  std::vector<std::filesystem::path> order_;   ///< as they were first written
  std::map<std::string, GatheredFile> files_;  ///< by path
  bool joined_ = false;
};

/// A group is under way.
bool Gathering();
/// What the group under way has for a file; nullptr when it has nothing, or none is under way.
const GatheredFile* Gathered(const std::filesystem::path& file);
/// Adds a change; false when no group is under way.
bool Gather(const std::filesystem::path& file, std::vector<FilePiece> pieces, long long length);
bool GatherWhole(const std::filesystem::path& file, std::string bytes);

/// Carries out a group save of this folder that was cut short, and removes the journal. False when it can't
/// be: the disk is full, or a file can't be written; the journal then stays.
[[nodiscard]] bool FinishGroupSave(const std::filesystem::path& folder);

}  // namespace tipline
