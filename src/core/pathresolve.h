#pragma once
// Archive CDs carry upper-case names ("HEFTE/HEFT0001.HTM") that may turn
// lower case once mounted or copied, and picture folders may come from a
// system that doesn't tell cases apart. Every archive and picture path is
// therefore looked up here, name by name, exactly first and case-blind when
// the exact name is missing.

#include <QString>

namespace heft {

// The path of relative below base as it exists on disk. Names that exist
// neither exactly nor case-blind are kept as given, so the result names the
// file that would be created. Backslashes count as separators. Empty when
// relative would lead out of base (an absolute path or a ".." step).
QString ResolvePath(const QString& base, const QString& relative);

} // namespace heft
