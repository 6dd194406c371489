#pragma once

#include "model/Reporter.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace rhomba::test {

// Keeps every message and question; answers the questions from a script, yes once it runs out.
// Base is the reporter interface it records for (Reporter, or a port that extends it).
template <typename Base>
struct Recording : Base {
    std::vector<std::string> messages;
    std::vector<std::string> questions;
    std::deque<bool> answers;

    void Inform(std::string_view message) override { messages.emplace_back(message); }
    bool Ask(std::string_view question) override {
        questions.emplace_back(question);
        if (answers.empty()) return true;
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

using RecordingReporter = Recording<Reporter>;

} // namespace rhomba::test
