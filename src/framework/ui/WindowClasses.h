#pragma once

#include "framework/core/RuntimeClass.h"

#include <map>
#include <memory>
#include <string>

namespace keltavlo {

class CMDIChildWnd;
class CView;

// The frame and view classes by name: how document types name windows that they do not know.
class WindowClasses {
public:
    // The class's own name is its key. A frame class derives from CMDIChildWnd, a view class from CView.
    void Register(const CRuntimeClass& windowClass) { classes[std::string(windowClass.name)] = &windowClass; }
    // Null when nothing of that name is registered.
    const CRuntimeClass* Find(const std::string& name) const;

private:
    std::map<std::string, const CRuntimeClass*> classes;
};

// A new window of the class, which must be one of its kind and creatable.
std::unique_ptr<CMDIChildWnd> CreateFrameWindow(const CRuntimeClass& frameClass);
std::unique_ptr<CView> CreateViewWindow(const CRuntimeClass& viewClass);

} // namespace keltavlo
