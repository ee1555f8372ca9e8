// FromHandle gives the very object that holds a handle, never one that has gone or has let it go.
#include "containers/arr.h"
#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <memory>
#include <thread>

namespace {

class Red : public CBrush
{
public:
    Red()
        : CBrush(RGB(255, 0, 0))
    {
    }
};

// An element as applications have them, with a handle of its own.
class PenRecord : public VrBaseCL
{
public:
    PenRecord() = default;
    PenRecord(const PenRecord& other)
        : VrBaseCL(other)
    {
        *this = other;
    }
    PenRecord& operator=(const PenRecord& other)
    {
        VrBaseCL::operator=(other);
        pen_.DeleteObject();
        if (other.pen_.m_hObject != nullptr) {
            LOGPEN look = {};
            other.pen_.GetLogPen(&look);
            pen_.CreatePenIndirect(&look);
        }
        return *this;
    }
    void SetM(int width) { pen_.CreatePen(PS_SOLID, width, RGB(0, 0, 0)); }
    CPen* PenM() { return &pen_; }

private:
    CPen pen_;
};

void expectOwnPens(Arr<PenRecord>& pens, int count)
{
    for (int k = 0; k < count; ++k) {
        CPen* const pen = pens[k].PenM();
        ASSERT_EQ(CPen::FromHandle(*pen), pen) << k;
    }
}

} // namespace

TEST(GdiOwners, FromHandleGivesTheObjectThatHoldsTheHandle)
{
    CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
    Red brush;
    CFont font;
    font.CreatePointFont(90, "Tahoma");
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 1, nullptr);
    CRgn region;
    region.CreateRectRgn(0, 0, 5, 5);
    EXPECT_EQ(CPen::FromHandle(pen), &pen);
    EXPECT_EQ(CBrush::FromHandle(brush), &brush);
    EXPECT_EQ(CFont::FromHandle(font), &font);
    EXPECT_EQ(CBitmap::FromHandle(bitmap), &bitmap);
    EXPECT_EQ(CRgn::FromHandle(region), &region);
    EXPECT_EQ(CGdiObject::FromHandle(pen.m_hObject), &pen);
    // Of another class it is none.
    CPen* const odd = CPen::FromHandle(static_cast<HPEN>(brush.m_hObject));
    EXPECT_NE(static_cast<CGdiObject*>(odd), &brush);
    EXPECT_EQ(CPen::FromHandle(nullptr), nullptr);
}

TEST(GdiOwners, SelectingGivesTheObjectSelectedBefore)
{
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
    CPen one(PS_SOLID, 1, RGB(1, 2, 3));
    CPen two(PS_SOLID, 2, RGB(1, 2, 3));
    CPen* const stock = memory.SelectObject(&one);
    EXPECT_NE(stock, nullptr);
    EXPECT_EQ(memory.SelectObject(&two), &one);
    EXPECT_EQ(memory.GetCurrentPen(), &two);
    EXPECT_EQ(memory.SelectObject(stock), &two);
    EXPECT_EQ(CDC::FromHandle(memory), &memory);
    const HDC handle = memory.Detach();
    CDC* const temporary = CDC::FromHandle(handle);
    EXPECT_NE(temporary, &memory);
    EXPECT_EQ(temporary->m_hAttribDC, handle);
    ::DeleteDC(handle);
}

TEST(GdiOwners, AWindowGivesTheFontObjectThatItWasGiven)
{
    CFont font;
    font.CreatePointFont(90, "Tahoma");
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, "Static", "", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0));
    window.SetFont(&font);
    EXPECT_EQ(window.GetFont(), &font);
    CClientDC dc(&window);
    EXPECT_EQ(CDC::FromHandle(dc), &dc);
}

TEST(GdiOwners, AnObjectThatLetsGoIsNoLongerFound)
{
    auto pen = std::make_unique<CPen>(PS_SOLID, 1, RGB(1, 2, 3));
    const HPEN handle = *pen;
    EXPECT_EQ(pen->Detach(), handle);
    EXPECT_NE(CPen::FromHandle(handle), pen.get());
    ASSERT_TRUE(pen->Attach(handle));
    EXPECT_EQ(CPen::FromHandle(handle), pen.get());
    // Emptied by hand, and destroyed so.
    pen->m_hObject = nullptr;
    EXPECT_NE(CPen::FromHandle(handle), pen.get());
    EXPECT_EQ(CPen::FromHandle(handle)->m_hObject, handle);
    const CPen* const gone = pen.get();
    pen.reset();
    EXPECT_NE(CPen::FromHandle(handle), gone);
    ::DeleteObject(handle);
}

TEST(GdiOwners, TheLastOfSeveralHoldersIsFoundWhileItHolds)
{
    CPen first(PS_SOLID, 1, RGB(1, 2, 3));
    const HPEN handle = first;
    {
        CPen second;
        second.Attach(handle);
        EXPECT_EQ(CPen::FromHandle(handle), &second);
        second.Detach();
    }
    EXPECT_EQ(CPen::FromHandle(handle)->m_hObject, handle);
    first.DeleteObject();
}

TEST(GdiOwners, ObjectsAreThoseOfTheirThread)
{
    auto made = std::make_unique<CPen>(PS_SOLID, 1, RGB(1, 2, 3));
    const HPEN handle = *made;
    bool found = true;
    std::unique_ptr<CPen> foreign;
    std::thread([&] {
        found = CPen::FromHandle(handle) == made.get();
        foreign = std::make_unique<CPen>(PS_SOLID, 3, RGB(1, 2, 3));
    }).join();
    EXPECT_FALSE(found);
    EXPECT_EQ(CPen::FromHandle(handle), made.get());
    const HPEN theirs = *foreign;
    EXPECT_NE(CPen::FromHandle(theirs), foreign.get());
    foreign.reset(); // by another thread than it was made by
    EXPECT_EQ(::GetObjectType(theirs), 0u);
}

TEST(GdiOwners, ElementsThatAnArrayMovesAreFoundWhereTheyLie)
{
    Arr<PenRecord> pens;
    for (int k = 0; k < 40; ++k) {
        PenRecord record;
        record.SetM(k + 1);
        record.SetDeleteTagM(AliveTag);
        pens.AddItemM(record);
        ASSERT_NO_FATAL_FAILURE(expectOwnPens(pens, k + 1));
    }
    PenRecord inserted;
    inserted.SetM(50);
    inserted.SetDeleteTagM(AliveTag);
    pens.InsertItemM(inserted, 3);
    ASSERT_NO_FATAL_FAILURE(expectOwnPens(pens, 41));
    pens.SwapM(0, 20);
    ASSERT_NO_FATAL_FAILURE(expectOwnPens(pens, 41));
    HPEN dropped[41] = {};
    for (int k = 2; k < 41; ++k) {
        dropped[k] = *pens[k].PenM();
        pens.DelItemM(k);
    }
    pens.PurgeAllM(nullptr);
    ASSERT_NO_FATAL_FAILURE(expectOwnPens(pens, 2));
    // Freed without a destructor: such an element must not be found in what is no longer memory of its own.
    for (int k = 2; k < 41; ++k) {
        CPen* const pen = CPen::FromHandle(dropped[k]);
        EXPECT_EQ(pen->m_hObject, dropped[k]);
        EXPECT_STREQ(pen->GetRuntimeClass()->m_lpszClassName, "CPen");
        ::DeleteObject(dropped[k]);
    }
}
