// Heftarium's entry: prepares the data folder and the log, opens the
// collection and the cycle file, and loads the main window.

#include "app/datafolder.h"
#include "messageboxprompter.h"
#include "app/programarguments.h"
#include "app/startup.h"

#include "core/sqlwriters.h"
#include "core/version.h"
#include "cycles/ui/cyclewindowinstall.h"
#include "details/ui/detailopener.h"
#include "details/ui/picturecommands.h"
#include "exchange/ui/exportdialog.h"
#include "exchange/ui/importwindow.h"
#include "filter/ui/filtermode.h"
#include "mainwin/ui/mainwindow.h"
#include "mainwin/ui/splashwindow.h"
#include "print/ui/printwindowinstall.h"
#include "stats/ui/statwindowinstall.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

// Answers --help and --version, or a wrong option, on the terminal; -1 when
// the program is to run.
int AnswerOnTerminal(const heft::ProgramArguments& arguments)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    return heft::AnswerProgramArguments(arguments, out, err);
}

} // namespace

int main(int argc, char** argv)
{
    // Help and version need no screen, so they are answered before the
    // window system is reached.
    QStringList rawArguments;
    for (int i = 1; i < argc; ++i)
        rawArguments << QString::fromLocal8Bit(argv[i]);
    const heft::ProgramArguments early = heft::ReadProgramArguments(rawArguments);
    if (early.request == heft::ProgramRequest::Help || early.request == heft::ProgramRequest::Version)
        return AnswerOnTerminal(early);

    QApplication app(argc, argv);
    QApplication::setApplicationName(u"Heftarium"_s);
    QApplication::setApplicationVersion(heft::ProgramVersion());
    QGuiApplication::setDesktopFileName(u"de.quintara.Heftarium"_s);
    QApplication::setWindowIcon(QIcon::fromTheme(u"de.quintara.Heftarium"_s));
    // Qt has taken its own options (-platform, -style, ...) out by now; any
    // other dash word is a mistake.
    const heft::ProgramArguments arguments = heft::ReadProgramArguments(QCoreApplication::arguments().mid(1));
    if (const int code = AnswerOnTerminal(arguments); code >= 0)
        return code;
    // The program speaks German and shows dates the German way everywhere.
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));

    heft::Session session;
    heft::MessageBoxPrompter prompter;
    session.prompter = &prompter;
    session.ActiveCaption = [] {
        const QWidget* active = QApplication::activeModalWidget();
        if (active == nullptr)
            active = QApplication::activeWindow();
        return active != nullptr ? active->windowTitle() : QString();
    };

    const heft::StartOptions options{heft::UserDataBase(), heft::AllUsersSource(),
                                     QCoreApplication::applicationDirPath(),
                                     arguments.databaseName};
    if (!heft::StartSession(session, options))
        return 1;

    // The splash stays up while the list is read; without the collection's
    // logo the program can't go on.
    heft::SplashWindow splash(session);
    if (!splash.LoadImages()) {
        heft::CloseDatabases(session);
        return 1;
    }
    splash.show();
    QCoreApplication::processEvents();

    heft::MainWindow window;
    window.LoadList(session);
    heft::InstallDetailWindow(window);
    heft::InstallPictureCommands(window);
    heft::InstallFilterMode(window);
    heft::InstallCycleWindow(window);
    heft::InstallPrintWindow(window);
    heft::InstallImportWindow(window);
    heft::InstallExportWindow(window);
    heft::InstallStatisticsWindow(window);
    splash.close();
    QObject::connect(&app, &QCoreApplication::aboutToQuit, [&session] { heft::CloseDatabases(session); });
    return QApplication::exec();
}
