// SPDX-License-Identifier: MIT
#ifndef IWBITEMREADER_H
#define IWBITEMREADER_H

#include "svg/iwbpage.h"

#include <QJsonObject>

class IZQTransformation;

namespace lessonhost {

/*!
 * Makes the item of an element of an IWB page: what the plug-in's import gives, in the keys and forms that ZQTX and a
 * second export take. Shapes get the box that they fill and points around their own origin.
 */
class IwbItemReader
{
public:
    //! packageFolder: what the plug-in is told to be the opened package, without a separator at its end.
    IwbItemReader(IZQTransformation *plugin, const QString &packageFolder);

    //! The item, without ID, link and file. Empty for an element that the plug-in makes nothing of.
    QJsonObject read(const IwbElement &item) const;

    //! The link keys that a target stands for; page: the number of the page that it names, or 0. Empty for targets that
    //! stand for no link, and for files, which the caller has to find first.
    QJsonObject readLink(const QString &target, int page) const;

private:
    IZQTransformation *m_plugin;
    QString m_path;
};

} // namespace lessonhost

#endif // IWBITEMREADER_H
