// heftarium-bench [PREFIX...]: prints "name: value" for each figure whose
// name starts with one of the prefixes, or for all figures.

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
    return heft::bench::RunFigures(app.arguments().mid(1));
}
