#include "cli/book_commands.h"

#include <iostream>
#include <memory>

#include "aftermath/box_file.h"
#include "aftermath/box_text.h"
#include "aftermath/game_done.h"
#include "aftermath/play_log.h"
#include "base/record_file.h"
#include "cli/columns.h"
#include "cli/terminal.h"
#include "league/files.h"
#include "league/program.h"
#include "league/report_file.h"
#include "league/schedule.h"
#include "platform/mail.h"
#include "platform/zip.h"

namespace tipline::cli {
namespace {

constexpr std::size_t kShortestName = 4;  // of a box file

std::string GamesText(int games) {
  return games == 0   ? "no game has been played"
         : games == 1 ? "1 game has been played"
                      : Str(games) + " games have been played";
}

/// Name of the box of that game; empty, told, when there is none.
std::string BoxNameOf(const std::string& game) {
  const RecordFile scores(LeagueFile("SCORES"), kScheduleSlotBytes);
  const int games = scores.Count();
  const int n = game == "last" ? games : NumberIn<int>(game).value_or(0);
  if (n < 1 || n > games) {
    Refuse("there is no game " + game + ": " + GamesText(games));
    return "";
  }
  ScheduleRecord row;
  if (!WasRead(scores.Read(n, row), scores.Path())) return "";
  const std::string name = row.BoxFile.Str();
  if (name.size() >= kShortestName && name.find_first_of("/\\") == name.npos) return name;
  platform::RefusedWith("Box file is not available!");
  return "";
}

void PrintPlays() {
  Columns table({"Period", "<Clock", "<Team", "<Player", "<Action", "<Outcome", "<Score", "<Note"});
  for (int n = 1; n <= game.PlayLogCount; ++n) {
    const PlayText row = TextOf(game.PlayLog[n]);
    table.Row(
        {Str(row.Period), row.Clock, row.Abbrev, row.Name, row.Action, row.Outcome, row.Score, row.Note});
  }
  table.Print(std::cout, true);
}

std::string PageOf(const BoxRecord& box) {
  std::string page;
  for (int n = 1; n <= std::min<int>(box.BoxTextLines, kBoxLines); ++n) {
    const auto& bytes = box.BoxText[n].bytes;
    std::string line(bytes.begin(), bytes.end());
    line.erase(line.find_last_not_of(std::string_view(" \0", 2)) + 1);
    page += line + "\n";
  }
  return page;
}

/// As behind the game itself: the report file holds box and scoring list, the box is the current one.
int MailGame(const BoxRequest& request, const std::string& name, const std::string& page) {
  const auto mail = platform::DesktopMail();
  const auto zip = platform::LibraryZip();
  if (!mail) return Refuse("letters are sent with xdg-email, which is not installed");
  program.BoxFileName = name;
  if (!LoadBoxFile() || !WriteReport("BOXSCORE", page + ScoringPage())) return 1;
  program.GameKind = "L";
  platform::UseMail(mail.get());
  platform::UseZip(zip.get());
  const HCGAMEDONE screen;
  const bool sent = (!request.Mail || screen.SendBoxScoreCommand()) &&
                    (!request.Statistician || screen.StatisticianCommand());
  platform::UseMail(nullptr);
  platform::UseZip(nullptr);
  return sent ? 0 : 1;
}

}  // namespace

int ShowBox(const BoxRequest& request, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  const std::string name = BoxNameOf(request.Game);
  if (name.empty()) return 1;
  const auto box = std::make_unique<BoxRecord>();
  if (!ReadBox(LeagueFile(name), *box) || box->BoxTextMark != kBoxMark) {
    platform::RefusedWith("Box file is not available!");
    return 1;
  }
  const std::string page = PageOf(*box);
  if (request.Mail || request.Statistician) return MailGame(request, name, page);
  PrintPlain(std::cout, page);
  return 0;
}

int ShowLog(const std::string& number, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  program.BoxFileName = BoxNameOf(number);
  if (program.BoxFileName.empty() || !LoadBoxFile()) return 1;
  const bool kept = ReadPlayLog(PlayLogBeside(LeagueFile(program.BoxFileName)));
  if (common.Csv) {
    PrintPlays();
    return 0;
  }
  PrintPlain(std::cout, kept ? PlayLogPage() : "No play log was kept of this game.\n");
  std::cout << '\n';
  PrintPlain(std::cout, ScoringPage());
  return 0;
}

}  // namespace tipline::cli
