// SPDX-License-Identifier: MIT
#include "image/ResampleTarget.h"

namespace tint {

uint8_t* ResampleTarget::Open(uint32_t y, uint32_t first, uint32_t count, uint32_t slot) {
    if (m_image.BitCount() == 24)
        return m_image.RowPointer(y) + static_cast<size_t>(first) * 3;
    m_rows[slot].resize(static_cast<size_t>(count) * 3);
    return m_rows[slot].data();
}

void ResampleTarget::Close(uint32_t y, uint32_t first, uint32_t count, uint32_t slot) {
    if (m_image.BitCount() == 24)
        return;
    for (uint32_t i = 0; i < count; ++i)
        m_image.SetPixelIndex(first + i, y,
                              IndexOf(m_rows[slot].data() + static_cast<size_t>(i) * 3));
}

uint8_t ResampleTarget::IndexOf(const uint8_t* color) {
    constexpr uint32_t slotBits = 12;
    m_known.resize(size_t{1} << slotBits);
    const uint32_t key =
        color[0] | static_cast<uint32_t>(color[1]) << 8 | static_cast<uint32_t>(color[2]) << 16;
    // Multiplying by 2^32 / golden ratio spreads neighbouring colours over the slots.
    Known& known = m_known[key * 2654435769u >> (32 - slotBits)];
    if (!known.used || known.color != key)
        known = {key, m_image.GetNearestIndex({color[0], color[1], color[2], 0}), true};
    return known.index;
}

} // namespace tint
