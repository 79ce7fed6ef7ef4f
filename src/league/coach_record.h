#pragma once
// One slot of HCgameplan: rotations, game plans and presentation of one team. Slots are 15000 bytes.
#include <concepts>
#include <type_traits>

#include "base/record.h"

namespace tipline {

struct CoachRecord {
  static constexpr int kRecordSize = 13607;

  i16 PlanVersion = 0, TeamNo = 0;
  Table<u8, 1, 30> SavedStatus;
  Table<i16, 0, 10> PlanOpponent;
  Table3<u8, 1, 5, 1, 20, 1, 5> RotationByRank;
  Table2<u8, 1, 5, 1, 6> DepthChart;
  Table2<u8, 1, 30, 1, 5> SavedShotSelection;
  Table<u8, 0, 10> OffAdjust1, OffAdjust2, OffAdjust3, OffAdjust4, OffAdjust5, OffAdjust6, DefAdjust1;
  Table<u8, 0, 10> DefAdjust2, DefAdjust3, DefAdjust4, Coverage1, Coverage2, Coverage3, Coverage4;
  Table<u8, 0, 10> Coverage5;
  Table2<u8, 0, 10, 1, 30> DefendInside, DefendOutside, DefendThree, DoubleInside, DoubleOutside;
  Table2<u8, 0, 10, 1, 30> DoubleThree, DefendUsage;
  Table<u8, 0, 10> DefAdjust5;
  Table2<u8, 1, 10, 1, 30> SavedRotationOrder;
  u8 DefaultsMark = 0;
  Table2<u8, 1, 30, 1, 5> SavedPositionAllowed;
  Table<u8, 1, 30> SavedOnlyBlowouts, SavedNeverBlowouts, SavedTargetMinutes;
  Table<u8, 0, 10> DefAdjust6;
  u8 DefAdjust6Mark = 0;
  Table<u8, 1, 30> SavedNeverBlowouts2, SavedDontPlayCrunch, SavedDontPlayTired;
  u8 ComputerMatchupMark = 0, ComputerMatchups = 0, PaceMark = 0, OverallPace = 0, CoachPhotoMark = 0;
  Text<40> CoachPhoto;
  u8 UniformMark = 0;
  Table<Text<50>, 1, 2> UniformFiles;
  u8 DailyMark = 0, UseDailyInactive = 0, DailyLineupMode = 0;
  Table2<i16, 1, 30, 1, 100> SavedDailyDates;
  u8 ColorNameMark = 0;
  Table<Text<3>, 1, 3> ColorNames;
  u8 FightSongMark = 0;
  Text<50> FightSong;
  u8 SoundListMark = 0;
  Table<Text<50>, 0, 9> OrganMusic, TimeoutMusic, DefenseChant;
  u8 FontMark = 0;
  Text<30> TeamFont;
  Text<1000> Spare1, Spare2;
};

template <class Record, class Visitor>
requires std::same_as<std::remove_const_t<Record>, CoachRecord>
void Describe(Record& r, Visitor&& field) {
  field(0, "PlanVersion", r.PlanVersion, "120 for a team of Year 2020 or later, 123 otherwise");
  field(2, "TeamNo", r.TeamNo, "team number of this record; rewritten on each save");
  field(4, "SavedStatus", r.SavedStatus, "Status of each player slot at the last save");
  field(34, "PlanOpponent", r.PlanOpponent,
        "opponent of each plan; index 0, the general plan, stays 0; 0 else: plan not used");
  field(56, "RotationByRank", r.RotationByRank,
        "rotation grid by (position, minute, period): the player slot that stands there");
  field(556, "DepthChart", r.DepthChart,
        "depth chart by (position, rank 1 first choice to 6): the player slot");
  field(586, "SavedShotSelection", r.SavedShotSelection, "ShotSelection of each player slot");
  field(736, "OffAdjust1", r.OffAdjust1, "slider by plan, 0 least to 4 most, 2 neutral: cover off");
  field(747, "OffAdjust2", r.OffAdjust2, "slider: cover loose");
  field(758, "OffAdjust3", r.OffAdjust3, "slider: cover tight");
  field(769, "OffAdjust4", r.OffAdjust4, "slider: deny");
  field(780, "OffAdjust5", r.OffAdjust5, "slider: foul");
  field(791, "OffAdjust6", r.OffAdjust6, "slider: press and trap");
  field(802, "DefAdjust1", r.DefAdjust1, "slider: inside help");
  field(813, "DefAdjust2", r.DefAdjust2, "slider: outside help");
  field(824, "DefAdjust3", r.DefAdjust3, "slider: use zones");
  field(835, "DefAdjust4", r.DefAdjust4, "slider: double");
  field(846, "Coverage1", r.Coverage1, "slider: fast break");
  field(857, "Coverage2", r.Coverage2, "slider: drive");
  field(868, "Coverage3", r.Coverage3, "slider: inside");
  field(879, "Coverage4", r.Coverage4, "slider: outside");
  field(890, "Coverage5", r.Coverage5, "slider: three");
  field(901, "DefendInside", r.DefendInside,
        "how each man of the opponent is covered inside, by (plan, slot): 1 off, 2 loose, 3 normal, 4 tight, "
        "5 deny, 6 foul");
  field(1231, "DefendOutside", r.DefendOutside, "the same, outside");
  field(1561, "DefendThree", r.DefendThree, "the same, beyond the three-point line");
  field(1891, "DoubleInside", r.DoubleInside, "1: the man is doubled inside, by (plan, slot)");
  field(2221, "DoubleOutside", r.DoubleOutside, "the same, outside");
  field(2551, "DoubleThree", r.DoubleThree, "the same, beyond the three-point line");
  field(2881, "DefendUsage", r.DefendUsage,
        "share of plays on which the coverage applies: 0 to 3 for 25 to 100 per cent");
  field(3211, "DefAdjust5", r.DefAdjust5, "slider: crash boards on offense");
  field(3222, "SavedRotationOrder", r.SavedRotationOrder, "RotationOrder of each player slot");
  field(3522, "DefaultsMark", r.DefaultsMark,
        "marker 99: Coverage1..Coverage5 have been set to 2 for all plans");
  field(3523, "SavedPositionAllowed", r.SavedPositionAllowed, "PositionAllowed of each player slot");
  field(3673, "SavedOnlyBlowouts", r.SavedOnlyBlowouts, "OnlyPlayInBlowouts of each player slot");
  field(3703, "SavedNeverBlowouts", r.SavedNeverBlowouts, "NeverPlayInBlowouts of each player slot");
  field(3733, "SavedTargetMinutes", r.SavedTargetMinutes, "TargetMinutes of each player slot");
  field(3763, "DefAdjust6", r.DefAdjust6, "slider: crash boards on defense");
  field(3774, "DefAdjust6Mark", r.DefAdjust6Mark,
        "marker 99: DefAdjust6 has been set to 2 for plans 1 to 10");
  field(3775, "SavedNeverBlowouts2", r.SavedNeverBlowouts2,
        "NeverPlayInBlowouts again, where the later layout reads it");
  field(3805, "SavedDontPlayCrunch", r.SavedDontPlayCrunch, "DontPlayCrunchTime of each player slot");
  field(3835, "SavedDontPlayTired", r.SavedDontPlayTired, "DontPlayWhenTired of each player slot");
  field(3865, "ComputerMatchupMark", r.ComputerMatchupMark, "marker 11: ComputerMatchups has been cleared");
  field(3866, "ComputerMatchups", r.ComputerMatchups, "1: the computer sets the matchups of this team");
  field(3867, "PaceMark", r.PaceMark, "marker 99: OverallPace has been set");
  field(3868, "OverallPace", r.OverallPace, "0 'Very Slow', 1 'Slow', 2 'Average', 3 'Fast', 4 'Very Fast'");
  field(3869, "CoachPhotoMark", r.CoachPhotoMark, "marker 99: CoachPhoto has been set to <CoachName>.jpg");
  field(3870, "CoachPhoto", r.CoachPhoto, "coach photo file");
  field(3910, "UniformMark", r.UniformMark, "marker 99: UniformFiles have been set");
  field(3911, "UniformFiles", r.UniformFiles,
        "uniform images: index 1 road, 2 home; default Uni-Road-<City>.jpg, Uni-Home-<City>.jpg");
  field(4011, "DailyMark", r.DailyMark, "marker 99: the two daily settings have been set (0 and 1)");
  field(4012, "UseDailyInactive", r.UseDailyInactive, "1: the dates of HcDaily decide who sits out");
  field(4013, "DailyLineupMode", r.DailyLineupMode, "1: the computer manager may activate players as needed");
  field(4014, "SavedDailyDates", r.SavedDailyDates, "HcDaily dates by (player slot, entry), for export");
  field(10014, "ColorNameMark", r.ColorNameMark, "marker 99: ColorNames have been cleared");
  field(10015, "ColorNames", r.ColorNames, "three short codes of sounds or colours of the team");
  field(10024, "FightSongMark", r.FightSongMark, "marker 199: FightSong has been checked");
  field(10025, "FightSong", r.FightSong, "fight song file; 'NONE' for none");
  field(10075, "SoundListMark", r.SoundListMark, "marker 222: the three sound lists have been filled");
  field(10076, "OrganMusic", r.OrganMusic, "ten files of organ music");
  field(10576, "TimeoutMusic", r.TimeoutMusic, "ten files of time-out music");
  field(11076, "DefenseChant", r.DefenseChant, "ten files of defence chants");
  field(11576, "FontMark", r.FontMark, "marker 99: TeamFont has been set to 'Arial'");
  field(11577, "TeamFont", r.TeamFont, "font name of the team's screens");
  field(11607, "Spare1", r.Spare1, "not read");
  field(12607, "Spare2", r.Spare2, "not read");
}

}  // namespace tipline
