#pragma once
// One routine for each kind of event. They read `game.scene`, `game.play` and the rest of `game`, and add
// lines to the buffer; with the short style of commentary (Brief) plays are told in a plain line each;
// openings, line-ups and timeouts stay as they are, without their remarks.
#include <span>

#include "narration/lines.h"

namespace tipline {

// Shots and the score.
/// A shot in `game.scene.PlayKind`, from the look to the result: setup, shot, block, make or miss, foul,
/// assist, lead, horn.
void DescribeShot();
/// A turn of the man with the ball, seldom told; also on the way to losing it.
void DescribeSpin();
void DescribeTip();             ///< of `game.play.Tipper`
void DescribeScoreSituation();  ///< runs, lead, lead changes, schemes, droughts
void DescribeHoldBall();
void DescribeNoShot();
std::span<const Family> ShotFamilies();

// Whistles and lost balls.
void DescribeFouledOnShot();  ///< called by the shot, in place of its result or behind it
void DescribeFoul();
void DescribeOffensiveFoul();
void DescribeDoubleFoul();
void DescribeLooseBallFoul();
void DescribeFlagrant();
void DescribeFreeThrow();
void DescribeTurnover();
void DescribeSteal();
void DescribeShotClockViolation();
void DescribeOutOfBounds();
void DescribeDelay();
void DescribeBegForCall();  ///< behind a miss
std::span<const Family> WhistleFamilies();

// The ball and the floor.
void DescribeMovement();      ///< the way of the ball up to the man of the play
void DescribePressTrouble();  ///< behind a ball lost against pressure
void DescribeInbound();
void DescribeMoveUp();
void DescribeRebound();
void DescribeTieUp();
void DescribeQuickPass();
void DescribeOpening();
void DescribeTimeout(int side, bool media);
void DescribeLineupChanges();
void DescribePeriodEnd();
std::span<const Family> FloorFamilies();

}  // namespace tipline
