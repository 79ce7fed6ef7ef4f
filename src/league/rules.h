#pragma once
// Rules and eras of a league.
#include <string>
#include <string_view>

#include "league/league.h"

namespace tipline {

/// Reads HCRULES of the open league with team 1, whose year and type drive the repairs, repairs what no
/// marker covers yet, derives league name of the folder, position labels, photo ratio and photo folder, and
/// writes the file back when something changed. False when the league has no rules that can be read: those of
/// the folder above all leagues then stand in where it has some, else an all-zero record, repaired in memory
/// and written nowhere.
bool LoadRules();
/// Keeps the foul limits ascending and writes both records. False, after telling the user, when the write
/// failed.
bool SaveRules();
/// The repairs of LoadRules on `league.rules` alone, driven by year and type of team 1. True when one acted.
bool RepairRules(int year, char teamType);
/// Whether the rules that carry a game lie within their lists; a rule book of noise does not. One that does
/// not is held to the lists by the repairs.
bool RulesMakeSense(const RulesRecord& rules);
/// Fouls and penalties ascending: a lower step takes limit and penalty of the step before it.
void RaiseFoulLimits(RulesRecord& rules);
void DerivePositionLabels();
void DerivePhotoRatio();
/// Sets `league.PhotoFolder`: the photo folder of all leagues, or, by the rule, one of this league's own in
/// it, which is then made.
void FindPhotoFolder();

/// The whole era file, with its fills. A missing file reads as zeros. True when it was there.
bool LoadEra();
/// False, after telling the user, when the write failed.
bool SaveEra();
/// The fills of LoadEra on the tables in memory: old totals become averages, figures that a season did not
/// keep are estimated, later seasons follow the last one.
void FillEras();
/// Takes the era tables that ship with the program, filled, and writes no file; seasons ahead of the first
/// known one and beyond the last take its row. False, with a message and nothing changed, when a table can't
/// be read.
bool UseShippedEras();
/// The same, and the era file made from them. False as well, with a message, when it can't be written.
bool MakeEraFile();

}  // namespace tipline
