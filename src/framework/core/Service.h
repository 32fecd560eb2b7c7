#pragma once

#include <cassert>

namespace keltavlo {

// Base of objects of which the process has one at a time. The object registers itself on construction and
// restores the previous one on destruction, so a test can replace the real object by a fake for as long as
// the fake lives.
template <class Interface>
class Service {
public:
    // Returns the registered object, which must exist.
    static Interface& Get() {
        assert(current);
        return *Find();
    }
    // Returns the registered object, or null.
    static Interface* Find() { return static_cast<Interface*>(current); }

    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

protected:
    Service() : previous(current) { current = this; }
    virtual ~Service() { current = previous; }

private:
    // A Service and not an Interface, because the constructor of Interface has not run yet when this
    // one does.
    static inline Service* current = nullptr;
    Service* previous;
};

} // namespace keltavlo
