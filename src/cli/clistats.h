#pragma once
// heftarium-cli stats: one statistic's report as the statistics window
// shows it, and with --rows the rows of its chart.

#include <QStringList>
#include <QTextStream>

namespace heft {

class Session;

// words: everything behind "stats", e.g. {"Autor/Zyklen", "--author", "Kurt Brandis"}.
int StatsCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err);

} // namespace heft
