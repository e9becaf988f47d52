// SPDX-License-Identifier: MIT
#ifndef TEXTRUNLOAN_H
#define TEXTRUNLOAN_H

#include "iwbtextinfo.h"

#include <QJsonObject>

#include <optional>

namespace lessonhost {

/*!
 * Lends a list of runs to the plug-in: puts the address of a copy and of its destroyer into a text item. The plug-in
 * destroys what it has written; what it left is destroyed with the loan.
 */
class TextRunLoan
{
public:
    TextRunLoan(QJsonObject &item, const IwbTextInfoList &runs);
    ~TextRunLoan();
    TextRunLoan(const TextRunLoan &) = delete;
    TextRunLoan &operator=(const TextRunLoan &) = delete;

    //! Lists that are lent out and alive at this moment.
    static int liveLists();

private:
    IwbTextInfoList *m_list;
};

//! Copies the list that the plug-in put into an item, destroys the plug-in's, and removes both keys from the item.
std::optional<IwbTextInfoList> takeTextRuns(QJsonObject &item);

} // namespace lessonhost

#endif // TEXTRUNLOAN_H
