#pragma once
// frm_editlink: number, text and series of one link. It only collects the
// three values; the links panel decides where they go.

#include "linkspanel.h"

#include <QDialog>

#include <memory>

namespace Ui {
class EditLinkDialog;
}

namespace heft {

class EditLinkDialog : public QDialog {
    Q_OBJECT

public:
    // The boxes start with the values of link.
    explicit EditLinkDialog(const LinkRow& link, QWidget* parent = nullptr);
    ~EditLinkDialog() override;

    // The values as accepted.
    LinkRow Link() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // btn_ok: a number below 1 keeps the dialog open on the number box.
    void AcceptLink();

    std::unique_ptr<Ui::EditLinkDialog> m_ui;
};

} // namespace heft
