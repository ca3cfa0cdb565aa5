#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <vector>

/// How pages, canvas and main frame speak: by named notifications that every receiver hears. The names stand in
/// `kit/notificationNames.h`.
namespace zdt {

class CPaintManagerUI;

/// A notification. What its arguments mean belongs to its name.
struct Notification {
    QPointer<QObject> sender; ///< Null if none was given, or once it is gone.
    QString name;
    std::intptr_t wParam = 0;
    std::intptr_t lParam = 0;
    bool async = false; ///< Whether it went through the queue.
};

/// Whoever hears notifications. One that ends withdraws itself from where it is registered.
class INotifyUI {
public:
    INotifyUI() = default;
    virtual ~INotifyUI();
    INotifyUI(const INotifyUI&) = delete;
    INotifyUI& operator=(const INotifyUI&) = delete;

    /// Called on the interface thread with every notification: compares the name, in full and with its case, with those
    /// that it knows and ignores all others.
    virtual void Notify(const Notification& message) = 0;

private:
    friend class CPaintManagerUI;
    std::vector<QPointer<CPaintManagerUI>> _hubs;
};

/// The hub of the notifications of one window. It belongs to the interface thread, on which it is made, and must
/// outlive the worker threads that use it.
class CPaintManagerUI : public QObject {
public:
    using QObject::QObject;

    /// Registers a receiver behind all others; nothing if it is registered. One that comes during a notification hears
    /// the next one first. On the interface thread alone.
    void AddNotifier(INotifyUI& receiver);

    /// Withdraws a receiver, which hears nothing more from then on, also of a notification that is being delivered;
    /// nothing if it isn't registered. On the interface thread alone.
    void RemoveNotifier(INotifyUI& receiver);

    /// Delivers a notification to all receivers in the order of their registration: at once, or if it is asynchronous
    /// through the queue of the interface thread, where it keeps its order. Each that a worker thread sends is
    /// queued, whatever it says, since a worker that waits for the interface could wait for ever. A queued one whose
    /// control is gone is dropped; one that never had a control (null) is not. A worker may name no control that can
    /// end meanwhile: see `SendNotifyFrom`.
    void SendNotify(QObject* control, const QString& name, std::intptr_t wParam = 0, std::intptr_t lParam = 0,
                    bool async = false);

    /// The same from a control that may be gone already, for workers above all, which take the pointer along from the
    /// interface thread. Always queued; dropped if the control is gone.
    void SendNotifyFrom(const QPointer<QObject>& control, const QString& name, std::intptr_t wParam = 0,
                        std::intptr_t lParam = 0);

protected:
    bool event(QEvent* event) override;

private:
    void queue(Notification message, bool hasSender);
    void deliver(const Notification& message);

    std::vector<INotifyUI*> _receivers; ///< Null for those that left while a notification is being delivered.
    std::size_t _depth = 0;             ///< Of the notifications that are being delivered, one inside the other.
};

} // namespace zdt
