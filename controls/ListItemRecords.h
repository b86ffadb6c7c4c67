// SPDX-License-Identifier: MIT
#pragma once

#include <afxwin.h>

#include <memory>
#include <vector>

#include "controls/ListStyle.h"

namespace tint {

/// The styles of one list item.
struct ListItemStyles {
    ListStyle first;                ///< of the cell in column 0, which always has one
    std::unique_ptr<ListStyle> row; ///< null: none
    std::vector<std::unique_ptr<ListStyle>>
        cells; ///< of column 1 and up; null or past the end: none

    /// The style of a cell; null when it has none.
    ListStyle* Cell(int column);

    /// The style of a cell, created when it has none.
    /// @param column  at least 0
    ListStyle& MakeCell(int column);
};

/// What a styled list keeps for one item.
struct ListItemRecord {
    LPARAM value = 0;                       ///< the caller's own parameter
    std::unique_ptr<ListItemStyles> styles; ///< null: nothing is styled in this row
};

/// The records behind the items of one list.
///
/// The list view keeps a key as the item's parameter, not a pointer: whatever number comes back from
/// there, the worst that it can do is to name no record.  A record without styles takes 24 bytes,
/// and no allocation of its own.
class ListItemRecords {
public:
    /// Makes a record.
    /// @return its key, never 0
    LPARAM Add(LPARAM value);

    /// The record of a key; null when there is none (any more).  Valid until the next Add().
    ListItemRecord* Find(LPARAM key);

    /// Frees a record; nothing happens when there is none.
    void Remove(LPARAM key);

    /// Gives the styles of one record to another; nothing happens when there is not each of them.
    void MoveStyles(LPARAM from, LPARAM to);

    /// Frees all records and their memory.
    void Clear();

    std::size_t Count() const { return m_count; }

    /// Makes room for a new column in each row.  Column 0 never moves: what comes in before it gets
    /// the cells of column 1 moved on (as the list view does with the texts).
    void InsertColumn(int column);

    /// Frees the cells of a column.  For column 0 those of column 1 go instead: an item keeps its
    /// own style, which from then on applies to the new first column (deliberate; an item keeps its
    /// own text in the same way).
    void DeleteColumn(int column);

private:
    struct Slot {
        ListItemRecord record;
        DWORD generation = 0; ///< tells this record from earlier ones in the slot; 0: free
        DWORD nextFree = 0;   ///< when free: the next free slot
    };

    static_assert(sizeof(Slot) == 24, "as this class promises");

    static constexpr DWORD kNone = 0xFFFFFFFF;

    std::vector<Slot> m_slots;
    std::size_t m_count = 0;
    DWORD m_firstFree = kNone;
    DWORD m_lastGeneration = 0; ///< goes on after Clear(), so that no old key is valid again
};

} // namespace tint
