#include "archivesearchrun.h"

#include "filter/archivesearch.h"
#include "filter/ui/filtermode.h"

#include "core/session.h"
#include "mainwin/ui/mainwindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Notes an Esc anywhere in the program while the search runs.
class EscapeWatcher : public QObject {
public:
    EscapeWatcher() { qApp->installEventFilter(this); }
    ~EscapeWatcher() override { qApp->removeEventFilter(this); }
    bool pressed = false;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            pressed = true;
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

bool SearchArchiveFromFilter(MainWindow& window, const ArchiveQuery& query, FilterState& state)
{
    if (!query.IsWanted())
        return true;
    Session& session = window.CurrentSession();
    EntryList& list = window.List();
    auto* bar = window.findChild<QProgressBar*>(u"pbar_load"_s);
    EscapeWatcher escape;
    const ArchiveSearchHooks hooks{
        .volumes = MountedVolumes,
        .startProgress = [&window, bar](int maximum) {
            window.StartProgress(maximum);
            if (bar != nullptr)
                bar->setValue(0);
        },
        .progress = [bar](int value) {
            if (bar != nullptr)
                bar->setValue(value);
            QCoreApplication::processEvents();
        },
        .status = [&window](const QString& text) { window.SetStatusPanel(5, text); },
        .aborted = [&escape] { return escape.pressed; }};
    ArchiveFilterTexts texts;
    if (SearchArchive(session, list, query, hooks, texts) >= 1) {
        state.ArchiveFilterText = texts.text;
        state.ArchiveFilterNote = texts.note;
        return true;
    }
    window.SetStatusPanel(5, u"Fertig und Bereit."_s);
    window.FinishProgress(50);
    // The full list stays in front, as it was before the filter.
    list.ActiveGrid = &list.Heftliste;
    list.SortColumn = list.SavedSortColumn;
    list.SortDescending = list.SavedSortDescending;
    list.UpdateSelectionPanel();
    session.prompter->Tell(u"Keine Stichwörter im VN Archiv gefunden"_s,
                           u"Zu den gegebenen Filter-Kriterien konnten\rkeine Einträge im Archiv gefunden werden."_s,
                           MessageIcon::Information);
    return false;
}

} // namespace heft
