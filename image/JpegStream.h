// SPDX-License-Identifier: MIT
#pragma once

#include "image/CxFile.h"
#include "image/JpegLibrary.h"

#include <cstdint>

namespace tint {

/// Joins the JPEG library to a byte stream, as the source of a decoder or the destination of an
/// encoder.  It outlives the library's object it is attached to.
///
/// A source that ends early is a warning: an end marker is made up, and the library fills in what is
/// missing.  One that holds nothing at all is an error.
class JpegStream {
public:
    /// @param stream  kept; read or written from its position
    explicit JpegStream(CxFile& stream);
    JpegStream(const JpegStream&) = delete;
    JpegStream& operator=(const JpegStream&) = delete;

    void AttachTo(jpeg_decompress_struct& decoder);
    void AttachTo(jpeg_compress_struct& encoder);

    /// Bytes read so far.
    uint64_t BytesRead() const { return m_bytesRead; }

private:
    struct Source : jpeg_source_mgr {
        JpegStream* owner;
    };
    struct Destination : jpeg_destination_mgr {
        JpegStream* owner;
    };
    static JpegStream& Of(j_decompress_ptr decoder);
    static JpegStream& Of(j_compress_ptr encoder);
    static boolean Fill(j_decompress_ptr decoder);
    static void Skip(j_decompress_ptr decoder, long bytes);
    static boolean Empty(j_compress_ptr encoder);
    static void Terminate(j_compress_ptr encoder);
    void Rewind();

    /// The library's fast decoding of Huffman codes starts where it sees several thousand bytes
    /// ahead, so it is given more than the 4096 bytes that it writes at a time.
    static constexpr size_t kBufferBytes = 65536;
    static constexpr size_t kWriteBytes = 4096;
    CxFile& m_stream;
    Source m_source;
    Destination m_destination;
    uint64_t m_bytesRead;
    JOCTET m_buffer[kBufferBytes];
};

} // namespace tint
