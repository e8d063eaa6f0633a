#pragma once
// frm_filter: the user sets up to three criteria rows, joined by UND, ODER
// or EXOR, and runs them into the filter list of the main window. The window
// decides which value editor a row shows, which comparison words it offers
// and when btn_ausf may be pressed; the statement itself comes from the
// FilterGenerator.

#include "filter/filtergenerator.h"

#include <QDialog>

#include <array>
#include <memory>

class QComboBox;
class QDateEdit;
class QKeyEvent;
class QLineEdit;
class QPushButton;

namespace Ui {
class FilterDialog;
}

namespace heft {

struct FilterState;
class MainWindow;

class FilterDialog : public QDialog {
    Q_OBJECT

public:
    FilterDialog(MainWindow& window, FilterState& state);
    ~FilterDialog() override;

    // Whether btn_ausf may run the rows as they stand. Only text boxes are
    // looked at, and the field of row 0 alone says whether a blank text is
    // acceptable, for every row.
    bool IsFilterComplete() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The controls of one criteria row.
    struct Row {
        QComboBox* choose;
        QComboBox* ver;
        QLineEdit* text;
        QComboBox* univ;
        QComboBox* aufl;
        QComboBox* gel;
        QDateEdit* date;
        QComboBox* logic;

        // The five value editors; at most one of them shows.
        std::array<QWidget*, 5> Editors() const;
        // What a row closes when the row before loses its joining word.
        std::array<QWidget*, 7> Closing() const;
    };

    void SetupRows();
    void SetupArchiveFrame();
    void ChooseClick(int row);
    void VerClick(int row);
    void LogicClick(int row);
    void ConfigureRowEditors(int row, QWidget* editor);
    void ShowTextEditor(int row);
    void FillValueList(int row);
    void FocusAfterEnter(int row);
    // btn_ausf: runs the enabled rows; on success the filter list is shown
    // and the window closes, otherwise it stays open as it is.
    void Run();
    bool TakeResult(const FilterOutcome& outcome);

    bool TextKeyAccepted(int row, const QKeyEvent& key) const;
    void TextKeyReleased(int row, const QKeyEvent& key);
    int RowOf(QObject* control) const;
    int Field(int row) const;

    std::unique_ptr<Ui::FilterDialog> m_ui;
    MainWindow& m_window;
    FilterState& m_state;
    FilterGenerator m_generator;
    std::array<Row, 3> m_rows{};
    // Set when a cycle value was refused, so that the release of the Enter
    // that ran the command does not send the focus back to btn_ausf.
    bool m_enterSuppressed = false;
};

} // namespace heft
