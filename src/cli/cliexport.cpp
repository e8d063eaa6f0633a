#include "cliexchange.h"

using namespace Qt::StringLiterals;

namespace heft {

int ExportCommand(Session& /*session*/, const QStringList& /*words*/, QTextStream& /*out*/, QTextStream& err)
{
    err << u"Dieser Befehl ist noch nicht verfügbar.\n"_s;
    return 2;
}

} // namespace heft
