#include "cycleeditor.h"
#include "ui_cycleeditor.h"

#include "cyclegrid.h"
#include "cyclewindow.h"

#include "core/session.h"
#include "core/sqlwriters.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

constexpr CycleBox Boxes[] = {CycleBox::Zyklus,       CycleBox::NrVon,   CycleBox::NrBis,
                              CycleBox::ZeitVon,      CycleBox::ZeitBis, CycleBox::Bezeichnung,
                              CycleBox::Zyklusbereich};

QString* Field(CycleRow& row, CycleBox box) {
    QString* fields[] = {&row.Zyklus,  &row.NrVon,       &row.NrBis,        &row.ZeitVon,
                         &row.ZeitBis, &row.Bezeichnung, &row.Zyklusbereich};
    return fields[static_cast<int>(box) - 1];
}

bool IsEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

CycleEditor::CycleEditor(CycleWindow& window, bool existing)
    : QDialog(&window), m_ui(std::make_unique<Ui::CycleEditor>()), m_window(window), m_existing(existing) {
    m_ui->setupUi(this);
    // The key of a cycle follows from its place in the list and is never
    // typed: its box looks like a part of the window, not like an input.
    QPalette keyPalette = m_ui->txt_zyklus->palette();
    keyPalette.setBrush(QPalette::Base, keyPalette.button());
    m_ui->txt_zyklus->setPalette(keyPalette);
    m_ui->txt_zyklus->setReadOnly(true);
    for (CycleBox box : Boxes)
        Box(box)->installEventFilter(this);
    connect(m_ui->btn_ok, &QPushButton::clicked, this, &CycleEditor::AcceptClick);
    connect(m_ui->btn_nok, &QPushButton::clicked, this, &QDialog::reject);

    const CycleGrid& grid = window.Grid();
    if (existing) {
        Show(grid.Cycle(grid.currentRow()));
    } else {
        setWindowTitle(u"Neuen Zyklus erstellen ..."_s);
        const int last = grid.CycleCount() - 1;
        Show(last >= 0 ? ProposeNextCycle(grid.NrOf(last), grid.Cycle(last))
                       : ProposeNextCycle(0, CycleRow{}));
    }
}

CycleEditor::~CycleEditor() = default;

QLineEdit* CycleEditor::Box(CycleBox box) const {
    switch (box) {
    case CycleBox::Zyklus:
        return m_ui->txt_zyklus;
    case CycleBox::NrVon:
        return m_ui->txt_vonnr;
    case CycleBox::NrBis:
        return m_ui->txt_bisnr;
    case CycleBox::ZeitVon:
        return m_ui->txt_vonjahr;
    case CycleBox::ZeitBis:
        return m_ui->txt_bisjahr;
    case CycleBox::Bezeichnung:
        return m_ui->txt_bez;
    case CycleBox::Zyklusbereich:
        return m_ui->txt_gz;
    case CycleBox::None:
        break;
    }
    return nullptr;
}

CycleRow CycleEditor::Typed() const {
    CycleRow row;
    for (CycleBox box : Boxes)
        *Field(row, box) = Box(box)->text();
    return row;
}

void CycleEditor::Show(const CycleRow& row) {
    CycleRow shown = row;
    for (CycleBox box : Boxes)
        Box(box)->setText(*Field(shown, box));
}

bool CycleEditor::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        // After the click that brought the focus, which would place the
        // cursor and undo the selection.
        if (auto* box = qobject_cast<QLineEdit*>(watched))
            QTimer::singleShot(0, box, &QLineEdit::selectAll);
        return false;
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const auto it =
        std::find_if(std::begin(Boxes), std::end(Boxes), [&](CycleBox b) { return Box(b) == watched; });
    const CycleBox box = it != std::end(Boxes) ? *it : CycleBox::None;
    if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab || key.key() == Qt::Key_Escape)
        return false;
    if (box == CycleBox::Zyklus)
        return true;
    const bool filtered = box != CycleBox::Bezeichnung && box != CycleBox::Zyklusbereich;
    if (filtered && IsEnter(key.key())) {
        m_ui->btn_ok->click();
        return true;
    }
    return !CycleBoxAcceptsKey(box, key.text());
}

void CycleEditor::AcceptClick() {
    CycleRow input = Typed();
    const CycleBox refused = CheckCycleInput(input);
    Show(input);
    if (refused != CycleBox::None) {
        QLineEdit* box = Box(refused);
        box->setFocus();
        box->selectAll();
        QApplication::beep();
        return;
    }
    Session& session = m_window.CurrentSession();
    session.CurrentSql = m_existing ? UpdateCycleSql(input) : InsertCycleSql(input);
    // A failed statement leaves the list as it was, without a word.
    if (ExecuteCycleSql(session) == 0)
        UpdateGrid(input);
    accept();
}

void CycleEditor::UpdateGrid(const CycleRow& row) {
    CycleGrid& grid = m_window.Grid();
    int index = grid.currentRow();
    if (m_existing)
        grid.SetCycle(index, grid.NrOf(index), row);
    else
        index = grid.AppendCycle(row);
    grid.SelectCycle(index);
}

} // namespace heft
