#include "aftermath/game_done.h"

#include <vector>

#include "aftermath/box_file.h"
#include "aftermath/box_text.h"
#include "base/calendar.h"
#include "base/record_file.h"
#include "engine/game_state.h"
#include "league/files.h"
#include "league/program.h"
#include "league/report_file.h"
#include "platform/dialogs.h"
#include "platform/mail.h"
#include "platform/zip.h"

namespace tipline {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kSmallestFilm = 1000;  // a shorter file shows nothing

fs::path PhotoOf(const PlayerRecord& man) {
  std::error_code error;
  const fs::path own = league.PhotoFolder / man.PhotoFile.Str();
  if (!man.PhotoFile.Empty() && fs::is_regular_file(own, error)) return own;
  const int position = man.PrimaryPosition;
  if (position < 1 || position > kPositions) return {};
  return league.PhotoFolder / (league.PositionLabel[position] + ".jpg");
}

/// Addresses of the members who want(k).
template <class Want>
std::vector<std::string> Addresses(const AddressBook& book, Want want) {
  std::vector<std::string> to;
  for (int k = 1; k <= 50; ++k) {
    if (!book.MemberEmail[k].Empty() && want(k)) to.push_back(book.MemberEmail[k].Str());
  }
  return to;
}

std::string InFileName(std::string name) {
  std::erase_if(name, [](char c) { return c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' '; });
  return name;
}

/// "Atlanta 101  Miami 99 11-5".
std::string GameName() {
  const auto team = [](int side) {
    return InFileName(game.team[side].City.Str()) + " " + std::to_string(game.side[side].Score);
  };
  const int month = CalendarMonth(Clamp(game.GameMonth, 1, 12));
  return team(2) + "  " + team(1) + " " + std::to_string(month) + "-" + std::to_string(game.GameDay);
}

/// The stored game under its own name, packed; an empty path, told, when that failed.
fs::path PackGame(const std::string& name) {
  bool read = false;
  const fs::path box = LeagueFile(program.BoxFileName), file = LeagueFile(name + ".hcx");
  const std::string bytes = ReadWholeFile(box, &read);
  if (!WasRead(read, box) || !Written(WriteWholeFile(file, bytes), file)) return {};
  const fs::path archive = LeagueFile(name + ".zip");
  return Written(platform::zip().Pack(file, archive), archive) ? archive : fs::path();
}

}  // namespace

void LeaveGameScreen() {
  if (program.LeagueFolder.empty() || program.TwoFolderGame) return;
  program.BoxFileName = "TempBox";
  (void)WriteBoxText();
  (void)SaveBoxFile();
  (void)WriteReport("BOXSCORE", BoxPage() + ScoringPage());
}

HCGAMEDONE::HCGAMEDONE() {
  for (int s = 1; s <= 2; ++s) {
    const TeamRecord& team = game.team[s];
    Teams[s].Name = TeamName(team);
    Teams[s].Score = game.side[s].Score;
    Teams[s].ForeColor = s == 2 ? team.HomeForeColor : team.RoadForeColor;
    Teams[s].BackColor = s == 2 ? team.HomeBackColor : team.RoadBackColor;
  }
  if (game.MvpSide > 0 && game.MvpSlot > 0) {
    const PlayerRecord& best = PlayerAt(game.MvpSide, game.MvpSlot);
    MvpLabel = "Game MVP";
    MvpName = best.FirstName.Str() + " " + best.LastName.Str();
    MvpPhoto = PhotoOf(best);
  }
  LoadAddressBook(book_);
  StatisticianFrame = MailFrame = RecordFile(LeagueFile("HCADDRESSBOOK"), 1).Bytes() > 0;
  MailCommands = program.GameKind != "E";
  GameFilmEnabled = !GameFilmCommand().empty();
}

std::string HCGAMEDONE::ScoringCommand() const { return BoxPage() + ScoringPage(); }

std::string HCGAMEDONE::Command3() const { return WritePlayLogText() ? PlayLogPage() : ""; }

fs::path HCGAMEDONE::GameFilmCommand() const {
  if (program.GameKind == "E" || program.LastFilmFile.empty()) return {};
  const fs::path film = LeagueFile(program.LastFilmFile);
  std::error_code error;
  const auto bytes = fs::file_size(film, error);
  return !error && bytes > kSmallestFilm ? film : fs::path();
}

bool HCGAMEDONE::SendBoxScoreCommand() const {
  if (!MailCommands) return false;
  platform::Letter letter;
  letter.To = Addresses(book_, [this](int k) { return book_.MemberAutoReport[k] == 1; });
  letter.Subject = TeamName(game.team[1]) + " at " + TeamName(game.team[2]);
  bool read = false;
  letter.Body = ReadWholeFile(ReportFile(), &read);
  const bool sent = read && !letter.To.empty() && platform::mail().Send(letter);
  return sent || platform::RefusedWith("Unable to send boxscore!");
}

bool HCGAMEDONE::StatisticianCommand() const {
  if (!MailCommands) return false;
  platform::Letter letter;
  letter.To = Addresses(
      book_, [this](int k) { return book_.MemberStatistician[k] == 1 && !book_.MemberName[k].Empty(); });
  if (letter.To.empty()) {
    return platform::RefusedWith("You must specify a statistician in your league address book!");
  }
  const std::string name = GameName();
  letter.Attachment = PackGame(name);
  if (letter.Attachment.empty()) return false;
  letter.Subject = name + " .hcx game file";
  letter.Body = "Attached please find the following .hcx file in zipped format:";
  return platform::mail().Send(letter) || platform::RefusedWith("Unable to send the game file!");
}

}  // namespace tipline
