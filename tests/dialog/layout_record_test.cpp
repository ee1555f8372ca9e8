// What the one list of values tells its visitors, over all kinds and headers.
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "dialog/relation.h"
#include "support/description_files.h"
#include <gtest/gtest.h>
#include <set>

namespace {

// A visitor of everything in the sample that has a record, entry or header of every kind.
void visitSample(FieldVisitorCL& visitor, const std::function<void(const char* owner)>& enter)
{
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(wholeFile(PANELKIT_SAMPLES "/every_kind.dlg")));
    DialogHeaderCL header;
    ASSERT_EQ(slReadDialogHeader(io, header), 1);
    enter("dialog");
    header.EachFieldM(visitor);
    slEachKind([&](auto row) {
        typename decltype(row)::Records records;
        int count = 0;
        ASSERT_EQ(slReadSection(io, records, &count), SectionStatus::Read);
        enter(decltype(row)::Records::KindName);
        for (int i = 0; i < count; ++i) {
            records[i].EachCommonFieldM(visitor);
            records[i].EachFieldM(visitor);
        }
    });
    enter("relation");
    slReadRelations(io, [&](RelationCL& relation) { relation.EachFieldM(visitor); });
    DVrNewRotateBtnArr series;
    ASSERT_EQ(series.FmReadInterfaceM(&io), 1);
    enter("new_rotate_button");
    for (int i = 0; i < series.GetBoundM(); ++i) {
        series[i].EachCommonFieldM(visitor, 1);
        series[i].EachFieldM(visitor);
    }
}

// Collects "owner.field" of what a derived visitor picks; rows of lists count as their record's.
class PickingCL : public FieldVisitorCL
{
public:
    void ListM(const char*, int rows, const std::function<void(FieldVisitorCL&, int)>& see) override
    {
        for (int row = 0; row < rows; ++row) {
            see(*this, row);
        }
    }
    std::set<std::string> PickedM()
    {
        visitSample(*this, [this](const char* owner) { owner_ = owner; });
        return picked_;
    }

protected:
    void pickM(const std::string& name)
    {
        const bool isCommon = name == "position" || name == "size" || name == "function_id";
        picked_.insert(isCommon && owner_ != "dialog" ? name : owner_ + "." + name);
    }

private:
    std::string owner_;
    std::set<std::string> picked_;
};

class LengthsCL : public PickingCL
{
public:
    void LengthM(const char* name, int&, Along along) override
    {
        pickM(std::string(name) + (along == Along::X ? " x" : " y"));
    }
    void LengthPairM(const char* name, int (&)[2]) override { pickM(name); }
};

class CaptionsCL : public PickingCL
{
public:
    void CaptionM(const char* name, CharArr&, const TextFormCL&) override { pickM(name); }
};

class NamesCL : public PickingCL
{
public:
    void NameM(const char* name, CharArr&, const TextFormCL&) override { pickM(name); }
};

class IdsCL : public PickingCL
{
public:
    void IdM(const char* name, int&) override { pickM(name); }
};

class ChoicesOfCL : public PickingCL
{
public:
    void ChoiceM(const char* name, int&, const ChoicesCL& choices) override
    {
        std::string all;
        for (const ChoiceCL& choice : choices) {
            all += " " + std::to_string(choice.value) + "=" + choice.name;
        }
        pickM(name + all);
    }
};

// All numbers and texts in their order, after a change to each of them if one is wanted.
class ValuesCL : public FieldVisitorCL
{
public:
    explicit ValuesCL(bool isChanging)
        : isChanging_(isChanging)
    {
    }
    void IntM(const char*, int& value) override
    {
        value += isChanging_ ? 1000 : 0;
        values.push_back(std::to_string(value));
    }
    void IntsM(const char* name, int* numbers, int count) override
    {
        for (int i = 0; i < count; ++i) {
            IntM(name, numbers[i]);
        }
    }
    void TextM(const char*, CharArr& text, const TextFormCL&) override
    {
        if (isChanging_) {
            text.SetM((text.TextM() + std::string("!")).c_str());
        }
        values.emplace_back(text.TextM());
    }
    // Of an edit, whose type decides which value it is.
    void ChoiceM(const char*, int&, const ChoicesCL&) override { }
    void ListM(const char*, int count, const std::function<void(FieldVisitorCL&, int)>& see) override
    {
        for (int row = 0; row < count; ++row) {
            see(*this, row);
            ++rows;
        }
    }
    std::vector<std::string> values;
    int rows { 0 };

private:
    bool isChanging_;
};

// Changes all values of a record, and its rows, and looks whether they stay changed.
template <class RecordTP> int rowsThatStayChanged(RecordTP& record)
{
    ValuesCL before(false);
    record.EachFieldM(before);
    ValuesCL changed(true);
    record.EachFieldM(changed);
    ValuesCL after(false);
    record.EachFieldM(after);
    EXPECT_EQ(after.values, changed.values);
    EXPECT_EQ(before.values.size(), after.values.size());
    for (std::size_t i = 0; i < std::min(before.values.size(), after.values.size()); ++i) {
        EXPECT_NE(before.values[i], after.values[i]);
    }
    return after.rows;
}

using SetTP = std::set<std::string>;

} // namespace

TEST(Layout, LengthsAreTheNumbersThatGrowWithTheDialog)
{
    EXPECT_EQ(LengthsCL().PickedM(),
        SetTP({ "position", "size", "dialog.position", "dialog.size", "dialog.font_option y",
            "text_list_box.item_height y", "spin_edit.spin_width x", "list_control.width x",
            "rotate_button.picture_position", "rotate_button.centre" }));
}

TEST(Layout, CaptionsAreTheTextsThatAPersonReads)
{
    EXPECT_EQ(CaptionsCL().PickedM(),
        SetTP({ "dialog.title", "label.text", "single_edit.initial", "multi_edit.text", "text_list_box.text",
            "combo_box.text", "list_control.text", "radio_button.caption", "check_box.caption",
            "standard_button.caption", "group_box.text", "tree.text", "new_rotate_button.description" }));
}

TEST(Layout, NamesAreThoseOfPictures)
{
    EXPECT_EQ(NamesCL().PickedM(),
        SetTP({ "dialog.background", "normal_animation.bitmap", "special_animation.bitmap",
            "bitmap_list_box.bitmap", "bitmap_button.normal", "bitmap_button.pressed",
            "bitmap_button.released", "bitmap_button.disabled", "bitmap_button.region",
            "multi_state_button.region", "multi_state_button.bitmap", "rotate_button.background",
            "rotate_button.rotating", "rotate_button.region", "tree.normal", "tree.selected",
            "new_rotate_button.picture" }));
}

TEST(Layout, IdsAreWhereControlsAreNamed)
{
    EXPECT_EQ(IdsCL().PickedM(), SetTP({ "function_id", "spin_edit.spin_function_id", "relation.control" }));
}

TEST(Layout, ChoicesSayWhatTheirValuesMean)
{
    const std::string alignment = ".alignment 1=left 2=left 3=centred 4=right";
    const std::string selection = ".selection_mode 1=single 2=multiple 3=extended 4=none";
    EXPECT_EQ(ChoicesOfCL().PickedM(),
        SetTP({ "dialog.window_kind 1=overlapped 2=pop-up 3=child",
            "dialog.border_kind 1=none 2=thin 3=sizing 4=dialog frame",
            "normal_animation.control_mode 1=automatic 2=manual", "label" + alignment,
            "single_edit" + alignment, "spin_edit" + alignment, "multi_edit" + alignment,
            "single_edit.data_type 1=integer 2=real 3=text", "spin_edit.data_type 1=integer 2=real",
            "text_list_box" + selection, "bitmap_list_box" + selection,
            "bitmap_list_box.scroll_mode 1=horizontal 2=vertical 4=both" }));
}

TEST(Layout, WhatAVisitorChangesStaysChangedInRowsToo)
{
    VrIOCL io;
    io.OpenM(std::make_shared<const FileTextCL>(wholeFile(PANELKIT_SAMPLES "/every_kind.dlg")));
    int rows = 0;
    slEachKind([&](auto row) {
        typename decltype(row)::Records records;
        int count = 0;
        slReadSection(io, records, &count);
        SCOPED_TRACE(decltype(row)::Records::KindName);
        for (int i = 0; i < count; ++i) {
            rows += rowsThatStayChanged(records[i]);
        }
    });
    EXPECT_EQ(rows, 16);
    DVrNewRotateBtnArr series;
    series.FmReadInterfaceM(&io);
    EXPECT_EQ(rowsThatStayChanged(series[0]), 3); // One of them had no picture.
    EXPECT_EQ(rowsThatStayChanged(series[1]), 2);
}
