// SPDX-License-Identifier: MIT
#pragma once

#include "library/SearchParameters.h"
#include "library/TrackStorage.h"
#include "library/WorkerEvent.h"
#include "operations/Operation.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace songsweep {

template <typename Event>
class NotificationCenter;

/// Whether two records are duplicates by what the parameters compare. Texts are equal without regard to case;
/// times by their texts, of which an empty one equals none.
bool isSameTag(const TrackRecord& a, const TrackRecord& b, const SearchParameters& parameters);

/// Cuts the track list into duplicate groups.
///
/// Sorts the list by what is compared, gives each record that is the same as a neighbour the number of its
/// group, counted from 1, and posts it ("step2"); "progress" before each comparison. Ends with "buildFinish",
/// or "addCancel" when cancelled, and leaves the list empty in any case; an exception is
/// noted in the list's coverage. Where small differences do not count, the groups are those of a GroupOrder,
/// and the events are the same. Texts are folded once a record; one sort, one pass.
class BuildResultProc final : public Operation {
  public:
    BuildResultProc(std::shared_ptr<TrackList> list, SearchParameters parameters,
                    NotificationCenter<WorkerEvent>& center);

    void main() override;

  private:
    void sortList();
    void group();
    bool joinsGroup(std::size_t place) const;
    void addToGroup(TrackRecord& record, std::int32_t gid);
    void finish();
    void post(EventName name, WorkerEventPayload payload = {});

    std::shared_ptr<TrackList> m_list;
    SearchParameters m_searchparams;
    std::vector<bool> m_joined; ///< by place: whether the record may be in the group of the one before it
    NotificationCenter<WorkerEvent>& m_center;
};

} // namespace songsweep
