// SPDX-License-Identifier: MIT
#pragma once

#include "image/IsImage.h"

#include <memory>
#include <string>

/// The system's Pillow in a process of its own, resizing a picture when told to.
class PillowPeer {
public:
    /// @return null when there is no Python with Pillow
    static std::unique_ptr<PillowPeer> Start();
    ~PillowPeer();
    PillowPeer(const PillowPeer&) = delete;
    PillowPeer& operator=(const PillowPeer&) = delete;

    /// Hands over the picture to resize; a 24-bit one.
    void SetPicture(const IsImage& picture);
    /// Resizes it once and returns when that is done.
    /// @param filter  a name of Pillow's, as "LANCZOS"
    void Resize(uint32_t width, uint32_t height, const std::string& filter);

private:
    PillowPeer() = default;
    void Tell(const std::string& command);
    bool Await();

    FILE* m_commands = nullptr;
    FILE* m_answers = nullptr;
    int m_process = 0;
};
