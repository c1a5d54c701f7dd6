// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryKeys.h"
#include "library/TrackStorage.h"

#include <string>
#include <string_view>

namespace songsweep {

/// Puts the values of a library file into records.
///
/// Name, artist, album and location join the pieces in which a reader delivers them; of the other values the
/// last piece counts. Joined texts are put down by finish() at the latest, so that a text of very many pieces
/// is not copied once a piece.
class RecordFiller {
  public:
    explicit RecordFiller(TrackStorage& storage)
        : m_storage(storage) {}

    /// Stores a trimmed, non-empty text by its key. Throws std::runtime_error for a date that is none.
    void store(TrackRecord& record, LibraryKey key, std::string_view text);

    /// Puts down what is still being joined.
    void finish();

  private:
    void append(Text& field, std::string_view piece);
    void appendRepeating(Text& field, std::string_view piece, Text& last);
    bool join(Text& field, std::string_view piece);
    void storeDuration(TrackRecord& record, std::string_view milliseconds);
    static void storeDate(TrackRecord& record, std::string_view text);

    TrackStorage& m_storage;
    Text m_lastArtist; // most likely the next record's too
    Text m_lastAlbum;
    Text* m_joinedField = nullptr;
    std::string m_joined;
};

} // namespace songsweep
