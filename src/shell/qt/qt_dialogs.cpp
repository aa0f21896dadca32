// SPDX-License-Identifier: MIT
#include "shell/qt/qt_dialogs.h"

#include <QApplication>
#include <QMessageBox>

#include "shell/qt/codec.h"
#include "shell/qt/prompt_box.h"

namespace {

QString linesOf(const std::string& text) {
    return codec::toQt(text).replace("\r\n", "\n").replace('\r', '\n');
}

QString titleOf(const std::string& title) {
    const QString shown = codec::toQt(title).trimmed();
    return shown.isEmpty() ? QString("TARQEN") : shown;
}

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
        case Icon::Exclamation:
            return QMessageBox::Warning;
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

struct Choice {
    Answer answer;
    QMessageBox::StandardButton button;
};

/// The buttons of a box, the one that Esc presses last.
std::vector<Choice> choicesOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::OkCancel:
            return {{Answer::Ok, QMessageBox::Ok}, {Answer::Cancel, QMessageBox::Cancel}};
        case Buttons::YesNo:
            return {{Answer::Yes, QMessageBox::Yes}, {Answer::No, QMessageBox::No}};
        case Buttons::Ok:
            break;
    }
    return {{Answer::Ok, QMessageBox::Ok}};
}

}  // namespace

Answer QtDialogs::message(const Message& message) {
    const DialogOpen open(front_);
    QMessageBox box(front_ ? front_->frontWindow() : nullptr);
    box.setWindowTitle(titleOf(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(linesOf(message.text));
    box.setIcon(iconOf(message.icon));
    const std::vector<Choice> choices = choicesOf(message.buttons);
    box.setDefaultButton(box.addButton(choices.front().button));
    for (std::size_t at = 1; at < choices.size(); ++at) box.addButton(choices[at].button);
    for (const Choice& choice : choices) {
        if (choice.answer == message.defaultAnswer) box.setDefaultButton(choice.button);
    }
    box.setEscapeButton(choices.back().button);
    const int pressed = box.exec();
    for (const Choice& choice : choices) {
        if (choice.button == pressed) return choice.answer;
    }
    return choices.back().answer;
}

std::optional<std::string> QtDialogs::prompt(const Prompt& prompt) {
    const DialogOpen open(front_);
    PromptBox box(titleOf(prompt.title), linesOf(prompt.text), codec::toQt(prompt.defaultText),
                  front_ ? front_->frontWindow() : nullptr);
    if (box.exec() != QDialog::Accepted) return std::nullopt;
    return codec::fromQt(box.answer());
}

void QtDialogs::beep() { QApplication::beep(); }

void QtDialogs::pointer(Pointer pointer) {
    const bool shown = QApplication::overrideCursor() != nullptr;
    if (pointer == Pointer::Hourglass && !shown) QApplication::setOverrideCursor(Qt::WaitCursor);
    if (pointer == Pointer::Normal && shown) QApplication::restoreOverrideCursor();
}

void QtDialogs::fault(const std::string& text) {
    const DialogOpen open(front_);
    QApplication::restoreOverrideCursor();
    QMessageBox box(front_ ? front_->frontWindow() : nullptr);
    box.setWindowTitle("TARQEN must close");
    box.setTextFormat(Qt::PlainText);
    box.setIcon(QMessageBox::Critical);
    box.setText("TARQEN must close: " + linesOf(text) + ".");
    box.setInformativeText(
        "Every QSO that you have accepted is in the log file on the disk. Start TARQEN again and open that "
        "log to go "
        "on.");
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}
