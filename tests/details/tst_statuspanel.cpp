#include "testmain.h"
#include "testsupport.h"

#include "details/statuspanel.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

constexpr int Nr = 7;

// A collection whose entry 7 has a stamp, a price, a count, a condition and
// a lender's note, plus values of the condition in other entries.
void AddStatusRows(TempCollection& collection)
{
    const QStringList rows{
        u"(7, 1, '2024-01-02 um 10:11:12')"_s, u"(7, 2, '0000120')"_s, u"(7, 3, 'gut')"_s,
        u"(7, 4, 'Kiosk am Markt')"_s,        u"(7, 5, '00003.5')"_s, u"(7, 7, '')"_s,
        u"(7, 25, 'verirrt')"_s,              u"(8, 3, 'sehr gut')"_s, u"(9, 3, '  mäßig ')"_s,
        u"(10, 3, '')"_s,                     u"(11, 3, 'gut')"_s,     u"(8, 4, 'Bahnhofsbuchhandlung')"_s,
    };
    for (const QString& row : rows)
        collection.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES "_s + row + u";"_s);
}

struct Fixture {
    explicit Fixture(bool edit = true)
    {
        AddStatusRows(collection);
        panel = std::make_unique<StatusPanel>(collection.session);
        panel->SetEditMode(edit);
        panel->LoadStatusList(Nr);
        panel->resize(460, 520);
        panel->show();
        if (!QTest::qWaitForWindowExposed(panel.get()))
            qFatal("status panel not shown");
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
    // QTest sends a double click as the second press alone; the view
    // needs the first click to know the row.
    void DoubleClick(int enumber) const
    {
        const QPoint at = list->visualItemRect(Row(enumber)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
    }
    void Click(int enumber) const
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(Row(enumber)).center());
    }

    TempCollection collection;
    std::unique_ptr<StatusPanel> panel;
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
        const QStringList shown{u"2024-01-02 um 10:11:12"_s, u"120"_s, u"gut"_s, u"Kiosk am Markt"_s, u"3.5"_s};
        for (int enumber = 1; enumber <= shown.size(); ++enumber)
            QCOMPARE(f.Shown(enumber), shown[enumber - 1]);
        // The unknown ENum 25 lands nowhere, the other entry's rows neither.
        for (int enumber = 6; enumber <= 19; ++enumber)
            QVERIFY2(f.Shown(enumber).isEmpty(), qPrintable(f.Shown(enumber)));
        QCOMPARE(f.panel->StoredValue(2), u"0000120"_s);
        QCOMPARE(f.panel->StoredValue(5), u"00003.5"_s);
        QCOMPARE(f.panel->StoredValue(6), QString());
        QCOMPARE(f.list->toolTip(), u"Doppelklick zum Bearbeiten"_s);

        // Loading another entry starts from empty rows again.
        f.panel->LoadStatusList(8);
        QCOMPARE(f.Shown(3), u"sehr gut"_s);
        QCOMPARE(f.Shown(5), QString());
        f.panel->LoadStatusList(Nr);
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
        QTest::newRow("text with apostrophe") << 4 << u"Heinz' Antiquariat"_s << u"Heinz' Antiquariat"_s
                                              << u"Heinz' Antiquariat"_s;
    }
    void typeAndEnter()
    {
        QFETCH(int, enumber);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(QString, stored);
        Fixture f;
        QSignalSpy changed(f.panel.get(), &StatusPanel::Changed);
        f.OpenWithEnter(enumber);
        QVERIFY(f.panel->IsEditorOpen());
        QVERIFY(!f.text->isHidden());
        QVERIFY(f.combo->isHidden());
        QVERIFY(f.Row(enumber)->font(1).bold());
        // The box lies over the row's value cell.
        const QRect box(f.list->viewport()->mapFrom(f.text->parentWidget(), f.text->pos()), f.text->size());
        const QRect row = f.list->visualItemRect(f.Row(enumber));
        QVERIFY(box.contains(QPoint(row.left() + 4, row.center().y())));
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

    // A refused value keeps the editor open and changes nothing; Esc then
    // drops it and the empty row loses its "? ? ?".
    void refusedThenEsc()
    {
        Fixture f;
        QSignalSpy changed(f.panel.get(), &StatusPanel::Changed);
        f.DoubleClick(6);
        QVERIFY(!f.text->isHidden());
        QCOMPARE(f.Shown(6), u"? ? ?"_s);
        QCOMPARE(f.panel->StoredValue(6), QString());
        f.text->setText(u"1,2,3"_s); // pasted: the key filter doesn't see it
        QTest::keyClick(f.text, Qt::Key_Enter);
        QVERIFY(!f.text->isHidden());
        QCOMPARE(f.Shown(6), u"? ? ?"_s);
        QCOMPARE(changed.size(), 0);
        QTest::keyClick(f.text, Qt::Key_Escape);
        QVERIFY(!f.panel->IsEditorOpen());
        QCOMPARE(f.Shown(6), QString());
        QVERIFY(!f.Row(6)->font(0).bold());
        QCOMPARE(changed.size(), 0);
    }

    // Esc in an editor stays there; from the list it reaches the window.
    void escClosesOnlyFromTheList()
    {
        TempCollection collection;
        AddStatusRows(collection);
        QDialog window;
        auto* panel = new StatusPanel(collection.session, &window);
        (new QVBoxLayout(&window))->addWidget(panel);
        panel->SetEditMode(true);
        panel->LoadStatusList(Nr);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* list = panel->findChild<QTreeWidget*>(u"liv_status"_s);
        for (const char* editor : {"txt_float", "cmb_float"}) {
            list->setCurrentItem(list->topLevelItem(QByteArray(editor) == "txt_float" ? 3 : 2));
            QTest::keyClick(list, Qt::Key_Return);
            auto* box = panel->findChild<QWidget*>(QString::fromLatin1(editor));
            QVERIFY(!box->isHidden());
            QTest::keyClick(box, Qt::Key_Escape);
            QVERIFY(box->isHidden());
            QVERIFY(window.isVisible());
        }
        QCOMPARE(list->topLevelItem(3)->text(0), u"Kiosk am Markt"_s);
        QTest::keyClick(list, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
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
        QVERIFY(!f.Row(enumber)->font(0).bold());
    }

    // The combo offers the values used anywhere for the attribute, trimmed,
    // without empties, and starts with the row's own value.
    void comboOffersUsedValues()
    {
        Fixture f;
        QSignalSpy changed(f.panel.get(), &StatusPanel::Changed);
        f.DoubleClick(3);
        QVERIFY(!f.combo->isHidden());
        QVERIFY(f.text->isHidden());
        QStringList offered;
        for (int i = 0; i < f.combo->count(); ++i)
            offered << f.combo->itemText(i);
        QCOMPARE(offered, (QStringList{u"mäßig"_s, u"gut"_s, u"sehr gut"_s}));
        QCOMPARE(f.combo->currentText(), u"gut"_s);
        f.combo->lineEdit()->clear();
        QTest::keyClicks(f.combo->lineEdit(), u"wie neu, kaum gelesen"_s);
        QTest::keyClick(f.combo->lineEdit(), Qt::Key_Return);
        QVERIFY(!f.panel->IsEditorOpen());
        QCOMPARE(f.Shown(3), u"wie neu, kaum gelesen"_s);
        QCOMPARE(changed.size(), 1);
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
        QTest::newRow("nothing typed on an empty row") << 7 << u""_s << u""_s;
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
        QVERIFY(!f.Row(enumber)->font(0).bold());
    }
};

HEFT_TEST(TestStatusPanel)
#include "tst_statuspanel.moc"
