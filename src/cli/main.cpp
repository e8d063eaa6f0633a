#include "clicommands.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>

#include <algorithm>
#include <cstring>
#include <memory>

int main(int argc, char** argv)
{
    // Printed pages lay out text and the archive search fills a list that
    // measures its columns; both need the fonts of a GUI application, which
    // runs without a display.
    const bool needsFonts = std::any_of(argv + 1, argv + argc, [](const char* word) {
        return std::strcmp(word, "print") == 0 || std::strcmp(word, "archive") == 0;
    });
    std::unique_ptr<QCoreApplication> app;
    if (needsFonts) {
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
