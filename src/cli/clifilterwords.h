#pragma once
// The criteria rows that the commands filter, fill and export take as
// FIELD:COMPARE:VALUE words joined by UND, ODER or EXOR, and the statement
// the filter generator makes of them.

#include "filter/filtergenerator.h"

#include <QList>
#include <QStringList>
#include <QTextStream>

namespace heft {

class Session;

// What the commands print when a filter finds no entry.
const QString& NothingFoundText();

// The criteria rows of a command line, with their joining words between
// them. Returns 0, or the exit code after telling what was not understood.
int ParseFilterWords(Session& session, const QStringList& words, QList<FilterCriterion>& rows, QTextStream& err);
// The statement of the rows, or the exit code after telling why there is none.
int GenerateFilter(Session& session, const QList<FilterCriterion>& rows, FilterOutcome& outcome, QTextStream& err);
// Both steps at once, for the commands that have nothing to check between.
int FilterFromWords(Session& session, const QStringList& words, FilterOutcome& outcome, QTextStream& err);

} // namespace heft
