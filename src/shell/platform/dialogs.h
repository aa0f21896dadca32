// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

enum class Icon { None, Exclamation, Information, Question };
enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };
enum class Pointer { Normal, Hourglass };

/// A message box. The first button is the default one unless told otherwise.
struct Message {
    std::string text;
    std::string title;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    Answer defaultAnswer = Answer::Ok;
};

/// An input box.
struct Prompt {
    std::string text;
    std::string title;
    std::string defaultText;
};

/// What interrupts the operator, and what he hears and sees of a routine at work. No timer runs while a box
/// is open.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual Answer message(const Message& message) = 0;
    /// The text entered, or nothing after Cancel.
    virtual std::optional<std::string> prompt(const Prompt& prompt) = 0;
    virtual void beep() = 0;
    virtual void pointer(Pointer pointer) = 0;
    /// A fault that no routine trapped; the program ends after it.
    virtual void fault(const std::string& text) = 0;
};
