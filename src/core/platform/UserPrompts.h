#pragma once

#include <string>

namespace lw {

enum class MessageIcon { Stop, Question, Warning, Information, None };

enum class Answer { Yes, No, Cancel };

// A message has OK alone, or OK and Cancel where the box offers both but the
// answer changes nothing.
enum class MessageButtons { Ok, OkCancel };

// Modal message boxes and questions. Every question offers Yes, No and Cancel.
// The editor shows real boxes; tests and the tool record or print them.
class UserPrompts {
public:
    virtual ~UserPrompts() = default;
    virtual void ShowMessage(const std::string& text, MessageIcon icon, MessageButtons buttons) = 0;
    virtual Answer Ask(const std::string& question, MessageIcon icon) = 0;

    void ShowMessage(const std::string& text, MessageIcon icon) {
        ShowMessage(text, icon, MessageButtons::Ok);
    }
};

} // namespace lw
