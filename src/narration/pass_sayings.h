#pragma once
// How the ball gets from the backcourt to the man of the play: {who} gives, {other} takes.
#include "narration/floor_talk.h"
#include "narration/shot_conditions.h"

namespace tipline::floor_talk {

// clang-format off
inline constexpr Saying kPassWordSayings[] = {
    {"passes to", nullptr, 25}, {"swings it to"}, {"throws a touch pass to", nullptr, 4}, {"zips it to"},
    {"throws it to"}, {"fires it to"}, {"bounces it to"}, {"moves it to"}, {"flips it to"}, {"hands it to", nullptr, 4},
    {"sends it to"}, {"works it to"}, {"snaps it to"}, {"gets it to"}, {"shovels it to", nullptr, 4},
    {"relays it to", nullptr, 4}, {"rifles it to"}, {"slides it to"}, {"throws a bounce pass to"}, {"goes to"}};

inline constexpr Saying kPassSayings[] = {
    {"{who} {word} {other}", nullptr, 120},
    {"{who} passes to {other}", nullptr, 12},
    {"{who} dishes to {other}"},
    {"{who} gives to {other}"},
    {"{who} #027 {other}"},
    {"{who} #028 {other}"},
    {"{who} #029 {other}"},
    {"{who} #035 {other}"},
    {"{who} looks, then gives to {other}", nullptr, 6},
    {"{who} spots {other}", nullptr, 6},
    {"{who} stops, gives to {other}", nullptr, 4},
    {"{other} is open, {who} sees it", nullptr, 3},
    {"pass from {who} to {other}", nullptr, 5}};

// The giver has just been named.
inline constexpr Saying kPassOnSayings[] = {
    {"{word} {other}", nullptr, 40}, {"to {other}"}, {"over to {other}"}, {"on to {other}", nullptr, 5},
    {"and over to {other}", nullptr, 5}, {"now {other}", nullptr, 6}, {"now to {other}", nullptr, 6},
    {"across to {other}", nullptr, 5}, {"{other} has it now", nullptr, 5}, {"gives to {other}"}, {"dishes to {other}"}};

inline constexpr Saying kPassBackSayings[] = {
    {"back to {other}", nullptr, 30}, {"{who} gives it back to {other}"}, {"right back to {other}"},
    {"{who} returns it to {other}"}, {"give and go, {other} has it back", nullptr, 5}};

inline constexpr Saying kFeedInsideSayings[] = {
    {"{who} #031 {other}", nullptr, 20},
    {"{who} with the entry pass to {other}"},
    {"{who} drops it down to {other}"},
    {"{who} dumps it in to {other}"},
    {"{who} works it inside to {other}"},
    {"{who} feeds {other} in the post"},
    {"{who} throws it over the top to {other}", nullptr, 5},
    {"entry pass to {other}"},
    {"inside to {other}"}};

inline constexpr Saying kFeedOutsideSayings[] = {
    {"{who} #030 {other}", nullptr, 20},
    {"{who} finds {other} outside"},
    {"{who} finds {other} on the perimeter"},
    {"{who} swings it around to {other}"},
    {"{who} with the skip pass to {other}"},
    {"{who} throws it cross court to {other}"},
    {"{who} draws two and dishes to {other}", nullptr, 5},
    {"out to {other}"}};

inline constexpr Saying kLobSayings[] = {
    {"{who} #032 {other}", nullptr, 20},
    {"{who} #034 {other}", nullptr, 20},
    {"{who} throws it at the rim for {other}"},
    {"{who} lobs it over the defense to {other}"}};

inline constexpr Saying kExtraPassSayings[] = {
    {"{who} with the extra pass to {other}", nullptr, 20},
    {"{who} passes up the shot, gives to {other}", nullptr, 15},
    {"{who} had a look, but gives it to {other}"},
    {"the extra pass to {other}"}};

inline constexpr Saying kPassFirstSayings[] = {
    {"{who} can't shake loose, gives to {other}"},
    {"{who} is covered, gives to {other}"},
    {"{who} gives it up to {other}"}};

inline constexpr Saying kScreenSayings[] = {
    {"{other} #036 {who}", nullptr, 20},
    {"{other} #038 {who}", nullptr, 20},
    {"{who} sets the screen for {other}"},
    {"{other} around the pick by {who}"}};
inline constexpr Saying kRollSayings[] = {
    {"{other} #039", FromPost, 20},
    {"{other} #040", [] { return !FromPost(); }, 20},
    {"{other} slips the pick, {who} sees it", nullptr},
    {"{who} off the pick, over to {other}"},
    {"pick and roll, {who} to {other}", FromPost}};

inline constexpr Saying kBringUpSayings[] = {
    {"{who} brings it up"}, {"{who} brings the ball up"}, {"{who} bringing it up"}, {"{who} takes it into the frontcourt"},
    {"{who} dribbles into the frontcourt"}, {"{who} bringing the ball up"}, {"{who} #001"}, {"{who} #002"}, {"{who} #003"},
    {"{who} #004"}, {"here comes {who}", nullptr, 5}, {"{who} across midcourt"}};
inline constexpr Saying kBeatPressSayings[] = {
    {"{who} trying to beat the {word}"}, {"{who} working against the {word}"}, {"{who} against the {word}"},
    {"{who} struggling to beat the {word}", nullptr, 5}, {"{who} struggling against the {word}", nullptr, 5},
    {"{opp} has #043", PressOn, 5}, {"{who} #044", TrapOn}};
inline constexpr Saying kPressTroubleSayings[] = {{"{team} is having trouble"}, {"it's giving {team} problems"}};

inline constexpr Saying kBallHolderSayings[] = {
    {"{who} with the ball", nullptr, 20}, {"{who} #005"}, {"{who} #021", FromPost}, {"{who} #022"}, {"{who} #023"},
    {"{who} #045"}, {"{who} has it out on top", nullptr, 5}, {"it's in the hands of {who}", nullptr, 4}};

inline constexpr Saying kDribbleMoveSayings[] = {
    {"{who} dribbles outside", [] { return !FromPost(); }},
    {"{who} dribbles left"}, {"{who} dribbles right"},
    {"{who} is looking to make a play"},
    {"{who} #024", [] { return !FromPost(); }, 5}, {"{who} #046", FromPost}, {"{who} #047"},
    {"{who} #048", [] { return !FromPost(); }, 5}, {"{who} #049"},
    {"{who} works against {def}"}, {"{who} is cut off by {def}", nullptr, 5}};
// Behind a line that has named him.
inline constexpr Saying kMoreDribbleSayings[] = {
    {"he dribbles back"}, {"he steps back", [] { return !FromPost(); }}, {"he's looking to make a play"},
    {"dribbles left"}, {"dribbles right"}, {"cut off by {def}"}, {"{def} cuts him off", nullptr, 5}, {"he bumps {def}, no call!", nullptr, 2},
    {"he dribbles outside", [] { return !FromPost(); }}, {"he waits for a screen", nullptr, 4}};

inline constexpr Saying kLooseBallSayings[] = {
    {"he lost the ball"}, {"the ball is loose"}, {"the ball is on the floor"}, {"loose ball"}};
inline constexpr Saying kRecoveredSayings[] = {{"but {who} recovered it"}, {"but {who} got it back"}};

inline constexpr Saying kPerimeterSayings[] = {{"outside"}, {"on the perimeter"}};

inline constexpr Saying kQuickPassSayings[] = {
    {"{who} passes to {other}", nullptr, 20}, {"{who} bounces it to {other}"}, {"{who} gets it to {other}"},
    {"{who} bounces to {other}"}, {"{who} over to {other}"}, {"{who} #028 {other}"}, {"{who} {word} {other}", nullptr, 40}};

inline constexpr Saying kKickOutSayings[] = {
    {"he kicks it to {other}"}, {"he flips it to {other}"}, {"he passes to {other}"},
    {"and he passes it back out to {other}", ForMen}, {"{who} kicks it out to {other}"}};
inline constexpr Saying kResetSayings[] = {
    {"{who} will reset"}, {"they'll reset the offense"}, {"{who} resets the offense"}, {"{team} resets the offense", nullptr, 4}};
// clang-format on

inline constexpr Family kPassWord{"PassWord", kPassWordSayings};
inline constexpr Family kPass{"DescribePass", kPassSayings};
inline constexpr Family kPassOn{"DescribePass on", kPassOnSayings};
inline constexpr Family kPassBack{"DescribePass back", kPassBackSayings};
inline constexpr Family kFeedInside{"DescribePass inside", kFeedInsideSayings};
inline constexpr Family kFeedOutside{"DescribePass outside", kFeedOutsideSayings};
inline constexpr Family kLob{"DescribePass lob", kLobSayings};
inline constexpr Family kExtraPass{"DescribePass extra", kExtraPassSayings};
inline constexpr Family kPassFirst{"DescribePass first", kPassFirstSayings};
inline constexpr Family kScreen{"DescribePass screen", kScreenSayings};
inline constexpr Family kRoll{"DescribePass roll", kRollSayings};
inline constexpr Family kBringUp{"DescribeBringUp", kBringUpSayings};
inline constexpr Family kBeatPress{"DescribeBringUp press", kBeatPressSayings};
inline constexpr Family kPressTrouble{"DescribePressTrouble", kPressTroubleSayings};
inline constexpr Family kBallHolder{"DescribeBallHolder", kBallHolderSayings};
inline constexpr Family kDribbleMove{"DescribeDribbleMove", kDribbleMoveSayings};
inline constexpr Family kMoreDribble{"DescribeDribbleMove more", kMoreDribbleSayings};
inline constexpr Family kLooseBall{"DescribeLooseBall", kLooseBallSayings};
inline constexpr Family kRecovered{"DescribeRecovered", kRecoveredSayings};
inline constexpr Family kPerimeter{"DescribePerimeter", kPerimeterSayings};
inline constexpr Family kQuickPass{"DescribeQuickPass", kQuickPassSayings};
inline constexpr Family kKickOut{"DescribeKickOut", kKickOutSayings};
inline constexpr Family kReset{"DescribeKickOut reset", kResetSayings};

}  // namespace tipline::floor_talk
