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

// Entry 7 with a stamp, a count, a condition, a seller and a price; the
// condition used in other entries too. ENum 25 belongs to no attribute.
struct Fixture {
    explicit Fixture(bool edit = true)
    {
        for (const QString& row : {u"7, 1, '2024-01-02 um 10:11:12'"_s, u"7, 2, '0000120'"_s, u"7, 3, 'gut'"_s,
                                   u"7, 4, 'Kiosk am Markt'"_s, u"7, 5, '00003.5'"_s, u"7, 25, 'verirrt'"_s,
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
    void OpenWithEnter(int enumber) const
    {
        list->setCurrentItem(Row(enumber));
        QTest::keyClick(list, Qt::Key_Return);
    }
    void Click(int enumber) const
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(Row(enumber)).center());
    }
    // QTest sends a double click as the second press alone; the view needs
    // the first click to know the row.
    void DoubleClick(int enumber) const
    {
        Click(enumber);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(Row(enumber)).center());
    }

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
    void loadShowsAllRows()
    {
        Fixture f;
        QCOMPARE(f.list->topLevelItemCount(), 19);
        QCOMPARE(f.Row(12)->text(1), u"Coverausführung"_s);
        QStringList shown;
        for (int enumber = 1; enumber <= 19; ++enumber)
            shown << f.Shown(enumber);
        QCOMPARE(shown.mid(0, 6), (QStringList{u"2024-01-02 um 10:11:12"_s, u"120"_s, u"gut"_s,
                                              u"Kiosk am Markt"_s, u"3.5"_s, QString()}));
        QCOMPARE(shown.mid(6).join(QString()), QString());
        QCOMPARE(f.panel->StoredValue(5), u"00003.5"_s);
        // Another entry starts from empty rows.
        f.panel->LoadStatusList(8);
        QCOMPARE(f.Shown(3), u"sehr gut"_s);
        QCOMPARE(f.Shown(5), QString());
        f.panel->LoadStatusList(7);
        f.OpenWithEnter(6);
        f.panel->grab().save(u"/tmp/status-panel.png"_s);
    }

    // Keys that don't belong to the attribute never reach the box; Enter
    // takes the value into the row in its shown form.
    void typeAndEnter_data()
    {
        QTest::addColumn<int>("enumber");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("stored");
        QTest::newRow("comma refused in the price") << 5 << u"4,5"_s << u"45"_s << u"0000045"_s;
        QTest::newRow("point in the value") << 6 << u"12.5"_s << u"12.5"_s << u"00012.5"_s;
        QTest::newRow("only digits in the count") << 2 << u"1a2.3"_s << u"123"_s << u"0000123"_s;
        QTest::newRow("five places in the pages") << 10 << u"1234567"_s << u"12345"_s << u"0012345"_s;
        QTest::newRow("old lending date") << 18 << u"1.2.1899"_s << u"1901-01-01"_s << u"1901-01-01"_s;
    }
    void typeAndEnter()
    {
        QFETCH(int, enumber);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(QString, stored);
        Fixture f;
        QSignalSpy changed(f.panel, &StatusPanel::Changed);
        f.OpenWithEnter(enumber);
        QVERIFY(!f.text->isHidden() && f.combo->isHidden());
        QVERIFY(f.Row(enumber)->font(1).bold());
        // The box lies over the row's value cell.
        const QRect box(f.list->viewport()->mapFrom(f.text->parentWidget(), f.text->pos()), f.text->size());
        QVERIFY(box.contains(f.list->visualItemRect(f.Row(enumber)).topLeft() + QPoint(4, 4)));
        QVERIFY(box.right() < f.list->columnWidth(0));

        f.text->clear();
        QTest::keyClicks(f.text, typed);
        QTest::keyClick(f.text, Qt::Key_Return);
        QVERIFY(!f.panel->IsEditorOpen());
        QCOMPARE(f.Shown(enumber), shown);
        QCOMPARE(f.panel->StoredValue(enumber), stored);
        QVERIFY(!f.Row(enumber)->font(0).bold());
        QCOMPARE(changed.size(), 1);
    }

    // A refused value keeps the editor open and changes nothing; Esc drops
    // it without closing the window, and the row loses its "? ? ?".
    void refusedThenEsc()
    {
        Fixture f;
        QSignalSpy changed(f.panel, &StatusPanel::Changed);
        f.DoubleClick(6);
        QCOMPARE(f.Shown(6), u"? ? ?"_s);
        QCOMPARE(f.panel->StoredValue(6), QString());
        f.text->setText(u"1,2,3"_s); // pasted: the key filter doesn't see it
        QTest::keyClick(f.text, Qt::Key_Enter);
        QVERIFY(!f.text->isHidden());
        QTest::keyClick(f.text, Qt::Key_Escape);
        QVERIFY(!f.panel->IsEditorOpen());
        QVERIFY(f.window.isVisible());
        QCOMPARE(f.Shown(6), QString());
        QVERIFY(!f.Row(6)->font(0).bold());
        QCOMPARE(changed.size(), 0);
        // From the list itself Esc reaches the window.
        QTest::keyClick(f.list, Qt::Key_Escape);
        QVERIFY(!f.window.isVisible());
    }

    void noEditor_data()
    {
        QTest::addColumn<bool>("edit");
        QTest::addColumn<int>("enumber");
        QTest::newRow("stamp row in edit mode") << true << 1;
        QTest::newRow("text row in view mode") << false << 4;
        QTest::newRow("combo row in view mode") << false << 3;
    }
    void noEditor()
    {
        QFETCH(bool, edit);
        QFETCH(int, enumber);
        Fixture f(edit);
        QCOMPARE(f.list->toolTip().isEmpty(), !edit);
        f.DoubleClick(enumber);
        QVERIFY(!f.panel->IsEditorOpen());
        f.OpenWithEnter(enumber);
        QVERIFY(!f.panel->IsEditorOpen());
    }

    // The combo offers the values used anywhere for the attribute, trimmed
    // and without empties, and starts with the row's own value.
    void comboOffersUsedValues()
    {
        Fixture f;
        f.DoubleClick(3);
        QVERIFY(!f.combo->isHidden() && f.text->isHidden());
        QStringList offered;
        for (int i = 0; i < f.combo->count(); ++i)
            offered << f.combo->itemText(i);
        QCOMPARE(offered, (QStringList{u"mäßig"_s, u"gut"_s, u"sehr gut"_s}));
        QCOMPARE(f.combo->currentText(), u"gut"_s);
        QTest::keyClick(f.combo->lineEdit(), Qt::Key_Escape);
        QVERIFY(f.window.isVisible());
        QCOMPARE(f.Shown(3), u"gut"_s);
    }

    // A click in the list takes the open editor's text if it is valid, and
    // closes the editor in any case.
    void clickInListCommits_data()
    {
        QTest::addColumn<int>("enumber");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("combo text") << 3 << u"neuwertig"_s << u"neuwertig"_s;
        QTest::newRow("pasted comma") << 5 << u"4,25"_s << u"4.25"_s;
        QTest::newRow("refused keeps the old value") << 5 << u"x1"_s << u"3.5"_s;
    }
    void clickInListCommits()
    {
        QFETCH(int, enumber);
        QFETCH(QString, text);
        QFETCH(QString, shown);
        Fixture f;
        f.OpenWithEnter(enumber);
        if (f.combo->isHidden())
            f.text->setText(text);
        else
            f.combo->setEditText(text);
        f.Click(10);
        QVERIFY(!f.panel->IsEditorOpen());
        QCOMPARE(f.Shown(enumber), shown);
        QCOMPARE(f.list->currentItem(), f.Row(10));
    }
};

HEFT_TEST(TestStatusPanel)
#include "tst_statuspanel.moc"
