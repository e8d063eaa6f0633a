// The fixture wiki on its own, for looking at the web import in the running
// program: prints the address to put into HEFTARIUM_WIKI_URL and
// HEFTARIUM_PUBLISHER_URL and serves until it is stopped.

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
