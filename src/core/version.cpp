#include "version.h"

using namespace Qt::StringLiterals;

namespace heft {

QString ProgramVersion()
{
    return u"%1.%2.%3"_s.arg(HEFTARIUM_VERSION_MAJOR).arg(HEFTARIUM_VERSION_MINOR).arg(HEFTARIUM_VERSION_PATCH);
}

} // namespace heft
