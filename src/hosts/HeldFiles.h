// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"
#include "platform/Result.h"
#include "platform/Trash.h"

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace songsweep {

/// A file that is to go to the Trash later, as the very one that it was.
struct HeldFile {
    std::string path;                     ///< local
    FileStamp stamp;                      ///< of a link, that of its file
    std::vector<std::size_t> tracks = {}; ///< that it belongs to, by their numbers in a plan

    /// Moves it, unless another file has its place, or it was written to, since. A link goes also where its
    /// file has gone before.
    Result<TrashedFile> moveTo(Trash& trash) const;
};

/// Files that are to go to the Trash once the library on the disk names their tracks no more.
///
/// So no kill and no failed write leaves a track in the library whose file is gone. In the order in which
/// they were handed in; a file comes once, whatever the number of its tracks. Guarded by the scripts' lock.
class HeldFiles {
  public:
    void hold(HeldFile file, std::size_t track);

    /// Takes out the files of which that is true.
    std::vector<HeldFile> take(const std::function<bool(const HeldFile&)>& goes);
    std::vector<HeldFile> takeAll();

  private:
    std::vector<HeldFile> m_files;
    std::unordered_map<std::string, std::size_t> m_places; // in the list, by path
};

} // namespace songsweep
