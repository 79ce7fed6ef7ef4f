#include "platform/folders.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tipline::platform {
namespace {

TEST(Folders, TheTreeLiesInTheDataHome) {
  using namespace std::string_view_literals;
  const struct {
    const char* why;
    std::string_view tree;
    const char* path;
  } cases[] = {
      {"the drive of the tree", "C:\\orvex-data\\Basketball\\", "/h/orvex-data/Basketball"},
      {"either slash, small letter, blanks of a text field", " c:/orvex-data\\A B   ", "/h/orvex-data/A B"},
      {"no drive", "seasons\\Demo", "/h/seasons/Demo"},
      {"another drive", "D:\\orvex-data", "/h/drive-d/orvex-data"},
      {"one up falls out", "C:\\..\\..\\etc\\.\\passwd", "/h/etc/passwd"},
      {"a root is none", "/etc/passwd", "/h/etc/passwd"},
      {"one up with blanks, which some systems drop", "C:\\.. \\x", "/h/x"},
      {"a zero byte can't cut the path", "C:\\a\\\0..\\b"sv, "/h/a/b"},
      {"a second drive is only a name", "C:\\D:\\x", "/h/D:/x"},
      {"nothing", "", "/h"},
  };
  for (const auto& c : cases) EXPECT_EQ(RealPath("/h", c.tree), c.path) << c.why;
}

TEST(Folders, TheDataHomeIsTheFirstThatIsNamed) {
  const struct {
    const char *given, *own, *data, *home, *path;
  } cases[] = {{"/a", "/b", "/c", "/d", "/a"},
               {"", "/b", "/c", "/d", "/b"},
               {"", "", "/c", "/d", "/c/tipline"},
               {"", "", "", "/d", "/d/.local/share/tipline"}};
  const std::string user = std::getenv("HOME") ? std::getenv("HOME") : "";
  for (const auto& c : cases) {
    ::setenv("TIPLINE_HOME", c.own, 1);
    ::setenv("XDG_DATA_HOME", c.data, 1);
    ::setenv("HOME", c.home, 1);
    EXPECT_EQ(DataHome(c.given), c.path);
  }
  ::unsetenv("TIPLINE_HOME");
  ::unsetenv("XDG_DATA_HOME");
  ::setenv("HOME", user.c_str(), 1);
}

}  // namespace
}  // namespace tipline::platform
