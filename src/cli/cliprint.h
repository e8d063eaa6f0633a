#pragma once
// heftarium-cli print: the pages of the print window written as a PDF file.

#include <QStringList>
#include <QTextStream>

namespace heft {

class Session;

// words: everything behind "print", e.g. {"matrix", "--pdf", "m.pdf"}.
int PrintCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err);

} // namespace heft
