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
    <message numerus="yes">
        <source>%n checked</source>
        <translation>
            <numerusform>%n checked</numerusform>
            <numerusform>%n checked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not checked</source>
        <translation>
            <numerusform>%n not checked</numerusform>
            <numerusform>%n not checked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Not checked, of %n lessons the first %1:</source>
        <translation>
            <numerusform>Not checked, of %n lesson the first %1:</numerusform>
            <numerusform>Not checked, of %n lessons the first %1:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n things are missing or wrong; %1 names each.</source>
        <translation>
            <numerusform>%n thing is missing or wrong; %1 names each.</numerusform>
            <numerusform>%n things are missing or wrong; %1 names each.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 isn&apos;t whole; %n things are wrong:</source>
        <translation>
            <numerusform>%1 isn&apos;t whole; %n thing is wrong:</numerusform>
            <numerusform>%1 isn&apos;t whole; %n things are wrong:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>And %n more.</numerusform>
            <numerusform>And %n more.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides</source>
        <translation>
            <numerusform>%n slide</numerusform>
            <numerusform>%n slides</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n items</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n acid burettes</source>
        <translation>
            <numerusform>%n acid burette</numerusform>
            <numerusform>%n acid burettes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n aeroplanes</source>
        <translation>
            <numerusform>%n aeroplane</numerusform>
            <numerusform>%n aeroplanes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n alkali burettes</source>
        <translation>
            <numerusform>%n alkali burette</numerusform>
            <numerusform>%n alkali burettes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n alternating current motors</source>
        <translation>
            <numerusform>%n alternating current motor</numerusform>
            <numerusform>%n alternating current motors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ammeters</source>
        <translation>
            <numerusform>%n ammeter</numerusform>
            <numerusform>%n ammeters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ammeters with a scale</source>
        <translation>
            <numerusform>%n ammeter with a scale</numerusform>
            <numerusform>%n ammeters with a scale</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angles</source>
        <translation>
            <numerusform>%n angle</numerusform>
            <numerusform>%n angles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angle brackets</source>
        <translation>
            <numerusform>%n angle bracket</numerusform>
            <numerusform>%n angle brackets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n arcs</source>
        <translation>
            <numerusform>%n arc</numerusform>
            <numerusform>%n arcs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n arrows</source>
        <translation>
            <numerusform>%n arrow</numerusform>
            <numerusform>%n arrows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n arrows with two heads</source>
        <translation>
            <numerusform>%n arrow with two heads</numerusform>
            <numerusform>%n arrows with two heads</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n atoms</source>
        <translation>
            <numerusform>%n atom</numerusform>
            <numerusform>%n atoms</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n balances</source>
        <translation>
            <numerusform>%n balance</numerusform>
            <numerusform>%n balances</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n balls</source>
        <translation>
            <numerusform>%n ball</numerusform>
            <numerusform>%n balls</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bamboo brush strokes</source>
        <translation>
            <numerusform>%n bamboo brush stroke</numerusform>
            <numerusform>%n bamboo brush strokes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bar magnets</source>
        <translation>
            <numerusform>%n bar magnet</numerusform>
            <numerusform>%n bar magnets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n baskets of games</source>
        <translation>
            <numerusform>%n basket of a game</numerusform>
            <numerusform>%n baskets of games</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n batteries</source>
        <translation>
            <numerusform>%n battery</numerusform>
            <numerusform>%n batteries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n battery cells</source>
        <translation>
            <numerusform>%n battery cell</numerusform>
            <numerusform>%n battery cells</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n batteries, as symbols</source>
        <translation>
            <numerusform>%n battery, as a symbol</numerusform>
            <numerusform>%n batteries, as symbols</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n beakers</source>
        <translation>
            <numerusform>%n beaker</numerusform>
            <numerusform>%n beakers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n benzene rings</source>
        <translation>
            <numerusform>%n benzene ring</numerusform>
            <numerusform>%n benzene rings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n block arrows</source>
        <translation>
            <numerusform>%n block arrow</numerusform>
            <numerusform>%n block arrows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bonds</source>
        <translation>
            <numerusform>%n bond</numerusform>
            <numerusform>%n bonds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n braces</source>
        <translation>
            <numerusform>%n brace</numerusform>
            <numerusform>%n braces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n brackets</source>
        <translation>
            <numerusform>%n bracket</numerusform>
            <numerusform>%n brackets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n brush strokes</source>
        <translation>
            <numerusform>%n brush stroke</numerusform>
            <numerusform>%n brush strokes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bubbles</source>
        <translation>
            <numerusform>%n bubble</numerusform>
            <numerusform>%n bubbles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bullets</source>
        <translation>
            <numerusform>%n bullet</numerusform>
            <numerusform>%n bullets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n burette clamps</source>
        <translation>
            <numerusform>%n burette clamp</numerusform>
            <numerusform>%n burette clamps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n burning spoons</source>
        <translation>
            <numerusform>%n burning spoon</numerusform>
            <numerusform>%n burning spoons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n callouts with arrows</source>
        <translation>
            <numerusform>%n callout with an arrow</numerusform>
            <numerusform>%n callouts with arrows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n candles</source>
        <translation>
            <numerusform>%n candle</numerusform>
            <numerusform>%n candles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n capacitors</source>
        <translation>
            <numerusform>%n capacitor</numerusform>
            <numerusform>%n capacitors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cards to turn</source>
        <translation>
            <numerusform>%n card to turn</numerusform>
            <numerusform>%n cards to turn</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of cards</source>
        <translation>
            <numerusform>%n set of cards</numerusform>
            <numerusform>%n sets of cards</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n chalk strokes</source>
        <translation>
            <numerusform>%n chalk stroke</numerusform>
            <numerusform>%n chalk strokes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n characters with pinyin</source>
        <translation>
            <numerusform>%n character with pinyin</numerusform>
            <numerusform>%n characters with pinyin</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Chinese characters</source>
        <translation>
            <numerusform>%n Chinese character</numerusform>
            <numerusform>%n Chinese characters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n circles</source>
        <translation>
            <numerusform>%n circle</numerusform>
            <numerusform>%n circles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clouds</source>
        <translation>
            <numerusform>%n cloud</numerusform>
            <numerusform>%n clouds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n coils</source>
        <translation>
            <numerusform>%n coil</numerusform>
            <numerusform>%n coils</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n compass needles</source>
        <translation>
            <numerusform>%n compass needle</numerusform>
            <numerusform>%n compass needles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pairs of compasses</source>
        <translation>
            <numerusform>%n pair of compasses</numerusform>
            <numerusform>%n pairs of compasses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concave lenses</source>
        <translation>
            <numerusform>%n concave lens</numerusform>
            <numerusform>%n concave lenses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concave lenses, as symbols</source>
        <translation>
            <numerusform>%n concave lens, as a symbol</numerusform>
            <numerusform>%n concave lenses, as symbols</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n condensers</source>
        <translation>
            <numerusform>%n condenser</numerusform>
            <numerusform>%n condensers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cones</source>
        <translation>
            <numerusform>%n cone</numerusform>
            <numerusform>%n cones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n conical flasks</source>
        <translation>
            <numerusform>%n conical flask</numerusform>
            <numerusform>%n conical flasks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n connecting lines</source>
        <translation>
            <numerusform>%n connecting line</numerusform>
            <numerusform>%n connecting lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n convex lenses</source>
        <translation>
            <numerusform>%n convex lens</numerusform>
            <numerusform>%n convex lenses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n convex lenses, as symbols</source>
        <translation>
            <numerusform>%n convex lens, as a symbol</numerusform>
            <numerusform>%n convex lenses, as symbols</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n conveyor belts</source>
        <translation>
            <numerusform>%n conveyor belt</numerusform>
            <numerusform>%n conveyor belts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n coordinates with functions</source>
        <translation>
            <numerusform>%n system of coordinates with functions</numerusform>
            <numerusform>%n coordinates with functions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n coordinates with parametric curves</source>
        <translation>
            <numerusform>%n system of coordinates with parametric curves</numerusform>
            <numerusform>%n coordinates with parametric curves</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n copies of shapes</source>
        <translation>
            <numerusform>%n copy of a shape</numerusform>
            <numerusform>%n copies of shapes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n crosses</source>
        <translation>
            <numerusform>%n cross</numerusform>
            <numerusform>%n crosses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cubes</source>
        <translation>
            <numerusform>%n cube</numerusform>
            <numerusform>%n cubes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n curtains</source>
        <translation>
            <numerusform>%n curtain</numerusform>
            <numerusform>%n curtains</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n curved arrows</source>
        <translation>
            <numerusform>%n curved arrow</numerusform>
            <numerusform>%n curved arrows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n curved slides</source>
        <translation>
            <numerusform>%n curved slide</numerusform>
            <numerusform>%n curved slides</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cylinders</source>
        <translation>
            <numerusform>%n cylinder</numerusform>
            <numerusform>%n cylinders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cylinders with a piston</source>
        <translation>
            <numerusform>%n cylinder with a piston</numerusform>
            <numerusform>%n cylinders with a piston</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n direct current motors</source>
        <translation>
            <numerusform>%n direct current motor</numerusform>
            <numerusform>%n direct current motors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n distances</source>
        <translation>
            <numerusform>%n distance</numerusform>
            <numerusform>%n distances</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n division signs</source>
        <translation>
            <numerusform>%n division sign</numerusform>
            <numerusform>%n division signs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n documents</source>
        <translation>
            <numerusform>%n document</numerusform>
            <numerusform>%n documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drainage tubes</source>
        <translation>
            <numerusform>%n drainage tube</numerusform>
            <numerusform>%n drainage tubes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drops of water</source>
        <translation>
            <numerusform>%n drop of water</numerusform>
            <numerusform>%n drops of water</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n droppers</source>
        <translation>
            <numerusform>%n dropper</numerusform>
            <numerusform>%n droppers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n drying bulbs</source>
        <translation>
            <numerusform>%n drying bulb</numerusform>
            <numerusform>%n drying bulbs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n earth connections</source>
        <translation>
            <numerusform>%n earth connection</numerusform>
            <numerusform>%n earth connections</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electric bells</source>
        <translation>
            <numerusform>%n electric bell</numerusform>
            <numerusform>%n electric bells</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electric charges</source>
        <translation>
            <numerusform>%n electric charge</numerusform>
            <numerusform>%n electric charges</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electric fields</source>
        <translation>
            <numerusform>%n electric field</numerusform>
            <numerusform>%n electric fields</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electrons</source>
        <translation>
            <numerusform>%n electron</numerusform>
            <numerusform>%n electrons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n electron transfers</source>
        <translation>
            <numerusform>%n electron transfer</numerusform>
            <numerusform>%n electron transfers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ellipses</source>
        <translation>
            <numerusform>%n ellipse</numerusform>
            <numerusform>%n ellipses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n equals signs</source>
        <translation>
            <numerusform>%n equals sign</numerusform>
            <numerusform>%n equals signs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n equilateral triangles</source>
        <translation>
            <numerusform>%n equilateral triangle</numerusform>
            <numerusform>%n equilateral triangles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n evaporating dishes</source>
        <translation>
            <numerusform>%n evaporating dish</numerusform>
            <numerusform>%n evaporating dishes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n explosions</source>
        <translation>
            <numerusform>%n explosion</numerusform>
            <numerusform>%n explosions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n expressions</source>
        <translation>
            <numerusform>%n expression</numerusform>
            <numerusform>%n expressions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n films</source>
        <translation>
            <numerusform>%n film</numerusform>
            <numerusform>%n films</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n first players</source>
        <translation>
            <numerusform>%n first player</numerusform>
            <numerusform>%n first players</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n five-pointed stars</source>
        <translation>
            <numerusform>%n five-pointed star</numerusform>
            <numerusform>%n five-pointed stars</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flags</source>
        <translation>
            <numerusform>%n flag</numerusform>
            <numerusform>%n flags</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flames</source>
        <translation>
            <numerusform>%n flame</numerusform>
            <numerusform>%n flames</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Flash films</source>
        <translation>
            <numerusform>%n Flash film</numerusform>
            <numerusform>%n Flash films</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n flasks</source>
        <translation>
            <numerusform>%n flask</numerusform>
            <numerusform>%n flasks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n forces</source>
        <translation>
            <numerusform>%n force</numerusform>
            <numerusform>%n forces</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n formulas</source>
        <translation>
            <numerusform>%n formula</numerusform>
            <numerusform>%n formulas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n free drawings</source>
        <translation>
            <numerusform>%n free drawing</numerusform>
            <numerusform>%n free drawings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frustums of cones</source>
        <translation>
            <numerusform>%n frustum of a cone</numerusform>
            <numerusform>%n frustums of cones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frustums of pyramids</source>
        <translation>
            <numerusform>%n frustum of a pyramid</numerusform>
            <numerusform>%n frustums of pyramids</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n funnels</source>
        <translation>
            <numerusform>%n funnel</numerusform>
            <numerusform>%n funnels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n galvanometers</source>
        <translation>
            <numerusform>%n galvanometer</numerusform>
            <numerusform>%n galvanometers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gaps to fill</source>
        <translation>
            <numerusform>%n gap to fill</numerusform>
            <numerusform>%n gaps to fill</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gas jars</source>
        <translation>
            <numerusform>%n gas jar</numerusform>
            <numerusform>%n gas jars</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass delivery tubes</source>
        <translation>
            <numerusform>%n glass delivery tube</numerusform>
            <numerusform>%n glass delivery tubes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass rods</source>
        <translation>
            <numerusform>%n glass rod</numerusform>
            <numerusform>%n glass rods</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass stoppers</source>
        <translation>
            <numerusform>%n glass stopper</numerusform>
            <numerusform>%n glass stoppers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n glass tubes</source>
        <translation>
            <numerusform>%n glass tube</numerusform>
            <numerusform>%n glass tubes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n grooves</source>
        <translation>
            <numerusform>%n groove</numerusform>
            <numerusform>%n grooves</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n groups</source>
        <translation>
            <numerusform>%n group</numerusform>
            <numerusform>%n groups</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n halves of concave lenses</source>
        <translation>
            <numerusform>%n half of a concave lens</numerusform>
            <numerusform>%n halves of concave lenses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n halves of convex lenses</source>
        <translation>
            <numerusform>%n half of a convex lens</numerusform>
            <numerusform>%n halves of convex lenses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n half spheres</source>
        <translation>
            <numerusform>%n half sphere</numerusform>
            <numerusform>%n half spheres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n handwritten formulas</source>
        <translation>
            <numerusform>%n handwritten formula</numerusform>
            <numerusform>%n handwritten formulas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hearts</source>
        <translation>
            <numerusform>%n heart</numerusform>
            <numerusform>%n hearts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hexagons</source>
        <translation>
            <numerusform>%n hexagon</numerusform>
            <numerusform>%n hexagons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n highlighter strokes</source>
        <translation>
            <numerusform>%n highlighter stroke</numerusform>
            <numerusform>%n highlighter strokes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hooked weights</source>
        <translation>
            <numerusform>%n hooked weight</numerusform>
            <numerusform>%n hooked weights</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n horseshoe magnets</source>
        <translation>
            <numerusform>%n horseshoe magnet</numerusform>
            <numerusform>%n horseshoe magnets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n inclined planes</source>
        <translation>
            <numerusform>%n inclined plane</numerusform>
            <numerusform>%n inclined planes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pairs of intersecting planes</source>
        <translation>
            <numerusform>%n pair of intersecting planes</numerusform>
            <numerusform>%n pairs of intersecting planes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n iron cores</source>
        <translation>
            <numerusform>%n iron core</numerusform>
            <numerusform>%n iron cores</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n iron stands</source>
        <translation>
            <numerusform>%n iron stand</numerusform>
            <numerusform>%n iron stands</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items of subjects</source>
        <translation>
            <numerusform>%n item of a subject</numerusform>
            <numerusform>%n items of subjects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Kipp&apos;s apparatuses</source>
        <translation>
            <numerusform>%n Kipp&apos;s apparatus</numerusform>
            <numerusform>%n Kipp&apos;s apparatuses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n knife switches</source>
        <translation>
            <numerusform>%n knife switch</numerusform>
            <numerusform>%n knife switches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n knobs</source>
        <translation>
            <numerusform>%n knob</numerusform>
            <numerusform>%n knobs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lamps</source>
        <translation>
            <numerusform>%n lamp</numerusform>
            <numerusform>%n lamps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lamps, as symbols</source>
        <translation>
            <numerusform>%n lamp, as a symbol</numerusform>
            <numerusform>%n lamps, as symbols</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n levers</source>
        <translation>
            <numerusform>%n lever</numerusform>
            <numerusform>%n levers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bolts of lightning</source>
        <translation>
            <numerusform>%n bolt of lightning</numerusform>
            <numerusform>%n bolts of lightning</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines of segments</source>
        <translation>
            <numerusform>%n line of segments</numerusform>
            <numerusform>%n lines of segments</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links</source>
        <translation>
            <numerusform>%n link</numerusform>
            <numerusform>%n links</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n long-necked funnels</source>
        <translation>
            <numerusform>%n long-necked funnel</numerusform>
            <numerusform>%n long-necked funnels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n loudspeakers</source>
        <translation>
            <numerusform>%n loudspeaker</numerusform>
            <numerusform>%n loudspeakers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n magnetic fields</source>
        <translation>
            <numerusform>%n magnetic field</numerusform>
            <numerusform>%n magnetic fields</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n measured segments</source>
        <translation>
            <numerusform>%n measured segment</numerusform>
            <numerusform>%n measured segments</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n measured triangles</source>
        <translation>
            <numerusform>%n measured triangle</numerusform>
            <numerusform>%n measured triangles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n measuring cylinders</source>
        <translation>
            <numerusform>%n measuring cylinder</numerusform>
            <numerusform>%n measuring cylinders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n meters</source>
        <translation>
            <numerusform>%n meter</numerusform>
            <numerusform>%n meters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n mind maps</source>
        <translation>
            <numerusform>%n mind map</numerusform>
            <numerusform>%n mind maps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minus signs</source>
        <translation>
            <numerusform>%n minus sign</numerusform>
            <numerusform>%n minus signs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n moons</source>
        <translation>
            <numerusform>%n moon</numerusform>
            <numerusform>%n moons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n moving worksheets</source>
        <translation>
            <numerusform>%n moving worksheet</numerusform>
            <numerusform>%n moving worksheets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n multiplication signs</source>
        <translation>
            <numerusform>%n multiplication sign</numerusform>
            <numerusform>%n multiplication signs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not-equals signs</source>
        <translation>
            <numerusform>%n not-equals sign</numerusform>
            <numerusform>%n not-equals signs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n one-to-many lines</source>
        <translation>
            <numerusform>%n one-to-many line</numerusform>
            <numerusform>%n one-to-many lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n one-sided arrows</source>
        <translation>
            <numerusform>%n one-sided arrow</numerusform>
            <numerusform>%n one-sided arrows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parallelograms</source>
        <translation>
            <numerusform>%n parallelogram</numerusform>
            <numerusform>%n parallelograms</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parts of sentences</source>
        <translation>
            <numerusform>%n part of a sentence</numerusform>
            <numerusform>%n parts of sentences</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pen strokes</source>
        <translation>
            <numerusform>%n pen stroke</numerusform>
            <numerusform>%n pen strokes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pentagons</source>
        <translation>
            <numerusform>%n pentagon</numerusform>
            <numerusform>%n pentagons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n picture</numerusform>
            <numerusform>%n pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces for gaps</source>
        <translation>
            <numerusform>%n piece for a gap</numerusform>
            <numerusform>%n pieces for gaps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of contests</source>
        <translation>
            <numerusform>%n piece of a contest</numerusform>
            <numerusform>%n pieces of contests</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of games</source>
        <translation>
            <numerusform>%n piece of a game</numerusform>
            <numerusform>%n pieces of games</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces to compare</source>
        <translation>
            <numerusform>%n piece to compare</numerusform>
            <numerusform>%n pieces to compare</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of pinyin</source>
        <translation>
            <numerusform>%n piece of pinyin</numerusform>
            <numerusform>%n pieces of pinyin</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of pinyin letters</source>
        <translation>
            <numerusform>%n set of pinyin letters</numerusform>
            <numerusform>%n sets of pinyin letters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n places of sentences</source>
        <translation>
            <numerusform>%n place of a sentence</numerusform>
            <numerusform>%n places of sentences</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n places to compare</source>
        <translation>
            <numerusform>%n place to compare</numerusform>
            <numerusform>%n places to compare</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n planes</source>
        <translation>
            <numerusform>%n plane</numerusform>
            <numerusform>%n planes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n plus signs</source>
        <translation>
            <numerusform>%n plus sign</numerusform>
            <numerusform>%n plus signs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n point</numerusform>
            <numerusform>%n points</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n systems of polar coordinates</source>
        <translation>
            <numerusform>%n system of polar coordinates</numerusform>
            <numerusform>%n systems of polar coordinates</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n prisms</source>
        <translation>
            <numerusform>%n prism</numerusform>
            <numerusform>%n prisms</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n propellers</source>
        <translation>
            <numerusform>%n propeller</numerusform>
            <numerusform>%n propellers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n protractors</source>
        <translation>
            <numerusform>%n protractor</numerusform>
            <numerusform>%n protractors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pulleys</source>
        <translation>
            <numerusform>%n pulley</numerusform>
            <numerusform>%n pulleys</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pulley blocks</source>
        <translation>
            <numerusform>%n pulley block</numerusform>
            <numerusform>%n pulley blocks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pyramids</source>
        <translation>
            <numerusform>%n pyramid</numerusform>
            <numerusform>%n pyramids</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n quadrangles</source>
        <translation>
            <numerusform>%n quadrangle</numerusform>
            <numerusform>%n quadrangles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n questions</source>
        <translation>
            <numerusform>%n question</numerusform>
            <numerusform>%n questions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reagent bottles</source>
        <translation>
            <numerusform>%n reagent bottle</numerusform>
            <numerusform>%n reagent bottles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rectangles</source>
        <translation>
            <numerusform>%n rectangle</numerusform>
            <numerusform>%n rectangles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular heptagons</source>
        <translation>
            <numerusform>%n regular heptagon</numerusform>
            <numerusform>%n regular heptagons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular hexagons</source>
        <translation>
            <numerusform>%n regular hexagon</numerusform>
            <numerusform>%n regular hexagons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular octagons</source>
        <translation>
            <numerusform>%n regular octagon</numerusform>
            <numerusform>%n regular octagons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n regular pentagons</source>
        <translation>
            <numerusform>%n regular pentagon</numerusform>
            <numerusform>%n regular pentagons</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n resistors</source>
        <translation>
            <numerusform>%n resistor</numerusform>
            <numerusform>%n resistors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n retorts</source>
        <translation>
            <numerusform>%n retort</numerusform>
            <numerusform>%n retorts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rhombuses</source>
        <translation>
            <numerusform>%n rhombus</numerusform>
            <numerusform>%n rhombuses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n round brackets</source>
        <translation>
            <numerusform>%n round bracket</numerusform>
            <numerusform>%n round brackets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n round grooves</source>
        <translation>
            <numerusform>%n round groove</numerusform>
            <numerusform>%n round grooves</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n round separating funnels</source>
        <translation>
            <numerusform>%n round separating funnel</numerusform>
            <numerusform>%n round separating funnels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rounded rectangles</source>
        <translation>
            <numerusform>%n rounded rectangle</numerusform>
            <numerusform>%n rounded rectangles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n traces of rubbed out ink</source>
        <translation>
            <numerusform>%n trace of rubbed out ink</numerusform>
            <numerusform>%n traces of rubbed out ink</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rubber tubes</source>
        <translation>
            <numerusform>%n rubber tube</numerusform>
            <numerusform>%n rubber tubes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rulers</source>
        <translation>
            <numerusform>%n ruler</numerusform>
            <numerusform>%n rulers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scales</source>
        <translation>
            <numerusform>%n scale</numerusform>
            <numerusform>%n scales</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scores</source>
        <translation>
            <numerusform>%n score</numerusform>
            <numerusform>%n scores</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second players</source>
        <translation>
            <numerusform>%n second player</numerusform>
            <numerusform>%n second players</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sectors</source>
        <translation>
            <numerusform>%n sector</numerusform>
            <numerusform>%n sectors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n segments</source>
        <translation>
            <numerusform>%n segment</numerusform>
            <numerusform>%n segments</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n separating funnels</source>
        <translation>
            <numerusform>%n separating funnel</numerusform>
            <numerusform>%n separating funnels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n set squares of 30 and 60 degrees</source>
        <translation>
            <numerusform>%n set square of 30 and 60 degrees</numerusform>
            <numerusform>%n set squares of 30 and 60 degrees</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n set squares of 45 degrees</source>
        <translation>
            <numerusform>%n set square of 45 degrees</numerusform>
            <numerusform>%n set squares of 45 degrees</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shapes</source>
        <translation>
            <numerusform>%n shape</numerusform>
            <numerusform>%n shapes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sliding resistors</source>
        <translation>
            <numerusform>%n sliding resistor</numerusform>
            <numerusform>%n sliding resistors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sliding resistors, as symbols</source>
        <translation>
            <numerusform>%n sliding resistor, as a symbol</numerusform>
            <numerusform>%n sliding resistors, as symbols</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slopes</source>
        <translation>
            <numerusform>%n slope</numerusform>
            <numerusform>%n slopes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n smileys</source>
        <translation>
            <numerusform>%n smiley</numerusform>
            <numerusform>%n smileys</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n solids</source>
        <translation>
            <numerusform>%n solid</numerusform>
            <numerusform>%n solids</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sounds</source>
        <translation>
            <numerusform>%n sound</numerusform>
            <numerusform>%n sounds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spatulas</source>
        <translation>
            <numerusform>%n spatula</numerusform>
            <numerusform>%n spatulas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n speech bubbles</source>
        <translation>
            <numerusform>%n speech bubble</numerusform>
            <numerusform>%n speech bubbles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spheres</source>
        <translation>
            <numerusform>%n sphere</numerusform>
            <numerusform>%n spheres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spirit lamps</source>
        <translation>
            <numerusform>%n spirit lamp</numerusform>
            <numerusform>%n spirit lamps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spotlights</source>
        <translation>
            <numerusform>%n spotlight</numerusform>
            <numerusform>%n spotlights</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n springs</source>
        <translation>
            <numerusform>%n spring</numerusform>
            <numerusform>%n springs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n spring balances</source>
        <translation>
            <numerusform>%n spring balance</numerusform>
            <numerusform>%n spring balances</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n squares</source>
        <translation>
            <numerusform>%n square</numerusform>
            <numerusform>%n squares</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n square brackets</source>
        <translation>
            <numerusform>%n square bracket</numerusform>
            <numerusform>%n square brackets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stamps</source>
        <translation>
            <numerusform>%n stamp</numerusform>
            <numerusform>%n stamps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stands for optics</source>
        <translation>
            <numerusform>%n stand for optics</numerusform>
            <numerusform>%n stands for optics</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n star</numerusform>
            <numerusform>%n stars</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stoppers</source>
        <translation>
            <numerusform>%n stopper</numerusform>
            <numerusform>%n stoppers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n straight arrows</source>
        <translation>
            <numerusform>%n straight arrow</numerusform>
            <numerusform>%n straight arrows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of strokes of a character</source>
        <translation>
            <numerusform>%n set of strokes of a character</numerusform>
            <numerusform>%n sets of strokes of a character</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n switches</source>
        <translation>
            <numerusform>%n switch</numerusform>
            <numerusform>%n switches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n test tubes</source>
        <translation>
            <numerusform>%n test tube</numerusform>
            <numerusform>%n test tubes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n test tube clamps</source>
        <translation>
            <numerusform>%n test tube clamp</numerusform>
            <numerusform>%n test tube clamps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n test tube racks</source>
        <translation>
            <numerusform>%n test tube rack</numerusform>
            <numerusform>%n test tube racks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tetrahedra</source>
        <translation>
            <numerusform>%n tetrahedron</numerusform>
            <numerusform>%n tetrahedra</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts</source>
        <translation>
            <numerusform>%n text</numerusform>
            <numerusform>%n texts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts to read aloud</source>
        <translation>
            <numerusform>%n text to read aloud</numerusform>
            <numerusform>%n texts to read aloud</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n textured strokes</source>
        <translation>
            <numerusform>%n textured stroke</numerusform>
            <numerusform>%n textured strokes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n thermometers</source>
        <translation>
            <numerusform>%n thermometer</numerusform>
            <numerusform>%n thermometers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of things to connect</source>
        <translation>
            <numerusform>%n set of things to connect</numerusform>
            <numerusform>%n sets of things to connect</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of things to sort</source>
        <translation>
            <numerusform>%n set of things to sort</numerusform>
            <numerusform>%n sets of things to sort</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ticks</source>
        <translation>
            <numerusform>%n tick</numerusform>
            <numerusform>%n ticks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tiles</source>
        <translation>
            <numerusform>%n tile</numerusform>
            <numerusform>%n tiles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tips for reading aloud</source>
        <translation>
            <numerusform>%n tip for reading aloud</numerusform>
            <numerusform>%n tips for reading aloud</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tips of games</source>
        <translation>
            <numerusform>%n tip of a game</numerusform>
            <numerusform>%n tips of games</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trapeziums</source>
        <translation>
            <numerusform>%n trapezium</numerusform>
            <numerusform>%n trapeziums</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n triangles</source>
        <translation>
            <numerusform>%n triangle</numerusform>
            <numerusform>%n triangles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tripods</source>
        <translation>
            <numerusform>%n tripod</numerusform>
            <numerusform>%n tripods</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trolleys</source>
        <translation>
            <numerusform>%n trolley</numerusform>
            <numerusform>%n trolleys</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pairs of tweezers</source>
        <translation>
            <numerusform>%n pair of tweezers</numerusform>
            <numerusform>%n pairs of tweezers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n two-way switches</source>
        <translation>
            <numerusform>%n two-way switch</numerusform>
            <numerusform>%n two-way switches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n U-tubes</source>
        <translation>
            <numerusform>%n U-tube</numerusform>
            <numerusform>%n U-tubes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n vernier calipers</source>
        <translation>
            <numerusform>%n vernier caliper</numerusform>
            <numerusform>%n vernier calipers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n voltmeters</source>
        <translation>
            <numerusform>%n voltmeter</numerusform>
            <numerusform>%n voltmeters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n voltmeters with a scale</source>
        <translation>
            <numerusform>%n voltmeter with a scale</numerusform>
            <numerusform>%n voltmeters with a scale</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n volumetric flasks</source>
        <translation>
            <numerusform>%n volumetric flask</numerusform>
            <numerusform>%n volumetric flasks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n water troughs</source>
        <translation>
            <numerusform>%n water trough</numerusform>
            <numerusform>%n water troughs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n waves</source>
        <translation>
            <numerusform>%n wave</numerusform>
            <numerusform>%n waves</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n weights</source>
        <translation>
            <numerusform>%n weight</numerusform>
            <numerusform>%n weights</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wires</source>
        <translation>
            <numerusform>%n wire</numerusform>
            <numerusform>%n wires</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wire gauzes</source>
        <translation>
            <numerusform>%n wire gauze</numerusform>
            <numerusform>%n wire gauzes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wooden blocks</source>
        <translation>
            <numerusform>%n wooden block</numerusform>
            <numerusform>%n wooden blocks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n wooden rods</source>
        <translation>
            <numerusform>%n wooden rod</numerusform>
            <numerusform>%n wooden rods</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pieces of word art</source>
        <translation>
            <numerusform>%n piece of word art</numerusform>
            <numerusform>%n pieces of word art</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n words with phonetics</source>
        <translation>
            <numerusform>%n word with phonetics</numerusform>
            <numerusform>%n words with phonetics</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sets of words in squares</source>
        <translation>
            <numerusform>%n set of words in squares</numerusform>
            <numerusform>%n sets of words in squares</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n values aren&apos;t in the lesson: %1</source>
        <translation>
            <numerusform>%n value isn&apos;t in the lesson: %1</numerusform>
            <numerusform>%n values aren&apos;t in the lesson: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides are empty in the result: %1</source>
        <translation>
            <numerusform>%n slide is empty in the result: %1</numerusform>
            <numerusform>%n slides are empty in the result: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides are empty on other boards: %1</source>
        <translation>
            <numerusform>%n slide is empty on other boards: %1</numerusform>
            <numerusform>%n slides are empty on other boards: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n slides from %1 to %2</source>
        <translation>
            <numerusform>%n slide from %1 to %2</numerusform>
            <numerusform>%n slides from %1 to %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n other items</source>
        <translation>
            <numerusform>%n other item</numerusform>
            <numerusform>%n other items</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Note: and %n more.</source>
        <translation>
            <numerusform>Note: and %n more.</numerusform>
            <numerusform>Note: and %n more.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n texts with a translucent background</source>
        <translation>
            <numerusform>%n text with a translucent background</numerusform>
            <numerusform>%n texts with a translucent background</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n things are another program&apos;s work: %1</source>
        <translation>
            <numerusform>%n thing is another program&apos;s work: %1</numerusform>
            <numerusform>%n things are another program&apos;s work: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n elements</source>
        <translation>
            <numerusform>%n element</numerusform>
            <numerusform>%n elements</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n parts of texts</source>
        <translation>
            <numerusform>%n part of a text</numerusform>
            <numerusform>%n parts of texts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
</context>
</TS>
