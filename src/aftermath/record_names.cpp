#include "aftermath/record_names.h"

namespace tipline {
namespace {

constexpr int kFigures = static_cast<int>(std::size(kRecordFigures));
constexpr int kShots = static_cast<int>(std::size(kRecordShots));
constexpr int kStretches = static_cast<int>(std::size(kRecordStretches));

/// `id` is one of `count` ids from `first` on.
bool Among(int id, int first, int count) { return id >= first && id < first + count; }

std::string FigureName(int k, std::string_view place) {
  return std::string(kRecordFigures[k].name) + std::string(place);
}

std::string ShotName(int k) {
  const RecordShot& shot = kRecordShots[k / 2];
  return std::string(k % 2 == 0 ? shot.attempts : shot.made);
}

std::string StretchName(int k, std::string_view stretch) {
  return std::string(kRecordStretches[k].name) + std::string(stretch);
}

}  // namespace

std::string RecordName(int id) {
  if (Among(id, 1, kFigures)) return FigureName(id - 1, "");
  if (Among(id, kShotRecords, 2 * kShots)) return ShotName(id - kShotRecords);
  if (Among(id, kRoadRecords, kFigures)) return FigureName(id - kRoadRecords, " on Road");
  if (Among(id, kHomeRecords, kFigures)) return FigureName(id - kHomeRecords, " at Home");
  if (id == kMarginRecord) return "Margin Of Victory";
  if (Among(id, kPeriodRecords, kRecordPeriods)) {
    return "Points By Quarter: " + std::to_string(id - kPeriodRecords + 1);
  }
  if (Among(id, kOppPeriodRecords, kRecordPeriods)) {
    return "Opp Points By Quarter: " + std::to_string(id - kOppPeriodRecords + 1);
  }
  if (Among(id, kQuarterRecords, kStretches)) return StretchName(id - kQuarterRecords, " In A Quarter");
  if (Among(id, kHalfRecords, kStretches)) return StretchName(id - kHalfRecords, " In A Half");
  return "";
}

}  // namespace tipline
