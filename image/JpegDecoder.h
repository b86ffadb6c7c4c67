// SPDX-License-Identifier: MIT
#pragma once

#include "image/DibRows.h"
#include "image/JpegErrors.h"
#include "image/JpegStream.h"

#include <cstdint>

namespace tint {

/// One decode by the JPEG library, step by step; each step is called once, in this order, after the
/// one before has succeeded.
///
/// Whatever happens, the library's memory goes with this object, and no error leaves a step but as
/// false with ErrorText.
class JpegDecoder {
public:
    /// @param stream  read from its position; outlives this object
    explicit JpegDecoder(CxFile& stream);
    ~JpegDecoder();
    JpegDecoder(const JpegDecoder&) = delete;
    JpegDecoder& operator=(const JpegDecoder&) = delete;

    /// Reads up to the first scan.  Settings are put into Library afterwards.
    bool ReadHeader();
    /// Works out the size of the picture and refuses what would take too much memory to decode.
    bool Measure();
    /// Starts the decode; a picture of several scans is read whole here.
    bool Start();
    /// Decodes the rows: 8 or 24 bits a pixel as the image has them.
    bool ReadRows(const DibRows& rows);
    /// Reads to the end of the file's picture.
    bool Finish();

    jpeg_decompress_struct& Library() { return m_library; }
    const char* ErrorText() const { return m_refusal ? m_refusal : m_errors.Text(); }

private:
    struct Progress : jpeg_progress_mgr {
        JpegDecoder* owner;
    };
    template <void (JpegDecoder::*Step)()>
    bool Run();
    void ReadHeaderStep();
    void MeasureStep();
    void StartStep();
    void ReadRowsStep();
    void FinishStep();

    static void OnProgress(j_common_ptr library);
    uint64_t CoefficientBytes() const;
    void CountProgress();
    bool MakesTooMuch() const;
    void ReadRowsInPlace();
    void ReadRowsConverted();

    JpegStream m_stream;
    JpegErrors m_errors;
    jpeg_decompress_struct m_library;
    Progress m_progress;
    const DibRows* m_rows;
    const char* m_refusal;
    uint64_t m_bytesMade; ///< written by the library in this step
    uint32_t m_maxScans;
    JDIMENSION m_rowsSeen; ///< of a pass over the picture before its rows are read
};

} // namespace tint
