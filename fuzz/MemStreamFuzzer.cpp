// SPDX-License-Identifier: MIT
//
// The memory stream: the input is a sequence of operations, carried out beside a plain vector.
#include "fuzz/FuzzTarget.h"
#include "image/CxMemFile.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

/// Takes the input apart; zeros follow its end.
class Input {
public:
    Input(const uint8_t* data, size_t size) : m_data(data), m_size(size) {}
    bool AtEnd() const { return m_at >= m_size; }
    uint8_t Byte() { return AtEnd() ? uint8_t{0} : m_data[m_at++]; }
    int32_t Number() {
        uint32_t value = 0;
        for (int i = 0; i < 4; ++i)
            value = value << 8 | Byte();
        return static_cast<int32_t>(value);
    }

private:
    const uint8_t* m_data;
    size_t m_size;
    size_t m_at = 0;
};

/// What the stream is to do, said with a vector and 64-bit numbers.
class Model {
public:
    std::vector<uint8_t> data;
    int64_t position = 0;

    bool Seek(int32_t offset, int32_t origin) {
        if (origin < 0 || origin > 2)
            return false;
        const int64_t from = origin == 0 ? 0 : origin == 1 ? position : Size();
        if (from + offset > INT32_MAX)
            return false;
        position = std::max<int64_t>(from + offset, 0);
        return true;
    }

    std::vector<uint8_t> Read(size_t bytes) {
        if (position >= Size())
            return {};
        const size_t start = static_cast<size_t>(position);
        const size_t count = std::min(bytes, data.size() - start);
        position += static_cast<int64_t>(count);
        return {data.begin() + static_cast<ptrdiff_t>(start),
                data.begin() + static_cast<ptrdiff_t>(start + count)};
    }

    void Write(const std::vector<uint8_t>& bytes) {
        const size_t end = static_cast<size_t>(position) + bytes.size();
        if (end > data.size())
            data.resize(end);
        std::copy(bytes.begin(), bytes.end(), data.begin() + static_cast<ptrdiff_t>(position));
        position = static_cast<int64_t>(end);
    }

    int64_t Size() const { return static_cast<int64_t>(data.size()); }
};

constexpr int64_t kFarthestWrite = 1 << 14;

class Session {
public:
    Session(CxMemFile& stream, Model& model, Input& input)
        : m_stream(stream), m_model(model), m_input(input) {}

    void Run() {
        while (!m_input.AtEnd()) {
            Step(m_input.Byte());
            fuzz::Require(m_stream.Tell() == m_model.position);
            fuzz::Require(m_stream.Size() == m_model.Size());
            fuzz::Require(m_stream.Eof() == (m_model.position >= m_model.Size()));
            fuzz::Require((m_stream.Error() != 0) == (m_model.position > m_model.Size()));
        }
        const uint8_t* block = m_stream.GetBuffer(false);
        fuzz::Require(m_model.data.empty() ||
                      memcmp(block, m_model.data.data(), m_model.data.size()) == 0);
    }

private:
    void Step(uint8_t operation) {
        switch (operation % 6) {
        case 0:
            return Seek(m_input.Number());
        case 1:
            return Seek(static_cast<int8_t>(m_input.Byte()) * 64);
        case 2:
            return Read();
        case 3:
            return Write();
        case 4: {
            const std::vector<uint8_t> expected = m_model.Read(1);
            fuzz::Require(m_stream.GetC() == (expected.empty() ? -1 : expected[0]));
            return;
        }
        default:
            return Put();
        }
    }

    void Seek(int32_t offset) {
        const int32_t origin = m_input.Byte() % 4;
        fuzz::Require(m_stream.Seek(offset, origin) == m_model.Seek(offset, origin));
    }

    void Read() {
        const size_t elementSize = m_input.Byte();
        const size_t count = m_input.Byte();
        std::vector<uint8_t> read(elementSize * count);
        const size_t elements = m_stream.Read(read.data(), elementSize, count);
        const std::vector<uint8_t> expected = m_model.Read(read.size());
        fuzz::Require(elements == (elementSize ? expected.size() / elementSize : 0));
        fuzz::Require(std::equal(expected.begin(), expected.end(), read.begin()));
    }

    void Write() {
        const size_t elementSize = m_input.Byte();
        const size_t count = m_input.Byte();
        const std::vector<uint8_t> bytes(elementSize * count, m_input.Byte());
        if (bytes.empty() || !MakeWritable()) {
            fuzz::Require(m_stream.Write(bytes.data(), elementSize, count) == 0 || !bytes.empty());
            return;
        }
        fuzz::Require(m_stream.Write(bytes.data(), elementSize, count) == count);
        m_model.Write(bytes);
    }

    void Put() {
        const uint8_t byte = m_input.Byte();
        if (!MakeWritable()) {
            fuzz::Require(!m_stream.PutC(byte));
            return;
        }
        fuzz::Require(m_stream.PutC(byte));
        m_model.Write({byte});
    }

    /// Keeps the block small: from far positions a write is either refused, or not tried but brought
    /// back to the start.  @return false where the stream has to refuse
    bool MakeWritable() {
        if (m_model.position > INT32_MAX - 4096)
            return false;
        if (m_model.position > kFarthestWrite) {
            m_stream.Seek(0, 0);
            m_model.Seek(0, 0);
        }
        return true;
    }

    CxMemFile& m_stream;
    Model& m_model;
    Input& m_input;
};

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Input input(data, size);
    const uint8_t length = input.Byte();
    Model model;
    if (length % 2 == 0) {
        CxMemFile own;
        fuzz::Require(own.Open());
        Session(own, model, input).Run();
        return 0;
    }
    // A caller's block, which growth and the closing GetBuffer(false) hand to the stream.
    uint8_t* block = static_cast<uint8_t*>(calloc(length, 1));
    fuzz::Require(block != nullptr);
    model.data.resize(length);
    CxMemFile callers(block, length);
    Session(callers, model, input).Run();
    return 0;
}
