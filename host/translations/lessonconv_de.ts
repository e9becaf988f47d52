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
or something is wrong that check looks for, 2 not done.</source>
        <translation>Die gelesene Lektion wird nie verändert. Was das andere Format nicht aufnehmen
kann, wird mit Folie und Element genannt. Rückgabewert: 0 erledigt, 1 erledigt
mit Verlusten und --strict oder check fand etwas, 2 nicht erledigt.</translation>
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
        <source>The format of the input, where its name doesn&apos;t tell.</source>
        <translation>Das Format der Eingabe, wo ihr Name es nicht sagt.</translation>
    </message>
    <message>
        <source>Many: the folder for the results.</source>
        <translation>Viele: der Ordner für die Ergebnisse.</translation>
    </message>
    <message>
        <source>Many: this many at the same time; otherwise one for each core that may be used.</source>
        <translation>Viele: so viele zur gleichen Zeit; sonst eine für jeden Kern, der benutzt werden darf.</translation>
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
        <source>Write everything that was lost or kept aside, what is wrong, or how it was drawn, into this file, as JSON.</source>
        <translation>Alles, was verloren ging oder beiseitegelegt wurde, was nicht stimmt oder wie gezeichnet wurde, als JSON in diese Datei schreiben.</translation>
    </message>
    <message>
        <source>Treat losses as a failure: exit code 1.</source>
        <translation>Verluste als Fehler behandeln: Rückgabewert 1.</translation>
    </message>
    <message>
        <source>Don&apos;t read back what was written, nor try formats. Faster, but losses stay unnoticed.</source>
        <translation>Geschriebenes nicht zurücklesen und keine Formate probieren. Schneller, aber Verluste bleiben unbemerkt.</translation>
    </message>
    <message>
        <source>Replace nothing: what is there already makes the run fail, and of many those lessons.</source>
        <translation>Nichts ersetzen: Was schon da ist, lässt den Lauf scheitern, bei vielen nur diese Lektionen.</translation>
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
    <message numerus="yes">
        <source>%n checked</source>
        <translation>
            <numerusform>%n geprüft</numerusform>
            <numerusform>%n geprüft</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not checked</source>
        <translation>
            <numerusform>%n nicht geprüft</numerusform>
            <numerusform>%n nicht geprüft</numerusform>
        </translation>
    </message>
    <message>
        <source>Not checked:</source>
        <translation>Nicht geprüft:</translation>
    </message>
    <message numerus="yes">
        <source>Not checked, of %n lessons the first %1:</source>
        <translation>
            <numerusform>Nicht geprüft, von %n Lektion die ersten %1:</numerusform>
            <numerusform>Nicht geprüft, von %n Lektionen die ersten %1:</numerusform>
        </translation>
    </message>
    <message>
        <source>The check took longer than %1 s</source>
        <translation>Die Prüfung hat länger als %1 s gedauert</translation>
    </message>
    <message numerus="yes">
        <source>%n things are missing or wrong; %1 names each.</source>
        <translation>
            <numerusform>%n Sache fehlt oder stimmt nicht; %1 nennt sie.</numerusform>
            <numerusform>%n Sachen fehlen oder stimmen nicht; %1 nennt jede.</numerusform>
        </translation>
    </message>
    <message>
        <source>is it whole, and what would other formats lose</source>
        <translation>ist sie vollständig, und was ginge in anderen Formaten verloren</translation>
    </message>
    <message>
        <source>checks many lessons, or all in a folder</source>
        <translation>prüft viele Lektionen oder alle in einem Ordner</translation>
    </message>
    <message>
        <source>The format of the output, where its name doesn&apos;t tell; with check, the only one to try.</source>
        <translation>Das Format der Ausgabe, wo ihr Name es nicht sagt; mit check das einzige, das versucht wird.</translation>
    </message>
    <message>
        <source>The lesson</source>
        <translation>Die Lektion</translation>
    </message>
    <message>
        <source>Slide %1, %2</source>
        <translation>Folie %1, %2</translation>
    </message>
    <message>
        <source>Slide %1, %2 &quot;%3&quot;</source>
        <translation>Folie %1, %2 „%3“</translation>
    </message>
    <message>
        <source>%1: the file %2 isn&apos;t there.</source>
        <translation>%1: Die Datei %2 ist nicht da.</translation>
    </message>
    <message>
        <source>%1: the file %2 can&apos;t be shown: %3.</source>
        <translation>%1: Die Datei %2 kann nicht gezeigt werden: %3.</translation>
    </message>
    <message>
        <source>%1: nobody knows what this is.</source>
        <translation>%1: Niemand weiß, was das ist.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1: %2 is &quot;%3&quot; and has to be %4.</source>
        <translation>%1: Der Wert „%2“ ist „%3“, möglich ist: %4.</translation>
    </message>
    <message>
        <source>the points are not in the file</source>
        <translation>die Punkte stehen nicht in der Datei</translation>
    </message>
    <message>
        <source>%1 is whole.</source>
        <translation>%1 ist vollständig.</translation>
    </message>
    <message numerus="yes">
        <source>%1 isn&apos;t whole; %n things are wrong:</source>
        <translation>
            <numerusform>%1 ist nicht vollständig; %n Sache stimmt nicht:</numerusform>
            <numerusform>%1 ist nicht vollständig; %n Sachen stimmen nicht:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Und %n weitere.</numerusform>
            <numerusform>Und %n weitere.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2, %3.</source>
        <translation>%1, %2, %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n slides</source>
        <translation>
            <numerusform>%n Folie</numerusform>
            <numerusform>%n Folien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Element</numerusform>
            <numerusform>%n Elemente</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>When it is read:</source>
        <translation>Beim Lesen:</translation>
    </message>
    <message>
        <source>%1 can&apos;t hold it: %2</source>
        <translation>%1 kann sie nicht aufnehmen: %2</translation>
    </message>
    <message>
        <source>Written as %1, it loses nothing.</source>
        <translation>Als %1 geschrieben verliert sie nichts.</translation>
    </message>
    <message>
        <source>Written as %1:</source>
        <translation>Als %1 geschrieben:</translation>
    </message>
    <message>
        <source>it is hidden</source>
        <translation>es ist verborgen</translation>
    </message>
    <message numerus="yes">
        <source>%n acid burettes</source>
        <translation>
            <numerusform>%n Säurebürette</numerusform>
            <numerusform>%n Säurebüretten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n aeroplanes</source>
        <translation>
            <numerusform>%n Flugzeug</numerusform>
            <numerusform>%n Flugzeuge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n alkali burettes</source>
        <translation>
            <numerusform>%n Laugenbürette</numerusform>
            <numerusform>%n Laugenbüretten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n alternating current motors</source>
        <translation>
            <numerusform>%n Wechselstrommotor</numerusform>
            <numerusform>%n Wechselstrommotoren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ammeters</source>
        <translation>
            <numerusform>%n Amperemeter</numerusform>
            <numerusform>%n Amperemeter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ammeters with a scale</source>
        <translation>
            <numerusform>%n Amperemeter mit Skala</numerusform>
            <numerusform>%n Amperemeter mit Skala</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angles</source>
        <translation>
            <numerusform>%n Winkel</numerusform>
            <numerusform>%n Winkel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angle brackets</source>
        <translation>
            <numerusform>%n spitze Klammer</numerusform>
            <numerusform>%n spitze Klammern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n arcs</source>
        <translation>
            <numerusform>%n Bogen</numerusform>
            <numerusform>%n Bögen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n arrows</source>
        <translation>
            <numerusform>%n Pfeil</numerusform>
            <numerusform>%n Pfeile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n arrows with two heads</source>
        <translation>
            <numerusform>%n Doppelpfeil</numerusform>
            <numerusform>%n Doppelpfeile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n atoms</source>
        <translation>
            <numerusform>%n Atom</numerusform>
            <numerusform>%n Atome</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n balances</source>
        <translation>
            <numerusform>%n Waage</numerusform>
            <numerusform>%n Waagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n balls</source>
        <translation>
            <numerusform>%n Kugel</numerusform>
            <numerusform>%n Kugeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bamboo brush strokes</source>
        <translation>
            <numerusform>%n Bambuspinselstrich</numerusform>
            <numerusform>%n Bambuspinselstriche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bar magnets</source>
        <translation>
            <numerusform>%n Stabmagnet</numerusform>
            <numerusform>%n Stabmagnete</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n baskets of games</source>
        <translation>
            <numerusform>%n Korb eines Spiels</numerusform>
            <numerusform>%n Körbe von Spielen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n Batterie</numerusform>
            <numerusform>%n Batterien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n battery cells</source>
        <translation>
            <numerusform>%n Batteriezelle</numerusform>
            <numerusform>%n Batteriezellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n batteries, as symbols</source>
        <translation>
            <numerusform>%n Batterie als Schaltzeichen</numerusform>
            <numerusform>%n Batterien als Schaltzeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n beakers</source>
        <translation>
            <numerusform>%n Becherglas</numerusform>
            <numerusform>%n Bechergläser</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n benzene rings</source>
        <translation>
            <numerusform>%n Benzolring</numerusform>
            <numerusform>%n Benzolringe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n block arrows</source>
        <translation>
            <numerusform>%n Blockpfeil</numerusform>
            <numerusform>%n Blockpfeile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bonds</source>
        <translation>
            <numerusform>%n Bindung</numerusform>
            <numerusform>%n Bindungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n braces</source>
        <translation>
            <numerusform>%n geschweifte Klammer</numerusform>
            <numerusform>%n geschweifte Klammern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n brackets</source>
        <translation>
            <numerusform>%n Klammer</numerusform>
            <numerusform>%n Klammern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n brush strokes</source>
        <translation>
            <numerusform>%n Pinselstrich</numerusform>
            <numerusform>%n Pinselstriche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bubbles</source>
        <translation>
            <numerusform>%n Blase</numerusform>
            <numerusform>%n Blasen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bullets</source>
        <translation>
            <numerusform>%n Geschoss</numerusform>
            <numerusform>%n Geschosse</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n burette clamps</source>
        <translation>
            <numerusform>%n Bürettenklemme</numerusform>
            <numerusform>%n Bürettenklemmen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n burning spoons</source>
        <translation>
            <numerusform>%n Verbrennungslöffel</numerusform>
            <numerusform>%n Verbrennungslöffel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n callouts with arrows</source>
        <translation>
            <numerusform>%n Legende mit Pfeil</numerusform>
            <numerusform>%n Legenden mit Pfeil</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n candles</source>
        <translation>
            <numerusform>%n Kerze</numerusform>
            <numerusform>%n Kerzen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n capacitors</source>
        <translation>
            <numerusform>%n Kondensator</numerusform>
            <numerusform>%n Kondensatoren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cards to turn</source>
        <translation>
            <numerusform>%n Wendekarte</numerusform>
            <numerusform>%n Wendekarten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of cards</source>
        <translation>
            <numerusform>%n Kartensatz</numerusform>
            <numerusform>%n Kartensätze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n chalk strokes</source>
        <translation>
            <numerusform>%n Kreidestrich</numerusform>
            <numerusform>%n Kreidestriche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n characters with pinyin</source>
        <translation>
            <numerusform>%n Schriftzeichen mit Pinyin</numerusform>
            <numerusform>%n Schriftzeichen mit Pinyin</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Chinese characters</source>
        <translation>
            <numerusform>%n chinesisches Schriftzeichen</numerusform>
            <numerusform>%n chinesische Schriftzeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n circles</source>
        <translation>
            <numerusform>%n Kreis</numerusform>
            <numerusform>%n Kreise</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clouds</source>
        <translation>
            <numerusform>%n Wolke</numerusform>
            <numerusform>%n Wolken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n coils</source>
        <translation>
            <numerusform>%n Spule</numerusform>
            <numerusform>%n Spulen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n compass needles</source>
        <translation>
            <numerusform>%n Magnetnadel</numerusform>
            <numerusform>%n Magnetnadeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pairs of compasses</source>
        <translation>
            <numerusform>%n Zirkel</numerusform>
            <numerusform>%n Zirkel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concave lenses</source>
        <translation>
            <numerusform>%n Zerstreuungslinse</numerusform>
            <numerusform>%n Zerstreuungslinsen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concave lenses, as symbols</source>
        <translation>
            <numerusform>%n Zerstreuungslinse als Zeichen</numerusform>
            <numerusform>%n Zerstreuungslinsen als Zeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n condensers</source>
        <translation>
            <numerusform>%n Kühler</numerusform>
            <numerusform>%n Kühler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cones</source>
        <translation>
            <numerusform>%n Kegel</numerusform>
            <numerusform>%n Kegel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n conical flasks</source>
        <translation>
            <numerusform>%n Erlenmeyerkolben</numerusform>
            <numerusform>%n Erlenmeyerkolben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n connecting lines</source>
        <translation>
            <numerusform>%n Verbindungslinie</numerusform>
            <numerusform>%n Verbindungslinien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n convex lenses</source>
        <translation>
            <numerusform>%n Sammellinse</numerusform>
            <numerusform>%n Sammellinsen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n convex lenses, as symbols</source>
        <translation>
            <numerusform>%n Sammellinse als Zeichen</numerusform>
            <numerusform>%n Sammellinsen als Zeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n conveyor belts</source>
        <translation>
            <numerusform>%n Förderband</numerusform>
            <numerusform>%n Förderbänder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n coordinates with functions</source>
        <translation>
            <numerusform>%n Koordinatensystem mit Funktionen</numerusform>
            <numerusform>%n Koordinatensysteme mit Funktionen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n coordinates with parametric curves</source>
        <translation>
            <numerusform>%n Koordinatensystem mit Parameterkurven</numerusform>
            <numerusform>%n Koordinatensysteme mit Parameterkurven</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n copies of shapes</source>
        <translation>
            <numerusform>%n Kopie einer Form</numerusform>
            <numerusform>%n Kopien von Formen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n crosses</source>
        <translation>
            <numerusform>%n Kreuz</numerusform>
            <numerusform>%n Kreuze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cubes</source>
        <translation>
            <numerusform>%n Würfel</numerusform>
            <numerusform>%n Würfel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n curtains</source>
        <translation>
            <numerusform>%n Vorhang</numerusform>
            <numerusform>%n Vorhänge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n curved arrows</source>
        <translation>
            <numerusform>%n gebogener Pfeil</numerusform>
            <numerusform>%n gebogene Pfeile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n curved slides</source>
        <translation>
            <numerusform>%n gebogene Rutsche</numerusform>
            <numerusform>%n gebogene Rutschen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cylinders</source>
        <translation>
            <numerusform>%n Zylinder</numerusform>
            <numerusform>%n Zylinder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cylinders with a piston</source>
        <translation>
            <numerusform>%n Zylinder mit Kolben</numerusform>
            <numerusform>%n Zylinder mit Kolben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n direct current motors</source>
        <translation>
            <numerusform>%n Gleichstrommotor</numerusform>
            <numerusform>%n Gleichstrommotoren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n distances</source>
        <translation>
            <numerusform>%n Abstand</numerusform>
            <numerusform>%n Abstände</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n division signs</source>
        <translation>
            <numerusform>%n Divisionszeichen</numerusform>
            <numerusform>%n Divisionszeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n documents</source>
        <translation>
            <numerusform>%n Dokument</numerusform>
            <numerusform>%n Dokumente</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drainage tubes</source>
        <translation>
            <numerusform>%n Ableitungsrohr</numerusform>
            <numerusform>%n Ableitungsrohre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drops of water</source>
        <translation>
            <numerusform>%n Wassertropfen</numerusform>
            <numerusform>%n Wassertropfen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n droppers</source>
        <translation>
            <numerusform>%n Tropfpipette</numerusform>
            <numerusform>%n Tropfpipetten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drying bulbs</source>
        <translation>
            <numerusform>%n Trockenkugel</numerusform>
            <numerusform>%n Trockenkugeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n earth connections</source>
        <translation>
            <numerusform>%n Erdung</numerusform>
            <numerusform>%n Erdungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electric bells</source>
        <translation>
            <numerusform>%n elektrische Klingel</numerusform>
            <numerusform>%n elektrische Klingeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electric charges</source>
        <translation>
            <numerusform>%n elektrische Ladung</numerusform>
            <numerusform>%n elektrische Ladungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electric fields</source>
        <translation>
            <numerusform>%n elektrisches Feld</numerusform>
            <numerusform>%n elektrische Felder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electrons</source>
        <translation>
            <numerusform>%n Elektron</numerusform>
            <numerusform>%n Elektronen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electron transfers</source>
        <translation>
            <numerusform>%n Elektronenübergang</numerusform>
            <numerusform>%n Elektronenübergänge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ellipses</source>
        <translation>
            <numerusform>%n Ellipse</numerusform>
            <numerusform>%n Ellipsen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n equals signs</source>
        <translation>
            <numerusform>%n Gleichheitszeichen</numerusform>
            <numerusform>%n Gleichheitszeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n equilateral triangles</source>
        <translation>
            <numerusform>%n gleichseitiges Dreieck</numerusform>
            <numerusform>%n gleichseitige Dreiecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n evaporating dishes</source>
        <translation>
            <numerusform>%n Abdampfschale</numerusform>
            <numerusform>%n Abdampfschalen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n explosions</source>
        <translation>
            <numerusform>%n Explosion</numerusform>
            <numerusform>%n Explosionen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n expressions</source>
        <translation>
            <numerusform>%n Ausdruck</numerusform>
            <numerusform>%n Ausdrücke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n films</source>
        <translation>
            <numerusform>%n Film</numerusform>
            <numerusform>%n Filme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n first players</source>
        <translation>
            <numerusform>%n erster Spieler</numerusform>
            <numerusform>%n erste Spieler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n five-pointed stars</source>
        <translation>
            <numerusform>%n fünfzackiger Stern</numerusform>
            <numerusform>%n fünfzackige Sterne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flags</source>
        <translation>
            <numerusform>%n Fahne</numerusform>
            <numerusform>%n Fahnen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flames</source>
        <translation>
            <numerusform>%n Flamme</numerusform>
            <numerusform>%n Flammen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Flash films</source>
        <translation>
            <numerusform>%n Flash-Film</numerusform>
            <numerusform>%n Flash-Filme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flasks</source>
        <translation>
            <numerusform>%n Kolben</numerusform>
            <numerusform>%n Kolben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n forces</source>
        <translation>
            <numerusform>%n Kraft</numerusform>
            <numerusform>%n Kräfte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n formulas</source>
        <translation>
            <numerusform>%n Formel</numerusform>
            <numerusform>%n Formeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n free drawings</source>
        <translation>
            <numerusform>%n Freihandzeichnung</numerusform>
            <numerusform>%n Freihandzeichnungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frustums of cones</source>
        <translation>
            <numerusform>%n Kegelstumpf</numerusform>
            <numerusform>%n Kegelstümpfe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frustums of pyramids</source>
        <translation>
            <numerusform>%n Pyramidenstumpf</numerusform>
            <numerusform>%n Pyramidenstümpfe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n funnels</source>
        <translation>
            <numerusform>%n Trichter</numerusform>
            <numerusform>%n Trichter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n galvanometers</source>
        <translation>
            <numerusform>%n Galvanometer</numerusform>
            <numerusform>%n Galvanometer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gaps to fill</source>
        <translation>
            <numerusform>%n Lücke zum Füllen</numerusform>
            <numerusform>%n Lücken zum Füllen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gas jars</source>
        <translation>
            <numerusform>%n Gassammelglas</numerusform>
            <numerusform>%n Gassammelgläser</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass delivery tubes</source>
        <translation>
            <numerusform>%n gläsernes Gasableitungsrohr</numerusform>
            <numerusform>%n gläserne Gasableitungsrohre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass rods</source>
        <translation>
            <numerusform>%n Glasstab</numerusform>
            <numerusform>%n Glasstäbe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass stoppers</source>
        <translation>
            <numerusform>%n Glasstopfen</numerusform>
            <numerusform>%n Glasstopfen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass tubes</source>
        <translation>
            <numerusform>%n Glasrohr</numerusform>
            <numerusform>%n Glasrohre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n grooves</source>
        <translation>
            <numerusform>%n Mulde</numerusform>
            <numerusform>%n Mulden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n groups</source>
        <translation>
            <numerusform>%n Gruppe</numerusform>
            <numerusform>%n Gruppen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n halves of concave lenses</source>
        <translation>
            <numerusform>%n halbe Zerstreuungslinse</numerusform>
            <numerusform>%n halbe Zerstreuungslinsen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n halves of convex lenses</source>
        <translation>
            <numerusform>%n halbe Sammellinse</numerusform>
            <numerusform>%n halbe Sammellinsen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n half spheres</source>
        <translation>
            <numerusform>%n Halbkugel</numerusform>
            <numerusform>%n Halbkugeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n handwritten formulas</source>
        <translation>
            <numerusform>%n handgeschriebene Formel</numerusform>
            <numerusform>%n handgeschriebene Formeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hearts</source>
        <translation>
            <numerusform>%n Herz</numerusform>
            <numerusform>%n Herzen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hexagons</source>
        <translation>
            <numerusform>%n Sechseck</numerusform>
            <numerusform>%n Sechsecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n highlighter strokes</source>
        <translation>
            <numerusform>%n Textmarkerstrich</numerusform>
            <numerusform>%n Textmarkerstriche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hooked weights</source>
        <translation>
            <numerusform>%n Hakengewicht</numerusform>
            <numerusform>%n Hakengewichte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n horseshoe magnets</source>
        <translation>
            <numerusform>%n Hufeisenmagnet</numerusform>
            <numerusform>%n Hufeisenmagnete</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n inclined planes</source>
        <translation>
            <numerusform>%n schiefe Ebene</numerusform>
            <numerusform>%n schiefe Ebenen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pairs of intersecting planes</source>
        <translation>
            <numerusform>%n Paar sich schneidender Ebenen</numerusform>
            <numerusform>%n Paare sich schneidender Ebenen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n iron cores</source>
        <translation>
            <numerusform>%n Eisenkern</numerusform>
            <numerusform>%n Eisenkerne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n iron stands</source>
        <translation>
            <numerusform>%n Eisenstativ</numerusform>
            <numerusform>%n Eisenstative</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items of subjects</source>
        <translation>
            <numerusform>%n Element eines Fachs</numerusform>
            <numerusform>%n Elemente eines Fachs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Kipp&apos;s apparatuses</source>
        <translation>
            <numerusform>%n Kippscher Apparat</numerusform>
            <numerusform>%n Kippsche Apparate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n knife switches</source>
        <translation>
            <numerusform>%n Messerschalter</numerusform>
            <numerusform>%n Messerschalter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n knobs</source>
        <translation>
            <numerusform>%n Drehknopf</numerusform>
            <numerusform>%n Drehknöpfe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lamps</source>
        <translation>
            <numerusform>%n Lampe</numerusform>
            <numerusform>%n Lampen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lamps, as symbols</source>
        <translation>
            <numerusform>%n Lampe als Schaltzeichen</numerusform>
            <numerusform>%n Lampen als Schaltzeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n levers</source>
        <translation>
            <numerusform>%n Hebel</numerusform>
            <numerusform>%n Hebel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bolts of lightning</source>
        <translation>
            <numerusform>%n Blitz</numerusform>
            <numerusform>%n Blitze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines of segments</source>
        <translation>
            <numerusform>%n Streckenzug</numerusform>
            <numerusform>%n Streckenzüge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>%n Verknüpfung</numerusform>
            <numerusform>%n Verknüpfungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n long-necked funnels</source>
        <translation>
            <numerusform>%n Langhalstrichter</numerusform>
            <numerusform>%n Langhalstrichter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n loudspeakers</source>
        <translation>
            <numerusform>%n Lautsprecher</numerusform>
            <numerusform>%n Lautsprecher</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n magnetic fields</source>
        <translation>
            <numerusform>%n Magnetfeld</numerusform>
            <numerusform>%n Magnetfelder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n measured segments</source>
        <translation>
            <numerusform>%n gemessene Strecke</numerusform>
            <numerusform>%n gemessene Strecken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n measured triangles</source>
        <translation>
            <numerusform>%n gemessenes Dreieck</numerusform>
            <numerusform>%n gemessene Dreiecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n measuring cylinders</source>
        <translation>
            <numerusform>%n Messzylinder</numerusform>
            <numerusform>%n Messzylinder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n meters</source>
        <translation>
            <numerusform>%n Messgerät</numerusform>
            <numerusform>%n Messgeräte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n mind maps</source>
        <translation>
            <numerusform>%n Mindmap</numerusform>
            <numerusform>%n Mindmaps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minus signs</source>
        <translation>
            <numerusform>%n Minuszeichen</numerusform>
            <numerusform>%n Minuszeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n moons</source>
        <translation>
            <numerusform>%n Mond</numerusform>
            <numerusform>%n Monde</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n moving worksheets</source>
        <translation>
            <numerusform>%n bewegtes Arbeitsblatt</numerusform>
            <numerusform>%n bewegte Arbeitsblätter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n multiplication signs</source>
        <translation>
            <numerusform>%n Malzeichen</numerusform>
            <numerusform>%n Malzeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not-equals signs</source>
        <translation>
            <numerusform>%n Ungleichheitszeichen</numerusform>
            <numerusform>%n Ungleichheitszeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n one-to-many lines</source>
        <translation>
            <numerusform>%n Linie von einem zu vielen</numerusform>
            <numerusform>%n Linien von einem zu vielen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n one-sided arrows</source>
        <translation>
            <numerusform>%n einseitiger Pfeil</numerusform>
            <numerusform>%n einseitige Pfeile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n Blatt</numerusform>
            <numerusform>%n Blätter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parallelograms</source>
        <translation>
            <numerusform>%n Parallelogramm</numerusform>
            <numerusform>%n Parallelogramme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parts of sentences</source>
        <translation>
            <numerusform>%n Satzteil</numerusform>
            <numerusform>%n Satzteile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pen strokes</source>
        <translation>
            <numerusform>%n Stiftstrich</numerusform>
            <numerusform>%n Stiftstriche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pentagons</source>
        <translation>
            <numerusform>%n Fünfeck</numerusform>
            <numerusform>%n Fünfecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces for gaps</source>
        <translation>
            <numerusform>%n Teil für eine Lücke</numerusform>
            <numerusform>%n Teile für Lücken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of contests</source>
        <translation>
            <numerusform>%n Teil eines Wettkampfs</numerusform>
            <numerusform>%n Teile von Wettkämpfen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of games</source>
        <translation>
            <numerusform>%n Spielteil</numerusform>
            <numerusform>%n Spielteile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces to compare</source>
        <translation>
            <numerusform>%n Vergleichsteil</numerusform>
            <numerusform>%n Vergleichsteile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of pinyin</source>
        <translation>
            <numerusform>%n Pinyin-Text</numerusform>
            <numerusform>%n Pinyin-Texte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of pinyin letters</source>
        <translation>
            <numerusform>%n Satz Pinyin-Buchstaben</numerusform>
            <numerusform>%n Sätze Pinyin-Buchstaben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n places of sentences</source>
        <translation>
            <numerusform>%n Platz für einen Satz</numerusform>
            <numerusform>%n Plätze für Sätze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n places to compare</source>
        <translation>
            <numerusform>%n Vergleichsplatz</numerusform>
            <numerusform>%n Vergleichsplätze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n planes</source>
        <translation>
            <numerusform>%n Ebene</numerusform>
            <numerusform>%n Ebenen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n plus signs</source>
        <translation>
            <numerusform>%n Pluszeichen</numerusform>
            <numerusform>%n Pluszeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n Punkt</numerusform>
            <numerusform>%n Punkte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n systems of polar coordinates</source>
        <translation>
            <numerusform>%n Polarkoordinatensystem</numerusform>
            <numerusform>%n Polarkoordinatensysteme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n prisms</source>
        <translation>
            <numerusform>%n Prisma</numerusform>
            <numerusform>%n Prismen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n propellers</source>
        <translation>
            <numerusform>%n Propeller</numerusform>
            <numerusform>%n Propeller</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n protractors</source>
        <translation>
            <numerusform>%n Winkelmesser</numerusform>
            <numerusform>%n Winkelmesser</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pulleys</source>
        <translation>
            <numerusform>%n Rolle</numerusform>
            <numerusform>%n Rollen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pulley blocks</source>
        <translation>
            <numerusform>%n Flaschenzug</numerusform>
            <numerusform>%n Flaschenzüge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pyramids</source>
        <translation>
            <numerusform>%n Pyramide</numerusform>
            <numerusform>%n Pyramiden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n quadrangles</source>
        <translation>
            <numerusform>%n Viereck</numerusform>
            <numerusform>%n Vierecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n questions</source>
        <translation>
            <numerusform>%n Frage</numerusform>
            <numerusform>%n Fragen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reagent bottles</source>
        <translation>
            <numerusform>%n Reagenzienflasche</numerusform>
            <numerusform>%n Reagenzienflaschen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rectangles</source>
        <translation>
            <numerusform>%n Rechteck</numerusform>
            <numerusform>%n Rechtecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular heptagons</source>
        <translation>
            <numerusform>%n regelmäßiges Siebeneck</numerusform>
            <numerusform>%n regelmäßige Siebenecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular hexagons</source>
        <translation>
            <numerusform>%n regelmäßiges Sechseck</numerusform>
            <numerusform>%n regelmäßige Sechsecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular octagons</source>
        <translation>
            <numerusform>%n regelmäßiges Achteck</numerusform>
            <numerusform>%n regelmäßige Achtecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular pentagons</source>
        <translation>
            <numerusform>%n regelmäßiges Fünfeck</numerusform>
            <numerusform>%n regelmäßige Fünfecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n resistors</source>
        <translation>
            <numerusform>%n Widerstand</numerusform>
            <numerusform>%n Widerstände</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n retorts</source>
        <translation>
            <numerusform>%n Retorte</numerusform>
            <numerusform>%n Retorten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rhombuses</source>
        <translation>
            <numerusform>%n Raute</numerusform>
            <numerusform>%n Rauten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n round brackets</source>
        <translation>
            <numerusform>%n runde Klammer</numerusform>
            <numerusform>%n runde Klammern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n round grooves</source>
        <translation>
            <numerusform>%n runde Mulde</numerusform>
            <numerusform>%n runde Mulden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n round separating funnels</source>
        <translation>
            <numerusform>%n runder Scheidetrichter</numerusform>
            <numerusform>%n runde Scheidetrichter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rounded rectangles</source>
        <translation>
            <numerusform>%n abgerundetes Rechteck</numerusform>
            <numerusform>%n abgerundete Rechtecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n traces of rubbed out ink</source>
        <translation>
            <numerusform>%n Radierspur</numerusform>
            <numerusform>%n Radierspuren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rubber tubes</source>
        <translation>
            <numerusform>%n Gummischlauch</numerusform>
            <numerusform>%n Gummischläuche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rulers</source>
        <translation>
            <numerusform>%n Lineal</numerusform>
            <numerusform>%n Lineale</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scales</source>
        <translation>
            <numerusform>%n Skala</numerusform>
            <numerusform>%n Skalen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scores</source>
        <translation>
            <numerusform>%n Punktestand</numerusform>
            <numerusform>%n Punktestände</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second players</source>
        <translation>
            <numerusform>%n zweiter Spieler</numerusform>
            <numerusform>%n zweite Spieler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sectors</source>
        <translation>
            <numerusform>%n Kreisausschnitt</numerusform>
            <numerusform>%n Kreisausschnitte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n segments</source>
        <translation>
            <numerusform>%n Strecke</numerusform>
            <numerusform>%n Strecken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n separating funnels</source>
        <translation>
            <numerusform>%n Scheidetrichter</numerusform>
            <numerusform>%n Scheidetrichter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n set squares of 30 and 60 degrees</source>
        <translation>
            <numerusform>%n Zeichendreieck mit 30 und 60 Grad</numerusform>
            <numerusform>%n Zeichendreiecke mit 30 und 60 Grad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n set squares of 45 degrees</source>
        <translation>
            <numerusform>%n Zeichendreieck mit 45 Grad</numerusform>
            <numerusform>%n Zeichendreiecke mit 45 Grad</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shapes</source>
        <translation>
            <numerusform>%n Form</numerusform>
            <numerusform>%n Formen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sliding resistors</source>
        <translation>
            <numerusform>%n Schiebewiderstand</numerusform>
            <numerusform>%n Schiebewiderstände</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sliding resistors, as symbols</source>
        <translation>
            <numerusform>%n Schiebewiderstand als Schaltzeichen</numerusform>
            <numerusform>%n Schiebewiderstände als Schaltzeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slopes</source>
        <translation>
            <numerusform>%n Hang</numerusform>
            <numerusform>%n Hänge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n smileys</source>
        <translation>
            <numerusform>%n Smiley</numerusform>
            <numerusform>%n Smileys</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n solids</source>
        <translation>
            <numerusform>%n Feststoff</numerusform>
            <numerusform>%n Feststoffe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sounds</source>
        <translation>
            <numerusform>%n Ton</numerusform>
            <numerusform>%n Töne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spatulas</source>
        <translation>
            <numerusform>%n Spatel</numerusform>
            <numerusform>%n Spatel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n speech bubbles</source>
        <translation>
            <numerusform>%n Sprechblase</numerusform>
            <numerusform>%n Sprechblasen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spheres</source>
        <translation>
            <numerusform>%n Kugel (Körper)</numerusform>
            <numerusform>%n Kugeln (Körper)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spirit lamps</source>
        <translation>
            <numerusform>%n Spiritusbrenner</numerusform>
            <numerusform>%n Spiritusbrenner</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spotlights</source>
        <translation>
            <numerusform>%n Scheinwerfer</numerusform>
            <numerusform>%n Scheinwerfer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n springs</source>
        <translation>
            <numerusform>%n Feder</numerusform>
            <numerusform>%n Federn</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spring balances</source>
        <translation>
            <numerusform>%n Federwaage</numerusform>
            <numerusform>%n Federwaagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n squares</source>
        <translation>
            <numerusform>%n Quadrat</numerusform>
            <numerusform>%n Quadrate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n square brackets</source>
        <translation>
            <numerusform>%n eckige Klammer</numerusform>
            <numerusform>%n eckige Klammern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stamps</source>
        <translation>
            <numerusform>%n Stempel</numerusform>
            <numerusform>%n Stempel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stands for optics</source>
        <translation>
            <numerusform>%n Stativ für Optik</numerusform>
            <numerusform>%n Stative für Optik</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n Stern</numerusform>
            <numerusform>%n Sterne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stoppers</source>
        <translation>
            <numerusform>%n Stopfen</numerusform>
            <numerusform>%n Stopfen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n straight arrows</source>
        <translation>
            <numerusform>%n gerader Pfeil</numerusform>
            <numerusform>%n gerade Pfeile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of strokes of a character</source>
        <translation>
            <numerusform>%n Strichfolge eines Schriftzeichens</numerusform>
            <numerusform>%n Strichfolgen von Schriftzeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n switches</source>
        <translation>
            <numerusform>%n Schalter</numerusform>
            <numerusform>%n Schalter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n test tubes</source>
        <translation>
            <numerusform>%n Reagenzglas</numerusform>
            <numerusform>%n Reagenzgläser</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n test tube clamps</source>
        <translation>
            <numerusform>%n Reagenzglasklammer</numerusform>
            <numerusform>%n Reagenzglasklammern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n test tube racks</source>
        <translation>
            <numerusform>%n Reagenzglasständer</numerusform>
            <numerusform>%n Reagenzglasständer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tetrahedra</source>
        <translation>
            <numerusform>%n Tetraeder</numerusform>
            <numerusform>%n Tetraeder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts</source>
        <translation>
            <numerusform>%n Text</numerusform>
            <numerusform>%n Texte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts to read aloud</source>
        <translation>
            <numerusform>%n Text zum Vorlesen</numerusform>
            <numerusform>%n Texte zum Vorlesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n textured strokes</source>
        <translation>
            <numerusform>%n Strich mit Muster</numerusform>
            <numerusform>%n Striche mit Muster</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n thermometers</source>
        <translation>
            <numerusform>%n Thermometer</numerusform>
            <numerusform>%n Thermometer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of things to connect</source>
        <translation>
            <numerusform>%n Satz zum Verbinden</numerusform>
            <numerusform>%n Sätze zum Verbinden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of things to sort</source>
        <translation>
            <numerusform>%n Satz zum Sortieren</numerusform>
            <numerusform>%n Sätze zum Sortieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ticks</source>
        <translation>
            <numerusform>%n Haken</numerusform>
            <numerusform>%n Haken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tiles</source>
        <translation>
            <numerusform>%n Ziegel</numerusform>
            <numerusform>%n Ziegel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tips for reading aloud</source>
        <translation>
            <numerusform>%n Hinweis zum Vorlesen</numerusform>
            <numerusform>%n Hinweise zum Vorlesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tips of games</source>
        <translation>
            <numerusform>%n Spielhinweis</numerusform>
            <numerusform>%n Spielhinweise</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trapeziums</source>
        <translation>
            <numerusform>%n Trapez</numerusform>
            <numerusform>%n Trapeze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n triangles</source>
        <translation>
            <numerusform>%n Dreieck</numerusform>
            <numerusform>%n Dreiecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tripods</source>
        <translation>
            <numerusform>%n Dreifuß</numerusform>
            <numerusform>%n Dreifüße</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trolleys</source>
        <translation>
            <numerusform>%n Wagen</numerusform>
            <numerusform>%n Wagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pairs of tweezers</source>
        <translation>
            <numerusform>%n Pinzette</numerusform>
            <numerusform>%n Pinzetten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n two-way switches</source>
        <translation>
            <numerusform>%n Wechselschalter</numerusform>
            <numerusform>%n Wechselschalter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n U-tubes</source>
        <translation>
            <numerusform>%n U-Rohr</numerusform>
            <numerusform>%n U-Rohre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n vernier calipers</source>
        <translation>
            <numerusform>%n Messschieber</numerusform>
            <numerusform>%n Messschieber</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n voltmeters</source>
        <translation>
            <numerusform>%n Voltmeter</numerusform>
            <numerusform>%n Voltmeter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n voltmeters with a scale</source>
        <translation>
            <numerusform>%n Voltmeter mit Skala</numerusform>
            <numerusform>%n Voltmeter mit Skala</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n volumetric flasks</source>
        <translation>
            <numerusform>%n Messkolben</numerusform>
            <numerusform>%n Messkolben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n water troughs</source>
        <translation>
            <numerusform>%n Wasserwanne</numerusform>
            <numerusform>%n Wasserwannen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n waves</source>
        <translation>
            <numerusform>%n Welle</numerusform>
            <numerusform>%n Wellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n weights</source>
        <translation>
            <numerusform>%n Gewichtsstück</numerusform>
            <numerusform>%n Gewichtsstücke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wires</source>
        <translation>
            <numerusform>%n Draht</numerusform>
            <numerusform>%n Drähte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wire gauzes</source>
        <translation>
            <numerusform>%n Drahtnetz</numerusform>
            <numerusform>%n Drahtnetze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wooden blocks</source>
        <translation>
            <numerusform>%n Holzklotz</numerusform>
            <numerusform>%n Holzklötze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wooden rods</source>
        <translation>
            <numerusform>%n Holzstab</numerusform>
            <numerusform>%n Holzstäbe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of word art</source>
        <translation>
            <numerusform>%n Schriftzug</numerusform>
            <numerusform>%n Schriftzüge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n words with phonetics</source>
        <translation>
            <numerusform>%n Wort mit Lautschrift</numerusform>
            <numerusform>%n Wörter mit Lautschrift</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of words in squares</source>
        <translation>
            <numerusform>%n Satz Wörter in Kästchen</numerusform>
            <numerusform>%n Sätze Wörter in Kästchen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>kind of item</source>
        <translation>Art des Elements</translation>
    </message>
    <message>
        <source>setting of the editor</source>
        <translation>Einstellung des Editors</translation>
    </message>
    <message>
        <source>whether it is shown</source>
        <translation>ob es gezeigt wird</translation>
    </message>
    <message>
        <source>lock</source>
        <translation>Sperre</translation>
    </message>
    <message>
        <source>copies without end</source>
        <translation>endlose Kopien</translation>
    </message>
    <message>
        <source>mark of the eraser</source>
        <translation>Merkmal für den Radierer</translation>
    </message>
    <message>
        <source>link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>place and size</source>
        <translation>Ort und Größe</translation>
    </message>
    <message>
        <source>place and size in the file</source>
        <translation>Ort und Größe in der Datei</translation>
    </message>
    <message>
        <source>turn and stretch</source>
        <translation>Drehung und Streckung</translation>
    </message>
    <message>
        <source>how the slide was fitted to the page</source>
        <translation>wie die Folie in die Seite gepasst wurde</translation>
    </message>
    <message>
        <source>turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>mirroring</source>
        <translation>Spiegelung</translation>
    </message>
    <message>
        <source>points of the shape</source>
        <translation>Punkte der Form</translation>
    </message>
    <message>
        <source>points of the shape in the file</source>
        <translation>Punkte der Form in der Datei</translation>
    </message>
    <message>
        <source>items in it</source>
        <translation>Elemente darin</translation>
    </message>
    <message>
        <source>item as it came</source>
        <translation>Element im Original</translation>
    </message>
    <message>
        <source>cover</source>
        <translation>Abdeckung</translation>
    </message>
    <message>
        <source>where it was made</source>
        <translation>wo es entstand</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>files of the item</source>
        <translation>Dateien des Elements</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>picture or document</source>
        <translation>Bild oder Dokument</translation>
    </message>
    <message>
        <source>picture of the background</source>
        <translation>Hintergrundbild</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>colour of the fill</source>
        <translation>Füllfarbe</translation>
    </message>
    <message>
        <source>colour of the line</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>width of the line</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>how the colour shines through</source>
        <translation>wie die Farbe durchscheint</translation>
    </message>
    <message>
        <source>dashes of the line</source>
        <translation>Strichelung der Linie</translation>
    </message>
    <message>
        <source>ends of the line</source>
        <translation>Linienenden</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>version of the file</source>
        <translation>Version der Datei</translation>
    </message>
    <message>
        <source>version of the editor</source>
        <translation>Version des Editors</translation>
    </message>
    <message>
        <source>title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>size of the page</source>
        <translation>Größe der Seite</translation>
    </message>
    <message>
        <source>colour of the background</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>paper of the background</source>
        <translation>Papier des Hintergrunds</translation>
    </message>
    <message>
        <source>how the background lies</source>
        <translation>Lage des Hintergrunds</translation>
    </message>
    <message>
        <source>change to the next slide</source>
        <translation>Wechsel zur nächsten Folie</translation>
    </message>
    <message>
        <source>game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>pictures of the game</source>
        <translation>Bilder des Spiels</translation>
    </message>
    <message>
        <source>slides</source>
        <translation>Folien</translation>
    </message>
    <message>
        <source>items</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>width along the stroke</source>
        <translation>Breite entlang des Strichs</translation>
    </message>
    <message>
        <source>when each point was drawn</source>
        <translation>wann jeder Punkt gezeichnet wurde</translation>
    </message>
    <message>
        <source>pressure of the pen</source>
        <translation>Druck des Stifts</translation>
    </message>
    <message>
        <source>picture of the stroke</source>
        <translation>Bild des Strichs</translation>
    </message>
    <message>
        <source>picture of the stamp</source>
        <translation>Bild des Stempels</translation>
    </message>
    <message>
        <source>what was rubbed out</source>
        <translation>was ausradiert wurde</translation>
    </message>
    <message>
        <source>how the formula was written</source>
        <translation>wie die Formel geschrieben wurde</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>colour behind the text</source>
        <translation>Farbe hinter dem Text</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>scale at the beginning</source>
        <translation>Maßstab am Anfang</translation>
    </message>
    <message>
        <source>height of the text</source>
        <translation>Höhe des Textes</translation>
    </message>
    <message>
        <source>how the text is aligned</source>
        <translation>Ausrichtung des Textes</translation>
    </message>
    <message>
        <source>colour of the text</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>size of the letters</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>font of the front</source>
        <translation>Schrift der Vorderseite</translation>
    </message>
    <message>
        <source>font of the back</source>
        <translation>Schrift der Rückseite</translation>
    </message>
    <message>
        <source>text of the front</source>
        <translation>Text der Vorderseite</translation>
    </message>
    <message>
        <source>front</source>
        <translation>Vorderseite</translation>
    </message>
    <message>
        <source>back</source>
        <translation>Rückseite</translation>
    </message>
    <message>
        <source>width of the text</source>
        <translation>Breite des Textes</translation>
    </message>
    <message>
        <source>colour of the character</source>
        <translation>Farbe des Schriftzeichens</translation>
    </message>
    <message>
        <source>whether it plays by itself</source>
        <translation>ob es von selbst spielt</translation>
    </message>
    <message>
        <source>whether it plays again</source>
        <translation>ob es wieder spielt</translation>
    </message>
    <message>
        <source>whether it is silent</source>
        <translation>ob es stumm ist</translation>
    </message>
    <message>
        <source>loudness</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>length of the sound</source>
        <translation>Länge des Tons</translation>
    </message>
    <message>
        <source>length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>whether its name is shown</source>
        <translation>ob sein Name gezeigt wird</translation>
    </message>
    <message>
        <source>what is cut off</source>
        <translation>was abgeschnitten ist</translation>
    </message>
    <message>
        <source>how it shines through</source>
        <translation>wie es durchscheint</translation>
    </message>
    <message>
        <source>edge</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>kind of file</source>
        <translation>Art der Datei</translation>
    </message>
    <message>
        <source>whether it is filled</source>
        <translation>ob es gefüllt ist</translation>
    </message>
    <message>
        <source>kind of fill</source>
        <translation>Art der Füllung</translation>
    </message>
    <message>
        <source>form of the line</source>
        <translation>Form der Linie</translation>
    </message>
    <message>
        <source>arrowheads</source>
        <translation>Pfeilspitzen</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>number of corners</source>
        <translation>Zahl der Ecken</translation>
    </message>
    <message>
        <source>whether its centre is shown</source>
        <translation>ob die Mitte gezeigt wird</translation>
    </message>
    <message>
        <source>whether its measure is shown</source>
        <translation>ob das Maß gezeigt wird</translation>
    </message>
    <message>
        <source>auxiliary lines</source>
        <translation>Hilfslinien</translation>
    </message>
    <message>
        <source>unit of measures</source>
        <translation>Maßeinheit</translation>
    </message>
    <message>
        <source>digits of measures</source>
        <translation>Stellen der Maße</translation>
    </message>
    <message>
        <source>measures of the shape</source>
        <translation>Maße der Form</translation>
    </message>
    <message>
        <source>scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>kind of path</source>
        <translation>Art des Pfads</translation>
    </message>
    <message>
        <source>drawing of the shape</source>
        <translation>Zeichnung der Form</translation>
    </message>
    <message>
        <source>name of the point</source>
        <translation>Name des Punkts</translation>
    </message>
    <message>
        <source>angles of the arc</source>
        <translation>Winkel des Bogens</translation>
    </message>
    <message>
        <source>function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>colour of the function</source>
        <translation>Farbe der Funktion</translation>
    </message>
    <message>
        <source>whether the function is shown</source>
        <translation>ob die Funktion gezeigt wird</translation>
    </message>
    <message>
        <source>whether the axes are shown</source>
        <translation>ob die Achsen gezeigt werden</translation>
    </message>
    <message>
        <source>setting of the axes</source>
        <translation>Einstellung der Achsen</translation>
    </message>
    <message>
        <source>range of the curve</source>
        <translation>Bereich der Kurve</translation>
    </message>
    <message>
        <source>unit of the axes</source>
        <translation>Einheit der Achsen</translation>
    </message>
    <message>
        <source>lid</source>
        <translation>Deckel</translation>
    </message>
    <message>
        <source>direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>flame</source>
        <translation>Flamme</translation>
    </message>
    <message>
        <source>whether it is lit</source>
        <translation>ob es leuchtet</translation>
    </message>
    <message>
        <source>liquid</source>
        <translation>Flüssigkeit</translation>
    </message>
    <message>
        <source>solid in it</source>
        <translation>Feststoff darin</translation>
    </message>
    <message>
        <source>colour of the liquid</source>
        <translation>Farbe der Flüssigkeit</translation>
    </message>
    <message>
        <source>colour of the solid</source>
        <translation>Farbe des Feststoffs</translation>
    </message>
    <message>
        <source>colour of the scale</source>
        <translation>Farbe der Skala</translation>
    </message>
    <message>
        <source>colour of the light</source>
        <translation>Farbe des Lichts</translation>
    </message>
    <message>
        <source>colour of the flame</source>
        <translation>Farbe der Flamme</translation>
    </message>
    <message>
        <source>colour of the poles</source>
        <translation>Farbe der Pole</translation>
    </message>
    <message>
        <source>parts of it</source>
        <translation>Teile davon</translation>
    </message>
    <message>
        <source>shells of the atom</source>
        <translation>Schalen des Atoms</translation>
    </message>
    <message>
        <source>number of forces</source>
        <translation>Zahl der Kräfte</translation>
    </message>
    <message>
        <source>sign of the charge</source>
        <translation>Vorzeichen der Ladung</translation>
    </message>
    <message>
        <source>speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>place of the bracket</source>
        <translation>Ort der Halterung</translation>
    </message>
    <message>
        <source>whether the switch is closed</source>
        <translation>ob der Schalter geschlossen ist</translation>
    </message>
    <message>
        <source>formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>whether the character is shown</source>
        <translation>ob das Schriftzeichen gezeigt wird</translation>
    </message>
    <message>
        <source>word</source>
        <translation>Wort</translation>
    </message>
    <message>
        <source>character</source>
        <translation>Schriftzeichen</translation>
    </message>
    <message>
        <source>pinyin</source>
        <translation>Pinyin</translation>
    </message>
    <message>
        <source>squares</source>
        <translation>Kästchen</translation>
    </message>
    <message>
        <source>lines for writing</source>
        <translation>Schreiblinien</translation>
    </message>
    <message>
        <source>width of a square</source>
        <translation>Breite eines Kästchens</translation>
    </message>
    <message>
        <source>where the word stands</source>
        <translation>wo das Wort steht</translation>
    </message>
    <message>
        <source>whether the word is hidden</source>
        <translation>ob das Wort verborgen ist</translation>
    </message>
    <message>
        <source>how the cover shines through</source>
        <translation>wie die Abdeckung durchscheint</translation>
    </message>
    <message>
        <source>cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>list of the game</source>
        <translation>Liste des Spiels</translation>
    </message>
    <message>
        <source>connections</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <source>things to sort</source>
        <translation>was zu sortieren ist</translation>
    </message>
    <message>
        <source>shape of the light</source>
        <translation>Form des Lichts</translation>
    </message>
    <message>
        <source>place of the light</source>
        <translation>Ort des Lichts</translation>
    </message>
    <message>
        <source>size of the light</source>
        <translation>Größe des Lichts</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>text of the gap</source>
        <translation>Text der Lücke</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>figure of the game</source>
        <translation>Figur des Spiels</translation>
    </message>
    <message>
        <source>place of the text</source>
        <translation>Ort des Textes</translation>
    </message>
    <message>
        <source>whether it can be changed</source>
        <translation>ob es geändert werden kann</translation>
    </message>
    <message>
        <source>kind of worksheet</source>
        <translation>Art des Arbeitsblatts</translation>
    </message>
    <message>
        <source>question of the game</source>
        <translation>Frage des Spiels</translation>
    </message>
    <message>
        <source>sign</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>branches of the mind map</source>
        <translation>Äste der Mindmap</translation>
    </message>
    <message>
        <source>text of the question</source>
        <translation>Text der Frage</translation>
    </message>
    <message>
        <source>answer</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>page that is open</source>
        <translation>aufgeschlagene Seite</translation>
    </message>
    <message>
        <source>size of the question</source>
        <translation>Größe der Frage</translation>
    </message>
    <message>
        <source>pieces of the game</source>
        <translation>Teile des Spiels</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Things to connect</source>
        <translation>Satz zum Verbinden</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>Vorhang</translation>
    </message>
    <message>
        <source>Things to sort</source>
        <translation>Satz zum Sortieren</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Scheinwerfer</translation>
    </message>
    <message>
        <source>Compasses</source>
        <translation>Zirkel</translation>
    </message>
    <message>
        <source>Protractor</source>
        <translation>Winkelmesser</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Set square of 30 and 60 degrees</source>
        <translation>Zeichendreieck mit 30 und 60 Grad</translation>
    </message>
    <message>
        <source>Set square of 45 degrees</source>
        <translation>Zeichendreieck mit 45 Grad</translation>
    </message>
    <message>
        <source>Basket of a game</source>
        <translation>Korb eines Spiels</translation>
    </message>
    <message>
        <source>Place to compare</source>
        <translation>Vergleichsplatz</translation>
    </message>
    <message>
        <source>Gap to fill</source>
        <translation>Lücke zum Füllen</translation>
    </message>
    <message>
        <source>Place of a sentence</source>
        <translation>Platz für einen Satz</translation>
    </message>
    <message>
        <source>Piece of a game</source>
        <translation>Spielteil</translation>
    </message>
    <message>
        <source>Piece to compare</source>
        <translation>Vergleichsteil</translation>
    </message>
    <message>
        <source>Piece of a contest</source>
        <translation>Teil eines Wettkampfs</translation>
    </message>
    <message>
        <source>Piece for a gap</source>
        <translation>Teil für eine Lücke</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Punktestand</translation>
    </message>
    <message>
        <source>Tip of a game</source>
        <translation>Spielhinweis</translation>
    </message>
    <message>
        <source>Part of a sentence</source>
        <translation>Satzteil</translation>
    </message>
    <message>
        <source>First player</source>
        <translation>Erster Spieler</translation>
    </message>
    <message>
        <source>Second player</source>
        <translation>Zweiter Spieler</translation>
    </message>
    <message>
        <source>Card to turn</source>
        <translation>Wendekarte</translation>
    </message>
    <message>
        <source>Text to read aloud</source>
        <translation>Text zum Vorlesen</translation>
    </message>
    <message>
        <source>Tip for reading aloud</source>
        <translation>Hinweis zum Vorlesen</translation>
    </message>
    <message>
        <source>Brace</source>
        <translation>Geschweifte Klammer</translation>
    </message>
    <message>
        <source>Bracket</source>
        <translation>Klammer</translation>
    </message>
    <message>
        <source>Speech bubble</source>
        <translation>Sprechblase</translation>
    </message>
    <message>
        <source>Division sign</source>
        <translation>Divisionszeichen</translation>
    </message>
    <message>
        <source>Arrow with two heads</source>
        <translation>Doppelpfeil</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Equals sign</source>
        <translation>Gleichheitszeichen</translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Fahne</translation>
    </message>
    <message>
        <source>Free drawing</source>
        <translation>Freihandzeichnung</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>Herz</translation>
    </message>
    <message>
        <source>Minus sign</source>
        <translation>Minuszeichen</translation>
    </message>
    <message>
        <source>Multiplication sign</source>
        <translation>Malzeichen</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Parallelogram</source>
        <translation>Parallelogramm</translation>
    </message>
    <message>
        <source>Five-pointed star</source>
        <translation>Fünfzackiger Stern</translation>
    </message>
    <message>
        <source>Plus sign</source>
        <translation>Pluszeichen</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Rhombus</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>Haken</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Trapezium</source>
        <translation>Trapez</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Dreieck</translation>
    </message>
    <message>
        <source>Not-equals sign</source>
        <translation>Ungleichheitszeichen</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>Chalk stroke</source>
        <translation>Kreidestrich</translation>
    </message>
    <message>
        <source>Brush stroke</source>
        <translation>Pinselstrich</translation>
    </message>
    <message>
        <source>Benzene ring</source>
        <translation>Benzolring</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>Glass rod</source>
        <translation>Glasstab</translation>
    </message>
    <message>
        <source>Glass delivery tube</source>
        <translation>Gläsernes Gasableitungsrohr</translation>
    </message>
    <message>
        <source>Glass tube</source>
        <translation>Glasrohr</translation>
    </message>
    <message>
        <source>Glass stopper</source>
        <translation>Glasstopfen</translation>
    </message>
    <message>
        <source>Long-necked funnel</source>
        <translation>Langhalstrichter</translation>
    </message>
    <message>
        <source>Burette clamp</source>
        <translation>Bürettenklemme</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewichtsstück</translation>
    </message>
    <message>
        <source>Separating funnel</source>
        <translation>Scheidetrichter</translation>
    </message>
    <message>
        <source>Flask</source>
        <translation>Kolben</translation>
    </message>
    <message>
        <source>Drying bulb</source>
        <translation>Trockenkugel</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Feststoff</translation>
    </message>
    <message>
        <source>Flame</source>
        <translation>Flamme</translation>
    </message>
    <message>
        <source>Alkali burette</source>
        <translation>Laugenbürette</translation>
    </message>
    <message>
        <source>Gas jar</source>
        <translation>Gassammelglas</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Bindung</translation>
    </message>
    <message>
        <source>Dropper</source>
        <translation>Tropfpipette</translation>
    </message>
    <message>
        <source>Spirit lamp</source>
        <translation>Spiritusbrenner</translation>
    </message>
    <message>
        <source>Condenser</source>
        <translation>Kühler</translation>
    </message>
    <message>
        <source>Measuring cylinder</source>
        <translation>Messzylinder</translation>
    </message>
    <message>
        <source>Funnel</source>
        <translation>Trichter</translation>
    </message>
    <message>
        <source>Wooden block</source>
        <translation>Holzklotz</translation>
    </message>
    <message>
        <source>Stopper</source>
        <translation>Stopfen</translation>
    </message>
    <message>
        <source>Tweezers</source>
        <translation>Pinzette</translation>
    </message>
    <message>
        <source>Bubble</source>
        <translation>Blase</translation>
    </message>
    <message>
        <source>Kipp&apos;s apparatus</source>
        <translation>Kippscher Apparat</translation>
    </message>
    <message>
        <source>Round separating funnel</source>
        <translation>Runder Scheidetrichter</translation>
    </message>
    <message>
        <source>Retort</source>
        <translation>Retorte</translation>
    </message>
    <message>
        <source>Burning spoon</source>
        <translation>Verbrennungslöffel</translation>
    </message>
    <message>
        <source>Volumetric flask</source>
        <translation>Messkolben</translation>
    </message>
    <message>
        <source>Acid burette</source>
        <translation>Säurebürette</translation>
    </message>
    <message>
        <source>Tripod</source>
        <translation>Dreifuß</translation>
    </message>
    <message>
        <source>Beaker</source>
        <translation>Becherglas</translation>
    </message>
    <message>
        <source>Test tube rack</source>
        <translation>Reagenzglasständer</translation>
    </message>
    <message>
        <source>Test tube clamp</source>
        <translation>Reagenzglasklammer</translation>
    </message>
    <message>
        <source>Reagent bottle</source>
        <translation>Reagenzienflasche</translation>
    </message>
    <message>
        <source>Wire gauze</source>
        <translation>Drahtnetz</translation>
    </message>
    <message>
        <source>Test tube</source>
        <translation>Reagenzglas</translation>
    </message>
    <message>
        <source>Electron transfer</source>
        <translation>Elektronenübergang</translation>
    </message>
    <message>
        <source>Water trough</source>
        <translation>Wasserwanne</translation>
    </message>
    <message>
        <source>Drop of water</source>
        <translation>Wassertropfen</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Waage</translation>
    </message>
    <message>
        <source>Iron stand</source>
        <translation>Eisenstativ</translation>
    </message>
    <message>
        <source>U-tube</source>
        <translation>U-Rohr</translation>
    </message>
    <message>
        <source>Thermometer</source>
        <translation>Thermometer</translation>
    </message>
    <message>
        <source>Rubber tube</source>
        <translation>Gummischlauch</translation>
    </message>
    <message>
        <source>Spatula</source>
        <translation>Spatel</translation>
    </message>
    <message>
        <source>Drainage tube</source>
        <translation>Ableitungsrohr</translation>
    </message>
    <message>
        <source>Atom</source>
        <translation>Atom</translation>
    </message>
    <message>
        <source>Evaporating dish</source>
        <translation>Abdampfschale</translation>
    </message>
    <message>
        <source>Conical flask</source>
        <translation>Erlenmeyerkolben</translation>
    </message>
    <message>
        <source>Pinyin letters</source>
        <translation>Satz Pinyin-Buchstaben</translation>
    </message>
    <message>
        <source>Chinese character</source>
        <translation>Chinesisches Schriftzeichen</translation>
    </message>
    <message>
        <source>Pinyin</source>
        <translation>Pinyin-Text</translation>
    </message>
    <message>
        <source>Pen stroke</source>
        <translation>Stiftstrich</translation>
    </message>
    <message>
        <source>Word art</source>
        <translation>Schriftzug</translation>
    </message>
    <message>
        <source>Moving worksheet</source>
        <translation>Bewegtes Arbeitsblatt</translation>
    </message>
    <message>
        <source>Highlighter</source>
        <translation>Textmarkerstrich</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Strokes of a character</source>
        <translation>Strichfolge eines Schriftzeichens</translation>
    </message>
    <message>
        <source>Character with pinyin</source>
        <translation>Schriftzeichen mit Pinyin</translation>
    </message>
    <message>
        <source>Word with phonetics</source>
        <translation>Wort mit Lautschrift</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Measured segment</source>
        <translation>Gemessene Strecke</translation>
    </message>
    <message>
        <source>Measured triangle</source>
        <translation>Gemessenes Dreieck</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Bogen</translation>
    </message>
    <message>
        <source>Regular heptagon</source>
        <translation>Regelmäßiges Siebeneck</translation>
    </message>
    <message>
        <source>Regular hexagon</source>
        <translation>Regelmäßiges Sechseck</translation>
    </message>
    <message>
        <source>Regular octagon</source>
        <translation>Regelmäßiges Achteck</translation>
    </message>
    <message>
        <source>Regular pentagon</source>
        <translation>Regelmäßiges Fünfeck</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Equilateral triangle</source>
        <translation>Gleichseitiges Dreieck</translation>
    </message>
    <message>
        <source>Pentagon</source>
        <translation>Fünfeck</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Line of segments</source>
        <translation>Streckenzug</translation>
    </message>
    <message>
        <source>Quadrangle</source>
        <translation>Viereck</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>Zylinder</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>Kegel</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>Würfel</translation>
    </message>
    <message>
        <source>Frustum of a cone</source>
        <translation>Kegelstumpf</translation>
    </message>
    <message>
        <source>Frustum of a pyramid</source>
        <translation>Pyramidenstumpf</translation>
    </message>
    <message>
        <source>Half sphere</source>
        <translation>Halbkugel</translation>
    </message>
    <message>
        <source>Intersecting planes</source>
        <translation>Paar sich schneidender Ebenen</translation>
    </message>
    <message>
        <source>Prism</source>
        <translation>Prisma</translation>
    </message>
    <message>
        <source>Pyramid</source>
        <translation>Pyramide</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel (Körper)</translation>
    </message>
    <message>
        <source>Tetrahedron</source>
        <translation>Tetraeder</translation>
    </message>
    <message>
        <source>Coordinates with functions</source>
        <translation>Koordinatensystem mit Funktionen</translation>
    </message>
    <message>
        <source>Coordinates with parametric curves</source>
        <translation>Koordinatensystem mit Parameterkurven</translation>
    </message>
    <message>
        <source>Polar coordinates</source>
        <translation>Polarkoordinatensystem</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Flash film</source>
        <translation>Flash-Film</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Mind map</source>
        <translation>Mindmap</translation>
    </message>
    <message>
        <source>Ammeter</source>
        <translation>Amperemeter</translation>
    </message>
    <message>
        <source>Ammeter with a scale</source>
        <translation>Amperemeter mit Skala</translation>
    </message>
    <message>
        <source>Groove</source>
        <translation>Mulde</translation>
    </message>
    <message>
        <source>Concave lens, as a symbol</source>
        <translation>Zerstreuungslinse als Zeichen</translation>
    </message>
    <message>
        <source>Concave lens</source>
        <translation>Zerstreuungslinse</translation>
    </message>
    <message>
        <source>Half of a concave lens</source>
        <translation>Halbe Zerstreuungslinse</translation>
    </message>
    <message>
        <source>Half of a convex lens</source>
        <translation>Halbe Sammellinse</translation>
    </message>
    <message>
        <source>Conveyor belt</source>
        <translation>Förderband</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>Magnetfeld</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Draht</translation>
    </message>
    <message>
        <source>Electric field</source>
        <translation>Elektrisches Feld</translation>
    </message>
    <message>
        <source>Battery cell</source>
        <translation>Batteriezelle</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Lamp, as a symbol</source>
        <translation>Lampe als Schaltzeichen</translation>
    </message>
    <message>
        <source>Electric charge</source>
        <translation>Elektrische Ladung</translation>
    </message>
    <message>
        <source>Electric bell</source>
        <translation>Elektrische Klingel</translation>
    </message>
    <message>
        <source>Galvanometer</source>
        <translation>Galvanometer</translation>
    </message>
    <message>
        <source>Capacitor</source>
        <translation>Kondensator</translation>
    </message>
    <message>
        <source>Electron</source>
        <translation>Elektron</translation>
    </message>
    <message>
        <source>Resistor</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Voltmeter with a scale</source>
        <translation>Voltmeter mit Skala</translation>
    </message>
    <message>
        <source>Lever</source>
        <translation>Hebel</translation>
    </message>
    <message>
        <source>Hooked weight</source>
        <translation>Hakengewicht</translation>
    </message>
    <message>
        <source>Stand for optics</source>
        <translation>Stativ für Optik</translation>
    </message>
    <message>
        <source>Sliding resistor, as a symbol</source>
        <translation>Schiebewiderstand als Schaltzeichen</translation>
    </message>
    <message>
        <source>Pulley</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Pulley block</source>
        <translation>Flaschenzug</translation>
    </message>
    <message>
        <source>Sliding resistor</source>
        <translation>Schiebewiderstand</translation>
    </message>
    <message>
        <source>Alternating current motor</source>
        <translation>Wechselstrommotor</translation>
    </message>
    <message>
        <source>Earth connection</source>
        <translation>Erdung</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Two-way switch</source>
        <translation>Wechselschalter</translation>
    </message>
    <message>
        <source>Knife switch</source>
        <translation>Messerschalter</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Lautsprecher</translation>
    </message>
    <message>
        <source>Candle</source>
        <translation>Kerze</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kraft</translation>
    </message>
    <message>
        <source>Propeller</source>
        <translation>Propeller</translation>
    </message>
    <message>
        <source>Wooden rod</source>
        <translation>Holzstab</translation>
    </message>
    <message>
        <source>Cylinder with a piston</source>
        <translation>Zylinder mit Kolben</translation>
    </message>
    <message>
        <source>Inclined plane</source>
        <translation>Schiefe Ebene</translation>
    </message>
    <message>
        <source>Meter</source>
        <translation>Messgerät</translation>
    </message>
    <message>
        <source>Spring</source>
        <translation>Feder</translation>
    </message>
    <message>
        <source>Spring balance</source>
        <translation>Federwaage</translation>
    </message>
    <message>
        <source>Bar magnet</source>
        <translation>Stabmagnet</translation>
    </message>
    <message>
        <source>Iron core</source>
        <translation>Eisenkern</translation>
    </message>
    <message>
        <source>Convex lens, as a symbol</source>
        <translation>Sammellinse als Zeichen</translation>
    </message>
    <message>
        <source>Convex lens</source>
        <translation>Sammellinse</translation>
    </message>
    <message>
        <source>Horseshoe magnet</source>
        <translation>Hufeisenmagnet</translation>
    </message>
    <message>
        <source>Voltmeter</source>
        <translation>Voltmeter</translation>
    </message>
    <message>
        <source>Battery, as a symbol</source>
        <translation>Batterie als Schaltzeichen</translation>
    </message>
    <message>
        <source>Coil</source>
        <translation>Spule</translation>
    </message>
    <message>
        <source>Trolley</source>
        <translation>Wagen</translation>
    </message>
    <message>
        <source>Compass needle</source>
        <translation>Magnetnadel</translation>
    </message>
    <message>
        <source>Ball</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Hang</translation>
    </message>
    <message>
        <source>Knob</source>
        <translation>Drehknopf</translation>
    </message>
    <message>
        <source>Vernier caliper</source>
        <translation>Messschieber</translation>
    </message>
    <message>
        <source>Round groove</source>
        <translation>Runde Mulde</translation>
    </message>
    <message>
        <source>Curved slide</source>
        <translation>Gebogene Rutsche</translation>
    </message>
    <message>
        <source>Direct current motor</source>
        <translation>Gleichstrommotor</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>One-sided arrow</source>
        <translation>Einseitiger Pfeil</translation>
    </message>
    <message>
        <source>Square bracket</source>
        <translation>Eckige Klammer</translation>
    </message>
    <message>
        <source>Aeroplane</source>
        <translation>Flugzeug</translation>
    </message>
    <message>
        <source>Angle bracket</source>
        <translation>Spitze Klammer</translation>
    </message>
    <message>
        <source>Callout with an arrow</source>
        <translation>Legende mit Pfeil</translation>
    </message>
    <message>
        <source>Connecting line</source>
        <translation>Verbindungslinie</translation>
    </message>
    <message>
        <source>Curved arrow</source>
        <translation>Gebogener Pfeil</translation>
    </message>
    <message>
        <source>One to many</source>
        <translation>Linie von einem zu vielen</translation>
    </message>
    <message>
        <source>Round bracket</source>
        <translation>Runde Klammer</translation>
    </message>
    <message>
        <source>Cloud</source>
        <translation>Wolke</translation>
    </message>
    <message>
        <source>Straight arrow</source>
        <translation>Gerader Pfeil</translation>
    </message>
    <message>
        <source>Textured stroke</source>
        <translation>Strich mit Muster</translation>
    </message>
    <message>
        <source>Handwritten formula</source>
        <translation>Handgeschriebene Formel</translation>
    </message>
    <message>
        <source>Bamboo brush stroke</source>
        <translation>Bambuspinselstrich</translation>
    </message>
    <message>
        <source>Rubbed out ink</source>
        <translation>Radierspur</translation>
    </message>
    <message>
        <source>Stamp</source>
        <translation>Stempel</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Explosion</source>
        <translation>Explosion</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>Block arrow</source>
        <translation>Blockpfeil</translation>
    </message>
    <message>
        <source>Hexagon</source>
        <translation>Sechseck</translation>
    </message>
    <message>
        <source>Sector</source>
        <translation>Kreisausschnitt</translation>
    </message>
    <message>
        <source>Lightning</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Ziegel</translation>
    </message>
    <message>
        <source>Smiley</source>
        <translation>Smiley</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation>Abgerundetes Rechteck</translation>
    </message>
    <message>
        <source>Moon</source>
        <translation>Mond</translation>
    </message>
    <message>
        <source>Bullet</source>
        <translation>Geschoss</translation>
    </message>
    <message>
        <source>Words in squares</source>
        <translation>Satz Wörter in Kästchen</translation>
    </message>
    <message>
        <source>Item of a subject</source>
        <translation>Element eines Fachs</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Copy of a shape</source>
        <translation>Kopie einer Form</translation>
    </message>
    <message>
        <source>0 or 1</source>
        <translation>0 oder 1</translation>
    </message>
    <message>
        <source>four numbers, none of them more than %1 from 0</source>
        <translation>vier Zahlen, keine weiter als %1 von 0</translation>
    </message>
    <message>
        <source>six numbers, none of them more than %1 from 0</source>
        <translation>sechs Zahlen, keine weiter als %1 von 0</translation>
    </message>
    <message>
        <source>pairs of numbers, none of them more than %1 from 0</source>
        <translation>Paare von Zahlen, keine weiter als %1 von 0</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>eine Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a colour</source>
        <translation>eine Farbe</translation>
    </message>
    <message>
        <source>a slide from 1 to %1</source>
        <translation>eine Folie von 1 bis %1</translation>
    </message>
    <message numerus="yes">
        <source>%n values aren&apos;t in the lesson: %1</source>
        <translation>
            <numerusform>%n Wert ist nicht in der Lektion: %1</numerusform>
            <numerusform>%n Werte sind nicht in der Lektion: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides are empty in the result: %1</source>
        <translation>
            <numerusform>%n Folie ist im Ergebnis leer: %1</numerusform>
            <numerusform>%n Folien sind im Ergebnis leer: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides are empty on other boards: %1</source>
        <translation>
            <numerusform>%n Folie ist auf anderen Tafeln leer: %1</numerusform>
            <numerusform>%n Folien sind auf anderen Tafeln leer: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>the lesson</source>
        <translation>die Lektion</translation>
    </message>
    <message>
        <source>slide %1</source>
        <translation>Folie %1</translation>
    </message>
    <message>
        <source>slides %1 to %2</source>
        <translation>Folien %1 bis %2</translation>
    </message>
    <message numerus="yes">
        <source>%n slides from %1 to %2</source>
        <translation>
            <numerusform>%n Folie von %1 bis %2</numerusform>
            <numerusform>%n Folien von %1 bis %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n other items</source>
        <translation>
            <numerusform>%n anderes Element</numerusform>
            <numerusform>%n andere Elemente</numerusform>
        </translation>
    </message>
    <message>
        <source>as a picture</source>
        <translation>als Bild</translation>
    </message>
    <message>
        <source>other boards have no such thing</source>
        <translation>andere Tafeln kennen so etwas nicht</translation>
    </message>
    <message>
        <source>this format has no such thing</source>
        <translation>dieses Format kennt so etwas nicht</translation>
    </message>
    <message>
        <source>Slide %1 is empty in the result.</source>
        <translation>Folie %1 ist im Ergebnis leer.</translation>
    </message>
    <message>
        <source>Slide %1 is empty there.</source>
        <translation>Folie %1 ist dort leer.</translation>
    </message>
    <message>
        <source>%1 (%2): %3.</source>
        <translation>%1 (%2): %3.</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2-mal)</translation>
    </message>
    <message>
        <source>The lesson itself travels along in the file, so that lessonconv brings all of it back.</source>
        <translation>Die Lektion selbst reist in der Datei mit, sodass lessonconv alles davon zurückholt.</translation>
    </message>
    <message>
        <source>--report FILE names each.</source>
        <translation>--report DATEI nennt alles einzeln.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>nobody knows what it is, so it is kept as it came</source>
        <translation>niemand weiß, was es ist, daher bleibt es, wie es kam</translation>
    </message>
    <message numerus="yes">
        <source>Note: and %n more.</source>
        <translation>
            <numerusform>Hinweis: und %n weitere.</numerusform>
            <numerusform>Hinweis: und %n weitere.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not shown by other boards</source>
        <translation>Von anderen Tafeln nicht gezeigt</translation>
    </message>
    <message>
        <source>Not shown in the result</source>
        <translation>Im Ergebnis nicht gezeigt</translation>
    </message>
    <message>
        <source>Shown by other boards, but not the same</source>
        <translation>Von anderen Tafeln anders gezeigt</translation>
    </message>
    <message>
        <source>Shown in the result, but not the same</source>
        <translation>Im Ergebnis gezeigt, aber anders</translation>
    </message>
    <message>
        <source>Only internal, and nothing to other boards</source>
        <translation>Nur intern und für andere Tafeln ohne Bedeutung</translation>
    </message>
    <message>
        <source>Only internal, seen by nobody</source>
        <translation>Nur intern, von niemandem gesehen</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Shown in the result the same, but it works otherwise</source>
        <translation>Im Ergebnis gleich gezeigt, verhält sich aber anders</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Abdeckung</translation>
    </message>
    <message>
        <source>it has no place on the page</source>
        <translation>hat keinen Platz auf der Seite</translation>
    </message>
    <message>
        <source>it has no file to show</source>
        <translation>hat keine Datei, die es zeigen könnte</translation>
    </message>
    <message>
        <source>some have no form, or are groups</source>
        <translation>manche haben keine Form oder sind Gruppen</translation>
    </message>
    <message numerus="yes">
        <source>%n texts with a translucent background</source>
        <translation>
            <numerusform>%n Text mit durchscheinendem Hintergrund</numerusform>
            <numerusform>%n Texte mit durchscheinendem Hintergrund</numerusform>
        </translation>
    </message>
    <message>
        <source>it became a curtain, which has a cloth of its own</source>
        <translation>wurde zu einem Vorhang, der seinen eigenen Stoff hat</translation>
    </message>
    <message>
        <source>only upright or turned rectangles become curtains</source>
        <translation>nur gerade oder gedrehte Rechtecke werden zu Vorhängen</translation>
    </message>
    <message>
        <source>only pictures can be flipped</source>
        <translation>nur Bilder können gespiegelt werden</translation>
    </message>
    <message>
        <source>its slides were put into another order by another program</source>
        <translation>ihre Folien wurden von einem anderen Programm umgeordnet</translation>
    </message>
    <message>
        <source>removed by another program</source>
        <translation>von einem anderen Programm entfernt</translation>
    </message>
    <message>
        <source>changed by another program</source>
        <translation>von einem anderen Programm geändert</translation>
    </message>
    <message>
        <source>the slide was removed by another program</source>
        <translation>die Folie wurde von einem anderen Programm entfernt</translation>
    </message>
    <message>
        <source>added by another program</source>
        <translation>von einem anderen Programm hinzugefügt</translation>
    </message>
    <message>
        <source>its background was changed by another program</source>
        <translation>ihr Hintergrund wurde von einem anderen Programm geändert</translation>
    </message>
    <message>
        <source>its items were put into another order by another program</source>
        <translation>ihre Elemente wurden von einem anderen Programm umgeordnet</translation>
    </message>
    <message>
        <source>its items were put elsewhere by another program</source>
        <translation>ihre Elemente wurden von einem anderen Programm woandershin gestellt</translation>
    </message>
    <message numerus="yes">
        <source>%n things are another program&apos;s work: %1</source>
        <translation>
            <numerusform>%n Sache ist das Werk eines anderen Programms: %1</numerusform>
            <numerusform>%n Sachen sind das Werk eines anderen Programms: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>other boards show a picture that opens it</source>
        <translation>andere Tafeln zeigen ein Bild, das es öffnet</translation>
    </message>
    <message>
        <source>Chemistry</source>
        <translation>Chemie</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>Physik</translation>
    </message>
    <message>
        <source>Mathematics</source>
        <translation>Mathematik</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>Figur</translation>
    </message>
    <message>
        <source>Item of no type</source>
        <translation>Element ohne Typ</translation>
    </message>
    <message>
        <source>%1 that is missing</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>a picture of all its repetitions took its place</source>
        <translation>ein Bild aller Wiederholungen trat an seine Stelle</translation>
    </message>
    <message>
        <source>it is a drawing with nothing in it</source>
        <translation>ist eine Zeichnung, die nichts enthält</translation>
    </message>
    <message>
        <source>it is a larger drawing than can be read</source>
        <translation>ist eine Zeichnung, die zu groß zum Lesen ist</translation>
    </message>
    <message>
        <source>Standard output takes no report</source>
        <translation>Die Standardausgabe nimmt keinen Bericht</translation>
    </message>
    <message>
        <source>Give the report a name, or say --json</source>
        <translation>Geben Sie dem Bericht einen Namen, oder sagen Sie --json</translation>
    </message>
    <message>
        <source>%1 takes no files</source>
        <translation>%1 nimmt keine Dateien</translation>
    </message>
    <message>
        <source>%1 takes a single file</source>
        <translation>%1 nimmt nur eine Datei</translation>
    </message>
    <message>
        <source>%1 needs the reports of runs over many lessons</source>
        <translation>%1 braucht die Berichte von Läufen über viele Lektionen</translation>
    </message>
    <message>
        <source>Slides drawn: %1. Items shown by their name: %2.</source>
        <translation>Gezeichnete Folien: %1. Nur mit ihrem Namen gezeigte Elemente: %2.</translation>
    </message>
    <message>
        <source>Print the versions of the command and of the plug-in.</source>
        <translation>Die Versionen des Befehls und des Plug-ins ausgeben.</translation>
    </message>
    <message>
        <source>A name in this call is empty</source>
        <translation>Ein Name in diesem Aufruf ist leer</translation>
    </message>
    <message>
        <source>Check what was to stand in its place, such as a variable of the shell</source>
        <translation>Prüfen Sie, was dort stehen sollte, etwa eine Variable der Shell</translation>
    </message>
    <message>
        <source>Many lessons come from files and go into a folder, and &quot;%1&quot; is neither</source>
        <translation>Viele Lektionen kommen aus Dateien und gehen in einen Ordner, und „%1“ ist keins von beiden</translation>
    </message>
    <message>
        <source>Convert what is sent there by a call of its own, without --out-dir</source>
        <translation>Konvertieren Sie, was dorthin geschickt wird, mit einem eigenen Aufruf ohne --out-dir</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>This archive is no lesson: it has neither index.xml nor content.xml</source>
        <translation>Dieses Archiv ist keine Lektion: Es hat weder index.xml noch content.xml</translation>
    </message>
    <message>
        <source>Unpack it if lessons are in it, and convert those</source>
        <translation>Entpacken Sie es, wenn Lektionen darin sind, und konvertieren Sie diese</translation>
    </message>
    <message>
        <source>it is a larger picture than can be read</source>
        <translation>ist ein Bild, das zu groß zum Lesen ist</translation>
    </message>
    <message>
        <source>the file %1 was found as %2</source>
        <translation>die Datei %1 wurde als %2 gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%n elements</source>
        <translation>
            <numerusform>%n Element</numerusform>
            <numerusform>%n Elemente</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parts of texts</source>
        <translation>
            <numerusform>%n Textteil</numerusform>
            <numerusform>%n Textteile</numerusform>
        </translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Part of a text</source>
        <translation>Textteil</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>what the file has of the lesson itself is damaged, so it is read as others show it</source>
        <translation>was die Datei von der Lektion selbst hat, ist beschädigt, daher ist sie gelesen, wie andere sie zeigen</translation>
    </message>
    <message>
        <source>as outlines</source>
        <translation>als Umrisse</translation>
    </message>
    <message>
        <source>the system allows no more threads</source>
        <translation>das System lässt keine weiteren Threads zu</translation>
    </message>
    <message>
        <source>Try again when less is running, or raise the limit</source>
        <translation>Versuchen Sie es noch einmal, wenn weniger läuft, oder heben Sie die Grenze an</translation>
    </message>
    <message>
        <source>A picture can&apos;t be packed</source>
        <translation>Ein Bild lässt sich nicht packen</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; can&apos;t be packed</source>
        <translation>Das Bild „%1“ lässt sich nicht packen</translation>
    </message>
    <message>
        <source>Check that there is enough memory</source>
        <translation>Prüfen Sie, ob genug Arbeitsspeicher frei ist</translation>
    </message>
    <message>
        <source>The archive can&apos;t be written</source>
        <translation>Das Archiv kann nicht geschrieben werden</translation>
    </message>
</context>
</TS>
