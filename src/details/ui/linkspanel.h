#pragma once
// The "Links" tab of the detail window: up to fifteen links from the entry
// to other entries, edited in liv_links and written by the window's save in
// the order the list shows them.

#include <QList>
#include <QString>
#include <QWidget>

#include <optional>

class QPushButton;
class QTreeWidget;

namespace heft {

class EntryList;
class Session;

struct LinkRow {
    int number;     // the target entry
    QString text;
    QString series; // the target's list as "{SeriesName} {ListKind}"
};

class LinksPanel : public QWidget {
    Q_OBJECT

public:
    // A link into the open list can be followed in list.
    LinksPanel(Session& session, EntryList& list, QWidget* parent = nullptr);

    // In view mode the links can be read and followed, not changed.
    void SetEditMode(bool edit);
    void LoadLinksList(int nr);
    // In the order shown, which a header click may have changed.
    QList<LinkRow> Links() const;
    void FocusList();

Q_SIGNALS:
    void Changed();

private:
    QString OpenListName() const;
    bool FollowsOpenList() const;
    void RefreshButtons();
    void EnableLinkButtons(bool enable);
    void UpdateGotoButton();
    void SortLinks(int column);
    std::optional<LinkRow> AskLink(const LinkRow& start);
    void AddLink();
    void EditLink();
    void DeleteLink();
    void GotoLink();

    Session& m_session;
    EntryList& m_entries;
    QTreeWidget* m_list;
    QPushButton* m_neu;
    QPushButton* m_edit;
    QPushButton* m_del;
    QPushButton* m_goto;
    bool m_editMode = false;
    Qt::SortOrder m_nextOrder = Qt::AscendingOrder;
};

} // namespace heft
