#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <string>

namespace {

// What the program says to its debugger, as long as it lives.
class DebuggerCL
{
public:
    DebuggerCL()
        : handler_(::AddVectoredExceptionHandler(1, &DebuggerCL::hearM))
    {
        heard.clear();
    }
    DebuggerCL(const DebuggerCL&) = delete;
    DebuggerCL& operator=(const DebuggerCL&) = delete;
    ~DebuggerCL() { ::RemoveVectoredExceptionHandler(handler_); }
    inline static std::wstring heard;

private:
    static LONG CALLBACK hearM(EXCEPTION_POINTERS* pointers)
    {
        // Systems differ in whether a wide text is offered as such or turned into their code page before.
        constexpr DWORD WideText = 0x4001000A;
        constexpr DWORD NarrowText = 0x40010006;
        const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
        if (record.ExceptionCode == WideText) {
            heard += reinterpret_cast<const wchar_t*>(record.ExceptionInformation[1]);
        } else if (record.ExceptionCode == NarrowText) {
            for (auto* at = reinterpret_cast<const unsigned char*>(record.ExceptionInformation[1]); *at != 0;
                 ++at) {
                heard.push_back(*at);
            }
        } else {
            return EXCEPTION_CONTINUE_SEARCH;
        }
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    void* handler_;
};

// What the debugger hears when the system itself says it.
std::wstring saidM(const wchar_t* text)
{
    const DebuggerCL debugger;
    ::OutputDebugStringW(text);
    return DebuggerCL::heard;
}

class HoldingCL : public CObject
{
    DECLARE_DYNAMIC(HoldingCL)
public:
    mutable int asked = 0;
    void AssertValid() const override
    {
        CObject::AssertValid();
        ++asked;
    }
    void Dump(CDumpContext& context) const override
    {
        CObject::Dump(context);
        context << "holds " << 5 << L" \u4E2D\n";
    }
};
IMPLEMENT_DYNAMIC(HoldingCL, CObject)

} // namespace

TEST(Diagnostics, TracesAreGbkOrWide)
{
    const std::wstring gbk = saidM(L"\u4E2D 5\n");
    const std::wstring wide = saidM(L"\u6587 6\n");
    ASSERT_EQ(gbk.size(), 4U);
    const DebuggerCL debugger;
    AfxTrace("%s %d\n", "\xD6\xD0", 5);
    EXPECT_EQ(DebuggerCL::heard, gbk);
    DebuggerCL::heard.clear();
    AfxTrace(L"\u6587 %d\n", 6);
    EXPECT_EQ(DebuggerCL::heard, wide);
}

TEST(Diagnostics, ObjectTellsWhatItHolds)
{
    const std::wstring wanted = L"holds 5" + saidM(L" \u4E2D\n");
    const DebuggerCL debugger;
    const HoldingCL object;
    afxDump << object;
    EXPECT_EQ(DebuggerCL::heard.find(L"a HoldingCL at $"), 0U) << DebuggerCL::heard.size();
    EXPECT_NE(DebuggerCL::heard.find(wanted), std::wstring::npos);
    DebuggerCL::heard.clear();
    afxDump << static_cast<const CObject*>(nullptr) << 2.5;
    EXPECT_EQ(DebuggerCL::heard, L"NULL2.5");
}

TEST(Diagnostics, ObjectIsAskedWhetherItIsInOrder)
{
    const HoldingCL object;
    ASSERT_KINDOF(HoldingCL, &object);
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(HoldingCL)));
    AfxAssertValidObject(&object);
    EXPECT_EQ(object.asked, 1);
}

TEST(Diagnostics, ObjectIsTakenAsTheClassItIsKnownToBe)
{
    CButton button;
    CWnd* const wnd = &button;
    EXPECT_EQ(STATIC_DOWNCAST(CButton, wnd), &button);
    EXPECT_EQ(STATIC_DOWNCAST(CButton, static_cast<CWnd*>(nullptr)), nullptr);
}
