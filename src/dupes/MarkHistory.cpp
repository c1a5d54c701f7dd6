// SPDX-License-Identifier: MIT
#include "dupes/MarkHistory.h"

#include "library/RowParts.h"

#include <mutex>
#include <utility>

namespace songsweep {

namespace {

/// Beyond it the oldest step is forgotten.
constexpr std::size_t mostSteps = 100;

} // namespace

void MarkHistory::record(By by, const std::string& name, const Rows& rows, const std::function<void()>& act) {
    const std::vector<char> before = marksOf(rows);
    act();
    Step step{by, name, changesOf(rows, before)};
    if (step.changes.empty()) return;
    m_steps.resize(m_done);
    if (m_steps.size() == mostSteps) forgetFirst();
    m_steps.push_back(std::move(step));
    m_done = m_steps.size();
    m_byHand.reset();
}

std::vector<MarkHistory::Change> MarkHistory::changesOf(const Rows& rows, const std::vector<char>& before) {
    std::mutex lock;
    std::vector<Change> changes;
    inParts(rows, [&](RowGroup part) {
        std::vector<Change> ofPart;
        for (std::size_t row = part.first; row < part.end; ++row)
            if (rows[row]->checkbox != (before[row] != 0)) ofPart.push_back({rows[row], rows[row]->checkbox});
        const std::lock_guard guard(lock);
        changes.insert(changes.end(), ofPart.begin(), ofPart.end());
    });
    return changes;
}

void MarkHistory::forgetFirst() {
    follow(m_steps.front(), m_byHandBefore);
    m_steps.erase(m_steps.begin());
}

/// What the step makes of the marks made by hand.
void MarkHistory::follow(const Step& step, Records& byHand) {
    if (step.by == By::rule) return byHand.clear();
    for (const Change& change : step.changes) {
        if (change.isMarked) {
            byHand.insert(change.record);
        } else {
            byHand.erase(change.record);
        }
    }
}

int MarkHistory::marksByHand() const {
    if (m_byHand) return *m_byHand;
    Records byHand = m_byHandBefore;
    for (std::size_t step = 0; step < m_done; ++step)
        follow(m_steps[step], byHand);
    m_byHand = static_cast<int>(byHand.size());
    return *m_byHand;
}

void MarkHistory::undo() {
    if (m_done == 0) return;
    for (const Change& change : m_steps[--m_done].changes)
        change.record->checkbox = !change.isMarked;
    m_byHand.reset();
}

void MarkHistory::redo() {
    if (m_done == m_steps.size()) return;
    for (const Change& change : m_steps[m_done++].changes)
        change.record->checkbox = change.isMarked;
    m_byHand.reset();
}

void MarkHistory::clear() {
    m_steps.clear();
    m_done = 0;
    m_byHandBefore.clear();
    m_byHand.reset();
}

void MarkHistory::keepOnly(const Rows& rows) {
    Records before = std::exchange(m_byHandBefore, {});
    for (std::size_t step = 0; step < m_done; ++step)
        follow(m_steps[step], before);
    clear();
    if (before.empty()) return;
    for (const TrackRecord* const row : rows)
        if (before.contains(row)) m_byHandBefore.insert(row);
}

} // namespace songsweep
