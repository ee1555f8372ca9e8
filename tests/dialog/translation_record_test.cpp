// Catalogues beside description files: which is taken, and what it says.
#include "dialog/translation.h"
#include "support/catalogue_file.h"
#include "support/description.h"
#include <gtest/gtest.h>

namespace {

// What a file's only text reads in a language; "none" when it stays.
std::string shownIn(const TempFile& file, const char* language)
{
    TranslationCL translation;
    EXPECT_TRUE(translation.SetLanguageM(language));
    translation.ReadM(file.path());
    const ValueTextCL shown = translation.FindM(ValueTextCL::FromUtf8M("速度"), "label", 1001);
    return shown.IsNoneM() ? "none" : shown.Utf8M();
}

} // namespace

TEST(Translation, TakesTheCatalogueOfTheLanguageElseOfTheWiderOne)
{
    const DescriptionFileCL file("");
    EXPECT_EQ(shownIn(file, "en"), "none");
    const CatalogueBesideCL english(file.path(), "en", TextsTP { { "速度", "Speed" } });
    EXPECT_EQ(shownIn(file, "en"), "Speed");
    EXPECT_EQ(shownIn(file, "en_GB"), "Speed");
    EXPECT_EQ(shownIn(file, "en-GB"), "Speed");
    EXPECT_EQ(shownIn(file, "eng"), "none");
    EXPECT_EQ(shownIn(file, ""), "none");
    EXPECT_EQ(shownIn(file, nullptr), "none");
    const CatalogueBesideCL british(file.path(), "en_GB", TextsTP { { "速度", "Pace" } });
    EXPECT_EQ(shownIn(file, "en_GB@oxford"), "Pace");
    EXPECT_EQ(shownIn(file, "en_US"), "Speed");
    const CatalogueBesideCL broken(file.path(), "en_US", std::string("no catalogue"));
    EXPECT_EQ(shownIn(file, "en_US"), "Speed");
}

TEST(Translation, NamesOfCataloguesFollowTheNameOfTheFile)
{
    TranslationCL translation;
    translation.SetLanguageM("zh-Hant-TW");
    EXPECT_EQ(translation.LanguageM(), "zh_Hant_TW");
    EXPECT_EQ(translation.FilesM("a.b/plotter.dlg"),
        (std::vector<std::string> {
            "a.b/plotter.zh_Hant_TW.mo", "a.b/plotter.zh_Hant.mo", "a.b/plotter.zh.mo" }));
    EXPECT_EQ(translation.FilesM("a.b/plotter").back(), "a.b/plotter.zh.mo");
    EXPECT_EQ(translation.FilesM("plotter.old.dlg").back(), "plotter.old.zh.mo");
    EXPECT_TRUE(translation.FilesM(nullptr).empty());
    translation.SetLanguageM("");
    EXPECT_TRUE(translation.FilesM("plotter.dlg").empty());
}

TEST(Translation, RefusesWhatIsNoNameAndKeepsTheLanguage)
{
    TranslationCL translation;
    EXPECT_TRUE(translation.SetLanguageM("de"));
    for (const char* const name : { "../de", "en.UTF-8", "d e", "\xD6\xD0", "C:en", "en/" }) {
        EXPECT_FALSE(translation.SetLanguageM(name)) << name;
        EXPECT_EQ(translation.LanguageM(), "de");
    }
    EXPECT_TRUE(translation.SetLanguageM(nullptr));
    EXPECT_EQ(translation.LanguageM(), "");
}

TEST(Translation, TheSameTextMayDifferByContext)
{
    const DescriptionFileCL file("");
    const CatalogueBesideCL english(file.path(), "en",
        TextsTP { { "standard button 2\4开", "Start" }, { "dialog\4开", "Opening" }, { "开", "On" } });
    TranslationCL translation;
    translation.SetLanguageM("en");
    EXPECT_TRUE(translation.ReadM(file.path()));
    const ValueTextCL on = ValueTextCL::FromUtf8M("开");
    EXPECT_EQ(translation.FindM(on, "standard_button", 2).Utf8M(), "Start");
    EXPECT_EQ(translation.FindM(on, "standard_button", 3).Utf8M(), "On");
    EXPECT_EQ(translation.FindM(on, "dialog", 0).Utf8M(), "Opening");
    EXPECT_TRUE(translation.FindM("", "dialog", 0).IsNoneM());
    translation.ForgetM();
    EXPECT_TRUE(translation.FindM(on, "dialog", 0).IsNoneM());
}
