// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxFile.h"

/// A byte stream over a block of memory: a caller's block that is read or written in place, or a
/// block of the stream's own that grows with what is written.
///
///     CxMemFile source(block, length);        // reads the caller's block
///
///     CxMemFile target;                       // an encoder's target
///     target.Open();
///     Encode(target);
///     uint8_t* bytes = target.GetBuffer(true); // the caller's from here on: free(bytes)
///
/// The block is replaced when it grows, so a pointer from GetBuffer holds until the next write only;
/// after GetBuffer(true) nothing is to be written that could make the block grow.
class CxMemFile : public CxFile {
public:
    /// Streams over `block` of `length` bytes; with null the stream is not open until Open.
    ///
    /// The block stays the caller's.  Only a write past its end takes it over, with `realloc`: a
    /// block that may be written beyond its length therefore comes from `malloc`, and its old
    /// address is dead afterwards.
    explicit CxMemFile(uint8_t* block = nullptr, uint32_t length = 0);
    ~CxMemFile() override;

    /// Makes an empty block of the stream's own.
    /// @return false when a block is attached already or memory is out
    bool Open();

    /// The block, null when there is none; Size bytes of it are data.
    /// @param detach  true: the caller takes the block and frees it with `free`.
    ///                false: the stream frees it, a caller's block too.
    uint8_t* GetBuffer(bool detach);

    /// Frees the block if it is the stream's; a caller's block stays attached.
    bool Close() override;
    /// A last, partial element is copied and consumed but not counted.
    size_t Read(void* buffer, size_t elementSize, size_t count) override;
    /// Writes all elements or none: none when memory is out or the block would have to hold more
    /// than 2 GiB - 4097 bytes, which its last step of capacity does.
    size_t Write(const void* buffer, size_t elementSize, size_t count) override;
    /// A position before the start becomes 0.  One beyond the end is allowed: a write there grows
    /// the block and fills the gap with zeros.
    bool Seek(int32_t offset, int32_t origin) override;
    /// -1 when no block is attached.
    int32_t Tell() override;
    int32_t Size() override;
    /// True when a block is attached: there is nothing to hand on.
    bool Flush() override;
    /// True as soon as the position is at or beyond the end, before any read has met it.
    bool Eof() override;
    /// 1 when the position lies beyond the data, else 0.
    int32_t Error() override;
    bool PutC(uint8_t byte) override;
    int32_t GetC() override;

protected:
    /// Makes room for `needed` bytes, in steps of 4096; the stream owns the block afterwards if it
    /// had to grow.
    /// @return false when the block cannot grow so far; it is then as before
    bool Alloc(uint32_t needed);

    uint8_t* buffer;  ///< null when not open
    uint32_t size;    ///< bytes of valid data
    bool freeOnClose; ///< whether the stream owns the block
    int32_t position; ///< never negative, may lie beyond `size`
    int32_t edge;     ///< capacity in bytes

private:
    bool Reserve(uint32_t bytes);
    void Advance(uint32_t bytes);
};
