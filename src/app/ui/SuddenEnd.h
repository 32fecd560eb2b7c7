#pragma once

#include "framework/core/DiskFile.h"

#include <QSocketNotifier>

class QSessionManager;

namespace keltavlo {

// Rescues the modified documents (Rescue::SaveModified) when the program must end without asking about them:
// SIGINT, SIGTERM and SIGHUP, a display whose connection breaks, a desktop session that ends without letting
// programs ask, and exceptions that nobody catches. Nothing can be done about SIGKILL, and after a crash the
// documents cannot be trusted. Make one in main, while the documents' application exists.
class SuddenEnd : public QObject {
public:
    SuddenEnd();

    // Rescues the documents, if there are any. Also for a message of Qt's that ends the program.
    static void RescueDocuments() noexcept;

private:
    void OnSignal();
    static void OnSessionEnd(QSessionManager& session);

    Descriptor signalsOut;
    QSocketNotifier notifier;
};

} // namespace keltavlo
