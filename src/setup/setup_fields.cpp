// SPDX-License-Identifier: MIT
#include "setup/setup_fields.h"

#include <array>

#include "base/text.h"
#include "core/say.h"
#include "setup/utc_clock.h"

namespace {

constexpr int kEnter = 13, kQuote = 34, kSlash = 47;
constexpr int kNarrowLeft = 6480, kNarrowWidth = 972, kWideLeft = 5800, kWideWidth = 2010;

using Place = int;

void storeTyped(Station& s, forms::ComboBox& box, Place element) {
    const auto store = [&s, &box, element] { s.PersonalData(element) = box.text(); };
    box.onChange = store;
    box.onClick = store;
    box.onLostFocus = store;
}

void storeUpper(Station& s, forms::ComboBox& box, Place element) {
    const auto store = [&s, &box, element] { s.PersonalData(element) = text::upper(box.text()); };
    box.onChange = store;
    box.onClick = store;
    box.onLostFocus = store;
}

void refuseQuote(Station& s, forms::KeyPress& key) {
    if (key.code != kQuote) return;
    beep(s);
    key.swallowed = true;
}

void enterGoesTo(forms::KeyPress& key, forms::Control& next) {
    if (key.code != kEnter) return;
    key.swallowed = true;
    next.form().focus(next);
}

void refuseSlash(Station& s, forms::KeyPress& key) {
    if (key.code != kSlash) return;
    beep(s);
    key.swallowed = true;
    tell(s, std::string("Use a dash - in place of the slash. Then post contest,") + kCrLf +
                "edit your submission log using the `Find and Replace`" + kCrLf +
                "function of NotePad (except the Operator: field).");
}

void wireCall(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    storeUpper(s, form.Combo4, personal::Call);
    form.Combo4.onKeyPress = [&s, &form](forms::KeyPress& key) {
        refuseQuote(s, key);
        refuseSlash(s, key);
        if (key.code != kEnter) return;
        form.Combo4.setText(text::upper(s.PersonalData(personal::Call)));
        enterGoesTo(key, form.Combo3);
    };
}

void wireNameAndAddress(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    storeTyped(s, form.Combo3, personal::Name);
    form.Combo3.onKeyPress = [&s, &form](forms::KeyPress& key) {
        refuseQuote(s, key);
        enterGoesTo(key, form.Combo5);
    };
    storeTyped(s, form.Combo5, personal::Address);
    form.Combo5.onKeyPress = [&form](forms::KeyPress& key) { enterGoesTo(key, form.Combo6); };
    storeTyped(s, form.Combo6, personal::City);
}

void wireGrid(Station& s) {
    forms::ComboBox& box = s.forms.frmSetup.Combo7;
    storeUpper(s, box, personal::Grid);
    box.onLostFocus = nullptr;
    box.onChange = [&s, &box] {
        if (box.text().size() < 7) {
            s.PersonalData(personal::Grid) = text::upper(box.text());
            return;
        }
        beep(s);
        // The shorter text comes back here, until it fits.
        box.setText(text::left(box.text(), static_cast<int>(box.text().size()) - 1));
    };
    box.onGotFocus = [&s, &box] {
        box.setText(text::upper(box.text()));
        if (box.text().size() < 6) {
            tell(s, std::string("Enter your 6-digit for more accurate") + kCrLf +
                        "heading and distance calculations.");
        }
    };
}

void wireClub(Station& s) {
    forms::ComboBox& box = s.forms.frmSetup.Combo8;
    storeTyped(s, box, personal::Club);
    box.onClick = [&s, &box] {
        s.PersonalData(personal::Club) = text::lower(box.text()) == "none" ? "" : box.text();
    };
    box.onLostFocus = [&s, &box] {
        box.setText(clubName(box.text()));
        s.PersonalData(personal::Club) = box.text();
    };
}

void wireSection(Station& s) {
    forms::ComboBox& box = s.forms.frmSetup.Combo9;
    box.onChange = [&s, &box] {
        if (box.text().size() >= 4) {
            box.setText("");
            tell(s, "ARRL section abbreviation. Max 3 characters!");
        }
        s.PersonalData(personal::Section) = text::upper(box.text());
    };
    box.onClick = [&s, &box] { s.PersonalData(personal::Section) = box.text(); };
}

void wireCategories(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    const auto operatorCategory = [&s, &form] {
        const bool multi = text::upper(text::left(form.Combo10.text(), 4)) == "MULT";
        form.Combo11.setVisible(multi);
        form.Combo12.setVisible(multi);
        form.Label14.setVisible(multi);
        form.Label15.setVisible(multi);
        s.PersonalData(personal::OperatorCategory) = text::upper(form.Combo10.text());
    };
    form.Combo10.onChange = operatorCategory;
    form.Combo10.onClick = operatorCategory;
    form.Combo10.onLostFocus = [&s, &form] {
        if (text::trim(form.Combo10.text()).empty()) form.Combo10.setText("SINGLE-OP");
        s.PersonalData(personal::OperatorCategory) = text::upper(form.Combo10.text());
    };
    storeTyped(s, form.Combo11, personal::Operators);
    storeTyped(s, form.Combo12, personal::MoreOperators);
    storeUpper(s, form.Power, personal::Power);
    form.Power.onLostFocus = [&s, &form] {
        // One blank counts as an empty field here; more of them stand as typed.
        if (form.Power.text().empty() || form.Power.text() == " ") form.Power.setText("LOW");
        s.PersonalData(personal::Power) = text::upper(form.Power.text());
    };
    storeTyped(s, form.Combo2, personal::StationCategory);
    form.Combo2.onLostFocus = [&s, &form] {
        if (text::trim(form.Combo2.text()).empty()) form.Combo2.setText("FIXED");
        s.PersonalData(personal::StationCategory) = form.Combo2.text();
    };
    storeTyped(s, form.Combo13, personal::Transmitter);
    form.Combo13.onLostFocus = [&s, &form] {
        if (text::trim(form.Combo13.text()).empty()) form.Combo13.setText("ONE");
        s.PersonalData(personal::Transmitter) = form.Combo13.text();
    };
}

void storeSetting(Station& s, forms::ComboBox& box, int setting) {
    box.onClick = [&s, &box, setting] { s.ControlValues(setting) = box.text(); };
}

void wireBackupPath(Station& s) {
    forms::ComboBox& box = s.forms.frmSetup.Combo1;
    storeSetting(s, box, setting::BackupPath);
    // A long path needs room.
    box.onKeyPress = [&box](forms::KeyPress&) {
        const bool narrow = box.text().size() < 8;
        box.setLeft(narrow ? kNarrowLeft : kWideLeft);
        box.setWidth(narrow ? kNarrowWidth : kWideWidth);
    };
    box.onLostFocus = [&s, &box] {
        if (text::trim(box.text()).empty()) box.setText("OFF");
        s.ControlValues(setting::BackupPath) = box.text();
    };
}

void wireHeadings(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    form.Combo17.onClick = [&s, &form] {
        const bool on = form.Combo17.text() != "OFF";
        s.ControlValues(setting::SixDigit) = on ? form.Combo17.text() : "OFF";
        form.Combo20.setEnabled(on);
        s.ControlValues(setting::RoverPrompts) = on ? "Yes" : "No";
    };
}

}  // namespace

std::string clubName(std::string_view text) {
    constexpr std::array<std::string_view, 6> kSpellings{
        "MT. AIRY VHF RADIO CLUB, INC.", "MT. AIRY VHF RADIO CLUB", "PRAITUNA VHF RADIO CLUB",
        "MT.AIRY VHF RADIO CLUB",        "MT.AIRY VHF RC",          "PRAITUNA VHF RADIO CLUB, INC."};
    for (const std::string_view spelling : kSpellings) {
        if (text::upper(text) == spelling) return "Praituna VHF Radio Club";
    }
    return std::string(text);
}

void wireSetupFields(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    wireCall(s);
    wireNameAndAddress(s);
    wireGrid(s);
    wireClub(s);
    wireSection(s);
    wireCategories(s);
    wireBackupPath(s);
    wireHeadings(s);
    storeSetting(s, form.Combo14, setting::BandsToWork);
    storeSetting(s, form.Combo15, setting::Offsets);
    storeSetting(s, form.Combo19, setting::ActivityDisplay);
    storeSetting(s, form.Combo20, setting::DistanceUnit);
}

void frmSetup_Timer1(Station& s) {
    s.forms.frmSetup.UTC_2.setCaption("Local " + timeText(s.platform.clock.local()));
}

void frmSetup_Timer2(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    form.Label20.setEnabled(false);
    form.Timer2.stop();
    form.Timer3.start();
}

void frmSetup_Timer3(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    form.Label20.setEnabled(true);
    form.Timer3.stop();
    form.Timer2.start();
}

void frmSetup_Timer4(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    form.Label20.setEnabled(true);
    form.Timer2.stop();
    form.Timer3.stop();
}
