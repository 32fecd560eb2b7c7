#include "app/ui/DesktopService.h"

#include "framework/ui/LocalPath.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QUrl>

#include <utility>

namespace keltavlo {

namespace {

const QString serviceName = QStringLiteral("org.example.keltavlo");
const QString objectPath = QStringLiteral("/org/example/keltavlo");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");

// The signal that the connection itself sends when the bus has gone.
const QString localPath = QStringLiteral("/org/freedesktop/DBus/Local");
const QString localInterface = QStringLiteral("org.freedesktop.DBus.Local");
const QString endOfBus = QStringLiteral("Disconnected");

// The methods of the interface that the desktop calls for a program without actions.
const QString introspection = QStringLiteral(R"(<interface name="org.freedesktop.Application">
  <method name="Activate">
    <arg type="a{sv}" name="platform_data" direction="in"/>
  </method>
  <method name="Open">
    <arg type="as" name="uris" direction="in"/>
    <arg type="a{sv}" name="platform_data" direction="in"/>
  </method>
</interface>
)");

std::vector<std::string> PathsOf(const QStringList& addresses) {
    std::vector<std::string> paths;
    for (const QString& address : addresses) {
        const QUrl url(address);
        if (url.isLocalFile()) paths.push_back(LocalPathOf(url));
    }
    return paths;
}

} // namespace

DesktopService::DesktopService(Request request) : carryOut(std::move(request)) {}

DesktopService::~DesktopService() {
    if (isRegistered) QDBusConnection::sessionBus().unregisterService(serviceName);
}

bool DesktopService::Register() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    // The object is registered first, because calls may arrive as soon as the name is taken.
    isRegistered = bus.registerVirtualObject(objectPath, this) && bus.registerService(serviceName);
    return isRegistered;
}

bool DesktopService::RegisterAndWait() {
    endsWithBus = Register() && QDBusConnection::sessionBus().connect({}, localPath, localInterface, endOfBus,
                                                                      qApp, SLOT(quit()));
    return endsWithBus;
}

// From the first request on there is a window, and maybe work in it.
void DesktopService::StayWithoutBus() {
    if (!std::exchange(endsWithBus, false)) return;
    QDBusConnection::sessionBus().disconnect({}, localPath, localInterface, endOfBus, qApp, SLOT(quit()));
}

QString DesktopService::introspect(const QString&) const {
    return introspection;
}

bool DesktopService::handleMessage(const QDBusMessage& message, const QDBusConnection& bus) {
    if (message.interface() != interfaceName) return false;
    const bool opens =
        message.member() == QStringLiteral("Open") && message.signature() == QStringLiteral("asa{sv}");
    const bool activates = message.member() == QStringLiteral("Activate");
    if (!opens && !activates) return false;
    StayWithoutBus();
    waiting.push_back(opens ? PathsOf(message.arguments().constFirst().toStringList())
                            : std::vector<std::string>());
    idleCall.Request();
    bus.send(message.createReply());
    return true;
}

void DesktopService::CarryOut() {
    for (const auto& paths : std::exchange(waiting, {})) carryOut(paths);
}

} // namespace keltavlo
