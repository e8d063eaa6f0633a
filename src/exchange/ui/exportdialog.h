#pragma once
// frm_export: the user picks what to export and in which formats, names the
// file in a save dialog, and reads the result. The window exports the
// active list of the main window, the filter list when a filter is in force.

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class ExportDialog;
}

namespace heft {

class MainWindow;

// Asks for the file to write: parent, title, start folder, file filter and
// the suffix a name without one gets. An empty text is a cancel.
using ExportFileChooser = std::function<QString(QWidget* parent, const QString& title, const QString& folder,
                                                const QString& filter, const QString& suffix)>;

class ExportDialog : public QDialog {
    Q_OBJECT

public:
    // Without a chooser the platform's save dialog asks.
    explicit ExportDialog(MainWindow& window, ExportFileChooser chooser = {});
    ~ExportDialog() override;

    // Nothing closes the window while an export runs.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    // btn_choose: the first checked format decides the dialog.
    void ChooseClick();
    void RunExport(const QString& path, int extensionLength);
    void OpenFolderClick();
    QString ExportFolder() const;

    std::unique_ptr<Ui::ExportDialog> m_ui;
    MainWindow& m_window;
    ExportFileChooser m_chooser;
    bool m_busy = false;
};

// Gives the main window's "mnu_export" its work: frm_export, modal.
void InstallExportWindow(MainWindow& window, ExportFileChooser chooser = {});

} // namespace heft
