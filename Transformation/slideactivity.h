// SPDX-License-Identifier: MIT
#ifndef SLIDEACTIVITY_H
#define SLIDEACTIVITY_H

#include <QDomElement>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/*!
 * The classroom activity of a slide: <activity> with the look of the game in <templet> and its content in <matchs> and
 * <unmatchs>. Pictures are short references in the file and absolute paths in JSON; the directories are asked for when
 * the object is made.
 */
class SlideActivity
{
public:
    SlideActivity();

    //! The JSON of an <activity>. "matchs" and "unmatchs" are always there.
    QJsonObject read(const QDomElement &activity) const;

    //! A new <activity>.
    QDomElement write(const QJsonObject &activity) const;

private:
    QJsonObject readTemplet(const QDomElement &templet) const;
    QJsonObject readFigure(const QDomElement &figure, const char *name, bool isShared) const;
    QString readBackground(const QString &pic, bool isShared) const;
    QString readPicture(const QString &pic, bool isShared) const;
    QString readFigurePicture(QString pic, bool isShared) const;

    QDomElement writeTemplet(const QJsonObject &activity) const;
    QDomElement writeFigure(const QJsonObject &figure, const char *name) const;
    QString reference(const QString &path) const;

    QString m_canvasDirectory; //!< pictures that come with the application, "/" or nothing at the end
    QString m_dataDirectory; //!< the application's data, without a separator at the end
};

#endif // SLIDEACTIVITY_H
