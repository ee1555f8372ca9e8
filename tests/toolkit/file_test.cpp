// Files of bytes and files of lines.
#include "support/temp_file.h"
#include "toolkit/toolkit.h"
#include <gtest/gtest.h>

namespace {

// The cause of the exception that what() throws; -1: none.
template <class WhatTP> int causeOf(WhatTP&& what)
{
    try {
        what();
    } catch (CFileException* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

std::string bytesOf(LPCSTR path)
{
    CFile file(path, CFile::modeRead);
    std::string bytes(static_cast<size_t>(file.GetLength()), '\0');
    bytes.resize(file.Read(bytes.data(), static_cast<UINT>(bytes.size())));
    return bytes;
}

} // namespace

TEST(File, WhatIsWrittenIsRead)
{
    const TempFile old("old bytes", ".bin");
    {
        CFile file(old.path(), CFile::modeCreate | CFile::modeReadWrite);
        EXPECT_EQ(file.GetLength(), 0U);
        file.Write("abcdef", 6);
        EXPECT_EQ(file.GetPosition(), 6U);
        EXPECT_EQ(file.Seek(-4, CFile::current), 2U);
        char two[2];
        EXPECT_EQ(file.Read(two, 2), 2U);
        EXPECT_EQ(std::string(two, 2), "cd");
        file.SetLength(5);
        EXPECT_EQ(file.SeekToEnd(), 5U);
    }
    EXPECT_EQ(bytesOf(old.path()), "abcde");
}

TEST(File, NoTruncateKeepsWhatIsThere)
{
    const TempFile old("old", ".bin");
    {
        CFile file(old.path(), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite);
        file.SeekToEnd();
        file.Write("er", 2);
    }
    EXPECT_EQ(bytesOf(old.path()), "older");
}

TEST(File, FailureOfOpenIsToldByItsResultAndByTheConstructorThrown)
{
    CFile file;
    CFileException why;
    EXPECT_FALSE(file.Open("no such file.bin", CFile::modeRead, &why));
    EXPECT_EQ(why.m_cause, CFileException::fileNotFound);
    EXPECT_STREQ(why.m_strFileName, "no such file.bin");
    EXPECT_FALSE(file.Open("no such file.bin", CFile::modeRead));
    EXPECT_EQ(causeOf([] { CFile("no such folder\\a.bin", CFile::modeRead); }), CFileException::badPath);
}

TEST(File, WritingWhereOnlyReadingIsAllowedThrows)
{
    const TempFile old("old", ".bin");
    EXPECT_EQ(causeOf([&] {
        CFile file(old.path(), CFile::modeRead);
        file.Write("x", 1);
    }),
        CFileException::accessDenied);
    EXPECT_EQ(bytesOf(old.path()), "old");
}

TEST(File, SharingIsRefusedToOthers)
{
    const TempFile old("old", ".bin");
    CFile file(old.path(), CFile::modeReadWrite | CFile::shareExclusive);
    EXPECT_EQ(causeOf([&] { CFile(old.path(), CFile::modeRead); }), CFileException::sharingViolation);
}

TEST(File, IsRenamedAndRemovedByChineseName)
{
    const TempFile old("old", ".bin");
    const CString renamed = CString(old.path()) + "\xD6\xD0.bin";
    CFile::Rename(old.path(), renamed);
    {
        CFile file(renamed, CFile::modeRead);
        EXPECT_STREQ(file.GetFileName().Right(6), "\xD6\xD0.bin");
        EXPECT_STREQ(file.GetFileTitle().Right(2), "\xD6\xD0");
    }
    CFile::Remove(renamed);
    EXPECT_EQ(causeOf([&] { CFile::Remove(renamed); }), CFileException::fileNotFound);
}

TEST(StdioFile, ReadsAndWritesLines)
{
    const TempFile old("", ".txt");
    {
        CStdioFile file(old.path(), CFile::modeCreate | CFile::modeWrite);
        file.WriteString("one\n\n\xD6\xD0\n");
        file.WriteString("last");
    }
    EXPECT_EQ(bytesOf(old.path()), "one\r\n\r\n\xD6\xD0\r\nlast");
    CStdioFile file(old.path(), CFile::modeRead);
    CString line;
    std::string lines;
    while (file.ReadString(line)) {
        lines += std::string(line) + '|';
    }
    EXPECT_EQ(lines, "one||\xD6\xD0|last|");
    EXPECT_STREQ(line, "");
    file.SeekToBegin();
    char text[16];
    EXPECT_STREQ(file.ReadString(text, 16), "one\n");
    EXPECT_STREQ(file.ReadString(text, 16), "\n");
}

TEST(StdioFile, LongLineIsReadWhole)
{
    const std::string longLine(5000, 'x');
    const TempFile old(longLine + "\r\nnext", ".txt");
    CStdioFile file(old.path(), CFile::modeRead);
    CString line;
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_EQ(line.GetLength(), 5000);
    ASSERT_TRUE(file.ReadString(line));
    EXPECT_STREQ(line, "next");
    EXPECT_FALSE(file.ReadString(line));
}
