// SPDX-License-Identifier: MIT
#include "shell/qt/list_rows.h"

#include <algorithm>

#include "shell/qt/codec.h"

QVariant ListRows::data(const QModelIndex& index, int role) const {
    const bool isText = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
    if (!isText || index.row() < 0 || index.row() >= box_.listCount()) return {};
    return codec::toQt(box_.items()[static_cast<std::size_t>(index.row())]);
}

void ListRows::follow() {
    const int before = known_, now = box_.listCount();
    if (now > before) {
        beginInsertRows({}, before, now - 1);
        known_ = now;
        endInsertRows();
    } else if (now < before) {
        beginRemoveRows({}, now, before - 1);
        known_ = now;
        endRemoveRows();
    }
    const int kept = std::min(before, now);
    if (kept > 0) emit dataChanged(index(0), index(kept - 1), {Qt::DisplayRole});
}
