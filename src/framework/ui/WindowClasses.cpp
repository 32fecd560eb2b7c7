#include "framework/ui/WindowClasses.h"

#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/CView.h"

namespace keltavlo {

namespace {

template <class Window>
std::unique_ptr<Window> CreateWindowOf(const CRuntimeClass& windowClass) {
    Q_ASSERT(windowClass.IsDerivedFrom(Window::runtimeClass));
    std::unique_ptr<CObject> object = windowClass.create();
    auto* window = dynamic_cast<Window*>(object.get());
    Q_ASSERT(window);
    static_cast<void>(object.release());
    return std::unique_ptr<Window>(window);
}

} // namespace

const CRuntimeClass* WindowClasses::Find(const std::string& name) const {
    const auto place = classes.find(name);
    return place == classes.end() ? nullptr : place->second;
}

std::unique_ptr<CMDIChildWnd> CreateFrameWindow(const CRuntimeClass& frameClass) {
    return CreateWindowOf<CMDIChildWnd>(frameClass);
}

std::unique_ptr<CView> CreateViewWindow(const CRuntimeClass& viewClass) {
    return CreateWindowOf<CView>(viewClass);
}

} // namespace keltavlo
