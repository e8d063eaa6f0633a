#include "testmain.h"
#include "testsupport.h"

#include "details/ui/statuspanel.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

// Entry 7 with a stamp, a count, a condition, a seller and a price (with
// the comma of older files); the condition used in other entries too. ENum
// 25 belongs to no attribute.
struct Fixture {
    explicit Fixture(bool edit = true)
    {
        for (const QString& row : {u"7, 1, '2024-01-02 um 10:11:12'"_s, u"7, 2, '0000120'"_s, u"7, 3, 'gut'"_s,
                                   u"7, 4, 'Kiosk am Markt'"_s, u"7, 5, '0003,50'"_s, u"7, 25, 'verirrt'"_s,
                                   u"8, 3, 'sehr gut'"_s, u"9, 3, '  mäßig '"_s, u"10, 3, ''"_s, u"11, 3, 'gut'"_s})
            collection.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (%1);"_s.arg(row));
        auto* panel_ = new StatusPanel(collection.session, &window);
        (new QVBoxLayout(&window))->addWidget(panel_);
        panel_->SetEditMode(edit);
        panel_->LoadStatusList(7);
        window.resize(460, 520);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("status panel not shown");
        panel = panel_;
        list = panel->findChild<QTreeWidget*>(u"liv_status"_s);
        text = panel->findChild<QLineEdit*>(u"txt_float"_s);
        combo = panel->findChild<QComboBox*>(u"cmb_float"_s);
    }
    QTreeWidgetItem* Row(int enumber) const { return list->topLevelItem(enumber - 1); }
    QString Shown(int enumber) const { return Row(enumber)->text(0); }
    TempCollection collection;
    QDialog window; // stands in for the detail window, to see where Esc goes
    StatusPanel* panel = nullptr;
    QTreeWidget* list = nullptr;
    QLineEdit* text = nullptr;
    QComboBox* combo = nullptr;
};

} // namespace

class TestStatusPanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Keys that don't belong to the attribute never reach the box; Enter or
    // a click beside the box takes the value into the row in its shown form,
    // unless it is refused; Esc drops it and leaves the window open.
    void typeAndEnter_data()
    {
        QTest::addColumn<int>("enumber");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QStringList>("offered"); // by the combo box; empty: a text box
        QTest::addColumn<QString>("finish");      // keys, or a click on the list beside the box
        const QStringList used{u"mäßig"_s, u"gut"_s, u"sehr gut"_s};
        QTest::newRow("comma refused in the price") << 5 << u"4,5"_s << u"45"_s << u"0000045"_s << QStringList()
                                                    << u"Return"_s;
        QTest::newRow("old lending date") << 18 << u"1.2.1899"_s << u"1901-01-01"_s << u"1901-01-01"_s
                                          << QStringList() << u"Return"_s;
        QTest::newRow("condition from the used ones") << 3 << u"neu "_s << u"neu"_s << u"neu"_s << used << u"Return"_s;
        QTest::newRow("condition taken by a click") << 3 << u"neu"_s << u"neu"_s << u"neu"_s << used << u"click"_s;
        QTest::newRow("lending date dropped") << 18 << u"1.2.1999"_s << QString() << QString() << QStringList()
                                              << u"Escape"_s;
        QTest::newRow("price that is no number stays open")
            << 5 << u"1.2.3"_s << u"3.5"_s << u"00003.5"_s << QStringList() << u"Return Escape"_s;
    }
    void typeAndEnter()
    {
        QFETCH(int, enumber);
        QFETCH(QString, typed);
        QFETCH(QStringList, offered);
        QFETCH(QString, finish);
        Fixture f;
        // The tests run with the German locale: a number still shows a point.
        QCOMPARE(f.Shown(5), u"3.5"_s);
        QSignalSpy changed(f.panel, &StatusPanel::Changed);
        f.list->setCurrentItem(f.Row(enumber));
        QTest::keyClick(f.list, Qt::Key_Return);
        QWidget* editor = offered.isEmpty() ? static_cast<QWidget*>(f.text) : f.combo;
        QVERIFY(!editor->isHidden() && f.text->isHidden() != f.combo->isHidden());
        QStringList items;
        for (int index = 0; index < f.combo->count(); ++index)
            items << f.combo->itemText(index);
        QCOMPARE(items, offered);
        QVERIFY(f.Row(enumber)->font(1).bold());
        // The box lies over the row's value cell.
        const QRect box(f.list->viewport()->mapFrom(editor->parentWidget(), editor->pos()), editor->size());
        QVERIFY(box.contains(f.list->visualItemRect(f.Row(enumber)).topLeft() + QPoint(4, 4)));
        QVERIFY(box.right() < f.list->columnWidth(0));

        QLineEdit* typing = offered.isEmpty() ? f.text : f.combo->lineEdit();
        typing->clear();
        QTest::keyClicks(typing, typed);
        for (const QString& step : finish.split(u' ')) {
            QVERIFY(f.panel->IsEditorOpen());
            if (step == u"click"_s)
                QTest::mouseClick(f.list->viewport(), Qt::LeftButton, {}, f.list->visualItemRect(f.Row(1)).center());
            else
                QTest::keyClick(typing, step == u"Return"_s ? Qt::Key_Return : Qt::Key_Escape);
        }
        QVERIFY(!f.panel->IsEditorOpen() && f.window.isVisible());
        QTEST(f.Shown(enumber), "shown");
        QTEST(f.panel->StoredValue(enumber), "stored");
        QVERIFY(!f.Row(enumber)->font(0).bold());
        QCOMPARE(changed.size(), finish.endsWith(u"Escape"_s) ? 0 : 1);
    }


    // The stamp is the program's own; in view mode nothing opens at all.
    void noEditor()
    {
        for (const bool edit : {true, false}) {
            Fixture f(edit);
            f.list->setCurrentItem(f.Row(edit ? 1 : 3));
            QTest::keyClick(f.list, Qt::Key_Return);
            QVERIFY(!f.panel->IsEditorOpen());
        }
    }
};

HEFT_TEST(TestStatusPanel)
#include "tst_statuspanel.moc"
