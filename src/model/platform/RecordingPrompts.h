#pragma once

#include "platform/UserPrompts.h"

#include <deque>
#include <string>
#include <vector>

namespace lw {

// Keeps every message and question in order, and answers questions from a
// queue of prepared answers; with the queue empty it answers `fallback`.
class RecordingPrompts : public UserPrompts {
public:
    struct Shown {
        std::string text;
        MessageIcon icon;
        bool isQuestion;
        MessageButtons buttons = MessageButtons::Ok;
        QuestionButtons questionButtons = QuestionButtons::YesNoCancel;
    };

    explicit RecordingPrompts(Answer fallback = Answer::Cancel) : fallback_(fallback) {}

    using UserPrompts::ShowMessage;
    void ShowMessage(const std::string& text, MessageIcon icon, MessageButtons buttons) override;
    using UserPrompts::Ask;
    Answer Ask(const std::string& question, MessageIcon icon, QuestionButtons buttons) override;

    void QueueAnswer(Answer answer) { answers_.push_back(answer); }

    const std::vector<Shown>& Log() const { return log_; }
    std::vector<std::string> MessageTexts() const;

private:
    Answer fallback_;
    std::deque<Answer> answers_;
    std::vector<Shown> log_;
};

} // namespace lw
