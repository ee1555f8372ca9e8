#include "baselib/message_texts.h"
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "baselib/message_catalogue.h"
#include <iterator>
#include <map>
#include <mutex>

namespace {

constexpr const char16_t* Minimum = u"{minimum}";
constexpr const char16_t* Maximum = u"{maximum}";

// The library's own text: one in GBK that ends at a limit, or a whole one.
struct OwnMessageCL
{
    const char* gbk;
    const char16_t* limit; // Null: the text ends by itself.
    const char16_t* text { nullptr };
};

constexpr OwnMessageCL OwnMessages[] = {
    { BadDataText, nullptr },
    { NumberTooSmallText, Minimum },
    { NumberTooLargeText, Maximum },
    { StringTooLongText, Maximum },
    { IntTooSmallText, Minimum },
    { IntTooLargeText, Maximum },
    { FloatTooSmallText, Minimum },
    { FloatTooLargeText, Maximum },
    { IntAtMinimumText, Minimum },
    { IntAtMaximumText, Maximum },
    { FloatAtMinimumText, Minimum },
    { FloatAtMaximumText, Maximum },
    { "", nullptr },
    { WarningCaption, nullptr },
    // 请键入整数。 请键入一个正整数。 请键入数字。
    { nullptr, nullptr, u"\u8BF7\u952E\u5165\u6574\u6570\u3002" },
    { nullptr, nullptr, u"\u8BF7\u952E\u5165\u4E00\u4E2A\u6B63\u6574\u6570\u3002" },
    { nullptr, nullptr, u"\u8BF7\u952E\u5165\u6570\u5B57\u3002" },
    // 请键入一个在 … 和 … 之间的整数。 …数字。
    { nullptr, nullptr,
        u"\u8BF7\u952E\u5165\u4E00\u4E2A\u5728 {minimum} \u548C {maximum} "
        u"\u4E4B\u95F4\u7684\u6574\u6570\u3002" },
    { nullptr, nullptr,
        u"\u8BF7\u952E\u5165\u4E00\u4E2A\u5728 {minimum} \u548C {maximum} "
        u"\u4E4B\u95F4\u7684\u6570\u5B57\u3002" },
    // 请键入不超过 … 个字符。
    { nullptr, nullptr, u"\u8BF7\u952E\u5165\u4E0D\u8D85\u8FC7 {maximum} \u4E2A\u5B57\u7B26\u3002" },
    // 操作失败。 内存不足。 找不到所需的资源。 不支持此操作。 参数无效。
    { nullptr, nullptr, u"\u64CD\u4F5C\u5931\u8D25\u3002" },
    { nullptr, nullptr, u"\u5185\u5B58\u4E0D\u8DB3\u3002" },
    { nullptr, nullptr, u"\u627E\u4E0D\u5230\u6240\u9700\u7684\u8D44\u6E90\u3002" },
    { nullptr, nullptr, u"\u4E0D\u652F\u6301\u6B64\u64CD\u4F5C\u3002" },
    { nullptr, nullptr, u"\u53C2\u6570\u65E0\u6548\u3002" },
};
static_assert(std::size(OwnMessages) == MessageTextCount, "each message has a text");

constexpr const char16_t* EnglishMessages[] = {
    u"This value can't be read. Please enter it again.",
    u"This number is too small. Please enter it again.\n(It must not be less than {minimum})",
    u"This number is too large. Please enter it again.\n(It must not be more than {maximum})",
    u"This text is too long. Please enter it again.\n(It must not be longer than {maximum})",
    u"This whole number is too small. Please enter it again.\n(It must not be less than {minimum})",
    u"This whole number is too large. Please enter it again.\n(It must not be more than {maximum})",
    u"This decimal number is too small. Please enter it again.\n(It must not be less than {minimum})",
    u"This decimal number is too large. Please enter it again.\n(It must not be more than {maximum})",
    u"This is the smallest whole number.\n(It must not be less than {minimum})",
    u"This is the largest whole number.\n(It must not be more than {maximum})",
    u"This is the smallest decimal number.\n(It must not be less than {minimum})",
    u"This is the largest decimal number.\n(It must not be more than {maximum})",
    u"",
    u"Warning",
    u"Please enter a whole number.",
    u"Please enter a positive whole number.",
    u"Please enter a number.",
    u"Please enter a whole number between {minimum} and {maximum}.",
    u"Please enter a number between {minimum} and {maximum}.",
    u"Please enter no more than {maximum} characters.",
    u"The operation failed.",
    u"There is not enough memory.",
    u"A resource that is needed was not found.",
    u"This operation is not supported.",
    u"An argument is not valid.",
};
static_assert(std::size(EnglishMessages) == MessageTextCount, "each message has an English text");

struct ReplacedMessagesCL
{
    std::mutex mutex;
    std::map<int, std::u16string> texts;      // By the application;
    std::map<int, std::u16string> translated; // by the language chosen.
};

ReplacedMessagesCL& replacedMessages()
{
    static ReplacedMessagesCL replaced;
    return replaced;
}

std::u16string ownMessage(const OwnMessageCL& own)
{
    if (own.gbk == nullptr) {
        return own.text;
    }
    std::u16string text = slGbkToUtf16(own.gbk);
    return own.limit == nullptr ? text : text + own.limit + slGbkToUtf16(MessageEnd);
}

} // namespace

std::u16string slMessageTemplate(int id)
{
    if (id < 0 || id >= MessageTextCount) {
        return {};
    }
    ReplacedMessagesCL& replaced = replacedMessages();
    const std::lock_guard<std::mutex> lock(replaced.mutex);
    for (const auto* texts : { &replaced.texts, &replaced.translated }) {
        const auto found = texts->find(id);
        if (found != texts->end()) {
            return found->second;
        }
    }
    return ownMessage(OwnMessages[id]);
}

bool slSetMessageTemplate(int id, const std::u16string* text)
{
    if (id < 0 || id >= MessageTextCount) {
        return false;
    }
    ReplacedMessagesCL& replaced = replacedMessages();
    const std::lock_guard<std::mutex> lock(replaced.mutex);
    if (text == nullptr) {
        replaced.texts.erase(id);
    } else {
        replaced.texts.insert_or_assign(
            id, std::u16string(*text)); // The text first: a box without one says nothing.
    }
    return true;
}

void slSetMessageLanguage(std::string_view language, const MessageCatalogueCL* catalogue)
{
    std::map<int, std::u16string> translated;
    const bool isEnglish = language.substr(0, language.find_first_of("_-")) == "en";
    for (int id = 0; id < MessageTextCount; ++id) {
        const std::u16string own = ownMessage(OwnMessages[id]);
        const char* const found = catalogue != nullptr
            ? catalogue->FindM(slUtf16ToUtf8(own.data(), own.size()), slMessageContext(id))
            : nullptr;
        if (found != nullptr) {
            translated[id] = slUtf8ToUtf16(found);
        } else if (isEnglish) {
            translated[id] = EnglishMessages[id];
        }
    }
    ReplacedMessagesCL& replaced = replacedMessages();
    const std::lock_guard<std::mutex> lock(replaced.mutex);
    replaced.translated.swap(translated);
}

std::u16string slMessageText(MessageTextId id, const std::u16string& minimum, const std::u16string& maximum)
{
    const std::u16string from = slMessageTemplate(id);
    std::u16string text;
    const auto takes = [&from](std::size_t at, const std::u16string& name) {
        return from.compare(at, name.size(), name) == 0;
    };
    for (std::size_t at = 0; at < from.size();) {
        if (takes(at, Minimum)) {
            text += minimum;
            at += std::u16string_view(Minimum).size();
        } else if (takes(at, Maximum)) {
            text += maximum;
            at += std::u16string_view(Maximum).size();
        } else {
            text += from[at++];
        }
    }
    return text;
}
