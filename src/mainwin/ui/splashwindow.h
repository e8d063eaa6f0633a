#pragma once
// frm_Splash: the program's name, version and the collection's splash image.
// It serves twice with the same face: at start it is shown without waiting
// (show, let events run, fill the list, close), and it is the about window
// when run modal (exec). Any key, or a click on the image or a plain label,
// closes it; the two link labels open the maker's web page or a mail to him
// and close it as well.

#include <QDialog>

#include <memory>

namespace Ui {
class SplashWindow;
}

namespace heft {

class Session;

class SplashWindow : public QDialog {
    Q_OBJECT

public:
    explicit SplashWindow(Session& session, QWidget* parent = nullptr);
    ~SplashWindow() override;

    // Shows {DataFolder}/bm/{SplashFile}, or the shipped Splash.svg when that
    // fails, and makes sure {LogoFile} can be loaded. A missing logo is
    // logged and told as a critical error; the result is then false and the
    // caller must close the databases and end the program, since the printed
    // pages cannot do without the logo.
    bool LoadImages();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<Ui::SplashWindow> m_ui;
    Session& m_session;
};

} // namespace heft
