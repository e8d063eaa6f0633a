#pragma once
// frm_help: the German manual, HTML pages in a help/ folder that travels with
// the program, shown in a browser window beside the main window.

#include <QWidget>

class QTextBrowser;

namespace heft {

class HelpWindow : public QWidget {
    Q_OBJECT

public:
    // folder holds the pages; page is one of them, e.g. "liste.html".
    explicit HelpWindow(const QString& folder, QWidget* parent = nullptr);
    void ShowPage(const QString& page);
    QTextBrowser* Browser() const { return m_browser; }

private:
    QString m_folder;
    QTextBrowser* m_browser = nullptr;
};

// The manual's folder for a program in programFolder: help/ beside the
// program (the build tree), else the installed share/Quintara/Heftarium/help.
// Empty when neither holds the index page.
QString FindHelpFolder(const QString& programFolder);

// Opens the manual on page, or brings the open help window forward with that
// page. A missing manual is told in a message box.
void ShowHelp(QWidget* parent, const QString& page = QStringLiteral("index.html"));

} // namespace heft
