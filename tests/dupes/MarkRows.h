// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackStorage.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep::test {

/// Rows to mark, with the storage that keeps their texts.
class MarkRows {
  public:
    /// A copy of the record in the given group.
    TrackRecord& add(int gid, const TrackRecord& values = {}) {
        TrackRecord& record = m_storage->makeRecord();
        record = values;
        record.gid = gid;
        m_rows.push_back(&record);
        return record;
    }

    Text text(std::string_view words) { return m_storage->store(words); }
    const std::vector<TrackRecord*>& rows() const { return m_rows; }

    /// A letter a row: "x" checked, "-" not.
    std::string checks() const {
        std::string checks;
        for (const TrackRecord* const record : m_rows)
            checks += record->checkbox ? 'x' : '-';
        return checks;
    }

  private:
    std::unique_ptr<TrackStorage> m_storage = std::make_unique<TrackStorage>();
    std::vector<TrackRecord*> m_rows;
};

} // namespace songsweep::test
