// SPDX-License-Identifier: MIT
#include "lesson/textruns.h"

#include "files/xmltext.h"
#include "lesson/closedtext.h"
#include "lesson/fontvalues.h"
#include "lesson/numbertexts.h"

#include <QFont>
#include <QMap>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextList>

namespace lessonhost {

namespace {

// The weight as style sheets of text documents write it: eight times the font's.
QString htmlWeight(const QString &svg)
{
    bool isNumber = false;
    Q_UNUSED(svg.toInt(&isNumber))
    return isNumber ? QString::number(fontWeight(svg) * 8) : fontWeightText(fontWeight(svg));
}

constexpr double pixelsOfPoint = 96.0 / 72.0;

double pixelSize(const QTextCharFormat &format)
{
    double pixels = defaultFontPixels;
    if (format.hasProperty(QTextFormat::FontPixelSize)) {
        pixels = format.intProperty(QTextFormat::FontPixelSize);
    } else if (format.hasProperty(QTextFormat::FontPointSize)) {
        pixels = format.doubleProperty(QTextFormat::FontPointSize) * pixelsOfPoint;
    }
    // <h1>, <font size="+2"> and the like: steps around the size.
    static constexpr double steps[] = {0.7, 0.8, 1.0, 1.2, 1.5, 2, 2.4};
    const int step = format.intProperty(QTextFormat::FontSizeAdjustment);
    return pixels * steps[qBound(0, step + 2, 6)];
}

QString familyNames(const QTextCharFormat &format)
{
    QStringList names = format.fontFamilies().toStringList();
    if (names.isEmpty() && !format.fontFamily().isEmpty()) {
        names.append(format.fontFamily());
    }
    return names.isEmpty() ? QStringLiteral("Arial") : names.join(QLatin1String(", "));
}

QString decoration(const QTextCharFormat &format)
{
    QStringList lines;
    if (format.fontUnderline()) {
        lines.append(QStringLiteral("underline"));
    }
    if (format.fontStrikeOut()) {
        lines.append(QStringLiteral("line-through"));
    }
    return lines.isEmpty() ? QStringLiteral("none") : lines.join(QLatin1Char(' '));
}

IwbTextInfo runOf(const QTextCharFormat &format, Qt::Alignment alignment)
{
    IwbTextInfo run;
    const QBrush brush = format.foreground();
    run.fill = brush.style() == Qt::NoBrush ? QStringLiteral("#000000") : brush.color().name();
    run.fontWeight =
        format.hasProperty(QTextFormat::FontWeight) ? fontWeightText(format.fontWeight()) : QStringLiteral("normal");
    run.fontStyle = format.fontItalic() ? QStringLiteral("italic") : QStringLiteral("normal");
    run.fontFamily = withoutControlCharacters(familyNames(format));
    run.fontSize = numberText(pixelSize(format));
    run.textDecoration = decoration(format);
    run.textAlign = svgAlignment(alignment);
    return run;
}

// Where a run must end at the latest: behind the end of a line, where other programs need an element of their own, and
// within the three characters that would end the CDATA section that its text becomes.
int runEnd(const QString &text, int start)
{
    for (int i = start; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('\n') || text.at(i) == QChar::LineSeparator) {
            return i + 1;
        }
        if (text.midRef(i, 3) == QLatin1String("]]>")) {
            return i + 2;
        }
    }
    return text.size();
}

bool sameFormat(const IwbTextInfo &a, const IwbTextInfo &b)
{
    return a.fill == b.fill && a.fontWeight == b.fontWeight && a.fontStyle == b.fontStyle
        && a.fontFamily == b.fontFamily && a.fontSize == b.fontSize && a.textDecoration == b.textDecoration
        && a.textAlign == b.textAlign;
}

struct Piece
{
    IwbTextInfo format;
    QString shift;
    QString background;
    QString text;
};

void appendPiece(QVector<Piece> &pieces, const Piece &piece)
{
    if (!pieces.isEmpty() && sameFormat(pieces.constLast().format, piece.format)
        && pieces.constLast().shift == piece.shift && pieces.constLast().background == piece.background) {
        pieces.last().text += piece.text;
    } else {
        pieces.append(piece);
    }
}

void appendRuns(TextRuns &result, const Piece &piece)
{
    int start = 0;
    do {
        const int end = runEnd(piece.text, start);
        IwbTextInfo run = piece.format;
        run.text = piece.text.mid(start, end - start);
        result.runs.append(run);
        result.shifts.append(piece.shift);
        result.backgrounds.append(piece.background);
        start = end;
    } while (start < piece.text.size());
}

QString shiftOf(const QTextCharFormat &format)
{
    switch (format.verticalAlignment()) {
    case QTextCharFormat::AlignSubScript:
        return QStringLiteral("sub");
    case QTextCharFormat::AlignSuperScript:
        return QStringLiteral("super");
    default:
        return {};
    }
}

// Nothing for letters that have none, or one that nobody sees.
QString backgroundOf(const QTextCharFormat &format)
{
    const QBrush brush = format.background();
    return brush.style() == Qt::NoBrush || brush.color().alpha() == 0 ? QString() : brush.color().name();
}

/*!
 * Counts what text documents know and runs don't.
 */
class TextLosses
{
public:
    void lookAt(const QTextBlock &block)
    {
        const QTextBlockFormat format = block.blockFormat();
        count(TO_SAY_NUMBER("%n indented paragraphs"),
              format.indent() > 0 || format.leftMargin() > 0 || format.textIndent() != 0);
        count(TO_SAY_NUMBER("%n paragraphs with a line height of their own"),
              format.lineHeightType() != QTextBlockFormat::SingleHeight);
        count(TO_SAY_NUMBER("%n backgrounds of paragraphs"), format.background().style() != Qt::NoBrush);
        count(TO_SAY_NUMBER("%n rules"), format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth));
        count(TO_SAY_NUMBER("%n cells of tables"), QTextCursor(block).currentTable() != nullptr);
    }

    void lookAt(const QTextCharFormat &format)
    {
        const int alpha = format.background().color().alpha();
        count(TO_SAY_NUMBER("%n texts with a translucent background"),
              format.background().style() != Qt::NoBrush && alpha > 0 && alpha < 255);
        count(TO_SAY_NUMBER("%n texts with a line above"), format.fontOverline());
        count(TO_SAY_NUMBER("%n texts in another case or spacing"),
              format.fontCapitalization() != QFont::MixedCase
                  || (format.hasProperty(QTextFormat::FontLetterSpacing) && format.fontLetterSpacing() != 0));
        count(TO_SAY_NUMBER("%n links within the text"), format.isAnchor() && !format.anchorHref().isEmpty());
    }

    void count(const char *what, int times)
    {
        if (times > 0) {
            m_counts[what] += times;
        }
    }

    Sentences toSentences() const
    {
        Sentences sentences;
        for (auto it = m_counts.cbegin(); it != m_counts.cend(); ++it) {
            sentences.append(sayNumber(it.key().constData(), it.value()));
        }
        return sentences;
    }

private:
    QMap<QByteArray, int> m_counts; // by a text for sayNumber()
};

QString listMarker(const QTextBlock &block)
{
    const QTextList *list = block.textList();
    if (!list) {
        return {};
    }
    const bool isNumbered = list->format().style() <= QTextListFormat::ListDecimal;
    return (isNumbered ? list->itemText(block) : QString(QChar(0x2022))) + QLatin1Char(' ');
}

TextRuns runsOf(const QTextDocument &document)
{
    TextRuns result;
    TextLosses losses;
    QVector<Piece> pieces;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        losses.lookAt(block);
        const Qt::Alignment alignment = block.blockFormat().alignment();
        Piece piece{runOf(block.charFormat(), alignment), shiftOf(block.charFormat()), {}, {}};
        QString marker = listMarker(block);
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            int characters = 0;
            QString text = withoutControlCharacters(fragment.text(), &characters);
            losses.count(TO_SAY_NUMBER("%n control characters"), characters);
            losses.count(TO_SAY_NUMBER("%n pictures within the text"), text.count(QChar::ObjectReplacementCharacter));
            text.remove(QChar::ObjectReplacementCharacter);
            if (!text.isEmpty()) {
                losses.lookAt(fragment.charFormat());
                piece = {runOf(fragment.charFormat(), alignment), shiftOf(fragment.charFormat()),
                         backgroundOf(fragment.charFormat()), marker + text};
                appendPiece(pieces, piece);
                marker.clear();
            }
        }
        const QString end = block.next().isValid() ? QString(QLatin1Char('\n')) : QString();
        if (!marker.isEmpty() || !end.isEmpty() || pieces.isEmpty()) {
            piece.text = marker + end;
            appendPiece(pieces, piece);
        }
    }
    for (const Piece &piece : qAsConst(pieces)) {
        appendRuns(result, piece);
    }
    result.losses = losses.toSentences();
    return result;
}

// The value of a style attribute must not end it.
QString styleSafe(QString text)
{
    for (const char c : {'\'', '"', ';', '<', '>', '&'}) {
        text.remove(QLatin1Char(c));
    }
    return text.trimmed();
}

QString styleOf(const IwbTextInfo &run, const RunExtras &extras)
{
    QStringList families;
    for (const QString &family : run.fontFamily.split(QLatin1Char(','))) {
        const QString name = styleSafe(family);
        if (!name.isEmpty()) {
            families.append(QLatin1Char('\'') + name + QLatin1Char('\''));
        }
    }
    const double pixels = numberOfText(run.fontSize);
    const double points = (pixels > 0 ? pixels : defaultFontPixels) / pixelsOfPoint;
    return QLatin1String("font-family:") + families.join(QLatin1Char(',')) + QLatin1String("; font-size:")
        + numberText(points, 10) + QLatin1String("pt; font-weight:") + htmlWeight(run.fontWeight)
        + QLatin1String("; font-style:")
        + (run.fontStyle == QLatin1String("normal") ? QLatin1String("normal") : QLatin1String("italic"))
        + QLatin1String("; text-decoration:") + styleSafe(run.textDecoration) + QLatin1String("; color:")
        + styleSafe(run.fill) + QLatin1Char(';')
        + (extras.shift.isEmpty() ? QString() : QLatin1String(" vertical-align:") + extras.shift + QLatin1Char(';'))
        + (extras.background.isEmpty()
               ? QString()
               : QLatin1String(" background-color:") + styleSafe(extras.background) + QLatin1Char(';'));
}

// What stands between two ends of paragraphs.
struct Paragraph
{
    QString align;
    QString firstStyle;
    QString spans; // empty for a paragraph without text
};

void appendSpan(Paragraph &paragraph, const IwbTextInfo &run, const RunExtras &extras, const QString &text)
{
    const QString style = styleOf(run, extras);
    if (paragraph.align.isEmpty()) {
        paragraph.align = run.textAlign;
        // What lies behind letters would lie behind all of the paragraph.
        paragraph.firstStyle = styleOf(run, {extras.shift, {}, {}});
    }
    if (!text.isEmpty()) {
        QString escaped = text.toHtmlEscaped();
        escaped.replace(QChar::LineSeparator, QLatin1String("<br/>"));
        const QString span =
            QLatin1String("<span style=\"") + style + QLatin1String("\">") + escaped + QLatin1String("</span>");
        paragraph.spans += extras.link.isEmpty() ? span
                                                 : QLatin1String("<a href=\"") + extras.link.toHtmlEscaped()
                + QLatin1String("\">") + span + QLatin1String("</a>");
    }
}

// A paragraph without text needs a line break within, the mark that text documents know it by, and its font.
QString paragraphHtml(const Paragraph &paragraph)
{
    const QString start = QLatin1String("<p align=\"") + htmlAlignment(textAlignment(paragraph.align))
        + QLatin1String("\" style=\"margin:0px; white-space:pre-wrap;");
    if (paragraph.spans.isEmpty()) {
        return start + QLatin1String(" -qt-paragraph-type:empty; ") + paragraph.firstStyle
            + QLatin1String("\"><br/></p>");
    }
    return start + QLatin1String("\">") + paragraph.spans + QLatin1String("</p>");
}

} // namespace

TextRuns textRunsFromHtml(const QString &html)
{
    ClosedTextDocument document;
    const int leftOut = document.setLessonHtml(html);
    TextRuns runs = runsOf(document);
    if (leftOut > 0) {
        runs.losses.append(sayNumber("%n tags, which are too many or nested too deep", leftOut));
    }
    return runs;
}

TextRuns textRunsFromPlainText(const QString &text)
{
    ClosedTextDocument document;
    document.setPlainText(text);
    return runsOf(document);
}

QString htmlFromTextRuns(const IwbTextInfoList &runs, const QVector<RunExtras> &extras)
{
    QVector<Paragraph> paragraphs(1);
    for (int n = 0; n < runs.size(); ++n) {
        const IwbTextInfo &run = runs.at(n);
        const QStringList parts = run.text.split(QLatin1Char('\n'));
        for (int i = 0; i < parts.size(); ++i) {
            if (i > 0) {
                paragraphs.append(Paragraph());
            }
            // What follows on a last newline belongs to the next run, which may be formatted otherwise.
            const bool isRest = i > 0 && i + 1 == parts.size() && parts.at(i).isEmpty() && n + 1 < runs.size();
            if (!isRest) {
                appendSpan(paragraphs.last(), run, extras.value(n), parts.at(i));
            }
        }
    }
    QString html = QStringLiteral("<html><body>");
    for (const Paragraph &paragraph : qAsConst(paragraphs)) {
        html += paragraphHtml(paragraph);
    }
    return html + QLatin1String("</body></html>");
}

QString withoutControlCharacters(const QString &text, int *dropped)
{
    QString clean;
    clean.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (isXmlCharacter(text, i)) {
            clean += text.at(i);
        } else if (dropped) {
            ++*dropped;
        }
    }
    return clean;
}

} // namespace lessonhost
