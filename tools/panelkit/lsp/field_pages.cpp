#include "field_pages.h"
#include <array>
#include <map>
#include <string_view>
#include <utility>

namespace {

// The pages, as they were when the command was built.
constexpr std::string_view Pages[] = {
#include "field_pages.inc"
};

using FieldsTP = std::map<std::pair<std::string, std::string>, DocumentedFieldCL>; // By header and name.

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(' ');
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

// A table is of the section that the text names last before it; below a heading without one, of all sections.
class PageReaderCL
{
public:
    explicit PageReaderCL(FieldsTP& fields)
        : fields_(fields)
    {
    }
    void LineM(std::string_view line)
    {
        if (line.substr(0, 3) == "```") {
            isBlock_ = !isBlock_;
        } else if (!isBlock_ && line.substr(0, 1) == "|") {
            rowM(line);
        } else if (!isBlock_) {
            isTable_ = false;
            header_ = line.substr(0, 1) == "#" ? "" : header_;
            const std::size_t begin = line.find("`[");
            const std::size_t end = line.find("]`", begin);
            if (begin != std::string_view::npos && end != std::string_view::npos) {
                header_ = line.substr(begin + 1, end - begin);
            }
        }
    }

private:
    void rowM(std::string_view line)
    {
        std::array<std::string, 4> cells;
        for (std::string& cell : cells) {
            line.remove_prefix(1);
            const std::size_t end = line.find('|');
            if (end == std::string_view::npos) {
                return;
            }
            cell = trimmed(line.substr(0, end));
            line.remove_prefix(end);
        }
        if (isTable_) {
            fields_[{ header_, cells[0] }] = { cells[1], cells[3] };
        } else {
            isTable_ = cells[0] == "field";
        }
    }

    FieldsTP& fields_;
    std::string header_;
    bool isBlock_ { false };
    bool isTable_ { false };
};

FieldsTP readPages()
{
    FieldsTP fields;
    for (std::string_view page : Pages) {
        PageReaderCL reader(fields);
        while (!page.empty()) {
            const std::size_t end = page.find('\n');
            reader.LineM(page.substr(0, end));
            page.remove_prefix(end == std::string_view::npos ? page.size() : end + 1);
        }
    }
    return fields;
}

} // namespace

const DocumentedFieldCL* documentedField(const std::string& header, const std::string& field)
{
    static const FieldsTP fields = readPages();
    const auto own = fields.find({ header, field });
    const auto found = own != fields.end() ? own : fields.find({ "", field });
    return found != fields.end() ? &found->second : nullptr;
}
