#pragma once
// Rules and eras of a league.
#include <string>
#include <string_view>

#include "league/league.h"

namespace tipline {

/// Reads HCRULES of the open league, repairs what no marker covers yet, derives position labels and photo
/// ratio, and writes the file back when something changed. False when the file can't be read; an all-zero
/// record is then repaired.
bool LoadRules();
/// Keeps the foul limits ascending and writes both records. False, after telling the user, when the write
/// failed.
bool SaveRules();
/// The repairs of LoadRules on `league.rules` alone, driven by year and type of team 1. True when one acted.
bool RepairRules(int year, char teamType);
/// Fouls and penalties ascending: a lower step takes limit and penalty of the step before it.
void RaiseFoulLimits(RulesRecord& rules);
void DerivePositionLabels();

/// The whole era file, with its fills. A missing file reads as zeros. True when it was there.
bool LoadEra();
bool SaveEra();
/// Makes the era file from the era tables that ship with the program; seasons beyond the last known take its
/// row. False, with a message, when the tables can't be read.
bool MakeEraFile();

}  // namespace tipline
