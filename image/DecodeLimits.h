// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tint {

/// What a picture may cost before it is refused.
///
/// A few bytes can claim a picture of gigabytes or decades of work; these limits are the point where
/// the image layer stops believing.  The defaults let a 400-megapixel scan through.  They hold for
/// the whole process: a program that reads larger pictures raises them once, at its start.
///
///     tint::DecodeLimits limits = tint::GetDecodeLimits();
///     limits.maxPixels = 1'000'000'000;
///     tint::SetDecodeLimits(limits);
///
/// A refusal names the limit in the image's last-error text.  Whatever the limits say, an image's
/// block never exceeds 2 GiB - 1.
struct DecodeLimits {
    uint64_t maxPixels = 500'000'000; ///< width x height of one picture
    /// Header, palette and pixel rows of one picture; what a progressive JPEG takes while it is put
    /// together may be twice as much.  It bounds the working memory of a resampling, too.
    uint64_t maxBlockBytes = 1536u * 1024 * 1024;
    uint32_t maxJpegScans = 100;      ///< scans of one progressive JPEG
    uint32_t maxExifDepth = 8;        ///< EXIF directories inside one another
    uint32_t maxExifDirectories = 64; ///< EXIF directories of one file
};

/// The limits in force.
DecodeLimits GetDecodeLimits();

/// Replaces the limits for every image created or decoded from now on.  Like the rest of the image
/// layer it belongs to one thread.
void SetDecodeLimits(const DecodeLimits& limits);

} // namespace tint
