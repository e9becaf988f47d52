// SPDX-License-Identifier: MIT
#ifndef CARRIEDCHECK_H
#define CARRIEDCHECK_H

#include "losses/slidelosses.h"

#include <QDomElement>

namespace lessonhost {

/*!
 * Finds what an element says and the model made of it doesn't, and tells it.
 *
 * The model's side is an element, too: what is written of it again. Each attribute, text, row of properties and child
 * of the one that was read is looked for in its place in the other. What is the same there in another dress is said in
 * equivalence.h; what only the written one has, such as defaults, is no loss.
 */
class CarriedCheck
{
public:
    //! Which texts are the same: those of ZQTX by their places, or where the written one says what the read one says in
    //! its own words, none but the same text.
    enum Texts { OfZqtx, InOwnWords };

    explicit CarriedCheck(const SlideLosses &losses, Texts texts = OfZqtx);

    //! owner: whose values these are. The names of the two elements are not compared.
    void compare(const LossOwner &owner, const QDomElement &read, const QDomElement &written) const;

    //! The same in two steps, for an outermost element whose attributes aren't written as such: one of them, and all
    //! that stands in the two elements.
    void compareAttribute(const LossOwner &owner, const QString &name, const QString &given,
                          const QString &found) const;
    void compareContent(const LossOwner &owner, const QDomElement &read, const QDomElement &written) const;

private:
    SlideLosses m_losses;
    Texts m_texts;
};

} // namespace lessonhost

#endif // CARRIEDCHECK_H
