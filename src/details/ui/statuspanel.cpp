#include "statuspanel.h"

#include "details/attributecatalog.h"
#include "details/detailrecord.h"

#include "core/session.h"
#include "core/textfuncs.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Stands in for an empty value while its editor is open, so that the user
// sees which row is being edited.
const QString EditPlaceholder = u"? ? ?"_s;
const QString EditHint = u"Doppelklick zum Bearbeiten"_s;
constexpr int ValueColumnWidth = 190;

bool IsEnter(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

} // namespace

StatusPanel::StatusPanel(Session& session, QWidget* parent)
    : QWidget(parent), m_session(session)
{
    auto* frame = new QGroupBox(u"Bewertung / Ort"_s, this);
    frame->setObjectName(u"frm_status"_s);
    m_list = new QTreeWidget(frame);
    m_list->setObjectName(u"liv_status"_s);
    m_list->setHeaderLabels({u"Wert"_s, u"Beschreibung"_s});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->header()->setSectionsMovable(false);
    m_list->setColumnWidth(0, ValueColumnWidth);

    // The editors float over the list rather than living in a cell, so that
    // a click anywhere in the list can first take their text.
    m_text = new QLineEdit(frame);
    m_text->setObjectName(u"txt_float"_s);
    m_text->hide();
    m_combo = new QComboBox(frame);
    m_combo->setObjectName(u"cmb_float"_s);
    m_combo->setEditable(true);
    m_combo->setInsertPolicy(QComboBox::NoInsert);
    m_combo->setCompleter(nullptr);
    m_combo->hide();

    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->addWidget(m_list);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frame);

    m_list->installEventFilter(this);
    m_list->viewport()->installEventFilter(this);
    for (QObject* editor : {static_cast<QObject*>(m_text), static_cast<QObject*>(m_combo),
                            static_cast<QObject*>(m_combo->lineEdit())})
        editor->installEventFilter(this);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &StatusPanel::EditStatusRow);
    // A scrolled list takes the open editor along with its row.
    connect(m_list->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (m_editRow != 0)
            PlaceEditor(m_text->isHidden() ? static_cast<QWidget*>(m_combo) : m_text, Row(m_editRow));
    });
    SetEditMode(false);
}

void StatusPanel::SetEditMode(bool edit)
{
    m_editMode = edit;
    m_list->setToolTip(edit ? EditHint : QString());
    m_list->viewport()->setBackgroundRole(edit ? QPalette::Base : QPalette::Button);
}

QTreeWidgetItem* StatusPanel::Row(int enumber) const
{
    return m_list->topLevelItem(enumber - 1);
}

QString StatusPanel::RowValue(int enumber) const
{
    const QString shown = Row(enumber)->text(0);
    return enumber == m_editRow && shown == EditPlaceholder ? QString() : shown;
}

void StatusPanel::LoadStatusList(int nr)
{
    m_text->hide();
    m_combo->hide();
    m_editRow = 0;
    m_list->clear();
    for (const StatusAttribute& attribute : StatusCatalog())
        new QTreeWidgetItem(m_list, {QString(), attribute.label});
    m_list->setCurrentItem(Row(1));

    const QMap<int, QString> stored = ReadStatusValues(m_session, nr);
    for (auto value = stored.cbegin(); value != stored.cend(); ++value)
        Row(value.key())->setText(0, DisplayStatusValue(value.key(), value.value()));
}

QString StatusPanel::StoredValue(int enumber) const
{
    return StoredStatusValue(enumber, RowValue(enumber));
}

void StatusPanel::SetRowValue(int enumber, const QString& shown)
{
    Row(enumber)->setText(0, shown);
}

bool StatusPanel::IsEditorOpen() const
{
    return !m_text->isHidden() || !m_combo->isHidden();
}

void StatusPanel::EditStatusRow()
{
    QTreeWidgetItem* item = m_list->currentItem();
    if (item == nullptr || !m_editMode)
        return;
    const int enumber = m_list->indexOfTopLevelItem(item) + 1;
    const StatusAttribute& attribute = StatusAttributeOf(enumber);
    if (attribute.editor == StatusEditor::None)
        return;

    const QString value = item->text(0);
    m_list->scrollToItem(item);
    QWidget* editor = nullptr;
    if (attribute.editor == StatusEditor::ComboBox) {
        m_text->hide();
        FillStatusCombo(enumber);
        m_combo->setEditText(value);
        m_combo->lineEdit()->selectAll();
        editor = m_combo;
    } else {
        m_combo->hide();
        m_text->setMaxLength(attribute.maxInput);
        m_text->setText(value);
        m_text->selectAll();
        editor = m_text;
    }
    PlaceEditor(editor, item);
    editor->show();
    editor->raise();
    editor->setFocus();

    m_editRow = enumber;
    SetRowBold(enumber, true);
    if (value.isEmpty())
        item->setText(0, EditPlaceholder);
}

// The values already used for the attribute in the whole collection.
void StatusPanel::FillStatusCombo(int enumber)
{
    m_combo->clear();
    Query values = m_session.CollectionDb->Select(
        u"SELECT DISTINCT StatusWert FROM Status WHERE ENum=%1 ORDER BY StatusWert;"_s.arg(enumber));
    while (values.Next()) {
        const QString value = Trim(values.Text(0));
        if (!value.isEmpty())
            m_combo->addItem(value);
    }
    m_combo->setCurrentIndex(0);
}

// Over the value cell of the row, as wide as the column and centred on the
// row's height, whichever is taller.
void StatusPanel::PlaceEditor(QWidget* editor, QTreeWidgetItem* item)
{
    const QRect row = m_list->visualItemRect(item);
    const int left = m_list->header()->sectionViewportPosition(0);
    const int height = editor->sizeHint().height();
    const QPoint topLeft = m_list->viewport()->mapTo(editor->parentWidget(),
                                                     QPoint(left, row.top() + (row.height() - height) / 2));
    editor->setGeometry(topLeft.x(), topLeft.y(), m_list->columnWidth(0) - 1, height);
}

void StatusPanel::SetRowBold(int enumber, bool bold)
{
    QTreeWidgetItem* item = Row(enumber);
    QFont font = item->font(0);
    font.setBold(bold);
    item->setFont(0, font);
    item->setFont(1, font);
}

void StatusPanel::HideFloatEditors()
{
    m_combo->hide();
    m_text->hide();
    if (m_editRow != 0) {
        SetRowBold(m_editRow, false);
        if (Row(m_editRow)->text(0) == EditPlaceholder)
            Row(m_editRow)->setText(0, QString());
        m_editRow = 0;
    }
    m_list->setFocus();
}

bool StatusPanel::CommitStatusValue(const QString& text)
{
    const StatusCheck check = ValidateStatusValue(m_editRow, text);
    if (check.refused)
        return false;
    Row(m_editRow)->setText(0, check.value);
    Q_EMIT Changed();
    return true;
}

// Enter takes a valid value and closes, Esc drops it; both keys stay in
// the editor, so that they neither close the window nor press a button.
bool StatusPanel::EditorKey(QWidget* editor, const QKeyEvent& key)
{
    if (IsEnter(key)) {
        const QString text = editor == m_text ? m_text->text() : m_combo->currentText();
        if (CommitStatusValue(text))
            HideFloatEditors();
        return true;
    }
    if (key.key() == Qt::Key_Escape) {
        HideFloatEditors();
        return true;
    }
    return editor == m_text && !AcceptsStatusKey(m_editRow, key.text());
}

bool StatusPanel::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool keyEvent = type == QEvent::KeyPress || type == QEvent::ShortcutOverride;
    if (keyEvent && (watched == m_text || watched == m_combo || watched == m_combo->lineEdit())) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (type == QEvent::ShortcutOverride) {
            // Enter and Esc belong to the editor, not to a shortcut of the window.
            if (IsEnter(key) || key.key() == Qt::Key_Escape) {
                event->accept();
                return true;
            }
        } else if (m_editRow != 0) {
            return EditorKey(watched == m_text ? static_cast<QWidget*>(m_text) : m_combo, key);
        }
    } else if (watched == m_list && type == QEvent::KeyPress) {
        HideFloatEditors();
        if (IsEnter(*static_cast<QKeyEvent*>(event))) {
            EditStatusRow();
            return true;
        }
    } else if (watched == m_list->viewport() && type == QEvent::MouseButtonPress && IsEditorOpen()) {
        // The click goes on to select its row once the edit is done.
        CommitStatusValue(m_text->isHidden() ? m_combo->currentText() : m_text->text());
        HideFloatEditors();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace heft
