// SPDX-License-Identifier: MIT
#include "hostfixture.h"

#include <QtTest>

/*!
 * Draws what the items of a slide hold, through the command.
 */
class TestMediaDrawings : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    //! The first slide of a lesson in JSON, with ' for " and ` for '.
    QByteArray svgOf(QByteArray lesson)
    {
        const QString path = m_folder.filePath("lesson.json");
        putFile(path, lesson.replace('\'', '"').replace('`', '\''));
        const CommandProcess::Outcome outcome =
            runCommand({"render", path, m_folder.filePath("lesson.svg"), "--slides", "1"});
        return outcome.exitCode == 0 ? fileContent(m_folder.filePath("lesson.svg")) : outcome.errors.toUtf8();
    }

private slots:
    // What is drawn stands between bars; behind an exclamation mark, what isn't.
    void drawsWhatItemsHold_data()
    {
        const Table<QByteArray, QByteArray> row("items", "drawn");
        row("mirrored text", "{'Type':'ZQTextBoard','BoundingBox':'10,10,90,60','Text':'a','Matrix':'-1,0,0,1,300,0'}",
            "matrix(-1 0 0 1 290 10)");
        row("text upside down", "{'Type':'ZQTextBoard','BoundingBox':'0,10,90,60','Text':'a','VerticalFlip':'1'}",
            "matrix(1 0 0 -1 0 60)");
        row("turned text", "{'Type':'ZQTextBoard','BoundingBox':'10,10,90,60','Text':'a','Matrix':'0,2,-2,0,300,0'}",
            "matrix(0 2 -2 0 280 20)");
        row("slanted picture",
            "{'Type':'ZQImagePic','BoundingBox':'0,0,9,9','resource':'a.svg','Matrix':'1,0,2,1,0,5'}",
            "matrix(1 0 2 1 0 5)|width=\"9.00\"|data:image/");
        row("group that is turned about its middle",
            "{'Type':'ZQGroupItem','Angle':'3.14159265358979','Children':["
            "{'Type':'ZQMath2DRectangle','BoundingBox':'0,0,20,20'},"
            "{'Type':'ZQMath2DRectangle','BoundingBox':'80,40,100,60'}]}",
            "matrix(-1 0 0 -1 100 60)|x=\"80\"");
        row("groups in each other",
            "{'Type':'ZQGroupItem','Matrix':'2,0,0,2,0,0','Children':[{'Type':'ZQGroupItem','Matrix':'1,0,0,1,7,0',"
            "'Children':[{'Type':'ZQMath2DRectangle','BoundingBox':'0,0,20,20'}]}]},"
            "{'Type':'ZQMath2DRectangle','BoundingBox':'40,0,60,20'}",
            "<g transform=\"matrix(2 0 0 2 14 0)\"><rect");
        row("raw group",
            "{'Type':'ZQGroupItem','Matrix':'1,0,0,1,7,0','Children':[{'Type':'ZQMath2DRectangle',"
            "'BoundingBox':'0,0,20,20','Matrix':'2,0,0,2,0,0','SlideMatrix':'2,0,0,2,0,0'}]}",
            "matrix(1 0 0 1 14 0)");
        row("hidden group",
            "{'Type':'ZQGroupItem','Visible':false,'Children':[{'Type':'ZQMath2DRectangle',"
            "'BoundingBox':'0,0,20,77'}]}",
            "!77");
        row("segment with two heads",
            "{'Type':'ZQMath2DSegmentWith2Arrow','Control':'0,50,90,50','BoundingBox':'0,50,90,50',"
            "'ArtObj_Color1':'255,255,0,0'}",
            "d=\"M90.00 50.00L80.00 54.00L80.00 46.00L90.00 50.00Z\"|d=\"M0.00 50.00L10.00 "
            "46.00|x2=\"81.00\"|x1=\"9.00\"");
        row("smooth ring",
            "{'Type':'ZQSmoothStroke','XY':'120,100,-20,20,-20,-20,20,-20,20,20','Color':'#66fff200','Width':'8'}",
            "\"M120.00 100.00C120.00 109.43 109.43 120.00 100.00 120.00C90.57 120.00 80.00 109.43 80.00 100.00C|"
            "stroke=\"#fff200\"|stroke-opacity=\"0.40\"|stroke-width=\"8.00\"|stroke-linecap=\"round\"|fill=\"none\"");
        row("corners between long lines", "{'Type':'stroke','XY':'10,10,100,0,0,100','Opacity':'51','Cap':'square'}",
            "\"M10.00 10.00L110.00 10.00L110.00 110.00\"|stroke-opacity=\"0.20\"|stroke-width=\"5.00\"|square");
        row("dashes", "{'Type':'ZQSmoothStroke','XY':'10,10,90,0','Width':'6','DashStyle':'DashLine','Cap':'round'}",
            "stroke-dasharray=\"24,18\"|!linecap");
        row("line style that nobody knows", "{'Type':'ZQSmoothStroke','XY':'10,10,90,0','DashStyle':'4'}", "!dash");
        row("brush that gets wider",
            "{'Type':'ZQBrushStrokeVelocity','XY':'10,50,3,0,3,0','PointBrushWid':'2,4,6','Matrix':'2,0,0,2,0,0'}",
            "M20.00 98.00L26.00 96.00L32.00 94.00L32.00 106.00L26.00 104.00L20.00 102.00L20.00 98.00Z|stroke=\"none\"");
        row("dot", "{'Type':'ZQChalkStroke','XY':'10,50','Width':'8'}", "M14.00 50.00C|stroke=\"none\"");
        row("ink without points", "{'Type':'ZQChalkStroke','BoundingBox':'0,0,200,90'}", ">Chalk stroke<");
        row("rubbed-out ink",
            "{'Type':'stroke','XY':'10,50,200,0','Width':'10','Color':'#80ff0000','Angle':'0'},"
            "{'Type':'stroke','XY':'10,80,200,0','Width':'10','IgnoreEraser':true},"
            "{'Type':'ZQStrokesDeletePixel','XY':'100,0,0,200','Width':'20'},"
            "{'Type':'stroke','XY':'10,90,200,0','Width':'10'}",
            "90.00 45.00|90.00 55.00|110.00 45.00|110.00 55.00|evenodd|fill-opacity=\"0.50\"|"
            "M10.00 80.00L210.00 80.00|M10.00 90.00L210.00 90.00|!M10.00 50.00L210.00 50.00");
        row("ink of a group that is rubbed out where it is on the page",
            "{'Type':'ZQGroupItem','Matrix':'1,0,0,1,100,0','Children':[{'Type':'stroke','XY':'10,50,200,0',"
            "'Width':'10'}]},{'Type':'ZQStrokesDeletePixel','XY':'200,0,0,200','Width':'20'}",
            "matrix(1 0 0 1 100 0)|90.00 45.00|110.00 55.00|evenodd");
        row("texture that two strokes show",
            "{'Type':'ZQStrokeTexture','XY':'10,50,80,0','Width':'20','DrawTexture':'a.svg'},"
            "{'Type':'ZQStrokeTexture','XY':'10,90,80,0','DrawTexture':'a.svg','Opacity':'51'},"
            "{'Type':'ZQStrokesDeletePixel','XY':'70,0,0,99','Width':'20'}",
            "<pattern|patternUnits=\"userSpaceOnUse\"|xlink:href=\"data:image/|fill=\"url(#s1tpicture0) #ff0000\" "
            "fill-rule=\"evenodd\"|fill-opacity=\"0.20\"|60.00 40.00|!s1tpicture1|!\"#picture");
        row("pictures in a text",
            "{'Type':'ZQTextBoard','BoundingBox':'0,0,300,90','TextHtml':'<p>a<img src=`a.svg` width=`30` height=`20`>"
            "<img src=`file:///etc/hosts`></p>'}",
            "height=\"20.00\" preserveAspectRatio=\"none\" width=\"30.00\"|data:image/|!hosts");
        row("pictures that a text holds",
            "{'Type':'ZQTextBoard','BoundingBox':'0,0,300,90','TextHtml':'<p>a<img width=`30` "
            "src=`data:image/png;base64,"
            "iVBORw0KGgoAAAANSUhEUgAAAAMAAAACCAIAAAASFvFNAAAAD0lEQVR4nGNg+M8ARXAWADvYBfuy4lFgAAAAAElFTkSuQmCC`><img "
            "src=`data:image/png;base64,AAAA`>"
            "<img src=`data:text/plain,b`></p>'}",
            "height=\"20.00\" preserveAspectRatio=\"none\" width=\"30.00\"|data:image/png;base64,iVBOR|!AAAA\"|!plain");
        row("word art", "{'Type':'ZQCommonYishuzi','BoundingBox':'0,0,200,90','Text':'Ice','Color':'#ff00ff00'}",
            "fill=\"#00ff00\"|>Ice<");
        row("word art without words", "{'Type':'ZQCommonYishuzi','BoundingBox':'0,0,200,90'}", ">Word art<");
        row("shape without corners", "{'Type':'ZQBasicNormalItem','BoundingBox':'5,6,20,90','LineColor':'#ff00ff00'}",
            "M5.00 6.00L20.00 6.00L20.00 90.00L5.00 90.00|stroke=\"#00ff00\"");
        row("size of an angle",
            "{'Type':'ZQMath2DAngle','BoundingBox':'0,0,50,50','Control':'0,50,50,50','ArtObj_Display':'1'},"
            "{'Type':'ZQMath2DAngle','Control':'90,0,90,90','Matrix':'1,0,0,1,9,9'},"
            "{'Type':'ZQMath2DGeoTriangle','BoundingBox':'0,0,100,100','Control':'0,0,100,100,0,100',"
            "'ArtObj_DisplayAngle':'1'}",
            ">45\u00b0<|>90\u00b0<");
        row("texture that is missing", "{'Type':'ZQStrokeTexture','XY':'10,50,80,0','DrawTexture':'b.svg'}", "<path");
        row("stamps", "{'Type':'ZQStrokesStamp','XY':'50,50,80,10','Width':'30','Stamp':'a.svg','DrawTexture':'a.svg'}",
            "matrix(3.33333 0 0 3.33333 35 35)|matrix(3.33333 0 0 3.33333 115 45)|data:image/");
        row("stamp in a box", "{'Type':'ZQStrokesStamp','BoundingBox':'5,6,12,16','Stamp':'a.svg'}",
            "height=\"10.00\"|width=\"7.00\"|data:image/");
        const QByteArray pictures = "{'Type':'ZQQuestionItem','BoundingBox':'0,0,80,40','R_Content_svg':'<svg><image "
                                    "width=`80` height=`40` xlink:href=`a.svg`/></svg>'}";
        row("questions that show the same picture", pictures + ',' + pictures,
            "<defs><image height=|<use transform=\"|xlink:href=\"#picture0\"|!<image height=\"40.00\"");
        const QByteArray question = "{'Type':'ZQQuestionItem','BoundingBox':'100,50,300,150','R_Content_svg':'";
        row("question",
            question
                + "<svg viewBox=`0 10 400 200`><style>text,.a{fill:red}@media print{b{c:d}}</style>"
                  "<linearGradient id=`g`/><path id=`p` d=`M0 0L9 9` fill=`url( #g )`/><use href=`#p` x=`7`/>"
                  "<script>x()</script><a xlink:href=`http://x.y`><text onclick=`x()`>Why?</text></a></svg>'}",
            "matrix(0.5 0 0 0.5 100 45)|1-g\"/>|url(#s1d|1-g)\"|matrix(1 0 0 1 7 0)\"><path d=\"M0 0L9 9\"|1 "
            "text,#s1d|1 "
            ".a{fill:red}|"
            ">Why?<|!script|!x()|!x.y|!@media|!Question");
        row("question of no size",
            question + "<svg:svg><svg:circle r=`9`/></svg:svg>','content_width':400,'content_height':50}",
            "matrix(0.5 0 0 0.5 100 50)|<circle r=\"9\"/>");
        row("drawing that uses itself",
            question + "<svg><g id=`a`><rect/><use xlink:href=`#b`/></g><g id=`b`><use xlink:href=`#a`/></g></svg>'}",
            "<rect/>|matrix(1 0 0 1 100 50)|!<use");
        row("question in a font", question + "<svg><text font-family=`SimSun` textLength=`9`>a</text></svg>'}",
            "style=\"font-family:SimSun, serif\"|!textLength");
        row("question in words", question + "1 < 2 & 3'}", ">1 &lt; 2 &amp; 3<");
        row("question that is broken", question + "<svg><text>Why?'}", ">Why?<");
        row("empty question", question + "'}", ">Question<");
        const QByteArray formula =
            "{'Type':'ZQFormulaEditorItem','BoundingBox':'0,0,200,100','color':'255,1,2,3','mml':'";
        row("fraction", formula + "<math><mfrac><mn>1</mn><mi>x</mi></mfrac></math>'}",
            ">1</text>|>x</text>|font-style=\"italic\"|fill=\"#010203\"|<path|stroke=\"#010203\"|font-family:Times New "
            "Roman");
        row("root with an index", formula + "<m:math><m:mroot><m:mn>2</m:mn><m:mn>3</m:mn></m:mroot></m:math>'}",
            ">2</text>|>3</text>|font-size=\"56.80\"|<path");
        row("script, colour and names of characters",
            formula
                + "<math><msup><mi "
                  "mathcolor=`red`>&alpha;</mi><mo>&PlusMinus;</mo></msup><mo>-</mo><mi>&nobody;</mi></math>'}",
            "fill=\"#ff0000\"|>\u03b1<|>\u00b1<|font-size=\"71.00\"|>\u2212<|>nobody<");
        row("fences as high as what they hold",
            formula
                + "<math><mi>f</mi><mo>(</mo><mi>x</mi><mo>)</mo><mo>[</mo><mfrac><mn>1</mn><mn>2</mn></mfrac><mo>]</"
                  "mo></math>'}",
            ">(</text>|>)</text>|!>[</text>|!>]</text>|<path");
        row("table", formula + "<math><mtable><mtr><mtd><mn>7</mn></mtd><mtd><mn>8</mn></mtd></mtr></mtable></math>'}",
            ">7</text>|>8</text>|x=\"155.00\"");
        row("formula that is broken, with its picture", formula + "<math>','document':'a.svg'}", "<image|!<path");
        row("expression", "{'Type':'ZQFormulaMath','BoundingBox':'0,0,200,90','TextHtml':'<p>1 &lt; x</p>'}",
            ">1 &lt; x<|!>Formula<");
        row("formula that is broken", formula + "<math>'}", ">Formula<");
        row("covered item, turned",
            "{'Type':'ZQMath2DRectangle','BoundingBox':'0,0,40,20','Angle':'1.5707963267949','CoverLayer':'1'}",
            "fill-opacity=\"0.40\"|matrix(0 1 -1 0 30 -10)\"><path d=\"M0.00 0.00L40.00 0.00L40.00 20.00L0.00 20.00");
        row("covered group",
            "{'Type':'ZQGroupItem','CoverLayer':'1','Children':[{'Type':'ZQMath2DRectangle','BoundingBox':'0,0,40,20'},"
            "{'Type':'stroke','XY':'10,10,80,0'}]}",
            "M0.00 0.00L90.00 0.00L90.00 20.00L0.00 20.00");
        row("item that isn't covered", "{'Type':'stroke','XY':'10,10,80,0','CoverLayer':'0'}",
            "!fill-opacity=\"0.40\"");
        row("raw item where its points are",
            "{'Type':'ZQNewPart','Matrix':'2,0,0,2,100,50','ArtObj_Point0x':'0','ArtObj_Point0y':'5',"
            "'ArtObj_Point1x':'50','ArtObj_Point1y':'5'}",
            "height=\"24.00\"|width=\"100.00\"|x=\"100.00\"|y=\"48.00\"");
        row("raw item where its matrix is", "{'Type':'ZQNewPart','Matrix':'2,0,0,2,100,50'}",
            "width=\"176.00\"|x=\"100.00\"|y=\"50.00\"");
        row("item that is nowhere", "{'Type':'ZQNewPart'}", "x=\"12.00\"|y=\"12.00\"");
        row("film", "{'Type':'ZQMediaVideo','BoundingBox':'0,0,200,150','resource':'v/of a day.mp4'}",
            ">of a day.mp4<|>Film, MP4<|!matrix(");
        row("sound that is named",
            "{'Type':'ZQMediaAudio','BoundingBox':'0,0,300,60','resource':'a.wav','name':'Bell'}",
            ">Bell<|>Sound, WAV<");
        row("document in a small box", "{'Type':'ZQMediaDoc','BoundingBox':'0,0,8,8','document':'a.doc'}",
            "<path|!<text");
        row("worksheet", "{'Type':'ZQDyCoursewareItem','BoundingBox':'0,0,200,150','document':['','w/a.ggb']}",
            ">a.ggb<|>Moving worksheet, GGB<");
        row("worksheet with its picture",
            "{'Type':'ZQDyCoursewareItem','BoundingBox':'0,0,200,150','document':['a.svg','w/a.ggb']}",
            "data:image/|!<text");
        row("picture that is missing", "{'Type':'ZQImagePic','BoundingBox':'0,0,200,90','resource':'b.png'}",
            ">Picture that|>missing<");
    }

    void drawsWhatItemsHold()
    {
        QFETCH(QByteArray, items);
        QFETCH(QByteArray, drawn);
        const QByteArray drawing =
            QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><circle r='9'/></svg>").toBase64();
        const QByteArray svg = svgOf("{'Width':'400','Height':'300','Version':'3.0','Resources':{'a.svg':'" + drawing
                                     + "'},'Slides':[{'Items':[" + items + "]}]}");
        for (const QByteArray &part : drawn.split('|')) {
            const bool isDrawn = !part.startsWith('!');
            QVERIFY2(svg.contains(isDrawn ? part : part.mid(1)) == isDrawn, QByteArray(part + " in " + svg));
        }
    }

    // Raw lessons have slides of several sizes.
    void keepsASizeASlide()
    {
        const QByteArray lesson = "{'Width':'1440','Height':'1080','Slides':[{SLIDE'Items':[]}]}";
        for (const auto &row : {std::make_pair("", "1440.00 1080.00"),
                                std::make_pair("'SlideSourceRect':'0,0,1280,720',", "1920.00 1080.00"),
                                std::make_pair("'SlideSourceRect':'0,0,1280,800',", "1728.00 1080.00")}) {
            QVERIFY2(svgOf(QByteArray(lesson).replace("SLIDE", row.first))
                         .contains("viewBox=\"0 0 " + QByteArray(row.second)),
                     row.first);
        }
    }
};

QTEST_GUILESS_MAIN(TestMediaDrawings)
#include "tst_mediadrawings.moc"
