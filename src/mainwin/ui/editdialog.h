#pragma once
// frm_edit: one dialog for changing the selected entry and for adding a new
// one. It checks what was typed and leaves it, quoted for SQL, in the
// session's EntryRecord; EditEntry does the writing.

#include <QDialog>

#include <memory>

class QLineEdit;

namespace Ui {
class EditDialog;
}

namespace heft {

class MainWindow;
class Session;

class EditDialog : public QDialog {
    Q_OBJECT

public:
    // Reads the current row of the active list (session.OldNr and the values
    // a new entry starts from) and fills the controls for session.EditMode
    // and session.EditRetry.
    explicit EditDialog(MainWindow& window);
    ~EditDialog() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FillControls(MainWindow& window);
    // cmd_ok: a failed check keeps the dialog open with a beep and no message.
    void AcceptEntry();
    bool CheckCycle();
    void Refuse(QLineEdit* box, bool selectAll);

    std::unique_ptr<Ui::EditDialog> m_ui;
    Session& m_session;
};

} // namespace heft
