// SPDX-License-Identifier: MIT
#include "drawings/formulasigns.h"

#include <algorithm>

namespace lessonhost {

namespace {

constexpr char parenthesis[] = "M 1 0 C .05 .25 .05 .75 1 1";
constexpr char bracket[] = "M 1 0 L 0 0 L 0 1 L 1 1";
constexpr char brace[] =
    "M 1 0 C .5 0 .5 .02 .5 .1 L .5 .42 C .5 .48 .3 .5 0 .5 C .3 .5 .5 .52 .5 .58 L .5 .9 C .5 .98 .5 1 1 1";
constexpr char floor[] = "M 0 0 L 0 1 L 1 1";
constexpr char ceiling[] = "M 1 0 L 0 0 L 0 1";
constexpr char angle[] = "M 1 0 L 0 .5 L 1 1";

const FormulaFence fences[] = {
    {'(', .3, parenthesis},
    {')', .3, parenthesis, true},
    {'[', .2, bracket},
    {']', .2, bracket, true},
    {'{', .36, brace},
    {'}', .36, brace, true},
    {'|', .1, "M .5 0 L .5 1"},
    {0x2223, .1, "M .5 0 L .5 1"},
    {0x2225, .2, "M 0 0 L 0 1 M 1 0 L 1 1"},
    {0x2016, .2, "M 0 0 L 0 1 M 1 0 L 1 1"},
    {0x230a, .2, floor},
    {0x230b, .2, floor, true},
    {0x2308, .2, ceiling},
    {0x2309, .2, ceiling, true},
    {0x27e8, .26, angle},
    {0x27e9, .26, angle, true},
    {0x2329, .26, angle},
    {0x232a, .26, angle, true},
};

constexpr char bar[] = "M 0 .5 L 1 .5";
constexpr char rightArrow[] = "M 0 .5 L 1 .5 M 1-.7s 0 L 1 .5 L 1-.7s 1";
constexpr char leftArrow[] = "M 0 .5 L 1 .5 M .7s 0 L 0 .5 L .7s 1";
constexpr char bothArrows[] = "M 0 .5 L 1 .5 M .7s 0 L 0 .5 L .7s 1 M 1-.7s 0 L 1 .5 L 1-.7s 1";
constexpr char lyingBraceAbove[] =
    "M 0 1 C 0 .5 .02 .5 .1 .5 L .42 .5 C .48 .5 .5 .3 .5 0 C .5 .3 .52 .5 .58 .5 L .9 .5 C .98 .5 1 .5 1 1";
constexpr char lyingBraceBelow[] =
    "M 0 0 C 0 .5 .02 .5 .1 .5 L .42 .5 C .48 .5 .5 .7 .5 1 C .5 .7 .52 .5 .58 .5 L .9 .5 C .98 .5 1 .5 1 0";

const FormulaSpan spans[] = {
    {'_', .06, bar},
    {0x00af, .06, bar},
    {0x203e, .06, bar},
    {0x2015, .06, bar},
    {0x0332, .06, bar},
    {0x0305, .06, bar},
    {0x2192, .22, rightArrow},
    {0x20d7, .22, rightArrow},
    {0x2190, .22, leftArrow},
    {0x2194, .22, bothArrows},
    {0x23de, .26, lyingBraceAbove},
    {0x23df, .26, lyingBraceBelow},
};

} // namespace

const FormulaFence *formulaFence(const QString &text)
{
    if (text.size() != 1) {
        return nullptr;
    }
    const auto *const found = std::find_if(std::begin(fences), std::end(fences), [&text](const FormulaFence &fence) {
        return text.at(0) == QChar(fence.sign);
    });
    return found == std::end(fences) ? nullptr : found;
}

const FormulaSpan *formulaSpan(const QString &text)
{
    if (text.size() != 1) {
        return nullptr;
    }
    const auto *const found = std::find_if(std::begin(spans), std::end(spans),
                                           [&text](const FormulaSpan &span) { return text.at(0) == QChar(span.sign); });
    return found == std::end(spans) ? nullptr : found;
}

bool isLargeSign(const QString &text)
{
    static const QString signs = QString::fromUtf8("∑∏∐⋃⋂⋁⋀⨁⨂∫∬∭∮");
    return text.size() == 1 && signs.contains(text);
}

double spaceAroundSign(const QString &text)
{
    static const QString relations = QString::fromUtf8("=≠<>≤≥≦≧≈≡≅∼≃∝∈∉∋⊂⊃⊆⊇→←↔⇒⇐⇔⟶⟵⟹⟸⟺:∥⊥≪≫↦⇌");
    static const QString sums = QString::fromUtf8("+-−±∓×÷·⋅∗*∘∪∩∧∨⊕⊗∖⊙");
    constexpr double wide = 0.28;
    constexpr double medium = 0.22;
    if (text.size() > 1) {
        return text.at(0).isLetter() || relations.contains(text.left(1)) ? wide : 0;
    }
    return text.isEmpty() ? 0 : relations.contains(text) ? wide : sums.contains(text) ? medium : 0;
}

} // namespace lessonhost
