#ifndef COMPARISON_H
#define COMPARISON_H

#include "lesson/lesson.h"

namespace lessonhost {

class LossReport;

/*!
 * Compares what was given to a writer with what a reader finds in the result, and reports what did not survive. Values
 * that are new in the result, such as defaults, are no loss.
 */
class Comparison
{
public:
    //! slide is counted from 1; 0 for the presentation.
    Comparison(LossReport *losses, int slide);

    void compareProperties(const QString &type, const QJsonObject &given, const QJsonObject &found) const;
    void compareItems(const QJsonArray &given, const QJsonArray &found) const;

private:
    void compareItem(const QJsonObject &given, const QJsonObject &found) const;

    LossReport *m_losses;
    int m_slide;
};

} // namespace lessonhost

#endif // COMPARISON_H
