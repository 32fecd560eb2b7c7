#include "app/HeadlessApplication.h"

HeadlessApplication::HeadlessApplication(std::function<void(const std::string&)> show)
    : CWinApp(nullptr), showMessage(std::move(show)), workshop(*this) {}

// Documents need the workshop until they are gone.
HeadlessApplication::~HeadlessApplication() {
    CloseAllDocuments();
}
