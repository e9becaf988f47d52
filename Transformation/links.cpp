// SPDX-License-Identifier: MIT
#include "links.h"

#include "packagefiles.h"

#include <algorithm>
#include <iterator>

namespace {

struct LinkKind
{
    QLatin1String name;
    QLatin1String scheme; //!< stands before the value in a target
    bool isInTags;
};

const QLatin1String openFile("ACTION_OPENFILE");
const QLatin1String openWeb("ACTION_OPENWEB");

// In the order in which a target is searched for their schemes. A file has none: its target is a name in the package.
const LinkKind linkKinds[] = {
    {openWeb, QLatin1String("http://"), true},
    {QLatin1String("ACTION_TOOLTIP"), QLatin1String("txt://"), false},
    {QLatin1String("ACTION_GOTOSLIDE"), QLatin1String("#page"), true},
    {QLatin1String("ACTION_OPENTOOL"), QLatin1String("tool://"), false},
    {openFile, {}, true},
};

const LinkKind *linkKindOf(const QString &name)
{
    const auto *found = std::find_if(std::begin(linkKinds), std::end(linkKinds),
                                     [&name](const LinkKind &kind) { return name == kind.name; });
    return found == std::end(linkKinds) ? nullptr : found;
}

// A web address says its scheme itself, and may do so anywhere.
bool isWebAddress(const QString &text)
{
    return text.contains(QLatin1String("http://")) || text.contains(QLatin1String("https://"));
}

// Copies a file into tmpFilePath/additional/ and gives the reference to it; empty for a file that doesn't exist.
QString copyLinkedFile(const QString &file, const QString &tmpFilePath)
{
    if (!isFile(file)) {
        return {};
    }
    const QString name = file.mid(file.lastIndexOf(QLatin1Char('/')) + 1);
    // Without a directory there is no package to copy into.
    if (!tmpFilePath.isEmpty()) {
        const QString directory = tmpFilePath + QLatin1String("/additional/");
        makeDirectory(directory);
        copyFile(file, directory + name);
    }
    return QLatin1String("additional/") + name;
}

} // namespace

QString linkTarget(const QString &kind, const QString &value, const QString &tmpFilePath)
{
    const LinkKind *known = linkKindOf(kind);
    if (!known) {
        return {};
    }
    if (known->name == openFile) {
        return copyLinkedFile(value, tmpFilePath);
    }
    return known->name == openWeb && isWebAddress(value) ? value : known->scheme + value;
}

void readLinkTarget(const QString &target, QJsonObject &json)
{
    const auto isMeant = [&target](const LinkKind &kind) {
        if (kind.name == openWeb) {
            return isWebAddress(target);
        }
        return kind.name == openFile ? target.endsWith(QLatin1String(".txt")) : target.contains(kind.scheme);
    };
    const auto *kind = std::find_if(std::begin(linkKinds), std::end(linkKinds), isMeant);
    if (kind == std::end(linkKinds)) {
        return;
    }
    // The scheme is looked for anywhere, but its length is always cut from the front.
    QString value = kind->name == openWeb ? target : target.mid(kind->scheme.size());
    if (kind->name == openFile) {
        value.prepend(json.value(QLatin1String("path")).toString());
    }
    json.insert(QLatin1String("InteractiveType"), kind->name);
    json.insert(QLatin1String("InteractiveValue"), value);
}

bool mayStandInTags(const QString &kind)
{
    const LinkKind *known = linkKindOf(kind);
    return known && known->isInTags;
}
