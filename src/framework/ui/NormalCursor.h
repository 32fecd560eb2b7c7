#pragma once

#include <QCursor>
#include <QGuiApplication>

#include <vector>

namespace keltavlo {

// Replaces the wait cursor while a dialog waits for the user.
class NormalCursor {
public:
    NormalCursor() {
        while (const QCursor* cursor = QGuiApplication::overrideCursor()) {
            lifted.push_back(*cursor);
            QGuiApplication::restoreOverrideCursor();
        }
    }
    ~NormalCursor() {
        for (auto cursor = lifted.rbegin(); cursor != lifted.rend(); ++cursor)
            QGuiApplication::setOverrideCursor(*cursor);
    }
    NormalCursor(const NormalCursor&) = delete;
    NormalCursor& operator=(const NormalCursor&) = delete;

private:
    std::vector<QCursor> lifted;
};

} // namespace keltavlo
