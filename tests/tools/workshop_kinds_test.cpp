// The example application has every kind of control that there is: who adds a kind adds it there too.
#include "dialog/kinds.h"
#include "tools/run_command.h"
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>

TEST(WorkshopKinds, EachStandsInOneOfTheDialogs)
{
    std::map<std::string, size_t> counts;
    for (const char* const dialog : { "machine.dlg", "pens.dlg", "jog.dlg" }) {
        const CommandResultCL result
            = runCommand("dump \"" PANELKIT_EXAMPLES "/workshop/" + std::string(dialog) + "\"");
        ASSERT_EQ(result.code, 0) << dialog;
        const nlohmann::json dump = nlohmann::json::parse(result.output);
        for (const nlohmann::json& section : dump["sections"]) {
            counts[section["kind"]] += section["records"].size();
        }
        counts["new_rotate_button"] += dump["new_rotate_buttons"].size(); // Of no dialog's own building.
    }
    slEachKind([&counts](auto row) { counts.try_emplace(decltype(row)::Records::KindName, 0); });
    EXPECT_EQ(counts.size(), KindCount + 1U); // The command tells of every kind.
    for (const auto& [kind, count] : counts) {
        EXPECT_GT(count, 0U) << kind;
    }
}
