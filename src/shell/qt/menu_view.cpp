// SPDX-License-Identifier: MIT
#include "shell/qt/menu_view.h"

#include <QCursor>
#include <algorithm>

#include "shell/qt/codec.h"

namespace {

/// The letter behind the single "&" of a menu's text, in lower case; null where there is none.
QChar markedLetter(const QString& text) {
    for (qsizetype at = 0; at + 1 < text.size(); ++at) {
        if (text.at(at) != '&') continue;
        if (text.at(at + 1) != '&') return text.at(at + 1).toLower();
        ++at;
    }
    return {};
}

}  // namespace

MenuView::MenuView(const std::vector<forms::MenuItem*>& items, QMenuBar& bar, Entrance& entrance)
    : bar_(bar), entrance_(entrance), items_(items) {
    // The items come in the order of the bar, each menu before what it holds.
    for (forms::MenuItem* const item : items_) add(*item);
    for (forms::MenuItem* const item : items_) {
        item->watcher = [this, item](forms::Property) { mirror(*item); };
        mirror(*item);
    }
}

MenuView::~MenuView() {
    for (forms::MenuItem* const item : items_) item->watcher = nullptr;
}

void MenuView::add(forms::MenuItem& item) {
    QWidget* const home = item.parent() ? static_cast<QWidget*>(entries_.at(item.parent()).menu) : &bar_;
    Entry entry;
    if (item.children().empty()) {
        entry.action = new QAction(this);
        entry.action->setSeparator(item.caption() == "-");
        connect(entry.action, &QAction::triggered, this, [this, &item] {
            // Qt has turned the mark over by itself; the item decides anew.
            mirror(item);
            entrance_.enter([&](forms::Screen& screen) { screen.click(item); });
        });
    } else {
        menus_.push_back(std::make_unique<QMenu>());
        entry.menu = menus_.back().get();
        entry.action = entry.menu->menuAction();
    }
    entry.action->setObjectName(codec::toQt(item.name()));
    entry.action->setMenuRole(QAction::NoRole);
    home->addAction(entry.action);
    entries_.emplace(&item, entry);
}

QMenu* MenuView::menuOf(const forms::MenuItem& item) const { return entries_.at(&item).menu; }

QAction* MenuView::actionOf(const forms::MenuItem& item) const { return entries_.at(&item).action; }

QString MenuView::captionOf(const forms::MenuItem& item) const {
    QString caption = codec::toQt(item.caption()).replace('&', "&&");
    QString taken;
    for (const forms::MenuItem* const other : items_) {
        if (other == &item || other->parent() != item.parent()) continue;
        taken += markedLetter(entries_.at(other).action->text());
    }
    const auto free = std::find_if(caption.begin(), caption.end(), [&](QChar letter) {
        return letter.isLetterOrNumber() && !taken.contains(letter.toLower());
    });
    if (free != caption.end()) caption.insert(free - caption.begin(), '&');
    return caption;
}

void MenuView::mirror(forms::MenuItem& item) {
    QAction& action = *entries_.at(&item).action;
    if (!action.isSeparator()) action.setText(captionOf(item));
    action.setEnabled(item.enabled());
    action.setVisible(item.visible());
    if (item.children().empty() && !action.isSeparator()) {
        // An item shows the box of a mark only while it has one.
        action.setCheckable(item.checked());
        action.setChecked(item.checked());
    }
}

void MenuView::open(const forms::MenuItem& item) const {
    if (QMenu* const menu = menuOf(item)) menu->exec(QCursor::pos());
}
