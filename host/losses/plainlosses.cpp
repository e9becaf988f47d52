// SPDX-License-Identifier: MIT
#include "losses/plainlosses.h"

#include "lesson/countednames.h"
#include "lesson/keynames.h"

#include <QHash>
#include <QMap>
#include <QPair>
#include <QVector>

#include <algorithm>
#include <set>

namespace lessonhost {

namespace {

// Who reads more of them than these opens the report.
constexpr int mostLines = 10;
constexpr int mostTold = 6;

const QLatin1String slideOwner("slide");

Sentence capitalized(const Sentence &sentence)
{
    const auto first = [](const QString &text) { return text.isEmpty() ? text : text.at(0).toUpper() + text.mid(1); };
    return {first(sentence.english()), first(sentence.local())};
}

// Of an element of IWB, whichever page it stands on.
bool isRecord(const Loss &loss)
{
    return loss.slide == 0 && !loss.itemId.isEmpty() && loss.itemType.startsWith(QLatin1String("iwb:"));
}

bool isItem(const Loss &loss)
{
    return (loss.slide > 0 && loss.itemType != slideOwner) || isRecord(loss);
}

// Puts a number among ascending ones, most of which come in their order. False if it is there already.
bool insertInto(QVector<int> &numbers, int number)
{
    const auto place = std::lower_bound(numbers.begin(), numbers.end(), number);
    if (place != numbers.end() && *place == number) {
        return false;
    }
    numbers.insert(place, number);
    return true;
}

/*!
 * Counts owners of losses through, so that many lines need no more than a number of each.
 */
class OwnerNumbers
{
public:
    int of(const Loss &loss)
    {
        const QPair<int, QPair<QString, QString>> owner(loss.slide, {loss.itemType, loss.itemId});
        const auto known = m_numbers.constFind(owner);
        return known != m_numbers.constEnd() ? *known : *m_numbers.insert(owner, m_numbers.size());
    }

private:
    QHash<QPair<int, QPair<QString, QString>>, int> m_numbers;
};

/*!
 * Whose losses stand in a line: items of some types, slides, the lesson.
 */
class Owners
{
public:
    void add(const Loss &loss, OwnerNumbers &numbers)
    {
        // Items without an identifier are told apart by nothing.
        if (!loss.itemId.isEmpty() && !insertInto(m_known, numbers.of(loss))) {
            return;
        }
        insertInto(m_slides, loss.slide);
        if (isItem(loss)) {
            // Several types may have one name.
            auto &row = m_items[countedName(loss.itemType, 0).english()];
            row.first = loss.itemType;
            ++row.second;
            ++m_count;
        } else if (loss.slide > 0) {
            insertInto(m_ownSlides, loss.slide);
        } else {
            m_isPresentation = true;
        }
    }

    int count() const { return m_count + m_ownSlides.size() + (m_isPresentation ? 1 : 0); }

    //! "the lesson, slide 2, 9 circles and 3 arrows on slides 1 to 4".
    Sentence words() const
    {
        Sentences parts;
        if (m_isPresentation) {
            parts.append(say("the lesson"));
        }
        if (!m_ownSlides.isEmpty()) {
            parts.append(slidesAlone());
        }
        if (m_count > 0) {
            std::set<int> slides(m_slides.begin(), m_slides.end());
            slides.erase(0);
            parts.append(onSlides(items(), slides));
        }
        return listed(parts);
    }

private:
    Sentence slidesAlone() const
    {
        const int first = m_ownSlides.first();
        const int last = m_ownSlides.last();
        const int count = m_ownSlides.size();
        if (count == 1) {
            return say("slide %1").arg(first);
        }
        return count == last - first + 1 ? say("slides %1 to %2").arg(first, last)
                                         : sayNumber("%n slides from %1 to %2", count).arg(first, last);
    }

    Sentence items() const
    {
        auto rows = m_items.values();
        std::stable_sort(rows.begin(), rows.end(),
                         [](const auto &one, const auto &other) { return one.second > other.second; });
        Sentences names;
        int rest = 0;
        for (const auto &[type, count] : qAsConst(rows)) {
            if (names.size() < mostTold) {
                names.append(countedName(type, count));
            } else {
                rest += count;
            }
        }
        if (rest > 0) {
            names.append(sayNumber("%n other items", rest));
        }
        return listedWithAnd(names);
    }

    QVector<int> m_known; // numbers
    QMap<QString, QPair<QString, int>> m_items; // a type and how many, by their name
    QVector<int> m_slides;
    QVector<int> m_ownSlides; // that lose something themselves
    int m_count = 0; // of items
    bool m_isPresentation = false;
};

/*!
 * Lines of one form, each with its owners.
 */
class Lines
{
public:
    enum Form {
        OwnersFirst, //!< "2 groups on slide 1: this format has no such thing."
        ValueFirst //!< "Colour of the fill: 2 circles on slide 1."
    };

    Lines(Form form, OwnerNumbers &numbers)
        : m_form(form)
        , m_numbers(numbers)
    {
    }

    void add(const Sentence &what, const Loss &loss)
    {
        auto index = m_indexes.constFind(what.english());
        if (index == m_indexes.constEnd()) {
            index = m_indexes.insert(what.english(), m_lines.size());
            m_lines.append({what, Owners()});
        }
        m_lines[*index].owners.add(loss, m_numbers);
    }

    //! The most frequent first. rest: is added the number of what has no line any more.
    Sentences words(int *rest) const
    {
        QVector<Line> lines = m_lines;
        std::stable_sort(lines.begin(), lines.end(),
                         [](const Line &one, const Line &other) { return one.owners.count() > other.owners.count(); });
        Sentences words;
        for (const Line &line : qAsConst(lines)) {
            if (words.size() >= mostLines) {
                *rest += line.owners.count();
            } else if (m_form == ValueFirst) {
                words.append(say("%1: %2.").arg(capitalized(line.what), line.owners.words()));
            } else {
                words.append(say("%1: %2.").arg(capitalized(line.owners.words()), line.what));
            }
        }
        return words;
    }

private:
    struct Line
    {
        Sentence what;
        Owners owners;
    };

    Form m_form;
    OwnerNumbers &m_numbers;
    QVector<Line> m_lines;
    QHash<QString, int> m_indexes;
};

Sentence whyNotThere(const Loss &loss)
{
    if (loss.kind == Loss::AsPicture) {
        return say("as a picture");
    }
    if (!loss.detail.isEmpty()) {
        return loss.detail;
    }
    return isElsewhere(loss.kind) ? say("other boards have no such thing") : say("this format has no such thing");
}

Sentence emptySlide(const Loss &loss)
{
    return (loss.kind == Loss::Emptied ? say("Slide %1 is empty in the result.") : say("Slide %1 is empty there."))
        .arg(loss.slide);
}

Sentence fileLine(const Loss &loss, OwnerNumbers &numbers)
{
    Owners owner;
    owner.add(loss, numbers);
    return say("%1 (%2): %3.").arg(loss.key, owner.words(), loss.detail);
}

// "identifier (3), date (1)".
Sentence countedValues(const LossList &losses)
{
    QMap<QString, QPair<int, Sentence>> counts;
    for (const Loss &loss : losses) {
        if (loss.isShown) {
            continue; // which the kind of item stands for
        }
        const Sentence name = plainPlaceName(loss.key);
        auto &row = counts[name.english()];
        ++row.first;
        row.second = name;
    }
    Sentences names;
    for (const auto &[count, name] : qAsConst(counts)) {
        names.append(count > 1 ? say("%1 (%2 times)").arg(name, count) : name);
    }
    return listed(names);
}

class Summary
{
public:
    Summary(const LossReport &report, bool hasReport)
        : m_report(report)
        , m_hasReport(hasReport)
    {
    }

    Sentences words()
    {
        Sentences lines;
        for (const bool elsewhere : {false, true}) {
            for (const auto group : {Loss::Missing, Loss::Different, Loss::Internal}) {
                const LossList losses = entries(group, elsewhere);
                const Sentence line = group == Loss::Internal ? internal(losses, elsewhere) : Sentence();
                if (!line.isEmpty()) {
                    lines.append(line);
                } else if (group != Loss::Internal && !losses.isEmpty()) {
                    lines += section(losses, group, elsewhere);
                }
            }
        }
        const auto &all = m_report.entries();
        if (std::any_of(all.begin(), all.end(), [](const Loss &loss) { return isElsewhere(loss.kind); })) {
            lines.append(say("The lesson itself travels along in the file, so that lessonconv brings all of it back."));
        }
        const bool isWorthAReport = !lines.isEmpty() && !m_hasReport;
        lines += told();
        if (isWorthAReport) {
            lines.append(say("--report FILE names each."));
        }
        return lines;
    }

private:
    LossList entries(Loss::Group group, bool elsewhere) const
    {
        return m_report.entries().filtered(
            [=](const Loss &loss) { return isElsewhere(loss.kind) == elsewhere && groupOf(loss) == group; });
    }

    Sentences section(const LossList &losses, Loss::Group group, bool elsewhere)
    {
        Sentences slides;
        Sentences files;
        Lines items(Lines::OwnersFirst, m_numbers);
        Lines values(Lines::ValueFirst, m_numbers);
        int rest = 0;
        const auto append = [&rest](Sentences &lines, const Sentence &line) {
            lines.size() < mostLines ? lines.append(line) : void(++rest);
        };
        for (const Loss &loss : losses) {
            const bool isValue = loss.kind == Loss::Value || loss.kind == Loss::Otherwise;
            if (loss.kind == Loss::Emptied || loss.kind == Loss::EmptiedElsewhere) {
                append(slides, emptySlide(loss));
            } else if (loss.kind == Loss::File || loss.isFile) {
                append(files, fileLine(loss, m_numbers));
            } else if (isValue && !loss.key.isEmpty()) {
                values.add(plainPlaceName(loss.key), loss);
            } else {
                items.add(whyNotThere(loss), loss);
            }
        }
        Sentences lines = slides + items.words(&rest) + files + values.words(&rest);
        if (rest > 0) {
            lines.append(sayNumber("And %n more.", rest));
        }
        return Sentences{say("%1:").arg(groupTitle(group, elsewhere))} + indented(lines);
    }

    static Sentence internal(const LossList &losses, bool elsewhere)
    {
        const Sentence values = countedValues(losses);
        return values.isEmpty() ? Sentence() : say("%1: %2.").arg(groupTitle(Loss::Internal, elsewhere), values);
    }

    Sentences told()
    {
        Lines kept(Lines::OwnersFirst, m_numbers);
        Lines items(Lines::OwnersFirst, m_numbers);
        Sentences lines;
        int rest = 0;
        for (const Loss &loss : m_report.entries()) {
            const bool isOfItem = loss.slide > 0 || !loss.itemId.isEmpty();
            if (loss.kind == Loss::Kept) {
                kept.add(say("nobody knows what it is, so it is kept as it came"), loss);
            } else if ((loss.kind == Loss::Note && isOfItem) || loss.kind == Loss::Changed) {
                items.add(loss.detail, loss);
            } else if (loss.kind == Loss::Note) {
                lines.append(say("%1.").arg(capitalized(loss.detail)));
            }
        }
        lines = kept.words(&rest) + items.words(&rest) + lines;
        for (Sentence &line : lines) {
            line = say("Note: %1").arg(line);
        }
        if (rest > 0) {
            lines.append(sayNumber("Note: and %n more.", rest));
        }
        return lines;
    }

    const LossReport &m_report;
    bool m_hasReport;
    OwnerNumbers m_numbers;
};

} // namespace

Sentence groupTitle(Loss::Group group, bool isElsewhere)
{
    switch (group) {
    case Loss::Missing:
        return isElsewhere ? say("Not shown by other boards") : say("Not shown in the result");
    case Loss::Different:
        return isElsewhere ? say("Shown by other boards, but not the same") : say("Shown in the result, but not the same");
    case Loss::Internal:
        return isElsewhere ? say("Only internal, and nothing to other boards") : say("Only internal, seen by nobody");
    case Loss::Told:
        break;
    }
    return say("Note");
}

Sentences indented(Sentences lines)
{
    for (Sentence &line : lines) {
        line = Sentence(QStringLiteral("  ")) + line;
    }
    return lines;
}

Sentences plainSummary(const LossReport &report, bool hasReport)
{
    return Summary(report, hasReport).words();
}

} // namespace lessonhost
