#pragma once
// The screen that opens behind a finished game: its result, its reports, and what is mailed of it.
#include <filesystem>
#include <string>

#include "base/tables.h"
#include "base/types.h"
#include "league/office_files.h"

namespace tipline {

/// Behind a game that was looked at: its snapshot becomes the current box, and the report file holds its box
/// with the list of all scores, as HCGAMEDONE takes them.
void LeaveGameScreen();

/// Opened on the game in `game`; it changes nothing of the league's.
struct HCGAMEDONE {
  struct Team {
    std::string Name;
    int Score = 0;
    i32 ForeColor = 0, BackColor = 0;  ///< 24-bit values 0x00BBGGRR; the home team in its home colours
  };
  Table<Team, 1, 2> Teams;
  std::string MvpLabel;            ///< "Game MVP", empty when nobody is
  std::string MvpName;             ///< first and last name
  std::filesystem::path MvpPhoto;  ///< his photo, or the one of his position where his own is missing
  bool StatisticianFrame = false;  ///< the league has an address book
  bool MailFrame = false;
  bool MailCommands = false;  ///< not for a game that is kept nowhere
  bool GameFilmEnabled = false;

  HCGAMEDONE();

  /// The box with the list of all scores behind it.
  std::string ScoringCommand() const;
  std::string Command2() const { return ScoringCommand(); }
  /// Writes the play log to the report file and gives it back; empty, told, when that failed.
  std::string Command3() const;
  /// The film of the game; an empty path while there is none to be opened.
  std::filesystem::path GameFilmCommand() const;
  /// Mails the report file to the members who get game reports by themselves. False, told, when nobody is to
  /// get it or it could not be sent.
  bool SendBoxScoreCommand() const;
  /// Mails the game file, zipped, to the league's statisticians. It stays in the league folder. False, told,
  /// when there is none or it could not be made or sent.
  bool StatisticianCommand() const;

 private:
  AddressBook book_;
};

}  // namespace tipline
