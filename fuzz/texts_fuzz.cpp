// Texts between their encodings, cut, joined to paths, and read as numbers. Run by scripts/fuzz with the
// corpus in fuzz/corpus/texts. The first byte of an input is a size, the rest the text.
#include "baselib/gbk.h"
#include "baselib/helpers.h"
#include "baselib/message_texts.h"
#include "baselib/number_text.h"
#include "baselib/path.h"
#include "baselib/real_text.h"
#include "dialog/translation.h"
#include "pictures/picture_scale.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

constexpr char16_t NoCharacter = 0xFFFD;

void expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// What has a form in the other encoding comes back from there.
void convert(const std::string& bytes)
{
    const std::u16string wide = slGbkToUtf16(bytes.data(), bytes.size());
    if (wide.find(NoCharacter) == std::u16string::npos) {
        int lost = 0;
        const std::string gbk = slUtf16ToGbk(wide.data(), wide.size(), &lost);
        expect(lost == 0 && slGbkToUtf16(gbk.data(), gbk.size()) == wide);
    }
    expect(slUtf8ToUtf16(slUtf16ToUtf8(wide.data(), wide.size())) == wide);
    const std::u16string decoded = slUtf8ToUtf16(bytes);
    expect(slUtf8ToUtf16(slUtf16ToUtf8(decoded.data(), decoded.size())) == decoded);
    slUtf8ToGbk(slGbkToUtf8(bytes.data(), bytes.size()));
    slGbkToShownUtf16(bytes.c_str());
}

// In blocks of just the size that is allowed: a step outside is seen.
void cut(const std::string& bytes, std::size_t most)
{
    const std::size_t length = slGbkCutLength(bytes.data(), bytes.size(), most);
    expect(length <= most && length <= bytes.size() && (length + 1 >= most || length == bytes.size()));
    std::vector<char> room(most + 1, '#');
    const int copied = slCopyText(room.data(), static_cast<int>(room.size()), bytes);
    expect(copied >= 0 && static_cast<std::size_t>(copied) <= most
        && room[static_cast<std::size_t>(copied)] == '\0');
    std::vector<char> text(bytes.c_str(), bytes.c_str() + std::strlen(bytes.c_str()) + 1);
    slCutText(text.data(), static_cast<int>(most));
    expect(std::strlen(text.data()) <= most);
}

void join(const std::string& bytes, std::size_t at)
{
    const std::string path = bytes.substr(0, std::min(at, bytes.size())).c_str();
    const std::string file = bytes.substr(path.size()).c_str();
    std::vector<char> out(PathSize);
    slCatFileNameWithPath(path.c_str(), file.c_str(), out.data());
    expect(std::strlen(out.data()) < out.size());
    slGetFileExtension(out.data(), out.data());
    expect(slGetFileName(path.c_str()) >= path.c_str());
    slNameAtScale(path.c_str(), static_cast<int>(at) + 1);
    std::vector<char> label(PathSize);
    slGetArrBeginStr(label.data(), file.c_str());
    slGetArrIndexStr(label.data(), file.c_str());
    slGetArrEndStr(label.data(), file.c_str());
    TranslationCL translation;
    expect(translation.SetLanguageM(file.c_str()) || translation.LanguageM().empty());
    translation.FilesM(path.c_str());
}

void readNumbers(const std::string& bytes, int decimals)
{
    // Not ended by a NUL.
    const std::vector<char> block(bytes.begin(), bytes.end());
    const char* const end = block.data() + block.size();
    int number = 0;
    const char* const numberEnd = slReadInt(block.data(), end, &number);
    expect(numberEnd <= end);
    if (numberEnd != block.data()) {
        slIntFits(block.data(), numberEnd);
    }
    float real = 0;
    const char* const realEnd = slReadReal(block.data(), end, &real);
    expect(realEnd <= end);
    if (realEnd != block.data()) {
        slRealFits(block.data(), realEnd);
        char text[64];
        float again = 0;
        char* const textEnd = slWriteShortest(text, real);
        expect(slReadReal(text, textEnd, &again) == textEnd && again == real);
        std::vector<char> fixed(64 + static_cast<std::size_t>(decimals));
        expect(slWriteFixed(fixed.data(), real, decimals) <= fixed.data() + fixed.size());
        slRound(real);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    convert(bytes);
    cut(bytes, data[0]);
    join(bytes, data[0]);
    readNumbers(bytes, data[0] % 50);
    const std::u16string message = slUtf8ToUtf16(bytes);
    slSetMessageTemplate(BadValueMessage, &message);
    slMessageText(BadValueMessage, message.substr(0, 8), message.substr(message.size() / 2));
    return 0;
}
