// SPDX-License-Identifier: MIT
#include "shell/headless/headless_dialogs.h"

#include <algorithm>
#include <vector>

#include "shell/headless/run_ends.h"
#include "shell/show.h"

namespace {

constexpr int kUnaskedLimit = 100;

/// While it lives, the screen knows of an open box.
class OpenBox {
public:
    explicit OpenBox(forms::Screen* screen) : screen_(screen) {
        if (screen_) screen_->dialogOpens();
    }
    ~OpenBox() {
        if (screen_) screen_->dialogCloses();
    }
    OpenBox(const OpenBox&) = delete;
    OpenBox& operator=(const OpenBox&) = delete;

private:
    forms::Screen* screen_;
};

std::string nameOf(Icon icon) {
    switch (icon) {
        case Icon::None:
            return "none";
        case Icon::Exclamation:
            return "exclamation";
        case Icon::Information:
            return "information";
        case Icon::Question:
            break;
    }
    return "question";
}

std::string nameOf(Answer answer) {
    switch (answer) {
        case Answer::Ok:
            return "OK";
        case Answer::Cancel:
            return "Cancel";
        case Answer::Yes:
            return "Yes";
        case Answer::No:
            break;
    }
    return "No";
}

std::vector<Answer> answersOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::Ok:
            return {Answer::Ok};
        case Buttons::OkCancel:
            return {Answer::Ok, Answer::Cancel};
        case Buttons::YesNo:
            break;
    }
    return {Answer::Yes, Answer::No};
}

std::string nameOf(Buttons buttons) {
    std::string name;
    for (const Answer answer : answersOf(buttons)) name += nameOf(answer);
    return name;
}

Answer defaultOf(const Message& message) {
    const std::vector<Answer> answers = answersOf(message.buttons);
    const bool has = std::find(answers.begin(), answers.end(), message.defaultAnswer) != answers.end();
    return has ? message.defaultAnswer : answers.front();
}

Answer answerNamed(const std::string& name, const Message& message) {
    for (const Answer answer : answersOf(message.buttons)) {
        if (nameOf(answer) == name) return answer;
    }
    throw lostRun("the reply " + quotedText(name) + " is no button of the box " + quotedText(message.text));
}

}  // namespace

std::optional<std::optional<std::string>> HeadlessDialogs::takeReply() {
    if (replies_.empty()) return std::nullopt;
    std::optional<std::string> reply = std::move(replies_.front());
    replies_.pop_front();
    return reply;
}

void HeadlessDialogs::tellBox(const std::string& line, bool asked) {
    transcript_.line(asked ? line : line + " (unasked)");
    unaskedInARow_ = asked ? 0 : unaskedInARow_ + 1;
    if (unaskedInARow_ == kUnaskedLimit) throw lostRun("a hundred boxes in a row found no reply");
}

Answer HeadlessDialogs::message(const Message& message) {
    const OpenBox open(screen_);
    const auto reply = takeReply();
    const Answer answer = reply ? answerNamed(reply->value_or("Cancel"), message) : defaultOf(message);
    tellBox("message " + quotedText(message.text) + " title " + quotedText(message.title) + " icon " +
                nameOf(message.icon) + " buttons " + nameOf(message.buttons) + " default " +
                nameOf(defaultOf(message)) + " -> " + nameOf(answer),
            reply.has_value());
    return answer;
}

std::optional<std::string> HeadlessDialogs::prompt(const Prompt& prompt) {
    const OpenBox open(screen_);
    const auto reply = takeReply();
    const std::optional<std::string> answer = reply.value_or(std::nullopt);
    tellBox("prompt " + quotedText(prompt.text) + " title " + quotedText(prompt.title) + " default " +
                quotedText(prompt.defaultText) + " -> " + (answer ? quotedText(*answer) : "Cancel"),
            reply.has_value());
    return answer;
}

void HeadlessDialogs::beep() { transcript_.line("beep"); }

void HeadlessDialogs::pointer(Pointer pointer) {
    transcript_.line(pointer == Pointer::Hourglass ? "pointer hourglass" : "pointer normal");
}

void HeadlessDialogs::fault(const std::string& text) { transcript_.line("error " + quotedText(text)); }
