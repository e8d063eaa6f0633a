// heftarium-build-archive DATA_FOLDER OUTPUT_FOLDER
//
// Makes the sample archive and the sample pictures, so that a new user can
// try the archive link, the keyword search and the picture viewer at once:
// one page per issue in the layout of the second archive CD
// ("Archiv/HEFTE/HEFT0001.HTM" up to 2093, "Archiv/TABUS/TABU001.HTM"),
// written from the list and details sources, and a few covers, cutaway
// drawings and illustrations drawn here. The pages are Windows-1252, as on
// the CD.

#include "datsources.h"

#include "core/codepage.h"
#include "core/picturenames.h"
#include "core/session.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;
using namespace heft;

namespace {

// The last issue on the second CD of each list.
constexpr int LastArchivedHeft = 2093;
constexpr int LastArchivedBook = 407;
// How many covers the sample store and the sample archive hold.
constexpr int StoreCovers = 30;
constexpr int ArchiveCoversFrom = 31;
constexpr int ArchiveCoversTo = 40;
constexpr int BookCovers = 10;

QString Escaped(const QString& text) { return text.toHtmlEscaped(); }

// "1961-09-08" as the archive writes dates: "08.09.1961".
QString GermanDate(const QString& text)
{
    const QDate date = QDate::fromString(text, Qt::ISODate);
    return date.isValid() ? date.toString(u"dd.MM.yyyy"_s) : Escaped(text);
}

QString Padded(int number, int digits) { return u"%1"_s.arg(number, digits, 10, QChar(u'0')); }

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        throw BuildError(u"%1 kann nicht geschrieben werden"_s.arg(path));
}

void MakeFolder(const QString& path)
{
    if (!QDir().mkpath(path))
        throw BuildError(u"%1 kann nicht angelegt werden"_s.arg(path));
}

struct PageNames {
    QString prefix;   // "HEFT", "TABU"
    int digits;       // 4, 3
    QString heading;  // "Heftroman", "Taschenbuch"
};

QString PageName(const PageNames& names, int nr) { return names.prefix + Padded(nr, names.digits) + u".HTM"_s; }

QString IssuePage(const PageNames& names, const ListRecord& entry, const DetailsRecord* details, int last)
{
    const int nr = entry.Nr.toInt();
    QString html = u"<HTML>\r\n<HEAD>\r\n<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; "
                   "charset=windows-1252\">\r\n<TITLE>Valdorin %1 %2 - %3</TITLE>\r\n</HEAD>\r\n"
                   "<BODY BGCOLOR=\"#101838\" TEXT=\"#E8E8F0\" LINK=\"#FFD070\" VLINK=\"#D0A050\">\r\n"_s.arg(
                       names.heading, entry.Nr, Escaped(entry.Titel));
    html += u"<FONT COLOR=\"White\" SIZE=\"4\">%1 Nr. %2</FONT>\r\n<H1>%3</H1>\r\n"_s.arg(names.heading, entry.Nr,
                                                                                           Escaped(entry.Titel));
    if (details && !details->Untertitel.isEmpty())
        html += u"<H3>%1</H3>\r\n"_s.arg(Escaped(details->Untertitel));
    html += u"<TABLE BORDER=\"0\" CELLPADDING=\"3\">\r\n<TR><TD><B>Autor:</B></TD><TD>%1</TD></TR>\r\n"_s.arg(
        Escaped(entry.Autor));
    if (entry.Zyklus != u"- - -")
        html += u"<TR><TD><B>Zyklus:</B></TD><TD>%1</TD></TR>\r\n"_s.arg(Escaped(entry.Zyklus));
    if (details) {
        if (!details->Ersterscheinung.isEmpty())
            html += u"<TR><TD><B>Erstausgabe:</B></TD><TD>%1</TD></TR>\r\n"_s.arg(GermanDate(details->Ersterscheinung));
        if (!details->TiBiZeichner.isEmpty())
            html += u"<TR><TD><B>Titelbild:</B></TD><TD>%1</TD></TR>\r\n"_s.arg(Escaped(details->TiBiZeichner));
        if (!details->IlluZeichner.isEmpty())
            html += u"<TR><TD><B>Innenillustration:</B></TD><TD>%1</TD></TR>\r\n"_s.arg(
                Escaped(details->IlluZeichner));
        QStringList persons;
        for (const QString& person : details->Persons)
            if (!person.isEmpty())
                persons << Escaped(person);
        if (!persons.isEmpty())
            html += u"<TR><TD><B>Hauptpersonen:</B></TD><TD>%1</TD></TR>\r\n"_s.arg(persons.join(u", "_s));
    }
    html += u"</TABLE>\r\n"_s;
    if (details && !details->Inhalt.isEmpty())
        html += u"<H2>Handlung</H2>\r\n<P>%1</P>\r\n"_s.arg(Escaped(details->Inhalt));
    html += u"<HR>\r\n<P>"_s;
    if (nr > 1)
        html += u"<A HREF=\"%1\">&lt;&lt; zur&uuml;ck</A> "_s.arg(PageName(names, nr - 1));
    if (nr < last)
        html += u"<A HREF=\"%1\">weiter &gt;&gt;</A>"_s.arg(PageName(names, nr + 1));
    html += u"</P>\r\n</BODY>\r\n</HTML>\r\n"_s;
    return html;
}

void WritePages(const QString& folder, const PageNames& names, const std::vector<ListRecord>& entries,
                const std::vector<DetailsRecord>& details, int last)
{
    MakeFolder(folder);
    QHash<QString, const DetailsRecord*> byNr;
    for (const DetailsRecord& record : details)
        byNr.insert(record.Nr, &record);
    for (const ListRecord& entry : entries) {
        const int nr = entry.Nr.toInt();
        if (nr < 1 || nr > last)
            continue;
        WriteFile(folder + u'/' + PageName(names, nr),
                  ToWindows1252(IssuePage(names, entry, byNr.value(entry.Nr), last)));
    }
}

// A colour of its own for every issue, so that neighbouring covers differ.
QColor IssueColour(int nr, int saturation = 150, int value = 170) { return QColor::fromHsv((nr * 47) % 360, saturation, value); }

void DrawWrapped(QPainter& painter, const QRect& box, const QString& text, int pixelSize, bool bold)
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    painter.setFont(font);
    painter.drawText(box, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
}

void SaveJpeg(const QImage& image, const QString& path)
{
    if (!image.save(path, "JPG", 82))
        throw BuildError(u"%1 kann nicht geschrieben werden"_s.arg(path));
}

QImage Cover(const ListRecord& entry, const QString& kind)
{
    const int nr = entry.Nr.toInt();
    QImage image(360, 520, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, image.height());
    sky.setColorAt(0, IssueColour(nr, 200, 60));
    sky.setColorAt(1, IssueColour(nr + 3, 160, 200));
    painter.fillRect(image.rect(), sky);
    // A planet and a ship, placed by the number.
    painter.setPen(Qt::NoPen);
    painter.setBrush(IssueColour(nr + 7, 120, 230));
    painter.drawEllipse(QPoint(80 + (nr * 37) % 200, 300), 70 + nr % 40, 70 + nr % 40);
    painter.setBrush(QColor(230, 230, 240));
    QPainterPath ship;
    const QPointF tip(260 - (nr * 13) % 120, 200 + (nr * 7) % 60);
    ship.moveTo(tip);
    ship.lineTo(tip + QPointF(-70, 22));
    ship.lineTo(tip + QPointF(-55, 0));
    ship.lineTo(tip + QPointF(-70, -22));
    ship.closeSubpath();
    painter.drawPath(ship);
    painter.fillRect(QRect(0, 0, image.width(), 86), QColor(10, 10, 30));
    painter.setPen(QColor(255, 208, 64));
    DrawWrapped(painter, QRect(0, 8, image.width(), 50), u"VALDORIN"_s, 40, true);
    painter.setPen(Qt::white);
    DrawWrapped(painter, QRect(0, 56, image.width(), 30), kind + u" Nr. "_s + entry.Nr, 18, false);
    painter.fillRect(QRect(0, 400, image.width(), 120), QColor(0, 0, 0, 150));
    DrawWrapped(painter, QRect(12, 408, image.width() - 24, 70), entry.Titel, 24, true);
    DrawWrapped(painter, QRect(12, 484, image.width() - 24, 30), entry.Autor, 16, false);
    return image;
}

// A cutaway drawing: wide, on blueprint paper, larger than the viewer's room.
QImage Cutaway(const ListRecord& entry, const QString& object)
{
    QImage image(1440, 1000, QImage::Format_RGB32);
    image.fill(QColor(18, 52, 110));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(60, 100, 160), 1));
    for (int x = 0; x < image.width(); x += 40)
        painter.drawLine(x, 0, x, image.height());
    for (int y = 0; y < image.height(); y += 40)
        painter.drawLine(0, y, image.width(), y);
    painter.setPen(QPen(QColor(230, 240, 255), 5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRect(220, 300, 1000, 400));
    painter.setPen(QPen(QColor(230, 240, 255), 3));
    for (int deck = 0; deck < 5; ++deck)
        painter.drawLine(300 + deck * 30, 380 + deck * 60, 1140 - deck * 30, 380 + deck * 60);
    for (int part = 0; part < 6; ++part) {
        painter.drawEllipse(QPoint(420 + part * 120, 500), 30, 30);
        painter.drawLine(420 + part * 120, 470, 360 + part * 150, 220);
        DrawWrapped(painter, QRect(300 + part * 150, 180, 140, 40), QString::number(part + 1), 30, true);
    }
    painter.setPen(Qt::white);
    DrawWrapped(painter, QRect(0, 800, image.width(), 80), object, 54, true);
    DrawWrapped(painter, QRect(0, 890, image.width(), 60), u"Rißzeichnung zu Valdorin Nr. "_s + entry.Nr, 32, false);
    return image;
}

// An illustration: upright, black on paper, higher than the viewer's room.
QImage Illustration(const ListRecord& entry, int page)
{
    QImage image(600, 860, QImage::Format_RGB32);
    image.fill(QColor(246, 242, 230));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 3));
    painter.drawRect(image.rect().adjusted(20, 20, -20, -20));
    for (int line = 0; line < 14; ++line) {
        const int y = 120 + line * 40 + (page * line) % 25;
        painter.drawLine(60, y, 540, y + ((page + line) % 5 - 2) * 30);
    }
    painter.setBrush(QColor(30, 30, 30));
    painter.drawEllipse(QPoint(300, 260 + page % 200), 60, 60);
    DrawWrapped(painter, QRect(40, 730, 520, 60), entry.Titel, 24, true);
    DrawWrapped(painter, QRect(40, 790, 520, 40), u"Seite %1"_s.arg(page), 20, false);
    return image;
}

void DrawPictures(const QString& out, const std::vector<ListRecord>& hefte, const std::vector<ListRecord>& books)
{
    Configuration heftConfig;
    heftConfig.SeriesName = SourceSeries();
    heftConfig.ListKind = u"Heftromane"_s;
    heftConfig.PictureRoot = out;
    Configuration bookConfig = heftConfig;
    bookConfig.ListKind = u"Taschenbücher"_s;
    const QString covers = PictureFolder(heftConfig, KindWord(CoverKind));
    const QString cutaways = PictureFolder(heftConfig, KindWord(CutawayKind));
    const QString illustrations = PictureFolder(heftConfig, KindWord(IllustrationKind));
    const QString bookCovers = PictureFolder(bookConfig, KindWord(CoverKind));
    const QString archiveCovers = out + u"/Archiv/PICS/TIBIS"_s;
    for (const QString& folder : {covers, cutaways, illustrations, bookCovers, archiveCovers})
        MakeFolder(folder);

    for (const ListRecord& entry : hefte) {
        const int nr = entry.Nr.toInt();
        if (nr >= 1 && nr <= StoreCovers)
            SaveJpeg(Cover(entry, u"Heftroman"_s), covers + u'/' + PictureFileName(nr, KindWord(CoverKind), {}, u".jpg"_s));
        // Covers beyond the store's are found in the archive's picture folder.
        if (nr >= ArchiveCoversFrom && nr <= ArchiveCoversTo)
            SaveJpeg(Cover(entry, u"Heftroman"_s), archiveCovers + u"/tibi"_s + Padded(nr, 4) + u".JPG"_s);
    }
    // Some entries with drawings inside: one page, and several pages.
    const QHash<int, QList<int>> illustrated{{1, {3, 17, 42}}, {2, {11}}, {5, {7, 23}}};
    const QHash<int, QString> cutawayObjects{{1, u"Beiboot TOLVEL"_s}, {10, u"Kreuzer ASKARON"_s}};
    for (const ListRecord& entry : hefte) {
        const int nr = entry.Nr.toInt();
        for (int page : illustrated.value(nr))
            SaveJpeg(Illustration(entry, page),
                     illustrations + u'/' + PictureFileName(nr, KindWord(IllustrationKind), IllustrationPage(page), u".jpg"_s));
        if (cutawayObjects.contains(nr))
            SaveJpeg(Cutaway(entry, cutawayObjects.value(nr)),
                     cutaways + u'/' + PictureFileName(nr, KindWord(CutawayKind), {}, u".jpg"_s));
    }
    for (const ListRecord& entry : books) {
        const int nr = entry.Nr.toInt();
        if (nr >= 1 && nr <= BookCovers)
            SaveJpeg(Cover(entry, u"Taschenbuch"_s),
                     bookCovers + u'/' + PictureFileName(nr, KindWord(CoverKind), {}, u".jpg"_s));
    }
}

void Build(const QString& data, const QString& out)
{
    const QString sources = data + u"/valdorin"_s;
    const std::vector<ListRecord> hefte = ReadList(sources + u"/Heftromane.dat"_s, u"Heftromane"_s);
    const std::vector<ListRecord> books = ReadList(sources + u"/Taschenbuecher.dat"_s, u"Taschenbücher"_s);
    WritePages(out + u"/Archiv/HEFTE"_s, {u"HEFT"_s, 4, u"Heftroman"_s}, hefte,
               ReadDetails(sources + u"/Heftromane_Details.dat"_s), LastArchivedHeft);
    WritePages(out + u"/Archiv/TABUS"_s, {u"TABU"_s, 3, u"Taschenbuch"_s}, books,
               ReadDetails(sources + u"/Taschenbuecher_Details.dat"_s), LastArchivedBook);
    DrawPictures(out, hefte, books);
    // The build knows the sample is complete by this file.
    WriteFile(out + u"/Archiv/Heftarium.sample"_s, "Heftarium: Beispielarchiv\r\n");
}

} // namespace

int main(int argc, char** argv)
{
    // Drawing text needs a platform; none of it is shown.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    return RunBuildTool(app.arguments(), "heftarium-build-archive", Build);
}
