// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

#include "shell/qt/control_view.h"
#include "shell/qt/list_rows.h"

/// A list box in a list view. The control selects; the view shows, and scrolls to what is selected.
class ListBoxView : public ControlView {
    Q_OBJECT
public:
    ListBoxView(forms::ListBox& box, QListView& list, Entrance& entrance);
    bool pressed(const QMouseEvent& event, QWidget& on) override;
    bool doubleClicked(const QMouseEvent& event, QWidget& on) override;

protected:
    void mirror(forms::Property property) override;
    QPalette::ColorRole ground() const override { return QPalette::Base; }
    QPalette::ColorRole ink() const override { return QPalette::Text; }

private:
    void showSelection();
    int rowAt(const QMouseEvent& event) const;
    forms::ListBox& box_;
    QListView& list_;
    ListRows rows_;
};
