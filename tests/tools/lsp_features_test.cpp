// panelkit lsp: what an editor asks, one thing each.
#include "support/description.h"
#include "tools/lsp_client.h"
#include <set>

namespace {

const std::string Path = "no_such_folder/a.dlg"; // Of texts that no file has.

// A label and a combo box with two items, behind the header.
const std::string Combo = std::string(HeaderSections)
    + "[标题]\n1\n0\n1 1001 10 10 80 20 1\n转速\n0 10 20 30\n[下拉列表框]\n1\n0\n2 3001 100 10 120 160 0\n"
      "[下拉列表框初始值]\n2\n0\n3001 自动\n3001 手动\n";

std::size_t placeOf(const EditedTextCL& text, const std::string& utf8)
{
    const std::size_t at = text.text.find(slUtf8ToUtf16(utf8));
    EXPECT_NE(at, std::u16string::npos) << utf8;
    return at;
}

std::string textOf(const EditedTextCL& text, const LspJson& range)
{
    const std::size_t begin = offsetAt(text.text, range["start"]);
    const std::u16string cut = text.text.substr(begin, offsetAt(text.text, range["end"]) - begin);
    return slUtf16ToUtf8(cut.data(), cut.size());
}

std::set<std::string> labelsOf(const LspJson& items)
{
    std::set<std::string> labels;
    for (const LspJson& item : items) {
        labels.insert(item["label"].get<std::string>());
    }
    return labels;
}

// The titles of the fixes of the one finding of a text, and what the first one makes of it.
struct FixedCL
{
    std::string titles;
    std::string text;
};
FixedCL fixed(LspClientCL& client, const std::string& utf8, const std::string& code)
{
    EditedTextCL text(client, Path, slUtf8ToGbk(utf8));
    FixedCL result;
    for (const LspJson& finding : text.FindingsM()) {
        if (finding["code"] != code) {
            continue;
        }
        const LspJson fixes = text.FixesM(finding);
        for (const LspJson& fix : fixes) {
            result.titles += fix["title"].get<std::string>() + "; ";
        }
        if (!fixes.empty()) {
            text.ApplyM(fixes[0]["edit"]["changes"][text.uri]);
        }
        break;
    }
    result.text = text.Utf8M();
    return result;
}

std::string replaced(std::string text, const std::string& what, const std::string& by)
{
    return text.replace(text.find(what), what.size(), by);
}

} // namespace

TEST(LspFixes, WhereOneIsClear)
{
    LspClientCL client;
    const auto mends = [&](const std::string& right, const std::string& wrong, const std::string& code,
                           const std::string& titles) {
        SCOPED_TRACE(wrong);
        const FixedCL result = fixed(client, replaced(Combo, right, wrong), code);
        EXPECT_EQ(result.text, Combo);
        EXPECT_EQ(result.titles, titles);
    };
    mends("[标题]\n1", "[标提]\n1", "unknown-section", "write [标题]; ");
    mends("初始值]\n2", "初始值]\n1", "bad-count", "set the count to 2; ");
    mends("初始值]\n2", "初始值]\n3", "short-section", "set the count to 2; ");
    mends("80 20", "8O 20", "bad-number", "write 80; ");
    mends("10 10 80", "１０ 10 80", "bad-number", "write 10; ");
    mends("20 1\n", "20 9\n", "bad-value",
        "write 1 (left); write 2 (left); write 3 (centred); write 4 (right); ");
    mends("160 0", "160 5", "bad-value", "write 0; write 1; ");
    mends("速\n", "速\n转速\n", "extra-lines", "delete the line; ");
    const std::string entries = "2\n0\n3001 自动\n3001 手动\n";
    const std::string added
        = fixed(client, replaced(Combo, "[下拉列表框初始值]\n" + entries, ""), "missing-secondary").text;
    EXPECT_NE(added.find("[下拉列表框初始值]\n0\n1\n"), std::string::npos) << added;
    EditedTextCL text(client, Path, slUtf8ToGbk(added));
    for (const LspJson& finding : text.FindingsM()) {
        EXPECT_NE(finding["severity"], 1) << finding;
    }
}

TEST(LspLinks, FromEntriesToTheRecordAndBack)
{
    LspClientCL client;
    EditedTextCL text(client, Path, slUtf8ToGbk(Combo));
    const std::size_t entry = placeOf(text, "3001 手动");
    const std::size_t record = placeOf(text, "3001 100");
    const LspJson definition = text.AskAtM("definition", entry);
    EXPECT_EQ(definition["range"], text.RangeM(record, record + 4));
    EXPECT_EQ(definition["uri"], text.uri);
    EXPECT_EQ(text.AskAtM("references", record).size(), 3U);
    EXPECT_EQ(
        text.AskAtM("references", entry, { { "context", { { "includeDeclaration", false } } } }).size(), 2U);
    EXPECT_TRUE(text.AskAtM("definition", placeOf(text, "转速")).is_null());
    EXPECT_TRUE(text.AskAtM("prepareRename", placeOf(text, "100 10 120")).is_null());
}

TEST(LspLinks, AnIdThatIsTakenOrNoneIsRefused)
{
    LspClientCL client;
    EditedTextCL text(client, Path, slUtf8ToGbk(Combo));
    const auto refusal = [&](std::size_t at, const std::string& name) {
        return client
            .AnswerM("textDocument/rename",
                { { "textDocument", { { "uri", text.uri } } }, { "position", text.PlaceM(at) },
                    { "newName", name } })["error"]["message"]
            .get<std::string>();
    };
    const std::size_t id = placeOf(text, "3001");
    EXPECT_EQ(refusal(id, "1001"), "a control has the id 1001 already");
    EXPECT_EQ(refusal(id, "4x"), "'4x' is no function id: it must be a number");
    EXPECT_EQ(refusal(placeOf(text, "自动"), "5"), "only function ids can be renamed");
}

// Two controls with one id: what is meant is the kind that the place belongs to.
TEST(LspLinks, ASharedIdIsRenamedForItsKindAlone)
{
    LspClientCL client;
    EditedTextCL text(client, Path, slUtf8ToGbk(replaced(Combo, "1001", "3001")));
    text.ApplyM(
        text.AskAtM("rename", placeOf(text, "3001 10 10"), { { "newName", "1001" } })["changes"][text.uri]);
    EXPECT_EQ(text.Utf8M(), Combo);
}

TEST(LspCompletion, HeadersChoicesIdsAndPictures)
{
    LspClientCL client;
    const std::string path = PANELKIT_EXAMPLES "/plotter/plotter.dlg";
    EditedTextCL text(client, path, slUtf8ToGbk(Combo));
    const std::size_t end = text.text.size();
    text.TypeM(end, end, u"[位图");
    LspJson items = text.AskAtM("completion", text.text.size());
    EXPECT_EQ(labelsOf(items).count("[位图按钮]"), 1U);
    EXPECT_EQ(labelsOf(items).count("[标题]"), 0U) << "it is there already";
    for (const LspJson& item : items) {
        if (item["label"] == "[位图按钮]") {
            text.ApplyM({ item["textEdit"] });
        }
    }
    EXPECT_EQ(text.Utf8M(), Combo + "[位图按钮]");
    text.TypeM(text.text.size(), text.text.size(), u"\n1\n0\n3 4001 100 40 64 32\n");
    items = text.AskAtM("completion", text.text.size());
    EXPECT_EQ(labelsOf(items).count("plotter_background.bmp"), 1U) << items.dump();
    EXPECT_EQ(labelsOf(items).count("NULL"), 1U);
    EXPECT_EQ(labelsOf(text.AskAtM("completion", placeOf(text, "3001 手动") + 2)),
        std::set<std::string> { "3001" });
    EXPECT_EQ(labelsOf(text.AskAtM("completion", placeOf(text, "1\n转速"))),
        (std::set<std::string> { "1", "2", "3", "4" }));
    EXPECT_EQ(labelsOf(text.AskAtM("completion", placeOf(text, "0\n[下拉列表框初"))),
        (std::set<std::string> { "0", "1" }));
    EXPECT_EQ(
        labelsOf(text.AskAtM("completion", placeOf(text, "1001") + 4)), std::set<std::string> { "4002" });
}

TEST(LspOutline, SectionsAndControlsWithTheirTexts)
{
    LspClientCL client;
    EditedTextCL text(client, Path, slUtf8ToGbk(Combo));
    const LspJson symbols = text.AskM("documentSymbol");
    std::string all;
    for (const LspJson& section : symbols) {
        all += section["name"].get<std::string>() + " (" + section["detail"].get<std::string>() + "):";
        for (const LspJson& record : section["children"]) {
            all += " " + record["name"].get<std::string>() + ",";
        }
        all += "\n";
    }
    EXPECT_EQ(all,
        "[版本号] (version):\n[对话框] (dialog): 参数设置,\n[标题] (label): 1001 转速,\n"
        "[下拉列表框] (combo box): 3001,\n[下拉列表框初始值] (entry of combo box): 3001 自动, 3001 手动,\n");
    EXPECT_EQ(textOf(text, symbols[2]["range"]), "[标题]\n1\n0\n1 1001 10 10 80 20 1\n转速\n0 10 20 30");
    std::set<std::pair<int, int>> folds;
    for (const LspJson& fold : text.AskM("foldingRange")) {
        folds.insert({ fold["startLine"].get<int>(), fold["endLine"].get<int>() });
    }
    EXPECT_EQ(folds,
        (std::set<std::pair<int, int>> {
            { 0, 1 }, { 2, 9 }, { 10, 15 }, { 13, 15 }, { 16, 19 }, { 20, 24 } }));
}

TEST(LspColours, ShownAndPicked)
{
    LspClientCL client;
    EditedTextCL text(client, Path, slUtf8ToGbk(replaced(Combo, "10 20 30", "51  102 255")));
    const LspJson colours = text.AskM("documentColor");
    ASSERT_EQ(colours.size(), 1U);
    EXPECT_EQ(textOf(text, colours[0]["range"]), "51  102 255");
    EXPECT_EQ(
        colours[0]["color"], (LspJson { { "red", 0.2 }, { "green", 0.4 }, { "blue", 1.0 }, { "alpha", 1 } }));
    const LspJson picked = text.AskM("colorPresentation",
        { { "range", colours[0]["range"] },
            { "color", { { "red", 1 }, { "green", 0 }, { "blue", 0.5 }, { "alpha", 1 } } } });
    ASSERT_EQ(picked.size(), 1U);
    EXPECT_EQ(picked[0]["label"], "255 0 128");
    EXPECT_EQ(picked[0]["textEdit"]["newText"], "255  0 128");
    // A label without a colour shows none.
    EditedTextCL plain(client, "other.dlg", slUtf8ToGbk(replaced(Combo, "10 20 30", "-1 0 0")));
    EXPECT_TRUE(plain.AskM("documentColor").empty());
}

TEST(LspEncoding, AnUtf8FileIsMadeGbk)
{
    LspClientCL client;
    const TempFile file(Combo, ".dlg");
    EditedTextCL text(client, file.path(), slUtf8ToGbk(Combo));
    const LspJson findings = text.FindingsM();
    ASSERT_GE(findings.size(), 1U);
    EXPECT_EQ(findings[0]["code"], "encoding");
    const LspJson fix = text.FixesM(findings[0]).at(0);
    client.RequestM("workspace/executeCommand", fix["command"]);
    EXPECT_EQ(file.bytes(), slUtf8ToGbk(Combo));
    EXPECT_EQ(client.NoticeM("window/showMessage")["message"], "the file is GBK now: open it anew, as GBK");
    for (const LspJson& finding : text.FindingsM()) {
        EXPECT_NE(finding["code"], "encoding");
    }
}

TEST(LspEncoding, WhatGbkLacksAndWhatTheEditorMisread)
{
    LspClientCL client;
    EditedTextCL text(client, Path, slUtf8ToGbk(Combo));
    text.FindingsM();
    const std::size_t at = placeOf(text, "速");
    text.TypeM(at, at, u"\xD83D\xDE00"); // Two units, one character.
    const LspJson lost = text.FindingsM();
    EXPECT_EQ(lost[0]["code"], "encoding");
    EXPECT_EQ(lost[0]["range"]["start"], text.PlaceM(at));
    // Behind it units are still counted right.
    EXPECT_EQ(text.AskAtM("hover", at + 2)["range"], text.RangeM(at - 1, at + 3));
    text.TypeM(at, at + 2, u"");
    EXPECT_EQ(text.Utf8M(), Combo);
    for (const LspJson& finding : text.FindingsM()) {
        EXPECT_NE(finding["code"], "encoding");
    }
    const TempFile file(slUtf8ToGbk(Combo), ".dlg");
    EditedTextCL misread(client, file.path(), "[???]\n1.0\n");
    EXPECT_EQ(misread.FindingsM()[0]["message"],
        "the editor shows this GBK file in another code: open it anew, as GBK");
}

TEST(LspEncoding, PositionsAsAgreed)
{
    const LspJson capabilities = { { "general", { { "positionEncodings", { "utf-8", "utf-16" } } } } };
    LspClientCL client(capabilities);
    EXPECT_EQ(client.welcome["capabilities"]["positionEncoding"], "utf-8");
    EditedTextCL text(client, Path, slUtf8ToGbk(replaced(Combo, "3001 手动", "3001 手动 9")));
    const LspJson range = client.RequestM("textDocument/hover",
        { { "textDocument", { { "uri", text.uri } } },
            { "position", { { "line", 24 }, { "character", 7 } } } })["range"];
    EXPECT_EQ(range["start"]["character"], 5);
    EXPECT_EQ(range["end"]["character"], 13);
}

TEST(LspProtocol, WhatIsWrongIsRefusedAndTheSessionGoesOn)
{
    LspClientCL client;
    EXPECT_EQ(client.AnswerM("textDocument/flatten", LspJson::object())["error"]["code"], -32601);
    EXPECT_EQ(client.AnswerM("textDocument/hover", LspJson::object())["error"]["code"], -32602);
    EXPECT_EQ(client.AnswerM("textDocument/hover",
                  { { "textDocument", { { "uri", "file:///nowhere" } } } })["error"]["code"],
        -32602);
    client.SendBytesM("{no json");
    EXPECT_EQ(client.ReceiveM()["error"]["code"], -32700);
    client.SendBytesM("[1]");
    EXPECT_EQ(client.ReceiveM()["error"]["code"], -32600);
    client.NotifyM("textDocument/didChange", 5);
    EXPECT_EQ(client.ReceiveM()["error"]["code"], -32602);
    EXPECT_EQ(
        client.AnswerM("initialize", { { "capabilities", LspJson::object() } })["error"]["code"], -32600);
    constexpr int Levels = 200000;
    client.SendBytesM(
        "{\"method\":\"x\",\"id\":" + std::string(Levels, '[') + std::string(Levels, ']') + "}");
    EXPECT_EQ(client.ReceiveM()["error"]["code"], -32700);
    client.NotifyM("textDocument/didOpen", // Its name is no UTF-8.
        { { "textDocument", { { "uri", "file:///c:/%B1%EA.dlg" }, { "version", 1 }, { "text", "" } } } });
    EditedTextCL text(client, Path, slUtf8ToGbk(Combo));
    EXPECT_FALSE(text.AskAtM("hover", placeOf(text, "1001")).is_null());
}

TEST(LspProtocol, EndsWithItsClient)
{
    PipedProgramCL gone("lsp");
    EXPECT_EQ(gone.EndM(), 1) << "without a word";
    PipedProgramCL hasty("lsp");
    const std::string exit = "Content-Length: 33\r\n\r\n{\"jsonrpc\":\"2.0\",\"method\":\"exit\"}";
    hasty.WriteM(exit.data(), exit.size());
    char byte = 0;
    EXPECT_EQ(hasty.ReadM(&byte, 1), 0U); // It ends by itself.
    EXPECT_EQ(hasty.EndM(), 1);
}

TEST(LspProtocol, SpeaksTheEditorsLanguage)
{
    PipedProgramCL program("lsp --stdio");
    const std::string body
        = R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"capabilities":{},"locale":"zh-cn"}})";
    const std::string open
        = R"({"jsonrpc":"2.0","method":"textDocument/didOpen","params":{"textDocument":{"uri":"untitled:a","languageId":"panelkit","version":1,"text":""}}})";
    for (const std::string& one : { body, open }) {
        const std::string bytes = "Content-Length: " + std::to_string(one.size()) + "\r\n\r\n" + one;
        program.WriteM(bytes.data(), bytes.size());
    }
    std::string read;
    char block[4096];
    while (read.find("empty-file") == std::string::npos) {
        const std::size_t size = program.ReadM(block, sizeof block);
        ASSERT_GT(size, 0U) << read;
        read.append(block, size);
    }
    EXPECT_NE(read.find("文件是空的"), std::string::npos) << read;
}
