#include "platform/qt/portal_hot_key.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QUuid>
#include <utility>

namespace zifferon {

// As the portal takes it: (sa{sv}).
struct PortalShortcut {
    QString id;
    QVariantMap properties;
};

// Found by the bus through the type's namespace; the reading one is asked for as well.
QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcut& shortcut) {
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcut& shortcut) {
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

namespace {

const char* const portalPath = "/org/freedesktop/portal/desktop";
const char* const shortcutsInterface = "org.freedesktop.portal.GlobalShortcuts";
const char* const sessionInterface = "org.freedesktop.portal.Session";
const char* const shortcutId = "show-or-hide";

// The name of a request or a session: new each time, and nothing that another program could guess.
QString newToken() { return "zifferon_" + QUuid::createUuid().toString(QUuid::Id128); }

// Sends and does not wait. The reply itself is of no use: what counts comes as a signal, and a call that
// fails brings none.
void call(const QString& path, const char* interface, const char* method, const QVariantList& arguments) {
    auto message = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", path, interface, method);
    message.setArguments(arguments);
    QDBusConnection::sessionBus().asyncCall(message);
}

}  // namespace

// One session of the portal, from the request for it to its end; deletes itself then.
class PortalSession : public QObject {
    Q_OBJECT

  public:
    explicit PortalSession(std::function<void()> pressed)
        : QObject(QCoreApplication::instance()), pressed_(std::move(pressed)) {}

    void open() {
        const QString token = listenForAnswer(SLOT(opened(uint, QVariantMap)));
        const QVariantMap options{{"handle_token", token}, {"session_handle_token", newToken()}};
        call(portalPath, shortcutsInterface, "CreateSession", {options});
    }

    // A session that is still being made is closed as soon as its path is known.
    void close() {
        unwanted_ = true;
        if (handle_.path().isEmpty()) return;
        call(handle_.path(), sessionInterface, "Close", {});
        deleteLater();
    }

  private:
    Q_SLOT void opened(uint refusal, const QVariantMap& results) {
        const QString path = results.value("session_handle").toString();
        if (refusal != 0 || path.isEmpty()) return deleteLater();
        handle_ = QDBusObjectPath(path);
        if (unwanted_) return close();
        listen(handle_.path(), sessionInterface, "Closed", SLOT(deleteLater()));
        listen(portalPath, shortcutsInterface, "Activated", SLOT(activated(QDBusObjectPath, QString)));
        bind();
    }

    Q_SLOT void bound(uint refusal) {
        if (refusal != 0) close();
    }

    Q_SLOT void activated(const QDBusObjectPath& session, const QString& id) {
        if (!unwanted_ && session == handle_ && id == QLatin1String(shortcutId)) pressed_();
    }

    void bind() {
        const PortalShortcut shortcut{
            shortcutId, {{"description", "Show or hide Zifferon PRO"}, {"preferred_trigger", "CTRL+KP_Add"}}};
        const QString noWindow;
        const QVariantMap options{{"handle_token", listenForAnswer(SLOT(bound(uint)))}};
        call(portalPath, shortcutsInterface, "BindShortcuts",
             {QVariant::fromValue(handle_), QVariant::fromValue(QList{shortcut}), noWindow, options});
    }

    // Must come before the request: the portal may answer at once. Returns the token that makes the portal
    // use the path listened to.
    QString listenForAnswer(const char* slot) {
        const QString client = QDBusConnection::sessionBus().baseService().mid(1).replace('.', '_');
        QString token = newToken();
        listen(QString("%1/request/%2/%3").arg(portalPath, client, token), "org.freedesktop.portal.Request",
               "Response", slot);
        return token;
    }

    // From any sender: to name the portal would mean to wait until the bus has told who that is.
    void listen(const QString& path, const char* interface, const char* signal, const char* slot) {
        QDBusConnection::sessionBus().connect(QString(), path, interface, signal, this, slot);
    }

    std::function<void()> pressed_;
    QDBusObjectPath handle_;  // empty before the portal has made the session
    bool unwanted_ = false;
};

PortalHotKey::PortalHotKey(std::function<void()> pressed) : pressed_(std::move(pressed)) {}

PortalHotKey::~PortalHotKey() { release(); }

void PortalHotKey::grab() {
    if (session_ || !QDBusConnection::sessionBus().isConnected()) return;
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    session_ = new PortalSession(pressed_);
    session_->open();
}

void PortalHotKey::release() {
    if (session_) session_->close();
    session_ = nullptr;
}

}  // namespace zifferon

#include "portal_hot_key.moc"
