// SPDX-License-Identifier: MIT
#include "afx.h"

#include <gtest/gtest.h>

TEST(BaseException, MessagesFitTheirBuffer) {
    CMemoryException memory;
    const CFileException file(CFileException::diskFull, ERROR_DISK_FULL, "C:\\a.txt");
    char text[40] = {};
    EXPECT_TRUE(memory.GetErrorMessage(text, sizeof(text)));
    EXPECT_STREQ("Out of memory.", text);
    EXPECT_TRUE(memory.GetErrorMessage(text, 4));
    EXPECT_STREQ("Out", text);
    EXPECT_TRUE(file.GetErrorMessage(text, sizeof(text)));
    EXPECT_STREQ("C:\\a.txt: the disk is full.", text);
}
