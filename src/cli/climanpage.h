#pragma once
// The manual page of heftarium-cli, in the roff of man(7), made from the same
// command table as --help.

#include <QString>

namespace heft {

// date: the release date shown in the page's foot, "yyyy-mm-dd".
QString CliManPage(const QString& date);

} // namespace heft
