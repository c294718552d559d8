// Run-time class information and the exceptions' texts.
#include <afx.h>

#include <gtest/gtest.h>

namespace {

TEST(Object, KnowsItsClassAndThoseAbove)
{
    const CFileException error;
    const CObject& object = error;
    EXPECT_STREQ(object.GetRuntimeClass()->m_lpszClassName, "CFileException");
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CFileException)));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(object.IsKindOf(RUNTIME_CLASS(CArchiveException)));
}

TEST(Exception, TellsWhatFailedAndFitsTheBuffer)
{
    const CFileException error(CFileException::fileNotFound, ERROR_FILE_NOT_FOUND, "lost.dat");
    char text[200];
    ASSERT_TRUE(error.GetErrorMessage(text, sizeof(text)));
    EXPECT_EQ(CString(text).Find("lost.dat: "), 0);
    EXPECT_GT(CString(text).GetLength(), 15);

    char small[5];
    ASSERT_TRUE(error.GetErrorMessage(small, sizeof(small)));
    EXPECT_STREQ(small, "lost");

    ASSERT_TRUE(CArchiveException(CArchiveException::endOfFile).GetErrorMessage(text, sizeof(text)));
    EXPECT_STREQ(text, "The file ends too early");
}

}
