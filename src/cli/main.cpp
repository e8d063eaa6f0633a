#include "clicommands.h"

#include <QCoreApplication>
#include <QLocale>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QTextStream out(stdout);
    QTextStream err(stderr);
    return heft::RunCli(app.arguments().mid(1), out, err);
}
