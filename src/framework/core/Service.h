#pragma once

#include <cassert>

namespace keltavlo {

// A base for the few objects of which the process has one. The object registers itself when it is made and
// gives the place back to its forerunner when it goes, so a test puts a fake in front of the real thing for
// as long as it lives.
template <class Interface>
class Service {
public:
    // The registered object; there must be one.
    static Interface& Get() {
        assert(current);
        return *Find();
    }
    // The registered object, or null.
    static Interface* Find() { return static_cast<Interface*>(current); }

    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

protected:
    Service() : previous(current) { current = this; }
    virtual ~Service() { current = previous; }

private:
    // Not yet the interface: its constructor has not run when this one does.
    static inline Service* current = nullptr;
    Service* previous;
};

} // namespace keltavlo
