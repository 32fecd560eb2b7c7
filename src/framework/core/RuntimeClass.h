#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <type_traits>

namespace keltavlo {

class CObject;

// Describes a class at run time: its name, its base and how to create an object.
struct CRuntimeClass {
    std::string_view name;
    const CRuntimeClass* base;
    std::unique_ptr<CObject> (*create)(); // returns null for an abstract class

    bool IsDerivedFrom(const CRuntimeClass& other) const {
        for (const CRuntimeClass* type = this; type; type = type->base)
            if (type == &other) return true;
        return false;
    }
};

// Root of all classes that are created by type or know their type at run time.
class CObject {
public:
    static const CRuntimeClass runtimeClass;

    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;

    virtual const CRuntimeClass& GetRuntimeClass() const { return runtimeClass; }
    bool IsKindOf(const CRuntimeClass& type) const { return GetRuntimeClass().IsDerivedFrom(type); }
};

inline const CRuntimeClass CObject::runtimeClass{"CObject", nullptr, nullptr};

// A string literal as a template argument.
template <std::size_t n>
struct ClassName {
    char text[n];
    consteval ClassName(const char (&literal)[n]) { std::copy_n(literal, n, text); }
    constexpr std::string_view View() const { return {text, n - 1}; }
};

// A base that goes between a class and its real base and gives the class its run-time record:
//     class WALDocument final : public Dynamic<"WALDocument", WALDocument, TavloDocument> { ... };
template <ClassName className, class Self, class Base>
class Dynamic : public Base {
public:
    using Base::Base;

    const CRuntimeClass& GetRuntimeClass() const override { return runtimeClass; }

private:
    static std::unique_ptr<CObject> Create() {
        if constexpr (std::is_default_constructible_v<Self>)
            return std::make_unique<Self>();
        else
            return nullptr;
    }

public:
    static inline const CRuntimeClass runtimeClass{className.View(), &Base::runtimeClass, &Create};
};

} // namespace keltavlo
