#include "league/coach_repairs.h"

#include "league/markers.h"
#include "league/name_tables.h"

namespace tipline {
namespace {

constexpr u8 kNeutral = 2;
constexpr u8 kMostOfSlider = 4;

struct CoachRepair {
  CoachRecord& c;
  TeamRecord& t;

  void Sounds() {
    if (TakeMark(c.FightSongMark, 199) && !Upper(c.FightSong.View()).ends_with(".MP3")) c.FightSong = "NONE";
    if (!TakeMark(c.SoundListMark, 222)) return;
    for (int n = 0; n <= 9; ++n) {
      const std::string file = "VTX Short Cheer " + std::to_string(n) + ".mp3";
      for (auto* list : {&c.OrganMusic, &c.TimeoutMusic, &c.DefenseChant}) (*list)[n] = file;
    }
  }

  void Looks() {
    if (TakeMark(c.ColorNameMark, 99)) c.ColorNames.Fill(std::string_view());
    if (TakeMark(c.UniformMark, 99)) {
      c.UniformFiles[1] = "Uni-Road-" + t.City.Str() + ".jpg";
      c.UniformFiles[2] = "Uni-Home-" + t.City.Str() + ".jpg";
    }
  }

  void Habits() {
    if (TakeMark(c.DailyMark, 99)) {
      c.UseDailyInactive = 0;
      c.DailyLineupMode = 1;
    }
    if (TakeMark(c.CoachPhotoMark, 99)) c.CoachPhoto = t.CoachName.Str() + ".jpg";
    if (TakeMark(c.PaceMark, 99)) c.OverallPace = 2;
    if (TakeMark(c.ComputerMatchupMark, 11)) c.ComputerMatchups = 0;
  }

  void Sliders() {
    if (TakeMark(c.DefaultsMark, 99)) {
      for (auto* slider : {&c.Coverage1, &c.Coverage2, &c.Coverage3, &c.Coverage4, &c.Coverage5}) {
        slider->Fill(kNeutral);
      }
    }
    if (TakeMark(c.DefAdjust6Mark, 99)) {
      for (int plan = 1; plan <= 10; ++plan) c.DefAdjust6[plan] = kNeutral;
    }
    for (auto* slider :
         {&c.Coverage1, &c.Coverage2, &c.Coverage3, &c.Coverage4, &c.Coverage5, &c.OffAdjust1, &c.OffAdjust2,
          &c.OffAdjust3, &c.OffAdjust4, &c.OffAdjust5, &c.OffAdjust6, &c.DefAdjust1, &c.DefAdjust2,
          &c.DefAdjust3, &c.DefAdjust4, &c.DefAdjust5, &c.DefAdjust6}) {
      for (u8& value : *slider) value = value > kMostOfSlider ? kNeutral : value;
    }
  }

  void Logo() {
    const std::string file = Upper(t.LogoFile.View());
    const bool path = file.find('/') != std::string::npos;
    bool known = false;
    for (const std::string_view kind : {"WMF", "BMP", "JPG", "GIF", "JPE"})
      known = known || file.ends_with(kind);
    if (path || !known) t.LogoFile = t.City.Str() + ".jpg";
    if (TakeMark(t.LogoYearMark, 99) && t.Year >= 2016) AssignLogo(t);
  }
};

}  // namespace

void RepairCoach(CoachRecord& coach, TeamRecord& team) {
  CoachRepair repair{coach, team};
  repair.Sounds();
  repair.Looks();
  repair.Habits();
  repair.Sliders();
  repair.Logo();
}

void AssignLogo(TeamRecord& team) {
  const CityRow* city = FindCity(team);
  team.LogoFile = city && !city->Logo.empty() ? city->Logo : team.City.Str() + ".jpg";
}

}  // namespace tipline
