#include "narration/speech.h"

#include "league/program.h"
#include "league/setup.h"
#include "narration/lines.h"
#include "narration/translations.h"
#include "platform/voice.h"

namespace tipline {
namespace {

bool IsRemark(int kind) {
  return (kind >= kScoreRemark && kind <= 73) || kind == 81 || kind == 88 || kind == 89;
}
bool IsTurnover(int kind) {
  return kind == kStealLine || (kind >= kLostOutOfBounds && kind <= kThreeSeconds);
}
bool IsMade(int kind) { return kind == kMadeTwo || kind == kMadeThree; }

/// He was fouled as he shot, where the text does not say so already: by the word, or by who did it.
std::string FoulEnding(const std::string& text) {
  const PlayResult result = game.play.Posted;
  const auto has = [&text](std::string_view words) { return text.find(words) != std::string::npos; };
  const bool told = has("fouled") || has("the foul on") || has("draws the foul") ||
                    NamesHim(text, NameOf(scene().DefenseSide, game.play.Fouler));
  if (told || !IsShot(result) || !result.Text().ends_with('F')) return "";
  const std::string fouled = WomensGame() ? "she was fouled " : "he was fouled ";
  if (!IsMadeShot(result)) return " , but " + fouled;
  return VoiceRnd(10) <= 3 ? " , and one " : " , and " + fouled;
}

std::string AssistEnding() {
  const std::string passer = NameOf(scene().OffenseSide, game.play.Assister);
  if (!setup.NarratorAssistsCheck || !Scored() || !game.play.Assisted || passer.empty()) return "";
  return VoiceRnd(10) <= 5 ? " , " + passer + " gets the assist" : " , from  " + passer;
}

}  // namespace

bool WantsToHear(int kind) {
  if (setup.NarratorFullPBPCheck) return true;  // every line that is shown
  if (kind == kUnspoken) return false;
  if (IsRemark(kind)) return setup.NarratorMiscCheck;
  if (IsTurnover(kind)) return setup.NarratorTurnoversCheck;
  if (kind == kReboundLine) return setup.NarratorReboundsCheck;
  if (IsMade(kind) || kind == kMissedShot) {
    return setup.NarratorShotPlusResultCheck || setup.NarratorScoringCheck;
  }
  return setup.NarratorShotPlusResultCheck;
}

bool SpeechOn() { return !platform::voice().Silent() && (setup.MasterNarratorCheck || program.FilmReplay); }

void SayAloud(std::string_view text, bool wait) {
  platform::Voice& voice = platform::voice();
  if (Trimmed(text).empty() || voice.Silent()) return;
  voice.Select(setup.VoiceList);
  voice.SetRate(1 - setup.NarratorScroll * 0.1);
  voice.SetVolume(setup.NarratorVolumeScroll);
  voice.Speak(text, wait);
}

void SpeakLine(std::string_view text, bool wait) {
  if (!SpeechOn() || Trimmed(text).empty()) return;
  SayAloud(Translated(text), wait);
}

void SpeakShownLine(int n) {
  if (!SpeechOn() || game.commentary.Line[n].IsPause()) return;
  const PbpLine& line = game.commentary.Line[n];
  const int kind = line.SpokenKind;
  if (!WantsToHear(kind)) return;
  // Of a shot that was not heard the basket is told in one sentence.
  const bool shotHeard = setup.NarratorShotPlusResultCheck || setup.NarratorFullPBPCheck;
  if (IsMade(kind) && Scored() && !shotHeard) return SpeakShot();
  if (!setup.NarratorFullPBPCheck) FillSpokenLine(n);  // else the lines around it name the man
  std::string text = line.SpokenText.empty() ? line.Text : line.SpokenText;
  if (!setup.NarratorFullPBPCheck) {  // else the lines around it tell the foul and the pass
    if (IsMade(kind) || kind == kMissedShot) text += FoulEnding(text);
    if (IsMade(kind)) text += AssistEnding();
  }
  SpeakLine(Uncounted(text));
}

}  // namespace tipline
