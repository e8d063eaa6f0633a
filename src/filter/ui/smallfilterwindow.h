#pragma once
// frm_smfilter: shows the sentence of the filter in force, read-only; Esc
// closes it.

#include <QDialog>

#include <memory>

namespace Ui {
class SmallFilterWindow;
}

namespace heft {

class SmallFilterWindow : public QDialog {
    Q_OBJECT

public:
    SmallFilterWindow(const QString& filterText, QWidget* parent);
    ~SmallFilterWindow() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<Ui::SmallFilterWindow> m_ui;
};

} // namespace heft
