#pragma once
// Changes of a file in place that can't be torn: what stood there before is kept in a file beside it
// (`<file>.undo`) until the change is whole. Whoever finds that file first puts the old bytes back.
// A killed program, a full disk and a second program at the same file are covered. Power loss is, but for the
// slots of the last seconds: a flush of both files would cost a league game a tenth of a second.
#include <filesystem>
#include <span>
#include <vector>

#include "base/types.h"

namespace tipline {

struct FilePiece {
  long long offset = 0;
  std::vector<u8> bytes;
};

/// Writes all pieces, and lengthens the file with zeros to `length` bytes where it is shorter; the file is
/// made when it is missing. False when that failed: the file is then as it was.
[[nodiscard]] bool ChangeInPlace(const std::filesystem::path& file, std::span<const FilePiece> pieces,
                                 long long length);

/// Puts the old bytes back when a change of `file` was cut short; else nothing. Waits for a change under way
/// in another program.
void UndoUnfinished(const std::filesystem::path& file);

}  // namespace tipline
