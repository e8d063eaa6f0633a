#include "gotodialog.h"
#include "ui_gotodialog.h"

#include "mainwindow.h"

#include "core/session.h"
#include "core/textfuncs.h"

#include <QProgressBar>
#include <QRegularExpressionValidator>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QString NotFoundTitle = u"Negatives Suchergebnis"_s;

} // namespace

GotoDialog::GotoDialog(MainWindow& window)
    : QDialog(&window), m_ui(std::make_unique<Ui::GotoDialog>()), m_window(window)
{
    m_ui->setupUi(this);
    // Digits only; Enter reaches OKButton, the default button.
    m_ui->txt_nr->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[0-9]*"_s), m_ui->txt_nr));
    connect(m_ui->OKButton, &QPushButton::clicked, this, &GotoDialog::Search);
}

GotoDialog::~GotoDialog() = default;

void GotoDialog::Search()
{
    const QString text = m_ui->txt_nr->text();
    if (text.isEmpty())
        return;
    const int nr = static_cast<int>(Val(text));
    EntryList& list = m_window.List();
    Prompter& prompter = *m_window.CurrentSession().prompter;
    // Outside the collection's range there is nothing to search for.
    if (nr < list.LowestNr) {
        prompter.Tell(NotFoundTitle, u"Die kleinste vorliegende\rHeftnummer lautet: %1"_s.arg(list.LowestNr),
                      MessageIcon::Information);
        return;
    }
    if (nr > list.HighestNr) {
        prompter.Tell(NotFoundTitle, u"Die größte vorliegende\rHeftnummer lautet: %1"_s.arg(list.HighestNr),
                      MessageIcon::Information);
        return;
    }

    m_window.StartProgress(list.ActiveGrid->Rows());
    const int row = list.FindAndShowRow(nr);
    if (auto* progress = m_window.findChild<QProgressBar*>(u"pbar_load"_s))
        progress->setValue(progress->maximum());
    m_window.FinishProgress(100);
    if (row < 0) {
        prompter.Tell(NotFoundTitle, u"Eintrag Nummer %1 konnte\nnicht gefunden werden."_s.arg(nr),
                      MessageIcon::Information);
        return;
    }
    accept();
}

void ShowGotoDialog(MainWindow& window)
{
    GotoDialog dialog(window);
    dialog.exec();
}

} // namespace heft
