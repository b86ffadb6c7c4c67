// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxFile.h"
#include "image/DibRows.h"

/// @file
/// Run-length decoders of bitmaps.
///
/// Both paint what the data give into zeroed rows and stop at the end of the bitmap, below the last
/// row or where the data end.  Nothing is written outside the rows: a run that passes the end of a
/// row goes on in the next, one that passes the last row is cut.

namespace tint {

/// Decodes RLE8.  An encoded run that passes the row's padded end deliberately ends the whole
/// decode: what follows in the data is ignored.
void DecodeRle8(CxFile& stream, const DibRows& rows);

/// How runs and deltas that begin or end within a byte are read.
enum class Rle4Reading {
    /// By the format: the samples of a run in order, deltas to the pixel.
    kExact,
    /// As BMP files are read here, deliberately: the half of the target byte chooses the half of the
    /// data byte, so a run that begins at an odd pixel starts with its second sample; an absolute run
    /// of an even length takes one byte more there; a delta moves by an even number of pixels, the
    /// odd one being dropped.
    kByTargetHalf,
};

/// Decodes RLE4.
void DecodeRle4(CxFile& stream, const DibRows& rows, Rle4Reading reading);

} // namespace tint
