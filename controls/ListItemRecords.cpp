// SPDX-License-Identifier: MIT
#include "controls/ListItemRecords.h"

#include <utility>

namespace tint {

static_assert(sizeof(LPARAM) == 8, "a key holds a slot and a generation of 32 bits each");

ListStyle* ListItemStyles::Cell(int column) {
    if (column == 0)
        return &first;
    const auto index = static_cast<std::size_t>(column) - 1;
    return index < cells.size() ? cells[index].get() : nullptr;
}

ListStyle& ListItemStyles::MakeCell(int column) {
    if (column == 0)
        return first;
    const auto index = static_cast<std::size_t>(column) - 1;
    if (index >= cells.size())
        cells.resize(index + 1);
    if (cells[index] == nullptr)
        cells[index] = std::make_unique<ListStyle>();
    return *cells[index];
}

LPARAM ListItemRecords::Add(LPARAM value) {
    if (m_firstFree == kNone) {
        m_slots.emplace_back();
        m_slots.back().nextFree = kNone;
        m_firstFree = static_cast<DWORD>(m_slots.size() - 1);
    }
    const DWORD index = m_firstFree;
    Slot& slot = m_slots[index];
    m_firstFree = slot.nextFree;
    if (++m_lastGeneration == 0)
        ++m_lastGeneration;
    slot.generation = m_lastGeneration;
    slot.record.value = value;
    ++m_count;
    return static_cast<LPARAM>(static_cast<ULONGLONG>(slot.generation) << 32 | index);
}

ListItemRecord* ListItemRecords::Find(LPARAM key) {
    const auto index = static_cast<DWORD>(key);
    const auto generation = static_cast<DWORD>(static_cast<ULONGLONG>(key) >> 32);
    if (generation == 0 || index >= m_slots.size() || m_slots[index].generation != generation)
        return nullptr;
    return &m_slots[index].record;
}

void ListItemRecords::Remove(LPARAM key) {
    if (Find(key) == nullptr)
        return;
    const auto index = static_cast<DWORD>(key);
    m_slots[index].record = {};
    m_slots[index].generation = 0;
    m_slots[index].nextFree = m_firstFree;
    m_firstFree = index;
    --m_count;
}

void ListItemRecords::MoveStyles(LPARAM from, LPARAM to) {
    ListItemRecord* const source = Find(from);
    ListItemRecord* const target = Find(to);
    if (source != nullptr && target != nullptr)
        target->styles = std::move(source->styles);
}

void ListItemRecords::Clear() {
    std::vector<Slot>().swap(m_slots);
    m_firstFree = kNone;
    m_count = 0;
}

void ListItemRecords::InsertColumn(int column) {
    const auto index = static_cast<std::size_t>(column > 0 ? column - 1 : 0);
    for (Slot& slot : m_slots) {
        ListItemStyles* const styles = slot.record.styles.get();
        if (styles != nullptr && index < styles->cells.size())
            styles->cells.insert(styles->cells.begin() + static_cast<std::ptrdiff_t>(index),
                                 nullptr);
    }
}

void ListItemRecords::DeleteColumn(int column) {
    const auto index = static_cast<std::size_t>(column > 0 ? column - 1 : 0);
    for (Slot& slot : m_slots) {
        ListItemStyles* const styles = slot.record.styles.get();
        if (styles != nullptr && index < styles->cells.size())
            styles->cells.erase(styles->cells.begin() + static_cast<std::ptrdiff_t>(index));
    }
}

} // namespace tint
