#pragma once
// frm_print: chooses the matrix, the whole list or the filter list and a
// range, and sends the pages to the preview, the printer or a PDF file in
// the export folder. It stays open beside the main window.

#include "print/printjob.h"

#include <QDialog>

#include <memory>

class QPrinter;

namespace Ui {
class PrintWindow;
}

namespace heft {

class MainWindow;
class PrintPage;

class PrintWindow : public QDialog {
    Q_OBJECT

public:
    explicit PrintWindow(MainWindow& main);
    ~PrintWindow() override;

    // True while pages are being drawn; Esc then aborts instead of closing.
    bool IsRunning() const { return m_page != nullptr; }
    // The request the controls stand for.
    PrintRequest Request() const;
    // Where "Als PDF speichern" writes the pages.
    QString PdfPath() const;

    void PreviewClick();
    void PrintClick();
    void PdfClick();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void reject() override;

private:
    void FillControls();
    void ListChoiceChanged(int index);
    void FromIndexChanged(int index);
    void ToIndexChanged(int index);
    void ClampRange(bool fromEdited);
    void ZustandChanged();
    void PreparePrinter(QPrinter& printer) const;
    // Draws every page onto the printer; false when the run was aborted.
    // cancelJob: an aborted run cancels the printer's job (a preview has
    // none, a PDF file is removed by the caller).
    bool RunPages(QPrinter& printer, const QString& word, bool cancelJob);

    MainWindow& m_main;
    std::unique_ptr<Ui::PrintWindow> m_ui;
    std::unique_ptr<QPrinter> m_previewPrinter;
    PrintPage* m_page = nullptr;
    bool m_lastRunAborted = false;
};

} // namespace heft
