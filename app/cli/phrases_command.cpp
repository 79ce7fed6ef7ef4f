// The phrases of the announcer, and how the voice says names.
#include <iostream>

#include "cli/columns.h"
#include "cli/phrase_commands.h"
#include "cli/speaker.h"
#include "cli/terminal.h"
#include "league/program.h"
#include "league/setup.h"
#include "narration/phrase_file.h"
#include "narration/phrase_manager.h"
#include "narration/phrases.h"
#include "narration/translations.h"
#include "platform/voice.h"

namespace tipline::cli {
namespace {

void AddFiles(CLI::App& group, PhraseArguments& a) {
  auto* save =
      group.add_subcommand("save-as", "a new file with the phrases as they are, which is then in use");
  save->add_option("name", a.Name, "its name, without .HCp")->required();
  auto* use = group.add_subcommand("use", "the announcer takes his phrases from this file");
  use->add_option("name", a.Name, "its name")->required();
  use->add_flag("--yes", a.Yes, "without asking");
  auto* remove = group.add_subcommand("delete", "delete a file; the standard one is then in use");
  remove->add_option("name", a.Name, "its name")->required();
  remove->add_flag("--yes", a.Yes, "without asking");
  auto* usage = group.add_subcommand("usage", "how often each of variants 1, 2-5, 6-10 and 11-20 comes");
  std::string help;
  for (std::size_t n = 0; n < HCDESCRIPS::DescriptionUsageList.size(); ++n) {
    help += (n ? ", " : "") + std::to_string(n) + ": " + std::string(HCDESCRIPS::DescriptionUsageList[n]);
  }
  usage->add_option("usage", a.Usage, help)->required();
}

void AddSay(CLI::App& app, PhraseArguments& a) {
  auto* say = app.add_subcommand("say", "how the voice says a name");
  say->add_option("name", a.Name, "the name as it is written");
  say->add_option("text", a.Text, "say it like this from now on; without it the name is read aloud");
  say->add_flag("--test", a.Test, "only read the text aloud");
  say->add_flag("--voices", a.Voices, "list the voices of this machine");
  say->add_option("--voice", a.Voice, "speak with this voice of the list from now on");
}

int List(const PhraseArguments& a, const Common& common) {
  const HCDESCRIPS screen;
  if (!common.Csv) {
    std::cout << Plain(screen.FileLabel()) << "\nUsage " << Str(setup.DescriptionUsage);
    if (setup.DescriptionUsage < HCDESCRIPS::DescriptionUsageList.size()) {
      std::cout << ": " << HCDESCRIPS::DescriptionUsageList[setup.DescriptionUsage];
    }
    std::cout << "\nFiles:";
    for (const std::string& name : PhraseFiles()) std::cout << "  " << Plain(name);
    std::cout << "\n\n";
  }
  Columns columns({"Slot", "<Variant", "<Text"});
  if (!a.Text.empty()) {
    const auto found = screen.SearchCommand(a.Text);
    if (found.empty()) return Refuse("no phrase has \"" + a.Text + "\" in it");
    for (const auto& [slot, variant] : found) {
      columns.Row({Str(slot), variant ? Str(variant) : "role",
                   variant ? program.Phrases.At(variant, slot).Str() : std::string(RoleOfPhrase(slot))});
    }
  } else {
    for (int slot = 1; slot <= kPhraseSlotsUsed; ++slot) {
      columns.Row({Str(slot), "role", std::string(RoleOfPhrase(slot))});
    }
  }
  columns.Print(std::cout, common.Csv);
  return 0;
}

int Show(const PhraseArguments& a, const Common& common) {
  HCDESCRIPS screen;
  if (!screen.Pick(a.Slot, 1)) return 1;
  if (!common.Csv) std::cout << a.Slot << ": " << RoleOfPhrase(a.Slot) << "\n\n";
  Columns columns({"Variant", "<Text"});
  for (int variant = 1; variant <= kPhraseVariants; ++variant) {
    columns.Row({Str(variant), screen.Shown(variant)});
  }
  columns.Print(std::cout, common.Csv);
  return 0;
}

int Set(const PhraseArguments& a) {
  HCDESCRIPS screen;
  if (!screen.Pick(a.Slot, a.Variant)) return 1;
  screen.PhraseText = a.Text;
  return screen.SaveCommand() ? 0 : 1;
}

int ListVoices() {
  const auto voices = platform::voice().Voices();
  if (voices.empty()) return Refuse("this machine has no voice; spd-say is not installed");
  for (std::size_t n = 0; n < voices.size(); ++n) {
    const bool own = static_cast<int>(n) == setup.VoiceList;
    std::cout << (own ? "* " : "  ") << n << "  " << Plain(voices[n]) << '\n';
  }
  return 0;
}

int ChooseVoice(int index) {
  const auto voices = platform::voice().Voices();
  if (index < 0 || static_cast<std::size_t>(index) >= voices.size()) {
    return Refuse("there is no voice " + std::to_string(index) + "; --voices lists them");
  }
  const auto before = setup.VoiceList;
  setup.VoiceList = static_cast<i16>(index);
  if (SaveSetup()) return 0;
  setup.VoiceList = before;
  return 1;
}

}  // namespace

void AddPhrases(CLI::App& app, PhraseArguments& a, Common& common) {
  auto* group = app.add_subcommand("phrases", "the announcer's phrases");
  group->require_subcommand(1);
  auto* list = group->add_subcommand("list", "what each slot is for, the file in use and the others");
  auto* show = group->add_subcommand("show", "the twenty variants of a slot");
  show->add_option("slot", a.Slot, "1 to 253")->required();
  auto* search = group->add_subcommand("search", "phrases and roles with a text in them");
  search->add_option("text", a.Text, "in any case of letters")->required();
  for (auto* lists : {list, show, search}) lists->add_flag("--csv", common.Csv, "as comma-separated text");
  auto* set = group->add_subcommand("set", "write a variant of a slot");
  set->add_option("slot", a.Slot, "1 to 253")->required();
  set->add_option("variant", a.Variant, "2 to 20; the first is built in")->required();
  set->add_option("text", a.Text, "at most 40 characters; \"\" brings the built-in text back")->required();
  AddFiles(*group, a);
  AddSay(app, a);
}

int RunPhrases(const CLI::App& app, const PhraseArguments& a, const Common& common) {
  const auto& group = *app.get_subcommand("phrases");
  if (group.got_subcommand("list")) return List(a, common);
  if (group.got_subcommand("show")) return Show(a, common);
  if (group.got_subcommand("set")) return Set(a);
  if (group.got_subcommand("search")) {
    return Trimmed(a.Text).empty() ? Refuse("there is nothing to search for") : List(a, common);
  }
  HCDESCRIPS screen;
  const bool done = group.got_subcommand("save-as") ? screen.SaveAsCommand(a.Name)
                    : group.got_subcommand("use")   ? screen.ChangeFileCommand(a.Name)
                    : group.got_subcommand("usage") ? screen.UsageCommand(a.Usage)
                                                    : screen.DeleteFileCommand(a.Name);
  if (done && !group.got_subcommand("usage")) std::cout << Plain(screen.FileLabel()) << '\n';
  return done ? 0 : 1;
}

int RunSay(const CLI::App& app, const PhraseArguments& a) {
  const Speaker speaker(false);  // --voices says itself that there is none
  const auto& say = *app.get_subcommand("say");
  if (a.Voices) return ListVoices();
  if (say.count("--voice") > 0) return ChooseVoice(a.Voice);
  HcTranslationEditor editor{a.Name, a.Text};
  if (Trimmed(a.Name).empty()) return Refuse("a name is needed");
  if (say.count("text") > 0 && !a.Test) {
    if (editor.SaveTranslationCommand()) return 0;
    return Trimmed(a.Text).empty() ? Refuse("a text is needed") : 1;
  }
  if (a.Test && Trimmed(a.Text).empty()) return Refuse("a text is needed");
  a.Test ? editor.TestTranslationCommand() : editor.NameSpeechCommand();
  std::cout << Plain(a.Test ? a.Text : Translated(a.Name)) << '\n';
  return 0;
}

}  // namespace tipline::cli
