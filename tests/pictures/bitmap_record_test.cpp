#include "baselib/io.h"
#include "pictures/bitmap_record.h"
#include "pictures/brush_record.h"
#include "pictures/region_functions.h"
#include "pictures/rotation.h"
#include "support/platform_pictures.h"
#include <algorithm>
#include <random>
#include <vector>

namespace {

constexpr COLORREF Grey = RGB(100, 100, 100);

// The colour that placePicture has at x, y.
COLORREF place(int x, int y)
{
    return RGB(x, y, 7);
}

constexpr std::uint32_t Untouched = 0x5A5A5A5A;

// A part of a picture with room around it that nothing may be written to.
class PartCL
{
public:
    PartCL(const DVrBitmapCL& picture, int left, int top, int width, int height)
        : part_ { nullptr, left, top, width, height }
        , all_(Margin * 2 + static_cast<std::size_t>(width) * static_cast<std::size_t>(height), Untouched)
    {
        part_.pixels = all_.data() + Margin;
        isRead_ = picture.ReadPartM(part_);
    }

    bool IsReadM() const { return isRead_; }
    bool IsUntouchedM() const
    {
        return std::all_of(all_.begin(), all_.end(), [](auto pixel) { return pixel == Untouched; });
    }
    // Whether it has what canvas shows, and no more.
    bool IsLikeM(CDC* canvas, int width, int height) const
    {
        std::vector<std::uint32_t> expected(all_.size(), Untouched);
        std::size_t at = Margin;
        for (int y = part_.top; y < part_.top + part_.height; ++y) {
            for (int x = part_.left; x < part_.left + part_.width; ++x, ++at) {
                if (x >= 0 && x < width && y >= 0 && y < height) {
                    const COLORREF pixel = canvas->GetPixel(x, y);
                    expected[at] = static_cast<std::uint32_t>(
                        GetRValue(pixel) << 16 | GetGValue(pixel) << 8 | GetBValue(pixel));
                }
            }
        }
        return std::equal(all_.begin(), all_.end(), expected.begin(), [](auto pixel, auto wanted) {
            return pixel == wanted || (wanted != Untouched && (pixel & 0xFFFFFF) == wanted);
        });
    }

private:
    static constexpr std::size_t Margin = 64;
    PixelPartCL part_;
    std::vector<std::uint32_t> all_;
    bool isRead_;
};

// Reads many parts of a picture and compares each with what the picture shows when it is drawn.
void expectPartsAreRead(DVrBitmapCL* picture)
{
    const int width = picture->GetWidthM();
    const int height = picture->GetHeightM();
    Canvas canvas(width, height, Grey);
    ASSERT_EQ(1, picture->DrawBitmapM(&canvas.dc, 0, 0, nullptr));
    for (int left = -2; left <= width + 1; ++left) {
        for (int top = -2; top <= height + 1; ++top) {
            for (int size = 1; size <= width + 3; ++size) {
                const PartCL part(*picture, left, top, size, size + 1);
                ASSERT_TRUE(part.IsReadM());
                ASSERT_TRUE(part.IsLikeM(&canvas.dc, width, height)) << left << ' ' << top << ' ' << size;
            }
        }
    }
}

bool isBitmap(HGDIOBJ handle)
{
    return ::GetObjectType(handle) == OBJ_BITMAP;
}

HGDIOBJ handleOf(DVrBitmapCL* record)
{
    CBitmap* const bitmap = record->GetBitmapM();
    return bitmap != nullptr ? bitmap->GetSafeHandle() : nullptr;
}

} // namespace

TEST(BitmapRecord, IsEmptyAtFirst)
{
    DVrBitmapCL record;
    EXPECT_FALSE(record.IsAliveM());
    EXPECT_TRUE(DVrBitmapCL(AliveTag).IsAliveM());
    EXPECT_FALSE(record.HoldsBitmapM());
    EXPECT_EQ(nullptr, record.GetBitmapM());
    EXPECT_EQ(0, record.GetWidthM());
    EXPECT_EQ(0, record.GetHeightM());
    EXPECT_EQ(0, record.GetExtraM()[0]);
    EXPECT_EQ(0, record.GetExtraM()[1]);
    Canvas canvas(4, 4, Grey);
    EXPECT_EQ(0, record.DrawBitmapM(&canvas.dc, 0, 0, nullptr));
    EXPECT_EQ(0, record.DrawStretchBitmapM(&canvas.dc, 0, 0, 4, 4));
    EXPECT_EQ(0, record.BlendBitmapM(&canvas.dc));
    EXPECT_EQ(Grey, canvas.dc.GetPixel(0, 0));
}

TEST(BitmapRecord, LoadingReplacesAndDeletesTheBitmap)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    DVrBitmapCL record;
    EXPECT_EQ(1, record.LoadSafeBitmapM(file.path()));
    EXPECT_EQ(6, record.GetWidthM());
    EXPECT_EQ(4, record.GetHeightM());
    const HGDIOBJ first = handleOf(&record);
    EXPECT_EQ(0, record.LoadSafeBitmapM("no such picture.bmp"));
    EXPECT_FALSE(record.HoldsBitmapM());
    EXPECT_FALSE(isBitmap(first));
    record.LoadBitmapM(file.path());
    EXPECT_EQ(6, record.GetWidthM());
    record.LoadBitmapM("no such picture.bmp");
    EXPECT_EQ(0, record.GetWidthM());
    EXPECT_EQ(0, record.LoadSafeBitmapM(nullptr));
}

TEST(BitmapRecord, MovingTakesTheHandleAndLetsItsOwnGoUndeleted)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    CBitmap source;
    slLoadPicture(&source, file.path());
    DVrBitmapCL record;
    record.LoadBitmapM(file.path());
    const HGDIOBJ own = handleOf(&record);
    const HGDIOBJ moved = source.GetSafeHandle();
    EXPECT_EQ(1, record.MoveBitmapM(&source));
    EXPECT_EQ(nullptr, source.GetSafeHandle());
    EXPECT_EQ(moved, handleOf(&record));
    EXPECT_TRUE(isBitmap(own));
    ::DeleteObject(own);
    EXPECT_EQ(0, record.MoveBitmapM(nullptr));
    EXPECT_EQ(moved, handleOf(&record));
}

TEST(BitmapRecord, DeletingDeletesTheBitmapAndTheRecord)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    DVrBitmapCL record(AliveTag);
    record.LoadBitmapM(file.path());
    const HGDIOBJ handle = handleOf(&record);
    record.DelItemM();
    EXPECT_FALSE(record.IsAliveM());
    EXPECT_FALSE(isBitmap(handle));
    EXPECT_FALSE(record.HoldsBitmapM());
}

TEST(BitmapRecord, DestroyedRecordDeletesItsBitmap)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    HGDIOBJ handle = nullptr;
    {
        DVrBitmapCL record;
        record.LoadBitmapM(file.path());
        handle = handleOf(&record);
        ASSERT_TRUE(isBitmap(handle));
    }
    EXPECT_FALSE(isBitmap(handle));
}

TEST(BitmapRecord, AssignmentSharesTheBitmapAndCopiesTagAndNumbers)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    DVrBitmapCL source(AliveTag);
    source.LoadBitmapM(file.path());
    source.SetExtraM(3, 4);
    DVrBitmapCL target;
    target.LoadBitmapM(file.path());
    const HGDIOBJ own = handleOf(&target);
    target = source;
    EXPECT_EQ(handleOf(&source), handleOf(&target));
    EXPECT_TRUE(target.IsAliveM());
    EXPECT_EQ(3, target.GetExtraM()[0]);
    EXPECT_EQ(4, target.GetExtraM()[1]);
    EXPECT_TRUE(isBitmap(own)); // Let go, not deleted.
    ::DeleteObject(own);
    DVrBitmapCL& same = target;
    target = same;
    EXPECT_EQ(handleOf(&source), handleOf(&target));
    target = DVrBitmapCL();
    EXPECT_FALSE(target.HoldsBitmapM());
    EXPECT_TRUE(source.HoldsBitmapM());
}

TEST(BitmapRecord, SharedBitmapDiesWithTheFirstOfItsRecords)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    DVrBitmapCL target;
    HGDIOBJ shared = nullptr;
    {
        DVrBitmapCL source(AliveTag);
        source.LoadBitmapM(file.path());
        target = source;
        shared = handleOf(&target);
        EXPECT_EQ(6, target.GetWidthM());
    }
    EXPECT_FALSE(isBitmap(shared));
    EXPECT_EQ(0, target.GetWidthM());
    EXPECT_EQ(0, target.GetHeightM());
    Canvas canvas(8, 8, Grey);
    const int small[2] = { 2, 2 };
    EXPECT_EQ(0, target.DrawBitmapM(&canvas.dc, 0, 0, nullptr));
    EXPECT_EQ(0, target.DrawBitmapM(&canvas.dc, 0, 0, &small));
    EXPECT_EQ(0, target.DrawStretchBitmapM(&canvas.dc, 0, 0, 8, 8));
    EXPECT_EQ(0, target.BlendBitmapM(&canvas.dc));
    EXPECT_EQ(Grey, canvas.dc.GetPixel(0, 0));
    EXPECT_EQ(nullptr, target.GetBitmapM());
}

TEST(BitmapRecord, HandleGivenToAnotherObjectIsLeftAlone)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    DVrBitmapCL first;
    DVrBitmapCL second;
    first.LoadBitmapM(file.path());
    second = first;
    const HGDIOBJ shared = handleOf(&first);
    first.DelItemM();
    // The system gives a place to a new object under another number each time, until the numbers come round.
    HGDIOBJ other = nullptr;
    for (int i = 0; i < 100000 && other != shared; ++i) {
        ::DeleteObject(other);
        other = ::CreateBitmap(1, 1, 1, 32, nullptr);
    }
    ASSERT_EQ(other, shared);
    EXPECT_EQ(0, second.GetWidthM());
    second.LoadBitmapM("no such picture.bmp");
    DVrBitmapCL third;
    third = second;
    second.DelItemM();
    EXPECT_TRUE(isBitmap(other));
    ::DeleteObject(other);
}

TEST(BitmapRecord, DrawsAtItsOwnSizeWithoutASmallerOne)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    DVrBitmapCL record;
    record.LoadBitmapM(file.path());
    const int equal[2] = { 6, 4 };
    const int larger[2] = { 60, 40 };
    for (const int(*size)[2] : { static_cast<const int(*)[2]>(nullptr), &equal, &larger }) {
        Canvas canvas(20, 20, Grey);
        EXPECT_EQ(1, record.DrawBitmapM(&canvas.dc, 3, 2, size));
        EXPECT_EQ(Grey, canvas.dc.GetPixel(2, 2));
        EXPECT_EQ(place(0, 0), canvas.dc.GetPixel(3, 2));
        EXPECT_EQ(place(5, 3), canvas.dc.GetPixel(8, 5));
        EXPECT_EQ(Grey, canvas.dc.GetPixel(9, 5));
        EXPECT_EQ(Grey, canvas.dc.GetPixel(8, 6));
    }
}

TEST(BitmapRecord, SmallerSizeInOneDirectionScales)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(8, 8));
    DVrBitmapCL record;
    record.LoadBitmapM(file.path());
    const int narrow[2] = { 4, 8 };
    Canvas canvas(20, 20, Grey);
    EXPECT_EQ(1, record.DrawBitmapM(&canvas.dc, 0, 0, &narrow));
    EXPECT_NE(Grey, canvas.dc.GetPixel(3, 7));
    EXPECT_EQ(Grey, canvas.dc.GetPixel(4, 7));
    const int low[2] = { 12, 4 };
    Canvas other(20, 20, Grey);
    EXPECT_EQ(1, record.DrawBitmapM(&other.dc, 0, 0, &low));
    EXPECT_NE(Grey, other.dc.GetPixel(11, 3));
    EXPECT_EQ(Grey, other.dc.GetPixel(11, 4));
}

TEST(BitmapRecord, ScaledSourceBeginsAtTheDestinationsPlace)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(16, 16));
    DVrBitmapCL record;
    record.LoadBitmapM(file.path());
    CBitmap bitmap;
    slLoadPicture(&bitmap, file.path());
    const int size[2] = { 8, 8 };
    Canvas canvas(20, 20, Grey);
    EXPECT_EQ(1, record.DrawBitmapM(&canvas.dc, 4, 2, &size));
    // The same step by the platform alone.
    Canvas expected(20, 20, Grey);
    CDC source;
    source.CreateCompatibleDC(&expected.dc);
    const HGDIOBJ previous = ::SelectObject(source.m_hDC, bitmap.m_hObject);
    expected.dc.StretchBlt(4, 2, 8, 8, &source, 4, 2, 16, 16, SRCCOPY);
    ::SelectObject(source.m_hDC, previous);
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            ASSERT_EQ(expected.dc.GetPixel(x, y), canvas.dc.GetPixel(x, y)) << x << "," << y;
        }
    }
    // And not from the bitmap's own corner on.
    const COLORREF corner = canvas.dc.GetPixel(4, 2);
    EXPECT_GE(GetRValue(corner), 4);
    EXPECT_GE(GetGValue(corner), 2);
}

TEST(BitmapRecord, StretchesIntoARectangle)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(4, 4));
    DVrBitmapCL record;
    record.LoadBitmapM(file.path());
    Canvas canvas(20, 20, Grey);
    EXPECT_EQ(1, record.DrawStretchBitmapM(&canvas.dc, 2, 3, 12, 8));
    EXPECT_EQ(place(0, 0), canvas.dc.GetPixel(2, 3));
    EXPECT_EQ(place(3, 3), canvas.dc.GetPixel(13, 10));
    EXPECT_EQ(Grey, canvas.dc.GetPixel(14, 10));
    EXPECT_EQ(Grey, canvas.dc.GetPixel(13, 11));
}

TEST(BitmapRecord, PaintingOverExchangesWidthAndHeight)
{
    for (const auto& measures :
        { std::pair<int, int>(6, 4), std::pair<int, int>(3, 7), std::pair<int, int>(5, 5) }) {
        const int w = measures.first;
        const int h = measures.second;
        const TestFile file("bitmap_record_test.bmp", placePicture(w, h));
        DVrBitmapCL record;
        record.LoadBitmapM(file.path());
        Canvas canvas(10, 10, Grey);
        canvas.dc.SetTextColor(RGB(1, 2, 3));
        EXPECT_EQ(1, record.BlendBitmapM(&canvas.dc));
        EXPECT_EQ(RGB(1, 2, 3), canvas.dc.GetTextColor());
        EXPECT_EQ(Grey, canvas.dc.GetPixel(0, 0));
        record.DrawBitmapM(&canvas.dc, 0, 0, nullptr);
        for (int y = 0; y < h; ++y) {
            for (int x = 0; x < w; ++x) {
                const COLORREF expected = x < h && y < w ? RGB(0, 0, 255) : place(x, y);
                EXPECT_EQ(expected, canvas.dc.GetPixel(x, y)) << w << "x" << h << " at " << x << "," << y;
            }
        }
    }
}

TEST(BitmapRecord, BitmapSelectedElsewhereIsNotPainted)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(4, 4));
    DVrBitmapCL record;
    record.LoadBitmapM(file.path());
    CDC other;
    other.CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = ::SelectObject(other.m_hDC, handleOf(&record));
    Canvas canvas(4, 4, Grey);
    EXPECT_EQ(0, record.BlendBitmapM(&canvas.dc));
    ::SelectObject(other.m_hDC, previous);
    EXPECT_EQ(1, record.BlendBitmapM(&canvas.dc));
    EXPECT_EQ(0, record.BlendBitmapM(nullptr));
}

TEST(BitmapRecordList, AddingTakesTheNameAsGiven)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    std::string name = file.path();
    name.resize(name.size() - 4);
    DVrBitmapArr list;
    EXPECT_EQ(-1, list.AddBitmapM(name.c_str()));
    EXPECT_EQ(0, list.GetBoundM());
    EXPECT_EQ(0, list.GetAvailableNumM());
    EXPECT_EQ(0, list.AddBitmapM(file.path()));
    EXPECT_EQ(1, list.AddBitmapM(file.path()));
    EXPECT_EQ(-1, list.AddBitmapM("no such picture.bmp"));
    EXPECT_EQ(2, list.GetBoundM());
    EXPECT_EQ(2, list.GetAvailableNumM());
    int size[2] = { -1, -1 };
    EXPECT_EQ(1, list.GetBmpSizeM(1, size));
    EXPECT_EQ(6, size[0]);
    EXPECT_EQ(4, size[1]);
}

TEST(BitmapRecordList, StaysLoadedWhenItGrows)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    DVrBitmapArr list;
    for (int i = 5; i < 20; ++i) {
        ASSERT_EQ(i - 5, list.AddBitmapM(file.path()));
    }
    int size[2] = { 0, 0 };
    // The first four were assigned from the store inside the list, which still shares them.
    for (int i = 0; i < 15; ++i) {
        EXPECT_EQ(1, list.GetBmpSizeM(i, size));
        EXPECT_EQ(6, size[0]) << i;
    }
}

TEST(BitmapRecordList, SettingCompletesANameWithoutExtension)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    const TestFile upper("bitmap_record_upper.DAT", placePicture(3, 2));
    std::string name = file.path();
    name.resize(name.size() - 4);
    DVrBitmapArr list;
    EXPECT_EQ(1, list.SetBitmapM(2, name.c_str()));
    EXPECT_EQ(3, list.GetBoundM());
    EXPECT_EQ(1, list.GetAvailableNumM());
    EXPECT_EQ(6, list.ElementAtM(2).GetWidthM());
    EXPECT_EQ(1, list.SetBitmapM(2, upper.path()));
    EXPECT_EQ(3, list.ElementAtM(2).GetWidthM());
    EXPECT_EQ(0, list.SetBitmapM(2, "no such picture"));
    EXPECT_EQ(1, list.CheckAvailableM(2)); // Alive and empty.
    EXPECT_FALSE(list.ElementAtM(2).HoldsBitmapM());
    EXPECT_EQ(0, list.SetBitmapM(-1, file.path()));
    EXPECT_EQ(0, list.SetBitmapM(0, nullptr));
}

TEST(BitmapRecordList, InsertingShiftsAndAFailedOneIsDeleted)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    const TestFile small("bitmap_record_small.bmp", placePicture(3, 2));
    std::string name = small.path();
    name.resize(name.size() - 4);
    DVrBitmapArr list;
    list.AddBitmapM(file.path());
    EXPECT_EQ(1, list.InsertBitmapM(0, name.c_str()));
    EXPECT_EQ(2, list.GetBoundM());
    EXPECT_EQ(3, list.ElementAtM(0).GetWidthM());
    EXPECT_EQ(6, list.ElementAtM(1).GetWidthM());
    EXPECT_EQ(0, list.InsertBitmapM(1, "no such picture.bmp"));
    EXPECT_EQ(3, list.GetBoundM());
    EXPECT_EQ(2, list.GetAvailableNumM());
    EXPECT_EQ(0, list.CheckAvailableM(1));
    EXPECT_EQ(6, list.ElementAtM(2).GetWidthM());
    EXPECT_EQ(0, list.InsertBitmapM(-1, file.path()));
}

TEST(BitmapRecordList, DrawsAliveSlotsThatHoldABitmap)
{
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    DVrBitmapArr list;
    list.AddBitmapM(file.path());
    list.AddItemM(DVrBitmapCL(AliveTag));
    list.AddBitmapM(file.path());
    list.AddBitmapM(file.path());
    list.DelItemM(2);
    Canvas canvas(8, 8, Grey);
    EXPECT_EQ(0, list.DrawBitmapM(1, &canvas.dc, 0, 0, nullptr));
    EXPECT_EQ(0, list.DrawBitmapM(2, &canvas.dc, 0, 0, nullptr));
    EXPECT_EQ(Grey, canvas.dc.GetPixel(0, 0));
    EXPECT_EQ(1, list.DrawBitmapM(0, &canvas.dc, 1, 1, nullptr));
    EXPECT_EQ(place(0, 0), canvas.dc.GetPixel(1, 1));
    int size[2] = { -1, -1 };
    EXPECT_EQ(1, list.GetBmpSizeM(1, size));
    EXPECT_EQ(0, size[0]);
    EXPECT_EQ(0, list.GetBmpSizeM(2, size));
    EXPECT_EQ(0, list.GetBmpSizeM(-1, size));
    EXPECT_EQ(0, list.GetBmpSizeM(9, size));
}

TEST(BrushRecord, HoldsNoBrushAtFirstAndDeletesItsOwn)
{
    HGDIOBJ handle = nullptr;
    {
        DVrBrushCL brush;
        EXPECT_EQ(nullptr, brush.GetSafeHandle());
        brush.CreateSolidBrush(RGB(1, 2, 3));
        handle = brush.GetSafeHandle();
        ASSERT_EQ(static_cast<DWORD>(OBJ_BRUSH), ::GetObjectType(handle));
    }
    EXPECT_EQ(0U, ::GetObjectType(handle));
}

TEST(BitmapArr, InsertedCopyOfAnOwnPictureIsAPictureToo)
{
    const TestFile file("inserted.bmp", placePicture(3, 2));
    DVrBitmapArr list;
    list.AddBitmapM(file.path());
    list.AddBitmapM(file.path());
    list.InsertItemM(list[1], 0);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(list[i].HoldsBitmapM()) << i;
    }
    list.InsertItemM(list[0], 2);
    EXPECT_TRUE(list[2].HoldsBitmapM());
}

TEST(BitmapRecord, RecordWhoseBitmapWasMovedAwayHoldsNone)
{
    const TestFile file("moved.bmp", placePicture(3, 2));
    DVrBitmapCL from;
    from.LoadBitmapM(file.path());
    DVrBitmapCL to;
    EXPECT_EQ(to.MoveBitmapM(from.GetBitmapM()), 1);
    EXPECT_FALSE(from.HoldsBitmapM());
    EXPECT_TRUE(to.HoldsBitmapM());
}

TEST(BitmapRecord, DroppedBitmapIsDeletedUnlessItIsShared)
{
    const TestFile file("dropped.bmp", placePicture(3, 2));
    DVrBitmapCL alone;
    alone.LoadBitmapM(file.path());
    const HGDIOBJ handle = alone.GetBitmapM()->m_hObject;
    alone.DropM();
    EXPECT_FALSE(alone.HoldsBitmapM());
    BITMAP measures {};
    EXPECT_EQ(::GetObjectW(handle, sizeof measures, &measures), 0);
    DVrBitmapCL first;
    first.LoadBitmapM(file.path());
    DVrBitmapCL second(first);
    first.DropM();
    EXPECT_FALSE(first.HoldsBitmapM());
    EXPECT_EQ(second.GetWidthM(), 3);
}

TEST(BitmapRecord, MovingKeepsTheOtherHoldersOfTheBitmapSafe)
{
    const TestFile file("moved.bmp", placePicture(3, 2));
    Canvas canvas(8, 8, Grey);
    DVrBitmapCL third;
    HGDIOBJ shared = nullptr;
    {
        DVrBitmapCL first;
        first.LoadBitmapM(file.path());
        DVrBitmapCL second(first);
        third = first;
        shared = handleOf(&third);
        EXPECT_EQ(1, first.MoveBitmapM(second.GetBitmapM()));
        EXPECT_FALSE(second.HoldsBitmapM());
        EXPECT_EQ(shared, handleOf(&first));
        EXPECT_EQ(3, third.GetWidthM());
    }
    EXPECT_FALSE(isBitmap(shared));
    EXPECT_FALSE(third.HoldsBitmapM());
    EXPECT_EQ(0, third.DrawBitmapM(&canvas.dc, 0, 0, nullptr));
    EXPECT_EQ(0, third.BlendBitmapM(&canvas.dc));
    // The system gives the handle to something else: nobody touches it.
    HGDIOBJ other = nullptr;
    for (int i = 0; i < 100000 && other != shared; ++i) {
        ::DeleteObject(other);
        other = ::CreateBitmap(1, 1, 1, 32, nullptr);
    }
    ASSERT_EQ(other, shared);
    EXPECT_EQ(0, third.GetWidthM());
    third.DelItemM();
    EXPECT_TRUE(isBitmap(other));
    ::DeleteObject(other);
}

TEST(BitmapRecord, MovingADeadBitmapGivesNone)
{
    const TestFile file("moved.bmp", placePicture(3, 2));
    DVrBitmapCL first;
    first.LoadBitmapM(file.path());
    DVrBitmapCL second(first);
    CBitmap* const source = second.GetBitmapM();
    first.DelItemM();
    DVrBitmapCL third;
    EXPECT_EQ(1, third.MoveBitmapM(source));
    EXPECT_FALSE(third.HoldsBitmapM());
    EXPECT_FALSE(second.HoldsBitmapM());
}

namespace {

// The widths of the pictures below the bound; 0 for one that is gone.
std::vector<int> widthsOf(const DVrBitmapArr& list)
{
    std::vector<int> widths;
    for (int i = 0; i < list.GetBoundM(); ++i) {
        widths.push_back(list.GetItemPM(i)->GetWidthM());
    }
    return widths;
}

// Pictures 1, 2, ... pixels wide.
void addPictures(DVrBitmapArr* list, int count)
{
    for (int w = 1; w <= count; ++w) {
        const TestFile file("listed.bmp", placePicture(w, 2));
        ASSERT_NE(-1, list->AddBitmapM(file.path()));
    }
}

} // namespace

TEST(BitmapArr, InsertingAfterAPurgeLeavesThePicturesOfTheMovedItems)
{
    for (const int count : { 4, 7 }) { // Inside the list and in a block of its own.
        DVrBitmapArr list;
        addPictures(&list, count);
        list.DelItemM(0);
        list.DelItemM(1);
        list.PurgeDeletedItemM();
        std::vector<int> expected;
        for (int w = 3; w <= count; ++w) {
            expected.push_back(w);
        }
        EXPECT_EQ(expected, widthsOf(list));
        for (int i = 0; i < 2; ++i) {
            list.InsertItemM(DVrBitmapCL(AliveTag), 0);
            expected.insert(expected.begin(), 0);
            EXPECT_EQ(expected, widthsOf(list)) << count;
        }
    }
}

TEST(BitmapArr, SlotBehindTheBoundCanBeInserted)
{
    DVrBitmapArr list;
    addPictures(&list, 7);
    list.DelItemM(0);
    list.DelItemM(1);
    list.PurgeDeletedItemM(); // 3 4 5 6 7, then 6 and 7 again.
    list.InsertItemM(list[5], 1);
    EXPECT_EQ((std::vector<int> { 3, 6, 4, 5, 6, 7 }), widthsOf(list));
    list.DelItemM(5);
    list.DelItemM(4);
    DVrBitmapCL seventh;
    const TestFile file("listed.bmp", placePicture(9, 2));
    seventh.LoadBitmapM(file.path());
    list[7] = seventh; // The last slot of the store.
    list.InsertItemM(list[7], 0);
    EXPECT_EQ((std::vector<int> { 9, 3, 0, 4, 5 }), widthsOf(list));
}

TEST(BitmapArr, AssignedToItsCopyKeepsItsPictures)
{
    DVrBitmapArr list;
    addPictures(&list, 6);
    DVrBitmapArr copy(list);
    copy = list;
    EXPECT_EQ((std::vector<int> { 1, 2, 3, 4, 5, 6 }), widthsOf(list));
    EXPECT_EQ((std::vector<int> { 1, 2, 3, 4, 5, 6 }), widthsOf(copy));
}

TEST(BitmapArr, ReadingAListLeavesPicturesThatSlotsBehindTheBoundShare)
{
    DVrBitmapArr list;
    addPictures(&list, 2);
    const DVrBitmapCL kept = list[1];
    list.DelItemM(0);
    list.PurgeDeletedItemM();
    list.SetItemM(DVrBitmapCL(AliveTag), 0); // Now only the slot behind the bound shares it.
    const TestFile file("listed.txt", std::string("3\n0\n1\n2\n"));
    VrIOCL io;
    io.OpenM(file.path(), "r");
    list.FmInputEvrLstM(&io);
    EXPECT_EQ(3, list.GetBoundM());
    EXPECT_EQ(0, list.GetAvailableNumM());
    EXPECT_EQ(2, kept.GetWidthM());
}

TEST(BitmapRecord, PartsOfPicturesWithoutAPaletteAreReadAtOnce)
{
    std::mt19937 random(3);
    for (const int bits : { 24, 32 }) {
        for (int width = 1; width <= 6; ++width) { // Rows end with 0 to 3 bytes that are no pixels.
            BmpFile file;
            file.bits = bits;
            file.width = width;
            file.height = 3;
            for (int y = 0; y < file.height; ++y) {
                std::vector<std::uint32_t> row(static_cast<std::size_t>(width));
                std::generate(row.begin(), row.end(), [&] { return random() & 0xFFFFFF; });
                file.addRow(row);
            }
            const TestFile saved("bitmap_record_test.bmp", file);
            DVrBitmapCL picture;
            ASSERT_EQ(1, picture.LoadSafeBitmapM(saved.path()));
            expectPartsAreRead(&picture);
            DVrBitmapCL scaled;
            ASSERT_EQ(1, scaled.LoadScaledM(saved.path(), PictureScaleCL(ScaleCL(200), { 0, 0 })));
            ASSERT_EQ(width * 2, scaled.GetWidthM());
            expectPartsAreRead(&scaled);
        }
    }
}

TEST(BitmapRecord, PartsOfOtherPicturesAreNot)
{
    EXPECT_FALSE(PartCL(DVrBitmapCL(), 0, 0, 2, 2).IsReadM());
    for (const int bits : { 1, 4, 8, 16 }) {
        BmpFile file;
        file.bits = bits;
        file.palette.resize(bits <= 8 ? std::size_t { 1 } << bits : 0);
        file.addRow({ 1 });
        const TestFile saved("bitmap_record_test.bmp", file);
        DVrBitmapCL picture;
        ASSERT_EQ(1, picture.LoadSafeBitmapM(saved.path()));
        const PartCL part(picture, 0, 0, 1, 1);
        EXPECT_FALSE(part.IsReadM()) << bits;
        EXPECT_TRUE(part.IsUntouchedM()) << bits;
    }
    const TestFile file("bitmap_record_test.bmp", placePicture(6, 4));
    DVrBitmapCL picture;
    ASSERT_EQ(1, picture.LoadSafeBitmapM(file.path()));
    EXPECT_TRUE(PartCL(picture, 0, 0, 6, 4).IsReadM());
    const DVrBitmapCL other(picture);
    EXPECT_TRUE(PartCL(other, 0, 0, 6, 4).IsReadM());
    ASSERT_NE(nullptr, picture.GetBitmapM()); // Its own now: whoever has it may do anything to it.
    EXPECT_FALSE(PartCL(picture, 0, 0, 6, 4).IsReadM());
    EXPECT_FALSE(PartCL(other, 0, 0, 6, 4).IsReadM());
    picture.DelItemM();
    EXPECT_FALSE(PartCL(other, 0, 0, 6, 4).IsReadM());
}
