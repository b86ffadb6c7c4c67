// SPDX-License-Identifier: MIT
#include "gallery/GalleryOptions.h"

#include <gtest/gtest.h>

namespace {

TEST(GalleryOptions, ReadsWhatItKnows) {
    const GalleryOptions none = GalleryOptions::Parse({});
    EXPECT_EQ(none.error, "");
    EXPECT_EQ(none.pictures, "");
    EXPECT_EQ(none.scheme, nullptr);

    const GalleryOptions both = GalleryOptions::Parse({"--scheme", "warm", "--pictures", "out"});
    EXPECT_EQ(both.error, "");
    EXPECT_EQ(both.pictures, "out");
    EXPECT_EQ(both.scheme, automation::FindColorScheme("warm"));
}

TEST(GalleryOptions, SaysWhatIsWrong) {
    struct {
        std::vector<std::string> arguments;
        std::string error;
    } const cases[] = {
        {{"--picture", "out"}, "unknown option --picture"},
        {{"out"}, "unknown option out"},
        {{"--pictures"}, "--pictures wants a value"},
        {{"--scheme", "pink"}, "no scheme pink; there are default, high-contrast-dark, warm, "
          "high-contrast-black, high-contrast-white, slate"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(GalleryOptions::Parse(c.arguments).error, c.error);
}

} // namespace
