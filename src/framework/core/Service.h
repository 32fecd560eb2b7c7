#pragma once

#include <cassert>

// A base for the few objects of which the process has one. The object registers itself when it is made and
// gives the place back to its forerunner when it goes, so a test puts a fake in front of the real thing for
// as long as it lives.
template <class Interface>
class Service {
public:
    // The registered object; there must be one.
    static Interface& Get() {
        assert(current);
        return *current;
    }
    // The registered object, or null.
    static Interface* Find() { return current; }

    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

protected:
    Service() : previous(current) { current = static_cast<Interface*>(this); }
    virtual ~Service() { current = previous; }

private:
    static inline Interface* current = nullptr;
    Interface* previous;
};
