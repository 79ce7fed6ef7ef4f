#include "league/era_screen.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "base/numbers.h"
#include "league/program.h"
#include "league/rules.h"
#include "platform/dialogs.h"

namespace tipline {
namespace {

EraRecord& Row(int year, bool college) { return college ? league.EraCollege[year] : league.EraPro[year]; }

std::string Decimals(double value, int places) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", places, value);
  return text;
}

/// ".456"; a share of nothing is ".000".
std::string Percentage(double made, double attempts) {
  const auto text = Decimals(attempts > 0 ? made / attempts : 0, 3);
  return text.starts_with("0.") ? text.substr(1) : text;
}

}  // namespace

void HCERAFORM::Open() { Closed = false; }

void HCERAFORM::YearList(int year) {
  if (year >= kFirstEraYear && year <= kLastEraYear) Year = year;
}

std::string HCERAFORM::Heading(bool college) const {
  return (college ? "College: " : "Pro: ") + std::to_string(Year) + "-" + std::to_string(Year + 1);
}

std::string HCERAFORM::BoxText(bool college, const EraBox& box) const {
  const EraRecord& row = Row(Year, college);
  if (!box.Field) return Decimals(row.Games, 2);
  if (box.Made) return Percentage(row.*box.Made, row.*box.Field);
  return Decimals(row.*box.Field, 2);
}

bool HCERAFORM::LeaveBox(bool college, std::string_view name, std::string_view text) {
  const auto* box = std::find_if(std::begin(kEraBoxes), std::end(kEraBoxes),
                                 [name](const EraBox& each) { return each.Name == name; });
  const double value = NumberIn<double>(text).value_or(-1);
  if (box == std::end(kEraBoxes) || box->Made || !(value >= 0 && value <= 32767)) return false;
  EraRecord& row = Row(Year, college);
  if (!box->Field) {
    row.Games = static_cast<i16>(Int(value));
    return true;
  }
  row.*box->Field = static_cast<f32>(value);
  if (name == "RebText") row.OffReb = static_cast<f32>(Int(value * 0.33 + 0.5));
  return true;
}

std::string HCERAFORM::LocationLabel() const {
  return "HCERA file location: " + program.ProgramFolder.string();
}

void HCERAFORM::OkCommand() {
  if (platform::dialogs().Ask("Save Era Changes?")) SaveEra();
  LoadEra();
  Closed = true;
}

}  // namespace tipline
