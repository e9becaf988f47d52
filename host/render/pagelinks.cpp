// SPDX-License-Identifier: MIT
#include "render/pagelinks.h"

#include "iwb/iwbmedia.h"
#include "lesson/isoneof.h"
#include "render/pagefiles.h"

#include <QUrl>

namespace lessonhost {

namespace {

const char *const pageWords[] = {"next", "previous", "first", "last"};

QJsonObject webLink(const QString &value)
{
    const bool hasScheme = value.contains(QLatin1String("http://"), Qt::CaseInsensitive)
        || value.contains(QLatin1String("https://"), Qt::CaseInsensitive);
    const QUrl url(hasScheme ? value.trimmed() : QLatin1String("http://") + value.trimmed(), QUrl::StrictMode);
    const QString scheme = url.scheme();
    const bool isWeb = scheme == QLatin1String("http") || scheme == QLatin1String("https");
    if (!url.isValid() || !isWeb || url.host().isEmpty()) {
        return {};
    }
    return {{QStringLiteral("web"), QString::fromLatin1(url.toEncoded())}};
}

} // namespace

QJsonObject pageLink(const QString &kind, const QString &value, IwbMedia &media, PageFiles &files)
{
    if (kind == QLatin1String("ACTION_GOTOSLIDE")) {
        const QString word = value.trimmed().toLower();
        if (isOneOf(pageWords, word)) {
            return {{QStringLiteral("page"), word}};
        }
        const int page = word.toInt();
        return page > 0 ? QJsonObject{{QStringLiteral("page"), page}} : QJsonObject();
    }
    if (kind == QLatin1String("ACTION_OPENWEB")) {
        return webLink(value);
    }
    if (kind == QLatin1String("ACTION_TOOLTIP") && !value.trimmed().isEmpty()) {
        return {{QStringLiteral("tip"), value}};
    }
    const QString source = kind == QLatin1String("ACTION_OPENFILE") ? media.find(value) : QString();
    return source.isEmpty() ? QJsonObject() : QJsonObject{{QStringLiteral("file"), files.add(source, value)}};
}

} // namespace lessonhost
