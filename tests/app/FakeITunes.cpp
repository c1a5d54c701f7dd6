// SPDX-License-Identifier: MIT
#include "app/FakeITunes.h"

#include <algorithm>
#include <cstdio>

namespace songsweep::test {

namespace {

bool holds(const std::string& text, std::string_view part) { return text.find(part) != std::string::npos; }

Descriptor listOf(const std::vector<std::string>& texts) {
    Descriptor::List items;
    for (const std::string& text : texts)
        items.push_back(Descriptor::text(text));
    return Descriptor::list(std::move(items));
}

} // namespace

Descriptor trackItem(const FakeTrack& track) {
    const Descriptor location =
        track.location ? Descriptor::text(*track.location) : Descriptor::list({Descriptor()});
    return Descriptor::list({
        Descriptor::text(track.name),
        Descriptor::text(track.artist),
        Descriptor::text(track.album),
        Descriptor::text(track.time),
        Descriptor::integer(track.bitrate),
        Descriptor::integer(track.size),
        Descriptor(Descriptor::Value(Descriptor::Date{track.dateAdded})),
        Descriptor::integer(track.rating),
        Descriptor::text(track.pid),
        Descriptor::integer(track.playcount),
        location,
        Descriptor::list(
            Descriptor::List(static_cast<std::size_t>(track.artworks), Descriptor::text("artwork"))),
    });
}

Result<Descriptor> FakeITunes::executeAndReturnError(std::string_view source) {
    const std::string text(source);
    onScript(text);
    const std::lock_guard lock(m_mutex);
    m_texts.push_back(text);
    if (fails(text)) return Error{Error::Code::failed, failure(text)};
    return answer(text);
}

std::vector<std::string> FakeITunes::texts() const {
    const std::lock_guard lock(m_mutex);
    return m_texts;
}

Descriptor FakeITunes::answer(const std::string& source) const {
    if (source.find("set kept to") != std::string::npos) return Descriptor::text(""); // no reason to fail
    if (holds(source, "itunes_records")) return batch(source);
    if (holds(source, "get version")) return Descriptor::text(version);
    if (holds(source, "count of tracks of playlist"))
        return Descriptor::integer(trackCount.value_or(static_cast<std::int64_t>(tracks.size())));
    if (holds(source, "name of every user playlist")) return listOf(playlists);
    if (holds(source, "count of playlist")) {
        for (std::size_t i = 0; i < playlists.size(); ++i)
            if (holds(source, "tname = \"" + playlists[i] + "\""))
                return Descriptor::list({Descriptor::integer(static_cast<std::int64_t>(i) + 1)});
        return Descriptor::list({Descriptor::integer(-1)});
    }
    return {};
}

Descriptor FakeITunes::batch(const std::string& source) const {
    int playlist = 0;
    int first = 0;
    int last = 0;
    std::sscanf(
        source.c_str(),
        "tell application \"iTunes\" \nset tindex to %d \nset itunes_records to {} \nrepeat with i from %d "
        "to %d",
        &playlist, &first, &last);
    Descriptor::List items;
    for (int i = first; i <= std::min<int>(last, static_cast<int>(tracks.size())); ++i)
        items.push_back(trackItem(tracks[static_cast<std::size_t>(i) - 1]));
    return Descriptor::list({Descriptor::list(std::move(items))});
}

} // namespace songsweep::test
