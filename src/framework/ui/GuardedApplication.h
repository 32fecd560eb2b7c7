#pragma once

#include <QApplication>

namespace keltavlo {

// The toolkit's application, and the door that no lack of memory passes: an event whose handling runs out of
// memory counts as ignored, and the user is told. Paints do not tell: a view says so where its picture would
// be.
class GuardedApplication final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace keltavlo
