// SPDX-License-Identifier: MIT
#pragma once

#include "image/IsImage.h"

#include <cstdint>
#include <vector>

/// @file
/// Pictures to measure with, the same in every run, and their files in memory.

/// A 24-bit picture with the mix of a photograph: slopes, edges and some noise.
IsImage MakePhoto(uint32_t width, uint32_t height);

/// What a picture is encoded as.
enum class PngKind { Rgb, Rgba, Palette };

std::vector<uint8_t> EncodeBmp(const IsImage& picture);
std::vector<uint8_t> EncodeJpeg(const IsImage& picture, bool progressive);
/// RGBA gets an alpha channel that varies, a palette one of 6 x 6 x 6 colours.
std::vector<uint8_t> EncodePng(const IsImage& picture, PngKind kind);
