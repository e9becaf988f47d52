// SPDX-License-Identifier: MIT
#include "iwb/textrunloan.h"

#include <QSet>

namespace lessonhost {

namespace {

const QLatin1String listKey("IWB_TEXTINFO-VECTOR");
const QLatin1String destroyerKey("IWB_TEXTINFO-DELVECTOR");

QSet<void *> &lentLists()
{
    static QSet<void *> lists;
    return lists;
}

void destroyLentList(void *list)
{
    if (lentLists().remove(list)) {
        delete static_cast<IwbTextInfoList *>(list);
    }
}

quintptr addressIn(const QJsonObject &item, QLatin1String key)
{
    return quintptr(item.value(key).toString().toULongLong());
}

} // namespace

TextRunLoan::TextRunLoan(QJsonObject &item, const IwbTextInfoList &runs)
    : m_list(new IwbTextInfoList(runs))
{
    lentLists().insert(m_list);
    IwbTextInfoListDeleter destroyer = destroyLentList;
    item.insert(listKey, QString::number(quintptr(m_list)));
    item.insert(destroyerKey, QString::number(quintptr(destroyer)));
}

TextRunLoan::~TextRunLoan()
{
    destroyLentList(m_list);
}

int TextRunLoan::liveLists()
{
    return lentLists().size();
}

std::optional<IwbTextInfoList> takeTextRuns(QJsonObject &item)
{
    const quintptr listAddress = addressIn(item, listKey);
    const quintptr destroyerAddress = addressIn(item, destroyerKey);
    item.remove(listKey);
    item.remove(destroyerKey);
    if (!listAddress) {
        return std::nullopt;
    }
    // The plug-in hands over the list and what frees it as addresses. NOLINTBEGIN(performance-no-int-to-ptr)
    auto *list = reinterpret_cast<IwbTextInfoList *>(listAddress);
    const auto destroy = reinterpret_cast<IwbTextInfoListDeleter>(destroyerAddress);
    // NOLINTEND(performance-no-int-to-ptr)
    const IwbTextInfoList runs = *list;
    if (destroy) {
        destroy(list);
    }
    return runs;
}

} // namespace lessonhost
