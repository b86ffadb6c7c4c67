// SPDX-License-Identifier: MIT
#pragma once

#include "image/ResampleKernels.h"

#include <cstdint>

class IsImage;

namespace tint {

struct ResampleOps;

/// What Resample sees beyond the edges of a picture; any other value, 0 too, behaves as
/// kOverflowRepeat.
enum Overflow : int32_t {
    kOverflowWhite = 1,       ///< white
    kOverflowBackground = 2,  ///< the image's background colour
    kOverflowTransparent = 3, ///< the colour shown as transparent, white when there is none
    kOverflowWrap = 4,        ///< the picture again, side by side
    kOverflowRepeat = 5       ///< the pixels of the edge again
};

/// How a picture is resampled.
struct ResampleMethod {
    int32_t interpolation; ///< an Interpolation
    int32_t overflow;      ///< an Overflow
    bool averaging;        ///< when the picture shrinks on an axis, average on all that do not grow
};

/// Fills `target`, of any size and of the depth and palette of `source`, with the pixels of
/// `source`; the work behind IsImage::Resample.  Working memory is a few rows of a strip.
///
/// A point (x, y) of the target is the point ((x + 0.5) * xScale - 0.5, ...) of the source, where
/// the scales are source size / target size in single precision.  The kernel is applied along rows
/// and columns; an averaged axis weights each source pixel by the part of it that is covered, so
/// that the mean brightness stays.  Sums are rounded; those of the Lanczos kernel without averaging
/// are cut.
/// @param ops  the loops to use
/// @return null, or why it was refused, as a static text
/// @throws std::bad_alloc
const char* ResamplePixels(const IsImage& source, IsImage& target, const ResampleMethod& method,
                           const ResampleOps& ops);

} // namespace tint
