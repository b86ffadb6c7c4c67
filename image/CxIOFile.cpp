// SPDX-License-Identifier: MIT
#include "image/CxIOFile.h"

namespace {

/// `position` as the streams count: -1, the failure value of `ftell`, when 32 bits do not hold it.
int32_t ToStreamPosition(long position) {
    return position >= 0 && position <= INT32_MAX ? static_cast<int32_t>(position) : -1;
}

} // namespace

CxIOFile::CxIOFile(FILE* file) : fp(file), closeFile(file == nullptr) {}

CxIOFile::~CxIOFile() {
    CxIOFile::Close();
}

bool CxIOFile::Open(const char* path, const char* mode) {
    if (fp || !path || !mode)
        return false;
    fp = fopen(path, mode);
    closeFile = true;
    return fp != nullptr;
}

bool CxIOFile::Close() {
    if (!fp || !closeFile)
        return true;
    FILE* file = fp;
    fp = nullptr;
    return fclose(file) == 0;
}

size_t CxIOFile::Read(void* buffer, size_t elementSize, size_t count) {
    return fp && buffer ? fread(buffer, elementSize, count, fp) : 0;
}

size_t CxIOFile::Write(const void* buffer, size_t elementSize, size_t count) {
    return fp && buffer ? fwrite(buffer, elementSize, count, fp) : 0;
}

bool CxIOFile::Seek(int32_t offset, int32_t origin) {
    // Some run-time libraries end the process at an unknown origin instead of refusing it.
    if (origin != SEEK_SET && origin != SEEK_CUR && origin != SEEK_END)
        return false;
    return fp && fseek(fp, offset, origin) == 0;
}

int32_t CxIOFile::Tell() {
    // Deliberately 0 without a handle, where CxMemFile answers -1.
    return fp ? ToStreamPosition(ftell(fp)) : 0;
}

int32_t CxIOFile::Size() {
    if (!fp)
        return -1;
    const long position = ftell(fp);
    if (position < 0 || fseek(fp, 0, SEEK_END) != 0)
        return -1;
    const long size = ftell(fp);
    fseek(fp, position, SEEK_SET);
    return ToStreamPosition(size);
}

bool CxIOFile::Flush() {
    return fp && fflush(fp) == 0;
}

bool CxIOFile::Eof() {
    return !fp || feof(fp) != 0;
}

int32_t CxIOFile::Error() {
    return fp ? ferror(fp) : -1;
}

bool CxIOFile::PutC(uint8_t byte) {
    return fp && fputc(byte, fp) == byte;
}

int32_t CxIOFile::GetC() {
    return fp ? getc(fp) : -1;
}
