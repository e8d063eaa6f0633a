#pragma once
// frm_stat: the eight statistics of the collection, one at a time, as a
// report in txt_box1 and as a chart beside it. Status texts and progress
// show on the main window while a statistic counts.

#include "stats/statistics.h"

#include <QDialog>

#include <memory>

namespace Ui {
class StatWindow;
}

namespace heft {

class MainWindow;

class StatWindow : public QDialog {
    Q_OBJECT

public:
    explicit StatWindow(MainWindow& main);
    ~StatWindow() override;

    // Reads the authors, cycles and printings and shows the first statistic.
    void Load();
    const StatsResult& Result() const { return m_result; }

private:
    void StatClick();
    void PriceValueClick();
    void Step(int by);
    void UpdateStepCaptions();
    void SetChoiceControls(const ChoiceControls& controls);
    void Finish();

    std::unique_ptr<Ui::StatWindow> m_ui;
    MainWindow& m_main;
    QWidget* m_chart = nullptr;
    StatsLists m_lists;
    StatsResult m_result;
};

} // namespace heft
