// Memory runs out while lists, pictures, catalogues and texts change: they are what they were, or what they
// were to become.
#include "containers/int2d_arr.h"
#include "containers/own_list.h"
#include "controls/buttons/multi_state_button_record.h"
#include "controls/lists/list_control_record.h"
#include "controls/lists/tree_lines.h"
#include "pictures/bmp_reader.h"
#include "pictures/bmp_record.h"
#include "pictures/picture_boundary.h"
#include "pictures/picture_edges.h"
#include "support/description_files.h"
#include "support/failing_memory.h"
#include "support/printed.h"
#include "support/temp_file.h"

using namespace testing_support;

namespace {

constexpr const char* Long = "a text that no string holds in itself"; // So it needs memory.

std::string textOf(VrStringArr& list)
{
    std::string all = std::to_string(list.GetBoundM()) + "/" + std::to_string(list.GetAvailableNumM()) + ":";
    for (int i = 0; i < list.GetBoundM(); ++i) {
        all += (list.CheckAvailableM(i) != 0 ? "[" : "x[") + std::string(list[i].TextM()) + "]";
    }
    return all;
}

void fill(VrStringArr& list, int count)
{
    for (int i = 0; i < count; ++i) {
        slAppendText(list, std::string(static_cast<std::size_t>(20 + i), static_cast<char>('a' + i)).c_str());
    }
}

// change: what it reports doesn't count where it throws.
void expectUnchangedOrDone(const std::function<int(VrStringArr&)>& change, int count)
{
    std::string done;
    const std::size_t failed = EachRequestFailsM([&](std::size_t number) {
        VrStringArr list;
        fill(list, count);
        list.DelItemM(1);
        const std::string before = textOf(list);
        FailingRequestCL failing(number);
        const auto result = UnlessMemoryEndsM([&] { return change(list); });
        const bool hasFailed = failing.EndM();
        if (!hasFailed) {
            done = textOf(list);
        } else if (!result || *result <= 0) {
            EXPECT_EQ(textOf(list), before);
            EXPECT_GE(change(list), 0);
        }
        EXPECT_EQ(textOf(list), done);
        return hasFailed;
    });
    EXPECT_GT(failed, 0U);
}

VrStringCL longText()
{
    VrStringCL text(AliveTag);
    text.AddStringM(Long);
    return text;
}

} // namespace

TEST(ListsWithoutMemory, AnItemIsStoredOrTheListIsAsItWas)
{
    const VrStringCL text = longText();
    for (const int count : { 3, 4, 5, 9 }) {
        SCOPED_TRACE(count);
        for (int i = 0; i < 40; i += count / 2) {
            SCOPED_TRACE(i);
            expectUnchangedOrDone([&](VrStringArr& list) { return list.SetItemM(text, i); }, count);
            expectUnchangedOrDone([&](VrStringArr& list) { return list.InsertItemM(text, i); }, count);
        }
        expectUnchangedOrDone([&](VrStringArr& list) { return list.InsertItemM(list[2], 0); }, count);
        expectUnchangedOrDone([&](VrStringArr& list) { return list.AddItemM(list[2]); }, count);
        expectUnchangedOrDone([&](VrStringArr& list) { return list.AddItemM(2, nullptr); }, count);
        expectUnchangedOrDone([&](VrStringArr& list) { return list.AddSizeM(7); }, count);
        expectUnchangedOrDone([&](VrStringArr& list) { return list.MergeM(list); }, count);
        expectUnchangedOrDone([&](VrStringArr& list) { return slAppendText(list, Long); }, count);
    }
}

TEST(ListsWithoutMemory, AnAssignedListIsTheOtherOrWhatItWas)
{
    for (const int count : { 3, 9 }) {
        VrStringArr other;
        fill(other, count);
        other.DelItemM(0);
        for (const int own : { 2, 9 }) {
            EachRequestFailsM([&](std::size_t number) {
                VrStringArr list;
                fill(list, own);
                const std::string before = textOf(list);
                FailingRequestCL failing(number);
                const bool isDone = UnlessMemoryEndsM([&] { return &(list = other); }).has_value();
                const bool hasFailed = failing.EndM();
                const std::string after = textOf(list);
                EXPECT_TRUE(after == before || (isDone && after == textOf(other))) << after;
                list = other;
                EXPECT_EQ(textOf(list), textOf(other));
                return hasFailed;
            });
        }
    }
}

TEST(ListsWithoutMemory, NumbersOfAListStayTogether)
{
    const int triple[3] = { 7, 8, 9 };
    for (const int index : { 0, 3, 8, 30 }) {
        for (const bool isInserted : { false, true }) {
            EachRequestFailsM([&](std::size_t number) {
                Int3DArr list;
                for (int i = 0; i < 8; ++i) {
                    const int one[3] = { i, i + 1, i + 2 };
                    list.AddItemM(one);
                }
                const auto change = [&] {
                    return isInserted ? list.InsertItemM(triple, index) : list.SetItemM(triple, index);
                };
                FailingRequestCL failing(number);
                const bool isDone = UnlessMemoryEndsM(change).has_value();
                const bool hasFailed = failing.EndM();
                if (!isDone) {
                    EXPECT_EQ(list.GetBoundM(), 8);
                    EXPECT_EQ(list.GetAvailableNumM(), 8);
                    list.DelItemM(7); // What is taken from the end is the last slot's.
                    EXPECT_EQ(list[6][2], 8);
                    list.AddItemM(triple);
                    EXPECT_EQ(list[7][0], 7);
                    change();
                }
                EXPECT_EQ(list[index][0], 7);
                EXPECT_EQ(list[index][2], 9);
                EXPECT_EQ(list[1][0], isInserted && index < 1 ? 0 : 1);
                return hasFailed;
            });
        }
    }
}

// Both forms: the list read, or an empty one.
TEST(ListsWithoutMemory, AFileIsReadOrLeavesNothing)
{
    VrStringArr whole;
    fill(whole, 9);
    whole.DelItemM(3);
    for (const bool isBinary : { false, true }) {
        const TempFile file;
        VrIOCL out;
        out.OpenM(file.path(), isBinary ? "wb" : "w");
        whole.FmOutputEvrLstM(&out, "texts");
        out.CloseM();
        EachRequestFailsM([&](std::size_t number) {
            VrStringArr list;
            fill(list, 6);
            const std::string before = textOf(list);
            const auto read = [&] {
                VrIOCL io;
                io.OpenM(file.path(), isBinary ? "rb" : "r");
                list.FmInputEvrLstM(&io);
                return io.IsOpenM();
            };
            FailingRequestCL failing(number);
            UnlessMemoryEndsM(read);
            const bool hasFailed = failing.EndM();
            const std::string after = textOf(list);
            EXPECT_TRUE(after == textOf(whole) || (hasFailed && (after == before || after == "0/0:")))
                << after;
            read();
            EXPECT_EQ(textOf(list), textOf(whole));
            return hasFailed;
        });
    }
}

TEST(ListsWithoutMemory, AFileIsOpenWithItsFolderOrNotOpen)
{
    const TempFile file("5");
    for (const char* const mode : { "r", "rb" }) {
        EachRequestFailsM([&](std::size_t number) {
            VrIOCL io;
            FailingRequestCL failing(number);
            UnlessMemoryEndsM([&] {
                io.OpenM(file.path(), mode);
                return 0;
            });
            const bool hasFailed = failing.EndM();
            char folder[PathSize];
            EXPECT_EQ(io.GetFilePathM(folder), io.IsOpenM() ? 1 : 0);
            EXPECT_EQ(folder[0] != '\0', io.IsOpenM());
            return hasFailed;
        });
    }
}

TEST(ListsWithoutMemory, TextsAndNumbersOfEntriesStayInStep)
{
    const int pair[2] = { 3, 4 };
    const int triple[3] = { 1, 2, 3 };
    const std::size_t failed = EachRequestFailsM([&](std::size_t number) {
        PairedTextsCL cells;
        TreeLinesCL lines;
        DVrMultiStateButtonCL states;
        const auto add = [&] {
            for (int i = 0; i < 6; ++i) {
                cells.AddM(pair, Long);
                lines.AddM(triple, Long, Long, Long);
                states.AddStringM(5, Long);
            }
            return 0;
        };
        FailingRequestCL failing(number);
        UnlessMemoryEndsM(add);
        const bool hasFailed = failing.EndM();
        EXPECT_EQ(cells.pairs.GetAvailableNumM(), cells.texts.GetAvailableNumM());
        add();
        FieldTextCL text;
        cells.VisitM(text, "cells", &slCellRow);
        lines.VisitM(text, "lines");
        states.EachFieldM(text);
        for (const char* const torn : { "=[]", "0,", "[]" }) {
            EXPECT_EQ(text.text.find(torn), std::string::npos) << text.text;
        }
        int placed = 0;
        lines.GenerateM(1, nullptr, [&placed](void*, const TreeLinesCL::LineCL& line) -> void* {
            placed += line.text == std::string(Long) && line.selectedPicture == std::string(Long) ? 1 : 0;
            return nullptr;
        });
        EXPECT_GE(placed, 6);
        return hasFailed;
    });
    EXPECT_GT(failed, 20U);
}

TEST(ListsWithoutMemory, ATreeIsGrownOnceWhateverFails)
{
    const std::size_t failed = EachRequestFailsM([&](std::size_t number) {
        TreeLinesCL lines;
        for (int i = 1; i <= 9; ++i) {
            const int triple[3] = { i / 3, i, i };
            lines.AddM(triple, Long, "a", "b");
        }
        int placed = 0;
        const auto grow = [&] {
            lines.GenerateM(0, nullptr, [&](void*, const TreeLinesCL::LineCL&) {
                ++placed;
                return &lines;
            });
            return 0;
        };
        FailingRequestCL failing(number);
        const bool isGrown = UnlessMemoryEndsM(grow).has_value();
        const bool hasFailed = failing.EndM();
        EXPECT_EQ(placed + lines.GetAvailableNumM(), 9);
        EXPECT_EQ(isGrown, !hasFailed);
        return hasFailed;
    });
    EXPECT_GT(failed, 3U);
}

TEST(ListsWithoutMemory, PicturesAreReadAndTracedOrNothingIs)
{
    const std::string file = PANELKIT_EXAMPLES "/workshop/knob.bmp";
    const unsigned char white[] = { 255, 255, 255 };
    int wholeW = 0;
    int wholeH = 0;
    unsigned char* whole = nullptr;
    ASSERT_EQ(slLoadBmpTexture(file.c_str(), &wholeW, &wholeH, &whole), 1);
    const unsigned char* colour = whole; // Of the picture's first pixel that is not white.
    while (colour[0] == 255 && colour[1] == 255 && colour[2] == 255) {
        colour += 3;
    }
    const unsigned char traced[] = { colour[0], colour[1], colour[2] };
    EachRequestFailsM([&](std::size_t number) {
        int w = 0;
        int h = 0;
        unsigned char* pixels = nullptr;
        Int2DArr outline;
        Int2DArr edges[4];
        FailingRequestCL failing(number);
        const auto isRead
            = UnlessMemoryEndsM([&] { return slLoadBmpTexture(file.c_str(), &w, &h, &pixels); });
        const bool isTraced = UnlessMemoryEndsM([&] {
            return slGenBitMapBoundary(white, traced, wholeW, wholeH, whole, &outline);
        }).has_value();
        UnlessMemoryEndsM([&] { return slFindHorizonEdgeM(file.c_str(), white, &edges[0], &edges[1]); });
        UnlessMemoryEndsM([&] { return slFindVerticalEdgeM(file.c_str(), white, &edges[2], &edges[3]); });
        UnlessMemoryEndsM([&] { return slFindOpaqueRects(wholeW, wholeH, whole, white).size(); });
        const bool hasFailed = failing.EndM();
        EXPECT_EQ(pixels != nullptr, isRead && *isRead == 1);
        EXPECT_EQ(w, pixels != nullptr ? wholeW : 0);
        EXPECT_EQ(h, pixels != nullptr ? wholeH : 0);
        EXPECT_TRUE(isTraced || outline.GetBoundM() == 0);
        slFree(pixels);
        return hasFailed;
    });
    slFree(whole);
}

TEST(ListsWithoutMemory, AListOfPicturesIsAppendedOrNot)
{
    const TempFile file("2\n0 first.bmp\n0 second.bmp\nend\n");
    EachRequestFailsM([&](std::size_t number) {
        DVrBmpArr list;
        list.AddItemM(DVrBmpCL(AliveTag));
        IntArr map;
        const auto read = [&] {
            VrIOCL io;
            io.OpenM(file.path(), "r");
            return list.FmInputScpFileM(&io, &map);
        };
        FailingRequestCL failing(number);
        UnlessMemoryEndsM(read);
        const bool hasFailed = failing.EndM();
        EXPECT_TRUE(list.GetBoundM() == 1 || list.GetBoundM() == 3);
        EXPECT_EQ(list.GetAvailableNumM(), list.GetBoundM());
        list.AddItemM(DVrBmpCL(AliveTag));
        EXPECT_EQ(list.GetAvailableNumM(), list.GetBoundM());
        return hasFailed;
    });
}
