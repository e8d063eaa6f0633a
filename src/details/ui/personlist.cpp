#include "personlist.h"

#include "comboitems.h"
#include "details/detailrecord.h"

#include "core/textfuncs.h"
#include "mainwin/twips.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// A person's name is stored with at most this many characters.
constexpr int NameLength = 32;
// The column is never narrower than this, and keeps this much room beside
// the widest name (twips).
constexpr int MinimumColumnTwips = 1975;
constexpr int NameRoomTwips = 200;

bool IsEnter(const QKeyEvent* key) { return key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter; }

} // namespace

PersonList::PersonList(QWidget* parent) : QTreeWidget(parent)
{
    setColumnCount(1);
    setHeaderLabels({u"Name / Bezeichnung"_s});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    header()->setStretchLastSection(false);
    header()->setSectionsClickable(false);
    SetColumnTwips(MinimumColumnTwips);

    m_combo = new QComboBox(viewport());
    m_combo->setObjectName(u"cmb_floatP"_s);
    MakeNameBox(*m_combo);
    m_combo->hide();
    // The box keeps the focus for its line edit and hands the keys on.
    m_combo->installEventFilter(this);
    // A name typed into the box is a change, even before it reaches its
    // row: the save takes it from the open box.
    connect(m_combo->lineEdit(), &QLineEdit::textEdited, this, &PersonList::Changed);
    connect(this, &QTreeWidget::itemChanged, this, &PersonList::NameEdited);
}

void PersonList::SetEditMode(bool edit) { m_editMode = edit; }

void PersonList::AddPersonRow(const QString& name)
{
    const QSignalBlocker quiet(this);
    auto* item = new QTreeWidgetItem(this, {name});
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    SetColumnTwips(MaxOf(PixelsToTwips(header()->sectionSize(0)), TextWidthTwips(name)));
}

void PersonList::AddEmptyPersonRows()
{
    for (int row = 0; row < PersonCount; ++row)
        AddPersonRow({});
}

QStringList PersonList::Names() const
{
    QStringList names;
    for (int row = 0; row < topLevelItemCount(); ++row)
        names.append(topLevelItem(row)->text(0));
    return names;
}

void PersonList::ShowPersonCombo(int row)
{
    QTreeWidgetItem* item = topLevelItem(row);
    if (item == nullptr)
        return;
    m_editRow = row;
    m_combo->clear();
    // Over the row, as wide as the list shows; kept inside the list at the
    // bottom, where the box is taller than the row.
    const QRect rowRect = visualItemRect(item);
    const int height = m_combo->sizeHint().height();
    m_combo->setGeometry(0, MinOf(rowRect.top(), viewport()->height() - height), viewport()->width(), height);
    m_combo->setEditText(item->text(0));
    m_combo->show();
    m_combo->setFocus();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    if (m_session != nullptr)
        SetComboItems(*m_combo, PersonNames(*m_session));
    QApplication::restoreOverrideCursor();
    if (m_combo->currentText().isEmpty() && m_combo->count() > 0)
        m_combo->setCurrentIndex(0);
    m_combo->lineEdit()->selectAll();
}

bool PersonList::IsComboOpen() const { return !m_combo->isHidden(); }

void PersonList::TakeComboText()
{
    const QString name = Left(Trim(m_combo->currentText()), NameLength);
    if (QTreeWidgetItem* item = topLevelItem(m_editRow)) {
        const QSignalBlocker quiet(this);
        item->setText(0, name);
    }
    FitPersonColumn(name);
    HideCombo();
}

void PersonList::HideCombo()
{
    const bool hadFocus = m_combo->isAncestorOf(QApplication::focusWidget());
    m_combo->hide();
    if (hadFocus)
        setFocus();
}

void PersonList::FitPersonColumn(const QString& name)
{
    Q_EMIT Changed();
    int width = MaxOf(MinimumColumnTwips, TextWidthTwips(Left(name, NameLength)));
    for (int row = 0; row < topLevelItemCount(); ++row)
        if (row != m_editRow)
            width = MaxOf(width, TextWidthTwips(topLevelItem(row)->text(0)));
    SetColumnTwips(width);
}

bool PersonList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_combo && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (IsEnter(key)) {
            TakeComboText();
            return true;
        }
        if (key->key() == Qt::Key_Escape) {
            HideCombo();
            return true;
        }
    }
    return QTreeWidget::eventFilter(watched, event);
}

void PersonList::keyPressEvent(QKeyEvent* event)
{
    // The Enter that ends an edit in place comes here too, from the editor;
    // it must not open the box on the row just edited.
    if (IsEnter(event) && m_editMode && currentItem() != nullptr && state() != EditingState) {
        EditRow(indexOfTopLevelItem(currentItem()), event->modifiers().testFlag(Qt::ShiftModifier));
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

void PersonList::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTreeWidgetItem* item = itemAt(event->position().toPoint());
    if (m_editMode && item != nullptr) {
        setCurrentItem(item);
        EditRow(indexOfTopLevelItem(item), event->modifiers().testFlag(Qt::ShiftModifier));
    }
}

void PersonList::mousePressEvent(QMouseEvent* event)
{
    // A click beside the open box finishes it, as Enter would.
    if (IsComboOpen())
        TakeComboText();
    QTreeWidget::mousePressEvent(event);
}

void PersonList::EditRow(int row, bool inPlace)
{
    if (inPlace) {
        m_editRow = row;
        editItem(topLevelItem(row));
    } else {
        ShowPersonCombo(row);
    }
}

void PersonList::NameEdited(QTreeWidgetItem* item)
{
    const QString name = Left(Trim(item->text(0)), NameLength);
    if (name != item->text(0)) {
        const QSignalBlocker quiet(this);
        item->setText(0, name);
    }
    FitPersonColumn(name);
}

int PersonList::TextWidthTwips(const QString& name) const
{
    return PixelsToTwips(fontMetrics().horizontalAdvance(name)) + NameRoomTwips;
}

void PersonList::SetColumnTwips(int twips) { header()->resizeSection(0, TwipsToPixels(twips)); }

} // namespace heft
