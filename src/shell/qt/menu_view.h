// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <map>
#include <memory>
#include <vector>

#include "shell/forms/controls.h"
#include "shell/qt/entrance.h"

/// The menu items of a form in a menu bar. Each caption gets an underlined letter for the Alt key, its first
/// one that no neighbour has taken.
class MenuView : public QObject {
    Q_OBJECT
public:
    MenuView(const std::vector<forms::MenuItem*>& items, QMenuBar& bar, Entrance& entrance);
    ~MenuView() override;
    /// The menu under an item, or null where it has none.
    QMenu* menuOf(const forms::MenuItem& item) const;
    QAction* actionOf(const forms::MenuItem& item) const;
    /// Opens the menu under an item at the pointer until the operator has picked from it, or gone elsewhere.
    void open(const forms::MenuItem& item) const;

private:
    struct Entry {
        QAction* action = nullptr;
        QMenu* menu = nullptr;
    };
    void add(forms::MenuItem& item);
    void mirror(forms::MenuItem& item);
    QString captionOf(const forms::MenuItem& item) const;
    QMenuBar& bar_;
    Entrance& entrance_;
    std::vector<forms::MenuItem*> items_;
    std::map<const forms::MenuItem*, Entry> entries_;
    std::vector<std::unique_ptr<QMenu>> menus_;
};
