#include "app/HeadlessApplication.h"

namespace keltavlo {

HeadlessApplication::HeadlessApplication(std::function<void(const std::string&)> show)
    : CWinApp(nullptr), showMessage(std::move(show)), workshop(*this) {}

void HeadlessApplication::ReportMemoryShortage() noexcept {
    try {
        showMessage(memoryMessage);
    } catch (const std::bad_alloc&) { // the receiver lacks memory too
    }
}

// Documents need the workshop until they are gone.
HeadlessApplication::~HeadlessApplication() {
    CloseAllDocuments();
}

} // namespace keltavlo
