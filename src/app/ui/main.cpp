// Heftarium's entry: prepares the data folder and the log, opens the
// collection and the cycle file, and loads the main window.

#include "app/datafolder.h"
#include "messageboxprompter.h"
#include "app/startup.h"

#include "core/sqlwriters.h"
#include "cycles/ui/cyclewindowinstall.h"
#include "details/ui/detailopener.h"
#include "details/ui/picturecommands.h"
#include "exchange/ui/exportdialog.h"
#include "exchange/ui/importwindow.h"
#include "filter/ui/filtermode.h"
#include "mainwin/ui/mainwindow.h"
#include "mainwin/ui/splashwindow.h"

#include <QApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"Heftarium"_s);
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
                                     QCoreApplication::arguments().mid(1).join(u' ')};
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
    heft::InstallImportWindow(window);
    heft::InstallExportWindow(window);
    splash.close();
    QObject::connect(&app, &QCoreApplication::aboutToQuit, [&session] { heft::CloseDatabases(session); });
    return QApplication::exec();
}
