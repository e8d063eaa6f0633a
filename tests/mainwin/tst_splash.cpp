#include "testmain.h"
#include "testsupport.h"

#include "mainwin/imageloading.h"
#include "mainwin/ui/splashwindow.h"

#include <QBuffer>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QUrl>

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

};

HEFT_TEST(TestSplash)
#include "tst_splash.moc"
