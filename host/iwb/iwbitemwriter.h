#ifndef IWBITEMWRITER_H
#define IWBITEMWRITER_H

#include "files/lessonfiles.h"
#include "lesson/shapeforms.h"

#include <QDomDocument>
#include <QJsonArray>
#include <QVector>

class IZQTransformation;

namespace lessonhost {

class LossReport;

/*!
 * Writes the items of slides as svg: prepares each for the plug-in's export, so that what comes out stands in the right
 * place and keeps it on further trips, and completes the element for readers that know svg but not the plug-in.
 */
class IwbItemWriter
{
public:
    struct Setting
    {
        IZQTransformation *plugin = nullptr;
        LossReport *losses = nullptr;
        LessonFiles *files = nullptr;
        QString exportFolder; //!< where the plug-in puts media, without a separator at its end
        QString target; //!< what the user called the package, for messages
        bool keepsInk = true; //!< writes strokes as polylines
    };

    explicit IwbItemWriter(const Setting &setting);

    //! Appends the elements of a slide's items to its page. slide is counted from 1.
    void write(QDomDocument &document, QDomElement &page, const QJsonArray &items, int slide);

    //! Strokes that became polylines so far.
    int strokesAsPolylines() const { return m_strokes; }
    int strokesLeftOut() const { return m_strokesLeftOut; }

private:
    void writeItem(const QJsonObject &item);
    void writeShape(const QJsonObject &item, const ShapeForm &form);
    void writeStroke(const QJsonObject &item);
    void writeText(const QJsonObject &item);
    void writeMedia(const QJsonObject &item);
    void writeOther(const QJsonObject &item);

    QJsonObject commonKeys(const QJsonObject &item);
    void addLink(const QJsonObject &item, QJsonObject &prepared);
    QString linkedFile(const QJsonObject &item, const QString &reference);
    QString placed(const QString &source, const QString &reference, const QString &folder);
    QDomElement convert(const QJsonObject &item, const QJsonObject &prepared);
    void append(const QJsonObject &item, QDomElement element);
    void report(const QJsonObject &item, int kind, const QString &key, const QString &detail);
    template <std::size_t size>
    void reportUncarried(const QJsonObject &item, const char *const (&carried)[size], const ShapeForm *form = nullptr);

    Setting m_setting;
    QDomDocument m_document;
    QDomElement m_page;
    int m_slide = 0;
    int m_generatedIds = 0;
    int m_strokes = 0;
    int m_strokesLeftOut = 0;
};

} // namespace lessonhost

#endif // IWBITEMWRITER_H
