#pragma once
// frm_import: the user picks an exchange file, the import runs line by line
// and the window shows what was taken and what was refused. Esc stops a
// running import after its line; Esc when nothing runs closes the window.

#include "exchange/importengine.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class ImportWindow;
}

namespace heft {

class MainWindow;

class ImportWindow : public QDialog, private ImportObserver {
    Q_OBJECT

public:
    // Shows the open dialog in `folder`; an empty path means cancelled.
    using FileChooser = std::function<QString(QWidget* parent, const QString& folder)>;

    explicit ImportWindow(MainWindow& window);
    ~ImportWindow() override;

    // Tests hand in their own choice instead of the file dialog.
    void SetFileChooser(FileChooser chooser) { m_chooser = std::move(chooser); }
    // Where the open dialog starts: the data folder's "import" at first,
    // then the folder of the file chosen last.
    QString ImportFolder() const { return m_folder; }

    // Closing the window in any way also stops an import under way.
    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ChooseImportFile();
    void OpenImportFolder();
    void ShowTexts();
    // btn_webupdate: asks for a range, then fetches it from the wiki into a
    // pair of files in the import folder (importwebupdate.cpp).
    void WebUpdate();

    void Started(qint64 maximum) override;
    bool LineDone(qint64 position) override;
    void ListImport(bool running) override;
    void CycleFileFound() override;
    void Finished() override;

    std::unique_ptr<Ui::ImportWindow> m_ui;
    MainWindow& m_window;
    FileImport m_import;
    FileChooser m_chooser;
    QString m_folder;
    // Set by Esc; the import looks at it after every line.
    bool m_abort = false;
    // No import under way.
    bool m_idle = true;
};

// Gives the main command mnu_import its window.
void InstallImportWindow(MainWindow& window);

} // namespace heft
