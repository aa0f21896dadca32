// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>

#include "shell/forms/controls.h"

/// The rows of a list box for Qt, read where they are: no copy is held here, only how many of them Qt knows
/// of.
class ListRows : public QAbstractListModel {
    Q_OBJECT
public:
    explicit ListRows(const forms::ListBox& box) : box_(box) {}
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : known_; }
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Tells Qt what is new. Rows that it knows already are only painted again; the whole is never reset.
    void follow();

private:
    const forms::ListBox& box_;
    int known_ = 0;
};
