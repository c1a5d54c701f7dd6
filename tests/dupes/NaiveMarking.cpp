// SPDX-License-Identifier: MIT
#include "dupes/NaiveMarking.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

namespace songsweep::test {

namespace {

std::int64_t number(Text text) {
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    return std::clamp<long long>(value, std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max());
}

std::string upperExtension(const std::string& path) {
    std::string name = path;
    if (name.find('/') != std::string::npos) name = name.substr(name.find_last_of('/') + 1);
    if (name.find('.') == std::string::npos) return "";
    name = name.substr(name.find_last_of('.') + 1);
    for (char& c : name)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return name;
}

bool lies(const std::string& folder, const std::string& path) {
    if (path == folder) return true;
    return !folder.empty() && path.rfind(folder + "/", 0) == 0;
}

/// One rule with what it remembers of the open group.
class Machine {
  public:
    Machine(const std::vector<TrackRecord*>& rows, const MarkChoice& choice)
        : m_rows(rows)
        , m_choice(choice)
        , m_type(static_cast<int>(choice.markType))
        , m_marks(rows.size()) {}

    std::vector<bool> run() {
        const int count = static_cast<int>(m_rows.size());
        for (int i = 0; i <= count; ++i) {
            if (i == count || m_rows[i]->gid != m_group) {
                finishGroup(i);
                if (i == count) break;
                m_group = m_rows[i]->gid;
                m_start = i;
                m_kept = -1;
                m_firstLive = true;
                m_best = isDate() ? 0 : -1;
            }
            chooseKept(i);
        }
        return m_marks;
    }

  private:
    bool isDate() const { return m_type == 6 || m_type == 7; }

    std::int64_t value(const TrackRecord& record) const {
        const int type = m_type;
        if (type == 0 || type == 1) return number(record.bitrate);
        if (type == 2 || type == 3) return record.timev;
        if (type == 4 || type == 5) return number(record.size);
        if (isDate()) return record.dateaddedv;
        if (type == 10 || type == 11) return record.rating;
        return number(record.playcount);
    }

    bool keepsHighest() const {
        const int type = m_type;
        return type == 0 || type == 2 || type == 4 || type == 7 || type == 10 || type == 12;
    }
    bool keepsLowest() const {
        const int type = m_type;
        return type == 1 || type == 3 || type == 5 || type == 6 || type == 11 || type == 13;
    }

    bool becomesKept(const TrackRecord& record) {
        if (m_type == 8) return record.hasartwork;
        if (m_type == 9) return !record.hasartwork;
        if (m_type == 100) return upperExtension(record.location.string()) != m_choice.text;
        if (m_type == 200) return !lies(m_choice.text, record.location.string());
        bool better = false;
        if (keepsHighest()) better = value(record) > m_best;
        if (keepsLowest()) {
            const bool unset = isDate() ? m_best == 0 : m_best < 0;
            better = unset || value(record) < m_best;
        }
        if (better) m_best = value(record);
        return better;
    }

    void chooseKept(int i) {
        const TrackRecord& record = *m_rows[i];
        if (m_choice.exceptOne && i == m_start) m_kept = i;
        if (record.isdead) return;
        if (m_firstLive) {
            m_firstLive = false;
            m_kept = i;
        }
        if (becomesKept(record)) m_kept = i;
    }

    bool test(const TrackRecord& record) const {
        const bool all = m_choice.exceptOne;
        if (m_type == 8) return all || !record.hasartwork;
        if (m_type == 9) return all || record.hasartwork;
        if (m_type == 100) return all || upperExtension(record.location.string()) == m_choice.text;
        if (m_type == 200) return all || lies(m_choice.text, record.location.string());
        if (keepsHighest()) return all ? !(value(record) > m_best) : value(record) < m_best;
        if (keepsLowest()) return all ? !(value(record) < m_best) : value(record) > m_best;
        return false;
    }

    void finishGroup(int end) {
        for (int i = m_start; i < end; ++i)
            m_marks[i] = m_rows[i]->isdead || test(*m_rows[i]);
        if (m_choice.exceptOne && m_kept >= 0) m_marks[m_kept] = false;
    }

    const std::vector<TrackRecord*>& m_rows;
    MarkChoice m_choice;
    int m_type;
    std::vector<bool> m_marks;
    int m_group = -1;
    int m_start = 0;
    int m_kept = -1;
    bool m_firstLive = true;
    std::int64_t m_best = -1;
};

} // namespace

std::vector<bool> naiveMarks(const std::vector<TrackRecord*>& rows, const MarkChoice& choice) {
    return Machine(rows, choice).run();
}

} // namespace songsweep::test
