// heftarium-bench [PREFIX...]: prints "name: value" for each figure whose
// name starts with one of the prefixes, or for all figures.
// heftarium-bench --serve-wiki: serves the fixture wiki of the web import
// figure until stopped, to point the running program at.

#include "benchsupport.h"

#include <QGuiApplication>
#include <QLocale>

int main(int argc, char** argv)
{
    // The list draws its sort pictures and measures its fonts; an offscreen
    // platform keeps the benchmark runnable without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    if (app.arguments().value(1) == u"--serve-wiki")
        return heft::bench::ServeFixtureWiki();
    return heft::bench::RunFigures(app.arguments().mid(1));
}
