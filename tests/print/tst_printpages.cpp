// The list and matrix pages drawn through a page object that records what
// is drawn (and still paints it), on real collection files; and the print
// window: its controls, the PDF in the export folder and the preview.

#include "testmain.h"
#include "testsupport.h"

#include "mainwin/ui/mainwindow.h"
#include "print/printjob.h"
#include "print/printpage.h"
#include "print/ui/printwindow.h"
#include "print/ui/printwindowinstall.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <numeric>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

Q_DECLARE_METATYPE(heft::MatrixOptions)
Q_DECLARE_METATYPE(heft::PrintRequest)

namespace {

struct DrawnText {
    int page;
    QPoint at;
    QString text;
    QColor color;
    bool tag; // the text of a corner tag
};

class RecordingPage : public PrintPage {
public:
    explicit RecordingPage(QPainter& painter) : PrintPage(painter, nullptr, A4PaperMm(false)) {}

    void Line(int x1, int y1, int x2, int y2) override
    {
        if (x1 != x2 && y1 != y2)
            diagonals << QPoint((x1 + x2) / 2, (y1 + y2) / 2);
        PrintPage::Line(x1, y1, x2, y2);
    }
    void Rectangle(int x1, int y1, int x2, int y2, bool filled) override
    {
        filledRectangles += filled ? 1 : 0;
        PrintPage::Rectangle(x1, y1, x2, y2, filled);
    }
    void MarkerShape(int x1, int y1, int x2, int y2) override
    {
        nextIsTag = true;
        PrintPage::MarkerShape(x1, y1, x2, y2);
    }
    void TextAt(int x, int y, const QString& text) override
    {
        texts.append({PageNumber(), {x, y}, text, TextColor(), nextIsTag});
        nextIsTag = false;
        PrintPage::TextAt(x, y, text);
    }
    void TextInBox(const QRect& box, const QString& text, const QRect& clip) override
    {
        texts.append({PageNumber(), box.topLeft(), text, TextColor(), false});
        PrintPage::TextInBox(box, text, clip);
    }
    void Bitmap(const QImage& image, const QRect& box) override
    {
        ++bitmaps;
        PrintPage::Bitmap(image, box);
    }

    QList<QPoint> diagonals;
    QList<DrawnText> texts;
    int filledRectangles = 0;
    int bitmaps = 0;
    bool nextIsTag = false;
};

int CellNumberAt(QPoint point, int from)
{
    const double cellWidth = (1900 - 10) / 10.0;
    const int gridTop = 100 + 315;
    const int rowHeight = (2770 - 320) / 10;
    return from + 10 * ((point.y() - gridTop) / rowHeight) + static_cast<int>((point.x() - 105) / cellWidth);
}

struct Drawing {
    QImage image{QSize(800, 1130), QImage::Format_RGB32};
    QPainter painter{&image};
    RecordingPage page{painter};
    int result = 0;

    Drawing(Session& session, const PrintRequest& request)
    {
        result = PrintOrPreview(session, page, request, u"vorschau"_s, {});
    }
    QStringList Texts(bool tags = false) const
    {
        QStringList found;
        for (const DrawnText& text : page.texts)
            if (text.tag == tags)
                found << text.text;
        return found;
    }
};

PrintRequest Request(PrintKind kind, int from, int to, MatrixOptions options = {}, QImage logo = {})
{
    PrintRequest request;
    request.kind = kind;
    request.from = from;
    request.to = to;
    request.matrix = options;
    request.highestNr = 150;
    request.logo = std::move(logo);
    return request;
}

struct Fixture {
    TempCollection collection;
    MainWindow main;
    PrintWindow* print = nullptr;

    Fixture()
    {
        collection.Add({{1, u"Ava"_s, u"Eins"_s, 1}, {2, u"Bo"_s, u"Zwei"_s}, {7, u"Cy"_s, u"Sieben"_s, 2},
                        {230, u"Di"_s, u"Spät"_s, 1}});
        main.LoadList(collection.session);
        InstallPrintWindow(main);
        main.Command(u"mnu_print"_s)->trigger();
        print = OpenPrintWindow(main);
    }
    template <typename T> T* Control(const QString& name) { return print->findChild<T*>(name); }
};

} // namespace

class TestPrintPages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_collection.Add({{1, u"Ann Autor"_s, u"Erster Titel"_s, 1, u"I"_s, true, u"Knick"_s},
                          {2, u"Bert"_s, u"Ohne Auflage"_s, 0},
                          {5, u"Cora"_s, u"Fünf"_s, 3},
                          {120, u"Dora"_s, u"Hundertzwanzig"_s, 2},
                          {150, u"Emil"_s, u"Letzter"_s, 1}});
        m_collection.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (1, 3, '2 gut');"_s);
        m_collection.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (5, 4, 'Lager');"_s);
    }

    void matrixPage_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<MatrixOptions>("options");
        QTest::addColumn<QList<int>>("crossed");
        QTest::addColumn<QStringList>("tags"); // "number:text" in drawing order
        QTest::addColumn<int>("numbers");      // number texts in the cells
        QTest::addColumn<QString>("head");
        const MatrixOptions marks;
        QTest::newRow("first page starts at 0")
            << 1 << marks << QList<int>{0, 1, 5} << QStringList{u"1:1"_s, u"1:2"_s, u"5:3"_s} << 100 << u"1-99"_s;
        QTest::newRow("unknown state always") << 1 << MatrixOptions{false, true, true, true} << QList<int>{0, 1, 5}
                                              << QStringList{u"1:1"_s, u"1:2"_s, u"5:3"_s, u"5:?"_s} << 100 << u"1-99"_s;
        QTest::newRow("no marks") << 1 << MatrixOptions{false, false, false, true} << QList<int>{0, 1, 5}
                                  << QStringList() << 100 << u"1-99"_s;
        QTest::newRow("last hundred ends at the highest")
            << 100 << marks << QList<int>{120, 150} << QStringList{u"120:2"_s, u"150:1"_s} << 51 << u"100-199"_s;
    }

    void matrixPage()
    {
        QFETCH(int, from);
        QFETCH(MatrixOptions, options);
        const PrintRequest request = Request(PrintKind::Matrix, from, from == 1 ? 99 : from + 99, options);
        const Drawing drawing(m_collection.session, request);
        QCOMPARE(drawing.result, 1);
        QList<int> crossed;
        for (int i = 0; i < drawing.page.diagonals.size(); i += 2)
            crossed << CellNumberAt(drawing.page.diagonals[i], from == 1 ? 0 : from);
        QTEST(crossed, "crossed");
        QStringList tags;
        for (const DrawnText& text : drawing.page.texts)
            if (text.tag)
                tags << u"%1:%2"_s.arg(CellNumberAt(text.at, from == 1 ? 0 : from)).arg(text.text);
        QTEST(tags, "tags");
        const QStringList texts = drawing.Texts();
        QTEST(static_cast<int>(texts.filter(QRegularExpression(u"^\\d+$"_s)).size()), "numbers");
        QVERIFY(texts.contains(u"Valdorin"_s) && texts.contains(u"Heftromane"_s));
        QFETCH(QString, head);
        QVERIFY(texts.contains(head));
    }

    // Toner saving drops the picture, the filled bands and the yellow, and
    // keeps every text and mark.
    void tonerSaving()
    {
        PrintRequest request = Request(PrintKind::Matrix, 1, 199, {}, QImage(8, 8, QImage::Format_RGB32));
        const Drawing colour(m_collection.session, request);
        request.matrix.tonerSaving = true;
        const Drawing saving(m_collection.session, request);
        QCOMPARE(saving.result, 2);
        QCOMPARE(saving.Texts(), colour.Texts());
        QCOMPARE(saving.Texts(true), colour.Texts(true));
        QCOMPARE(colour.page.bitmaps, 4);
        QCOMPARE(colour.page.filledRectangles, 6);
        QCOMPARE(saving.page.bitmaps + saving.page.filledRectangles, 0);
        for (const DrawnText& text : saving.page.texts)
            QVERIFY(text.color != QColor(Qt::yellow));
    }

    void listPages_data()
    {
        QTest::addColumn<PrintRequest>("request");
        QTest::addColumn<int>("pages");
        QTest::addColumn<QStringList>("lines"); // the first two body lines
        QTest::addColumn<QString>("footer");
        QTest::newRow("range with gaps")
            << Request(PrintKind::WholeList, 1, 6) << 1
            << QStringList{u"   1 Ann Autor                 Erster Titel                                        1         I Ja   Knick"_s,
                           u"   2 Bert                      Ohne Auflage                                        -     - - - Nein "_s}
            << u"Valdorin Heftromane Nummer 1-6"_s;
        PrintRequest filter = Request(PrintKind::FilterList, 0, 0);
        filter.filterRows = {{u"7"_s, u"Zoe"_s, u"Gefiltert"_s, u""_s, u"? ? ?"_s, u"\u00fc"_s, u""_s}};
        filter.filterText = u"Titel ähnlich wie '*Gef*' "_s;
        QTest::newRow("filter list") << filter << 1
                                     << QStringList{u"   7 Zoe                       Gefiltert                                           -     ? ? ? Ja   "_s}
                                     << u"Valdorin Heftromane gefiltert nach: Titel ähnlich wie '*Gef*' "_s;
    }

    void listPages()
    {
        QFETCH(PrintRequest, request);
        const Drawing drawing(m_collection.session, request);
        QTEST(drawing.result, "pages");
        const QStringList texts = drawing.Texts();
        QVERIFY(texts.first().startsWith(u"  Nr Autor"_s));
        QFETCH(QStringList, lines);
        QCOMPARE(texts.mid(1, lines.size()), lines);
        QTEST(texts[texts.size() - 2], "footer");
        QCOMPARE(texts.last(), u"Seite 1 von 1"_s);
    }

    // The page changes after as many printed lines as a page holds, not
    // after as many numbers; every page has its head and footer.
    void listPageBreaks()
    {
        TempCollection big;
        QList<TestEntry> entries;
        for (int nr = 1; nr < 400; nr += 2)
            entries.append({nr, u"A"_s, u"T"_s});
        big.Add(entries);
        const Drawing drawing(big.session, Request(PrintKind::WholeList, 1, 399));
        QCOMPARE(drawing.page.PageNumber(), drawing.result);
        QList<int> linesPerPage(drawing.result + 1);
        for (const DrawnText& text : drawing.page.texts)
            linesPerPage[text.page] += text.text.startsWith(u' ') && text.text.contains(u" A ") ? 1 : 0;
        const int full = linesPerPage[1];
        QCOMPARE(drawing.result, (200 + full - 1) / full);
        QCOMPARE(std::accumulate(linesPerPage.begin(), linesPerPage.end(), 0), 200);
        QVERIFY(drawing.Texts().contains(u"Seite %1 von %1"_s.arg(drawing.result)));
    }

    void controlsFollowTheChoice()
    {
        Fixture f;
        QVERIFY(f.print != nullptr && f.print->isVisible());
        auto* liste = f.Control<QComboBox>(u"cmb_liste"_s);
        QCOMPARE(liste->count(), 2); // no "-Filter-" without a filter list
        auto* from = f.Control<QComboBox>(u"cmb_from"_s);
        auto* to = f.Control<QComboBox>(u"cmb_to"_s);
        from->setCurrentIndex(2);
        QCOMPARE(to->currentIndex(), 2);
        to->setCurrentIndex(1);
        QCOMPARE(from->currentIndex(), 1);

        liste->setCurrentIndex(1);
        auto* txtFrom = f.Control<QLineEdit>(u"txt_from"_s);
        auto* txtTo = f.Control<QLineEdit>(u"txt_to"_s);
        QVERIFY(txtFrom->isVisible() && txtFrom->isEnabled() && !from->isVisible());
        QVERIFY(!f.Control<QCheckBox>(u"chk_savem"_s)->isEnabled());
        QCOMPARE(txtFrom->text() + u'-' + txtTo->text(), u"1-230"_s);
        txtTo->setText(u"5"_s);
        txtFrom->setFocus();
        txtFrom->selectAll();
        QTest::keyClicks(txtFrom, u"9x99"_s);
        QTest::keyClick(txtFrom, Qt::Key_Return); // clamped to the highest, and "bis" follows
        QCOMPARE(txtFrom->text() + u'-' + txtTo->text(), u"230-230"_s);
        QCOMPARE(f.print->focusWidget(), txtTo);
    }

    void pdfIntoExportFolder()
    {
        Fixture f;
        f.Control<QCheckBox>(u"chk_landscape"_s)->setChecked(true);
        f.Control<QPushButton>(u"btn_pdf"_s)->click();
        const QString pdf = f.collection.dir.filePath(u"export/Valdorin Heftromane -Matrix-.pdf"_s);
        QVERIFY(QFileInfo(pdf).size() > 1000);
        QCOMPARE(f.main.StatusPanelText(5), u"PDF gespeichert: "_s + pdf);
    }

    void previewUnlessTheRangeIsEmpty()
    {
        Fixture f;
        f.Control<QComboBox>(u"cmb_liste"_s)->setCurrentIndex(1);
        f.Control<QLineEdit>(u"txt_from"_s)->setText(u"3"_s);
        f.Control<QLineEdit>(u"txt_to"_s)->setText(u"6"_s);
        f.Control<QPushButton>(u"btn_preview"_s)->click();
        QVERIFY(f.print->findChild<QPrintPreviewDialog*>() == nullptr);
        QCOMPARE(f.collection.prompter.asked.last().title, u"Keine Einträge gefunden"_s);
        QCOMPARE(f.collection.prompter.asked.last().text,
                 u"Im Nummernbereich 3 bis 6 sind\r\nkeine Heftromane Einträge vorhanden."_s);

        f.Control<QLineEdit>(u"txt_to"_s)->setText(u"230"_s);
        f.Control<QPushButton>(u"btn_preview"_s)->click();
        auto* preview = f.print->findChild<QPrintPreviewDialog*>(u"frm_preview"_s);
        QVERIFY(preview != nullptr && preview->isVisible());
        QCOMPARE(preview->windowTitle(), u"Valdorin Heftromane -Gesamtliste-"_s);
        preview->close();
    }
private:
    TempCollection m_collection;
};

HEFT_TEST(TestPrintPages)
#include "tst_printpages.moc"
