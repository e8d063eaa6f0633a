#include "columnfilldialog.h"
#include "ui_columnfilldialog.h"

#include "filter/columnfill.h"
#include "filter/filterfields.h"

#include "core/session.h"
#include "mainwin/ui/mainwindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

bool IsEnter(const QKeyEvent& key) { return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter; }

// The grids don't repaint while the walk changes their cells row by row;
// they show the outcome once at the end.
class FrozenGrids {
public:
    explicit FrozenGrids(QWidget& window)
    {
        for (const QString& name : {u"fg_filter"_s, u"fg_heftliste"_s}) {
            if (auto* view = window.findChild<QWidget*>(name)) {
                view->setUpdatesEnabled(false);
                m_views << view;
            }
        }
    }
    ~FrozenGrids()
    {
        for (QWidget* view : std::as_const(m_views)) {
            if (view)
                view->setUpdatesEnabled(true);
        }
    }
    FrozenGrids(const FrozenGrids&) = delete;
    FrozenGrids& operator=(const FrozenGrids&) = delete;

private:
    QList<QPointer<QWidget>> m_views;
};

} // namespace

ColumnFillDialog::ColumnFillDialog(MainWindow& window)
    : QDialog(&window), m_ui(std::make_unique<Ui::ColumnFillDialog>()), m_window(window)
{
    m_ui->setupUi(this);
    setWindowTitle(ColumnFillCaption());
    for (const FillTarget& target : FillTargets())
        m_ui->cmb_choose->addItem(target.label);
    m_ui->cmb_aufl->addItems(AuflageEntries(window.CurrentSession().Config.MaxAuflage));
    m_ui->cmb_aufl->setCurrentIndex(1);
    m_ui->cmb_gel->addItems(YesNoEntries());
    ChooseClick();
    connect(m_ui->cmb_choose, &QComboBox::currentIndexChanged, this, &ColumnFillDialog::ChooseClick);
    connect(m_ui->btn_ok, &QPushButton::clicked, this, &ColumnFillDialog::FillClick);
    for (QWidget* input : {static_cast<QWidget*>(m_ui->txt_1), static_cast<QWidget*>(m_ui->cmb_aufl),
                           static_cast<QWidget*>(m_ui->cmb_gel), static_cast<QWidget*>(m_ui->cmb_univf)})
        input->installEventFilter(this);
}

ColumnFillDialog::~ColumnFillDialog() = default;

int ColumnFillDialog::Target() const { return m_ui->cmb_choose->currentIndex(); }

void ColumnFillDialog::ChooseClick()
{
    const FillTarget& target = FillTargetAt(Target());
    m_ui->cmb_aufl->setVisible(target.editor == FillEditor::Aufl);
    m_ui->cmb_gel->setVisible(target.editor == FillEditor::Gel);
    m_ui->txt_1->setVisible(target.editor == FillEditor::Text);
    m_ui->cmb_univf->setVisible(target.editor == FillEditor::Univf);
    if (target.editor == FillEditor::Text) {
        m_ui->txt_1->clear();
        m_ui->txt_1->setMaxLength(target.maxLength);
    } else if (target.editor == FillEditor::Univf) {
        m_ui->cmb_univf->clear();
        m_ui->cmb_univf->addItems(FillSuggestions(*m_window.CurrentSession().CollectionDb, Target()));
        // The values are offered, not chosen: the box starts empty.
        m_ui->cmb_univf->setCurrentIndex(-1);
    }
}

void ColumnFillDialog::FillClick()
{
    // While a fill runs the window only listens for Esc.
    if (!m_finished)
        return;
    FillRequest request;
    if (ReadRequest(request))
        Run(request);
}

bool ColumnFillDialog::ReadRequest(FillRequest& request)
{
    request.target = Target();
    const FillTarget& target = FillTargetAt(request.target);
    switch (target.editor) {
    case FillEditor::Aufl:
        request.listIndex = m_ui->cmb_aufl->currentIndex();
        return true;
    case FillEditor::Gel:
        request.listIndex = m_ui->cmb_gel->currentIndex();
        return true;
    case FillEditor::Univf:
        request.text = m_ui->cmb_univf->currentText();
        return true;
    case FillEditor::Text:
        break;
    }
    QLineEdit* box = m_ui->txt_1;
    if (target.gridColumn == ColZyklus) {
        const CycleInput cycle = NormalizeCycleInput(box->text());
        box->setText(cycle.text);
        if (!cycle.accepted) {
            // "- - -" stands in the box now; the next press writes it.
            box->setFocus();
            m_swallowEnter = true;
            QApplication::beep();
            return false;
        }
    } else if (target.enumber != 0) {
        // The box shows what is written: the number as stored, or nothing.
        box->setText(NumericFillText(target.enumber, box->text()));
    }
    request.text = box->text();
    return true;
}

void ColumnFillDialog::Run(const FillRequest& request)
{
    m_abort = false;
    m_finished = false;
    EntryList& list = m_window.List();
    m_window.StartProgress(list.Filter.Rows());
    m_window.SetStatusPanel(5, u"Aktualisiere Werte in Liste und Datenbank ..."_s);
    auto* bar = m_window.findChild<QProgressBar*>(u"pbar_load"_s);
    {
        const FrozenGrids frozen(m_window);
        const FillFeedback feedback{[bar](int value) { bar->setValue(value); },
                                    [this] {
                                        // Esc gets its chance after every row.
                                        QCoreApplication::processEvents();
                                        return m_abort;
                                    }};
        FillColumn(m_window.CurrentSession(), list, request, feedback);
    }
    bar->setValue(bar->maximum());
    m_window.FinishProgress(250);
    m_window.SetStatusPanel(5, u"Fertig und Bereit [Filter ist AKTIV]."_s);
    m_finished = true;
}

void ColumnFillDialog::done(int result)
{
    m_abort = true;
    QDialog::done(result);
}

void ColumnFillDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) {
        QDialog::keyPressEvent(event);
        return;
    }
    // The first Esc during a fill stops it; the window stays open.
    m_abort = true;
    if (m_finished)
        reject();
}

bool ColumnFillDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QDialog::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool press = event->type() == QEvent::KeyPress;
    if (watched != m_ui->txt_1) {
        // Enter in a list box goes on to btn_ok rather than pressing it.
        if (press && IsEnter(key)) {
            m_ui->btn_ok->setFocus();
            return true;
        }
        return false;
    }
    if (!IsEnter(key))
        return press && !FillAcceptsKey(Target(), key.text());
    // Enter in txt_1 moves on when it comes up, not when it goes down.
    if (!press) {
        if (m_swallowEnter)
            m_swallowEnter = false;
        else
            m_ui->btn_ok->setFocus();
    }
    return true;
}

void ShowColumnFill(MainWindow& window)
{
    ColumnFillDialog dialog(window);
    dialog.exec();
}

} // namespace heft
