#include "statwindow.h"

#include "statchart.h"
#include "ui_statwindow.h"

#include "mainwin/ui/mainwindow.h"

#include <QFontDatabase>
#include <QProgressBar>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

constexpr int StatusPanel = 5;
constexpr int ProgressLinger = 50;
// txt_box1 shows this many characters of a report line without scrolling.
constexpr int ReportColumns = 64;

} // namespace

StatWindow::StatWindow(MainWindow& main) : QDialog(&main), m_ui(std::make_unique<Ui::StatWindow>()), m_main(main)
{
    m_ui->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    // The reports line up their columns with blanks.
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_ui->txt_box1->setFont(fixed);
    m_ui->txt_box1->setMinimumWidth(QFontMetrics(fixed).horizontalAdvance(QString(ReportColumns, u'0')) +
                                     2 * m_ui->txt_box1->frameWidth() + 24);
    m_chart = CreateChartView(m_ui->splReport);
    m_ui->splReport->addWidget(m_chart);
    m_ui->splReport->setStretchFactor(0, 0);
    m_ui->splReport->setStretchFactor(1, 1);
    resize(1280, 760);

    connect(m_ui->btn_next, &QPushButton::clicked, this, [this] { Step(1); });
    connect(m_ui->btn_prev, &QPushButton::clicked, this, [this] { Step(-1); });
}

StatWindow::~StatWindow() = default;

void StatWindow::Load()
{
    m_main.SetStatusPanel(StatusPanel, u"Initialisiere statistische Daten ..."_s);
    m_lists = LoadStatsLists(m_main.CurrentSession());
    m_ui->cmb_stat->addItems(StatisticNames());
    m_ui->cmb_autoren->addItems(m_lists.authors);
    m_ui->cmb_autoren->setCurrentIndex(m_ui->cmb_autoren->count() - 1);
    for (const StatsCycle& cycle : m_lists.cycles)
        m_ui->cmb_zyklen->addItem(cycle.text);
    m_ui->cmb_preiswert->addItems(PriceValueChoices());

    connect(m_ui->cmb_stat, &QComboBox::currentIndexChanged, this, &StatWindow::StatClick);
    connect(m_ui->cmb_autoren, &QComboBox::currentIndexChanged, this, &StatWindow::StatClick);
    connect(m_ui->cmb_zyklen, &QComboBox::currentIndexChanged, this, &StatWindow::StatClick);
    connect(m_ui->cmb_preiswert, &QComboBox::currentIndexChanged, this, &StatWindow::PriceValueClick);
    StatClick();
}

void StatWindow::StatClick()
{
    UpdateStepCaptions();
    const auto statistic = static_cast<Statistic>(m_ui->cmb_stat->currentIndex());
    SetChoiceControls(ChoiceControlsOf(statistic));
    StatsChoice choice;
    choice.author = m_ui->cmb_autoren->currentText();
    choice.cycle = m_ui->cmb_zyklen->currentText();
    StatsFeedback feedback;
    feedback.start = [this](int steps) { m_main.StartProgress(steps); };
    feedback.status = [this](const QString& text) { m_main.SetStatusPanel(StatusPanel, text); };
    feedback.progress = [this](int value) {
        if (auto* bar = m_main.findChild<QProgressBar*>(u"pbar_load"_s))
            bar->setValue(value);
    };
    m_result = BuildStatistic(m_main.CurrentSession(), m_lists, statistic, choice, feedback);
    m_ui->txt_box1->setPlainText(m_result.text);
    if (statistic == Statistic::PreisWert) {
        const QSignalBlocker quiet(m_ui->cmb_preiswert);
        m_ui->cmb_preiswert->setCurrentIndex(m_result.priceValueChoice);
    }
    DrawChart(m_chart, m_result.chart);
    Finish();
}

void StatWindow::PriceValueClick()
{
    if (static_cast<Statistic>(m_ui->cmb_stat->currentIndex()) != Statistic::PreisWert)
        return;
    m_main.SetStatusPanel(StatusPanel, u"Zeichne Preis/Wert Plot ..."_s);
    m_result.priceValueChoice = m_ui->cmb_preiswert->currentIndex();
    m_result.chart = PriceValueChart(m_result.priceValues, m_result.priceValueChoice);
    DrawChart(m_chart, m_result.chart);
    Finish();
}

void StatWindow::Finish()
{
    m_main.SetStatusPanel(StatusPanel, u"Fertig und Bereit."_s);
    m_main.FinishProgress(ProgressLinger);
}

void StatWindow::Step(int by)
{
    const int count = m_ui->cmb_stat->count();
    m_ui->cmb_stat->setCurrentIndex((m_ui->cmb_stat->currentIndex() + by + count) % count);
}

void StatWindow::UpdateStepCaptions()
{
    const int count = m_ui->cmb_stat->count();
    const int index = m_ui->cmb_stat->currentIndex();
    m_ui->btn_next->setText(m_ui->cmb_stat->itemText((index + 1) % count));
    m_ui->btn_prev->setText(m_ui->cmb_stat->itemText((index + count - 1) % count));
}

void StatWindow::SetChoiceControls(const ChoiceControls& controls)
{
    m_ui->frm_4what->setEnabled(controls.enabled);
    m_ui->cmb_autoren->setVisible(controls.authors);
    m_ui->cmb_zyklen->setVisible(controls.cycles);
    m_ui->cmb_preiswert->setVisible(controls.priceValue);
    for (QComboBox* box : {m_ui->cmb_autoren, m_ui->cmb_zyklen, m_ui->cmb_preiswert})
        box->setEnabled(controls.enabled);
}

} // namespace heft
