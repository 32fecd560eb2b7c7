#pragma once

#include <vector>

namespace keltavlo {

// An inner loop has several implementations, called kernels: one for each kind of vectors that a processor
// may have, all with the same results. Each is a struct of functions: `needs` names what the processor must
// support, and All() lists the kernels of this build, slowest first.

enum class ProcessorFeature { none, avx2, avx512Vbmi };

inline bool ProcessorHas(ProcessorFeature feature) {
#if defined(__x86_64__)
    switch (feature) {
    case ProcessorFeature::none:
        return true;
    case ProcessorFeature::avx2:
        return __builtin_cpu_supports("avx2") != 0;
    case ProcessorFeature::avx512Vbmi:
        return __builtin_cpu_supports("avx512bw") != 0 && __builtin_cpu_supports("avx512vbmi") != 0;
    }
#endif
    return feature == ProcessorFeature::none;
}

// Returns the kernels that run on this processor, slowest first.
template <class Kernels>
std::vector<const Kernels*> AvailableKernels() {
    std::vector<const Kernels*> available = Kernels::All();
    std::erase_if(available, [](const Kernels* kernels) { return !ProcessorHas(kernels->needs); });
    return available;
}

template <class Kernels>
const Kernels& FastestKernels() {
    static const Kernels& fastest = *AvailableKernels<Kernels>().back();
    return fastest;
}

} // namespace keltavlo
