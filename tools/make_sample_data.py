#!/usr/bin/env python3
"""Writes the sample collection of the series Valdorin as exchange files.

Run by hand from the project folder (python3 tools/make_sample_data.py); the
files it writes into data/valdorin are committed, and the build turns them into
the shipped databases. Everything is invented: names, titles and plots are
put together from the word lists below with a fixed seed, so a new run gives
the same bytes.
"""

import datetime
import os
import random

SERIES = "Valdorin"
HEFT_KIND = "Heftromane"
TB_KIND = "Taschenbücher"
HEFT_SERIE = f"{SERIES} {HEFT_KIND}"
TB_SERIE = f"{SERIES} {TB_KIND}"
PUBLISHER = "Quintara Verlag"
GENRE = "Science Fantasy"

rng = random.Random(19610908)

AUTHORS = [
    "Hanno Velden", "Kurt Brandis", "Ernst Markwart", "Gerd Olsberg", "Rolf Feldhaus",
    "Helmut Rennekamp", "Uwe Stoltenau", "Dieter Wendrich", "Klaus Aschfeld", "Horst Brügmann",
    "Jens Kestner", "Frank Lorbach", "Achim Mahlow", "Bernd Niedergassel", "Volker Pfahler",
    "Lutz Quandel", "Erwin Rautenbach", "Sven Sellin", "Otto Tiedmann", "Walter Ulbrecht",
    "Harald Vossberg", "Egon Wiesental", "Fritz Zarnekow", "Heiner Amelung", "Konrad Bertholt",
    "Ludger Cramm", "Manfred Dörrbecker", "Norbert Eschwege", "Arno Fiedeler", "Gunnar Haslinde",
    "Ingo Jaspers", "Jochen Kallweit", "Karl-Heinz Lömker", "Lothar Mückenberg", "Reinhold Nettelbeck",
    "Siegfried Ostwaldt", "Tobias Pörtner", "Ulf Rosskamp", "Vinzenz Schädlich", "Wolfram Treskow",
    "Yvonne Ahlgrimm", "Beate Kornfeld", "Claudia Mertesacker", "Doris Wallbrecht", "Elke Sandhorst",
    "Gisela Tammling", "Hedda Uhlenbusch", "Iris Vogelsang", "Jutta Westerkamp", "Karin Zeitlow",
    "Björn Falkenried", "Carsten Glöckner", "Detlef Hüsing", "Edgar Immendorf", "Florian Jaeschke",
    "Gregor Klausing", "Hartmut Lembeck", "Ivo Marschall", "Jan Oldenstedt", "Kai Pröbsting",
]

ARTISTS = [
    "Lorenz Falk", "Ines Marwald", "Bodo Lessner", "Carla Reuven", "Till Ambros", "Greta Sandvoss",
    "Ole Brinkhaus", "Maren Tjaden", "Viktor Hallmann", "Pia Olderog", "Jakob Strelow", "Anke Weidner",
]
TECH_ARTISTS = ["Bodo Lessner", "Viktor Hallmann", "Jakob Strelow", "Rainer Kolbeck", "Sören Mahnke"]

FIRST_NAMES = [
    "Tarvin", "Mela", "Joral", "Sira", "Bren", "Ilka", "Goran", "Neela", "Rasko", "Tamir", "Lysa",
    "Corvin", "Edda", "Falko", "Ysra", "Harun", "Kira", "Lenno", "Marek", "Nuri", "Ombra", "Pelle",
    "Quira", "Rune", "Sorn", "Tessa", "Ulvar", "Vela", "Wendel", "Xara", "Yorik", "Zaida", "Anselm",
    "Birte", "Dario", "Elin", "Fenja", "Gideon", "Hanne", "Ivar",
]
LAST_NAMES = [
    "Ask", "Orkun", "Feyd", "Vantis", "Haldor", "Morrow", "Kessel", "Tannhaus", "Veyl", "Dravik",
    "Aranel", "Borrek", "Calder", "Denholm", "Eskar", "Fahrion", "Grell", "Hoven", "Istvar", "Jarnek",
]
TITLED = [
    "Der Graue", "Fürst Kaldor", "Seherin Amra", "Admiral Veyl", "Der Eiserne Kaiser", "Meister Orrin",
    "Königin Saphira", "Der Namenlose", "Wächterin Thea", "Kommandant Rhys", "Archivar Belgor",
    "Die Stimme von Thul", "Prinz Aldric", "Hohepriester Moras", "Der Letzte Wanderer",
]

SYLL_START = ["Al", "Ka", "Thu", "Os", "Ve", "Mor", "Zan", "Ty", "Ar", "Bel", "Cor", "Dra", "El", "Gor",
              "Is", "Kyr", "Lan", "Mi", "Nor", "Py", "Quel", "Rha", "Sar", "Tol", "Ul", "Var", "Xe", "Yr"]
SYLL_MID = ["do", "ra", "le", "mi", "na", "the", "ve", "ro", "", "", ""]
SYLL_END = ["rath", "mar", "gaard", "resh", "nis", "thul", "dor", "wyn", "kar", "los", "mon", "tis",
            "vel", "an", "ur", "heim", "ora"]

NOM = [
    "Die Festung", "Der Ruf", "Das Erbe", "Die Stadt", "Der Wächter", "Das Tor", "Die Flotte",
    "Der Herr", "Die Boten", "Das Vermächtnis", "Die Spur", "Der Schatten", "Das Auge", "Die Stimme",
    "Der Thron", "Die Kinder", "Der Fluch", "Das Lied", "Die Rückkehr", "Der Sturz", "Die Jagd",
    "Das Rätsel", "Die Gefangenen", "Der Verräter", "Die Herrin", "Das Schiff", "Die Brücke",
    "Der Turm", "Die Mauern", "Der Pakt", "Die Legende", "Das Siegel", "Der Traum", "Die Nacht",
    "Der Untergang", "Die Erben", "Der Bote", "Die Schmiede", "Das Heer", "Die Tränen", "Der Zorn",
    "Das Orakel", "Der Schwur", "Das Geheimnis", "Die Stunde",
]
GEN = [
    "der Sternenwanderer", "des Schattenfürsten", "der vergessenen Götter", "des Eisernen Kaisers",
    "der Zeitlosen", "des Lichtbringers", "der Nebelreiter", "des Silbernen Mondes", "der Ewigen Flamme",
    "der Tausend Sonnen", "des Zwielichts", "der Steinernen Wächter", "des Glutkerns", "der letzten Welt",
    "des Dunklen Bundes", "der Gläsernen Stadt", "der Kristallwesen", "des Schwarms", "der Verbannten",
    "des Sternentors", "der Flammenbrüder", "der Seelenhändler", "des Großen Schweigens",
    "der Schwarzen Sonne", "des Weltenbrands", "der alten Wanderer", "des Namenlosen",
]
WHERE = [
    "am Nebelmeer", "im Kristallwald", "jenseits der Glutwüste", "aus dem Nichts", "am Rand der Galaxis",
    "unter den Zwillingssonnen", "im Sternennebel", "aus der Tiefe", "hinter dem Sternentor",
    "im Eis", "zwischen den Welten", "am Ende der Zeit", "unter dem Roten Mond", "im Staub der Sterne",
]
PLACE_LEADS = [
    "Flucht aus", "Kampf um", "Rückkehr nach", "Gefangen auf", "Verrat auf", "Aufbruch nach",
    "Sturm über", "Die Schlacht um", "Nacht über", "Gefahr für", "Das Ende von", "Die Toten von",
    "Der Fall von", "Feuer über", "Einsatz auf", "Treffpunkt", "Die Wächter von", "Notruf von",
    "Das Rätsel von", "Die Ruinen von", "Sterbendes", "Verschollen auf", "Die Herren von",
]
ADJ = ["verlorenen", "gläsernen", "schweigenden", "vergessenen", "letzten", "eisernen", "goldenen",
       "dunklen", "ewigen", "fremden", "steinernen", "schlafenden", "brennenden", "wandernden"]
PLURAL = ["Sterne", "Türme", "Wächter", "Götter", "Städte", "Welten", "Krieger", "Schiffe", "Sonnen",
          "Monde", "Propheten", "Tore", "Könige", "Boten", "Brüder", "Träumer", "Kinder"]
ENEMIES = ["die Schattenflotte", "den Eisernen Kaiser", "die Nebelreiter", "die Zeitlosen", "den Schwarm",
           "die Kristallwesen", "die Seelenhändler", "den Dunklen Bund", "die Flammenbrüder"]
STANDALONE = ["Welt ohne Morgen", "Wenn die Sonnen erlöschen", "Sie kamen aus der Tiefe",
              "Der lange Weg nach Hause", "Tod im Sternennebel", "Das Schweigen der Maschinen",
              "Zwischen Licht und Schatten", "Die Zeit der Wölfe", "Brücke ins Nichts"]

THINGS = ["ein verlassenes Schiff der Wanderer", "die Ruinen einer uralten Stadt",
          "einen Kristall, der Gedanken speichert", "eine Botschaft aus der Vergangenheit",
          "ein Tor in eine fremde Dimension", "die Überlebenden einer Expedition",
          "eine Waffe der Zeitlosen", "ein schlafendes Heer", "eine Karte der Sternenstraßen",
          "ein Archiv der Steinernen Wächter", "eine Kolonie ohne Erinnerung"]

CYCLE_NAMES = [
    "Die Sternenwanderer", "Das Nebelmeer", "Die Nebelkriege", "Der Eiserne Kaiser", "Die Gläserne Stadt",
    "Das Tor von Aldorath", "Die Zeitlosen", "Die Schattenflotte", "Der Glutkern", "Die Kristallwesen",
    "Das Silberne Reich", "Die Zwillingssonnen", "Der Dunkle Bund", "Die Urzeit-Expedition",
    "Die Flammenbrüder", "Die Schlafenden Götter", "Das Orakel von Thul", "Die Nebelreiter", "Der Schwarm",
    "Die Tausend Sonnen", "Die Steinernen Wächter", "Das Lichtreich", "Die Verbannten", "Die Wiederkehr",
    "Das Sternentor", "Die Seelenhändler", "Der Weltenbrand", "Die Rückkehr der Wanderer",
    "Die Schwarze Sonne", "Die Erben des Kaisers", "Das Zwielicht", "Die Letzte Grenze", "Der Kristallmond",
    "Die Ewige Flamme", "Das Große Schweigen",
]
# Groß-Zyklen and how many cycles each spans, in order.
BIG_CYCLES = [("Der Aufbruch", 4), ("Das Sternenreich", 5), ("Die Dunklen Jahrhunderte", 4),
              ("Das Erbe der Wanderer", 5), ("Die Kristallkriege", 4), ("Das Zeitalter der Tore", 5),
              ("Die Neue Allianz", 4), ("Jenseits der Grenze", 4)]
# Cycles told in the far past: (cycle index, ZeitVon, ZeitBis).
PAST_CYCLES = {13: (-48200, -48150), 21: (-1200, -1150), 29: (-310, -290)}

HEFT_COUNT = 2520
HEFT_GAPS = 9
PRE_CYCLE = 4
TB_COUNT = 400

CONDITIONS = ["sehr gut", "gut", "gut", "mittel", "mittel", "schlecht"]
SELLERS = ["Flohmarkt Kassel", "Tauschbörse Köln", "Antiquariat Hohmann", "Romanheft-Versand Kreil",
           "Sammlerbörse Hannover", "Kiosk am Bahnhof", "Nachlass Onkel Heinz", "Internet-Auktion"]
REMARKS = ["Titelbild eingerissen", "Doppelt vorhanden", "Rücken gebrochen", "Mit Beilage",
           "Signiert vom Autor", "Stempel auf dem Titel", "Leseexemplar", "Fehldruck Seite 17"]
BORROWERS = ["Martin", "Sabine Krüger", "Onkel Heinz", "Jürgen vom Stammtisch", "Lena", "Thomas Weber"]


def roman(number):
    steps = [(1000, "M"), (900, "CM"), (500, "D"), (400, "CD"), (100, "C"), (90, "XC"), (50, "L"),
             (40, "XL"), (10, "X"), (9, "IX"), (5, "V"), (4, "IV"), (1, "I")]
    text = ""
    for value, letters in steps:
        while number >= value:
            text += letters
            number -= value
    return text


def padded(value):
    """Numeric attributes are stored as seven characters, zeros in front."""
    text = f"{value:g}" if isinstance(value, float) else str(value)
    return ("0000000" + text)[-7:]


def stamp(day_from, day_to):
    start = datetime.datetime.fromisoformat(day_from)
    span = (datetime.datetime.fromisoformat(day_to) - start).total_seconds()
    moment = start + datetime.timedelta(seconds=rng.randrange(int(span)))
    return moment.strftime("%Y-%m-%d um %H:%M:%S")


def weighted_authors():
    weights = [1.0 / (rank + 1) ** 0.9 for rank in range(len(AUTHORS))]
    order = AUTHORS[:]
    rng.shuffle(order)
    return order, weights


def make_places():
    places = set()
    while len(places) < 140:
        places.add(rng.choice(SYLL_START) + rng.choice(SYLL_MID) + rng.choice(SYLL_END))
    return sorted(places)


def make_cast():
    cast = set(TITLED)
    while len(cast) < 140:
        cast.add(f"{rng.choice(FIRST_NAMES)} {rng.choice(LAST_NAMES)}")
    return sorted(cast)


PLACES = make_places()
CAST = make_cast()
AUTHOR_ORDER, AUTHOR_WEIGHTS = weighted_authors()
used_titles = set()


def genitive_of(name):
    first = name.split()[-1]
    return name + ("'" if first[-1] in "sxz" else "s")


def title_candidate(heroes):
    kind = rng.randrange(9)
    if kind == 0:
        return f"{rng.choice(NOM)} {rng.choice(GEN)}"
    if kind == 1:
        return f"{rng.choice(NOM)} {rng.choice(WHERE)}"
    if kind == 2:
        return f"{rng.choice(PLACE_LEADS)} {rng.choice(PLACES)}"
    if kind == 3:
        return f"Die {rng.choice(ADJ)} {rng.choice(PLURAL)}"
    if kind == 4:
        return f"Im Bann {rng.choice(GEN)}"
    if kind == 5:
        hero = rng.choice(heroes)
        return rng.choice([f"{hero} gegen {rng.choice(ENEMIES)}", f"{genitive_of(hero)} letzte Chance",
                           f"{hero} in Gefahr", f"{genitive_of(hero)} Verrat", f"Die Spur von {hero}"])
    if kind == 6:
        return f"{rng.choice(['Die Stunde', 'Das Zeitalter', 'Im Zeichen', 'Planet'])} der {rng.choice(ADJ)} {rng.choice(PLURAL)}"
    if kind == 7:
        return f"{rng.choice(NOM)} von {rng.choice(PLACES)}"
    return rng.choice(STANDALONE) if rng.random() < 0.3 else f"{rng.choice(NOM)} {rng.choice(GEN)}"


def unique_title(heroes):
    while True:
        title = title_candidate(heroes)
        if len(title) <= 50 and title not in used_titles:
            used_titles.add(title)
            return title


def subtitle(persons):
    hero = persons[0]
    return rng.choice([
        f"{hero} im Kampf gegen {rng.choice(ENEMIES)}",
        f"Sie suchten {rng.choice(THINGS)} – und fanden die Hölle",
        f"{hero} auf der Spur {rng.choice(GEN)}",
        "Ein Planet wird zur Falle",
        "Gefangen zwischen den Welten",
        f"Ein Abenteuer {rng.choice(WHERE)}",
        f"Die Stunde der Entscheidung naht für {hero}",
        f"Im Wettlauf mit der Zeit – {hero} setzt alles auf eine Karte",
    ])


def plot(persons):
    p1 = persons[0]
    p2 = persons[1] if len(persons) > 1 else rng.choice(CAST)
    place = rng.choice(PLACES)
    first = rng.choice([
        f"{p1} und {p2} erreichen {place}.",
        f"Auf {place} stößt {p1} auf {rng.choice(THINGS)}.",
        f"{p1} erhält eine rätselhafte Botschaft aus {place}.",
        f"Die Flotte von {p1} gerät bei {place} in einen Hinterhalt.",
        f"Seit Wochen treibt das Schiff von {p1} steuerlos durch den Sternennebel.",
    ])
    more = [
        f"Dort erwartet sie {rng.choice(THINGS)}.",
        f"Doch {p2} verfolgt eigene Pläne.",
        "Ein alter Feind kehrt zurück.",
        f"Die Spur führt zu {rng.choice(THINGS)}.",
        f"Nur {p2} kennt den Weg zurück.",
        "Als das Sternentor erwacht, beginnt ein Wettlauf gegen die Zeit.",
        f"Zu spät erkennt {p1} die Falle.",
        "Die Rettung kommt von unerwarteter Seite.",
        "Am Ende steht eine folgenschwere Entscheidung.",
    ]
    rng.shuffle(more)
    text = first
    for sentence in more[:rng.randint(1, 3)]:
        if len(text) + 1 + len(sentence) <= 255:
            text += " " + sentence
    return text


def rize_object():
    kind = rng.choice(["Kreuzer", "Schlachtschiff", "Forschungsschiff", "Raumstation", "Beiboot",
                       "Transporter", "Kampfgleiter", "Festungsschiff", "Frachter", "Zeitsonde"])
    return f"{kind} {rng.choice(PLACES).upper()}"


def pick_persons(cycle_cast):
    count = rng.choice([1, 2, 2, 3, 3, 3, 4, 4, 5, 6])
    persons, first_names = [], set()
    for person in rng.sample(cycle_cast, len(cycle_cast)):
        first = person.split()[0]
        if first not in first_names and len(persons) < count:
            persons.append(person)
            first_names.add(first)
    return persons


def make_cycles(numbers):
    """35 contiguous ranges over the issues after the first few."""
    first, last = PRE_CYCLE + 1, numbers[-1]
    weights = [rng.uniform(0.5, 1.6) for _ in CYCLE_NAMES]
    total = sum(weights)
    bounds, start, acc = [], first, 0.0
    for index, weight in enumerate(weights):
        acc += weight
        end = last if index == len(weights) - 1 else first + round(acc / total * (last - first + 1)) - 1
        bounds.append((start, end))
        start = end + 1
    big = [name for name, count in BIG_CYCLES for _ in range(count)]
    cycles, year = [], 2040
    for index, (name, (von, bis)) in enumerate(zip(CYCLE_NAMES, bounds)):
        if index in PAST_CYCLES:
            zeit_von, zeit_bis = PAST_CYCLES[index]
        else:
            zeit_von = year
            zeit_bis = year + rng.randint(4, 30)
            year = zeit_bis + rng.randint(1, 40)
        cycles.append({"zyklus": roman(index + 1), "von": von, "bis": bis, "zeitvon": zeit_von,
                       "zeitbis": zeit_bis, "name": name, "bereich": big[index],
                       "cast": rng.sample(CAST, rng.randint(7, 12))})
    return cycles


def field(value):
    text = str(value)
    assert '";' not in text and "\r" not in text and "\n" not in text, text
    return f'"{text}";'


def write_dat(path, header, lines):
    with open(path, "w", encoding="cp1252", newline="") as out:
        out.write(header + "\r\n")
        for line in lines:
            out.write(line + "\r\n")


def entry(nr, autor, titel, zyklus, auflage="-", gl="Nein", bemerkung=""):
    assert len(autor) <= 25 and len(titel) <= 50 and len(bemerkung) <= 64
    return {"nr": nr, "autor": autor, "titel": titel, "auflage": auflage, "zyklus": zyklus, "gl": gl,
            "bemerkung": bemerkung}


def list_line(e):
    return "".join(field(e[key]) for key in ("nr", "autor", "titel", "auflage", "zyklus", "gl", "bemerkung"))


def details_line(d):
    assert len(d["untertitel"]) <= 128 and len(d["inhalt"]) <= 255
    assert all(len(p) <= 32 for p in d["persons"]) and len(d["links"]) <= 15
    persons = d["persons"] + [""] * (9 - len(d["persons"]))
    fields = [d["nr"], d["date"], d["untertitel"], *persons, d["inhalt"], d["tibi"], d["illu"],
              "Ja" if d["rz"] else "", d["rizeobjekt"], d["rizezeichner"]]
    fields += [d["status"].get(enum, "") for enum in range(1, 20)]
    for num, text, serie in d["links"]:
        assert len(text) <= 128 and len(serie) <= 48
        fields += [num, text, serie]
    return "".join(field(value) for value in fields)


def new_details(nr, date, persons, status):
    rz = rng.random() < 1 / 8
    return {
        "nr": nr, "date": date, "persons": persons,
        "untertitel": subtitle(persons) if rng.random() < 0.3 else "",
        "inhalt": plot(persons) if rng.random() < 0.65 else "",
        "tibi": rng.choice(ARTISTS), "illu": rng.choice(ARTISTS), "rz": rz,
        "rizeobjekt": rize_object() if rz else "", "rizezeichner": rng.choice(TECH_ARTISTS) if rz else "",
        "status": status, "links": [],
    }


def make_hefte():
    numbers = list(range(1, HEFT_COUNT + 1))
    for gap in rng.sample(range(200, HEFT_COUNT - 10), HEFT_GAPS):
        numbers.remove(gap)
    cycles = make_cycles(numbers)
    start = datetime.date(1961, 9, 8)
    entries, details = {}, {}
    for nr in numbers:
        cycle = next((c for c in cycles if c["von"] <= nr <= c["bis"]), None)
        cast = cycle["cast"] if cycle else CAST[:10]
        persons = pick_persons(cast)
        author = rng.choices(AUTHOR_ORDER, AUTHOR_WEIGHTS)[0]
        entries[nr] = entry(nr, author, unique_title(persons), cycle["zyklus"] if cycle else "- - -")
        status = {1: stamp("2023-01-01", "2024-12-31"), 9: PUBLISHER, 10: padded(64), 11: "Heft",
                  13: GENRE, 14: "Deutsch"}
        date = (start + datetime.timedelta(weeks=nr - 1)).isoformat()
        details[nr] = new_details(nr, date, persons, status)
    # Two-part stories inside a cycle point at each other.
    for nr in numbers:
        nxt = nr + 1
        if nxt in entries and entries[nr]["zyklus"] == entries[nxt]["zyklus"] != "- - -" \
                and not details[nr]["links"] and rng.random() < 0.18:
            details[nr]["links"].append((nxt, f"Fortsetzung in Band {nxt}", HEFT_SERIE))
            details[nxt]["links"].append((nr, f"Fortsetzung von Band {nr}", HEFT_SERIE))
    for nr in numbers:
        if nr > 100 and rng.random() < 0.08:
            earlier = rng.choice([n for n in range(max(1, nr - 400), nr - 20) if n in entries])
            details[nr]["links"].append((earlier, f"Vorgeschichte in Band {earlier}", HEFT_SERIE))
    return numbers, cycles, entries, details


def isbn(title_number):
    digits = f"38118{title_number:04d}"
    check = sum((10 - i) * int(d) for i, d in enumerate(digits)) % 11
    check = (11 - check) % 11
    return f"3-8118-{title_number:04d}-{'X' if check == 10 else check}"


def make_taschenbuecher(heft_numbers, heft_details):
    start = datetime.date(1964, 5, 15)
    entries, details = {}, {}
    reprinted = sorted(rng.sample(heft_numbers[:1800], 260))
    for tb in range(1, TB_COUNT + 1):
        persons = pick_persons(CAST)
        author = rng.choices(AUTHOR_ORDER, AUTHOR_WEIGHTS)[0]
        entries[tb] = entry(tb, author, unique_title(persons), "- - -")
        status = {1: stamp("2023-01-01", "2024-12-31"), 8: isbn(tb * 7 % 1000), 9: PUBLISHER,
                  10: padded(rng.choice([144, 160, 160, 160, 176, 192])), 11: "Taschenbuch",
                  13: GENRE, 14: "Deutsch"}
        date = (start + datetime.timedelta(weeks=4 * (tb - 1))).isoformat()
        details[tb] = new_details(tb, date, persons, status)
        if tb <= 130:
            for heft in reprinted[2 * (tb - 1):2 * tb]:
                details[tb]["links"].append((heft, f"Enthält den Roman aus Band {heft}", HEFT_SERIE))
                heft_details[heft]["links"].append((tb, f"Neu aufgelegt als Taschenbuch {tb}", TB_SERIE))
    return entries, details


def make_collection(heft_numbers):
    """The collector's marks: owned printing, read mark, remark, own attributes."""
    marks, personal = [], []
    for nr in heft_numbers:
        owned = rng.random() < 0.70
        read = rng.random() < (0.70 if owned else 0.20)
        remark = rng.choice(REMARKS) if rng.random() < 0.03 else ""
        if not (owned or read or remark):
            continue
        auflage = str(rng.choices([1, 2, 3], [75, 18, 7])[0]) if owned else "-"
        marks.append((nr, auflage, "Ja" if read else "Nein", remark))
        if not owned:
            continue
        status = {1: stamp("2024-01-01", "2025-06-30"), 2: padded(rng.choices([1, 2, 3], [90, 8, 2])[0]),
                  3: rng.choice(CONDITIONS), 7: storage_place(nr)}
        if rng.random() < 0.7:
            status[4] = rng.choice(SELLERS)
        if rng.random() < 0.6:
            price = rng.choice([0.5, 1, 1.5, 2, 2.5, 3]) * (4 if nr < 300 else 1)
            status[5] = padded(float(price))
            if rng.random() < 0.8:
                status[6] = padded(float(price * rng.choice([1, 1.5, 2, 3])))
        personal.append((nr, status))
    for _, status in rng.sample(personal, 8):
        status[17] = rng.choice(BORROWERS)
        status[18] = (datetime.date(2024, 1, 1) + datetime.timedelta(days=rng.randrange(500))).isoformat()
    return marks, personal


def storage_place(nr):
    if nr <= 400:
        return "Regal oben"
    if nr <= 1200:
        return f"Karton {(nr - 401) // 200 + 1}"
    if nr <= 2000:
        return "Regal unten"
    return rng.choice(["Schrank Flur", "Kiste Keller", "Nachttisch"]) if rng.random() < 0.05 else "Regal Mitte"


def main():
    folder = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "data", "valdorin")
    os.makedirs(folder, exist_ok=True)
    numbers, cycles, hefte, heft_details = make_hefte()
    tb_entries, tb_details = make_taschenbuecher(numbers, heft_details)
    marks, personal = make_collection(numbers)

    details_header = f"[{SERIES} Details]"
    write_dat(os.path.join(folder, "Heftromane.dat"), f"[{SERIES} {HEFT_KIND}]",
              [list_line(hefte[nr]) for nr in numbers])
    write_dat(os.path.join(folder, "Heftromane_Details.dat"), details_header,
              [details_line(heft_details[nr]) for nr in numbers])
    write_dat(os.path.join(folder, "Taschenbuecher.dat"), f"[{SERIES} {TB_KIND}]",
              [list_line(tb_entries[nr]) for nr in sorted(tb_entries)])
    write_dat(os.path.join(folder, "Taschenbuecher_Details.dat"), details_header,
              [details_line(tb_details[nr]) for nr in sorted(tb_details)])
    write_dat(os.path.join(folder, "Sammlung.dat"), f"[{SERIES} {HEFT_KIND}]",
              [list_line(dict(hefte[nr], auflage=auflage, gl=gl, bemerkung=remark))
               for nr, auflage, gl, remark in marks])
    write_dat(os.path.join(folder, "Sammlung_Details.dat"), details_header,
              [field(nr) + field("") * 17 + "".join(field(status.get(e, "")) for e in range(1, 20))
               for nr, status in personal])
    write_dat(os.path.join(folder, f"{SERIES}-Zyklus.dat"), f"[{SERIES} Zyklen]",
              ["".join(field(c[key]) for key in ("zyklus", "von", "bis", "zeitvon", "zeitbis", "name", "bereich"))
               for c in cycles])


if __name__ == "__main__":
    main()
