#include "kit/notifications.h"

#include "common/fixtures.h"
#include "kit/notificationNames.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QThread>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace zdt {
namespace {

/// Writes down what it hears, and then does as it was told.
class Listener : public INotifyUI {
public:
    explicit Listener(std::function<void(const Notification&)> act = {})
        : _act(std::move(act)) {}
    void Notify(const Notification& message) override {
        heard.push_back(message);
        thread = QThread::currentThread();
        if (const auto act = _act) // A copy, for an act may end this listener.
            act(message);
    }
    [[nodiscard]] std::string names() const {
        std::string all;
        for (const Notification& message : heard)
            all += message.name.toStdString() + " ";
        return all;
    }

    std::vector<Notification> heard;
    QThread* thread = nullptr;

private:
    std::function<void(const Notification&)> _act;
};

class Notifications : public testing::Test {
protected:
    void SetUp() override {
        if (QCoreApplication::instance() == nullptr)
            _application = std::make_unique<QCoreApplication>(_count, _arguments);
    }
    static void deliverQueued() { QCoreApplication::sendPostedEvents(); }

private:
    int _count = 1;
    char _name[4] = "kit";
    char* _arguments[2] = {_name, nullptr};
    std::unique_ptr<QCoreApplication> _application;
};

TEST_F(Notifications, EveryReceiverHearsEveryNameAtOnce) {
    CPaintManagerUI hub;
    Listener first;
    Listener second;
    QObject control;
    hub.SendNotify(&control, notify::Add_Reset);
    hub.AddNotifier(first);
    hub.AddNotifier(first);
    hub.AddNotifier(second);
    hub.SendNotify(&control, notify::Nodfiy_SendMsg_Select_Item, 7, -1);
    ASSERT_EQ(first.heard.size(), 1U);
    ASSERT_EQ(second.heard.size(), 1U);
    const Notification& message = second.heard[0];
    EXPECT_EQ(message.sender, &control);
    EXPECT_EQ(message.name, "Nodfiy_SendMsg_Select_Item");
    EXPECT_EQ(message.wParam, 7);
    EXPECT_EQ(message.lParam, -1);
    EXPECT_FALSE(message.async);
    hub.RemoveNotifier(first);
    hub.RemoveNotifier(first);
    hub.SendNotify(nullptr, "no such name");
    EXPECT_EQ(first.heard.size(), 1U);
    EXPECT_EQ(second.heard.size(), 2U);
}

TEST_F(Notifications, NameOfAnotherCaseIsNotTheName) {
    CPaintManagerUI hub;
    int acted = 0;
    Listener receiver([&acted](const Notification& message) { acted += message.name == notify::Notify_ReloadDataMsg; });
    hub.AddNotifier(receiver);
    for (const char* name : {"notify_reloaddatamsg", "Notify_ReloadDataMsg ", "Notify_ReloadData", ""})
        hub.SendNotify(nullptr, name);
    EXPECT_EQ(acted, 0);
    hub.SendNotify(nullptr, "Notify_ReloadDataMsg");
    EXPECT_EQ(acted, 1);
}

TEST_F(Notifications, QueuedOnesComeLaterAndInOrder) {
    CPaintManagerUI hub;
    Listener receiver;
    hub.AddNotifier(receiver);
    hub.SendNotify(nullptr, "a", 0, 0, true);
    hub.SendNotify(nullptr, "b", 0, 0, true);
    hub.SendNotify(nullptr, "now");
    EXPECT_EQ(receiver.names(), "now ");
    deliverQueued();
    EXPECT_EQ(receiver.names(), "now a b ");
    EXPECT_TRUE(receiver.heard[1].async);
}

TEST_F(Notifications, QueuedOneOfAControlThatIsGoneIsDropped) {
    CPaintManagerUI hub;
    Listener receiver;
    hub.AddNotifier(receiver);
    auto control = std::make_unique<QObject>();
    const QPointer<QObject> pointer(control.get());
    hub.SendNotify(control.get(), "gone", 0, 0, true);
    hub.SendNotifyFrom(pointer, "gone too");
    hub.SendNotify(nullptr, "without", 0, 0, true);
    control.reset();
    hub.SendNotifyFrom(pointer, "late");
    deliverQueued();
    EXPECT_EQ(receiver.names(), "without ");
}

TEST_F(Notifications, ReceiversThatLeaveDuringANotificationHearNoMore) {
    CPaintManagerUI hub;
    Listener last;
    Listener middle;
    Listener first([&](const Notification&) {
        hub.RemoveNotifier(first);
        hub.RemoveNotifier(middle);
    });
    hub.AddNotifier(first);
    hub.AddNotifier(middle);
    hub.AddNotifier(last);
    hub.SendNotify(nullptr, "a");
    hub.SendNotify(nullptr, "b");
    EXPECT_EQ(first.names(), "a ");
    EXPECT_EQ(middle.names(), "");
    EXPECT_EQ(last.names(), "a b ");
}

TEST_F(Notifications, ReceiversThatComeDuringANotificationHearTheNext) {
    CPaintManagerUI hub;
    std::vector<std::unique_ptr<Listener>> added;
    Listener first([&](const Notification&) {
        added.push_back(std::make_unique<Listener>());
        hub.AddNotifier(*added.back());
        // One that leaves and comes back is a new one.
        hub.RemoveNotifier(first);
        hub.AddNotifier(first);
    });
    hub.AddNotifier(first);
    hub.SendNotify(nullptr, "a");
    EXPECT_EQ(first.names(), "a ");
    EXPECT_EQ(added.at(0)->names(), "");
    hub.SendNotify(nullptr, "b");
    EXPECT_EQ(first.names(), "a b ");
    EXPECT_EQ(added.at(0)->names(), "b ");
}

TEST_F(Notifications, NotificationsInsideNotificationsKeepTheirReceivers) {
    CPaintManagerUI hub;
    Listener last;
    auto middle = std::make_unique<Listener>();
    Listener first([&](const Notification& message) {
        if (message.name == "outer") {
            hub.SendNotify(nullptr, "inner");
            middle.reset();
        }
    });
    hub.AddNotifier(first);
    hub.AddNotifier(*middle);
    hub.AddNotifier(last);
    hub.SendNotify(nullptr, "outer");
    EXPECT_EQ(first.names(), "outer inner ");
    EXPECT_EQ(last.names(), "inner outer ");
    hub.SendNotify(nullptr, "after");
    EXPECT_EQ(last.names(), "inner outer after ");
}

TEST_F(Notifications, WhoeverEndsInTheMiddleIsForgotten) {
    CPaintManagerUI hub;
    auto control = std::make_unique<QObject>();
    auto self = std::unique_ptr<Listener>();
    self = std::make_unique<Listener>([&](const Notification&) {
        self.reset();
        control.reset();
    });
    Listener last;
    hub.AddNotifier(*self);
    hub.AddNotifier(last);
    hub.SendNotify(control.get(), "a");
    ASSERT_EQ(last.names(), "a ");
    EXPECT_TRUE(last.heard[0].sender.isNull());
}

TEST_F(Notifications, HubThatEndsWhileItDeliversTellsNobodyMore) {
    for (const bool async : {false, true}) {
        auto hub = std::make_unique<CPaintManagerUI>();
        Listener closing([&](const Notification&) { hub.reset(); });
        Listener behind;
        hub->AddNotifier(closing);
        hub->AddNotifier(behind);
        hub->SendNotify(nullptr, "close", 0, 0, async);
        if (async)
            hub->SendNotify(nullptr, "pending", 0, 0, true);
        deliverQueued();
        EXPECT_EQ(closing.names(), "close ");
        EXPECT_EQ(behind.names(), "");
    }
}

TEST_F(Notifications, WorkersAreHeardOnTheInterfaceThread) {
    constexpr std::intptr_t workers = 4;
    constexpr std::intptr_t each = 500;
    CPaintManagerUI hub;
    Listener receiver;
    hub.AddNotifier(receiver);
    QObject control;
    auto gone = std::make_unique<QObject>();
    const QPointer<QObject> leaving(gone.get());
    std::vector<std::thread> threads;
    for (std::intptr_t worker = 0; worker < workers; ++worker)
        threads.emplace_back([&hub, &control, leaving, worker] {
            for (std::intptr_t i = 0; i < each; ++i) {
                hub.SendNotify(&control, notify::Notify_Drag_File_Simple_9PNG, worker, i, i % 2 == 0);
                hub.SendNotifyFrom(leaving, notify::Notify_Drag_File_Simple);
            }
        });
    // The control goes while the workers send; nothing is delivered before the interface asks for it.
    gone.reset();
    EXPECT_TRUE(receiver.heard.empty());
    for (std::thread& thread : threads)
        thread.join();
    deliverQueued();
    ASSERT_EQ(receiver.heard.size(), static_cast<std::size_t>(workers * each));
    EXPECT_EQ(receiver.thread, QThread::currentThread());
    std::vector<std::intptr_t> next(workers, 0);
    for (const Notification& message : receiver.heard) {
        EXPECT_TRUE(message.async);
        EXPECT_EQ(message.lParam, next.at(static_cast<std::size_t>(message.wParam))++);
    }
}

TEST(NotificationNames, AreSpelledAsTheirConstants) {
    const std::string header = test::readFile(ZDT_SOURCE_DIR "/src/kit/notificationNames.h");
    const QRegularExpression constant(R"re(constexpr const char\* (\w+) =\s+"([^"]*)";)re");
    QStringList names;
    auto matches = constant.globalMatch(QString::fromStdString(header));
    while (matches.hasNext()) {
        const auto match = matches.next();
        names.append(match.captured(2));
        EXPECT_EQ(match.captured(1), match.captured(2) == "return" ? "returnKey" : match.captured(2));
    }
    EXPECT_EQ(names.size(), 7 + 4 + 79 + 6);
    EXPECT_EQ(names.removeDuplicates(), 0);
}

} // namespace
} // namespace zdt
