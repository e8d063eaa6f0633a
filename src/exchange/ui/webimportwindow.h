#pragma once
// frm_webimport: asks for the range of issue numbers and whether covers and
// illustrations are to be fetched. It only asks; the import window runs
// the import when this window was left with btn_webimport.

#include "exchange/webimport.h"
#include "exchange/webrange.h"

#include <QDialog>

#include <memory>

class QLineEdit;
class QSpinBox;

namespace Ui {
class WebImportWindow;
}

namespace heft {

class WebImportWindow : public QDialog {
    Q_OBJECT

public:
    // lastNr: the number in the last row of the active list.
    WebImportWindow(QWidget* parent, int lastNr);
    ~WebImportWindow() override;

    // The range and choices as they stand; the import folder is left empty.
    WebImportRequest Request() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    WebRangeTexts Texts() const;
    void ShowTexts(const WebRangeTexts& range);
    void Stepped(QSpinBox* upDown, QLineEdit* box, int value);
    void Checked(QLineEdit* box);
    // Whether a key reaches a number box: digits, Backspace and keys that
    // type nothing; Enter and Esc press the buttons instead.
    bool KeyPasses(QKeyEvent* event);

    std::unique_ptr<Ui::WebImportWindow> m_ui;
};

} // namespace heft
