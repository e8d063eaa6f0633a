#include "testmain.h"
#include "testsupport.h"

#include "mainwin/listfixture.h"

#include "details/ui/editlinkdialog.h"
#include "details/ui/linkspanel.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

const QString OpenList = u"Valdorin Heftromane"_s;
const QString OtherList = u"Sternfahrer Taschenbücher"_s;

// Runs action and answers each modal dialog it opens; returns how many.
int WithDialog(const std::function<void()>& action, const std::function<void(QDialog&)>& answer)
{
    int opened = 0;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            ++opened;
            answer(*dialog);
        }
    });
    poll.start(5);
    action();
    return opened;
}

void Accept(QDialog& dialog)
{
    dialog.findChild<QPushButton*>(u"btn_ok"_s)->click();
}

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
    QList<bool> Enabled() const
    {
        QList<bool> enabled;
        for (const QString& name : {u"btn_neu"_s, u"btn_edit"_s, u"btn_del"_s, u"btn_goto"_s})
            enabled << Button(name)->isEnabled();
        return enabled;
    }
    QList<int> Numbers() const
    {
        QList<int> numbers;
        for (const LinkRow& link : panel->Links())
            numbers << link.number;
        return numbers;
    }
    int Selected() const { return list->indexOfTopLevelItem(list->currentItem()); }
    void Select(int row) const { list->setCurrentItem(list->topLevelItem(row)); }
    void ClickHeader(int column) const
    {
        QHeaderView* header = list->header();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 10, header->height() / 2));
    }

    TempCollection collection;
    EntryList entryList;
    std::unique_ptr<LinksPanel> panel;
    QTreeWidget* list = nullptr;
};

QList<LinkRow> Parts(int count, const QString& series = OpenList)
{
    QList<LinkRow> links;
    for (int i = 1; i <= count; ++i)
        links.append({i + 5, u"Teil %1 von %2"_s.arg(i).arg(count), series});
    return links;
}

} // namespace

class TestLinksPanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Buttons btn_neu, btn_edit, btn_del, btn_goto; a double click edits
    // only where btn_edit could.
    void buttonsAfterLoad_data()
    {
        QTest::addColumn<QList<LinkRow>>("links");
        QTest::addColumn<bool>("edit");
        QTest::addColumn<QList<bool>>("enabled");
        QTest::newRow("empty") << QList<LinkRow>() << true << QList<bool>{true, false, false, false};
        QTest::newRow("fifteen") << Parts(15) << true << QList<bool>{false, true, true, true};
        QTest::newRow("other list") << Parts(2, OtherList) << true << QList<bool>{true, true, true, false};
        QTest::newRow("view mode") << Parts(3) << false << QList<bool>{false, false, false, true};
    }
    void buttonsAfterLoad()
    {
        QFETCH(QList<LinkRow>, links);
        QFETCH(bool, edit);
        QFETCH(QList<bool>, enabled);
        Fixture f(links, edit);
        QCOMPARE(f.Enabled(), enabled);
        QCOMPARE(f.panel->Links().size(), links.size());
        const QPoint at = links.isEmpty() ? QPoint(20, 10) : f.list->visualItemRect(f.list->topLevelItem(0)).center();
        const int opened = WithDialog([&] {
            QTest::mouseClick(f.list->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(f.list->viewport(), Qt::LeftButton, {}, at);
        }, [](QDialog& d) { d.reject(); });
        QCOMPARE(opened, enabled[1] ? 1 : 0);
    }

    // The fifteenth link fills the list; deleting one makes room again.
    void fifteenthLinkDisablesAdding()
    {
        Fixture f(Parts(14));
        f.Select(3);
        WithDialog([&] { f.Button(u"btn_neu"_s)->click(); }, [](QDialog& dialog) {
            // The entry after the one the window shows, in the open list.
            QCOMPARE(dialog.findChild<QLineEdit*>(u"txt_nr"_s)->text(), u"6"_s);
            QCOMPARE(dialog.findChild<QLineEdit*>(u"txt_link"_s)->text(), u"Teil X von Y"_s);
            QCOMPARE(dialog.findChild<QLineEdit*>(u"txt_serie"_s)->text(), OpenList);
            Accept(dialog);
        });
        QCOMPARE(f.panel->Links().size(), 15);
        QCOMPARE(f.panel->Links()[4].text, u"Teil X von Y"_s);
        QCOMPARE(f.Selected(), 4);
        QVERIFY(!f.Button(u"btn_neu"_s)->isEnabled());
        f.Button(u"btn_del"_s)->click();
        QVERIFY(f.Button(u"btn_neu"_s)->isEnabled());
    }

    // The row moving into the gap is selected, or the last one.
    void deleteSelects_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("selected");
        QTest::addColumn<int>("selectedAfter");
        QTest::newRow("middle of three") << 3 << 1 << 1;
        QTest::newRow("last of three") << 3 << 2 << 1;
        QTest::newRow("the only one") << 1 << 0 << -1;
    }
    void deleteSelects()
    {
        QFETCH(int, rows);
        QFETCH(int, selected);
        QFETCH(int, selectedAfter);
        Fixture f(Parts(rows));
        QSignalSpy changed(f.panel.get(), &LinksPanel::Changed);
        f.Select(selected);
        f.Button(u"btn_del"_s)->click();
        QVERIFY(!f.Numbers().contains(6 + selected));
        QCOMPARE(f.Selected(), selectedAfter);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(f.Enabled().mid(1), QList<bool>(3, rows > 1));
    }

    // The number box takes digits only; below 1 keeps the dialog open.
    void linkNumber_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QString>("shown");
        QTest::newRow("zero") << u"0"_s << false << u"0"_s;
        QTest::newRow("nothing") << u""_s << false << u"0"_s;
        QTest::newRow("leading zeros") << u"00042"_s << true << u"42"_s;
        QTest::newRow("letters between") << u"4x2"_s << true << u"42"_s;
    }
    void linkNumber()
    {
        QFETCH(QString, typed);
        QFETCH(bool, accepted);
        QFETCH(QString, shown);
        EditLinkDialog dialog({6, u"Teil X von Y"_s, OpenList});
        dialog.show();
        auto* number = dialog.findChild<QLineEdit*>(u"txt_nr"_s);
        number->clear();
        QTest::keyClicks(number, typed);
        Accept(dialog);
        QCOMPARE(dialog.isVisible(), !accepted);
        QCOMPARE(number->text(), shown);
        QCOMPARE(accepted ? dialog.Link().number : number->selectedText().toInt(), shown.toInt());
    }

    // Every header click flips the order; Links() gives the order shown,
    // which the save writes. A new link goes behind the selected one.
    void headerSortFixesOrder()
    {
        Fixture f({{12, u"Karsa erwacht"_s, OpenList}, {9, u"Aufbruch"_s, OpenList},
                   {101, u"Das Echo"_s, OtherList}, {30, u"Ödland"_s, OpenList}});
        f.ClickHeader(0);
        QCOMPARE(f.Numbers(), (QList<int>{9, 12, 30, 101}));
        f.ClickHeader(0);
        QCOMPARE(f.Numbers(), (QList<int>{101, 30, 12, 9}));
        f.ClickHeader(1);
        QCOMPARE(f.Numbers(), (QList<int>{9, 101, 12, 30}));
        f.Select(0);
        WithDialog([&] { f.Button(u"btn_neu"_s)->click(); }, Accept);
        QCOMPARE(f.Numbers(), (QList<int>{9, 6, 101, 12, 30}));
    }

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
        WithDialog([&] { f.Button(u"btn_edit"_s)->click(); }, [](QDialog& dialog) {
            QCOMPARE(dialog.findChild<QLineEdit*>(u"txt_nr"_s)->text(), u"99"_s);
            dialog.findChild<QLineEdit*>(u"txt_serie"_s)->setText(OtherList);
            Accept(dialog);
        });
        QCOMPARE(f.panel->Links()[2].series, OtherList);
        QVERIFY(!jump->isEnabled());
        f.Select(0);
        f.panel->grab().save(u"/tmp/links-panel.png"_s);
    }
};

HEFT_TEST(TestLinksPanel)
#include "tst_linkspanel.moc"
