#pragma once
// frm_goto: jumps to the entry of a typed number in the active list.

#include <QDialog>

#include <memory>

namespace Ui {
class GotoDialog;
}

namespace heft {

class MainWindow;

class GotoDialog : public QDialog {
    Q_OBJECT

public:
    explicit GotoDialog(MainWindow& window);
    ~GotoDialog() override;

private:
    // OKButton: shows the entry and closes, or tells why not and stays open.
    void Search();

    std::unique_ptr<Ui::GotoDialog> m_ui;
    MainWindow& m_window;
};

// Shows frm_goto modal over the main window.
void ShowGotoDialog(MainWindow& window);

} // namespace heft
