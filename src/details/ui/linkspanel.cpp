#include "linkspanel.h"

#include "editlinkdialog.h"

#include "details/detailrecord.h"

#include "core/session.h"
#include "core/textfuncs.h"
#include "mainwin/entrylist.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The Links table has room for this many links of one entry.
constexpr int MaxLinks = 15;
const QString EditHint = u"Doppelklick zum Bearbeiten"_s;
// Offered for a new link, for the user to overwrite.
const QString NewLinkText = u"Teil X von Y"_s;

enum LinkColumn { ColLinkNr, ColLinkText, ColLinkSeries };

// Sorts the number column by value, so that 9 comes before 10.
class LinkItem : public QTreeWidgetItem {
public:
    explicit LinkItem(const LinkRow& link)
        : QTreeWidgetItem(QStringList{QString::number(link.number), link.text, link.series})
    {
    }

    bool operator<(const QTreeWidgetItem& other) const override
    {
        const int column = treeWidget()->sortColumn();
        if (column == ColLinkNr)
            return text(column).toInt() < other.text(column).toInt();
        return QString::localeAwareCompare(text(column), other.text(column)) < 0;
    }
};

} // namespace

LinksPanel::LinksPanel(Session& session, EntryList& list, QWidget* parent)
    : QWidget(parent), m_session(session), m_entries(list)
{
    auto* frame = new QGroupBox(u"Verknüpfung zu"_s, this);
    frame->setObjectName(u"frm_links"_s);
    m_list = new QTreeWidget(frame);
    m_list->setObjectName(u"liv_links"_s);
    m_list->setHeaderLabels({u"Zu Nr"_s, u"Link Beschreibung"_s, u"Zu Serie"_s});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setColumnWidth(ColLinkNr, 60);
    m_list->setColumnWidth(ColLinkText, 230);
    // Sorting happens once per header click: links added later go where
    // the user puts them, not into the sort.
    m_list->header()->setSectionsClickable(true);
    m_list->header()->setSortIndicatorShown(false);

    auto makeButton = [frame](const QString& name, const QString& caption) {
        auto* button = new QPushButton(caption, frame);
        button->setObjectName(name);
        button->setAutoDefault(false);
        return button;
    };
    m_neu = makeButton(u"btn_neu"_s, u"&Einfügen"_s);
    m_edit = makeButton(u"btn_edit"_s, u"&Bearbeiten"_s);
    m_del = makeButton(u"btn_del"_s, u"&Löschen"_s);
    m_goto = makeButton(u"btn_goto"_s, u"&Zum Eintrag"_s);

    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {m_neu, m_edit, m_del, m_goto})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* frameLayout = new QHBoxLayout(frame);
    frameLayout->addWidget(m_list, 1);
    frameLayout->addLayout(buttons);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frame);

    connect(m_neu, &QPushButton::clicked, this, &LinksPanel::AddLink);
    connect(m_edit, &QPushButton::clicked, this, &LinksPanel::EditLink);
    connect(m_del, &QPushButton::clicked, this, &LinksPanel::DeleteLink);
    connect(m_goto, &QPushButton::clicked, this, &LinksPanel::GotoLink);
    connect(m_list->header(), &QHeaderView::sectionClicked, this, &LinksPanel::SortLinks);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &LinksPanel::UpdateGotoButton);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, [this] {
        if (m_edit->isEnabled())
            EditLink();
    });
    SetEditMode(false);
}

void LinksPanel::SetEditMode(bool edit)
{
    m_editMode = edit;
    m_list->setToolTip(edit ? EditHint : QString());
    m_list->viewport()->setBackgroundRole(edit ? QPalette::Base : QPalette::Button);
    RefreshButtons();
}

void LinksPanel::LoadLinksList(int nr)
{
    m_list->clear();
    for (const LinkValue& link : ReadLinks(m_session, nr))
        m_list->addTopLevelItem(new LinkItem({link.Number, link.Text, link.Series}));
    m_list->setCurrentItem(m_list->topLevelItem(0));
    RefreshButtons();
}

QList<LinkRow> LinksPanel::Links() const
{
    QList<LinkRow> links;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* item = m_list->topLevelItem(row);
        links.append({static_cast<int>(Val(item->text(ColLinkNr))), item->text(ColLinkText), item->text(ColLinkSeries)});
    }
    return links;
}

void LinksPanel::FocusList()
{
    m_list->setFocus();
}

QString LinksPanel::OpenListName() const
{
    return m_session.Config.SeriesName + u' ' + m_session.Config.ListKind;
}

// A link into another list can be read, but there is nothing to jump to.
bool LinksPanel::FollowsOpenList() const
{
    const QTreeWidgetItem* item = m_list->currentItem();
    return item != nullptr && item->text(ColLinkSeries) == OpenListName();
}

void LinksPanel::RefreshButtons()
{
    const int rows = m_list->topLevelItemCount();
    m_neu->setEnabled(m_editMode && rows < MaxLinks);
    EnableLinkButtons(rows > 0);
    UpdateGotoButton();
}

void LinksPanel::EnableLinkButtons(bool enable)
{
    m_edit->setEnabled(enable && m_editMode);
    m_del->setEnabled(enable && m_editMode);
    m_goto->setEnabled(enable);
}

void LinksPanel::UpdateGotoButton()
{
    if (m_list->topLevelItemCount() > 0)
        m_goto->setEnabled(FollowsOpenList());
}

// Each click flips the order, whichever column was clicked. The order
// shown is the order the save writes.
void LinksPanel::SortLinks(int column)
{
    m_list->header()->setSortIndicatorShown(true);
    m_list->sortItems(column, m_nextOrder);
    m_nextOrder = m_nextOrder == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
}

std::optional<LinkRow> LinksPanel::AskLink(const LinkRow& start)
{
    EditLinkDialog dialog(start, this);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Link();
}

// A new link starts as one to the entry after the one the window shows,
// and goes behind the selected link.
void LinksPanel::AddLink()
{
    Q_EMIT Changed();
    const EntryGrid& grid = *m_entries.ActiveGrid;
    const int next = static_cast<int>(Val(grid.TextMatrix(grid.Row(), ColNr))) + 1;
    if (const auto link = AskLink({next, NewLinkText, OpenListName()})) {
        QTreeWidgetItem* selected = m_list->currentItem();
        const int at = selected != nullptr ? m_list->indexOfTopLevelItem(selected) + 1 : 0;
        auto* item = new LinkItem(*link);
        m_list->insertTopLevelItem(at, item);
        m_list->setCurrentItem(item);
    }
    m_list->setFocus();
    RefreshButtons();
}

void LinksPanel::EditLink()
{
    QTreeWidgetItem* item = m_list->currentItem();
    if (item == nullptr)
        return;
    const LinkRow old{static_cast<int>(Val(item->text(ColLinkNr))), item->text(ColLinkText), item->text(ColLinkSeries)};
    if (const auto link = AskLink(old)) {
        item->setText(ColLinkNr, QString::number(link->number));
        item->setText(ColLinkText, link->text);
        item->setText(ColLinkSeries, link->series);
        Q_EMIT Changed();
    }
    m_list->setFocus();
    UpdateGotoButton();
}

// The row that moves up into the gap becomes selected, or the last row
// when the last one went.
void LinksPanel::DeleteLink()
{
    QTreeWidgetItem* item = m_list->currentItem();
    if (item == nullptr)
        return;
    Q_EMIT Changed();
    const int row = m_list->indexOfTopLevelItem(item);
    delete item;
    const int rows = m_list->topLevelItemCount();
    if (rows > 0)
        m_list->setCurrentItem(m_list->topLevelItem(std::min(row, rows - 1)));
    RefreshButtons();
    m_list->setFocus();
}

// The detail window stays open; the main list behind it shows the target.
// A number that isn't in the list leaves the main list as it is.
void LinksPanel::GotoLink()
{
    if (const QTreeWidgetItem* item = m_list->currentItem(); item != nullptr && FollowsOpenList())
        m_entries.FindAndShowRow(static_cast<int>(Val(item->text(ColLinkNr))));
    m_list->setFocus();
}

} // namespace heft
