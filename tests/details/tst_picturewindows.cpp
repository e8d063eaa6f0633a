// The pictures on the "Bilder" tab: files dropped from a file manager onto
// each kind, the viewer, and the list of illustration pages.

#include "testmain.h"
#include "testsupport.h"

#include "details/ui/detailwindow.h"
#include "details/ui/pictureviewer.h"
#include "mainwin/ui/mainwindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>


using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

struct Fixture {
    explicit Fixture(bool editMode = true)
    {
        collection.Add({{1, u"A"_s, u"Eins"_s}, {2, u"B"_s, u"Zwei"_s}});
        collection.session.Config.PictureRoot = collection.dir.path();
        window.LoadList(collection.session);
        window.List().FindAndShowRow(2);
        details = std::make_unique<DetailWindow>(collection.session, window.List(), editMode, &window);
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

} // namespace

class TestPictureWindows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dropOntoEachKind_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("editMode");
        QTest::addColumn<QString>("stored");
        QTest::newRow("cover") << u"cmb_tibi"_s << true << u"tibis/Valdorin (Heftromane)/2tibi.jpg"_s;
        // The drawing's box is open once the entry is marked as having one.
        QTest::newRow("cutaway") << u"cmb_rize"_s << true << u"rizes/Valdorin (Heftromane)/2rize.jpg"_s;
        QTest::newRow("illustration, page 12") << u"cmb_illu"_s << true
                                               << u"illus/Valdorin (Heftromane)/2illu012.jpg"_s;
        QTest::newRow("cover, view mode") << u"txt_tibi"_s << false << u"tibis/Valdorin (Heftromane)/2tibi.jpg"_s;
    }
    void dropOntoEachKind()
    {
        QFETCH(QString, target);
        QFETCH(bool, editMode);
        QFETCH(QString, stored);
        Fixture fixture(editMode);
        if (target == u"cmb_rize")
            fixture.details->findChild<QCheckBox*>(u"chk_rize"_s)->click();
        const QString source = fixture.collection.dir.filePath(u"scan.jpg"_s);
        fixture.Picture(source, {40, 60});
        QWidget* box = fixture.details->findChild<QWidget*>(target);
        if (auto* combo = qobject_cast<QComboBox*>(box))
            box = combo->lineEdit();
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(source)});
        QDragEnterEvent enter(box->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box, &enter);
        QVERIFY(enter.isAccepted());
        ModalScript page(u"frm_illuinput"_s);
        page.Then([](QDialog& input) {
            QTest::keyClicks(input.findChild<QLineEdit*>(u"txt_sz"_s), u"12"_s);
            QTest::keyClick(&input, Qt::Key_Return);
        });
        QDropEvent drop(QPointF(box->rect().center()), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box, &drop);
        QVERIFY(QFileInfo::exists(fixture.collection.dir.filePath(stored)));
        QCOMPARE(page.opened, target == u"cmb_illu" ? 1 : 0);
        QCOMPARE(fixture.collection.prompter.asked.size(), 1);
        QCOMPARE(fixture.collection.prompter.asked[0].title, u"Ziehen & Ablegen Info"_s);
    }

    void viewerOpensAndCloses()
    {
        Fixture fixture;
        fixture.Picture(fixture.Store(u"tibi"_s) + u"2tibi.jpg"_s, {1440, 1000});
        auto* button = fixture.details->findChild<QPushButton*>(u"btn_tibi"_s);
        ModalScript viewer(u"frm_tibi"_s);
        viewer.Then([button](QDialog& shown) {
            // The button is green already while the picture is up.
            QVERIFY(button->styleSheet().contains(u"192, 255, 192"_s));
            QCOMPARE(shown.findChild<QWidget*>(u"img_tibi"_s)->size(), QSize(720, 500));
            QTest::keyClick(&shown, Qt::Key_Space);
        });
        button->click();
        QVERIFY(viewer.opened == 1 && !viewer.leftOpen);
        // No cutaway drawing: orange, and the status bar says so.
        auto* rize = fixture.details->findChild<QPushButton*>(u"btn_rize"_s);
        rize->click();
        QVERIFY(rize->styleSheet().contains(u"255, 192, 128"_s));
        QCOMPARE(fixture.window.StatusPanelText(5), u"Fertig [keine Rißzeichnung gefunden]."_s);
    }

    void illustrationPages()
    {
        Fixture fixture;
        for (const QString& page : {u"003"_s, u"017"_s, u"042"_s})
            fixture.Picture(fixture.Store(u"illu"_s) + u"2illu"_s + page + u".jpg"_s, {300, 1080});
        auto* list = fixture.details->findChild<QListWidget*>(u"lst_illu"_s);
        fixture.details->findChild<QPushButton*>(u"btn_illu"_s)->click();
        QVERIFY(list->isVisible());
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->item(1)->text(), u"Seite 017"_s);
        list->setCurrentRow(1);
        ModalScript viewer(u"frm_tibi"_s);
        viewer.Then([](QDialog& shown) {
            QCOMPARE(shown.windowTitle(), u"Innenillustration Seite 017 [#2]"_s);
            QCOMPARE(shown.findChild<QWidget*>(u"img_tibi"_s)->size(), QSize(150, 540));
            shown.close();
        });
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(viewer.opened, 1);
        QVERIFY(!list->isVisible());
    }
};

HEFT_TEST(TestPictureWindows)
#include "tst_picturewindows.moc"
