// The web import as frm_import runs it: frm_webimport asks for the range,
// the engine fetches it while this window shows the report and the main
// window the progress. The pair of files it leaves in the import folder is
// then imported like any other.

#include "exchange/ui/importwindow.h"
#include "ui_importwindow.h"

#include "webimportwindow.h"

#include "core/session.h"
#include "core/textfuncs.h"
#include "mainwin/ui/mainwindow.h"

#include <QProgressBar>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

class WebImportFeedback : public WebImportObserver {
public:
    WebImportFeedback(MainWindow& window, QPlainTextEdit& bericht, const bool& abort)
        : m_window(window), m_bericht(bericht), m_abort(abort)
    {
    }

    void Status(const QString& text) override { m_window.SetStatusPanel(5, text); }
    void Started(int count) override { m_window.StartProgress(count); }
    void Report(const QString& bericht) override
    {
        m_bericht.setPlainText(bericht);
        m_bericht.verticalScrollBar()->setValue(m_bericht.verticalScrollBar()->maximum());
    }
    bool IssueDone(int done) override
    {
        if (auto* bar = m_window.findChild<QProgressBar*>(u"pbar_load"_s))
            bar->setValue(done);
        QCoreApplication::processEvents();
        return !m_abort;
    }
    void Finished() override { m_window.FinishProgress(250); }

private:
    MainWindow& m_window;
    QPlainTextEdit& m_bericht;
    const bool& m_abort;
};

// The number in the last row of the active list; 0 when it is empty.
int LastListedNr(EntryList& list)
{
    const EntryGrid& grid = *list.ActiveGrid;
    return grid.Rows() > 1 ? static_cast<int>(Val(grid.TextMatrix(grid.Rows() - 1, 0))) : 0;
}

} // namespace

void ImportWindow::WebUpdate()
{
    if (!m_idle)
        return;
    WebImportRequest request;
    {
        WebImportWindow range(this, LastListedNr(m_window.List()));
        if (range.exec() != QDialog::Accepted) {
            m_ui->txt_fehler->setPlainText(u"Keine Fehler."_s);
            m_ui->txt_bericht->setPlainText(u"Kein Web-Import Bereich ausgewählt."_s);
            return;
        }
        request = range.Request();
    }
    request.importFolder = m_folder;

    // The controls are off while the import runs; Esc still reaches the
    // window and stops the run after the issue under way.
    const QList<QWidget*> controls{m_ui->frm_options, m_ui->btn_impdir, m_ui->btn_webupdate, m_ui->btn_choose,
                                   m_ui->btn_verlassen};
    for (QWidget* control : controls)
        control->setEnabled(false);
    m_idle = false;
    m_abort = false;
    m_ui->txt_fehler->clear();
    WebImportFeedback feedback(m_window, *m_ui->txt_bericht, m_abort);
    const WebImportResult result = ScrapeWikiRange(m_window.CurrentSession(), request, feedback);
    m_ui->txt_fehler->setPlainText(result.fehler);
    for (QWidget* control : controls)
        control->setEnabled(true);
    m_idle = true;
}

} // namespace heft
