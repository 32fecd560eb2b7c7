#pragma once

#include "framework/core/RuntimeClass.h"

#include <QtGlobal>

#include <map>
#include <memory>
#include <string>

namespace keltavlo {

// The frame and view classes by name: how document types name windows that they do not know.
class WindowClasses {
public:
    // The class's own name is its key. A frame class derives from CMDIChildWnd, a view class from CView.
    void Register(const CRuntimeClass& windowClass) { classes[std::string(windowClass.name)] = &windowClass; }
    // Null when nothing of that name is registered.
    const CRuntimeClass* Find(const std::string& name) const {
        const auto place = classes.find(name);
        return place == classes.end() ? nullptr : place->second;
    }

private:
    std::map<std::string, const CRuntimeClass*> classes;
};

// A new window of the class, which derives from Window and is creatable.
template <class Window>
std::unique_ptr<Window> CreateWindowOf(const CRuntimeClass& windowClass) {
    Q_ASSERT(windowClass.IsDerivedFrom(Window::runtimeClass));
    std::unique_ptr<CObject> object = windowClass.create();
    auto* window = dynamic_cast<Window*>(object.get());
    Q_ASSERT(window);
    static_cast<void>(object.release());
    return std::unique_ptr<Window>(window);
}

} // namespace keltavlo
