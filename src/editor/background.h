#pragma once

#include "support/assertion.h"

#include <QObject>

#include <functional>
#include <future>
#include <utility>

namespace zdt {

/// One piece of work at a time on a thread of its own, whose result is handed over on the interface thread. The work
/// touches no widget and no theme, and must not throw.
template <typename Result>
class Background {
public:
    using Work = std::function<Result()>;
    using Deliver = std::function<void(Result)>;

    Background() = default;
    /// Waits for work that is under way and drops its result.
    ~Background() = default;
    Background(const Background&) = delete;
    Background& operator=(const Background&) = delete;

    [[nodiscard]] bool isBusy() const { return _future.valid(); }

    /// Begins a work. None may be under way.
    void start(Work work, Deliver deliver) {
        ZDT_ASSERT(!isBusy(), "background");
        _deliver = std::move(deliver);
        ++_serial;
        _future = std::async(std::launch::async, [this, serial = _serial, work = std::move(work)] {
                      Result result = work();
                      QMetaObject::invokeMethod(
                          &_receiver, [this, serial] { collect(serial); }, Qt::QueuedConnection);
                      return result;
                  }).share();
    }

    /// What waits for the work that is under way, on another thread than the interface's.
    [[nodiscard]] std::function<void()> waiter() const {
        return [future = _future] {
            if (future.valid())
                future.wait();
        };
    }

    /// Waits for the work that is under way, and delivers its result now.
    void finish() {
        if (!_future.valid())
            return;
        const std::shared_future<Result> future = std::exchange(_future, {});
        const Deliver deliver = std::exchange(_deliver, nullptr);
        deliver(future.get());
    }

private:
    void collect(unsigned serial) {
        if (serial == _serial)
            finish();
    }

    QObject _receiver; ///< What is queued for it goes with it; outlives the future, which waits.
    Deliver _deliver;
    unsigned _serial = 0;
    std::shared_future<Result> _future;
};

} // namespace zdt
