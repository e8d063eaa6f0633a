#include "testmain.h"
#include "testsupport.h"

#include "mainwin/listfixture.h"

#include "details/ui/editlinkdialog.h"
#include "details/ui/linkspanel.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include <memory>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

const QString OpenList = u"Valdorin Heftromane"_s;
const QString OtherList = u"Sternfahrer Taschenbücher"_s;

// Entries 1 to 20 in the main list, entry 5 current, with the given links.
struct Fixture {
    explicit Fixture(const QList<LinkRow>& links, bool edit = true)
    {
        QList<TestEntry> entries;
        for (int nr = 1; nr <= 20; ++nr)
            entries.append({nr, u"Ada Wendrich"_s, u"Im Nebel von Karsa, Teil %1"_s.arg(nr)});
        collection.Add(entries);
        LoadEntryList(collection, entryList, entryList.Heftliste);
        entryList.FindAndShowRow(5);
        for (int i = 0; i < links.size(); ++i)
            collection.Exec(u"INSERT INTO Links VALUES (5, %1, %2, '%3', '%4');"_s.arg(i + 1).arg(links[i].number)
                                .arg(links[i].text, links[i].series));
        panel = std::make_unique<LinksPanel>(collection.session, entryList);
        panel->SetEditMode(edit);
        panel->LoadLinksList(5);
        panel->resize(560, 300);
        panel->show();
        if (!QTest::qWaitForWindowExposed(panel.get()))
            qFatal("links panel not shown");
        list = panel->findChild<QTreeWidget*>(u"liv_links"_s);
    }
    QPushButton* Button(const QString& name) const { return panel->findChild<QPushButton*>(name); }
    TempCollection collection;
    EntryList entryList;
    std::unique_ptr<LinksPanel> panel;
    QTreeWidget* list = nullptr;
};

} // namespace

class TestLinksPanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void gotoSelectsEntry()
    {
        Fixture f({{12, u"Karsa erwacht"_s, OpenList}, {3, u"gleiche Geschichte"_s, OtherList},
                   {99, u"noch nicht erschienen"_s, OpenList}});
        const EntryGrid& grid = f.entryList.Heftliste;
        QPushButton* jump = f.Button(u"btn_goto"_s);
        jump->click();
        QCOMPARE(grid.TextMatrix(grid.Row(), ColNr), u"12"_s);
        QTest::keyClick(f.list, Qt::Key_Down);
        QVERIFY(!jump->isEnabled());
        // A number missing from the list leaves the main list as it was.
        QTest::keyClick(f.list, Qt::Key_Down);
        jump->click();
        QCOMPARE(grid.TextMatrix(grid.Row(), ColNr), u"12"_s);

        // Edited into another list, the link can no longer be followed.
        ModalScript script(u"frm_editlink"_s);
        script.Then([](QDialog& dialog) {
            QCOMPARE(dialog.findChild<QLineEdit*>(u"txt_nr"_s)->text(), u"99"_s);
            dialog.findChild<QLineEdit*>(u"txt_serie"_s)->setText(OtherList);
            dialog.findChild<QPushButton*>(u"btn_ok"_s)->click();
        });
        const QPoint third = f.list->visualItemRect(f.list->currentItem()).center();
        QTest::mouseClick(f.list->viewport(), Qt::LeftButton, {}, third);
        QTest::mouseDClick(f.list->viewport(), Qt::LeftButton, {}, third);
        QCOMPARE(f.panel->Links()[2].series, OtherList);
        QVERIFY(!jump->isEnabled());

        // A new link comes below the selected one and points past the main
        // list's entry; its number takes digits only, and no entry has 0.
        // The header sorts numbers by value, and each click turns the order;
        // a deleted link hands the selection on; a cancelled edit changes
        // nothing.
        script.Then([](QDialog& dialog) {
            auto* number = dialog.findChild<QLineEdit*>(u"txt_nr"_s);
            QCOMPARE(number->text(), u"13"_s);
            number->clear();
            QTest::keyClicks(number, u"0x"_s);
            QCOMPARE(number->text(), u"0"_s);
            dialog.findChild<QPushButton*>(u"btn_ok"_s)->click();
            QVERIFY(dialog.isVisible() && number->hasSelectedText());
            QTest::keyClicks(number, u"7"_s);
            dialog.findChild<QPushButton*>(u"btn_ok"_s)->click();
        });
        f.Button(u"btn_neu"_s)->click();
        QTest::mouseClick(f.list->header()->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(f.list->topLevelItem(1)->text(0), u"7"_s);
        QTest::mouseClick(f.list->header()->viewport(), Qt::LeftButton, {}, QPoint(f.list->columnWidth(0) + 5, 5));
        f.Button(u"btn_del"_s)->click();
        script.Then([](QDialog& dialog) { dialog.reject(); });
        f.Button(u"btn_edit"_s)->click();
        QStringList numbers;
        for (const LinkRow& link : f.panel->Links())
            numbers << QString::number(link.number);
        QCOMPARE(numbers, (QStringList{u"99"_s, u"12"_s, u"3"_s}));
        QCOMPARE(f.list->currentItem()->text(0), u"99"_s);
        QCOMPARE(script.opened, 3);
    }
};

HEFT_TEST(TestLinksPanel)
#include "tst_linkspanel.moc"
