// The hot key of a Wayland session, asked of a portal that the test plays itself, on a bus of its own.
#include "platform/qt/portal_hot_key.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <optional>
#include <vector>

namespace zifferon::test {
namespace {

const QString service = "org.freedesktop.portal.Desktop";
const QString root = "/org/freedesktop/portal/desktop";
const QString shortcuts = "org.freedesktop.portal.GlobalShortcuts";

bool comesTrue(const std::function<bool()>& condition) {
    const QDeadlineTimer end(5000);
    while (!condition() && !end.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    }
    return condition();
}

class FakePortal : public QDBusVirtualObject {
  public:
    FakePortal() {
        bus_.registerVirtualObject(root, this, QDBusConnection::SubPath);
        bus_.registerService(service);
    }
    ~FakePortal() override {
        bus_.unregisterService(service);
        bus_.unregisterObject(root, QDBusConnection::UnregisterTree);
    }

    void emitSignal(const QString& path, const QString& interface, const QString& name,
                    const QVariantList& arguments) {
        auto signal = QDBusMessage::createSignal(path, interface, name);
        signal.setArguments(arguments);
        bus_.send(signal);
    }

    void activate(const QString& session, const QString& id) {
        emitSignal(root, shortcuts, "Activated",
                   {QVariant::fromValue(QDBusObjectPath(session)), id, qulonglong{1}, QVariantMap()});
    }

    // What has been sent is with the bus when this returns.
    void flush() { bus_.interface()->registeredServiceNames(); }

    void answerNow() {
        holdsAnswers = false;
        for (const auto& answer : std::exchange(held_, {})) answer();
    }

    uint refusesSession = 0, refusesShortcut = 0;
    bool holdsAnswers = false;
    int requests = 0;
    QStringList sessions;  // open ones
    QString boundSession, shortcut;
    QVariantMap properties;

  private:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
        const QString member = message.member();
        if (member == "CreateSession" && message.signature() == "a{sv}") {
            createSession(message);
        } else if (member == "BindShortcuts" && message.signature() == "oa(sa{sv})sa{sv}") {
            bindShortcuts(message);
        } else if (member == "Close" && message.interface() == "org.freedesktop.portal.Session") {
            sessions.removeAll(message.path());
            bus_.send(message.createReply());
        } else {
            return false;
        }
        return true;
    }

    void createSession(const QDBusMessage& message) {
        const auto options = qdbus_cast<QVariantMap>(message.arguments().at(0));
        const QString session = pathFor(message, "session", options.value("session_handle_token"));
        answer(message, options, refusesSession, {{"session_handle", session}},
               [this, session] { sessions.append(session); });
    }

    void bindShortcuts(const QDBusMessage& message) {
        const auto list = message.arguments().at(1).value<QDBusArgument>();
        list.beginArray();
        list.beginStructure();
        list >> shortcut >> properties;
        list.endStructure();
        list.endArray();
        const auto session = message.arguments().at(0).value<QDBusObjectPath>().path();
        answer(message, qdbus_cast<QVariantMap>(message.arguments().at(3)), refusesShortcut, {},
               [this, session] { boundSession = session; });
    }

    // The answer comes before the reply to the call: who listens only after the reply misses it.
    void answer(const QDBusMessage& message, const QVariantMap& options, uint refusal,
                const QVariantMap& results, const std::function<void()>& granted) {
        ++requests;
        const QString request = pathFor(message, "request", options.value("handle_token"));
        const auto respond = [=, this] {
            if (refusal == 0) granted();
            emitSignal(request, "org.freedesktop.portal.Request", "Response", {refusal, results});
        };
        if (holdsAnswers) {
            held_.push_back(respond);
        } else {
            respond();
        }
        bus_.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
    }

    static QString pathFor(const QDBusMessage& message, const QString& kind, const QVariant& token) {
        const QString client = message.service().mid(1).replace('.', '_');
        return root + '/' + kind + '/' + client + '/' + token.toString();
    }

    QDBusConnection bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal");
    std::vector<std::function<void()>> held_;
};

class PortalHotKeyTest : public ::testing::Test {
  protected:
    PortalHotKeyTest() {
        complaints().clear();
        qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { complaints() += text; });
    }
    ~PortalHotKeyTest() override {
        qInstallMessageHandler(nullptr);
        EXPECT_EQ(complaints().join('\n').toStdString(), "");
    }

    void grab() {
        hotKey.grab();
        ASSERT_TRUE(comesTrue([this] { return !portal->boundSession.isEmpty(); }));
        settle();
    }

    // All that the portal has sent has arrived and is dealt with, and so are the errors of the bus.
    void settle() {
        if (portal) portal->flush();
        QDBusConnection::sessionBus().interface()->registeredServiceNames();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void press(const QString& session, const QString& id) {
        portal->activate(session, id);
        settle();
    }
    void press() { press(portal->boundSession, portal->shortcut); }

    static QStringList& complaints() {
        static QStringList texts;
        return texts;
    }

    std::optional<FakePortal> portal{std::in_place};
    int presses = 0;
    PortalHotKey hotKey{[this] { ++presses; }};
};

TEST_F(PortalHotKeyTest, DeliversItsOwnKeyAndNoOther) {
    grab();
    EXPECT_EQ(portal->properties.value("preferred_trigger").toString(), "CTRL+KP_Add");
    EXPECT_NE(portal->properties.value("description").toString(), "");
    hotKey.grab();  // once is enough
    press();
    press();
    EXPECT_EQ(presses, 2);
    press(portal->boundSession + "0", portal->shortcut);
    press(portal->boundSession, "another-key");
    EXPECT_EQ(presses, 2);
    EXPECT_EQ(portal->requests, 2);
}

TEST_F(PortalHotKeyTest, AfterReleaseNothingIsDeliveredUntilTheNextGrab) {
    grab();
    const QString first = portal->boundSession;
    portal->activate(first, portal->shortcut);  // under way when the key is released
    portal->flush();
    hotKey.release();
    EXPECT_TRUE(comesTrue([this] { return portal->sessions.isEmpty(); }));
    press();
    EXPECT_EQ(presses, 0);

    portal->boundSession.clear();
    grab();
    press(first, portal->shortcut);
    EXPECT_EQ(presses, 0);
    press();
    EXPECT_EQ(presses, 1);
}

TEST_F(PortalHotKeyTest, ReleaseBeforeTheAnswerLeavesNoSessionOpen) {
    portal->holdsAnswers = true;
    hotKey.grab();
    ASSERT_TRUE(comesTrue([this] { return portal->requests == 1; }));
    hotKey.release();
    hotKey.grab();  // a session of its own, which the end of the first must not take along
    ASSERT_TRUE(comesTrue([this] { return portal->requests == 2; }));
    portal->answerNow();
    EXPECT_EQ(portal->sessions.size(), 2);
    EXPECT_TRUE(comesTrue([this] { return portal->sessions.size() == 1 && portal->requests == 3; }));
    EXPECT_EQ(QStringList(portal->boundSession), portal->sessions);
    settle();
    press();
    EXPECT_EQ(presses, 1);

    portal->boundSession.clear();
    portal->holdsAnswers = true;
    hotKey.release();
    hotKey.grab();
    ASSERT_TRUE(comesTrue([this] { return portal->requests == 4; }));
    portal->answerNow();
    portal->holdsAnswers = true;  // the shortcut's answer is still out when the key is released
    ASSERT_TRUE(comesTrue([this] { return portal->requests == 5; }));
    hotKey.release();
    portal->answerNow();
    EXPECT_TRUE(comesTrue([this] { return portal->sessions.isEmpty(); }));
    settle();
}

TEST_F(PortalHotKeyTest, RefusalsAreSilentAndLeaveNoSessionOpen) {
    portal->refusesSession = 2;
    hotKey.grab();
    ASSERT_TRUE(comesTrue([this] { return portal->requests == 1; }));
    settle();
    EXPECT_EQ(portal->requests, 1);

    portal->refusesSession = 0;
    portal->refusesShortcut = 1;
    hotKey.grab();
    ASSERT_TRUE(comesTrue([this] { return portal->requests == 3 && portal->sessions.isEmpty(); }));
    settle();

    portal->refusesShortcut = 0;
    grab();
    press();
    EXPECT_EQ(presses, 1);
}

TEST_F(PortalHotKeyTest, SessionClosedByThePortalIsSilentAndCanBeAskedForAgain) {
    grab();
    const QString first = std::exchange(portal->boundSession, QString());
    portal->emitSignal(first, "org.freedesktop.portal.Session", "Closed", {QVariantMap()});
    settle();
    press(first, portal->shortcut);
    EXPECT_EQ(presses, 0);
    grab();
    press();
    EXPECT_EQ(presses, 1);
}

TEST_F(PortalHotKeyTest, WithoutAPortalThereIsNoKey) {
    portal.reset();
    hotKey.grab();
    settle();
    hotKey.release();
    settle();
    portal.emplace();
    grab();
    press();
    EXPECT_EQ(presses, 1);
}

}  // namespace
}  // namespace zifferon::test

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
