#pragma once
// frm_editzyk: changes one cycle of the cycle window or makes the next one.
// It reads its values from the window's grid, writes the cycle file, and
// puts what it wrote back into the grid, so the list needs no reload.

#include "cycles/cycleedit.h"

#include <QDialog>

#include <memory>

class QLineEdit;

namespace Ui {
class CycleEditor;
}

namespace heft {

class CycleWindow;

class CycleEditor : public QDialog {
    Q_OBJECT

public:
    // existing: the current line of the grid; else a new cycle after the last.
    CycleEditor(CycleWindow& window, bool existing);
    ~CycleEditor() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* Box(CycleBox box) const;
    CycleRow Typed() const;
    void Show(const CycleRow& row);
    // btn_ok: checks, writes and closes; a failed check keeps the window.
    void AcceptClick();
    void UpdateGrid(const CycleRow& row);

    std::unique_ptr<Ui::CycleEditor> m_ui;
    // The boxes in the order of the record's fields.
    std::array<QLineEdit*, CycleFieldCount> m_boxes{};
    CycleWindow& m_window;
    bool m_existing;
};

} // namespace heft
