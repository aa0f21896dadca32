// SPDX-License-Identifier: MIT
#include "shell/headless/inspection.h"

#include <charconv>
#include <map>
#include <system_error>

#include "base/number.h"
#include "base/text.h"
#include "shell/headless/run_ends.h"
#include "shell/headless/targets.h"
#include "shell/show.h"

namespace {

using forms::Control;
using forms::Form;
using Value = std::optional<std::string>;

// The desktop's own colours, by the numbers that a classic desktop has for them.
constexpr int kWindowColour = 16777215;
constexpr int kFaceColour = -2147483633;
constexpr int kTextColour = -2147483640;

std::string yesNo(bool flag) { return flag ? "yes" : "no"; }

std::string backColour(const Control& control) {
    if (control.backColour() != forms::kDefaultColour) return number::toText(control.backColour());
    const bool field =
        dynamic_cast<const forms::TextLine*>(&control) || dynamic_cast<const forms::ListBox*>(&control);
    return number::toText(field ? kWindowColour : kFaceColour);
}

std::string foreColour(const Control& control) {
    const bool own = control.foreColour() != forms::kDefaultColour;
    return number::toText(own ? control.foreColour() : kTextColour);
}

Value checked(const Control& control) {
    if (const auto* box = dynamic_cast<const forms::CheckBox*>(&control)) return yesNo(box->checked());
    if (const auto* item = dynamic_cast<const forms::MenuItem*>(&control)) return yesNo(item->checked());
    return std::nullopt;
}

const std::vector<std::string>* entries(const Control& control) {
    if (const auto* list = dynamic_cast<const forms::ListBox*>(&control)) return &list->items();
    if (const auto* combo = dynamic_cast<const forms::ComboBox*>(&control)) return &combo->items();
    return nullptr;
}

Value listCount(const Control& control) {
    const auto* const all = entries(control);
    return all ? Value(number::toText(static_cast<std::int64_t>(all->size()))) : std::nullopt;
}

Value listIndex(const Control& control) {
    if (const auto* list = dynamic_cast<const forms::ListBox*>(&control))
        return number::toText(list->listIndex());
    if (const auto* combo = dynamic_cast<const forms::ComboBox*>(&control))
        return number::toText(combo->listIndex());
    return std::nullopt;
}

Value interval(const Control& control) {
    const auto* const timer = dynamic_cast<const forms::Timer*>(&control);
    return timer ? Value(number::toText(timer->interval())) : std::nullopt;
}

/// The value of a property, or nothing where the control has no such property.
Value propertyOf(const Control& control, const std::string& property) {
    if (property == "Visible") return yesNo(control.visible());
    if (property == "Enabled") return yesNo(control.enabled());
    if (property == "Checked") return checked(control);
    if (property == "BackColor") return backColour(control);
    if (property == "ForeColor") return foreColour(control);
    if (property == "FontName") return quotedText(control.font().name);
    if (property == "FontSize") return number::toText(control.font().size);
    if (property == "FontBold") return yesNo(control.font().bold);
    if (property == "ToolTip") return quotedText(control.toolTip());
    if (property == "ListIndex") return listIndex(control);
    if (property == "ListCount") return listCount(control);
    if (property == "Interval") return interval(control);
    if (property == "Left") return number::toText(control.left());
    if (property == "Width") return number::toText(control.width());
    return std::nullopt;
}

Value propertyOf(const Form& form, const std::string& property) {
    const bool own = form.backColour() != forms::kDefaultColour;
    if (property == "Visible") return yesNo(form.visible());
    if (property == "Caption") return quotedText(form.caption());
    if (property == "FontSize") return number::toText(form.fontSize());
    if (property == "BackColor") return number::toText(own ? form.backColour() : kFaceColour);
    return std::nullopt;
}

std::vector<std::string> list(const std::string& what, const std::vector<std::string>& items) {
    std::vector<std::string> lines;
    for (const std::string& item : items) {
        lines.push_back(what + "(" + number::toText(static_cast<std::int64_t>(lines.size())) + ") " +
                        quotedText(item));
    }
    return lines;
}

std::vector<std::string> visibleForms(const forms::Screen& screen) {
    std::vector<std::string> lines;
    for (const Form* const form : screen.order()) lines.push_back("form " + form->name());
    return lines;
}

std::vector<std::string> focus(const forms::Screen& screen) {
    const Form* const form = screen.active();
    if (form == nullptr) return {"focus"};
    const Control* const control = form->focused();
    return {"focus " + (control ? targets::nameOf(*control) : form->name())};
}

/// What stands behind the first dot, of a control or a form; nothing where neither has it.
std::optional<std::vector<std::string>> onScreen(const forms::Screen& screen, const std::string& what) {
    if (const auto* control = targets::controlNamed(screen, what))
        return {{what + " " + quotedText(control->content())}};
    const std::size_t dot = what.rfind('.');
    const std::string owner = what.substr(0, dot), property = what.substr(dot + 1);
    Value value;
    if (const auto* control = targets::controlNamed(screen, owner)) {
        const auto* const all = entries(*control);
        if (property == "List" && all) return list(what, *all);
        value = propertyOf(*control, property);
    } else if (const auto* form = targets::formNamed(screen, owner)) {
        value = propertyOf(*form, property);
    }
    if (!value) return std::nullopt;
    return {{what + " " + *value}};
}

std::optional<int> indexOf(std::string_view figures) {
    int value = 0;
    const auto result = std::from_chars(figures.data(), figures.data() + figures.size(), value);
    const bool whole = result.ec == std::errc() && result.ptr == figures.data() + figures.size();
    return whole && !figures.empty() ? std::optional(value) : std::nullopt;
}

/// A field of the session, `NAME`, `NAME(1)` or `NAME(1,2)`.
Value field(const FieldLookup& fields, const std::string& what) {
    const std::size_t open = what.find('(');
    if (open == std::string::npos) return fields(what, {});
    if (what.back() != ')') return std::nullopt;
    std::vector<int> indices;
    const std::string inner = what.substr(open + 1, what.size() - open - 2) + ",";
    for (std::size_t at = 0; at < inner.size();) {
        const std::size_t comma = inner.find(',', at);
        const auto index = indexOf(std::string_view(inner).substr(at, comma - at));
        if (!index) return std::nullopt;
        indices.push_back(*index);
        at = comma + 1;
    }
    return fields(what.substr(0, open), indices);
}

}  // namespace

std::vector<std::string> inspect(const forms::Screen& screen, const FieldLookup& fields,
                                 const std::string& what) {
    if (what == "focus") return focus(screen);
    if (what == "forms") return visibleForms(screen);
    if (text::contains(what, ".")) {
        if (auto lines = onScreen(screen, what)) return *lines;
    } else if (const auto value = field(fields, what)) {
        return {what + " " + *value};
    }
    throw badScript(what + " is nothing that can be shown");
}
