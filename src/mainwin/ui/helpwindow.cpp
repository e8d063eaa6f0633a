#include "helpwindow.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QString IndexPage = u"index.html"_s;

QAction* AddNavigation(QToolBar* bar, const QString& name, QStyle::StandardPixmap icon, const QString& text,
                       const QKeySequence& key)
{
    QAction* action = bar->addAction(bar->style()->standardIcon(icon), text);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setToolTip(u"%1 (%2)"_s.arg(text, key.toString(QKeySequence::NativeText)));
    return action;
}

} // namespace

HelpWindow::HelpWindow(const QString& folder, QWidget* parent)
    : QWidget(parent, Qt::Window), m_folder(folder), m_browser(new QTextBrowser(this))
{
    setObjectName(u"frm_help"_s);
    setWindowTitle(u"Heftarium Hilfe"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    resize(760, 640);

    auto* bar = new QToolBar(this);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction* back = AddNavigation(bar, u"btn_back"_s, QStyle::SP_ArrowBack, u"Zurück"_s, QKeySequence(u"Alt+Left"_s));
    QAction* forward =
        AddNavigation(bar, u"btn_forward"_s, QStyle::SP_ArrowForward, u"Vor"_s, QKeySequence(u"Alt+Right"_s));
    QAction* home = AddNavigation(bar, u"btn_home"_s, QStyle::SP_DirHomeIcon, u"Inhalt"_s, QKeySequence(u"Alt+Home"_s));
    back->setEnabled(false);
    forward->setEnabled(false);

    m_browser->setObjectName(u"brw_help"_s);
    m_browser->setOpenExternalLinks(true);
    connect(back, &QAction::triggered, m_browser, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, m_browser, &QTextBrowser::forward);
    connect(home, &QAction::triggered, this, [this] { ShowPage(IndexPage); });
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(m_browser);
}

void HelpWindow::ShowPage(const QString& page)
{
    m_browser->setSource(QUrl::fromLocalFile(QDir(m_folder).filePath(page)));
}

QString FindHelpFolder(const QString& programFolder)
{
    const QDir program(programFolder);
    for (const QString& candidate : {u"help"_s, u"../share/Quintara/Heftarium/help"_s}) {
        const QString folder = QDir::cleanPath(program.filePath(candidate));
        if (QFileInfo(QDir(folder).filePath(IndexPage)).isFile())
            return folder;
    }
    return {};
}

void ShowHelp(QWidget* parent, const QString& page)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* open = qobject_cast<HelpWindow*>(window)) {
            open->ShowPage(page);
            open->show();
            open->raise();
            open->activateWindow();
            return;
        }
    }

    const QString folder = FindHelpFolder(QCoreApplication::applicationDirPath());
    if (folder.isEmpty()) {
        QMessageBox::warning(parent, u"Heftarium Hilfe"_s,
                             u"Die Hilfe konnte nicht gefunden werden.\n\n"
                             "Sie gehört in den Ordner „help“ neben dem Programm:\n%1"_s
                                 .arg(QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + u"/help"_s)));
        return;
    }
    auto* window = new HelpWindow(folder, parent);
    window->ShowPage(page);
    window->show();
}

} // namespace heft
