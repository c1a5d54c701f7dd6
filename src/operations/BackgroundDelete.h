// SPDX-License-Identifier: MIT
#pragma once

#include <QThreadPool>

#include <memory>
#include <utility>

namespace songsweep {

/// Deletes on another thread, for owners that many wait for: a million small parts take tenths of a second to
/// go.
///
///     std::shared_ptr<Report> report(new Report, BackgroundDelete());
///
/// What is deleted refers to nothing that its owner keeps. Any thread; the end of the program waits for it.
struct BackgroundDelete {
    template <typename Value>
    void operator()(Value* value) const {
        QThreadPool::globalInstance()->start([value] { delete value; });
    }
};

/// The same for a value that somebody holds.
template <typename Value>
void deleteInBackground(Value value) {
    const std::unique_ptr<Value, BackgroundDelete> last(new Value(std::move(value)));
}

} // namespace songsweep
