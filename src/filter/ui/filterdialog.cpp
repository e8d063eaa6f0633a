#include "filterdialog.h"
#include "ui_filterdialog.h"

#include "archivesearchrun.h"

#include "filter/archivesearch.h"
#include "filter/filterfields.h"
#include "filtermode.h"
#include "filter/filterrun.h"

#include "core/session.h"
#include "core/textfuncs.h"
#include "mainwin/ui/mainwindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The list index of ÄHNLICH, where a list field takes a typed pattern.
constexpr int CompareLike = 2;

const FilterField& FieldAt(int field) { return FilterFields()[static_cast<size_t>(field)]; }

bool IsEnter(const QKeyEvent& key) { return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter; }

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }

bool IsRomanLetter(QChar c) { return QStringView(u"CDILMVX").contains(c.toUpper()); }

// Refills a list quietly: its click handler must see the new list only,
// not the empty one in between.
void Refill(QComboBox* list, const QStringList& entries)
{
    const QSignalBlocker quiet(list);
    list->clear();
    list->addItems(entries);
}

} // namespace

FilterDialog::FilterDialog(MainWindow& window, FilterState& state)
    : QDialog(&window), m_ui(std::make_unique<Ui::FilterDialog>()), m_window(window), m_state(state),
      m_generator(window.CurrentSession())
{
    m_ui->setupUi(this);
    m_state.ArchiveFilterText.clear();
    m_state.ArchiveFilterNote.clear();
    SetupArchiveFrame();
    // The full list gets its sort back when the filter ends; whoever changes
    // it meanwhile says so through ResortOnReturn.
    EntryList& list = window.List();
    list.SavedSortColumn = list.SortColumn;
    list.SavedSortDescending = list.SortDescending;
    list.ResortOnReturn = false;
    SetupRows();
    connect(m_ui->btn_ausf, &QPushButton::clicked, this, &FilterDialog::Run);
    m_ui->btn_ausf->installEventFilter(this);
}

FilterDialog::~FilterDialog() = default;

std::array<QWidget*, 5> FilterDialog::Row::Editors() const { return {text, univ, aufl, gel, date}; }

std::array<QWidget*, 7> FilterDialog::Row::Closing() const
{
    return {choose, ver, text, date, aufl, gel, univ};
}

void FilterDialog::SetupArchiveFrame()
{
    m_ui->frm_archiv->setEnabled(m_window.CurrentSession().Config.SeriesName == ArchiveSeries);
    m_ui->txt_archiv1->installEventFilter(this);
    m_ui->txt_archiv2->installEventFilter(this);
}

void FilterDialog::SetupRows()
{
    QStringList fieldEntries;
    for (const FilterField& field : FilterFields())
        fieldEntries << field.entry.toString();
    const QStringList auflageEntries = AuflageEntries(m_window.CurrentSession().Config.MaxAuflage);

    for (size_t i = 0; i < m_rows.size(); ++i) {
        const QString index = QString::number(i);
        Row& row = m_rows[i];
        row.choose = findChild<QComboBox*>(u"cmb_choose"_s + index);
        row.ver = findChild<QComboBox*>(u"cmb_ver"_s + index);
        row.text = findChild<QLineEdit*>(u"txt_1"_s + index);
        row.univ = findChild<QComboBox*>(u"cmb_univ"_s + index);
        row.aufl = findChild<QComboBox*>(u"cmb_aufl"_s + index);
        row.gel = findChild<QComboBox*>(u"cmb_gel"_s + index);
        row.date = findChild<QDateEdit*>(u"dtp_datum"_s + index);
        row.logic = findChild<QComboBox*>(u"cmb_logic"_s + index);
    }
    for (int i = 0; i < FilterRowCount; ++i) {
        Row& row = m_rows[static_cast<size_t>(i)];
        Refill(row.choose, fieldEntries);
        Refill(row.aufl, auflageEntries);
        row.aufl->setCurrentIndex(1);
        Refill(row.gel, YesNoEntries());
        Refill(row.logic, JoinWords());
        // Every row starts on the first field, with its text box.
        ChooseClick(i);
        row.logic->setEnabled(false);

        connect(row.choose, &QComboBox::currentIndexChanged, this, [this, i] { ChooseClick(i); });
        connect(row.ver, &QComboBox::currentIndexChanged, this, [this, i] { VerClick(i); });
        connect(row.logic, &QComboBox::currentIndexChanged, this, [this, i] { LogicClick(i); });
        for (QWidget* editor : row.Editors())
            editor->installEventFilter(this);
        row.logic->installEventFilter(this);
    }
    m_ui->btn_ausf->setEnabled(false);
    // Rows 1 and 2 open when the row before them gets a joining word.
    for (size_t i = 1; i < m_rows.size(); ++i)
        for (QWidget* control : std::array<QWidget*, 4>{m_rows[i].choose, m_rows[i].ver, m_rows[i].text,
                                                        m_rows[i].logic})
            control->setEnabled(false);
    // Nothing follows the last row.
    m_rows.back().logic->hide();
    m_enterSuppressed = false;
}

int FilterDialog::Field(int row) const { return m_rows[static_cast<size_t>(row)].choose->currentIndex(); }

void FilterDialog::ChooseClick(int row)
{
    Row& r = m_rows[static_cast<size_t>(row)];
    const int field = Field(row);
    Refill(r.ver, CompareWords(field));
    switch (FieldAt(field).editor) {
    case FilterEditor::Txt:
        ShowTextEditor(row);
        break;
    case FilterEditor::Aufl:
        ConfigureRowEditors(row, r.aufl);
        break;
    case FilterEditor::Gel:
        ConfigureRowEditors(row, r.gel);
        break;
    case FilterEditor::Dtp:
        ConfigureRowEditors(row, r.date);
        r.date->setDate(QDate::currentDate());
        break;
    case FilterEditor::Univ:
        FillValueList(row);
        ConfigureRowEditors(row, r.univ);
        break;
    }
    // The comparison list stands on its first word, as after a click on it.
    VerClick(row);
    if (!IsFilterComplete())
        m_ui->btn_ausf->setEnabled(false);
}

void FilterDialog::ConfigureRowEditors(int row, QWidget* editor)
{
    const Row& r = m_rows[static_cast<size_t>(row)];
    for (QWidget* candidate : r.Editors())
        candidate->setVisible(candidate == editor);
    r.logic->setEnabled(true);
    m_ui->btn_ausf->setEnabled(true);
}

void FilterDialog::ShowTextEditor(int row)
{
    const Row& r = m_rows[static_cast<size_t>(row)];
    ConfigureRowEditors(row, r.text);
    r.text->clear();
    m_ui->btn_ausf->setEnabled(FieldAt(Field(row)).mayStayEmpty);
}

void FilterDialog::VerClick(int row)
{
    const Row& r = m_rows[static_cast<size_t>(row)];
    if (FieldAt(Field(row)).editor != FilterEditor::Univ)
        return;
    // ÄHNLICH turns the value out of the list into a typed pattern.
    const bool pattern = r.ver->currentIndex() == CompareLike;
    r.univ->setVisible(!pattern);
    if (pattern)
        r.text->clear();
    r.text->setVisible(pattern);
    m_ui->btn_ausf->setEnabled(!pattern);
}

void FilterDialog::LogicClick(int row)
{
    const Row& r = m_rows[static_cast<size_t>(row)];
    if (r.logic->currentIndex() == 0) {
        for (size_t j = static_cast<size_t>(row) + 1; j < m_rows.size(); ++j) {
            for (QWidget* control : m_rows[j].Closing())
                control->setEnabled(false);
            m_rows[j].logic->setCurrentIndex(0);
            m_rows[j].logic->setEnabled(false);
        }
    } else if (static_cast<size_t>(row) + 1 < m_rows.size()) {
        const Row& next = m_rows[static_cast<size_t>(row) + 1];
        for (QWidget* control : next.Closing())
            control->setEnabled(true);
        next.logic->setEnabled(true);
    }
    m_ui->btn_ausf->setEnabled(IsFilterComplete());
}

bool FilterDialog::IsFilterComplete() const
{
    // Row 0's field decides for every row whether a blank text will do.
    const bool blankAllowed = FieldAt(Field(0)).mayStayEmpty;
    bool result = true;
    for (const Row& r : m_rows) {
        if (!r.text->isEnabled() || r.text->isHidden())
            continue;
        result = result && !Trim(r.text->text()).isEmpty();
        if (blankAllowed)
            result = true;
    }
    return result;
}

void FilterDialog::FillValueList(int row)
{
    QComboBox* list = m_rows[static_cast<size_t>(row)].univ;
    Refill(list, ValueListEntries(*m_window.CurrentSession().CollectionDb, Field(row)));
    list->setCurrentIndex(0);
}

void FilterDialog::FocusAfterEnter(int row)
{
    if (static_cast<size_t>(row) + 1 < m_rows.size())
        m_rows[static_cast<size_t>(row)].logic->setFocus();
    else
        m_ui->btn_ausf->setFocus();
}

int FilterDialog::RowOf(QObject* control) const
{
    for (size_t i = 0; i < m_rows.size(); ++i) {
        const Row& r = m_rows[i];
        const auto editors = r.Editors();
        if (control == r.logic || std::find(editors.begin(), editors.end(), control) != editors.end())
            return static_cast<int>(i);
    }
    return -1;
}

bool FilterDialog::TextKeyAccepted(int row, const QKeyEvent& key) const
{
    // Keys without a character (arrows, Delete) and control characters
    // (Backspace, Enter) always pass; the field decides about the rest.
    const QString typed = key.text();
    if (typed.size() != 1 || !typed[0].isPrint())
        return true;
    const QChar c = typed[0];
    switch (FieldAt(Field(row)).keys) {
    case FilterKeys::Digits:
        return IsDigit(c);
    case FilterKeys::DigitsRoman:
        return IsDigit(c) || IsRomanLetter(c);
    case FilterKeys::Free:
    case FilterKeys::None:
        break;
    }
    return true;
}

void FilterDialog::TextKeyReleased(int row, const QKeyEvent& key)
{
    if (IsFilterComplete()) {
        m_ui->btn_ausf->setEnabled(true);
        m_rows[static_cast<size_t>(row)].logic->setEnabled(true);
        if (IsEnter(key) && !m_enterSuppressed)
            m_ui->btn_ausf->setFocus();
    } else {
        m_ui->btn_ausf->setEnabled(false);
    }
    m_enterSuppressed = false;
}

bool FilterDialog::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease && type != QEvent::FocusIn)
        return QDialog::eventFilter(watched, event);
    const auto* key = type == QEvent::FocusIn ? nullptr : static_cast<QKeyEvent*>(event);
    const bool enterReleased = key && type == QEvent::KeyRelease && !key->isAutoRepeat() && IsEnter(*key);

    if (watched == m_ui->btn_ausf) {
        // Enter on the focused button runs it; no button of this window is
        // a default button, so Enter elsewhere runs nothing by itself.
        if (key && type == QEvent::KeyPress && IsEnter(*key)) {
            m_ui->btn_ausf->click();
            return true;
        }
        return false;
    }
    if (watched == m_ui->txt_archiv1 || watched == m_ui->txt_archiv2) {
        auto* box = static_cast<QLineEdit*>(watched);
        if (type == QEvent::FocusIn)
            QTimer::singleShot(0, box, &QLineEdit::selectAll);
        else if (enterReleased)
            m_ui->btn_ausf->setFocus();
        return false;
    }

    const int row = RowOf(watched);
    if (row < 0)
        return QDialog::eventFilter(watched, event);
    const Row& r = m_rows[static_cast<size_t>(row)];
    if (watched == r.text) {
        if (type == QEvent::FocusIn)
            // After the click that gave the focus has placed the cursor.
            QTimer::singleShot(0, r.text, &QLineEdit::selectAll);
        else if (type == QEvent::KeyPress)
            return !TextKeyAccepted(row, *key);
        else if (!key->isAutoRepeat())
            TextKeyReleased(row, *key);
        return false;
    }
    if (!enterReleased)
        return false;
    if (watched == r.logic) {
        if (r.logic->currentIndex() == 0)
            m_ui->btn_ausf->setFocus();
    } else {
        FocusAfterEnter(row);
    }
    return false;
}

void FilterDialog::Run()
{
    m_enterSuppressed = false;
    QList<FilterCriterion> criteria;
    QList<size_t> used;
    for (size_t i = 0; i < m_rows.size(); ++i) {
        const Row& r = m_rows[i];
        if (!r.choose->isEnabled())
            continue;
        used << i;
        criteria << FilterCriterion{.field = r.choose->currentIndex(),
                                    .compare = r.ver->currentIndex(),
                                    .text = r.text->text(),
                                    .listText = r.univ->currentText(),
                                    .listIndex = r.univ->currentIndex(),
                                    .listCount = r.univ->count(),
                                    .auflageIndex = r.aufl->currentIndex(),
                                    .yesNoIndex = r.gel->currentIndex(),
                                    .date = r.date->date(),
                                    .join = r.logic->currentIndex()};
    }
    const FilterOutcome outcome = m_generator.Generate(criteria);
    for (qsizetype k = 0; k < outcome.shownTexts.size() && k < used.size(); ++k)
        if (m_rows[used[k]].text->text() != outcome.shownTexts[k])
            m_rows[used[k]].text->setText(outcome.shownTexts[k]);
    m_state.FilterWhere = outcome.where;
    m_state.FilterText = outcome.text;
    if (outcome.rejected) {
        if (outcome.rejectedRow >= 0 && outcome.rejectedRow < used.size())
            m_rows[used[outcome.rejectedRow]].text->setFocus();
        m_enterSuppressed = true;
        QApplication::beep();
        return;
    }
    if (TakeResult(outcome))
        accept();
}

bool FilterDialog::TakeResult(const FilterOutcome& outcome)
{
    Session& session = m_window.CurrentSession();
    EntryList& list = m_window.List();
    const int count = RunFilterStatement(session, list, outcome.sql);
    if (count < 1) {
        session.prompter->Tell(u"Keine Einträge vorhanden"_s,
                               u"Zu den gegebenen Filter-Kriterien konnten\rin der Datenbank leider keine "
                               "Einträge\rgefunden werden."_s,
                               MessageIcon::Information);
        m_rows.front().choose->setFocus();
        return false;
    }
    m_window.StartProgress(count + 1);
    m_window.SetStatusPanel(5, u"Filtere Einträge aus der Datenbank ..."_s);
    // The filter list keeps the column widths the user gave the full list.
    for (int col = ColAutor; col <= ColBemerkung; ++col)
        list.Filter.SetColWidth(col, list.Heftliste.ColWidth(col));
    const ArchiveQuery query{static_cast<ArchiveMode>(m_ui->cmb_aftype->currentIndex()), m_ui->txt_archiv1->text(),
                             m_ui->txt_archiv2->text(), static_cast<ArchiveJoin>(m_ui->cmb_archiv->currentIndex())};
    if (!SearchArchiveFromFilter(m_window, query, m_state)) {
        m_rows.front().choose->setFocus();
        return false;
    }
    list.ShowFilterGrid(true);
    m_window.FinishProgress(250);
    m_window.SetStatusPanel(5, u"Fertig und Bereit [Filter ist AKTIV]."_s);
    m_window.SetStatusPanel(6, u"F"_s);
    return true;
}

} // namespace heft
