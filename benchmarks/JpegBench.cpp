// SPDX-License-Identifier: MIT
#include "benchmarks/ImageBench.h"

#include "benchmarks/TestPictures.h"
#include "image/JpegLibrary.h"

#include <cstdlib>

namespace {

/// The library's loop, into a block laid out as an image's rows.
void DecodeBare(const std::vector<uint8_t>& file) {
    jpeg_decompress_struct library;
    jpeg_error_mgr errors;
    library.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&library);
    jpeg_mem_src(&library, const_cast<uint8_t*>(file.data()),
                 static_cast<unsigned long>(file.size()));
    jpeg_read_header(&library, TRUE);
    library.out_color_space = JCS_EXT_BGR;
    jpeg_start_decompress(&library);
    const size_t stride = (static_cast<size_t>(library.output_width) * 3 + 3) / 4 * 4;
    auto* const block = static_cast<uint8_t*>(std::malloc(stride * library.output_height));
    if (!block)
        std::abort();
    while (library.output_scanline < library.output_height) {
        JSAMPROW row = block + stride * (library.output_height - 1 - library.output_scanline);
        jpeg_read_scanlines(&library, &row, 1);
    }
    jpeg_finish_decompress(&library);
    jpeg_destroy_decompress(&library);
    std::free(block);
}

} // namespace

std::vector<Row> BenchJpeg() {
    const IsImage picture = MakePhoto(kBenchWidth, kBenchHeight);
    std::vector<Row> rows;
    for (const bool progressive : {false, true}) {
        const std::vector<uint8_t> file = EncodeJpeg(picture, progressive);
        for (const Row& row : CompareImages(
                 progressive ? "JPEG progressive, 12 MP" : "JPEG baseline, 12 MP",
                 {{"IsImage",
                   [&] {
                       if (IsImage(file.data(), static_cast<uint32_t>(file.size())).Width() !=
                           kBenchWidth)
                           std::abort();
                   }},
                  {"the bare library loop", [&] { DecodeBare(file); }}}))
            rows.push_back(row);
    }
    return rows;
}
