#pragma once
// The "Status" tab of the detail window: the nineteen attributes of one
// entry in liv_status, edited in place by a text box or a combo box that
// float over the row's value. The list holds the values as shown; the
// detail window's save reads them back in their stored form.

#include <QWidget>

class QComboBox;
class QKeyEvent;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace heft {

class Session;

class StatusPanel : public QWidget {
    Q_OBJECT

public:
    explicit StatusPanel(Session& session, QWidget* parent = nullptr);

    // In view mode nothing opens an editor.
    void SetEditMode(bool edit);
    // Nineteen rows in ENum order with the entry's values, as shown.
    void LoadStatusList(int nr);
    // Closes an open editor without taking its text.
    void HideFloatEditors();
    bool IsEditorOpen() const;
    // The row's value in the form it is written to StatusWert (unquoted).
    QString StoredValue(int enumber) const;
    void SetRowValue(int enumber, const QString& shown);

Q_SIGNALS:
    void Changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTreeWidgetItem* Row(int enumber) const;
    QString RowValue(int enumber) const;
    // Opens the attribute's editor on the selected row.
    void EditStatusRow();
    void FillStatusCombo(int enumber);
    void PlaceEditor(QWidget* editor, QTreeWidgetItem* item);
    void SetRowBold(int enumber, bool bold);
    // Validates the text for the row being edited and takes it when valid.
    bool CommitStatusValue(const QString& text);
    bool EditorKey(QWidget* editor, const QKeyEvent& key);

    Session& m_session;
    QTreeWidget* m_list;
    QLineEdit* m_text;
    QComboBox* m_combo;
    bool m_editMode = false;
    int m_editRow = 0; // ENum of the row an editor is open on; 0 when none
};

} // namespace heft
