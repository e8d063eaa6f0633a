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
            QFile::copy(QStringLiteral(HEFTARIUM_DATA_SOURCES) + u"/bm/"_s + name, Bm(name));
        collection.session.Config.LogoFile = u"Logo.svg"_s;
        collection.session.Config.SplashFile = u"Splash.svg"_s;
    }
    QString Bm(const QString& name) const { return collection.dir.filePath(u"bm/"_s + name); }
    void Put(const QString& name, const QByteArray& content) const
    {
        QFile file(Bm(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QString LogText() const
    {
        QFile log(collection.session.log.Path());
        return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()) : QString();
    }
    Session& session() { return collection.session; }

    TempCollection collection;
};

// A real 100 x 50 picture, as a user would put it into bm/.
QByteArray RedPng()
{
    QImage red(100, 50, QImage::Format_RGB32);
    red.fill(Qt::red);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    red.save(&buffer, "PNG");
    return buffer.data();
}

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

class UrlCatcher : public QObject {
    Q_OBJECT
public Q_SLOTS:
    void Open(const QUrl& url) { opened.append(url); }

public:
    QList<QUrl> opened;
};

} // namespace

class TestSplash : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void splashImage_data()
    {
        QTest::addColumn<QString>("splashFile");
        QTest::addColumn<QString>("put"); // a file put into bm/ beside the shipped images
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QSize>("shown");
        QTest::addColumn<int>("logCode"); // 0: nothing logged

        const QSize shipped(480, 300);
        const QSize own(480, 240); // the red picture fitted into the frame
        QTest::newRow("shipped drawing") << u"Splash.svg"_s << QString() << QByteArray() << shipped << 0;
        QTest::newRow("old metafile name finds the drawing") << u"Splash.wmf"_s << QString() << QByteArray() << shipped << 0;
        QTest::newRow("undecodable metafile beside the drawing")
            << u"Splash.wmf"_s << u"Splash.wmf"_s << QByteArray("\xd7\xcd\xc6\x9a not a picture") << shipped << 0;
        QTest::newRow("a picture comes before a drawing") << u"Splash.wmf"_s << u"Splash.png"_s << RedPng() << own << 0;
        QTest::newRow("own picture") << u"Titel.png"_s << u"Titel.png"_s << RedPng() << own << 0;
        QTest::newRow("own picture under an old name") << u"Titel.wmf"_s << u"Titel.png"_s << RedPng() << own << 0;
        QTest::newRow("missing file") << u"Titelbild.jpg"_s << QString() << QByteArray() << shipped << 53;
        QTest::newRow("broken picture") << u"Kaputt.png"_s << u"Kaputt.png"_s << QByteArray("\x89PNG broken") << shipped << 481;
        QTest::newRow("no name configured") << QString() << QString() << QByteArray() << shipped << 53;
    }
    void splashImage()
    {
        QFETCH(QString, splashFile);
        QFETCH(QString, put);
        QFETCH(QByteArray, content);
        QFETCH(QSize, shown);
        QFETCH(int, logCode);
        SplashFixture fixture;
        if (!put.isEmpty())
            fixture.Put(put, content);
        fixture.session().Config.SplashFile = splashFile;

        SplashWindow window(fixture.session());
        QVERIFY(window.LoadImages());

        const QPixmap pixmap = window.findChild<QLabel*>(u"imgLogo"_s)->pixmap();
        QCOMPARE(pixmap.deviceIndependentSize().toSize(), shown);
        const QString log = fixture.LogText();
        if (logCode == 0) {
            QVERIFY2(log.isEmpty(), qPrintable(log));
        } else {
            QCOMPARE(log.count(u"[Fehler"_s), 1);
            QVERIFY(log.contains(u"[Fehler %1]\r\nKeine Splash Bild-Datei! --> Versuche Default\r\n"_s.arg(logCode)));
            QVERIFY(log.contains(QDir::toNativeSeparators(fixture.collection.dir.filePath(u"bm"_s))));
        }
        QVERIFY(fixture.collection.prompter.asked.isEmpty());
    }

    void logo_data()
    {
        QTest::addColumn<QString>("logoFile");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("logCode"); // 0: the logo is found

        QTest::newRow("shipped drawing") << u"Logo.svg"_s << QByteArray() << 0;
        QTest::newRow("old metafile name finds the drawing") << u"Logo.wmf"_s << QByteArray() << 0;
        QTest::newRow("missing") << u"Firmenlogo.bmp"_s << QByteArray() << 53;
        QTest::newRow("broken drawing") << u"Kaputt.svg"_s << QByteArray("<svg") << 481;
    }
    void logo()
    {
        QFETCH(QString, logoFile);
        QFETCH(QByteArray, content);
        QFETCH(int, logCode);
        SplashFixture fixture;
        if (!content.isEmpty())
            fixture.Put(logoFile, content);
        fixture.session().Config.LogoFile = logoFile;

        SplashWindow window(fixture.session());
        QCOMPARE(window.LoadImages(), logCode == 0);

        const QList<Message>& asked = fixture.collection.prompter.asked;
        if (logCode == 0) {
            QVERIFY(asked.isEmpty());
            QVERIFY(fixture.LogText().isEmpty());
            return;
        }
        QCOMPARE(asked.size(), 1);
        QCOMPARE(asked[0].title, u"Kritischer Fehler"_s);
        QCOMPARE(asked[0].text, u"Die Logo/Splash Grafiken\nkonnten nicht gefunden werden.\n\nDer Heftarium wird beendet."_s);
        QCOMPARE(asked[0].icon, MessageIcon::Critical);
        QCOMPARE(asked[0].buttons, MessageButtons::Ok);
        const QString log = fixture.LogText();
        QCOMPARE(log.count(u"[Fehler"_s), 1);
        QVERIFY(log.contains(u"[Fehler %1]\r\nKeine Splash/Logo Bild-Datei!\r\n"_s.arg(logCode)));
    }

    void closes_data()
    {
        QTest::addColumn<QString>("target"); // empty: a key press
        QTest::addColumn<int>("key");
        QTest::newRow("letter") << QString() << int(Qt::Key_A);
        QTest::newRow("function key") << QString() << int(Qt::Key_F5);
        QTest::newRow("image") << u"imgLogo"_s << 0;
        QTest::newRow("maker") << u"lblCopyright"_s << 0;
    }
    void closes()
    {
        QFETCH(QString, target);
        QFETCH(int, key);
        SplashFixture fixture;
        SplashWindow window(fixture.session());
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

    void links_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QUrl>("url");
        QTest::newRow("web page") << u"lblCompany"_s << QUrl(u"https://www.quintara.example/heftarium"_s);
        QTest::newRow("mail") << u"lbl_personality3"_s << QUrl(u"mailto:heftarium@quintara.example"_s);
    }
    void links()
    {
        QFETCH(QString, label);
        QFETCH(QUrl, url);
        SplashFixture fixture;
        SplashWindow window(fixture.session());
        QVERIFY(window.LoadImages());
        auto* link = window.findChild<QLabel*>(label);
        QCOMPARE(link->cursor().shape(), Qt::PointingHandCursor);

        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(link, &enter);
        QCOMPARE(link->palette().color(link->foregroundRole()), QColor(0, 0, 255));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(link, &leave);
        QVERIFY(link->palette().color(link->foregroundRole()) != QColor(0, 0, 255));

        UrlCatcher catcher;
        QDesktopServices::setUrlHandler(url.scheme(), &catcher, "Open");
        const bool closed = ClosesWhileModal(window, [&] { QTest::mouseClick(link, Qt::LeftButton); });
        QDesktopServices::unsetUrlHandler(url.scheme());
        QVERIFY(closed);
        QCOMPARE(catcher.opened, QList<QUrl>{url});
    }

    // A look at the window (/tmp/splash.png); the checks make sure that it is
    // a fixed frameless window on the screen and that no text is cut off.
    void face()
    {
        SplashFixture fixture;
        SplashWindow window(fixture.session());
        QVERIFY(window.LoadImages());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QCOMPARE(window.objectName(), u"frm_Splash"_s);
        QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
        QCOMPARE(window.minimumSize(), window.maximumSize());
        QVERIFY(window.screen()->availableGeometry().contains(window.frameGeometry()));
        QCOMPARE(window.findChild<QLabel*>(u"lbl_version"_s)->text(),
                 u"Version %1.%2.%3"_s.arg(HEFTARIUM_VERSION_MAJOR).arg(HEFTARIUM_VERSION_MINOR).arg(HEFTARIUM_VERSION_PATCH));
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            if (label->objectName() != u"imgLogo"_s)
                QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->objectName()));
        }
        window.grab().save(u"/tmp/splash.png"_s);
    }
};

HEFT_TEST(TestSplash)
#include "tst_splash.moc"
