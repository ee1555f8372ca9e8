// The language of a dialog of the C interface and of a form.
#include "form/form.h"
#include "form/opened_dialog.h"
#include "support/catalogue_file.h"

namespace {

const std::string Sections = HeaderSections
    + std::string("[标题]\n1\n0\n1 11 10 10 80 20 1\n速度\n0 -1 0 0\n"
                  "[下拉列表框]\n1\n0\n2 12 10 40 80 90 0\n[下拉列表框初始值]\n1\n0\n12 直线\n");

class FormLanguage : public testing::Test
{
protected:
    ~FormLanguage() override { slSetMessageLanguage(""); }

    const DescriptionFileCL file_ { Sections };
    const CatalogueBesideCL catalogue_ { file_.path(), "ru",
        TextsTP { { "速度", "Скорость" }, { "直线", "Прямая" }, { "参数设置", "Параметры" } } };
};

} // namespace

TEST_F(FormLanguage, IsAnOptionInC)
{
    panelkit_options options {};
    options.size = sizeof options;
    options.language = "ru_RU";
    panelkit_dialog* dialog = nullptr;
    ASSERT_EQ(panelkit_open(file_.path(), &options, &dialog), PANELKIT_OK);
    char text[100] = "";
    EXPECT_EQ(panelkit_get_caption(dialog, 11, text, sizeof text, nullptr), PANELKIT_OK);
    EXPECT_STREQ(text, "Скорость");
    EXPECT_EQ(panelkit_get_line(dialog, 12, 0, text, sizeof text, nullptr), PANELKIT_OK);
    EXPECT_STREQ(text, "直线");
    EXPECT_EQ(panelkit_destroy(dialog), PANELKIT_OK);
    options.language = "ru/../x";
    EXPECT_EQ(panelkit_open(file_.path(), &options, &dialog), PANELKIT_ERROR_ARGUMENT);
    EXPECT_EQ(dialog, nullptr);
    // A program that was compiled before there was a language.
    options.size = offsetof(panelkit_options, language);
    ASSERT_EQ(panelkit_open(file_.path(), &options, &dialog), PANELKIT_OK);
    EXPECT_EQ(panelkit_get_caption(dialog, 11, text, sizeof text, nullptr), PANELKIT_OK);
    EXPECT_STREQ(text, "速度");
    EXPECT_EQ(panelkit_destroy(dialog), PANELKIT_OK);
}

TEST_F(FormLanguage, IsAnOptionOfAForm)
{
    panelkit::FormOptions options;
    EXPECT_EQ(panelkit::Form(file_.path(), options).Title(), "参数设置");
    options.language = "ru";
    EXPECT_EQ(panelkit::Form(file_.path(), options).Title(), "Параметры");
    options.language = "no language";
    const panelkit::Form none(file_.path(), options);
    EXPECT_FALSE(none);
    EXPECT_NE(none.Error(), "");
}
