#pragma once
// heftarium-cli run in this process, as a script sees it: the exit code and
// what went to stdout and stderr.

#include "cli/clicommands.h"

#include <QStringList>
#include <QTextStream>

namespace heft::test {

struct CliRun {
    int code;
    QString out;
    QString err;
    bool operator==(const CliRun&) const = default;
};

inline CliRun RunCliWith(const QStringList& arguments)
{
    QString out, err;
    QTextStream outStream(&out), errStream(&err);
    const int code = RunCli(arguments, outStream, errStream);
    outStream.flush();
    errStream.flush();
    return {code, out, err};
}

} // namespace heft::test
