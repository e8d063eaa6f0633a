// The fixture wiki standalone: prints the address for HEFTARIUM_WIKI_URL and
// HEFTARIUM_PUBLISHER_URL and serves until stopped.

#include "wikifixtureserver.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    heft::test::WikiFixtureServer server;
    server.ServeSampleSite();
    QTextStream(stdout) << server.Url() << Qt::endl;
    return app.exec();
}
