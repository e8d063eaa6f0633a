#include "htmlexport.h"

#include "exporttext.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QString CellStart = u"<TD><FONT face=Verdana size=2>"_s;
const QString CellEnd = u"</FONT></TD>"_s;

QString Shown(const QString& value)
{
    return value.isEmpty() ? u"<p>&nbsp;"_s : value;
}

void AddLabelRow(ExportLines& lines, const QString& label, const QString& value)
{
    lines.Add(u"<TR>"_s);
    lines.Add(u"<TD bgColor=#ccccff><FONT face=Verdana size=4>"_s + label + u"</FONT></TD>"_s);
    lines.Add(u"<TD><FONT face=Verdana>"_s + Shown(value) + u"</FONT></TD></TR>"_s);
}

void AddBlackRule(ExportLines& lines)
{
    lines.Add(u"<TR>"_s);
    lines.Add(u"<TD bgColor=#000000 height=2></TD>"_s);
    lines.Add(u"<TD bgColor=#000000 height=2></TD></TR>"_s);
}

// A column of its own inside the page: a rule, a heading and rows.
void AddBlock(ExportLines& lines, const QString& heading, const QStringList& rows)
{
    lines.Add(u"<TABLE height=\"100%\"cellSpacing=0 cellPadding=0 width=\"100%\"border=0>"_s);
    lines.Add(u"<TR>"_s);
    lines.Add(u"<TD bgColor=#000000 height=2></TD></TR>"_s);
    lines.Add(u"<TR>"_s);
    lines.Add(u"<TD bgColor=#99ccff><FONT face=Verdana size=4>"_s + heading + u"</FONT></TD></TR>"_s);
    for (const QString& row : rows) {
        lines.Add(u"<TR>"_s);
        lines.Add(u"<TD><FONT face=Verdana>"_s + Shown(row) + u"</FONT></TD></TR>"_s);
    }
}

void AddHead(ExportLines& lines, const QString& title)
{
    lines.Add(u"<HTML>"_s);
    lines.Add(u"<HEAD>"_s);
    lines.Add(u"<META NAME=\"GENERATOR\" CONTENT=\"Heftarium\">"_s);
    lines.Add(u"<TITLE>"_s + title + u"</TITLE></HEAD>"_s);
    lines.Add(u"<BODY text=#000000 bgColor=#ffffff>"_s);
    lines.Add(u"<P>"_s);
}

} // namespace

void AddHtmlListHead(ExportLines& lines, const ExportOptions& options)
{
    AddHead(lines, u"Heftarium HTML Export"_s);
    lines.Add(u"<TABLE cellSpacing=0 cellPadding=0 width=\"100%\" bgColor=#ccccff border=0>"_s);
    lines.Add(u"<TR>"_s);
    QStringList heads = {u"NR  "_s, u"AUTOR  "_s, u"TITEL  "_s, u"AL  "_s, u"ZYKLUS "_s};
    if (options.gelesen)
        heads << u"GL  "_s;
    heads << u"BEMERKUNG  "_s;
    if (options.details)
        heads << u"DETAILS"_s;
    for (const QString& head : std::as_const(heads))
        lines.Add(u"<TD bgColor=#330099><FONT face=Verdana color=#ffff00 size=4><STRONG>"_s + head +
                  u"</STRONG></FONT></TD>"_s);
    lines.Add(u"</TR>"_s);
}

void AddHtmlListRow(ExportLines& lines, const ListRecord& record, const ExportOptions& options,
                    const QString& detailsFolderName)
{
    lines.Add(u"<TR>"_s);
    for (const QString* value : {&record.Nr, &record.Autor, &record.Titel, &record.Auflage, &record.Zyklus})
        lines.Add(CellStart + *value + CellEnd);
    if (options.gelesen)
        lines.Add(CellStart + record.GL + CellEnd);
    lines.Add(CellStart + record.Bemerkung + CellEnd);
    if (options.details)
        lines.Add(CellStart + u"<a href=\""_s + detailsFolderName + u'\\' + record.Nr + u".html\">Anzeigen</a>"_s +
                  CellEnd);
    lines.Add(u"</TR>"_s);
}

void AddHtmlListFooter(ExportLines& lines, const QString& summary)
{
    lines.Add(u"</TABLE><P><font size=2>"_s);
    lines.Add(summary);
    lines.Add(u"</font></P>"_s);
    lines.Add(u"</BODY>"_s);
    lines.Add(u"</HTML>"_s);
}

void AddHtmlDetailsPage(ExportLines& lines, const DetailsRecord& record, const QString& series, const QString& kind)
{
    AddHead(lines, u"Heftarium HTML Export Details"_s);
    lines.Add(u"<TABLE cellSpacing=0 cellPadding=0 width=\"100%\" bgColor=#ffcc99 border=0>"_s);
    lines.Add(u"<TR>"_s);
    lines.Add(u"<TD bgColor=#ffffff height=2></TD>"_s);
    lines.Add(u"<TD bgColor=#000000 height=2></TD></TR>"_s);
    lines.Add(u"<TR>"_s);
    lines.Add(u"<TD width=\"25%\"bgColor=#ffffff></TD>"_s);
    lines.Add(u"<TD bgColor=#330099><STRONG><FONT face=Verdana color=#ffff00 size=5>Detail "_s + series + u' ' + kind +
              u": #"_s + record.Nr + u"</FONT></STRONG></TD></TR>"_s);
    AddBlackRule(lines);

    AddLabelRow(lines, u"Ersterscheinung:"_s, record.Ersterscheinung);
    AddLabelRow(lines, u"Untertitel:"_s, record.Untertitel);
    AddLabelRow(lines, u"Titelbild:"_s, record.TiBiZeichner);
    AddLabelRow(lines, u"Illustrationen:"_s, record.IlluZeichner);
    AddLabelRow(lines, u"Rißzeichnung:"_s,
                record.RZ.compare(u"ja"_s, Qt::CaseInsensitive) == 0 ? record.RZ : QString());
    AddLabelRow(lines, u"RZ Objekt:"_s, record.RiZeObjekt);
    AddLabelRow(lines, u"Rißzeichner:"_s, record.RiZeZeichner);
    const QStringList& labels = ExportStatusLabels();
    for (int i = 0; i < StatusCount; ++i)
        AddLabelRow(lines, labels[i] + u':', record.Status[static_cast<size_t>(i)]);
    for (int i = 0; i < MaxLinks; ++i) {
        const DatLink& link = record.Links[static_cast<size_t>(i)];
        if (link.Num > 0)
            AddLabelRow(lines, u"Verknüpfung %1:"_s.arg(i + 1),
                        link.Serie + u" #"_s + QString::number(link.Num) + u" - "_s + link.Text);
    }

    lines.Add(u"<TR>"_s);
    lines.Add(u"<TD vAlign=top>"_s);
    QStringList persons = {record.Persons[0]};
    for (size_t i = 1; i < record.Persons.size(); ++i)
        if (!record.Persons[i].isEmpty())
            persons << record.Persons[i];
    AddBlock(lines, u"Personen:"_s, persons);
    lines.Add(u"</TABLE></TD>"_s);
    lines.Add(u"<TD vAlign=top>"_s);
    AddBlock(lines, u"Inhalt:"_s, {record.Inhalt});
    lines.Add(u"</TABLE>"_s);
    AddBlackRule(lines);
    lines.Add(u"</TD></TR></TABLE></P>"_s);
    lines.Add(u"</BODY>"_s);
    lines.Add(u"</HTML>"_s);
}

} // namespace heft
