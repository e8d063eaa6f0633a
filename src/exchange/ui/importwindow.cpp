#include "importwindow.h"
#include "ui_importwindow.h"

#include "core/session.h"
#include "mainwin/ui/mainwindow.h"

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QProgressBar>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

QString ChooseWithDialog(QWidget* parent, const QString& folder)
{
    return QFileDialog::getOpenFileName(parent, u"Bitte Import Datei auswählen ..."_s, folder,
                                        u"Heftarium-Importdatei (*.dat)"_s);
}

} // namespace

ImportWindow::ImportWindow(MainWindow& window)
    : QDialog(&window), m_ui(std::make_unique<Ui::ImportWindow>()), m_window(window),
      m_import(window.CurrentSession(), window.List(), *this), m_chooser(ChooseWithDialog),
      m_folder(QDir(window.CurrentSession().DataFolder).filePath(u"import"_s))
{
    m_ui->setupUi(this);
    setWindowTitle(ImportCaption());
    const Configuration& config = window.CurrentSession().Config;
    m_ui->frm_options->setTitle(u"Einstellungen für die %1 Liste"_s.arg(config.ListKind));
    m_ui->cmb_whatlist->addItems({u"Nein, keine (INS)"_s, u"Alle Spalten (UPD)"_s, u"Nur Importierte (UPD)"_s});
    m_ui->cmb_whatlist->setCurrentIndex(0);
    // The reports stand in columns.
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_ui->txt_bericht->setFont(fixed);
    m_ui->txt_fehler->setFont(fixed);
    resize(1060, 700);
    connect(m_ui->btn_choose, &QPushButton::clicked, this, &ImportWindow::ChooseImportFile);
    connect(m_ui->btn_impdir, &QPushButton::clicked, this, &ImportWindow::OpenImportFolder);
    connect(m_ui->btn_verlassen, &QPushButton::clicked, this, &ImportWindow::reject);
    // The wiki knows only the issues of the shipped series.
    m_ui->btn_webupdate->setEnabled(config.SeriesName == u"Valdorin" && config.ListKind == u"Heftromane");
    connect(m_ui->btn_webupdate, &QPushButton::clicked, this, &ImportWindow::WebUpdate);
}

ImportWindow::~ImportWindow() = default;

void ImportWindow::ChooseImportFile()
{
    if (!m_idle)
        return;
    const QString path = m_chooser(this, m_folder);
    if (path.isEmpty()) {
        m_ui->txt_fehler->setPlainText(u"Keine Fehler."_s);
        m_ui->txt_bericht->setPlainText(u"Keine Import Datei ausgewählt."_s);
        m_ui->btn_choose->setFocus();
        return;
    }
    m_folder = QFileInfo(path).absolutePath();
    m_idle = false;
    m_abort = false;
    m_import.ImportChosenFile(path, static_cast<ImportMode>(m_ui->cmb_whatlist->currentIndex()),
                              m_ui->chk_mitDetails->isChecked());
    ShowTexts();
    m_idle = true;
}

void ImportWindow::ShowTexts()
{
    const ImportTexts& texts = m_import.Texts();
    if (!texts.caption.isEmpty())
        m_ui->frm_bericht->setTitle(texts.caption);
    m_ui->txt_bericht->setPlainText(texts.bericht);
    m_ui->txt_fehler->setPlainText(texts.fehler);
}

void ImportWindow::OpenImportFolder() { QDesktopServices::openUrl(QUrl::fromLocalFile(m_folder)); }

void ImportWindow::Started(qint64 maximum)
{
    m_abort = false;
    m_ui->txt_bericht->clear();
    m_ui->txt_fehler->clear();
    QCoreApplication::processEvents();
    m_window.SetStatusPanel(5, u"Importiere Einträge ..."_s);
    m_window.StartProgress(static_cast<int>(maximum));
}

bool ImportWindow::LineDone(qint64 position)
{
    if (auto* bar = m_window.findChild<QProgressBar*>(u"pbar_load"_s))
        bar->setValue(static_cast<int>(position));
    QCoreApplication::processEvents();
    return !m_abort;
}

void ImportWindow::ListImport(bool running)
{
    // The list neither takes input nor draws while rows are added one by one.
    if (auto* view = m_window.findChild<QWidget*>(u"fg_heftliste"_s)) {
        view->setUpdatesEnabled(!running);
        view->setEnabled(!running);
    }
}

void ImportWindow::CycleFileFound()
{
    // The cycle window shows the cycles as they come in, if the program has one.
    QAction* cycles = m_window.Command(u"mnu_zyklus"_s);
    if (cycles != nullptr && cycles->isEnabled())
        cycles->trigger();
}

void ImportWindow::Finished()
{
    m_window.SetStatusPanel(5, u"Fertig und Bereit."_s);
    m_window.FinishProgress(250);
}

void ImportWindow::done(int result)
{
    m_abort = true;
    QDialog::done(result);
}

void ImportWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) {
        QDialog::keyPressEvent(event);
        return;
    }
    m_abort = true;
    if (m_idle)
        reject();
}

void InstallImportWindow(MainWindow& window)
{
    window.SetCommandHandler(u"mnu_import"_s, [&window] {
        ImportWindow dialog(window);
        dialog.exec();
    });
}

} // namespace heft
