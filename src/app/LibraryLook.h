// SPDX-License-Identifier: MIT
#pragma once

#include "app/LibraryWarnings.h"
#include "app/MapRule.h"
#include "delete/DeletePlan.h"
#include "library/TrackStorage.h"
#include "operations/Operation.h"

#include <memory>
#include <string>
#include <vector>

namespace songsweep {

class Files;

/// Where the files of a library are looked for.
struct FilePlaces {
    const Files& files;
    LibraryLocations locations;
    std::vector<MapRule> rules; ///< of the path map
    std::string library = {};   ///< path of its file; "" where it has none
};

/// What came of the look.
struct LibraryFindings {
    std::vector<std::string> warnings = {};
    MissingFiles missing = {}; ///< of the files that were searched; of the library's where none is here
};

/// The worker that finds out whether the files of a library are looked for in the wrong place.
///
/// Runs between a reader and the grouping, since the list still has every record then, and posts nothing: the
/// warnings are there when the grouping begins. Passes over the library's locations where there is a rule, or
/// where no record of the list has a file; each pass ends as soon as nothing is left to warn of. Where all
/// are missing, they are looked for near the library file.
class LibraryLook final : public Operation {
  public:
    LibraryLook(std::shared_ptr<const TrackList> list, FilePlaces places,
                std::shared_ptr<LibraryFindings> findings);

    void main() override;

  private:
    MissingFiles missingRecords() const;
    std::vector<std::string> likelyFolders() const;

    std::shared_ptr<const TrackList> m_list;
    FilePlaces m_places;
    std::shared_ptr<LibraryFindings> m_findings;
};

} // namespace songsweep
