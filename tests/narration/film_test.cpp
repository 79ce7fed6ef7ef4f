#include "narration/film.h"

#include <gtest/gtest.h>

#include "base/record_file.h"
#include "engine/game_state.h"
#include "harness/temporary_home.h"
#include "league/program.h"
#include "narration/film_viewer.h"
#include "narration/lines.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

TEST(Films, KeepWhatWasTold) {
  TemporaryHome home;
  platform::ScriptedDialogs dialogs;
  game = {};
  program.LeagueFolder = program.Home;
  for (int play = 1; play <= 502; ++play) {
    game.side[1].Score = play;
    game.commentary.PbpLineCount = 0;
    for (int n = 1; n <= (play == 2 ? 31 : 1); ++n) NewLine(n == 1 ? std::string(61, 'x') : "y");
    if (play == 3) PauseLine();
    AddFilmFrames();
  }
  ASSERT_TRUE(WriteWholeFile(program.Home / "a.FLM", std::string(3'000'000, 'z')));
  ASSERT_TRUE(SaveFilm(program.Home / "a.FLM"));
  EXPECT_EQ(std::filesystem::file_size(program.Home / "a.FLM"), 1'000'000u)
      << "nothing of a longer one stays";
  EXPECT_EQ(HCGameFilmsList().Files, std::vector<std::string>{"a.FLM"});
  HCFILM screen;
  ASSERT_TRUE(screen.Open("a.FLM"));
  EXPECT_EQ(screen.PlaceLabel(), "1 of 500");
  screen.PreviousCommand();
  EXPECT_EQ(screen.ShowPlay(), std::vector<std::string>{std::string(60, 'x')});
  screen.Scroll(3);
  EXPECT_EQ(screen.ShowPlay(), std::vector<std::string>{"y"}) << "the 31st line of the second play";
  screen.NextCommand();
  EXPECT_EQ(screen.ShowPlay().size(), 1u) << "a pause is no line";
  screen.LastCommand();
  screen.NextCommand();
  EXPECT_EQ(screen.Frame().FilmScore[1], 255) << "the last frame is the last play";
}

TEST(Films, OfTheFirstKindAreRead) {
  TemporaryHome home;
  platform::ScriptedDialogs dialogs;
  OldFilmFrame old;
  old.FilmMark = kFilmMark, old.FilmLineCount = 99, old.FilmLine[20] = "end";
  ASSERT_TRUE(RecordFile(program.Home / "b.flm", kOldFilmSlotBytes).Write(1, old));
  const Film film = ReadFilm(program.Home / "b.flm");
  ASSERT_TRUE(film.old && film.frames.size() == 1);
  EXPECT_EQ(film.frames[0].FilmLineCount, 20);
  EXPECT_EQ(film.frames[0].FilmLine[20], "end");
  EXPECT_TRUE(ReadFilm(program.Home / "none.flm").frames.empty());
  EXPECT_EQ(dialogs.told.size(), 1u);
}

}  // namespace
}  // namespace tipline
