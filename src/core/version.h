#pragma once
// The program's version as the build was told it, in one place for the
// about window, the log's start line and both programs' --version.

#include <QString>

namespace heft {

// "major.minor.patch", e.g. "1.0.0".
QString ProgramVersion();

} // namespace heft
