// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

/// The byte stream through which every codec of the image layer reads and writes.
///
/// Two streams exist: CxIOFile over a standard I/O `FILE*` and CxMemFile over a block of memory.
/// Positions, offsets and lengths are signed 32-bit: what lies beyond 2 GiB - 1 cannot be reached.
/// No operation throws, logs or shows a message; a stream that is not open answers each operation
/// with its failure value.
class CxFile {
public:
    CxFile() = default;
    virtual ~CxFile() = default;
    CxFile(const CxFile&) = delete;
    CxFile& operator=(const CxFile&) = delete;

    /// Closes the stream, releasing what it owns.  Closing a closed stream succeeds.
    virtual bool Close() = 0;

    /// Reads up to `count` elements of `elementSize` bytes into `buffer`.
    /// @return whole elements read; fewer than `count` at the end of the data
    virtual size_t Read(void* buffer, size_t elementSize, size_t count) = 0;

    /// Writes `count` elements of `elementSize` bytes.
    /// @return elements written; 0 when the stream is not open or cannot hold them
    virtual size_t Write(const void* buffer, size_t elementSize, size_t count) = 0;

    /// Moves the position.
    /// @param offset  bytes, may be negative
    /// @param origin  SEEK_SET (0, the start), SEEK_CUR (1, the position) or SEEK_END (2, the end)
    /// @return false when the position could not be moved; it is then unchanged
    virtual bool Seek(int32_t offset, int32_t origin) = 0;

    /// The position in bytes from the start.
    virtual int32_t Tell() = 0;

    /// The length in bytes; -1 when the stream is not open.  The position stays.
    virtual int32_t Size() = 0;

    /// Hands buffered output to the system.
    virtual bool Flush() = 0;

    /// Whether the end was reached; true when the stream is not open.
    virtual bool Eof() = 0;

    /// Non-zero when the stream is in error; -1 when it is not open.
    virtual int32_t Error() = 0;

    /// Writes one byte.
    virtual bool PutC(uint8_t byte) { return Write(&byte, 1, 1) == 1; }

    /// Reads one byte: 0 to 255, or -1 at the end of the data or when the stream is not open.
    virtual int32_t GetC() = 0;
};
