// SPDX-License-Identifier: MIT
#include "dupes/SimilarOrder.h"

#include "dupes/BuildResultProc.h"
#include "dupes/LooseKeys.h"
#include "dupes/SmallDifference.h"
#include "dupes/TimeCut.h"
#include "library/KeySort.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <unordered_set>
#include <utility>

namespace songsweep {

namespace {

/// Brings records together whose texts are similar.
class TextOrder {
  public:
    TextOrder(const std::vector<TrackRecord*>& records, const SearchParameters& parameters)
        : m_keys(parameters)
        , m_sort(records.size()) {
        m_added.reserve(records.size());
        for (TrackRecord* const record : records)
            add(record);
        addNumbered();
    }

    std::vector<TrackRecord*> order() {
        std::vector<TrackRecord*> sorted;
        sorted.reserve(m_added.size());
        for (const std::uint32_t index : m_sort.order())
            sorted.push_back(m_added[index]);
        return sorted;
    }
    const std::vector<KeySort::Run>& similarRuns() const { return m_sort.equalRuns(); }

  private:
    /// A record whose name begins with its own number, which may go once all names are known.
    struct Numbered {
        TrackRecord* record;
        std::string key;
        std::size_t numberLength;
    };

    void add(TrackRecord* record) {
        m_key.clear();
        m_keys.append(m_key, *record);
        int number = 0;
        const std::size_t length = m_keys.leadingNumber(m_key, number);
        if (length > 0 && number == record->tracknumber) {
            m_numbered.push_back({record, m_key, length});
            return;
        }
        if (length > 0) m_numbersOfNames.insert(m_key);
        addKey(record, m_key);
    }
    void addNumbered() {
        for (const Numbered& numbered : m_numbered) {
            const bool isOfName = m_numbersOfNames.contains(numbered.key);
            addKey(numbered.record,
                   std::string_view(numbered.key).substr(isOfName ? 0 : numbered.numberLength));
        }
        m_numbered = {};
    }
    void addKey(TrackRecord* record, std::string_view key) {
        m_added.push_back(record);
        m_sort.add(key);
    }

    LooseKeys m_keys;
    KeySort m_sort;
    std::string m_key;
    std::vector<TrackRecord*> m_added;
    std::vector<Numbered> m_numbered;
    std::unordered_set<std::string> m_numbersOfNames;
};

using Iterator = std::vector<TrackRecord*>::iterator;

void sortByPlainness(Iterator begin, Iterator end, const SearchParameters& parameters) {
    KeySort sort(static_cast<std::size_t>(end - begin));
    SortKey key;
    for (Iterator record = begin; record != end; ++record) {
        addPlainness(key.clear(), **record, parameters);
        sort.add(key.bytes());
    }
    const std::vector<TrackRecord*> records(begin, end);
    for (const std::uint32_t index : sort.order())
        *begin++ = records[index];
}

/// Makes groups of the records of one key.
class RunCutter {
  public:
    RunCutter(GroupOrder& order, const SearchParameters& parameters)
        : m_order(order)
        , m_parameters(parameters) {}

    void cut(std::size_t begin, std::size_t end) {
        if (!m_parameters.issametime) return join(begin, end);
        const std::size_t timed = sortByTime(begin, end);
        m_times.clear();
        for (std::size_t place = timed; place < end; ++place)
            m_times.push_back(m_order.records[place]->timev);
        std::vector<std::size_t> begins = cutByTime(m_times, m_parameters.toleranceSeconds);
        begins.push_back(m_times.size());
        for (std::size_t piece = 0; piece + 1 < begins.size(); ++piece)
            join(timed + begins[piece], timed + begins[piece + 1]);
    }

  private:
    Iterator at(std::size_t place) { return m_order.records.begin() + static_cast<std::ptrdiff_t>(place); }

    /// Those without a time, which are nobody's copies, come first; where the others begin.
    std::size_t sortByTime(std::size_t begin, std::size_t end) {
        const Iterator timed = std::stable_partition(
            at(begin), at(end), [](const TrackRecord* record) { return record->time.empty(); });
        std::stable_sort(timed, at(end),
                         [](const TrackRecord* a, const TrackRecord* b) { return a->timev < b->timev; });
        return static_cast<std::size_t>(timed - m_order.records.begin());
    }

    void join(std::size_t begin, std::size_t end) {
        if (end - begin < 2) return;
        std::fill(m_order.joined.begin() + static_cast<std::ptrdiff_t>(begin + 1),
                  m_order.joined.begin() + static_cast<std::ptrdiff_t>(end), true);
        const auto differ = [&](const TrackRecord* a, const TrackRecord* b) {
            return !isSameTag(*a, *b, m_parameters);
        };
        if (std::adjacent_find(at(begin), at(end), differ) != at(end))
            sortByPlainness(at(begin), at(end), m_parameters);
    }

    GroupOrder& m_order;
    SearchParameters m_parameters;
    std::vector<std::int32_t> m_times;
};

} // namespace

GroupOrder similarOrder(const std::vector<TrackRecord*>& records, const SearchParameters& parameters) {
    GroupOrder order;
    order.joined.resize(records.size());
    TextOrder texts(records, parameters);
    order.records = texts.order();
    RunCutter cutter(order, parameters);
    for (const KeySort::Run& run : texts.similarRuns())
        cutter.cut(run.begin, run.end);
    return order;
}

} // namespace songsweep
