#include "kit/notifications.h"

#include "support/assertion.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <algorithm>
#include <memory>
#include <utility>

namespace zdt {

namespace {

/// A notification on its way to the interface thread.
class QueuedNotification : public QEvent {
public:
    static QEvent::Type kind() {
        static const int registered = QEvent::registerEventType();
        return static_cast<QEvent::Type>(registered);
    }
    QueuedNotification(Notification theMessage, bool withSender)
        : QEvent(kind())
        , message(std::move(theMessage))
        , hasSender(withSender) {}

    Notification message;
    bool hasSender;
};

} // namespace

INotifyUI::~INotifyUI() {
    for (const QPointer<CPaintManagerUI>& hub : std::exchange(_hubs, {})) {
        if (hub)
            hub->RemoveNotifier(*this);
    }
}

void CPaintManagerUI::AddNotifier(INotifyUI& receiver) {
    ZDT_ASSERT(QThread::currentThread() == thread(), "notifications");
    if (std::find(_receivers.begin(), _receivers.end(), &receiver) != _receivers.end())
        return;
    _receivers.push_back(&receiver);
    receiver._hubs.emplace_back(this);
}

void CPaintManagerUI::RemoveNotifier(INotifyUI& receiver) {
    ZDT_ASSERT(QThread::currentThread() == thread(), "notifications");
    const auto place = std::find(_receivers.begin(), _receivers.end(), &receiver);
    if (place == _receivers.end())
        return;
    std::erase(receiver._hubs, this);
    // A delivery counts places, so they stay as they are until it ends.
    if (_depth > 0)
        *place = nullptr;
    else
        _receivers.erase(place);
}

void CPaintManagerUI::SendNotify(QObject* control, const QString& name, std::intptr_t wParam, std::intptr_t lParam,
                                 bool async) {
    const bool onInterface = QThread::currentThread() == thread();
    Notification message{control, name, wParam, lParam, async || !onInterface};
    if (message.async)
        queue(std::move(message), control != nullptr);
    else
        deliver(message);
}

void CPaintManagerUI::SendNotifyFrom(const QPointer<QObject>& control, const QString& name, std::intptr_t wParam,
                                     std::intptr_t lParam) {
    queue({control, name, wParam, lParam, true}, true);
}

void CPaintManagerUI::queue(Notification message, bool hasSender) {
    QCoreApplication::postEvent(this, std::make_unique<QueuedNotification>(std::move(message), hasSender).release());
}

bool CPaintManagerUI::event(QEvent* event) {
    if (event->type() != QueuedNotification::kind())
        return QObject::event(event);
    const auto& queued = static_cast<const QueuedNotification&>(*event);
    if (!queued.hasSender || queued.message.sender)
        deliver(queued.message);
    return true;
}

void CPaintManagerUI::deliver(const Notification& message) {
    const QPointer<CPaintManagerUI> self(this); // A receiver may end the window, and the hub with it.
    const std::size_t count = _receivers.size();
    ++_depth;
    for (std::size_t i = 0; i < count; ++i) {
        if (INotifyUI* receiver = _receivers[i])
            receiver->Notify(message);
        if (!self)
            return;
    }
    if (--_depth == 0)
        std::erase(_receivers, nullptr);
}

} // namespace zdt
