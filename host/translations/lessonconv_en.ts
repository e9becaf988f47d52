<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>lessonconv</name>
    <message numerus="yes">
        <source>%n converted</source>
        <translation>
            <numerusform>%n converted</numerusform>
            <numerusform>%n converted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not converted</source>
        <translation>
            <numerusform>%n not converted</numerusform>
            <numerusform>%n not converted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drawn</source>
        <translation>
            <numerusform>%n drawn</numerusform>
            <numerusform>%n drawn</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not drawn</source>
        <translation>
            <numerusform>%n not drawn</numerusform>
            <numerusform>%n not drawn</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n done before</source>
        <translation>
            <numerusform>%n done before</numerusform>
            <numerusform>%n done before</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not begun</source>
        <translation>
            <numerusform>%n not begun</numerusform>
            <numerusform>%n not begun</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lessons: %1.</source>
        <translation>
            <numerusform>%n lesson: %1.</numerusform>
            <numerusform>%n lessons: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lessons lost something, %1 in all; %2 names each.</source>
        <translation>
            <numerusform>%n lesson lost something, %1 in all; %2 names each.</numerusform>
            <numerusform>%n lessons lost something, %1 in all; %2 names each.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values, items or files</source>
        <translation>
            <numerusform>%n value, item or file</numerusform>
            <numerusform>%n values, items or files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are shown by name; %1 names each.</source>
        <translation>
            <numerusform>%n item is shown by name; %1 names each.</numerusform>
            <numerusform>%n items are shown by name; %1 names each.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n notes on fonts that aren&apos;t here, such as: %1.</source>
        <translation>
            <numerusform>%n note on a font that isn&apos;t here, such as: %1.</numerusform>
            <numerusform>%n notes on fonts that aren&apos;t here, such as: %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are called like lessons and are none, such as %1.</source>
        <translation>
            <numerusform>%n file is called like a lesson and is none: %1.</numerusform>
            <numerusform>%n files are called like lessons and are none, such as %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n had a matrix, which is worked into where they stand</source>
        <translation>
            <numerusform>%n had a matrix, which is worked into where it stands</numerusform>
            <numerusform>%n had a matrix, which is worked into where they stand</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n strokes became polylines</source>
        <translation>
            <numerusform>%n stroke became a polyline</numerusform>
            <numerusform>%n strokes became polylines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n strokes left out</source>
        <translation>
            <numerusform>%n stroke left out</numerusform>
            <numerusform>%n strokes left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n things changed</source>
        <translation>
            <numerusform>%n thing changed</numerusform>
            <numerusform>%n things changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items removed</source>
        <translation>
            <numerusform>%n item removed</numerusform>
            <numerusform>%n items removed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n added</numerusform>
            <numerusform>%n added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are as they were</source>
        <translation>
            <numerusform>%n item is as it was</numerusform>
            <numerusform>%n items are as they were</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides have %1 and no font here has them: install %2</source>
        <translation>
            <numerusform>%n slide has %1 and no font here has them: install %2</numerusform>
            <numerusform>%n slides have %1 and no font here has them: install %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides have %1: %2</source>
        <translation>
            <numerusform>%n slide has %1: %2</numerusform>
            <numerusform>%n slides have %1: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n indented paragraphs</source>
        <translation>
            <numerusform>%n indented paragraph</numerusform>
            <numerusform>%n indented paragraphs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n paragraphs with a line height of their own</source>
        <translation>
            <numerusform>%n paragraph with a line height of its own</numerusform>
            <numerusform>%n paragraphs with a line height of their own</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n backgrounds of paragraphs</source>
        <translation>
            <numerusform>%n background of a paragraph</numerusform>
            <numerusform>%n backgrounds of paragraphs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rules</source>
        <translation>
            <numerusform>%n rule</numerusform>
            <numerusform>%n rules</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cells of tables</source>
        <translation>
            <numerusform>%n cell of a table</numerusform>
            <numerusform>%n cells of tables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts with a background</source>
        <translation>
            <numerusform>%n text with a background</numerusform>
            <numerusform>%n texts with a background</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts with a line above</source>
        <translation>
            <numerusform>%n text with a line above</numerusform>
            <numerusform>%n texts with a line above</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts in another case or spacing</source>
        <translation>
            <numerusform>%n text in another case or spacing</numerusform>
            <numerusform>%n texts in another case or spacing</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links within the text</source>
        <translation>
            <numerusform>%n link within the text</numerusform>
            <numerusform>%n links within the text</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n control characters</source>
        <translation>
            <numerusform>%n control character</numerusform>
            <numerusform>%n control characters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures within the text</source>
        <translation>
            <numerusform>%n picture within the text</numerusform>
            <numerusform>%n pictures within the text</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tags, which are too many or nested too deep</source>
        <translation>
            <numerusform>%n tag, which is too many or nested too deep</numerusform>
            <numerusform>%n tags, which are too many or nested too deep</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 on %n slides from %2 to %3</source>
        <translation>
            <numerusform>%1 on %n slide from %2 to %3</numerusform>
            <numerusform>%1 on %n slides from %2 to %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translation>
            <numerusform>%1 (%n time)</numerusform>
            <numerusform>%1 (%n times)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values lost: %1</source>
        <translation>
            <numerusform>%n value lost: %1</numerusform>
            <numerusform>%n values lost: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items have no form here: %1</source>
        <translation>
            <numerusform>%n item has no form here: %1</numerusform>
            <numerusform>%n items have no form here: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items have no %1 form: %2</source>
        <translation>
            <numerusform>%n item has no %1 form: %2</numerusform>
            <numerusform>%n items have no %1 form: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items kept as they came: %1</source>
        <translation>
            <numerusform>%n item kept as it came: %1</numerusform>
            <numerusform>%n items kept as they came: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files missing or of no use: %1</source>
        <translation>
            <numerusform>%n file missing or of no use: %1</numerusform>
            <numerusform>%n files missing or of no use: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items are pictures on other boards: %1</source>
        <translation>
            <numerusform>%n item is a picture on other boards: %1</numerusform>
            <numerusform>%n items are pictures on other boards: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items aren&apos;t shown by other boards: %1</source>
        <translation>
            <numerusform>%n item isn&apos;t shown by other boards: %1</numerusform>
            <numerusform>%n items aren&apos;t shown by other boards: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values are otherwise on other boards: %1</source>
        <translation>
            <numerusform>%n value is otherwise on other boards: %1</numerusform>
            <numerusform>%n values are otherwise on other boards: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n outlines became an item each</source>
        <translation>
            <numerusform>%n outline became an item</numerusform>
            <numerusform>%n outlines became an item each</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not converted, of %n lessons the first %1:</source>
        <translation>
            <numerusform>Not converted, of %n lesson the first %1:</numerusform>
            <numerusform>Not converted, of %n lessons the first %1:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not drawn, of %n lessons the first %1:</source>
        <translation>
            <numerusform>Not drawn, of %n lesson the first %1:</numerusform>
            <numerusform>Not drawn, of %n lessons the first %1:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lessons came while the shards were at work, and no shard took what came: with --resume, they do.</source>
        <translation>
            <numerusform>%n lesson came while the shards were at work, and no shard took what came: with --resume, they do.</numerusform>
            <numerusform>%n lessons came while the shards were at work, and no shard took what came: with --resume, they do.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lessons</source>
        <translation>
            <numerusform>%n lesson</numerusform>
            <numerusform>%n lessons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n lessons</source>
        <translation>
            <numerusform>%1 in %n lesson</numerusform>
            <numerusform>%1 in %n lessons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n polygons became one stroke</source>
        <translation>
            <numerusform>%n polygon became one stroke</numerusform>
            <numerusform>%n polygons became one stroke</numerusform>
        </translation>
    </message>
</context>
</TS>
