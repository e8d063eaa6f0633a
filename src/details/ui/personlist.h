#pragma once
// liv_personen: the nine persons of an entry, one name per row, with the
// floating name box cmb_floatP. Enter or a double click opens the box on
// the row, offering every name used so far; with Shift held the row is
// edited in place instead. Only in edit mode.

#include <QTreeWidget>

class QComboBox;

namespace heft {

class Session;

class PersonList : public QTreeWidget {
    Q_OBJECT

public:
    explicit PersonList(QWidget* parent = nullptr);

    void SetSession(Session& session) { m_session = &session; }
    void SetEditMode(bool edit);

    // LoadDetailsRow adds the stored names, AddEmptyPersonRows nine empty
    // rows; the column grows to the widest name either way.
    void AddPersonRow(const QString& name);
    void AddEmptyPersonRows();
    QStringList Names() const;

    void ShowPersonCombo(int row);
    // Shown by the user, even while its tab is in the background.
    bool IsComboOpen() const;
    // The box's text goes into the row it was opened on (as by Enter).
    void TakeComboText();
    // The box goes, its text is dropped (as by Esc).
    void HideCombo();
    // Marks the change and widens the column for the new name.
    void FitPersonColumn(const QString& name);

Q_SIGNALS:
    void Changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    // Enter or a double click on the row: the box, or with Shift (inPlace)
    // the row itself, takes the name.
    void EditRow(int row, bool inPlace);
    void NameEdited(QTreeWidgetItem* item);
    int TextWidthTwips(const QString& name) const;
    void SetColumnTwips(int twips);

    QComboBox* m_combo = nullptr;
    Session* m_session = nullptr;
    bool m_editMode = false;
    int m_editRow = 0;
};

} // namespace heft
