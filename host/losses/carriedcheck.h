#ifndef CARRIEDCHECK_H
#define CARRIEDCHECK_H

#include <QDomElement>
#include <QString>

namespace lessonhost {

class LossReport;

/*!
 * Finds what an element says and the model made of it doesn't, and adds it to a report.
 *
 * The model's side is an element, too: what is written of it again. Each attribute, text, row of properties and child
 * of the one that was read is looked for in its place in the other. What is the same there in another dress is said in
 * equivalence.h; what only the written one has, such as defaults, is no loss.
 */
class CarriedCheck
{
public:
    explicit CarriedCheck(LossReport *losses);

    //! The slide of what is compared next, counted from 1; 0 for the presentation.
    void setSlide(int slide) { m_slide = slide; }

    //! type and id say whose values these are. The names of the two elements are not compared.
    void compare(const QString &type, const QString &id, const QDomElement &read, const QDomElement &written);

private:
    LossReport *m_losses;
    int m_slide = 0;
};

} // namespace lessonhost

#endif // CARRIEDCHECK_H
