// SPDX-License-Identifier: MIT
#include "scan/PlaylistReturn.h"

#include "scan/Hash64.h"
#include "scan/LinePlaces.h"
#include "scan/PlaylistEntries.h"
#include "scan/XspfPlaylist.h"

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

namespace songsweep {

namespace {

using Cut = RecordedPlaylist::Cut;

/// The file as it was cut, with the places of the cuts, of which some may have come back since.
struct CutFile {
    std::string bytes;
    std::vector<bool> isBack;

    static CutFile of(std::string_view bytes, const RecordedPlaylist& playlist) {
        CutFile file{{}, std::vector<bool>(playlist.cuts.size())};
        std::size_t missing = 0; // bytes, so far
        std::size_t end = 0;
        for (std::size_t i = 0; i < playlist.cuts.size(); ++i) {
            const Cut& cut = playlist.cuts[i];
            const std::size_t at = std::min<std::size_t>(cut.at - missing, bytes.size());
            file.isBack[i] = bytes.substr(at).starts_with(cut.bytes);
            if (!file.isBack[i]) {
                missing += cut.bytes.size();
                continue;
            }
            file.bytes += bytes.substr(end, at - end);
            end = at + cut.bytes.size();
        }
        file.bytes += bytes.substr(std::min(end, bytes.size()));
        return file;
    }

    std::string with(const RecordedPlaylist& playlist, const std::vector<bool>& cuts) const {
        std::string whole;
        std::size_t removed = 0;
        std::size_t end = 0;
        for (std::size_t i = 0; i < playlist.cuts.size(); ++i) {
            const Cut& cut = playlist.cuts[i];
            const std::size_t at = cut.at - removed;
            removed += cut.bytes.size();
            if (!cuts[i]) continue;
            whole.append(bytes, end, at - end).append(cut.bytes);
            end = at;
        }
        return whole.append(bytes, end);
    }
};

/// What an entry names, as one text.
std::string nameOf(const PlaylistEntry& entry) {
    std::string whole;
    for (const std::string& name : entry.names)
        whole.append(name).append(1, '\n');
    return whole;
}

/// A file that somebody has changed, and the lines on their way back into it.
class Insertion {
  public:
    Insertion(std::string_view bytes, PlaylistFormat format)
        : m_bytes(bytes)
        , m_format(format)
        , m_places(bytes) {
        for (const PlaylistEntry& entry : entriesOfPlaylist(bytes, format))
            m_names.push_back(nameOf(entry));
        m_known.insert(m_names.begin(), m_names.end());
    }

    /// All cuts of one entry; false where one has no place.
    bool add(const std::vector<const Cut*>& cuts) {
        std::string lines;
        std::vector<Piece> pieces;
        for (const Cut* const cut : cuts) {
            lines += cut->bytes;
            if (const auto place = m_places.placeFor(*cut)) pieces.push_back({*place, cut->bytes});
        }
        const std::vector<PlaylistEntry> entry = entriesOfPlaylist(lines, m_format);
        if (entry.size() == 1 && m_known.contains(nameOf(entry.front()))) return true; // It is there already.
        if (entry.size() != 1 || pieces.size() != cuts.size()) return false;
        m_pieces.insert(m_pieces.end(), pieces.begin(), pieces.end());
        ++m_added;
        return true;
    }

    /// The new bytes; nothing where they would not be the list with those entries more.
    std::optional<std::string> result() {
        std::stable_sort(m_pieces.begin(), m_pieces.end(),
                         [](const Piece& one, const Piece& other) { return one.at < other.at; });
        std::string whole;
        std::size_t end = 0;
        for (const Piece& piece : m_pieces) {
            whole.append(m_bytes.substr(end, piece.at - end)).append(piece.bytes);
            end = piece.at;
        }
        whole.append(m_bytes.substr(end));
        return isListWithMore(whole) ? std::optional(std::move(whole)) : std::nullopt;
    }

  private:
    struct Piece {
        std::size_t at;
        std::string_view bytes;
    };

    bool isListWithMore(std::string_view whole) const {
        const std::vector<PlaylistEntry> entries = entriesOfPlaylist(whole, m_format);
        std::size_t known = 0;
        for (const PlaylistEntry& entry : entries)
            if (known < m_names.size() && nameOf(entry) == m_names[known]) ++known;
        return known == m_names.size() && entries.size() == known + m_added &&
               (m_added == 0 || m_format != PlaylistFormat::xspf || isWholeXspf(whole));
    }

    std::string_view m_bytes;
    PlaylistFormat m_format;
    LinePlaces m_places;
    std::vector<std::string> m_names; ///< of the entries, in order
    std::unordered_set<std::string> m_known;
    std::vector<Piece> m_pieces;
    std::size_t m_added = 0; ///< entries
};

PlaylistReturn insertLines(std::string_view bytes, const RecordedPlaylist& playlist,
                           const std::vector<bool>& isWanted) {
    std::map<std::size_t, std::vector<const Cut*>> entries;
    for (std::size_t i = 0; i < playlist.cuts.size(); ++i)
        if (isWanted[i]) entries[playlist.cuts[i].entry].push_back(&playlist.cuts[i]);
    Insertion insertion(bytes, playlistFormatOf(playlist.path).value_or(PlaylistFormat::m3u));
    PlaylistReturn back;
    for (const auto& [number, cuts] : entries)
        back.isComplete &= insertion.add(cuts);
    const std::optional<std::string> result = insertion.result();
    back.isComplete &= result.has_value();
    back.bytes = result.value_or(std::string(bytes));
    return back;
}

} // namespace

PlaylistReturn returnLines(std::string_view bytes, const RecordedPlaylist& playlist,
                           const std::function<bool(const std::string& file)>& isWanted) {
    std::vector<bool> wanted;
    for (const Cut& cut : playlist.cuts)
        wanted.push_back(isWanted(cut.file));
    const CutFile file = CutFile::of(bytes, playlist);
    if (hash64(file.bytes) != playlist.hash) return insertLines(bytes, playlist, wanted);
    std::vector<bool> present = file.isBack;
    for (std::size_t i = 0; i < present.size(); ++i)
        present[i] = present[i] || wanted[i];
    return {file.with(playlist, present), true};
}

} // namespace songsweep
