// SPDX-License-Identifier: MIT
#include "image/CxMemFile.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

/// `elementSize` x `count`, or 0 when 32 bits do not hold the product: such a transfer moves nothing
/// rather than a wrapped number of bytes.
uint32_t TransferSize(size_t elementSize, size_t count) {
    if (elementSize == 0 || count > UINT32_MAX / elementSize)
        return 0;
    return static_cast<uint32_t>(elementSize * count);
}

} // namespace

CxMemFile::CxMemFile(uint8_t* block, uint32_t length)
    : buffer(block), size(length), freeOnClose(block == nullptr), position(0),
      edge(static_cast<int32_t>(length)) {}

CxMemFile::~CxMemFile() {
    CxMemFile::Close();
}

bool CxMemFile::Open() {
    if (buffer)
        return false;
    size = 0;
    position = 0;
    edge = 0; // the byte below only marks the stream as open; the first write makes the capacity
    buffer = static_cast<uint8_t*>(malloc(1));
    freeOnClose = true;
    return buffer != nullptr;
}

uint8_t* CxMemFile::GetBuffer(bool detach) {
    freeOnClose = !detach;
    return buffer;
}

bool CxMemFile::Close() {
    if (!buffer || !freeOnClose)
        return true;
    free(buffer);
    buffer = nullptr;
    size = 0;
    return true;
}

bool CxMemFile::Alloc(uint32_t needed) {
    if (needed <= static_cast<uint32_t>(edge))
        return true;
    // Deliberately the next step strictly above the need: 8192 bytes get a block of 12288.
    const uint64_t capacity = ((static_cast<uint64_t>(needed) >> 12) + 1) << 12;
    if (capacity > INT32_MAX)
        return false;
    void* grown = realloc(buffer, static_cast<size_t>(capacity));
    if (!grown)
        return false;
    buffer = static_cast<uint8_t*>(grown);
    freeOnClose = true;
    edge = static_cast<int32_t>(capacity);
    return true;
}

/// Makes room for `bytes` at the position and zeroes the gap a seek beyond the end has left, so that
/// no old contents of the heap become data.
bool CxMemFile::Reserve(uint32_t bytes) {
    const uint64_t end = static_cast<uint64_t>(position) + bytes;
    if (end > INT32_MAX || !Alloc(static_cast<uint32_t>(end)))
        return false;
    const uint32_t at = static_cast<uint32_t>(position);
    if (at > size)
        memset(buffer + size, 0, at - size);
    return true;
}

/// Moves the position past `bytes` just written; Reserve has seen that it fits.
void CxMemFile::Advance(uint32_t bytes) {
    position += static_cast<int32_t>(bytes);
    if (static_cast<uint32_t>(position) > size)
        size = static_cast<uint32_t>(position);
}

size_t CxMemFile::Read(void* destination, size_t elementSize, size_t count) {
    const uint32_t wanted = TransferSize(elementSize, count);
    if (!destination || wanted == 0 || CxMemFile::Eof())
        return 0;
    const uint32_t left = size - static_cast<uint32_t>(position);
    const uint32_t bytes = wanted < left ? wanted : left;
    memcpy(destination, buffer + position, bytes);
    position += static_cast<int32_t>(bytes);
    return bytes / elementSize;
}

size_t CxMemFile::Write(const void* source, size_t elementSize, size_t count) {
    const uint32_t bytes = TransferSize(elementSize, count);
    if (!buffer || !source || bytes == 0 || !Reserve(bytes))
        return 0;
    memcpy(buffer + position, source, bytes);
    Advance(bytes);
    return count;
}

bool CxMemFile::Seek(int32_t offset, int32_t origin) {
    if (!buffer)
        return false;
    int64_t target = offset;
    if (origin == SEEK_CUR)
        target += position;
    else if (origin == SEEK_END)
        target += size;
    else if (origin != SEEK_SET)
        return false;
    if (target > INT32_MAX)
        return false;
    position = target < 0 ? 0 : static_cast<int32_t>(target);
    return true;
}

int32_t CxMemFile::Tell() {
    return buffer ? position : -1;
}

int32_t CxMemFile::Size() {
    return buffer ? static_cast<int32_t>(size) : -1;
}

bool CxMemFile::Flush() {
    return buffer != nullptr;
}

bool CxMemFile::Eof() {
    // Compared as signed: a block of 2 GiB or more, which positions cannot address, reads as empty.
    return !buffer || position >= static_cast<int32_t>(size);
}

int32_t CxMemFile::Error() {
    if (!buffer)
        return -1;
    return static_cast<uint32_t>(position) > size ? 1 : 0;
}

bool CxMemFile::PutC(uint8_t byte) {
    if (!buffer || !Reserve(1))
        return false;
    buffer[position] = byte;
    Advance(1);
    return true;
}

int32_t CxMemFile::GetC() {
    // A derived class may see the end elsewhere; the block's own end holds all the same.
    if (Eof() || CxMemFile::Eof())
        return -1;
    return buffer[position++];
}
