// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/AppleScript.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace songsweep::test {

/// Keeps the texts that it is sent and answers as the test says: the missing value unless told otherwise. An
/// answer may fail, and may throw. One thread at a time.
class RecordingAppleScript final : public AppleScript {
  public:
    using Answer = std::function<Result<Descriptor>(std::string_view text)>;

    void setAnswer(Answer answer) { m_answer = std::move(answer); }
    const std::vector<std::string>& texts() const { return m_texts; }

    Result<Descriptor> executeAndReturnError(std::string_view source) override {
        m_texts.emplace_back(source);
        return m_answer ? m_answer(source) : Result<Descriptor>(Descriptor());
    }

  private:
    Answer m_answer;
    std::vector<std::string> m_texts;
};

} // namespace songsweep::test
