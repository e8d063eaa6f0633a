#include "clicommands.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>

#include <algorithm>
#include <cstring>
#include <memory>

int main(int argc, char** argv)
{
    // Printed pages lay out text, which needs the fonts of a GUI
    // application; it runs without a display.
    const bool printing =
        std::any_of(argv + 1, argv + argc, [](const char* word) { return std::strcmp(word, "print") == 0; });
    std::unique_ptr<QCoreApplication> app;
    if (printing) {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QTextStream out(stdout);
    QTextStream err(stderr);
    return heft::RunCli(QCoreApplication::arguments().mid(1), out, err);
}
