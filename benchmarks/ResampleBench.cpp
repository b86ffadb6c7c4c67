// SPDX-License-Identifier: MIT
#include "benchmarks/ImageBench.h"

#include "benchmarks/PillowPeer.h"
#include "benchmarks/TestPictures.h"
#include "image/Resample.h"
#include "image/ResampleOps.h"

#include <cstdlib>

namespace {

struct Subject {
    const char* what;
    uint32_t width, height;       ///< of the source
    uint32_t newWidth, newHeight; ///< of the result
    const char* filter;           ///< Pillow's name for it
};

std::vector<Row> BenchSubject(const Subject& subject, PillowPeer* pillow) {
    IsImage source = MakePhoto(subject.width, subject.height);
    const auto resample = [&] {
        IsImage target;
        if (!source.Resample(static_cast<int32_t>(subject.newWidth),
                             static_cast<int32_t>(subject.newHeight), tint::kLanczos,
                             tint::kOverflowRepeat, &target))
            std::abort();
    };
    const auto resamplePlain = [&] {
        IsImage target;
        target.CreateImage(subject.newWidth, subject.newHeight, 24);
        tint::ResamplePixels(source, target, {tint::kLanczos, tint::kOverflowRepeat, true},
                             tint::PlainResampleOps());
    };
    std::vector<Contender> contenders = {{"IsImage", resample}, {"our plain loops", resamplePlain}};
    if (pillow) {
        pillow->SetPicture(source);
        contenders.push_back(
            {std::string("Pillow, ") + subject.filter,
             [&] { pillow->Resize(subject.newWidth, subject.newHeight, subject.filter); }});
    }
    return CompareImages(subject.what, contenders);
}

} // namespace

std::vector<Row> BenchResample() {
    const Subject subjects[] = {
        {"enlarge by Lanczos, 1000 x 750 to 12 MP", kBenchWidth / 4, kBenchHeight / 4, kBenchWidth,
         kBenchHeight, "LANCZOS"},
        {"shrink by area, 12 MP to 1000 x 750", kBenchWidth, kBenchHeight, kBenchWidth / 4,
         kBenchHeight / 4, "BOX"},
        {"shrink by area, 12 MP to 1500 x 1100", kBenchWidth, kBenchHeight, 1500, 1100, "BOX"},
    };
    const std::unique_ptr<PillowPeer> pillow = PillowPeer::Start();
    if (!pillow)
        fputs("tintkit_image_bench: no Pillow here to compare with (python3-pil)\n", stderr);
    std::vector<Row> rows;
    for (const Subject& subject : subjects) {
        for (const Row& row : BenchSubject(subject, pillow.get()))
            rows.push_back(row);
    }
    return rows;
}
