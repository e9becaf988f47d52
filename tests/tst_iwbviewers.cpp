// SPDX-License-Identifier: MIT
#include "canvas/picturestore.h"
#include "hostfixture.h"
#include "render/pageprinter.h"
#include "render/slidepictures.h"

#include <QDir>
#include <QDomDocument>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QJsonDocument>
#include <QPainter>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTransform>
#include <QtTest>

#include <cmath>

namespace {

const QString chromium = "chromium";
const QString rsvg = "rsvg-convert";
constexpr int columns = 4; // of pages in the browser's window

struct Page
{
    QString name;
    QSize size;
    QDomElement element;
    QByteArray svg;
    QImage wanted;
    QVector<QRect> texts;
    QVector<QRect> lines; // of letters by themselves
    QVector<QRect> others; // what viewers of svg have no idea of
    bool isFaulty = false;
};

// What must be noticed of a page.
struct Fault
{
    const char *page;
    const char *tag; // of which its last element has it
    const char *attribute; // is another then; without it, the element isn't there
    const char *value;
};
constexpr Fault faults[] = {
    {"geometry page1", "svg:rect", "transform", "translate(2,0) "},
    {"geometry page1", "svg:circle", "transform", "translate(0,-2) "},
    {"geometry page1", "svg:ellipse", "fill-opacity", "0.6"},
    {"geometry page1", "svg:polygon", "fill", "#d0d0ff"},
    {"geometry page1", "svg:line", nullptr, nullptr},
    {"geometry page2", "svg:polyline", "stroke", "#00ee00"},
    {"handwriting page3", "svg:polygon", nullptr, nullptr},
    {"playing page7", "svg:image", nullptr, nullptr},
    {"subjects page2", "svg:image", "transform", "translate(2,0) "},
    {"subjects page3", "svg:text", "transform", "translate(20,0) "},
    {"subjects page1", "svg:text", nullptr, nullptr},
    {"subjects page3", "svg:polyline", nullptr, nullptr},
    {"subjects page4", "svg:polyline", "stroke", "#ff9090"},
    {"geometry page2", "svg:textarea", "transform", "translate(20,0) "},
    {"playing page1", "svg:tspan", "fill", "red"},
    {"playing page1", "svg:textarea", nullptr, nullptr},
};

// An element's attributes as a style of HTML.
QString styleOf(const QDomElement &element)
{
    QString style;
    for (const char *name :
         {"fill", "background-color", "font-family", "font-size", "font-style", "font-weight", "text-align"}) {
        const QString value = element.attribute(name);
        const QString css = qstrcmp(name, "fill") == 0 ? "color" : name;
        style += value.isEmpty() ? QString() : css + ':' + value + (css == "font-size" ? "px;" : ";");
    }
    return style.toHtmlEscaped();
}

// Text as the format has it: in a box, wrapped at its width and free to leave it below; a line for each break.
QString htmlOf(const QDomElement &area)
{
    QString lines;
    QString line;
    QString align;
    const auto endLine = [&] {
        lines += "<div style=\"text-align:" + align + "\">" + line + "&#8203;</div>";
        line.clear();
    };
    for (QDomElement span = area.firstChildElement(); !span.isNull(); span = span.nextSiblingElement()) {
        if (span.tagName() == "svg:tspan") {
            align = span.attribute("text-align");
            line += "<span style=\"" + styleOf(span) + "\">" + span.text().toHtmlEscaped() + "</span>";
        }
        if (span.tagName() == "svg:tbreak" || !span.firstChildElement("svg:tbreak").isNull()) {
            endLine();
        }
    }
    endLine();
    QString place;
    for (const char *name : {"x", "y", "width", "height", "transform"}) {
        place += QString(" %1=\"%2\"").arg(name, area.attribute(name));
    }
    return "<svg:foreignObject overflow=\"visible\"" + place + "><div xmlns=\"http://www.w3.org/1999/xhtml\" style=\""
        + styleOf(area) + (area.attribute("xml:space") == "preserve" ? "white-space:pre-wrap" : "") + "\">" + lines
        + "</div></svg:foreignObject>";
}

double number(const QDomElement &element, const QString &name)
{
    return element.attribute(name).toDouble();
}

QRect areaOf(const QDomElement &element)
{
    const QStringList points = element.attribute("points").split(QRegularExpression("[ ,]"), Qt::SkipEmptyParts);
    if (!points.isEmpty()) {
        QPolygonF polygon;
        for (int i = 0; i + 1 < points.size(); i += 2) {
            polygon.append({points.at(i).toDouble(), points.at(i + 1).toDouble()});
        }
        const double width = number(element, "stroke-width");
        return polygon.boundingRect().adjusted(-width, -width, width, width).toAlignedRect();
    }
    QRectF box(number(element, "x"), number(element, "y"), number(element, "width"), number(element, "height"));
    if (element.tagName() == "svg:text") {
        QFont font(element.attribute("font-family"));
        font.setPixelSize(qMax(1, qRound(number(element, "font-size"))));
        font.setBold(element.attribute("font-weight") == "bold");
        box = QFontMetricsF(font).boundingRect(element.text()).translated(box.topLeft());
    }
    static const QRegularExpression turn("rotate\\((.*?),(.*?),(.*?)\\)");
    const auto match = turn.match(element.attribute("transform"));
    const QPointF middle(match.captured(2).toDouble(), match.captured(3).toDouble());
    const QTransform transform = QTransform()
                                     .translate(middle.x(), middle.y())
                                     .rotate(match.captured(1).toDouble())
                                     .translate(-middle.x(), -middle.y());
    return transform.mapRect(box).toAlignedRect();
}

// The strokes of a page that are as wide at each point as the pen was pressed; lines of the format have one width.
QSet<QString> pressedStrokes(const QJsonValue &value)
{
    QSet<QString> ids;
    for (const QJsonValue &part : value.toArray()) {
        ids += pressedStrokes(part);
    }
    const QJsonObject object = value.toObject();
    for (const QJsonValue &part : object) {
        ids += pressedStrokes(part);
    }
    if (!object.value("PointBrushWid").toString().isEmpty()) {
        ids.insert(object.value("ID").toString());
    }
    return ids;
}

// Twice as large first: lines of a pixel have dashes of another length.
QImage drawn(const SlidePicture &picture, const PictureStore &store)
{
    QImage image(picture.size.toSize() * 2, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    PagePrinter(store).paint(painter, picture, image.rect());
    painter.end();
    return image.scaled(picture.size.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

QVector<QDomElement> elementsIn(const QDomElement &root)
{
    QVector<QDomElement> all{root};
    for (int i = 0; i < all.size(); ++i) {
        for (auto child = all.at(i).firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            all.append(child);
        }
    }
    return all;
}

// A page as a document of its own.
QByteArray svgOf(const Page &page)
{
    QString text;
    QTextStream stream(&text);
    page.element.save(stream, -1, QDomNode::EncodingFromTextStream);
    static const QRegularExpression written("<svg:textarea [^>]*?(/>|>.*?</svg:textarea>)",
                                            QRegularExpression::DotMatchesEverythingOption);
    const QDomNodeList areas = page.element.elementsByTagName("svg:textarea");
    for (int i = 0; i < areas.size(); ++i) {
        const auto match = written.match(text);
        text.replace(match.capturedStart(), match.capturedLength(), htmlOf(areas.at(i).toElement()));
    }
    text.replace("svg:page", "svg:g");
    return "<svg:svg xmlns:svg='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
           "width='%1' height='%2' viewBox='0 0 %1 %2'>%3</svg:svg>"_s.arg(page.size.width())
               .arg(page.size.height())
               .arg(text)
               .toUtf8();
}

// The pages of a package, by the rules of the format: lines aren't filled, pictures fill their boxes.
QVector<Page> pagesOf(const QString &folder, const QString &name)
{
    QDomDocument document;
    document.setContent(fileContent(folder + "/content.xml"), false);
    const QDomElement svg = document.documentElement().firstChildElement("svg:svg");
    QSet<QString> arrows; // "ID1" for the first end of ID
    QSet<QString> curtains;
    QHash<QString, QString> backgrounds; // of texts
    for (const QDomElement &record : elementsIn(document.documentElement())) {
        if (record.hasAttribute("background-fill")) {
            backgrounds.insert(record.attribute("ref"), record.attribute("background-fill"));
        }
        if (record.attribute("revealer") == "true") {
            curtains.insert(record.attribute("ref"));
        }
        for (const auto &[end, number] : {std::pair("start", "1"), {"end", "2"}}) {
            if (record.attribute(QString("stroke-lineshape-") + end) == "arrow") {
                arrows.insert(record.attribute("ref") + number);
            }
        }
    }
    QVector<Page> pages;
    for (auto page = svg.firstChildElement().firstChildElement(); !page.isNull(); page = page.nextSiblingElement()) {
        Page result;
        result.name = name + ' ' + page.attribute("id");
        result.size = {svg.attribute("width").toInt(), svg.attribute("height").toInt()};
        result.element = page;
        const QSet<QString> pressed = pressedStrokes(
            QJsonDocument::fromJson(fileContent(folder + "/additional/native/" + page.attribute("id") + ".json"))
                .object());
        for (QDomElement element : elementsIn(page)) {
            if (element.tagName() == "svg:polyline") {
                element.setAttribute("fill", "none");
            } else if (element.tagName() == "svg:image") {
                element.setAttribute("preserveAspectRatio", "none");
                element.setAttribute("xlink:href", "file://" + folder + '/' + element.attribute("xlink:href"));
            } else if (element.tagName() == "svg:text") {
                result.lines.append(areaOf(element));
            } else if (element.tagName() == "svg:textarea") {
                result.texts.append(areaOf(element));
            } else if (element.tagName() == "svg:video") {
                result.others.append(areaOf(element).adjusted(-3, -3, 3, 3));
            }
            const QString id = element.attribute("id");
            if (backgrounds.contains(id)) {
                element.setAttribute("background-color", backgrounds.value(id));
            }
            if (pressed.contains(id) || curtains.contains(id)) {
                result.others.append(areaOf(element));
            }
            for (const QString end : {"1", "2"}) {
                // What arrows look like is left to the viewer, and whether dashes begin behind them.
                const bool isDashed = element.hasAttribute("stroke-dasharray");
                const int reach = int(5 * number(element, "stroke-width")) + 4;
                const QPointF from(number(element, "x" + end), number(element, "y" + end));
                const QPointF to(number(element, end == "1" ? "x2" : "x1"), number(element, end == "1" ? "y2" : "y1"));
                const int places = isDashed ? int(QLineF(from, to).length() / reach) + 1 : 1;
                for (int i = 0; arrows.contains(id + end) && i < places; ++i) {
                    const QPoint point = (from + (to - from) * i / places).toPoint();
                    result.others.append(QRect(point, QSize()).adjusted(-reach, -reach, reach, reach));
                }
            }
        }
        result.svg = svgOf(result);
        pages.append(result);
    }
    return pages;
}

// The page with a fault; a name with a question mark for one that hasn't what the fault is about.
Page faultyPage(Page page, const Fault &fault)
{
    const QString tag = fault.tag;
    page.isFaulty = true;
    page.name += QString(", %1 with %2 \"%3\"").arg(tag, fault.attribute, fault.value);
    page.element = page.element.cloneNode().toElement();
    const QDomNodeList all = page.element.elementsByTagName(tag);
    QDomElement element = all.at(all.size() - 1).toElement();
    if (element.isNull()) {
        page.name += '?';
    } else if (!fault.attribute) {
        element.parentNode().removeChild(element);
    } else {
        const bool isMoved = qstrcmp(fault.attribute, "transform") == 0;
        element.setAttribute(fault.attribute, fault.value + (isMoved ? element.attribute(fault.attribute) : QString()));
    }
    page.svg = svgOf(page);
    return page;
}

int distance(QRgb one, QRgb other)
{
    return qMax(qAbs(qRed(one) - qRed(other)),
                qMax(qAbs(qGreen(one) - qGreen(other)), qAbs(qBlue(one) - qBlue(other))));
}

constexpr int sameColor = 24; // of 255
constexpr int aroundText = 24; // where letters may be that leave their box
constexpr int aroundLine = 2;

// Whether a colour is there within a pixel, or is one between those that are: edges are smoothed.
bool isNear(const QImage &image, int x, int y, QRgb color)
{
    int least[3] = {255, 255, 255};
    int most[3] = {0, 0, 0};
    for (int j = qMax(0, y - 1); j <= qMin(image.height() - 1, y + 1); ++j) {
        for (int i = qMax(0, x - 1); i <= qMin(image.width() - 1, x + 1); ++i) {
            const QRgb there = image.pixel(i, j);
            const int parts[3] = {qRed(there), qGreen(there), qBlue(there)};
            for (int k = 0; k < 3; ++k) {
                least[k] = qMin(least[k], parts[k]);
                most[k] = qMax(most[k], parts[k]);
            }
        }
    }
    const int parts[3] = {qRed(color), qGreen(color), qBlue(color)};
    for (int k = 0; k < 3; ++k) {
        if (parts[k] < least[k] - sameColor || parts[k] > most[k] + sameColor) {
            return false;
        }
    }
    return true;
}

// Whether as much of each colour is there within a pixel: viewers spread hairlines over two in parts of their own.
bool isAsMuch(const QImage &one, const QImage &other, int x, int y)
{
    int more[3] = {0, 0, 0};
    for (int j = qMax(0, y - 1); j <= qMin(one.height() - 1, y + 1); ++j) {
        for (int i = qMax(0, x - 1); i <= qMin(one.width() - 1, x + 1); ++i) {
            more[0] += qRed(one.pixel(i, j)) - qRed(other.pixel(i, j));
            more[1] += qGreen(one.pixel(i, j)) - qGreen(other.pixel(i, j));
            more[2] += qBlue(one.pixel(i, j)) - qBlue(other.pixel(i, j));
        }
    }
    constexpr int most = 9 * sameColor;
    return qAbs(more[0]) < most && qAbs(more[1]) < most && qAbs(more[2]) < most;
}

// What the one shows and the other doesn't within a pixel, both ways, beside texts and what is the viewer's own: in
// pixels of black on white.
QString pixelProblem(const Page &page, const QImage &found)
{
    constexpr double most = 4; // corners of lines, ends of dashes, hairlines on each other
    double different = 0;
    QPoint first;
    const QImage &wanted = page.wanted;
    const auto isIn = [](const QVector<QRect> &areas, const QPoint &point, int around) {
        return std::any_of(areas.cbegin(), areas.cend(), [&](const QRect &area) {
            return area.adjusted(-around, -around, around, around).contains(point);
        });
    };
    for (int y = 0; y < wanted.height(); ++y) {
        const auto *one = reinterpret_cast<const QRgb *>(wanted.constScanLine(y));
        const auto *other = reinterpret_cast<const QRgb *>(found.constScanLine(y));
        for (int x = 0; x < wanted.width(); ++x) {
            const bool isSame = one[x] == other[x] || distance(one[x], other[x]) <= sameColor
                || (isNear(found, x, y, one[x]) && isNear(wanted, x, y, other[x])) || isAsMuch(wanted, found, x, y);
            if (!isSame && !isIn(page.texts, {x, y}, aroundText) && !isIn(page.lines, {x, y}, aroundLine)
                && !isIn(page.others, {x, y}, 0)) {
                first = different == 0 ? QPoint(x, y) : first;
                different += distance(one[x], other[x]) / 255.0;
            }
        }
    }
    return different > most
        ? "%1: %2 pixels differ, the first at %3,%4"_s.arg(page.name).arg(different).arg(first.x()).arg(first.y())
        : QString();
}

// Where the letters of a text are, and how dark they make their box: the mean of each colour.
struct Letters
{
    QRect extent;
    double mean[3] = {0, 0, 0};
};

Letters lettersIn(const QImage &image, const QRect &box)
{
    Letters letters;
    const QRect inside = box & image.rect();
    const QRgb ground = image.pixel(inside.topLeft());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            const QRgb color = image.pixel(x, y);
            letters.extent |= distance(color, ground) > 60 ? QRect(x, y, 1, 1) : QRect();
            const int parts[3] = {qRed(color), qGreen(color), qBlue(color)};
            for (int k = 0; k < 3; ++k) {
                letters.mean[k] += double(parts[k]) / (inside.width() * inside.height());
            }
        }
    }
    return letters;
}

// reach: how far around its box letters may be. Of a line by itself little else counts, so that letters that are set
// closer or in another font for the generic one make more of a difference.
QString textProblem(const Page &page, const QImage &found, const QRect &box, int reach)
{
    const bool isCovered = std::any_of(page.others.cbegin(), page.others.cend(),
                                       [&box](const QRect &other) { return other.intersects(box); });
    if (isCovered) {
        return {};
    }
    const QRect around = box.adjusted(-reach, -reach, reach, reach);
    const Letters one = lettersIn(page.wanted, around);
    const Letters other = lettersIn(found, around);
    double darkness = 0;
    for (int k = 0; k < 3; ++k) {
        darkness = qMax(darkness, qAbs(one.mean[k] - other.mean[k]));
    }
    const QRect a = one.extent;
    const QRect b = other.extent;
    const int moved = qMax(qMax(qAbs(a.left() - b.left()), qAbs(a.top() - b.top())),
                           qMax(qAbs(a.right() - b.right()), qAbs(a.bottom() - b.bottom())));
    // Viewers set letters a little closer or wider.
    const bool isLine = reach == aroundLine;
    return darkness > (isLine ? 10 : 1.5) || moved > (isLine ? 16 : 10)
        ? "%1: the text at %2,%3 is %4 off and differs by %5"_s.arg(page.name).arg(box.x()).arg(box.y()).arg(moved).arg(
            darkness)
        : QString();
}

} // namespace

/*!
 * What viewers of svg show of packages is what we draw of the lessons: at the same places within a pixel, in the same
 * colours.
 */
class TestIwbViewers : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QVector<Page> m_pages;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    // All pages as they are, and those with faults in their texts or in all else.
    QVector<Page> pagesToShow(bool hasTexts) const
    {
        QVector<Page> pages = m_pages;
        for (const Fault &fault : faults) {
            const bool isInText = QByteArray(fault.tag).startsWith("svg:t");
            for (const Page &page : m_pages) {
                if (page.name == fault.page && isInText == hasTexts) {
                    pages.append(faultyPage(page, fault));
                }
            }
        }
        return pages;
    }

    // What is wrong with each page, and which faults nobody noticed.
    void compare(const QVector<Page> &pages, const QVector<QImage> &found, bool hasTexts)
    {
        QStringList wrong;
        for (int i = 0; i < pages.size(); ++i) {
            const Page &page = pages.at(i);
            QCOMPARE(found.at(i).size(), page.size);
            QStringList problems{pixelProblem(page, found.at(i))};
            for (const QRect &text : hasTexts ? page.texts : QVector<QRect>()) {
                problems.append(textProblem(page, found.at(i), text, aroundText));
            }
            for (const QRect &line : hasTexts ? page.lines : QVector<QRect>()) {
                problems.append(textProblem(page, found.at(i), line, aroundLine));
            }
            problems.removeAll(QString());
            if (!page.isFaulty) {
                wrong += problems;
            } else if (problems.isEmpty()) {
                wrong.append(page.name + " isn't noticed");
            }
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
    }

    static bool isHere(const QString &program) { return !QStandardPaths::findExecutable(program).isEmpty(); }

    bool run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"TMPDIR", "XDG_CACHE_HOME", "XDG_CONFIG_HOME"}) {
            environment.insert(name, m_folder.path());
        }
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        return process.waitForFinished(60000) && process.exitCode() == 0;
    }

private slots:
    void initTestCase()
    {
        if (!isHere(chromium) && !isHere(rsvg)) {
            QSKIP("Neither Chromium nor rsvg-convert is installed.");
        }
        for (const QString &name : QDir(EXAMPLES_DIR).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
            const QString lesson = EXAMPLES_DIR "/" + name;
            if (!QFile::exists(lesson + "/index.xml")) {
                continue;
            }
            QCOMPARE(runCommand({"convert", lesson, path(name), "--to", "iwb", "--no-check"}).exitCode, 0);
            QVector<Page> pages = pagesOf(path(name), name);
            const auto reader = openLesson(lesson);
            QCOMPARE(pages.size(), reader->slideCount());
            LessonContext context;
            context.plugin = plugin();
            PictureStore store;
            SlidePictures pictures(*reader, context, store);
            for (int i = 0; i < pages.size(); ++i) {
                pages[i].wanted = drawn(pictures.picture(i), store);
                QCOMPARE(pages.at(i).wanted.size(), pages.at(i).size);
            }
            m_pages += pages;
        }
    }

    void showTheSameInABrowser()
    {
        if (!isHere(chromium)) {
            QSKIP("Chromium isn't installed.");
        }
        const QVector<Page> pages = pagesToShow(true);
        // All pages in one window.
        QString html = "<!DOCTYPE html><meta charset='utf-8'><body style='margin:0'>";
        QSize cell;
        for (const Page &page : pages) {
            cell = cell.expandedTo(page.size);
        }
        const auto corner = [&](int i) { return QPoint(i % columns * cell.width(), i / columns * cell.height()); };
        for (int i = 0; i < pages.size(); ++i) {
            html += "<div style='position:absolute;left:%1px;top:%2px'>"_s.arg(corner(i).x()).arg(corner(i).y())
                + "<iframe style='border:0' width='%1' height='%2' src='page%3.svg'></iframe></div>"_s
                      .arg(pages[i].size.width())
                      .arg(pages[i].size.height())
                      .arg(i);
            putFile(path("page%1.svg"_s.arg(i)), pages.at(i).svg);
        }
        putFile(path("all.html"), html.toUtf8());
        QVERIFY(run(chromium,
                    {"--headless", "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-background-networking",
                     "--disable-component-update", "--disable-sync", "--hide-scrollbars", "--force-color-profile=srgb",
                     "--user-data-dir=" + path("profile"), "--screenshot=" + path("all.png"),
                     "--window-size=%1,%2"_s.arg(columns * cell.width()).arg(corner(pages.size() + columns - 1).y()),
                     "file://" + path("all.html")}));
        const QImage all = QImage(path("all.png")).convertToFormat(QImage::Format_RGB32);
        QVector<QImage> found;
        for (int i = 0; i < pages.size(); ++i) {
            found.append(all.copy(QRect(corner(i), pages.at(i).size)));
        }
        compare(pages, found, true);
    }

    void showTheSameInALibrary()
    {
        if (!isHere(rsvg)) {
            QSKIP("rsvg-convert isn't installed.");
        }
        const QVector<Page> pages = pagesToShow(false);
        QVector<QImage> found;
        for (const Page &page : pages) {
            putFile(path("one.svg"), page.svg);
            QVERIFY(run(rsvg, {"--unlimited", path("one.svg"), "-o", path("one.png")}));
            found.append(QImage(path("one.png")).convertToFormat(QImage::Format_RGB32));
        }
        compare(pages, found, false);
    }
};

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    TestIwbViewers test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_iwbviewers.moc"
