// Writes the manual page of heftarium-cli at build time, from the same
// command table its --help prints, so the two can't drift apart.
// Arguments: the output file and the release date (yyyy-mm-dd).

#include "cli/climanpage.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream err(stderr);
    if (arguments.size() != 3) {
        err << "Aufruf: heftarium-build-manpage DATEI DATUM\n";
        return 2;
    }
    QFile page(arguments[1]);
    if (!page.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        err << "Die Datei " << arguments[1] << " lässt sich nicht schreiben: " << page.errorString() << '\n';
        return 1;
    }
    page.write(heft::CliManPage(arguments[2]).toUtf8());
    return page.error() == QFileDevice::NoError ? 0 : 1;
}
