#include "picturecommands.h"

#include "pictureviewer.h"

#include "core/picturenames.h"
#include "core/session.h"
#include "core/textfuncs.h"
#include "details/archivelink.h"
#include "mainwin/ui/mainwindow.h"

#include <QDesktopServices>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The user's browser, or whatever the desktop opens such files with.
class DesktopOpener : public DocumentOpener {
public:
    void Open(const QString& path) override { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }
};

int SelectedNr(MainWindow& window)
{
    const EntryGrid& grid = *window.List().ActiveGrid;
    return static_cast<int>(Val(grid.TextMatrix(grid.Row(), ColNr)));
}

} // namespace

void InstallPictureCommands(MainWindow& window, DocumentOpener* opener, std::function<QList<Volume>()> volumes)
{
    static DesktopOpener desktop;
    DocumentOpener* const chosen = opener != nullptr ? opener : &desktop;
    const auto status = [&window](const QString& text) { window.SetStatusPanel(5, text); };
    window.SetCommandHandler(u"mnu_tibi"_s, [&window, volumes, status] {
        if (window.List().ActiveGrid->CurrentRowHoldsEntry())
            ShowPicture(window.CurrentSession(), SelectedNr(window), KindWord(CoverKind), volumes(), {status}, &window);
    });
    window.SetCommandHandler(u"mnu_archiv"_s, [&window, chosen, volumes, status] {
        if (window.List().ActiveGrid->CurrentRowHoldsEntry())
            ArchiveLinkClick(window.CurrentSession(), SelectedNr(window), {volumes, chosen, status});
    });
}

} // namespace heft
