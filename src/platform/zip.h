#pragma once
// Files packed into a zip archive, for mail programs that take nothing else.
#include <filesystem>
#include <memory>

namespace tipline::platform {

class Zip {
 public:
  virtual ~Zip() = default;
  /// Packs one file, under its bare name, into an archive made anew. False, with no archive left, when that
  /// failed.
  virtual bool Pack(const std::filesystem::path& file, const std::filesystem::path& archive) = 0;
};

/// The one in use; the default packs nothing.
Zip& zip();
/// Puts `zip` in use until the next call; nullptr puts the default back. It must outlive its use.
void UseZip(Zip* zip);

/// Packing with the zip library; nullptr where the program was built without it.
std::unique_ptr<Zip> LibraryZip();

}  // namespace tipline::platform
