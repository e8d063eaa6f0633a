#include "exportdialog.h"
#include "ui_exportdialog.h"

#include "exchange/exportrun.h"

#include "core/session.h"
#include "filter/ui/filtermode.h"
#include "mainwin/ui/mainwindow.h"

#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QProgressBar>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// How often a running export lets the window repaint, in ms.
constexpr qint64 EventRoundMs = 30;

QString AskWithFileDialog(QWidget* parent, const QString& title, const QString& folder, const QString& filter,
                          const QString& suffix)
{
    QFileDialog dialog(parent, title, folder, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

// The rows of the active grid, top to bottom, as plain cell texts.
ExportList ActiveList(MainWindow& window)
{
    ExportList list;
    const EntryGrid& grid = *window.List().ActiveGrid;
    const EntryGridModel& model = grid.Model();
    list.rows.resize(static_cast<size_t>(model.rowCount()));
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 0; column < EntryColumnCount; ++column)
            list.rows[static_cast<size_t>(row)][static_cast<size_t>(column)] = model.Text(row, column);
    list.filtered = window.IsFilterMode();
    if (const FilterState* state = FilterStateOf(window); state && list.filtered)
        list.filterText = state->FilterText + state->ArchiveFilterNote;
    return list;
}

} // namespace

ExportDialog::ExportDialog(MainWindow& window, ExportFileChooser chooser)
    : QDialog(&window), m_ui(std::make_unique<Ui::ExportDialog>()), m_window(window),
      m_chooser(chooser ? std::move(chooser) : ExportFileChooser(AskWithFileDialog))
{
    m_ui->setupUi(this);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(m_ui->btn_choose, &QPushButton::clicked, this, &ExportDialog::ChooseClick);
    connect(m_ui->btn_ok, &QPushButton::clicked, this, &ExportDialog::reject);
    connect(m_ui->btn_expdir, &QPushButton::clicked, this, &ExportDialog::OpenFolderClick);
}

ExportDialog::~ExportDialog() = default;

QString ExportDialog::ExportFolder() const
{
    return QDir(m_window.CurrentSession().DataFolder).filePath(u"export"_s);
}

void ExportDialog::OpenFolderClick()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(ExportFolder()));
}

void ExportDialog::ChooseClick()
{
    QString suffix;
    if (m_ui->chk_csv->isChecked())
        suffix = u"dat"_s;
    else if (m_ui->chk_text->isChecked())
        suffix = u"txt"_s;
    else if (m_ui->chk_html->isChecked())
        suffix = u"html"_s;
    if (suffix.isEmpty()) {
        m_window.CurrentSession().prompter->Tell(u"Fehlendes Export-Format"_s,
                                                 u"Bitte Export-Format auswählen.\r\n\r\n(CSV | TEXT | HTML)"_s,
                                                 MessageIcon::Critical);
        m_ui->chk_csv->setFocus();
        return;
    }
    const QString path = m_chooser(this, u"Bitte Export Datei angeben ..."_s, ExportFolder(),
                                   u"Heftarium-Exportdatei (*.%1)"_s.arg(suffix), suffix);
    if (path.isEmpty()) {
        m_ui->txt_result->setPlainText(u"Keine Export Datei ausgewählt."_s);
        m_ui->btn_choose->setFocus();
        return;
    }
    // The extension with its point: the base name is the file name less as
    // many characters.
    RunExport(path, static_cast<int>(suffix.size()) + 1);
}

void ExportDialog::RunExport(const QString& path, int extensionLength)
{
    m_busy = true;
    setEnabled(false);
    m_ui->txt_result->clear();
    const QFileInfo file(path);
    const ExportTarget target{file.absolutePath(),
                              file.fileName().chopped(qMin<qsizetype>(extensionLength, file.fileName().size()))};
    ExportOptions options;
    options.csv = m_ui->chk_csv->isChecked();
    options.text = m_ui->chk_text->isChecked();
    options.html = m_ui->chk_html->isChecked();
    options.details = m_ui->chk_details->isChecked();
    options.gelesen = m_ui->chk_gelesen->isChecked();
    options.zyklus = m_ui->chk_zyklus->isChecked();

    auto* bar = m_window.findChild<QProgressBar*>(u"pbar_load"_s);
    QElapsedTimer sinceEvents;
    sinceEvents.start();
    const ExportFeedback feedback{[this](const QString& text) { m_window.SetStatusPanel(5, text); },
                                  [this](int maximum) { m_window.StartProgress(maximum); },
                                  [bar, &sinceEvents](int value) {
                                      // The bar and the window follow a few times a second; each
                                      // row on its own would cost more than the export itself.
                                      if (sinceEvents.elapsed() < EventRoundMs)
                                          return;
                                      bar->setValue(qMin(value, bar->maximum()));
                                      QCoreApplication::processEvents();
                                      sinceEvents.restart();
                                  },
                                  [this] { m_window.FinishProgress(250); }};
    const QString result = RunExportChain(m_window.CurrentSession(), ActiveList(m_window), target, options, feedback);

    // The box shows the lines; the text itself keeps CR LF.
    m_ui->txt_result->setPlainText(QString(result).replace(u"\r\n"_s, u"\n"_s));
    setEnabled(true);
    m_window.SetStatusPanel(5, u"Fertig und Bereit."_s);
    m_window.FinishProgress(250);
    m_busy = false;
    m_ui->btn_ok->setFocus();
}

void ExportDialog::reject()
{
    if (!m_busy)
        QDialog::reject();
}

void ExportDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        reject();
    else
        QDialog::keyPressEvent(event);
}

void InstallExportWindow(MainWindow& window, ExportFileChooser chooser)
{
    window.SetCommandHandler(u"mnu_export"_s, [&window, chooser] {
        ExportDialog dialog(window, chooser);
        dialog.exec();
    });
}

} // namespace heft
