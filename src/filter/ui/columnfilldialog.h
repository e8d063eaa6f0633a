#pragma once
// frm_insertfill: the user picks a target and a value and fills it into
// every entry of the filter list. The window stays open for the next fill;
// Esc stops a running fill at the next row, and Esc when nothing runs
// closes the window.

#include <QDialog>

#include <memory>

namespace Ui {
class ColumnFillDialog;
}

namespace heft {

class MainWindow;
struct FillRequest;

class ColumnFillDialog : public QDialog {
    Q_OBJECT

public:
    explicit ColumnFillDialog(MainWindow& window);
    ~ColumnFillDialog() override;

    // Closing the window in any way also stops a fill under way.
    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int Target() const;
    // cmb_choose: shows the value input of the target alone.
    void ChooseClick();
    // btn_ok: reads the value, refuses a cycle that isn't one once, and
    // runs the fill.
    void FillClick();
    bool ReadRequest(FillRequest& request);
    void Run(const FillRequest& request);

    std::unique_ptr<Ui::ColumnFillDialog> m_ui;
    MainWindow& m_window;
    // Set by Esc; the walk looks at it after every row.
    bool m_abort = false;
    // No fill under way: Esc may close the window, btn_ok may start one.
    bool m_finished = true;
    // After a refused cycle txt_1 has the focus when the Enter that pressed
    // btn_ok comes up; that Enter must not send the focus back.
    bool m_swallowEnter = false;
};

// Shows frm_insertfill modal over the main window.
void ShowColumnFill(MainWindow& window);

} // namespace heft
