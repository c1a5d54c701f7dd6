// SPDX-License-Identifier: MIT
#include "libraryfile/MergeUndo.h"

#include <map>
#include <utility>

namespace songsweep {

namespace {

using Form = ValueChange::Form;

std::vector<ValueChange> changesOf(const RecordedMerge& merge) {
    std::vector<ValueChange> changes;
    for (const RecordedValue& value : merge.values)
        changes.push_back(value.after);
    return changes;
}

bool isStillThat(const EntryValue* present, const ValueChange& merged) {
    if (!present || merged.form == Form::none) return !present && merged.form == Form::none;
    return merged.form == Form::isTrue ? present->element == "true" : present->text == merged.text;
}

/// Nothing where the value is of a kind that cannot be written.
std::optional<ValueChange> changeBackTo(const EntryValue* old, const std::string& key) {
    if (!old) return ValueChange{key, Form::none, {}};
    if (old->element == "string") return ValueChange{key, Form::text, old->text};
    if (old->element == "integer") return ValueChange{key, Form::integer, old->text};
    if (old->element == "date") return ValueChange{key, Form::date, old->text};
    return old->element == "true" ? std::optional(ValueChange{key, Form::isTrue, {}}) : std::nullopt;
}

/// The values that go back into a present entry; `left` counts those that somebody else has changed since.
std::vector<ValueChange> changesBack(const RecordedMerge& merge, const EntryValues& old,
                                     const EntryValues& present, std::size_t& left) {
    std::vector<ValueChange> changes;
    for (const RecordedValue& value : merge.values) {
        const std::string& key = value.after.key;
        auto change = changeBackTo(old.find(key), key);
        const bool goesBack = change && isStillThat(present.find(key), value.after);
        if (goesBack) changes.push_back(*std::move(change));
        left += goesBack ? 0 : 1;
    }
    return changes;
}

} // namespace

void MergeUndo::add(const RecordedMerge& merge, std::uint32_t oldKept, std::uint32_t presentKept,
                    const std::vector<std::uint32_t>& oldRemoved) {
    const std::size_t song = m_songs.size();
    m_songs.push_back({&merge, oldKept, presentKept});
    if (!merge.places) return;
    m_copies.emplace(oldKept, Copy{song, 0});
    for (std::uint32_t i = 0; i < oldRemoved.size(); ++i)
        m_copies.emplace(oldRemoved[i], Copy{song, i + 1});
}

Result<void> MergeUndo::changeEntries(FileEdits& edits,
                                      std::unordered_map<std::uint32_t, std::int64_t>& growth,
                                      std::vector<std::string>& notes) const {
    std::size_t valuesLeft = 0;
    for (const Song& song : m_songs)
        if (auto changed = changeEntry(song, edits, growth, valuesLeft); !changed) return changed;
    if (valuesLeft > 0)
        notes.push_back("values of copies that stayed, changed since, which stay as they are: " +
                        std::to_string(valuesLeft));
    return {};
}

Result<void> MergeUndo::changeEntry(const Song& song, FileEdits& edits,
                                    std::unordered_map<std::uint32_t, std::int64_t>& growth,
                                    std::size_t& valuesLeft) const {
    const ByteRange oldRange = m_backup.index.tracks[song.oldKept].range();
    const ByteRange presentRange = m_present.index.tracks[song.presentKept].range();
    const auto old = m_backup.file.read(oldRange);
    if (!old) return old.error();
    const auto present = m_present.file.read(presentRange);
    if (!present) return present.error();
    const auto merged = replacementsFor(old.value(), m_backup.index.entities, changesOf(*song.merge));
    if (merged && withReplacements(old.value(), merged.value()) == present.value()) {
        edits.replace(presentRange, {&m_backup.file, oldRange, {}});
        growth[song.presentKept] =
            static_cast<std::int64_t>(oldRange.length) - static_cast<std::int64_t>(presentRange.length);
        return {};
    }
    const auto oldValues = EntryValues::parse(old.value(), m_backup.index.entities);
    const auto presentValues = EntryValues::parse(present.value(), m_present.index.entities);
    if (!oldValues || !presentValues) return Error{Error::Code::busy, "the library is being rewritten"};
    const auto back = replacementsFor(present.value(), m_present.index.entities,
                                      changesBack(*song.merge, *oldValues, *presentValues, valuesLeft));
    if (!back) return back.error();
    std::string entry = withReplacements(present.value(), back.value());
    growth[song.presentKept] =
        static_cast<std::int64_t>(entry.size()) - static_cast<std::int64_t>(presentRange.length);
    edits.replace(presentRange, {nullptr, {}, std::move(entry)});
    return {};
}

std::vector<std::optional<MergeUndo::Item>> MergeUndo::itemsOf(std::size_t oldPlaylist) const {
    const std::vector<ItemSlot>& items = m_backup.index.playlists[oldPlaylist].items;
    std::vector<std::optional<Item>> fates(items.size());
    if (!m_places[oldPlaylist] || m_copies.empty()) return fates;
    std::map<std::size_t, std::vector<std::size_t>> itemsOfSong;
    for (std::size_t item = 0; item < items.size(); ++item)
        if (const auto copy = m_copies.find(items[item].track); copy != m_copies.end())
            itemsOfSong[copy->second.song].push_back(item);
    for (const auto& [song, places] : itemsOfSong) {
        std::vector<std::uint32_t> copies;
        for (const std::size_t item : places)
            copies.push_back(m_copies.at(items[item].track).number);
        const std::vector<PlaceFate> made = placeFates(copies);
        for (std::size_t i = 0; i < places.size(); ++i)
            fates[places[i]] = Item{made[i], m_songs[song].oldKept};
    }
    return fates;
}

} // namespace songsweep
