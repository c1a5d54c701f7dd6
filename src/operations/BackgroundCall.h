// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaObject>
#include <QObject>
#include <QThreadPool>

#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <utility>

namespace songsweep {

/// One call at a time on another thread, whose result comes by the event loop:
///
///     m_guess.begin([paths, folder] { return guessMap(paths, folder); },
///                   [this](const std::optional<MapGuess>& guess) { offer(guess); });
///
/// For what takes tenths of a second and tells nothing on the way; what takes longer is an Operation. Its end
/// waits for the call. Main thread.
template <typename Value>
class BackgroundCall {
  public:
    using Work = std::function<Value()>;
    using Take = std::function<void(Value)>;

    BackgroundCall() = default;
    BackgroundCall(const BackgroundCall&) = delete;
    BackgroundCall& operator=(const BackgroundCall&) = delete;
    ~BackgroundCall() { drop(); }

    /// In the place of one that is still on, which is waited for.
    void begin(Work work, Take take) {
        drop();
        m_take = std::move(take);
        auto promise = std::make_shared<std::promise<Value>>();
        m_value = promise->get_future();
        QThreadPool::globalInstance()->start([this, promise, work = std::move(work), serial = m_serial] {
            Value value = work();
            // Before the value is handed over, since whoever waits for it may end this object then.
            QMetaObject::invokeMethod(
                &m_mainThread,
                [this, serial] {
                    if (serial == m_serial) finish();
                },
                Qt::QueuedConnection);
            promise->set_value(std::move(value));
        });
    }

    bool isOn() const { return m_value.valid(); }

    /// Waits for the result and gives it away, where a call is on.
    void finish() {
        if (!isOn()) return;
        ++m_serial;
        const Take take = std::exchange(m_take, {});
        take(m_value.get());
    }

    /// Waits for the result and forgets it.
    void drop() {
        ++m_serial;
        if (isOn()) static_cast<void>(m_value.get());
    }

  private:
    Take m_take;
    std::future<Value> m_value; ///< valid while a call is on
    std::uint64_t m_serial = 0; ///< of the call that is on
    QObject m_mainThread;       ///< calls for it are handled on the main thread
};

} // namespace songsweep
