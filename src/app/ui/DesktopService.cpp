#include "app/ui/DesktopService.h"

#include "framework/ui/LocalPath.h"

#include <QAbstractEventDispatcher>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QThread>
#include <QUrl>

#include <utility>

namespace keltavlo {

namespace {

const QString serviceName = QStringLiteral("org.example.keltavlo");
const QString objectPath = QStringLiteral("/org/example/keltavlo");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");

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

// Whether no dialog is open.
bool IsOutermostLoop() {
    return QThread::currentThread()->loopLevel() <= 1;
}

} // namespace

DesktopService::DesktopService(Request request) : carryOut(std::move(request)) {
    // The loop blocks when no work is under way. What is posted now runs next, outside of this signal.
    if (auto* dispatcher = QAbstractEventDispatcher::instance())
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] {
            if (!waiting.empty() && IsOutermostLoop())
                QMetaObject::invokeMethod(
                    this, [this] { CarryOut(); }, Qt::QueuedConnection);
        });
}

DesktopService::~DesktopService() {
    if (isRegistered) QDBusConnection::sessionBus().unregisterService(serviceName);
}

bool DesktopService::Register() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    // The object comes first because calls may follow as soon as the name is taken.
    isRegistered = bus.registerVirtualObject(objectPath, this) && bus.registerService(serviceName);
    return isRegistered;
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
    waiting.push_back(opens ? PathsOf(message.arguments().constFirst().toStringList())
                            : std::vector<std::string>());
    bus.send(message.createReply());
    return true;
}

void DesktopService::CarryOut() {
    if (!IsOutermostLoop()) return;
    for (const auto& paths : std::exchange(waiting, {})) carryOut(paths);
}

} // namespace keltavlo
