#pragma once
// What the announcer works with: the lines of the present stop, and the play as it stood when it was decided.
// It is filled only while somebody listens; no result depends on it.
#include <string>
#include <vector>

#include "base/tables.h"
#include "engine/words.h"
#include "league/film_record.h"

namespace tipline {

inline constexpr int kPbpLines = 50;

/// A line of commentary. ".." is a pause.
struct PbpLine {
  std::string Text;
  int Side = 0;     ///< whose colours it takes, 0 none
  int Sound = 0;    ///< 0 none, 2 score, 7 free throw, 9 free throw made, 22 horn
  int Display = 0;  ///< cue of the court: 0 none, a floor position, 6 a shot in the air
  int SpokenKind = 0;
  std::string SpokenText;  ///< as the voice says it, up to 100 characters; "" when Text is said as it stands
  bool IsPause() const { return Text == ".."; }
};

struct CommentaryState {
  int PbpLineCount = 0;
  bool TellsPlay = false;  ///< the lines tell the play of the scene; else a timeout, an opening, an incident
  Table<PbpLine, 1, kPbpLines> Line;
  std::vector<FilmFrame> Film;  ///< up to 500 frames

  // Marks that keep a remark from being made twice.
  int NoShotSaid = 0, CantFoulSaid = 0, ForceScoreRemark = 0;
  int FreeThrowNo = 0, FreeThrowShooter = 0;  ///< the trip told last: its shots so far, and whose
  i32 FreeThrowClock = 0;                     ///< and when: no time passes in a trip
  bool FreeThrowStreakNote = false;           ///< a run at the line may be told
  int SloppyCount = 0;                        ///< 0 to 4
  int LastPerimeterSide = 0, LastPerimeterSlot = 0, LastPerimeterPosition = 0;  ///< of the last shot
  int ResultLine = 0;                         ///< first line of the shot's result, 0: nothing led up to it
  int BasketPeriod = 0, LeadChangesSaid = 0;  ///< period of the last basket; count told last
  tipline::PlayKind KindBefore;               ///< of the play told before
  Table2<int, 1, 2, 0, 30> ShotRun;           ///< [side][slot] baskets in a row, below 0 misses
  Table2<u8, 1, 2, 0, 30> VeteranSaid;        ///< [side][slot] 1 = his age was remarked on
  bool HolderOffBoard = false;                ///< by an offensive rebound
  int HolderSide = 0, Holder = 0;             ///< who has the ball, as it was told last; 0 nobody
  Table2<u8, 1, 2, 0, 30> BioSaid;            ///< [side][slot] 1 = his line of biography was given
  Table2<u8, 1, 2, 0, 30> DoubleSaid;         ///< [side][slot] 1 a double-double, 2 a triple-double was told
  Table<const void*, 0, 23> Recent;           ///< sayings used last, so that the next is another one
  int RecentCount = 0;
};

}  // namespace tipline
