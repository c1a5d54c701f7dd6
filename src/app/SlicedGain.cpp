// SPDX-License-Identifier: MIT
#include "app/SlicedGain.h"

#include <QElapsedTimer>

namespace songsweep {

namespace {

constexpr int sliceMilliseconds = 8;
/// Fewer are counted in one slice.
constexpr std::size_t manyRows = 20'000;

} // namespace

SlicedGain::SlicedGain(QObject* parent)
    : QObject(parent) {
    connect(&m_slices, &QTimer::timeout, this, &SlicedGain::goOn);
}

void SlicedGain::count(const std::vector<TrackRecord*>& rows) {
    m_pass = std::make_unique<GainPass>(rows);
    if (rows.size() < manyRows) return goOn();
    m_slices.start(0);
}

void SlicedGain::goOn() {
    QElapsedTimer timer;
    timer.start();
    while (!m_pass->step()) {
        if (timer.elapsed() < sliceMilliseconds) continue;
        m_slices.start(0);
        return;
    }
    m_slices.stop();
    Q_EMIT counted(m_pass->gain());
}

} // namespace songsweep
