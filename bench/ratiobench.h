// SPDX-License-Identifier: MIT
#ifndef RATIOBENCH_H
#define RATIOBENCH_H

#include "izqtransformation.h"

#include <QDomDocument>
#include <QDomElement>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

// Every figure of the benchmarks is a ratio within one run, so that it means the same on any machine. Both sides of a
// ratio are measured in turns and the median turn of each counts, so that a busy machine disturbs neither.

IZQTransformation *plugin();

//! The children of the root of a file beside the benchmarks. Their document lives to the end.
std::vector<QDomElement> samples(const QString &file);

//! The element's own XML text.
QString xmlText(const QDomElement &element);

//! What items are read with: a lesson of the current version on a slide of 1024 x 768.
QJsonObject itemContext();

//! Parses the text and drops the document.
void parse(const QString &xml);

/*!
 * What is timed, and what has to be made ready for a number of runs before, untimed.
 */
struct Work
{
    std::function<void()> run;
    std::function<void(int times)> prepare; //!< may be empty
};

//! Reads an item of ZQTX or raw XML by convert(element), which may take the element's tree apart: each run gets a copy.
template <typename Convert> Work workOnCopies(const QString &xml, Convert convert)
{
    struct Copies
    {
        QDomDocument original;
        std::vector<QDomDocument> documents;
    };
    const auto copies = std::make_shared<Copies>();
    copies->original.setContent(xml, false);
    return {[copies, convert] {
                convert(copies->documents.back().documentElement());
                copies->documents.pop_back();
            },
            [copies](int times) {
                copies->documents.clear();
                for (int i = 0; i < times; ++i) {
                    copies->documents.push_back(copies->original.cloneNode().toDocument());
                }
            }};
}

//! Registers a benchmark "group/name" whose figure is the time of work over the time of base.
void registerRatio(const QString &group, const QString &name, const std::function<void()> &work,
                   const std::function<void()> &base);
void registerRatio(const QString &group, const QString &name, const Work &work, const Work &base);

//! Runs what was registered and prints the geometric mean and the largest ratio of every group.
int runRatios(int argc, char **argv);

#endif // RATIOBENCH_H
