#include "row_layout.h"
#include "baselib/gbk.h"
#include <algorithm>

namespace {

// Columns of a line as an editor shows it; a double-byte character has two.
struct WordCL
{
    std::size_t begin;
    std::size_t end;
};

constexpr std::size_t TabWidth = 8;

// The words of a comment line up to the "/" that begins the next line of the record. What stands in brackets
// explains a word and takes no part.
std::vector<WordCL> wordsOf(std::string_view line)
{
    std::vector<WordCL> words;
    std::size_t column = 0;
    int depth = 0;
    bool isInWord = false;
    const char* const end = line.data() + line.size();
    for (const char* at = line.data(); at < end;) {
        const auto length = static_cast<std::size_t>(slGbkCharLength(at, end));
        const std::string_view one(at, length);
        const bool opens = one == "(" || one == "\xA3\xA8";
        depth += opens ? 1 : 0;
        if (one == " " || one == "\t" || depth > 0) {
            isInWord = isInWord && depth > 0;
        } else if (one == "/" && !isInWord) {
            return words;
        } else if (one != ")" && one != "\xA3\xA9") {
            if (!isInWord) {
                words.push_back({ column, column });
            }
            isInWord = true;
            words.back().end = column + length;
        }
        depth -= depth > 0 && (one == ")" || one == "\xA3\xA9") ? 1 : 0;
        column = one == "\t" ? (column / TabWidth + 1) * TabWidth : column + length;
        at += length;
    }
    return words;
}

// The word of each cell; begin == end where it has none. Empty when the words don't fit the cells.
std::vector<WordCL> wordsOfCells(const RowCellsCL& row, const std::vector<WordCL>& words, std::size_t common)
{
    constexpr WordCL None { 0, 0 };
    if (words.size() == row.cells.size()) {
        return words;
    }
    std::vector<WordCL> found = words;
    if (words.size() + 1 == row.cells.size() && row.cells.back().isText) {
        found.push_back(None); // The text's word stands behind the "/".
        return found;
    }
    found.clear();
    std::size_t used = 0;
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        const bool hasWord = i < common || row.cells[i].part == 0;
        found.push_back(hasWord && used < words.size() ? words[used] : None);
        used += hasWord ? 1 : 0;
    }
    return used == words.size() ? found : std::vector<WordCL>();
}

// The same for words that don't fit: those that can't be told apart have none.
std::vector<WordCL> firstWordsOfCells(
    const RowCellsCL& row, const std::vector<WordCL>& words, std::size_t common)
{
    const bool endsWithRemark = row.cells.back().isText && words.size() > row.cells.size();
    const std::size_t known = endsWithRemark ? row.cells.size() : common;
    const bool areAllThere = known > 1 && known <= words.size();
    return areAllThere ? std::vector<WordCL>(words.data(), words.data() + known) : std::vector<WordCL>();
}

std::vector<WordCL> wordsAbove(
    const FileTextCL& text, const std::vector<RowCellsCL>& rows, SpanCL comments, std::size_t common)
{
    std::vector<std::vector<WordCL>> lines;
    for (std::string_view rest = text.CutM(comments); !rest.empty();) {
        const std::size_t length = std::min(rest.find_first_of("\r\n"), rest.size());
        lines.push_back(wordsOf(rest.substr(0, length)));
        rest.remove_prefix(std::min(rest.find('\n'), rest.size() - 1) + 1);
    }
    std::reverse(lines.begin(), lines.end()); // The nearest to the numbers first: others may be remarks.
    for (const auto& wordsOfRow : { wordsOfCells, firstWordsOfCells }) {
        for (const std::vector<WordCL>& words : lines) {
            for (const RowCellsCL& row : rows) {
                std::vector<WordCL> found = wordsOfRow(row, words, common);
                if (!found.empty()) {
                    return found;
                }
            }
        }
    }
    return {};
}

} // namespace

void lineUpRows(const FileTextCL& text, const std::vector<RowCellsCL>& rows, SpanCL comments,
    std::size_t common, TextChangesTP& changes)
{
    const std::vector<WordCL> words = wordsAbove(text, rows, comments, common);
    std::size_t columns = 0;
    for (const RowCellsCL& row : rows) {
        columns = std::max(columns, row.cells.size());
    }
    std::vector<std::size_t> written(rows.size()); // How long each line is so far.
    std::size_t edge = 0;                          // The longest of them.
    for (std::size_t column = 0; column < columns; ++column) {
        const WordCL word = column < words.size() ? words[column] : WordCL { 0, 0 };
        const std::size_t gap = column == 0 ? 0 : 1;
        std::size_t width = 0;
        for (const RowCellsCL& row : rows) {
            if (column < row.cells.size() && !row.cells[column].isText) {
                width = std::max(width, row.cells[column].span.end - row.cells[column].span.begin);
            }
        }
        const std::size_t end = std::max(edge + gap + width, word.end);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (column >= rows[i].cells.size()) {
                continue;
            }
            const CellCL& cell = rows[i].cells[column];
            const std::size_t begin
                = cell.isText ? std::max(edge + gap, word.begin) : end - (cell.span.end - cell.span.begin);
            const std::size_t from = column == 0 ? rows[i].lineBegin : rows[i].cells[column - 1].span.end;
            const std::string blanks(begin - written[i], ' ');
            if (text.CutM({ from, cell.span.begin }) != blanks) {
                changes.push_back({ { from, cell.span.begin }, blanks });
            }
            written[i] = end;
        }
        edge = width > 0 ? end : edge;
    }
}
