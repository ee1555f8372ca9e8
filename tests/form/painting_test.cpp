// Painting by the short interfaces, and what else they do with pictures.
#include "form/form.h"
#include "form/opened_dialog.h"
#include <climits>
#include <stdexcept>
#include <thread>

using namespace testing_support;
using panelkit::Canvas;
using panelkit::Form;

namespace {

constexpr COLORREF Ground = RGB(0, 128, 255);
constexpr uint32_t Ink = 0xFF8040;        // As a colour of the interface,
const COLORREF Inked = RGB(255, 128, 64); // and as it is shown.

// A drawing (11) of 60 by 40 pixels, a special animation (12) and one that the program controls (13) with a
// red and a green frame, a bitmap button (14) and a label (15).
class PaintingTest : public testing::Test
{
protected:
    std::string sectionsM() const
    {
        return HeaderSections
            + std::string("[二维绘图控件]\n1\n0\n1 11 20 30 60 40 0 128 255\n"
                          "[特殊动画控件]\n1\n0\n2 12 100 30 20 20 0 0\n[特殊动画控件位图]\n2\n0\n12 ")
            + red_.path() + "\n12 " + green_.path()
            + "\n[普通动画控件]\n1\n0\n3 13 140 30 20 20 2 0 0 0\n[普通动画控件位图]\n2\n0\n13 " + red_.path()
            + "\n13 " + green_.path() + "\n[位图按钮]\n1\n0\n4 14 180 30 20 20\n" + red_.path() + "\n"
            + green_.path() + "\n" + red_.path() + "\n" + red_.path()
            + "\nNULL\n[标题]\n1\n0\n5 15 220 30 60 20 1\nlabel\n0 -1 0 0\n";
    }

    const SmallPictureCL red_ { 0xFF0000, 20, 20 };
    const SmallPictureCL green_ { 0x00FF00, 20, 20 };
};

class CPainting : public PaintingTest
{
protected:
    using PainterTP = std::function<void(panelkit_canvas*)>;
    CPainting() { opened_.ShowM(); }

    panelkit_status setM(int id, PainterTP painter)
    {
        painter_ = std::move(painter);
        return panelkit_set_painter(opened_.dialog, id, &paint, this);
    }
    Pixels shownM(int id = 11)
    {
        PumpPending();
        return Pixels(opened_.ItemM(id));
    }
    // The drawing as that painter paints it.
    Pixels paintedM(PainterTP painter)
    {
        EXPECT_EQ(setM(11, std::move(painter)), PANELKIT_OK);
        return shownM();
    }
    // Whether that is drawn of Ink: the rectangle (right and bottom outside) and so many pixels in it.
    static void expectInk(const Pixels& shown, const RECT& box, int count)
    {
        RECT found { INT_MAX, INT_MAX, -1, -1 };
        for (int y = 0; y < shown.HeightM(); ++y) {
            for (int x = 0; x < shown.WidthM(); ++x) {
                if (shown.AtM(x, y) == Inked) {
                    found = { std::min<LONG>(found.left, x), std::min<LONG>(found.top, y),
                        std::max<LONG>(found.right, x + 1), std::max<LONG>(found.bottom, y + 1) };
                }
            }
        }
        EXPECT_TRUE(::EqualRect(&found, &box) || count == 0)
            << found.left << " " << found.top << " " << found.right << " " << found.bottom;
        EXPECT_EQ(shown.CountM(Inked), count);
        EXPECT_EQ(shown.CountM(Ground), shown.WidthM() * shown.HeightM() - count);
    }

    OpenedDialogCL opened_ { sectionsM() };
    int calls_ { 0 };

private:
    static void PANELKIT_CALL paint(panelkit_canvas* canvas, void* user)
    {
        auto* const self = static_cast<CPainting*>(user);
        ++self->calls_;
        const PainterTP painter = self->painter_;
        painter(canvas);
    }
    PainterTP painter_;
};

class FormPainting : public PaintingTest
{
protected:
    static HWND item(const Form& form, int id) { return ::GetDlgItem(static_cast<HWND>(form.Native()), id); }
    static void show(Form& form)
    {
        EXPECT_TRUE(form.Show()) << form.Error();
        EXPECT_TRUE(ActivateM(static_cast<HWND>(form.Native())));
        PumpPending();
    }
    const DescriptionFileCL file_ { sectionsM() };
};

} // namespace

TEST_F(CPainting, LinesHaveBothEnds)
{
    const auto line = [this](int x1, int y1, int x2, int y2, int width) {
        return paintedM([=](panelkit_canvas* canvas) {
            EXPECT_EQ(panelkit_canvas_line(canvas, x1, y1, x2, y2, Ink, width), PANELKIT_OK);
        });
    };
    expectInk(line(2, 3, 9, 3, 1), { 2, 3, 10, 4 }, 8);
    expectInk(line(9, 3, 2, 3, 1), { 2, 3, 10, 4 }, 8);
    expectInk(line(2, 3, 2, 30, 1), { 2, 3, 3, 31 }, 28);
    expectInk(line(2, 3, 11, 12, 1), { 2, 3, 12, 13 }, 10);
    expectInk(line(7, 7, 7, 7, 1), { 7, 7, 8, 8 }, 1);
    expectInk(line(-100, 5, 100, 5, 1), { 0, 5, 60, 6 }, 60);
    expectInk(line(INT_MIN, 5, INT_MAX, 5, 1), { 0, 5, 60, 6 }, 60);
    expectInk(line(INT_MIN, INT_MIN, INT_MAX, INT_MAX, 1), { 0, 0, 40, 40 }, 40);
    const Pixels none = line(INT_MIN, -9, INT_MAX, -9, 1);
    EXPECT_EQ(none.CountM(Ground), 60 * 40);
    EXPECT_EQ(line(INT_MAX, 3, INT_MAX, 4, 1).CountM(Ground), 60 * 40);
    const Pixels wide = line(10, 20, 40, 20, 5);
    for (int x = 10; x <= 40; ++x) {
        for (int y = 17; y <= 23; ++y) {
            EXPECT_EQ(wide.AtM(x, y), y >= 18 && y <= 22 ? Inked : Ground) << x << " " << y;
        }
    }
    EXPECT_EQ(line(20, 20, 20, 20, 5).AtM(20, 20), Inked);
}

TEST_F(CPainting, PolylinesJoinTheirPoints)
{
    const auto lines = [this](std::vector<int32_t> points, int width = 1) {
        return paintedM([=](panelkit_canvas* canvas) {
            EXPECT_EQ(
                panelkit_canvas_polyline(canvas, points.data(), points.size() / 2, Ink, width), PANELKIT_OK);
        });
    };
    expectInk(lines({ 2, 3, 9, 3, 9, 10 }), { 2, 3, 10, 11 }, 15);
    expectInk(lines({ 5, 6 }), { 5, 6, 6, 7 }, 1);
    EXPECT_EQ(lines({}).CountM(Inked), 0);
    expectInk(lines({ 5, 6, 5, 6, 5, 6 }), { 5, 6, 6, 7 }, 1);
    // Up out of all reach, along there, and down again.
    expectInk(lines({ 10, 20, 10, INT_MIN, 30, INT_MIN, 30, 20 }), { 10, 0, 31, 21 }, 42);
    const Pixels corner = lines({ 10, 20, 30, 20, 30, 30 }, 3);
    EXPECT_EQ(corner.AtM(29, 19), Inked);
    EXPECT_EQ(corner.AtM(31, 21), Inked);
}

TEST_F(CPainting, RectanglesKeepTheirLinesInside)
{
    const auto rectangle = [this](int x, int y, int width, int height, int line) {
        return paintedM([=](panelkit_canvas* canvas) {
            EXPECT_EQ(line > 0 ? panelkit_canvas_rectangle(canvas, x, y, width, height, Ink, line)
                               : panelkit_canvas_fill_rectangle(canvas, x, y, width, height, Ink),
                PANELKIT_OK);
        });
    };
    expectInk(rectangle(5, 6, 20, 10, 0), { 5, 6, 25, 16 }, 200);
    expectInk(rectangle(5, 6, 20, 10, 1), { 5, 6, 25, 16 }, 56);
    expectInk(rectangle(5, 6, 20, 10, 2), { 5, 6, 25, 16 }, 200 - 16 * 6);
    expectInk(rectangle(5, 6, 20, 10, 50), { 5, 6, 25, 16 }, 200);
    expectInk(rectangle(5, 6, 1, 1, 1), { 5, 6, 6, 7 }, 1);
    EXPECT_EQ(rectangle(5, 6, 0, 10, 1).CountM(Inked), 0);
    EXPECT_EQ(rectangle(5, 6, 10, 0, 0).CountM(Inked), 0);
    expectInk(rectangle(-5, -5, 10, 10, 1), { 0, 0, 5, 5 }, 9);
    expectInk(rectangle(50, 30, INT_MAX, INT_MAX, 0), { 50, 30, 60, 40 }, 100);
    expectInk(rectangle(INT_MIN, INT_MIN, INT_MAX, INT_MAX, 0), {}, 0);
    expectInk(rectangle(50, 30, INT_MAX, INT_MAX, 2), { 50, 30, 60, 40 }, 36);
}

TEST_F(CPainting, EllipsesFillTheirRectangle)
{
    const auto ellipse = [this](int x, int y, int width, int height, int line) {
        return paintedM([=](panelkit_canvas* canvas) {
            EXPECT_EQ(line > 0 ? panelkit_canvas_ellipse(canvas, x, y, width, height, Ink, line)
                               : panelkit_canvas_fill_ellipse(canvas, x, y, width, height, Ink),
                PANELKIT_OK);
        });
    };
    const Pixels filled = ellipse(5, 6, 30, 20, 0);
    EXPECT_NEAR(filled.CountM(Inked), 3.14159 * 15 * 10, 20);
    expectInk(filled, { 5, 6, 35, 26 }, filled.CountM(Inked));
    for (const int width : { 1, 3, 4 }) {
        const Pixels drawn = ellipse(5, 6, 30, 20, width);
        expectInk(drawn, { 5, 6, 35, 26 }, drawn.CountM(Inked));
        EXPECT_EQ(drawn.AtM(20, 6 + width - 1), Inked) << width;
        EXPECT_EQ(drawn.AtM(20, 6 + width), Ground) << width;
        EXPECT_EQ(drawn.AtM(5 + width - 1, 16), Inked) << width;
        EXPECT_EQ(drawn.AtM(5 + width, 16), Ground) << width;
        EXPECT_EQ(drawn.AtM(20, 16), Ground) << width;
    }
    EXPECT_EQ(ellipse(5, 6, 30, 20, 10).DifferencesM(filled), 0);
    expectInk(ellipse(5, 6, 1, 1, 0), { 5, 6, 6, 7 }, 1);
    expectInk(ellipse(5, 6, 2, 2, 1), { 5, 6, 7, 8 }, 4);
    EXPECT_EQ(ellipse(5, 6, 0, 20, 1).CountM(Inked), 0);
    EXPECT_EQ(ellipse(INT_MIN, INT_MAX, 30, INT_MAX, 0).CountM(Inked), 0);
    EXPECT_EQ(ellipse(INT_MIN / 2, INT_MIN / 2, INT_MAX, INT_MAX, 0).CountM(Inked), 60 * 40);
    EXPECT_EQ(ellipse(INT_MIN / 2, INT_MIN / 2, INT_MAX, INT_MAX, 9).CountM(Inked), 0);
}

TEST_F(CPainting, TextStandsWhereItIsAligned)
{
    int32_t width = 0;
    const auto text = [&](int x, int y, const char* shown, int height, int alignment) {
        return paintedM([=, &width](panelkit_canvas* canvas) {
            EXPECT_EQ(panelkit_canvas_text_width(canvas, shown, height, &width), PANELKIT_OK);
            EXPECT_EQ(panelkit_canvas_text(canvas, x, y, shown, height, Ink, alignment), PANELKIT_OK);
        });
    };
    const auto columns = [](const Pixels& shown) {
        std::pair<int, int> found { INT_MAX, -1 };
        for (int x = 0; x < shown.WidthM(); ++x) {
            for (int y = 0; y < shown.HeightM(); ++y) {
                if (shown.AtM(x, y) != Ground) {
                    found = { std::min(found.first, x), x };
                }
            }
        }
        return found;
    };
    const auto left = columns(text(10, 10, "HH", 14, PANELKIT_ALIGN_LEFT));
    EXPECT_GE(left.first, 10);
    EXPECT_LT(left.second, 10 + width);
    const int inset = left.first - 10;
    EXPECT_EQ(columns(text(50, 10, "HH", 14, PANELKIT_ALIGN_RIGHT)).first, 50 - width + inset);
    EXPECT_EQ(columns(text(30, 10, "HH", 14, PANELKIT_ALIGN_CENTRE)).first, 30 - width / 2 + inset);
    const Pixels low = text(10, 20, u8"笔", 12, PANELKIT_ALIGN_LEFT);
    EXPECT_GT(low.WidthM() * low.HeightM() - low.CountM(Ground), 10);
    for (int x = 0; x < 60; ++x) { // Within its line.
        EXPECT_EQ(low.AtM(x, 19), Ground) << x;
        EXPECT_EQ(low.AtM(x, 32), Ground) << x;
    }
    EXPECT_GT(width, 6);
    EXPECT_EQ(text(INT_MAX, INT_MIN, "far", 12, PANELKIT_ALIGN_LEFT).CountM(Ground), 60 * 40);
    EXPECT_EQ(text(5, 5, "", 12, PANELKIT_ALIGN_LEFT).CountM(Ground), 60 * 40);
    EXPECT_EQ(width, 0);
}

TEST_F(CPainting, FillsAndGivesItsSizeAndContext)
{
    const Pixels shown = paintedM([](panelkit_canvas* canvas) {
        int32_t width = 0;
        int32_t height = 0;
        int32_t frame = 7;
        void* dc = nullptr;
        EXPECT_EQ(panelkit_canvas_size(canvas, &width, &height), PANELKIT_OK);
        EXPECT_EQ(width, 60);
        EXPECT_EQ(height, 40);
        EXPECT_EQ(panelkit_canvas_frame(canvas, &frame), PANELKIT_OK);
        EXPECT_EQ(frame, -1);
        EXPECT_EQ(panelkit_canvas_native(canvas, &dc), PANELKIT_OK);
        EXPECT_EQ(panelkit_canvas_fill(canvas, 0x010203), PANELKIT_OK);
        ::SetPixelV(static_cast<HDC>(dc), 7, 8, Inked);
    });
    EXPECT_EQ(shown.CountM(RGB(1, 2, 3)), 60 * 40 - 1);
    EXPECT_EQ(shown.AtM(7, 8), Inked);
}

TEST_F(CPainting, BadArgumentsAreRefusedAndDrawNothing)
{
    const Pixels shown = paintedM([](panelkit_canvas* canvas) {
        int32_t number = 5;
        EXPECT_EQ(panelkit_canvas_fill(canvas, 0x1000000), PANELKIT_ERROR_ARGUMENT);
        EXPECT_STREQ(panelkit_last_error(nullptr), panelkit_status_text(PANELKIT_ERROR_ARGUMENT));
        EXPECT_EQ(panelkit_canvas_line(canvas, 1, 1, 9, 9, Ink, 0), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_line(canvas, 1, 1, 9, 9, UINT32_MAX, 1), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_line(canvas, 1, 1, 9, 9, Ink, 32768), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_polyline(canvas, nullptr, 2, Ink, 1), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_polyline(canvas, nullptr, 0, Ink, 1), PANELKIT_OK);
        EXPECT_EQ(panelkit_canvas_rectangle(canvas, 1, 1, -1, 9, Ink, 1), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_rectangle(canvas, 1, 1, 9, 9, Ink, -1), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_fill_rectangle(canvas, 1, 1, 9, -9, Ink), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_ellipse(canvas, 1, 1, -1, 9, Ink, 1), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_ellipse(canvas, 1, 1, 9, 9, Ink, 0), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_fill_ellipse(canvas, 1, 1, 9, -1, Ink), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_text(canvas, 1, 1, nullptr, 12, Ink, 0), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_text(canvas, 1, 1, "x", 0, Ink, 0), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_text(canvas, 1, 1, "x", 1001, Ink, 0), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_text(canvas, 1, 1, "x", 12, Ink, 3), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_text_width(canvas, "x", 12, nullptr), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_size(canvas, &number, nullptr), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_frame(canvas, nullptr), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(panelkit_canvas_native(canvas, nullptr), PANELKIT_ERROR_ARGUMENT);
        EXPECT_EQ(number, 5);
    });
    EXPECT_EQ(shown.CountM(Ground), 60 * 40);
    EXPECT_EQ(calls_, 1);
}

TEST_F(CPainting, ACanvasIsNoneOutsideOfItsPainterAndItsThread)
{
    panelkit_canvas* kept = nullptr;
    paintedM([&kept](panelkit_canvas* canvas) {
        kept = canvas;
        panelkit_status status = PANELKIT_OK;
        std::thread([&status, canvas] { status = panelkit_canvas_fill(canvas, 0); }).join();
        EXPECT_EQ(status, PANELKIT_ERROR_THREAD);
    });
    EXPECT_EQ(panelkit_canvas_fill(kept, 0), PANELKIT_ERROR_HANDLE);
    EXPECT_EQ(panelkit_canvas_fill(nullptr, 0), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(shownM().CountM(Ground), 60 * 40);
}

TEST_F(CPainting, IsForDrawingsAndSpecialAnimations)
{
    EXPECT_EQ(panelkit_repaint(opened_.dialog, 11), PANELKIT_ERROR_NO_VALUE);
    EXPECT_EQ(setM(11, [](panelkit_canvas*) {}), PANELKIT_OK);
    EXPECT_EQ(setM(12, [](panelkit_canvas*) {}), PANELKIT_OK);
    for (const int id : { 13, 14, 15 }) {
        EXPECT_EQ(setM(id, [](panelkit_canvas*) {}), PANELKIT_ERROR_NO_VALUE) << id;
    }
    EXPECT_EQ(setM(99, [](panelkit_canvas*) {}), PANELKIT_ERROR_ID);
    EXPECT_EQ(panelkit_repaint(opened_.dialog, 99), PANELKIT_ERROR_ID);
    EXPECT_EQ(panelkit_repaint(nullptr, 11), PANELKIT_ERROR_ARGUMENT);
    PumpPending();
    EXPECT_EQ(calls_, 2);
    EXPECT_EQ(panelkit_repaint(opened_.dialog, 11), PANELKIT_OK);
    EXPECT_EQ(panelkit_repaint(opened_.dialog, 11), PANELKIT_OK);
    PumpPending();
    EXPECT_EQ(calls_, 3);
    EXPECT_EQ(panelkit_set_painter(opened_.dialog, 11, nullptr, nullptr), PANELKIT_OK);
    EXPECT_EQ(panelkit_repaint(opened_.dialog, 11), PANELKIT_ERROR_NO_VALUE);
    EXPECT_EQ(opened_.StoryM(), "");
}

TEST_F(CPainting, FramesOfAnimationsAreShown)
{
    std::string frames;
    EXPECT_EQ(setM(12,
                  [&frames](panelkit_canvas* canvas) {
                      int32_t frame = 9;
                      EXPECT_EQ(panelkit_canvas_frame(canvas, &frame), PANELKIT_OK);
                      frames += std::to_string(frame);
                      EXPECT_EQ(panelkit_canvas_fill_rectangle(canvas, 0, 0, 5, 5, Ink), PANELKIT_OK);
                  }),
        PANELKIT_OK);
    EXPECT_EQ(shownM(12).CountM(RGB(255, 0, 0)), 400 - 25);
    for (const int id : { 12, 13 }) {
        EXPECT_EQ(panelkit_show_frame(opened_.dialog, id, 1), PANELKIT_OK);
        EXPECT_EQ(panelkit_show_frame(opened_.dialog, id, 2), PANELKIT_ERROR_REFUSED);
        EXPECT_EQ(panelkit_show_frame(opened_.dialog, id, -1), PANELKIT_ERROR_REFUSED);
    }
    EXPECT_EQ(shownM(12).CountM(RGB(0, 255, 0)), 400 - 25);
    EXPECT_EQ(shownM(12).CountM(Inked), 25);
    EXPECT_EQ(shownM(13).CountM(RGB(0, 255, 0)), 400);
    EXPECT_EQ(frames, "01");
    EXPECT_EQ(panelkit_show_frame(opened_.dialog, 11, 0), PANELKIT_ERROR_NO_VALUE);
    EXPECT_EQ(panelkit_show_frame(opened_.dialog, 99, 0), PANELKIT_ERROR_ID);
}

TEST_F(CPainting, APainterMayThrowAndMayDestroyItsDialog)
{
    const Pixels shown = paintedM([](panelkit_canvas* canvas) {
        EXPECT_EQ(panelkit_canvas_fill(canvas, Ink), PANELKIT_OK);
        throw std::runtime_error("must stay inside");
    });
    EXPECT_EQ(shown.CountM(Inked), 60 * 40);
    const HWND window = opened_.WindowM();
    calls_ = 0;
    EXPECT_EQ(setM(11,
                  [this](panelkit_canvas* canvas) {
                      opened_.isGone = true;
                      EXPECT_EQ(panelkit_destroy(opened_.dialog), PANELKIT_OK);
                      EXPECT_EQ(panelkit_repaint(opened_.dialog, 11), PANELKIT_ERROR_HANDLE);
                      EXPECT_EQ(panelkit_canvas_fill(canvas, 0), PANELKIT_OK);
                  }),
        PANELKIT_OK);
    EXPECT_TRUE(PumpUntil([window] { return !::IsWindow(window); }));
    EXPECT_EQ(calls_, 1);
}

TEST_F(CPainting, ClicksOnPicturesTellWhere)
{
    std::string places;
    opened_.handler = [&places](const panelkit_event& event) {
        places += std::string(eventName(event.kind)) + " " + std::to_string(event.id) + " "
            + std::to_string(event.x) + "," + std::to_string(event.y) + "; ";
        return 0;
    };
    ClickM(opened_.ItemM(11), 13, 7);
    ClickM(opened_.ItemM(12), 3, 4);
    ClickM(opened_.ItemM(15), 9, 5);
    ClickM(opened_.ItemM(14), 5, 6); // A button says that it was clicked, not where.
    PumpPending();
    EXPECT_EQ(places, "click 11 13,7; click 12 3,4; click 15 9,5; press 14 0,0; click 14 0,0; ");
    places.clear();
    DoubleClickM(opened_.ItemM(11), 20, 30);
    PumpPending();
    EXPECT_EQ(places, "click 11 20,30; double click 11 20,30; ");
}

TEST_F(CPainting, PicturesAreWorkedByKeysOnceTheyAreUsed)
{
    EXPECT_TRUE(FocusM(opened_.ItemM(14)));
    opened_.StoryM();
    KeyM(VK_SPACE);
    EXPECT_EQ(opened_.StoryM(), "");
    EXPECT_EQ(panelkit_use_picture_keyboard(opened_.dialog, 1), PANELKIT_OK);
    EXPECT_EQ(opened_.StoryM(), "");
    KeyM(VK_SPACE);
    EXPECT_EQ(opened_.StoryM(), "press 14 14 0; click 14 14 0");
    KeyM(VK_RETURN);
    EXPECT_EQ(opened_.StoryM(), "press 14 14 0; click 14 14 0");
    EXPECT_EQ(panelkit_use_picture_keyboard(opened_.dialog, 0), PANELKIT_OK);
    KeyM(VK_RETURN);
    EXPECT_EQ(opened_.StoryM(), "closing 0 0 1; closed 0 0 1");
    EXPECT_EQ(panelkit_use_picture_keyboard(nullptr, 0), PANELKIT_ERROR_ARGUMENT);
}

TEST_F(FormPainting, APainterPaintsOnACanvas)
{
    Form form(file_.path());
    int value = 10;
    int calls = 0;
    EXPECT_TRUE(form.OnPaint(11, [&](Canvas& canvas) {
        ++calls;
        EXPECT_EQ(canvas.Width(), 60);
        EXPECT_EQ(canvas.Height(), 40);
        EXPECT_EQ(canvas.Frame(), -1);
        EXPECT_NE(canvas.Native(), nullptr);
        EXPECT_NE(canvas.Handle(), nullptr);
        EXPECT_TRUE(canvas.Fill(0x000000));
        EXPECT_TRUE(canvas.FillRectangle(0, 0, value, 40, 0xFF0000));
        EXPECT_TRUE(canvas.Line(59, 0, 59, 39, 0x00FF00));
        EXPECT_TRUE(canvas.Polyline({ { 58, 0 }, { 58, 39 } }, 0x00FF00));
        EXPECT_TRUE(canvas.Rectangle(50, 0, 8, 5, 0x0000FF));
        EXPECT_TRUE(canvas.FillEllipse(50, 10, 5, 5, 0x0000FF));
        EXPECT_TRUE(canvas.Ellipse(50, 20, 5, 5, 0xFFFF00));
        EXPECT_TRUE(canvas.Text(40, 25, "12", 12, 0xFFFFFF, Canvas::Right));
        EXPECT_GT(canvas.TextWidth("12", 12), 4);
        EXPECT_FALSE(canvas.Fill(0xFF000000));
    }));
    EXPECT_EQ(calls, 0);
    show(form);
    const auto shown = [&form] {
        PumpPending();
        return Pixels(item(form, 11));
    };
    EXPECT_EQ(shown().CountM(RGB(255, 0, 0)), 400);
    EXPECT_EQ(shown().CountM(RGB(0, 255, 0)), 80);
    EXPECT_EQ(shown().AtM(50, 0), RGB(0, 0, 255));
    EXPECT_EQ(shown().AtM(52, 12), RGB(0, 0, 255));
    EXPECT_EQ(shown().AtM(50, 22), RGB(255, 255, 0));
    EXPECT_GT(shown().CountM(RGB(255, 255, 255)), 5);
    EXPECT_EQ(calls, 1);
    const auto kept = std::make_shared<int>(1);
    EXPECT_FALSE(form.OnPaint(14, [kept](Canvas&) {}));
    EXPECT_EQ(kept.use_count(), 1); // Not one that was refused.
    value = 20;
    EXPECT_TRUE(form.Repaint(11));
    EXPECT_EQ(shown().CountM(RGB(255, 0, 0)), 800);
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(form.OnPaint(11, nullptr));
    EXPECT_EQ(shown().CountM(Ground), 60 * 40);
    EXPECT_FALSE(form.Repaint(11));
    EXPECT_FALSE(form.OnPaint(99, [](Canvas&) {}));
    EXPECT_EQ(form.Error(), "there is no control 99");
    Form none;
    EXPECT_FALSE(none.OnPaint(11, [](Canvas&) {}));
    EXPECT_FALSE(none.Repaint(11));
    EXPECT_FALSE(none.ShowFrame(12, 0));
    EXPECT_FALSE(none.UsePictureKeyboard(true));
}

TEST_F(FormPainting, WhatAPainterThrowsComesOutOfRun)
{
    Form form(file_.path());
    EXPECT_TRUE(form.OnPaint(11, [](Canvas&) { throw std::runtime_error("by a painter"); }));
    try {
        form.Run();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::runtime_error& thrown) {
        EXPECT_STREQ(thrown.what(), "by a painter");
    }
    EXPECT_FALSE(form.IsOpen());
}

TEST_F(FormPainting, APainterMayReplaceItselfAndDestroyItsForm)
{
    auto form = std::make_unique<Form>(file_.path());
    std::string story;
    EXPECT_TRUE(form->OnPaint(11, [&](Canvas& first) {
        story += "first ";
        EXPECT_TRUE(form->OnPaint(11, [&](Canvas& second) {
            story += "second ";
            form.reset();
            EXPECT_TRUE(second.Fill(0));
        }));
        EXPECT_TRUE(first.Fill(0));
    }));
    const HWND window = static_cast<HWND>(form->Native());
    EXPECT_TRUE(form->Show());
    EXPECT_TRUE(PumpUntil([window] { return !::IsWindow(window); }));
    EXPECT_EQ(form, nullptr);
    EXPECT_EQ(story, "first second ");
}

TEST_F(FormPainting, ClicksFramesAndKeysOfPictures)
{
    Form form(file_.path());
    std::string story;
    form.OnClickAt(11, [&](int x, int y) { story += std::to_string(x) + "," + std::to_string(y) + " "; })
        .OnClick(14, [&] { story += "button "; });
    EXPECT_TRUE(form.ShowFrame(13, 1));
    EXPECT_TRUE(form.UsePictureKeyboard(true));
    show(form);
    ClickM(item(form, 11), 31, 22);
    EXPECT_EQ(Pixels(item(form, 13)).CountM(RGB(0, 255, 0)), 400);
    EXPECT_TRUE(FocusM(item(form, 14)));
    KeyM(VK_SPACE);
    PumpPending();
    form.OnClickAt(11, nullptr);
    ClickM(item(form, 11), 31, 22);
    PumpPending();
    EXPECT_EQ(story, "31,22 button ");
}
