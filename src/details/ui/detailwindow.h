#pragma once
// frm_detail: everything about one entry that the list row doesn't show,
// on four tabs: texts and persons, artists and pictures, the attributes and
// the links. It works on the current entry of the active list as it was
// when the window opened. In view mode nothing can be changed; in edit mode
// "Details Speichern" writes all four tables of the entry.

#include <QDialog>

#include <memory>

class QDate;
class QKeyEvent;
class QPlainTextEdit;

namespace Ui {
class DetailWindow;
}

namespace heft {

class EntryList;
class LinksPanel;
class PicturePanel;
class Session;
class StatusPanel;
struct DetailValues;
struct DetailsRow;
struct GestaltungRow;

class DetailWindow : public QDialog {
    Q_OBJECT

public:
    DetailWindow(Session& session, EntryList& list, bool editMode, QWidget* parent = nullptr);
    ~DetailWindow() override;

    // Closing with unsaved changes in edit mode asks first.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void SetupControls();
    void LimitTyping(QPlainTextEdit* box, int maximum);
    void ApplyMode();
    void Load();
    void LoadDetailsRow(const DetailsRow& row);
    void SuggestErstdatum();
    void LoadGestaltungRow(const GestaltungRow& row);
    void FillArtistCombos();
    void ShowSections(bool texte, bool bilder, bool status, bool links);
    void TabChanged(int tab);
    // The picker's own changes mark the window changed; the program's don't.
    void SetPickerDate(const QDate& date);
    void ValidToggled(bool valid);
    void RizeClicked(bool checked);
    void ToggleContentSize();
    void MarkDetailsChanged();
    // btn_ok: writes the entry's details; the window stays open.
    void Save();
    void RefreshLastChange();
    DetailValues ShownValues() const;
    // Keys of the text and name boxes; true when the key is used up.
    bool KeyPressed(QObject* watched, const QKeyEvent* key);

    std::unique_ptr<Ui::DetailWindow> m_ui;
    Session& m_session;
    StatusPanel* m_status = nullptr;
    LinksPanel* m_links = nullptr;
    PicturePanel* m_pictures = nullptr;
    const bool m_editMode;
    int m_nr = 0;
    bool m_dirty = false;
    bool m_largeContent = false;
    // While the window itself puts texts into the boxes.
    bool m_settingText = false;
    int m_lastTab = 0;
};

} // namespace heft
