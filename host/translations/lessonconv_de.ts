<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
</context>
<context>
    <name>lessonconv</name>
    <message>
        <source>A worker process can&apos;t be started: %1</source>
        <translation>Ein Arbeitsprozess lässt sich nicht starten: %1</translation>
    </message>
    <message>
        <source>Check that there is enough memory, or give fewer --jobs</source>
        <translation>Prüfen Sie, ob genug Arbeitsspeicher frei ist, oder geben Sie weniger --jobs an</translation>
    </message>
    <message>
        <source>%1 is there already, and is kept</source>
        <translation>%1 gibt es schon und bleibt erhalten</translation>
    </message>
    <message>
        <source>The other lessons are not concerned. Give this one more time with --lesson-timeout, or try it without</source>
        <translation>Die anderen Lektionen sind davon nicht betroffen. Geben Sie dieser mit --lesson-timeout mehr Zeit, oder versuchen Sie es ohne</translation>
    </message>
    <message>
        <source>The converter broke down over this lesson</source>
        <translation>Der Konverter ist an dieser Lektion gescheitert</translation>
    </message>
    <message>
        <source>The other lessons are not concerned. Please send this one to the makers</source>
        <translation>Die anderen Lektionen sind davon nicht betroffen. Bitte schicken Sie diese an die Entwickler</translation>
    </message>
    <message>
        <source>This is no file that lessonconv has made</source>
        <translation>Diese Datei stammt nicht von lessonconv</translation>
    </message>
    <message>
        <source>Remove it</source>
        <translation>Entfernen Sie sie</translation>
    </message>
    <message>
        <source>Nothing can be written in this folder: %1</source>
        <translation>In diesen Ordner kann nichts geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Check that you may write there and that there is room</source>
        <translation>Prüfen Sie, ob Sie dort schreiben dürfen und ob genug Platz ist</translation>
    </message>
    <message>
        <source>What is done can&apos;t be noted for --resume: %1</source>
        <translation>Was erledigt ist, kann nicht für --resume festgehalten werden: %1</translation>
    </message>
    <message>
        <source>Check that there is room</source>
        <translation>Prüfen Sie, ob genug Platz ist</translation>
    </message>
    <message>
        <source>The results would lie among the lessons</source>
        <translation>Die Ergebnisse würden zwischen den Lektionen liegen</translation>
    </message>
    <message>
        <source>Give another folder with --out-dir</source>
        <translation>Geben Sie mit --out-dir einen anderen Ordner an</translation>
    </message>
    <message>
        <source>The folder can&apos;t be searched: %1</source>
        <translation>Der Ordner kann nicht durchsucht werden: %1</translation>
    </message>
    <message>
        <source>Check that you may read it</source>
        <translation>Prüfen Sie, ob Sie ihn lesen dürfen</translation>
    </message>
    <message>
        <source>This name is no UTF-8, so that it can&apos;t be looked into</source>
        <translation>Dieser Name ist kein UTF-8, deshalb lässt sich nicht hineinsehen</translation>
    </message>
    <message>
        <source>Give it another name</source>
        <translation>Geben Sie einen anderen Namen</translation>
    </message>
    <message>
        <source>This is a link to nothing</source>
        <translation>Diese Verknüpfung führt ins Leere</translation>
    </message>
    <message>
        <source>Remove it, or put the lesson in its place</source>
        <translation>Entfernen Sie sie, oder legen Sie die Lektion an ihre Stelle</translation>
    </message>
    <message>
        <source>This lesson and %1 would both be written as %2</source>
        <translation>Diese Lektion und %1 würden beide als %2 geschrieben</translation>
    </message>
    <message>
        <source>Rename one of them, or convert them into different folders</source>
        <translation>Benennen Sie eine davon um, oder konvertieren Sie sie in verschiedene Ordner</translation>
    </message>
    <message>
        <source>The result would take the place of the lesson itself</source>
        <translation>Das Ergebnis würde die Lektion selbst ersetzen</translation>
    </message>
    <message>
        <source>There are no lessons in it</source>
        <translation>Darin sind keine Lektionen</translation>
    </message>
    <message>
        <source>See lessonconv formats for the names that lessons have</source>
        <translation>lessonconv formats zeigt, wie Lektionen heißen</translation>
    </message>
    <message>
        <source>the report</source>
        <translation>der Bericht</translation>
    </message>
    <message>
        <source>--report FILE</source>
        <translation>--report DATEI</translation>
    </message>
    <message numerus="yes">
        <source>%n converted</source>
        <translation>
            <numerusform>%n konvertiert</numerusform>
            <numerusform>%n konvertiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not converted</source>
        <translation>
            <numerusform>%n nicht konvertiert</numerusform>
            <numerusform>%n nicht konvertiert</numerusform>
        </translation>
    </message>
    <message>
        <source>The conversion took longer than %1 s</source>
        <translation>Die Konvertierung hat länger als %1 s gedauert</translation>
    </message>
    <message numerus="yes">
        <source>%n drawn</source>
        <translation>
            <numerusform>%n gezeichnet</numerusform>
            <numerusform>%n gezeichnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not drawn</source>
        <translation>
            <numerusform>%n nicht gezeichnet</numerusform>
            <numerusform>%n nicht gezeichnet</numerusform>
        </translation>
    </message>
    <message>
        <source>The drawing took longer than %1 s</source>
        <translation>Das Zeichnen hat länger als %1 s gedauert</translation>
    </message>
    <message numerus="yes">
        <source>%n done before</source>
        <translation>
            <numerusform>%n schon erledigt</numerusform>
            <numerusform>%n schon erledigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not begun</source>
        <translation>
            <numerusform>%n nicht begonnen</numerusform>
            <numerusform>%n nicht begonnen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lessons: %1.</source>
        <translation>
            <numerusform>%n Lektion: %1.</numerusform>
            <numerusform>%n Lektionen: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lessons lost something, %1 in all; %2 names each.</source>
        <translation>
            <numerusform>%n Lektion hat etwas verloren, insgesamt %1; alles Weitere nennt %2.</numerusform>
            <numerusform>%n Lektionen haben etwas verloren, insgesamt %1; alles Weitere nennt %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values, items or files</source>
        <translation>
            <numerusform>%n Wert, Element oder Datei</numerusform>
            <numerusform>%n Werte, Elemente oder Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are shown by name; %1 names each.</source>
        <translation>
            <numerusform>%n Element ist nur mit seinem Namen gezeigt; alles Weitere nennt %1.</numerusform>
            <numerusform>%n Elemente sind nur mit ihrem Namen gezeigt; alles Weitere nennt %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n notes on fonts that aren&apos;t here, such as: %1.</source>
        <translation>
            <numerusform>%n Hinweis auf eine fehlende Schriftart, nämlich: %1.</numerusform>
            <numerusform>%n Hinweise auf fehlende Schriftarten, zum Beispiel: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are called like lessons and are none, such as %1.</source>
        <translation>
            <numerusform>%n Datei heißt wie eine Lektion und ist keine: %1.</numerusform>
            <numerusform>%n Dateien heißen wie Lektionen und sind keine, zum Beispiel %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The same command with --resume does the rest.</source>
        <translation>Unterbrochen. Derselbe Befehl mit --resume erledigt den Rest.</translation>
    </message>
    <message>
        <source>There can&apos;t be a folder for pages here: %1</source>
        <translation>Hier kann es keinen Ordner für Seiten geben: %1</translation>
    </message>
    <message>
        <source>what is there isn&apos;t yours alone</source>
        <translation>was dort liegt, gehört nicht Ihnen allein</translation>
    </message>
    <message>
        <source>Draw the lesson with lessonconv render LESSON PAGE.html and open the page</source>
        <translation>Zeichnen Sie die Lektion mit lessonconv render LEKTION SEITE.html, und öffnen Sie die Seite</translation>
    </message>
    <message>
        <source>The page is drawn, but no browser could be opened</source>
        <translation>Die Seite ist gezeichnet, aber es ließ sich kein Browser öffnen</translation>
    </message>
    <message>
        <source>Open the page yourself</source>
        <translation>Öffnen Sie die Seite selbst</translation>
    </message>
    <message>
        <source>Converts lessons of interactive whiteboards and tells what is in them.</source>
        <translation>Konvertiert Lektionen für interaktive Tafeln und zeigt, was darin ist.</translation>
    </message>
    <message>
        <source>The lesson that is read is never changed. What the other format can&apos;t hold is
named, by slide and item. Exit code: 0 done, 1 done with losses and --strict,
2 not done.</source>
        <translation>Die gelesene Lektion wird nie verändert. Was das andere Format nicht aufnehmen
kann, wird mit Folie und Element genannt. Rückgabewert: 0 erledigt, 1 erledigt
mit Verlusten und --strict, 2 nicht erledigt.</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Beispiele:</translation>
    </message>
    <message>
        <source>The report would stand where %1 does</source>
        <translation>Der Bericht würde dort stehen, wo %1 steht</translation>
    </message>
    <message>
        <source>converts a lesson; the names say the formats</source>
        <translation>konvertiert eine Lektion; die Namen sagen die Formate</translation>
    </message>
    <message>
        <source>converts many lessons, or all in a folder</source>
        <translation>konvertiert viele Lektionen oder alle in einem Ordner</translation>
    </message>
    <message>
        <source>draws the slides as .html, .pdf, .svg, .png, .jpg or .webp</source>
        <translation>zeichnet die Folien als .html, .pdf, .svg, .png, .jpg oder .webp</translation>
    </message>
    <message>
        <source>draws many lessons, or all in a folder</source>
        <translation>zeichnet viele Lektionen oder alle in einem Ordner</translation>
    </message>
    <message>
        <source>two lessons side by side, and what B lacks</source>
        <translation>zwei Lektionen nebeneinander und was B fehlt</translation>
    </message>
    <message>
        <source>opens a lesson in the browser</source>
        <translation>öffnet eine Lektion im Browser</translation>
    </message>
    <message>
        <source>page size, slides, items, missing files</source>
        <translation>Seitengröße, Folien, Elemente, fehlende Dateien</translation>
    </message>
    <message>
        <source>the formats and their file names</source>
        <translation>die Formate und ihre Dateinamen</translation>
    </message>
    <message>
        <source>See lessonconv --help</source>
        <translation>Siehe lessonconv --help</translation>
    </message>
    <message>
        <source>plug-in %1, %2</source>
        <translation>Plug-in %1, %2</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;</source>
        <translation>Es gibt keinen Befehl „%1“</translation>
    </message>
    <message>
        <source>Say %1; lessonconv --help tells more</source>
        <translation>Sagen Sie %1; mehr dazu mit lessonconv --help</translation>
    </message>
    <message>
        <source>%1 takes no more files than %2</source>
        <translation>%1 nimmt nicht mehr als %2 Dateien</translation>
    </message>
    <message>
        <source>%1 needs a lesson</source>
        <translation>%1 braucht eine Lektion</translation>
    </message>
    <message>
        <source>%1 needs a name for the result as well</source>
        <translation>%1 braucht auch einen Namen für das Ergebnis</translation>
    </message>
    <message>
        <source>The call is: %1</source>
        <translation>Der Aufruf lautet: %1</translation>
    </message>
    <message>
        <source>This call of %1 makes no use of --%2</source>
        <translation>Bei diesem Aufruf von %1 hat --%2 keine Wirkung</translation>
    </message>
    <message>
        <source>Leave it out; it is for %1</source>
        <translation>Lassen Sie es weg; es ist für %1</translation>
    </message>
    <message>
        <source>This is the name of a picture or a page, which convert doesn&apos;t make</source>
        <translation>So heißt ein Bild oder eine Seite, was convert nicht erzeugt</translation>
    </message>
    <message>
        <source>Say lessonconv render instead of lessonconv convert</source>
        <translation>Sagen Sie lessonconv render statt lessonconv convert</translation>
    </message>
    <message>
        <source>It isn&apos;t said what is to come out</source>
        <translation>Es ist nicht gesagt, was herauskommen soll</translation>
    </message>
    <message>
        <source>Say the format, such as --to %1</source>
        <translation>Nennen Sie das Format, zum Beispiel --to %1</translation>
    </message>
    <message>
        <source>Standard output can&apos;t take the result and what --json tells of it</source>
        <translation>Die Standardausgabe kann nicht zugleich das Ergebnis und das aufnehmen, was --json darüber sagt</translation>
    </message>
    <message>
        <source>Leave out --json, or give the result a name</source>
        <translation>Lassen Sie --json weg, oder geben Sie dem Ergebnis einen Namen</translation>
    </message>
    <message>
        <source>read, written</source>
        <translation>lesen, schreiben</translation>
    </message>
    <message>
        <source>read</source>
        <translation>lesen</translation>
    </message>
    <message>
        <source>written</source>
        <translation>schreiben</translation>
    </message>
    <message>
        <source>It isn&apos;t said where the result goes</source>
        <translation>Es ist nicht gesagt, wohin das Ergebnis soll</translation>
    </message>
    <message>
        <source>Give a lesson and the name of the result, or many lessons with --to FORMAT --out-dir FOLDER</source>
        <translation>Nennen Sie eine Lektion und den Namen des Ergebnisses oder viele Lektionen mit --to FORMAT --out-dir ORDNER</translation>
    </message>
    <message>
        <source>It isn&apos;t said what the lessons are to become</source>
        <translation>Es ist nicht gesagt, was aus den Lektionen werden soll</translation>
    </message>
    <message>
        <source>Say the format, such as --to iwb</source>
        <translation>Nennen Sie das Format, zum Beispiel --to iwb</translation>
    </message>
    <message>
        <source>It isn&apos;t said what the lessons are to be drawn as</source>
        <translation>Es ist nicht gesagt, als was die Lektionen gezeichnet werden sollen</translation>
    </message>
    <message>
        <source>Say it, such as --to pdf</source>
        <translation>Sagen Sie es, zum Beispiel --to pdf</translation>
    </message>
    <message>
        <source>The folder for the results can&apos;t be made: %1</source>
        <translation>Der Ordner für die Ergebnisse kann nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>Check the path and that you may write there</source>
        <translation>Prüfen Sie den Pfad und ob Sie dort schreiben dürfen</translation>
    </message>
    <message>
        <source>%1 of %2 lessons</source>
        <translation>%1 von %2 Lektionen</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>Slides drawn: %1.</source>
        <translation>Gezeichnete Folien: %1.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Items shown by their name: %1.</source>
        <translation>Nur mit ihrem Namen gezeigte Elemente: %1.</translation>
    </message>
    <message>
        <source>The format of the input, where its name doesn&apos;t tell.</source>
        <translation>Das Format der Eingabe, wo ihr Name es nicht sagt.</translation>
    </message>
    <message>
        <source>The format of the output, where its name doesn&apos;t tell.</source>
        <translation>Das Format der Ausgabe, wo ihr Name es nicht sagt.</translation>
    </message>
    <message>
        <source>Many: the folder for the results.</source>
        <translation>Viele: der Ordner für die Ergebnisse.</translation>
    </message>
    <message>
        <source>Many: this many at the same time; as many as the machine has cores otherwise.</source>
        <translation>Viele: so viele zur gleichen Zeit; sonst so viele, wie der Rechner Kerne hat.</translation>
    </message>
    <message>
        <source>Many: give up a lesson that takes longer.</source>
        <translation>Viele: eine Lektion aufgeben, die länger dauert.</translation>
    </message>
    <message>
        <source>Many: leave out what is done and unchanged.</source>
        <translation>Viele: auslassen, was erledigt und unverändert ist.</translation>
    </message>
    <message>
        <source>Write everything that was lost or kept aside, or how it was drawn, into this file, as JSON.</source>
        <translation>Alles, was verloren ging oder beiseitegelegt wurde, oder wie gezeichnet wurde, als JSON in diese Datei schreiben.</translation>
    </message>
    <message>
        <source>Treat losses as a failure: exit code 1.</source>
        <translation>Verluste als Fehler behandeln: Rückgabewert 1.</translation>
    </message>
    <message>
        <source>Don&apos;t read back what was written. Faster, but losses stay unnoticed.</source>
        <translation>Nicht zurücklesen, was geschrieben wurde. Schneller, aber Verluste bleiben unbemerkt.</translation>
    </message>
    <message>
        <source>Replace nothing: what is there already makes the run fail, or is left out of many.</source>
        <translation>Nichts ersetzen: Was schon da ist, lässt den Lauf scheitern oder wird bei vielen ausgelassen.</translation>
    </message>
    <message>
        <source>What becomes of handwriting in IWB: polyline (the default) or drop.</source>
        <translation>Was in IWB aus Handschrift wird: polyline (üblich) oder drop.</translation>
    </message>
    <message>
        <source>Leave out of IWB what other boards pass over: the lesson itself, from which all of it comes back.</source>
        <translation>Aus IWB weglassen, was andere Tafeln übergehen: die Lektion selbst, aus der alles wiederkommt.</translation>
    </message>
    <message>
        <source>What becomes of items that IWB has no form for: picture (the default) or drop.</source>
        <translation>Was aus Elementen wird, für die IWB keine Form hat: picture (üblich) oder drop.</translation>
    </message>
    <message>
        <source>With render: only these slides, such as 2-5 or 1,4.</source>
        <translation>Mit render: nur diese Folien, zum Beispiel 2-5 oder 1,4.</translation>
    </message>
    <message>
        <source>With render: how wide pictures and pages are; their height follows.</source>
        <translation>Mit render: wie breit Bilder und Seiten sind; ihre Höhe folgt daraus.</translation>
    </message>
    <message>
        <source>With render: how high pictures and pages are; their width follows.</source>
        <translation>Mit render: wie hoch Bilder und Seiten sind; ihre Breite folgt daraus.</translation>
    </message>
    <message>
        <source>With render: as large as fits into so many pixels.</source>
        <translation>Mit render: so groß, wie es in so viele Pixel passt.</translation>
    </message>
    <message>
        <source>With --size: just this size, with borders where a slide is narrower or lower.</source>
        <translation>Mit --size: genau diese Größe, mit Rändern, wo eine Folie schmaler oder niedriger ist.</translation>
    </message>
    <message>
        <source>With render: so many times the size of the slide.</source>
        <translation>Mit render: so viele Male so groß wie die Folie.</translation>
    </message>
    <message>
        <source>With render: dots per inch of pictures; 96 is the size of the slide.</source>
        <translation>Mit render: Punkte pro Zoll der Bilder; 96 ist die Größe der Folie.</translation>
    </message>
    <message>
        <source>With render: this colour in place of the slides&apos; own, such as &quot;#ffffe0&quot;, or transparent.</source>
        <translation>Mit render: diese Farbe statt der eigenen der Folien, zum Beispiel &quot;#ffffe0&quot; oder transparent.</translation>
    </message>
    <message>
        <source>With render: sounds, films and other files go into the page, not into a folder beside it.</source>
        <translation>Mit render: Töne, Filme und andere Dateien kommen in die Seite, nicht in einen Ordner daneben.</translation>
    </message>
    <message>
        <source>With render: two lessons side by side, with the values that the second lacks.</source>
        <translation>Mit render: zwei Lektionen nebeneinander, mit den Werten, die der zweiten fehlen.</translation>
    </message>
    <message>
        <source>Print JSON, also for a failure.</source>
        <translation>JSON ausgeben, auch bei einem Fehler.</translation>
    </message>
    <message>
        <source>No progress bar, no list of losses, no summary.</source>
        <translation>Kein Fortschrittsbalken, keine Liste der Verluste, keine Zusammenfassung.</translation>
    </message>
    <message>
        <source>Print what the libraries log.</source>
        <translation>Ausgeben, was die Bibliotheken melden.</translation>
    </message>
    <message>
        <source>The plug-in&apos;s file, where it is in an unusual place.</source>
        <translation>Die Datei des Plug-ins, wo es an einem ungewöhnlichen Ort liegt.</translation>
    </message>
    <message>
        <source>the lessons</source>
        <translation>die Lektionen</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Versionsangaben anzeigen.</translation>
    </message>
    <message>
        <source>Print this text.</source>
        <translation>Diesen Text ausgeben.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option „%1“.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unbekannte Optionen: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Nach „%1“ fehlt ein Wert.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Unerwarteter Wert nach „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of jobs</source>
        <translation>„%1“ ist keine Anzahl von Arbeitsprozessen</translation>
    </message>
    <message>
        <source>Give a number from 1 to %1, such as --jobs 4</source>
        <translation>Geben Sie eine Zahl von 1 bis %1 an, zum Beispiel --jobs 4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of seconds</source>
        <translation>„%1“ ist keine Anzahl von Sekunden</translation>
    </message>
    <message>
        <source>Give a number from 1 to %1, such as --lesson-timeout 600</source>
        <translation>Geben Sie eine Zahl von 1 bis %1 an, zum Beispiel --lesson-timeout 600</translation>
    </message>
    <message>
        <source>--%1 knows no &quot;%2&quot;</source>
        <translation>--%1 kennt „%2“ nicht</translation>
    </message>
    <message>
        <source>Say --%1 %2</source>
        <translation>Sagen Sie --%1 %2</translation>
    </message>
    <message>
        <source>There is no completion for &quot;%1&quot;</source>
        <translation>Für „%1“ gibt es keine Vervollständigung</translation>
    </message>
    <message>
        <source>Say bash, zsh or fish</source>
        <translation>Sagen Sie bash, zsh oder fish</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>not given</source>
        <translation>nicht angegeben</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Slides</source>
        <translation>Folien</translation>
    </message>
    <message>
        <source>Mind map nodes</source>
        <translation>Mindmap-Knoten</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Questions</source>
        <translation>Fragen</translation>
    </message>
    <message>
        <source>Triggers</source>
        <translation>Auslöser</translation>
    </message>
    <message>
        <source>Animated items</source>
        <translation>Animierte</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Aktivitäten</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Missing files</source>
        <translation>Fehlende</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Unknown items</source>
        <translation>Unbekannte</translation>
    </message>
    <message>
        <source>The plug-in %1 was not found</source>
        <translation>Das Plug-in %1 wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Build the project, or say where the plug-in is with --plugin</source>
        <translation>Bauen Sie das Projekt, oder sagen Sie mit --plugin, wo das Plug-in ist</translation>
    </message>
    <message>
        <source>There is no such plug-in</source>
        <translation>Dieses Plug-in gibt es nicht</translation>
    </message>
    <message>
        <source>Check the path given to --plugin</source>
        <translation>Prüfen Sie den Pfad bei --plugin</translation>
    </message>
    <message>
        <source>This plug-in converts no lessons</source>
        <translation>Dieses Plug-in konvertiert keine Lektionen</translation>
    </message>
    <message>
        <source>The plug-in can&apos;t be loaded: %1</source>
        <translation>Das Plug-in kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>Build the plug-in again with the same Qt as the command</source>
        <translation>Bauen Sie das Plug-in neu, mit demselben Qt wie den Befehl</translation>
    </message>
    <message>
        <source>%1 of %2 slides</source>
        <translation>%1 von %2 Folien</translation>
    </message>
    <message>
        <source>It can&apos;t be read: %1</source>
        <translation>Das kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Check what is sent there</source>
        <translation>Prüfen Sie, was dorthin geschickt wird</translation>
    </message>
    <message>
        <source>More than 2 GiB came, which no lesson has</source>
        <translation>Es kamen mehr als 2 GiB, und so groß ist keine Lektion</translation>
    </message>
    <message>
        <source>Nothing came</source>
        <translation>Es kam nichts</translation>
    </message>
    <message>
        <source>This is no drawing in svg</source>
        <translation>Das ist keine Zeichnung in svg</translation>
    </message>
    <message>
        <source>Check the file</source>
        <translation>Prüfen Sie die Datei</translation>
    </message>
    <message>
        <source>The file can&apos;t be read: %1</source>
        <translation>Die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Check that it exists and that you may read it</source>
        <translation>Prüfen Sie, ob es sie gibt und ob Sie sie lesen dürfen</translation>
    </message>
    <message>
        <source>This is a folder, not a file</source>
        <translation>Das ist ein Ordner und keine Datei</translation>
    </message>
    <message>
        <source>This is a pipe, not a file</source>
        <translation>Das ist eine Pipe und keine Datei</translation>
    </message>
    <message>
        <source>This is a device, not a file</source>
        <translation>Das ist ein Gerät und keine Datei</translation>
    </message>
    <message>
        <source>Give a file on a disk</source>
        <translation>Nennen Sie eine Datei auf einem Datenträger</translation>
    </message>
    <message>
        <source>The file is too large</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message>
        <source>The file was cut short while it was read</source>
        <translation>Die Datei wurde beim Lesen gekürzt</translation>
    </message>
    <message>
        <source>Convert it again when no other program writes to it</source>
        <translation>Konvertieren Sie sie noch einmal, wenn kein anderes Programm hineinschreibt</translation>
    </message>
    <message>
        <source>Give another name, outside of what is read</source>
        <translation>Geben Sie einen anderen Namen an, außerhalb dessen, was gelesen wird</translation>
    </message>
    <message>
        <source>It would take the place of %1, which is read</source>
        <translation>Das würde %1 ersetzen, das gelesen wird</translation>
    </message>
    <message>
        <source>%1, which is read, lies in it</source>
        <translation>%1, das gelesen wird, liegt darin</translation>
    </message>
    <message>
        <source>It lies in %1, which is read</source>
        <translation>Das liegt in %1, das gelesen wird</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Vorgang nicht erlaubt</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Fehler beim Lesen oder Schreiben</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>Ungültige Dateinummer</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Zu wenig Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Gerät oder Ressource belegt</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Die Datei gibt es schon</translation>
    </message>
    <message>
        <source>Invalid cross-device link</source>
        <translation>Verknüpfung zwischen verschiedenen Datenträgern</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Das ist kein Ordner</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Das ist ein Ordner</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Ungültiges Argument</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>Zu viele offene Dateien im System</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>Die Programmdatei wird gerade benutzt</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Auf dem Datenträger ist kein Platz mehr</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Too many links</source>
        <translation>Zu viele Verknüpfungen</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Die Verbindung zum Empfänger ist abgebrochen</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Der Dateiname ist zu lang</translation>
    </message>
    <message>
        <source>Directory not empty</source>
        <translation>Der Ordner ist nicht leer</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Zu viele Verknüpfungen hintereinander</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Der zugeteilte Speicherplatz ist aufgebraucht</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Die Datei ist auf dem Server nicht mehr da</translation>
    </message>
    <message>
        <source>Standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Something unexpected happened: %1</source>
        <translation>Etwas Unerwartetes ist geschehen: %1</translation>
    </message>
    <message>
        <source>Its files can&apos;t be unpacked: %1</source>
        <translation>Die Dateien darin können nicht entpackt werden: %1</translation>
    </message>
    <message>
        <source>It can&apos;t be written: %1</source>
        <translation>Das kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Make room in the folder for temporary files</source>
        <translation>Schaffen Sie Platz im Ordner für temporäre Dateien</translation>
    </message>
    <message>
        <source>Check that there is room and that you may write there</source>
        <translation>Prüfen Sie, ob genug Platz ist und ob Sie dort schreiben dürfen</translation>
    </message>
    <message>
        <source>There is a file or folder of this name already</source>
        <translation>Eine Datei oder einen Ordner mit diesem Namen gibt es schon</translation>
    </message>
    <message>
        <source>Give another name, or leave out --no-clobber</source>
        <translation>Geben Sie einen anderen Namen an, oder lassen Sie --no-clobber weg</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>it leads out of the package</source>
        <translation>führt aus dem Paket hinaus</translation>
    </message>
    <message>
        <source>it contains a separator of folders</source>
        <translation>enthält ein Trennzeichen für Ordner</translation>
    </message>
    <message>
        <source>it contains a colon</source>
        <translation>enthält einen Doppelpunkt</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>enthält Steuerzeichen</translation>
    </message>
    <message>
        <source>it is the name of a device</source>
        <translation>ist der Name eines Geräts</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>ist zu lang</translation>
    </message>
    <message>
        <source>it is an absolute path</source>
        <translation>ist ein absoluter Pfad</translation>
    </message>
    <message>
        <source>it has an empty part</source>
        <translation>hat einen leeren Teil</translation>
    </message>
    <message>
        <source>This is a link, which a package must not hold</source>
        <translation>Das ist eine Verknüpfung, die ein Paket nicht enthalten darf</translation>
    </message>
    <message>
        <source>Put the file itself in its place</source>
        <translation>Legen Sie die Datei selbst an ihre Stelle</translation>
    </message>
    <message>
        <source>The name of this file is no UTF-8, so that no lesson can call it</source>
        <translation>Der Name dieser Datei ist kein UTF-8, deshalb kann keine Lektion sie nennen</translation>
    </message>
    <message>
        <source>This is a pipe or a device, which a package must not hold</source>
        <translation>Das ist eine Pipe oder ein Gerät, was ein Paket nicht enthalten darf</translation>
    </message>
    <message>
        <source>Remove it from the folder</source>
        <translation>Entfernen Sie es aus dem Ordner</translation>
    </message>
    <message>
        <source>There is no such file or folder</source>
        <translation>Diese Datei oder diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>Check the path</source>
        <translation>Prüfen Sie den Pfad</translation>
    </message>
    <message>
        <source>It can&apos;t be read</source>
        <translation>Das kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; can&apos;t be used: %2</source>
        <translation>Der Pfad „%1“ kann nicht benutzt werden: %2</translation>
    </message>
    <message>
        <source>Name a file inside the package</source>
        <translation>Nennen Sie eine Datei im Paket</translation>
    </message>
    <message>
        <source>The package has no such file</source>
        <translation>Im Paket gibt es diese Datei nicht</translation>
    </message>
    <message>
        <source>Check that it is complete</source>
        <translation>Prüfen Sie, ob es vollständig ist</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read: %1</source>
        <translation>Der Ordner kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The folder to write into doesn&apos;t exist</source>
        <translation>Den Ordner, in den geschrieben werden soll, gibt es nicht</translation>
    </message>
    <message>
        <source>Make the folder first, or check the path</source>
        <translation>Legen Sie den Ordner erst an, oder prüfen Sie den Pfad</translation>
    </message>
    <message>
        <source>The lesson has more than the %1 files that an archive can hold</source>
        <translation>Die Lektion hat mehr als die %1 Dateien, die ein Archiv aufnehmen kann</translation>
    </message>
    <message>
        <source>Write it as a folder, or divide it</source>
        <translation>Schreiben Sie sie als Ordner, oder teilen Sie sie</translation>
    </message>
    <message>
        <source>The lesson has more than the 2 GiB that are read from an archive</source>
        <translation>Die Lektion hat mehr als die 2 GiB, die aus einem Archiv gelesen werden</translation>
    </message>
    <message>
        <source>The package can&apos;t hold a file &quot;%1&quot;: %2</source>
        <translation>Das Paket kann keine Datei „%1“ enthalten: %2</translation>
    </message>
    <message>
        <source>The lesson has two files &quot;%1&quot;</source>
        <translation>Die Lektion hat zwei Dateien „%1“</translation>
    </message>
    <message>
        <source>Give one of them another name</source>
        <translation>Geben Sie einer davon einen anderen Namen</translation>
    </message>
    <message>
        <source>There is a folder of this name already</source>
        <translation>Einen Ordner mit diesem Namen gibt es schon</translation>
    </message>
    <message>
        <source>There is a device or a pipe of this name</source>
        <translation>Ein Gerät oder eine Pipe mit diesem Namen gibt es schon</translation>
    </message>
    <message>
        <source>Give another name, or remove it</source>
        <translation>Geben Sie einen anderen Namen an, oder entfernen Sie es</translation>
    </message>
    <message>
        <source>There is a file of this name already</source>
        <translation>Eine Datei mit diesem Namen gibt es schon</translation>
    </message>
    <message>
        <source>Give another name, or remove the file</source>
        <translation>Geben Sie einen anderen Namen an, oder entfernen Sie die Datei</translation>
    </message>
    <message>
        <source>There is a folder of this name already, and it is no lesson</source>
        <translation>Einen Ordner mit diesem Namen gibt es schon, und er ist keine Lektion</translation>
    </message>
    <message>
        <source>Give another name, or remove the folder</source>
        <translation>Geben Sie einen anderen Namen an, oder entfernen Sie den Ordner</translation>
    </message>
    <message>
        <source>The lesson&apos;s files pack so tightly that nobody would take it for a lesson</source>
        <translation>Die Dateien der Lektion lassen sich so dicht packen, dass niemand sie für eine Lektion halten würde</translation>
    </message>
    <message>
        <source>Write it as a folder</source>
        <translation>Schreiben Sie sie als Ordner</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>it is no picture that can be read</source>
        <translation>ist kein lesbares Bild</translation>
    </message>
    <message>
        <source>it is a damaged picture</source>
        <translation>ist ein beschädigtes Bild</translation>
    </message>
    <message>
        <source>it has more pixels than any screen</source>
        <translation>hat mehr Pixel als jeder Bildschirm</translation>
    </message>
    <message>
        <source>This is no drawing in svg of at most %1 MiB</source>
        <translation>Das ist keine Zeichnung in svg von höchstens %1 MiB</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>No temporary folder can be made: %1</source>
        <translation>Es kann kein temporärer Ordner angelegt werden: %1</translation>
    </message>
    <message>
        <source>This is not well-formed XML: %1 (column %2)</source>
        <translation>Das ist kein wohlgeformtes XML: %1 (Spalte %2)</translation>
    </message>
    <message>
        <source>Check that the file is complete</source>
        <translation>Prüfen Sie, ob die Datei vollständig ist</translation>
    </message>
    <message>
        <source>Check that this is a lesson</source>
        <translation>Prüfen Sie, ob das eine Lektion ist</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB</source>
        <translation>Die Datei ist größer als %1 MiB</translation>
    </message>
    <message>
        <source>An element has more than %1 attributes</source>
        <translation>Ein Element hat mehr als %1 Attribute</translation>
    </message>
    <message>
        <source>The document has a document type declaration, which lessons don&apos;t use</source>
        <translation>Das Dokument hat eine Dokumenttyp-Deklaration, die Lektionen nicht verwenden</translation>
    </message>
    <message>
        <source>Remove the &lt;!DOCTYPE ...&gt; part</source>
        <translation>Entfernen Sie den Teil &lt;!DOCTYPE ...&gt;</translation>
    </message>
    <message>
        <source>This is not well-formed XML: it isn&apos;t in the encoding that it says it is in</source>
        <translation>Das ist kein wohlgeformtes XML: Es steht nicht in der Kodierung, die es angibt</translation>
    </message>
    <message>
        <source>Save it in UTF-8</source>
        <translation>Speichern Sie es in UTF-8</translation>
    </message>
    <message>
        <source>The file can&apos;t be read to its end</source>
        <translation>Die Datei kann nicht bis zum Ende gelesen werden</translation>
    </message>
    <message>
        <source>Check the disk that it is on</source>
        <translation>Prüfen Sie den Datenträger, auf dem sie liegt</translation>
    </message>
    <message>
        <source>The document is too large: what is in it would take more than %1 MiB of memory</source>
        <translation>Das Dokument ist zu groß: Sein Inhalt würde mehr als %1 MiB Arbeitsspeicher brauchen</translation>
    </message>
    <message>
        <source>Divide it into smaller ones, or check that this is a lesson</source>
        <translation>Teilen Sie es in kleinere, oder prüfen Sie, ob das eine Lektion ist</translation>
    </message>
    <message>
        <source>Elements are nested deeper than %1 levels</source>
        <translation>Elemente sind tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>Take some groups apart, or check that this is a lesson</source>
        <translation>Lösen Sie einige Gruppen auf, oder prüfen Sie, ob das eine Lektion ist</translation>
    </message>
    <message>
        <source>It would be larger than the %1 MiB that are read from one file of XML</source>
        <translation>Es wäre größer als die %1 MiB, die aus einer XML-Datei gelesen werden</translation>
    </message>
    <message>
        <source>Divide the slide or the lesson</source>
        <translation>Teilen Sie die Folie oder die Lektion</translation>
    </message>
    <message>
        <source>Nothing was unpacked. Ask for a package from a source you trust</source>
        <translation>Es wurde nichts entpackt. Bitten Sie eine Quelle, der Sie vertrauen, um ein Paket</translation>
    </message>
    <message>
        <source>This is no zip archive, or a part of it is missing</source>
        <translation>Das ist kein Zip-Archiv, oder ein Teil davon fehlt</translation>
    </message>
    <message>
        <source>Copy or download the file again</source>
        <translation>Kopieren oder laden Sie die Datei noch einmal</translation>
    </message>
    <message>
        <source>This is one of several parts of an archive</source>
        <translation>Das ist einer von mehreren Teilen eines Archivs</translation>
    </message>
    <message>
        <source>Put the parts together, or unpack them and give the folder</source>
        <translation>Fügen Sie die Teile zusammen, oder entpacken Sie sie und nennen Sie den Ordner</translation>
    </message>
    <message>
        <source>The archive has more than %1 entries</source>
        <translation>Das Archiv hat mehr als %1 Einträge</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; can&apos;t be unpacked: %2</source>
        <translation>Der Eintrag „%1“ kann nicht entpackt werden: %2</translation>
    </message>
    <message>
        <source>The name of the entry &quot;%1&quot; is no UTF-8</source>
        <translation>Der Name des Eintrags „%1“ ist kein UTF-8</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is a link or a device</source>
        <translation>Der Eintrag „%1“ ist eine Verknüpfung oder ein Gerät</translation>
    </message>
    <message>
        <source>The archive is protected by a password</source>
        <translation>Das Archiv ist mit einem Passwort geschützt</translation>
    </message>
    <message>
        <source>Unpack it first and give the folder</source>
        <translation>Entpacken Sie es erst, und nennen Sie den Ordner</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is packed in a way that lessons aren&apos;t</source>
        <translation>Der Eintrag „%1“ ist auf eine Weise gepackt, die es in Lektionen nicht gibt</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is packed more tightly than can be</source>
        <translation>Der Eintrag „%1“ ist dichter gepackt, als es möglich ist</translation>
    </message>
    <message>
        <source>The archive names &quot;%1&quot; twice</source>
        <translation>Das Archiv nennt „%1“ zweimal</translation>
    </message>
    <message>
        <source>The archive unpacks to more than 2 GiB</source>
        <translation>Das Archiv ergibt entpackt mehr als 2 GiB</translation>
    </message>
    <message>
        <source>The archive is packed more tightly than any lesson</source>
        <translation>Das Archiv ist dichter gepackt als jede Lektion</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; can&apos;t be unpacked</source>
        <translation>Der Eintrag „%1“ kann nicht entpackt werden</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; is damaged</source>
        <translation>Der Eintrag „%1“ ist beschädigt</translation>
    </message>
    <message>
        <source>the backslashes in the archive&apos;s names were taken for slashes</source>
        <translation>umgekehrte Schrägstriche in den Namen des Archivs wurden als Schrägstriche gelesen</translation>
    </message>
    <message>
        <source>The archive can&apos;t be written: %1</source>
        <translation>Das Archiv kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The format &quot;%1&quot; can&apos;t be written</source>
        <translation>Das Format „%1“ kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>See lessonconv formats</source>
        <translation>Siehe lessonconv formats</translation>
    </message>
    <message>
        <source>The format &quot;%1&quot; can&apos;t be read</source>
        <translation>Das Format „%1“ kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>interactive whiteboard package: a folder with content.xml, or the same zipped as .iwb</source>
        <translation>Paket für interaktive Tafeln: ein Ordner mit content.xml oder dasselbe gezippt als .iwb</translation>
    </message>
    <message>
        <source>The resource &quot;%1&quot; can&apos;t be used: %2</source>
        <translation>Die Ressource „%1“ kann nicht benutzt werden: %2</translation>
    </message>
    <message>
        <source>The resource &quot;%1&quot; is there twice</source>
        <translation>Die Ressource „%1“ kommt zweimal vor</translation>
    </message>
    <message>
        <source>Slide %1 is no object with a list of items</source>
        <translation>Folie %1 ist kein Objekt mit einer Liste von Elementen</translation>
    </message>
    <message>
        <source>An item of slide %1 is no object</source>
        <translation>Ein Element von Folie %1 ist kein Objekt</translation>
    </message>
    <message>
        <source>The lesson has no file &quot;%1&quot;</source>
        <translation>Die Lektion hat keine Datei „%1“</translation>
    </message>
    <message>
        <source>The resource &quot;%1&quot; is no base64 text</source>
        <translation>Die Ressource „%1“ ist kein base64-Text</translation>
    </message>
    <message>
        <source>The lesson has more than the %1 slides or files that are read from JSON</source>
        <translation>Die Lektion hat mehr als die %1 Folien oder Dateien, die aus JSON gelesen werden</translation>
    </message>
    <message>
        <source>The lesson can&apos;t hold a file &quot;%1&quot;: %2</source>
        <translation>Die Lektion kann keine Datei „%1“ enthalten: %2</translation>
    </message>
    <message>
        <source>The lesson has more than the 1 GiB that is read from one file of JSON</source>
        <translation>Die Lektion hat mehr als das eine GiB, das aus einer JSON-Datei gelesen wird</translation>
    </message>
    <message>
        <source>Write it as zqtx, or divide it</source>
        <translation>Schreiben Sie sie als zqtx, oder teilen Sie sie</translation>
    </message>
    <message>
        <source>the lesson model in one file, with the files that belong to it inside</source>
        <translation>das Modell der Lektion in einer Datei, mit den zugehörigen Dateien darin</translation>
    </message>
    <message>
        <source>The file is larger than 1 GiB</source>
        <translation>Die Datei ist größer als 1 GiB</translation>
    </message>
    <message>
        <source>Check that the file is complete and is a lesson in JSON</source>
        <translation>Prüfen Sie, ob die Datei vollständig und eine Lektion in JSON ist</translation>
    </message>
    <message>
        <source>This is not JSON: %1</source>
        <translation>Das ist kein JSON: %1</translation>
    </message>
    <message>
        <source>A file of the lesson is no base64 text</source>
        <translation>Eine Datei der Lektion ist kein base64-Text</translation>
    </message>
    <message>
        <source>The lesson has &quot;%1&quot; twice</source>
        <translation>Die Lektion hat „%1“ zweimal</translation>
    </message>
    <message>
        <source>The lesson has more than %1 slides</source>
        <translation>Die Lektion hat mehr als %1 Folien</translation>
    </message>
    <message>
        <source>This is not JSON: there is something behind the end of the lesson</source>
        <translation>Das ist kein JSON: Hinter dem Ende der Lektion steht noch etwas</translation>
    </message>
    <message>
        <source>This is no lesson: it has no &quot;Slides&quot;</source>
        <translation>Das ist keine Lektion: Sie hat kein „Slides“</translation>
    </message>
    <message>
        <source>This is not JSON: the file ends too early</source>
        <translation>Das ist kein JSON: Die Datei endet zu früh</translation>
    </message>
    <message>
        <source>This is not JSON: &quot;%1&quot; was expected here</source>
        <translation>Das ist kein JSON: Hier wurde „%1“ erwartet</translation>
    </message>
    <message>
        <source>This is not JSON: a text has no end</source>
        <translation>Das ist kein JSON: Ein Text hat kein Ende</translation>
    </message>
    <message>
        <source>Values are nested deeper than %1 levels</source>
        <translation>Werte sind tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>This is not JSON: a value was expected here</source>
        <translation>Das ist kein JSON: Hier wurde ein Wert erwartet</translation>
    </message>
    <message>
        <source>The format can&apos;t be told from the name</source>
        <translation>Das Format ist am Namen nicht zu erkennen</translation>
    </message>
    <message>
        <source>Say which it is with %1 (one of %2)</source>
        <translation>Sagen Sie mit %1, welches es ist (eines von %2)</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot;</source>
        <translation>Es gibt kein Format „%1“</translation>
    </message>
    <message>
        <source>Use one of %1</source>
        <translation>Nehmen Sie eines von %1</translation>
    </message>
    <message>
        <source>This folder is no lesson: it has neither index.xml nor content.xml</source>
        <translation>Dieser Ordner ist keine Lektion: Er hat weder index.xml noch content.xml</translation>
    </message>
    <message>
        <source>To convert all lessons in a folder, say --to FORMAT --out-dir FOLDER</source>
        <translation>Um alle Lektionen in einem Ordner zu konvertieren, sagen Sie --to FORMAT --out-dir ORDNER</translation>
    </message>
    <message>
        <source>%1 is called like a lesson in the format %2 and is one in %3</source>
        <translation>%1 heißt wie eine Lektion im Format %2 und ist eine in %3</translation>
    </message>
    <message>
        <source>The document begins with &lt;%1&gt; where a raw lesson has &lt;%2&gt;</source>
        <translation>Das Dokument beginnt mit &lt;%1&gt;, wo eine Rohlektion &lt;%2&gt; hat</translation>
    </message>
    <message>
        <source>Check that this is a lesson in raw XML</source>
        <translation>Prüfen Sie, ob das eine Lektion in rohem XML ist</translation>
    </message>
    <message>
        <source>flat XML in one file, files in the folder &quot;resources&quot; beside it; only read</source>
        <translation>flaches XML in einer Datei, Dateien im Ordner „resources“ daneben; wird nur gelesen</translation>
    </message>
    <message>
        <source>The document begins with &lt;%1&gt; where a lesson has &lt;%2&gt;</source>
        <translation>Das Dokument beginnt mit &lt;%1&gt;, wo eine Lektion &lt;%2&gt; hat</translation>
    </message>
    <message>
        <source>Check that this is a ZQTX lesson</source>
        <translation>Prüfen Sie, ob das eine ZQTX-Lektion ist</translation>
    </message>
    <message>
        <source>The items of slide %1 are nested deeper than %2 levels of XML</source>
        <translation>Die Elemente von Folie %1 sind tiefer als %2 XML-Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>Take some groups or branches apart</source>
        <translation>Lösen Sie einige Gruppen oder Zweige auf</translation>
    </message>
    <message>
        <source>The slide &quot;%1&quot; can&apos;t be opened: %2</source>
        <translation>Die Folie „%1“ kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Name a file of the package, such as slides/1.xml</source>
        <translation>Nennen Sie eine Datei des Pakets, zum Beispiel slides/1.xml</translation>
    </message>
    <message>
        <source>The slide &quot;%1&quot; is named twice</source>
        <translation>Die Folie „%1“ ist zweimal genannt</translation>
    </message>
    <message>
        <source>Remove one of the two lines</source>
        <translation>Entfernen Sie eine der beiden Zeilen</translation>
    </message>
    <message>
        <source>The slide &quot;%1&quot; is missing from the package</source>
        <translation>Die Folie „%1“ fehlt im Paket</translation>
    </message>
    <message>
        <source>Put the file back, or remove its line</source>
        <translation>Legen Sie die Datei zurück, oder entfernen Sie ihre Zeile</translation>
    </message>
    <message>
        <source>the file %1 is called %2 when it is written again</source>
        <translation>die Datei %1 heißt %2, wenn sie wieder geschrieben wird</translation>
    </message>
    <message numerus="yes">
        <source>%n had a matrix, which is worked into where they stand</source>
        <translation>
            <numerusform>%n hatte eine Matrix, die in seine Lage eingerechnet ist</numerusform>
            <numerusform>%n hatten eine Matrix, die in ihre Lage eingerechnet ist</numerusform>
        </translation>
    </message>
    <message>
        <source>The identifier &quot;%1&quot; of slide %2 can&apos;t name a file: %3</source>
        <translation>Die Kennung „%1“ von Folie %2 kann keine Datei benennen: %3</translation>
    </message>
    <message>
        <source>Give the slide another ID</source>
        <translation>Geben Sie der Folie eine andere ID</translation>
    </message>
    <message>
        <source>Slide %1 has the identifier &quot;%2&quot; of a slide before it</source>
        <translation>Folie %1 hat die Kennung „%2“ einer Folie davor</translation>
    </message>
    <message>
        <source>lesson package: a folder with index.xml and slides/, or the same zipped as .zqtx</source>
        <translation>Lektionspaket: ein Ordner mit index.xml und slides/ oder dasselbe gezippt als .zqtx</translation>
    </message>
    <message>
        <source>it has no points</source>
        <translation>hat keine Punkte</translation>
    </message>
    <message>
        <source>the lesson has no such file</source>
        <translation>die Lektion hat diese Datei nicht</translation>
    </message>
    <message>
        <source>it has too few points to be drawn</source>
        <translation>hat zu wenige Punkte, um gezeichnet zu werden</translation>
    </message>
    <message>
        <source>The document begins with &lt;%1&gt; where an IWB file has &lt;iwb&gt;</source>
        <translation>Das Dokument beginnt mit &lt;%1&gt;, wo eine IWB-Datei &lt;iwb&gt; hat</translation>
    </message>
    <message>
        <source>Check that this is an IWB lesson</source>
        <translation>Prüfen Sie, ob das eine IWB-Lektion ist</translation>
    </message>
    <message>
        <source>it names no file</source>
        <translation>nennt keine Datei</translation>
    </message>
    <message>
        <source>it lies outside of the package and isn&apos;t fetched</source>
        <translation>liegt außerhalb des Pakets und wird nicht geholt</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>the package has no such file</source>
        <translation>das Paket hat diese Datei nicht</translation>
    </message>
    <message>
        <source>%1 was found as %2</source>
        <translation>%1 wurde als %2 gefunden</translation>
    </message>
    <message>
        <source>it is a paper of the editor, not a file of the lesson</source>
        <translation>ist ein Papier des Editors, keine Datei der Lektion</translation>
    </message>
    <message>
        <source>a page has one background picture</source>
        <translation>eine Seite hat nur ein Hintergrundbild</translation>
    </message>
    <message>
        <source>it can&apos;t be made a PNG picture</source>
        <translation>lässt sich nicht in ein PNG-Bild umwandeln</translation>
    </message>
    <message>
        <source>it shows &quot;%1&quot;, which isn&apos;t beside it in the lesson</source>
        <translation>zeigt „%1“, das in der Lektion nicht daneben liegt</translation>
    </message>
    <message>
        <source>taken apart, its items stand on the page by themselves</source>
        <translation>aufgelöst, die Elemente darin stehen einzeln auf der Seite</translation>
    </message>
    <message>
        <source>the lesson has no such file to open</source>
        <translation>die Lektion hat keine solche Datei zum Öffnen</translation>
    </message>
    <message>
        <source>The document has no svg element with pages</source>
        <translation>Das Dokument hat kein svg-Element mit Seiten</translation>
    </message>
    <message>
        <source>other items stand between those of the group, which fell apart</source>
        <translation>zwischen den Elementen der Gruppe stehen andere, so dass sie zerfiel</translation>
    </message>
    <message>
        <source>nothing is made of it</source>
        <translation>daraus wird nichts</translation>
    </message>
    <message>
        <source>link to &quot;%1&quot;: %2</source>
        <translation>Verknüpfung mit „%1“: %2</translation>
    </message>
    <message>
        <source>it is too deep to travel along, so that what other boards don&apos;t show is lost</source>
        <translation>ist zu tief verschachtelt, um mitzureisen, so dass verloren geht, was andere Tafeln nicht zeigen</translation>
    </message>
    <message>
        <source>The plug-in writes no IWB pages</source>
        <translation>Das Plug-in schreibt keine IWB-Seiten</translation>
    </message>
    <message>
        <source>Use the plug-in that belongs to this command</source>
        <translation>Benutzen Sie das Plug-in, das zu diesem Befehl gehört</translation>
    </message>
    <message numerus="yes">
        <source>%n strokes became polylines</source>
        <translation>
            <numerusform>%n Strich wurde zu einer Linie aus Punkten</numerusform>
            <numerusform>%n Striche wurden zu Linien aus Punkten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n strokes left out</source>
        <translation>
            <numerusform>%n Strich wurde weggelassen</numerusform>
            <numerusform>%n Striche wurden weggelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>no page shows them, so they stay behind: %1</source>
        <translation>keine Seite zeigt sie, deshalb bleiben sie zurück: %1</translation>
    </message>
    <message>
        <source>%1, %2 and %3 by another program; %4</source>
        <translation>von einem anderen Programm: %1, %2 und %3; %4</translation>
    </message>
    <message numerus="yes">
        <source>%n things changed</source>
        <translation>
            <numerusform>%n Sache geändert</numerusform>
            <numerusform>%n Sachen geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items removed</source>
        <translation>
            <numerusform>%n Element entfernt</numerusform>
            <numerusform>%n Elemente entfernt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n hinzugefügt</numerusform>
            <numerusform>%n hinzugefügt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are as they were</source>
        <translation>
            <numerusform>%n Element ist wie zuvor</numerusform>
            <numerusform>%n Elemente sind wie zuvor</numerusform>
        </translation>
    </message>
    <message>
        <source>Chinese characters</source>
        <translation>chinesische Schriftzeichen</translation>
    </message>
    <message>
        <source>Japanese letters</source>
        <translation>japanische Schriftzeichen</translation>
    </message>
    <message>
        <source>Korean letters</source>
        <translation>koreanische Buchstaben</translation>
    </message>
    <message>
        <source>Latin letters</source>
        <translation>lateinische Buchstaben</translation>
    </message>
    <message>
        <source>Greek letters</source>
        <translation>griechische Buchstaben</translation>
    </message>
    <message>
        <source>Cyrillic letters</source>
        <translation>kyrillische Buchstaben</translation>
    </message>
    <message>
        <source>Armenian letters</source>
        <translation>armenische Buchstaben</translation>
    </message>
    <message>
        <source>Georgian letters</source>
        <translation>georgische Buchstaben</translation>
    </message>
    <message>
        <source>Arabic letters</source>
        <translation>arabische Buchstaben</translation>
    </message>
    <message>
        <source>Hebrew letters</source>
        <translation>hebräische Buchstaben</translation>
    </message>
    <message>
        <source>Thai letters</source>
        <translation>thailändische Buchstaben</translation>
    </message>
    <message>
        <source>Lao letters</source>
        <translation>laotische Buchstaben</translation>
    </message>
    <message>
        <source>Khmer letters</source>
        <translation>Khmer-Buchstaben</translation>
    </message>
    <message>
        <source>Burmese letters</source>
        <translation>birmanische Buchstaben</translation>
    </message>
    <message>
        <source>Tibetan letters</source>
        <translation>tibetische Buchstaben</translation>
    </message>
    <message>
        <source>Mongolian letters</source>
        <translation>mongolische Buchstaben</translation>
    </message>
    <message>
        <source>Ethiopic letters</source>
        <translation>äthiopische Buchstaben</translation>
    </message>
    <message>
        <source>Devanagari letters</source>
        <translation>Devanagari-Buchstaben</translation>
    </message>
    <message>
        <source>Bengali letters</source>
        <translation>bengalische Buchstaben</translation>
    </message>
    <message>
        <source>Gurmukhi letters</source>
        <translation>Gurmukhi-Buchstaben</translation>
    </message>
    <message>
        <source>Gujarati letters</source>
        <translation>Gujarati-Buchstaben</translation>
    </message>
    <message>
        <source>Tamil letters</source>
        <translation>tamilische Buchstaben</translation>
    </message>
    <message>
        <source>Telugu letters</source>
        <translation>Telugu-Buchstaben</translation>
    </message>
    <message>
        <source>Kannada letters</source>
        <translation>Kannada-Buchstaben</translation>
    </message>
    <message>
        <source>Malayalam letters</source>
        <translation>Malayalam-Buchstaben</translation>
    </message>
    <message>
        <source>Sinhala letters</source>
        <translation>singhalesische Buchstaben</translation>
    </message>
    <message>
        <source>Yi letters</source>
        <translation>Yi-Schriftzeichen</translation>
    </message>
    <message>
        <source>Chinese signs</source>
        <translation>chinesische Zeichen</translation>
    </message>
    <message>
        <source>emoji</source>
        <translation>Emojis</translation>
    </message>
    <message>
        <source>signs</source>
        <translation>Zeichen</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides have %1 and no font here has them: install %2</source>
        <translation>
            <numerusform>%n Folie hat %1, die hier keine Schriftart kennt: Installieren Sie %2</numerusform>
            <numerusform>%n Folien haben %1, die hier keine Schriftart kennt: Installieren Sie %2</numerusform>
        </translation>
    </message>
    <message>
        <source>the font %1, which isn&apos;t here</source>
        <translation>die Schriftart %1, die es hier nicht gibt</translation>
    </message>
    <message>
        <source>the fonts %1, which aren&apos;t here</source>
        <translation>die Schriftarten %1, die es hier nicht gibt</translation>
    </message>
    <message>
        <source>letters look otherwise</source>
        <translation>die Buchstaben sehen anders aus</translation>
    </message>
    <message>
        <source>install %1</source>
        <translation>installieren Sie %1</translation>
    </message>
    <message numerus="yes">
        <source>%n slides have %1: %2</source>
        <translation>
            <numerusform>%n Folie hat %1: %2</numerusform>
            <numerusform>%n Folien haben %1: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Spread its items over several slides</source>
        <translation>Verteilen Sie die Elemente auf mehrere Folien</translation>
    </message>
    <message>
        <source>Slide %1 takes %2 MiB, and no slide may take more than %3</source>
        <translation>Folie %1 belegt %2 MiB, und keine Folie darf mehr als %3 belegen</translation>
    </message>
    <message>
        <source>Slide %1 has %2 items, and no slide may have more than %3</source>
        <translation>Folie %1 hat %2 Elemente, und keine Folie darf mehr als %3 haben</translation>
    </message>
    <message numerus="yes">
        <source>%n indented paragraphs</source>
        <translation>
            <numerusform>%n eingerückter Absatz</numerusform>
            <numerusform>%n eingerückte Absätze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphs with a line height of their own</source>
        <translation>
            <numerusform>%n Absatz mit eigener Zeilenhöhe</numerusform>
            <numerusform>%n Absätze mit eigener Zeilenhöhe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n backgrounds of paragraphs</source>
        <translation>
            <numerusform>%n Hintergrund eines Absatzes</numerusform>
            <numerusform>%n Hintergründe von Absätzen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rules</source>
        <translation>
            <numerusform>%n Trennlinie</numerusform>
            <numerusform>%n Trennlinien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells of tables</source>
        <translation>
            <numerusform>%n Tabellenzelle</numerusform>
            <numerusform>%n Tabellenzellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts with a background</source>
        <translation>
            <numerusform>%n Text mit Hintergrund</numerusform>
            <numerusform>%n Texte mit Hintergrund</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts with a line above</source>
        <translation>
            <numerusform>%n Text mit Linie darüber</numerusform>
            <numerusform>%n Texte mit Linie darüber</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts in another case or spacing</source>
        <translation>
            <numerusform>%n Text in anderer Groß- und Kleinschreibung oder Sperrung</numerusform>
            <numerusform>%n Texte in anderer Groß- und Kleinschreibung oder Sperrung</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links within the text</source>
        <translation>
            <numerusform>%n Verknüpfung im Text</numerusform>
            <numerusform>%n Verknüpfungen im Text</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n control characters</source>
        <translation>
            <numerusform>%n Steuerzeichen</numerusform>
            <numerusform>%n Steuerzeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures within the text</source>
        <translation>
            <numerusform>%n Bild im Text</numerusform>
            <numerusform>%n Bilder im Text</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tags, which are too many or nested too deep</source>
        <translation>
            <numerusform>%n Tag, zu viel oder zu tief verschachtelt</numerusform>
            <numerusform>%n Tags, zu viele oder zu tief verschachtelt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 became %2</source>
        <translation>aus %1 wurden %2</translation>
    </message>
    <message>
        <source>%1 on slide %2</source>
        <translation>%1 auf Folie %2</translation>
    </message>
    <message>
        <source>%1 on slides %2 to %3</source>
        <translation>%1 auf den Folien %2 bis %3</translation>
    </message>
    <message numerus="yes">
        <source>%1 on %n slides from %2 to %3</source>
        <translation>
            <numerusform>%1 auf %n Folie von %2 bis %3</numerusform>
            <numerusform>%1 auf %n Folien von %2 bis %3</numerusform>
        </translation>
    </message>
    <message>
        <source>of items %1</source>
        <translation>von Elementen %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translation>
            <numerusform>%1 (%n-mal)</numerusform>
            <numerusform>%1 (%n-mal)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values lost: %1</source>
        <translation>
            <numerusform>%n Wert verloren: %1</numerusform>
            <numerusform>%n Werte verloren: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items have no form here: %1</source>
        <translation>
            <numerusform>%n Element hat hier keine Form: %1</numerusform>
            <numerusform>%n Elemente haben hier keine Form: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items have no %1 form: %2</source>
        <translation>
            <numerusform>%n Element hat in %1 keine Form: %2</numerusform>
            <numerusform>%n Elemente haben in %1 keine Form: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items kept as they came: %1</source>
        <translation>
            <numerusform>%n Element blieb, wie es kam: %1</numerusform>
            <numerusform>%n Elemente blieben, wie sie kamen: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files missing or of no use: %1</source>
        <translation>
            <numerusform>%n Datei fehlt oder ist unbrauchbar: %1</numerusform>
            <numerusform>%n Dateien fehlen oder sind unbrauchbar: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are pictures on other boards: %1</source>
        <translation>
            <numerusform>%n Element ist auf anderen Tafeln ein Bild: %1</numerusform>
            <numerusform>%n Elemente sind auf anderen Tafeln Bilder: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items aren&apos;t shown by other boards: %1</source>
        <translation>
            <numerusform>%n Element wird von anderen Tafeln nicht gezeigt: %1</numerusform>
            <numerusform>%n Elemente werden von anderen Tafeln nicht gezeigt: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values are otherwise on other boards: %1</source>
        <translation>
            <numerusform>%n Wert ist auf anderen Tafeln anders: %1</numerusform>
            <numerusform>%n Werte sind auf anderen Tafeln anders: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>it became a picture</source>
        <translation>wurde ein Bild</translation>
    </message>
    <message>
        <source>%1 (items shown by their name: %2)</source>
        <translation>%1 (nur mit ihrem Namen gezeigte Elemente: %2)</translation>
    </message>
    <message>
        <source>The part of lessonconv that writes PDF, %1, was not found</source>
        <translation>Der Teil von lessonconv, der PDF schreibt, %1, wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Build or install the project again, or write .html</source>
        <translation>Bauen oder installieren Sie das Projekt neu, oder schreiben Sie .html</translation>
    </message>
    <message>
        <source>The part of lessonconv that writes PDF can&apos;t be loaded: %1</source>
        <translation>Der Teil von lessonconv, der PDF schreibt, kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>The pages can&apos;t be drawn: %1</source>
        <translation>Die Seiten können nicht gezeichnet werden: %1</translation>
    </message>
    <message>
        <source>The pictures of a lesson are written into one folder</source>
        <translation>Die Bilder einer Lektion werden in einen Ordner geschrieben</translation>
    </message>
    <message>
        <source>Put %d behind the last / in the name</source>
        <translation>Setzen Sie %d im Namen hinter den letzten /</translation>
    </message>
    <message>
        <source>%1 slides don&apos;t go into one picture</source>
        <translation>%1 Folien passen nicht in ein Bild</translation>
    </message>
    <message>
        <source>Put %d in the name for the number of the slide, or choose one with --slides</source>
        <translation>Setzen Sie %d für die Nummer der Folie in den Namen, oder wählen Sie mit --slides eine aus</translation>
    </message>
    <message>
        <source>Pictures in %1 can&apos;t be written on this machine</source>
        <translation>Bilder in %1 können auf diesem Rechner nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Install qt5-image-formats-plugins, or write png</source>
        <translation>Installieren Sie qt5-image-formats-plugins, oder schreiben Sie png</translation>
    </message>
    <message>
        <source>There is no slide %1: the lesson has %2</source>
        <translation>Es gibt keine Folie %1: Die Lektion hat %2</translation>
    </message>
    <message>
        <source>Name other slides with --slides</source>
        <translation>Nennen Sie mit --slides andere Folien</translation>
    </message>
    <message>
        <source>The lesson has no slides to draw</source>
        <translation>Die Lektion hat keine Folien zum Zeichnen</translation>
    </message>
    <message>
        <source>Two lessons side by side are written as one page</source>
        <translation>Zwei Lektionen nebeneinander werden als eine Seite geschrieben</translation>
    </message>
    <message>
        <source>Give the output a name in .html</source>
        <translation>Geben Sie der Ausgabe einen Namen mit .html</translation>
    </message>
    <message>
        <source>Slide %1</source>
        <translation>Folie %1</translation>
    </message>
    <message>
        <source>This lesson has no such slide.</source>
        <translation>Diese Lektion hat keine solche Folie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of pixels</source>
        <translation>„%1“ ist keine Anzahl von Pixeln</translation>
    </message>
    <message>
        <source>Write a number from 1 to %1, such as --%2 640</source>
        <translation>Schreiben Sie eine Zahl von 1 bis %1, zum Beispiel --%2 640</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no such number</source>
        <translation>„%1“ ist keine solche Zahl</translation>
    </message>
    <message>
        <source>Give --%1 a number from %2 to %3</source>
        <translation>Geben Sie bei --%1 eine Zahl von %2 bis %3 an</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size</source>
        <translation>„%1“ ist keine Größe</translation>
    </message>
    <message>
        <source>Write width and height in pixels, such as --size 1280x720, up to %1 each</source>
        <translation>Schreiben Sie Breite und Höhe in Pixeln, zum Beispiel --size 1280x720, bis je %1</translation>
    </message>
    <message>
        <source>%1 changes nothing about %2</source>
        <translation>%1 ändert nichts an %2</translation>
    </message>
    <message>
        <source>%1 and %2 both say how large pictures are</source>
        <translation>%1 und %2 sagen beide, wie groß Bilder sind</translation>
    </message>
    <message>
        <source>Give one of them; --size 1280x720 sets bounds for both sides</source>
        <translation>Geben Sie eines davon an; --size 1280x720 begrenzt beide Seiten</translation>
    </message>
    <message>
        <source>--pad changes nothing without --size</source>
        <translation>--pad ändert nichts ohne --size</translation>
    </message>
    <message>
        <source>Leave it out, or say the whole size, such as --size 1280x720</source>
        <translation>Lassen Sie es weg, oder nennen Sie die ganze Größe, zum Beispiel --size 1280x720</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour</source>
        <translation>„%1“ ist keine Farbe</translation>
    </message>
    <message>
        <source>Write a name or red, green and blue, such as --background &quot;#ffffe0&quot;, or transparent</source>
        <translation>Schreiben Sie einen Namen oder Rot, Grün und Blau, zum Beispiel --background &quot;#ffffe0&quot;, oder transparent</translation>
    </message>
    <message>
        <source>In %1 nothing shows through</source>
        <translation>In %1 scheint nichts durch</translation>
    </message>
    <message>
        <source>Take a colour for --background, or write %1</source>
        <translation>Nehmen Sie bei --background eine Farbe, oder schreiben Sie %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no slides</source>
        <translation>„%1“ nennt keine Folien</translation>
    </message>
    <message>
        <source>Count from 1, such as --slides 2-5 or --slides 1,4</source>
        <translation>Zählen Sie ab 1, zum Beispiel --slides 2-5 oder --slides 1,4</translation>
    </message>
    <message>
        <source>Pictures can&apos;t be written as &quot;%1&quot;</source>
        <translation>Bilder können nicht als „%1“ geschrieben werden</translation>
    </message>
    <message>
        <source>Say %1</source>
        <translation>Sagen Sie %1</translation>
    </message>
    <message>
        <source>Pictures can&apos;t be written in this form</source>
        <translation>In dieser Form können Bilder nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Give the output a name in %1, or say the form with --to</source>
        <translation>Geben Sie der Ausgabe einen Namen mit %1, oder sagen Sie die Form mit --to</translation>
    </message>
    <message>
        <source>--embed changes nothing about %1</source>
        <translation>--embed ändert nichts an %1</translation>
    </message>
    <message>
        <source>Leave it out; it is for html</source>
        <translation>Lassen Sie es weg; es ist für html</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Folie</translation>
    </message>
    <message>
        <source>Nothing is lost.</source>
        <translation>Nichts ging verloren.</translation>
    </message>
    <message>
        <source>Missing: %1</source>
        <translation>Es fehlen: %1</translation>
    </message>
    <message>
        <source>A picture of slide %1 would have %2 x %3 pixels, which are more than %4 million</source>
        <translation>Ein Bild von Folie %1 hätte %2 x %3 Pixel, also mehr als %4 Millionen</translation>
    </message>
    <message>
        <source>Ask for a smaller one, such as --width 4000, or write .pdf or .svg</source>
        <translation>Verlangen Sie ein kleineres, zum Beispiel --width 4000, oder schreiben Sie .pdf oder .svg</translation>
    </message>
    <message>
        <source>The picture of slide %1 can&apos;t be drawn</source>
        <translation>Das Bild von Folie %1 kann nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>Ask for a smaller one, such as --width 1000</source>
        <translation>Verlangen Sie ein kleineres, zum Beispiel --width 1000</translation>
    </message>
    <message>
        <source>the file tells no page size; 1440 x 1080 was taken</source>
        <translation>die Datei nennt keine Seitengröße; 1440 x 1080 wurde angenommen</translation>
    </message>
    <message>
        <source>it stands on no page and is left out</source>
        <translation>steht auf keiner Seite und ist weggelassen</translation>
    </message>
    <message>
        <source>lessons have no such record</source>
        <translation>Lektionen haben keinen solchen Eintrag</translation>
    </message>
    <message>
        <source>lessons have nothing like it</source>
        <translation>Lektionen haben nichts dergleichen</translation>
    </message>
    <message>
        <source>the script of %1 is left out</source>
        <translation>das Skript von %1 ist weggelassen</translation>
    </message>
    <message>
        <source>&lt;%1&gt; within it is left out</source>
        <translation>&lt;%1&gt; darin ist weggelassen</translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown here, and what stands for it is taken</source>
        <translation>%1 kann hier nicht gezeigt werden, und der Ersatz dafür wird genommen</translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown here, and nothing stands for it</source>
        <translation>%1 kann hier nicht gezeigt werden, und es gibt keinen Ersatz dafür</translation>
    </message>
    <message>
        <source>it links a text that stands in no text element</source>
        <translation>verknüpft einen Text, der in keinem Textelement steht</translation>
    </message>
    <message>
        <source>it has no size</source>
        <translation>hat keine Größe</translation>
    </message>
    <message>
        <source>its corners are no longer round</source>
        <translation>die Ecken sind nicht mehr rund</translation>
    </message>
    <message>
        <source>its last point has no y and is left out</source>
        <translation>der letzte Punkt hat kein y und ist weggelassen</translation>
    </message>
    <message>
        <source>its data can&apos;t be read</source>
        <translation>die Daten können nicht gelesen werden</translation>
    </message>
    <message>
        <source>its curves became fine lines</source>
        <translation>die Kurven wurden zu feinen Linien</translation>
    </message>
    <message numerus="yes">
        <source>%n outlines became an item each</source>
        <translation>
            <numerusform>%n Umriss wurde ein eigenes Element</numerusform>
            <numerusform>%n Umrisse wurden je ein eigenes Element</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is left out</source>
        <translation>%1 ist weggelassen</translation>
    </message>
    <message>
        <source>it is drawn slanted no longer</source>
        <translation>wird nicht mehr schräg gezeichnet</translation>
    </message>
    <message>
        <source>it is no longer translucent</source>
        <translation>ist nicht mehr durchscheinend</translation>
    </message>
    <message>
        <source>its size is a guess, as no font here has its %1: install %2</source>
        <translation>die Größe ist geschätzt, weil hier keine Schriftart %1 hat: Installieren Sie %2</translation>
    </message>
    <message>
        <source>the picture fills the page once instead of many times</source>
        <translation>das Bild füllt die Seite einmal statt viele Male</translation>
    </message>
    <message>
        <source>it doesn&apos;t fill the page, so it became a picture that can&apos;t be moved</source>
        <translation>füllt die Seite nicht und wurde deshalb ein Bild, das sich nicht bewegen lässt</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; (a gradient or pattern) is left out</source>
        <translation>%1 „%2“ (ein Farbverlauf oder Muster) ist weggelassen</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; isn&apos;t a colour</source>
        <translation>%1 „%2“ ist keine Farbe</translation>
    </message>
    <message>
        <source>transform &quot;%1&quot; can&apos;t be read</source>
        <translation>transform „%1“ kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>stroke-dasharray &quot;%1&quot; became dash dot dot</source>
        <translation>stroke-dasharray „%1“ wurde Strich Punkt Punkt</translation>
    </message>
    <message>
        <source>&lt;%1&gt; within text is left out</source>
        <translation>&lt;%1&gt; im Text ist weggelassen</translation>
    </message>
    <message>
        <source>the drawing isn&apos;t understood</source>
        <translation>die Zeichnung ist nicht zu verstehen</translation>
    </message>
    <message>
        <source>the document can&apos;t be written</source>
        <translation>das Dokument kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the pages can&apos;t be read</source>
        <translation>die Seiten können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>Another run is at work on shard %1 of %2</source>
        <translation>Ein anderer Lauf arbeitet am Teil %1 von %2</translation>
    </message>
    <message>
        <source>Wait for its end, or end it</source>
        <translation>Warten Sie auf sein Ende, oder beenden Sie ihn</translation>
    </message>
    <message>
        <source>The result would take the place of a lesson, %1</source>
        <translation>Das Ergebnis würde die Lektion %1 ersetzen</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Not converted:</source>
        <translation>Nicht konvertiert:</translation>
    </message>
    <message numerus="yes">
        <source>Not converted, of %n lessons the first %1:</source>
        <translation>
            <numerusform>Nicht konvertiert ist %n Lektion, davon die ersten %1:</numerusform>
            <numerusform>Nicht konvertiert sind %n Lektionen, davon die ersten %1:</numerusform>
        </translation>
    </message>
    <message>
        <source>Not drawn:</source>
        <translation>Nicht gezeichnet:</translation>
    </message>
    <message numerus="yes">
        <source>Not drawn, of %n lessons the first %1:</source>
        <translation>
            <numerusform>Nicht gezeichnet ist %n Lektion, davon die ersten %1:</numerusform>
            <numerusform>Nicht gezeichnet sind %n Lektionen, davon die ersten %1:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lessons came while the shards were at work, and no shard took what came: with --resume, they do.</source>
        <translation>
            <numerusform>%n Lektion kam, während die Teile in Arbeit waren, und kein Teil hat sie genommen: Mit --resume geschieht es.</numerusform>
            <numerusform>%n Lektionen kamen, während die Teile in Arbeit waren, und kein Teil hat sie genommen: Mit --resume geschieht es.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no report of shard %1 of %2, to which %3 fell.</source>
        <translation>Es gibt keinen Bericht über Teil %1 von %2, auf den %3 entfielen.</translation>
    </message>
    <message>
        <source>There is no report of shards %1 of %2, to which %3 fell.</source>
        <translation>Es gibt keine Berichte über die Teile %1 von %2, auf die %3 entfielen.</translation>
    </message>
    <message numerus="yes">
        <source>%n lessons</source>
        <translation>
            <numerusform>%n Lektion</numerusform>
            <numerusform>%n Lektionen</numerusform>
        </translation>
    </message>
    <message>
        <source>Give files that lessonconv has written with --report about many lessons</source>
        <translation>Nennen Sie Dateien, die lessonconv mit --report über viele Lektionen geschrieben hat</translation>
    </message>
    <message>
        <source>The lessons of this report aren&apos;t in their order</source>
        <translation>Die Lektionen dieses Berichts stehen nicht in ihrer Reihenfolge</translation>
    </message>
    <message>
        <source>There is something behind the end of the report</source>
        <translation>Hinter dem Ende des Berichts steht noch etwas</translation>
    </message>
    <message>
        <source>This is no report on many lessons</source>
        <translation>Das ist kein Bericht über viele Lektionen</translation>
    </message>
    <message>
        <source>This report is on another work than %1</source>
        <translation>Dieser Bericht handelt von einer anderen Arbeit als %1</translation>
    </message>
    <message>
        <source>Put conversions and drawings together by themselves</source>
        <translation>Fassen Sie Konvertierungen und Zeichnungen getrennt zusammen</translation>
    </message>
    <message>
        <source>This report is on another number of shards than %1</source>
        <translation>Dieser Bericht gehört zu einer anderen Anzahl von Teilen als %1</translation>
    </message>
    <message>
        <source>Give the reports of one run over all shards</source>
        <translation>Nennen Sie die Berichte eines Laufs über alle Teile</translation>
    </message>
    <message>
        <source>%1 is in this report and in %2</source>
        <translation>%1 steht in diesem Bericht und in %2</translation>
    </message>
    <message>
        <source>Give one report of each run</source>
        <translation>Nennen Sie von jedem Lauf einen Bericht</translation>
    </message>
    <message>
        <source>what became of all lessons, by the reports of many runs</source>
        <translation>was aus allen Lektionen wurde, nach den Berichten vieler Läufe</translation>
    </message>
    <message>
        <source>the report of its run</source>
        <translation>der Bericht des Laufs</translation>
    </message>
    <message>
        <source>Many: take a part of the lessons, such as 3/16 for the third of 16. Each falls to one by its path.</source>
        <translation>Viele: einen Teil der Lektionen nehmen, zum Beispiel 3/16 für den dritten von 16. Jede gehört nach ihrem Pfad zu einem.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no shard</source>
        <translation>„%1“ ist kein Teil</translation>
    </message>
    <message>
        <source>Give its number and that of all, at most %1, such as --shard 3/16</source>
        <translation>Geben Sie seine Nummer und die Anzahl aller an, höchstens %1, zum Beispiel --shard 3/16</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n lessons</source>
        <translation>
            <numerusform>%1 in %n Lektion</numerusform>
            <numerusform>%1 in %n Lektionen</numerusform>
        </translation>
    </message>
    <message>
        <source>Missing, and not shown in the first one: %1</source>
        <translation>Es fehlen, auch in der ersten nicht zu sehen: %1</translation>
    </message>
    <message>
        <source>Missing or other values: %1</source>
        <translation>Fehlende oder andere Werte: %1</translation>
    </message>
    <message>
        <source>Both look the same and work otherwise: %1</source>
        <translation>Beide sehen gleich aus und verhalten sich anders: %1</translation>
    </message>
    <message>
        <source>Both look the same. Missing or other values: %1</source>
        <translation>Beide sehen gleich aus. Fehlende oder andere Werte: %1</translation>
    </message>
    <message>
        <source>the link to &quot;%1&quot; leads to the page of it</source>
        <translation>die Verknüpfung mit „%1“ führt auf die Seite davon</translation>
    </message>
    <message>
        <source>the lesson has no page and no element of that name</source>
        <translation>die Lektion hat keine Seite und kein Element dieses Namens</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is left out</source>
        <translation>%1 „%2“ ist weggelassen</translation>
    </message>
    <message numerus="yes">
        <source>%n polygons became one stroke</source>
        <translation>
            <numerusform>%n Vieleck wurde ein Strich</numerusform>
            <numerusform>%n Vielecke wurden ein Strich</numerusform>
        </translation>
    </message>
    <message>
        <source>the polygon became a stroke</source>
        <translation>das Vieleck wurde ein Strich</translation>
    </message>
    <message>
        <source>an arrow at its end is left out</source>
        <translation>ein Pfeil an seinem Ende ist weggelassen</translation>
    </message>
    <message>
        <source>it isn&apos;t drawn as a pen does, so it is no ink</source>
        <translation>ist nicht wie mit einem Stift gezeichnet und deshalb keine Handschrift</translation>
    </message>
    <message>
        <source>the link of its letters to &quot;%1&quot; is left out</source>
        <translation>die Verknüpfung der Buchstaben mit „%1“ ist weggelassen</translation>
    </message>
    <message>
        <source>stroke-dasharray &quot;%1&quot; has other lengths</source>
        <translation>stroke-dasharray „%1“ hat andere Längen</translation>
    </message>
    <message>
        <source>the link of &quot;%1&quot; to &quot;%2&quot; is left out</source>
        <translation>die Verknüpfung von „%1“ mit „%2“ ist weggelassen</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; of letters is left out</source>
        <translation>%1 „%2“ von Buchstaben ist weggelassen</translation>
    </message>
    <message>
        <source>it runs from right to left where its letters do</source>
        <translation>läuft von rechts nach links, wo es die Buchstaben tun</translation>
    </message>
    <message>
        <source>it is a list, whose marks became letters</source>
        <translation>ist eine Liste, deren Zeichen Buchstaben wurden</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>Show the answer</source>
        <translation>Antwort zeigen</translation>
    </message>
    <message>
        <source>Turn the card</source>
        <translation>Karte umdrehen</translation>
    </message>
    <message>
        <source>%1. Turn the card</source>
        <translation>%1. Karte umdrehen</translation>
    </message>
    <message>
        <source>Card %1 of %2, back</source>
        <translation>Karte %1 von %2, Rückseite</translation>
    </message>
    <message>
        <source>Card %1 of %2, front</source>
        <translation>Karte %1 von %2, Vorderseite</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Previous card</source>
        <translation>Vorige Karte</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Next card</source>
        <translation>Nächste Karte</translation>
    </message>
    <message>
        <source>right</source>
        <translation>richtig</translation>
    </message>
    <message>
        <source>wrong</source>
        <translation>falsch</translation>
    </message>
    <message>
        <source>Right: %1 of %2. Wrong: %3.</source>
        <translation>Richtig: %1 von %2. Falsch: %3.</translation>
    </message>
    <message>
        <source>Put it into %1</source>
        <translation>In %1 legen</translation>
    </message>
    <message>
        <source>That was the last one.</source>
        <translation>Das war die letzte.</translation>
    </message>
    <message>
        <source>Previous text</source>
        <translation>Voriger Text</translation>
    </message>
    <message>
        <source>Next text</source>
        <translation>Nächster Text</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Richtig</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falsch</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Pen in red</source>
        <translation>Roter Stift</translation>
    </message>
    <message>
        <source>Pen in blue</source>
        <translation>Blauer Stift</translation>
    </message>
    <message>
        <source>Pen in green</source>
        <translation>Grüner Stift</translation>
    </message>
    <message>
        <source>Pen in black</source>
        <translation>Schwarzer Stift</translation>
    </message>
    <message>
        <source>Pen on</source>
        <translation>Stift an</translation>
    </message>
    <message>
        <source>Eraser on</source>
        <translation>Radierer an</translation>
    </message>
    <message>
        <source>Pen and eraser off</source>
        <translation>Stift und Radierer aus</translation>
    </message>
    <message>
        <source>A file of the lesson</source>
        <translation>Eine Datei der Lektion</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Tipp</translation>
    </message>
    <message>
        <source>This leads out of the lesson</source>
        <translation>Das führt aus der Lektion hinaus</translation>
    </message>
    <message>
        <source>This browser can’t play %1.</source>
        <translation>Dieser Browser kann %1 nicht abspielen.</translation>
    </message>
    <message>
        <source>Open it with another program</source>
        <translation>Mit einem anderen Programm öffnen</translation>
    </message>
    <message>
        <source>All slides (%1)</source>
        <translation>Alle Folien (%1)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spielen</translation>
    </message>
    <message>
        <source>Play the game of this slide</source>
        <translation>Das Spiel dieser Folie spielen</translation>
    </message>
    <message>
        <source>Lesson</source>
        <translation>Lektion</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Rub out</source>
        <translation>Radieren</translation>
    </message>
    <message>
        <source>This slide from its beginning, without what was drawn (%1)</source>
        <translation>Diese Folie von Anfang an, ohne das Gezeichnete (%1)</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Full screen (%1)</source>
        <translation>Vollbild (%1)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1. Arrows move it, plus and minus change its size.</source>
        <translation>%1. Pfeiltasten verschieben, Plus und Minus ändern die Größe.</translation>
    </message>
    <message>
        <source>%1. Arrows move it, square brackets turn it.</source>
        <translation>%1. Pfeiltasten verschieben, eckige Klammern drehen.</translation>
    </message>
    <message>
        <source>%1. Arrows move it.</source>
        <translation>%1. Pfeiltasten verschieben.</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>%1 drehen</translation>
    </message>
    <message>
        <source>it became a part of a stroke</source>
        <translation>wurde ein Teil eines Strichs</translation>
    </message>
    <message>
        <source>it is filled also where it crosses itself</source>
        <translation>ist auch dort gefüllt, wo es sich selbst überschneidet</translation>
    </message>
    <message>
        <source>Slide %1 has lines of %2 points, and no page of IWB may have more than %3</source>
        <translation>Folie %1 hat Linien aus %2 Punkten, und keine Seite von IWB darf mehr als %3 haben</translation>
    </message>
</context>
</TS>
