#pragma once

#include "framework/ui/IdleCall.h"

#include <QDBusVirtualObject>

#include <functional>
#include <string>
#include <vector>

namespace keltavlo {

// The program as org.freedesktop.Application on the session bus. The desktop's file manager and menu use it
// to reach the running program.
class DesktopService final : public QDBusVirtualObject {
public:
    // Shows the program and opens the files, if any.
    using Request = std::function<void(const std::vector<std::string>& paths)>;

    // Each call from the bus becomes a request, which is carried out while no dialog is open and no other
    // work is being done.
    explicit DesktopService(Request request);
    // Releases the name on the bus.
    ~DesktopService() override;

    // Takes the program's name on the bus. Returns false if there is no bus or another program has the name.
    bool Register();
    // The same for a program without a window. Until the first request, the program ends if the bus does.
    bool RegisterAndWait();

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

private:
    void CarryOut();
    void StayWithoutBus();

    Request carryOut;
    std::vector<std::vector<std::string>> waiting;
    IdleCall idleCall{[this] { CarryOut(); }};
    bool isRegistered = false;
    bool endsWithBus = false;
};

} // namespace keltavlo
