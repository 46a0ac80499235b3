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
#include <utility>

namespace zifferon::test {
namespace {

const QString service = "org.freedesktop.portal.Desktop", root = "/org/freedesktop/portal/desktop";
const QString shortcuts = "org.freedesktop.portal.GlobalShortcuts",
              session = "org.freedesktop.portal.Session";

void waitFor(const std::function<bool()>& condition) {
    const QDeadlineTimer end(5000);
    while (!condition() && !end.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    }
    ASSERT_TRUE(condition());
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

    void tell(const QString& path, const QString& interface, const QString& name,
              const QVariantList& arguments) {
        auto signal = QDBusMessage::createSignal(path, interface, name);
        signal.setArguments(arguments);
        bus_.send(signal);
        bus_.interface()->registeredServiceNames();  // when it answers, the bus has the signal
    }

    void press(const QString& inSession, const QString& id) {
        tell(root, shortcuts, "Activated",
             {QVariant::fromValue(QDBusObjectPath(inSession)), id, qulonglong{1}, QVariantMap()});
    }

    // Answers the request that has waited longest, when it has come.
    void answer(uint refusal = 0) {
        waitFor([this] { return !requests.empty(); });
        const auto [path, results] = requests.takeFirst();
        const QString made = results.value("session_handle").toString();
        if (refusal == 0 && !made.isEmpty()) sessions += made;
        tell(path, "org.freedesktop.portal.Request", "Response", {refusal, results});
    }

    bool answersAtOnce = true;
    QList<std::pair<QString, QVariantMap>> requests;  // without answer yet: path, and what is granted
    QStringList sessions;                             // open ones
    QString boundSession, shortcut;
    QVariantMap properties;

  private:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
        const QString call = message.interface() + ' ' + message.member() + ' ' + message.signature();
        if (call == shortcuts + " CreateSession a{sv}") {
            request(message, {{"session_handle", pathFor(message, "session", "session_handle_token")}});
        } else if (call == shortcuts + " BindShortcuts oa(sa{sv})sa{sv}") {
            boundSession = message.arguments().at(0).value<QDBusObjectPath>().path();
            const auto list = message.arguments().at(1).value<QDBusArgument>();
            list.beginArray();
            list.beginStructure();
            list >> shortcut >> properties;
            list.endStructure();
            list.endArray();
            request(message, {});
        } else if (call == session + " Close ") {
            sessions.removeAll(message.path());
            bus_.send(message.createReply());
        }
        return true;
    }

    // An answer at once comes before the reply to the call: who listens only after the reply misses it.
    void request(const QDBusMessage& message, const QVariantMap& results) {
        const QString path = pathFor(message, "request", "handle_token");
        requests.append({path, results});
        if (answersAtOnce) answer();
        bus_.send(message.createReply(QVariant::fromValue(QDBusObjectPath(path))));
    }

    // Made of the caller and the token in the options, which come last.
    static QString pathFor(const QDBusMessage& message, const QString& kind, const QString& token) {
        const QString client = message.service().mid(1).replace('.', '_');
        const auto options = qdbus_cast<QVariantMap>(message.arguments().last());
        return root + '/' + kind + '/' + client + '/' + options.value(token).toString();
    }

    QDBusConnection bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "portal");
};

QStringList complaints;

class PortalHotKeyTest : public ::testing::Test {
  protected:
    PortalHotKeyTest() {
        qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { complaints += text; });
    }
    ~PortalHotKeyTest() override {
        settle();
        qInstallMessageHandler(nullptr);
        EXPECT_EQ(std::exchange(complaints, {}).join('\n').toStdString(), "");
    }

    void grab() {
        portal->boundSession.clear();
        hotKey.grab();
        waitFor([this] { return !portal->boundSession.isEmpty(); });
        settle();
    }

    void waitForSessions(int count) {
        waitFor([&] { return portal->sessions.size() == count; });
    }

    // All that the portal has sent has arrived and is dealt with, and so are the errors of the bus.
    void settle() {
        QDBusConnection::sessionBus().interface()->registeredServiceNames();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // How often the program is told of a press.
    int toldOf(const QString& inSession, const QString& id) {
        presses = 0;
        portal->press(inSession, id);
        settle();
        return presses;
    }
    int toldOfPress() { return toldOf(portal->boundSession, portal->shortcut); }

    std::optional<FakePortal> portal{std::in_place};
    int presses = 0;
    PortalHotKey hotKey{[this] { ++presses; }};
};

TEST_F(PortalHotKeyTest, DeliversItsOwnKeyAndNoOtherUntilItIsReleased) {
    grab();
    EXPECT_EQ(portal->properties.value("preferred_trigger").toString(), "CTRL+KP_Add");
    EXPECT_NE(portal->properties.value("description").toString(), "");
    hotKey.grab();  // once is enough
    EXPECT_EQ(toldOfPress(), 1);
    EXPECT_EQ(toldOfPress(), 1);
    EXPECT_EQ(portal->sessions.size(), 1);
    const QString first = portal->boundSession;
    EXPECT_EQ(toldOf(first + "0", portal->shortcut), 0);
    EXPECT_EQ(toldOf(first, "another-key"), 0);

    portal->press(first, portal->shortcut);  // under way when the key is released
    hotKey.release();
    waitForSessions(0);
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(toldOfPress(), 0);
    grab();
    EXPECT_EQ(toldOf(first, portal->shortcut), 0);
    EXPECT_EQ(toldOfPress(), 1);

    portal->tell(portal->boundSession, session, "Closed", {QVariantMap()});
    settle();
    EXPECT_EQ(toldOfPress(), 0);
    grab();
    EXPECT_EQ(toldOfPress(), 1);
}

TEST_F(PortalHotKeyTest, ReleaseBeforeTheAnswerLeavesNoSessionOpen) {
    portal->answersAtOnce = false;
    hotKey.grab();
    hotKey.release();
    hotKey.grab();  // a session of its own, which the end of the first must not take along
    for (int request = 0; request < 3; ++request) portal->answer();
    waitForSessions(1);
    EXPECT_EQ(QStringList(portal->boundSession), portal->sessions);
    settle();
    EXPECT_EQ(toldOfPress(), 1);

    hotKey.release();
    hotKey.grab();
    portal->answer();
    waitFor([this] { return !portal->requests.empty(); });
    hotKey.release();  // while the shortcut's answer is still out
    portal->answer();
    waitForSessions(0);
}

TEST_F(PortalHotKeyTest, WithoutAPortalOrItsGrantThereIsNoKeyAndNoSessionOpen) {
    portal.reset();
    hotKey.grab();
    settle();
    hotKey.release();
    settle();

    portal.emplace();
    portal->answersAtOnce = false;
    hotKey.grab();
    portal->answer(2);
    settle();
    EXPECT_TRUE(portal->requests.empty());
    hotKey.grab();
    portal->answer();
    portal->answer(1);
    waitForSessions(0);
    settle();

    portal->answersAtOnce = true;
    grab();
    EXPECT_EQ(toldOfPress(), 1);
}

}  // namespace
}  // namespace zifferon::test

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
