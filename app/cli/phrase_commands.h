#pragma once
// The commands of the announcer's words: his phrases, and how the voice says names.
#include <CLI/CLI.hpp>
#include <string>

#include "cli/commands.h"

namespace tipline::cli {

struct PhraseArguments {
  int Slot = 0, Variant = 0, Usage = 0, Voice = 0;
  std::string Text, Name;
  bool Yes = false, Test = false, Voices = false;
};

/// Adds `phrases` with its commands, and `say`; RunPhrases and RunSay carry out what was given.
void AddPhrases(CLI::App& app, PhraseArguments& a, Common& common);
int RunPhrases(const CLI::App& app, const PhraseArguments& a, const Common& common);
int RunSay(const CLI::App& app, const PhraseArguments& a);

}  // namespace tipline::cli
