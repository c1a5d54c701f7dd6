// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/NameParts.h"
#include "library/SearchParameters.h"
#include "library/Text.h"

#include <string>
#include <string_view>

namespace songsweep {

struct TrackRecord;

/// Makes the keys of the texts that a search with small differences compares: two records are similar in
/// their texts where their keys are the same.
///
/// Records whose texts are equal without regard to case have the same key. A text without any word, as "???",
/// has its exact key. A guest ("feat. X") is left out only where the time is compared, too. Keys hold a zero
/// byte behind each text, and no other. Made once a record; an artist or album that repeats is made once in a
/// row. One thread.
class LooseKeys {
  public:
    explicit LooseKeys(const SearchParameters& parameters);

    /// Adds the key of the record: of its name, artist and album, as far as they are compared.
    void append(std::string& key, const TrackRecord& record);

    /// The length of the number that stands at the key's begin and is followed by a word, with the blank; 0
    /// where there is none or the name is not compared. `number` is what it says.
    std::size_t leadingNumber(std::string_view key, int& number) const;

  private:
    /// A text with its key, for the next record that has the same.
    struct Known {
        const char* text = nullptr;
        std::string key{};
    };

    void appendText(std::string& key, std::string_view text);
    void appendArtist(std::string& key, std::string_view text);
    template <typename Append>
    static void appendKnown(std::string& key, Text text, Known& known, Append append);

    SearchParameters m_parameters;
    Featuring m_featuring;
    std::string m_letters;
    Known m_artist;
    Known m_album;
};

} // namespace songsweep
