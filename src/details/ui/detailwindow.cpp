#include "detailwindow.h"
#include "ui_detailwindow.h"

#include "comboitems.h"
#include "details/detailrecord.h"
#include "details/detailsave.h"
#include "details/erstdatum.h"
#include "linkspanel.h"
#include "picturepanel.h"
#include "statuspanel.h"

#include "core/session.h"
#include "core/textfuncs.h"
#include "mainwin/entrylist.h"
#include "mainwin/sortpictures.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QTextCursor>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

enum Tab : int { TabTexte, TabBilder, TabStatus, TabLinks };

// A subtitle is stored with at most this many characters.
constexpr int UntertitelLength = 128;

bool IsEnter(const QKeyEvent* key) { return key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter; }

// Keys that move on, close or call a command rather than edit the text.
bool LeavesTextAlone(const QKeyEvent* key)
{
    switch (key->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Escape:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_Meta:
    case Qt::Key_AltGr:
        return true;
    default:
        return key->modifiers().testFlag(Qt::AltModifier);
    }
}

// Boxes that can't be changed here show the colour of a button's face.
void ShowOnFace(QWidget* box)
{
    QPalette palette = box->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Button));
    box->setPalette(palette);
}

// The check box stands on the frame's caption, over the blanks its text
// starts with, so that it reads as the caption's own box.
void PlaceOnCaption(QGroupBox* frame, QCheckBox* box)
{
    QStyleOptionGroupBox option;
    option.initFrom(frame);
    option.text = frame->title();
    option.textAlignment = frame->alignment();
    option.lineWidth = 1;
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    option.features = frame->isFlat() ? QStyleOptionFrame::Flat : QStyleOptionFrame::None;
    const QRect label = frame->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, frame);
    box->resize(box->sizeHint());
    box->move(label.left(), label.center().y() - box->height() / 2);
    box->raise();
}

} // namespace

DetailWindow::DetailWindow(Session& session, EntryList& list, bool editMode, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::DetailWindow>()), m_session(session), m_editMode(editMode)
{
    m_ui->setupUi(this);
    m_status = new StatusPanel(session, m_ui->tab_status);
    m_ui->layStatus->addWidget(m_status);
    m_links = new LinksPanel(session, list, m_ui->tab_links);
    m_ui->layLinks->addWidget(m_links);
    const EntryGrid& grid = *list.ActiveGrid;
    m_nr = static_cast<int>(Val(grid.TextMatrix(grid.Row(), ColNr)));
    new PicturePanel(session, m_nr, *m_ui, this);
    SetupControls();
    Load();
}

DetailWindow::~DetailWindow() = default;

void DetailWindow::SetupControls()
{
    Ui::DetailWindow& ui = *m_ui;
    ui.liv_personen->SetSession(m_session);
    ui.cal_erst->setDateRange(MarkerDate(), LatestErstdatum());
    SetPickerDate(MarkerDate());
    ShowOnFace(ui.txt_erst);
    // Room for the longest long date: a Thursday in September.
    ui.txt_erst->setMinimumWidth(ui.txt_erst->fontMetrics().horizontalAdvance(LongDate(QDate(2009, 9, 24))) +
                                 ui.txt_erst->sizeHint().height());
    ui.pic_max->setIconSize({SortPictureSize, SortPictureSize});
    for (QComboBox* combo : {ui.cmb_tibi, ui.cmb_illu, ui.cmb_rize}) {
        MakeNameBox(*combo);
        // The box keeps the focus for its line edit and hands the keys on.
        combo->installEventFilter(this);
        connect(combo, &QComboBox::activated, this, &DetailWindow::MarkDetailsChanged);
    }
    for (QWidget* box : std::initializer_list<QWidget*>{ui.txt_erst, ui.txt_utitel, ui.txt_inhalt, ui.txt_objekt,
                                                        ui.txt_tibi, ui.txt_illu, ui.txt_rize, ui.btn_ok, ui.btn_nok,
                                                        ui.frm_valid, ui.frm_rize})
        box->installEventFilter(this);

    connect(ui.cal_erst, &QDateEdit::dateChanged, this, &DetailWindow::MarkDetailsChanged);
    connect(ui.chk_valid, &QCheckBox::toggled, this, &DetailWindow::ValidToggled);
    connect(ui.chk_valid, &QCheckBox::clicked, this, &DetailWindow::MarkDetailsChanged);
    connect(ui.chk_rize, &QCheckBox::clicked, this, &DetailWindow::RizeClicked);
    connect(ui.pic_max, &QToolButton::clicked, this, &DetailWindow::ToggleContentSize);
    connect(ui.tab_detail, &QTabWidget::currentChanged, this, &DetailWindow::TabChanged);
    connect(ui.btn_ok, &QPushButton::clicked, this, &DetailWindow::Save);
    connect(ui.btn_nok, &QPushButton::clicked, this, &DetailWindow::reject);
    connect(ui.liv_personen, &PersonList::Changed, this, &DetailWindow::MarkDetailsChanged);
    connect(m_status, &StatusPanel::Changed, this, &DetailWindow::MarkDetailsChanged);
    connect(m_links, &LinksPanel::Changed, this, &DetailWindow::MarkDetailsChanged);

    LimitTyping(ui.txt_utitel, UntertitelLength);
    LimitTyping(ui.txt_inhalt, m_session.Config.ContentLimit);
    // The counters tell how much room is left while typing; a window that
    // can't change anything has nothing to count.
    if (m_editMode) {
        connect(ui.txt_utitel, &QPlainTextEdit::textChanged, this, [this] {
            const qsizetype length = m_ui->txt_utitel->toPlainText().size();
            m_ui->lbl_utitel->setText(
                u"Untertitel:\n(L:%1/%2, R:%3)"_s.arg(length).arg(UntertitelLength).arg(UntertitelLength - length));
        });
        connect(ui.txt_inhalt, &QPlainTextEdit::textChanged, this, [this] {
            const qsizetype length = m_ui->txt_inhalt->toPlainText().size();
            const int maximum = m_session.Config.ContentLimit;
            m_ui->lbl_inhalt->setText(u"Inhalt: (L:%1/%2, R:%3)"_s.arg(length).arg(maximum).arg(maximum - length));
        });
    }
}

void DetailWindow::LimitTyping(QPlainTextEdit* box, int maximum)
{
    // As the maximum length of a text box: what is typed or pasted beyond
    // it is dropped. A text the window puts in is shown whole, even one
    // that came longer from an import.
    connect(box, &QPlainTextEdit::textChanged, this, [this, box, maximum] {
        const qsizetype overflow = box->toPlainText().size() - maximum;
        if (overflow <= 0 || m_settingText)
            return;
        QTextCursor cursor = box->textCursor();
        if (cursor.position() < overflow)
            cursor.movePosition(QTextCursor::End);
        cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, static_cast<int>(overflow));
        cursor.removeSelectedText();
    });
}

void DetailWindow::ApplyMode()
{
    Ui::DetailWindow& ui = *m_ui;
    ui.liv_personen->SetEditMode(m_editMode);
    m_status->SetEditMode(m_editMode);
    m_links->SetEditMode(m_editMode);
    ui.btn_ok->setVisible(m_editMode);
    ui.btn_nok->setVisible(m_editMode);
    if (m_editMode)
        return;
    for (QWidget* box : std::initializer_list<QWidget*>{ui.txt_utitel, ui.liv_personen, ui.txt_inhalt, ui.txt_tibi,
                                                        ui.txt_illu, ui.txt_objekt, ui.txt_rize})
        ShowOnFace(box);
    ui.txt_utitel->setReadOnly(true);
    ui.txt_inhalt->setReadOnly(true);
    ui.txt_objekt->setReadOnly(true);
    for (QWidget* standIn : std::initializer_list<QWidget*>{ui.txt_erst, ui.txt_tibi, ui.txt_illu, ui.txt_rize})
        standIn->show();
    for (QWidget* editor : std::initializer_list<QWidget*>{ui.cal_erst, ui.cmb_tibi, ui.cmb_illu, ui.cmb_rize})
        editor->hide();
    ui.chk_rize->setEnabled(false);
    ui.chk_valid->setEnabled(false);
}

void DetailWindow::Load()
{
    const QScopedValueRollback showingStored(m_settingText, true);
    setWindowTitle(windowTitle() + u" [#%1]"_s.arg(m_nr));
    m_ui->frm_det->setTitle(u"Zu %2 Nummer %1"_s.arg(m_nr).arg(m_session.Config.SeriesName));
    m_ui->pic_max->setIcon(SortPicturePixmap(SortPicture::Up));
    ApplyMode();

    if (const std::optional<DetailsRow> row = ReadDetailsRow(m_session, m_nr)) {
        LoadDetailsRow(*row);
    } else {
        SuggestErstdatum();
        m_ui->liv_personen->AddEmptyPersonRows();
    }
    if (m_ui->cal_erst->date() == MarkerDate())
        SuggestErstdatum();
    if (const std::optional<GestaltungRow> row = ReadGestaltungRow(m_session, m_nr))
        LoadGestaltungRow(*row);

    FillArtistCombos();
    m_status->LoadStatusList(m_nr);
    m_links->LoadLinksList(m_nr);
    ShowSections(true, false, false, false);
    m_dirty = false;
    m_ui->btn_ok->setEnabled(false);
}

void DetailWindow::LoadDetailsRow(const DetailsRow& row)
{
    Ui::DetailWindow& ui = *m_ui;
    SetPickerDate(row.Erstdatum);
    if (row.Erstdatum == MarkerDate())
        ui.chk_valid->setChecked(false);
    ui.txt_erst->setText(LongDate(ui.cal_erst->date()));
    ui.txt_utitel->setPlainText(row.Untertitel);
    for (const QString& person : row.Persons)
        ui.liv_personen->AddPersonRow(person);
    ui.txt_inhalt->setPlainText(row.Inhalt);
}

void DetailWindow::SuggestErstdatum()
{
    SetPickerDate(SuggestedErstdatum(m_session, m_nr, QDate::currentDate()));
    m_ui->txt_erst->setText(LongDate(m_ui->cal_erst->date()));
    // Only a date the user confirms counts as known.
    if (!m_editMode)
        m_ui->chk_valid->setChecked(false);
}

void DetailWindow::LoadGestaltungRow(const GestaltungRow& row)
{
    Ui::DetailWindow& ui = *m_ui;
    if (m_editMode) {
        ui.cmb_tibi->setEditText(row.TiBiZeichner);
        ui.cmb_illu->setEditText(row.IlluZeichner);
    } else {
        ui.txt_tibi->setText(row.TiBiZeichner);
        ui.txt_illu->setText(row.IlluZeichner);
    }
    if (!row.RZ)
        return;
    ui.chk_rize->setChecked(true);
    if (m_editMode) {
        ui.txt_objekt->setEnabled(true);
        ui.cmb_rize->setEnabled(true);
        ui.cmb_rize->setEditText(row.RiZeZeichner);
    } else {
        ui.txt_rize->setText(row.RiZeZeichner);
    }
    ui.txt_objekt->setText(row.RiZeObjekt);
}

void DetailWindow::FillArtistCombos()
{
    SetComboItems(*m_ui->cmb_tibi, ArtistNames(m_session, u"TiBiZeichner"_s));
    SetComboItems(*m_ui->cmb_illu, ArtistNames(m_session, u"IlluZeichner"_s));
    SetComboItems(*m_ui->cmb_rize, ArtistNames(m_session, u"RiZeZeichner"_s));
}

void DetailWindow::ShowSections(bool texte, bool bilder, bool status, bool links)
{
    m_ui->frm_det->setVisible(texte);
    m_ui->frm_kg->setVisible(bilder);
    m_ui->frm_rize->setVisible(bilder);
    m_status->setVisible(status);
    m_links->setVisible(links);
}

void DetailWindow::TabChanged(int tab)
{
    m_ui->lst_illu->hide();
    // An attribute editor left open would float over a list out of sight.
    if (tab == TabStatus || m_lastTab == TabStatus)
        m_status->HideFloatEditors();
    m_lastTab = tab;
    switch (tab) {
    case TabTexte:
        m_ui->liv_personen->HideCombo();
        ShowSections(true, false, false, false);
        break;
    case TabBilder:
        ShowSections(false, true, false, false);
        break;
    case TabStatus:
        ShowSections(false, false, true, false);
        break;
    case TabLinks:
        ShowSections(false, false, false, true);
        m_links->FocusList();
        break;
    default:
        break;
    }
}

void DetailWindow::SetPickerDate(const QDate& date)
{
    const QSignalBlocker quiet(m_ui->cal_erst);
    m_ui->cal_erst->setDate(date);
}

void DetailWindow::ValidToggled(bool valid)
{
    const bool picking = valid && m_editMode;
    m_ui->cal_erst->setVisible(picking);
    m_ui->txt_erst->setVisible(!picking);
    if (!valid)
        m_ui->txt_erst->setText(LongDate(m_ui->cal_erst->date()));
}

void DetailWindow::RizeClicked(bool checked)
{
    Ui::DetailWindow& ui = *m_ui;
    if (!checked) {
        ui.txt_objekt->clear();
        ui.cmb_rize->setEditText({});
    }
    ui.txt_objekt->setEnabled(checked);
    ui.cmb_rize->setEnabled(checked);
    MarkDetailsChanged();
}

void DetailWindow::ToggleContentSize()
{
    m_largeContent = !m_largeContent;
    // The content takes the whole frame; the boxes above and beside it go.
    m_ui->pnl_kopf->setVisible(!m_largeContent);
    m_ui->pnl_personen->setVisible(!m_largeContent);
    m_ui->pic_max->setIcon(SortPicturePixmap(m_largeContent ? SortPicture::Down : SortPicture::Up));
}

void DetailWindow::MarkDetailsChanged()
{
    m_dirty = true;
    m_ui->btn_ok->setEnabled(true);
}

void DetailWindow::Save()
{
    Ui::DetailWindow& ui = *m_ui;
    m_status->HideFloatEditors();
    // A name still open in its box is what the user meant to save.
    if (ui.liv_personen->IsComboOpen())
        ui.liv_personen->TakeComboText();
    if (!ui.chk_valid->isChecked())
        SetPickerDate(MarkerDate());
    {
        const QScopedValueRollback replacing(m_settingText, true);
        ui.txt_utitel->setPlainText(Trim(StripLineBreaks(ui.txt_utitel->toPlainText())));
        ui.txt_inhalt->setPlainText(Trim(StripLineBreaks(ui.txt_inhalt->toPlainText())));
    }
    SaveDetails(m_session, ShownValues());
    RefreshLastChange();
    if (ui.tab_detail->currentIndex() == TabLinks)
        m_links->FocusList();
    m_dirty = false;
    ui.btn_ok->setEnabled(false);
}

DetailValues DetailWindow::ShownValues() const
{
    const Ui::DetailWindow& ui = *m_ui;
    DetailValues values;
    values.Nr = m_nr;
    values.Details = {ui.cal_erst->date(), ui.txt_utitel->toPlainText(), ui.liv_personen->Names(),
                      ui.txt_inhalt->toPlainText()};
    values.Gestaltung = {ui.cmb_tibi->currentText(), ui.cmb_illu->currentText(), ui.chk_rize->isChecked(),
                         ui.txt_objekt->text(), ui.cmb_rize->currentText()};
    for (int enumber = 1; enumber <= StatusCount; ++enumber)
        values.Status.append(m_status->StoredValue(enumber));
    for (const LinkRow& link : m_links->Links())
        values.Links.append({link.number, link.text, link.series});
    return values;
}

void DetailWindow::RefreshLastChange()
{
    if (const std::optional<QString> stamp = ReadLastChange(m_session, m_nr))
        m_status->SetRowValue(1, *stamp);
}

void DetailWindow::reject()
{
    if (m_editMode && m_dirty) {
        const Answer answer = m_session.prompter->Ask(
            {u"Sicherheits Rückfrage"_s,
             u"Es wurden Änderungen an den\rDetaildaten vorgenommen.\r\rSchließen ohne zu speichern?"_s,
             MessageIcon::Question, MessageButtons::OkCancel, Answer::Cancel});
        if (answer != Answer::Ok)
            return;
    }
    QDialog::reject();
}

void DetailWindow::closeEvent(QCloseEvent* event)
{
    // The window's close button asks as btn_nok does; reject() hides the
    // window when it may go.
    event->ignore();
    reject();
}

void DetailWindow::keyPressEvent(QKeyEvent* event)
{
    // Esc in a floating editor or the picture list closes only that.
    if (event->key() == Qt::Key_Escape) {
        const QWidget* active = focusWidget();
        const bool inFloatingEditor = m_status->IsEditorOpen() ||
                                      (m_ui->liv_personen->IsComboOpen() && m_ui->liv_personen->isAncestorOf(active)) ||
                                      active == m_ui->lst_illu;
        if (inFloatingEditor)
            return;
    }
    QDialog::keyPressEvent(event);
}

bool DetailWindow::eventFilter(QObject* watched, QEvent* event)
{
    Ui::DetailWindow& ui = *m_ui;
    switch (event->type()) {
    case QEvent::Resize:
        if (watched == ui.frm_valid)
            PlaceOnCaption(ui.frm_valid, ui.chk_valid);
        else if (watched == ui.frm_rize)
            PlaceOnCaption(ui.frm_rize, ui.chk_rize);
        break;
    case QEvent::FocusIn:
        // After the click that brought the focus, which would place the
        // cursor and undo the selection.
        if (auto* combo = qobject_cast<QComboBox*>(watched))
            QTimer::singleShot(0, combo->lineEdit(), &QLineEdit::selectAll);
        else if (auto* line = qobject_cast<QLineEdit*>(watched))
            QTimer::singleShot(0, line, &QLineEdit::selectAll);
        else if (auto* text = qobject_cast<QPlainTextEdit*>(watched))
            QTimer::singleShot(0, text, &QPlainTextEdit::selectAll);
        break;
    case QEvent::KeyPress:
        return KeyPressed(watched, static_cast<QKeyEvent*>(event)) || QDialog::eventFilter(watched, event);
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

bool DetailWindow::KeyPressed(QObject* watched, const QKeyEvent* key)
{
    Ui::DetailWindow& ui = *m_ui;
    if (IsEnter(key) && (watched == ui.btn_ok || watched == ui.btn_nok)) {
        static_cast<QPushButton*>(watched)->click();
        return true;
    }
    const bool typing = watched == ui.txt_utitel || watched == ui.txt_inhalt || watched == ui.txt_objekt ||
                        watched == ui.cmb_tibi || watched == ui.cmb_illu || watched == ui.cmb_rize;
    if (typing && m_editMode && !LeavesTextAlone(key))
        MarkDetailsChanged();
    // Enter finishes the box and goes on to the save button; the two
    // multi-line boxes therefore take no line breaks from the keyboard.
    if (IsEnter(key) && (typing || watched == ui.txt_erst)) {
        ui.btn_ok->setFocus();
        return true;
    }
    return false;
}

} // namespace heft
