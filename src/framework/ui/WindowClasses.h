#pragma once

#include "framework/core/RuntimeClass.h"

#include <QtGlobal>

#include <map>
#include <memory>
#include <string>

namespace keltavlo {

// The frame and view classes by name. Document types use it to name window classes that they do not include.
class WindowClasses {
public:
    // Registers a class under its own name. A frame class derives from CMDIChildWnd, a view class from CView.
    void Register(const CRuntimeClass& windowClass) { classes[std::string(windowClass.name)] = &windowClass; }
    // Returns null if no class of that name is registered.
    const CRuntimeClass* Find(const std::string& name) const {
        const auto place = classes.find(name);
        return place == classes.end() ? nullptr : place->second;
    }

private:
    std::map<std::string, const CRuntimeClass*> classes;
};

// Makes a window of the class, which derives from Window and is creatable.
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
