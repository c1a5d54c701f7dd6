// SPDX-License-Identifier: MIT
#include "dupes/MarkHistory.h"

#include <utility>

namespace songsweep {

namespace {

/// Beyond it the oldest step is forgotten.
constexpr std::size_t mostSteps = 100;

std::vector<bool> marksOf(const std::vector<TrackRecord*>& rows) {
    std::vector<bool> marks;
    marks.reserve(rows.size());
    for (const TrackRecord* const row : rows)
        marks.push_back(row->checkbox);
    return marks;
}

} // namespace

void MarkHistory::record(By by, const std::string& name, const std::vector<TrackRecord*>& rows,
                         const std::function<void()>& act) {
    const std::vector<bool> before = marksOf(rows);
    act();
    Step step{by, name, {}, {}};
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row]->checkbox == before[row]) continue;
        step.changes.push_back({rows[row], by == By::hand && m_byHand.contains(rows[row])});
        if (by == By::hand) noteByHand(*rows[row]);
    }
    if (by == By::rule) step.byHandBefore = std::exchange(m_byHand, {});
    if (step.changes.empty()) return;
    m_steps.resize(m_done);
    if (m_steps.size() == mostSteps) m_steps.erase(m_steps.begin());
    m_steps.push_back(std::move(step));
    m_done = m_steps.size();
}

void MarkHistory::noteByHand(const TrackRecord& record) {
    if (record.checkbox) {
        m_byHand.insert(&record);
    } else {
        m_byHand.erase(&record);
    }
}

void MarkHistory::undo() {
    if (m_done == 0) return;
    Step& step = m_steps[--m_done];
    for (const Change& change : step.changes) {
        change.record->checkbox = !change.record->checkbox;
        if (step.by == By::rule) continue;
        m_byHand.erase(change.record);
        if (change.wasByHand) m_byHand.insert(change.record);
    }
    if (step.by == By::rule) m_byHand = step.byHandBefore;
}

void MarkHistory::redo() {
    if (m_done == m_steps.size()) return;
    const Step& step = m_steps[m_done++];
    for (const Change& change : step.changes) {
        change.record->checkbox = !change.record->checkbox;
        if (step.by == By::hand) noteByHand(*change.record);
    }
    if (step.by == By::rule) m_byHand.clear();
}

void MarkHistory::clear() {
    m_steps.clear();
    m_done = 0;
    m_byHand.clear();
}

void MarkHistory::keepOnly(const std::vector<TrackRecord*>& rows) {
    const Records before = std::exchange(m_byHand, {});
    m_steps.clear();
    m_done = 0;
    if (before.empty()) return;
    for (const TrackRecord* const row : rows)
        if (before.contains(row)) m_byHand.insert(row);
}

} // namespace songsweep
