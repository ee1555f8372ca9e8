// Dialogs in other languages, as the command shows and checks them.
#include "support/catalogue_file.h"
#include "support/description.h"
#include "tools/run_command.h"
#include <cstring>
#include <nlohmann/json.hpp>

namespace {

// A label of 60 pixels and a button.
const std::string Sections = HeaderSections
    + std::string("[标题]\n1\n0\n1 1001 10 10 60 20 1\n转速\n0 -1 0 0\n"
                  "[标准按钮]\n1\n0\n2 1 10 40 60 24\n开\n0\n");

std::string quoted(const char* path)
{
    return std::string(" \"") + path + "\"";
}

} // namespace

TEST(Language, NamesThatAreNoneAreRefused)
{
    const DescriptionFileCL file(Sections);
    for (const char* const command : { "check", "inspect", "shot", "view" }) {
        const CommandResultCL result = runCommand(command + quoted(file.path()) + " --language ../en");
        EXPECT_EQ(result.code, 2) << command;
        EXPECT_NE(result.errors.find("'../en' names no language"), std::string::npos) << result.errors;
    }
}

#ifdef _WIN32

TEST(Language, CheckMeasuresTheCaptionsOfTheCatalogue)
{
    const DescriptionFileCL file(Sections);
    const std::string command = "check --lang en" + quoted(file.path());
    CommandResultCL result = runCommand(command);
    EXPECT_EQ(result.output.find("[label-cut]"), std::string::npos) << result.output;
    result = runCommand(command + " --language en");
    EXPECT_EQ(result.code, 2);
    EXPECT_NE(result.errors.find("no catalogue of 'en' is beside"), std::string::npos) << result.errors;
    const CatalogueBesideCL catalogue(file.path(), "en",
        TextsTP { { "转速", "Revolutions of the spindle" }, { "standard button 1\4开", "Start" },
            { "开", "Let the whole machine begin" } });
    result = runCommand(command + " --language en");
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.output.find(":15:1: warning: "), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("[label-cut]"), std::string::npos) << result.output;
    EXPECT_EQ(result.output.find("[label-cut]"), result.output.rfind("[label-cut]")) << result.output;
    EXPECT_EQ(runCommand(command + " --language en_GB --strict").code, 1);
}

TEST(Language, TheDialogIsShownInIt)
{
    const DescriptionFileCL file(Sections);
    const CatalogueBesideCL catalogue(
        file.path(), "ru", TextsTP { { "转速", "Обороты" }, { "参数设置", "Параметры" } });
    const auto shown
        = nlohmann::json::parse(runCommand("inspect --language ru" + quoted(file.path())).output);
    EXPECT_EQ(shown["dialog"]["title"], "Параметры");
    EXPECT_EQ(shown["controls"][0]["text"], "Обороты");
    EXPECT_EQ(shown["controls"][1]["text"], "开");
    const auto own = nlohmann::json::parse(runCommand("inspect" + quoted(file.path())).output);
    EXPECT_EQ(own["controls"][0]["text"], "转速");
}

TEST(Language, ThePlotterSpeaksEnglishAndNothingIsCut)
{
    const std::string plotter = PANELKIT_EXAMPLES "/plotter/plotter.dlg";
    const CommandResultCL checked = runCommand("check --lang en --language en" + quoted(plotter.c_str()));
    EXPECT_EQ(checked.code, 0) << checked.errors;
    EXPECT_EQ(checked.output.find("warning: "), std::string::npos) << checked.output;
    const auto shown
        = nlohmann::json::parse(runCommand("inspect --language en" + quoted(plotter.c_str())).output);
    EXPECT_EQ(shown["dialog"]["title"], "Plotter settings");
    for (const auto& control : shown["controls"]) {
        const std::string text = control["text"];
        const bool isValue = control["kind"] == "single_edit"; // The name of the job.
        EXPECT_EQ(std::any_of(text.begin(), text.end(),
                      [](char unit) { return static_cast<unsigned char>(unit) >= 0xE3; }),
            isValue && control["id"] == 1050)
            << text;
    }
}

#else

// What is compiled is what the translator wrote.
TEST(Language, TheCatalogueOfThePlotterIsUpToDate)
{
    const std::string folder = PANELKIT_EXAMPLES "/plotter/";
    const TempFile compiled("", ".mo");
    ASSERT_EQ(std::system(
                  ("msgfmt --check -o" + quoted(compiled.path()) + quoted((folder + "plotter.en.po").c_str()))
                      .c_str()),
        0);
    std::string committed;
    FILE* const file = std::fopen((folder + "plotter.en.mo").c_str(), "rb");
    ASSERT_NE(file, nullptr);
    for (int byte = std::fgetc(file); byte != EOF; byte = std::fgetc(file)) {
        committed += static_cast<char>(byte);
    }
    std::fclose(file);
    EXPECT_TRUE(committed == compiled.bytes());
    // Every text of the dialog is translated.
    const TempFile made("", ".pot");
    ASSERT_EQ(
        runCommand("strings -o" + quoted(made.path()) + quoted((folder + "plotter.dlg").c_str())).code, 0);
    EXPECT_EQ(
        std::system(("msgcmp" + quoted((folder + "plotter.en.po").c_str()) + quoted(made.path())).c_str()),
        0);
}

#endif
