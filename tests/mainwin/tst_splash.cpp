#include "testmain.h"
#include "testsupport.h"

#include "mainwin/imageloading.h"
#include "mainwin/ui/mainwindow.h"
#include "mainwin/ui/splashwindow.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

// A collection whose data folder holds the shipped images in bm/.
struct SplashFixture {
    SplashFixture()
    {
        QDir(collection.dir.path()).mkdir(u"bm"_s);
        for (const QString& name : {u"Logo.svg"_s, u"Splash.svg"_s})
            QFile::copy(QStringLiteral(HEFTARIUM_DATA_SOURCES) + u"/bm/"_s + name,
                        collection.dir.filePath(u"bm/"_s + name));
        collection.session.Config.LogoFile = u"Logo.svg"_s;
        collection.session.Config.SplashFile = u"Splash.svg"_s;
    }

    TempCollection collection;
};

// Runs the window modal, as the about command does, while act() closes it;
// gives up after two seconds so that a window that stays does not hang.
bool ClosesWhileModal(SplashWindow& window, const std::function<void()>& act)
{
    bool closedByAct = true;
    QTimer::singleShot(0, &window, act);
    QTimer::singleShot(2000, &window, [&] {
        closedByAct = false;
        window.reject();
    });
    window.exec();
    return closedByAct;
}

} // namespace

class TestSplash : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void closes_data()
    {
        QTest::addColumn<QString>("target"); // empty: a key press
        QTest::addColumn<int>("key");
        QTest::newRow("letter") << QString() << int(Qt::Key_A);
        QTest::newRow("image") << u"imgLogo"_s << 0;
    }
    void closes()
    {
        QFETCH(QString, target);
        QFETCH(int, key);
        SplashFixture fixture;
        SplashWindow window(fixture.collection.session);
        QVERIFY(window.LoadImages());
        const bool closed = ClosesWhileModal(window, [&] {
            if (target.isEmpty())
                QTest::keyClick(&window, Qt::Key(key));
            else
                QTest::mouseClick(window.findChild<QLabel*>(target), Qt::LeftButton);
        });
        QVERIFY(closed);
        QVERIFY(!window.isVisible());
    }

    // The about command shows the window modal over the main window.
    void fromTheMenu()
    {
        SplashFixture fixture;
        fixture.collection.Add({{1, u"A"_s, u"T"_s}});
        MainWindow window;
        window.LoadList(fixture.collection.session);
        ModalScript about(u"frm_Splash"_s);
        about.Then([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_A); });
        window.Command(u"mnu_Info"_s)->trigger();
        QVERIFY(about.opened == 1 && !about.leftOpen);
    }

    // A configured splash picture that can't be read gives way to the
    // shipped one; without a logo the program ends with a message.
    void configuredImages_data()
    {
        QTest::addColumn<QString>("splash");
        QTest::addColumn<QString>("logo");
        QTest::addColumn<bool>("loaded");
        QTest::newRow("bitmap splash") << u"Bild.png"_s << u"Logo.svg"_s << true;
        QTest::newRow("broken splash") << u"Kaputt.png"_s << u"Logo.svg"_s << true;
        QTest::newRow("logo missing") << u"Splash.svg"_s << u"Fehlt.svg"_s << false;
    }
    void configuredImages()
    {
        QFETCH(QString, splash);
        QFETCH(QString, logo);
        QFETCH(bool, loaded);
        SplashFixture fixture;
        const QDir bm(fixture.collection.dir.filePath(u"bm"_s));
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::darkBlue);
        QVERIFY(picture.save(bm.filePath(u"Bild.png"_s)));
        WriteFile(bm.filePath(u"Kaputt.png"_s));
        Configuration& config = fixture.collection.session.Config;
        config.SplashFile = splash;
        config.LogoFile = logo;
        SplashWindow window(fixture.collection.session);
        QCOMPARE(window.LoadImages(), loaded);
        QCOMPARE(window.findChild<QLabel*>(u"imgLogo"_s)->pixmap().isNull(), false);
        QCOMPARE(fixture.collection.prompter.asked.size(), loaded ? 0 : 1);
    }
};

HEFT_TEST(TestSplash)
#include "tst_splash.moc"
