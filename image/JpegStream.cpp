// SPDX-License-Identifier: MIT
//
// The callbacks own nothing: the library's errors jump over their frames.
#include "image/JpegStream.h"

namespace tint {

JpegStream::JpegStream(CxFile& stream)
    : m_stream(stream), m_source(), m_destination(), m_bytesRead(0), m_buffer() {
    m_source.owner = this;
    m_source.init_source = [](j_decompress_ptr decoder) { Of(decoder).m_bytesRead = 0; };
    m_source.fill_input_buffer = Fill;
    m_source.skip_input_data = Skip;
    m_source.resync_to_restart = jpeg_resync_to_restart;
    m_source.term_source = [](j_decompress_ptr) {};
    m_destination.owner = this;
    m_destination.init_destination = [](j_compress_ptr encoder) { Of(encoder).Rewind(); };
    m_destination.empty_output_buffer = Empty;
    m_destination.term_destination = Terminate;
}

void JpegStream::AttachTo(jpeg_decompress_struct& decoder) {
    m_source.bytes_in_buffer = 0;
    m_source.next_input_byte = nullptr;
    decoder.src = &m_source;
}

void JpegStream::AttachTo(jpeg_compress_struct& encoder) {
    encoder.dest = &m_destination;
}

JpegStream& JpegStream::Of(j_decompress_ptr decoder) {
    return *static_cast<Source*>(decoder->src)->owner;
}

JpegStream& JpegStream::Of(j_compress_ptr encoder) {
    return *static_cast<Destination*>(encoder->dest)->owner;
}

boolean JpegStream::Fill(j_decompress_ptr decoder) {
    JpegStream& self = Of(decoder);
    size_t bytes = self.m_stream.Read(self.m_buffer, 1, sizeof(self.m_buffer));
    self.m_bytesRead += bytes;
    if (bytes == 0) {
        if (self.m_bytesRead == 0)
            ERREXIT(decoder, JERR_INPUT_EMPTY);
        WARNMS(decoder, JWRN_JPEG_EOF);
        self.m_buffer[0] = 0xFF;
        self.m_buffer[1] = JPEG_EOI;
        bytes = 2;
    }
    self.m_source.next_input_byte = self.m_buffer;
    self.m_source.bytes_in_buffer = bytes;
    return TRUE;
}

void JpegStream::Skip(j_decompress_ptr decoder, long bytes) {
    if (bytes <= 0)
        return;
    Source& source = Of(decoder).m_source;
    size_t left = static_cast<size_t>(bytes);
    while (left > source.bytes_in_buffer) {
        left -= source.bytes_in_buffer;
        Fill(decoder);
    }
    source.next_input_byte += left;
    source.bytes_in_buffer -= left;
}

void JpegStream::Rewind() {
    m_destination.next_output_byte = m_buffer;
    m_destination.free_in_buffer = kWriteBytes;
}

boolean JpegStream::Empty(j_compress_ptr encoder) {
    JpegStream& self = Of(encoder);
    if (self.m_stream.Write(self.m_buffer, 1, kWriteBytes) != kWriteBytes)
        ERREXIT(encoder, JERR_FILE_WRITE);
    self.Rewind();
    return TRUE;
}

void JpegStream::Terminate(j_compress_ptr encoder) {
    JpegStream& self = Of(encoder);
    const size_t rest = kWriteBytes - self.m_destination.free_in_buffer;
    if (rest > 0 && self.m_stream.Write(self.m_buffer, 1, rest) != rest)
        ERREXIT(encoder, JERR_FILE_WRITE);
    if (!self.m_stream.Flush())
        ERREXIT(encoder, JERR_FILE_WRITE);
}

} // namespace tint
