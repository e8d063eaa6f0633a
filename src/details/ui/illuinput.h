#pragma once
// frm_illuinput: asks for the page of a dropped illustration.

#include <QDialog>

class QLineEdit;

namespace heft {

class IlluInput : public QDialog {
    Q_OBJECT

public:
    explicit IlluInput(QWidget* parent);
    // What the box holds after the window hid: three digits or empty.
    QString Page() const;

private:
    void OkClick();
    void CancelClick();

    QLineEdit* m_page;
};

// Shows the window modally and gives its answer.
QString AskIllustrationPage(QWidget* parent);

} // namespace heft
