#pragma once

#include <QString>

#include <string>
#include <vector>

namespace keltavlo {

// Collects Qt's warnings while it lives.
class ToolkitComplaints {
public:
    ToolkitComplaints() : previous(qInstallMessageHandler(&Note)) { texts.clear(); }
    ~ToolkitComplaints() { qInstallMessageHandler(previous); }

    static inline std::vector<std::string> texts;

private:
    static void Note(QtMsgType type, const QMessageLogContext&, const QString& text) {
        // The offscreen platform warns that it cannot raise windows.
        if (type != QtDebugMsg && type != QtInfoMsg && !text.contains("plugin does not support"))
            texts.push_back(text.toStdString());
    }
    QtMessageHandler previous;
};

} // namespace keltavlo
