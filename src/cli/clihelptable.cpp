// The command table of heftarium-cli. A new command adds its row here; the
// help texts, the hints on a wrong call and the manual page follow from it.

#include "clihelp.h"

using namespace Qt::StringLiterals;

namespace heft {

const QList<CliCommandHelp>& CliCommands()
{
    static const QList<CliCommandHelp> commands = {
        {u"create"_s,
         {u"heftarium-cli create DATEI --series SERIE --kind LISTENART"_s},
         u"Legt in DATEI eine neue, leere Sammlung an; Serie und Art der Liste stehen danach in ihrer "
         "Konfiguration. Eine Datei, die es schon gibt, bleibt unangetastet."_s,
         {{u"--series SERIE"_s, u"der Name der Serie, z. B. Valdorin"_s},
          {u"--kind LISTENART"_s, u"die Art der Liste, z. B. Heftromane"_s}},
         {{0, u"Die Sammlung ist angelegt."_s}, {1, u"Die Datei gibt es schon, oder sie ließ sich nicht anlegen."_s}}},
        {u"info"_s,
         {u"heftarium-cli --db DATEI info"_s},
         u"Zeigt Serie, Art der Liste, Zahl der Einträge und den Bereich der Nummern der Sammlung DATEI."_s,
         {},
         {{1, u"Die Sammlung oder ihre Konfiguration ist nicht lesbar."_s}}},
        {u"sql"_s,
         {u"heftarium-cli --db DATEI sql \"ANWEISUNG\""_s},
         u"Führt eine SQL-Anweisung im Dialekt der Sammlung aus. Eine Abfrage gibt ihre Zeilen aus, die Felder "
         "durch Tabulatoren getrennt und leere Felder als <NULL>; jede andere Anweisung gibt 0 aus, oder die "
         "Fehlernummer und ihren Text."_s,
         {},
         {{1, u"Die Anweisung ist gescheitert; Fehlernummer und Text stehen auf der Standardausgabe."_s}}},
        {u"filter"_s,
         {u"heftarium-cli --db DATEI filter FELD:VERGLEICH:WERT [UND|ODER|EXOR FELD:VERGLEICH:WERT ...]"_s},
         u"Filtert die Sammlung wie das Filterfenster, mit bis zu drei Kriterien FELD:VERGLEICH:WERT in den Worten "
         "des Fensters (z. B. Titel:ÄHNLICH:Sonne UND Wert:GRÖßER:20). Gibt die Bedingung in SQL, den Filter als "
         "Satz und die Nummern der gefundenen Einträge aus."_s,
         {},
         {{1, u"Die Abfrage ist gescheitert, oder ein Kriterium nennt einen ungültigen Zyklus."_s},
          {2, u"Ein Feld, ein Vergleich, ein Listenwert oder ein Verknüpfungswort ist unbekannt."_s}}},
        {u"fill"_s,
         {u"heftarium-cli --db DATEI fill FELD:VERGLEICH:WERT [...] --target SPALTE --value WERT"_s},
         u"Füllt wie „Spalte füllen“ die Spalte SPALTE mit WERT in allen Einträgen, die die Kriterien finden, und "
         "gibt die Zahl der geänderten Einträge aus. Die Kriterien schreibst Du wie beim Befehl filter."_s,
         {{u"--target SPALTE"_s, u"die Spalte, wie das Fenster sie nennt, z. B. Auflage, Zyklus, Gelesen, "
                                 "Bemerkung oder ein Attribut"_s},
          {u"--value WERT"_s, u"der neue Wert; bei Auflage und Gelesen ein Eintrag der Liste des Fensters, "
                              "beim Zyklus „- - -“ für keinen Zyklus"_s}},
         {{1, u"Die Abfrage ist gescheitert, oder WERT ist kein Zyklus."_s},
          {2, u"Eine Option fehlt, die Spalte ist unbekannt, oder WERT steht nicht in ihrer Liste."_s}}},
        {u"import"_s,
         {u"heftarium-cli --db DATEI import DATEI.dat [--mode 0|1|2] [--details]"_s},
         u"Liest eine Austauschdatei (Liste, Details oder Zyklen) wie der Datei-Import des Programms und gibt "
         "Bericht und Fehlerliste aus."_s,
         {{u"--mode 0|1|2"_s, u"0 nimmt nur neue Einträge auf (Vorgabe), 1 ersetzt bei vorhandenen Einträgen alle "
                              "Spalten, 2 nur die Spalten, die die Datei füllt"_s},
          {u"--details"_s, u"liest auch die Details-Datei DATEI_Details.dat"_s}},
         {{1, u"Mindestens eine Zeile wurde abgewiesen, oder die Konfiguration ist nicht lesbar."_s}}},
        {u"export"_s,
         {u"heftarium-cli --db DATEI export BASIS --format dat,txt,html [--details] [--gelesen] [--zyklus] "
          "[FELD:VERGLEICH:WERT ...]"_s},
         u"Schreibt die ganze Liste, oder mit Kriterien wie beim Befehl filter die gefilterte Liste, wie der Export "
         "des Programms nach BASIS.dat, BASIS.txt und BASIS.html, und gibt den Ergebnistext aus."_s,
         {{u"--format dat,txt,html"_s, u"die Formate, eines oder mehrere durch Kommas getrennt"_s},
          {u"--details"_s, u"mit der Details-Datei, den Textblöcken und den Seiten je Eintrag"_s},
          {u"--gelesen"_s, u"mit der Spalte GL in Text und HTML"_s},
          {u"--zyklus"_s, u"behält „-“ und „- - -“ in Text und HTML"_s}},
         {{1, u"Die Abfrage ist gescheitert, oder der Ordner von BASIS fehlt."_s}}},
        {u"webimport"_s,
         {u"heftarium-cli --db DATEI webimport VON BIS [--tibi] [--illu]"_s},
         u"Holt die Hefte VON bis BIS wie der Web-Import des Programms aus dem Wiki der Serie in eine Austauschdatei "
         "und ihre Details-Datei im Ordner import des Datenordners (dem Ordner über DBs), und gibt Bericht, "
         "Fehlerliste und die geschriebenen Dateien aus. Die Umgebungsvariablen HEFTARIUM_WIKI_URL und "
         "HEFTARIUM_PUBLISHER_URL ersetzen die Adressen von Wiki und Verlag."_s,
         {{u"--tibi"_s, u"holt auch die Titelbilder in den Bilderordner"_s},
          {u"--illu"_s, u"holt auch die Illustrationen in den Bilderordner"_s}},
         {{1, u"Ein Heft ließ sich nicht holen (die Zeilen davor sind geschrieben), oder die Konfiguration ist "
              "nicht lesbar."_s},
          {2, u"VON oder BIS ist keine Zahl, oder eine Option ist unbekannt."_s}}},
        {u"stats"_s,
         {u"heftarium-cli --db DATEI stats NAME [--author TEXT] [--cycle ZYKLUS] [--preiswert 0|1|2] [--rows]"_s},
         u"Gibt eine Statistik wie das Statistikfenster aus; NAME ist einer ihrer Namen im Fenster, z. B. "
         "Autor/Zyklen oder Preis/Wert."_s,
         {{u"--author TEXT"_s, u"der Autor für Autor/Zyklen; ohne die Option der letzte der Liste"_s},
          {u"--cycle ZYKLUS"_s, u"der Zyklus für Zyklus/Autoren; ohne die Option der erste"_s},
          {u"--preiswert 0|1|2"_s, u"das Diagramm von Preis/Wert: 0 die Preise, 1 die Werte, 2 Wert gegen Preis"_s},
          {u"--rows"_s, u"danach die Zeilen des Diagramms: Reihe, Beschriftung und Wert, durch Tabulatoren getrennt"_s}},
         {{1, u"Die Konfiguration ist nicht lesbar."_s},
          {2, u"Statistik, Autor, Zyklus oder Angabe für --preiswert ist unbekannt; die möglichen stehen auf der "
              "Fehlerausgabe."_s}}},
        {u"print"_s,
         {u"heftarium-cli --db DATEI print matrix|list|filter [--from N] [--to N] [--landscape] [--toner] "
          "[--no-auflage] [--no-zustand] [--zustand-immer] --pdf DATEI.pdf [FELD:VERGLEICH:WERT ...]"_s},
         u"Schreibt die Seiten des Druckfensters als A4-PDF: die Matrix zum Abhaken, die ganze Liste oder die "
         "Filterliste der Kriterien (wie beim Befehl filter), und gibt die Zahl der Seiten aus."_s,
         {{u"--from N, --to N"_s, u"der Bereich der Nummern; ohne die Optionen jedes Hundert der Matrix oder die "
                                  "ganze Liste"_s},
          {u"--landscape"_s, u"Querformat"_s},
          {u"--toner"_s, u"Matrix tonersparend, ohne gefüllte Flächen"_s},
          {u"--no-auflage, --no-zustand"_s, u"Matrix ohne die Marke der Auflage oder des Zustands"_s},
          {u"--zustand-immer"_s, u"die Marke des Zustands auch dann, wenn der Zustand unbekannt ist"_s},
          {u"--pdf DATEI.pdf"_s, u"die Datei, in die die Seiten geschrieben werden"_s}},
         {{1, u"Die Datei ließ sich nicht schreiben, oder der Bereich enthält keine Seite."_s},
          {2, u"Ausgabe, Bereich oder Kriterien sind ungültig."_s}}},
        {u"picture"_s,
         {u"heftarium-cli --db DATEI picture NR [--kind tibi|rize|illu] [--page N]"_s,
          u"heftarium-cli --db DATEI picture add NR DATEI --kind tibi|rize|illu [--page N] [--overwrite]"_s},
         u"Gibt die Bilddatei aus, die der Bildbetrachter zum Eintrag NR zeigt, oder den Hinweis, dass es das Bild "
         "nicht gibt. Mit add übernimmt der Befehl DATEI (.jpg oder .bmp) wie das Ablegen auf einem Bildfeld der "
         "Details."_s,
         {{u"--kind tibi|rize|illu"_s, u"Titelbild (Vorgabe), Risszeichnung oder Innenillustration"_s},
          {u"--page N"_s, u"die Seite einer Innenillustration; ohne die Option beim Zeigen alle Seiten"_s},
          {u"--overwrite"_s, u"ersetzt ein Bild, das es schon gibt"_s}},
         {{1, u"Die Einstellungen sind nicht lesbar, oder das Bild wurde nicht übernommen."_s},
          {2, u"Nummer, Art oder Datei fehlen, oder die Art ist unbekannt."_s}}},
        {u"archive"_s,
         {u"heftarium-cli --db DATEI archive page NR"_s,
          u"heftarium-cli --db DATEI archive search --word TEXT [--word2 TEXT] [--join UND|ODER|EXOR] "
          "[--mode Farbe|Filter] [FELD:VERGLEICH:WERT ...]"_s},
         u"page gibt die Seite des Archivs aus, die der Browser zum Eintrag NR bekäme. search durchsucht die "
         "Archivseiten der Einträge (mit Kriterien wie beim Befehl filter nur die gefundenen) nach Stichwörtern und "
         "gibt den Filter als Satz und die Nummern der behaltenen oder markierten Einträge aus."_s,
         {{u"--word TEXT, --word2 TEXT"_s, u"das erste und das zweite Stichwort"_s},
          {u"--join UND|ODER|EXOR"_s, u"wie die beiden Stichwörter verknüpft werden; Vorgabe UND"_s},
          {u"--mode Farbe|Filter"_s, u"Treffer markieren oder nur die Treffer behalten (Vorgabe)"_s}},
         {{1, u"Die Einstellungen sind nicht lesbar, oder es gibt keine Archivseite zum Eintrag."_s},
          {2, u"Unterbefehl, Stichwort, Verknüpfung oder Modus fehlen oder sind unbekannt."_s}}},
        {u"backup"_s,
         {u"heftarium-cli --db DATEI backup [ZIEL]"_s},
         u"Legt sofort eine Sicherung der Sammlung an, wie das Programm sie bei der ersten Änderung eines Tages "
         "anlegt: ohne ZIEL als Sicherung/{Name}-{Datum}.mdb neben der Datei."_s,
         {},
         {{1, u"Die Sicherung ließ sich nicht anlegen."_s}}},
        {u"check"_s,
         {u"heftarium-cli --db DATEI check"_s},
         u"Prüft die Datei mit der Integritätsprüfung von SQLite und den Regeln der Sammlung (jede Zeile von "
         "Details, Status, Gestaltung und Links gehört zu einem Eintrag, GL und RZ sind -1 oder 0, Zahlen in "
         "Status sind mit Nullen aufgefüllt) und gibt aus, was sie findet."_s,
         {},
         {{1, u"Die Prüfung hat Fehler gefunden."_s}}},
        {u"renumber"_s,
         {u"heftarium-cli --db DATEI renumber ALT NEU [ALT NEU ...]"_s},
         u"Nummeriert Einträge um wie das Bearbeiten-Fenster und gibt jede Umnummerierung aus."_s,
         {},
         {{1, u"Mindestens eine Umnummerierung ist gescheitert."_s},
          {2, u"Die Nummern fehlen oder sind nicht paarweise angegeben."_s}}},
        {u"cycles"_s,
         {u"heftarium-cli --cycle-db DATEI cycles export [--series SERIE]"_s},
         u"Schreibt die Zyklen der Zyklus-Datenbank DATEI wie das Zyklusfenster nach export/{Serie}-Zyklus.dat im "
         "Datenordner (dem Ordner über DBs) und gibt dessen Meldung aus."_s,
         {{u"--series SERIE"_s, u"der Name der Serie; ohne die Option gilt der Dateiname „{Serie} Zyklus.mdb“"_s}},
         {{1, u"Die Datenbank ist nicht lesbar, oder die Datei wurde nicht vollständig geschrieben."_s}}},
    };
    return commands;
}

} // namespace heft
