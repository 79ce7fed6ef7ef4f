// The state of a league's files, and what rids a league of its past.
#include <iostream>

#include "cli/columns.h"
#include "cli/commands.h"
#include "cli/terminal.h"
#include "league/data_tree.h"
#include "league/league_check.h"
#include "league/league_reset.h"
#include "league/rules.h"
#include "platform/dialogs.h"
#include "season/recount.h"

namespace tipline::cli {

int ExamineLeague(const Common& common) {
  const auto folder = FindLeague(common.League);
  if (folder.empty()) return Refuse("there is no such league; see: tipline league new NAME");
  if (const auto fault = LeagueFault(folder); !fault.empty()) return Refuse(fault);
  if (!EnsureEra()) return 1;
  const auto findings = LeagueFindings(folder);
  for (const auto& finding : findings) std::cout << Plain(finding) << '\n';
  if (findings.empty() && !common.Quiet) std::cout << folder.filename().string() << " is sound.\n";
  return findings.empty() ? 0 : 1;
}

int RecountBooks(const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  const Recount recount = RecountLeague();
  for (const auto& fault : recount.faults) std::cout << Plain(fault) << '\n';
  if (recount.leftOut > 0) std::cout << "and " << recount.leftOut << " more.\n";
  if (!common.Quiet) {
    std::cout << recount.boxes << " boxes of " << recount.games << " games counted: " << recount.teams
              << " teams, " << recount.men << " players, " << recount.figures << " figures, "
              << static_cast<long>(recount.faults.size()) + recount.leftOut << " differences.\n";
  }
  return recount.faults.empty() ? 0 : 1;
}

int StartSeasonAnew(bool realLifeToo, const Common& common) {
  if (!OpenTheLeague(common)) return 1;
  if (!platform::dialogs().Ask("Reset League?")) return 1;
  const WorkLabel label = [&common](const std::string& text) {
    if (!common.Quiet && Interactive()) std::cout << text << '\n';
  };
  return tipline::ResetLeague(realLifeToo, label) ? 0 : 1;
}

int CleanLeague(const Common& common) { return OpenTheLeague(common) && CleanLeagueFolder() ? 0 : 1; }

}  // namespace tipline::cli
