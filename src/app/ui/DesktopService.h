#pragma once

#include <QDBusVirtualObject>

#include <functional>
#include <string>
#include <vector>

namespace keltavlo {

// The program on the session bus, as the interface org.freedesktop.Application: the file manager and the menu
// of the desktop reach the running program through it.
class DesktopService final : public QDBusVirtualObject {
public:
    // Shows the program and opens the files, which may be none.
    using Request = std::function<void(const std::vector<std::string>& paths)>;

    // Each call from the bus becomes a request, made while no dialog is open and no other work is under way.
    explicit DesktopService(Request request);
    // Gives up the name on the bus.
    ~DesktopService() override;

    // Takes the program's name on the bus. Returns false if there is no bus or another program has the name.
    bool Register();

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

private:
    void CarryOut();

    Request carryOut;
    std::vector<std::vector<std::string>> waiting;
    bool isRegistered = false;
};

} // namespace keltavlo
