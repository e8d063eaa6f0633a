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

bool IsEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

CycleEditor::CycleEditor(CycleWindow& window, bool existing)
    : QDialog(&window), m_ui(std::make_unique<Ui::CycleEditor>()), m_window(window), m_existing(existing)
{
    m_ui->setupUi(this);
    m_boxes = {m_ui->txt_zyklus,  m_ui->txt_vonnr, m_ui->txt_bisnr, m_ui->txt_vonjahr,
               m_ui->txt_bisjahr, m_ui->txt_bez,   m_ui->txt_gz};
    // The key of a cycle follows from its place in the list and is never
    // typed: its box looks like a part of the window, not like an input.
    QPalette keyPalette = m_ui->txt_zyklus->palette();
    keyPalette.setBrush(QPalette::Base, keyPalette.button());
    m_ui->txt_zyklus->setPalette(keyPalette);
    m_ui->txt_zyklus->setReadOnly(true);
    for (QLineEdit* box : m_boxes)
        box->installEventFilter(this);
    connect(m_ui->btn_ok, &QPushButton::clicked, this, &CycleEditor::AcceptClick);
    connect(m_ui->btn_nok, &QPushButton::clicked, this, &QDialog::reject);

    const CycleGrid& grid = window.Grid();
    if (existing) {
        Show(grid.Cycle(grid.currentRow()));
    } else {
        setWindowTitle(u"Neuen Zyklus erstellen ..."_s);
        const int last = grid.CycleCount() - 1;
        Show(last >= 0 ? ProposeNextCycle(grid.NrOf(last), grid.Cycle(last)) : ProposeNextCycle(0, CycleRow{}));
    }
}

CycleEditor::~CycleEditor() = default;

QLineEdit* CycleEditor::Box(CycleBox box) const
{
    return m_boxes.at(static_cast<int>(box) - 1);
}

CycleRow CycleEditor::Typed() const
{
    CycleRow row;
    const auto fields = CycleFields(row);
    for (int field = 0; field < CycleFieldCount; ++field)
        *fields[field] = m_boxes[field]->text();
    return row;
}

void CycleEditor::Show(const CycleRow& row)
{
    const auto fields = CycleFields(row);
    for (int field = 0; field < CycleFieldCount; ++field)
        m_boxes[field]->setText(*fields[field]);
}

bool CycleEditor::eventFilter(QObject* watched, QEvent* event)
{
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
    const auto it = std::find(m_boxes.begin(), m_boxes.end(), watched);
    const auto box = it != m_boxes.end() ? CycleBox(it - m_boxes.begin() + 1) : CycleBox::None;
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

void CycleEditor::AcceptClick()
{
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

void CycleEditor::UpdateGrid(const CycleRow& row)
{
    CycleGrid& grid = m_window.Grid();
    int index = grid.currentRow();
    if (m_existing)
        grid.SetCycle(index, grid.NrOf(index), row);
    else
        index = grid.AppendCycle(row);
    grid.SelectCycle(index);
}

} // namespace heft
