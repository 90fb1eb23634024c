#include "platform/RecordingPrompts.h"

namespace lw {

void RecordingPrompts::ShowMessage(const std::string& text, MessageIcon icon,
                                   MessageButtons buttons) {
    log_.push_back({text, icon, false, buttons});
}

Answer RecordingPrompts::Ask(const std::string& question, MessageIcon icon,
                             QuestionButtons buttons) {
    log_.push_back({question, icon, true, MessageButtons::Ok, buttons});
    if (answers_.empty())
        return fallback_;
    const Answer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

std::vector<std::string> RecordingPrompts::MessageTexts() const {
    std::vector<std::string> texts;
    for (const Shown& shown : log_) {
        if (!shown.isQuestion)
            texts.push_back(shown.text);
    }
    return texts;
}

} // namespace lw
