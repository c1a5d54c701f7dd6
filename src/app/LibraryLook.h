// SPDX-License-Identifier: MIT
#pragma once

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
};

/// The worker that finds out whether the files of a library are looked for in the wrong place.
///
/// Runs between a reader and the grouping, since the list still has every record then, and posts nothing: the
/// warnings are there when the grouping begins. Passes over the library's locations where there is a rule, or
/// where no record of the list has a file; each pass ends as soon as nothing is left to warn of.
class LibraryLook final : public Operation {
  public:
    using Warnings = std::vector<std::string>;

    LibraryLook(std::shared_ptr<const TrackList> list, FilePlaces places, std::shared_ptr<Warnings> warnings);

    void main() override;

  private:
    std::shared_ptr<const TrackList> m_list;
    FilePlaces m_places;
    std::shared_ptr<Warnings> m_warnings;
};

} // namespace songsweep
