// SPDX-License-Identifier: MIT
//
// Loading from module resources and global memory.
#include "image/CxMemFile.h"
#include "image/IsImage.h"

bool IsImage::LoadFromResource(HRSRC resource, uint32_t type, HMODULE module) {
    const DWORD size = resource ? SizeofResource(module, resource) : 0;
    const HGLOBAL loaded = size ? LoadResource(module, resource) : nullptr;
    // Resources are mapped with their module: there is nothing to unlock or free.
    void* data = loaded ? LockResource(loaded) : nullptr;
    if (!data) {
        SetErrorText("resource cannot be loaded");
        return false;
    }
    CxMemFile stream(static_cast<uint8_t*>(data), size);
    return DecodeByType(type, &stream);
}

bool IsImage::CreateFromGlobalDib(HGLOBAL handle) {
    const SIZE_T size = handle ? GlobalSize(handle) : 0;
    const void* data = size ? GlobalLock(handle) : nullptr;
    const bool created = CreateFromPackedDib(static_cast<const uint8_t*>(data), size);
    if (data)
        GlobalUnlock(handle);
    return created;
}
