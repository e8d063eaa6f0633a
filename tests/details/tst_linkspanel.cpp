#include "testmain.h"
#include "testsupport.h"

#include "mainwin/listfixture.h"

#include "details/editlinkdialog.h"
#include "details/linkspanel.h"

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

constexpr int Nr = 5;
const QString OpenList = u"Valdorin Heftromane"_s;
const QString OtherList = u"Sternfahrer Taschenbücher"_s;

// Runs action; answers each modal dialog it opens with answer. Returns how
// many dialogs opened.
int WithDialog(const std::function<void()>& action, const std::function<void(QDialog&)>& answer)
{
    int opened = 0;
    QTimer poll;
    poll.setInterval(5);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            ++opened;
            answer(*dialog);
        }
    });
    poll.start();
    action();
    return opened;
}

void Accept(QDialog& dialog)
{
    dialog.findChild<QPushButton*>(u"btn_ok"_s)->click();
}

struct Fixture {
    explicit Fixture(const QList<LinkRow>& links, bool edit = true)
    {
        QList<TestEntry> entries;
        for (int nr = 1; nr <= 20; ++nr)
            entries.append({nr, u"Ada Wendrich"_s, u"Im Nebel von Karsa, Teil %1"_s.arg(nr)});
        collection.Add(entries);
        LoadEntryList(collection, entryList, entryList.Heftliste);
        entryList.FindAndShowRow(Nr);
        for (int i = 0; i < links.size(); ++i)
            collection.Exec(u"INSERT INTO Links VALUES (%1, %2, %3, '%4', '%5');"_s.arg(Nr).arg(i + 1)
                                .arg(links[i].number).arg(links[i].text, links[i].series));
        panel = std::make_unique<LinksPanel>(collection.session, entryList);
        panel->SetEditMode(edit);
        panel->LoadLinksList(Nr);
        panel->resize(560, 300);
        panel->show();
        if (!QTest::qWaitForWindowExposed(panel.get()))
            qFatal("links panel not shown");
        list = panel->findChild<QTreeWidget*>(u"liv_links"_s);
    }
    QPushButton* Button(const QString& name) const { return panel->findChild<QPushButton*>(name); }
    QList<int> Numbers() const
    {
        QList<int> numbers;
        for (const LinkRow& link : panel->Links())
            numbers << link.number;
        return numbers;
    }
    int Selected() const { return list->indexOfTopLevelItem(list->currentItem()); }
    void Select(int row) const { list->setCurrentItem(list->topLevelItem(row)); }
    void DoubleClickFirstRow() const
    {
        const QPoint at = list->topLevelItemCount() > 0 ? list->visualItemRect(list->topLevelItem(0)).center()
                                                        : QPoint(20, 10);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
    }
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
    void buttonsAfterLoad_data()
    {
        QTest::addColumn<QList<LinkRow>>("links");
        QTest::addColumn<bool>("edit");
        QTest::addColumn<QList<bool>>("enabled"); // btn_neu, btn_edit, btn_del, btn_goto
        QTest::newRow("empty") << QList<LinkRow>() << true << QList<bool>{true, false, false, false};
        QTest::newRow("fourteen") << Parts(14) << true << QList<bool>{true, true, true, true};
        QTest::newRow("fifteen") << Parts(15) << true << QList<bool>{false, true, true, true};
        QTest::newRow("other list") << Parts(2, OtherList) << true << QList<bool>{true, true, true, false};
        QTest::newRow("view mode") << Parts(3) << false << QList<bool>{false, false, false, true};
        QTest::newRow("view mode, other list") << Parts(3, OtherList) << false << QList<bool>{false, false, false, false};
        QTest::newRow("view mode, empty") << QList<LinkRow>() << false << QList<bool>{false, false, false, false};
    }
    void buttonsAfterLoad()
    {
        QFETCH(QList<LinkRow>, links);
        QFETCH(bool, edit);
        QFETCH(QList<bool>, enabled);
        Fixture f(links, edit);
        QList<bool> actual;
        for (const QString& name : {u"btn_neu"_s, u"btn_edit"_s, u"btn_del"_s, u"btn_goto"_s})
            actual << f.Button(name)->isEnabled();
        QCOMPARE(actual, enabled);
        QCOMPARE(f.list->toolTip().isEmpty(), !edit);
        QCOMPARE(f.panel->Links().size(), links.size());
        // Only an edit-mode list with a row opens the dialog on a double click.
        const int opened = WithDialog([&] { f.DoubleClickFirstRow(); }, [](QDialog& d) { d.reject(); });
        QCOMPARE(opened, edit && !links.isEmpty() ? 1 : 0);
    }

    // The fifteenth link fills the list; deleting one makes room again.
    void fifteenthLinkDisablesAdding()
    {
        Fixture f(Parts(14));
        QSignalSpy changed(f.panel.get(), &LinksPanel::Changed);
        f.Select(3);
        const int opened = WithDialog([&] { f.Button(u"btn_neu"_s)->click(); }, [](QDialog& dialog) {
            QCOMPARE(dialog.objectName(), u"frm_editlink"_s);
            QCOMPARE(dialog.windowTitle(), u"Link Bearbeiten"_s);
            // The entry after the one the window shows, in the open list.
            QCOMPARE(dialog.findChild<QLineEdit*>(u"txt_nr"_s)->text(), u"6"_s);
            QCOMPARE(dialog.findChild<QLineEdit*>(u"txt_link"_s)->text(), u"Teil X von Y"_s);
            QCOMPARE(dialog.findChild<QLineEdit*>(u"txt_serie"_s)->text(), OpenList);
            auto* text = dialog.findChild<QLineEdit*>(u"txt_link"_s);
            text->clear();
            QTest::keyClicks(text, u"Nachtrag: die Karte von Karsa"_s);
            Accept(dialog);
        });
        QCOMPARE(opened, 1);
        QCOMPARE(f.panel->Links().size(), 15);
        // Behind the row that was selected, and selected itself.
        QCOMPARE(f.panel->Links()[4].text, u"Nachtrag: die Karte von Karsa"_s);
        QCOMPARE(f.Selected(), 4);
        QVERIFY(!f.Button(u"btn_neu"_s)->isEnabled());
        QVERIFY(changed.size() >= 1);

        f.Button(u"btn_del"_s)->click();
        QCOMPARE(f.panel->Links().size(), 14);
        QVERIFY(f.Button(u"btn_neu"_s)->isEnabled());
    }

    void addIntoEmptyList()
    {
        Fixture f({});
        WithDialog([&] { f.Button(u"btn_neu"_s)->click(); }, Accept);
        QCOMPARE(f.Numbers(), QList<int>{6});
        for (const QString& name : {u"btn_edit"_s, u"btn_del"_s, u"btn_goto"_s})
            QVERIFY2(f.Button(name)->isEnabled(), qPrintable(name));
    }

    // The row moving into the gap is selected, or the last one.
    void deleteSelects_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("selected");
        QTest::addColumn<int>("selectedAfter");
        QTest::newRow("first of three") << 3 << 0 << 0;
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
        const int removed = f.Numbers()[selected];
        f.Button(u"btn_del"_s)->click();
        QVERIFY(!f.Numbers().contains(removed));
        QCOMPARE(f.Selected(), selectedAfter);
        QCOMPARE(changed.size(), 1);
        const bool anyLeft = rows > 1;
        QCOMPARE(f.Button(u"btn_edit"_s)->isEnabled(), anyLeft);
        QCOMPARE(f.Button(u"btn_del"_s)->isEnabled(), anyLeft);
        QCOMPARE(f.Button(u"btn_goto"_s)->isEnabled(), anyLeft);
    }

    // The number box takes digits only; a number below 1 keeps the dialog
    // open on the box.
    void linkNumber_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QString>("shown");
        QTest::newRow("zero") << u"0"_s << false << u"0"_s;
        QTest::newRow("nothing") << u""_s << false << u"0"_s;
        QTest::newRow("letters only") << u"abc"_s << false << u"0"_s;
        QTest::newRow("leading zeros") << u"00042"_s << true << u"42"_s;
        QTest::newRow("letters between") << u"4x2"_s << true << u"42"_s;
        QTest::newRow("more than five digits") << u"1234567"_s << true << u"12345"_s;
    }
    void linkNumber()
    {
        QFETCH(QString, typed);
        QFETCH(bool, accepted);
        QFETCH(QString, shown);
        EditLinkDialog dialog({6, u"Teil X von Y"_s, OpenList});
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto* number = dialog.findChild<QLineEdit*>(u"txt_nr"_s);
        number->clear();
        QTest::keyClicks(number, typed);
        Accept(dialog);
        QCOMPARE(dialog.isVisible(), !accepted);
        QCOMPARE(dialog.result(), accepted ? QDialog::Accepted : QDialog::Rejected);
        QCOMPARE(number->text(), shown);
        if (!accepted)
            QCOMPARE(number->selectedText(), shown);
        else
            QCOMPARE(dialog.Link().number, shown.toInt());
    }

    // Esc and btn_nok leave the link as it was.
    void editThenDiscard()
    {
        Fixture f(Parts(2));
        QSignalSpy changed(f.panel.get(), &LinksPanel::Changed);
        f.Select(1);
        auto typeThen = [](const std::function<void(QDialog&)>& leave) {
            return [leave](QDialog& dialog) {
                QCOMPARE(dialog.findChild<QLineEdit*>(u"txt_nr"_s)->text(), u"7"_s);
                QTest::keyClicks(dialog.findChild<QLineEdit*>(u"txt_link"_s), u" (neu)"_s);
                leave(dialog);
            };
        };
        WithDialog([&] { f.Button(u"btn_edit"_s)->click(); },
                   typeThen([](QDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); }));
        WithDialog([&] { f.Button(u"btn_edit"_s)->click(); },
                   typeThen([](QDialog& d) { d.findChild<QPushButton*>(u"btn_nok"_s)->click(); }));
        QCOMPARE(f.panel->Links()[1].text, u"Teil 2 von 2"_s);
        QCOMPARE(changed.size(), 0);

        // Moving the link into another list takes away the jump.
        WithDialog([&] { f.Button(u"btn_edit"_s)->click(); }, [](QDialog& dialog) {
            auto* series = dialog.findChild<QLineEdit*>(u"txt_serie"_s);
            series->setText(OtherList);
            Accept(dialog);
        });
        QCOMPARE(f.panel->Links()[1].series, OtherList);
        QVERIFY(!f.Button(u"btn_goto"_s)->isEnabled());
        QCOMPARE(changed.size(), 1);
    }

    // Every header click flips the order; Links() gives the order shown,
    // which is the order the save writes.
    void headerSortFixesOrder()
    {
        Fixture f({{12, u"Karsa erwacht"_s, OpenList},
                   {9, u"Aufbruch"_s, OpenList},
                   {101, u"Das Echo"_s, OtherList},
                   {30, u"Ödland"_s, OpenList}});
        f.ClickHeader(0);
        QCOMPARE(f.Numbers(), (QList<int>{9, 12, 30, 101}));
        f.ClickHeader(0);
        QCOMPARE(f.Numbers(), (QList<int>{101, 30, 12, 9}));
        f.ClickHeader(1);
        QCOMPARE(f.Numbers(), (QList<int>{9, 101, 12, 30}));

        // A new link goes behind the selected one, not into the sort.
        f.Select(0);
        WithDialog([&] { f.Button(u"btn_neu"_s)->click(); }, Accept);
        QCOMPARE(f.Numbers(), (QList<int>{9, 6, 101, 12, 30}));
    }

    void gotoSelectsEntry()
    {
        Fixture f({{12, u"Karsa erwacht"_s, OpenList},
                   {3, u"gleiche Geschichte"_s, OtherList},
                   {99, u"noch nicht erschienen"_s, OpenList}});
        EntryGrid& grid = f.entryList.Heftliste;
        QPushButton* jump = f.Button(u"btn_goto"_s);
        QVERIFY(jump->isEnabled());
        jump->click();
        QCOMPARE(grid.TextMatrix(grid.Row(), ColNr), u"12"_s);

        // Into another list: nothing to follow, even when clicked.
        f.list->setFocus();
        QTest::keyClick(f.list, Qt::Key_Down);
        QCOMPARE(f.Selected(), 1);
        QVERIFY(!jump->isEnabled());
        // A number missing from the list leaves the main list as it was.
        QTest::keyClick(f.list, Qt::Key_Down);
        QVERIFY(jump->isEnabled());
        jump->click();
        QCOMPARE(grid.TextMatrix(grid.Row(), ColNr), u"12"_s);
        QCOMPARE(f.Selected(), 2);

        f.Select(0);
        f.panel->grab().save(u"/tmp/links-panel.png"_s);
    }
};

HEFT_TEST(TestLinksPanel)
#include "tst_linkspanel.moc"
