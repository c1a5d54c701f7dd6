// SPDX-License-Identifier: MIT
#include "dupes/BuildResultProc.h"

#include "dupes/SimilarOrder.h"
#include "library/CaseFolding.h"
#include "library/KeySort.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "platform/ExceptionReason.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace songsweep {

namespace {

/// Repeated texts are one and the same, which settles most comparisons of artists and albums.
bool equalTexts(Text a, Text b) { return a.c_str() == b.c_str() || equalIgnoringCase(a, b); }

bool comparesAnything(const SearchParameters& parameters) {
    return parameters.issamename || parameters.issameartist || parameters.issamealbum ||
           parameters.issametime;
}

void addRecord(SortKey& key, const TrackRecord& record, const SearchParameters& parameters) {
    if (parameters.issamename) key.text(record.name);
    if (parameters.issameartist) key.text(record.artist);
    if (parameters.issamealbum) key.text(record.album);
    if (parameters.issametime) key.number(record.timev);
}

/// Puts the records into the order of these places, in place: a second list would stand in memory when there
/// is most in it.
void reorder(std::vector<TrackRecord*>& records, std::vector<std::uint32_t> order) {
    for (std::uint32_t first = 0; first < order.size(); ++first) {
        TrackRecord* const moved = records[first];
        std::uint32_t place = first;
        while (order[place] != first) {
            const std::uint32_t from = std::exchange(order[place], place);
            records[place] = records[from];
            place = from;
        }
        records[place] = moved;
        order[place] = place;
    }
}

} // namespace

bool isSameTag(const TrackRecord& a, const TrackRecord& b, const SearchParameters& parameters) {
    if (parameters.issameartist && !equalTexts(a.artist, b.artist)) return false;
    if (parameters.issamename && !equalTexts(a.name, b.name)) return false;
    if (parameters.issamealbum && !equalTexts(a.album, b.album)) return false;
    if (!parameters.issametime) return true;
    return !a.time.empty() && a.time == b.time;
}

BuildResultProc::BuildResultProc(std::shared_ptr<TrackList> list, SearchParameters parameters,
                                 NotificationCenter<WorkerEvent>& center)
    : m_list(std::move(list))
    , m_searchparams(std::move(parameters))
    , m_center(center) {}

void BuildResultProc::main() {
    try {
        sortList();
        group();
    } catch (...) {
        m_list->records = {}; // may be the memory that was short
        m_list->coverage.brokenOff = exceptionReason();
        finish();
        throw;
    }
    finish();
}

void BuildResultProc::sortList() {
    std::vector<TrackRecord*>& records = m_list->records;
    if (m_searchparams.issimilar) {
        GroupOrder order = similarOrder(records, m_searchparams);
        records.swap(order.records);
        m_joined = std::move(order.joined);
        return;
    }
    if (!comparesAnything(m_searchparams)) {
        m_joined.assign(records.size(), true);
        return;
    }
    KeyOrder order = orderOfKeys(records.size(), [&](SortKey& key, std::uint32_t record) {
        addRecord(key, *records[record], m_searchparams);
    });
    m_joined = std::move(order.repeats);
    reorder(records, std::move(order.items));
}

void BuildResultProc::group() {
    const std::vector<TrackRecord*>& records = m_list->records;
    std::int32_t groupCount = 0;
    bool opensGroup = true;
    for (std::size_t i = 1; i < records.size(); ++i) {
        if (isCancelled()) return;
        TrackRecord& a = *records[i - 1];
        TrackRecord& b = *records[i];
        post(EventName::progress, &a);
        if (!joinsGroup(i)) {
            opensGroup = true;
            continue;
        }
        if (opensGroup) addToGroup(a, ++groupCount);
        opensGroup = false;
        addToGroup(b, groupCount);
    }
}

/// Whether the record at the place is in the group of the one before it. Records of the same tag have one
/// key, so that most need not be looked at once more.
bool BuildResultProc::joinsGroup(std::size_t place) const {
    if (!m_joined[place] || m_searchparams.issimilar) return m_joined[place];
    return isSameTag(*m_list->records[place - 1], *m_list->records[place], m_searchparams);
}

void BuildResultProc::addToGroup(TrackRecord& record, std::int32_t gid) {
    record.gid = gid;
    post(EventName::step2, &record);
}

void BuildResultProc::finish() {
    m_list->records = {};
    post(isCancelled() ? EventName::addCancel : EventName::buildFinish);
}

void BuildResultProc::post(EventName name, WorkerEventPayload payload) {
    m_center.post({name, std::move(payload), this});
}

} // namespace songsweep
