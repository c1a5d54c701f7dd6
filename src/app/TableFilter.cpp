// SPDX-License-Identifier: MIT
#include "app/TableFilter.h"

#include "library/RowParts.h"

#include <QElapsedTimer>

#include <algorithm>

namespace songsweep {

namespace {

constexpr int sliceMilliseconds = 20;

} // namespace

TableFilter::TableFilter(QObject* parent)
    : QObject(parent) {
    connect(&m_slices, &QTimer::timeout, this, &TableFilter::goOn);
}

void TableFilter::setList(const DisplayedList& list) {
    const bool isOther = list.storage != m_all.storage;
    const bool isSame = !isOther && list.rows == m_all.rows;
    m_all = list;
    if (isOther && m_filter.isOn()) {
        m_filter = {};
        Q_EMIT dropped();
    }
    if (!m_filter.isOn()) {
        m_slices.stop();
        m_pass.reset();
        m_isApplied = false;
    } else if (m_pass) {
        setFilter(m_filter); // its rows may be others now
    } else if (!isSame) {
        apply();
    }
}

void TableFilter::setFilter(const RowFilter& filter) {
    m_filter = filter;
    m_slices.stop();
    m_pass.reset();
    if (filter.isOn()) {
        m_pass = std::make_unique<FilterPass>(m_all.rows, filter);
        m_slices.start(0);
    } else if (m_isApplied) {
        m_isApplied = false;
        Q_EMIT changed();
    }
}

void TableFilter::goOn() {
    QElapsedTimer timer;
    timer.start();
    while (!m_pass->step())
        if (timer.elapsed() >= sliceMilliseconds) return;
    m_slices.stop();
    m_groups = m_pass->groups();
    m_pass.reset();
    apply();
    Q_EMIT changed();
}

void TableFilter::apply() {
    std::vector<char> isShown(m_all.rows.size(), 0);
    inParts(m_all.rows, [&](RowGroup part) {
        for (std::size_t row = part.first; row < part.end; ++row) {
            const auto group = static_cast<std::size_t>(m_all.rows[row]->gid);
            isShown[row] = group < m_groups.size() && m_groups[group] ? 1 : 0;
        }
    });
    const auto count = static_cast<std::size_t>(std::count(isShown.begin(), isShown.end(), 1));
    m_isApplied = true;
    m_shown = {{}, m_all.storage};
    m_shown.rows.reserve(count);
    m_rows.clear();
    m_rows.reserve(count);
    for (std::size_t row = 0; row < m_all.rows.size(); ++row) {
        if (isShown[row] == 0) continue;
        m_shown.rows.push_back(m_all.rows[row]);
        m_rows.push_back(static_cast<int>(row));
    }
}

int TableFilter::rowOf(int shownRow) const {
    if (!m_isApplied || shownRow < 0) return shownRow;
    return m_rows.at(static_cast<std::size_t>(shownRow));
}

} // namespace songsweep
