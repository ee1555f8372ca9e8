// Compiled by another compiler than the library: everything goes through the C interface.
#include <panelkit/form/form.h>

#include <iostream>
#include <stdexcept>

namespace {

int failures = 0;

void expect(bool isTrue, const char* what)
{
    if (!isTrue) {
        std::cout << "failed: " << what << '\n';
        ++failures;
    }
}

} // namespace

int main(int count, char** arguments)
{
    panelkit::Form form(count > 1 ? arguments[1] : "");
    expect(static_cast<bool>(form), "the file is read");
    std::cout << form.Error();
    expect(form.Set(1055, 40) && form.Int(1055) == 40, "an integer");
    expect(form.Set(1056, 20.5) && form.Real(1056) == 20.5, "a real");
    expect(form.Set(1050, "\xE7\xAC\x94") && form.Text(1050) == "\xE7\xAC\x94", "a text");
    expect(form.Set(3012, true) && form.Checked(3012) == true, "a check box");
    expect(!form.Set(1055, 900) && !form.Error().empty(), "a refused value");
    expect(form.SetSelection(3020, { 2 }) && form.Selection(3020) == std::vector<int> { 2 }, "a selection");
    expect(form.Controls().size() > 20, "the controls");
    std::string story;
    form.OnClosed([&](int result) { story += "closed " + std::to_string(result); });
    form.OnTimer(1, 10, [&] { form.Close(5); });
    expect(form.Run() == 5 && story == "closed 5", "running");
    form.OnTimer(1, 10, [] { throw std::runtime_error("thrown"); });
    bool isCaught = false;
    try {
        form.Run();
    } catch (const std::runtime_error&) {
        isCaught = true;
    }
    expect(isCaught, "an exception of a handler");
    std::cout << (failures == 0 ? "works\n" : "");
    return failures == 0 ? 0 : 1;
}
