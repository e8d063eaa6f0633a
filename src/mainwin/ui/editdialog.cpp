#include "editdialog.h"
#include "ui_editdialog.h"

#include "entryeditor.h"
#include "mainwindow.h"

#include "core/roman.h"
#include "core/schema.h"
#include "core/session.h"
#include "core/textfuncs.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QString NoCycle = u"- - -"_s;
const QString UnknownText = u"*** Unbekannt ***"_s;
// Cycle numbers above this have no roman key in the cycle list.
constexpr int HighestCycle = 999;

// The boxes for numbers take only digits (and, for the cycle, roman
// letters). Keys that type no character, such as Backspace, Enter, Esc and
// the arrows, always pass.
bool IsAcceptedKey(const QString& typed, bool romanLetters)
{
    if (typed.isEmpty() || !typed.front().isPrint())
        return true;
    const char16_t c = typed.front().unicode();
    return (c >= u'0' && c <= u'9') || (romanLetters && IsRomanKey(c));
}

// EntryRecord holds its texts quoted for SQL; shown again after a declined
// overwrite they must read as typed, or the next save would quote twice.
QString Unquoted(const QString& text)
{
    return QString(text).replace(u"''"_s, u"'"_s);
}

} // namespace

EditDialog::EditDialog(MainWindow& window)
    : QDialog(&window), m_ui(std::make_unique<Ui::EditDialog>()), m_session(window.CurrentSession())
{
    m_ui->setupUi(this);
    // A plain list of known names: the author box completes nothing on its
    // own, so what is typed is what is stored.
    m_ui->cmb_autorlist->setCompleter(nullptr);
    for (QLineEdit* box : {m_ui->txt_nr, m_ui->txt_titel, m_ui->txt_zyklus, m_ui->txt_bem, m_ui->cmb_autorlist->lineEdit()})
        box->installEventFilter(this);
    // btn_dummy is the default button and does nothing: Enter in a box lands
    // on it, so that a stray Enter neither saves nor discards.
    connect(m_ui->cmd_ok, &QPushButton::clicked, this, &EditDialog::AcceptEntry);
    connect(m_ui->btn_details, &QPushButton::clicked, this, [&window] { window.OpenDetails(true); });
    FillControls(window);
}

EditDialog::~EditDialog() = default;

void EditDialog::FillControls(MainWindow& window)
{
    Ui::EditDialog& ui = *m_ui;
    const bool editing = m_session.EditMode;
    const bool retry = m_session.EditRetry;
    ui.btn_details->setEnabled(window.IsCommandEnabled(u"mnu_detail"_s));

    // The selected row; a new entry starts as a copy of it.
    const EntryGrid& grid = *window.List().ActiveGrid;
    const int row = grid.Row();
    m_session.OldNr = static_cast<int>(Val(grid.TextMatrix(row, ColNr)));
    EntryRecord shown;
    if (retry) {
        const EntryRecord& typed = m_session.Entry;
        shown = {typed.Nr, Unquoted(typed.Autor), Unquoted(typed.Titel), typed.Auflage,
                 typed.Zyklus, typed.GL, Unquoted(typed.Bemerkung)};
    } else {
        shown.Autor = grid.TextMatrix(row, ColAutor);
        shown.Titel = grid.TextMatrix(row, ColTitel);
        shown.Auflage = static_cast<int>(Val(grid.TextMatrix(row, ColAuflage)));
        shown.Zyklus = grid.TextMatrix(row, ColZyklus);
        shown.GL = grid.TextMatrix(row, ColGelesen) == ReadMarkText();
        shown.Bemerkung = grid.TextMatrix(row, ColBemerkung);
    }

    ui.cmb_aufl->addItem(u"-NV-"_s);
    // A printing above the configured maximum stays choosable, so that
    // saving an old entry never changes its printing behind the user's back.
    const int highestPrinting = std::max(m_session.Config.MaxAuflage, shown.Auflage);
    for (int printing = 1; printing <= highestPrinting; ++printing)
        ui.cmb_aufl->addItem(u"-%1-"_s.arg(printing));
    ui.cmb_gl->addItems({u"Ja"_s, u"Nein"_s});
    FillAuthorList(m_session, *ui.cmb_autorlist);

    if (editing) {
        setWindowTitle(u"Eintrag Editieren ..."_s);
        ui.txt_nr->setText(QString::number(m_session.OldNr));
        ui.txt_titel->setText(shown.Titel);
    } else {
        setWindowTitle(u"Eintrag Einfügen ..."_s);
        ui.txt_nr->setText(QString::number(NextFreeNr(window)));
        ui.txt_titel->setText(retry ? shown.Titel : u"- Kein Titel -"_s);
    }
    ui.btn_details->setVisible(editing);
    ui.cmb_autorlist->setEditText(shown.Autor);
    ui.txt_zyklus->setText(shown.Zyklus);
    ui.cmb_aufl->setCurrentIndex(shown.Auflage);
    ui.cmb_gl->setCurrentIndex(shown.GL ? 0 : 1);
    ui.txt_bem->setText(shown.Bemerkung);
}

bool EditDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        // After the click that brought the focus, which would place the
        // cursor and undo the selection.
        if (auto* box = qobject_cast<QLineEdit*>(watched))
            QTimer::singleShot(0, box, &QLineEdit::selectAll);
    } else if (event->type() == QEvent::KeyPress && (watched == m_ui->txt_nr || watched == m_ui->txt_zyklus)) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!IsAcceptedKey(key->text(), watched == m_ui->txt_zyklus))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

void EditDialog::Refuse(QLineEdit* box, bool selectAll)
{
    box->setFocus();
    if (selectAll)
        box->selectAll();
    QApplication::beep();
}

// An empty cycle means no cycle. A number is turned into its roman key; one
// too large for that becomes "no cycle", which the user must confirm with a
// second press.
bool EditDialog::CheckCycle()
{
    QLineEdit* box = m_ui->txt_zyklus;
    const QString text = box->text();
    if (Trim(text).isEmpty() || text == NoCycle) {
        box->setText(NoCycle);
        return true;
    }
    if (IsRomanText(text))
        return true;
    if (IsNumeric(text)) {
        int number = static_cast<int>(Val(text));
        box->setText(number > HighestCycle ? NoCycle : NumberToRoman(number));
    }
    if (IsRomanText(box->text()))
        return true;
    Refuse(box, true);
    return false;
}

void EditDialog::AcceptEntry()
{
    Ui::EditDialog& ui = *m_ui;
    const QString nr = ui.txt_nr->text();
    if (!IsNumeric(nr) || Val(nr) < 1) {
        Refuse(ui.txt_nr, false);
        return;
    }
    // An empty title or author is offered as "unknown"; a second press
    // takes it.
    for (QLineEdit* box : {ui.txt_titel, ui.cmb_autorlist->lineEdit()}) {
        if (Trim(box->text()).isEmpty()) {
            box->setText(UnknownText);
            Refuse(box, true);
            return;
        }
    }
    if (!CheckCycle())
        return;

    // No apostrophe passes the cycle's key filter, so it needs no quoting.
    EntryRecord& entry = m_session.Entry;
    entry.Nr = static_cast<int>(Val(nr));
    entry.Autor = QuoteSql(Trim(Left(ui.cmb_autorlist->currentText(), AuthorLength)));
    entry.Titel = QuoteSql(Trim(ui.txt_titel->text()));
    entry.Auflage = ui.cmb_aufl->currentIndex();
    entry.Zyklus = ui.txt_zyklus->text().toUpper();
    entry.GL = ui.cmb_gl->currentIndex() == 0;
    entry.Bemerkung = QuoteSql(Trim(ui.txt_bem->text()));
    m_session.EditAccepted = true;
    accept();
}

} // namespace heft
