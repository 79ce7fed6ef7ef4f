#pragma once
// What is said behind a whistle: the count, the call, the complaint.

namespace tipline::whistles {

/// Now and then his number of fouls, always the last one; then the team's, when the bonus begins with it.
void TellFoulCounts();
/// The plain whistle on the fouler.
void DescribeFoulCalled();
void DescribeWeakCall();
/// Behind a foul or a violation the man who was called, or the one who was fouled, may have a look for it.
/// A hot head goes on about it; whether that costs a technical the engine has drawn for itself.
void DescribeComplaint();

}  // namespace tipline::whistles
