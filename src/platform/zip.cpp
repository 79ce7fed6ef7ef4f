#include "platform/zip.h"

#ifdef TIPLINE_HAS_ZIP
#include <zip.h>
#endif

namespace tipline::platform {
namespace {

class NoZip : public Zip {
 public:
  bool Pack(const std::filesystem::path&, const std::filesystem::path&) override { return false; }
};

NoZip noZip;
Zip* inUse = &noZip;

#ifdef TIPLINE_HAS_ZIP
class LibZip : public Zip {
 public:
  bool Pack(const std::filesystem::path& file, const std::filesystem::path& archive) override {
    zip_t* out = zip_open(archive.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    if (!out) return false;
    zip_source_t* from = zip_source_file(out, file.c_str(), 0, -1);
    const std::string name = file.filename().string();
    bool packed = from && zip_file_add(out, name.c_str(), from, ZIP_FL_ENC_UTF_8) >= 0;
    if (from && !packed) zip_source_free(from);
    packed = packed && zip_close(out) == 0;
    if (!packed) {
      zip_discard(out);
      std::error_code ignored;
      std::filesystem::remove(archive, ignored);
    }
    return packed;
  }
};
#endif

}  // namespace

Zip& zip() { return *inUse; }
void UseZip(Zip* zip) { inUse = zip ? zip : &noZip; }

std::unique_ptr<Zip> LibraryZip() {
#ifdef TIPLINE_HAS_ZIP
  return std::make_unique<LibZip>();
#else
  return nullptr;
#endif
}

}  // namespace tipline::platform
