// SPDX-License-Identifier: MIT
#include "image/CpuFeatures.h"

#if defined(_MSC_VER) && defined(_M_X64)
#include <intrin.h>
#endif

namespace tint {

#if defined(_MSC_VER) && defined(_M_X64)

bool HasAvx2AndFma() {
    constexpr int osxsave = 1 << 27;
    constexpr int fma = 1 << 12;
    constexpr int avx2 = 1 << 5;
    constexpr unsigned long long registers = 6; // both halves of the vector registers
    int leaf[4];
    __cpuid(leaf, 0);
    if (leaf[0] < 7)
        return false;
    __cpuid(leaf, 1);
    if ((leaf[2] & osxsave) == 0 || (leaf[2] & fma) == 0 || (_xgetbv(0) & registers) != registers)
        return false;
    __cpuidex(leaf, 7, 0);
    return (leaf[1] & avx2) != 0;
}

#elif defined(__x86_64__)

bool HasAvx2AndFma() {
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
}

#else

bool HasAvx2AndFma() {
    return false;
}

#endif

} // namespace tint
