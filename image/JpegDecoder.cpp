// SPDX-License-Identifier: MIT
//
// The functions named Step, and what they call, are left by a jump when the library meets an error:
// they own nothing.
#include "image/JpegDecoder.h"

#include "image/DecodeLimits.h"

#include <algorithm>
#include <cstring>

namespace tint {

namespace {

/// What the library may make of a file: so much in any case, and this times the bytes it has read,
/// which is more than data of that length can describe.  Beyond it the data have ended, by an end
/// marker or the end of the file, and the library would make gigabytes of a few bytes.
constexpr uint64_t kBytesFree = 64u << 20;
constexpr uint64_t kBytesPerHuffmanByte = 2048;
constexpr uint64_t kBytesPerArithmeticByte = 65536;

/// Turns a row of CMYK, taken to be inverted as all known writers store it, into blue, green, red.
void ConvertCmykRow(uint8_t* target, const uint8_t* source, size_t pixels) {
    for (; pixels > 0; --pixels, target += 3, source += 4) {
        const unsigned key = source[3];
        target[0] = static_cast<uint8_t>(key * source[2] / 255);
        target[1] = static_cast<uint8_t>(key * source[1] / 255);
        target[2] = static_cast<uint8_t>(key * source[0] / 255);
    }
}

} // namespace

JpegDecoder::JpegDecoder(CxFile& stream)
    : m_stream(stream), m_library(), m_progress(), m_rows(nullptr), m_refusal(nullptr),
      m_bytesMade(0), m_maxScans(GetDecodeLimits().maxJpegScans), m_rowsSeen(0) {
    m_library.err = &m_errors;
    m_progress.progress_monitor = OnProgress;
    m_progress.owner = this;
}

JpegDecoder::~JpegDecoder() {
    jpeg_destroy_decompress(&m_library); // does nothing where there was no jpeg_create_decompress
}

template <void (JpegDecoder::*Step)()>
bool JpegDecoder::Run() {
    return m_errors.Run([](void* self) { (static_cast<JpegDecoder*>(self)->*Step)(); }, this);
}

bool JpegDecoder::ReadHeader() {
    return Run<&JpegDecoder::ReadHeaderStep>();
}

void JpegDecoder::ReadHeaderStep() {
    jpeg_create_decompress(&m_library);
    m_stream.AttachTo(m_library);
    jpeg_read_header(&m_library, TRUE);
}

bool JpegDecoder::Measure() {
    if (!Run<&JpegDecoder::MeasureStep>())
        return false;
    uint64_t bytes = jpeg_has_multiple_scans(&m_library) ? CoefficientBytes() : 0;
    if (m_library.quantize_colors && m_library.two_pass_quantize) {
        bytes += uint64_t{m_library.output_width} * m_library.output_height *
                 static_cast<unsigned>(m_library.out_color_components);
    }
    if (bytes / 2 > GetDecodeLimits().maxBlockBytes)
        m_refusal = "JPEG coefficients exceed twice the limit maxBlockBytes";
    return !m_refusal;
}

void JpegDecoder::MeasureStep() {
    jpeg_calc_output_dimensions(&m_library);
}

/// What the library keeps of a picture whose scans have to be put together.
uint64_t JpegDecoder::CoefficientBytes() const {
    uint64_t blocks = 0;
    for (int i = 0; i < m_library.num_components; ++i) {
        const jpeg_component_info& component = m_library.comp_info[i];
        blocks += uint64_t{component.width_in_blocks} * component.height_in_blocks;
    }
    return blocks * sizeof(JBLOCK);
}

bool JpegDecoder::Start() {
    return Run<&JpegDecoder::StartStep>();
}

void JpegDecoder::StartStep() {
    m_library.progress = &m_progress;
    jpeg_start_decompress(&m_library);
    m_library.progress = nullptr; // the rows have a check of their own
}

/// Called for every row of blocks while scans are read, and for some rows of a pass that looks for
/// colours.
void JpegDecoder::OnProgress(j_common_ptr library) {
    JpegDecoder& self = *static_cast<Progress*>(library->progress)->owner;
    const jpeg_decompress_struct& decoder = self.m_library;
    if (static_cast<uint32_t>(decoder.input_scan_number) > self.m_maxScans)
        JpegErrors::Fail(library, "JPEG scans exceed the limit maxJpegScans");
    self.CountProgress();
    if (self.MakesTooMuch())
        JpegErrors::Fail(library, "JPEG data end long before the picture does");
}

/// Counts what the library has written since the last call: coefficients of the scan, of which there
/// are only so many however many scans come, or rows for the colours.
void JpegDecoder::CountProgress() {
    if (m_library.output_scanline > m_rowsSeen) {
        m_bytesMade += uint64_t{m_library.output_scanline - m_rowsSeen} * m_library.output_width *
                       static_cast<unsigned>(m_library.out_color_components);
        m_rowsSeen = m_library.output_scanline;
        return;
    }
    uint64_t blocks = 0;
    for (int i = 0; i < m_library.comps_in_scan; ++i) {
        const jpeg_component_info& component = *m_library.cur_comp_info[i];
        blocks +=
            uint64_t{component.width_in_blocks} * static_cast<unsigned>(component.v_samp_factor);
    }
    m_bytesMade = std::min(m_bytesMade + blocks * sizeof(JBLOCK), CoefficientBytes());
}

bool JpegDecoder::MakesTooMuch() const {
    const uint64_t perByte = m_library.arith_code ? kBytesPerArithmeticByte : kBytesPerHuffmanByte;
    return m_bytesMade > kBytesFree + perByte * m_stream.BytesRead();
}

bool JpegDecoder::ReadRows(const DibRows& rows) {
    m_rows = &rows;
    m_bytesMade = 0;
    return Run<&JpegDecoder::ReadRowsStep>();
}

void JpegDecoder::ReadRowsStep() {
    // One to three samples a pixel fit the image's rows; they are what it stores, or pixels of two
    // samples, of which no one knows what they mean.
    if (m_library.output_components <= 3)
        ReadRowsInPlace();
    else
        ReadRowsConverted();
}

void JpegDecoder::ReadRowsInPlace() {
    while (m_library.output_scanline < m_library.output_height) {
        JSAMPROW row = m_rows->Row(m_library.output_scanline);
        jpeg_read_scanlines(&m_library, &row, 1);
        m_bytesMade += m_rows->Stride();
        if (MakesTooMuch())
            return; // what is missing stays zero
    }
}

void JpegDecoder::ReadRowsConverted() {
    const JDIMENSION samples =
        m_library.output_width * static_cast<JDIMENSION>(m_library.output_components);
    JSAMPARRAY buffer = m_library.mem->alloc_sarray(reinterpret_cast<j_common_ptr>(&m_library),
                                                    JPOOL_IMAGE, samples, 1);
    while (m_library.output_scanline < m_library.output_height) {
        uint8_t* row = m_rows->Row(m_library.output_scanline);
        jpeg_read_scanlines(&m_library, buffer, 1);
        if (m_library.output_components == 4)
            ConvertCmykRow(row, buffer[0], m_library.output_width);
        else // of no known meaning
            memcpy(row, buffer[0], std::min(samples, JDIMENSION{m_rows->Stride()}));
        m_bytesMade += m_rows->Stride();
        if (MakesTooMuch())
            return;
    }
}

bool JpegDecoder::Finish() {
    return Run<&JpegDecoder::FinishStep>();
}

void JpegDecoder::FinishStep() {
    if (m_library.output_scanline == m_library.output_height)
        jpeg_finish_decompress(&m_library);
}

} // namespace tint
