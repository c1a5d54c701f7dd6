// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"
#include "libraryfile/XmlText.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// A pass over the locations of a library's tracks as they were at one moment.
///
/// What the caller does with each location may take long, as when it looks at a million files. So the pass
/// holds all that it needs itself, 16 bytes a track, and runs beside the document, on any thread, whatever
/// becomes of the document meanwhile.
class LocationPass {
  public:
    /// A track with a location: its persistent ID ("" for none) and the path of its file. False ends the
    /// pass.
    using Callback = std::function<bool(std::string_view persistentId, const std::string& posixPath)>;

    /// `file` is the version of the library that `stamp` and `tracks` are of; `path` is where it lay.
    LocationPass(std::string path, std::shared_ptr<const LibraryFile> file, FileStamp stamp,
                 std::vector<ByteRange> tracks, XmlEntities entities)
        : m_path(std::move(path))
        , m_file(std::move(file))
        , m_stamp(stamp)
        , m_tracks(std::move(tracks))
        , m_entities(std::move(entities)) {}

    /// Calls back for each track in file order until the callback says false. `busy` where the library at the
    /// path is another one at the end than it was when the pass was made.
    Result<void> run(const Callback& callback) const;

  private:
    Error busy() const;

    std::string m_path;
    std::shared_ptr<const LibraryFile> m_file;
    FileStamp m_stamp;
    std::vector<ByteRange> m_tracks;
    XmlEntities m_entities;
};

} // namespace songsweep
