#include "printwindow.h"
#include "ui_printwindow.h"

#include "print/printpage.h"

#include "core/session.h"
#include "core/textfuncs.h"
#include "filter/ui/filtermode.h"
#include "mainwin/imageloading.h"
#include "mainwin/ui/mainwindow.h"

#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProgressBar>
#include <QRegularExpressionValidator>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

constexpr int StatusPanel = 5;

} // namespace

PrintWindow::PrintWindow(MainWindow& main)
    : QDialog(&main, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      m_main(main), m_ui(std::make_unique<Ui::PrintWindow>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    // The decoration takes the colour of the window's buttons.
    m_ui->pic_fromto->setAutoFillBackground(true);
    m_ui->pic_fromto->setBackgroundRole(QPalette::Button);
    auto* digits = new QRegularExpressionValidator(QRegularExpression(u"[0-9]*"_s), this);
    for (QLineEdit* box : {m_ui->txt_from, m_ui->txt_to}) {
        box->setValidator(digits);
        connect(box, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    }
    connect(m_ui->txt_from, &QLineEdit::editingFinished, this, [this] { ClampRange(true); });
    connect(m_ui->txt_to, &QLineEdit::editingFinished, this, [this] { ClampRange(false); });
    connect(m_ui->cmb_liste, &QComboBox::currentIndexChanged, this, &PrintWindow::ListChoiceChanged);
    connect(m_ui->cmb_from, &QComboBox::currentIndexChanged, this, &PrintWindow::FromIndexChanged);
    connect(m_ui->cmb_to, &QComboBox::currentIndexChanged, this, &PrintWindow::ToIndexChanged);
    connect(m_ui->chk_zustand, &QCheckBox::toggled, this, &PrintWindow::ZustandChanged);
    connect(m_ui->btn_preview, &QPushButton::clicked, this, &PrintWindow::PreviewClick);
    connect(m_ui->btn_print, &QPushButton::clicked, this, &PrintWindow::PrintClick);
    connect(m_ui->btn_pdf, &QPushButton::clicked, this, &PrintWindow::PdfClick);
    FillControls();
    adjustSize();
    move(main.geometry().center() - rect().center());
}

PrintWindow::~PrintWindow() = default;

void PrintWindow::FillControls()
{
    const EntryList& list = m_main.List();
    m_ui->cmb_liste->addItems({u"-Matrix-"_s, u"-Liste-"_s});
    if (m_main.IsFilterMode() && IsNumeric(list.Filter.TextMatrix(1, ColNr)))
        m_ui->cmb_liste->addItem(u"-Filter-"_s);
    m_ui->txt_from->setText(QString::number(list.LowestNr));
    m_ui->txt_to->setText(QString::number(list.HighestNr));
    m_ui->cmb_from->addItems(MatrixFromItems(list.HighestNr));
    m_ui->cmb_to->addItems(MatrixToItems(list.HighestNr));
    m_ui->cmb_liste->setCurrentIndex(0);
    ListChoiceChanged(0);
}

void PrintWindow::ListChoiceChanged(int index)
{
    const bool matrix = index == static_cast<int>(PrintKind::Matrix);
    const bool wholeList = index == static_cast<int>(PrintKind::WholeList);
    for (QWidget* box : {static_cast<QWidget*>(m_ui->cmb_from), static_cast<QWidget*>(m_ui->cmb_to)}) {
        box->setVisible(matrix);
        box->setEnabled(matrix);
    }
    for (QLineEdit* box : {m_ui->txt_from, m_ui->txt_to}) {
        box->setVisible(!matrix);
        box->setEnabled(wholeList);
    }
    for (QCheckBox* option : {m_ui->chk_savem, m_ui->chk_auflage, m_ui->chk_zustand})
        option->setEnabled(matrix);
    m_ui->chk_zust_immer->setEnabled(matrix && m_ui->chk_zustand->isChecked());
}

void PrintWindow::FromIndexChanged(int index)
{
    if (index > m_ui->cmb_to->currentIndex())
        m_ui->cmb_to->setCurrentIndex(index);
}

void PrintWindow::ToIndexChanged(int index)
{
    if (index < m_ui->cmb_from->currentIndex())
        m_ui->cmb_from->setCurrentIndex(index);
}

void PrintWindow::ClampRange(bool fromEdited)
{
    const EntryList& list = m_main.List();
    QLineEdit* edited = fromEdited ? m_ui->txt_from : m_ui->txt_to;
    QLineEdit* other = fromEdited ? m_ui->txt_to : m_ui->txt_from;
    const int value = MinOf(MaxOf(static_cast<int>(Val(edited->text())), list.LowestNr), list.HighestNr);
    edited->setText(QString::number(value));
    if (Val(m_ui->txt_from->text()) > Val(m_ui->txt_to->text()))
        other->setText(edited->text());
}

void PrintWindow::ZustandChanged()
{
    m_ui->chk_zust_immer->setEnabled(m_ui->chk_zustand->isChecked() && m_ui->chk_zustand->isEnabled());
}

PrintRequest PrintWindow::Request() const
{
    const EntryList& list = m_main.List();
    PrintRequest request;
    request.kind = static_cast<PrintKind>(m_ui->cmb_liste->currentIndex());
    request.landscape = m_ui->chk_landscape->isChecked();
    request.highestNr = list.HighestNr;
    switch (request.kind) {
    case PrintKind::Matrix:
        request.from = static_cast<int>(Val(m_ui->cmb_from->currentText()));
        request.to = static_cast<int>(Val(m_ui->cmb_to->currentText()));
        request.matrix = {m_ui->chk_savem->isChecked(), m_ui->chk_auflage->isChecked(),
                          m_ui->chk_zustand->isChecked(), m_ui->chk_zust_immer->isChecked()};
        request.logo = LoadConfiguredImage(PrintLogoPath(m_main.CurrentSession()), PrintLogoPixels).image;
        break;
    case PrintKind::WholeList:
        request.from = static_cast<int>(Val(m_ui->txt_from->text()));
        request.to = static_cast<int>(Val(m_ui->txt_to->text()));
        break;
    case PrintKind::FilterList: {
        const EntryGridModel& rows = list.Filter.Model();
        request.filterRows.resize(static_cast<size_t>(rows.rowCount()));
        for (int row = 0; row < rows.rowCount(); ++row)
            for (int column = 0; column < EntryColumnCount; ++column)
                request.filterRows[static_cast<size_t>(row)][static_cast<size_t>(column)] = rows.Text(row, column);
        if (const FilterState* filter = FilterStateOf(m_main))
            request.filterText = filter->FilterText;
        break;
    }
    }
    return request;
}

QString PrintWindow::PdfPath() const
{
    const Session& session = m_main.CurrentSession();
    const auto kind = static_cast<PrintKind>(m_ui->cmb_liste->currentIndex());
    return QDir(session.DataFolder).filePath(u"export/"_s + PrintTitle(session, kind) + u".pdf"_s);
}

void PrintWindow::PreparePrinter(QPrinter& printer) const
{
    const auto kind = static_cast<PrintKind>(m_ui->cmb_liste->currentIndex());
    printer.setDocName(PrintTitle(m_main.CurrentSession(), kind));
    // The pages place everything from the paper's corner themselves.
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(m_ui->chk_landscape->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait);
}

bool PrintWindow::RunPages(QPrinter& printer, const QString& word, bool cancelJob)
{
    QPainter painter;
    if (!painter.begin(&printer)) {
        m_main.SetStatusPanel(StatusPanel, u"Der Drucker ist nicht bereit."_s);
        m_lastRunAborted = true;
        return false;
    }
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    PrintPage page(painter, &printer, layout.fullRect(QPageLayout::Millimeter).size(), layout.minimumMargins());
    m_page = &page;
    PrintFeedback feedback;
    feedback.status = [this](const QString& text) { m_main.SetStatusPanel(StatusPanel, text); };
    feedback.startProgress = [this](int maximum) { m_main.StartProgress(maximum); };
    feedback.progress = [this](int value) {
        if (auto* bar = m_main.findChild<QProgressBar*>(u"pbar_load"_s))
            bar->setValue(value);
    };
    feedback.letEventsRun = [] { QCoreApplication::processEvents(); };
    feedback.finishProgress = [this] { m_main.FinishProgress(0); };
    PrintOrPreview(m_main.CurrentSession(), page, Request(), word, feedback);
    m_page = nullptr;
    m_lastRunAborted = page.Aborted();
    if (m_lastRunAborted && cancelJob)
        printer.abort();
    painter.end();
    return !m_lastRunAborted;
}

void PrintWindow::PreviewClick()
{
    if (IsRunning())
        return;
    m_previewPrinter = std::make_unique<QPrinter>(QPrinter::HighResolution);
    PreparePrinter(*m_previewPrinter);
    auto* preview = new QPrintPreviewDialog(m_previewPrinter.get(), this);
    preview->setObjectName(u"frm_preview"_s);
    preview->setWindowTitle(m_previewPrinter->docName());
    preview->setAttribute(Qt::WA_DeleteOnClose);
    connect(preview, &QPrintPreviewDialog::paintRequested, this,
            [this](QPrinter* printer) { RunPages(*printer, u"vorschau"_s, false); });
    // The pages are drawn before the preview shows, so that an aborted run
    // or an empty range shows no preview at all.
    preview->findChild<QPrintPreviewWidget*>()->updatePreview();
    if (m_lastRunAborted) {
        delete preview;
        return;
    }
    const QRect screen = this->screen()->availableGeometry();
    preview->resize(screen.width() * 3 / 4, screen.height() * 9 / 10);
    preview->open();
}

void PrintWindow::PrintClick()
{
    if (IsRunning())
        return;
    QPrinter printer(QPrinter::HighResolution);
    PreparePrinter(printer);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        RunPages(printer, u"erdaten"_s, true);
}

void PrintWindow::PdfClick()
{
    if (IsRunning())
        return;
    const QString path = PdfPath();
    QDir(m_main.CurrentSession().DataFolder).mkpath(u"export"_s);
    QPrinter printer(QPrinter::HighResolution);
    PreparePrinter(printer);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    if (RunPages(printer, u"erdaten"_s, false))
        m_main.SetStatusPanel(StatusPanel, u"PDF gespeichert: "_s + QDir::toNativeSeparators(path));
    else
        QFile::remove(path);
}

void PrintWindow::keyPressEvent(QKeyEvent* event)
{
    // Enter in a range box moves on instead of pressing a button.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return;
    QDialog::keyPressEvent(event);
}

void PrintWindow::reject()
{
    // Esc while pages are drawn stops the run; otherwise it closes.
    if (m_page != nullptr) {
        m_page->Abort();
        return;
    }
    QDialog::reject();
}

} // namespace heft
