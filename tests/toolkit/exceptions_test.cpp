#include "support/message_box.h"
#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <string>

using testing_support::MessageBoxWatcher;

namespace {

class CountedCL : public CUserException
{
public:
    CountedCL() { ++living; }
    ~CountedCL() override { --living; }
    inline static int living = 0;
};

std::string caughtM(void (*throws)())
{
    std::string caught;
    TRY
    {
        throws();
        caught = "nothing";
    }
    CATCH(CMemoryException, e)
    {
        caught = "memory";
    }
    AND_CATCH(CUserException, e)
    {
        caught = e->IsKindOf(RUNTIME_CLASS(CException)) ? "user" : "";
    }
    AND_CATCH_ALL(e)
    {
        caught = e->GetRuntimeClass()->m_lpszClassName;
    }
    END_CATCH_ALL
    return caught;
}

void throwCountedM()
{
    THROW(new CountedCL);
}

} // namespace

TEST(Exceptions, MacrosCatchByClass)
{
    EXPECT_EQ(caughtM([] {}), "nothing");
    EXPECT_EQ(caughtM(&AfxThrowMemoryException), "memory");
    EXPECT_EQ(caughtM(&AfxThrowUserException), "user");
    EXPECT_EQ(caughtM(&AfxThrowResourceException), "CResourceException");
    EXPECT_EQ(caughtM(&AfxThrowNotSupportedException), "CNotSupportedException");
    EXPECT_EQ(caughtM(&AfxThrowInvalidArgException), "CInvalidArgException");
}

TEST(Exceptions, MacrosDeleteWhatTheyCaught)
{
    EXPECT_EQ(caughtM(&throwCountedM), "user");
    EXPECT_EQ(CountedCL::living, 0);
    TRY
    {
        throwCountedM();
    }
    END_TRY
    EXPECT_EQ(CountedCL::living, 0);
}

TEST(Exceptions, ThrowLastHandsTheSameOneOn)
{
    CException* inner = nullptr;
    bool isSame = false;
    TRY { TRY { throwCountedM();
}
CATCH_ALL(e)
{
    inner = e;
    THROW_LAST();
}
END_CATCH_ALL
}
CATCH(CUserException, e)
{
    isSame = e == inner && CountedCL::living == 1;
}
END_CATCH
EXPECT_TRUE(isSame);
EXPECT_EQ(CountedCL::living, 0);
}

TEST(Exceptions, TextsAreGbkCutBetweenCharacters)
{
    const CMemoryException memory;
    char text[64] = "old";
    UINT help = 7;
    EXPECT_TRUE(memory.GetErrorMessage(text, sizeof text, &help));
    EXPECT_STREQ(text, "\xC4\xDA\xB4\xE6\xB2\xBB\xD7\xE3\xA1\xA3");
    EXPECT_EQ(help, 0U);
    EXPECT_TRUE(memory.GetErrorMessage(text, 4));
    EXPECT_STREQ(text, "\xC4\xDA");
    const CUserException user;
    EXPECT_FALSE(user.GetErrorMessage(text, sizeof text));
    EXPECT_STREQ(text, "");
}

TEST(Exceptions, ReportShowsTheText)
{
    const MessageBoxWatcher watcher;
    CResourceException missing;
    EXPECT_EQ(missing.ReportError(MB_OK | MB_ICONSTOP), IDOK);
    ASSERT_TRUE(watcher.WaitForM(1));
    EXPECT_EQ(watcher.SeenM()[0].text, L"\u627E\u4E0D\u5230\u6240\u9700\u7684\u8D44\u6E90\u3002");
    EXPECT_EQ(watcher.SeenM()[0].icon, static_cast<UINT>(MB_ICONSTOP));
}

TEST(Exceptions, OneThatIsNotDeletedByItselfStays)
{
    CException kept(FALSE);
    kept.Delete();
    EXPECT_TRUE(kept.IsKindOf(RUNTIME_CLASS(CException)));
}

TEST(Exceptions, EnsureThrowsInEveryProgram)
{
    EXPECT_EQ(caughtM([] { ENSURE(1 + 1 == 2); }), "nothing");
    EXPECT_EQ(caughtM([] { ENSURE(1 + 1 == 3); }), "CInvalidArgException");
}
