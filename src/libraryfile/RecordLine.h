// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"

#include <nlohmann/json_fwd.hpp>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// One line of a record as it was read; what it lacks, or has in another form, is "", 0 or none.
class RecordLine {
  public:
    /// Nothing where the text is no object of JSON.
    static std::optional<RecordLine> parse(const std::string& text);

    RecordLine(RecordLine&& other) noexcept;
    ~RecordLine();

    /// The text of the key, or of the key with "Encoded" behind it, see JsonLine.
    std::string text(const char* key) const;
    std::int64_t number(const char* key, std::int64_t otherwise = 0) const;
    std::vector<std::size_t> numbers(const char* key) const;
    bool truth(const char* key) const;

  private:
    explicit RecordLine(nlohmann::json json);

    std::unique_ptr<const nlohmann::json> m_json;
};

/// The heading of a record in that folder.
RecordHeading recordHeadingIn(const RecordLine& line, const std::string& folder);
RecordEnd recordEndIn(const RecordLine& line);
/// Nothing where the word is not known.
std::optional<ValueChange::Form> valueFormOf(const std::string& word);
/// Nothing where the words are not known.
std::optional<RecordedOutcome> recordedOutcomeIn(const RecordLine& line);

} // namespace songsweep
