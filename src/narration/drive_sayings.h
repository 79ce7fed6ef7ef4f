#pragma once
// Drives to the basket: the way there, the shot, the crowd.
#include "narration/shot_conditions.h"

namespace tipline {

// clang-format off
inline constexpr Saying kDriveMoves[] = {
    {"drives", nullptr, 20},
    {"drives to the basket", nullptr, 20},
    {"drives the lane", nullptr, 15},
    {"drives on {def}", nullptr, 15},
    {"drives left"},
    {"drives right"},
    {"drives the baseline"},
    {"takes it to the hole"},
    {"takes {def} off the dribble"},
    {"goes by {def}"},
    {"blows by {def}", nullptr, 5},
    {"crosses over on {def}", ModernDays},
    {"hesitates and goes"},
    {"goes behind the back", ModernDays, 5},
    {"beats {def} to the basket"},
    {"beats {def} baseline"},
    {"puts a move on {def}"},
    {"shakes {def}"},
    {"leaves {def} behind"},
    {"cuts to the basket"},
    {"cuts down the middle"},
    {"slices through the lane"},
    {"weaves through traffic"},
    {"uses the screen"},
    {"attacks the basket"},
    {"gets into the lane"},
    {"penetrates"},
    {"goes one on one with {def}"},
    {"knifes in"},
    {"bulls in on {def}", BigMan},
    {"#151"}, {"#153 {def}"}, {"#154"}, {"#155"}, {"#158 {def}"}, {"#163"},
};
inline constexpr Saying kDriveShots[] = {
    {"shoots on the drive", nullptr, 20},
    {"shoots on the move", nullptr, 15},
    {"with the running one hander"},
    {"with the running jumper"},
    {"shoots in the lane", nullptr, 15},
    {"pulls up and shoots", nullptr, 15},
    {"pulls up in the lane"},
    {"puts up the runner"},
    {"flips one up"},
    {"goes up in traffic"},
    {"goes up over {def}", Guarded},
    {"challenges {def}", Guarded},
    {"shoots among the trees"},
    {"tosses it up"},
    {"throws up a scoop shot"},
    {"twists and shoots"},
    {"shoots off balance"},
    {"goes up and under"},
    {"kisses it off the glass..", nullptr, 5},
    {"floats one up"},
    {"hurries one up", ShotClockLow, 30},
    {"has to force it", ShotClockLow, 30},
    {"#051"}, {"#052"}, {"#053"}, {"#054"}, {"#055", nullptr, 4}, {"#056"}, {"#057"}, {"#058"}, {"#156"},
    {"#157"}, {"#159"}, {"#160"}, {"#161"}, {"#162"}, {"#164"},
};
inline constexpr Saying kDriveFinishes[] = {
    {"in the face of {def}!", Guarded},
    {"nobody could stop him"},
    {"right by {def}", Guarded},
    {"{def} was left standing", Guarded},
    {"what a drive by {ball}!"},
    {"a beautiful move by {ball}"},
    {"pretty move"},
    {"great body control"},
    {"that's tough to defend"},
    {"took it right at {def}", Guarded},
    {"that brings the crowd to their feet!", HomeShot, 6},
    {"listen to this crowd!", HomeShot, 4},
};
inline constexpr Saying kDriveLetdowns[] = {
    {"{def} stayed with him", Guarded},
    {"nice defense by {def}", Guarded},
    {"he drove into a crowd"},
    {"tough shot on the move"},
    {"no whistle on that one"},
};
// A dunk over somebody.
inline constexpr Saying kPosters[] = {
    {"he posterized {def}!", ModernDays},
    {"in the face of {def}!"},
    {"right on top of {def}!"},
    {"{def} will be on that poster!", ModernDays},
    {"that brings the crowd to their feet!", HomeShot},
};
// clang-format on

inline constexpr Family kDriveMove{"DescribeDriveShot", kDriveMoves};
inline constexpr Family kDriveShot{"DescribeDriveShot", kDriveShots};
inline constexpr Family kDriveFinish{"DescribeDriveShot", kDriveFinishes};
inline constexpr Family kDriveLetdown{"DescribeDriveShot", kDriveLetdowns};
inline constexpr Family kPoster{"DescribeDriveShot", kPosters};

}  // namespace tipline
