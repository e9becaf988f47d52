// SPDX-License-Identifier: MIT
#include "iwb/textrunloan.h"
#include "lesson/textruns.h"
#include "pluginfixture.h"

#include <QtTest>

#include <ctime>

using namespace lessonhost;

namespace {

// Runs as lines: text|size|weight|style|decoration|colour|align|family, with \n shown as a slash.
QStringList lines(const IwbTextInfoList &runs)
{
    QStringList result;
    for (const IwbTextInfo &run : runs) {
        QString text = run.text;
        text.replace('\n', '/').replace(QChar(0x2028), '^');
        result << QStringList{text,     run.fontSize,  run.fontWeight, run.fontStyle, run.textDecoration,
                              run.fill, run.textAlign, run.fontFamily}
                      .join('|');
    }
    return result;
}

QStringList list(const char *text)
{
    return QString::fromUtf8(text).split(" ;; "_s);
}

int destroyedLists = 0;

void destroyAndCount(void *address)
{
    ++destroyedLists;
    delete static_cast<IwbTextInfoList *>(address);
}

} // namespace

/*!
 * HTML of text boards, runs of text areas, and the way back.
 */
class TestIwbText : public QObject
{
    Q_OBJECT

private slots:
    void htmlBecomesRuns_data()
    {
        const Table<QString, QStringList> row("html", "expected");
        row("nothing is set: plain 28 pixels", "Hello", list("Hello|28|normal|normal|none|#000000|start|Arial"));
        row("nothing at all", "", list("|28|normal|normal|none|#000000|start|Arial"));
        // 12 points are 12 * 96 / 72 = 16 pixels.
        row("points and names",
            "<p align=center><span style=\"font-family:'Times New Roman'; font-size:12pt; color:red; "
            "font-weight:600; font-style:italic; text-decoration:underline\">a</span>b</p>",
            list("a|16|bold|italic|underline|#ff0000|center|Times New Roman ;; "
                 "b|28|normal|normal|none|#000000|center|Arial"));
        row("paragraphs and a line",
            "<p align=right>one<br/>two</p><p style='-qt-paragraph-type:empty'><br/></p><p align=justify>three</p>",
            list("one^|28|normal|normal|none|#000000|end|Arial ;; two/|28|normal|normal|none|#000000|end|Arial ;; "
                 "/|28|normal|normal|none|#000000|start|Arial ;; three|28|normal|normal|none|#000000|justify|Arial"));
        row("the end of a CDATA section is divided", "a]]&gt;b",
            list("a]]|28|normal|normal|none|#000000|start|Arial ;; >b|28|normal|normal|none|#000000|start|Arial"));
        row("struck out, thin, in pixels",
            "<span style='font-size:30px; font-weight:200; text-decoration:underline line-through'>x</span>",
            list("x|30|300|normal|underline line-through|#000000|start|Arial"));
    }

    void htmlBecomesRuns()
    {
        const auto [html, expected] = Table<QString, QStringList>::cells();
        const IwbTextInfoList runs = textRunsFromHtml(html).runs;
        QCOMPARE(lines(runs), expected);
        // Three trips give the same.
        IwbTextInfoList trip = runs;
        for (int i = 0; i < 3; ++i) {
            trip = textRunsFromHtml(htmlFromTextRuns(trip)).runs;
            QCOMPARE(lines(trip), expected);
        }
    }

    void lettersStayBelowAndAboveTheLine()
    {
        const TextRuns text = textRunsFromHtml("H<sub>2</sub>O, x<sup>2</sup>"_s);
        QCOMPARE(text.shifts, QStringList({QString(), "sub", QString(), "super"}));
        QVector<RunExtras> extras;
        for (const QString &shift : text.shifts) {
            extras.append({shift, {}, {}});
        }
        const TextRuns again = textRunsFromHtml(htmlFromTextRuns(text.runs, extras));
        QCOMPARE(again.shifts, text.shifts);
        QCOMPARE(lines(again.runs), lines(text.runs));
        QVERIFY(text.losses.isEmpty());
    }

    void namesWhatRunsCantHold_data()
    {
        const Table<QString, QString> row("html", "loss");
        row("background", "<span style='background-color:rgba(9,9,9,50%)'>a</span>",
            "1 text with a translucent background");
        row("link", "<a href='x'>a</a>", "1 link within the text");
        row("capitals", "<span style='text-transform:uppercase'>a</span>", "1 text in another case or spacing");
        row("table", "<table><tr><td>1</td><td>2</td></tr></table>", "2 cells of tables");
        row("indent", "<p style='margin-left:9px'>a</p>", "1 indented paragraph");
        row("line height", "<p style='line-height:200%'>a</p>", "1 paragraph with a line height of its own");
        row("rule", "a<hr/>b", "1 rule");
        row("nothing", "<ul><li>a</li></ul><b>b</b>", "");
    }

    void namesWhatRunsCantHold()
    {
        const auto [html, loss] = Table<QString, QString>::cells();
        QCOMPARE(inEnglish(textRunsFromHtml(html).losses).join("; "_s), loss);
    }

    // What takes text documents more than linear time, and what only seems to be none of it.
    void takesLittleTime_data()
    {
        const Table<QString, bool> row("html", "isLimited");
        const auto times = [](const char *html, int count) { return QString::fromLatin1(html).repeated(count); };
        row("tables in tables", times("<table><tr><td>", 9000) + "x", true);
        row("behind a quote", times("<x a\"><table><tr><td>\">", 9000), true);
        row("behind what is no comment", times("<!--><table><tr><td>-->", 9000), true);
        row("closed as another", times("<table><i></ table><tr></td ></i>", 9000), true);
        row("empty tables", times("<b/><table/><tr/><td/>", 9000), true);
        row("rows of the first's width", times("<td>", 5000).prepend("<table><tr>") + times("<tr><td>", 5000), true);
        row("wide cells", "<table>" + times("<tr><td colspan='99' rowspan=99>", 5000), true);
        row("wider cells", "<table>" + times("<tr><td &#99;olspan='9999'><td ROWSPAN=9999>", 3000), false);
        row("letters in letters", times("<b>x", 20000), true);
        row("list", "<ol>" + times("<li>x", 20000), true);
        row("pictures", times("<img src=x>", 50000), true);
        row("rules", "<style>" + times("p.x{color:red}", 5000) + "</style>" + times("<p class=x>x", 5000), true);
        row("style sheets", times("<style>p.x{color:red}</style><p>x", 5000), true);
        row("signs", times("<a \"<a '", 50000), false);
        row("a long text", times("<p><b>one</b> <i>two</i><br/><span style='color:red'>three</span></p>", 5000), false);
    }

    void takesLittleTime()
    {
        const auto [html, isLimited] = Table<QString, bool>::cells();
        const std::clock_t start = std::clock();
        const TextRuns text = textRunsFromHtml(html);
        const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
        QVERIFY2(seconds < 3 * slowness, qPrintable(QString::number(seconds)));
        QCOMPARE(inEnglish(text.losses).join(' ').contains("tag"), isLimited);
    }

    void leavesOutWhatXmlCantHold()
    {
        const TextRuns text = textRunsFromHtml("a<img src='file:///etc/passwd'/>b"_s);
        QCOMPARE(inEnglish(text.losses), QStringList{"1 picture within the text"_s});
        QCOMPARE(text.runs.first().text, "ab");
        const TextRuns plain = textRunsFromPlainText(QString::fromUtf8("a\x01"
                                                                       "b\x1f\n\xf0\x9f\x8d\x8e")
                                                     + QChar(0xd800));
        QCOMPARE(inEnglish(plain.losses), QStringList{"3 control characters"_s});
        QCOMPARE(plain.runs.first().text, "ab\n");
        QCOMPARE(plain.runs.last().text, QString::fromUtf8("\xf0\x9f\x8d\x8e"));
    }

    void hostileFieldsStayText()
    {
        IwbTextInfo run;
        run.text = "<b>& \"x\""_s;
        run.fontFamily = "A'; color:red; x:'"_s;
        run.fill = "blue\"><script>"_s;
        const IwbTextInfoList back = textRunsFromHtml(htmlFromTextRuns({run})).runs;
        QCOMPARE(back.size(), 1);
        QCOMPARE(back.first().text, run.text);
    }

    void listsAreDestroyedOnce()
    {
        QJsonObject item;
        {
            const TextRunLoan loan(item, {IwbTextInfo()});
            QCOMPARE(TextRunLoan::liveLists(), 1);
            QCOMPARE(takeTextRuns(item)->size(), 1); // as a reader does, through the destroyer
            QCOMPARE(TextRunLoan::liveLists(), 0);
        }
        QVERIFY(item.isEmpty());
        {
            const TextRunLoan left(item, {IwbTextInfo()});
        }
        QCOMPARE(TextRunLoan::liveLists(), 0);

        auto *foreign = new IwbTextInfoList{IwbTextInfo(), IwbTextInfo()};
        item = {{"IWB_TEXTINFO-VECTOR", QString::number(quintptr(foreign))},
                {"IWB_TEXTINFO-DELVECTOR", QString::number(quintptr(&destroyAndCount))}};
        QCOMPARE(takeTextRuns(item)->size(), 2);
        QCOMPARE(destroyedLists, 1);
        QVERIFY(!takeTextRuns(item));
    }
};

QTEST_MAIN(TestIwbText)
#include "tst_iwbtext.moc"
