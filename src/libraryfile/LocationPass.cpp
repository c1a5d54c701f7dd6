// SPDX-License-Identifier: MIT
#include "libraryfile/LocationPass.h"

#include "library/LocationUrl.h"
#include "library/Trim.h"
#include "libraryfile/FileWindow.h"
#include "libraryfile/TrackFields.h"
#include "platform/Ascii.h"

namespace songsweep {

namespace {

/// Where either reader could find the track's file, so that no file counts as used by one track alone that
/// another one uses too. The address of a stream leads to no file.
std::optional<std::string> possiblePath(const TrackFields& track) {
    const std::string_view location = trimmed(track.text(LibraryKey::location));
    const bool isStream = asciiLower(std::string(trimmed(track.text(LibraryKey::trackType)))) == "url";
    auto path = isStream ? std::nullopt : pathOfUrl(location);
    return path ? path : pathOfFileUrl(location);
}

} // namespace

Result<void> LocationPass::run(const Callback& callback) const {
    FileWindow window(*m_file);
    for (const ByteRange track : m_tracks) {
        const auto parsed = TrackFields::parse(window.view(track), m_entities);
        if (window.error()) return *window.error();
        if (!parsed) return busy();
        const auto path = possiblePath(*parsed);
        if (path && !callback(trimmed(parsed->text(LibraryKey::persistentId)), *path)) return {};
    }
    const auto stamp = LibraryFile::stampOf(m_path);
    if (!stamp) return stamp.error();
    return stamp.value() == m_stamp ? Result<void>() : Result<void>(busy());
}

Error LocationPass::busy() const { return {Error::Code::busy, m_path + " is being rewritten"}; }

} // namespace songsweep
