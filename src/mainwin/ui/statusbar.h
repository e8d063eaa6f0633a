#pragma once
// The main window's status bar sbar_stat with its six panels:
// 1 Caps lock, 2 Num lock, 3 selection, 4 progress, 5 status, 6 filter.

#include <QStatusBar>

#include <array>

class QLabel;

namespace heft {

class StatusBar : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusBar(QWidget* parent = nullptr);
    ~StatusBar() override;

    // Panels 3 and 5 take the text; panel 6 too, and its tooltip tells
    // whether a filter is in force. Panel 4 belongs to the progress bar and
    // the lock panels show their keys, so other panels ignore the call.
    void SetStatusPanel(int panel, const QString& text);
    QString PanelText(int panel) const;
    // Geometry of a panel in the status bar's coordinates.
    QRect PanelGeometry(int panel) const;
    void RefreshLockPanels();

Q_SIGNALS:
    void PanelClicked(int panel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* Panel(int panel) const { return m_panels[static_cast<size_t>(panel - 1)]; }
    std::array<QLabel*, 6> m_panels{};
};

} // namespace heft
