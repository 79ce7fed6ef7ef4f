#pragma once
// Files that a league's office keeps: address book and draft log. Each is read and written whole; what is not
// in the file reads as zeros.
#include <concepts>

#include "base/record.h"

namespace tipline {

/// Members of the league; slot 0 is not used.
struct AddressBook {
  static constexpr int kRecordSize = 7334;
  static constexpr int kOffset = 7334;  ///< the file holds two copies; the second one counts

  Table<u8, 0, 50> MemberUsed;
  Table<Text<70>, 0, 50> MemberName, MemberEmail;
  Table<u8, 0, 50> MemberAutoReport, MemberStatistician;
  u8 Reserved = 0;
  Text<40> LeagueName;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, AddressBook>
void Describe(Record& r, Visitor&& field) {
  field(0, "MemberUsed", r.MemberUsed, "1: the slot holds a member");
  field(51, "MemberName", r.MemberName, "name");
  field(3621, "MemberEmail", r.MemberEmail, "mail address");
  field(7191, "MemberAutoReport", r.MemberAutoReport, "1: game reports are sent to him by themselves");
  field(7242, "MemberStatistician", r.MemberStatistician, "1: he keeps the league's statistics");
  field(7293, "Reserved", r.Reserved, "not used");
  field(7294, "LeagueName", r.LeagueName, "the league's name for the reports");
}

/// Record 1 of DraftLog: how the draft goes.
struct DraftSettings {
  static constexpr int kRecordSize = 3611;

  Table<u8, 1, 2> Reserved0;
  u8 DisplayMode = 0;
  Table<u8, 1, 2> Reserved3;
  u8 DraftKind = 0, Rounds = 0, DraftStyle = 0, PauseAfter = 0, ListView = 0, Reserved10 = 0;
  Table<u8, 1, 720> GeneralManager, PrefScoring, PrefRebounding, PrefPassing, PrefDefense;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, DraftSettings>
void Describe(Record& r, Visitor&& field) {
  field(0, "Reserved0", r.Reserved0, "not used");
  field(2, "DisplayMode", r.DisplayMode, "view of the list of players, 1 to 4");
  field(3, "Reserved3", r.Reserved3, "not used");
  field(5, "DraftKind", r.DraftKind, "1 manual, 2 round by round");
  field(6, "Rounds", r.Rounds, "rounds, 1 to 15");
  field(7, "DraftStyle", r.DraftStyle, "1 the order turns round in even rounds, 2 the same order always");
  field(8, "PauseAfter", r.PauseAfter, "1 after each pick, 2 after each round, 3 after the draft");
  field(9, "ListView", r.ListView, "0 basic, 1 per 48 minutes, 2 ratings, 3 statistics");
  field(10, "Reserved10", r.Reserved10, "not used");
  field(11, "GeneralManager", r.GeneralManager, "by team: 0 human, 1 computer");
  field(731, "PrefScoring", r.PrefScoring, "what the team's manager looks for: scoring");
  field(1451, "PrefRebounding", r.PrefRebounding, "rebounding");
  field(2171, "PrefPassing", r.PrefPassing, "passing");
  field(2891, "PrefDefense", r.PrefDefense, "defense");
}

/// Record 2 of DraftLog: the selections in their order.
struct DraftSelections {
  static constexpr int kRecordSize = 32000;

  Table<i16, 1, 8000> LogTeam, LogPlayer;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, DraftSelections>
void Describe(Record& r, Visitor&& field) {
  field(0, "LogTeam", r.LogTeam, "team of the n-th selection, 0 from the first free entry on");
  field(16000, "LogPlayer", r.LogPlayer, "RecNo of the man it took");
}

struct DraftLog {
  DraftSettings settings;
  DraftSelections selections;
};

void LoadAddressBook(AddressBook& book);
/// False, after telling the user, when the file could not be written; so the next.
bool SaveAddressBook(const AddressBook& book);
void LoadDraftLog(DraftLog& log);
bool SaveDraftLog(const DraftLog& log);

/// The lines of SCORES, one per game played in the order of play, into `league.Scores`; at most 20000. False,
/// told, when the file can't be read. A league without a folder keeps those it has.
bool LoadScores();
/// Writes them over the file.
bool SaveScores();

}  // namespace tipline
