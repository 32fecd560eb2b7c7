#pragma once

#include "image/picture/Color.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace keltavlo {

// Asks the system for large pages if the memory is large. Ordinary pages are provided and cleared one by one
// when they are first touched, which takes longer than decoding a picture.
void PreferLargePages(void* memory, std::size_t bytes) noexcept;

// Allocates large pictures in large pages and does not clear new elements without a value, because whole
// pictures are filled at once.
template <class T>
struct PixelAllocator : std::allocator<T> {
    template <class U>
    struct rebind { // the standard library's name
        using other = PixelAllocator<U>;
    };

    T* allocate(std::size_t count) {
        T* memory = std::allocator<T>::allocate(count);
        PreferLargePages(memory, count * sizeof(T));
        return memory;
    }
    template <class U>
    void construct(U* place) {
        ::new (static_cast<void*>(place)) U;
    }
    template <class U, class... Arguments>
    void construct(U* place, Arguments&&... arguments) {
        std::construct_at(place, std::forward<Arguments>(arguments)...);
    }
};

using PixelVector = std::vector<Color, PixelAllocator<Color>>;

} // namespace keltavlo
