// The pictures on the "Bilder" tab: files dropped from a file manager onto
// each kind, the viewer, and the list of illustration pages.

#include "testmain.h"
#include "testsupport.h"

#include "details/ui/detailwindow.h"
#include "details/ui/pictureviewer.h"
#include "mainwin/ui/mainwindow.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

struct Fixture {
    Fixture()
    {
        collection.Add({{1, u"A"_s, u"Eins"_s}, {2, u"B"_s, u"Zwei"_s}});
        collection.session.Config.PictureRoot = collection.dir.path();
        window.LoadList(collection.session);
        window.List().FindAndShowRow(2);
        details = std::make_unique<DetailWindow>(collection.session, window.List(), true, &window);
        details->show();
        details->findChild<QTabWidget*>(u"tab_detail"_s)->setCurrentIndex(1);
    }
    QString Store(const QString& kind) const { return collection.dir.filePath(kind + u"s/Valdorin (Heftromane)/"_s); }
    void Picture(const QString& path, QSize size) const
    {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        QVERIFY(image.save(path, "JPG"));
    }
    TempCollection collection;
    MainWindow window;
    std::unique_ptr<DetailWindow> details;
};

// Answers the next modal window once it is up.
void AnswerNextModal(const std::function<void(QWidget*)>& answer)
{
    QTimer::singleShot(0, [answer] {
        QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
        answer(QApplication::activeModalWidget());
    });
}

} // namespace

class TestPictureWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dropOntoEachKind_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("stored");
        QTest::newRow("cover") << u"cmb_tibi"_s << u"tibis/Valdorin (Heftromane)/2tibi.jpg"_s;
        QTest::newRow("illustration, page 12") << u"cmb_illu"_s << u"illus/Valdorin (Heftromane)/2illu012.jpg"_s;
    }
    void dropOntoEachKind()
    {
        QFETCH(QString, target);
        QFETCH(QString, stored);
        Fixture fixture;
        const QString source = fixture.collection.dir.filePath(u"scan.jpg"_s);
        fixture.Picture(source, {40, 60});
        auto* box = fixture.details->findChild<QComboBox*>(target)->lineEdit();
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(source)});
        QDragEnterEvent enter(box->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box, &enter);
        QVERIFY(enter.isAccepted());
        if (target == u"cmb_illu")
            AnswerNextModal([](QWidget* input) {
                QCOMPARE(input->objectName(), u"frm_illuinput"_s);
                QTest::keyClicks(input->findChild<QLineEdit*>(u"txt_sz"_s), u"12"_s);
                QTest::keyClick(input, Qt::Key_Return);
            });
        QDropEvent drop(QPointF(box->rect().center()), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box, &drop);
        QVERIFY(QFileInfo::exists(fixture.collection.dir.filePath(stored)));
        QCOMPARE(fixture.collection.prompter.asked.size(), 1);
        QCOMPARE(fixture.collection.prompter.asked[0].title, u"Ziehen & Ablegen Info"_s);
    }
};

HEFT_TEST(TestPictureWindows)
#include "tst_picturewindows.moc"
