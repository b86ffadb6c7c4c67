// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxFile.h"

#include <cstdio>

/// A byte stream over a standard I/O handle, the caller's or its own.
///
///     CxIOFile file;
///     if (file.Open("picture.bmp", "rb"))
///         image.DecodeByType(tint::kFormatBmp, &file);
class CxIOFile : public CxFile {
public:
    /// Streams over `file`, which stays the caller's: Close and the destructor leave it open.
    /// With null the stream is not open, and closes what Open opens.
    explicit CxIOFile(FILE* file = nullptr);
    ~CxIOFile() override;

    /// Opens a file, which the stream owns from then on.
    /// @param path  narrow path
    /// @param mode  mode of `fopen`, "rb" to read
    /// @return false when a handle is attached already or the file cannot be opened
    bool Open(const char* path, const char* mode);

    /// True for a caller's handle too, which is left open and attached.
    bool Close() override;
    size_t Read(void* buffer, size_t elementSize, size_t count) override;
    size_t Write(const void* buffer, size_t elementSize, size_t count) override;
    bool Seek(int32_t offset, int32_t origin) override;
    /// -1 when the position cannot be told or lies beyond 2 GiB - 1, but 0 without a handle.
    int32_t Tell() override;
    /// -1 also for a handle that cannot be sought and for files beyond 2 GiB - 1.
    int32_t Size() override;
    bool Flush() override;
    /// As `feof`: true only after a read met the end.
    bool Eof() override;
    int32_t Error() override;
    bool PutC(uint8_t byte) override;
    int32_t GetC() override;

protected:
    FILE* fp;       ///< null when not open
    bool closeFile; ///< whether Close closes the handle: true when built without one
};
