// The tables of the docs tell of each value what the code does: its name, its kind, its default, its choices.
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/binding.h"
#include "dialog/dialog_header.h"
#include "dialog/relation.h"
#include "support/description_files.h"
#include "support/kind_types.h"
#include "support/printed.h"
#include <algorithm>
#include <regex>
#include <sstream>

namespace {

struct FieldToldCL
{
    std::string name;
    std::string type; // A pattern.
    std::string byDefault;
    std::vector<std::string> meaning; // What its meaning names at least, as patterns.
};

// What the docs have to tell of the values of a fresh record.
class ToTellCL : public FieldVisitorCL
{
public:
    void IntM(const char* name, int& value) override { addM(name, "int", std::to_string(value)); }
    void RealM(const char* name, float& value) override { addM(name, "real", textOfM(value)); }
    void IntsM(const char* name, int* values, int count) override { addSeveralM(name, values, count); }
    void RealsM(const char* name, float* values, int count) override { addSeveralM(name, values, count); }
    void FlagM(const char* name, int& value) override
    {
        IntM(name, value);
        fields.back().meaning = { "\\b1: " };
    }
    void ChoiceM(const char* name, int& value, const ChoicesCL& choices) override
    {
        IntM(name, value);
        for (const ChoiceCL& choice : choices) {
            fields.back().meaning.push_back("\\b" + std::to_string(choice.value) + "\\b");
            fields.back().meaning.push_back("\\b" + std::string(choice.name) + "\\b");
        }
    }
    void NumberM(const char* name, int, simpleValD&) override
    {
        addM(name, "int or real|int, real or text", "0");
    }
    void LimitsM(const char* name, int, simpleValD&) override { addM(name, "2 ints or reals", "0 0"); }
    void ColourM(const char* name, ColourTP& colour, int* flag) override
    {
        const bool isOff = flag != nullptr && *flag == 0;
        addM(name, "red green blue",
            isOff ? "off"
                  : std::to_string(colour & 0xFF) + " " + std::to_string(colour >> 8 & 0xFF) + " "
                    + std::to_string(colour >> 16));
    }
    void TextM(const char* name, CharArr& text, const TextFormCL&) override
    {
        addM(name, "text", text.EmptyM() ? "empty" : text.TextM());
    }

    std::vector<FieldToldCL> fields;

private:
    template <class NumberTP> static std::string textOfM(NumberTP number)
    {
        std::ostringstream text;
        text << number;
        return text.str();
    }
    template <class NumberTP> void addSeveralM(const char* name, const NumberTP* values, int count)
    {
        std::string type; // A word for each.
        std::string all;
        for (int i = 0; i < count; ++i) {
            type += i > 0 ? " \\w+" : "\\w+";
            all += (i > 0 ? " " : "") + textOfM(values[i]);
        }
        addM(name, type, all);
    }
    void addM(const char* name, const std::string& type, const std::string& byDefault)
    {
        fields.push_back({ name, type, byDefault, {} });
    }
};

using RowTP = std::vector<std::string>;

// The rows of the tables of values on a page, table by table.
std::vector<std::vector<RowTP>> tablesOf(const std::string& page)
{
    std::istringstream lines(wholeFile(std::string(PANELKIT_DOCS "/") + page));
    EXPECT_TRUE(lines.peek() != EOF) << "no page " << page;
    std::vector<std::vector<RowTP>> tables;
    bool isInTable = false;
    for (std::string line; std::getline(lines, line);) {
        if (line == "| field | type | default | meaning |") {
            tables.emplace_back();
            isInTable = true;
        } else if (line.rfind('|', 0) != 0) {
            isInTable = false;
        } else if (isInTable && line.rfind("|---", 0) != 0) {
            RowTP row;
            std::istringstream cells(line.substr(1));
            for (std::string cell; std::getline(cells, cell, '|');) {
                const std::size_t first = cell.find_first_not_of(' ');
                row.push_back(first == std::string::npos
                        ? ""
                        : cell.substr(first, cell.find_last_not_of(' ') + 1 - first));
            }
            tables.back().push_back(row);
        }
    }
    return tables;
}

void expectTold(const std::vector<FieldToldCL>& fields, const std::vector<RowTP>& rows)
{
    EXPECT_EQ(rows.size(), fields.size());
    for (std::size_t i = 0; i < std::min(rows.size(), fields.size()); ++i) {
        SCOPED_TRACE(fields[i].name);
        ASSERT_EQ(rows[i].size(), 4U);
        EXPECT_EQ(rows[i][0], fields[i].name);
        EXPECT_TRUE(std::regex_match(rows[i][1], std::regex(fields[i].type))) << rows[i][1];
        EXPECT_EQ(rows[i][2], fields[i].byDefault);
        for (const std::string& named : fields[i].meaning) {
            EXPECT_TRUE(std::regex_search(rows[i][3], std::regex(named))) << named << ": " << rows[i][3];
        }
    }
}

// sections: the values of the kind's sections, its main one first.
void expectPage(const std::string& page, const char* header, std::vector<ToTellCL> sections)
{
    SCOPED_TRACE(page);
    sections.erase(std::remove_if(sections.begin(), sections.end(),
                       [](const ToTellCL& section) { return section.fields.empty(); }),
        sections.end());
    const auto tables = tablesOf(page);
    ASSERT_EQ(tables.size(), sections.size());
    for (std::size_t i = 0; i < tables.size(); ++i) {
        expectTold(sections[i].fields, tables[i]);
    }
    const std::string text = wholeFile(std::string(PANELKIT_DOCS "/") + page);
    EXPECT_NE(text.substr(0, text.find('\n')).find("`" + slGbkToUtf8(header) + "`"), std::string::npos);
    // Its example is in a block of its own, and the picture of that behind it.
    const std::size_t example = text.find("\n```\n");
    const std::size_t end = text.find("\n```\n\n![", example + 1);
    ASSERT_NE(end, std::string::npos);
    EXPECT_NE(text.substr(example, end - example).find("\n" + slGbkToUtf8(header) + "\n"), std::string::npos);
    const std::string picture = "pictures/" + page.substr(0, page.size() - 3) + ".png";
    EXPECT_EQ(text.compare(text.find("](", end), picture.size() + 6, "](../" + picture + ")"), 0) << picture;
    EXPECT_NE(wholeFile(std::string(PANELKIT_DOCS "/") + picture), "");
}

template <class RowTP> class DocsTest : public testing::Test
{
};

} // namespace

TYPED_TEST_SUITE(DocsTest, EveryRowTP, KindNamesCL);

TYPED_TEST(DocsTest, TellTheValuesOfTheKind)
{
    using RecordsTP = typename TypeParam::Records;
    std::vector<ToTellCL> sections(1);
    typename RecordsTP::RecordTP().EachFieldM(sections[0]);
    for (const auto& secondary : RecordsTP::Secondaries) {
        SectionEntryCL().EachFieldM(sections.emplace_back(), secondary.fields);
    }
    expectPage("kinds/" + std::string(RecordsTP::KindName) + ".md", RecordsTP::Header, sections);
}

TEST(Docs, TellTheValuesOfTheNewRotateButton)
{
    std::vector<ToTellCL> sections(2);
    ToTellCL common;
    DVrNewRotateBtnCL record;
    record.EachCommonFieldM(common, 1);
    for (const FieldToldCL& field : common.fields) { // Of these the one that other kinds don't have.
        if (field.name == "item_index") {
            sections[0].fields.push_back(field);
        }
    }
    record.EachFieldM(sections[0]);
    SlotPictureCL().EachFieldM(sections[1]);
    expectPage("kinds/new_rotate_button.md", NewRotateBtnHeader, sections);
}

TEST(Docs, TellTheValuesOfTheHeaderAndWhatAllKindsHave)
{
    DialogHeaderCL header;
    ToTellCL ofHeader;
    header.EachFieldM(ofHeader);
    DVrCommonBoxCL common;
    ToTellCL ofAll;
    common.EachCommonFieldM(ofAll);
    RelationCL relation;
    ToTellCL ofRelations;
    relation.EachFieldM(ofRelations);
    BindingCL binding;
    ToTellCL ofBindings;
    binding.EachFieldM(ofBindings);
    const auto tables = tablesOf("description-file.md");
    ASSERT_EQ(tables.size(), 4U);
    expectTold(ofHeader.fields, tables[0]);
    expectTold(ofAll.fields, tables[1]);
    expectTold(ofRelations.fields, tables[2]);
    expectTold(ofBindings.fields, tables[3]);
}

TEST(Docs, TellTheValuesOfABinding)
{
    BindingCL binding;
    ToTellCL told;
    binding.EachFieldM(told);
    const auto tables = tablesOf("resizing.md");
    ASSERT_EQ(tables.size(), 1U);
    expectTold(told.fields, tables[0]);
}

TEST(Docs, TellTheTableOfKinds)
{
    std::string table = "| kind | code | built | Tab order | value by id |\n|---|---|---|---|---|\n";
    slEachKind([&](auto row) {
        using KindTP = decltype(row);
        const std::string name = KindTP::Records::KindName;
        table += "| [" + name + "](kinds/" + name + ".md) | " + std::to_string(KindTP::Code) + " | "
            + std::to_string(KindTP::BuildPlace) + (KindTP::CanM(Stacked) ? " | by window index" : " | last")
            + (KindTP::CanM(HasValue) ? " | yes |\n" : " | |\n");
    });
    const std::string page = wholeFile(PANELKIT_DOCS "/inside.md");
    EXPECT_NE(page.find("\n\n" + table + "\n"), std::string::npos) << "The table is:\n" << table;
}
