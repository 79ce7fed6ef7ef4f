#pragma once
// Changes of a file in place that can't be torn: what stood there before is kept in a file beside it
// (`<file>.undo`) until the change is whole. Whoever finds that file first puts the old bytes back.
// It is held as long as its saver lives: one program saves a file at a time, in place or whole, and nobody
// reads a file while a change of it is half made. Readers hold the file itself, shared, and savers wait for
// them. All waits end after platform::kPatience; the operation then fails.
// A killed program, a full disk and a second program at the same file are covered. Power loss is, but for the
// slots of the last seconds: a flush of both files would cost a league game a tenth of a second.
#include <filesystem>
#include <span>
#include <vector>

#include "base/types.h"
#include "platform/file_handle.h"

namespace tipline {

struct FilePiece {
  long long offset = 0;
  std::vector<u8> bytes;
};

/// Writes all pieces, and lengthens the file with zeros to `length` bytes where it is shorter; the file is
/// made when it is missing. False when that failed: the file is then as it was.
[[nodiscard]] bool ChangeInPlace(const std::filesystem::path& file, std::span<const FilePiece> pieces,
                                 long long length);

/// What became of a change that was cut short.
enum class Undone {
  kAll,           ///< nothing of it is left, or there was none
  kJournalStays,  ///< the file is whole, but its journal can't be removed: the folder may only be read
  kNot,           ///< the old bytes can't be put back, or another program holds the journal for too long
};

/// Puts the old bytes back when a change of `file` was cut short; else nothing. Waits for a change under way
/// in another program.
Undone UndoUnfinished(const std::filesystem::path& file);

/// A change of the file is under way, or was cut short and could not be undone.
bool IsHalfChanged(const std::filesystem::path& file);

/// The file, whole, with no change in place while it is open: close it soon, and change nothing of it before.
/// Not open when there is none, then `*ok` is true, or when it can't be opened or made whole.
platform::FileHandle OpenToRead(const std::filesystem::path& file, bool* ok);

/// The file, whole and held against all others, to be written without a journal of its own; for a group whose
/// own journal covers it. Not open when there is none (`Missing`), or others hold it for too long.
platform::FileHandle OpenToChange(const std::filesystem::path& file);

/// While it lives no other program, nor this one, changes or replaces `file`; for one rewrite.
class SoleSaver {
 public:
  explicit SoleSaver(const std::filesystem::path& file);
  ~SoleSaver();
  SoleSaver(const SoleSaver&) = delete;
  SoleSaver& operator=(const SoleSaver&) = delete;
  bool Holds() const { return journal_.Open(); }  ///< false when another one had it for too long

 private:
  std::filesystem::path file_;
  platform::FileHandle journal_;
};

}  // namespace tipline
