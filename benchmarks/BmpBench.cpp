// SPDX-License-Identifier: MIT
#include "benchmarks/ImageBench.h"

#include "benchmarks/TestPictures.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

using Block = std::unique_ptr<void, decltype(&std::free)>;

Block Allocate(size_t size) {
    return {std::malloc(size), &std::free};
}

/// Keeps the compiler from leaving out work whose result nobody uses.
void Use(const void* data) {
    asm volatile("" : : "r"(data) : "memory");
}

/// A file that goes when it is let go.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::vector<uint8_t>& data) {
        const int handle = mkstemps(m_path, 4);
        FILE* const file = handle < 0 ? nullptr : fdopen(handle, "wb");
        if (!file || fwrite(data.data(), 1, data.size(), file) != data.size() ||
            fclose(file) != 0) {
            perror("tintkit_image_bench: temporary file");
            std::exit(1);
        }
    }
    ~TemporaryFile() { std::remove(m_path); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    const char* Path() const { return m_path; }

private:
    char m_path[32] = "/tmp/tintkit-bench-XXXXXX.bmp";
};

} // namespace

std::vector<Row> BenchBmp() {
    const std::vector<uint8_t> data = EncodeBmp(MakePhoto(kBenchWidth, kBenchHeight));
    const TemporaryFile file(data);
    std::vector<Row> rows = CompareImages(
        "BMP 24-bit from memory, 12 MP",
        {{"IsImage", [&] { Use(IsImage(data.data(), static_cast<uint32_t>(data.size())).Dib()); }},
         {"allocating and copying", [&] {
              const Block block = Allocate(data.size());
              memcpy(block.get(), data.data(), data.size());
              Use(block.get());
          }}});
    for (const Row& row : CompareImages("BMP 24-bit from a file, 12 MP",
                                        {{"IsImage", [&] { Use(IsImage(file.Path()).Dib()); }},
                                         {"allocating and fread", [&] {
                                              const Block block = Allocate(data.size());
                                              FILE* const opened = fopen(file.Path(), "rb");
                                              if (!opened || fread(block.get(), 1, data.size(),
                                                                   opened) != data.size())
                                                  std::abort();
                                              fclose(opened);
                                              Use(block.get());
                                          }}}))
        rows.push_back(row);
    return rows;
}
