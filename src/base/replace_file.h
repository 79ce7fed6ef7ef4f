#pragma once
// A file replaced whole, in two halves: the new one is written beside it, then takes its place.
#include <filesystem>
#include <string_view>

namespace tipline {

/// Whether power loss may cost what was just written: a flush takes as long as a game.
enum class Saving { kFlushed, kUnflushed };

/// Writes `<path>.new`; only the one saver of `path` may. False, with nothing left of it, when that failed.
[[nodiscard]] bool WriteBeside(const std::filesystem::path& path, std::string_view bytes, Saving saving);
/// Renames it over `path`. False, with both as they were, when that failed.
[[nodiscard]] bool TakePlace(const std::filesystem::path& path);
/// Removes it unused.
void DropBeside(const std::filesystem::path& path);

}  // namespace tipline
