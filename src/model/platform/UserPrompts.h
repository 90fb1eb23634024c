#pragma once

#include <string>

namespace lw {

enum class MessageIcon { Stop, Question, Warning, Information, None };

enum class Answer { Yes, No, Cancel };

// A message has OK alone, or OK and Cancel where the box offers both but the
// answer changes nothing.
enum class MessageButtons { Ok, OkCancel };

// Most questions offer Yes, No and Cancel; some have nothing to cancel.
enum class QuestionButtons { YesNoCancel, YesNo };

// Modal message boxes and questions.
// The editor shows real boxes; tests and the tool record or print them.
class UserPrompts {
public:
    virtual ~UserPrompts() = default;
    virtual void ShowMessage(const std::string& text, MessageIcon icon, MessageButtons buttons) = 0;
    virtual Answer Ask(const std::string& question, MessageIcon icon, QuestionButtons buttons) = 0;

    void ShowMessage(const std::string& text, MessageIcon icon) {
        ShowMessage(text, icon, MessageButtons::Ok);
    }
    Answer Ask(const std::string& question, MessageIcon icon) {
        return Ask(question, icon, QuestionButtons::YesNoCancel);
    }
};

} // namespace lw
