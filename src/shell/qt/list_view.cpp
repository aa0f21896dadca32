// SPDX-License-Identifier: MIT
#include "shell/qt/list_view.h"

ListBoxView::ListBoxView(forms::ListBox& box, QListView& list, Entrance& entrance)
    : ControlView(box, list, entrance), box_(box), list_(list), rows_(box) {
    list_.setUniformItemSizes(true);
    list_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_.setSelectionMode(QAbstractItemView::SingleSelection);
    list_.setTextElideMode(Qt::ElideNone);
    list_.setModel(&rows_);
    list_.viewport()->setAccessibleName(list_.accessibleName());
}

int ListBoxView::rowAt(const QMouseEvent& event) const {
    const QModelIndex index = list_.indexAt(event.position().toPoint());
    return index.isValid() ? index.row() : -1;
}

bool ListBoxView::pressed(const QMouseEvent& event, QWidget& on) {
    if (&on != list_.viewport()) return false;
    click(rowAt(event));
    return true;
}

bool ListBoxView::doubleClicked(const QMouseEvent& event, QWidget& on) {
    if (&on != list_.viewport()) return false;
    doubleClick(rowAt(event));
    return true;
}

void ListBoxView::mirror(forms::Property property) {
    switch (property) {
        case forms::Property::Items:
            rows_.follow();
            showSelection();
            break;
        case forms::Property::Selection:
            showSelection();
            break;
        default:
            ControlView::mirror(property);
    }
}

void ListBoxView::showSelection() {
    const QModelIndex wanted = box_.listIndex() < 0 ? QModelIndex() : rows_.index(box_.listIndex());
    if (list_.currentIndex() == wanted && list_.selectionModel()->isSelected(wanted) == wanted.isValid())
        return;
    if (wanted.isValid()) {
        list_.selectionModel()->setCurrentIndex(wanted, QItemSelectionModel::ClearAndSelect);
        list_.scrollTo(wanted);
    } else {
        list_.selectionModel()->clear();
    }
}
